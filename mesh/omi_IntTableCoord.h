#pragma once
#include <cstdint>
#include <memory>
#include <vector>

#include "mesh/inp_Coord.h"
#include "support/omi_IntTable.h"

// The node table: node label to a node record. The table owns the records
// and keeps them in blocks of its own that grow with the table (the first
// holds kFirstBlockRecords, each next one twice as many as the one before, up
// to kMaxBlockRecords), so that a million nodes cost some hundreds of
// allocations, not a million. A record never moves while it is in the table;
// a removed record's room is taken by the next insertion. A copy clones every
// record into blocks of its own; clearing and destruction free the blocks.
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
    static constexpr int kFirstBlockRecords = 16;
    static constexpr int kMaxBlockRecords = 4096;

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
    // Room for one more record: a removed record's, or the next of the
    // last block, or the first of a new block.
    inp_Coord* newRecord(inp_Coord const& value);
    void freeBlocks() noexcept;

    std::vector<std::unique_ptr<inp_Coord[]>> m_blocks;
    int m_lastBlockSize = 0;            // records in the last block
    int m_lastBlockUsed = 0;            // of which handed out
    std::vector<inp_Coord*> m_removed;  // rooms of removed records, for reuse
};
