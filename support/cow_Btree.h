#pragma once
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "support/ZELBasAssert.h"
#include "support/cow_SharedNodes.h"

template <class K, class V>
class cow_BtreeIT;

// An ordered map with value semantics for bulk tables: a B+ tree of counted
// nodes. Entries lie in leaves of up to kMaxEntries keys and values side by
// side, so a walk or a lookup touches few cache lines and a million entries
// cost a tree three levels deep. A copy shares the root; a write copies only
// the nodes on the path from the root to the leaf it touches, when they are
// shared, and every other node stays shared between the copies.
//
// Keys are compared with operator<. Removal frees a node that becomes empty
// but doesn't merge nodes that only shrink: the bulk tables are filled and
// read, removal is rare, and a thin node costs space, never correctness.
template <class K, class V>
class cow_Btree {
  public:
    static constexpr int kMaxEntries = 64;

    cow_Btree() noexcept = default;
    cow_Btree(cow_Btree const& other) noexcept : m_root(other.m_root), m_size(other.m_size) {
        retain(m_root);
    }
    cow_Btree(cow_Btree&& other) noexcept
        : m_root(std::exchange(other.m_root, nullptr)), m_size(std::exchange(other.m_size, 0)) {}
    cow_Btree& operator=(cow_Btree const& other) noexcept {
        cow_Btree(other).swap(*this);
        return *this;
    }
    cow_Btree& operator=(cow_Btree&& other) noexcept {
        cow_Btree(std::move(other)).swap(*this);
        return *this;
    }
    ~cow_Btree() { release(m_root); }

    int Size() const noexcept { return m_size; }
    bool IsEmpty() const noexcept { return m_size == 0; }

    // True if the key was new; otherwise the value is replaced.
    bool Insert(K const& key, V const& value) {
        bool added = false;
        Split split = insert(m_root, key, value, added);
        if (split.right) growRoot(split);
        if (added) ++m_size;
        return added;
    }

    // The value, or null: the one-lookup form.
    V const* Find(K const& key) const {
        Node const* node = m_root;
        if (!node) return nullptr;
        while (!node->leaf) node = asInner(node)->children[childIndex(node, key)];
        Leaf const* leaf = asLeaf(node);
        auto const at = std::lower_bound(leaf->keys.begin(), leaf->keys.end(), key);
        if (at == leaf->keys.end() || key < *at) return nullptr;
        return &leaf->values[static_cast<size_t>(at - leaf->keys.begin())];
    }
    bool IsMember(K const& key) const { return Find(key) != nullptr; }
    // The key must exist.
    V const& ConstGet(K const& key) const {
        V const* value = Find(key);
        if (!value) raiseMissingKey();
        return *value;
    }
    // Writable access to the value of an existing key: isolates its path.
    V& Get(K const& key) {
        if (!IsMember(key)) raiseMissingKey();
        Node** slot = &m_root;
        for (;;) {
            Node* node = makeUnique(*slot);
            if (node->leaf) {
                Leaf* leaf = asLeaf(node);
                auto const at = std::lower_bound(leaf->keys.begin(), leaf->keys.end(), key);
                return leaf->values[static_cast<size_t>(at - leaf->keys.begin())];
            }
            slot = &asInner(node)->children[childIndex(node, key)];
        }
    }

    // True if the key was there. A missing key copies nothing.
    bool Remove(K const& key) {
        if (!IsMember(key)) return false;
        remove(m_root, key);
        --m_size;
        shrinkRoot();
        return true;
    }
    void Clear() noexcept { cow_Btree().swap(*this); }

    // The key must exist.
    K const& MinKey() const { return edgeLeaf(true)->keys.front(); }
    K const& MaxKey() const { return edgeLeaf(false)->keys.back(); }

    // Calls f(key, value) for every entry in ascending key order.
    template <class F>
    void ForEach(F&& f) const {
        forEach(m_root, f);
    }

    // Sharing, for tests.
    bool SharesRootWith(cow_Btree const& other) const noexcept {
        return m_root && m_root == other.m_root;
    }
    // Number of node objects that belong to both trees.
    int SharedNodeCount(cow_Btree const& other) const {
        std::vector<Node const*> mine;
        collect(m_root, mine);
        std::vector<Node const*> theirs;
        collect(other.m_root, theirs);
        return cow_CountCommonNodes(std::move(mine), std::move(theirs));
    }

    void swap(cow_Btree& other) noexcept {
        std::swap(m_root, other.m_root);
        std::swap(m_size, other.m_size);
    }

  private:
    friend class cow_BtreeIT<K, V>;

    // refs counts the parents (nodes or trees) that point to the node.
    struct Node {
        explicit Node(bool isLeaf) : leaf(isLeaf) {}
        int refs = 1;
        bool leaf;
        std::vector<K> keys;
    };
    // keys[i] goes with values[i].
    struct Leaf : Node {
        Leaf() : Node(true) {}
        std::vector<V> values;
    };
    // children[i + 1] holds the keys from keys[i] on, children[i] those below.
    struct Inner : Node {
        Inner() : Node(false) {}
        std::vector<Node*> children;
    };
    // What a node that overflowed hands to its parent: the new right sibling
    // and the smallest key under it.
    struct Split {
        Node* right = nullptr;
        K separator{};
    };

    static Leaf* asLeaf(Node* node) noexcept { return static_cast<Leaf*>(node); }
    static Leaf const* asLeaf(Node const* node) noexcept { return static_cast<Leaf const*>(node); }
    static Inner* asInner(Node* node) noexcept { return static_cast<Inner*>(node); }
    static Inner const* asInner(Node const* node) noexcept {
        return static_cast<Inner const*>(node);
    }

    static size_t childIndex(Node const* node, K const& key) {
        return static_cast<size_t>(std::upper_bound(node->keys.begin(), node->keys.end(), key) -
                                   node->keys.begin());
    }

    static void retain(Node* node) noexcept {
        if (node) ++node->refs;
    }
    static void release(Node* node) noexcept {
        if (!node || --node->refs > 0) return;
        if (node->leaf) {
            delete asLeaf(node);
            return;
        }
        Inner* inner = asInner(node);
        for (Node* child : inner->children) release(child);
        delete inner;
    }

    // Gives the slot a node of its own: a shared node is replaced by a copy
    // that shares the children.
    static Node* makeUnique(Node*& slot) {
        if (slot->refs == 1) return slot;
        Node* copy = nullptr;
        if (slot->leaf) {
            copy = new Leaf(*asLeaf(slot));
        } else {
            Inner* inner = new Inner(*asInner(slot));
            for (Node* child : inner->children) retain(child);
            copy = inner;
        }
        copy->refs = 1;
        --slot->refs;
        slot = copy;
        return copy;
    }

    static Split insert(Node*& slot, K const& key, V const& value, bool& added) {
        if (!slot) {
            Leaf* leaf = new Leaf();
            leaf->keys.push_back(key);
            leaf->values.push_back(value);
            slot = leaf;
            added = true;
            return {};
        }
        Node* node = makeUnique(slot);
        return node->leaf ? insertInLeaf(asLeaf(node), key, value, added)
                          : insertInInner(asInner(node), key, value, added);
    }

    static Split insertInLeaf(Leaf* leaf, K const& key, V const& value, bool& added) {
        auto const at = std::lower_bound(leaf->keys.begin(), leaf->keys.end(), key);
        size_t const index = static_cast<size_t>(at - leaf->keys.begin());
        if (at != leaf->keys.end() && !(key < *at)) {
            leaf->values[index] = value;
            return {};
        }
        leaf->keys.insert(at, key);
        leaf->values.insert(leaf->values.begin() + static_cast<std::ptrdiff_t>(index), value);
        added = true;
        if (static_cast<int>(leaf->keys.size()) <= kMaxEntries) return {};
        return splitLeaf(leaf);
    }

    static Split splitLeaf(Leaf* leaf) {
        auto const half = static_cast<std::ptrdiff_t>(leaf->keys.size() / 2);
        Leaf* right = new Leaf();
        right->keys.assign(leaf->keys.begin() + half, leaf->keys.end());
        right->values.assign(leaf->values.begin() + half, leaf->values.end());
        leaf->keys.erase(leaf->keys.begin() + half, leaf->keys.end());
        leaf->values.erase(leaf->values.begin() + half, leaf->values.end());
        return {right, right->keys.front()};
    }

    static Split insertInInner(Inner* inner, K const& key, V const& value, bool& added) {
        size_t const index = childIndex(inner, key);
        Split const below = insert(inner->children[index], key, value, added);
        if (!below.right) return {};
        inner->keys.insert(inner->keys.begin() + static_cast<std::ptrdiff_t>(index),
                           below.separator);
        inner->children.insert(inner->children.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                               below.right);
        if (static_cast<int>(inner->children.size()) <= kMaxEntries) return {};
        return splitInner(inner);
    }

    // The middle key moves up; the children on either side of it part.
    static Split splitInner(Inner* inner) {
        size_t const middle = inner->keys.size() / 2;
        auto const keyAt = inner->keys.begin() + static_cast<std::ptrdiff_t>(middle);
        auto const childAt = inner->children.begin() + static_cast<std::ptrdiff_t>(middle) + 1;
        Inner* right = new Inner();
        Split split{right, *keyAt};
        right->keys.assign(keyAt + 1, inner->keys.end());
        right->children.assign(childAt, inner->children.end());
        inner->keys.erase(keyAt, inner->keys.end());
        inner->children.erase(childAt, inner->children.end());
        return split;
    }

    void growRoot(Split const& split) {
        Inner* root = new Inner();
        root->keys.push_back(split.separator);
        root->children.push_back(m_root);
        root->children.push_back(split.right);
        m_root = root;
    }

    static bool isEmptyNode(Node const* node) {
        return node->leaf ? node->keys.empty() : asInner(node)->children.empty();
    }

    // The key is in the subtree.
    static void remove(Node*& slot, K const& key) {
        Node* node = makeUnique(slot);
        if (node->leaf) {
            Leaf* leaf = asLeaf(node);
            auto const at = std::lower_bound(leaf->keys.begin(), leaf->keys.end(), key);
            leaf->values.erase(leaf->values.begin() + (at - leaf->keys.begin()));
            leaf->keys.erase(at);
            return;
        }
        Inner* inner = asInner(node);
        size_t const index = childIndex(inner, key);
        remove(inner->children[index], key);
        if (!isEmptyNode(inner->children[index])) return;
        release(inner->children[index]);
        inner->children.erase(inner->children.begin() + static_cast<std::ptrdiff_t>(index));
        // The separator that bounded the dropped child goes with it.
        if (!inner->keys.empty()) {
            size_t const separator = index > 0 ? index - 1 : 0;
            inner->keys.erase(inner->keys.begin() + static_cast<std::ptrdiff_t>(separator));
        }
    }

    // A root left empty goes; an inner root with one child hands over to it.
    void shrinkRoot() {
        while (m_root && !m_root->leaf && asInner(m_root)->children.size() <= 1) {
            Inner* root = asInner(m_root);
            Node* only = root->children.empty() ? nullptr : root->children.front();
            retain(only);
            release(root);
            m_root = only;
        }
        if (m_root && isEmptyNode(m_root)) {
            release(m_root);
            m_root = nullptr;
        }
    }

    Leaf const* edgeLeaf(bool first) const {
        ZELBAS_ASSERT_TEXT(m_root != nullptr, "tree is not empty");
        Node const* node = m_root;
        while (!node->leaf) {
            auto const& children = asInner(node)->children;
            node = first ? children.front() : children.back();
        }
        return asLeaf(node);
    }

    template <class F>
    static void forEach(Node const* node, F& f) {
        if (!node) return;
        if (node->leaf) {
            Leaf const* leaf = asLeaf(node);
            for (size_t i = 0; i < leaf->keys.size(); ++i) f(leaf->keys[i], leaf->values[i]);
            return;
        }
        for (Node const* child : asInner(node)->children) forEach(child, f);
    }

    static void collect(Node const* node, std::vector<Node const*>& out) {
        if (!node) return;
        out.push_back(node);
        if (node->leaf) return;
        for (Node const* child : asInner(node)->children) collect(child, out);
    }

    [[noreturn]] static void raiseMissingKey() {
        zelbas_AssertFailed("key not in tree", __FILE__, __LINE__);
    }

    Node* m_root = nullptr;
    int m_size = 0;
};

// Walks a snapshot of a tree in ascending key order, starting on the first
// entry. It holds a counted reference to the tree, so later writes to the
// tree it was made from don't reach it.
template <class K, class V>
class cow_BtreeIT {
  public:
    explicit cow_BtreeIT(cow_Btree<K, V> const& tree) : m_tree(tree) { First(); }
    cow_BtreeIT(cow_BtreeIT const&) = delete;
    cow_BtreeIT& operator=(cow_BtreeIT const&) = delete;

    void First() {
        m_path.clear();
        m_leaf = nullptr;
        m_index = 0;
        if (m_tree.m_root) descendLeftmost(m_tree.m_root);
    }
    void Next() {
        if (IsDone()) return;
        if (++m_index < m_leaf->keys.size()) return;
        m_leaf = nullptr;
        m_index = 0;
        // Up to the nearest ancestor with a child to the right, then down its leftmost path.
        while (!m_path.empty()) {
            Step& step = m_path.back();
            if (++step.child < step.inner->children.size()) {
                descendLeftmost(step.inner->children[step.child]);
                return;
            }
            m_path.pop_back();
        }
    }
    bool IsDone() const noexcept { return m_leaf == nullptr; }
    bool NotDone() const noexcept { return !IsDone(); }
    K const& CurrentKey() const { return current()->keys[m_index]; }
    V const& CurrentValue() const { return current()->values[m_index]; }

  private:
    using Tree = cow_Btree<K, V>;
    using Node = typename Tree::Node;
    using Leaf = typename Tree::Leaf;
    using Inner = typename Tree::Inner;
    struct Step {
        Inner const* inner;
        size_t child;
    };

    // Nodes on the tree are never empty, so the leftmost leaf has an entry.
    void descendLeftmost(Node const* node) {
        while (!node->leaf) {
            Inner const* inner = Tree::asInner(node);
            m_path.push_back({inner, 0});
            node = inner->children.front();
        }
        m_leaf = Tree::asLeaf(node);
        m_index = 0;
    }
    Leaf const* current() const {
        ZELBAS_ASSERT_TEXT(NotDone(), "tree iterator is done");
        return m_leaf;
    }

    Tree m_tree;
    std::vector<Step> m_path;
    Leaf const* m_leaf = nullptr;
    size_t m_index = 0;
};
