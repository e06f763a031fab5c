#include "deck/inp_KeywordTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "deck/inp_Exceptions.h"

namespace {

inp_KeywordTable& table() {
    return inp_KeywordTable::Instance();
}

std::set<int> asSet(cow_List<int> const& list) {
    std::set<int> result;
    for (int k : list) result.insert(k);
    return result;
}

}  // namespace

TEST(KeywordTableAbbreviation, ExactNamesAndUniquePrefixesResolve) {
    EXPECT_EQ(table().FullName("elset"), "elset");
    EXPECT_EQ(table().FullName("elcopy"), "elcopy");
    EXPECT_EQ(table().FullName("elg"), "elgen");
    EXPECT_EQ(table().FullName("head"), "heading");
    EXPECT_EQ(table().Enum("node"), inp_kw_Node);  // exact, although nodefile starts with it
    EXPECT_EQ(table().Enum("step"), inp_kw_Step);
    EXPECT_EQ(table().Enum("undefined"), inp_kw_UndefinedKeyword);
    EXPECT_EQ(table().FullName("undefined"), "undefined keyword");
    EXPECT_EQ(table().Enum("__model__"), inp_kw_Model);
    EXPECT_EQ(table().Enum("eof"), inp_kw_Eof);
    EXPECT_EQ(table().Enum("pre-tension"), inp_kw_PreTensionSection);
}

TEST(KeywordTableAbbreviation, UnknownAndAmbiguousNamesThrowOrGiveZero) {
    EXPECT_THROW(table().FullName("el"), inp_AmbiguousKeywordException);
    EXPECT_THROW(table().FullName(""), inp_AmbiguousKeywordException);
    EXPECT_THROW(table().FullName("nosuchkeyword"), inp_UnknownKeywordException);
    EXPECT_EQ(table().Enum("el"), inp_kw_UndefinedKeyword);
    EXPECT_EQ(table().Enum("nosuchkeyword"), inp_kw_UndefinedKeyword);
    try {
        table().FullName("zzz");
        FAIL();
    } catch (inp_UnknownKeywordException const& e) {
        EXPECT_EQ(e.UserReport(),
                  "Unknown keyword \"zzz\". The keyword may be misspelled, obsolete, or invalid.");
        EXPECT_EQ(e.LineNumber(), 0);
        EXPECT_TRUE(e.FileName().IsEmpty());
    }
    try {
        table().FullName("el");
        FAIL();
    } catch (inp_AmbiguousKeywordException const& e) {
        EXPECT_EQ(e.UserReport(), "Ambiguous keyword definition \"el\".");
    }
}

// The search of the sorted names against a scan of every name, for every
// prefix of every name and a few texts that are none: the count of names a
// text abbreviates (an exact name counting as one) and the keyword it gives.
TEST(KeywordTableAbbreviation, MatchAgreesWithAScanOfEveryName) {
    std::set<int> keys = asSet(table().AllKeywords());
    keys.insert(inp_kw_UndefinedKeyword);  // its row has a name too
    std::vector<std::string> names;
    for (int key : keys) names.emplace_back(table().Name(static_cast<inp_KeywordEnm>(key)).View());
    std::set<std::string> probes{"", "zzz", "nodez", "~", "*node"};
    for (std::string const& name : names)
        for (size_t length = 1; length <= name.size(); ++length)
            probes.insert(name.substr(0, length));
    for (std::string const& probe : probes) {
        int expected = 0;
        inp_KeywordEnm only = inp_kw_UndefinedKeyword;
        for (std::string const& name : names) {
            if (name == probe) {
                expected = 1;
                only = table().Enum(cow_String(name.c_str()));
                break;
            }
            if (name.starts_with(probe)) {
                ++expected;
                only = table().Enum(cow_String(name.c_str()));
            }
        }
        inp_KeywordEnm found = inp_kw_Node;
        int const matches = table().Match(probe, found);
        EXPECT_EQ(std::min(matches, 2), std::min(expected, 2)) << probe;
        EXPECT_EQ(found, expected == 1 ? only : inp_kw_UndefinedKeyword) << probe;
    }
}

TEST(KeywordTableContent, AllKeywordsAreTheNumberedTableSortedAndNamed) {
    cow_List<int> all = table().AllKeywords();
    ASSERT_EQ(all.Length(), 547);
    EXPECT_EQ(all.ConstGet(0), 0);
    EXPECT_EQ(all.Last(), 11101);
    for (int k = 1; k < all.Length(); ++k) EXPECT_LT(all.ConstGet(k - 1), all.ConstGet(k));
    EXPECT_EQ(table().Name(inp_kw_Include), "include");
    EXPECT_EQ(inp_kw_Include, 292);
    EXPECT_EQ(table().Name(inp_kw_ImportElset), "importelset");
    EXPECT_EQ(inp_kw_ImportElset, 17);
    EXPECT_EQ(table().Name(static_cast<inp_KeywordEnm>(10006)), "__model__");
    for (int k : all) EXPECT_EQ(table().Enum(table().Name(static_cast<inp_KeywordEnm>(k))), k);
}

// The count, the key limit and the names by key are derived from the
// keyword list at compile time; the table is built from it at run time.
TEST(KeywordTableContent, TheConstantsDerivedFromTheKeywordListAgreeWithTheTable) {
    cow_List<int> all = table().AllKeywords();
    EXPECT_EQ(inp_keywordCount, all.Length());
    EXPECT_EQ(inp_keywordKeyLimit, all.Last() + 1);
    for (int k : all) {
        char const* name = inp_KeywordTableName(static_cast<inp_KeywordEnm>(k));
        ASSERT_NE(name, nullptr) << k;
        EXPECT_EQ(table().Name(static_cast<inp_KeywordEnm>(k)), name);
    }
    EXPECT_EQ(inp_KeywordTableName(static_cast<inp_KeywordEnm>(19)), nullptr);
}

TEST(KeywordTableContent, SuboptionsKeepTheOrderOfTheirRow) {
    cow_List<int> const& amplitude = table().Suboptions(inp_kw_Amplitude);
    ASSERT_EQ(amplitude.Length(), 1);
    EXPECT_EQ(amplitude.ConstGet(0), inp_kw_BaselineCorrection);
    cow_List<int> const& coupling = table().Suboptions(inp_kw_Coupling);
    ASSERT_EQ(coupling.Length(), 2);
    EXPECT_EQ(coupling.ConstGet(0), inp_kw_Kinematic);
    EXPECT_EQ(coupling.ConstGet(1), inp_kw_Distributing);
    EXPECT_TRUE(table().Suboptions(inp_kw_Node).IsEmpty());
    EXPECT_EQ(table().Suboptions(inp_kw_Assembly).Last(), inp_kw_Element);
}

TEST(KeywordTableContent, ParentsOfAKeywordThatStandsInManyPlaces) {
    std::set<int> parents = asSet(table().ParentKeywords(inp_kw_Friction));
    EXPECT_EQ(parents,
              (std::set<int>{inp_kw_Interface, inp_kw_Gap, inp_kw_Its, inp_kw_SurfaceInteraction,
                             inp_kw_ChangeFriction, inp_kw_ConnectorFriction,
                             inp_kw_DiscreteInteractionProperty}));
    EXPECT_EQ(table().ParentKeywords(inp_kw_Friction).Length(), 7);
    EXPECT_TRUE(table().ParentKeywords(inp_kw_Model).IsEmpty());
}

TEST(KeywordTableBelow, DepthFirstWithRepeatsAndWithoutTheKeywordItself) {
    cow_List<int> below = table().AllKeywordsBelow(inp_kw_Coupling);
    ASSERT_EQ(below.Length(), 2);
    cow_List<int> deeper = table().AllKeywordsBelow(inp_kw_DamageInitiation);
    // damage initiation > damage evolution > damage stabilization
    ASSERT_EQ(deeper.Length(), 2);
    EXPECT_EQ(deeper.ConstGet(0), inp_kw_DamageEvolution);
    EXPECT_EQ(deeper.ConstGet(1), inp_kw_DamageStabilization);

    cow_List<int> list{inp_kw_Coupling, inp_kw_Coupling};
    cow_List<int> twice = table().AllKeywordsBelow(list);
    EXPECT_EQ(twice.Length(), 6);
    EXPECT_EQ(twice.ConstGet(0), inp_kw_Coupling);
    EXPECT_EQ(twice.ConstGet(1), inp_kw_Kinematic);
    EXPECT_EQ(twice.ConstGet(3), inp_kw_Coupling);
}

TEST(KeywordTableBelow, TheFourNamedLists) {
    std::set<int> part = asSet(table().PartSuboptions());
    std::set<int> instance = asSet(table().InstanceSuboptions());
    std::set<int> assembly = asSet(table().AssemblySuboptions());
    std::set<int> model = asSet(table().ModelSuboptions());

    EXPECT_TRUE(part.count(inp_kw_Node) && part.count(inp_kw_SolidSection) &&
                part.count(inp_kw_Kinematic));
    EXPECT_FALSE(part.count(inp_kw_Part));
    EXPECT_TRUE(instance.count(inp_kw_Import));  // only an instance allows *IMPORT below it
    EXPECT_FALSE(part.count(inp_kw_Import));

    // What only an instance allows stays out of the assembly list; what both allow is in.
    for (int onlyInstance :
         {inp_kw_Import, inp_kw_Ncopy, inp_kw_Ngen, inp_kw_SolidSection, inp_kw_Instance})
        EXPECT_FALSE(assembly.count(onlyInstance)) << onlyInstance;
    for (int both : {inp_kw_Nset, inp_kw_Orientation, inp_kw_Tie})
        EXPECT_TRUE(assembly.count(both)) << both;
    EXPECT_TRUE(assembly.count(inp_kw_Surface) && assembly.count(inp_kw_Node));

    for (int k : table().AllKeywordsBelow(inp_kw_Step)) EXPECT_TRUE(model.count(k));
    for (int k : table().AllKeywordsBelow(inp_kw_Material)) EXPECT_TRUE(model.count(k));
    EXPECT_TRUE(model.count(inp_kw_Step) && model.count(inp_kw_Material));
    EXPECT_FALSE(model.count(inp_kw_Part));
    EXPECT_FALSE(model.count(inp_kw_Assembly));
}

TEST(KeywordTableNames, EnumListToString) {
    EXPECT_EQ(table().KeywordEnum2String(cow_List<int>{inp_kw_Node, inp_kw_Element}),
              "node, element");
    EXPECT_EQ(table().KeywordEnum2String(cow_List<int>()), "");
}

TEST(KeywordTableLifecycle, FinalizeEndsTheInstanceAndANewOneIsBuilt) {
    EXPECT_EQ(table().Enum("node"), inp_kw_Node);
    inp_KeywordTable::Finalize();
    EXPECT_EQ(table().Enum("node"), inp_kw_Node);
}
