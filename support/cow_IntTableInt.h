#pragma once
#include <cstdint>

#include "support/ZELBasAssert.h"
#include "support/cow_COW.h"
#include "support/omi_IntTable.h"

// A map from int to int with value semantics: copies share one omi_IntTable<int>
// and a write clones it first when it is shared. Renumbering maps hold
// millions of entries and are copied between stages as a matter of course, so
// a copy must cost a count. An empty table holds no storage at all.
class cow_IntTableInt {
  public:
    using Table = omi_IntTable<int>;

    cow_IntTableInt() noexcept = default;

    // True if the key was new; an existing key gets the value replaced.
    bool Insert(int key, int value) { return writableTable().Insert(key, value); }
    // True if the key was present. A missing key copies nothing.
    bool Remove(int key) {
        if (!IsMember(key)) return false;
        return writableTable().Remove(key);
    }
    void Clear() noexcept { m_table.Reset(nullptr); }

    bool IsMember(int key) const { return !m_table.IsNull() && m_table->IsMember(key); }
    // The value of the key, or null: the one-lookup form.
    int const* Lookup(int key) const { return m_table.IsNull() ? nullptr : m_table->Lookup(key); }
    // The key must be present.
    int ConstGet(int key) const {
        int const* value = Lookup(key);
        ZELBAS_ASSERT_TEXT(value != nullptr, "key not in table");
        return *value;
    }

    int Size() const noexcept { return m_table.IsNull() ? 0 : static_cast<int>(m_table->Size()); }
    bool IsEmpty() const noexcept { return Size() == 0; }
    // The table must not be empty.
    int MinKey() const { return ConstGetTable().MinKey(); }
    int MaxKey() const { return ConstGetTable().MaxKey(); }

    // The entries in ascending key order; the table must not change meanwhile.
    Table const& ConstGetTable() const { return m_table.IsNull() ? emptyTable() : *m_table; }
    Table::const_iterator begin() const { return ConstGetTable().begin(); }
    Table::const_iterator end() const { return ConstGetTable().end(); }

    // Writable access to the whole table, isolated from every copy.
    Table& GetTable() { return writableTable(); }

    int UseCount() const noexcept { return m_table.UseCount(); }
    bool SharesWith(cow_IntTableInt const& other) const noexcept {
        return m_table.SharesWith(other.m_table);
    }

    friend bool operator==(cow_IntTableInt const& a, cow_IntTableInt const& b) {
        if (a.Size() != b.Size()) return false;
        for (auto [key, value] : a) {
            int const* other = b.Lookup(key);
            if (other == nullptr || *other != value) return false;
        }
        return true;
    }

  private:
    static Table const& emptyTable() {
        static Table const empty;
        return empty;
    }
    Table& writableTable() {
        if (m_table.IsNull()) {
            m_table.Reset(new Table());
        } else if (m_table.UseCount() > 1) {
            m_table.Reset(new Table(*m_table));
        }
        return *m_table;
    }

    cow_CountedHld<Table> m_table;
};

// Walks a snapshot of a table in ascending key order: later writes to the
// table it was made from don't reach it.
class cow_IntTableIntIT {
  public:
    explicit cow_IntTableIntIT(cow_IntTableInt const& table) : m_table(table) { First(); }
    cow_IntTableIntIT(cow_IntTableIntIT const&) = delete;
    cow_IntTableIntIT& operator=(cow_IntTableIntIT const&) = delete;

    void First() { m_position = m_table.begin(); }
    void Next() { ++m_position; }
    bool IsDone() const { return m_position.AtEnd(); }
    bool NotDone() const { return !IsDone(); }
    int CurrentKey() const { return m_position.CurrentKey(); }
    int CurrentValue() const { return (*m_position).value; }

  private:
    cow_IntTableInt m_table;
    cow_IntTableInt::Table::const_iterator m_position;
};
