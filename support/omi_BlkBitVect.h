#pragma once
#include <cstdint>

#include "support/omi_IntTable.h"

// A bit vector over the indices 0..UINT32_MAX whose storage comes in blocks of
// 1024 bits, made only where bits are set: bit 999999999 alone costs one small
// block, not a gigabit. It is the key-only form of the blocked table, so it
// shares its directory, its block freeing and its ordered walk.
class omi_BlkBitVect {
  public:
    // True if the bit was clear before.
    bool Set(uint32_t index) { return m_bits.Insert(index, omi_NoValue{}); }
    // True if the bit was set before.
    bool Clear(uint32_t index) { return m_bits.Remove(index); }
    bool Test(uint32_t index) const { return m_bits.IsMember(index); }
    void ClearAll() { m_bits.Clear(); }

    // The number of set bits, kept as bits change.
    int64_t Count() const { return m_bits.Size(); }
    bool IsEmpty() const { return m_bits.IsEmpty(); }

  private:
    friend class omi_BlkBitVectTrav;
    omi_UintTable<omi_NoValue> m_bits;
};

// Walks the set bits of a vector in ascending order, starting on the first.
// The vector must outlive the walk and must not change during it.
class omi_BlkBitVectTrav {
  public:
    explicit omi_BlkBitVectTrav(omi_BlkBitVect const& bits) : m_bits(&bits) { First(); }

    void First() { m_position = m_bits->m_bits.begin(); }
    void Next() { ++m_position; }
    bool IsDone() const { return m_position.AtEnd(); }
    bool NotDone() const { return !IsDone(); }
    uint32_t Current() const { return m_position.CurrentKey(); }

  private:
    omi_BlkBitVect const* m_bits;
    omi_UintTable<omi_NoValue>::const_iterator m_position;
};
