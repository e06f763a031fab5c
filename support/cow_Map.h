#pragma once
#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/ZELBasAssert.h"
#include "support/cow_SharedNodes.h"

class cow_String;
template <class K, class V>
class cow_ConstMapIterator;
template <class K, class V>
class cow_ConstMapSortedIt;

// An ordered map with value semantics: an AVL tree of counted nodes. A copy
// shares the root. A write copies only the nodes on the path from the root to
// the node it touches (and the few that a rebalancing rotation moves), if they
// are shared; every other subtree stays shared between the copies. Keys are
// compared with operator< (string keys by their text, once per level of the
// tree). The tree keeps itself balanced: keyword names and labels usually
// arrive in ascending order, which would turn a plain search tree into a list.
template <class K, class V>
class cow_Map {
  public:
    cow_Map() noexcept = default;
    cow_Map(std::initializer_list<std::pair<K, V>> entries) {
        for (auto const& entry : entries) Insert(entry.first, entry.second);
    }
    cow_Map(cow_Map const& other) noexcept : m_root(other.m_root), m_size(other.m_size) {
        retain(m_root);
    }
    cow_Map(cow_Map&& other) noexcept
        : m_root(std::exchange(other.m_root, nullptr)), m_size(std::exchange(other.m_size, 0)) {}
    cow_Map& operator=(cow_Map const& other) noexcept {
        cow_Map(other).swap(*this);
        return *this;
    }
    cow_Map& operator=(cow_Map&& other) noexcept {
        cow_Map(std::move(other)).swap(*this);
        return *this;
    }
    ~cow_Map() { release(m_root); }

    int Size() const noexcept { return m_size; }
    bool IsEmpty() const noexcept { return m_size == 0; }

    // True if the key was new; otherwise the value is replaced.
    bool Insert(K const& key, V const& value) {
        bool added = false;
        insert(m_root, key, value, added);
        if (added) ++m_size;
        return added;
    }
    // Writable access to the value of an existing key.
    V& Get(K const& key) {
        requireKey(key);
        Node** slot = &m_root;
        for (;;) {
            Node* node = makeUnique(*slot);
            int const order = compareKeys(key, node->key);
            if (order < 0) {
                slot = &node->left;
            } else if (order > 0) {
                slot = &node->right;
            } else {
                return node->value;
            }
        }
    }
    V const& ConstGet(K const& key) const {
        V const* value = Find(key);
        if (!value) raiseMissingKey();
        return *value;
    }
    // The one-lookup form: nullptr if the key is absent.
    V const* Find(K const& key) const {
        Node const* node = m_root;
        while (node) {
            int const order = compareKeys(key, node->key);
            if (order < 0) {
                node = node->left;
            } else if (order > 0) {
                node = node->right;
            } else {
                return &node->value;
            }
        }
        return nullptr;
    }
    // Lookup by the text of a string key without making a string of it: the
    // maps of names are mostly asked with literals.
    V const* Find(std::string_view key) const requires std::is_same_v<K, cow_String> {
        Node const* node = m_root;
        while (node) {
            int const order = key.compare(node->key.View());
            if (order < 0) {
                node = node->left;
            } else if (order > 0) {
                node = node->right;
            } else {
                return &node->value;
            }
        }
        return nullptr;
    }
    V const* Find(char const* key) const requires std::is_same_v<K, cow_String> {
        return Find(std::string_view(key));
    }
    bool IsMember(K const& key) const { return Find(key) != nullptr; }
    bool IsMember(char const* key) const requires std::is_same_v<K, cow_String> {
        return Find(std::string_view(key)) != nullptr;
    }
    // True if the key was there. A missing key copies nothing.
    bool Remove(K const& key) {
        if (!IsMember(key)) return false;
        remove(m_root, key);
        --m_size;
        return true;
    }
    void Clear() noexcept { cow_Map().swap(*this); }

    // Calls f(key, value) for every entry in ascending key order.
    template <class F>
    void ForEachSorted(F&& f) const {
        forEachNodeSorted(m_root, [&f](Node const* node) { f(node->key, node->value); });
    }

    // The key of the first entry, in ascending key order, for which
    // test(key, value) is true; nullptr if none is. Stops at that entry and
    // allocates nothing: for lookups made once per data item over the few
    // instances of a model.
    template <class Test>
    K const* FindFirstSorted(Test&& test) const {
        return findFirstSorted(m_root, test);
    }

    // Sharing, for tests.
    bool SharesRootWith(cow_Map const& other) const noexcept {
        return m_root && m_root == other.m_root;
    }
    // Number of node objects that belong to both trees. A shared subtree is
    // shared as a whole, so it is counted without being walked into twice.
    int SharedNodeCount(cow_Map const& other) const {
        std::vector<Node const*> mine;
        collect(m_root, mine);
        std::vector<Node const*> theirs;
        collect(other.m_root, theirs);
        return cow_CountCommonNodes(std::move(mine), std::move(theirs));
    }

    void swap(cow_Map& other) noexcept {
        std::swap(m_root, other.m_root);
        std::swap(m_size, other.m_size);
    }

  private:
    friend class cow_ConstMapIterator<K, V>;
    friend class cow_ConstMapSortedIt<K, V>;

    // refs counts the parents (nodes or maps) that point to the node.
    struct Node {
        Node(K const& k, V const& v) : key(k), value(v) {}
        Node(Node const& other)
            : refs(1),
              height(other.height),
              left(other.left),
              right(other.right),
              key(other.key),
              value(other.value) {
            retain(left);
            retain(right);
        }
        int refs = 1;
        int height = 1;
        Node* left = nullptr;
        Node* right = nullptr;
        K key;
        V value;
    };

    static void retain(Node* node) noexcept {
        if (node) ++node->refs;
    }
    // Negative, zero or positive as `a` orders before, with or after `b`. A
    // search asks once per level of the tree: for string keys that is one
    // comparison of the texts where "a < b, then b < a" would make two.
    static int compareKeys(K const& a, K const& b) {
        if constexpr (std::is_same_v<K, cow_String>) {
            return a.View().compare(b.View());
        } else {
            return a < b ? -1 : (b < a ? 1 : 0);
        }
    }
    // Iterative along the right spine so that the stack depth stays with the
    // tree's height whatever shape a bug might give it.
    static void release(Node* node) noexcept {
        while (node && --node->refs == 0) {
            release(node->left);
            Node* right = node->right;
            delete node;
            node = right;
        }
    }
    static int height(Node const* node) noexcept { return node ? node->height : 0; }
    static void updateHeight(Node* node) noexcept {
        node->height = 1 + std::max(height(node->left), height(node->right));
    }
    static int balance(Node const* node) noexcept {
        return height(node->left) - height(node->right);
    }

    // Gives the slot a node of its own: a shared node is replaced by a copy that
    // shares the children.
    static Node* makeUnique(Node*& slot) {
        if (slot->refs > 1) {
            Node* copy = new Node(*slot);
            --slot->refs;
            slot = copy;
        }
        return slot;
    }

    static void rotateRight(Node*& slot) {
        Node* node = slot;
        Node* pivot = makeUnique(node->left);
        node->left = pivot->right;
        pivot->right = node;
        updateHeight(node);
        updateHeight(pivot);
        slot = pivot;
    }
    static void rotateLeft(Node*& slot) {
        Node* node = slot;
        Node* pivot = makeUnique(node->right);
        node->right = pivot->left;
        pivot->left = node;
        updateHeight(node);
        updateHeight(pivot);
        slot = pivot;
    }
    // The node in the slot is unique, its subtrees balanced.
    static void rebalance(Node*& slot) {
        Node* node = slot;
        updateHeight(node);
        int const tilt = balance(node);
        if (tilt > 1) {
            if (balance(node->left) < 0) rotateLeft(makeUniqueSlot(node->left));
            rotateRight(slot);
        } else if (tilt < -1) {
            if (balance(node->right) > 0) rotateRight(makeUniqueSlot(node->right));
            rotateLeft(slot);
        }
    }
    static Node*& makeUniqueSlot(Node*& slot) {
        makeUnique(slot);
        return slot;
    }

    static void insert(Node*& slot, K const& key, V const& value, bool& added) {
        if (!slot) {
            slot = new Node(key, value);
            added = true;
            return;
        }
        Node* node = makeUnique(slot);
        int const order = compareKeys(key, node->key);
        if (order == 0) {
            node->value = value;
            return;
        }
        Node*& child = order < 0 ? node->left : node->right;
        int const before = height(child);
        insert(child, key, value, added);
        // A subtree that kept its height leaves every node above it as it
        // was: the walk back up stops here instead of reading the heights of
        // both children at each level up to the root.
        if (height(child) == before) return;
        rebalance(slot);
    }
    // The key is in the subtree.
    static void remove(Node*& slot, K const& key) {
        Node* node = makeUnique(slot);
        int const order = compareKeys(key, node->key);
        if (order < 0) {
            remove(node->left, key);
        } else if (order > 0) {
            remove(node->right, key);
        } else if (!node->left || !node->right) {
            slot = node->left ? node->left : node->right;
            node->left = node->right = nullptr;
            release(node);
            return;
        } else {
            Node* successor = detachMin(node->right);
            node->key = std::move(successor->key);
            node->value = std::move(successor->value);
            release(successor);
        }
        rebalance(slot);
    }
    // Unlinks the smallest node of a non-empty subtree and hands it, unique and
    // childless, to the caller.
    static Node* detachMin(Node*& slot) {
        Node* node = makeUnique(slot);
        if (!node->left) {
            slot = node->right;
            node->right = nullptr;
            return node;
        }
        Node* min = detachMin(node->left);
        rebalance(slot);
        return min;
    }

    // Recursive on the left, iterative on the right: the depth stays within
    // the tree's height.
    template <class Test>
    static K const* findFirstSorted(Node const* node, Test& test) {
        for (; node; node = node->right) {
            if (K const* found = findFirstSorted(node->left, test)) return found;
            if (test(node->key, node->value)) return &node->key;
        }
        return nullptr;
    }

    // Calls visit(node) for every node below `root`, keys ascending: the
    // tree's in-order walk.
    template <class Visit>
    static void forEachNodeSorted(Node const* root, Visit&& visit) {
        std::vector<Node const*> path;
        path.reserve(static_cast<size_t>(height(root)));
        Node const* node = root;
        while (node || !path.empty()) {
            for (; node; node = node->left) path.push_back(node);
            node = path.back();
            path.pop_back();
            visit(node);
            node = node->right;
        }
    }
    static void collect(Node const* root, std::vector<Node const*>& out) {
        std::vector<Node const*> pending;
        if (root) pending.push_back(root);
        while (!pending.empty()) {
            Node const* node = pending.back();
            pending.pop_back();
            out.push_back(node);
            if (node->right) pending.push_back(node->right);
            if (node->left) pending.push_back(node->left);
        }
    }

    void requireKey(K const& key) const {
        if (!IsMember(key)) raiseMissingKey();
    }
    [[noreturn]] static void raiseMissingKey() {
        zelbas_AssertFailed("key not in map", __FILE__, __LINE__);
    }

    Node* m_root = nullptr;
    int m_size = 0;
};

// Visits every entry of a snapshot of a map in the tree's own order: a node,
// then its left subtree, then its right subtree. The order follows the shape of
// the tree, which is deterministic for a given history of insertions but not
// sorted. The iterator holds a counted reference to the tree, so later writes
// to the map don't reach it.
template <class K, class V>
class cow_ConstMapIterator {
  public:
    explicit cow_ConstMapIterator(cow_Map<K, V> const& map) : m_map(map) { First(); }
    void First() {
        m_depth = 0;
        if (m_map.m_root) m_pending[m_depth++] = m_map.m_root;
    }
    void Next() {
        if (IsDone()) return;
        Node const* node = m_pending[--m_depth];
        if (node->right) m_pending[m_depth++] = node->right;
        if (node->left) m_pending[m_depth++] = node->left;
    }
    bool IsDone() const noexcept { return m_depth == 0; }
    bool NotDone() const noexcept { return m_depth != 0; }
    K const& CurrentKey() const { return current()->key; }
    V const& CurrentValue() const { return current()->value; }

  private:
    using Map = cow_Map<K, V>;
    using Node = typename Map::Node;
    Node const* current() const {
        ZELBAS_ASSERT_TEXT(NotDone(), "map iterator is done");
        return m_pending[m_depth - 1];
    }

    // Visiting a node pushes at most its two children after popping it, so
    // the stack never holds more than one node per level plus one. A balanced
    // tree of 2^31 entries is under 46 levels high: the stack lives in the
    // iterator, and walking a small map (a keyword's parameters) allocates
    // nothing.
    static constexpr int kMaxPending = 64;
    Map m_map;
    int m_depth = 0;
    Node const* m_pending[kMaxPending];
};

// keys given to the constructor, such as AscSortCmp or DescSortCmp.
template <class K, class V>
class cow_ConstMapSortedIt {
  public:
    static bool AscSortCmp(K const& a, K const& b) { return a < b; }
    static bool DescSortCmp(K const& a, K const& b) { return b < a; }

    // `cmp(a, b)` tells whether key a comes before key b. The map's own
    // order, ascending or descending, is read off the tree as it stands; any
    // other is sorted.
    template <class Cmp>
    cow_ConstMapSortedIt(cow_Map<K, V> const& map, Cmp cmp) : m_map(map) {
        m_nodes.reserve(static_cast<size_t>(m_map.Size()));
        if constexpr (std::is_convertible_v<Cmp, bool (*)(K const&, K const&)>) {
            bool (*const order)(K const&, K const&) = cmp;
            if (order == &AscSortCmp || order == &DescSortCmp) {
                Map::forEachNodeSorted(m_map.m_root,
                                       [this](Node const* node) { m_nodes.push_back(node); });
                if (order == &DescSortCmp) std::reverse(m_nodes.begin(), m_nodes.end());
                return;
            }
        }
        Map::collect(m_map.m_root, m_nodes);
        std::sort(m_nodes.begin(), m_nodes.end(),
                  [&cmp](Node const* a, Node const* b) { return cmp(a->key, b->key); });
    }
    void First() noexcept { m_index = 0; }
    void Next() noexcept {
        if (NotDone()) ++m_index;
    }
    bool IsDone() const noexcept { return m_index >= m_nodes.size(); }
    bool NotDone() const noexcept { return !IsDone(); }
    K const& CurrentKey() const { return current()->key; }
    V const& CurrentValue() const { return current()->value; }

  private:
    using Map = cow_Map<K, V>;
    using Node = typename Map::Node;
    Node const* current() const {
        ZELBAS_ASSERT_TEXT(NotDone(), "map iterator is done");
        return m_nodes[m_index];
    }

    Map m_map;
    std::vector<Node const*> m_nodes;
    size_t m_index = 0;
};
