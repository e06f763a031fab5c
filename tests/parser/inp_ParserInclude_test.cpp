#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "parser/inp_Parser.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

struct IncludeResult {
    cow_List<inp_Keyword> keywords;
    cow_List<atr_String> errors, fatalErrors;
    cow_List<cow_String> included, missing;
};

class ParserInclude : public ::testing::Test {
  protected:
    IncludeResult parseMain(std::string const& text, bool strict = true,
                            cow_String includePath = "") {
        cow_String path = dir.Write("main.inp", text);
        inp_Parser parser(path, includePath, cow_List<cow_String>(), "", true, true, false);
        IncludeResult r;
        r.keywords = parser.Parse(strict);
        r.errors = parser.GetErrors();
        r.fatalErrors = parser.GetFatalErrors();
        r.included = parser.GetIncludedFiles();
        r.missing = parser.GetMissingIncludeFiles();
        return r;
    }
    std::string include(std::string const& name) {
        return "*INCLUDE, INPUT=" + std::string(dir.Path(name).CStr());
    }

    TempDeckDirectory dir;
};

}  // namespace

TEST_F(ParserInclude, KeywordsAreSplicedInAndDataFlowsBothWays) {
    dir.Write("mesh.inp", "3, 0.\n** head of part\n*ELEMENT, TYPE=C3D8\n1, 1, 2\n");
    IncludeResult r =
        parseMain("*NODE\n1, 0.\n2, 0.\n" + include("mesh.inp") + "\n2, 3, 4\n*STEP\n");
    ASSERT_EQ(r.keywords.Length(), 3);
    EXPECT_EQ(r.keywords.ConstGet(0).Data().Rows(), 3);  // the include's leading line joins *NODE
    inp_Keyword const& element = r.keywords.ConstGet(1);
    EXPECT_EQ(element.Keyword(), inp_kw_Element);
    EXPECT_EQ(element.FileName(), dir.Path("mesh.inp"));
    EXPECT_EQ(element.Comments().ConstGet(0), " head of part");
    EXPECT_EQ(element.Data().Rows(),
              2);  // the line behind *INCLUDE joins the last included keyword
    EXPECT_EQ(r.included.Length(), 1);
    EXPECT_TRUE(r.errors.IsEmpty() && r.fatalErrors.IsEmpty());
}

TEST_F(ParserInclude, DataOnlyFileGoesToTheKeywordInFrontOrIsSkipped) {
    dir.Write("data.inp", "1, 2.\n3, 4.\n");
    IncludeResult below = parseMain("*NODE\n" + include("data.inp") + "\n5, 6.\n");
    ASSERT_EQ(below.keywords.Length(), 1);
    EXPECT_EQ(below.keywords.ConstGet(0).Data().Rows(), 3);

    IncludeResult first = parseMain(include("data.inp") + "\n*NODE\n");
    ASSERT_EQ(first.keywords.Length(), 1);
    EXPECT_EQ(first.keywords.ConstGet(0).Data().Rows(), 0);
}

TEST_F(ParserInclude, AbbreviatedInputAndTheIncludeDirectory) {
    dir.Write("a.inp", "*NODE\n");
    IncludeResult in = parseMain("*INCLUDE, IN=a.inp\n*INCLUDE, I=a.inp\n", true, dir.Directory());
    EXPECT_EQ(in.keywords.Length(), 2);
    EXPECT_EQ(in.included.Length(), 2);  // the same file twice is read twice
    EXPECT_TRUE(in.fatalErrors.IsEmpty());

    IncludeResult file = parseMain("*INCLUDE, FILE=a.inp\n*NODE\n");
    ASSERT_EQ(file.fatalErrors.Length(), 1);
    EXPECT_EQ(file.fatalErrors.ConstGet(0), "Missing input parameter");
    EXPECT_EQ(file.keywords.Length(), 1);
}

TEST_F(ParserInclude, MissingIncludeIsFatalWhenStrictAndListedEitherWay) {
    IncludeResult strict = parseMain("*INCLUDE, INPUT=sub/nothere.inp\n1, 2\n*NODE\n");
    ASSERT_EQ(strict.fatalErrors.Length(), 1);
    EXPECT_EQ(strict.fatalErrors.ConstGet(0), "Include file \"sub/nothere.inp\" does not exist.");
    ASSERT_EQ(strict.missing.Length(), 1);
    EXPECT_EQ(strict.missing.ConstGet(0), "nothere.inp");
    EXPECT_EQ(strict.keywords.Length(), 1);

    IncludeResult lenient = parseMain("*INCLUDE, INPUT=nothere.inp\n", false);
    EXPECT_TRUE(lenient.fatalErrors.IsEmpty());
    EXPECT_EQ(lenient.missing.Length(), 1);
}

TEST_F(ParserInclude, ParameterizedUnreadableAndCircularIncludes) {
    IncludeResult parameterized =
        parseMain("*INCLUDE, INPUT=\"<mesh>\"\n*INCLUDE, INPUT=<mesh>\n*NODE\n");
    ASSERT_EQ(parameterized.errors.Length(), 2);
    EXPECT_EQ(parameterized.errors.ConstGet(0),
              "Include file \"\"<mesh>\"\" name is parameterized and not substituted.");
    EXPECT_EQ(parameterized.errors.ConstGet(1),
              "Problem when parsing keyword: INCLUDE     Invalid value \"<mesh>\" for parameter "
              "\"input\". The value "
              "may be misspelled, obsolete, or invalid.");
    EXPECT_TRUE(parameterized.fatalErrors.IsEmpty());
    EXPECT_EQ(parameterized.keywords.Length(), 1);

    mkdir(dir.Path("folder.inp").CStr(), 0700);
    IncludeResult unreadable = parseMain(include("folder.inp") + "\n");
    ASSERT_EQ(unreadable.fatalErrors.Length(), 1);
    EXPECT_EQ(unreadable.fatalErrors.ConstGet(0),
              cow_String("Input file \"") + dir.Path("folder.inp") + "\" is unreadable.");

    dir.Write("b.inp", "*ELEMENT\n" + include("main.inp") + "\n");
    IncludeResult circular = parseMain("*NODE\n" + include("b.inp") + "\n*STEP\n");
    ASSERT_EQ(circular.fatalErrors.Length(), 1);
    EXPECT_EQ(
        circular.fatalErrors.ConstGet(0),
        cow_String("Include file \"") + dir.Path("main.inp") + "\" has already been included.");
    EXPECT_EQ(circular.keywords.Length(), 3);  // what was read stays
}

TEST_F(ParserInclude, DeckIncludingItselfByARelativeName) {
    std::string text = "*NODE\n*INCLUDE, INPUT=main.inp\n";
    IncludeResult r = parseMain(text, true, dir.Directory());
    ASSERT_EQ(r.fatalErrors.Length(), 1);
    EXPECT_EQ(r.fatalErrors.ConstGet(0), "Include file \"main.inp\" has already been included.");
}

TEST_F(ParserInclude, DeepChainOfAHundredIncludes) {
    for (int level = 1; level < 100; ++level) {
        std::string next =
            level < 99 ? include("level" + std::to_string(level + 1) + ".inp") + "\n" : "";
        dir.Write("level" + std::to_string(level) + ".inp",
                  "*NSET, NSET=S" + std::to_string(level) + "\n" + next);
    }
    IncludeResult r = parseMain(include("level1.inp") + "\n");
    EXPECT_EQ(r.keywords.Length(), 99);
    EXPECT_TRUE(r.fatalErrors.IsEmpty());
    EXPECT_EQ(r.included.Length(), 99);
}

// A failure in an included file points to that file and its line, not to the
// deck that included it; a failure of the *INCLUDE line points to that line.
TEST_F(ParserInclude, FailuresCarryTheFileAndLineTheyConcern) {
    dir.Write("part.inp", "*NODE\n1, 0.\n*NOSUCH\n");
    IncludeResult r =
        parseMain("*HEADING\n" + include("part.inp") + "\n*INCLUDE, INPUT=gone.inp\n");
    ASSERT_EQ(r.errors.Length(), 1);
    atr_Location const* inInclude = r.errors[0].Location();
    ASSERT_NE(inInclude, nullptr);
    EXPECT_EQ(inInclude->file, dir.Path("part.inp"));
    EXPECT_EQ(inInclude->line, 3);
    EXPECT_EQ(inInclude->keyword, "NOSUCH");
    ASSERT_EQ(r.fatalErrors.Length(), 1);
    atr_Location const* atInclude = r.fatalErrors[0].Location();
    ASSERT_NE(atInclude, nullptr);
    EXPECT_EQ(atInclude->file, dir.Path("main.inp"));
    EXPECT_EQ(atInclude->line, 3);
    EXPECT_EQ(atInclude->keyword, "INCLUDE");
}
