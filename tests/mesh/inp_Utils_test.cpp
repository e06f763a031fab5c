#include "mesh/inp_Utils.h"

#include <gtest/gtest.h>

#include <string>

#include "deck/inp_Keyword.h"

namespace {

cow_List<cow_String> pieces(std::initializer_list<char const*> texts) {
    cow_List<cow_String> list;
    for (char const* text : texts) list.Append(cow_String(text));
    return list;
}

inp_Keyword located(inp_KeywordEnm key, char const* file, int line) {
    inp_Keyword keyword(key, cow_String(file));
    keyword.SetLineNumber(line);
    return keyword;
}

}  // namespace

TEST(UtilsNameTests, IdsSetNamesAndScopedPieces) {
    EXPECT_TRUE(inp_Utils::IsId("12"));
    EXPECT_TRUE(inp_Utils::IsId("1a"));
    EXPECT_FALSE(inp_Utils::IsId("a1"));
    EXPECT_FALSE(inp_Utils::IsId(""));

    EXPECT_TRUE(inp_Utils::IsSetName("top"));
    EXPECT_TRUE(inp_Utils::IsSetName("inst.top"));
    EXPECT_TRUE(inp_Utils::IsSetName("\"my set\""));
    EXPECT_FALSE(inp_Utils::IsSetName("1top"));
    EXPECT_FALSE(inp_Utils::IsSetName("a,b"));

    EXPECT_TRUE(inp_Utils::IsScopedSetName(pieces({"inst", "top"})));
    EXPECT_FALSE(inp_Utils::IsScopedSetName(pieces({"top"})));
    EXPECT_FALSE(inp_Utils::IsScopedSetName(pieces({"inst", "7"})));
    EXPECT_TRUE(inp_Utils::IsScopedSetId(pieces({"inst", "7"})));
    EXPECT_FALSE(inp_Utils::IsScopedSetId(pieces({"7"})));
    EXPECT_FALSE(inp_Utils::IsScopedSetId(pieces({"inst", "top"})));
}

TEST(UtilsNameTests, UnquotedPeriodsAndAnalyticalSurfaceTypes) {
    EXPECT_FALSE(inp_Utils::HasNameUnquotedPeriod("\"a.b\""));
    EXPECT_TRUE(inp_Utils::HasNameUnquotedPeriod("inst.\"a.b\""));
    EXPECT_FALSE(inp_Utils::HasNameUnquotedPeriod("plain"));
    EXPECT_FALSE(inp_Utils::HasNameUnquotedPeriod(""));

    for (char const* type : {"SEGMENTS", "CYLINDER", "REVOLUTION", "USER", "BEZIER", "BSPLINE"})
        EXPECT_TRUE(inp_Utils::IsAnalyticalSurfaceType(type)) << type;
    EXPECT_FALSE(inp_Utils::IsAnalyticalSurfaceType("segments"));
    EXPECT_FALSE(inp_Utils::IsAnalyticalSurfaceType("USER "));
    EXPECT_FALSE(inp_Utils::IsAnalyticalSurfaceType(""));
}

TEST(UtilsSplit, SplitsAtUnquotedPeriodsAndAlwaysKeepsTheLastPiece) {
    EXPECT_EQ(inp_Utils::SplitScopedSet("inst.\"set.1\""), pieces({"inst", "\"set.1\""}));
    EXPECT_EQ(inp_Utils::SplitScopedSet("a.b.c"), pieces({"a", "b", "c"}));
    EXPECT_EQ(inp_Utils::SplitScopedSet(""), pieces({""}));
    EXPECT_EQ(inp_Utils::SplitScopedSet("a."), pieces({"a", ""}));
    EXPECT_EQ(inp_Utils::SplitScopedSet(".a"), pieces({"", "a"}));
}

TEST(UtilsRewrite, RemovePeriodLeavesIdsAndReplacesEveryPeriodOfNames) {
    EXPECT_EQ(inp_Utils::RemovePeriod("1.5"), "1.5");
    EXPECT_EQ(inp_Utils::RemovePeriod("a.b"), "a_b");
    EXPECT_EQ(inp_Utils::RemovePeriod("a.\"b.c\""), "a_\"b_c\"");
    cow_String const plain("plain");
    EXPECT_TRUE(inp_Utils::RemovePeriod(plain).SharesWith(plain));
}

TEST(UtilsRewrite, UnquotedPeriodsGoOrBecomeUnderscoresKeepingQuotes) {
    EXPECT_EQ(inp_Utils::RemoveUnquotedPeriod("a.\"b.c\".d"), "a\"b.c\"d");
    EXPECT_EQ(inp_Utils::ReplaceUnquotedPeriodWithUnderscore("a.\"b.c\".d"), "a_\"b.c\"_d");
    cow_String const quoted("\"b.c\"");
    EXPECT_TRUE(inp_Utils::RemoveUnquotedPeriod(quoted).SharesWith(quoted));
    EXPECT_TRUE(inp_Utils::ReplaceUnquotedPeriodWithUnderscore(quoted).SharesWith(quoted));
}

TEST(UtilsRewrite, RewrittenNamesStopAt255CharactersUnlessNothingIsRewritten) {
    cow_String const longPlain(std::string(300, 'x'));
    EXPECT_EQ(inp_Utils::RemoveUnquotedPeriod(longPlain).Length(), 300);
    EXPECT_EQ(inp_Utils::ReplaceUnquotedPeriodWithUnderscore(longPlain).Length(), 300);

    cow_String const longScoped(std::string("a.") + std::string(300, 'x'));
    cow_String const removed = inp_Utils::RemoveUnquotedPeriod(longScoped);
    EXPECT_EQ(removed.Length(), 255);
    EXPECT_EQ(removed.View(), std::string("a") + std::string(254, 'x'));
    cow_String const replaced = inp_Utils::ReplaceUnquotedPeriodWithUnderscore(longScoped);
    EXPECT_EQ(replaced.View(), std::string("a_") + std::string(253, 'x'));
}

TEST(UtilsFlattenedName, JoinsWithUnderscoreAndQuotesOnceIfEitherPartWasQuoted) {
    EXPECT_EQ(inp_Utils::CreateFlattenedName("inst", "set"), "inst_set");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("\"my inst\"", "set"), "\"my inst_set\"");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("inst", "\"my set\""), "\"inst_my set\"");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("\"a b\"", "\"c d\""), "\"a b_c d\"");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("\"half", "set"), "\"half_set");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("", "set"), "_set");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("\"", "set"), "\"_set\"");
    EXPECT_EQ(inp_Utils::CreateFlattenedName("asm", "\"my inst\"", "set"), "\"asm_my inst_set\"");
}

TEST(UtilsFolding, TakesOutBlanksAndUppersOutsideQuotesUpToTheNewline) {
    EXPECT_EQ(inp_Utils::TakeOutSpacesAndUpperOutsideQuoted("el set = \"a b\"\r\nnext"),
              "ELSET=\"a b\"\n");
}

TEST(UtilsMessages, TitleNamesKeywordFileBehindLastBackslashAndLine) {
    EXPECT_EQ(inp_Utils::FormTitleForMessage(located(inp_kw_Element, "C:\\x\\y.inp", 12)),
              "in keyword *ELEMENT, file \"y.inp\", line 12: ");
    EXPECT_EQ(inp_Utils::FormTitleForMessage(located(inp_kw_Element, "mesh.inp", 0)),
              "in keyword *ELEMENT, file \"mesh.inp\" ");
    EXPECT_EQ(inp_Utils::FormTitleForMessage(located(inp_kw_Nset, "", 3)),
              "in keyword *NSET, line 3: ");
    EXPECT_EQ(inp_Utils::MessageInKeyword(located(inp_kw_Nset, "", 0), "bad"),
              "in keyword *NSET bad");
}

TEST(UtilsMessages, ItemsOfAKeywordMessageStandOnOneLineAfterAColon) {
    inp_Keyword const nset = located(inp_kw_Nset, "a.inp", 4);
    cow_List<int> labels;
    for (int label = 1; label <= 40; ++label) labels.Append(label);
    std::string expected = "in keyword *NSET, file \"a.inp\", line 4: missing nodes:\n1";
    for (int label = 2; label <= 40; ++label) expected += ", " + std::to_string(label);
    EXPECT_EQ(inp_Utils::MessageInKeyword(nset, "missing nodes", labels).View(), expected);

    EXPECT_EQ(inp_Utils::MessageInKeyword(nset, "unknown sets", pieces({"s1", "\"s 2\""})),
              "in keyword *NSET, file \"a.inp\", line 4: unknown sets:\ns1, \"s 2\"");
    EXPECT_EQ(inp_Utils::MessageInKeyword(nset, "none", cow_List<int>()),
              "in keyword *NSET, file \"a.inp\", line 4: none:\n");
}

TEST(UtilsMessages, MessageWithItemsIsEmptyWithoutItemsAndRepeatsTheFirstLabel) {
    EXPECT_EQ(inp_Utils::MessageWithItems("sets", cow_List<cow_String>()), "");
    EXPECT_EQ(inp_Utils::MessageWithItems("labels", cow_List<int>()), "");
    EXPECT_EQ(inp_Utils::MessageWithItems("sets", pieces({"a", "b"})), "sets\n    a, b");
    EXPECT_EQ(inp_Utils::MessageWithItems("labels", cow_List<int>{7, 8}), "labels\n    7, 7, 8");
    EXPECT_EQ(inp_Utils::MessageWithItems("labels", cow_List<int>{-3}), "labels\n    -3, -3");
}
