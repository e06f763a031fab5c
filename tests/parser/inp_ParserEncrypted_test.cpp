#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "parser/inp_DeckEncryptor.h"
#include "parser/inp_Parser.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

struct EncryptedResult {
    cow_List<inp_Keyword> keywords;
    cow_List<atr_String> errors, fatalErrors;
};

class ParserEncrypted : public ::testing::Test {
  protected:
    void SetUp() override {
        dir.Write("secret.plain",
                  "** the author's note\n*MATERIAL, "
                  "NAME=SECRET\n*DENSITY\n7800.\n\n*ELASTIC\n2.1e5, 0.3\n");
        inp_EncryptDeck(dir.Path("secret.plain"), dir.Path("secret.enc"), "opensesame");
    }
    EncryptedResult parseMain(std::string const& text, bool strictDecryption = true) {
        inp_Parser parser(dir.Write("main.inp", text), dir.Directory(), cow_List<cow_String>(), "",
                          strictDecryption, true, false);
        EncryptedResult r;
        r.keywords = parser.Parse(true);
        r.errors = parser.GetErrors();
        r.fatalErrors = parser.GetFatalErrors();
        return r;
    }
    TempDeckDirectory dir;
};

}  // namespace

TEST_F(ParserEncrypted, RightPasswordGivesThePlainKeywordsMarkedEncrypted) {
    EncryptedResult r =
        parseMain("*HEADING\nModel\n*INCLUDE, INPUT=secret.enc, PASSWORD=opensesame\n*STEP\n");
    ASSERT_TRUE(r.fatalErrors.IsEmpty());
    ASSERT_TRUE(r.errors.IsEmpty());
    ASSERT_EQ(r.keywords.Length(), 5);
    EXPECT_EQ(r.keywords.ConstGet(0).Data().Rows(), 1);  // the header line with its key is not data
    EXPECT_FALSE(r.keywords.ConstGet(0).IsEncrypted());
    inp_Keyword const& material = r.keywords.ConstGet(1);
    EXPECT_EQ(material.GetParameterAsString("name", ""), "SECRET");
    EXPECT_TRUE(material.IsEncrypted());
    EXPECT_EQ(material.Comments().Last(),
              " the author's note");  // behind the plain marker comments
    EXPECT_EQ(r.keywords.ConstGet(2).Data().AsStringVerbatim(0, 0), "7800.");
    EXPECT_EQ(r.keywords.ConstGet(2).Data().Rows(), 2);
    EXPECT_EQ(r.keywords.ConstGet(3).Data().AsString(0, 1), "0.3");
    EXPECT_FALSE(r.keywords.ConstGet(4).IsEncrypted());
}

TEST_F(ParserEncrypted, WrongPasswordIsABadHeaderAndTheFileGivesNothing) {
    EncryptedResult r = parseMain("*NODE\n*INCLUDE, INPUT=secret.enc, PASSWORD=guess\n*STEP\n");
    ASSERT_EQ(r.fatalErrors.Length(), 1);
    EXPECT_EQ(r.fatalErrors.ConstGet(0), cow_String("Bad header. The encrypted input file, \"") +
                                             dir.Path("secret.enc") +
                                             "\", is either corrupt or the password is "
                                             "incorrect.");
    ASSERT_EQ(r.keywords.Length(), 2);
    EXPECT_EQ(r.keywords.ConstGet(1).Keyword(), inp_kw_Step);
}

TEST_F(ParserEncrypted, NoPasswordMeansThePasswordIsRequired) {
    EncryptedResult r = parseMain("*INCLUDE, INPUT=secret.enc\n*STEP\n");
    ASSERT_EQ(r.fatalErrors.Length(), 1);
    EXPECT_EQ(r.fatalErrors.ConstGet(0), cow_String("The encrypted input file, \"") +
                                             dir.Path("secret.enc") + "\", requires a password.");
    EXPECT_EQ(r.keywords.Length(), 1);
}

TEST_F(ParserEncrypted, CorruptLineFailsStrictlyAndIsBlankOtherwise) {
    std::ifstream in(dir.Path("secret.enc").CStr());
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    text += "not base64 at all!\n";
    dir.Write("broken.enc", text);

    EncryptedResult strict = parseMain("*INCLUDE, INPUT=broken.enc, PASSWORD=opensesame\n");
    ASSERT_EQ(strict.errors.Length() + strict.fatalErrors.Length(), 1);
    cow_String message =
        strict.errors.IsEmpty() ? strict.fatalErrors.ConstGet(0) : strict.errors.ConstGet(0);
    EXPECT_TRUE(message.StartsWith("The encrypted input file, \"")) << message.CStr();
    EXPECT_NE(message.Find("cannot be decrypted due to the following; "), -1);

    EncryptedResult lenient = parseMain("*INCLUDE, INPUT=broken.enc, PASSWORD=opensesame\n", false);
    EXPECT_TRUE(lenient.errors.IsEmpty() && lenient.fatalErrors.IsEmpty());
    ASSERT_EQ(lenient.keywords.Length(), 3);
    EXPECT_EQ(lenient.keywords.Last().Data().Rows(), 2);  // the bad line arrives empty
}

// The marker is looked for in every line of a file without a password,
// wherever it stands, in lines shorter and longer than a mesh line; text
// that only resembles it is plain.
TEST_F(ParserEncrypted, TheMarkerAnywhereInALineAsksForThePassword) {
    std::string const needsPassword = "\", requires a password.";
    for (std::string const line :
         {"** encrypted input", "  ** encrypted input", "*NODE ** encrypted input",
          "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 ** encrypted input",
          "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 *** encrypted input, and more"}) {
        EncryptedResult r = parseMain("*NODE\n" + line + "\n*STEP\n");
        ASSERT_EQ(r.errors.Length() + r.fatalErrors.Length(), 1) << line;
        cow_String const message =
            r.errors.IsEmpty() ? r.fatalErrors.ConstGet(0) : r.errors.ConstGet(0);
        EXPECT_TRUE(message.EndsWith(needsPassword.c_str())) << line;
    }
    for (std::string const line :
         {"1, * encrypted input", "** encrypted inpu", "**encrypted input",
          "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 ** encrypted inpu",
          "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15 ** encrypted"}) {
        EncryptedResult r = parseMain("*NODE\n" + line + "\n*STEP\n");
        EXPECT_TRUE(r.errors.IsEmpty() && r.fatalErrors.IsEmpty()) << line;
    }
}

// A zero byte ends a line's text: a marker behind it is no marker, one in
// front of it is, in short lines and long ones alike.
TEST_F(ParserEncrypted, TheMarkerCountsOnlyBeforeAZeroByte) {
    using namespace std::string_literals;
    std::string const longFront = "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13";
    for (std::string const& line : {"1\0 ** encrypted input"s, longFront + "\0** encrypted input"s,
                                    "1 ** encrypted\0 input"s}) {
        EncryptedResult r = parseMain("*NODE\n" + line + "\n*STEP\n");
        EXPECT_TRUE(r.errors.IsEmpty() && r.fatalErrors.IsEmpty());
        ASSERT_EQ(r.keywords.Length(), 2);
        EXPECT_EQ(r.keywords.ConstGet(0).Data().Rows(), 1);
    }
    for (std::string const& line :
         {"** encrypted input\0 and so on"s, longFront + " ** encrypted input\0 x"s}) {
        EncryptedResult r = parseMain("*NODE\n" + line + "\n*STEP\n");
        EXPECT_EQ(r.errors.Length() + r.fatalErrors.Length(), 1);
    }
}
