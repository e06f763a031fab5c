#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "mesh/inp_ElementVisitor.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

// Reads a deck at construction. The level-specific visitors widen the
// instances an assembly keyword may name; here they are listed.
class SetDeck : public inp_ElementVisitor {
  public:
    explicit SetDeck(std::string const& text, std::set<std::string> instances = {})
        : inp_ElementVisitor(true), m_instances(std::move(instances)) {
        cow_List<inp_Keyword> keywords = InlineDeck(text);
        VisitList(keywords);
    }
    bool IsValidInstanceName(cow_String const& name) const override {
        return m_instances.count(std::string(name.View())) > 0;
    }
    // The ids of the set `name` of `scope` (the assembly level for ""), or
    // those it holds under `instance`; {-1} when there are none.
    Ids Of(char const* scope, char const* name, char const* instance = nullptr) const {
        inpM_SetMap const& sets = ConstGetSetMap();
        inpM_BaseSet const& set =
            *scope ? *sets.ConstGetNestedSet(scope, name) : *sets.ConstGetSet(name);
        cow_List<int> const own = set.ConstGetIdList();
        auto const byInstance = set.ConstGetInstanceIdLists();
        cow_List<int> const* list = instance ? byInstance.Find(instance) : &own;
        return list ? Ids(list->begin(), list->end()) : Ids{-1};
    }

  private:
    std::set<std::string> m_instances;
};

std::string at(char const* keyword, int line) {
    return std::string("in keyword *") + keyword + ", file \"deck.inp\", line " +
           std::to_string(line) + ": ";
}

}  // namespace

TEST(ElementSets, ElsetInPartMergesGeneratesAndKeepsTheUnsortedOrder) {
    SetDeck deck(R"(*PART, NAME=P
*ELSET, ELSET=A
9, 3, 7
*ELSET, ELSET=A, GENERATE
1, 5, 2
*ELSET, ELSET=B, UNSORTED
8, A, 2
*ELSET, ELSET=C
GHOST, 4, 1234567890
*ELSET
1
*END PART)");
    EXPECT_EQ(deck.Of("P", "A"), (Ids{1, 3, 5, 7, 9}));
    EXPECT_EQ(deck.Of("P", "B"), (Ids{8, 1, 3, 5, 7, 9, 2}));
    EXPECT_EQ(deck.Of("P", "C"), Ids{4});
    EXPECT_EQ(TextsOf(deck.GetErrorList()),
              (Texts{at("ELSET", 8) + "Invalid data:\n1234567890",
                     at("ELSET", 8) + "The following sets specified do not exist:\nGHOST",
                     at("ELSET", 10) + "ELSET parameter is required."}));
}

TEST(ElementSets, AssemblyElsetsAndTheRetryOfThoseThatFailed) {
    SetDeck deck(R"(*ASSEMBLY, NAME=A
*ELSET, ELSET=S
I1.4, I1.2, 7
*ELSET, ELSET=T, INSTANCE=I1, GENERATE
1, 3
*ELSET, ELSET=U
5, LATER.SET, NOWHERE
*ELSET, ELSET=V, GENERATE
9
*END ASSEMBLY)",
                 {"I1"});
    EXPECT_EQ(deck.Of("", "S"), Ids{7});
    EXPECT_EQ(deck.Of("", "S", "I1"), (Ids{2, 4}));
    EXPECT_EQ(deck.Of("", "T", "I1"), (Ids{1, 2, 3}));
    // U names sets that do not exist yet: its errors are withdrawn, what
    // could be read is stored, and the keyword waits in the retry list.
    EXPECT_EQ(deck.Of("", "U"), Ids{5});
    ASSERT_EQ(deck.UnresolvedElsets().Length(), 1);
    EXPECT_EQ(deck.UnresolvedElsets()[0].LineNumber(), 6);
    // A generation fault is no matter of missing instances: it stays.
    EXPECT_EQ(TextsOf(deck.GetErrorList()),
              (Texts{at("ELSET", 8) + "Not enough data provided to generate the *ELSET: V"}));
}

TEST(ElementSets, UserElementsGiveTheirNodeCounts) {
    SetDeck deck(R"(*USER ELEMENT, TYPE=U1, NODES=3
*USER ELEMENT, TYPE=U1, NODES=5
*USER ELEMENT, TYPE=U2, FILE=LIB
*USER ELEMENT, TYPE=U3, NODES=0
*USER ELEMENT, TYPE=U4
*USER ELEMENT, NODES=2
*ELEMENT, TYPE=U1
1, 11, 12, 13, 14
*ELEMENT, TYPE=U2
2, 11, 12, 13, 14, 15
*ELEMENT, TYPE=U3
3, 11
)");
    EXPECT_EQ(TextsOf(deck.GetErrorList()),
              (Texts{at("USERELEMENT", 4) +
                         "The number of nodes on a user element must be greater than zero.",
                     at("USERELEMENT", 5) + "The NODES parameter is required.",
                     at("USERELEMENT", 6) + "The TYPE parameter is required.",
                     at("ELEMENT", 11) + "Element connectivity is missing for element 3 of type "
                                         "\"U3\""}));
    // U1 takes 3 nodes, the first count.
    EXPECT_EQ(TextsOf(deck.GetWarningList()),
              Texts{at("ELEMENT", 7) + "Too many nodes for element(s) of type \"U1\" :\n1"});
    inp_MapInt2Element const& table = deck.ConstGetElementMap().ConstGet();
    EXPECT_EQ(table.ConstGet(1).numNodesPerElement(), 3);
    EXPECT_EQ(table.ConstGet(2).numNodesPerElement(), 5);  // from a file: any count
    EXPECT_FALSE(table.IsMember(3));
}

TEST(ElementSets, FastenerPlaceholdersAndParticleMixtureSets) {
    SetDeck deck(R"(*PART, NAME=P
*ELSET, ELSET=OLD
1
*FASTENER, ELSET=F
*FASTENER, ELSET=OLD
*PARTICLE GENERATOR MIXTURE
M1, OLD, 3, M2
M1, 4.5
*END PART
*ASSEMBLY, NAME=A
*FASTENER, ELSET=G
*FASTENER, ELSET=I1.H
*FASTENER, ELSET=I2.H
*FASTENER
*PARTICLE GENERATOR MIXTURE
Q
*END ASSEMBLY)",
                 {"I1"});
    EXPECT_TRUE(deck.Of("P", "F").empty());
    EXPECT_EQ(deck.Of("P", "OLD"), Ids{1});  // a set that exists stays as it is
    EXPECT_TRUE(deck.Of("P", "M1").empty() && deck.Of("P", "M2").empty());
    EXPECT_TRUE(deck.Of("", "G").empty());
    EXPECT_TRUE(deck.Of("I1", "H").empty());
    EXPECT_FALSE(deck.ConstGetSetMap().HasInstance("I2"));
    EXPECT_FALSE(deck.ConstGetSetMap().HasSet("Q"));  // mixtures are part sets only
    EXPECT_EQ(
        TextsOf(deck.GetErrorList()),
        (Texts{at("PARTICLEGENERATORMIXTURE", 6) + "The following sets already exist:\n    OLD, M1",
               at("PARTICLEGENERATORMIXTURE", 6) +
                   "The following labels have been disregarded:\n    3, 4.5",
               at("FASTENER", 13) + "Unknown instance I2."}));
}
