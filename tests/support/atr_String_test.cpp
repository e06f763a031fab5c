#include "support/atr_String.h"

#include <gtest/gtest.h>

TEST(AtrFormat, PlainPlaceholdersTakeArgumentsInTurn) {
    EXPECT_EQ(atr("Include file \"%s\" does not exist.", "a.inp"),
              "Include file \"a.inp\" does not exist.");
    EXPECT_EQ(atr("%s at line %d of %s", cow_String("*NODE"), 12, "deck.inp"),
              "*NODE at line 12 of deck.inp");
    EXPECT_EQ(atr("100%% sure: %d", 3), "100% sure: 3");
}

TEST(AtrFormat, NumberedPlaceholdersTakeArgumentsByNumber) {
    EXPECT_EQ(atr("%2$s before %1$s", "one", "two"), "two before one");
    EXPECT_EQ(atr("%1$s %1$s %4$d", "a", "b", "c", 4), "a a 4");
}

TEST(AtrFormat, MissingArgumentsLeaveThePlaceholderAndModeIsNoArgument) {
    EXPECT_EQ(atr("%s and %s", "x"), "x and %s");
    EXPECT_EQ(atr("%3$s!", "x", zel_DefaultStringMode), "%3$s!");
    EXPECT_EQ(atr("no placeholders"), "no placeholders");
    EXPECT_EQ(atr("trailing %"), "trailing %");
}

TEST(AtrFormat, TranslatedFormatMayReorderArguments) {
    atr_AddTranslation("Set %s of part %s", "Part %2$s, set %1$s");
    EXPECT_EQ(atr("Set %s of part %s", "TOP", "P1"), "Part P1, set TOP");
    EXPECT_EQ(atr_raw("Set %s of part %s"), "Set %s of part %s");
    atr_ClearTranslations();
    EXPECT_EQ(atr("Set %s of part %s", "TOP", "P1"), "Set TOP of part P1");
}

TEST(AtrFormat, ReplaceNonTranslatedSubstitutesInAMadeString) {
    atr_String message = atr_raw("Node %n is missing in %n");
    message.ReplaceNonTranslated("%n", "17");
    EXPECT_EQ(message, "Node 17 is missing in 17");
}
