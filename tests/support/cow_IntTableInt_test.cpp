#include "support/cow_IntTableInt.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"

namespace {

TEST(CowIntTableInt, InsertReplacesAndReportsNewKeys) {
    cow_IntTableInt table;
    EXPECT_TRUE(table.Insert(5, 50));
    EXPECT_FALSE(table.Insert(5, 55));
    EXPECT_TRUE(table.Insert(-3, 30));
    EXPECT_EQ(table.Size(), 2);
    EXPECT_EQ(table.ConstGet(5), 55);
    EXPECT_EQ(table.MinKey(), -3);
    EXPECT_EQ(table.MaxKey(), 5);
    EXPECT_EQ(table.Lookup(4), nullptr);
    EXPECT_THROW(table.ConstGet(4), ZELBasAssertException);
}

TEST(CowIntTableInt, EmptyTableHoldsNoStorage) {
    cow_IntTableInt table;
    EXPECT_TRUE(table.IsEmpty());
    EXPECT_EQ(table.UseCount(), 0);
    EXPECT_FALSE(table.IsMember(0));
    EXPECT_FALSE(table.Remove(0));
    EXPECT_EQ(table.UseCount(), 0);  // removing a missing key made nothing
    EXPECT_EQ(table.begin(), table.end());
}

TEST(CowIntTableIntSharing, WriteThroughCopyDoesNotShowInOriginal) {
    cow_IntTableInt original;
    original.Insert(1, 10);
    cow_IntTableInt copy(original);
    EXPECT_TRUE(copy.SharesWith(original));

    copy.Insert(2, 20);
    copy.Insert(1, 11);
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(original.Size(), 1);
    EXPECT_EQ(original.ConstGet(1), 10);
    EXPECT_EQ(copy.ConstGet(1), 11);

    cow_IntTableInt third(original);
    third.Remove(1);
    EXPECT_TRUE(original.IsMember(1));
    third.Clear();
    EXPECT_EQ(original.Size(), 1);
}

TEST(CowIntTableIntIT, WalksSnapshotInAscendingKeyOrder) {
    cow_IntTableInt table;
    for (int key : {30, -7, 1000000, 2}) table.Insert(key, key * 2);
    cow_IntTableIntIT walk(table);
    table.Insert(5, 0);  // not seen by the walk
    std::vector<int> keys;
    for (; walk.NotDone(); walk.Next()) {
        EXPECT_EQ(walk.CurrentValue(), walk.CurrentKey() * 2);
        keys.push_back(walk.CurrentKey());
    }
    EXPECT_EQ(keys, (std::vector<int>{-7, 2, 30, 1000000}));
}

}  // namespace
