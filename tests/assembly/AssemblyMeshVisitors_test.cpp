#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "assembly/inp_AssemblyElementVisitor.h"
#include "assembly/inp_AssemblyNodeVisitor.h"
#include "assembly/inp_AssemblySurfaceVisitor.h"
#include "assembly/inp_PartMeshVisitors.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Texts = std::vector<std::string>;

// The keyword tree the organizer makes of a flat deck: the keywords of a
// *PART, *ASSEMBLY or *INSTANCE become its suboptions, and each end keyword
// stands after its opener, as the stages walk it.
cow_List<inp_Keyword> Organized(cow_List<inp_Keyword> const& flat) {
    std::vector<cow_List<inp_Keyword>> levels(1);
    std::vector<inp_Keyword> openers;
    for (inp_Keyword const& keyword : flat) {
        bool const closes = keyword.Is(inp_kw_EndPart) || keyword.Is(inp_kw_EndInstance) ||
                            keyword.Is(inp_kw_EndAssembly);
        if (closes && !openers.empty()) {
            openers.back().SetSuboptions(levels.back());
            levels.pop_back();
            levels.back().Append(openers.back());
            openers.pop_back();
        }
        if (keyword.Is(inp_kw_Part) || keyword.Is(inp_kw_Instance) || keyword.Is(inp_kw_Assembly)) {
            openers.push_back(keyword);
            levels.emplace_back();
        } else {
            levels.back().Append(keyword);
        }
    }
    return levels.front();
}

std::string At(char const* keyword, int line, std::string const& text) {
    return std::string("in keyword *") + keyword + ", file \"deck.inp\", line " +
           std::to_string(line) + ": " + text;
}

// The options of a job that are not the deck's.
struct Job {
    bool symmetricGeneration = false;
    cow_List<cow_String> importedInstances;
    inpM_SetMap importedNodeSets;
    inpM_SetMap importedElementSets;
    inpM_SurfaceMap importedSurfaces;
};

// Both stages over one deck, as the input file runs them: the part maps
// first, then the assembly maps from them.
struct Model {
    explicit Model(std::string const& text, Job const& job = Job())
        : keywords(Organized(InlineDeck(text))) {
        inp_PartElementVisitor partElements;
        partElements.VisitList(keywords);
        inp_PartNodeVisitor partNodes(partElements.ConstGetElementMap(),
                                      partElements.ConstGetSetMap());
        partNodes.VisitList(keywords);
        inp_PartSurfaceVisitor partSurfaces(
            partNodes.ConstGetSetMap(), partElements.ConstGetSetMap(),
            partElements.ConstGetElementMap(), partNodes.ConstGetCoordMap());
        partSurfaces.VisitList(keywords);
        partElementMap = partElements.ConstGetElementMap();
        partCoords = partNodes.ConstGetCoordMap();
        collectInstances();

        inp_AssemblyElementVisitor elements(partElementMap, partElements.ConstGetSetMap(),
                                            instanceParts, instances, true, job.importedInstances,
                                            job.importedElementSets);
        elements.VisitList(keywords);
        inp_AssemblyNodeVisitor nodes(partCoords, partNodes.ConstGetSetMap(),
                                      elements.ConstGetElementMap(), elements.ConstGetSetMap(),
                                      instanceParts, instances, job.symmetricGeneration, false,
                                      inpM_SetMap(), job.importedInstances, job.importedNodeSets);
        nodes.VisitList(keywords);
        inp_AssemblySurfaceVisitor surfaces(nodes.ConstGetSetMap(), elements.ConstGetSetMap(),
                                            elements.ConstGetElementMap(), nodes.ConstGetCoordMap(),
                                            partSurfaces.ConstGetSurfaceMap(), instanceParts,
                                            job.importedSurfaces, job.importedInstances);
        surfaces.VisitList(keywords);

        using Stages = std::initializer_list<inp_Visitor const*>;
        for (inp_Visitor const* stage : Stages{&partElements, &partNodes, &partSurfaces})
            gather(partErrors, *stage);
        for (inp_Visitor const* stage : Stages{&elements, &nodes, &surfaces})
            gather(errors, *stage);
        elementMap = elements.ConstGetElementMap();
        elementSets = elements.ConstGetSetMap();
        coords = nodes.ConstGetCoordMap();
        nodeSets = nodes.ConstGetSetMap();
        transforms = nodes.ConstGetTransformationMap();
        surfaceMap = surfaces.ConstGetSurfaceMap();
    }

    gsl_Point Position(char const* instance, int node) const {
        return coords.ConstGet(instance).ConstGet(node).Point();
    }
    gsl_Matrix const& Transform(char const* instance) const {
        return transforms.ConstGet(instance);
    }

    cow_List<inp_Keyword> keywords;
    inpM_InstanceMap<inp_MapInt2Element> partElementMap;
    inp_CoordMap partCoords;
    inpM_InstanceMap<cow_String> instanceParts;
    cow_List<cow_String> instances;
    inpM_InstanceMap<inp_MapInt2Element> elementMap;
    inpM_SetMap elementSets;
    inp_CoordMap coords;
    inpM_SetMap nodeSets;
    inpM_InstanceMap<gsl_Matrix> transforms;
    inpM_SurfaceMap surfaceMap;
    Texts partErrors;
    Texts errors;

  private:
    static void gather(Texts& into, inp_Visitor const& stage) {
        for (std::string const& text : TextsOf(stage.GetErrorList())) into.push_back(text);
    }
    void collectInstances() {
        for (inp_Keyword const& top : keywords) {
            if (!top.Is(inp_kw_Assembly)) continue;
            for (inp_Keyword const& keyword : top.Suboptions()) {
                if (!keyword.Is(inp_kw_Instance)) continue;
                cow_String const name = keyword.GetParameterAsString("name", "");
                instances.Append(name);
                if (keyword.HasParameter("part"))
                    instanceParts.Insert(name, keyword.GetParameterAsString("part", ""));
            }
        }
    }
};

// One part of a single bar from (1, 0, 0) to (2, 0, 0), with a node set, an
// element set and a surface.
constexpr char const* kPart = R"(*PART, NAME=P
*NODE, NSET=PN
1, 1., 0., 0.
2, 2., 0., 0.
*ELEMENT, TYPE=T3D2, ELSET=PE
1, 1, 2
*SURFACE, NAME=PS, TYPE=NODE
PN
*END PART
)";

std::string Deck(std::string const& assembly) {
    return std::string(kPart) + "*ASSEMBLY, NAME=A\n" + assembly + "*END ASSEMBLY\n";
}

// One instance I of the part with the given data lines under *INSTANCE.
Model Placed(std::string const& lines, Job const& job = Job()) {
    return Model(Deck("*INSTANCE, NAME=I, PART=P\n" + lines + "*END INSTANCE\n"), job);
}

TEST(AssemblyMeshVisitors, InstancesShareTheMeshOfTheirPart) {
    Model const model(Deck(R"(*INSTANCE, NAME=STILL, PART=P
*END INSTANCE
*INSTANCE, NAME=MOVED, PART=P
10., 0., 0.
0., 0., 0., 0., 0., 1., 90.
*END INSTANCE
)"));
    EXPECT_EQ(model.partErrors, Texts{});
    EXPECT_EQ(model.errors, Texts{});

    inp_MapInt2Element const& part = model.partElementMap.ConstGet("P");
    EXPECT_TRUE(model.elementMap.ConstGet("STILL").SharesTableWith(part));
    EXPECT_TRUE(model.elementMap.ConstGet("MOVED").SharesTableWith(part));
    EXPECT_FALSE(model.elementMap.HasValue()) << "no element of the assembly itself";

    inp_CoordMap const& partNodes = model.partCoords.ConstGet("P");
    EXPECT_TRUE(model.coords.ConstGet("STILL").SharesNodesWith(partNodes));
    EXPECT_TRUE(model.coords.ConstGet("STILL").ConstGetTransformation().IsIdentity());
    EXPECT_EQ(model.Position("STILL", 2), gsl_Point(2.0, 0.0, 0.0));
    EXPECT_TRUE(model.coords.ConstGet("MOVED").SharesNodesWith(partNodes));
    // Translated to (11, 0, 0) and (12, 0, 0) first, then turned a quarter
    // about the z axis through the origin as written.
    EXPECT_EQ(model.Position("MOVED", 1), gsl_Point(0.0, 11.0, 0.0));
    EXPECT_EQ(model.Position("MOVED", 2), gsl_Point(0.0, 12.0, 0.0));
    EXPECT_EQ(model.Position("STILL", 1), gsl_Point(1.0, 0.0, 0.0)) << "the part is not moved";
    EXPECT_TRUE(model.Transform("STILL").IsIdentity());
    EXPECT_FALSE(model.Transform("MOVED").IsIdentity());

    for (char const* instance : {"STILL", "MOVED"}) {
        EXPECT_TRUE(model.nodeSets.HasNestedSet(instance, "PN")) << instance;
        EXPECT_TRUE(model.elementSets.HasNestedSet(instance, "PE")) << instance;
        EXPECT_TRUE(model.surfaceMap.IsMemberPartInstanceSurface(instance, "PS")) << instance;
    }
    EXPECT_FALSE(model.coords.IsMember(1)) << "the part's nodes are not read at the top level";
}

TEST(AssemblyMeshVisitors, InstanceDataLinesBecomeTheTransform) {
    Model const none = Placed("");
    EXPECT_TRUE(none.Transform("I").IsIdentity());
    EXPECT_TRUE(none.coords.ConstGet("I").SharesNodesWith(none.partCoords.ConstGet("P")));

    Model const alongX = Placed("5.\n");
    EXPECT_EQ(alongX.Transform("I"), gsl_Matrix::Translation(gsl_Vector(5.0, 0.0, 0.0)));
    EXPECT_EQ(alongX.Position("I", 1), gsl_Point(6.0, 0.0, 0.0));

    Model const noAngle = Placed("1., 2., 3.\n0., 0., 0., 1., 1., 1.\n");
    EXPECT_EQ(noAngle.errors, Texts{});
    EXPECT_EQ(noAngle.Transform("I"), gsl_Matrix::Translation(gsl_Vector(1.0, 2.0, 3.0)));

    // About the axis through (0, 1, 0) along z: the sines of a half turn are
    // exactly 0, so the node lands exactly.
    Model const halfTurn = Placed("0., 0., 0.\n0., 1., 0., 0., 1., 5., 180.\n");
    EXPECT_EQ(halfTurn.errors, Texts{});
    EXPECT_EQ(halfTurn.Transform("I").Element(0, 1), 0.0);
    EXPECT_EQ(halfTurn.Transform("I").Element(0, 0), -1.0);
    EXPECT_EQ(halfTurn.Position("I", 2), gsl_Point(-2.0, 2.0, 0.0));

    Model const nameless(Deck("*INSTANCE, PART=P\n1., 0., 0.\n*END INSTANCE\n"));
    EXPECT_EQ(nameless.transforms.Instances().Length(), 0) << "no level without a name";
}

TEST(AssemblyMeshVisitors, CoincidentAxisPointsAreReportedAndTheTransformCompleted) {
    Model const model = Placed("1., 0., 0.\n2., 2., 2., 2., 2., 2., 90.\n");
    EXPECT_EQ(model.errors,
              (Texts{At("INSTANCE", 11,
                        "The points defining the axis of rotation are coincident or almost "
                        "coincident.")}));
    EXPECT_EQ(model.Transform("I"), gsl_Matrix::Translation(gsl_Vector(1.0, 0.0, 0.0)));
    EXPECT_EQ(model.Position("I", 2), gsl_Point(3.0, 0.0, 0.0));
}

// The earlier job placed an imported instance already: its lines, even a
// rotation with a degenerate axis, are not read, and its sets and surfaces
// are the imported ones. Its element sets may be known by the name without
// quotes.
TEST(AssemblyMeshVisitors, ImportedInstanceKeepsWhatTheEarlierJobMade) {
    Job job;
    job.importedInstances.Append("OLD");
    job.importedInstances.Append("\"Q\"");
    job.importedNodeSets.InsertNestedSet("OLD", "ON", CreateSet(cow_List<int>{4}, false, false));
    job.importedElementSets.InsertNestedSet("Q", "QE", CreateSet(cow_List<int>{8}, false, false));
    job.importedSurfaces.InsertPartInstanceSurface("OLD", "OS",
                                                   CreateSurface(inpM_NodeAreaSurfaceType));
    Model const model(Deck(R"(*INSTANCE, NAME=OLD
3., 0., 0.
2., 2., 2., 2., 2., 2., 90.
*END INSTANCE
*INSTANCE, NAME="Q"
*END INSTANCE
)"),
                      job);
    EXPECT_EQ(model.errors, Texts{});
    EXPECT_TRUE(model.Transform("OLD").IsIdentity());
    EXPECT_TRUE(model.nodeSets.HasNestedSet("OLD", "ON"));
    EXPECT_TRUE(model.surfaceMap.IsMemberPartInstanceSurface("OLD", "OS"));
    EXPECT_TRUE(model.elementSets.HasNestedSet("Q", "QE"));
}

TEST(AssemblyMeshVisitors, PartLevelSetsAndSurfacesRedefinedInAnInstance) {
    Model const model = Placed(R"(*NODE
3, 3., 0., 0.
*NSET, NSET=PN
3
*ELEMENT, TYPE=T3D2
2, 2, 3
*ELSET, ELSET=PE
2
*SURFACE, NAME=PS, TYPE=NODE
3
*NSET, NSET=FRESH
3
)");
    EXPECT_EQ(model.errors,
              (Texts{At("ELSET", 18,
                        "The element set PE was defined within part P, then redefined within "
                        "part instance I. An element set cannot be defined at the part level, "
                        "then modified at the part instance level."),
                     At("NSET", 14,
                        "The node set PN was defined within part P, then redefined within part "
                        "instance I. A node set cannot be defined at the part level, then "
                        "modified at the part instance level."),
                     At("SURFACE", 20,
                        "The surface PS was defined within part P, then redefined within part "
                        "instance I. A surface cannot be defined at the part level, then "
                        "redefined at the part instance level.")}));
    // Each redefinition is read all the same, into the instance alone.
    EXPECT_EQ(model.nodeSets.ConstGetNestedSet("I", "PN")->ConstGetIdList(),
              (cow_List<int>{1, 2, 3}));
    EXPECT_EQ(model.elementSets.ConstGetNestedSet("I", "PE")->ConstGetIdList(),
              (cow_List<int>{1, 2}));
    EXPECT_EQ(
        model.surfaceMap.ConstGetPartInstanceSurface("I", "PS")->ConstGetNodeAreaList().Size(), 1);
    EXPECT_TRUE(model.nodeSets.HasNestedSet("I", "FRESH"));
    EXPECT_EQ(model.Position("I", 3), gsl_Point(3.0, 0.0, 0.0));
    EXPECT_TRUE(model.elementMap.ConstGet("I").IsMember(2));
    EXPECT_FALSE(model.elementMap.IsMember("P")) << "parts are not levels of the assembly";
    EXPECT_EQ(model.partElementMap.ConstGet("P").Size(), 1) << "the part is left as it was";
}

TEST(AssemblyMeshVisitors, AssemblyLevelKeywords) {
    Model const model(Deck(R"(*INSTANCE, NAME=I, PART=P
*SURFACE, NAME=ROLL, TYPE=CYLINDER
*RIGID SURFACE, ELSET=PE, REF NODE=1
*END INSTANCE
*NODE
50, 0., 0., 5.
51, 0., 0., 6.
*ELEMENT, TYPE=C3D8
60, 50, 51, 50, 51, 50, 51, 50, 51
*ELEMENT, TYPE=MASS, ELSET=M
61, 50
*ELEMENT
62, 51
*SURFACE, NAME=DRUM, TYPE=CYLINDER
*SURFACE, NAME=TOP, TYPE=NODE
I.PN
)"));
    EXPECT_EQ(model.errors,
              (Texts{At("SURFACE", 24,
                        "There should not be any Analytical Surfaces at the assembly level.")}));
    ASSERT_TRUE(model.elementMap.HasValue());
    inp_MapInt2Element const& assembly = model.elementMap.ConstGet();
    EXPECT_TRUE(assembly.IsMember(61));
    EXPECT_FALSE(assembly.IsMember(60));
    EXPECT_FALSE(assembly.IsMember(62));
    EXPECT_TRUE(model.elementSets.HasSet("M"));

    EXPECT_TRUE(model.coords.IsMember(50));
    EXPECT_FALSE(model.surfaceMap.IsMemberAssemblyInstanceSurface("DRUM"));
    EXPECT_TRUE(model.surfaceMap.IsMemberAssemblyInstanceSurface("TOP"));
    ASSERT_TRUE(model.surfaceMap.IsMemberPartInstanceSurface("I", "ROLL"));
    EXPECT_EQ(model.surfaceMap.ConstGetPartInstanceSurface("I", "ROLL")->Type(),
              inpM_AnalyticalSurfaceType);
    EXPECT_TRUE(model.surfaceMap.IsMemberPartInstanceSurface("I", kRigidSurfaceName));
}

// A symmetric model generation job builds element-based node sets itself:
// the set is only made known, and an element set that does not exist here
// raises nothing.
TEST(AssemblyMeshVisitors, SymmetricGenerationMakesElementNodeSetsKnownOnly) {
    std::string const deck = Deck(
        "*INSTANCE, NAME=I, PART=P\n*END INSTANCE\n"
        "*NSET, NSET=MIRROR, ELSET=NOWHERE\n");
    Job symmetric;
    symmetric.symmetricGeneration = true;
    Model const model(deck, symmetric);
    EXPECT_EQ(model.errors, Texts{});
    ASSERT_TRUE(model.nodeSets.HasSet("MIRROR"));
    EXPECT_EQ(model.nodeSets.ConstGetSet("MIRROR")->Size(), 0);

    Model const plain(deck);
    EXPECT_EQ(plain.errors, (Texts{At("NSET", 13, "Element set NOWHERE does not exist.")}));
}

TEST(AssemblyMeshVisitors, ValidInstanceNames) {
    inpM_InstanceMap<cow_String> parts;
    parts.Insert("I", "P");
    cow_List<cow_String> const instances{"I", "J"};
    inp_AssemblyElementVisitor elements(inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(),
                                        parts, instances);
    EXPECT_TRUE(elements.IsValidInstanceName("J"));
    EXPECT_FALSE(elements.IsValidInstanceName("K"));

    inp_AssemblyNodeVisitor nodes(inp_CoordMap(), inpM_SetMap(),
                                  inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(), parts,
                                  instances);
    EXPECT_TRUE(nodes.IsValidInstanceName("J"));
    EXPECT_FALSE(nodes.IsValidInstanceName("K"));
    cow_List<inp_Keyword> keywords = InlineDeck("*INSTANCE, NAME=I, PART=P\n");
    nodes.VisitList(keywords);
    EXPECT_TRUE(nodes.IsValidInstanceName("I"));
    EXPECT_FALSE(nodes.IsValidInstanceName("J")) << "inside an instance only that instance";
}

}  // namespace
