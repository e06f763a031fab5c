#include "parser/inp_Parser.h"

#include <gtest/gtest.h>

#include <string>

#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "support/pnt_PrettyPrint.h"
#include "support/typ_DebugFlags.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

struct ParseResult {
    cow_List<inp_Keyword> keywords;
    cow_List<atr_String> errors, warnings, fatalErrors;
    cow_List<cow_String> included, missing, skipped;
};

ParseResult parse(cow_String const& path, bool strict = true, bool bulk = true,
                  cow_String includePath = "") {
    inp_Parser parser(path, includePath, cow_List<cow_String>(), cow_String(), true, bulk, false);
    ParseResult result;
    result.keywords = parser.Parse(strict);
    result.errors = parser.GetErrors();
    result.warnings = parser.GetWarnings();
    result.fatalErrors = parser.GetFatalErrors();
    result.included = parser.GetIncludedFiles();
    result.missing = parser.GetMissingIncludeFiles();
    result.skipped = parser.SkippedDataLines();
    return result;
}

class ParserTest : public ::testing::Test {
  protected:
    ParseResult parseText(std::string const& text, bool strict = true, bool bulk = true) {
        return parse(dir.Write("deck.inp", text), strict, bulk);
    }
    TempDeckDirectory dir;
};

}  // namespace

using ParserLines = ParserTest;

TEST_F(ParserLines, KeywordLinesInAnyCaseAndIndentation) {
    ParseResult r = parseText("*NODE\n* node\n  *Node  \r\n*1\n**\n");
    ASSERT_EQ(r.keywords.Length(), 3);
    for (inp_Keyword const& k : r.keywords) EXPECT_EQ(k.Keyword(), inp_kw_Node);
    // "*1" is a data line of the third *NODE; "**" is a comment, lost at the end.
    EXPECT_EQ(r.keywords.ConstGet(2).Data().Rows(), 1);
    EXPECT_EQ(r.keywords.ConstGet(2).Data().AsStringVerbatim(0, 0), "*1");
    EXPECT_EQ(r.keywords.ConstGet(1).LineNumber(), 2);
    EXPECT_TRUE(r.errors.IsEmpty() && r.warnings.IsEmpty() && r.fatalErrors.IsEmpty());
}

// A line is C text to everything after the reader: a zero byte ends it,
// whatever follows on the line, and the blanks around the line are trimmed.
TEST_F(ParserLines, AZeroByteEndsTheLine) {
    using namespace std::string_literals;
    ParseResult r =
        parseText("  *NSET, NSET=A\0, GENERATE  \n1, 2\0, 3\n  \0 *STEP\n*NSET, NSET=B\n"s);
    ASSERT_EQ(r.keywords.Length(), 2);
    inp_Keyword const& first = r.keywords.ConstGet(0);
    EXPECT_EQ(first.GetParameterAsString("nset", cow_String()), "A");
    EXPECT_FALSE(first.HasParameter("generate"));
    ASSERT_EQ(first.Data().Rows(), 2);
    EXPECT_EQ(first.Data().Cols(0), 2);
    EXPECT_EQ(first.Data().AsInt(0, 1), 2);
    EXPECT_EQ(first.Data().AsStringVerbatim(1, 0), "");
    EXPECT_EQ(r.keywords.ConstGet(1).LineNumber(), 4);
}

TEST_F(ParserLines, LineOf256IsKeptAnd257IsTruncatedWithAWarning) {
    std::string exact = "1," + std::string(254, '2');
    std::string tooLong = "3," + std::string(255, '4');
    ParseResult r = parseText("*NSET, NSET=A\n" + exact + "\n" + tooLong + "\n5\n");
    inp_DataArray const& data = r.keywords.ConstGet(0).Data();
    ASSERT_EQ(data.Rows(), 3);  // the rest of the long line never shows up as a line
    EXPECT_EQ(data.AsStringVerbatim(0, 1).Length(), 254);
    EXPECT_EQ(data.AsStringVerbatim(1, 1).Length(), 254);
    EXPECT_EQ(data.AsStringVerbatim(2, 0), "5");
    ASSERT_EQ(r.warnings.Length(), 1);
    EXPECT_EQ(r.warnings.ConstGet(0), "Line #3 has been truncated.");
}

TEST_F(ParserLines, EmptyLinesAreRowsAndTitlesStayWhole) {
    ParseResult r = parseText("*HEADING\nA title, with commas\n\n*ELASTIC\n1., 2.\n\n3.\n");
    inp_DataArray const& heading = r.keywords.ConstGet(0).Data();
    ASSERT_EQ(heading.Rows(), 2);
    EXPECT_EQ(heading.Cols(0), 1);
    EXPECT_EQ(heading.AsStringVerbatim(0, 0), "A title, with commas");
    EXPECT_TRUE(heading.IsNone(1, 0));
    inp_DataArray const& elastic = r.keywords.ConstGet(1).Data();
    ASSERT_EQ(elastic.Rows(), 3);
    EXPECT_EQ(elastic.Cols(1), 1);
    EXPECT_TRUE(elastic.IsNone(1, 0));
}

TEST_F(ParserLines, WithoutBulkOnlyTitlesKeepTheirLines) {
    ParseResult r = parseText(
        "** c\n*NODE, NSET=ALL\n1, 0., 0.\n*STEP\nStep one\n*STATIC\n1., 1.\n", true, false);
    ASSERT_EQ(r.keywords.Length(), 3);
    EXPECT_EQ(r.keywords.ConstGet(0).Data().Rows(), 0);
    EXPECT_TRUE(r.keywords.ConstGet(0).HasParameter("nset"));
    EXPECT_EQ(r.keywords.ConstGet(0).Comments().Length(), 1);
    EXPECT_EQ(r.keywords.ConstGet(1).Data().Rows(), 1);
    EXPECT_EQ(r.keywords.ConstGet(2).Data().Rows(), 0);
}

TEST_F(ParserLines, DataBeforeTheFirstKeywordIsSkippedAndAnEmptyDeckIsEmpty) {
    ParseResult r = parseText("1, 2\n\n** note\n*NODE\n");
    EXPECT_EQ(r.skipped.Length(), 2);
    EXPECT_EQ(r.keywords.ConstGet(0).Comments().ConstGet(0), " note");
    EXPECT_EQ(parseText("").keywords.Length(), 0);
    EXPECT_EQ(parseText("no keyword here\n").keywords.Length(), 0);
}

using ParserContinuation = ParserTest;

TEST_F(ParserContinuation, TrailingCommaJoinsLinesAndCommentsBetweenAreDropped) {
    ParseResult r = parseText("*SOLID SECTION, ELSET=E,\n** between\nMATERIAL=STEEL\n1.\n");
    inp_Keyword const& k = r.keywords.ConstGet(0);
    EXPECT_EQ(k.Keyword(), inp_kw_SolidSection);
    EXPECT_EQ(k.GetParameterAsString("material", ""), "STEEL");
    EXPECT_TRUE(k.Comments().IsEmpty());
    EXPECT_EQ(k.Data().Rows(), 1);
}

TEST_F(ParserContinuation, CommaAtEndOfFileOrBeforeAnEmptyLineIsDropped) {
    ParseResult atEnd = parseText("*NSET, NSET=A, ,");
    ASSERT_EQ(atEnd.keywords.Length(), 1);
    EXPECT_EQ(atEnd.keywords.ConstGet(0).Parameters().Size(), 1);
    EXPECT_TRUE(atEnd.errors.IsEmpty());

    ParseResult beforeEmpty = parseText("*NSET, NSET=A,\n\n1\n");
    EXPECT_EQ(beforeEmpty.keywords.ConstGet(0).Data().Rows(), 1);
}

TEST_F(ParserContinuation, KeywordOnAContinuationLine) {
    std::string deck = "*NSET, NSET=A,\n*ELSET, ELSET=B\n1\n*NODE\n";
    ParseResult strict = parseText(deck);
    ASSERT_EQ(strict.errors.Length(), 1);
    EXPECT_EQ(strict.errors.ConstGet(0),
              "A keyword has been detected on what is supposed to be a continuation line. Please "
              "check that a "
              "trailing comma has not been mistakenly placed in: *NSET, NSET=A,");
    ASSERT_EQ(strict.keywords.Length(), 1);  // recovery resumes at *NODE
    EXPECT_EQ(strict.keywords.ConstGet(0).Keyword(), inp_kw_Node);

    // Leniently the keyword line is swallowed and the continuation goes on.
    ParseResult lenient = parseText(deck, false);
    ASSERT_EQ(lenient.keywords.Length(), 2);
    EXPECT_TRUE(lenient.keywords.ConstGet(0).HasParameter("1"));
}

using ParserComments = ParserTest;

TEST_F(ParserComments, OnlyCommentsDirectlyBeforeAKeywordAreKept) {
    ParseResult r = parseText(
        "** head\n*NODE\n1, 0.\n** between data\n2, 0.\n** after data\n*ELEMENT\n** at end\n");
    ASSERT_EQ(r.keywords.Length(), 2);
    ASSERT_EQ(r.keywords.ConstGet(0).Comments().Length(), 1);
    EXPECT_EQ(r.keywords.ConstGet(0).Comments().ConstGet(0), " head");
    ASSERT_EQ(r.keywords.ConstGet(1).Comments().Length(), 1);
    EXPECT_EQ(r.keywords.ConstGet(1).Comments().ConstGet(0), " after data");
}

// The keywords of a file without comments share one origin; a commented one
// has its own, and its comments stay with it.
TEST_F(ParserComments, UncommentedKeywordsShareTheirFileAndCommentedOnesStandApart) {
    ParseResult r = parseText("*NSET, NSET=A\n1\n** note\n*NSET, NSET=B\n2\n*NSET, NSET=C\n3\n");
    ASSERT_EQ(r.keywords.Length(), 3);
    inp_Keyword const& a = r.keywords.ConstGet(0);
    inp_Keyword const& b = r.keywords.ConstGet(1);
    inp_Keyword const& c = r.keywords.ConstGet(2);
    EXPECT_TRUE(a.Origin().SharesWith(c.Origin()));
    EXPECT_FALSE(a.Origin().SharesWith(b.Origin()));
    for (inp_Keyword const* keyword : {&a, &b, &c})
        EXPECT_TRUE(keyword->FileName().EndsWith("deck.inp"));
    ASSERT_EQ(b.Comments().Length(), 1);
    EXPECT_EQ(b.Comments().ConstGet(0), " note");
    EXPECT_TRUE(a.Comments().IsEmpty() && c.Comments().IsEmpty());
}

using ParserParameters = ParserTest;

TEST_F(ParserParameters, NamesFoldAndValuesAreTyped) {
    ParseResult r =
        parseText("*NODE, Ref Node = 12, , ,NSET=\"p,q\", GENERATE, Scale=1.5, Two-Words=x\n");
    inp_Keyword const& k = r.keywords.ConstGet(0);
    EXPECT_EQ(k.GetParameterAsInt("refnode", 0), 12);
    EXPECT_EQ(k.GetParameterAsString("nset", ""), "\"p,q\"");
    EXPECT_EQ(k.Parameters().ConstGet("generate").Type(), inp_Types::inp_BOOLEAN);
    EXPECT_DOUBLE_EQ(k.GetParameterAsDouble("scale", 0), 1.5);
    EXPECT_TRUE(k.HasParameter("two-words"));
    EXPECT_EQ(k.Parameters().Size(), 5);
}

TEST_F(ParserParameters, RepeatedParameterWarnsAndTheLastWins) {
    ParseResult r = parseText("*NSET, NSET=A, NSET=B, NSET\n");
    EXPECT_EQ(r.keywords.ConstGet(0).Parameters().ConstGet("nset").Type(), inp_Types::inp_BOOLEAN);
    std::string title =
        "in keyword *NSET, file \"" + std::string(dir.Path("deck.inp").CStr()) + "\", line 1: ";
    ASSERT_EQ(r.warnings.Length(), 2);
    EXPECT_EQ(r.warnings.ConstGet(0),
              cow_String(
                  (title +
                   "Repeated parameter: nset.  New definition of \"B\" overrides previous setting.")
                      .c_str()));
    EXPECT_EQ(
        r.warnings.ConstGet(1),
        cow_String((title + "Repeated parameter: nset.  New definition overrides previous setting.")
                       .c_str()));
}

TEST_F(ParserParameters, BadParametersDropTheKeywordInAStrictParse) {
    ParseResult r = parseText(
        "*NODE, 1a=2\n1\n*NODE, NSET=a=b\n*NODE, NSET=\"open\n*NODE, \"a=b\"\n*NODE, "
        "a.b\n*ELEMENT\n");
    ASSERT_EQ(r.keywords.Length(), 1);
    EXPECT_EQ(r.keywords.ConstGet(0).Keyword(), inp_kw_Element);
    ASSERT_EQ(r.errors.Length(), 5);
    EXPECT_EQ(r.errors.ConstGet(0),
              "Problem when parsing keyword: NODE     Invalid parameter: 1a=2. The parameter may "
              "be misspelled, "
              "obsolete, or invalid.");
    EXPECT_EQ(r.errors.ConstGet(1),
              "Problem when parsing keyword: NODE     Invalid value \"a=b\" for parameter "
              "\"nset\". The value may "
              "be misspelled, obsolete, or invalid.");
    EXPECT_EQ(r.errors.ConstGet(2),
              "Problem when parsing keyword: NODE     Missing end quote in parameter data "
              "\"NSET=\"open\".");
}

TEST_F(ParserParameters, LenientParseKeepsNamesAsWrittenButNotUnclosedQuotes) {
    ParseResult r = parseText("*NODE, 1A=2, NSET=a=b\n*NODE, NSET=\"open\n", false);
    ASSERT_EQ(r.keywords.Length(), 1);
    EXPECT_TRUE(r.keywords.ConstGet(0).HasParameter("1A"));
    EXPECT_EQ(r.keywords.ConstGet(0).Parameters().ConstGet("nset").Type(), inp_Types::inp_NONE);
    EXPECT_EQ(r.errors.Length(), 1);
}

// Names are folded once per way of writing them and the string is shared by
// every keyword that wrote it so; sharing must never let a change to one
// keyword show in another.
TEST_F(ParserParameters, SharedNamesReadAsWrittenAndStayApart) {
    ParseResult r =
        parseText("*NSET, NSET=A\n1\n*nset, nset=B\n2\n*N SET, N Set=C\n3\n*NSET, NSET=D\n4\n");
    ASSERT_EQ(r.keywords.Length(), 4);
    cow_String names[4];
    for (int i = 0; i < 4; ++i) {
        inp_Keyword const& k = r.keywords.ConstGet(i);
        EXPECT_EQ(k.Keyword(), inp_kw_Nset);
        ASSERT_EQ(k.Parameters().Size(), 1);
        cow_ConstMapIterator<cow_String, inp_Item> it(k.Parameters());
        names[i] = it.CurrentKey();
        EXPECT_EQ(names[i], "nset");
    }
    EXPECT_TRUE(names[0].SharesWith(names[3]));  // written alike
    EXPECT_EQ(r.keywords.ConstGet(2).GetParameterAsString("nset", ""), "C");

    cow_List<inp_Keyword> keywords = r.keywords;
    keywords.Get(0).SetParameter("nset", inp_Item("CHANGED"));
    keywords.Get(0).Data().Set(0, 0, 9);
    names[0].ToUpper();
    EXPECT_EQ(keywords.ConstGet(3).GetParameterAsString("nset", ""), "D");
    EXPECT_EQ(keywords.ConstGet(3).Data().AsInt(0, 0), 4);
    EXPECT_EQ(names[3], "nset");
    EXPECT_EQ(r.keywords.ConstGet(3).Print(false), keywords.ConstGet(3).Print(false));

    // A keyword without data lines holds no storage for them.
    ParseResult bare = parseText("*STEP\n*STATIC\n*END STEP\n");
    ASSERT_EQ(bare.keywords.Length(), 3);
    EXPECT_EQ(bare.keywords.ConstGet(1).Data().UseCount(), 0);
    EXPECT_EQ(bare.keywords.ConstGet(0).Data().UseCount(), 0);  // a step without a title
}

using ParserErrors = ParserTest;

TEST_F(ParserErrors, UnknownAndAmbiguousKeywordsAreErrorsAndParsingGoesOn) {
    // Each name is resolved once and remembered: the second of each must
    // still be refused, and the abbreviation still accepted.
    ParseResult r =
        parseText("*NODE\n1\n*NOSUCH, A=1\n2\n*EL\n*ELG\n1, 2, 3\n*NOSUCH\n*EL\n*ELG\n");
    ASSERT_EQ(r.errors.Length(), 4);
    EXPECT_EQ(r.errors.ConstGet(0),
              "Unknown keyword \"nosuch\". The keyword may be misspelled, obsolete, or invalid.");
    EXPECT_EQ(r.errors.ConstGet(1), "Ambiguous keyword definition \"el\".");
    EXPECT_EQ(r.errors.ConstGet(2), r.errors.ConstGet(0));
    EXPECT_EQ(r.errors.ConstGet(3), r.errors.ConstGet(1));
    ASSERT_EQ(r.keywords.Length(), 3);
    EXPECT_EQ(r.keywords.Last().Keyword(), inp_kw_Elgen);
    EXPECT_EQ(r.keywords.ConstGet(0).Data().Rows(), 1);
    EXPECT_EQ(r.keywords.ConstGet(1).Keyword(), inp_kw_Elgen);
}

TEST_F(ParserErrors, MessageListsStopAfter25WithOneNote) {
    std::string deck;
    for (int k = 0; k < 30; ++k) deck += "*BAD" + std::to_string(k) + "\n";
    ParseResult r = parseText(deck);
    ASSERT_EQ(r.errors.Length(), 27);
    EXPECT_EQ(r.errors.ConstGet(25),
              "Unknown keyword \"bad25\". The keyword may be misspelled, obsolete, or invalid.");
    EXPECT_EQ(r.errors.ConstGet(26), "No more (non-fatal) errors will be reported ...");
}

TEST_F(ParserErrors, AFileThatCannotBeOpenedIsTheOnlyThrow) {
    inp_Parser parser(dir.Path("missing.inp"), "", cow_List<cow_String>(), "", true, true, false);
    try {
        parser.Parse(true);
        FAIL();
    } catch (nex_PrimException<atr_String, 1> const& e) {
        EXPECT_EQ(e.UserReport(),
                  cow_String("Could not open file ") + dir.Path("missing.inp") + "\n");
    }
}

TEST_F(ParserErrors, GarbageAndOverlongInputGiveDiagnosticsNotCrashes) {
    std::string garbage;
    for (int k = 0; k < 20000; ++k) garbage += static_cast<char>((k * 7919) % 256);
    ParseResult g = parseText(garbage + "\n*NODE\n1\n");
    EXPECT_EQ(g.keywords.Last().Keyword(), inp_kw_Node);

    ParseResult huge = parseText("*NODE\n" + std::string(10u << 20, 'x') + "\n2\n");
    ASSERT_EQ(huge.keywords.ConstGet(0).Data().Rows(), 2);
    EXPECT_EQ(huge.warnings.Length(), 1);

    ParseResult commas = parseText(std::string(5000, ',') + "\n,,,\n");
    EXPECT_EQ(commas.keywords.Length(), 0);
    // The truncated keyword line still ends in a comma and takes "1" as a parameter name.
    ParseResult commaKeyword = parseText("*NODE" + std::string(300, ',') + "\n1\n*ELEMENT\n");
    EXPECT_EQ(commaKeyword.keywords.Length(), 1);
    EXPECT_EQ(commaKeyword.errors.Length(), 1);
}

TEST_F(ParserLines, DebugLevelsPrintTimingsAndThenEveryKeyword) {
    aio_ostringstream printed;
    pnt_debugPrint().SetStream(&printed);
    cow_String path = dir.Write("deck.inp", "*NODE\n*ELEMENT\n");
    typ_DebugFlags::SetDebugFlags(30, 1);
    parse(path);
    EXPECT_NE(printed.Str().Find("Parse - File: "), -1);
    EXPECT_EQ(printed.Str().Find("Creating keyword"), -1);
    typ_DebugFlags::SetDebugFlags(30, 2);
    parse(path);
    EXPECT_NE(printed.Str().Find("Creating keyword: \"node\"."), -1);
    EXPECT_NE(printed.Str().Find("Creating keyword: \"element\"."), -1);
    typ_DebugFlags::SetDebugFlags(30, 0);
    pnt_debugPrint().SetStream(nullptr);
}
