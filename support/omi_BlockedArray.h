#pragma once
#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "support/ZELBasAssert.h"

// A growable array kept in fixed blocks of 1024 cells. Growing adds blocks and
// never moves a cell, so pointers and references to cells stay valid until
// Clear. Copies are deep.
//
// A block is value-initialised when it is allocated, and cells are never
// reused before Clear frees their block: the cells past Size() are therefore
// always fresh, and growing only has to move Size().
template <class T>
class omi_BlockedArray {
  public:
    static constexpr int kBlockBits = 10;
    static constexpr int64_t kBlockSize = int64_t{1} << kBlockBits;

    omi_BlockedArray() = default;
    omi_BlockedArray(omi_BlockedArray const& other) : m_size(other.m_size) {
        m_blocks.reserve(other.m_blocks.size());
        for (auto const& block : other.m_blocks) {
            m_blocks.push_back(newBlock());
            std::copy(block.get(), block.get() + kBlockSize, m_blocks.back().get());
        }
    }
    omi_BlockedArray(omi_BlockedArray&& other) noexcept
        : m_blocks(std::move(other.m_blocks)), m_size(std::exchange(other.m_size, 0)) {}
    omi_BlockedArray& operator=(omi_BlockedArray other) noexcept {
        m_blocks.swap(other.m_blocks);
        std::swap(m_size, other.m_size);
        return *this;
    }
    ~omi_BlockedArray() = default;

    int64_t Size() const { return m_size; }
    bool IsEmpty() const { return m_size == 0; }

    // The cell at `index`; the array first grows to hold it, with
    // default-constructed cells.
    T& GetCell(int64_t index) {
        ZELBAS_ASSERT(index >= 0);
        growTo(index + 1);
        return cell(index);
    }

    // The index must be below Size().
    T const& ConstGetCell(int64_t index) const {
        ZELBAS_ASSERT(index >= 0 && index < m_size);
        return cell(index);
    }

    void Append(T const& value) {
        // The value may be a cell of this array: growing leaves it in place.
        growTo(m_size + 1);
        cell(m_size - 1) = value;
    }

    // Copies `count` values into the cells from..from+count-1, growing as needed.
    void BlockCopy(int64_t from, T const* values, int64_t count) {
        ZELBAS_ASSERT(from >= 0 && count >= 0);
        growTo(from + count);
        while (count > 0) {
            int64_t const offset = from & (kBlockSize - 1);
            int64_t const chunk = std::min(count, kBlockSize - offset);
            std::copy(values, values + chunk, m_blocks[from >> kBlockBits].get() + offset);
            from += chunk;
            values += chunk;
            count -= chunk;
        }
    }

    // Frees every block: the array is empty and new cells are fresh again.
    void Clear() {
        std::vector<std::unique_ptr<T[]>>().swap(m_blocks);
        m_size = 0;
    }

  private:
    static std::unique_ptr<T[]> newBlock() { return std::unique_ptr<T[]>(new T[kBlockSize]()); }

    T& cell(int64_t index) const { return m_blocks[index >> kBlockBits][index & (kBlockSize - 1)]; }

    void growTo(int64_t size) {
        if (size <= m_size) return;
        auto const blocksNeeded = static_cast<size_t>((size + kBlockSize - 1) >> kBlockBits);
        while (m_blocks.size() < blocksNeeded) m_blocks.push_back(newBlock());
        m_size = size;
    }

    std::vector<std::unique_ptr<T[]>> m_blocks;
    int64_t m_size = 0;
};
