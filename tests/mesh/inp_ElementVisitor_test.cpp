#include "mesh/inp_ElementVisitor.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "deck/inp_ElementDataArrayImpl.h"
#include "tests/common/IntRows.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;
using Elements = std::map<int, Ids>;

class ElementDeck : public inp_ElementVisitor {
  public:
    explicit ElementDeck(std::string const& text, bool compactInPart = true, bool compat = false)
        : inp_ElementVisitor(true),
          keywords(InlineDeck(
              text, compactInPart ? InlineElementData::CompactInParts : InlineElementData::Raw)) {
        setAtelierCompatible(compat);
        VisitList(keywords);
    }
    inp_Element const& At(char const* scope, int label) const {
        return (*scope ? m_elementMap.ConstGet(scope) : m_elementMap.ConstGet()).ConstGet(label);
    }
    Elements All(char const* scope) const {
        Elements all;
        inp_MapInt2ElementSIT it(*scope ? m_elementMap.ConstGet(scope) : m_elementMap.ConstGet());
        for (; it.NotDone(); it.Next()) {
            inp_Element const& e = it.CurrentValue();
            all[it.CurrentKey()] = Ids(e.nodes(), e.nodes() + e.numNodesPerElement());
        }
        return all;
    }
    Ids Row(int keyword, int row) const {
        Ids values;
        for (int j = 0; j < keywords[keyword].Data().Cols(row); ++j)
            values.push_back(keywords[keyword].Data().AsInt(row, j));
        return values;
    }

    cow_List<inp_Keyword> keywords;
};

std::string at(int line) {
    return "in keyword *ELEMENT, file \"deck.inp\", line " + std::to_string(line) + ": ";
}

}  // namespace

TEST(ElementReader, RowsContinuationsCountsAndTheElsetInFlatAndPartDecks) {
    for (char const* scope : {"", "P"}) {
        ElementDeck deck(std::string(*scope ? "*PART, NAME=P\n" : "") +
                         R"(*ELEMENT, TYPE=C3D20R, ELSET=E
1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18, 19, 20
2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20
*ELEMENT, TYPE=C3D27
4, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27
5, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18, 19, 20
*ELEMENT, TYPE=CONN3D2, ELSET=E
6, 5,
7, 6
6, 8, 9
*ELEMENT, TYPE=C3D20
8, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18, 19, 20, 21
*ELEMENT, TYPE=T3D2, ELSET=F
9, 13
)"
                         "\n   \n");
        // A row ending in a comma takes no row once it is complete (2), nor
        // when it can stand by itself (6); one short of its least count takes
        // the next (8). C3D27 short of its least count leaves a face node
        // open. The later 6 wins. The blank lines at the end are no rows.
        EXPECT_EQ(deck.All(scope), (Elements{{1, range(1, 20)},
                                             {2, range(1, 20)},
                                             {3, range(1, 20)},
                                             {4, range(1, 27)},
                                             {5, range(1, 20) + Ids{0}},
                                             {6, {8, 9}},
                                             {7, {6}},
                                             {8, range(1, 20)},
                                             {9, {13}}}))
            << scope;
        int const shift = *scope ? 1 : 0;
        EXPECT_EQ(TextsOf(deck.GetWarningList()),
                  Texts{at(15 + shift) + "Too many nodes for element(s) of type \"C3D20\" :\n8"});
        EXPECT_EQ(TextsOf(deck.GetErrorList()),
                  Texts{at(18 + shift) + "Too few nodes for element(s) of type \"T3D2\" :\n9"});
        inpM_SetMap const& sets = deck.ConstGetSetMap();
        inpM_SetHandle const& e =
            *scope ? sets.ConstGetNestedSet(scope, "E") : sets.ConstGetSet("E");
        EXPECT_EQ(e->ConstGetIdList(), (cow_List<int>{1, 2, 3, 6, 7})) << scope;
        EXPECT_FALSE(sets.HasSet("F") || sets.HasNestedSet("P", "F"));  // no set after an error
    }
}

TEST(ElementReader, LayersMadeByOffsetAndTheDataRewritten) {
    ElementDeck deck(R"(*ELEMENT, TYPE=CAXA41
1, 1, 2, 3, 4
2, 1, 2, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=CAXA41, OFFSET=10
3, 1, 2, 3, 4
*ELEMENT, TYPE=GK3D8, OFFSET=10
4, 1, 2, 3, 4
8, 1, 2, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=COH3D8P, OFFSET=10
5, 1, 2, 3, 4
6, 1, 2, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=COH3D8
7, 1, 0, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=GK3D8
9, 1, 2, 3, 4
*ELEMENT, TYPE=CAXA41, ELSET=A
10, 1, 2, 3, 4
11, 1, 2, 3, 4, 5, 6
12, 1, 2, 3, 4
*ELEMENT, TYPE=GK3D8, OFFSET=2.5
13, 1, 2, 3, 4
14, 1, 2, 3, 4
*ELEMENT, TYPE=GK3D8, OFFSET=0
15, 1, 2, 3, 4
)");
    Ids const layered{1, 2, 3, 4, 11, 12, 13, 14};
    // A gasket line with OFFSET gives its bottom only (8): the rest is cut
    // off. Without OFFSET a cohesive element is read as given (7), a gasket
    // one is short (9). CAXA41 with 6 nodes ends its keyword, without a set.
    EXPECT_EQ(deck.All(""), (Elements{{1, {1, 2, 3, 4, 100001, 100002, 100003, 100004}},
                                      {2, range(1, 8)},
                                      {3, layered},
                                      {4, layered},
                                      {5, layered + Ids{21, 22, 23, 24}},
                                      {6, range(1, 8) + Ids{11, 12, 13, 14}},
                                      {7, {1, 0, 3, 4, 5, 6, 7, 8}},
                                      {8, layered},
                                      {9, range(1, 4)},
                                      {10, range(1, 4) + range(100001, 4)}}));
    EXPECT_EQ(
        TextsOf(deck.GetErrorList()),
        (Texts{at(14) + "Too few nodes for element(s) of type \"GK3D8\" :\n9",
               at(16) + "Node numbers must be positive in element 11:\n1, 2, 3, 4, 5, 6, 0, 0",
               at(20) + "Offset must be a positive integer value.",
               at(23) + "Offset parameter must be positive."}));
    EXPECT_FALSE(deck.ConstGetSetMap().HasSet("A"));
    EXPECT_EQ(deck.At("", 4).numNodesDefined(), 4);
    EXPECT_EQ(deck.At("", 4).nodeOffset(), 10);
    EXPECT_EQ(deck.At("", 6).numNodesDefined(), 8);

    // Complete rows replace the bottom-only data; OFFSET stays with the gasket
    // and cohesive keywords; a keyword that made nothing keeps its raw lines.
    EXPECT_EQ(deck.Row(0, 0), (Ids{1, 1, 2, 3, 4, 100001, 100002, 100003, 100004}));
    EXPECT_EQ(deck.Row(3, 1), (Ids{6} + range(1, 8) + Ids{11, 12, 13, 14}));
    EXPECT_FALSE(deck.keywords[1].HasParameter("offset"));
    EXPECT_TRUE(deck.keywords[2].HasParameter("offset") && deck.keywords[3].HasParameter("offset"));
    EXPECT_EQ(dynamic_cast<inp_ElementDataArrayImpl*>(deck.keywords[4].Data().Impl()), nullptr);
}

TEST(ElementReader, ZerosEmptyFieldsAndConnectorsByDataForm) {
    char const* const text = R"(*PART, NAME=P
*ELEMENT, TYPE=C3D8
1, 1, 2, 0, 4, 5, 6, 7, 8
*ELEMENT, TYPE=CONN3D2
2, , 5
3, 0, 6
*END PART
*ELEMENT, TYPE=C3D8
4, 1, 0, , 4, 5, 6, 7, 8
)";
    // Compact data hold 0 for an empty place, so a written zero is one too.
    int const empty = inp_Element::kEmptyConnectorField;
    ElementDeck compact(text, true, true);
    EXPECT_EQ(compact.All("P"),
              (Elements{{1, {1, 2, 4, 5, 6, 7, 8}}, {2, {empty, 5}}, {3, {empty, 6}}}));
    EXPECT_EQ(compact.All(""), (Elements{{4, {1, 0, 0, 4, 5, 6, 7, 8}}}));  // taken untested
    EXPECT_EQ(TextsOf(compact.GetErrorList()),
              Texts{at(2) + "Too few nodes for element(s) of type \"C3D8\" :\n1"});

    ElementDeck raw(text, false);  // raw data in a part: a written zero is told apart
    EXPECT_EQ(raw.All("P"), (Elements{{1, {1, 2, 4, 5, 6, 7, 8}}, {2, {5}}, {3, {0, 6}}}));
    EXPECT_EQ(TextsOf(raw.GetErrorList()),
              (Texts{at(2) + "Integer in element connectivity for element 1 is zero.",
                     at(2) + "Too few nodes for element(s) of type \"C3D8\" :\n1"}));
}

TEST(ElementReader, GasketNodeCountsAndSolidNumbering) {
    ElementDeck deck(R"(*ELEMENT, TYPE=GK3D18
1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16
*ELEMENT, TYPE=GK3D18, SOLID ELEMENT NUMBERING=3
2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18, 19, 20
*ELEMENT, TYPE=GK3D12M, SOLID ELEMENT NUMBERING
3, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, 18
*ELEMENT, TYPE=GK3D18, OFFSET=100
4, 1, 2, 3, 4, 5, 6, 7, 8
)");
    EXPECT_EQ(deck.All(""),
              (Elements{{1, range(1, 16) + Ids{0, 0}},
                        {2, {1, 5, 6, 2, 17, 13, 18, 9, 4, 8, 7, 3, 20, 15, 19, 11, 0, 0}},
                        {3, range(1, 18)},
                        {4, range(1, 8) + range(101, 8)}}));
    EXPECT_EQ(deck.At("", 2).solidElementNumbering(), 0);
    EXPECT_EQ(deck.At("", 3).solidElementNumbering(), 1);
    EXPECT_TRUE(deck.GetErrorList().IsEmpty() && deck.GetWarningList().IsEmpty());
}

TEST(ElementReader, BadInputIsToldAndTheRestOfTheDeckStays) {
    ElementDeck deck(R"(*ELEMENT
1, 1
*ELEMENT, TYPE=CGPE6
2, 1, 2
*ELEMENT, TYPE=XYZ9
3, 1
*ELEMENT, TYPE=U7
4, 1, 2, 3
*ELEMENT, TYPE=Z12, FILE=SUB
5, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17
*PART, NAME=P
*ELEMENT, TYPE=CONN3D2, ELSET=S
1, 1, -2
2, 1234567890, 4
3,
*ELEMENT, TYPE=T3D2
4, 1, 2
X, 1, 2
5, 1, 2
*ELEMENT, TYPE=T3D2
0, 1, 2
*ELEMENT, TYPE=T3D2
1234567890, 1, 2
*ELEMENT, TYPE=C3D20
6, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, -18, , 20
*END PART
*ELEMENT, TYPE=C3D20
7, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
16, 17, A, , 20
)",
                     false);
    EXPECT_EQ(
        TextsOf(deck.GetErrorList()),
        (Texts{at(1) + "Element type is required.", at(1) + "Element type \"\" is not supported.",
               at(3) + "Element type \"CGPE6\" has become obsolete.  Please check the "
                       "User's manual for the current release.",
               at(5) + "Element type \"XYZ9\" is not supported.",
               at(7) + "This user element type has not been defined properly.Check *USER "
                       "ELEMENT definitions.",
               at(13) + "Integer in element connectivity for element 1 is negative.",
               at(13) + "Non integer or label exceeds 9 digits in element connectivity for "
                        "element 2",
               at(13) + "Element connectivity is missing for element 3 of type \"CONN3D2\"",
               at(17) + "Element number is not an integer or exceeds 9 digits for element "
                        "of type T3D2.",
               at(21) + "Element number is not a positive integer for element of type T3D2.",
               at(23) + "Element number is not an integer or exceeds 9 digits for element "
                        "of type T3D2.",
               at(25) + "Label \"\" is non integer or exceeds 9 digits in element "
                        "connectivity for element 6"}));
    // The unknown user element and the superelement have open counts; the
    // walk stopped at X; continuation values keep their places; the
    // assembly level takes values untested.
    EXPECT_EQ(deck.All(""),
              (Elements{{4, range(1, 3)}, {5, range(1, 17)}, {7, range(1, 17) + Ids{0, 0, 20}}}));
    EXPECT_EQ(deck.At("", 5).file(), "SUB");
    EXPECT_EQ(deck.All("P"),
              (Elements{{1, {1}}, {2, {4}}, {4, {1, 2}}, {6, range(1, 17) + Ids{-18, 0, 20}}}));
    EXPECT_FALSE(deck.ConstGetSetMap().HasInstance("P"));
}
