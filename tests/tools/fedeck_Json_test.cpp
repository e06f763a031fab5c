#include "tools/fedeck_Json.h"

#include <gtest/gtest.h>

#include <string>

#include "support/aio_Stream.h"

namespace {

std::string json(std::string_view text) {
    aio_ostringstream out;
    fedeck_WriteJsonString(out, text);
    return std::string(out.Str().View());
}

}  // namespace

TEST(JsonString, PlainTextIsOnlyQuoted) {
    EXPECT_EQ(json(""), "\"\"");
    EXPECT_EQ(json("in keyword *NODE, line 3: a/b"), "\"in keyword *NODE, line 3: a/b\"");
}

TEST(JsonString, QuotesAndBackslashesAreEscaped) {
    EXPECT_EQ(json(R"(say "a\b")"), R"("say \"a\\b\"")");
}

TEST(JsonString, ControlCharactersBecomeUnicodeEscapes) {
    EXPECT_EQ(json("a\nb\tc\rd"), R"("a\u000ab\u0009c\u000dd")");
    EXPECT_EQ(json(std::string_view("\0\x1f", 2)), R"("\u0000\u001f")");
    EXPECT_EQ(json("\x7f"), "\"\x7f\"");  // allowed as it is
}

TEST(JsonString, ValidUtf8PassesUnchanged) {
    EXPECT_EQ(json("Stra\xC3\x9F"
                   "e \xE2\x82\xAC \xF0\x9F\x98\x80"),
              "\"Stra\xC3\x9F"
              "e \xE2\x82\xAC \xF0\x9F\x98\x80\"");
}

TEST(JsonString, EachInvalidByteBecomesOneReplacementCharacter) {
    std::string const replacement = "\xEF\xBF\xBD";
    EXPECT_EQ(json("a\xFF"
                   "b"),
              "\"a" + replacement + "b\"");
    // A lead byte cut short at the end, and one followed by ASCII.
    EXPECT_EQ(json("x\xE2\x82"), "\"x" + replacement + replacement + "\"");
    EXPECT_EQ(json("\xC3(\""), "\"" + replacement + "(\\\"\"");
    // Overlong form of '/', a surrogate, a stray continuation byte.
    EXPECT_EQ(json("\xC0\xAF"), "\"" + replacement + replacement + "\"");
    EXPECT_EQ(json("\xED\xA0\x80"), "\"" + replacement + replacement + replacement + "\"");
    EXPECT_EQ(json("\x80\xC3\xA9"), "\"" + replacement + "\xC3\xA9\"");
}
