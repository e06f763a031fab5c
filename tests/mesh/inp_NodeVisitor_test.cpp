#include "mesh/inp_NodeVisitor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "deck/inp_NodeDataArrayImpl.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;
using Parameters = std::initializer_list<std::pair<char const*, char const*>>;

// The scope and the instance transform are set by hand, as the
// level-specific subclasses do.
class NodeReader : public inp_NodeVisitor {
  public:
    explicit NodeReader(bool readCoordinates = true) : inp_NodeVisitor(readCoordinates) {}
    NodeReader(inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elsets)
        : inp_NodeVisitor(elements, elsets, true) {}

    void InPart(char const* part) {
        m_partName = part;
        if (!m_coordMap.IsMember(part)) m_coordMap.Insert(part, inp_CoordMap());
    }
    void InMovedInstance(char const* instance, gsl_Matrix const& transform) {
        m_instanceName = instance;
        inp_CoordMap moved;
        moved.Transform(transform);
        m_coordMap.Insert(instance, moved);
        m_instanceTransform = transform;
    }
    void AtAssembly() { m_partName = m_instanceName = cow_String(); }
    void InScopeWithoutMap(char const* part) { m_partName = part; }
    void Run(inp_Keyword k) { Visit(k); }
    inp_CoordMap const& Map(char const* scope) { return ConstGetCoordMap().ConstGet(scope); }
    Ids Set(char const* scope, char const* name) const {
        inpM_SetMap const& sets = ConstGetSetMap();
        cow_List<int> const l = *scope ? sets.ConstGetNestedSet(scope, name)->ConstGetIdList()
                                       : sets.ConstGetSet(name)->ConstGetIdList();
        return Ids(l.begin(), l.end());
    }
    Texts Errors() const {
        Texts result;
        for (atr_String const& error : GetErrorList()) result.emplace_back(error.View());
        return result;
    }
};

inp_Keyword keyword(inp_KeywordEnm kind, std::initializer_list<char const*> lines,
                    Parameters parameters = {}) {
    inp_Keyword result(kind, cow_String("deck.inp"));
    result.SetLineNumber(4);
    for (auto const& [name, value] : parameters)
        result.SetParameter(name, value ? inp_Item(value) : inp_Item());
    for (char const* line : lines) result.Data().Append(line);
    return result;
}

// *NODE data in the compact form that expansion leaves.
inp_Keyword node(std::initializer_list<char const*> lines, Parameters parameters = {}) {
    inp_Keyword result = keyword(inp_kw_Node, lines, parameters);
    auto* compact = new inp_NodeDataArrayImpl();
    compact->SetRaw(result.Data());
    result.SetData(inp_DataArray(compact));
    return result;
}

std::string at4(char const* keywordName, std::string const& text) {
    return std::string("in keyword *") + keywordName + ", file \"deck.inp\", line 4: " + text;
}

void expectAt(inp_Coord const& c, double x, double y, double z) {
    EXPECT_NEAR(c.x, x, 1e-12);
    EXPECT_NEAR(c.y, y, 1e-12);
    EXPECT_NEAR(c.z, z, 1e-12);
}

}  // namespace

TEST(NodeVisitorNode, NodesNormalsSystemsAndTheLastLabelWins) {
    NodeReader reader;
    reader.Run(node({"1, 1.5, -2.25, 3e2", "2, 0, 0, 0, 0, 0, 2", "1, 4, 5, 6"}));
    reader.Run(node({"3, 1, 90, 0", "4, 2, 180, 5"}, {{"system", "C"}}));
    reader.Run(node({"5, 2, 90, 0", "6, 2, 0, 90"}, {{"system", "S"}}));
    inp_CoordMap const& map = reader.ConstGetCoordMap();
    expectAt(map.ConstGet(1), 4, 5, 6);
    EXPECT_EQ(map.ConstGet(2).nz, 1.0);  // (0, 0, 2) is stored as a unit normal
    // Without a local system the rounding noise of cos(90) stays.
    EXPECT_NE(map.ConstGet(3).x, 0.0);
    expectAt(map.ConstGet(3), 0, 1, 0);
    expectAt(map.ConstGet(4), -2, 0, 5);
    expectAt(map.ConstGet(5), 0, 2, 0);
    expectAt(map.ConstGet(6), 0, 0, 2);
    EXPECT_EQ(map.Count(), 6);

    // Local x along global y: (6.1e-17, 1, 0) lies at (-1, 6.1e-17, 0) and is cleaned.
    reader.Run(keyword(inp_kw_System, {"0, 0, 0, 0, 1, 0"}));
    reader.Run(node({"7, 1, 90, 0"}, {{"system", "C"}}));
    EXPECT_EQ(map.ConstGet(7).y, 0.0);
    expectAt(map.ConstGet(7), -1, 0, 0);
    EXPECT_TRUE(reader.Errors().empty());
}

TEST(NodeVisitorNode, NsetMergesAndLabelsOnlyModeKeepsSets) {
    NodeReader reader(false);
    reader.InPart("P");
    reader.Run(node({"3, 1, 1, 1", "1, 2, 2, 2"}, {{"nset", "A"}}));
    reader.Run(node({"2, 5, 5, 5"}, {{"nset", "A"}}));
    expectAt(reader.Map("P").ConstGet(3), 0, 0, 0);
    EXPECT_EQ(reader.Set("P", "A"), (Ids{1, 2, 3}));
    reader.AtAssembly();
    reader.Run(node({"7, 1, 1, 1"}, {{"nset", "B"}}));
    EXPECT_EQ(reader.Set("", "B"), (Ids{7}));
    EXPECT_TRUE(reader.ConstGetCoordMap().IsMember(7));
}

TEST(NodeVisitorNode, FaultyRowsAreReportedAndTheRestIsBuilt) {
    NodeReader reader;
    reader.InScopeWithoutMap("Q");
    reader.Run(node({"1, 0, 0, 0", "2, 0, 0, 0"}));
    std::string const unknown =
        at4("NODE",
            "Unknown instance or part name Q is encountered while processing the *NODE keyword.");
    EXPECT_EQ(reader.Errors(), (Texts{unknown, unknown}));

    NodeReader raw;  // raw text: nobody has checked the rows yet
    raw.InPart("P");
    raw.Run(keyword(inp_kw_Node,
                    {"1, 1, 2, 3", "abc, 1, 1, 1", "1234567890, 1, 1, 1", "-123456789, 1, 1, 1",
                     "-4, 1, 1, 1", "", "5, 1.5d1, x, 0", "6, 1, 1, 1"},
                    {{"nset", "ALL"}}));
    raw.Run(keyword(inp_kw_Node, {"", "x, 1"}, {{"nset", "NONE"}}));
    expectAt(raw.Map("P").ConstGet(1), 1, 2, 3);
    EXPECT_EQ(raw.Map("P").Count(), 2);
    EXPECT_EQ(raw.Set("P", "ALL"), (Ids{1, 6}));
    EXPECT_FALSE(raw.ConstGetSetMap().HasNestedSet("P", "NONE"));
    EXPECT_EQ(raw.Errors(),
              (Texts{at4("NODE", "Node label is not an integer: ABC"),
                     at4("NODE", "Node label is not an integer: 1234567890"),
                     at4("NODE", "Node label exceeds 9 digits: -123456789"),
                     at4("NODE", "Node label is not a positive integer: -4"),
                     at4("NODE",
                         "Invalid nodal coordinate values were specified for the following "
                         "nodes: 5"),
                     at4("NODE", "Node label is not an integer: X")}));
}

TEST(NodeVisitorNode, MovedInstanceStoresLocallyAndReadsGlobally) {
    gsl_Matrix moved = gsl_Matrix::AxisRotation({}, gsl_Vector(0, 0, 1), std::acos(-1.0) / 2);
    moved.SetTranslation(10.0, 0.0, 0.0);
    NodeReader reader;
    reader.InMovedInstance("I", moved);
    reader.Run(node({"1, 1, 0, 0"}));
    inp_Coord const global = reader.Map("I").ConstGet(1);
    expectAt(global, 10, 1, 0);
    expectAt(reader.UndoInstanceTransform(global), 1, 0, 0);
    inp_Coord const withNormal(1, 0, 0, 1, 0, 0);
    inp_Coord const applied = reader.ApplyInstanceTransform(withNormal);
    expectAt(applied, 10, 1, 0);
    EXPECT_EQ(applied.nx, 1.0);  // the normal is not touched

    inp_Keyword data = keyword(inp_kw_Ncopy, {"1, 2", "7, 9, x, 4"});
    EXPECT_EQ(inp_NodeVisitor::ReadPointFromKeywordData(data, 0, 0), gsl_Point(1, 2, 0));
    EXPECT_EQ(inp_NodeVisitor::ReadPointFromKeywordData(data, 1, 1), gsl_Point(9, 0, 4));
    gsl_Point const one = reader.ReadNodeFromKeywordData(data, "I", 0, 0);
    EXPECT_NEAR(one.x, 10, 1e-12);
    EXPECT_NEAR(one.y, 1, 1e-12);
    EXPECT_EQ(reader.ReadNodeFromKeywordData(data, "I", 1, 0), gsl_Point());  // no node 7
    EXPECT_EQ(reader.ReadNodeFromKeywordData(data, "I", 0, 5), gsl_Point());  // short line
}

TEST(NodeVisitorSystem, TranslationRotationResetAndDegenerateAxes) {
    NodeReader reader;
    reader.Run(keyword(inp_kw_System, {"1, 2, 3"}));  // b = 0: a pure translation
    reader.Run(node({"1, 1, 1, 1, 1, 0, 0"}));
    reader.Run(keyword(inp_kw_System, {"0, 0, 0, 0, 2, 0"}));  // x along global y
    reader.Run(node({"2, 1, 0, 0, 1, 0, 0"}));
    reader.Run(keyword(inp_kw_System, {"1, 0, 0, 2, 0, 0", "1, 0, 5"}));  // y along global z
    reader.Run(node({"3, 0, 1, 0"}));
    reader.Run(keyword(inp_kw_System, {}));
    reader.Run(node({"4, 0, 1, 0"}));
    inp_CoordMap const& map = reader.ConstGetCoordMap();
    expectAt(map.ConstGet(1), 2, 3, 4);
    EXPECT_NEAR(map.ConstGet(1).nx, 1.0, 1e-12);
    expectAt(map.ConstGet(2), 0, 1, 0);
    EXPECT_NEAR(map.ConstGet(2).ny, 1.0, 1e-12);
    expectAt(map.ConstGet(3), 1, 0, 1);
    expectAt(map.ConstGet(4), 0, 1, 0);
    EXPECT_TRUE(reader.Errors().empty());

    reader.Run(keyword(inp_kw_System, {"1, 1, 1, 1, 1, 1", "0, 1, 0"}));
    reader.Run(keyword(inp_kw_System, {"0, 0, 0, 0, 0, 3"}));
    reader.Run(keyword(inp_kw_System, {"0, 0, 0, 1, 0, 0", "0, 0, 0"}));
    std::string const xy = at4("SYSTEM",
                               "The x-axis and the y-axis of the local coordinate system are "
                               "parallel or almost parallel.");
    EXPECT_EQ(
        reader.Errors(),
        (Texts{at4("SYSTEM", "The x-axis of the local coordinate system is not defined."), xy,
               at4("SYSTEM",
                   "The x-axis and the z-axis of the local coordinate system are parallel "
                   "or almost parallel."),
               at4("SYSTEM", "The y-axis of the local coordinate system is not defined."), xy}));
}

TEST(NodeVisitorNset, PartSetsAndParameterFaults) {
    NodeReader reader;
    reader.InPart("P");
    reader.Run(keyword(inp_kw_Nset, {"1, 10, 3"}, {{"nset", "G"}, {"generate", nullptr}}));
    reader.Run(keyword(inp_kw_Nset, {"20, G, 5"}, {{"nset", "L"}, {"unsorted", nullptr}}));
    reader.Run(keyword(inp_kw_Nset, {"2, NOPE"}, {{"nset", "G"}}));
    reader.Run(keyword(inp_kw_Nset, {"8"}, {{"nset", "H"}, {"internal", nullptr}}));
    reader.Run(
        keyword(inp_kw_Nset, {"1, 2"}, {{"nset", "X"}, {"generate", nullptr}, {"elset", "E"}}));
    reader.Run(keyword(inp_kw_Nset, {"1"}));
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "X"}, {"elset", "E"}, {"unsorted", nullptr}}));
    EXPECT_EQ(reader.Set("P", "G"), (Ids{1, 2, 4, 7, 10}));
    EXPECT_EQ(reader.Set("P", "L"), (Ids{20, 1, 4, 7, 10, 5}));
    EXPECT_TRUE(reader.ConstGetSetMap().ConstGetNestedSet("P", "H")->IsInternal());
    EXPECT_FALSE(reader.ConstGetSetMap().HasNestedSet("P", "X"));
    EXPECT_EQ(
        reader.Errors(),
        (Texts{at4("NSET", "The following sets specified do not exist:\nNOPE"),
               at4("NSET", "The ELSET and GENERATE parameters are mutually exclusive. "),
               at4("NSET", "NSET parameter is required."),
               at4("NSET", "The UNSORTED parameter cannot be used with the ELSET parameter. "),
               at4("NSET", "Element set E does not exist.")}));
}

TEST(NodeVisitorNset, ElsetInPartAndAtAssembly) {
    int const a[] = {1, 2, 3, 0};
    int const b[] = {3, 4, 5, 6};
    int const c[] = {10, 11};
    inpM_InstanceMap<inp_MapInt2Element> elements;
    inp_MapInt2Element part, assembly;
    part.Insert(1, inp_Element("S3", 4, a, 3, 0, 0));
    part.Insert(2, inp_Element("S4", 4, b, 4, 0, 0));
    assembly.Insert(50, inp_Element("B31", 2, c, 2, 0, 0));
    elements.Insert("P", part);
    elements.SetValue(assembly);
    inpM_SetMap elsets;
    elsets.InsertNestedSet("P", "E", CreateSet(cow_List<int>{1, 2, 99}, false, false));
    inpM_SetHandle mixed = CreateSet(cow_List<int>{50}, false, false);
    mixed.Get().Add("P", cow_List<int>{2});
    elsets.InsertSet("MIX", mixed);
    elsets.InsertSet("LOST", CreateSet(cow_List<int>{51}, false, false));
    inpM_SetHandle ghost = CreateSet(false, false);
    ghost.Get().Add("GHOST", cow_List<int>{1});
    ghost.Get().Add("P", cow_List<int>{7});
    elsets.InsertSet("GHOSTS", ghost);

    NodeReader reader(elements, elsets);
    reader.InPart("P");
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "N"}, {"elset", "E"}}));
    EXPECT_EQ(reader.Set("P", "N"), (Ids{1, 2, 3, 4, 5, 6}));  // open position 0 left out

    reader.AtAssembly();
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "SC"}, {"elset", "P.E"}}));
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "MX"}, {"elset", "MIX"}, {"internal", nullptr}}));
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "LS"}, {"elset", "LOST"}}));
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "GH"}, {"elset", "GHOSTS"}}));
    reader.Run(keyword(inp_kw_Nset, {}, {{"nset", "AB"}, {"elset", "P.NONE"}}));
    inpM_SetMap const& sets = reader.ConstGetSetMap();
    auto under = [&](char const* name) {
        cow_List<int> const l = sets.ConstGetSet(name)->ConstGetInstanceIdLists().ConstGet("P");
        return Ids(l.begin(), l.end());
    };
    EXPECT_EQ(under("SC"), (Ids{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(reader.Set("", "MX"), (Ids{10, 11}));
    EXPECT_EQ(under("MX"), (Ids{3, 4, 5, 6}));
    EXPECT_TRUE(sets.ConstGetSet("MX")->IsInternal());
    EXPECT_FALSE(sets.HasSet("LS") || sets.HasSet("GH") || sets.HasSet("AB"));
    EXPECT_EQ(
        reader.Errors(),
        (Texts{at4("NSET",
                   "The following elements from elset LOST are not found at assembly level:\n51"),
               at4("NSET", "Part instance GHOST in elset GHOSTS items has not been found."),
               at4("NSET",
                   "The following elements from elset GHOSTS are not found at part instance P:\n7"),
               at4("NSET", "Element set P.NONE does not exist.")}));
}
