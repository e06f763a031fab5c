#pragma once
#include <algorithm>
#include <cstdint>
#include <memory>

#include "support/omi_BlkBitVect.h"

// A set of ints. A few members lie in the set itself, sorted: most sets of a
// deck hold a handful of ids, and a deck of a million one-id sets would
// otherwise pay for a million bit-vector blocks and their directories. A set
// that outgrows that room moves its members to a blocked bit vector, one bit
// each, and keeps them there from then on. Flipping the sign bit maps the
// ints onto the bit indices in the same order, so negative members work and
// the walk comes out ascending over the whole int range. The bit vector is
// made only when it is needed: a set of a few members is 48 bytes, not 96.
class omi_Set {
  public:
    // The members a set holds in itself.
    static constexpr int kFew = 8;

    omi_Set() = default;
    omi_Set(omi_Set const& other)
        : m_bits(other.m_bits ? std::make_unique<omi_BlkBitVect>(*other.m_bits) : nullptr),
          m_fewCount(other.m_fewCount) {
        std::copy(other.m_few, other.m_few + other.m_fewCount, m_few);
    }
    omi_Set(omi_Set&&) noexcept = default;
    omi_Set& operator=(omi_Set const& other) {
        if (this != &other) *this = omi_Set(other);
        return *this;
    }
    omi_Set& operator=(omi_Set&&) noexcept = default;
    ~omi_Set() = default;

    // True if the value was new.
    bool Insert(int value) {
        if (m_bits) return m_bits->Set(toIndex(value));
        int* const end = m_few + m_fewCount;
        int* const at = std::lower_bound(m_few, end, value);
        if (at != end && *at == value) return false;
        if (m_fewCount == kFew) {
            moveFewToVector();
            return m_bits->Set(toIndex(value));
        }
        std::copy_backward(at, end, end + 1);
        *at = value;
        ++m_fewCount;
        return true;
    }
    // True if the value was a member.
    bool Remove(int value) {
        if (m_bits) return m_bits->Clear(toIndex(value));
        int* const end = m_few + m_fewCount;
        int* const at = std::lower_bound(m_few, end, value);
        if (at == end || *at != value) return false;
        std::copy(at + 1, end, at);
        --m_fewCount;
        return true;
    }
    bool IsMember(int value) const {
        if (m_bits) return m_bits->Test(toIndex(value));
        return std::binary_search(m_few, m_few + m_fewCount, value);
    }
    int64_t Size() const { return m_bits ? m_bits->Count() : m_fewCount; }
    bool IsEmpty() const { return Size() == 0; }
    void Clear() {
        m_bits.reset();
        m_fewCount = 0;
    }

  private:
    friend class omi_SetIT;
    static constexpr uint32_t kSignBit = 0x80000000u;
    static uint32_t toIndex(int value) { return static_cast<uint32_t>(value) ^ kSignBit; }
    static int toValue(uint32_t index) { return static_cast<int>(index ^ kSignBit); }
    void moveFewToVector() {
        auto bits = std::make_unique<omi_BlkBitVect>();
        for (int i = 0; i < m_fewCount; ++i) bits->Set(toIndex(m_few[i]));
        m_bits = std::move(bits);
        m_fewCount = 0;
    }
    // What a walk of a set without a bit vector starts its vector walk on.
    static omi_BlkBitVect const& noBits() {
        static omi_BlkBitVect const empty;
        return empty;
    }

    // The members, once they outgrew m_few; null before.
    std::unique_ptr<omi_BlkBitVect> m_bits;
    int m_fewCount = 0;
    int m_few[kFew] = {};  // ascending
};

// Walks a set in ascending order, starting on the smallest member. The set must
// outlive the walk and must not change during it.
class omi_SetIT {
  public:
    explicit omi_SetIT(omi_Set const& set)
        : m_set(&set), m_walk(set.m_bits ? *set.m_bits : omi_Set::noBits()) {}

    void First() {
        m_fewAt = 0;
        m_walk.First();
    }
    void Next() {
        if (m_set->m_bits) {
            m_walk.Next();
        } else {
            ++m_fewAt;
        }
    }
    bool IsDone() const { return m_set->m_bits ? m_walk.IsDone() : m_fewAt >= m_set->m_fewCount; }
    bool NotDone() const { return !IsDone(); }
    int CurrentItem() const {
        return m_set->m_bits ? omi_Set::toValue(m_walk.Current()) : m_set->m_few[m_fewAt];
    }

  private:
    omi_Set const* m_set;
    int m_fewAt = 0;
    omi_BlkBitVectTrav m_walk;
};
