#pragma once
#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <new>
#include <utility>

#include "support/ZELBasAssert.h"
#include "support/cow_COW.h"

// An indexed sequence with value semantics and copy-on-write storage.
//
// Layout: the elements lie in blocks of 2^shift slots, reached through a table
// of block pointers. Element i sits at position m_start + i of the table's
// slot space, so a list can grow at both ends: Append and Prepend are
// amortised O(1). The table is counted and shared by copies of the list, each
// block is counted and shared by the tables that point to it. A copy costs one
// count; the first write through a copy copies the table (pointers only) and
// then each block it touches, never the rest.
//
// The block size grows with the list: the shift starts at 4 (16 slots) and
// goes up by one whenever a table would need more blocks than a block has
// slots, up to kMaxShift. Both the table and a block then stay near the
// square root of the length, which keeps a first write after a copy cheap
// whether the list holds twenty elements or a million. Lists don't go back
// to smaller blocks when they shrink.
//
// A block constructs only the slots [lo, hi) that a list has filled, so no
// default constructor runs for unused slots. Copies may see different parts of
// a shared block (one copy removed its last element, another did not): every
// list's elements lie inside the constructed range of each of its blocks, and
// only a list that owns a table and a block alone constructs or destroys in it.
//
// Positions are ints: a list holds fewer than 2^30 elements.
template <class T>
class cow_List {
    struct Block;
    struct Table;

  public:
    // A forward iterator over the elements, for range-for. It walks block by
    // block and is invalidated by any change to the list.
    class const_iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = T const*;
        using reference = T const&;

        const_iterator() = default;
        reference operator*() const { return *m_item; }
        pointer operator->() const { return m_item; }
        const_iterator& operator++() {
            ++m_pos;
            if (++m_item == m_blockEnd) enterBlock();
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator old = *this;
            ++*this;
            return old;
        }
        friend bool operator==(const_iterator const& a, const_iterator const& b) {
            return a.m_pos == b.m_pos;
        }

      private:
        friend class cow_List;
        const_iterator(Table const* table, int pos, int end)
            : m_table(table), m_pos(pos), m_end(end) {
            enterBlock();
        }
        void enterBlock() {
            if (m_pos >= m_end) return;
            Block const* block = m_table->blocks()[m_pos >> m_table->shift];
            int const mask = (1 << m_table->shift) - 1;
            m_item = block->items() + (m_pos & mask);
            m_blockEnd = block->items() + mask + 1;
        }

        Table const* m_table = nullptr;
        int m_pos = 0;
        int m_end = 0;
        T const* m_item = nullptr;
        T const* m_blockEnd = nullptr;
    };

    cow_List() noexcept = default;
    cow_List(std::initializer_list<T> values) {
        Reserve(static_cast<int>(values.size()));
        for (T const& value : values) Append(value);
    }
    cow_List(cow_List const& other) noexcept
        : m_table(other.m_table), m_start(other.m_start), m_length(other.m_length) {
        if (m_table) ++m_table->refs;
    }
    cow_List(cow_List&& other) noexcept
        : m_table(std::exchange(other.m_table, nullptr)),
          m_start(std::exchange(other.m_start, 0)),
          m_length(std::exchange(other.m_length, 0)) {}
    cow_List& operator=(cow_List const& other) noexcept {
        cow_List(other).swap(*this);
        return *this;
    }
    cow_List& operator=(cow_List&& other) noexcept {
        cow_List(std::move(other)).swap(*this);
        return *this;
    }
    ~cow_List() { releaseTable(m_table); }

    int Length() const noexcept { return m_length; }
    int Size() const noexcept { return m_length; }
    bool IsEmpty() const noexcept { return m_length == 0; }

    // Writable access: gives this list its own copy of the element's block.
    // The reference is good until the list is next copied or changed in shape;
    // a write through it after a copy would show in both lists.
    T& Get(int i) {
        checkIndex(i);
        return writableAt(i);
    }
    T const& ConstGet(int i) const {
        checkIndex(i);
        return at(i);
    }
    T const& operator[](int i) const { return ConstGet(i); }
    T const& Last() const { return ConstGet(m_length - 1); }
    T& GetLast() { return Get(m_length - 1); }

    void Append(T const& value) { pushBack(value); }
    void Append(T&& value) { pushBack(std::move(value)); }
    void Prepend(T const& value) { pushFront(value); }
    void Prepend(T&& value) { pushFront(std::move(value)); }
    // Inserts before index i; i == Length() appends. Moves the shorter side.
    void InsertIndex(int i, T const& value) {
        if (i < 0 || i > m_length) RaiseOutOfRange(i, m_length);
        T copy(value);  // value may be an element of this list
        if (i < m_length / 2) {
            pushFront(std::move(copy));
            rotateLeft(0, i + 1);
        } else {
            pushBack(std::move(copy));
            rotateRight(i, m_length);
        }
    }
    // Inserts the elements of `other` before index i (i == Length() appends),
    // in their order, in one pass: every element moves at most once, where
    // inserting them one by one would move the elements after i once per
    // element inserted. Elements that no other list holds move into place,
    // this list's own as well as those of an inserted list given as an
    // rvalue; shared ones are copied, so that every other holder keeps them
    // whole. Should a copy throw part-way, this list may have lost elements.
    void InsertList(int i, cow_List const& other) {
        // A counted copy: `other` keeps its elements (and may be this list).
        insertList(i, cow_List(other));
    }
    void InsertList(int i, cow_List&& other) { insertList(i, std::move(other)); }
    // Removes index i. Moves the shorter side.
    void RemoveIndex(int i) {
        checkIndex(i);
        if (i < m_length / 2) {
            rotateRight(0, i + 1);
            dropFront(1);
        } else {
            rotateLeft(i, m_length);
            dropBack(1);
        }
    }
    void RemoveLast() {
        checkIndex(m_length - 1);
        dropBack(1);
    }
    // Removes the last element and returns it.
    T Pop() {
        checkIndex(m_length - 1);
        int const pos = m_start + m_length - 1;
        T last = ownsBlockAlone(pos) ? std::move(slot(pos)) : T(slot(pos));
        dropBack(1);
        return last;
    }
    // Appends all elements of other (which may be this list).
    void Concatenate(cow_List const& other) {
        if (IsEmpty()) {
            *this = other;
            return;
        }
        // A counted copy keeps other's elements in place if other is this list.
        cow_List const source(other);  // NOLINT(performance-unnecessary-copy-initialization)
        for (T const& value : source) pushBack(value);
    }
    // The elements [from, to). The slice shares the blocks it lies in (so it
    // keeps those whole blocks alive until one of the lists writes to them).
    cow_List Slice(int from, int to) const {
        if (from < 0 || from > m_length) RaiseOutOfRange(from, m_length);
        if (to < from || to > m_length) RaiseOutOfRange(to, m_length);
        cow_List slice;
        if (from < to) shareRange(slice, from, to);
        return slice;
    }
    void Fill(T const& value) {
        T const copy(value);  // value may be an element of this list
        IsolateRange(0, m_length);
        for (int i = 0; i < m_length; ++i) slot(m_start + i) = copy;
    }
    // New elements are default-constructed.
    void Resize(int n) {
        if (n < 0) RaiseOutOfRange(n, m_length);
        if (n < m_length) {
            dropBack(m_length - n);
            return;
        }
        Reserve(n);
        while (m_length < n) pushBack(T());
    }
    void Clear() noexcept { cow_List().swap(*this); }
    bool IsMember(T const& value) const { return std::find(begin(), end(), value) != end(); }
    // True if the value was not yet there and has been appended.
    bool AppendUnlessMember(T const& value) {
        if (IsMember(value)) return false;
        Append(value);
        return true;
    }
    void SetFromArray(T const* values, int n) {
        cow_List fresh;  // built aside: values may lie in this list
        fresh.Reserve(n);
        for (int i = 0; i < n; ++i) fresh.pushBack(values[i]);
        swap(fresh);
    }
    // Copies all elements to out, which has room for Length() of them.
    void GetCArray(T* out) const { std::copy(begin(), end(), out); }

    // Gives this list its own copy of the block of element i, or of every
    // block of the elements [from, to).
    void Isolate(int i) {
        checkIndex(i);
        ownTable();
        ownBlock(blockOf(m_start + i));
    }
    void IsolateRange(int from, int to) {
        if (from < 0 || from > m_length) RaiseOutOfRange(from, m_length);
        if (to < from || to > m_length) RaiseOutOfRange(to, m_length);
        if (from == to) return;
        ownTable();
        for (int b = blockOf(m_start + from); b <= blockOf(m_start + to - 1); ++b) ownBlock(b);
    }
    // Prepares an empty list for n elements: picks the block size such a list
    // grows to and the table to hold them. No effect on a list with elements.
    void Reserve(int n) {
        if (m_length > 0 || n <= 0) return;
        int const shift = shiftFor(n);
        int const capacity = ((n - 1) >> shift) + 1;
        replaceTable(newTable(shift, capacity), 0);
    }

    // Sharing, for tests: whether both lists use the same block table, and
    // whether element i lives in the same block object in both.
    bool SharesStorageWith(cow_List const& other) const noexcept {
        return m_table != nullptr && m_table == other.m_table;
    }
    bool SharesBlockWith(cow_List const& other, int i) const {
        checkIndex(i);
        other.checkIndex(i);
        return blockHolding(i) == other.blockHolding(i);
    }

    const_iterator begin() const { return const_iterator(m_table, m_start, m_start + m_length); }
    const_iterator end() const {
        return const_iterator(m_table, m_start + m_length, m_start + m_length);
    }

    void swap(cow_List& other) noexcept {
        std::swap(m_table, other.m_table);
        std::swap(m_start, other.m_start);
        std::swap(m_length, other.m_length);
    }

    friend bool operator==(cow_List const& a, cow_List const& b) {
        if (a.m_length != b.m_length) return false;
        if (a.m_table == b.m_table && a.m_start == b.m_start) return true;
        return std::equal(a.begin(), a.end(), b.begin());
    }

  private:
    template <class>
    friend class cow_ListIter;

    static constexpr int kInitialShift = 4;
    static constexpr int kMaxShift = 12;

    // A block is allocated as this header followed by 2^shift slots of T.
    struct Block {
        int refs;
        int lo;  // constructed slots are [lo, hi)
        int hi;
        T* items() noexcept {
            return reinterpret_cast<T*>(reinterpret_cast<char*>(this) + kBlockHeader);
        }
        T const* items() const noexcept {
            return reinterpret_cast<T const*>(reinterpret_cast<char const*>(this) + kBlockHeader);
        }
    };
    // A table is allocated as this header followed by `capacity` block pointers,
    // null where no list of the table has elements.
    struct Table {
        int refs;
        int shift;
        int capacity;
        Block** blocks() noexcept {
            return reinterpret_cast<Block**>(reinterpret_cast<char*>(this) + kTableHeader);
        }
        Block const* const* blocks() const noexcept {
            return reinterpret_cast<Block const* const*>(reinterpret_cast<char const*>(this) +
                                                         kTableHeader);
        }
    };
    static constexpr size_t roundUp(size_t size, size_t alignment) {
        return (size + alignment - 1) / alignment * alignment;
    }
    static constexpr size_t kBlockHeader = roundUp(sizeof(Block), alignof(T));
    static constexpr std::align_val_t kBlockAlignment{std::max(alignof(Block), alignof(T))};
    static constexpr size_t kTableHeader = roundUp(sizeof(Table), alignof(Block*));

    // -- blocks and tables ---------------------------------------------------

    // A new block whose first constructed slot will be `slot`.
    static Block* newBlock(int shift, int slot) {
        void* memory = ::operator new(kBlockHeader + (sizeof(T) << shift), kBlockAlignment);
        return ::new (memory) Block{1, slot, slot};
    }
    static void releaseBlock(Block* block) noexcept {
        if (!block || !cow_DropIsLast(block->refs)) return;
        std::destroy(block->items() + block->lo, block->items() + block->hi);
        block->~Block();
        ::operator delete(block, kBlockAlignment);
    }
    static Table* newTable(int shift, int capacity) {
        // NOLINTNEXTLINE(bugprone-sizeof-expression): a table of block pointers
        size_t bytes = kTableHeader + sizeof(Block*) * static_cast<size_t>(capacity);
        void* memory = ::operator new(bytes);
        Table* table = ::new (memory) Table{1, shift, capacity};
        std::fill_n(table->blocks(), capacity, nullptr);
        return table;
    }
    // Frees the table's memory; the blocks it points to are the caller's care.
    static void freeTable(Table* table) noexcept {
        table->~Table();
        ::operator delete(table);
    }
    static void releaseTable(Table* table) noexcept {
        if (!table || !cow_DropIsLast(table->refs)) return;
        Block** blocks = table->blocks();
        for (int b = 0; b < table->capacity; ++b) releaseBlock(blocks[b]);
        freeTable(table);
    }
    // Owns a table under construction, so that a throwing copy leaks nothing.
    struct TableGuard {
        Table* table;
        ~TableGuard() { releaseTable(table); }
        Table* Release() noexcept { return std::exchange(table, nullptr); }
    };
    // The block shift for a list of n elements: as many blocks as slots in one.
    static int shiftFor(int n) {
        int shift = kInitialShift;
        while (shift < kMaxShift && ((n - 1) >> (2 * shift)) > 0) ++shift;
        return shift;
    }

    // -- positions ------------------------------------------------------------

    int shift() const noexcept { return m_table->shift; }
    int mask() const noexcept { return (1 << m_table->shift) - 1; }
    int blockOf(int pos) const noexcept { return pos >> m_table->shift; }
    int firstBlock() const noexcept { return blockOf(m_start); }
    int lastBlock() const noexcept { return blockOf(m_start + m_length - 1); }
    // Number of blocks holding elements of this list.
    int usedBlocks() const noexcept { return m_length == 0 ? 0 : lastBlock() - firstBlock() + 1; }

    T& slot(int pos) const noexcept {
        return m_table->blocks()[blockOf(pos)]->items()[pos & mask()];
    }
    T const& at(int i) const noexcept { return slot(m_start + i); }
    Block const* blockHolding(int i) const noexcept {
        return m_table->blocks()[blockOf(m_start + i)];
    }
    bool ownsBlockAlone(int pos) const noexcept {
        return m_table->refs == 1 && m_table->blocks()[blockOf(pos)]->refs == 1;
    }

    void checkIndex(int i) const {
        if (i < 0 || i >= m_length) RaiseOutOfRange(i, m_length);
    }
    [[noreturn]] static void RaiseOutOfRange(int /*index*/, int /*length*/) {
        zelbas_AssertFailed("index out of range", __FILE__, __LINE__);
    }

    // -- copy on write ----------------------------------------------------------

    // Installs a table that holds this list's elements from position start.
    void replaceTable(Table* table, int start) noexcept {
        releaseTable(m_table);
        m_table = table;
        m_start = start;
    }
    // Moves this list's block pointers to a new table of `capacity` blocks, the
    // first of them at index `first`. A shared table keeps its pointers (the
    // blocks gain a count); a table of this list alone gives them up, and
    // blocks of it outside this list's elements go.
    void relocate(int capacity, int first) {
        Table* table = newTable(shift(), capacity);
        int const offset = m_start - (firstBlock() << shift());
        int const used = usedBlocks();
        bool const shared = m_table->refs > 1;
        Block** from = m_table->blocks() + firstBlock();
        Block** to = table->blocks() + first;
        for (int b = 0; b < used; ++b) {
            to[b] = from[b];
            if (shared) {
                ++to[b]->refs;
            } else {
                from[b] = nullptr;
            }
        }
        replaceTable(table, (first << shift()) + offset);
    }
    void ownTable() {
        if (m_table->refs > 1) relocate(m_table->capacity, firstBlock());
    }
    // Gives this list, which owns its table, its own copy of block b, made of
    // the elements of this list that lie in it.
    Block* ownBlock(int b) {
        Block*& block = m_table->blocks()[b];
        if (block->refs == 1) return block;
        int const base = b << shift();
        int const lo = std::max(m_start, base) - base;
        int const hi = std::min(m_start + m_length, base + mask() + 1) - base;
        Block* copy = newBlock(shift(), lo);
        try {
            for (; copy->hi < hi; ++copy->hi)
                ::new (copy->items() + copy->hi) T(block->items()[copy->hi]);
        } catch (...) {
            releaseBlock(copy);
            throw;
        }
        --block->refs;
        block = copy;
        return copy;
    }
    // Every element moves through its writable access, which first gives
    // this list (or the source) its own copy of a block that another list
    // shares: a shared element is copied once, one held alone just moves.
    void insertList(int i, cow_List source) {
        if (i < 0 || i > m_length) RaiseOutOfRange(i, m_length);
        if (source.IsEmpty()) return;
        cow_List merged;
        merged.Reserve(m_length + source.m_length);
        for (int k = 0; k < i; ++k) merged.pushBack(std::move(writableAt(k)));
        for (int k = 0; k < source.m_length; ++k) merged.pushBack(std::move(source.writableAt(k)));
        for (int k = i; k < m_length; ++k) merged.pushBack(std::move(writableAt(k)));
        swap(merged);
    }
    T& writableAt(int i) {
        ownTable();
        int const pos = m_start + i;
        return ownBlock(blockOf(pos))->items()[pos & mask()];
    }

    // -- growth -------------------------------------------------------------------

    // Builds a new table of blocks of 2^newShift slots holding this list's
    // elements, moved when this list owns them alone and copied otherwise, with
    // free blocks on both sides.
    void reblock(int newShift) {
        int const offset = m_length == 0 ? 0 : (m_start - (firstBlock() << shift()));
        int const used = ((offset + m_length - 1) >> newShift) + 1;
        int const capacity = 2 * used + 2;
        int const start = (((capacity - used) / 2) << newShift) + offset;
        TableGuard fresh{newTable(newShift, capacity)};
        Block** blocks = fresh.table->blocks();
        int const slotMask = (1 << newShift) - 1;
        for (int i = 0; i < m_length; ++i) {
            int const pos = start + i;
            Block*& block = blocks[pos >> newShift];
            if (!block) block = newBlock(newShift, pos & slotMask);
            T& source = slot(m_start + i);
            if (ownsBlockAlone(m_start + i)) {
                ::new (block->items() + block->hi) T(std::move_if_noexcept(source));
            } else {
                ::new (block->items() + block->hi) T(source);
            }
            ++block->hi;
        }
        replaceTable(fresh.Release(), start);
    }
    // Gives the table room for one more block at the back (or front): a bigger
    // table of pointers, or bigger blocks once blocks outnumber their slots.
    void makeRoom() {
        if (!m_table) {
            replaceTable(newTable(kInitialShift, 2), 1 << kInitialShift);
            return;
        }
        if (usedBlocks() >= (1 << shift()) && shift() < kMaxShift) {
            reblock(shift() + 1);
            return;
        }
        int const used = usedBlocks();
        int const capacity = 2 * used + 2;
        relocate(capacity, (capacity - used) / 2);
    }
    bool hasRoomAtBack() const noexcept {
        return m_table && blockOf(m_start + m_length) < m_table->capacity;
    }
    bool hasRoomAtFront() const noexcept { return m_table && m_start > 0; }

    template <class U>
    void pushBack(U&& value) {
        if (hasRoomAtBack()) {
            ownTable();
            placeBeside(m_start + m_length, m_start + m_length - 1, std::forward<U>(value));
        } else {
            T copy(std::forward<U>(value));  // growth may move the element value refers to
            makeRoom();
            placeBeside(m_start + m_length, m_start + m_length - 1, std::move(copy));
        }
        ++m_length;
    }
    template <class U>
    void pushFront(U&& value) {
        if (hasRoomAtFront()) {
            ownTable();
            placeBeside(m_start - 1, m_start, std::forward<U>(value));
        } else {
            T copy(std::forward<U>(value));
            makeRoom();
            placeBeside(m_start - 1, m_start, std::move(copy));
        }
        --m_start;
        ++m_length;
    }
    // Puts a value at position pos, next to the list's end element at position
    // `neighbour`, in a table this list owns. If the neighbour lies in another
    // block (or the list is empty), whatever the table holds for pos's block
    // is no element of this list, left over from an earlier owner of the
    // table, and a new block takes its place.
    template <class U>
    void placeBeside(int pos, int neighbour, U&& value) {
        int const s = pos & mask();
        Block* block;
        if (m_length > 0 && blockOf(pos) == blockOf(neighbour)) {
            block = ownBlock(blockOf(pos));
        } else {
            Block*& entry = m_table->blocks()[blockOf(pos)];
            releaseBlock(std::exchange(entry, nullptr));
            entry = block = newBlock(shift(), s);
        }
        if (s >= block->lo && s < block->hi) {
            block->items()[s] = std::forward<U>(value);
            return;
        }
        ::new (block->items() + s) T(std::forward<U>(value));
        if (s == block->hi) {
            ++block->hi;
        } else {
            --block->lo;
        }
    }

    // -- shrinking ---------------------------------------------------------------------

    // Removes the last `count` elements. Only a list that owns its table alone
    // frees blocks and destroys elements; a shared table is left as it is.
    void dropBack(int count) {
        int const end = m_start + m_length - count;
        if (m_table->refs == 1) {
            for (int b = lastBlock(); b >= 0 && (b << shift()) >= end - mask(); --b)
                trimBlock(b, m_start, end);
        }
        m_length -= count;
        forgetIfEmpty();
    }
    void dropFront(int count) {
        int const start = m_start + count;
        if (m_table->refs == 1) {
            for (int b = firstBlock(); (b << shift()) < start; ++b)
                trimBlock(b, start, m_start + m_length);
        }
        m_start = start;
        m_length -= count;
        forgetIfEmpty();
    }
    // Cuts block b of an owned table down to the positions [from, to).
    void trimBlock(int b, int from, int to) {
        Block*& block = m_table->blocks()[b];
        if (!block) return;
        int const base = b << shift();
        int const lo = std::max(from - base, 0);
        int const hi = std::min(to - base, mask() + 1);
        if (lo >= hi) {
            releaseBlock(std::exchange(block, nullptr));
            return;
        }
        if (block->refs > 1) return;
        // Slots outside [lo, hi) are no list's elements any more: the table and
        // the block are this list's alone.
        std::destroy(block->items() + block->lo, block->items() + lo);
        std::destroy(block->items() + hi, block->items() + block->hi);
        block->lo = lo;
        block->hi = hi;
    }
    // An empty list keeps a table of its own for the elements to come, but
    // lets go of a shared one.
    void forgetIfEmpty() noexcept {
        if (m_length == 0 && m_table->refs > 1) replaceTable(nullptr, 0);
    }

    // -- moving elements ---------------------------------------------------------------

    // Moves the elements [from, to) one place to the left, the first one to the end.
    void rotateLeft(int from, int to) {
        if (to - from < 2) return;
        IsolateRange(from, to);
        T first(std::move(slot(m_start + from)));
        for (int i = from; i + 1 < to; ++i) slot(m_start + i) = std::move(slot(m_start + i + 1));
        slot(m_start + to - 1) = std::move(first);
    }
    // Moves the elements [from, to) one place to the right, the last one to the front.
    void rotateRight(int from, int to) {
        if (to - from < 2) return;
        IsolateRange(from, to);
        T last(std::move(slot(m_start + to - 1)));
        for (int i = to - 1; i > from; --i) slot(m_start + i) = std::move(slot(m_start + i - 1));
        slot(m_start + from) = std::move(last);
    }

    const_iterator iteratorAt(int i) const {
        return const_iterator(m_table, m_start + i, m_start + m_length);
    }

    // Gives `slice` a table of its own pointing to the blocks of [from, to).
    void shareRange(cow_List& slice, int from, int to) const {
        int const first = blockOf(m_start + from);
        int const last = blockOf(m_start + to - 1);
        Table* table = newTable(shift(), last - first + 1);
        for (int b = first; b <= last; ++b) {
            Block* block = m_table->blocks()[b];
            ++block->refs;
            table->blocks()[b - first] = block;
        }
        slice.replaceTable(table, m_start + from - (first << shift()));
        slice.m_length = to - from;
    }

    Table* m_table = nullptr;
    int m_start = 0;  // position of element 0 in the table's slot space
    int m_length = 0;
};

// Walks a list through a counted copy of it, so the list it was given may
// change meanwhile without disturbing the walk.
template <class T>
class cow_ListIter {
  public:
    explicit cow_ListIter(cow_List<T> const& list) : m_list(list) { First(); }
    cow_ListIter(cow_ListIter const& other) : m_list(other.m_list), m_index(other.m_index) {
        seek();
    }
    cow_ListIter& operator=(cow_ListIter const& other) {
        m_list = other.m_list;
        m_index = other.m_index;
        seek();
        return *this;
    }

    void First() {
        m_index = 0;
        seek();
    }
    void Next() {
        if (IsDone()) return;
        ++m_index;
        ++m_current;
    }
    bool IsDone() const noexcept { return m_index >= m_list.Length(); }
    bool NotDone() const noexcept { return m_index < m_list.Length(); }
    T const& CurrentItem() const {
        if (IsDone()) cow_List<T>::RaiseOutOfRange(m_index, m_list.Length());
        return *m_current;
    }

  private:
    void seek() { m_current = m_list.iteratorAt(std::min(m_index, m_list.Length())); }

    cow_List<T> m_list;
    int m_index = 0;
    typename cow_List<T>::const_iterator m_current;
};
