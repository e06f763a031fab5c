#include "support/cow_Btree.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "support/ZELBasException.h"

namespace {

using Tree = cow_Btree<int, int>;

std::vector<std::pair<int, int>> entries(Tree const& tree) {
    std::vector<std::pair<int, int>> result;
    for (cow_BtreeIT<int, int> walk(tree); walk.NotDone(); walk.Next()) {
        result.emplace_back(walk.CurrentKey(), walk.CurrentValue());
    }
    return result;
}

std::vector<std::pair<int, int>> entries(std::map<int, int> const& reference) {
    return {reference.begin(), reference.end()};
}

TEST(CowBtree, AgreesWithOrderedMapThroughRandomInsertsAndRemovals) {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> keys(-5000, 5000);
    Tree tree;
    std::map<int, int> reference;
    for (int step = 0; step < 40000; ++step) {
        int const key = keys(random);
        if (step % 3 == 2) {
            EXPECT_EQ(tree.Remove(key), reference.erase(key) == 1);
        } else {
            EXPECT_EQ(tree.Insert(key, step), reference.insert_or_assign(key, step).second);
        }
    }
    EXPECT_EQ(tree.Size(), static_cast<int>(reference.size()));
    EXPECT_EQ(entries(tree), entries(reference));
    EXPECT_EQ(tree.MinKey(), reference.begin()->first);
    EXPECT_EQ(tree.MaxKey(), reference.rbegin()->first);
    EXPECT_THROW(tree.ConstGet(5001), ZELBasAssertException);

    // Emptying the tree entirely leaves a usable empty tree.
    for (auto const& entry : reference) EXPECT_TRUE(tree.Remove(entry.first));
    EXPECT_TRUE(tree.IsEmpty());
    EXPECT_TRUE(entries(tree).empty());
    EXPECT_TRUE(tree.Insert(1, 1));
}

TEST(CowBtreeSharing, WriteThroughCopyDoesNotShowInOriginal) {
    Tree original;
    for (int key = 0; key < 10000; ++key) original.Insert(key, key);
    Tree copy(original);
    EXPECT_TRUE(copy.SharesRootWith(original));

    copy.Get(5000) = -1;
    copy.Insert(20000, 1);
    copy.Remove(7);
    EXPECT_EQ(original.ConstGet(5000), 5000);
    EXPECT_FALSE(original.IsMember(20000));
    EXPECT_TRUE(original.IsMember(7));
    EXPECT_EQ(original.Size(), 10000);
    EXPECT_EQ(copy.ConstGet(5000), -1);
}

TEST(CowBtreeSharing, WriteCopiesOnlyThePathItTouches) {
    Tree original;
    for (int key = 0; key < 10000; ++key) original.Insert(key, key);
    Tree copy(original);
    int const nodes = original.SharedNodeCount(original);
    copy.Get(1234) = 0;
    // Root, inner node and leaf of the path are new; the rest stays shared.
    EXPECT_GE(copy.SharedNodeCount(original), nodes - 3);
    EXPECT_FALSE(copy.SharesRootWith(original));

    Tree third(original);
    EXPECT_FALSE(third.Remove(-1));  // a missing key copies nothing
    EXPECT_TRUE(third.SharesRootWith(original));
}

TEST(CowBtreeIT, WalksSnapshotUnaffectedByLaterWrites) {
    Tree tree;
    for (int key = 0; key < 200; ++key) tree.Insert(key, key);
    cow_BtreeIT<int, int> walk(tree);
    tree.Clear();
    int count = 0;
    for (; walk.NotDone(); walk.Next()) ++count;
    EXPECT_EQ(count, 200);
}

}  // namespace
