#pragma once
#include <cstdint>

#include "support/omi_BlkBitVect.h"

// A set of ints, one bit each in a blocked bit vector. Flipping the sign bit
// maps the ints onto the bit indices in the same order, so negative members
// work and the walk comes out ascending over the whole int range.
class omi_Set {
  public:
    // True if the value was new.
    bool Insert(int value) { return m_bits.Set(toIndex(value)); }
    // True if the value was a member.
    bool Remove(int value) { return m_bits.Clear(toIndex(value)); }
    bool IsMember(int value) const { return m_bits.Test(toIndex(value)); }
    int64_t Size() const { return m_bits.Count(); }
    bool IsEmpty() const { return m_bits.IsEmpty(); }
    void Clear() { m_bits.ClearAll(); }

  private:
    friend class omi_SetIT;
    static constexpr uint32_t kSignBit = 0x80000000u;
    static uint32_t toIndex(int value) { return static_cast<uint32_t>(value) ^ kSignBit; }
    static int toValue(uint32_t index) { return static_cast<int>(index ^ kSignBit); }

    omi_BlkBitVect m_bits;
};

// Walks a set in ascending order, starting on the smallest member. The set must
// outlive the walk and must not change during it.
class omi_SetIT {
  public:
    explicit omi_SetIT(omi_Set const& set) : m_walk(set.m_bits) {}

    void First() { m_walk.First(); }
    void Next() { m_walk.Next(); }
    bool IsDone() const { return m_walk.IsDone(); }
    bool NotDone() const { return m_walk.NotDone(); }
    int CurrentItem() const { return omi_Set::toValue(m_walk.Current()); }

  private:
    omi_BlkBitVectTrav m_walk;
};
