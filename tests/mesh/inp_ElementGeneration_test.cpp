// *ELGEN and *ELCOPY of the element visitor, on decks whose *ELEMENT
// keywords the visitor reads first.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "mesh/inp_ElementTypes.h"
#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

// An element visitor on the top level that reads decks and answers about
// its elements, sets and errors.
class Elements : public inp_ElementVisitor {
  public:
    explicit Elements(bool reportMissingMaster = true) : inp_ElementVisitor(reportMissingMaster) {}

    void Read(std::string const& deck) {
        cow_List<inp_Keyword> more = InlineDeck(deck, InlineElementData::Raw);
        VisitList(more);
        keywords.Concatenate(more);
    }
    // A record that no *ELEMENT would take (an obsolete type).
    void Put(int label, char const* type, cow_List<int> const& nodes) {
        targetTable().Insert(label, inp_Element(type, nodes, 0, 0, 0));
    }
    bool Has(int label) const { return ConstGetElementMap().HasValue() && table().IsMember(label); }
    Ids NodesOf(int label) const {
        cow_List<int> const nodes = table().ConstGet(label).NodeList();
        return Ids(nodes.begin(), nodes.end());
    }
    Ids Set(char const* name) const {
        if (!ConstGetSetMap().HasSet(name)) return {};
        cow_List<int> const ids = ConstGetSetMap().ConstGetSet(name)->ConstGetIdList();
        return Ids(ids.begin(), ids.end());
    }
    Texts Errors() const {
        Texts result;
        for (atr_String const& error : GetErrorList()) result.emplace_back(error.View());
        return result;
    }
    // The text as the keyword of deck line `line` words it.
    std::string At(int line, char const* text) const {
        for (inp_Keyword const& keyword : keywords)
            if (keyword.LineNumber() == line)
                return std::string(inp_Utils::FormTitleForMessage(keyword).View()) + text;
        return "no keyword at that line";
    }

    cow_List<inp_Keyword> keywords;

  private:
    inp_MapInt2Element const& table() const { return ConstGetElementMap().ConstGet(); }
};

// An *ELEMENT row of `count` nodes 1, 2, ..., continued on further lines as
// a deck writes it.
std::string elementRow(int label, int count) {
    std::string row = std::to_string(label);
    for (int node = 1; node <= count; ++node)
        row += (node % 15 == 1 && node > 1 ? ",\n" : ", ") + std::to_string(node);
    return row + "\n";
}

}  // namespace

TEST(ElementGenerationElgen, CopiesShiftTheirNodesInUpToThreeDirections) {
    Elements elements;
    elements.Read(
        "*ELEMENT, TYPE=C3D8\n100, 1, 2, 3, 4, 5, 6, 7, 8\n"
        "*ELGEN, ELSET=ROW\n100, 3, 1, 10\n"
        "*ELEMENT, TYPE=T3D2\n1, 1, 2\n"
        "*ELGEN, ELSET=PLANE\n1, 2, 1, 1, 3, 10, 100\n"
        "*ELGEN, ELSET=BLOCK\n1, 2, 1, 1, 2, 10, 100, 2, 100, 1000\n"
        "*ELEMENT, TYPE=CAXA41\n7, 1, 0, 3, 4\n"
        "*ELGEN\n7, 2, 5, 1\n");
    EXPECT_EQ(elements.NodesOf(110), (Ids{2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(elements.NodesOf(120), (Ids{3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(elements.Set("ROW"), (Ids{100, 110, 120}));
    EXPECT_EQ(elements.Set("PLANE"), (Ids{1, 2, 101, 102, 201, 202}));
    EXPECT_EQ(elements.NodesOf(202), (Ids{22, 23}));
    EXPECT_EQ(elements.Set("BLOCK"), (Ids{1, 2, 101, 102, 1001, 1002, 1101, 1102}));
    EXPECT_EQ(elements.NodesOf(1102), (Ids{112, 113}));
    // An open position stays open in every copy.
    EXPECT_EQ(elements.NodesOf(8), (Ids{6, 0, 8, 9, 100006, 100005, 100008, 100009}));
    EXPECT_TRUE(elements.Errors().empty());
}

TEST(ElementGenerationElgen, OrientationAndObsoleteNodesStayUnlessAllNodes) {
    Elements elements;
    elements.Put(50, "CGPE6", {1, 2, 3, 4, 5, 6});
    elements.Read(
        "*ELEMENT, TYPE=B31\n1, 1, 2, 99\n2, 1, 2\n"
        "*ELEMENT, TYPE=PIPE31\n3, 1, 2, 98\n"
        "*ELGEN\n1, 2, 10, 10\n2, 2, 10, 10\n3, 2, 10, 10\n50, 2, 100, 1\n"
        "*ELGEN, ALLNODES\n1, 2, 10, 100\n50, 2, 100, 100\n");
    EXPECT_EQ(elements.NodesOf(11), (Ids{11, 12, 99}));
    EXPECT_EQ(elements.NodesOf(12), (Ids{11, 12}));
    EXPECT_EQ(elements.NodesOf(13), (Ids{11, 12, 98}));
    EXPECT_EQ(elements.NodesOf(51), (Ids{101, 102, 103, 104, 5, 6}));
    EXPECT_EQ(elements.NodesOf(101), (Ids{11, 12, 109}));
    EXPECT_EQ(elements.NodesOf(150), (Ids{101, 102, 103, 104, 105, 106}));
}

TEST(ElementGenerationElgen, BadRowsEndTheKeywordAndKeepWhatWasMade) {
    Elements elements;
    elements.Read(
        "*ELEMENT, TYPE=T3D2\n100, 1, 2\n"
        "*ELGEN, ELSET=SOME\n100, 2, 1, 1\n100, 2, 1, 999999900\n100, 2, 1, 5\n"
        "*ELGEN, ELSET=LOW\n100, 2, 1, -100\n"
        "*ELGEN, ELSET=MANY\n100, 2000000000, 1, 0\n"
        "*ELGEN, ELSET=NONE\n77, 2\n"
        "*ELGEN, ELSET=ZERO\n100, 0\n100, 2, 1, 7\n");
    EXPECT_EQ(elements.Set("SOME"), (Ids{100, 101}));
    EXPECT_FALSE(elements.Has(105));
    EXPECT_FALSE(elements.Has(107));  // count 0 ended the keyword
    EXPECT_EQ(elements.Set("LOW"), Ids{});
    EXPECT_EQ(elements.Errors(),
              (Texts{elements.At(3, "Maximum element number allowed is 999999999."),
                     elements.At(7, "Minimum element number allowed is 1."),
                     elements.At(9, "Maximum element number allowed is 999999999."),
                     elements.At(11, "Master element 77 is not defined.")}));

    Elements quiet(false);  // a missing master is not reported
    quiet.Read("*ELGEN\n77, 2\n");
    EXPECT_TRUE(quiet.Errors().empty());
    EXPECT_FALSE(quiet.Has(78));
}

TEST(ElementGenerationElcopy, ShiftReflectNewsetAndTheirFaults) {
    Elements elements;
    elements.Read(
        "*ELEMENT, TYPE=C3D8, ELSET=BRICK\n1, 1, 2, 3, 4, 5, 6, 7, 8\n"
        "*ELEMENT, TYPE=C3D8, ELSET=MIX\n2, 1, 2, 3, 4, 5, 6, 7, 8\n"
        "*ELEMENT, TYPE=B31, ELSET=MIX\n5, 1, 2\n"
        "*ELCOPY, ELEMENTSHIFT=100, OLDSET=BRICK, SHIFTNODES=10, NEWSET=COPY\n"
        "*ELCOPY, ELEMENTSHIFT=200, OLDSET=BRICK, SHIFTNODES=10, REFLECT, NEWSET=MIRROR\n"
        "*ELCOPY, ELEMENTSHIFT=300, OLDSET=MIX, SHIFTNODES=0, REFLECT, NEWSET=HALF\n"
        "*ELCOPY, OLDSET=BRICK, SHIFTNODES=1\n"
        "*ELCOPY, ELEMENTSHIFT=1, OLDSET=NONE, SHIFTNODES=1\n"
        "*ELCOPY, ELEMENTSHIFT=999999999, OLDSET=BRICK, SHIFTNODES=1\n");
    EXPECT_EQ(elements.NodesOf(101), (Ids{11, 12, 13, 14, 15, 16, 17, 18}));
    EXPECT_EQ(elements.Set("COPY"), (Ids{101}));
    EXPECT_EQ(elements.NodesOf(201), (Ids{11, 14, 13, 12, 15, 18, 17, 16}));
    EXPECT_EQ(elements.Set("MIRROR"), (Ids{201}));
    // The brick of the mixed set was copied before the beam stopped the keyword.
    EXPECT_EQ(elements.Set("HALF"), (Ids{302}));
    EXPECT_FALSE(elements.Has(305));
    EXPECT_EQ(elements.Errors(),
              (Texts{elements.At(9,
                                 "The element type \"B31\" is either not a continuum element "
                                 "or not yet implemented for the REFLECT option in ELCOPY."),
                     elements.At(10,
                                 "ELEMENTSHIFT, OLDSET, and SHIFTNODES are required "
                                 "parameters."),
                     elements.At(11, "Element set NONE does not exist."),
                     elements.At(12, "Maximum element number allowed is 999999999.")}));

    Elements obsolete;
    obsolete.Put(40, "CGPE6", {1, 2, 3, 4, 5, 6});
    obsolete.AddAssySet("OLD", CreateSet(cow_List<int>{40}, false, false), false);
    obsolete.Read("*ELCOPY, ELEMENTSHIFT=1, OLDSET=OLD, SHIFTNODES=10\n");
    EXPECT_EQ(obsolete.NodesOf(41), (Ids{11, 12, 13, 14, 5, 6}));

    Elements labelsOnly(false);  // the copies are empty records
    labelsOnly.Read(
        "*ELEMENT, TYPE=C3D8, ELSET=BRICK\n1, 1, 2, 3, 4, 5, 6, 7, 8\n"
        "*ELCOPY, ELEMENTSHIFT=100, OLDSET=BRICK, SHIFTNODES=10, REFLECT, NEWSET=COPY\n");
    EXPECT_EQ(labelsOnly.NodesOf(101), Ids{});
    EXPECT_EQ(labelsOnly.Set("COPY"), (Ids{101}));
}

// Mirroring puts the nodes in the order of the type's reflection row, and
// mirroring the mirror gives the element back. One type of each row of the
// table; the table must hold no order that none of them covers.
TEST(ElementGenerationElcopy, ReflectionReordersEveryFamily) {
    char const* const families[] = {"CPE3",  "CPE4",    "COH2D4P", "CPE6",     "C3D6",    "COH3D6P",
                                    "CPE8",  "C3D8",    "C3D10",   "C3D15",    "C3D15V",  "C3D20",
                                    "C3D27", "COH3D8P", "CINPE5R", "CIN3D12R", "CIN3D18R"};
    cow_Map<cow_String, cow_List<int>> const table = inp_ElementTypes::LoadReflectionTable();
    std::set<Ids> covered;
    for (char const* type : families) {
        cow_List<int> const row = table.ConstGet(type);
        covered.insert(Ids(row.begin(), row.end()));
        Elements elements;
        elements.Read(std::string("*ELEMENT, TYPE=") + type + ", ELSET=S\n" +
                      elementRow(1, row.Length()) +
                      "*ELCOPY, ELEMENTSHIFT=1, OLDSET=S, SHIFTNODES=100, REFLECT, NEWSET=M\n"
                      "*ELCOPY, ELEMENTSHIFT=1, OLDSET=M, SHIFTNODES=-100, REFLECT\n");
        ASSERT_EQ(elements.Errors(), Texts{}) << type;
        Ids const original = elements.NodesOf(1);
        ASSERT_EQ(original.size(), static_cast<size_t>(row.Length())) << type;
        Ids expected;
        for (int position : row) expected.push_back(100 + original[position - 1]);
        EXPECT_EQ(elements.NodesOf(2), expected) << type;
        EXPECT_NE(expected[1], 100 + original[1]) << type;  // not the identity
        EXPECT_EQ(elements.NodesOf(3), original) << type;
    }
    table.ForEachSorted([&](cow_String const& type, cow_List<int> const& row) {
        EXPECT_TRUE(covered.count(Ids(row.begin(), row.end()))) << type.View();
    });
}
