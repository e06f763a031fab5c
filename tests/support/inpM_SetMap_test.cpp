#include "support/inpM_SetMap.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"
#include "support/inpM_IdMap.h"

namespace {

cow_String const kI1("I-1");
cow_String const kI2("I-2");

inpM_SetHandle setOf(cow_List<int> const& ids, bool internal = false) {
    return CreateSet(ids, internal, false);
}

// Assembly sets "A" and "SHARED"; I-1 holds "P" and "SHARED", I-2 holds "P".
inpM_SetMap example() {
    inpM_SetMap map;
    map.InsertSet(cow_String("A"), setOf({1, 2}));
    map.InsertSet(cow_String("SHARED"), setOf({3}));
    map.InsertNestedSet(kI1, cow_String("P"), setOf({10}));
    map.InsertNestedSet(kI1, cow_String("SHARED"), setOf({11}));
    map.InsertNestedSet(kI2, cow_String("P"), setOf({20}));
    return map;
}

std::vector<cow_String> names(inpM_BaseSetMap const& sets) {
    std::vector<cow_String> result;
    for (inpM_BaseSetMapSIT walk(sets); walk.NotDone(); walk.Next()) {
        result.push_back(walk.CurrentKey());
    }
    return result;
}

TEST(InpMSetMapLevels, AssemblyAndInstanceLevelsAreApart) {
    inpM_SetMap map = example();
    EXPECT_TRUE(map.HasSet(cow_String("A")));
    EXPECT_FALSE(map.HasSet(cow_String("P")));
    EXPECT_TRUE(map.HasInstance(kI1));
    EXPECT_EQ(map.Instances(), (cow_List<cow_String>{"I-1", "I-2"}));
    EXPECT_TRUE(map.HasNestedSet(kI2, cow_String("P")));
    EXPECT_FALSE(map.HasNestedSet(kI2, cow_String("A")));
    EXPECT_EQ(map.ConstGetNestedSet(kI2, cow_String("P"))->ConstGetIdList(), (cow_List<int>{20}));
    EXPECT_EQ(names(map.ConstGetNestedSetMap(kI1)), (std::vector<cow_String>{"P", "SHARED"}));
    EXPECT_EQ(names(map.ConstGetSetMap()), (std::vector<cow_String>{"A", "SHARED"}));
}

TEST(InpMSetMapLevels, UnknownInstanceIsNoSetAndNoFault) {
    inpM_SetMap map = example();
    EXPECT_FALSE(map.HasNestedSet(cow_String("I-9"), cow_String("P")));
    EXPECT_FALSE(map.HasInstance(cow_String("I-9")));
    EXPECT_THROW(map.ConstGetNestedSet(cow_String("I-9"), cow_String("P")), ZELBasAssertException);
}

TEST(InpMSetMapSearch, AssemblyFirstThenFirstInstanceByName) {
    inpM_SetMap map = example();
    cow_String scope("stale");
    EXPECT_TRUE(map.SearchAssemblyAndInstancesForSet(cow_String("SHARED"), scope));
    EXPECT_EQ(scope, cow_String(""));
    EXPECT_TRUE(map.SearchAssemblyAndInstancesForSet(cow_String("P"), scope));
    EXPECT_EQ(scope, kI1);
    EXPECT_FALSE(map.SearchAssemblyAndInstancesForSet(cow_String("NONE"), scope));
    EXPECT_EQ(scope, cow_String(""));
}

TEST(InpMSetMap, MergeTakesOtherSetsLevelByLevel) {
    inpM_SetMap map = example();
    inpM_SetMap other;
    other.InsertSet(cow_String("A"), setOf({99}));
    other.InsertSet(cow_String("B"), setOf({4}));
    other.InsertNestedSet(kI1, cow_String("Q"), setOf({12}));
    other.InsertNestedSet(cow_String("I-3"), cow_String("R"), setOf({30}));
    map.Merge(other);
    EXPECT_EQ(map.ConstGetSet(cow_String("A"))->ConstGetIdList(), (cow_List<int>{99}));
    EXPECT_TRUE(map.HasSet(cow_String("B")));
    EXPECT_TRUE(map.HasSet(cow_String("SHARED")));
    EXPECT_EQ(names(map.ConstGetNestedSetMap(kI1)), (std::vector<cow_String>{"P", "Q", "SHARED"}));
    EXPECT_TRUE(map.HasNestedSet(cow_String("I-3"), cow_String("R")));
    EXPECT_FALSE(other.HasNestedSet(kI1, cow_String("P")));
}

TEST(InpMSetMap, ChangeInstanceNameMovesTheLevel) {
    inpM_SetMap map = example();
    map.ChangeInstanceName(kI1, cow_String("NEW"));
    EXPECT_FALSE(map.HasInstance(kI1));
    EXPECT_TRUE(map.HasNestedSet(cow_String("NEW"), cow_String("SHARED")));

    inpM_SetMap const before = map;
    map.ChangeInstanceName(cow_String("unknown"), cow_String("X"));
    map.ChangeInstanceName(kI2, kI2);
    EXPECT_EQ(map.Instances(), before.Instances());
    EXPECT_TRUE(map.HasNestedSet(kI2, cow_String("P")));
}

TEST(InpMSetMap, DeleteAllSetsExceptThoseListedPrunesEveryLevel) {
    inpM_SetMap map = example();
    map.DeleteAllSetsExceptThoseListed(cow_List<cow_String>{"SHARED"});
    EXPECT_EQ(names(map.ConstGetSetMap()), (std::vector<cow_String>{"SHARED"}));
    EXPECT_EQ(names(map.ConstGetNestedSetMap(kI1)), (std::vector<cow_String>{"SHARED"}));
    EXPECT_TRUE(map.ConstGetNestedSetMap(kI2).IsEmpty());
}

TEST(InpMSetMap, RemoveInternalSetsKeepsOrdinaryOnes) {
    inpM_SetMap map = example();
    map.InsertSet(cow_String("_INT"), setOf({1}, true));
    map.InsertNestedSet(kI2, cow_String("_INT"), setOf({1}, true));
    map.RemoveInternalSets();
    EXPECT_FALSE(map.HasSet(cow_String("_INT")));
    EXPECT_FALSE(map.HasNestedSet(kI2, cow_String("_INT")));
    EXPECT_TRUE(map.HasNestedSet(kI2, cow_String("P")));
    EXPECT_TRUE(map.HasSet(cow_String("A")));
}

TEST(InpMSetMap, RenumberTranslatesEachLevelThroughItsMap) {
    inpM_SetMap map = example();
    inpM_IdMap ids;
    ids.Insert(1, 101);
    ids.Insert(2, 102);
    inpM_IdMap nested;
    nested.Insert(10, 110);
    ids.Insert(kI1, nested);
    inpM_SetMap const original = map;

    map.Renumber(ids, false);
    EXPECT_EQ(map.ConstGetSet(cow_String("A"))->ConstGetIdList(), (cow_List<int>{101, 102}));
    EXPECT_TRUE(map.ConstGetSet(cow_String("SHARED"))->ConstGetIdList().IsEmpty());
    EXPECT_EQ(map.ConstGetNestedSet(kI1, cow_String("P"))->ConstGetIdList(), (cow_List<int>{110}));
    EXPECT_TRUE(map.ConstGetNestedSet(kI2, cow_String("P"))->IsEmpty());  // no map for I-2

    inpM_SetMap kept = original;
    kept.Renumber(ids, true);
    EXPECT_EQ(kept.ConstGetSet(cow_String("SHARED"))->ConstGetIdList(), (cow_List<int>{3}));
    EXPECT_EQ(kept.ConstGetNestedSet(kI2, cow_String("P"))->ConstGetIdList(), (cow_List<int>{20}));
    // The copy the renumbering started from is untouched.
    EXPECT_EQ(original.ConstGetSet(cow_String("A"))->ConstGetIdList(), (cow_List<int>{1, 2}));
}

TEST(InpMSetMapSharing, WriteThroughCopyDoesNotShowInOriginal) {
    inpM_SetMap const original = example();
    inpM_SetMap copy = original;
    copy.InsertSet(cow_String("NEW"), setOf({1}));
    copy.InsertNestedSet(kI1, cow_String("NEW"), setOf({1}));
    copy.RemoveNestedSet(kI2, cow_String("P"));
    EXPECT_FALSE(original.HasSet(cow_String("NEW")));
    EXPECT_FALSE(original.HasNestedSet(kI1, cow_String("NEW")));
    EXPECT_TRUE(original.HasNestedSet(kI2, cow_String("P")));
    // The sets nobody wrote to are still one object in both maps.
    EXPECT_TRUE(
        copy.ConstGetSet(cow_String("A")).SharesWith(original.ConstGetSet(cow_String("A"))));
    EXPECT_TRUE(copy.ConstGetNestedSet(kI1, cow_String("P"))
                    .SharesWith(original.ConstGetNestedSet(kI1, cow_String("P"))));
}

}  // namespace
