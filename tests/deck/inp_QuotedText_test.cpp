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

// A string handed in whole comes back as the same string when the fold
// leaves it as it is, and as the fold of its text otherwise, whichever way
// the answer is reached.
TEST(QuotedTextFolding, StringsTheFoldLeavesAloneAreHandedBack) {
    cow_String const folded("PART-1\"my Set\"");
    EXPECT_TRUE(inp_TakeOutSpacesAndUpperOutsideQuoted(folded).SharesWith(folded));
    cow_String const lower("part-1");
    EXPECT_TRUE(inp_TakeOutSpacesOutsideQuoted(lower).SharesWith(lower));
    EXPECT_EQ(inp_TakeOutSpacesAndUpperOutsideQuoted(lower), "PART-1");

    // Each of these differs from its fold: a blank or a lower-case letter
    // outside quotes, a line end (the fold stops after it), a zero byte.
    std::string const withZero("AB\0CD", 5);
    for (cow_String const& text : {cow_String("A B"), cow_String("Ab"), cow_String("\"q\"a"),
                                   cow_String("AB\nCD"), cow_String(withZero.data(), 5)}) {
        cow_String const result = inp_TakeOutSpacesAndUpperOutsideQuoted(text);
        EXPECT_FALSE(result.SharesWith(text)) << text.CStr();
        EXPECT_EQ(result, inp_TakeOutSpacesAndUpperOutsideQuoted(text.CStr())) << text.CStr();
    }
}
