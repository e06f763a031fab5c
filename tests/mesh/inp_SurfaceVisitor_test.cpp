#include "mesh/inp_SurfaceVisitor.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/mesh/SurfaceVisitorForTests.h"

namespace {

using Texts = std::vector<std::string>;
using Ids = std::vector<int>;
using Areas = std::map<int, double>;
using Faces = std::map<std::string, Ids>;
// A parameter without a value (nullptr) is a flag such as CROP.
using Parameters = std::vector<std::pair<char const*, char const*>>;

inp_Keyword surface(Parameters const& parameters, std::initializer_list<char const*> lines) {
    inp_Keyword keyword(inp_kw_Surface, cow_String("deck.inp"));
    keyword.SetLineNumber(7);
    for (auto const& [name, value] : parameters)
        keyword.SetParameter(name, value != nullptr ? inp_Item(value) : inp_Item());
    for (char const* line : lines) keyword.Data().Append(line);
    return keyword;
}

std::string at7(std::string const& text) {
    return "in keyword *SURFACE, file \"deck.inp\", line 7: " + text;
}

cow_List<int> listOf(Ids const& ids) {
    cow_List<int> list;
    for (int id : ids) list.Append(id);
    return list;
}

Areas areasOf(inpM_PartInstanceSurface const& surface) {
    Areas areas;
    for (auto entry : surface.ConstGetNodeAreaList()) areas[entry.key] = entry.value;
    return areas;
}

Faces facesOf(inpM_PartInstanceSurface const& surface) {
    Faces faces;
    surface.ConstGetFaceIdElementIdsMap().ForEachSorted(
        [&](cow_String const& face, cow_List<int> const& ids) {
            faces[std::string(face.View())] = Ids(ids.begin(), ids.end());
        });
    return faces;
}

// Part P: unit hexahedron 1 at the origin (nodes 1-8) and unit hexahedron 2
// two units along x (nodes 11-18); element 3 of a type without a shape and
// tetrahedron 4 stand on the nodes of 2. Instance I1 of P is moved by 10
// along x. The assembly has nodes 100 at the origin and 101 at (5, 5, 5).
class Model {
  public:
    Model() {
        inp_CoordMap part;
        addCube(part, 1, 0.0);
        addCube(part, 11, 2.0);
        inp_CoordMap moved = part;
        moved.Transform(gsl_Matrix::Translation(gsl_Vector(10.0, 0.0, 0.0)));
        m_coords.Insert("P", part);
        m_coords.Insert("I1", moved);
        m_coords.Insert(100, inp_Coord(0.0, 0.0, 0.0));
        m_coords.Insert(101, inp_Coord(5.0, 5.0, 5.0));

        inp_MapInt2Element table;
        table.Insert(1, inp_Element("C3D8", listOf({1, 2, 3, 4, 5, 6, 7, 8}), 8, 0, 0));
        table.Insert(2, inp_Element("C3D8", listOf({11, 12, 13, 14, 15, 16, 17, 18}), 8, 0, 0));
        table.Insert(3, inp_Element("XYZ8", listOf({11, 12, 13, 14, 15, 16, 17, 18}), 8, 0, 0));
        table.Insert(4, inp_Element("C3D4", listOf({11, 12, 14, 15}), 4, 0, 0));
        m_elements.Insert("P", table);
        m_elements.Insert("I1", table);

        m_nodeSets.InsertNestedSet("P", "NS", set({4, 5}));
        m_nodeSets.InsertNestedSet("my part", "NS", set({1}));
        m_nodeSets.InsertNestedSet("I1", "NS", set({1, 2}));
        m_nodeSets.InsertNestedSet("I1", "NT", set({8}));
        inpM_SetHandle assembly = set({100});
        assembly.Get().Add(cow_String("I1"), listOf({3}));
        m_nodeSets.InsertSet("A", assembly);

        m_elementSets.InsertNestedSet("P", "ALL", set({1, 2}));
        m_elementSets.InsertNestedSet("I1", "ALL", set({1, 2}));
        inpM_SetHandle elements = set({9});  // the assembly's own: no faces
        elements.Get().Add(cow_String("I1"), listOf({1}));
        m_elementSets.InsertSet("E", elements);
    }

    SurfaceVisitorForTests Visitor() const {
        return SurfaceVisitorForTests(m_nodeSets, m_elementSets, m_elements, m_coords);
    }

  private:
    static inpM_SetHandle set(Ids const& ids) { return CreateSet(listOf(ids), false, false); }
    static void addCube(inp_CoordMap& map, int first, double dx) {
        static constexpr double kCorners[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                                  {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}};
        for (int k = 0; k < 8; ++k)
            map.Insert(first + k, inp_Coord(kCorners[k][0] + dx, kCorners[k][1], kCorners[k][2]));
    }

    inpM_SetMap m_nodeSets;
    inpM_SetMap m_elementSets;
    inpM_InstanceMap<inp_MapInt2Element> m_elements;
    inp_CoordMap m_coords;
};

inpM_PartInstanceSurface const& partSurface(SurfaceVisitorForTests const& visitor,
                                            char const* scope, char const* name) {
    return visitor.ConstGetSurfaceMap().ConstGetPartInstanceSurface(scope, name).ConstGet();
}

inpM_AssemblyInstanceSurface const& assemblySurface(SurfaceVisitorForTests const& visitor,
                                                    char const* name) {
    return visitor.ConstGetSurfaceMap().ConstGetAssemblyInstanceSurface(name);
}

inpM_PartInstanceSurface const& instancePart(inpM_AssemblyInstanceSurface const& surface,
                                             char const* instance) {
    return surface.ConstGetInstance2PartInstanceSurfaceMap().ConstGet(instance).ConstGet();
}

void read(SurfaceVisitorForTests& visitor, inp_Keyword keyword) {
    visitor.VisitSurface(keyword);
}

}  // namespace

// -- inside a part --------------------------------------------------------------------------

TEST(SurfaceVisitorPart, IdsSetsAreasAndFaceIdentifiers) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    // An area written as an integer is an area; a repeated node keeps its
    // first area; a row without a first value names nothing.
    read(visitor, surface({{"name", "N"}, {"type", "NODE"}, {"internal", nullptr}},
                          {"1", "2, 2.5", "3, 2", "NS, 4.0", "4, 9.0", ", 7"}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "N")),
              (Areas{{1, 1.0}, {2, 2.5}, {3, 2.0}, {4, 4.0}, {5, 4.0}}));
    EXPECT_TRUE(partSurface(visitor, "P", "N").IsInternal());

    read(visitor, surface({{"name", "F"}}, {"ALL, S1", "4, s2", "3, S2", "2, S1"}));
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "F")), (Faces{{"S1", {1, 2}}, {"S2", {4, 3}}}));
    EXPECT_FALSE(partSurface(visitor, "P", "F").IsInternal());
    EXPECT_TRUE(visitor.Errors().empty());
}

TEST(SurfaceVisitorPart, WalkFollowsThePartScope) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    inp_Keyword part(inp_kw_Part);
    part.SetParameter("name", inp_Item("P"));
    cow_List<inp_Keyword> deck;
    deck.Append(part);
    deck.Append(surface({{"name", "F"}}, {"ALL, S3"}));
    deck.Append(inp_Keyword(inp_kw_EndPart));
    deck.Append(surface({{"name", "AF"}}, {"I1.ALL, S2"}));
    visitor.VisitList(deck);
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "F")), (Faces{{"S3", {1, 2}}}));
    EXPECT_EQ(facesOf(instancePart(assemblySurface(visitor, "AF"), "I1")), (Faces{{"S2", {1, 2}}}));
}

TEST(SurfaceVisitorPart, QuotedScopeFindsItsSetsWithoutTheQuotes) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("\"my part\"");
    read(visitor, surface({{"name", "N"}, {"type", "NODE"}}, {"NS, 3.0"}));
    EXPECT_EQ(areasOf(partSurface(visitor, "\"my part\"", "N")), (Areas{{1, 3.0}}));
    EXPECT_TRUE(visitor.Errors().empty());
}

TEST(SurfaceVisitorPart, MissingSetsAreOneErrorAndTheMembersFoundStay) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    read(visitor, surface({{"name", "F"}}, {"ALL, S1", "NOPE, S1", "GONE, S2", "4, S3"}));
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "F")), (Faces{{"S1", {1, 2}}, {"S3", {4}}}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("The following sets were not found when generating the surface F:\n"
                         "    NOPE, GONE")}));
}

TEST(SurfaceVisitorPart, CuttingSurfaceSkipsItsFirstRowAtEveryLevel) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    read(visitor, surface({{"name", "A"}}, {"1, S1"}));
    read(visitor, surface({{"name", "B"}}, {"2, S1"}));
    // Row 0 holds the cutting data; read as members it would add element 0
    // under the face "0.0".
    read(visitor,
         surface({{"name", "C"}, {"type", "CUTTINGSURFACE"}}, {"0.5, 0.0, 0.0", "ALL, S2"}));
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "C")), (Faces{{"S2", {1, 2}}}));
    read(visitor,
         surface({{"name", "D"}, {"type", "CUTTINGSURFACE"}, {"combine", "UNION"}}, {"A", "B"}));
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "D")), (Faces{{"S1", {2}}}));

    visitor.AtAssembly();
    read(visitor, surface({{"name", "AA"}}, {"I1.1, S1"}));
    read(visitor, surface({{"name", "AB"}}, {"I1.2, S1"}));
    read(visitor,
         surface({{"name", "AC"}, {"type", "CUTTINGSURFACE"}}, {"0.5, 0.0, 0.0", "I1.ALL, S2"}));
    EXPECT_EQ(facesOf(instancePart(assemblySurface(visitor, "AC"), "I1")), (Faces{{"S2", {1, 2}}}));
    read(visitor,
         surface({{"name", "AD"}, {"type", "CUTTINGSURFACE"}, {"combine", "UNION"}}, {"AA", "AB"}));
    EXPECT_EQ(facesOf(instancePart(assemblySurface(visitor, "AD"), "I1")), (Faces{{"S1", {2}}}));
    EXPECT_TRUE(visitor.Errors().empty());
}

// -- kinds ----------------------------------------------------------------------------------

TEST(SurfaceVisitorKinds, AnalyticalEulerianXfemAndTheKindOfACombination) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    read(visitor, surface({{"name", "R"}, {"type", "CYLINDER"}}, {"START, 0, 0"}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("When the *SURFACE option is used to define an analytical surface,  it "
                         "can only appear within a part (or part instance) definition, even if "
                         "the rigid body is defined at the assembly level.")}));
    EXPECT_FALSE(visitor.ConstGetSurfaceMap().IsMemberAssemblyInstanceSurface("R"));

    visitor.InPart("P");
    read(visitor, surface({{"name", "R"}, {"type", "CYLINDER"}}, {"START, 0, 0"}));
    EXPECT_EQ(partSurface(visitor, "P", "R").Type(), inpM_AnalyticalSurfaceType);
    read(visitor, surface({{"name", "EU"}, {"type", "EULERIANMATERIAL"}}, {"ALL"}));
    read(visitor, surface({{"name", "XF"}, {"type", "XFEM"}}, {"ALL"}));
    EXPECT_FALSE(visitor.ConstGetSurfaceMap().IsMemberPartInstanceSurface("P", "EU"));
    EXPECT_FALSE(visitor.ConstGetSurfaceMap().IsMemberPartInstanceSurface("P", "XF"));

    // Any other TYPE reads as ELEMENT; a combination takes the kind of its
    // first surface, whatever TYPE says.
    read(visitor, surface({{"name", "F"}, {"type", "WHATEVER"}}, {"ALL, S1"}));
    EXPECT_EQ(partSurface(visitor, "P", "F").Type(), inpM_ElementFaceIdSurfaceType);
    read(visitor, surface({{"name", "N"}, {"type", "NODE"}}, {"1"}));
    read(visitor, surface({{"name", "C"}, {"combine", "UNION"}}, {"N, F"}));
    EXPECT_TRUE(visitor.IsNodeSurface());
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "C")), (Areas{{1, 1.0}}));
    read(visitor, surface({{"name", "D"}, {"type", "NODE"}, {"combine", "UNION"}}, {"F"}));
    EXPECT_FALSE(visitor.IsNodeSurface());
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "D")), (Faces{{"S1", {1, 2}}}));
    EXPECT_EQ(visitor.Errors().size(), 1u);
}

// -- combined surfaces -------------------------------------------------------------------------

TEST(SurfaceVisitorCombine, UnionDifferenceAndIntersectionInAPart) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    read(visitor, surface({{"name", "A"}, {"type", "NODE"}}, {"1", "2", "3"}));
    read(visitor, surface({{"name", "B"}, {"type", "NODE"}}, {"2", "3", "4"}));
    read(visitor, surface({{"name", "C"}, {"type", "NODE"}}, {"3", "5"}));
    read(visitor, surface({{"name", "U"}, {"combine", "UNION"}}, {"A, B"}));
    read(visitor, surface({{"name", "D"}, {"combine", "DIFFERENCE"}}, {"A, B"}));
    // The first surface of each row is added; a missing name is dropped, so
    // that the first surface found opens the row.
    read(visitor, surface({{"name", "X"}, {"combine", "INTERSECTION"}, {"internal", nullptr}},
                          {"A, MISSING, B", "C"}));
    // Without TYPE the kind is that of A, the first surface that exists.
    read(visitor, surface({{"name", "Y"}, {"combine", "INTERSECTION"}}, {"GONE, A, B"}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "U")),
              (Areas{{1, 1.0}, {2, 1.0}, {3, 1.0}, {4, 1.0}}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "D")), (Areas{{1, 1.0}}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "X")), (Areas{{2, 1.0}, {3, 1.0}, {5, 1.0}}));
    EXPECT_TRUE(partSurface(visitor, "P", "X").IsInternal());
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "Y")), (Areas{{2, 1.0}, {3, 1.0}}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("The following surfaces were not found when generating the combined "
                         "surface X:\n    MISSING"),
                     at7("The following surfaces were not found when generating the combined "
                         "surface Y:\n    GONE")}));
}

TEST(SurfaceVisitorCombine, AssemblySurfacesAndScopedInstanceSurfaces) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("I1");
    read(visitor, surface({{"name", "C"}, {"type", "NODE"}}, {"3"}));
    visitor.AtAssembly();
    read(visitor, surface({{"name", "AS1"}, {"type", "NODE"}}, {"I1.1", "I1.2", "100"}));
    read(visitor, surface({{"name", "AS2"}, {"type", "NODE"}}, {"I1.2", "100"}));
    read(visitor, surface({{"name", "AX"}, {"combine", "INTERSECTION"}}, {"AS1, AS2"}));
    read(visitor, surface({{"name", "AD"}, {"combine", "DIFFERENCE"}}, {"AS1, I1.C, AS2"}));
    read(visitor, surface({{"name", "AU"}, {"combine", "UNION"}}, {"\"I1\".C, AS2, NOPE"}));

    inpM_AssemblyInstanceSurface const& x = assemblySurface(visitor, "AX");
    EXPECT_EQ(areasOf(x.ConstGetAssemblyNodeAreaSurface()), (Areas{{100, 1.0}}));
    EXPECT_EQ(areasOf(instancePart(x, "I1")), (Areas{{2, 1.0}}));
    inpM_AssemblyInstanceSurface const& d = assemblySurface(visitor, "AD");
    EXPECT_TRUE(d.ConstGetAssemblyNodeAreaSurface().IsEmpty());
    EXPECT_EQ(areasOf(instancePart(d, "I1")), (Areas{{1, 1.0}}));
    inpM_AssemblyInstanceSurface const& u = assemblySurface(visitor, "AU");
    EXPECT_EQ(areasOf(u.ConstGetAssemblyNodeAreaSurface()), (Areas{{100, 1.0}}));
    EXPECT_EQ(areasOf(instancePart(u, "I1")), (Areas{{2, 1.0}, {3, 1.0}}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("The following surfaces were not found when generating the combined "
                         "surface AU:\n    NOPE")}));
}

// -- at the assembly level
// -------------------------------------------------------------------------

TEST(SurfaceVisitorAssembly, NodeSetsScopedSetsAndIds) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.AtAssembly();
    read(visitor, surface({{"name", "AN"}, {"type", "NODE"}, {"internal", nullptr}},
                          {"A, 2.0", "I1.NS", "I1.7, 3.0", "I1.9, 3", "\"I1\".NT", "101"}));
    inpM_AssemblyInstanceSurface const& nodes = assemblySurface(visitor, "AN");
    EXPECT_TRUE(nodes.IsInternal());
    EXPECT_EQ(areasOf(nodes.ConstGetAssemblyNodeAreaSurface()), (Areas{{100, 2.0}, {101, 1.0}}));
    EXPECT_EQ(areasOf(instancePart(nodes, "I1")),
              (Areas{{1, 1.0}, {2, 1.0}, {3, 2.0}, {7, 3.0}, {8, 1.0}, {9, 3.0}}));
    EXPECT_TRUE(visitor.Errors().empty());
}

TEST(SurfaceVisitorAssembly, ElementSetsInvalidLabelsAndMissingSets) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.AtAssembly();
    // The element set E has ids of the assembly itself, which are no faces,
    // and a bare label names nothing of the assembly in an element surface.
    read(visitor, surface({{"name", "AE"}}, {"E, S1", "I1.ALL, S2", "9.*, S1", "I1.4, S3",
                                             "I9.ALL, S1", "I1.*, S4", "17, S1"}));
    inpM_AssemblyInstanceSurface const& faces = assemblySurface(visitor, "AE");
    EXPECT_TRUE(faces.ConstGetAssemblyNodeAreaSurface().IsEmpty());
    EXPECT_EQ(facesOf(instancePart(faces, "I1")),
              (Faces{{"S1", {1}}, {"S2", {1, 2}}, {"S3", {4}}}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("Invalid part instance label \"9\""),
                     at7("The following sets were not found when generating the surface AE:\n"
                         "    I9.ALL, I1.*, 17")}));
}

// -- cropping -------------------------------------------------------------------------------------

TEST(SurfaceVisitorCrop, NodeSurfacesKeepWhatTheBoxHoldsAndNodesWithoutCoordinates) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    read(visitor, surface({{"name", "SRC"}, {"type", "NODE"}}, {"1", "2, 2.0", "3", "7", "20"}));
    // The box lines are no members: read as such, they would add node 0.
    read(visitor, surface({{"name", "CR"}, {"crop", nullptr}}, {"SRC", "0, 0, 0, 1, 1, 0"}));
    EXPECT_TRUE(visitor.IsNodeSurface());
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "CR")),
              (Areas{{1, 1.0}, {2, 2.0}, {3, 1.0}, {20, 1.0}}));
    // Without a box line the box is the origin alone.
    read(visitor, surface({{"name", "CO"}, {"crop", nullptr}}, {"SRC"}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "CO")), (Areas{{1, 1.0}, {20, 1.0}}));
    EXPECT_EQ(areasOf(partSurface(visitor, "P", "SRC")).size(), 5u);  // the source stays whole

    read(visitor, surface({{"name", "CM"}, {"crop", nullptr}}, {"NOPE", "0, 0, 0, 1, 1, 1"}));
    EXPECT_TRUE(partSurface(visitor, "P", "CM").IsEmpty());
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("The following surfaces were not found when generating the cropped "
                         "surface CM:\n    NOPE")}));
}

TEST(SurfaceVisitorCrop, ElementFacesGoWhenNoNodeOfTheFaceIsInTheBox) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("P");
    read(visitor, surface({{"name", "SRC"}}, {"1, S1", "2, S1", "3, S1", "9, S1", "1, S4", "2, S4",
                                              "1, S6", "2, S6", "1, S7", "4, S2", "1, SX"}));
    // The box spans x from 1 to 2: hexahedron 1 touches it with its face 4,
    // hexahedron 2 with its face 6, each on the box's face. Element 3 has no
    // shape, element 9 no record, S7 is beyond a hexahedron's faces and SX
    // no face at all: they stay.
    read(visitor, surface({{"name", "CR"}, {"crop", nullptr}}, {"SRC", "1, 0, 0, 2, 1, 1"}));
    EXPECT_EQ(facesOf(partSurface(visitor, "P", "CR")), (Faces{{"S1", {1, 2, 3, 9}},
                                                               {"S2", {4}},
                                                               {"S4", {1}},
                                                               {"S6", {2}},
                                                               {"S7", {1}},
                                                               {"SX", {1}}}));
    EXPECT_TRUE(visitor.Errors().empty());
}

TEST(SurfaceVisitorCrop, AssemblySurfacesAreCroppedInGlobalPosition) {
    Model const model;
    SurfaceVisitorForTests visitor = model.Visitor();
    visitor.InPart("I1");
    read(visitor, surface({{"name", "F"}}, {"1, S1", "2, S1"}));
    visitor.AtAssembly();
    read(visitor, surface({{"name", "AS"}, {"type", "NODE"}}, {"I1.1", "I1.2", "100", "101"}));
    // Node 1 of I1 stands at (10, 0, 0), node 2 at (11, 0, 0). The third
    // line cannot orient the box, which is used axis-aligned.
    read(visitor, surface({{"name", "AC"}, {"crop", nullptr}, {"type", "NODE"}},
                          {"AS", "9.5, -1, -1, 10.5, 1, 1", "0, 0, 0, 1, 0, 0"}));
    inpM_AssemblyInstanceSurface const& nodes = assemblySurface(visitor, "AC");
    EXPECT_EQ(areasOf(instancePart(nodes, "I1")), (Areas{{1, 1.0}}));
    EXPECT_TRUE(nodes.ConstGetAssemblyNodeAreaSurface().IsEmpty());

    // Hexahedron 1 of I1 spans x from 10 to 11, hexahedron 2 from 12 to 13.
    read(visitor,
         surface({{"name", "IC"}, {"crop", nullptr}}, {"I1.F", "10.5, -1, -1, 11.5, 2, 2"}));
    EXPECT_EQ(facesOf(instancePart(assemblySurface(visitor, "IC"), "I1")), (Faces{{"S1", {1}}}));
    EXPECT_EQ(visitor.Warnings(),
              (Texts{at7("Neither of the points a and b defined under cropped surface AC are "
                         "allowed to be defined at the origin. The orientation of the surface "
                         "will be ignored.")}));

    read(visitor, surface({{"name", "ZC"}, {"crop", nullptr}}, {"I1.NOPE", "0, 0, 0, 1, 1, 1"}));
    EXPECT_EQ(visitor.Errors(),
              (Texts{at7("The following surfaces were not found when generating the cropped "
                         "surface ZC:\n    I1.NOPE")}));
}

// -- GetAreaOrFaceId ----------------------------------------------------------------------------

TEST(SurfaceVisitorSecondValue, AreasAndFaceIdentifiers) {
    inp_DataArray data;
    for (char const* line : {"7, 2.5", "7, abc", "7, s1", "7, S1"}) data.Append(line);
    double area = 0.0;
    cow_String faceId;
    GetAreaOrFaceId(true, area, faceId, data, 0, 1);
    EXPECT_EQ(area, 2.5);
    GetAreaOrFaceId(true, area, faceId, data, 1, 1);
    EXPECT_EQ(area, 1.0);
    GetAreaOrFaceId(false, area, faceId, data, 2, 1);
    cow_String const first = faceId;
    GetAreaOrFaceId(false, area, faceId, data, 3, 1);
    EXPECT_EQ(faceId, "S1");
    EXPECT_TRUE(faceId.SharesWith(first));  // rows of one face share one string
}
