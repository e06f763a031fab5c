// The walks that know where keywords refer to sets, surfaces, orientations,
// materials and distributions. Each test subclass marks every datum it is
// asked about, so a position the walk misses, or treats as the wrong kind,
// shows as an unmarked or wrongly marked item.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "assembly/inp_DistributionFixupVisitor.h"
#include "assembly/inp_FakePartSetVisitor.h"
#include "assembly/inp_FakePartVisitors.h"
#include "assembly/inp_MaterialFixupVisitor.h"
#include "assembly/inp_OrientationFixupVisitor.h"
#include "assembly/inp_ScopedNameVisitors.h"
#include "assembly/inp_SetFixupVisitor.h"
#include "assembly/inp_SurfaceFixupVisitor.h"
#include "assembly/inp_UndefinedNodeVisitor.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_Item.h"
#include "support/inpM_Utils.h"

namespace {

cow_String text(std::string const& value) {
    return cow_String(std::string_view(value));
}

std::string str(cow_String const& value) {
    return std::string(value.View());
}

// Marks a datum by the maps it was asked with: "N:" node, "E:" element.
class MarkingSetFixup : public inp_SetFixupVisitor {
  public:
    MarkingSetFixup()
        : inp_SetFixupVisitor(inpM_SetMap(), inpM_SetMap(), inpM_IdMap(), inpM_IdMap()) {}

    cow_String FixupIdOrSet(inp_Keyword const&, cow_String const& datum, inpM_SetMap const& sets,
                            inpM_IdMap const&, cow_String const&, cow_String const&,
                            cow_String const&, inp_SetType, cow_String const&) override {
        if (str(datum) == failOn) throw inp_ParameterException(atr("no such set"));
        return text((&sets == &NodeSets() ? "N:" : "E:") + str(datum));
    }

    std::string failOn;
};

class MarkingSurfaceFixup : public inp_SurfaceFixupVisitor {
  public:
    MarkingSurfaceFixup() : inp_SurfaceFixupVisitor(inpM_SurfaceMap()) {}
    cow_String FixupSurfaceName(cow_String const& name, cow_String const&, cow_String const&,
                                cow_String const&) override {
        return text("S:" + str(name));
    }
};

class MarkingOrientationFixup : public inp_OrientationFixupVisitor {
  public:
    cow_String FixupOrientationName(cow_String const& name) override {
        return text("O:" + str(name));
    }
};

class MarkingDistributionFixup : public inp_DistributionFixupVisitor {
  public:
    cow_String FixupDistributionName(cow_String const& name) override {
        return text("D:" + str(name));
    }
};

class MarkingMaterialFixup : public inp_MaterialFixupVisitor {
  public:
    cow_String FixupMaterialName(cow_String const& name) override { return text("M:" + str(name)); }
};

// Walks the one keyword and gives it back.
template <class Visitor>
inp_Keyword walked(Visitor& visitor, inp_Keyword const& keyword) {
    cow_List<inp_Keyword> list;
    list.Append(keyword);
    visitor.VisitList(list);
    return list.ConstGet(0);
}

template <class Visitor>
inp_Keyword walked(inp_Keyword const& keyword) {
    Visitor visitor;
    return walked(visitor, keyword);
}

inp_Keyword keywordOf(inp_KeywordEnm kind, std::vector<std::string> const& lines,
                      std::vector<std::pair<char const*, char const*>> const& parameters = {}) {
    inp_Keyword keyword(kind);
    for (auto const& [name, value] : parameters)
        keyword.SetParameter(name, value ? inp_Item(text(value)) : inp_Item(true));
    for (std::string const& line : lines) keyword.Data().Append(line.c_str());
    return keyword;
}

std::string item(inp_Keyword const& keyword, int line, int column) {
    return str(keyword.Data().AsString(line, column));
}

std::string parameter(inp_Keyword const& keyword, char const* name) {
    return str(keyword.GetParameterAsString(name, ""));
}

// Lines of `rows` lines of `columns` items named by their place: R0C0, ...
std::vector<std::string> namedItems(int rows, int columns) {
    std::vector<std::string> lines;
    for (int row = 0; row < rows; ++row) {
        std::string line;
        for (int column = 0; column < columns; ++column)
            line += (column ? ", R" : "R") + std::to_string(row) + "C" + std::to_string(column);
        lines.push_back(line);
    }
    return lines;
}

std::string placeName(int row, int column) {
    return "R" + std::to_string(row) + "C" + std::to_string(column);
}

}  // namespace

// Every plain position of the table, each on a keyword of its own: the
// datum there is asked about with the maps of its kind, the lines between
// strides are not.
TEST(SetFixupTable, EveryPlainPositionIsRewrittenWithItsKind) {
    for (inp_SetReference const& row : inp_SetFixupVisitor::PlainReferences()) {
        std::vector<std::pair<char const*, char const*>> parameters;
        if (row.when == inp_SetReference::Condition::IfParameter)
            parameters.emplace_back(row.condition, nullptr);
        std::string const mark = row.kind == inp_ReferenceKind::Node ? "N:" : "E:";
        SCOPED_TRACE(std::string(inp_KeywordTableName(row.keyword)));
        if (row.form == inp_SetReference::Form::Parameter) {
            parameters.emplace_back(row.parameter, "REF");
            inp_Keyword const out = walked<MarkingSetFixup>(keywordOf(row.keyword, {}, parameters));
            EXPECT_EQ(parameter(out, row.parameter), mark + "REF") << row.parameter;
            continue;
        }
        int const columns = row.column + 2;
        int const rows = 2 * row.stride;
        inp_Keyword const out =
            walked<MarkingSetFixup>(keywordOf(row.keyword, namedItems(rows, columns), parameters));
        for (int line = 0; line < rows; ++line) {
            for (int column = 0; column < columns; ++column) {
                bool const inRow =
                    row.form == inp_SetReference::Form::AllData ||
                    (row.form == inp_SetReference::Form::ColumnsFrom && column >= row.column) ||
                    (column == row.column && line % row.stride == 0);
                std::string const got = item(out, line, column);
                if (inRow) {
                    EXPECT_EQ(got, mark + placeName(line, column)) << line << "," << column;
                } else if (row.stride > 1 && column == row.column) {
                    EXPECT_EQ(got, placeName(line, column)) << line << "," << column;
                }
            }
        }
    }
}

TEST(SetFixupRules, LoadsAndConstraintsNameTheirNodesWhereTheirParametersSay) {
    inp_Keyword out =
        walked<MarkingSetFixup>(keywordOf(inp_kw_Boundary, {"A, 1", ", 2", "B, C, 3"}));
    EXPECT_EQ(item(out, 0, 0), "N:A");
    EXPECT_EQ(item(out, 1, 0), "");  // a blank stays blank
    EXPECT_EQ(item(out, 2, 1), "C");
    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Boundary, {"B, C, 3"}, {{"phantom", "EDGE"}}));
    EXPECT_EQ(item(out, 0, 1), "N:C");

    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Cload, {"7, 1, 2.5", "S, 2, 1."}));
    EXPECT_EQ(item(out, 0, 0), "N:7");
    EXPECT_EQ(item(out, 1, 0), "N:S");
    EXPECT_EQ(item(out, 1, 2), "1.");

    // An equation's count lines and coefficients are no nodes.
    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Equation, {"2", "1, 1, 1., 2, 1, -1.", "3"}));
    EXPECT_EQ(item(out, 0, 0), "2");
    EXPECT_EQ(item(out, 1, 0), "N:1");
    EXPECT_EQ(item(out, 1, 3), "N:2");
    EXPECT_EQ(item(out, 1, 2), "1.");
    EXPECT_EQ(item(out, 2, 0), "3");

    out = walked<MarkingSetFixup>(
        keywordOf(inp_kw_Normal, {"5, 6, 1., 0., 0."}, {{"type", "ELEMENT"}}));
    EXPECT_EQ(item(out, 0, 0), "E:5");
    EXPECT_EQ(item(out, 0, 1), "N:6");
}

TEST(SetFixupRules, InitialConditionsAndSurfacesChooseKindAndStrideByType) {
    // A node's values run over lines of eight items.
    inp_Keyword out = walked<MarkingSetFixup>(
        keywordOf(inp_kw_InitialConditions, {"1, 2, 3, 4, 5, 6, 7, 8", "9, 10", "11, 12"},
                  {{"type", "TEMPERATURE"}}));
    EXPECT_EQ(item(out, 0, 0), "N:1");
    EXPECT_EQ(item(out, 1, 0), "9");
    EXPECT_EQ(item(out, 2, 0), "N:11");

    out = walked<MarkingSetFixup>(keywordOf(inp_kw_InitialConditions, {"E1, 1.", "0.5", "E2, 2."},
                                            {{"type", "HARDENING"}, {"numberbackstresses", "1"}}));
    EXPECT_EQ(item(out, 0, 0), "E:E1");
    EXPECT_EQ(item(out, 1, 0), "0.5");
    EXPECT_EQ(item(out, 2, 0), "E:E2");

    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Surface, {"ALL, S1"}, {{"name", "TOP"}}));
    EXPECT_EQ(item(out, 0, 0), "E:ALL");
    EXPECT_EQ(parameter(out, "name"), "TOP");
    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Surface, {"NS, 1."}, {{"type", "NODE"}}));
    EXPECT_EQ(item(out, 0, 0), "N:NS");
    out = walked<MarkingSetFixup>(keywordOf(inp_kw_Surface, {"A", "B"}, {{"combine", "UNION"}}));
    EXPECT_EQ(item(out, 0, 0), "A");
}

TEST(SetFixupRules, LocalSectionAxesFixOnlyLabels) {
    inp_Keyword const out = walked<MarkingSetFixup>(
        keywordOf(inp_kw_SectionFile, {"ALL, 1.", "NSET, 2., 3., 4., I.5"}, {{"axes", "LOCAL"}}));
    EXPECT_EQ(item(out, 0, 0), "ALL");
    EXPECT_EQ(item(out, 1, 0), "NSET");
    EXPECT_EQ(item(out, 1, 4), "N:I.5");
}

TEST(SetFixupWalk, AFailedAnswerIsAWarningAndTheWalkGoesOn) {
    MarkingSetFixup visitor;
    visitor.failOn = "BAD";
    inp_Keyword const out = walked(visitor, keywordOf(inp_kw_Boundary, {"BAD, 1", "GOOD, 2"}));
    EXPECT_EQ(item(out, 0, 0), "BAD");
    EXPECT_EQ(item(out, 1, 0), "N:GOOD");
    ASSERT_EQ(visitor.GetWarningList().Length(), 1);
    EXPECT_EQ(str(visitor.GetWarningList().ConstGet(0)), "in keyword *BOUNDARY no such set");
}

// A walk writes only what changes, and a keyword whose lines it changes
// gets lines of its own: the copies it shared them with keep theirs.
TEST(SetFixupWalk, CopiesOfAKeywordKeepTheirData) {
    class Unchanged : public MarkingSetFixup {
        cow_String FixupIdOrSet(inp_Keyword const&, cow_String const& datum, inpM_SetMap const&,
                                inpM_IdMap const&, cow_String const&, cow_String const&,
                                cow_String const&, inp_SetType, cow_String const&) override {
            return datum;
        }
    };
    inp_Keyword const original = keywordOf(inp_kw_Boundary, {"a, 1"});
    inp_Keyword const copy = original;
    Unchanged unchanged;
    inp_Keyword const same = walked(unchanged, copy);
    EXPECT_TRUE(same.Data().SharesWith(original.Data()));
    EXPECT_EQ(item(same, 0, 0), "A");

    inp_Keyword const rewritten = walked<MarkingSetFixup>(copy);
    EXPECT_FALSE(rewritten.Data().SharesWith(original.Data()));
    EXPECT_EQ(item(rewritten, 0, 0), "N:A");
    EXPECT_EQ(str(original.Data().AsStringVerbatim(0, 0)), "a");
}

TEST(SurfaceFixupTable, EveryPlainPositionIsRewritten) {
    for (inp_SurfaceReference const& row : inp_SurfaceFixupVisitor::PlainReferences()) {
        SCOPED_TRACE(std::string(inp_KeywordTableName(row.keyword)));
        if (row.form == inp_SurfaceReference::Form::Parameter) {
            inp_Keyword const out =
                walked<MarkingSurfaceFixup>(keywordOf(row.keyword, {}, {{row.parameter, "REF"}}));
            EXPECT_EQ(parameter(out, row.parameter), "S:REF") << row.parameter;
            continue;
        }
        inp_Keyword const out =
            walked<MarkingSurfaceFixup>(keywordOf(row.keyword, namedItems(2, row.column + 2)));
        for (int line = 0; line < 2; ++line)
            EXPECT_EQ(item(out, line, row.column), "S:" + placeName(line, row.column));
    }
}

TEST(SurfaceFixupRules, PairsCombinationsAndWeldsNameTheirSurfaces) {
    inp_Keyword out = walked<MarkingSurfaceFixup>(keywordOf(inp_kw_Tie, {"A, B"}, {{"name", "T"}}));
    EXPECT_EQ(parameter(out, "name"), "S:T");
    EXPECT_EQ(item(out, 0, 1), "S:B");
    out = walked<MarkingSurfaceFixup>(keywordOf(inp_kw_Surface, {"A, B"}, {{"name", "C"}}));
    EXPECT_EQ(item(out, 0, 0), "A");  // element faces, no surface names
    out = walked<MarkingSurfaceFixup>(
        keywordOf(inp_kw_Surface, {"A, B"}, {{"name", "C"}, {"combine", "UNION"}}));
    EXPECT_EQ(item(out, 0, 1), "S:B");
    out = walked<MarkingSurfaceFixup>(keywordOf(inp_kw_SpotWeld, {"N, TOP, 2.5"}));
    EXPECT_EQ(item(out, 0, 0), "N");
    EXPECT_EQ(item(out, 0, 1), "S:TOP");
    EXPECT_EQ(item(out, 0, 2), "2.5");
    out = walked<MarkingSurfaceFixup>(
        keywordOf(inp_kw_ModelChange, {"A, B"}, {{"type", "CONTACTPAIR"}}));
    EXPECT_EQ(item(out, 0, 0), "S:A");
}

TEST(NameFixups, OrientationsMaterialsAndDistributionsFollowTheirPositions) {
    for (inp_KeywordEnm kind : inp_OrientationFixupVisitor::OrientationParameterKeywords()) {
        inp_Keyword const out =
            walked<MarkingOrientationFixup>(keywordOf(kind, {}, {{"orientation", "OR"}}));
        EXPECT_EQ(parameter(out, "orientation"), "O:OR") << inp_KeywordTableName(kind);
    }
    inp_Keyword out = walked<MarkingOrientationFixup>(keywordOf(
        inp_kw_SolidSection, {"1., 3, M, L1"}, {{"composite", nullptr}, {"orientation", "O"}}));
    EXPECT_EQ(parameter(out, "orientation"), "O:O");
    EXPECT_EQ(item(out, 0, 3), "O:L1");

    out = walked<MarkingMaterialFixup>(keywordOf(inp_kw_EulerianSection, {"I1, STEEL"}));
    EXPECT_EQ(item(out, 0, 1), "M:STEEL");

    out = walked<MarkingDistributionFixup>(
        keywordOf(inp_kw_ShellSection, {}, {{"shellthickness", "T"}, {"offset", "SPOS"}}));
    EXPECT_EQ(parameter(out, "shellthickness"), "D:T");
    EXPECT_EQ(parameter(out, "offset"), "SPOS");
    out = walked<MarkingDistributionFixup>(keywordOf(inp_kw_Density, {"RHO"}));
    EXPECT_EQ(item(out, 0, 0), "D:RHO");
    out = walked<MarkingDistributionFixup>(keywordOf(inp_kw_Density, {"7.8"}));
    EXPECT_EQ(item(out, 0, 0), "7.8");
}

TEST(NameFixups, TheDefaultLineOfAPassedDistributionIsRead) {
    MarkingDistributionFixup visitor;
    walked(visitor, keywordOf(inp_kw_Distribution, {", 2.5, 3.5, 4.5", "1, 7., 8., 9."},
                              {{"name", "THICK"}}));
    double values[3] = {};
    EXPECT_EQ(visitor.GetDefaultDataDouble("D:THICK", values, 2), 2);
    EXPECT_EQ(values[0], 2.5);
    EXPECT_EQ(values[1], 3.5);
    EXPECT_EQ(visitor.GetDefaultDataDouble("THICK", values, 3), 0);  // known by its new name
}

// -- the answers of a flat deck becoming a part ----------------------------------------

namespace {

inp_CoordMap fakeNodes(std::initializer_list<int> labels) {
    inp_CoordMap nodes;
    for (int label : labels) nodes.Insert(label, inp_Coord(1., 2., 3.));
    inp_CoordMap coordinates;
    coordinates.Insert(cow_String("FAKE"), nodes);
    return coordinates;
}

std::vector<std::string> texts(cow_List<atr_String> const& list) {
    std::vector<std::string> out;
    for (atr_String const& entry : list) out.emplace_back(entry.View());
    return out;
}

}  // namespace

TEST(UndefinedNodes, ReferencedNodesAndSetMembersArePlacedAtTheOrigin) {
    inpM_SetMap sets;
    sets.InsertNestedSet(cow_String("FAKE"), cow_String("NS"), CreateSet({1, 7}, false, false));
    inp_UndefinedNodeVisitor visitor(fakeNodes({1}), sets, true);
    cow_List<inp_Keyword> list;
    list.Append(keywordOf(inp_kw_Boundary, {"1, 1", "5, 2", "5, 3", "NS, 1", "A.B.C, 1"}));
    list.Append(keywordOf(inp_kw_Cload, {"0, 1, 1.", "1234567890, 1, 1."}));
    list.Append(keywordOf(inp_kw_SolidSection, {}, {{"elset", "77"}}));
    visitor.VisitList(list);

    inp_CoordMap const& nodes = visitor.ConstGetCoordMap().ConstGet(cow_String("FAKE"));
    EXPECT_TRUE(nodes.IsMember(5));
    EXPECT_TRUE(nodes.IsMember(7));
    EXPECT_FALSE(nodes.IsMember(77));  // an element reference
    EXPECT_EQ(nodes.ConstGet(5).x, 0.);
    EXPECT_EQ(nodes.ConstGet(1).x, 1.);  // a defined node keeps its place
    EXPECT_EQ(texts(visitor.GetWarningList()),
              (std::vector<std::string>{
                  "in keyword *BOUNDARY Undefined node 5 was detected and placed at the origin. ",
                  "in keyword *CLOAD Undefined node 1234567890 was detected and placed at the "
                  "origin. "}));
    EXPECT_EQ(
        texts(visitor.GetErrorList()),
        (std::vector<std::string>{"in keyword *CLOAD Node label is not a positive integer: 0",
                                  "in keyword *CLOAD Node label exceeds 9 digits: 1234567890"}));
    EXPECT_EQ(visitor.SetsWithUndefinedNodes().Length(), 1);
    EXPECT_EQ(item(list.ConstGet(0), 1, 0), "5");  // the deck is not changed
}

TEST(UndefinedNodes, AMatrixMayNameAnyLabelAndADeckWithoutThePseudoPartIsLeftAlone) {
    inp_UndefinedNodeVisitor matrix(fakeNodes({}), inpM_SetMap(), true);
    walked(matrix, keywordOf(inp_kw_MatrixInput, {"0, 1, 0, 1, 1."}));
    EXPECT_TRUE(matrix.GetErrorList().IsEmpty());

    inp_UndefinedNodeVisitor parts(inp_CoordMap(), inpM_SetMap(), true);
    walked(parts, keywordOf(inp_kw_Boundary, {"5, 1"}));
    EXPECT_TRUE(parts.GetWarningList().IsEmpty());
    EXPECT_FALSE(parts.ConstGetCoordMap().IsMember(cow_String("FAKE")));
}

TEST(FakePartSurfaces, SurfacesThatArePartsAreNamedByTheirInstance) {
    inp_FakePartSurfaceVisitor visitor{inpM_SurfaceMap()};
    cow_List<inp_Keyword> list;
    list.Append(
        keywordOf(inp_kw_Surface, {"START, 0., 0."}, {{"type", "CYLINDER"}, {"name", "S"}}));
    list.Append(keywordOf(inp_kw_RigidBody, {}, {{"analyticalsurface", "S"}, {"refnode", "1"}}));
    list.Append(keywordOf(inp_kw_Tie, {"S, OTHER"}, {{"name", "T"}}));
    list.Append(keywordOf(inp_kw_RigidSurface, {}, {{"type", "CYLINDER"}}));
    visitor.VisitList(list);
    EXPECT_EQ(parameter(list.ConstGet(1), "analyticalsurface"), "S-1.S");
    EXPECT_EQ(item(list.ConstGet(2), 0, 0), "S-1.S");
    EXPECT_EQ(item(list.ConstGet(2), 0, 1), "OTHER");
    std::string const generated = parameter(list.ConstGet(3), "name");
    EXPECT_EQ(generated.rfind("RigidSurface-", 0), 0u) << generated;
    EXPECT_EQ(visitor.PartSurfaces().Length(), 2);
}

TEST(FakeDistributions, TheUsedDistributionsAreRecordedAndNothingIsRenamed) {
    cow_Map<cow_String, int> known;
    known.Insert(cow_String("THICK"), 1);
    known.Insert(cow_String("SPARE"), 1);
    cow_Map<cow_String, int> used;
    inp_FakeDistributionVisitor visitor(known, used);
    inp_Keyword const out = walked(
        visitor,
        keywordOf(inp_kw_ShellSection, {}, {{"shellthickness", "THICK"}, {"offset", "OFF"}}));
    EXPECT_EQ(parameter(out, "shellthickness"), "THICK");
    EXPECT_TRUE(used.IsMember(cow_String("THICK")));
    EXPECT_FALSE(used.IsMember(cow_String("SPARE")));
    EXPECT_FALSE(used.IsMember(cow_String("OFF")));
}

TEST(FakePartSets, ReferencesOutsideThePartAreScopedByItsInstance) {
    inpM_IdMap partNodes;
    partNodes.Insert(7, 1);
    inpM_IdMap nodeIds;
    nodeIds.Insert(cow_String("PART-1"), partNodes);
    inpM_SetMap nodeSets;
    nodeSets.InsertNestedSet(cow_String("PART-1"), cow_String("TOP"), CreateSet({7}, false, false));
    inp_FakePartSetVisitor visitor(nodeIds, inpM_IdMap(), nodeSets, inpM_SetMap(), {});
    cow_List<inp_Keyword> list;
    list.Append(keywordOf(inp_kw_Boundary, {"7, 1", "TOP, 2", "ASSEMBLYSET, 3", "9, 4"}));
    list.Append(keywordOf(inp_kw_Part, {}, {{"name", "PART-1"}}));
    list.Append(keywordOf(inp_kw_Boundary, {"7, 1"}));
    list.Append(keywordOf(inp_kw_EndPart, {}));
    list.Append(keywordOf(inp_kw_InitialConditions, {"7, 20."}, {{"type", "TEMPERATURE"}}));
    visitor.VisitList(list);
    inp_Keyword const& model = list.ConstGet(0);
    EXPECT_EQ(item(model, 0, 0), "PART-1-1.7");
    EXPECT_EQ(item(model, 1, 0), "PART-1-1.TOP");
    EXPECT_EQ(item(model, 2, 0), "ASSEMBLYSET");
    EXPECT_EQ(item(model, 3, 0), "9");
    EXPECT_EQ(item(list.ConstGet(2), 0, 0), "7");  // inside the part
    EXPECT_EQ(item(list.ConstGet(4), 0, 0), "7");  // a deck of no parts of its own
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{"in keyword *BOUNDARY Node/element 9 cannot be found.  "
                                        "Please check that it is defined."}));

    inp_ModelParameters parts;
    parts.SetFeatureEnhanced();
    inp_FakePartSetVisitor byInstance(nodeIds, inpM_IdMap(),
                                      inp_FakePartSetVisitor::Options::For(parts, true));
    inp_Keyword const out = walked(
        byInstance, keywordOf(inp_kw_InitialConditions, {"7, 20."}, {{"type", "TEMPERATURE"}}));
    EXPECT_EQ(item(out, 0, 0), "PART-1.7");
}

TEST(ScopedNames, OnlyTheAssemblysOwnPrefixGoesAndOnlyAtModelLevel) {
    inp_ScopedNameSetVisitor visitor(cow_String("A"));
    cow_List<inp_Keyword> list;
    list.Append(keywordOf(inp_kw_Boundary, {"A.I.S, 1", "I.S, 2", "1.5, 3", "AB.I.S, 4"}));
    list.Append(keywordOf(inp_kw_Step, {}, {{"name", "S1"}}));
    list.Append(keywordOf(inp_kw_Boundary, {"A.I.S, 1"}));
    list.Append(keywordOf(inp_kw_EndStep, {}));
    visitor.VisitList(list);
    EXPECT_EQ(item(list.ConstGet(0), 0, 0), "I.S");
    EXPECT_EQ(item(list.ConstGet(0), 1, 0), "I.S");
    EXPECT_EQ(item(list.ConstGet(0), 2, 0), "1.5");
    EXPECT_EQ(item(list.ConstGet(0), 3, 0), "AB.I.S");
    EXPECT_EQ(item(list.ConstGet(2), 0, 0), "A.I.S");  // history keeps the full name

    // Without an assembly the prefix compared is empty: only a datum that
    // starts with a period loses it.
    inp_ScopedNameSetVisitor none{cow_String()};
    inp_Keyword const out = walked(none, keywordOf(inp_kw_Boundary, {"A.I.S, 1", ".S, 2"}));
    EXPECT_EQ(item(out, 0, 0), "A.I.S");
    EXPECT_EQ(item(out, 1, 0), "S");
}
