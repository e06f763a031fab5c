#include "support/cow_Map.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/ZELBasException.h"
#include "support/cow_String.h"

namespace {

using IntMap = cow_Map<int, int>;
using SortedIt = cow_ConstMapSortedIt<int, int>;

IntMap ascending(int n) {
    IntMap map;
    for (int i = 0; i < n; ++i) map.Insert(i, i);
    return map;
}

template <class Iterator>
std::vector<int> keysOf(Iterator it) {
    std::vector<int> keys;
    for (it.First(); it.NotDone(); it.Next()) keys.push_back(it.CurrentKey());
    return keys;
}

std::vector<int> preOrder(IntMap const& map) {
    return keysOf(cow_ConstMapIterator<int, int>(map));
}

// Reads the depth of every node from a pre-order walk of a search tree (a
// node is the left child of the previous node if smaller, else the right
// child of the last ancestor smaller than it); fails if the order is not the
// pre-order of a search tree. Returns the tree's height.
int heightFromPreOrder(std::vector<int> const& keys) {
    std::vector<std::pair<int, int>> path;  // key, depth
    int height = 0;
    int lowerBound = -1;
    for (int key : keys) {
        EXPECT_GT(key, lowerBound);
        int depth = 1;
        if (!path.empty() && key < path.back().first) {
            depth = path.back().second + 1;
        } else {
            while (!path.empty() && path.back().first < key) {
                lowerBound = path.back().first;
                depth = path.back().second + 1;
                path.pop_back();
            }
        }
        path.emplace_back(key, depth);
        height = std::max(height, depth);
    }
    return height;
}

void expectMissingKey(auto&& action) {
    try {
        action();
        ADD_FAILURE() << "no exception";
    } catch (ZELBasAssertException const& e) {
        EXPECT_EQ(e.Condition(), "key not in map");
    }
}

TEST(CowMapEntries, InsertReplaceFindAndRemove) {
    IntMap map{{3, 30}, {1, 10}};
    EXPECT_TRUE(map.Insert(2, 20));
    EXPECT_FALSE(map.Insert(3, 31));
    EXPECT_EQ(map.Size(), 3);
    EXPECT_EQ(map.ConstGet(3), 31);
    map.Get(1) += 1;
    EXPECT_EQ(*map.Find(1), 11);
    EXPECT_EQ(map.Find(4), nullptr);
    EXPECT_TRUE(map.IsMember(2));
    EXPECT_TRUE(map.Remove(2));
    EXPECT_FALSE(map.Remove(2));
    EXPECT_FALSE(map.IsMember(2));
    EXPECT_EQ(map.Size(), 2);
    expectMissingKey([&] { map.Get(2); });
    expectMissingKey([&] { map.ConstGet(0); });
    map.Clear();
    EXPECT_TRUE(map.IsEmpty());
}

TEST(CowMapEntries, StringKeysCompareBytewise) {
    cow_Map<cow_String, int> map{{"beta", 1}, {"Alpha", 2}, {"alpha", 3}, {"Beta", 4}};
    std::vector<cow_String> keys;
    map.ForEachSorted([&](cow_String const& key, int) { keys.push_back(key); });
    EXPECT_EQ(keys, (std::vector<cow_String>{"Alpha", "Beta", "alpha", "beta"}));
    EXPECT_EQ(map.ConstGet("alpha"), 3);
}

// A lookup by a literal or a view finds what a lookup by a string finds, in a
// tree deep enough to take every turn; a key that is a prefix of another, or
// has one, is no match.
TEST(CowMapEntries, LookupsByTextAgreeWithLookupsByString) {
    cow_Map<cow_String, int> map;
    std::vector<std::string> names;
    for (int i = 0; i < 500; ++i) names.push_back("n" + std::to_string(i * 7919 % 1000));
    for (int i = 0; i < 500; ++i) map.Insert(cow_String(names[i].c_str()), i);
    for (int probe = 0; probe < 1000; ++probe) {
        std::string const name = "n" + std::to_string(probe);
        int const* byString = map.Find(cow_String(name.c_str()));
        EXPECT_EQ(map.Find(std::string_view(name)), byString) << name;
        EXPECT_EQ(map.Find(name.c_str()), byString) << name;
        EXPECT_EQ(map.IsMember(name.c_str()), byString != nullptr) << name;
    }
    EXPECT_EQ(map.Find("n"), nullptr);
    EXPECT_EQ(map.Find("n10000"), nullptr);
    EXPECT_EQ(map.Find(""), nullptr);
    EXPECT_EQ((cow_Map<cow_String, int>().Find("n1")), nullptr);
}

TEST(CowMapSharing, WriteThroughCopyCopiesOnlyThePath) {
    IntMap original = ascending(1000);
    IntMap copy(original);
    EXPECT_TRUE(copy.SharesRootWith(original));
    copy.Get(500) = -1;
    EXPECT_EQ(original.ConstGet(500), 500);
    EXPECT_EQ(copy.ConstGet(500), -1);
    EXPECT_FALSE(copy.SharesRootWith(original));
    int const height = heightFromPreOrder(preOrder(original));
    EXPECT_GE(copy.SharedNodeCount(original), 1000 - height);
    EXPECT_LT(copy.SharedNodeCount(original), 1000);
}

TEST(CowMapSharing, InsertAndRemoveOnACopyLeaveTheOriginalWhole) {
    IntMap original = ascending(1000);
    IntMap copy(original);
    EXPECT_FALSE(copy.Remove(1000));
    EXPECT_TRUE(copy.SharesRootWith(original));  // a missing key copies nothing
    copy.Insert(5000, 1);
    copy.Insert(7, 70);
    copy.Remove(300);
    copy.Remove(0);
    EXPECT_EQ(original.Size(), 1000);
    EXPECT_EQ(copy.Size(), 999);
    EXPECT_EQ(original.ConstGet(7), 7);
    EXPECT_TRUE(original.IsMember(300));
    EXPECT_FALSE(original.IsMember(5000));
    EXPECT_EQ(heightFromPreOrder(preOrder(original)),
              heightFromPreOrder(preOrder(ascending(1000))));
    EXPECT_GT(copy.SharedNodeCount(original), 900);
}

TEST(CowMapBalance, AscendingInsertsKeepTheTreeShallow) {
    IntMap map = ascending(100000);
    std::vector<int> keys = preOrder(map);
    ASSERT_EQ(keys.size(), 100000u);
    EXPECT_LE(heightFromPreOrder(keys), 24);  // AVL bound for 100000 nodes
    // The walk starts at the root, which splits the keys roughly evenly.
    EXPECT_GT(keys.front(), 25000);
    EXPECT_LT(keys.front(), 75000);
    for (int i = 0; i < 100000; i += 2) map.Remove(i);
    EXPECT_EQ(map.Size(), 50000);
    EXPECT_LE(heightFromPreOrder(preOrder(map)), 23);
}

// Inserts stop walking back up once a subtree keeps its height; the tree
// must still rebalance wherever one grew, whatever the order of the keys,
// and re-inserting a key (a replaced value) must leave the shape alone.
TEST(CowMapBalance, InsertsInAnyOrderKeepTheAvlBound) {
    std::vector<int> keys(100000);
    for (int i = 0; i < 100000; ++i) keys[static_cast<size_t>(i)] = i;
    std::shuffle(keys.begin(), keys.end(), std::mt19937(5));
    IntMap shuffled;
    for (int key : keys) shuffled.Insert(key, key);
    IntMap descending;
    for (int key = 100000; key > 0; --key) descending.Insert(key, key);
    for (IntMap const* map : {&shuffled, &descending}) {
        ASSERT_EQ(map->Size(), 100000);
        EXPECT_LE(heightFromPreOrder(preOrder(*map)), 24);
    }
    std::vector<int> const shape = preOrder(shuffled);
    for (int key = 0; key < 100000; key += 3) EXPECT_FALSE(shuffled.Insert(key, -key));
    EXPECT_EQ(preOrder(shuffled), shape);
    EXPECT_EQ(shuffled.ConstGet(3), -3);
}

TEST(CowMapIteration, PreOrderFollowsTheShapeAndSortedFollowsTheKeys) {
    IntMap map = ascending(8);
    map.Remove(0);
    EXPECT_EQ(preOrder(map), (std::vector<int>{3, 1, 2, 5, 4, 6, 7}));
    EXPECT_EQ(keysOf(SortedIt(map, SortedIt::AscSortCmp)), (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(keysOf(SortedIt(map, SortedIt::DescSortCmp)),
              (std::vector<int>{7, 6, 5, 4, 3, 2, 1}));
    // Any other order is sorted for.
    auto byRemainderThenKey = [](int const& a, int const& b) {
        return a % 3 != b % 3 ? a % 3 < b % 3 : a < b;
    };
    EXPECT_EQ(keysOf(SortedIt(map, byRemainderThenKey)), (std::vector<int>{3, 6, 1, 4, 7, 2, 5}));
    EXPECT_TRUE(keysOf(SortedIt(IntMap(), SortedIt::DescSortCmp)).empty());
    EXPECT_TRUE(preOrder(IntMap()).empty());
}

// The first match in key order wins, whatever the tree's shape, and the
// search stops there.
TEST(CowMapIteration, FindFirstSortedStopsAtTheSmallestKeyThatPasses) {
    IntMap map;
    for (int key : {50, 20, 80, 10, 30, 70, 90, 25, 35, 5}) map.Insert(key, key % 10 == 5 ? 1 : 0);
    std::vector<int> asked;
    int const* found = map.FindFirstSorted([&asked](int key, int value) {
        asked.push_back(key);
        return value == 1;
    });
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, 5);
    EXPECT_EQ(asked, (std::vector<int>{5}));

    asked.clear();
    found = map.FindFirstSorted([&asked](int key, int) {
        asked.push_back(key);
        return key > 30;
    });
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(*found, 35);
    EXPECT_EQ(asked, (std::vector<int>{5, 10, 20, 25, 30, 35}));

    EXPECT_EQ(map.FindFirstSorted([](int, int) { return false; }), nullptr);
    EXPECT_EQ(IntMap().FindFirstSorted([](int, int) { return true; }), nullptr);
}

TEST(CowMapIteration, IteratorsKeepTheirSnapshotThroughLaterWrites) {
    IntMap map = ascending(100);
    cow_ConstMapIterator<int, int> walk(map);
    SortedIt sorted(map, SortedIt::AscSortCmp);
    std::vector<int> const before = keysOf(walk);
    map.Get(50) = -50;
    map.Insert(1000, 0);
    map.Remove(10);
    int sum = 0;
    for (sorted.First(); sorted.NotDone(); sorted.Next()) sum += sorted.CurrentValue();
    EXPECT_EQ(sum, 99 * 100 / 2);
    EXPECT_EQ(keysOf(walk), before);
    map.Clear();
    EXPECT_EQ(keysOf(sorted).size(), 100u);
}

// Random writes on several maps that copy each other, against a model.
TEST(CowMapModel, RandomWritesOnCopiesMatchIndependentMaps) {
    std::mt19937 random(11);
    std::vector<IntMap> maps(4);
    std::vector<std::map<int, int>> models(4);
    for (int step = 0; step < 40000; ++step) {
        int const k = static_cast<int>(random() % 4);
        int const key = static_cast<int>(random() % 500);
        switch (random() % 4) {
            case 0:
                EXPECT_EQ(maps[k].Insert(key, step), models[k].insert_or_assign(key, step).second);
                break;
            case 1:
                EXPECT_EQ(maps[k].Remove(key), models[k].erase(key) == 1);
                break;
            case 2:
                if (models[k].count(key)) {
                    maps[k].Get(key) = -step;
                    models[k][key] = -step;
                }
                break;
            default:
                maps[k] = maps[key % 4];
                models[k] = models[key % 4];
                break;
        }
        if (step % 100 == 0) {
            for (int j = 0; j < 4; ++j) {
                std::vector<std::pair<int, int>> entries;
                maps[j].ForEachSorted(
                    [&](int key, int value) { entries.emplace_back(key, value); });
                std::vector<std::pair<int, int>> const expected(models[j].begin(), models[j].end());
                ASSERT_EQ(entries, expected) << step;
            }
        }
    }
}

}  // namespace
