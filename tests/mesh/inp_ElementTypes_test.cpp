#include "mesh/inp_ElementTypes.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"

namespace {

int rowsOf(inp_ElementInfo const* rows) {
    int count = 0;
    while (rows[count].name != nullptr) ++count;
    return count;
}

class InpElementTypesLookup : public ::testing::Test {
  protected:
    inp_ElementInfo rowOf(char const* type) const {
        inp_ElementInfo const* row = types.FindType(type);
        EXPECT_NE(row, nullptr) << type;
        return row ? *row : inp_ElementInfo{};
    }
    inp_ElementTypes const types;
};

TEST(InpElementTypesTables, HoldTheirRowsOnceEach) {
    EXPECT_EQ(rowsOf(inp_ElementTypes::kTypeRows), 729);
    EXPECT_EQ(rowsOf(inp_ElementTypes::kObsoleteRows), 14);
    int reflections = 0;
    while (inp_ElementTypes::kReflectionRows[reflections].name != nullptr) ++reflections;
    EXPECT_EQ(reflections, 230);
    // Loading into maps drops nothing, so no name stands twice.
    EXPECT_EQ(inp_ElementTypes::LoadTypeTable().Size(), 729);
    EXPECT_EQ(inp_ElementTypes::LoadObsoleteTable().Size(), 14);
    EXPECT_EQ(inp_ElementTypes::LoadReflectionTable().Size(), 230);
}

TEST_F(InpElementTypesLookup, FixedAndRangedCounts) {
    EXPECT_EQ(rowOf("C3D8R").least, 8);
    EXPECT_FALSE(rowOf("C3D8R").HasRangedCount());
    EXPECT_EQ(rowOf("B31").greatest, 3);
    EXPECT_EQ(rowOf("CONN3D2").least, 1);
    EXPECT_EQ(rowOf("CAXA4R3").greatest, 16);
    EXPECT_EQ(rowOf("CAXA8P4").greatest, 40);
    EXPECT_EQ(rowOf("SAXA24").greatest, 15);
    EXPECT_EQ(rowOf("C3D27RH").least, 21);
    EXPECT_EQ(rowOf("C3D27RH").greatest, 27);
    EXPECT_EQ(rowOf("GK3D12MN").greatest, 15);
    EXPECT_EQ(rowOf("GK3D18").least, 16);
}

TEST_F(InpElementTypesLookup, MeshElspecPyramidsCarryTheHexahedronCounts) {
    EXPECT_EQ(rowOf("MESH_ELSPEC_V_PYR_5").least, 8);
    EXPECT_EQ(rowOf("MESH_ELSPEC_V_PYR_5").greatest, 8);
    EXPECT_EQ(rowOf("MESH_ELSPEC_V_PYR_13").greatest, 20);
    EXPECT_EQ(rowOf("MESH_ELSPEC_V_WEDG_15").least, 15);
    EXPECT_EQ(rowOf("MESH_ELSPEC_D_1").greatest, 1);
}

TEST_F(InpElementTypesLookup, NamesResolveInOrderOfPrecedence) {
    inp_ElementInfo info;
    EXPECT_EQ(types.Classify("S4R", info), inp_ElementTypes::kTableType);
    EXPECT_STREQ(info.name, "S4R");
    EXPECT_EQ(types.Classify("Z12", info), inp_ElementTypes::kSuperelement);
    EXPECT_EQ(types.Classify("VU3", info), inp_ElementTypes::kUserElement);
    EXPECT_EQ(types.Classify("U1", info), inp_ElementTypes::kUserElement);
    EXPECT_EQ(types.Classify("CGPE10RH", info), inp_ElementTypes::kObsolete);
    EXPECT_EQ(types.Classify("C3D9", info), inp_ElementTypes::kUnsupported);
    // Membership is by the name as it stands: the parser upper-cases first.
    EXPECT_EQ(types.Classify("s4r", info), inp_ElementTypes::kUnsupported);
    EXPECT_FALSE(types.IsObsolete("CGPE7"));
}

TEST(InpElementTypesReflection, HexahedraReverseTheOrderAroundEachFace) {
    int c3d8[] = {11, 12, 13, 14, 15, 16, 17, 18};
    inp_ElementTypes::RenumberTopologyDueToReflection("C3D8", c3d8, 8);
    EXPECT_EQ(std::vector<int>(c3d8, c3d8 + 8), (std::vector<int>{11, 14, 13, 12, 15, 18, 17, 16}));

    cow_List<int> c3d20;
    for (int node = 1; node <= 20; ++node) c3d20.Append(node);
    inp_ElementTypes::RenumberTopologyDueToReflection("C3D20R", c3d20);
    EXPECT_EQ(c3d20, cow_List<int>(
                         {1, 4, 3, 2, 5, 8, 7, 6, 12, 11, 10, 9, 16, 15, 14, 13, 17, 20, 19, 18}));
}

TEST(InpElementTypesReflection, ShorterElementIsReorderedOnThePositionsItHas) {
    int c3d27[21];
    for (int i = 0; i < 21; ++i) c3d27[i] = i + 1;
    inp_ElementTypes::RenumberTopologyDueToReflection("C3D27", c3d27, 21);
    EXPECT_EQ(c3d27[1], 4);
    EXPECT_EQ(c3d27[19], 18);
    EXPECT_EQ(c3d27[20], 21);
}

TEST(InpElementTypesReflection, TypeWithoutARowIsAnAssertion) {
    int b31[] = {1, 2};
    EXPECT_THROW(inp_ElementTypes::RenumberTopologyDueToReflection("B31", b31, 2),
                 ZELBasAssertException);
    EXPECT_FALSE(inp_ElementTypes().HasReflection("B31"));
}

}  // namespace
