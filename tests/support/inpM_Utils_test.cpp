#include "support/inpM_Utils.h"

#include <gtest/gtest.h>

namespace {

TEST(InpMUtilsRemoveQuotes, StripsOneSurroundingPairOnly) {
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("\"Set 1\"")), cow_String("Set 1"));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("\"\"a\"\"")), cow_String("\"a\""));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("\"\"")), cow_String(""));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("\"open")), cow_String("\"open"));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("\"")), cow_String("\""));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String("plain")), cow_String("plain"));
    EXPECT_EQ(inpM_Utils::RemoveQuotes(cow_String()), cow_String(""));
}

TEST(InpMUtilsFormatCollectedErrors, EmptyListGivesTitleAlone) {
    EXPECT_EQ(inpM_Utils::FormatCollectedErrors(atr_String("Title"), cow_List<int>()),
              cow_String("Title"));
}

TEST(InpMUtilsFormatCollectedErrors, IdsGoEightToAnIndentedLine) {
    cow_List<int> ids;
    for (int id = 1; id <= 10; ++id) ids.Append(id);
    EXPECT_EQ(inpM_Utils::FormatCollectedErrors(atr_String("The following elements"), ids),
              cow_String("The following elements\n    1, 2, 3, 4, 5, 6, 7, 8\n    9, 10"));
}

TEST(InpMUtilsFormatCollectedErrors, NamesOfEitherStringTypeAreJoinedAlike) {
    cow_List<cow_String> names{"A", "B"};
    cow_List<atr_String> messages{atr_String("A"), atr_String("B")};
    cow_String const expected("Missing:\n    A, B");
    EXPECT_EQ(inpM_Utils::FormatCollectedErrors(atr_String("Missing:"), names), expected);
    EXPECT_EQ(inpM_Utils::FormatCollectedErrors(atr_String("Missing:"), messages), expected);
}

}  // namespace
