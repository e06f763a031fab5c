#include "support/omi_Set.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace {

std::vector<int> MembersOf(omi_Set const& set) {
    std::vector<int> members;
    for (omi_SetIT it(set); it.NotDone(); it.Next()) members.push_back(it.CurrentItem());
    return members;
}

TEST(OmiSetMembers, InsertAndRemoveReportWhetherTheyChangedTheSet) {
    omi_Set set;
    EXPECT_TRUE(set.Insert(3));
    EXPECT_FALSE(set.Insert(3));
    EXPECT_TRUE(set.Insert(-3));
    EXPECT_EQ(set.Size(), 2);
    EXPECT_TRUE(set.IsMember(-3));
    EXPECT_FALSE(set.IsMember(4));
    EXPECT_TRUE(set.Remove(3));
    EXPECT_FALSE(set.Remove(3));
    EXPECT_EQ(MembersOf(set), (std::vector<int>{-3}));
    set.Clear();
    EXPECT_TRUE(set.IsEmpty());
    EXPECT_TRUE(omi_SetIT(set).IsDone());
}

TEST(OmiSetMembers, WalkIsAscendingOverSparseAndNegativeValues) {
    omi_Set set;
    for (int value : {999999999, 2, INT_MIN, -1, 0, INT_MAX, 1, -999999999, 1024, 1023}) {
        set.Insert(value);
    }
    std::vector<int> const expected{INT_MIN, -999999999, -1,   0,         1,
                                    2,       1023,       1024, 999999999, INT_MAX};
    EXPECT_EQ(MembersOf(set), expected);

    omi_SetIT it(set);
    while (it.NotDone()) it.Next();
    it.First();
    EXPECT_EQ(it.CurrentItem(), INT_MIN);
}

TEST(OmiSetMembers, CopyIsIndependent) {
    omi_Set original;
    original.Insert(1);
    omi_Set copy(original);
    copy.Insert(2);
    copy.Remove(1);
    EXPECT_EQ(MembersOf(original), (std::vector<int>{1}));
    EXPECT_EQ(MembersOf(copy), (std::vector<int>{2}));
}

TEST(OmiBlkBitVectBits, FarBitsAreSetTestedAndWalked) {
    omi_BlkBitVect bits;
    EXPECT_TRUE(bits.Set(999999999));
    EXPECT_TRUE(bits.Set(0));
    EXPECT_FALSE(bits.Set(0));
    EXPECT_TRUE(bits.Set(UINT32_MAX));
    EXPECT_EQ(bits.Count(), 3);
    EXPECT_TRUE(bits.Test(999999999));
    EXPECT_FALSE(bits.Test(999999998));

    std::vector<uint32_t> walked;
    for (omi_BlkBitVectTrav trav(bits); !trav.IsDone(); trav.Next())
        walked.push_back(trav.Current());
    EXPECT_EQ(walked, (std::vector<uint32_t>{0, 999999999, UINT32_MAX}));

    EXPECT_TRUE(bits.Clear(0));
    EXPECT_FALSE(bits.Clear(0));
    bits.ClearAll();
    EXPECT_TRUE(bits.IsEmpty());
}

}  // namespace
