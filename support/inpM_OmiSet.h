#pragma once
#include "support/cow_COW.h"
#include "support/cow_List.h"
#include "support/omi_Set.h"

// A set of unique ints, ascending, with value semantics: copies share one
// omi_Set and a write clones it first when it is shared. The ids of a set of
// nodes or elements live here; they travel inside maps and set handles that
// are copied freely, so a copy must cost a count. An empty set holds no
// storage. The bit-vector storage takes ascending ids (the usual case) at the
// cost of a bit each, with no re-sort and no reallocation of what is there.
class inpM_OmiSet {
  public:
    inpM_OmiSet() noexcept = default;

    // True if the id was new.
    bool Insert(int id) { return writableSet().Insert(id); }
    // Adds every id of the list.
    void Insert(cow_List<int> const& ids);
    // True if the id was a member. A missing id copies nothing.
    bool Remove(int id);
    void Clear() noexcept { m_set.Reset(nullptr); }
    // The storage grows block by block as ids arrive and never moves what it
    // holds, so there is nothing to reserve: kept for callers that announce
    // their bulk inserts.
    void ReserveAdditional(int /*count*/) {}

    bool IsMember(int id) const { return !m_set.IsNull() && m_set->IsMember(id); }
    int Size() const noexcept { return m_set.IsNull() ? 0 : static_cast<int>(m_set->Size()); }
    bool IsEmpty() const noexcept { return Size() == 0; }

    // Union. Adding to an empty set shares the other set's storage.
    inpM_OmiSet& operator+=(inpM_OmiSet const& other);

    // The members as an ascending list.
    cow_List<int> ConstGetArrayCounterpart() const;

    int UseCount() const noexcept { return m_set.UseCount(); }
    bool SharesWith(inpM_OmiSet const& other) const noexcept {
        return m_set.SharesWith(other.m_set);
    }

    friend bool operator==(inpM_OmiSet const& a, inpM_OmiSet const& b);

  private:
    friend class inpM_OmiSetIT;
    static omi_Set const& emptySet();
    omi_Set& writableSet();

    cow_CountedHld<omi_Set> m_set;
};

// Walks a snapshot of a set in ascending order, starting on the smallest id.
// Later writes to the set it was made from don't reach it.
class inpM_OmiSetIT {
  public:
    explicit inpM_OmiSetIT(inpM_OmiSet const& set)
        : m_set(set), m_walk(m_set.m_set.IsNull() ? inpM_OmiSet::emptySet() : *m_set.m_set) {}
    inpM_OmiSetIT(inpM_OmiSetIT const&) = delete;
    inpM_OmiSetIT& operator=(inpM_OmiSetIT const&) = delete;

    void First() { m_walk.First(); }
    void Next() { m_walk.Next(); }
    bool IsDone() const { return m_walk.IsDone(); }
    bool NotDone() const { return m_walk.NotDone(); }
    int CurrentItem() const { return m_walk.CurrentItem(); }

  private:
    inpM_OmiSet m_set;  // keeps the walked storage alive and unchanged
    omi_SetIT m_walk;
};
