#pragma once
#include <algorithm>
#include <cstdint>

#include "support/omi_BlkBitVect.h"

// A set of ints. A few members lie in the set itself, sorted: most sets of a
// deck hold a handful of ids, and a deck of a million one-id sets would
// otherwise pay for a million bit-vector blocks and their directories. A set
// that outgrows that room moves its members to a blocked bit vector, one bit
// each, and keeps them there from then on. Flipping the sign bit maps the
// ints onto the bit indices in the same order, so negative members work and
// the walk comes out ascending over the whole int range.
class omi_Set {
  public:
    // The members a set holds in itself.
    static constexpr int kFew = 8;

    // True if the value was new.
    bool Insert(int value) {
        if (m_inVector) return m_bits.Set(toIndex(value));
        int* const end = m_few + m_fewCount;
        int* const at = std::lower_bound(m_few, end, value);
        if (at != end && *at == value) return false;
        if (m_fewCount == kFew) {
            moveFewToVector();
            return m_bits.Set(toIndex(value));
        }
        std::copy_backward(at, end, end + 1);
        *at = value;
        ++m_fewCount;
        return true;
    }
    // True if the value was a member.
    bool Remove(int value) {
        if (m_inVector) return m_bits.Clear(toIndex(value));
        int* const end = m_few + m_fewCount;
        int* const at = std::lower_bound(m_few, end, value);
        if (at == end || *at != value) return false;
        std::copy(at + 1, end, at);
        --m_fewCount;
        return true;
    }
    bool IsMember(int value) const {
        if (m_inVector) return m_bits.Test(toIndex(value));
        return std::binary_search(m_few, m_few + m_fewCount, value);
    }
    int64_t Size() const { return m_inVector ? m_bits.Count() : m_fewCount; }
    bool IsEmpty() const { return Size() == 0; }
    void Clear() {
        m_bits.ClearAll();
        m_inVector = false;
        m_fewCount = 0;
    }

  private:
    friend class omi_SetIT;
    static constexpr uint32_t kSignBit = 0x80000000u;
    static uint32_t toIndex(int value) { return static_cast<uint32_t>(value) ^ kSignBit; }
    static int toValue(uint32_t index) { return static_cast<int>(index ^ kSignBit); }
    void moveFewToVector() {
        for (int i = 0; i < m_fewCount; ++i) m_bits.Set(toIndex(m_few[i]));
        m_fewCount = 0;
        m_inVector = true;
    }

    bool m_inVector = false;  // the members are in m_bits, not in m_few
    int m_fewCount = 0;
    int m_few[kFew] = {};  // ascending
    omi_BlkBitVect m_bits;
};

// Walks a set in ascending order, starting on the smallest member. The set must
// outlive the walk and must not change during it.
class omi_SetIT {
  public:
    explicit omi_SetIT(omi_Set const& set) : m_set(&set), m_walk(set.m_bits) {}

    void First() {
        m_fewAt = 0;
        m_walk.First();
    }
    void Next() {
        if (m_set->m_inVector) {
            m_walk.Next();
        } else {
            ++m_fewAt;
        }
    }
    bool IsDone() const {
        return m_set->m_inVector ? m_walk.IsDone() : m_fewAt >= m_set->m_fewCount;
    }
    bool NotDone() const { return !IsDone(); }
    int CurrentItem() const {
        return m_set->m_inVector ? omi_Set::toValue(m_walk.Current()) : m_set->m_few[m_fewAt];
    }

  private:
    omi_Set const* m_set;
    int m_fewAt = 0;
    omi_BlkBitVectTrav m_walk;
};
