#include "support/omi_Set.h"

#include <gtest/gtest.h>

#include <algorithm>
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

// Assignment copies the bit vector of a set that has one and drops that of
// the set assigned to; a move takes the bit vector along.
TEST(OmiSetMembers, AssignedAndMovedSetsKeepTheirOwnMembers) {
    omi_Set many;
    for (int value = 0; value < 3 * omi_Set::kFew; ++value) many.Insert(value * 1000);
    omi_Set few;
    few.Insert(-1);

    omi_Set target(few);
    target = many;
    target.Insert(7);
    EXPECT_FALSE(many.IsMember(7));
    EXPECT_EQ(target.Size(), many.Size() + 1);

    target = few;
    EXPECT_EQ(MembersOf(target), (std::vector<int>{-1}));
    omi_Set const& same = target;
    target = same;
    EXPECT_EQ(MembersOf(target), (std::vector<int>{-1}));

    omi_Set moved(std::move(many));
    EXPECT_EQ(moved.Size(), 3 * omi_Set::kFew);
    EXPECT_TRUE(moved.IsMember(23000));
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

namespace {

// The same values in the same order into a set and into a model: the set
// answers as the model does while it grows past the members it holds in
// itself, shrinks, and is copied on either side of that line.
TEST(OmiSetMembers, SetsOfAFewAndOfManyAnswerAlike) {
    std::vector<int> const values{40, -7, 13, 0, 999999, -999999, 13, 2, 8, 5, 1, 77, -1, 6, 40};
    omi_Set set;
    std::vector<int> model;
    for (int value : values) {
        omi_Set const before(set);
        bool const isNew = std::find(model.begin(), model.end(), value) == model.end();
        if (isNew) model.insert(std::lower_bound(model.begin(), model.end(), value), value);
        EXPECT_EQ(set.Insert(value), isNew) << value;
        EXPECT_EQ(MembersOf(set), model);
        EXPECT_EQ(set.Size(), static_cast<int64_t>(model.size()));
        EXPECT_TRUE(set.IsMember(value));
        EXPECT_FALSE(set.IsMember(123456));
        // A copy made before the insert is left as it was.
        EXPECT_EQ(before.Size() + (isNew ? 1 : 0), set.Size());
        EXPECT_EQ(before.IsMember(value), !isNew);
    }
    ASSERT_GT(model.size(), static_cast<size_t>(omi_Set::kFew));
    for (int value : {13, 13, -999999, 77, 3}) {
        bool const wasMember = std::find(model.begin(), model.end(), value) != model.end();
        if (wasMember) model.erase(std::find(model.begin(), model.end(), value));
        EXPECT_EQ(set.Remove(value), wasMember) << value;
        EXPECT_EQ(MembersOf(set), model);
    }
    set.Clear();
    EXPECT_TRUE(set.IsEmpty());
    EXPECT_TRUE(omi_SetIT(set).IsDone());
    // A cleared set starts again with room for a few in itself.
    EXPECT_TRUE(set.Insert(5));
    EXPECT_TRUE(set.Insert(-5));
    EXPECT_EQ(MembersOf(set), (std::vector<int>{-5, 5}));

    omi_Set few;
    for (int value : {3, 1, 2}) few.Insert(value);
    EXPECT_TRUE(few.Remove(2));
    EXPECT_FALSE(few.Remove(2));
    EXPECT_EQ(MembersOf(few), (std::vector<int>{1, 3}));
    omi_SetIT it(few);
    it.Next();
    it.First();
    EXPECT_EQ(it.CurrentItem(), 1);
}

}  // namespace
