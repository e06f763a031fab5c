#include <gtest/gtest.h>

#include "support/ZELBasException.h"
#include "support/ZELBasPair.h"
#include "support/ZELBasVector.h"

// The shape the diagnostics code hands around: (severity, text) pairs.
TEST(ZelBasVectorOfPairs, KeepsOrderAndCopiesAreDeep) {
    ZELBasVector<ZELBasPair<int, atr_String>> diagnostics;
    diagnostics.Append({2, atr_String("error")});
    diagnostics.push_back(ZELBasPair<int, atr_String>(1, atr_String("warning")));
    ZELBasVector<ZELBasPair<int, atr_String>> copy = diagnostics;
    copy[0].second = atr_String("changed");
    ASSERT_EQ(diagnostics.Size(), 2);
    EXPECT_EQ(diagnostics[0].Second(), "error");
    EXPECT_EQ(diagnostics[1].First(), 1);
    EXPECT_FALSE(copy == diagnostics);
    int severities = 0;
    for (auto const& pair : diagnostics) severities = severities * 10 + pair.first;
    EXPECT_EQ(severities, 21);
}

TEST(ZelBasVectorOfPairs, IndexOutOfRangeIsAnAssertion) {
    ZELBasVector<int> values{1, 2};
    EXPECT_THROW(values[2], ZELBasAssertException);
    EXPECT_THROW(values[-1], ZELBasAssertException);
}
