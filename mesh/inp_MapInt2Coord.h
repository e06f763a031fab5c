#pragma once
#include "mesh/inp_Coord.h"
#include "mesh/omi_IntTableCoord.h"
#include "support/cow_COW.h"

// The nodes of one level of the model with value semantics: copies share one
// node table, and a write first clones the table when it is shared. Instances
// of one part therefore hold a single table between them until one is
// written.
class inp_MapInt2Coord : public cow_COW<omi_IntTableCoord, cow_Direct<omi_IntTableCoord>> {
    using Handle = cow_COW<omi_IntTableCoord, cow_Direct<omi_IntTableCoord>>;

  public:
    using Handle::ConstGet;  // the whole table

    inp_MapInt2Coord() = default;

    // Stores a copy of the record. True for a new key; an existing key gets
    // its record replaced and false is returned.
    bool Insert(int const& key, inp_Coord const& record) { return Get().Insert(key, record); }
    // The key must be a member.
    inp_Coord const& ConstGet(int const& key) const { return ConstGet().ConstGet(key); }
    // The record of the key, or null.
    inp_Coord const* Find(int const& key) const { return ConstGet().Find(key); }
    bool IsMember(int const& key) const { return Find(key) != nullptr; }
    // True if the key was there. A missing key copies nothing.
    bool Remove(int const& key);
    // A shared table is let go of rather than cloned and emptied.
    void Clear();
    int Size() const noexcept { return ConstGet().Size(); }
    bool IsEmpty() const noexcept { return Size() == 0; }
};

// Walks the records of a map in ascending label order. It walks the live
// table: the map must outlive the walk and must not change during it.
class inp_MapInt2CoordSIT {
  public:
    explicit inp_MapInt2CoordSIT(inp_MapInt2Coord const& map) : m_table(&map.ConstGet()) {
        First();
    }

    void First() { m_position = m_table->begin(); }
    void Next() { ++m_position; }
    bool IsDone() const { return m_position.AtEnd(); }
    bool NotDone() const { return !IsDone(); }
    int CurrentKey() const { return m_position.CurrentKey(); }
    inp_Coord const& CurrentValue() const { return omi_IntTableCoord::Record((*m_position).value); }

  private:
    omi_IntTableCoord const* m_table;
    omi_IntTableCoord::const_iterator m_position;
};
