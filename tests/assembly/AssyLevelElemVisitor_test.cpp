#include "assembly/inp_AssyLevelElemVisitor.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "support/ZELBasException.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;
using Elements = std::map<int, Ids>;

// Old to global node ids: assembly nodes 100 and 101, nodes 7 and 8 of INST,
// node 7 of INST2.
inpM_IdMap NodeIds() {
    inpM_IdMap ids;
    ids.Insert(100, 1001);
    ids.Insert(101, 1002);
    inpM_IdMap instance;
    instance.Insert(7, 2007);
    instance.Insert(8, 2008);
    ids.Insert("INST", instance);
    inpM_IdMap second;
    second.Insert(7, 3007);
    ids.Insert("INST2", second);
    return ids;
}

Elements AllOf(inp_MapInt2Element const& table) {
    Elements all;
    for (inp_MapInt2ElementSIT it(table); it.NotDone(); it.Next()) {
        inp_Element const& e = it.CurrentValue();
        all[it.CurrentKey()] = Ids(e.nodes(), e.nodes() + e.numNodesPerElement());
    }
    return all;
}

Ids IdsOf(inpM_SetMap const& sets, char const* name) {
    if (!sets.HasSet(name)) return {};
    cow_List<int> const ids = sets.ConstGetSet(name)->ConstGetIdList();
    return Ids(ids.begin(), ids.end());
}

struct AssyDeck {
    explicit AssyDeck(std::string const& text,
                      inpM_InstanceMap<inp_MapInt2Element> const& start = {},
                      bool readElsets = false)
        : keywords(InlineDeck(text)), visitor(start, inpM_SetMap(), NodeIds(), readElsets) {
        visitor.VisitList(keywords);
    }
    Elements Assembly() const { return AllOf(visitor.ConstGetElementMap().ConstGet()); }
    Texts Errors() const { return TextsOf(visitor.GetErrorList()); }
    Texts Warnings() const { return TextsOf(visitor.GetWarningList()); }
    Ids Set(char const* name) const { return IdsOf(visitor.ConstGetSetMap(), name); }

    cow_List<inp_Keyword> keywords;
    inp_AssyLevelElemVisitor visitor;
};

std::string at(int line) {
    return "in keyword *ELEMENT, file \"deck.inp\", line " + std::to_string(line) + ": ";
}

}  // namespace

TEST(AssyLevelElements, AllowedTypesTakeGlobalIdsAndJoinTheirElset) {
    inpM_InstanceMap<inp_MapInt2Element> start;
    inp_MapInt2Element assembly;
    assembly.Insert(99, inp_Element("MASS", cow_List<int>{1001}, 0, 0, 0));
    start.SetValue(assembly);
    AssyDeck deck(R"(*ELEMENT, TYPE=CONN3D2, ELSET=WIRES
1, 100, Inst.7
2, 0, Inst.8
3, Inst.8,
4, , 101
*ELEMENT, TYPE=MASS, ELSET=M
10, 101
*ELEMENT, TYPE=GAPUNI
20, Inst.7, Inst.8
21, Inst2.7, inst . 8
22, INST2.7, Inst.7
*ELEMENT, TYPE=SPRINGA
30, 100, 101
*ELEMENT, TYPE=DCOUP3D
40, 100
*ELEMENT, TYPE=SPRINGX
50, 100
)",
                  start);
    EXPECT_EQ(deck.Errors(), Texts{});
    EXPECT_EQ(deck.Warnings(), Texts{});
    // A connector's 0 and blank item are its ground; blank trailing items go.
    Elements const expected{{1, {1001, 2007}},  {2, {0, 2008}},     {3, {2008}},
                            {4, {0, 1002}},     {10, {1002}},       {20, {2007, 2008}},
                            {21, {3007, 2008}}, {22, {3007, 2007}}, {30, {1001, 1002}},
                            {40, {1001}},       {50, {1001}},       {99, {1001}}};
    EXPECT_EQ(deck.Assembly(), expected);
    EXPECT_EQ(deck.Set("WIRES"), (Ids{1, 2, 3, 4}));
    EXPECT_EQ(deck.Set("M"), Ids{10});
    // The caller's table is not written into.
    EXPECT_EQ(AllOf(assembly), (Elements{{99, {1001}}}));
}

TEST(AssyLevelElements, OtherTypesAndAMissingTypeAreRefusedWhileGoodKeywordsStay) {
    AssyDeck deck(R"(*ELEMENT, TYPE=C3D8
5, 100, 101, 100, 101, 100, 101, 100, 101
*ELEMENT
6, 100
*ELEMENT, TYPE=MASS
7, 100
)");
    EXPECT_EQ(
        deck.Errors(),
        (Texts{at(1) + "Only connector, spring, dashpot, mass, rotary inertia, and capacitance "
                       "elements can be created at the assembly level.",
               at(3) + "Element type is required"}));
    EXPECT_EQ(deck.Assembly(), (Elements{{7, {1001}}}));
}

TEST(AssyLevelElements, ConnectivityFaultsAreReportedPerElementAndTheRestIsRead) {
    AssyDeck deck(R"(*ELEMENT, TYPE=SPRINGA, ELSET=S
1, 100, 101
2, ns1, 101
3, 999, 101
4, Inst.x, 101
5, Other.7, 101
6, Inst.99, 101
7, 1.5, 101
8, , 101
9, 0, 101
10
11, 100, 101, 100
12, 100
13, Asm.Inst.8, 101
0, 100, 101
14, 100, 101
)");
    std::string const title = at(1);
    EXPECT_EQ(
        deck.Errors(),
        (Texts{
            title + "Connectivity item NS1 appears to be a node set. This is not allowed.",
            title + "Connectivity item 999 is an undefined assembly level node.",
            title + "Connectivity item INST.X is unrecognizable as a scoped ID ( "
                    "<instanceName>.<integer ID> ).",
            title + "Unknown instance name OTHER",
            title + "Unknown local ID 99 in instance INST",
            title + "*Element: an unrecognizable item (neither integer nor text string) is "
                    "detected in the connectivity list for element 7 of type \"SPRINGA\". The item "
                    "in question is: 1.5",
            title + "*Element: an unrecognizable item (neither integer nor text string) is "
                    "detected in the connectivity list for element 8 of type \"SPRINGA\". The item "
                    "in question is: ",
            title + "Connectivity item 0 is an undefined assembly level node.",
            title + "*Element: topology information is missing for element 10 of type \"SPRINGA\"",
            title + "element number is not defined or is zero for element of type SPRINGA",
            title + "Too few nodes for element(s) of type \"SPRINGA\":\n12",
        }));
    EXPECT_EQ(deck.Warnings(),
              Texts{title + "Too many nodes for element(s) of type \"SPRINGA\":\n11"});
    // An item that cannot be resolved holds 0; too many nodes are cut to the
    // type's count; line 0 ends the keyword, so 14 is not read.
    Elements const expected{{1, {1001, 1002}},  {2, {0, 1002}}, {3, {0, 1002}},
                            {4, {0, 1002}},     {5, {0, 1002}}, {6, {0, 1002}},
                            {7, {0, 1002}},     {8, {0, 1002}}, {9, {0, 1002}},
                            {11, {1001, 1002}}, {12, {1001}},   {13, {2008, 1002}}};
    EXPECT_EQ(deck.Assembly(), expected);
    EXPECT_EQ(deck.Set("S"), (Ids{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13}));
}

namespace {

// A translation that raises a message exception for the item BAD.
class RaisingVisitor : public inp_AssyLevelElemVisitor {
  public:
    RaisingVisitor()
        : inp_AssyLevelElemVisitor(inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(),
                                   NodeIds()) {}
    int GetGlobalNodeFromScopedID(cow_String const& item, bool zeroAllowed) override {
        if (item == "BAD")
            throw nex_PrimException<atr_String, 1>(atr("Id %d is not in the id map", 5));
        return inp_AssyLevelElemVisitor::GetGlobalNodeFromScopedID(item, zeroAllowed);
    }
};

}  // namespace

TEST(AssyLevelElements, AMessageExceptionSkipsOnlyItsElement) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*ELEMENT, TYPE=SPRINGA
1, 100, bad
2, Inst.7, 101
)");
    RaisingVisitor visitor;
    visitor.VisitList(keywords);
    EXPECT_EQ(TextsOf(visitor.GetErrorList()),
              Texts{at(1) +
                    "There are errors in the connectivity list for element 1 of type \"SPRINGA\". "
                    "Id 5 is not in the id map"});
    EXPECT_EQ(AllOf(visitor.ConstGetElementMap().ConstGet()), (Elements{{2, {2007, 1002}}}));
}

TEST(AssyLevelElements, ScopedIdsOnTheirOwn) {
    inp_AssyLevelElemVisitor visitor(inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(),
                                     NodeIds());
    EXPECT_EQ(visitor.GetGlobalNodeFromScopedID("0", true), 0);
    EXPECT_EQ(TextsOf(visitor.GetErrorList()), Texts{});
    EXPECT_EQ(visitor.GetGlobalNodeFromScopedID("101", false), 1002);
    EXPECT_EQ(visitor.GetGlobalNodeFromScopedID("INST.8", false), 2008);
    EXPECT_EQ(visitor.GetGlobalNodeFromScopedID("ASM.INST.7", false), 2007);
    // Without a keyword being read the message stands undecorated.
    EXPECT_EQ(visitor.GetGlobalNodeFromScopedID("0", false), 0);
    EXPECT_EQ(TextsOf(visitor.GetErrorList()),
              Texts{"Connectivity item 0 is an undefined assembly level node."});
}

TEST(AssyLevelElements, PartsInstancesAndStepsAreNotEntered) {
    cow_List<inp_Keyword> flat = InlineDeck(R"(*PART, NAME=P
*ELEMENT, TYPE=MASS
1, 100
*INSTANCE, NAME=INST, PART=P
*ELEMENT, TYPE=C3D8
2, 7, 8
*STEP
*ELEMENT, TYPE=MASS
3, 100
*ELEMENT, TYPE=MASS
4, 101
)");
    // Each opener holds the keyword behind it, as an organized deck does.
    cow_List<inp_Keyword> tree;
    for (int opener : {0, 2, 4}) {
        inp_Keyword keyword = flat[opener];
        keyword.SetSuboptions(cow_List<inp_Keyword>{flat[opener + 1]});
        tree.Append(keyword);
    }
    tree.Append(flat[6]);
    inp_AssyLevelElemVisitor visitor(inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(),
                                     NodeIds());
    visitor.VisitList(tree);
    EXPECT_EQ(TextsOf(visitor.GetErrorList()), Texts{});
    EXPECT_EQ(AllOf(visitor.ConstGetElementMap().ConstGet()), (Elements{{4, {1002}}}));
}

TEST(AssyLevelElements, ElsetsAreReadOnlyWhenAskedFor) {
    std::string const text = R"(*ELSET, ELSET=PICKED
1, 2
*ELSET, ELSET=RANGE, GENERATE
10, 14, 2
)";
    AssyDeck quiet(text);
    EXPECT_TRUE(quiet.visitor.ConstGetSetMap().IsEmpty());
    AssyDeck reading(text, {}, true);
    EXPECT_EQ(reading.Errors(), Texts{});
    EXPECT_EQ(reading.Set("PICKED"), (Ids{1, 2}));
    EXPECT_EQ(reading.Set("RANGE"), (Ids{10, 12, 14}));
}
