// Keyword data of moved instances brought into the global frame: points
// move, directions and tensors turn, keywords that lean on the global axes
// get an orientation of their own, and nothing outside a moved instance
// changes.

#include "transform/inp_TransformationVisitor.h"

#include <gtest/gtest.h>

#include <numbers>
#include <string>

#include "tables/inp_DistributionTableDB.h"
#include "tests/mesh/InlineDeck.h"

namespace {

// MOVED is turned a quarter about z and shifted by 10 along x; TILTED is
// turned a quarter about x; STILL stays.
inpM_InstanceMap<gsl_Matrix> transforms() {
    inpM_InstanceMap<gsl_Matrix> map;
    gsl_Matrix moved = gsl_Matrix::AxisRotation({0, 0, 0}, {0, 0, 1}, std::numbers::pi / 2);
    moved.SetTranslation(10, 0, 0);
    map.Insert(cow_String("MOVED"), moved);
    map.Insert(cow_String("TILTED"),
               gsl_Matrix::AxisRotation({0, 0, 0}, {1, 0, 0}, std::numbers::pi / 2));
    map.Insert(cow_String("STILL"), gsl_Matrix());
    return map;
}

inp_Keyword instance(char const* name, std::string const& body) {
    inp_Keyword keyword = InlineDeck(std::string("*INSTANCE, NAME=") + name + ", PART=P\n")[0];
    keyword.SetSuboptions(InlineDeck(body + "*END INSTANCE\n"));
    return keyword;
}

// A part and an assembly whose instances all hold `body`.
cow_List<inp_Keyword> modelWith(std::string const& body) {
    inp_Keyword part = InlineDeck("*PART, NAME=P\n")[0];
    part.SetSuboptions(InlineDeck(body + "*END PART\n"));
    inp_Keyword assembly = InlineDeck("*ASSEMBLY, NAME=A\n")[0];
    cow_List<inp_Keyword> instances;
    for (char const* name : {"MOVED", "TILTED", "STILL"}) instances.Append(instance(name, body));
    instances.Append(InlineDeck("*END ASSEMBLY\n")[0]);
    assembly.SetSuboptions(instances);
    cow_List<inp_Keyword> model;
    model.Append(part);
    model.Append(assembly);
    return model;
}

class Transformation : public ::testing::Test {
  protected:
    void walk(cow_List<inp_Keyword>& model) {
        inp_TransformationVisitor visitor(transforms(), cow_List<int>(), nodeSets, inpM_IdMap(),
                                          false, inp_CoordMap(), elements, elementSets,
                                          inp_ModelParameters());
        visitor.VisitList(model);
        errors = std::string(visitor.Errors().View());
    }
    // Keyword `index` of the instance (0 MOVED, 1 TILTED, 2 STILL), or of
    // the part with -1.
    static inp_Keyword const& in(cow_List<inp_Keyword> const& model, int holder, int index) {
        if (holder < 0) return model.ConstGet(0).Suboptions().ConstGet(index);
        return model.ConstGet(1).Suboptions().ConstGet(holder).Suboptions().ConstGet(index);
    }
    static std::string row(inp_Keyword const& keyword, int row) {
        std::string text;
        for (int column = 0; column < keyword.Data().Cols(row); ++column)
            text += (column ? "," : "") +
                    std::string(keyword.Data().AsStringVerbatim(row, column).View());
        return text;
    }

    inpM_SetMap nodeSets;
    inpM_SetMap elementSets;
    inpM_InstanceMap<inp_MapInt2Element> elements;
    std::string errors;
};

}  // namespace

// Points move with the instance, directions turn; a composite section, the
// part itself and an instance that stays are left as written.
TEST_F(Transformation, PointsMoveAndDirectionsTurnInMovedInstancesOnly) {
    cow_List<inp_Keyword> model = modelWith(
        "*SOLID SECTION, ELSET=E, MATERIAL=M\n1., 1., 0., 0.\n"
        "*SOLID SECTION, ELSET=C, MATERIAL=M, COMPOSITE\n1., 1., 0., 0.\n"
        "*GAP, ELSET=G\n0.5, 1., 0., 0.\n");
    cow_List<inp_Keyword> const before = model;
    walk(model);
    EXPECT_EQ(row(in(model, 0, 0), 0), "1.,10,1,0");
    EXPECT_EQ(row(in(model, 0, 1), 0), "1.,1.,0.,0.");
    EXPECT_EQ(row(in(model, 0, 2), 0), "0.5,0,1,0");
    EXPECT_EQ(row(in(model, 2, 0), 0), "1.,1.,0.,0.");   // STILL
    EXPECT_EQ(row(in(model, -1, 0), 0), "1.,1.,0.,0.");  // the part
    // A copy made before the walk kept its data.
    EXPECT_EQ(row(in(before, 0, 0), 0), "1.,1.,0.,0.");
}

// A rectangular system turns as vectors, a cylindrical *TRANSFORM moves as
// points; a line after the first, or a first line that names a
// distribution, stays.
TEST_F(Transformation, LocalSystemsTurnWithTheInstance) {
    cow_List<inp_Keyword> model = modelWith(
        "*ORIENTATION, NAME=OR\n1., 0., 0., 0., 1., 0.\n3, 10.\n"
        "*ORIENTATION, NAME=BYTABLE\nDIST\n"
        "*TRANSFORM, NSET=N, TYPE=C\n0., 0., 0., 0., 0., 1.\n"
        "*TRANSFORM, NSET=N\n1., 0., 0., 0., 1., 0.\n");
    walk(model);
    inp_Keyword const& orientation = in(model, 0, 0);
    EXPECT_EQ(row(orientation, 0), "0,1,0,-1,0,0");
    EXPECT_EQ(row(orientation, 1), "3,10.");
    EXPECT_EQ(row(in(model, 0, 1), 0), "DIST");
    EXPECT_EQ(row(in(model, 0, 2), 0), "10,0,0,10,0,1");
    EXPECT_EQ(row(in(model, 0, 3), 0), "0,1,0,-1,0,0");
}

// Keywords that lean on the global axes get an *ORIENTATION of the global
// axes turned, named after them, behind the children of their holder; two
// of one name get the same one twice. With ORIENTATION given, nothing.
TEST_F(Transformation, KeywordsOnTheGlobalAxesGetAnOrientationOfTheirOwn) {
    cow_List<inp_Keyword> model = modelWith(
        "*KINEMATIC COUPLING, REF NODE=5\n1, 1\n"
        "*KINEMATIC COUPLING, REF NODE=5\n2, 2\n"
        "*KINEMATIC COUPLING, REF NODE=6, ORIENTATION=MINE\n3, 3\n");
    walk(model);
    inp_Keyword const& moved = model.ConstGet(1).Suboptions().ConstGet(0);
    ASSERT_EQ(moved.Suboptions().Length(), 4 + 2);  // three, *END INSTANCE, two added
    EXPECT_EQ(in(model, 0, 0).GetParameterAsString("orientation", "").View(),
              "Kinematic-Coupling_5");
    EXPECT_EQ(in(model, 0, 2).GetParameterAsString("orientation", "").View(), "MINE");
    for (int added : {4, 5}) {
        inp_Keyword const& orientation = in(model, 0, added);
        EXPECT_TRUE(orientation.Is(inp_kw_Orientation));
        EXPECT_EQ(orientation.GetParameterAsString("name", "").View(), "Kinematic-Coupling_5");
        EXPECT_EQ(row(orientation, 0), "0,1,0,-1,0,0");
    }
    EXPECT_FALSE(in(model, 2, 0).HasParameter("orientation"));  // STILL
}

// Only springs along a fixed direction need one: SPRING1 does, SPRINGA not.
TEST_F(Transformation, SpringsAlongAFixedDirectionOnly) {
    inp_MapInt2Element table;
    table.Insert(1, inp_Element(cow_String("SPRING1"), cow_List<int>{1}, 1, 0, 0));
    table.Insert(2, inp_Element(cow_String("SPRINGA"), cow_List<int>{1, 2}, 2, 0, 0));
    elements.Insert(cow_String("MOVED"), table);
    elementSets.InsertNestedSet(cow_String("MOVED"), cow_String("S1"),
                                CreateSet(cow_List<int>{1}, false, false));
    elementSets.InsertNestedSet(cow_String("MOVED"), cow_String("SA"),
                                CreateSet(cow_List<int>{2}, false, false));
    cow_List<inp_Keyword> model =
        modelWith("*SPRING, ELSET=S1\n3\n100.\n*SPRING, ELSET=SA\n\n100.\n");
    walk(model);
    EXPECT_EQ(in(model, 0, 0).GetParameterAsString("orientation", "").View(), "spring_S1");
    EXPECT_FALSE(in(model, 0, 1).HasParameter("orientation"));
}

// The tensor turns as R I R^T; with ORIENTATION it is left alone.
TEST_F(Transformation, RotaryInertiaTurnsAsATensor) {
    cow_List<inp_Keyword> model = modelWith(
        "*ROTARY INERTIA, ELSET=R\n1., 2., 3., 0., 0., 0.\n"
        "*ROTARY INERTIA, ELSET=R, ORIENTATION=O\n1., 2., 3.\n");
    walk(model);
    inp_DataArray const& turned = in(model, 0, 0).Data();
    double const expected[6] = {2, 1, 3, 0, 0, 0};
    for (int k = 0; k < 6; ++k) EXPECT_NEAR(turned.AsDouble(0, k), expected[k], 1e-12) << k;
    EXPECT_EQ(row(in(model, 0, 1), 0), "1.,2.,3.");
}

// A beam's first direction turns; without a line for it, the default
// (0, 0, -1) turned becomes one. A *BEAM SECTION needs SECTION.
TEST_F(Transformation, BeamDirectionsTurnAndAMissingOneIsWritten) {
    cow_List<inp_Keyword> model = modelWith(
        "*BEAM GENERAL SECTION, ELSET=B, SECTION=RECT\n0.1, 0.2\n"
        "*BEAM GENERAL SECTION, ELSET=C, SECTION=RECT\n0.1, 0.2\n1., 0., 0.\n"
        "*BEAM SECTION, ELSET=D\n0.1\n");
    walk(model);
    inp_Keyword const& tilted = in(model, 1, 0);  // a quarter about x
    ASSERT_EQ(tilted.Data().Rows(), 2);
    EXPECT_EQ(row(tilted, 1), "0,1,0");
    EXPECT_EQ(row(in(model, 0, 1), 1), "0,1,0");  // MOVED, about z
    EXPECT_NE(errors.find("The SECTION parameter is required for *BEAM SECTION. "),
              std::string::npos);
}

TEST(TransformationTolerance, NoiseBesideTheLargestComponentBecomesZero) {
    gsl_Vector const cleaned =
        inp_TransformationVisitor::ZeroSmallerThanTolerance(gsl_Vector(1.0, -1.2e-17, 0.5));
    EXPECT_EQ(cleaned.Y(), 0.0);
    EXPECT_EQ(cleaned.Z(), 0.5);
}

// The outline of a segments surface moves in its plane; the local system
// of a cylinder is written from the instance's position; an unknown shape
// leaves the keyword as it was.
TEST_F(Transformation, AnalyticalSurfacesMoveWithTheInstance) {
    cow_List<inp_Keyword> model = modelWith(
        "*SURFACE, NAME=OUTLINE, TYPE=SEGMENTS\nSTART, 1., 0.\nLINE, 1., 1.\nCIRCL, 2., 0., 1., "
        "0.\n"
        "*SURFACE, NAME=TUBE, TYPE=CYLINDER\nSTART, 1., 0.\nLINE, 1., 1.\n"
        "*SURFACE, NAME=ODD, TYPE=SEGMENTS\nSTART, 0., 0.\nARC, 1., 1.\n");
    walk(model);
    inp_Keyword const& outline = in(model, 0, 0);  // MOVED: a quarter about z, 10 along x
    ASSERT_EQ(outline.Data().Rows(), 3);
    EXPECT_EQ(row(outline, 0), "START,10,1");
    EXPECT_EQ(row(outline, 1), "LINE,9,1");
    EXPECT_EQ(row(outline, 2), "CIRCL,10,2,10,1");
    inp_Keyword const& tube = in(model, 0, 1);
    ASSERT_EQ(tube.Data().Rows(), 4);
    EXPECT_EQ(row(tube, 0), "10,0,0,10,1,0");  // a, and b along the turned x axis
    EXPECT_EQ(row(tube, 1), "10,0,-1");        // c, against the turned z axis
    EXPECT_EQ(row(tube, 2), "START,1.,0.");
    EXPECT_EQ(row(in(model, 0, 2), 1), "ARC,1.,1.");
    EXPECT_NE(errors.find("The unknown shape in question is: ARC"), std::string::npos) << errors;
}

// The nodes of an equation get one *TRANSFORM, under a set of their own; a
// second equation of the same nodes adds nothing. The walk asks only for a
// scope here: an unmoved part gets the global axes as they are.
TEST_F(Transformation, EquationNodesGetATransformOnce) {
    cow_List<inp_Keyword> model = modelWith(
        "*EQUATION\n2\n1, 1, 1., 2, 1, -1.\n"
        "*EQUATION\n2\n2, 2, 1., 1, 2, -1.\n");
    walk(model);
    inp_Keyword const& moved = model.ConstGet(1).Suboptions().ConstGet(0);
    ASSERT_EQ(moved.Suboptions().Length(), 2 + 1 + 1);  // two, *END INSTANCE, one added
    inp_Keyword const& transform = moved.Suboptions().ConstGet(3);
    EXPECT_TRUE(transform.Is(inp_kw_Transform));
    cow_String const set = transform.GetParameterAsString("nset", "");
    EXPECT_EQ(set.View().substr(0, 15), "NONTRANSFORMED-");
    EXPECT_EQ(row(transform, 0), "0,1,0,-1,0,0");
    ASSERT_TRUE(nodeSets.HasNestedSet(cow_String("MOVED"), set));
    EXPECT_EQ(nodeSets.ConstGetNestedSet(cow_String("MOVED"), set)->ConstGetIdList().Length(), 2);
    inp_Keyword const& part = model.ConstGet(0);
    ASSERT_EQ(part.Suboptions().Length(), 4);
    EXPECT_EQ(row(part.Suboptions().ConstGet(3), 0), "1,0,0,0,1,0");
}

// Local node 1 of MOVED is global 101 at local (1, 0, 0), local 2 global 102
// at local (0, 1, 0); the map holds them where the instance put them.
class TransformationByNodes : public Transformation {
  protected:
    void walkWithNodes(cow_List<inp_Keyword>& model) {
        inpM_IdMap local;
        local.Insert(1, 101);
        local.Insert(2, 102);
        inpM_IdMap ids;
        ids.Insert(cow_String("MOVED"), local);
        inp_CoordMap placed;
        placed.Insert(101, inp_Coord(10., 1., 0.));
        placed.Insert(102, inp_Coord(9., 0., 0.));
        inp_CoordMap nodes;
        nodes.Insert(cow_String("MOVED"), placed);
        inp_TransformationVisitor visitor(transforms(), cow_List<int>(), nodeSets, ids, false,
                                          nodes, elements, elementSets, inp_ModelParameters());
        visitor.VisitList(model);
        errors = std::string(visitor.Errors().View());
    }
};

// A system by nodes becomes one by coordinates, turned; unknown nodes are
// reported and the keyword stays as written.
TEST_F(TransformationByNodes, AnOrientationByNodesBecomesOneByCoordinates) {
    cow_List<inp_Keyword> model = modelWith(
        "*ORIENTATION, NAME=BYNODES, DEFINITION=NODES\n1, 2\n3, 5.\n"
        "*ORIENTATION, NAME=LOST, DEFINITION=NODES\n1, 7\n");
    walkWithNodes(model);
    inp_Keyword const& orientation = in(model, 0, 0);
    EXPECT_EQ(orientation.GetParameterAsString("definition", "").View(), "COORDINATES");
    EXPECT_EQ(row(orientation, 0), "0,1,0,-1,0,0");
    EXPECT_EQ(row(orientation, 1), "3,5.");
    EXPECT_EQ(row(in(model, 0, 1), 0), "1,7");
    EXPECT_NE(errors.find("Unknown local node number 1 or 7 is encountered"), std::string::npos)
        << errors;
}

// A displacement given in a cylindrical system at a node becomes the
// Cartesian one, turned with the instance; SYSTEM goes.
TEST_F(TransformationByNodes, ImperfectionsTurnWithTheirNodes) {
    cow_List<inp_Keyword> model = modelWith(
        "*IMPERFECTION, SYSTEM=C\n1, 0.5, 90., 0.\n"
        "*IMPERFECTION\n2, 0.1, 0., 0.\n"
        "*IMPERFECTION\n9, 0.1, 0., 0.\n"
        "*IMPERFECTION, FILE=OLD, STEP=1\n1, 0.1\n");
    walkWithNodes(model);
    inp_Keyword const& cylindrical = in(model, 0, 0);
    EXPECT_FALSE(cylindrical.HasParameter("system"));
    // (1, 0) moved to radius 1.5 at 90 degrees is (-1, 1.5); a quarter turn
    // about z makes it (-1.5, -1).
    EXPECT_NEAR(cylindrical.Data().AsDouble(0, 1), -1.5, 1e-12);
    EXPECT_NEAR(cylindrical.Data().AsDouble(0, 2), -1.0, 1e-12);
    EXPECT_EQ(row(in(model, 0, 1), 0), "2,0,0.1,0");
    EXPECT_EQ(row(in(model, 0, 2), 0), "9,0.1,0.,0.");
    EXPECT_EQ(row(in(model, 0, 3), 0), "1,0.1");  // read from a file: left alone
    EXPECT_NE(errors.find("Unknown local node number 9 is encountered during the processing of "
                          "*IMPERFECTION. "),
              std::string::npos)
        << errors;
}

// A distribution of orientation points turns its two triples a line, as
// vectors for a rectangular system; one of another table stays.
TEST_F(Transformation, DistributionsOfOrientationPointsTurn) {
    inp_DistributionTableDB& tables = inp_DistributionTableDB::Instance();
    tables.ClearDeckTables();
    tables.addDistTables(cow_String("AXES"), 2, 6, {inp_distCOORD3D, inp_distCOORD3D});
    tables.addDistTables(cow_String("THICK"), 1, 1, {inp_distLENGTH});
    inp_ModelParameters parameters;
    parameters.SetCsysRectangular(cow_String("DIRS"), true);
    cow_List<inp_Keyword> model = modelWith(
        "*DISTRIBUTION, NAME=DIRS, TABLE=AXES\n, 1., 0., 0., 0., 1., 0.\n7, 1., 0., 0., 0., 1., "
        "0.\n"
        "*DISTRIBUTION, NAME=T, TABLE=THICK\n, 0.5\n");
    inp_TransformationVisitor visitor(transforms(), cow_List<int>(), nodeSets, inpM_IdMap(), false,
                                      inp_CoordMap(), elements, elementSets, parameters);
    visitor.VisitList(model);
    tables.ClearDeckTables();
    EXPECT_EQ(row(in(model, 0, 0), 0), ",0,1,0,-1,0,0");
    EXPECT_EQ(row(in(model, 0, 0), 1), "7,0,1,0,-1,0,0");
    EXPECT_EQ(row(in(model, 0, 1), 0), ",0.5");
}

// Shape variations at a node or at each node of a set turn with the
// instance, a line per node; an unknown set ends the keyword as written.
TEST_F(TransformationByNodes, ShapeVariationsTurnAtEachNode) {
    nodeSets.InsertNestedSet(cow_String("MOVED"), cow_String("BOTH"),
                             CreateSet(cow_List<int>{1, 2}, false, false));
    cow_List<inp_Keyword> model = modelWith(
        "*PARAMETER SHAPE VARIATION, PARAMETER=P\nBOTH, 1., 0., 0., 0., 0., 1.\n"
        "*PARAMETER SHAPE VARIATION, PARAMETER=Q\nNOSET, 1., 0., 0.\n");
    walkWithNodes(model);
    inp_Keyword const& both = in(model, 0, 0);
    ASSERT_EQ(both.Data().Rows(), 2);
    EXPECT_EQ(row(both, 0), "1,0,1,0,0,0,1");
    EXPECT_EQ(row(both, 1), "2,0,1,0,0,0,1");
    EXPECT_EQ(row(in(model, 0, 1), 0), "NOSET,1.,0.,0.");
    EXPECT_NE(errors.find("Unknown node set NOSET is detected"), std::string::npos) << errors;
}

// Each kind of geometry in MOVED, value by value; the same keywords in the
// unmoved STILL are left as written, but for the surfaces, which are always
// rewritten.
TEST_F(Transformation, EachKindOfGeometryInAMovedInstance) {
    struct Case {
        char const* deck;
        int row;
        char const* moved;
    };
    Case const cases[] = {
        {"*GASKET SECTION, ELSET=G, MATERIAL=M\n0.1, 0., 0., 0., 1., 0., 0.\n", 0,
         "0.1,0.,0.,0.,0,1,0"},
        {"*ITS, ELSET=I\n0., 0., 1., 0., 0., 0., 1., 0.\n", 0, "0.,0.,0,1,0,-1,0,0"},
        {"*PRE-TENSION SECTION, ELEMENT=5, NODE=1\n1., 0., 0.\n", 0, "0,1,0"},
        {"*IMPEDANCE PROPERTY, NAME=Z, TYPE=ELLIPTICAL\n0., 0., 1., 0., 0., 1., 0., 0.\n", 0,
         "0.,0.,10,1,0,0,1,0"},
        {"*WAVE, TYPE=AIRY\n1., 1., 0., 1., 0.\n", 0, "1.,1.,0.,0,1,0"},
        {"*WIND\n1., 1., 1., 1., 1., 0., 0.2\n", 0, "1.,1.,1.,1.,0,1,0.2"},
        {"*AQUA\n0., 10.\n1., 0., 0., 0., 1., 0., 0.\n", 1, "0,1,0,0.,10,1,0"},
        {"*NORMAL\n1, 2, 1., 0., 0.\n", 0, "1,2,0,1,0"},
        {"*BEAM SECTION, ELSET=B, SECTION=ELBOW, MATERIAL=M\n0.1, 0.01\n1., 0., 0.\n", 1, "10,1,0"},
        {"*SURFACE, NAME=CUT, TYPE=CUTTINGSURFACE\n1., 0., 0., 1., 0., 0.\n", 0, "10,1,0,0,1,0"},
        {"*SURFACE, NAME=REV, TYPE=REVOLUTION\nSTART, 1., 0.\n", 0, "10,0,0,9,0,0"},
    };
    for (Case const& kind : cases) {
        SCOPED_TRACE(kind.deck);
        cow_List<inp_Keyword> model = modelWith(kind.deck);
        walk(model);
        EXPECT_EQ(row(in(model, 0, 0), kind.row), kind.moved);
        std::string const written = row(in(model, -1, 0), kind.row);
        bool const surface = in(model, 2, 0).Is(inp_kw_Surface);
        if (!surface) {
            EXPECT_EQ(row(in(model, 2, 0), kind.row), written);
        }
    }
}

// Each keyword on the global axes gets its orientation, named after the
// parameter that tells it apart.
TEST_F(Transformation, EachKeywordOnTheGlobalAxesGetsItsOrientation) {
    inp_MapInt2Element table;
    table.Insert(1, inp_Element(cow_String("DASHPOT1"), cow_List<int>{1}, 1, 0, 0));
    elements.Insert(cow_String("MOVED"), table);
    elementSets.InsertNestedSet(cow_String("MOVED"), cow_String("D"),
                                CreateSet(cow_List<int>{1}, false, false));
    cow_List<inp_Keyword> model = modelWith(
        "*COUPLING, CONSTRAINT NAME=C1, REF NODE=1, SURFACE=S\n1\n"
        "*ADJUST, NODE SET=N\n1.\n"
        "*FASTENER, INTERACTION NAME=F, PROPERTY=P, REFERENCE NODE SET=R\n1\n"
        "*JOINT, ELSET=J\n1\n"
        "*DASHPOT, ELSET=D\n3\n1.\n");
    walk(model);
    char const* const names[] = {"Coupling_C1", "Adjust_N", "Fastener_R", "jointc_J", "dashpot_D"};
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(in(model, 0, k).GetParameterAsString("orientation", "").View(), names[k]) << k;
}

// Text where a number belongs is reported, and the keyword stays as written.
TEST_F(Transformation, TextWhereANumberBelongsLeavesTheKeyword) {
    cow_List<inp_Keyword> model = modelWith(
        "*GAP, ELSET=G\n0.5, ONE, 0., 0.\n"
        "*ORIENTATION, NAME=OR\n1., 0., X, 0., 1., 0.\n"
        "*ROTARY INERTIA, ELSET=R\n1., 2., THREE\n");
    walk(model);
    EXPECT_EQ(row(in(model, 0, 0), 0), "0.5,ONE,0.,0.");
    EXPECT_EQ(row(in(model, 0, 1), 0), "1.,0.,X,0.,1.,0.");
    EXPECT_EQ(row(in(model, 0, 2), 0), "1.,2.,THREE");
    for (char const* item : {"ONE", "X", "THREE"})
        EXPECT_NE(
            errors.find(std::string("The data item ") + item + " stands where a number belongs"),
            std::string::npos)
            << errors;
}
