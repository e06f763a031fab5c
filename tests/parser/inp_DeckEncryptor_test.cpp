#include "parser/inp_DeckEncryptor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/uti_Rotor.h"
#include "support/utl_Base64.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

std::vector<std::string> rawLines(cow_String const& path) {
    std::ifstream in(path.CStr(), std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

std::vector<std::string> fields(std::string const& header) {
    std::vector<std::string> result;
    std::stringstream in(header);
    for (std::string field; std::getline(in, field, '/');) result.push_back(field);
    if (!header.empty() && header.back() == '/') result.emplace_back();
    return result;
}

struct Deciphered {
    bool badHeader = false;
    std::vector<std::string> comments;
    std::string header;
    std::vector<std::string> lines;
};

// Reads an encrypted file the way the deck parser does: at most 256
// characters of a line, plain "**" comments, a fresh rotor for every other
// line, and the key taken from field 1 of the first line deciphered.
Deciphered readAsTheParserDoes(cow_String const& path, cow_String const& password) {
    Deciphered result;
    cow_String key = password;
    bool headerPending = true;
    for (std::string raw : rawLines(path)) {
        if (raw.size() > 256) raw.resize(256);
        cow_String text(raw);
        text.LeftTrim(" ");
        if (text.StartsWith("**")) {
            result.comments.push_back(raw);
            continue;
        }
        cow_String plain = uti_Rotor(key).Decrypt(utl_base64Decode(text, true));
        if (plain.EndsWith("\r")) plain.Erase(plain.Length() - 1);
        std::string const line(plain.View());
        if (!headerPending) {
            result.lines.push_back(line);
            continue;
        }
        std::vector<std::string> const headerFields = fields(line);
        result.badHeader = headerFields.size() < 9;
        if (result.badHeader) return result;
        key = cow_String(headerFields[1]);
        result.header = line;
        headerPending = false;
    }
    return result;
}

std::string encryptionError(cow_String const& input, cow_String const& output,
                            cow_String const& password = "pw") {
    try {
        inp_EncryptDeck(input, output, password);
    } catch (nex_PrimException<atr_String, 1> const& error) {
        return error.UserReport().CStr();
    }
    return "(no error)";
}

std::string const kDeck =
    "** model of a bracket\n"
    "*HEADING\n"
    "  Bracket, steel\n"
    "\n"
    "*NODE, NSET=ALL\r\n"
    "1, 0.0, 0.0, 0.0   \t\n"
    "   ** indented comment\n"
    "2, 1.0, 0.0, 0.0";

}  // namespace

TEST(DeckEncryptorOutput, DeciphersLineByLineToTheDeckWithoutTrailingBlanks) {
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    inp_EncryptDeck(input, dir.Path("secret.inp"), "Open Sesame");
    Deciphered const deck = readAsTheParserDoes(dir.Path("secret.inp"), "Open Sesame");
    ASSERT_FALSE(deck.badHeader);
    std::vector<std::string> const expected = {
        "** model of a bracket", "*HEADING",         "  Bracket, steel",       "",
        "*NODE, NSET=ALL",       "1, 0.0, 0.0, 0.0", "   ** indented comment", "2, 1.0, 0.0, 0.0"};
    EXPECT_EQ(deck.lines, expected);
    EXPECT_EQ(deck.comments, std::vector<std::string>{"** encrypted input"});
}

TEST(DeckEncryptorOutput, MarkerFirstThenOnlyBase64LinesThatShowNothingOfTheDeck) {
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    inp_EncryptDeck(input, dir.Path("secret.inp"), "pw");
    std::vector<std::string> const lines = rawLines(dir.Path("secret.inp"));
    ASSERT_EQ(lines.size(), 10u);  // marker, header, eight deck lines
    EXPECT_EQ(lines[0], "** encrypted input");
    for (size_t i = 1; i < lines.size(); ++i) {
        EXPECT_LE(lines[i].size(), 256u);
        EXPECT_EQ(lines[i].find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                             "0123456789+/="),
                  std::string::npos);
    }
}

TEST(DeckEncryptorHeader, HasNineFieldsAFreshHexKeyAndTheLineCount) {
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    inp_EncryptDeck(input, dir.Path("a.inp"), "pw");
    inp_EncryptDeck(input, dir.Path("b.inp"), "pw");
    std::string const header = readAsTheParserDoes(dir.Path("a.inp"), "pw").header;
    std::vector<std::string> const a = fields(header);
    std::vector<std::string> const b = fields(readAsTheParserDoes(dir.Path("b.inp"), "pw").header);
    ASSERT_EQ(a.size(), 9u);
    EXPECT_NE(header[0], '*');
    EXPECT_EQ(a[1].size(), 32u);
    EXPECT_EQ(a[1].find_first_not_of("0123456789abcdef"), std::string::npos);
    EXPECT_NE(a[1], b[1]);
    EXPECT_EQ(a[5], "8");
}

TEST(DeckEncryptorHeader, WrongPasswordGivesABadHeader) {
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    inp_EncryptDeck(input, dir.Path("secret.inp"), "right");
    for (char const* wrong : {"Right", "right ", "wrong", "r"})
        EXPECT_TRUE(readAsTheParserDoes(dir.Path("secret.inp"), wrong).badHeader) << wrong;
}

TEST(DeckEncryptorEdges, EmptyDeckGivesMarkerAndHeaderOnly) {
    TempDeckDirectory dir;
    inp_EncryptDeck(dir.Write("empty.inp", ""), dir.Path("secret.inp"), "pw");
    Deciphered const deck = readAsTheParserDoes(dir.Path("secret.inp"), "pw");
    EXPECT_EQ(rawLines(dir.Path("secret.inp")).size(), 2u);
    EXPECT_FALSE(deck.badHeader);
    EXPECT_TRUE(deck.lines.empty());
    EXPECT_EQ(fields(deck.header)[5], "0");
}

TEST(DeckEncryptorLimits, LongestLineFitsAndOneMoreIsRefusedByLineNumber) {
    TempDeckDirectory dir;
    std::string const longest(180, 'x');
    cow_String const fits = dir.Write("fits.inp", "*NODE\n" + longest + "      \n");
    inp_EncryptDeck(fits, dir.Path("fits.enc"), "pw");
    EXPECT_EQ(readAsTheParserDoes(dir.Path("fits.enc"), "pw").lines[1], longest);

    for (std::string const& tooLong : {std::string(181, 'x'), std::string(5000, 'y')}) {
        cow_String const input = dir.Write("long.inp", "*NODE\n1, 2\n" + tooLong + "\n");
        EXPECT_EQ(encryptionError(input, dir.Path("long.enc")),
                  "Line 3 of the input file, \"" + std::string(input.CStr()) +
                      "\", is longer than 180 characters, the most an encrypted line can hold.");
        EXPECT_FALSE(std::filesystem::exists(dir.Path("long.enc").CStr()));
    }
}

TEST(DeckEncryptorFailures, UnreadableInputUnwritableOutputSelfOverwriteAndNoPassword) {
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    cow_String const missing = dir.Path("missing.inp");
    EXPECT_EQ(
        encryptionError(missing, dir.Path("out.enc")),
        "The input file, \"" + std::string(missing.CStr()) + "\", cannot be opened for reading.");
    EXPECT_FALSE(std::filesystem::exists(dir.Path("out.enc").CStr()));

    cow_String const unwritable = dir.Path("no/such/dir/out.enc");
    EXPECT_EQ(encryptionError(input, unwritable), "The encrypted file, \"" +
                                                      std::string(unwritable.CStr()) +
                                                      "\", cannot be opened for writing.");

    EXPECT_EQ(encryptionError(input, input), "The encrypted file, \"" + std::string(input.CStr()) +
                                                 "\", would overwrite its own input.");
    EXPECT_EQ(rawLines(input).size(), 8u);

    EXPECT_EQ(encryptionError(input, dir.Path("out.enc"), ""),
              "An encrypted file needs a password, and none was given.");
}

TEST(DeckEncryptorFailures, WriteFailureIsReportedAndADeviceOutputIsLeftInPlace) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    TempDeckDirectory dir;
    cow_String const input = dir.Write("plain.inp", kDeck);
    EXPECT_EQ(encryptionError(input, "/dev/full"),
              "The encrypted file, \"/dev/full\", could not be written completely.");
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}
