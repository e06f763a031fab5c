#include "support/utl_Base64.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string decode(std::string const& text, bool strict) {
    cow_String const input(text);
    return std::string(utl_base64Decode(input, strict).View());
}

std::string strictError(std::string const& text) {
    try {
        decode(text, true);
    } catch (utl_Base64CodecError const& error) {
        return error.UserReport().CStr();
    }
    return "(no error)";
}

}  // namespace

TEST(Base64KnownVectors, EncodeAndDecodeTheStandardExamples) {
    std::vector<std::pair<std::string, std::string>> const vectors = {{"", ""},
                                                                      {"f", "Zg=="},
                                                                      {"fo", "Zm8="},
                                                                      {"foo", "Zm9v"},
                                                                      {"foob", "Zm9vYg=="},
                                                                      {"fooba", "Zm9vYmE="},
                                                                      {"foobar", "Zm9vYmFy"}};
    for (auto const& [plain, encoded] : vectors) {
        EXPECT_EQ(utl_base64Encode(cow_String(plain)), encoded.c_str());
        EXPECT_EQ(decode(encoded, true), plain);
        EXPECT_EQ(decode(encoded, false), plain);
    }
}

TEST(Base64RoundTrip, RandomBytesOfEveryLengthUpTo100IncludingZeros) {
    std::mt19937 random(7);
    for (int length = 0; length <= 100; ++length) {
        std::string bytes(static_cast<size_t>(length), '\0');
        for (char& byte : bytes) byte = static_cast<char>(random() % 256);
        if (length > 2) bytes[1] = '\0';
        cow_String const encoded = utl_base64Encode(cow_String(bytes));
        EXPECT_EQ(encoded.Length(), (length + 2) / 3 * 4);
        EXPECT_EQ(decode(encoded.CStr(), true), bytes) << "length " << length;
        EXPECT_EQ(decode(encoded.CStr(), false), bytes) << "length " << length;
    }
}

TEST(Base64Strict, IgnoresTrailingBlanksAndLineEndsOnly) {
    EXPECT_EQ(decode("Zm9vYg==\r\n", true), "foob");
    EXPECT_EQ(decode("Zm9v \t ", true), "foo");
    EXPECT_EQ(strictError(" Zm9v"), "invalid Base64 character ' ' at position 1");
}

TEST(Base64Strict, NamesTheFirstBadCharacterByPosition) {
    EXPECT_EQ(strictError("Zm9vY#A="), "invalid Base64 character '#' at position 6");
    EXPECT_EQ(strictError("Zm9v#"), "invalid Base64 character '#' at position 5");
    EXPECT_EQ(strictError(std::string("Zm9v\x01Zm9", 8)),
              "invalid Base64 character (code 1) at position 5");
    EXPECT_EQ(strictError(std::string("Zm\0v", 4)),
              "invalid Base64 character (code 0) at position 3");
}

TEST(Base64Strict, RefusesLengthsThatAreNotWholeGroups) {
    EXPECT_EQ(strictError("Zm9vY"),
              "Base64 text of 5 characters is not a whole number of 4-character groups");
    EXPECT_EQ(strictError("Zg="),
              "Base64 text of 3 characters is not a whole number of 4-character groups");
}

TEST(Base64Strict, RefusesPaddingOutOfPlaceOrAfterNonZeroBits) {
    EXPECT_EQ(strictError("Zg==Zm9v"), "misplaced Base64 padding at position 3");
    EXPECT_EQ(strictError("Z==="), "misplaced Base64 padding at position 2");
    EXPECT_EQ(strictError("===="), "misplaced Base64 padding at position 1");
    EXPECT_EQ(strictError("Zh=="),
              "Base64 padding at position 3 follows unused bits that are not zero");
    EXPECT_EQ(strictError("Zm9="),
              "Base64 padding at position 4 follows unused bits that are not zero");
}

TEST(Base64Strict, ErrorIsCaughtAsTheSystemsMessageException) {
    using MessageException = nex_PrimException<atr_String, 1>;
    EXPECT_THROW(decode("@@@@", true), MessageException);
}

TEST(Base64Lenient, SkipsForeignCharactersAndEndsGroupsAtPadding) {
    EXPECT_EQ(decode("Zm\n9v !", false), "foo");
    EXPECT_EQ(decode("Zg==Zg==", false), "ff");
    EXPECT_EQ(decode("Zm9vY", false), "foo");  // a lone sextet makes no byte
    EXPECT_EQ(decode("#=\x01", false), "");
}
