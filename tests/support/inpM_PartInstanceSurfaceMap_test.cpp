#include "support/inpM_PartInstanceSurfaceMap.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"

TEST(InpMPartInstanceSurfaceMap, WalkIsAscendingOverASnapshot) {
    inpM_PartInstanceSurfaceMap map;
    for (char const* name : {"C", "A", "B"}) map.Insert(name, inpM_NodeAreaSurface());
    inpM_PartInstanceSurfaceMapSIT walk(map);
    map.Remove("A");  // not seen by the walk
    std::vector<cow_String> names;
    for (walk.First(); walk.NotDone(); walk.Next()) names.push_back(walk.CurrentKey());
    EXPECT_EQ(names, (std::vector<cow_String>{"A", "B", "C"}));
    EXPECT_EQ(map.Size(), 2);
}

TEST(InpMPartInstanceSurfaceMap, WritableSurfaceIsIsolatedFromCopies) {
    inpM_PartInstanceSurfaceMap original;
    original.Insert("N", inpM_NodeAreaSurface(1.0, {1}));
    inpM_PartInstanceSurfaceMap copy = original;
    EXPECT_TRUE(copy.SharesWith(original));
    static_cast<inpM_NodeAreaSurface&>(copy.Get("N").Get()).Add({2}, 1.0);
    EXPECT_EQ(copy.ConstGet("N")->ConstGetNodeAreaList().Size(), 2);
    EXPECT_EQ(original.ConstGet("N")->ConstGetNodeAreaList().Size(), 1);
    EXPECT_THROW(original.Get("MISSING"), ZELBasAssertException);
    EXPECT_EQ(original.Find("MISSING"), nullptr);
}
