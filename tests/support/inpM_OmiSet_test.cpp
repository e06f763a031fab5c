#include "support/inpM_OmiSet.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> members(inpM_OmiSet const& set) {
    std::vector<int> ids;
    for (inpM_OmiSetIT walk(set); walk.NotDone(); walk.Next()) ids.push_back(walk.CurrentItem());
    return ids;
}

TEST(InpMOmiSet, KeepsUniqueIdsAscendingWhateverTheInsertionOrder) {
    inpM_OmiSet set;
    EXPECT_TRUE(set.Insert(7));
    EXPECT_TRUE(set.Insert(-2));
    EXPECT_FALSE(set.Insert(7));
    set.Insert(cow_List<int>{3, 3, 1000000000, 0});
    EXPECT_EQ(set.Size(), 5);
    EXPECT_EQ(members(set), (std::vector<int>{-2, 0, 3, 7, 1000000000}));
    EXPECT_EQ(set.ConstGetArrayCounterpart(), (cow_List<int>{-2, 0, 3, 7, 1000000000}));
}

TEST(InpMOmiSet, UnionAddsMissingMembersOnly) {
    inpM_OmiSet a;
    a.Insert(cow_List<int>{1, 2, 3});
    inpM_OmiSet b;
    b.Insert(cow_List<int>{3, 4});
    a += b;
    EXPECT_EQ(members(a), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(members(b), (std::vector<int>{3, 4}));
    a += a;
    EXPECT_EQ(a.Size(), 4);
}

TEST(InpMOmiSetSharing, WriteThroughCopyDoesNotShowInOriginal) {
    inpM_OmiSet original;
    original.Insert(cow_List<int>{1, 2});
    inpM_OmiSet copy(original);
    EXPECT_TRUE(copy.SharesWith(original));
    copy.Insert(3);
    copy.Remove(1);
    EXPECT_EQ(members(original), (std::vector<int>{1, 2}));
    EXPECT_EQ(members(copy), (std::vector<int>{2, 3}));

    inpM_OmiSet third(original);
    EXPECT_FALSE(third.Remove(42));
    EXPECT_FALSE(third.Insert(1));  // already there, still a write
    third.Clear();
    EXPECT_EQ(original.Size(), 2);
}

TEST(InpMOmiSetIT, WalksSnapshotUnaffectedByLaterWrites) {
    inpM_OmiSet set;
    set.Insert(cow_List<int>{5, 1});
    inpM_OmiSetIT walk(set);
    set.Insert(3);
    set.Remove(5);
    std::vector<int> seen;
    for (; walk.NotDone(); walk.Next()) seen.push_back(walk.CurrentItem());
    EXPECT_EQ(seen, (std::vector<int>{1, 5}));
    EXPECT_TRUE(inpM_OmiSetIT(inpM_OmiSet()).IsDone());
}

}  // namespace
