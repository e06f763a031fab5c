#include "support/inpM_SurfaceFacet.h"

#include <gtest/gtest.h>

TEST(InpMSurfaceFacet, FaceNamesGiveTheirNumber) {
    EXPECT_EQ(inpM_SurfaceFacet("S1").id(), 1);
    EXPECT_EQ(inpM_SurfaceFacet("s6").id(), 6);
    EXPECT_EQ(inpM_SurfaceFacet(" F3 ").id(), 3);
    EXPECT_EQ(inpM_SurfaceFacet("E2").id(), 2);
    EXPECT_EQ(inpM_SurfaceFacet("S12").id(), 12);
    EXPECT_EQ(inpM_SurfaceFacet("SNEG").id(), 1);
    EXPECT_EQ(inpM_SurfaceFacet("spos").id(), 2);
    EXPECT_TRUE(inpM_SurfaceFacet("S4").isValid());
}

TEST(InpMSurfaceFacet, AnythingElseIsInvalidWithFaceZero) {
    for (char const* name : {"", "S", "S0", "S-1", "S1X", "X1", "SIDE", "S99999999999", "S 1"}) {
        inpM_SurfaceFacet const facet(name);
        EXPECT_FALSE(facet.isValid()) << name;
        EXPECT_EQ(facet.id(), 0) << name;
    }
}
