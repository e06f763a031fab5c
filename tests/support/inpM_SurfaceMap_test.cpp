#include "support/inpM_SurfaceMap.h"

#include <gtest/gtest.h>

#include <vector>

#include "SurfaceContents.h"
#include "support/ZELBasException.h"
#include "support/inpM_IdMap.h"

namespace {

inpM_AssemblyInstanceSurface assemblyNodes(cow_List<int> const& nodes) {
    inpM_AssemblyInstanceSurface surface;
    surface.Add(inpM_NodeAreaSurface(1.0, nodes));
    return surface;
}

}  // namespace

TEST(InpMSurfaceMapLookup, AnswersForAssemblyAndInstanceLevels) {
    inpM_SurfaceMap map;
    map.InsertAssemblyInstanceSurface("TOP", assemblyNodes({1}));
    map.InsertPartInstanceSurface("I1", "SIDE", inpM_ElementFaceIdSurface("S1", {4}));

    EXPECT_TRUE(map.IsMemberAssemblyInstanceSurface("TOP"));
    EXPECT_FALSE(map.IsMemberAssemblyInstanceSurface("SIDE"));
    EXPECT_TRUE(map.IsMemberPartInstanceSurface("I1", "SIDE"));
    EXPECT_FALSE(map.IsMemberPartInstanceSurface("I1", "TOP"));
    EXPECT_FALSE(map.IsMemberPartInstanceSurface("UNKNOWN", "SIDE"));
    EXPECT_TRUE(map.HasInstanceInPartInstanceSurfaceMap("I1"));
    EXPECT_FALSE(map.HasInstanceInPartInstanceSurfaceMap("I2"));

    EXPECT_EQ(face(*map.ConstGetPartInstanceSurface("I1", "SIDE"), "S1"), (std::vector<int>{4}));
    EXPECT_EQ(map.ConstGetPartInstanceSurfaceMap("I1").Size(), 1);
    EXPECT_EQ(map.ConstGetAssemblyInstanceSurfaceMap().Size(), 1);
    EXPECT_EQ(map.Instances().Length(), 1);

    EXPECT_THROW(map.ConstGetAssemblyInstanceSurface("SIDE"), ZELBasAssertException);
    EXPECT_THROW(map.ConstGetPartInstanceSurface("I1", "OTHER"), ZELBasAssertException);
    EXPECT_THROW(map.ConstGetPartInstanceSurface("I2", "SIDE"), ZELBasAssertException);
}

TEST(InpMSurfaceMapSharing, CopiesShareSurfacesUntilWritten) {
    inpM_SurfaceMap original;
    original.InsertPartInstanceSurface("I1", "A", inpM_NodeAreaSurface(1.0, {1}));
    original.InsertPartInstanceSurface("I1", "B", inpM_NodeAreaSurface(1.0, {2}));
    inpM_SurfaceMap copy = original;
    copy.InsertPartInstanceSurface("I1", "A", inpM_NodeAreaSurface(1.0, {9}));
    copy.InsertAssemblyInstanceSurface("NEW", assemblyNodes({3}));

    EXPECT_EQ(nodesOf(*original.ConstGetPartInstanceSurface("I1", "A")), (std::vector<int>{1}));
    EXPECT_EQ(nodesOf(*copy.ConstGetPartInstanceSurface("I1", "A")), (std::vector<int>{9}));
    EXPECT_FALSE(original.IsMemberAssemblyInstanceSurface("NEW"));
    EXPECT_TRUE(copy.ConstGetPartInstanceSurface("I1", "B").SharesWith(
        original.ConstGetPartInstanceSurface("I1", "B")));
}

TEST(InpMSurfaceMapInsert, AWholeLevelReplacesTheInstancesSurfaces) {
    inpM_PartInstanceSurfaceMap level;
    level.Insert("X", CreateSurface(inpM_AnalyticalSurfaceType));
    inpM_SurfaceMap map;
    map.InsertPartInstanceSurface("I1", "OLD", inpM_NodeAreaSurface());
    map.InsertPartInstanceSurfaceMap("I1", level);
    EXPECT_FALSE(map.IsMemberPartInstanceSurface("I1", "OLD"));
    EXPECT_EQ(map.ConstGetPartInstanceSurface("I1", "X")->Type(), inpM_AnalyticalSurfaceType);
}

TEST(InpMSurfaceMapMerge, TakesEverySurfaceAndOtherWinsOnACommonName) {
    inpM_SurfaceMap map;
    map.InsertAssemblyInstanceSurface("TOP", assemblyNodes({1}));
    map.InsertPartInstanceSurface("I1", "A", inpM_NodeAreaSurface(1.0, {1}));
    map.InsertPartInstanceSurface("I1", "B", inpM_NodeAreaSurface(1.0, {2}));

    inpM_SurfaceMap other;
    other.InsertAssemblyInstanceSurface("TOP", assemblyNodes({5}));
    other.InsertAssemblyInstanceSurface("BOTTOM", assemblyNodes({6}));
    other.InsertPartInstanceSurface("I1", "A", inpM_NodeAreaSurface(1.0, {7}));
    other.InsertPartInstanceSurface("I2", "C", inpM_NodeAreaSurface(1.0, {8}));

    map.Merge(other);
    EXPECT_EQ(nodesOf(map.ConstGetAssemblyInstanceSurface("TOP").ConstGetAssemblyNodeAreaSurface()),
              (std::vector<int>{5}));
    EXPECT_TRUE(map.IsMemberAssemblyInstanceSurface("BOTTOM"));
    EXPECT_EQ(nodesOf(*map.ConstGetPartInstanceSurface("I1", "A")), (std::vector<int>{7}));
    EXPECT_EQ(nodesOf(*map.ConstGetPartInstanceSurface("I1", "B")), (std::vector<int>{2}));
    EXPECT_TRUE(map.IsMemberPartInstanceSurface("I2", "C"));
    EXPECT_FALSE(other.IsMemberPartInstanceSurface("I1", "B"));  // other is untouched

    inpM_SurfaceMap empty;
    empty.Merge(other);
    EXPECT_TRUE(empty.ConstGetPartInstanceSurface("I2", "C").SharesWith(
        other.ConstGetPartInstanceSurface("I2", "C")));
    map.Merge(map);
    EXPECT_EQ(map.ConstGetPartInstanceSurfaceMap("I1").Size(), 2);
}

TEST(InpMSurfaceMapRenumber, TranslatesNodesAndElementsByForm) {
    inpM_IdMap nodes;
    nodes.Insert(1, 101);
    inpM_IdMap nodesOfI1;
    nodesOfI1.Insert(3, 303);
    nodes.Insert("I1", nodesOfI1);
    inpM_IdMap elements;
    inpM_IdMap elementsOfI1;
    elementsOfI1.Insert(3, 3000);
    elements.Insert("I1", elementsOfI1);

    inpM_SurfaceMap map;
    inpM_AssemblyInstanceSurface top = assemblyNodes({1, 2});
    top.Add("I1", inpM_NodeAreaSurface(1.0, {3}));
    map.InsertAssemblyInstanceSurface("TOP", top);
    inpM_NodeAreaSurface nodeSurface(1.0, {3, 4});
    map.InsertPartInstanceSurface("I1", "N", nodeSurface);
    inpM_ElementFaceIdSurface elementSurface("S1", {3, 4});
    map.InsertPartInstanceSurface("I1", "E", elementSurface);
    map.InsertPartInstanceSurface("I2", "LOST", nodeSurface);

    inpM_SurfaceMap kept = map;
    kept.Renumber(nodes, elements, true);
    auto const& keptTop = kept.ConstGetAssemblyInstanceSurface("TOP");
    EXPECT_EQ(nodesOf(keptTop.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{2, 101}));
    EXPECT_EQ(nodesOf(*keptTop.ConstGetInstance2PartInstanceSurfaceMap().ConstGet("I1")),
              (std::vector<int>{303}));
    EXPECT_EQ(nodesOf(*kept.ConstGetPartInstanceSurface("I1", "N")), (std::vector<int>{4, 303}));
    EXPECT_EQ(face(*kept.ConstGetPartInstanceSurface("I1", "E"), "S1"),
              (std::vector<int>{3000, 4}));
    EXPECT_EQ(nodesOf(*kept.ConstGetPartInstanceSurface("I2", "LOST")), (std::vector<int>{3, 4}));

    map.Renumber(nodes, elements, false);
    EXPECT_EQ(nodesOf(*map.ConstGetPartInstanceSurface("I1", "N")), (std::vector<int>{303}));
    EXPECT_EQ(face(*map.ConstGetPartInstanceSurface("I1", "E"), "S1"), (std::vector<int>{3000}));
    // Emptied, but still there by name.
    EXPECT_TRUE(map.IsMemberPartInstanceSurface("I2", "LOST"));
    EXPECT_TRUE(map.ConstGetPartInstanceSurface("I2", "LOST")->IsEmpty());
}

TEST(InpMSurfaceMapPrint, PrintsAssemblyThenInstanceSurfacesByName) {
    inpM_SurfaceMap map;
    map.InsertPartInstanceSurface("I1", "B", inpM_NodeAreaSurface(2.0, {4}));
    map.InsertPartInstanceSurface("I1", "A", CreateSurface(inpM_AnalyticalSurfaceType));
    map.InsertAssemblyInstanceSurface("TOP", inpM_AssemblyInstanceSurface());
    aio_ostringstream out;
    map.Print(out);
    EXPECT_EQ(out.Str(),
              "surface TOP: assembly surface, 0 instances\n"
              "assembly nodes: node-area surface, 0 nodes\n"
              "instance I1 surface A: analytical surface\n"
              "instance I1 surface B: node-area surface, 1 node\n"
              "  4 2\n");
}
