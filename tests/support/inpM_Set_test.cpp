#include "support/inpM_Set.h"

#include <gtest/gtest.h>

#include "support/inpM_IdMap.h"

namespace {

cow_String const kInstance("I-1");

TEST(InpMCreateSet, FactoriesGiveFlagAndForm) {
    inpM_SetHandle empty = CreateSet(true, false);
    EXPECT_EQ(empty->SetType(), inpM_INTERNAL_SET);
    EXPECT_EQ(empty->DynTypeId(), inpM_SORTED_SET);
    EXPECT_TRUE(empty->IsEmpty());

    inpM_SetHandle unsorted = CreateSet(cow_List<int>{3, 1, 3}, false, true);
    EXPECT_EQ(unsorted->SetType(), inpM_ORDINARY_SET);
    EXPECT_TRUE(unsorted->IsUnsorted());
    EXPECT_EQ(unsorted->DynTypeId(), inpM_UnsortedSet::TypeId());
    EXPECT_EQ(unsorted->ConstGetIdList(), (cow_List<int>{3, 1, 3}));

    inpM_SetHandle sorted = CreateSet(cow_List<int>{3, 1, 3}, inpM_INTERNAL_SET, false);
    EXPECT_TRUE(sorted->IsInternal());
    EXPECT_EQ(sorted->ConstGetIdList(), (cow_List<int>{1, 3}));
    EXPECT_EQ(sorted->Size(), 2);

    inpM_SetHandle copy = CreateSet(*unsorted);
    EXPECT_FALSE(copy.SharesWith(unsorted));
    EXPECT_TRUE(copy->IsUnsorted());
    EXPECT_EQ(copy->ConstGetIdList(), (cow_List<int>{3, 1, 3}));
}

TEST(InpMSortedSet, AddOfUnsortedSetKeepsOneSortedUniqueList) {
    inpM_SetHandle sorted = CreateSet(cow_List<int>{5, 2}, false, false);
    inpM_SetHandle unsorted = CreateSet(cow_List<int>{9, 2, 7, 9}, false, true);
    unsorted.Get().Add(kInstance, cow_List<int>{4, 1, 4});
    sorted.Get().Add(*unsorted);
    EXPECT_FALSE(sorted->IsUnsorted());
    EXPECT_EQ(sorted->ConstGetIdList(), (cow_List<int>{2, 5, 7, 9}));
    auto const byInstance = sorted->ConstGetInstanceIds();
    ASSERT_TRUE(byInstance.IsMember(kInstance));
    EXPECT_EQ(byInstance.ConstGet(kInstance).ConstGetArrayCounterpart(), (cow_List<int>{1, 4}));
}

TEST(InpMUnsortedSet, AddKeepsOrderAndRepeats) {
    inpM_SetHandle unsorted = CreateSet(cow_List<int>{9, 2}, false, true);
    inpM_SetHandle sorted = CreateSet(cow_List<int>{8, 1}, false, false);
    unsorted.Get().Add(*sorted);
    unsorted.Get().Add(cow_List<int>{2});
    EXPECT_EQ(unsorted->ConstGetIdList(), (cow_List<int>{9, 2, 1, 8, 2}));
    EXPECT_EQ(unsorted->ConstGetAssemblyIdList(), unsorted->ConstGetIdList());
    unsorted.Get().Add(*unsorted);  // with itself: doubled, not endless
    EXPECT_EQ(unsorted->Size(), 10);
}

TEST(InpMSet, InstanceIdsStayApartFromOwnIds) {
    for (bool unsortedForm : {false, true}) {
        inpM_SetHandle set = CreateSet(false, unsortedForm);
        inpM_OmiSet grid;
        grid.Insert(cow_List<int>{3, 1});
        set.Get().Add(kInstance, grid);
        set.Get().Add(kInstance, cow_List<int>{2});
        set.Get().Add(cow_String("I-2"), *CreateSet(cow_List<int>{6}, false, false));
        set.Get().Add(grid);
        // An empty instance name stands for the own level.
        set.Get().Add(cow_String(), cow_List<int>{10});
        EXPECT_EQ(set->ConstGetIdList(), (cow_List<int>{1, 3, 10}));
        auto const lists = set->ConstGetInstanceIdLists();
        cow_List<int> const expected =
            unsortedForm ? cow_List<int>{1, 3, 2} : cow_List<int>{1, 2, 3};
        EXPECT_EQ(lists.ConstGet(kInstance), expected);
        EXPECT_EQ(set->ConstGetInstanceIds().ConstGet(cow_String("I-2")).Size(), 1);
        EXPECT_FALSE(set->IsMember(2));
    }
}

TEST(InpMSetSharing, WriteThroughCopyDoesNotShowInOriginal) {
    for (bool unsortedForm : {false, true}) {
        inpM_SetHandle original = CreateSet(cow_List<int>{1, 2}, false, unsortedForm);
        original.Get().Add(kInstance, cow_List<int>{5});
        inpM_SetHandle copy(original);
        EXPECT_TRUE(copy.SharesWith(original));
        copy.Get().Add(cow_List<int>{3});
        copy.Get().Add(kInstance, cow_List<int>{6});
        copy.Get().AssignSetType(inpM_INTERNAL_SET);
        EXPECT_EQ(original->ConstGetIdList(), (cow_List<int>{1, 2}));
        EXPECT_EQ(original->ConstGetInstanceIdLists().ConstGet(kInstance), (cow_List<int>{5}));
        EXPECT_EQ(original->SetType(), inpM_ORDINARY_SET);
        EXPECT_EQ(copy->ConstGetIdList(), (cow_List<int>{1, 2, 3}));
        EXPECT_EQ(copy->DynTypeId(), original->DynTypeId());
    }
}

TEST(InpMConvertToSorted, ReplacesUnsortedSetKeepingIdsFlagAndPicked) {
    inpM_SetHandle set = CreateSet(cow_List<int>{4, 1, 4}, true, true);
    set.Get().SetPicked(true);
    set.Get().Add(kInstance, cow_List<int>{9, 8});
    inpM_SetHandle before(set);
    ConvertToSorted(set);
    EXPECT_FALSE(set->IsUnsorted());
    EXPECT_EQ(set->ConstGetIdList(), (cow_List<int>{1, 4}));
    EXPECT_EQ(set->ConstGetInstanceIdLists().ConstGet(kInstance), (cow_List<int>{8, 9}));
    EXPECT_TRUE(set->IsInternal());
    EXPECT_TRUE(set->IsPicked());
    EXPECT_TRUE(before->IsUnsorted());  // other handles keep the old set

    inpM_SetHandle sorted(set);
    ConvertToSorted(set);
    EXPECT_TRUE(set.SharesWith(sorted));  // a sorted set stays as it is
    inpM_SetHandle none;
    ConvertToSorted(none);
    EXPECT_TRUE(none.IsNull());
}

TEST(InpMSetRenumber, TranslatesOwnAndInstanceIdsThroughTheirMaps) {
    inpM_IdMap map;
    map.Insert(10, 2);
    map.Insert(20, 1);
    inpM_IdMap nested;
    nested.Insert(5, 50);
    map.Insert(kInstance, nested);

    for (bool unsortedForm : {false, true}) {
        inpM_SetHandle set = CreateSet(cow_List<int>{10, 99, 20}, false, unsortedForm);
        set.Get().Add(kInstance, cow_List<int>{5, 6});
        set.Get().Add(cow_String("unmapped"), cow_List<int>{7});
        inpM_SetHandle kept(set);
        kept.Get().Renumber(map, true);
        set.Get().Renumber(map, false);

        cow_List<int> const expectKept =
            unsortedForm ? cow_List<int>{2, 99, 1} : cow_List<int>{1, 2, 99};
        cow_List<int> const expectDropped =
            unsortedForm ? cow_List<int>{2, 1} : cow_List<int>{1, 2};
        EXPECT_EQ(kept->ConstGetIdList(), expectKept);
        EXPECT_EQ(set->ConstGetIdList(), expectDropped);
        cow_List<int> const expectNested =
            unsortedForm ? cow_List<int>{50, 6} : cow_List<int>{6, 50};
        EXPECT_EQ(kept->ConstGetInstanceIdLists().ConstGet(kInstance), expectNested);
        EXPECT_EQ(set->ConstGetInstanceIdLists().ConstGet(kInstance), (cow_List<int>{50}));
        EXPECT_TRUE(kept->ConstGetInstanceIdLists().IsMember(cow_String("unmapped")));
        EXPECT_FALSE(set->ConstGetInstanceIdLists().IsMember(cow_String("unmapped")));
    }
}

}  // namespace
