#pragma once
#include "mesh/inp_Element.h"
#include "mesh/omi_IntTableElement.h"
#include "support/ZELBasSharedPtr.h"

// The elements of one level by label: a shared pointer to one table, NOT a
// copy-on-write value. Copies of a map see the one table and a write through
// any of them shows in all; the copy-on-write layer stands one level up, in
// the per-instance holder. A writer that must not disturb other holders asks
// UseCount() and calls AdoptNewTable() first.
//
// A map starts with an empty table of its own. After ReleaseTable() it holds
// none: it then reads as empty, and the next insertion gives it a fresh table.
class inp_MapInt2Element {
  public:
    inp_MapInt2Element();
    // Shares `table` with every other holder of it (which may be none).
    explicit inp_MapInt2Element(ZELBasSharedPtr<omi_IntTableElement> table) noexcept
        : m_table(static_cast<ZELBasSharedPtr<omi_IntTableElement>&&>(table)) {}

    // A label that holds a record gets `value` assigned into it, false; a new
    // label gets a new record, true.
    bool Insert(int const& label, inp_Element const& value);
    // As Insert, but the table takes over `owned` (made with new); an old
    // record under the label is destroyed first.
    bool InsertPtr(int const& label, inp_Element* owned);

    // The label must be a member.
    inp_Element const& ConstGet(int const& label) const;
    // The record, writable in place, or null for a label that is no member.
    inp_Element* GetEltPtr(int label);
    inp_Element const* GetEltPtr(int label) const;

    // Takes the record out of the table, for all its holders, and hands it
    // to the caller to own; null for a label that is no member.
    inp_Element* TakePtr(int label) { return HasTable() ? m_table->Release(label) : nullptr; }

    bool IsMember(int const& label) const;
    int Size() const;
    bool IsEmpty() const { return Size() == 0; }
    // Destroys every record of the table, for all its holders.
    void Clear();

    // The number of holders of the table; weak handles don't count. 0 after
    // ReleaseTable().
    int UseCount() const noexcept { return m_table.UseCount(); }
    bool SharesTableWith(inp_MapInt2Element const& other) const noexcept {
        return m_table.SharesWith(other.m_table);
    }
    // This holder gets a new empty table; the old one stays with the others.
    void AdoptNewTable();
    // This holder gets a copy of its table (records cloned), to write into
    // without disturbing the others, which keep the original.
    void AdoptCopyOfTable();
    // Drops the table; the holder is then empty.
    void ReleaseTable() noexcept { m_table.Reset(); }
    bool HasTable() const noexcept { return !m_table.IsNull(); }

    // The table itself, for walks and bulk moves. Null after ReleaseTable().
    omi_IntTableElement const* ConstGetTable() const noexcept { return m_table.Get(); }
    // Writable; gives a holder without a table a fresh one first.
    omi_IntTableElement& GetTable();
    ZELBasWeakPtr<omi_IntTableElement> WeakTable() const noexcept { return m_table; }

  private:
    ZELBasSharedPtr<omi_IntTableElement> m_table;
};

// Walks a map's records in ascending label order. The walk reads the live
// table without holding it, so it does not count as a holder, and the table
// must outlive the walk and keep its labels while it runs; records may be
// changed in place through CurrentValuePtr().
class inp_MapInt2ElementSIT {
  public:
    explicit inp_MapInt2ElementSIT(inp_MapInt2Element const& map);

    void First();
    void Next() { ++m_position; }
    bool IsDone() const { return m_position == m_end; }
    bool NotDone() const { return !IsDone(); }
    int CurrentKey() const { return m_position.CurrentKey(); }
    inp_Element const& CurrentValue() const { return *(*m_position).value; }
    // Records are writable whatever the const-ness of the map: the table is
    // shared by design, not copied on write.
    inp_Element* CurrentValuePtr() const { return (*m_position).value; }

  private:
    omi_IntTableElement const* m_table;
    omi_IntTableElement::const_iterator m_position;
    omi_IntTableElement::const_iterator m_end;
};

// The per-level holder of elements; see there.
#include "mesh/inp_ElementInstanceMap.h"
