#include "support/cow_String.h"

#include <gtest/gtest.h>

#include <unordered_set>

#include "support/ZELBasException.h"

TEST(CowStringSharing, CopySharesUntilWritten) {
    cow_String a("node");
    cow_String b = a;
    EXPECT_TRUE(a.SharesWith(b));
    EXPECT_EQ(a.UseCount(), 2);

    b.ToUpper();
    EXPECT_EQ(a, "node");
    EXPECT_EQ(b, "NODE");
    EXPECT_FALSE(a.SharesWith(b));
    EXPECT_EQ(a.UseCount(), 1);
}

TEST(CowStringSharing, EveryMutatorLeavesCopiesAlone) {
    cow_String original("  Part-1.Top  ");
    cow_String copies[7] = {original, original, original, original, original, original, original};
    copies[0].Trim();
    copies[1].LeftTrim();
    copies[2].RightTrim();
    copies[3].Erase(0, 3);
    copies[4].Substitute(".", "_");
    copies[5].append("x");
    copies[6].ToLower();
    EXPECT_EQ(original, "  Part-1.Top  ");
    EXPECT_EQ(copies[0], "Part-1.Top");
    EXPECT_EQ(copies[1], "Part-1.Top  ");
    EXPECT_EQ(copies[2], "  Part-1.Top");
    EXPECT_EQ(copies[3], "art-1.Top  ");
    EXPECT_EQ(copies[4], "  Part-1_Top  ");
    EXPECT_EQ(copies[5], "  Part-1.Top  x");
    EXPECT_EQ(copies[6], "  part-1.top  ");
}

TEST(CowStringSharing, AppendingItselfAndGrowing) {
    cow_String s("ab");
    for (int k = 0; k < 5; ++k) s.append(s);
    EXPECT_EQ(s.Length(), 64);
    EXPECT_EQ(s.Substr(60), "abab");
    cow_String piece = s;
    piece.append(s.CStr() + 62, 2);
    EXPECT_EQ(piece.Length(), 66);
    EXPECT_EQ(s.Length(), 64);
}

TEST(CowStringText, EmptyStringReadsAsEmptyAndIndexAtEndIsZero) {
    cow_String empty;
    EXPECT_STREQ(empty.CStr(), "");
    EXPECT_EQ(empty[0], '\0');
    EXPECT_EQ(empty.UseCount(), 0);
    EXPECT_THROW(empty[1], ZELBasAssertException);
    EXPECT_EQ(cow_String("abc").Trim("abc"), "");
}

TEST(CowStringText, FindSubstrAndComparison) {
    cow_String s("a.b.c");
    EXPECT_EQ(s.Find('.'), 1);
    EXPECT_EQ(s.Find('.', 2), 3);
    EXPECT_EQ(s.Find("b.c"), 2);
    EXPECT_EQ(s.Find("x"), -1);
    EXPECT_EQ(s.RFind('.'), 3);
    EXPECT_EQ(s.Substr(2, 100), "b.c");
    EXPECT_LT(cow_String("ELSET"), cow_String("elset"));  // bytewise
    EXPECT_LT(cow_String("ab"), cow_String("abc"));
    cow_String withZero("a\0b", 3);
    EXPECT_EQ(withZero.Length(), 3);
    EXPECT_NE(withZero, cow_String("a"));
    std::unordered_set<cow_String> names{cow_String("x"), cow_String("y")};
    EXPECT_EQ(names.count(cow_String("x")), 1u);
}

TEST(CowStringText, NumbersHaveOneTextForm) {
    EXPECT_EQ(cow_String::FromInt(-17), "-17");
    EXPECT_EQ(cow_String::FromDouble(5.0), "5");
    EXPECT_EQ(cow_String::FromDouble(0.1), "0.1");
    EXPECT_EQ(cow_String::FromDouble(1500.0), "1500");
    EXPECT_EQ(cow_String::FromDouble(1e300), "1e+300");
}
