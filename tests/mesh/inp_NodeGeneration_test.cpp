#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

#include "NodeKeywordLevel.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr double kTol = 1e-12;
double const kRoot2 = std::sqrt(0.5);

class Nodes : public NodeKeywordLevel {
  public:
    explicit Nodes(bool readCoordinates = true) : NodeKeywordLevel(readCoordinates) {}

    void Ngen(inp_Keyword keyword) { VisitNgen(keyword); }
    void Nfill(inp_Keyword keyword) { VisitNfill(keyword); }
    void Node(int label, double x, double y, double z, double nx = 0, double ny = 0,
              double nz = 0) {
        PutNode(label, x, y, z, nx, ny, nz);
    }
    inp_Coord At(int label) { return Level().ConstGet(label); }
    bool Has(int label) { return Level().IsMember(label); }
    void Set(char const* name, Ids const& ids) {
        cow_List<int> list;
        for (int id : ids) list.Append(id);
        AddToSet(name, list);
    }
    Ids SetIds(char const* name) const {
        inpM_SetHandle const& set = CurrentName().IsEmpty()
                                        ? m_setMap.ConstGetSet(name)
                                        : m_setMap.ConstGetNestedSet(CurrentName(), name);
        cow_List<int> const list = set->ConstGetIdList();
        return Ids(list.begin(), list.end());
    }
};

struct Param {
    char const* name;
    inp_Item value;
};

inp_Keyword keyword(inp_KeywordEnm kind, std::initializer_list<char const*> lines,
                    std::initializer_list<Param> params = {}) {
    inp_Keyword result(kind, cow_String("deck.inp"));
    result.SetLineNumber(5);
    for (Param const& p : params) result.SetParameter(p.name, p.value);
    for (char const* line : lines) result.Data().Append(line);
    return result;
}

inp_Keyword ngen(std::initializer_list<char const*> lines,
                 std::initializer_list<Param> params = {}) {
    return keyword(inp_kw_Ngen, lines, params);
}
inp_Keyword nfill(std::initializer_list<char const*> lines,
                  std::initializer_list<Param> params = {}) {
    return keyword(inp_kw_Nfill, lines, params);
}

std::string ngenAt(std::string const& text) {
    return "in keyword *NGEN, file \"deck.inp\", line 5: " + text;
}
std::string nfillAt(std::string const& text) {
    return "in keyword *NFILL, file \"deck.inp\", line 5: " + text;
}

#define EXPECT_AT(nodes, label, px, py, pz)       \
    do {                                          \
        inp_Coord const c_ = (nodes).At(label);   \
        EXPECT_NEAR(c_.x, (px), kTol) << (label); \
        EXPECT_NEAR(c_.y, (py), kTol) << (label); \
        EXPECT_NEAR(c_.z, (pz), kTol) << (label); \
    } while (0)

#define EXPECT_NORMAL(nodes, label, px, py, pz)    \
    do {                                           \
        inp_Coord const c_ = (nodes).At(label);    \
        EXPECT_NEAR(c_.nx, (px), kTol) << (label); \
        EXPECT_NEAR(c_.ny, (py), kTol) << (label); \
        EXPECT_NEAR(c_.nz, (pz), kTol) << (label); \
    } while (0)

// Nodes along x from `first` at 0, for the fractions of an *NFILL.
void expectFractions(Nodes& nodes, int first, std::vector<double> const& fractions) {
    for (size_t k = 0; k < fractions.size(); ++k)
        EXPECT_AT(nodes, first + static_cast<int>(k) + 1, fractions[k], 0.0, 0.0);
}

}  // namespace

// -- *NGEN ------------------------------------------------------------------------------

TEST(NodeGenerationNgen, StraightLineWithNormalsAndNodeSet) {
    Nodes nodes;
    nodes.Node(1, 0, 0, 0, 0, 0, 2);
    nodes.Node(5, 4, 8, 0, 3, 0, 0);
    nodes.Node(10, 0, 0, 0, 0, 0, 1);
    nodes.Node(14, 0, 0, 4);  // no normal: the row's nodes get none
    nodes.Ngen(ngen({"1, 5", "10, 14, 2"}, {{"nset", inp_Item("GEN")}}));
    EXPECT_AT(nodes, 2, 1, 2, 0);
    EXPECT_AT(nodes, 3, 2, 4, 0);
    EXPECT_AT(nodes, 4, 3, 6, 0);
    EXPECT_NORMAL(nodes, 3, kRoot2, 0, kRoot2);
    EXPECT_AT(nodes, 12, 0, 0, 2);
    EXPECT_FALSE(nodes.At(12).HasNormal());
    EXPECT_FALSE(nodes.Has(11));
    EXPECT_EQ(nodes.SetIds("GEN"), (Ids{1, 2, 3, 4, 5, 10, 12, 14}));
    EXPECT_TRUE(nodes.Errors().empty());
}

TEST(NodeGenerationNgen, IncrementsDirectionsAndBadRows) {
    Nodes nodes;
    nodes.Node(1, 0, 0, 0);
    nodes.Node(5, 4, 0, 0);
    // Backwards with a positive step is passed over; with a negative one it runs.
    nodes.Ngen(ngen({"5, 1, 1", "5, 1, -1"}));
    EXPECT_EQ(nodes.Warnings(),
              (Texts{ngenAt("Nodes cannot be generated between 5 and 1 with a step of 1. The "
                            "dataline will be ignored.")}));
    EXPECT_AT(nodes, 2, 1, 0, 0);
    EXPECT_AT(nodes, 4, 3, 0, 0);

    // A step that does not divide, equal ends and short rows end the keyword.
    for (char const* bad : {"1, 5, 3", "5, 5", "abc, def", "7", ""}) {
        Nodes fresh;
        fresh.Node(1, 0, 0, 0);
        fresh.Node(5, 4, 0, 0);
        fresh.Ngen(ngen({bad, "1, 5"}));
        EXPECT_FALSE(fresh.Has(3)) << bad;
        EXPECT_FALSE(fresh.Errors().empty()) << bad;
    }
    Nodes fresh;
    fresh.Node(1, 0, 0, 0);
    fresh.Node(5, 4, 0, 0);
    fresh.Ngen(ngen({"1, 5, 3", "7", "5,5"}));
    EXPECT_EQ(fresh.Errors(), (Texts{ngenAt("Nodes cannot be generated between 1 and 5 with a "
                                            "step of 3.")}));
    Nodes shortRow;
    shortRow.Ngen(ngen({"7"}));
    EXPECT_EQ(shortRow.Errors(), (Texts{ngenAt("Invalid data line: \n7")}));
}

TEST(NodeGenerationNgen, MissingEndNodeIsReportedAndMadeAtTheOrigin) {
    Nodes nodes;
    nodes.Node(5, 4, 0, 0);
    nodes.Ngen(ngen({"1, 5", "20, 30, 0, 99"}, {{"nset", inp_Item("S")}}));
    EXPECT_EQ(nodes.Errors(),
              (Texts{ngenAt("Node 1 does not exist."), ngenAt("Node 20 does not exist."),
                     ngenAt("Node 30 does not exist.")}));
    EXPECT_TRUE(nodes.Has(1));
    EXPECT_AT(nodes, 1, 0, 0, 0);
    EXPECT_AT(nodes, 3, 2, 0, 0);
    EXPECT_EQ(nodes.SetIds("S").front(), 1);

    // Only labels without coordinates: nothing is looked up.
    Nodes labels(false);
    labels.Ngen(ngen({"1, 4"}, {{"nset", inp_Item("S")}}));
    EXPECT_TRUE(labels.Errors().empty());
    EXPECT_TRUE(labels.Has(2) && labels.Has(3));
    EXPECT_FALSE(labels.Has(1));
    EXPECT_EQ(labels.SetIds("S"), (Ids{1, 2, 3, 4}));
}

TEST(NodeGenerationNgen, CircleArcsRadiiAndNormals) {
    Nodes nodes;
    nodes.Node(1, 1, 0, 0, 1, 0, 0);
    nodes.Node(5, 0, 1, 0, 0, 1, 0);
    nodes.Ngen(ngen({"1, 5, 1, 0, 0, 0, 0"}, {{"line", inp_Item("C")}}));
    double const c = std::cos(3.141592653589793 / 8), s = std::sin(3.141592653589793 / 8);
    EXPECT_AT(nodes, 2, c, s, 0);
    EXPECT_AT(nodes, 3, kRoot2, kRoot2, 0);
    EXPECT_AT(nodes, 4, s, c, 0);
    EXPECT_NORMAL(nodes, 3, kRoot2, kRoot2, 0);  // radial ends stay radial
    EXPECT_TRUE(nodes.Warnings().empty());

    // Radii within 5 percent pass; beyond, a warning and the mean radius.
    Nodes radii;
    radii.Node(1, 1, 0, 0);
    radii.Node(3, 0, 1.05, 0);
    radii.Node(11, 1, 0, 0);
    radii.Node(13, 0, 1.2, 0);
    radii.Node(100, 0, 0, 0);
    radii.Ngen(ngen({"1, 3, 1, 100", "11, 13, 1, 100"}, {{"line", inp_Item("C")}}));
    EXPECT_EQ(radii.Warnings(),
              (Texts{ngenAt("The radii for LINE=C are not equal. The end points must be moved by "
                            "more than 5 percent to lie on a circle.")}));
    EXPECT_AT(radii, 2, 1.025 * kRoot2, 1.025 * kRoot2, 0);
    EXPECT_AT(radii, 12, 1.1 * kRoot2, 1.1 * kRoot2, 0);
}

TEST(NodeGenerationNgen, CirclePlaneNeedsANormalWhichPicksTheSide) {
    Nodes nodes;
    nodes.Node(1, 1, 0, 0);
    nodes.Node(3, -1, 0, 0);
    nodes.Node(11, 1, 0, 0);
    nodes.Node(13, 0, 1, 0);
    nodes.Ngen(ngen({"1, 3, 1, 0, 0, 0, 0"}, {{"line", inp_Item("C")}}));
    EXPECT_EQ(nodes.Errors(), (Texts{ngenAt("The three nodes defining a circle lie on a line. A "
                                            "normal direction must be given.")}));
    EXPECT_FALSE(nodes.Has(2));

    nodes.Ngen(ngen({"1, 3, 1, 0, 0, 0, 0, 0, 0, -5",
                     // against a x b: the long way round, three quarters
                     "11, 13, 1, 0, 0, 0, 0, 0, 0, -1"},
                    {{"line", inp_Item("C")}}));
    EXPECT_AT(nodes, 2, 0, -1, 0);
    EXPECT_AT(nodes, 12, -kRoot2, -kRoot2, 0);

    Nodes center;
    center.Node(1, 1, 0, 0);
    center.Node(3, 0, 1, 0);
    center.Ngen(ngen({"1, 3, 1, 0, 1, 0, 0", "1, 3, 1, 77"}, {{"line", inp_Item("C")}}));
    EXPECT_EQ(center.Errors(), (Texts{ngenAt("End point of the arc has the same coordinates as "
                                             "the center of the circle.")}));
    center.Ngen(ngen({"1, 3, 1, 77"}, {{"line", inp_Item("C")}}));
    EXPECT_EQ(center.Errors().back(), ngenAt("Node 77 does not exist."));
    EXPECT_FALSE(center.Has(2));
}

TEST(NodeGenerationNgen, ParabolaCylindricalThirdPointAndMovedInstance) {
    Nodes nodes;
    nodes.Node(1, 0, 0, 0);
    nodes.Node(5, 2, 0, 0);
    // The middle point (1, 1, 0) in cylindrical form: r = sqrt 2 at 45 degrees.
    nodes.Ngen(ngen({"1, 5, 1, 0, 1.4142135623730951, 45, 0"},
                    {{"line", inp_Item("P")}, {"system", inp_Item("C")}}));
    EXPECT_AT(nodes, 2, 0.5, 0.75, 0);
    EXPECT_AT(nodes, 3, 1, 1, 0);
    EXPECT_AT(nodes, 4, 1.5, 0.75, 0);

    // Ends read globally, the third point moved with the instance, the
    // generated nodes stored back in the frame of the part.
    Nodes moved;
    moved.InInstanceMovedBy(10, 0, 0);
    moved.Node(1, 10, 0, 0);
    moved.Node(3, 12, 0, 0);
    moved.Node(11, 11, 0, 0);
    moved.Node(13, 10, 1, 0);
    moved.Ngen(ngen({"1, 3"}));
    EXPECT_AT(moved, 2, 11, 0, 0);
    moved.Ngen(ngen({"11, 13, 1, 0, 0, 0, 0"}, {{"line", inp_Item("C")}}));
    EXPECT_AT(moved, 12, 10 + kRoot2, kRoot2, 0);
}

// -- *NFILL -----------------------------------------------------------------------------

namespace {

// Sets A = {1, 11} and B = {5, 15}, from 0 to 1 along x (and a copy at z = 1).
Nodes twoSets() {
    Nodes nodes;
    nodes.Node(1, 0, 0, 0);
    nodes.Node(5, 1, 0, 0);
    nodes.Node(11, 0, 0, 1);
    nodes.Node(15, 1, 0, 1);
    nodes.Set("A", {1, 11});
    nodes.Set("B", {5, 15});
    return nodes;
}

}  // namespace

TEST(NodeGenerationNfill, UniformBiasAndTwoStep) {
    Nodes uniform = twoSets();
    uniform.Nfill(nfill({"A, B, 4"}, {{"nset", inp_Item("F")}}));
    expectFractions(uniform, 1, {0.25, 0.5, 0.75});
    EXPECT_AT(uniform, 13, 0.5, 0, 1);
    EXPECT_EQ(uniform.SetIds("F"), (Ids{1, 2, 3, 4, 5, 11, 12, 13, 14, 15}));
    EXPECT_TRUE(uniform.Errors().empty() && uniform.Warnings().empty());

    Nodes biased = twoSets();
    biased.Node(4, 1, 0, 0);
    biased.Set("C", {4});
    biased.Nfill(nfill({"A, C, 3"}, {{"bias", inp_Item(2)}}));
    expectFractions(biased, 1, {1 / 1.75, 1.5 / 1.75});

    Nodes twoStep = twoSets();
    twoStep.Nfill(nfill({"A, B, 4"}, {{"bias", inp_Item(2.0)}, {"twostep", inp_Item()}}));
    expectFractions(twoStep, 1, {1 / 3.0, 2 / 3.0, 2.5 / 3.0});
    EXPECT_TRUE(twoStep.Warnings().empty());

    Nodes noBias = twoSets();
    noBias.Nfill(nfill({"A, B, 4"}, {{"twostep", inp_Item()}}));
    EXPECT_EQ(noBias.Warnings(), (Texts{nfillAt("The TWO STEP parameter is ignored as the BIAS "
                                                "parameter not specified.")}));
    expectFractions(noBias, 1, {0.25, 0.5, 0.75});
}

TEST(NodeGenerationNfill, SingularLayers) {
    // BIAS is defaulted to 1.0 before SINGULAR is checked against it, so
    // SINGULAR passes only beside a negative BIAS.
    Nodes refused = twoSets();
    refused.Nfill(nfill({"A, B, 4"}, {{"singular", inp_Item(1)}}));
    EXPECT_EQ(refused.Errors(),
              (Texts{nfillAt("Parameters SINGULAR and BIAS are mutually exclusive.")}));
    EXPECT_FALSE(refused.Has(2));

    Nodes first = twoSets();
    first.Nfill(nfill({"A, B, 4"}, {{"singular", inp_Item(1)}, {"bias", inp_Item(-1)}}));
    expectFractions(first, 1, {0.0625, 0.25, 0.625});
    EXPECT_AT(first, 12, 0.0625, 0, 1);
    EXPECT_TRUE(first.Errors().empty());

    Nodes second = twoSets();
    second.Nfill(nfill({"A, B, 4"}, {{"singular", inp_Item(2)}, {"bias", inp_Item(-1)}}));
    expectFractions(second, 1, {0.375, 0.75, 0.9375});

    Nodes invalid = twoSets();
    invalid.Nfill(nfill({"A, B, 4"}, {{"singular", inp_Item(3)}, {"bias", inp_Item(-1)}}));
    Nodes odd = twoSets();
    odd.Nfill(nfill({"A, B, 3", "A, B, 4"}, {{"singular", inp_Item(1)}, {"bias", inp_Item(-1)}}));
    EXPECT_EQ(invalid.Errors(), (Texts{nfillAt("Parameter SINGULAR=3 is invalid.")}));
    EXPECT_EQ(odd.Errors(), (Texts{nfillAt("The number of intervals must be even when the "
                                           "SINGULAR parameter is specified.")}));
    EXPECT_FALSE(odd.Has(2));
}

TEST(NodeGenerationNfill, UnequalSetsMissingSetsAndNodesAndBadRows) {
    Nodes nodes = twoSets();
    nodes.Node(25, 1, 1, 0);
    nodes.Set("SHORT", {25});
    nodes.Set("HOLE", {1, 11});
    nodes.Set("GAP", {6, 16});
    nodes.Node(16, 2, 0, 1);
    nodes.Nfill(nfill({"A, SHORT, 2, 12", "NOPE, B, 2", "A, B", "HOLE, GAP, 2, 5"}));
    EXPECT_EQ(nodes.Warnings(),
              (Texts{nfillAt("Node sets A and SHORT have different number of nodes - 2 and 1. "
                             "Only 1 nodes will be used."),
                     nfillAt("The number of intervals 2 and the node increment 5 are inconsistent "
                             "with the node numbers of two sets: HOLE - 11, GAP - 16 .")}));
    EXPECT_EQ(nodes.Errors(),
              (Texts{nfillAt("Node set NOPE does not exist."), nfillAt("Invalid data line: A, B"),
                     nfillAt("Node set GAP entered under an *NFILL definition contains "
                             "non-existent nodes. ")}));
    EXPECT_AT(nodes, 13, 0.5, 0.5, 0);  // 1 and 25, the pair of the shorter set
    EXPECT_FALSE(nodes.Has(6));
    EXPECT_AT(nodes, 16, 1, 0, 1);  // 11 + 5: inconsistent, but generated from 11

    Nodes none = twoSets();
    none.Nfill(nfill({"A, B, 0", "A, B, 2"}));
    EXPECT_EQ(none.Errors(), (Texts{nfillAt("The number of intervals must be given.")}));
    EXPECT_FALSE(none.Has(2));
}

TEST(NodeGenerationNfill, NormalsInstancesAndLabelsOnly) {
    Nodes nodes;
    nodes.InInstanceMovedBy(0, 0, 5);
    nodes.Node(1, 0, 0, 5, 0, 0, 3);
    nodes.Node(3, 2, 0, 5);
    nodes.Node(11, 0, 0, 5, 1, 0, 0);
    nodes.Node(13, 0, 2, 5, 0, 1, 0);
    nodes.Set("A", {1, 11});
    nodes.Set("B", {3, 13});
    nodes.Nfill(nfill({"A, B, 2"}));
    EXPECT_AT(nodes, 2, 1, 0, 5);
    EXPECT_NORMAL(nodes, 2, 0, 0, 1);  // the one normal stands for both
    EXPECT_NORMAL(nodes, 12, kRoot2, kRoot2, 0);

    Nodes labels(false);
    labels.Set("A", {1});
    labels.Set("B", {4});
    labels.Nfill(nfill({"A, B, 3"}, {{"nset", inp_Item("F")}}));
    EXPECT_EQ(labels.SetIds("F"), (Ids{1, 2, 3, 4}));
    EXPECT_TRUE(labels.Errors().empty());
}
