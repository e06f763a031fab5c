#pragma once
#include <cstdint>

#include "mesh/inp_Coord.h"
#include "support/omi_IntTable.h"

// The node table: node label to a node record of its own on the heap. The
// table owns the records: a copy clones every one of them, removal and
// destruction free them.
//
// Keys cover the whole int range in one table, ordered as numbers: label 0
// and negative labels are keys like any other, and iteration runs from the
// most negative label up.
//
// Use the operations below, not the inherited ones that store or drop raw
// pointers: those would leak or share records.
class omi_IntTableCoord : public omi_IntTable<void*> {
    using Base = omi_IntTable<void*>;

  public:
    omi_IntTableCoord() = default;
    omi_IntTableCoord(omi_IntTableCoord const& other);
    omi_IntTableCoord(omi_IntTableCoord&& other) noexcept = default;
    omi_IntTableCoord& operator=(omi_IntTableCoord other) noexcept;
    virtual ~omi_IntTableCoord();

    // Stores a copy of the record. True for a new key; an existing key gets
    // its record overwritten and false is returned: insertion never refuses.
    bool Insert(int key, inp_Coord const& record);
    // True if the key was there.
    bool Remove(int key);
    void Clear() noexcept;

    // The record of the key, or null.
    inp_Coord const* Find(int key) const { return toRecord(Base::Lookup(key)); }
    // The record of the key for writing in place, or null.
    inp_Coord* FindWritable(int key) { return toRecord(Base::LookupWritable(key)); }
    // The key must be a member.
    inp_Coord const& ConstGet(int key) const;

    int Size() const noexcept { return static_cast<int>(Base::Size()); }

    // The record stored in a value slot of the table, as the iterators of the
    // base class hand it out.
    static inp_Coord const& Record(void* const& value) { return *static_cast<inp_Coord*>(value); }

  private:
    static inp_Coord* toRecord(void* const* value) {
        return value != nullptr ? static_cast<inp_Coord*>(*value) : nullptr;
    }
    void deleteRecords(int64_t count) noexcept;
};
