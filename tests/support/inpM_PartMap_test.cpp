#include "support/inpM_PartMap.h"

#include <gtest/gtest.h>

namespace {

TEST(InpMPartMap, RemoveRedundantInternalSetsLeavesOrdinarySetsAndCopies) {
    inpM_PartMap part;
    part.GetNsets().InsertSet(cow_String("N"), CreateSet(cow_List<int>{1}, false, false));
    part.GetNsets().InsertSet(cow_String("_N"), CreateSet(cow_List<int>{1}, true, false));
    part.GetElsets().InsertNestedSet(cow_String("I"), cow_String("_E"),
                                     CreateSet(cow_List<int>{1}, true, true));
    part.GetElsets().InsertNestedSet(cow_String("I"), cow_String("E"),
                                     CreateSet(cow_List<int>{1}, false, true));
    inpM_PartMap const before = part;

    part.RemoveRedundantInternalSets();
    EXPECT_TRUE(part.ConstGetNsets().HasSet(cow_String("N")));
    EXPECT_FALSE(part.ConstGetNsets().HasSet(cow_String("_N")));
    EXPECT_FALSE(part.ConstGetElsets().HasNestedSet(cow_String("I"), cow_String("_E")));
    EXPECT_TRUE(part.ConstGetElsets().HasNestedSet(cow_String("I"), cow_String("E")));
    EXPECT_TRUE(before.ConstGetNsets().HasSet(cow_String("_N")));
}

}  // namespace
