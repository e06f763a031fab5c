#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "expansion/inp_KeywordExpansionVisitor.h"
#include "parser/inp_Parser.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

std::vector<std::string> texts(cow_List<cow_String> const& list) {
    std::vector<std::string> result;
    for (cow_String const& text : list) result.emplace_back(text.View());
    return result;
}

std::vector<std::string> texts(cow_List<atr_String> const& list) {
    std::vector<std::string> result;
    for (atr_String const& text : list) result.emplace_back(text.View());
    return result;
}

// Every item of every line as stored (trimmed), items joined by ',', lines
// by '|'.
std::string dataOf(inp_Keyword const& keyword) {
    std::string text;
    inp_DataArray const& data = keyword.Data();
    for (int row = 0; row < data.Rows(); ++row) {
        if (row > 0) text += '|';
        for (int col = 0; col < data.Cols(row); ++col)
            text += (col > 0 ? "," : "") + std::string(data.AsStringVerbatim(row, col).View());
    }
    return text;
}

class DataFileInput : public ::testing::Test {
  protected:
    inp_Keyword keywordReading(inp_KeywordEnm key, cow_String const& path) {
        inp_Keyword keyword(key, "deck.inp");
        keyword.SetLineNumber(3);
        keyword.SetParameter("input", inp_Item(path));
        return keyword;
    }
    std::string at(char const* name) const {
        return std::string("in keyword *") + name + ", file \"deck.inp\", line 3: ";
    }

    TempDeckDirectory dir;
    inp_KeywordExpansionVisitor visitor;
};

}  // namespace

TEST_F(DataFileInput, LinesFollowTheKeywordsOwnDataCommentsVanishAndTheParameterGoes) {
    cow_String const path = dir.Write("amp.dat", "** a comment\n0.0, 1.0\n*\n**\n2.0, abc");
    inp_Keyword keyword = keywordReading(inp_kw_Amplitude, path);
    keyword.Data().Append("first");
    visitor.ProcessInputParameter(keyword);
    EXPECT_EQ(dataOf(keyword), "first|0.0,1.0|*|2.0,abc");  // no blank line at the end: case kept
    EXPECT_FALSE(keyword.HasParameter("input"));
    visitor.ReadInputParameter(path, keyword);
    EXPECT_EQ(texts(visitor.GetIncludedFiles()),
              (std::vector<std::string>{path.CStr(), path.CStr()}));
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}

TEST_F(DataFileInput, TrailingBlankLinesVanishAndTheWholeArrayIsRebuiltFromItsText) {
    inp_Keyword keyword =
        keywordReading(inp_kw_Node, dir.Write("nodes.dat", "1, a b\n\n2,\"Q r\"\n \n\n"));
    keyword.Data().Append("0, old");
    visitor.ProcessInputParameter(keyword);
    EXPECT_EQ(dataOf(keyword), "0,OLD|1,AB||2,\"Q r\"");
}

TEST_F(DataFileInput, AKeywordLineStopsTheReadAndKeepsTheLinesBeforeIt) {
    cow_String const path = dir.Write("nodes.dat", "1\n2\n3\n4\n*NODE\n6\n");
    inp_Keyword keyword = keywordReading(inp_kw_Node, path);
    visitor.ProcessInputParameter(keyword);
    EXPECT_EQ(dataOf(keyword), "1|2|3|4");
    EXPECT_FALSE(keyword.HasParameter("input"));
    EXPECT_EQ(texts(visitor.GetErrorList()),
              std::vector<std::string>{at("NODE") + "Data file \"" + path.CStr() +
                                       "\" contains a keyword definition. It must only contain the "
                                       "data required under keyword \"NODE\". You may use the "
                                       "*INCLUDE keyword instead."});
}

TEST_F(DataFileInput, ALineBeyondTheBufferKeepsItsStartAndEndsTheRead) {
    std::string const longLine(300, '7');
    inp_Keyword keyword =
        keywordReading(inp_kw_Node, dir.Write("long.dat", "1\n" + longLine + "\n3\n"));
    visitor.ProcessInputParameter(keyword);
    EXPECT_EQ(dataOf(keyword), "1|" + longLine.substr(0, 255));
}

TEST_F(DataFileInput, MissingFilesAreReportedAndListedOnceByFileNameExceptNone) {
    inp_Keyword keyword = keywordReading(inp_kw_Node, "sub/absent.dat");
    inp_Keyword again = keywordReading(inp_kw_Temperature, "other/absent.dat");
    inp_Keyword none = keywordReading(inp_kw_Node, "None");
    visitor.ProcessInputParameter(keyword);
    visitor.ProcessInputParameter(again);
    visitor.ProcessInputParameter(none);
    visitor.ReadInputParameter("", keyword);
    visitor.ReadInputParameter(dir.Directory(), keyword);
    EXPECT_FALSE(keyword.HasParameter("input") || none.HasParameter("input"));
    EXPECT_EQ(texts(visitor.GetMissingIncludedFiles()), std::vector<std::string>{"absent.dat"});
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{
                  at("NODE") + "Input file \"sub/absent.dat\" does not exist.",
                  at("TEMPERATURE") + "Input file \"other/absent.dat\" does not exist.",
                  at("NODE") + "Input file \"None\" does not exist.",
                  at("NODE") + "Input file is missing",
                  at("NODE") + "Input file \"" + dir.Directory().CStr() + "\" is not readable."}));
    EXPECT_TRUE(visitor.GetIncludedFiles().IsEmpty());
}

TEST_F(DataFileInput, ARelativeNameIsTriedInTheIncludeDirectoryAndQuotesAreLookedThrough) {
    dir.Write("my nodes.dat", "5, 1.0");
    visitor.SetIncludePath(dir.Directory());
    inp_Keyword keyword = keywordReading(inp_kw_Node, "\"my nodes.dat\"");
    visitor.ProcessInputParameter(keyword);
    EXPECT_EQ(dataOf(keyword), "5,1.0");
    EXPECT_EQ(texts(visitor.GetIncludedFiles()), std::vector<std::string>{"\"my nodes.dat\""});
}

// Through the parser and the whole walk, as the pipeline runs it.
TEST_F(DataFileInput, DeckKeywordsConsumeTheirFilesThroughTheirHandlers) {
    dir.Write("n.dat", "1, 0., 0.\n2, 1., 0.\n");
    dir.Write("s.dat", "1., 2.\n");
    dir.Write("d.dat", "3, 4\n");
    cow_String const deck = dir.Write("deck.inp",
                                      "*NODE, INPUT=n.dat\n*SPECTRUM, NAME=S, FILE=s.dat\n*DESIGN "
                                      "SHAPE VARIATION, INP=d.dat, PARAMETER=Px\n");
    inp_Parser parser(deck, dir.Directory(), cow_List<cow_String>(), cow_String(), true, true,
                      false);
    cow_List<inp_Keyword> keywords = parser.Parse(true);
    ASSERT_EQ(keywords.Length(), 3);
    visitor.SetIncludePath(dir.Directory());
    visitor.VisitList(keywords);
    // The node lines were read, then packed: seven columns a row.
    EXPECT_EQ(dataOf(keywords[0]), "1,0,0,0,0,0,0|2,1,0,0,0,0,0");
    EXPECT_EQ(dataOf(keywords[1]), "1.,2.");
    EXPECT_EQ(dataOf(keywords[2]), "3,4");
    EXPECT_FALSE(keywords[1].HasParameter("file") || keywords[2].HasParameter("input"));
    EXPECT_EQ(keywords[2].Parameters().ConstGet("parameter").AsString(), "Px");
    EXPECT_EQ(texts(visitor.GetIncludedFiles()),
              (std::vector<std::string>{"n.dat", "s.dat", "d.dat"}));
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty()) << visitor.Errors().CStr();
}
