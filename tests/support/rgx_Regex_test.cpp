#include <gtest/gtest.h>

#include <regex>

#include "support/ZELBasException.h"
#include "support/rgx_Regex.h"

namespace {

cow_List<cow_String> listOf(std::initializer_list<char const*> texts) {
    cow_List<cow_String> list;
    for (char const* text : texts) list.Append(cow_String(text));
    return list;
}

TEST(RgxMatchString, IsTheFirstGroupThatTookPart) {
    rgx_ReIterator match = rgx_match("  top  ", "^[ ]*([a-z]+)[ ]*$");
    ASSERT_TRUE(match.Matched());
    EXPECT_EQ(match.String(), "top");
    // With alternatives the group of the alternative that matched.
    EXPECT_EQ(rgx_match(" \"q\" ", "^ *([a-z]+) *$|^ *(\"[a-z]+\") *$").String(), "\"q\"");
    // A group inside a repetition holds its last round.
    EXPECT_EQ(rgx_match("a.b.7", "^(([a-z])\\.)*[0-9]+$").String(), "b.");
}

TEST(RgxMatchString, IsTheWholeMatchWithoutGroupsOrWhenNoneTookPart) {
    EXPECT_EQ(rgx_match("xx123yy", "[0-9]+").String(), "123");  // a search, not a full match
    EXPECT_EQ(rgx_match(" 17", "^ *(([a-z])\\.)*[0-9]+$").String(), " 17");
}

TEST(RgxMatchGroups, NumberedAccess) {
    rgx_ReIterator match = rgx_match("k=v", "^(\\w)=(\\w)(x)?$");
    ASSERT_TRUE(match);
    EXPECT_EQ(match.GroupCount(), 3);
    EXPECT_EQ(match.String(0), "k=v");
    EXPECT_EQ(match.String(2), "v");
    EXPECT_EQ(match.String(3), "");  // took no part
    EXPECT_THROW((void)match.String(4), ZELBasAssertException);
    EXPECT_THROW((void)match.String(-1), ZELBasAssertException);
    rgx_ReIterator missed = rgx_match("abc", "^([0-9]+)$");
    EXPECT_FALSE(missed);
    EXPECT_EQ(missed.String(), "");
    EXPECT_EQ(missed.String(1), "");
}

TEST(RgxMatchText, SurvivesTheTextAndSeesEmbeddedZeros) {
    rgx_ReIterator match;
    {
        cow_String text("value 42");
        match = rgx_match(text, "([0-9]+)");
        text.append("0");  // writing to the caller's string leaves the result alone
    }
    EXPECT_EQ(match.String(), "42");
    EXPECT_TRUE(rgx_match(cow_String("a\0b", 3), "^a\\0b$").Matched());
    EXPECT_EQ(rgx_match("", "^$").String(), "");
    EXPECT_TRUE(rgx_match("", "^$").Matched());
}

TEST(RgxMatchPatterns, InvalidPatternThrowsEveryTime) {
    EXPECT_THROW(rgx_match("a", "(a"), std::regex_error);
    EXPECT_THROW(rgx_match("a", "(a"), std::regex_error);
}

TEST(RgxSplit, KeepsEmptyPiecesAtBothEnds) {
    EXPECT_EQ(rgx_split("a,,b,", ","), listOf({"a", "", "b", ""}));
    EXPECT_EQ(rgx_split(",a", ","), listOf({"", "a"}));
    EXPECT_EQ(rgx_split("a , b;c", " *[,;] *"), listOf({"a", "b", "c"}));
}

TEST(RgxSplit, WithoutMatchGivesTheTextAlone) {
    EXPECT_EQ(rgx_split("abc", ","), listOf({"abc"}));
    EXPECT_EQ(rgx_split("", ","), listOf({""}));
}

TEST(RgxSplit, EmptyMatchesSplitBetweenCharacters) {
    EXPECT_EQ(rgx_split("ab", "x*"), listOf({"", "a", "b", ""}));
}

TEST(RgxJoin, PutsTheSeparatorBetweenPieces) {
    EXPECT_EQ(rgx_join(listOf({"a", "", "b"}), ", "), "a, , b");
    EXPECT_EQ(rgx_join(listOf({"only"}), ","), "only");
    EXPECT_EQ(rgx_join(cow_List<cow_String>(), ","), "");
    EXPECT_EQ(rgx_join(listOf({"", ""}), ""), "");
    EXPECT_EQ(rgx_join(rgx_split("x.y..z.", "\\."), "."), "x.y..z.");
}

}  // namespace
