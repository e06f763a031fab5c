#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "assembly/inp_PartMeshVisitors.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Texts = std::vector<std::string>;

// A flat deck: mesh keywords before the part, in it, and after it.
constexpr char const* kDeck = R"(*NODE, NSET=OUTSIDE
90, 9., 9., 9.
*ELEMENT, TYPE=T3D2, ELSET=OUTSIDE
90, 90, 91
*NSET, NSET=LOOSE
90
*PART, NAME=P
*NODE, NSET=ALL
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
*ELEMENT, TYPE=T3D2, ELSET=BARS
1, 1, 2
2, 2, 3
*ELSET, ELSET=FIRST
1
*NSET, NSET=ENDS, ELSET=FIRST
*SURFACE, NAME=SIDE, TYPE=ELEMENT
BARS, S1
*SURFACE, NAME=WALL, TYPE=CYLINDER, INTERNAL
*RIGID SURFACE, ELSET=BARS, REF NODE=1
*END PART
*ASSEMBLY, NAME=A
*NODE
95, 5., 5., 5.
*NSET, NSET=AT
95
*SURFACE, NAME=FLOOR, TYPE=CYLINDER
*END ASSEMBLY
)";

struct PartMaps {
    explicit PartMaps(cow_List<inp_Keyword> keywords) {
        inp_PartElementVisitor elements;
        elements.VisitList(keywords);
        errors = TextsOf(elements.GetErrorList());
        inp_PartNodeVisitor nodes(elements.ConstGetElementMap(), elements.ConstGetSetMap());
        nodes.VisitList(keywords);
        inp_PartSurfaceVisitor surfaces(nodes.ConstGetSetMap(), elements.ConstGetSetMap(),
                                        elements.ConstGetElementMap(), nodes.ConstGetCoordMap());
        surfaces.VisitList(keywords);
        for (auto const& list : {nodes.GetErrorList(), surfaces.GetErrorList()})
            for (std::string const& text : TextsOf(list)) errors.push_back(text);
        elementMap = elements.ConstGetElementMap();
        elementSets = elements.ConstGetSetMap();
        coords = nodes.ConstGetCoordMap();
        nodeSets = nodes.ConstGetSetMap();
        surfaceMap = surfaces.ConstGetSurfaceMap();
    }
    inpM_InstanceMap<inp_MapInt2Element> elementMap;
    inpM_SetMap elementSets;
    inp_CoordMap coords;
    inpM_SetMap nodeSets;
    inpM_SurfaceMap surfaceMap;
    Texts errors;
};

TEST(PartMeshVisitors, ReadTheMeshOfEachPartAndNothingOutside) {
    PartMaps const maps(InlineDeck(kDeck));
    EXPECT_EQ(maps.errors, Texts{});

    ASSERT_TRUE(maps.elementMap.IsMember("P"));
    EXPECT_EQ(maps.elementMap.ConstGet("P").Size(), 2);
    EXPECT_FALSE(maps.elementMap.HasValue()) << "no element outside the part";
    EXPECT_EQ(maps.elementSets.ConstGetSetMap().Size(), 0);
    ASSERT_TRUE(maps.elementSets.HasNestedSet("P", "BARS"));
    EXPECT_TRUE(maps.elementSets.HasNestedSet("P", "FIRST"));

    ASSERT_TRUE(maps.coords.IsMember("P"));
    inp_CoordMap const& part = maps.coords.ConstGet("P");
    EXPECT_EQ(part.Count(), 3);
    EXPECT_EQ(part.ConstGet(3).Point(), gsl_Point(1.0, 1.0, 0.0));
    EXPECT_FALSE(maps.coords.IsMember(90));
    EXPECT_FALSE(maps.coords.IsMember(95));
    EXPECT_FALSE(maps.nodeSets.HasSet("OUTSIDE"));
    EXPECT_FALSE(maps.nodeSets.HasSet("LOOSE"));
    EXPECT_FALSE(maps.nodeSets.HasSet("AT"));
    ASSERT_TRUE(maps.nodeSets.HasNestedSet("P", "ENDS"));
    EXPECT_EQ(maps.nodeSets.ConstGetNestedSet("P", "ENDS")->ConstGetIdList(),
              (cow_List<int>{1, 2}));

    // The analytical surface outside the part raises nothing here: the
    // assembly visitor is the one that refuses it.
    EXPECT_EQ(maps.surfaceMap.Instances(), (cow_List<cow_String>{"P"}));
    EXPECT_FALSE(maps.surfaceMap.IsMemberPartInstanceSurface("P", "FLOOR"));
    ASSERT_TRUE(maps.surfaceMap.IsMemberPartInstanceSurface("P", "SIDE"));
    EXPECT_EQ(maps.surfaceMap.ConstGetPartInstanceSurface("P", "SIDE")->Type(),
              inpM_ElementFaceIdSurfaceType);
    ASSERT_TRUE(maps.surfaceMap.IsMemberPartInstanceSurface("P", "WALL"));
    inpM_PartInstanceSurface const& wall =
        *maps.surfaceMap.ConstGetPartInstanceSurface("P", "WALL");
    EXPECT_EQ(wall.Type(), inpM_AnalyticalSurfaceType);
    EXPECT_TRUE(wall.IsInternal());
    EXPECT_TRUE(maps.surfaceMap.IsMemberPartInstanceSurface("P", kRigidSurfaceName));
}

// A part left open by a missing *END PART: the keywords under *ASSEMBLY
// (both visitors) and under *STEP (the element visitor) are still hidden,
// sub-tree and all.
TEST(PartMeshVisitors, PassOverAssemblyAndStepTrees) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*PART, NAME=P
*NODE
1, 0., 0., 0.
2, 1., 0., 0.
*ELEMENT, TYPE=T3D2
1, 1, 2
)");
    cow_List<inp_Keyword> const inAssembly = InlineDeck(R"(*NODE
7, 0., 0., 7.
*ELEMENT, TYPE=T3D2
7, 1, 7
)",
                                                        InlineElementData::Raw);
    inp_Keyword assembly(inp_kw_Assembly, "deck.inp");
    assembly.SetParameter("name", inp_Item(cow_String("A")));
    assembly.SetSuboptions(inAssembly);
    keywords.Append(assembly);
    inp_Keyword step(inp_kw_Step, "deck.inp");
    cow_List<inp_Keyword> inStep;
    inStep.Append(inAssembly[1]);
    step.SetSuboptions(inStep);
    keywords.Append(step);

    PartMaps const maps(keywords);
    EXPECT_EQ(maps.errors, Texts{});
    EXPECT_EQ(maps.coords.ConstGet("P").Count(), 2);
    EXPECT_FALSE(maps.coords.ConstGet("P").IsMember(7));
    EXPECT_EQ(maps.elementMap.ConstGet("P").Size(), 1);
}

}  // namespace
