#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/ZELString.h"

TEST(Utf8Build, DecodesEveryLengthAtItsBoundaries) {
    ZELString text = ZELString::BuildFromUTF8(
        "A"
        "\xC2\x80\xDF\xBF"                                  // U+0080, U+07FF
        "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"  // U+0800, U+D7FF, U+E000, U+FFFF
        "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"                  // U+10000, U+10FFFF
    );
    ASSERT_FALSE(text.IsBAD());
    EXPECT_EQ(text.CodePoints(), (std::u32string{U'A', 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFF,
                                                 0x10000, 0x10FFFF}));
}

TEST(Utf8Build, EmptyAndNullTextsAreGood) {
    EXPECT_FALSE(ZELString::BuildFromUTF8("").IsBAD());
    EXPECT_FALSE(ZELString::BuildFromUTF8(static_cast<char const*>(nullptr)).IsBAD());
    EXPECT_EQ(ZELString::BuildFromUTF8("").Length(), 0);
}

TEST(Utf8Build, RejectsEveryKindOfMalformedSequence) {
    std::vector<std::string> const bad = {
        // overlong forms of two, three and four bytes
        "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x80\x80\x80",
        "\xF0\x8F\xBF\xBF",
        // surrogates, and values beyond U+10FFFF
        "\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xFE",
        // sequences cut short, also at the end of a good text
        "\xC3", "\xE2\x82", "\xF0\x9F\x98", "ok\xE2\x82",
        // continuation bytes without a lead
        "\x80", "a\xBF",
        // a lead followed by something other than a continuation byte
        "\xC3\x41", "\xE2\x28\xA1", "\xF0\x9F\x28\x80"};
    for (std::string const& text : bad) {
        SCOPED_TRACE(::testing::PrintToString(text));
        ZELString built = ZELString::BuildFromUTF8(text.c_str());
        EXPECT_TRUE(built.IsBAD());
        EXPECT_EQ(built.Length(), 0);
        EXPECT_FALSE(ZELString::IsValidUTF8(text));
    }
}

TEST(Utf8Build, ValidityAgreesWithBuildOnMixedText) {
    std::string const text =
        "Stra\xC3\x9F"
        "e \xE2\x82\xAC 5 \xF0\x9F\x98\x80";
    EXPECT_TRUE(ZELString::IsValidUTF8(text));
    ZELString built = ZELString::BuildFromUTF8(text);
    EXPECT_FALSE(built.IsBAD());
    EXPECT_EQ(built.Length(), 12);
    EXPECT_EQ(built[4], char32_t{0xDF});
    EXPECT_EQ(built[11], char32_t{0x1F600});
}
