#include <gtest/gtest.h>

#include <cstdlib>

#include "support/ZELBasException.h"
#include "support/typ_DebugFlags.h"

namespace {

int deckLevelFromEnvironment(char const* value) {
    if (value)
        ::setenv("FEDECK_DEBUG", value, 1);
    else
        ::unsetenv("FEDECK_DEBUG");
    typ_DebugFlags::ReadEnvironment();
    return typ_DebugFlags::GetDebugFlags(30);
}

}  // namespace

TEST(DebugFlagsEnvironment, DeckFlagIsTheIntegerInTheVariableOrZero) {
    EXPECT_EQ(deckLevelFromEnvironment("2"), 2);
    EXPECT_EQ(deckLevelFromEnvironment(" 3\n"), 3);
    EXPECT_EQ(deckLevelFromEnvironment("-1"), -1);
    EXPECT_EQ(deckLevelFromEnvironment("abc"), 0);
    EXPECT_EQ(deckLevelFromEnvironment("2x"), 0);
    EXPECT_EQ(deckLevelFromEnvironment(""), 0);
    EXPECT_EQ(deckLevelFromEnvironment("99999999999"), 0);
    EXPECT_EQ(deckLevelFromEnvironment(nullptr), 0);
}

TEST(DebugFlagsEnvironmentDeathTest, VariableIsReadAtFirstUseWithoutBeingAsked) {
    // A fresh process, so that nothing has read the flags before.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ::setenv("FEDECK_DEBUG", "4", 1);
    EXPECT_EXIT(std::exit(typ_DebugFlags::GetDebugFlags(30)), ::testing::ExitedWithCode(4), "");
    ::unsetenv("FEDECK_DEBUG");
}

TEST(DebugFlagsSetting, SetFlagsReadBackAndOthersStayZero) {
    typ_DebugFlags::SetDebugFlags(5, 7);
    EXPECT_EQ(typ_DebugFlags::GetDebugFlags(5), 7);
    EXPECT_EQ(typ_DebugFlags::GetDebugFlags(6), 0);
    EXPECT_EQ(typ_DebugFlags::GetDebugFlags(1000), 0);
    EXPECT_THROW(typ_DebugFlags::SetDebugFlags(1000, 1), ZELBasAssertException);
    typ_DebugFlags::SetDebugFlags(5, 0);
}
