#include "mesh/inp_NodeGenerationVisitor.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_NodeVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/ZELAspBcuAnalysisIROptions.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

// A flat deck whose nodes and elements the node and element walks have
// taken; node generation then walks the same keywords, on copies of the maps.
struct Deck {
    explicit Deck(std::string const& text) : keywords(InlineDeck(text, InlineElementData::Raw)) {
        nodes.VisitList(keywords);
        elements.VisitList(keywords);
        EXPECT_FALSE(nodes.IsError() || elements.IsError());
    }
    inp_NodeGenerationVisitor Generate(bool forCopies = false) {
        inp_NodeGenerationVisitor walk(nodes.ConstGetCoordMap(), elements.ConstGetElementMap(),
                                       elements.ConstGetSetMap(), forCopies, false, true, "");
        walk.VisitList(keywords);
        return walk;
    }
    Ids NodesOf(int label) const {
        cow_List<int> const list =
            elements.ConstGetElementMap().ConstGet().ConstGet(label).NodeList();
        return Ids(list.begin(), list.end());
    }

    cow_List<inp_Keyword> keywords;
    inp_NodeVisitor nodes{true};
    inp_ElementVisitor elements{true};
};

void expectAt(inp_CoordMap const& map, int label, double x, double y, double z) {
    ASSERT_TRUE(map.IsMember(label)) << label;
    inp_Coord const c = map.ConstGet(label);
    EXPECT_NEAR(c.x, x, 1e-12) << label;
    EXPECT_NEAR(c.y, y, 1e-12) << label;
    EXPECT_NEAR(c.z, z, 1e-12) << label;
}

// Results go to a simulation file while it lives.
struct SimulationWorkflow {
    SimulationWorkflow() { set(ZELAspBcuAnalysisIROptions::IsResultsSim); }
    ~SimulationWorkflow() { set(ZELAspBcuAnalysisIROptions::IsResultsOdb); }
    static void set(ZELAspBcuAnalysisIROptions::resultsModeEnm mode) {
        ZELAspBcuAnalysisIROptions::Instance().SetResultsMode(mode);
    }
};

char const* const kFourNodes =
    "*NODE\n1, 1., 0., 0.\n2, 2., 0., 0.\n3, 2., 1., 0.\n4, 1., 1., 5.\n";

}  // namespace

TEST(NodeGenerationLayers, UpperNodesOfEachLayeredFamily) {
    Deck deck(std::string(kFourNodes) +
              "*NODE\n100002, 9., 9., 9.\n11, 5., 6., 7.\n"
              "*ELEMENT, TYPE=CAXA41\n1, 1, 2, 3, 4\n"
              "*ELEMENT, TYPE=GK3D8, OFFSET=10\n2, 1, 2, 3, 4\n"
              // given whole: nothing is made, not even the missing node 99
              "*ELEMENT, TYPE=GK3D8\n3, 1, 2, 3, 4, 11, 12, 13, 99\n"
              "*ELEMENT, TYPE=COH3D8P, OFFSET=100\n4, 1, 2, 3, 4\n");
    EXPECT_EQ(deck.NodesOf(1), (Ids{1, 2, 3, 4, 100001, 100002, 100003, 100004}));
    inp_NodeGenerationVisitor const walk = deck.Generate();
    inp_CoordMap const& map = walk.ConstGetCoordMap();
    // Asymmetric axisymmetric: at the bottom node, even where the user put one.
    expectAt(map, 100001, 1, 0, 0);
    expectAt(map, 100002, 2, 0, 0);
    expectAt(map, 100004, 1, 1, 5);
    // Gasket and cohesive: an existing node stays, a new one starts at the origin.
    expectAt(map, 11, 5, 6, 7);
    for (int label : {12, 13, 14, 101, 102, 103, 104, 201, 202, 203, 204})
        expectAt(map, label, 0, 0, 0);
    EXPECT_EQ(map.Count(), 6 + 3 + 3 + 8);
    EXPECT_FALSE(walk.IsError());
}

TEST(NodeGenerationLayers, NodesOfAMovedScopeAreStoredInItsFrame) {
    inp_CoordMap level;
    level.Insert(1, inp_Coord(1, 2, 3));
    level.Insert(2, inp_Coord(4, 5, 6));
    level.Transform(gsl_Matrix::Translation(gsl_Vector(10, 0, 0)));
    inp_CoordMap coords;
    coords.Insert("I", level);
    inp_MapInt2Element table;
    table.Insert(7, inp_Element("SAXA11", cow_List<int>{1, 2, 11, 12}, 0, 0, 0));
    inpM_InstanceMap<inp_MapInt2Element> elements;
    elements.Insert("I", table);
    inp_NodeGenerationVisitor walk(coords, elements, {}, false, false, true, "I");
    cow_List<inp_Keyword> element =
        InlineDeck("*ELEMENT, TYPE=SAXA11\n7, 1, 2\n", InlineElementData::Raw);
    walk.VisitList(element);
    expectAt(walk.ConstGetCoordMap().ConstGet("I"), 11, 11, 2, 3);  // moved once, as node 1
    expectAt(walk.ConstGetCoordMap().ConstGet("I"), 12, 14, 5, 6);
    EXPECT_EQ(walk.FindMaxNodeLabel("I"), 12);
    EXPECT_EQ(walk.FindMaxNodeLabel("NONE"), 0);
}

TEST(NodeGenerationLayers, CopiesGetTheirNodesOnlyWhenAskedFor) {
    Deck deck(std::string(kFourNodes) +
              "*NODE\n11, 1., 0., 1.\n12, 2., 0., 1.\n13, 2., 1., 1.\n14, 1., 1., 1.\n"
              "21, 1., 0., 2.\n22, 2., 0., 2.\n23, 2., 1., 2.\n24, 1., 1., 2.\n"
              "*ELEMENT, TYPE=CAXA41, ELSET=E\n1, 1, 2, 3, 4\n"
              "*ELGEN\n1, 2, 10, 10\n"
              "*ELCOPY, ELEMENTSHIFT=1000, OLDSET=E, SHIFTNODES=20\n"
              "*ELEMENT, TYPE=GK3D8, OFFSET=50, ELSET=G\n5, 1, 2, 3, 4\n"
              "*ELCOPY, ELEMENTSHIFT=1000, OLDSET=G, SHIFTNODES=100\n");
    EXPECT_EQ(deck.Generate(false).ConstGetCoordMap().Count(), 12 + 4 + 4);  // 100001.., 51..
    inp_NodeGenerationVisitor const walk = deck.Generate(true);
    inp_CoordMap const& map = walk.ConstGetCoordMap();
    expectAt(map, 100011, 1, 0, 1);  // of the *ELGEN copy 11
    expectAt(map, 100024, 1, 1, 2);  // of the *ELCOPY copy 1001
    expectAt(map, 154, 0, 0, 0);     // of the gasket copy 1005
    EXPECT_EQ(map.Count(), 12 + 4 + 4 + 3 * 4);
    EXPECT_FALSE(walk.IsError());
}

TEST(NodeGenerationMidsides, Gk3d18InTheSimulationWorkflowGetsFaceCenters) {
    std::string const text =
        "*NODE\n1, 0., 0., 0.\n2, 2., 0., 0.\n3, 2., 2., 0.\n4, 0., 2., 0.\n"
        "5, 1., -1., 0.\n6, 2., 1., 0.\n7, 1., 2., 0.\n8, 0., 1., 0.\n"
        "9, 0., 0., 1.\n10, 2., 0., 1.\n11, 2., 2., 1.\n12, 0., 2., 1.\n"
        "13, 1., 0., 1.\n14, 2., 1., 1.\n15, 1., 2., 1.\n16, 0., 1., 1.\n50, 7., 7., 7.\n"
        "*ELEMENT, TYPE=GK3D18\n1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,\n16\n";
    Deck outside(text);
    EXPECT_EQ(outside.Generate().ConstGetCoordMap().Count(), 17);
    EXPECT_EQ(outside.NodesOf(1)[16], 0);

    SimulationWorkflow simulation;
    Deck inside(text);
    inp_NodeGenerationVisitor const walk = inside.Generate();
    // Above the highest node, written into the record every holder sees.
    EXPECT_EQ(inside.NodesOf(1)[16], 51);
    EXPECT_EQ(inside.NodesOf(1)[17], 52);
    // The center by the face's shape functions, not the mean of its nodes.
    expectAt(walk.ConstGetCoordMap(), 51, 1, 0.5, 0);
    expectAt(walk.ConstGetCoordMap(), 52, 1, 1, 1);
}

TEST(NodeGenerationMidsides, ShapeFunctionsAndTheFaceRules) {
    inp_CoordMap nodes;
    inp_NodeGenerationVisitor walk(nodes, {}, {}, false, false, true, "");
    // Each shape function is 1 at its own node and 0 at the seven others.
    double const r[] = {-1, 1, 1, -1, 0, 1, 0, -1};
    double const s[] = {-1, -1, 1, 1, -1, 0, 1, 0};
    for (int node = 0; node < 8; ++node) {
        double weights[8];
        walk.BiquadraticInterpolator(r[node], s[node], weights);
        for (int k = 0; k < 8; ++k) EXPECT_NEAR(weights[k], k == node ? 1 : 0, 1e-15);
    }
    for (int label = 1; label <= 8; ++label) nodes.Insert(label, inp_Coord(label, 0, 0));
    cow_List<int> const face{1, 2, 3, 4, 5, 6, 7, 8};
    walk.GenerateGasketGK3D18MidsideNodes(nodes, face, {0});
    walk.GenerateGasketGK3D18MidsideNodes(nodes, face, {3});                       // a node already
    walk.GenerateGasketGK3D18MidsideNodes(nodes, {1, 2, 3, 4, 5, 6, 7, 9}, {20});  // no node 9
    EXPECT_EQ(nodes.Count(), 8);
    walk.GenerateGasketGK3D18MidsideNodes(nodes, face, {20});
    expectAt(nodes, 20, 10.5, 0, 0);  // -(1 + 2 + 3 + 4) / 4 + (5 + 6 + 7 + 8) / 2
}

TEST(NodeGenerationWalk, SkipsTheAssemblyOrTheParts) {
    Deck deck(std::string(kFourNodes) + "*ELEMENT, TYPE=CAXA41\n1, 1, 2, 3, 4\n");
    // The element 1 both in the part P and at the top level, under *ASSEMBLY.
    cow_List<inp_Keyword> tree = InlineDeck(
        "*PART, NAME=P\n*END PART\n*ASSEMBLY, NAME=A\n*END ASSEMBLY\n", InlineElementData::Raw);
    tree.Get(0).SetSuboptions(deck.keywords);
    tree.Get(2).SetSuboptions(deck.keywords);
    inpM_InstanceMap<inp_MapInt2Element> elements = deck.elements.ConstGetElementMap();
    elements.Insert("P", elements.ConstGet());
    inp_CoordMap coords = deck.nodes.ConstGetCoordMap();
    coords.Insert("P", deck.nodes.ConstGetCoordMap());
    SimulationWorkflow simulation;  // *PART takes the highest label of its scope
    for (bool skipAssembly : {true, false}) {
        inp_NodeGenerationVisitor walk(coords, elements, {}, false, false, skipAssembly, "");
        walk.VisitList(tree);
        EXPECT_EQ(walk.ConstGetCoordMap().ConstGet("P").IsMember(100004), skipAssembly);
        EXPECT_EQ(walk.ConstGetCoordMap().IsMember(100004), !skipAssembly);
    }
}

TEST(NodeGenerationMessages, EveryFaultEndsItsKeywordAndKeepsWhatWasMade) {
    Deck deck(std::string(kFourNodes) +
              "*ELEMENT, TYPE=CAXA41, ELSET=E\n1, 1, 2, 3, 4\n2, 11, 2, 3, 4\n");
    // A copy 1001 of element 1 with four nodes only.
    inpM_InstanceMap<inp_MapInt2Element> elements = deck.elements.ConstGetElementMap();
    elements.Get().Insert(1001, inp_Element("CAXA41", cow_List<int>{1, 2, 3, 4}, 0, 0, 0));
    // Keywords the element walk has not seen, as a caller may hand them in.
    cow_List<inp_Keyword> const faults = InlineDeck(
        "*ELEMENT\n1, 1, 2\n"
        "*ELEMENT, TYPE=NOTYPE\n1, 1, 2\n"
        "*ELEMENT, TYPE=U1\n1, 1, 2\n"  // a user element: nothing to make
        "*ELCOPY, OLDSET=E, SHIFTNODES=1\n"
        "*ELCOPY, ELEMENTSHIFT=1000, OLDSET=NONE, SHIFTNODES=1\n"
        "*ELCOPY, ELEMENTSHIFT=1000, OLDSET=E, SHIFTNODES=1\n"
        "*ELGEN\n1, 0\n"
        "*ELGEN\n77, 2\n"
        "*ELGEN\n1, 2, 1, 1000\n"
        "*ELEMENT, TYPE=CAXA41\n1, 1, 2, 3, 4\n2, 11, 2, 3, 4, 5, 6\n"
        "*ELGEN\n , \n",
        InlineElementData::Raw);
    inp_NodeGenerationVisitor walk(deck.nodes.ConstGetCoordMap(), elements,
                                   deck.elements.ConstGetSetMap(), true, false, true, "");
    cow_List<inp_Keyword> walked = faults;
    walk.VisitList(walked);
    auto at = [&](int k, std::string const& text) {
        return std::string(inp_Utils::FormTitleForMessage(faults[k]).View()) + text;
    };
    std::string const size =
        "Internal error: number of nodes in asymmetric element of type "
        "\"CAXA41\", number = ";
    Texts errors;
    for (atr_String const& error : walk.GetErrorList()) errors.emplace_back(error.View());
    EXPECT_EQ(
        errors,
        (Texts{at(0, "Element type is required."), at(1, "Element type NOTYPE is not supported."),
               at(3, "ELEMENTSHIFT, OLDSET, and SHIFTNODES are required."),
               at(4, "Element set NONE does not exist."), at(5, size + "4 is less than expected"),
               at(6, "Number of elements to be generated is zero."),
               at(7, "Master element 77 is not defined."), at(8, size + "4 is less than expected"),
               at(9, size + "6 is less than expected."),
               at(10, "There is no data specified in at least one data line.")}));
    // The first row of the failing *ELEMENT got its nodes, the second none.
    expectAt(walk.ConstGetCoordMap(), 100004, 1, 1, 5);
    EXPECT_FALSE(walk.ConstGetCoordMap().IsMember(100011));
}
