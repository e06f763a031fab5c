#include "support/inpM_IdMap.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"

namespace {

// Old ids 10, 20, 30 become 1, 2, 3; instance "I-1" maps 5 to 4, 6 to 5.
inpM_IdMap nestedExample() {
    inpM_IdMap map;
    map.Insert(10, 1);
    map.Insert(20, 2);
    map.Insert(30, 3);
    inpM_IdMap nested;
    nested.Insert(5, 4);
    nested.Insert(6, 5);
    map.Insert(cow_String("I-1"), nested);
    return map;
}

TEST(InpMIdMap, NumberIdsAndExtremesCoverNestedMaps) {
    inpM_IdMap map = nestedExample();
    EXPECT_FALSE(map.IsMember(1));
    EXPECT_EQ(map.ConstGetOld(3), 30);
    EXPECT_EQ(map.ConstGet(cow_String("I-1")).ConstGet(6), 5);
    EXPECT_THROW(map.ConstGet(cow_String("I-2")), ZELBasAssertException);
    EXPECT_EQ(map.NumberIds(), 5);
    EXPECT_EQ(map.SmallestId(), 1);
    EXPECT_EQ(map.LargestId(), 5);
    EXPECT_EQ(map.Instances(), (cow_List<cow_String>{"I-1"}));

    inpM_IdMap empty;
    EXPECT_EQ(empty.NumberIds(), 0);
    EXPECT_EQ(empty.LargestId(), 0);
    EXPECT_EQ(empty.SmallestId(), 0);
}

TEST(InpMIdMapRenumber, TranslatesInPlaceOrRaisesLeavingArrayUnchanged) {
    inpM_IdMap map = nestedExample();
    int ids[] = {10, 99, 20};
    try {
        map.Renumber(ids, 3);
        FAIL() << "no exception";
    } catch (nex_PrimException<atr_String, 1> const& error) {
        EXPECT_EQ(error.AsString(), cow_String("Id 99 is not in the id map"));
    }
    EXPECT_EQ(ids[0], 10);
    EXPECT_EQ(ids[2], 20);
    ids[1] = 10;
    map.Renumber(ids, 3);
    EXPECT_EQ(ids[1], 1);
    EXPECT_EQ(ids[2], 2);

    // Long runs take the other path and keep the same promise.
    std::vector<int> many(100, 10);
    many[70] = 99;
    using MissingId = nex_PrimException<atr_String, 1>;
    EXPECT_THROW(map.Renumber(many.data(), 100), MissingId);
    EXPECT_EQ(many[0], 10);
    many[70] = 20;
    map.Renumber(many.data(), 100);
    EXPECT_EQ(many[0], 1);
    EXPECT_EQ(many[70], 2);
}

TEST(InpMIdMapRenumber, ListCopyKeepsOrDropsMissingIds) {
    inpM_IdMap map = nestedExample();
    cow_List<int> const ids{20, 7, 10};
    EXPECT_EQ(map.Renumber(ids, true), (cow_List<int>{2, 7, 1}));
    EXPECT_EQ(map.Renumber(ids, false), (cow_List<int>{2, 1}));
    EXPECT_EQ(ids, (cow_List<int>{20, 7, 10}));
}

TEST(InpMIdMap, InsertDuplicateOffsetIdsAddsOffsetCopiesOfThisLevel) {
    inpM_IdMap map;
    map.Insert(1, 1);
    map.Insert(2, 3);
    map.Insert(cow_String("I"), nestedExample());
    map.InsertDuplicateOffsetIds(100, 2);
    EXPECT_EQ(map.ConstGet(101), 101);
    EXPECT_EQ(map.ConstGet(102), 103);
    EXPECT_EQ(map.ConstGet(201), 201);
    EXPECT_EQ(map.ConstGet(202), 203);
    EXPECT_EQ(map.ConstGetOld(203), 202);
    EXPECT_FALSE(map.IsMember(301));  // copies of copies are not made
    EXPECT_EQ(map.ConstGetOldToNew().Size(), 6);
    EXPECT_EQ(map.ConstGet(cow_String("I")).NumberIds(), 5);  // nested untouched
}

TEST(InpMIdMapSharing, WriteThroughCopyDoesNotShowInOriginal) {
    inpM_IdMap original = nestedExample();
    inpM_IdMap copy(original);
    EXPECT_TRUE(copy.ConstGetOldToNew().SharesWith(original.ConstGetOldToNew()));
    copy.Insert(40, 4);
    copy.Insert(cow_String("I-2"), inpM_IdMap());
    EXPECT_FALSE(original.IsMember(40));
    EXPECT_FALSE(original.IsMember(cow_String("I-2")));
    EXPECT_FALSE(original.IsMemberNew(4));
    EXPECT_EQ(copy.NumberIds(), 6);
    EXPECT_EQ(original.NumberIds(), 5);
}

}  // namespace
