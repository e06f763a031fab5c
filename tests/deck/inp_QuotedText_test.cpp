#include "deck/inp_QuotedText.h"

#include <gtest/gtest.h>

#include <string>

TEST(QuotedTextFolding, BlanksGoAndCaseRisesOutsideQuotesOnly) {
    EXPECT_EQ(inp_TakeOutSpacesAndUpperOutsideQuoted(" part - 1 \t\r"), "PART-1");
    EXPECT_EQ(inp_TakeOutSpacesAndUpperOutsideQuoted("a \"my Set\" b"), "A\"my Set\"B");
    EXPECT_EQ(inp_TakeOutSpacesOutsideQuoted("a b \"c d\" e"), "ab\"c d\"e");
}

TEST(QuotedTextFolding, UnmatchedQuoteKeepsTheRestAsItStands) {
    EXPECT_EQ(inp_TakeOutSpacesOutsideQuoted("x y \"open  end"), "xy\"open  end");
    EXPECT_EQ(inp_TakeOutSpacesAndUpperOutsideQuoted("x \"open  end"), "X\"open  end");
}

TEST(QuotedTextFolding, NewlineEndsTheScanAndIsKept) {
    EXPECT_EQ(inp_TakeOutSpacesOutsideQuoted("\nabc"), "\n");
    EXPECT_EQ(inp_TakeOutSpacesAndUpperOutsideQuoted("a b\nc d"), "AB\n");
    EXPECT_EQ(inp_TakeOutSpacesOutsideQuoted(""), "");
    EXPECT_EQ(inp_TakeOutSpacesOutsideQuoted("   "), "");
}

TEST(QuotedTextFolding, TextLongerThanALineIsFoldedWhole) {
    std::string longText(5000, 'a');
    longText += " \"q q\"";
    cow_String folded = inp_TakeOutSpacesAndUpperOutsideQuoted(longText.c_str());
    EXPECT_EQ(folded.Length(), 5000 + 5);
    EXPECT_EQ(folded.Substr(4998), "AA\"q q\"");
}
