#pragma once
#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/ZELBasAssert.h"

// Tables from a 32-bit label to a value, made for the node and element labels
// of big meshes: mostly dense runs 1..N with gaps, yet now and then a label
// near a billion next to label 1.
//
// A key is turned into a 32-bit slot number that splits into three fields:
//
//     | top: 11 bits | middle: 11 bits | leaf: 10 bits |
//
// The top field picks a middle directory, the middle field a leaf, and a leaf
// holds 1024 slots: a presence bitmap and the values side by side. Directories
// hold only the range of indices in use and leaves exist only where keys do,
// so memory follows the occupied label ranges, never the largest label; a
// lookup is two range checks, three loads and a bit test, and nothing is ever
// rehashed or moved. Walking the slots in order gives ascending keys, so the
// tables iterate sorted for free.
//
// A leaf or directory that becomes empty is freed at once: every child a
// directory holds has at least one key, which keeps iteration over sparse
// tables and MinKey/MaxKey from visiting dead blocks.

// The value of a table that only records which keys are present (the blocked
// bit vector): leaves of such a table carry no value storage at all.
struct omi_NoValue {};

namespace omi_detail {

inline constexpr int kLeafBits = 10;
inline constexpr int kMiddleBits = 11;
inline constexpr uint32_t kLeafSlots = 1u << kLeafBits;
inline constexpr uint32_t kMiddleSlots = 1u << kMiddleBits;

inline uint32_t TopIndex(uint32_t slot) {
    return slot >> (kLeafBits + kMiddleBits);
}
inline uint32_t MiddleIndex(uint32_t slot) {
    return (slot >> kLeafBits) & (kMiddleSlots - 1);
}
inline uint32_t LeafIndex(uint32_t slot) {
    return slot & (kLeafSlots - 1);
}
inline uint32_t ComposeSlot(uint32_t top, uint32_t middle, uint32_t leaf) {
    return (top << (kLeafBits + kMiddleBits)) | (middle << kLeafBits) | leaf;
}

// 1024 slots of a table: which are present, and their values. Values live in
// raw storage and are constructed only in present slots, so a leaf of
// expensive values costs nothing for its gaps.
template <class V>
class TableLeaf {
  public:
    static constexpr bool kHasValues = !std::is_same_v<V, omi_NoValue>;

    // User-provided, so that `new TableLeaf()` doesn't zero the value storage.
    TableLeaf() {}  // NOLINT(modernize-use-equals-default)
    TableLeaf(TableLeaf const& other) : m_count(other.m_count) {
        std::memcpy(m_words, other.m_words, sizeof(m_words));
        if constexpr (kHasValues) copyValuesFrom(other);
    }
    TableLeaf& operator=(TableLeaf const&) = delete;
    ~TableLeaf() {
        if constexpr (kHasValues && !std::is_trivially_destructible_v<V>) {
            for (int bit = NextPresent(0); bit >= 0; bit = NextPresent(bit + 1)) At(bit)->~V();
        }
    }

    bool Has(uint32_t bit) const { return (m_words[bit >> 6] >> (bit & 63)) & 1u; }
    int Count() const { return m_count; }
    bool IsEmpty() const { return m_count == 0; }

    V* At(uint32_t bit) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): V may be a pointer type
        return std::launder(reinterpret_cast<V*>(m_values.bytes + bit * sizeof(V)));
    }
    V const* At(uint32_t bit) const {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): V may be a pointer type
        return std::launder(reinterpret_cast<V const*>(m_values.bytes + bit * sizeof(V)));
    }

    // The slot must be absent. The value is built before the bit is set, so a
    // throwing constructor leaves the leaf as it was.
    template <class... Args>
    void Construct(uint32_t bit, Args&&... args) {
        if constexpr (kHasValues) ::new (slotAddress(bit)) V(std::forward<Args>(args)...);
        m_words[bit >> 6] |= uint64_t{1} << (bit & 63);
        ++m_count;
    }

    // The slot must be present.
    void Destroy(uint32_t bit) {
        if constexpr (kHasValues) At(bit)->~V();
        m_words[bit >> 6] &= ~(uint64_t{1} << (bit & 63));
        --m_count;
    }

    // The first present slot at or after `from`, or -1.
    int NextPresent(uint32_t from) const {
        if (from >= kLeafSlots) return -1;
        uint32_t word = from >> 6;
        uint64_t bits = m_words[word] & (~uint64_t{0} << (from & 63));
        while (bits == 0) {
            if (++word == kWords) return -1;
            bits = m_words[word];
        }
        return static_cast<int>(word * 64 + std::countr_zero(bits));
    }

    int LastPresent() const {
        for (int word = kWords - 1; word >= 0; --word) {
            if (m_words[word] != 0) return word * 64 + 63 - std::countl_zero(m_words[word]);
        }
        return -1;
    }

  private:
    static constexpr uint32_t kWords = kLeafSlots / 64;

    // NOLINTNEXTLINE(bugprone-sizeof-expression): V may be a pointer type
    void* slotAddress(uint32_t bit) { return m_values.bytes + bit * sizeof(V); }

    void copyValuesFrom(TableLeaf const& other) {
        if constexpr (std::is_trivially_copyable_v<V>) {
            // Gaps hold garbage, but copying the block whole beats walking the bits.
            std::memcpy(m_values.bytes, other.m_values.bytes, sizeof(m_values.bytes));
        } else {
            // Counts the values built so far, to undo them if a copy throws.
            int built = 0;
            try {
                for (int bit = other.NextPresent(0); bit >= 0; bit = other.NextPresent(bit + 1)) {
                    ::new (slotAddress(bit)) V(*other.At(bit));
                    ++built;
                }
            } catch (...) {
                for (int bit = other.NextPresent(0); built > 0; bit = other.NextPresent(bit + 1)) {
                    At(bit)->~V();
                    --built;
                }
                throw;
            }
        }
    }

    struct NoStorage {};
    struct Storage {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): V may be a pointer type
        alignas(V) unsigned char bytes[kLeafSlots * sizeof(V)];
    };

    uint64_t m_words[kWords] = {};
    int m_count = 0;
    [[no_unique_address]] std::conditional_t<kHasValues, Storage, NoStorage> m_values;
};

// One level of the directory: children by index, over the range of indices
// in use only. Indices below the range wrap around to huge offsets, so a
// single unsigned comparison rejects both sides.
template <class Child>
class TableDirectory {
  public:
    TableDirectory() = default;
    TableDirectory(TableDirectory const& other) : m_first(other.m_first), m_live(other.m_live) {
        m_children.reserve(other.m_children.size());
        for (auto const& child : other.m_children) {
            m_children.push_back(child ? std::make_unique<Child>(*child) : nullptr);
        }
    }
    TableDirectory(TableDirectory&& other) noexcept
        : m_first(std::exchange(other.m_first, 0)),
          m_live(std::exchange(other.m_live, 0)),
          m_children(std::move(other.m_children)) {}
    TableDirectory& operator=(TableDirectory other) noexcept {
        swap(other);
        return *this;
    }

    void swap(TableDirectory& other) noexcept {
        std::swap(m_first, other.m_first);
        std::swap(m_live, other.m_live);
        m_children.swap(other.m_children);
    }

    Child* Find(uint32_t index) const {
        uint32_t const offset = index - m_first;
        return offset < m_children.size() ? m_children[offset].get() : nullptr;
    }

    Child& FindOrCreate(uint32_t index) {
        std::unique_ptr<Child>& cell = cellFor(index);
        if (!cell) {
            cell = std::make_unique<Child>();
            ++m_live;
        }
        return *cell;
    }

    // Frees the child. Trailing holes are dropped; leading ones stay, since
    // dropping them would shift the whole range on every removal.
    void Erase(uint32_t index) {
        m_children[index - m_first].reset();
        if (--m_live == 0) {
            std::vector<std::unique_ptr<Child>>().swap(m_children);
            m_first = 0;
            return;
        }
        while (!m_children.back()) m_children.pop_back();
    }

    bool IsEmpty() const { return m_live == 0; }

    // One past the last index of the range: what NextOccupied gives when
    // nothing is left.
    uint32_t End() const { return m_first + static_cast<uint32_t>(m_children.size()); }

    uint32_t NextOccupied(uint32_t from) const {
        std::size_t offset = from > m_first ? from - m_first : 0;
        while (offset < m_children.size() && !m_children[offset]) ++offset;
        return m_first + static_cast<uint32_t>(offset);
    }

    // The directory must not be empty. Leading holes may exist, trailing ones
    // never do.
    uint32_t FirstOccupied() const { return NextOccupied(m_first); }
    uint32_t LastOccupied() const { return End() - 1; }

  private:
    std::unique_ptr<Child>& cellFor(uint32_t index) {
        if (m_children.empty()) {
            m_first = index;
            m_children.resize(1);
        } else if (index < m_first) {
            growFront(index);
        } else if (index - m_first >= m_children.size()) {
            m_children.resize(index - m_first + 1);
        }
        return m_children[index - m_first];
    }

    // Keys arriving in descending order grow the range downwards block by
    // block; extending by the current size each time keeps that linear.
    void growFront(uint32_t index) {
        uint32_t const slack = std::min<uint32_t>(index, static_cast<uint32_t>(m_children.size()));
        uint32_t const newFirst = index - slack;
        std::vector<std::unique_ptr<Child>> grown(m_first - newFirst + m_children.size());
        std::move(m_children.begin(), m_children.end(), grown.begin() + (m_first - newFirst));
        m_children.swap(grown);
        m_first = newFirst;
    }

    uint32_t m_first = 0;
    uint32_t m_live = 0;
    std::vector<std::unique_ptr<Child>> m_children;
};

// Slot numbers ordered like the keys: the sign bit of a signed key is flipped,
// so that INT32_MIN maps to slot 0 and -1 sits just below 0.
template <class Key>
struct KeySlots {
    static_assert(std::is_same_v<Key, int32_t> || std::is_same_v<Key, uint32_t>);
    static constexpr uint32_t kFlip = std::is_signed_v<Key> ? 0x80000000u : 0u;
    static uint32_t ToSlot(Key key) { return static_cast<uint32_t>(key) ^ kFlip; }
    static Key ToKey(uint32_t slot) { return static_cast<Key>(slot ^ kFlip); }
};

}  // namespace omi_detail

// The table on either key type; use it as omi_IntTable<V> or omi_UintTable<V>.
// Copies are deep. Pointers and references to values stay valid until their
// own key is removed, whatever else is inserted.
template <class Key, class V>
class omi_BasicIntTable {
    using Leaf = omi_detail::TableLeaf<V>;
    using Middle = omi_detail::TableDirectory<Leaf>;
    using Top = omi_detail::TableDirectory<Middle>;
    using Slots = omi_detail::KeySlots<Key>;

  public:
    using key_type = Key;
    using mapped_type = V;

    // One entry as range-for sees it: `for (auto [key, value] : table)`.
    struct Entry {
        Key key;
        V const& value;
    };

    // Walks the entries in ascending key order. The table must not change
    // while an iterator is in use.
    class const_iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Entry;
        using reference = Entry;
        using pointer = void;
        using difference_type = std::ptrdiff_t;

        const_iterator() = default;

        Entry operator*() const {
            return {CurrentKey(), *m_leaf->At(omi_detail::LeafIndex(m_slot))};
        }
        Key CurrentKey() const { return Slots::ToKey(m_slot); }
        bool AtEnd() const { return m_leaf == nullptr; }

        const_iterator& operator++() {
            int const bit = m_leaf->NextPresent(omi_detail::LeafIndex(m_slot) + 1);
            if (bit >= 0) {
                m_slot = (m_slot & ~(omi_detail::kLeafSlots - 1)) | static_cast<uint32_t>(bit);
            } else {
                m_table->seek(static_cast<uint64_t>(m_slot | (omi_detail::kLeafSlots - 1)) + 1,
                              *this);
            }
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator before = *this;
            ++*this;
            return before;
        }

        friend bool operator==(const_iterator const& a, const_iterator const& b) {
            return a.m_leaf == b.m_leaf && (a.m_leaf == nullptr || a.m_slot == b.m_slot);
        }

      private:
        friend class omi_BasicIntTable;
        omi_BasicIntTable const* m_table = nullptr;
        Leaf const* m_leaf = nullptr;  // null at the end
        uint32_t m_slot = 0;
    };

    omi_BasicIntTable() = default;
    // A copy has leaves of its own: the leaf cache is not copied.
    omi_BasicIntTable(omi_BasicIntTable const& other) : m_top(other.m_top), m_size(other.m_size) {}
    omi_BasicIntTable(omi_BasicIntTable&& other) noexcept
        : m_top(std::move(other.m_top)), m_size(std::exchange(other.m_size, 0)) {
        other.forgetWriteLeaf();
    }
    omi_BasicIntTable& operator=(omi_BasicIntTable other) noexcept {
        forgetWriteLeaf();
        other.forgetWriteLeaf();
        m_top.swap(other.m_top);
        std::swap(m_size, other.m_size);
        return *this;
    }
    ~omi_BasicIntTable() = default;

    // True if the key was new; an existing key gets the value replaced.
    bool Insert(Key key, V const& value) {
        uint32_t const slot = Slots::ToSlot(key);
        Leaf& leaf = leafForWriting(slot);
        uint32_t const bit = omi_detail::LeafIndex(slot);
        if (leaf.Has(bit)) {
            if constexpr (Leaf::kHasValues) *leaf.At(bit) = value;
            return false;
        }
        constructIn(leaf, slot, value);
        return true;
    }

    // The value of the key, default-constructed first if the key is absent.
    V& GetOrInsert(Key key) {
        uint32_t const slot = Slots::ToSlot(key);
        Leaf& leaf = leafForWriting(slot);
        uint32_t const bit = omi_detail::LeafIndex(slot);
        if (!leaf.Has(bit)) constructIn(leaf, slot);
        return *leaf.At(bit);
    }

    // True if the key was present.
    bool Remove(Key key) {
        uint32_t const slot = Slots::ToSlot(key);
        Leaf* const leaf = findLeaf(slot);
        if (leaf == nullptr || !leaf->Has(omi_detail::LeafIndex(slot))) return false;
        leaf->Destroy(omi_detail::LeafIndex(slot));
        --m_size;
        if (leaf->IsEmpty()) dropEmptyLeaf(slot);
        return true;
    }

    void Clear() {
        forgetWriteLeaf();
        Top().swap(m_top);
        m_size = 0;
    }

    bool IsEmpty() const { return m_size == 0; }
    int64_t Size() const { return m_size; }

    V const* Lookup(Key key) const {
        uint32_t const slot = Slots::ToSlot(key);
        Leaf const* const leaf = findLeaf(slot);
        uint32_t const bit = omi_detail::LeafIndex(slot);
        return leaf != nullptr && leaf->Has(bit) ? leaf->At(bit) : nullptr;
    }
    V* LookupWritable(Key key) { return const_cast<V*>(std::as_const(*this).Lookup(key)); }

    bool IsMember(Key key) const {
        uint32_t const slot = Slots::ToSlot(key);
        Leaf const* const leaf = findLeaf(slot);
        return leaf != nullptr && leaf->Has(omi_detail::LeafIndex(slot));
    }

    // The key must be present.
    V const& ConstGet(Key key) const {
        V const* const value = Lookup(key);
        ZELBAS_ASSERT_TEXT(value != nullptr, "key not in table");
        return *value;
    }

    // The table must not be empty.
    Key MinKey() const {
        ZELBAS_ASSERT_TEXT(!IsEmpty(), "table is not empty");
        uint32_t const top = m_top.FirstOccupied();
        Middle const& middle = *m_top.Find(top);
        uint32_t const mid = middle.FirstOccupied();
        uint32_t const bit = static_cast<uint32_t>(middle.Find(mid)->NextPresent(0));
        return Slots::ToKey(omi_detail::ComposeSlot(top, mid, bit));
    }
    Key MaxKey() const {
        ZELBAS_ASSERT_TEXT(!IsEmpty(), "table is not empty");
        uint32_t const top = m_top.LastOccupied();
        Middle const& middle = *m_top.Find(top);
        uint32_t const mid = middle.LastOccupied();
        uint32_t const bit = static_cast<uint32_t>(middle.Find(mid)->LastPresent());
        return Slots::ToKey(omi_detail::ComposeSlot(top, mid, bit));
    }

    const_iterator begin() const {
        const_iterator position;
        seek(0, position);
        return position;
    }
    const_iterator end() const { return {}; }

  private:
    Leaf* findLeaf(uint32_t slot) const {
        Middle const* const middle = m_top.Find(omi_detail::TopIndex(slot));
        return middle != nullptr ? middle->Find(omi_detail::MiddleIndex(slot)) : nullptr;
    }

    // Insertions come in runs of neighbouring keys (the labels of a mesh
    // block, a generated set): the leaf of the last one is kept, so that the
    // next insertion into it skips both directories.
    Leaf& leafForWriting(uint32_t slot) {
        uint32_t const leafNumber = slot >> omi_detail::kLeafBits;
        if (m_writeLeaf != nullptr && m_writeLeafNumber == leafNumber) return *m_writeLeaf;
        Middle& middle = m_top.FindOrCreate(omi_detail::TopIndex(slot));
        try {
            m_writeLeaf = &middle.FindOrCreate(omi_detail::MiddleIndex(slot));
        } catch (...) {
            if (middle.IsEmpty()) m_top.Erase(omi_detail::TopIndex(slot));
            throw;
        }
        m_writeLeafNumber = leafNumber;
        return *m_writeLeaf;
    }

    void forgetWriteLeaf() noexcept { m_writeLeaf = nullptr; }

    // The slot of the leaf must be absent. A leaf made for this value alone
    // is dropped again if building the value throws.
    template <class... Args>
    void constructIn(Leaf& leaf, uint32_t slot, Args&&... args) {
        try {
            leaf.Construct(omi_detail::LeafIndex(slot), std::forward<Args>(args)...);
        } catch (...) {
            if (leaf.IsEmpty()) dropEmptyLeaf(slot);
            throw;
        }
        ++m_size;
    }

    void dropEmptyLeaf(uint32_t slot) {
        forgetWriteLeaf();
        uint32_t const top = omi_detail::TopIndex(slot);
        Middle& middle = *m_top.Find(top);
        middle.Erase(omi_detail::MiddleIndex(slot));
        if (middle.IsEmpty()) m_top.Erase(top);
    }

    // Puts `position` on the first entry at slot `from` or later, or at the end.
    void seek(uint64_t from, const_iterator& position) const {
        position.m_table = this;
        position.m_leaf = nullptr;
        if (from > UINT32_MAX) return;
        uint32_t const start = static_cast<uint32_t>(from);
        for (uint32_t top = m_top.NextOccupied(omi_detail::TopIndex(start)); top < m_top.End();
             top = m_top.NextOccupied(top + 1)) {
            bool const startsHere = top == omi_detail::TopIndex(start);
            Middle const& middle = *m_top.Find(top);
            uint32_t const firstMid = startsHere ? omi_detail::MiddleIndex(start) : 0;
            for (uint32_t mid = middle.NextOccupied(firstMid); mid < middle.End();
                 mid = middle.NextOccupied(mid + 1)) {
                bool const startsInLeaf = startsHere && mid == omi_detail::MiddleIndex(start);
                Leaf const* const leaf = middle.Find(mid);
                int const bit = leaf->NextPresent(startsInLeaf ? omi_detail::LeafIndex(start) : 0);
                if (bit >= 0) {
                    position.m_leaf = leaf;
                    position.m_slot = omi_detail::ComposeSlot(top, mid, static_cast<uint32_t>(bit));
                    return;
                }
            }
        }
    }

    Top m_top;
    int64_t m_size = 0;
    // The leaf the last insertion went to, and its slots' number above the
    // leaf bits; null when there is none or it may be gone. Leaves never
    // move, so the pointer holds until a leaf is dropped or the table is
    // cleared, swapped or moved from.
    Leaf* m_writeLeaf = nullptr;
    uint32_t m_writeLeafNumber = 0;
};

// The classic walk over a table: First, Next, IsDone, in ascending key order.
// Starts on the first entry. The table must outlive the iterator and must not
// change while it is in use.
template <class Key, class V>
class omi_BasicIntTableIterator {
  public:
    explicit omi_BasicIntTableIterator(omi_BasicIntTable<Key, V> const& table) : m_table(&table) {
        First();
    }

    void First() { m_position = m_table->begin(); }
    void Next() { ++m_position; }
    bool IsDone() const { return m_position.AtEnd(); }
    bool NotDone() const { return !IsDone(); }
    Key CurrentKey() const { return m_position.CurrentKey(); }
    V const& CurrentValue() const { return (*m_position).value; }

  private:
    omi_BasicIntTable<Key, V> const* m_table;
    typename omi_BasicIntTable<Key, V>::const_iterator m_position;
};

// Classes rather than aliases, so that other headers can declare them ahead.
template <class V>
class omi_IntTable : public omi_BasicIntTable<int32_t, V> {
  public:
    using omi_BasicIntTable<int32_t, V>::omi_BasicIntTable;
};

template <class V>
class omi_UintTable : public omi_BasicIntTable<uint32_t, V> {
  public:
    using omi_BasicIntTable<uint32_t, V>::omi_BasicIntTable;
};

template <class V>
class omi_IntTableIterator : public omi_BasicIntTableIterator<int32_t, V> {
  public:
    using omi_BasicIntTableIterator<int32_t, V>::omi_BasicIntTableIterator;
};

template <class V>
class omi_UintTableIterator : public omi_BasicIntTableIterator<uint32_t, V> {
  public:
    using omi_BasicIntTableIterator<uint32_t, V>::omi_BasicIntTableIterator;
};
