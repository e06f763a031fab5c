#include "bench/inp_DeckGenerator.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "bench/inp_KeywordDeckGenerator.h"
#include "parser/inp_Parser.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

struct ParsedDeck {
    cow_List<inp_Keyword> keywords;
    int errors = 0;
    int warnings = 0;
    int fatalErrors = 0;
};

ParsedDeck parseStrictly(cow_String const& path) {
    inp_Parser parser(path, cow_String(), cow_List<cow_String>(), cow_String(), true, true, false);
    ParsedDeck deck;
    deck.keywords = parser.Parse(true);
    deck.errors = parser.GetErrors().Length();
    deck.warnings = parser.GetWarnings().Length();
    deck.fatalErrors = parser.GetFatalErrors().Length();
    return deck;
}

int countOf(cow_List<inp_Keyword> const& keywords, inp_KeywordEnm keyword) {
    int count = 0;
    for (inp_Keyword const& record : keywords) count += record.Is(keyword);
    return count;
}

inp_Keyword const& firstOf(cow_List<inp_Keyword> const& keywords, inp_KeywordEnm keyword) {
    for (inp_Keyword const& record : keywords)
        if (record.Is(keyword)) return record;
    throw std::runtime_error("keyword missing from the deck");
}

std::string text(cow_String const& value) {
    return std::string(value.View());
}

}  // namespace

TEST(DeckGeneratorFlat, ParsesStrictlyWithoutDiagnostics) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("flat.inp");
    inp_WriteDeck({.nx = 3, .ny = 2, .nz = 4}, path.CStr());

    ParsedDeck deck = parseStrictly(path);
    EXPECT_EQ(deck.errors, 0);
    EXPECT_EQ(deck.warnings, 0);
    EXPECT_EQ(deck.fatalErrors, 0);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_UndefinedKeyword), 0);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_Part), 0);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_Step), 1);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_EndStep), 1);
}

TEST(DeckGeneratorFlat, MeshHasOneRowPerNodeAndElementWithExpectedValues) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("flat.inp");
    inp_DeckGenerator generator({.nx = 3, .ny = 2, .nz = 4, .elementSize = 0.25});
    generator.Write(path.CStr());
    ASSERT_EQ(generator.NodeCount(), 4 * 3 * 5);
    ASSERT_EQ(generator.ElementCount(), 3 * 2 * 4);

    ParsedDeck deck = parseStrictly(path);
    inp_DataArray const& nodes = firstOf(deck.keywords, inp_kw_Node).Data();
    ASSERT_EQ(nodes.Rows(), 60);
    EXPECT_EQ(nodes.AsInt(59, 0), 60);
    EXPECT_DOUBLE_EQ(nodes.AsDouble(59, 1), 0.75);
    EXPECT_DOUBLE_EQ(nodes.AsDouble(59, 2), 0.5);
    EXPECT_DOUBLE_EQ(nodes.AsDouble(59, 3), 1.0);

    inp_DataArray const& elements = firstOf(deck.keywords, inp_kw_Element).Data();
    ASSERT_EQ(elements.Rows(), 24);
    ASSERT_EQ(elements.Cols(0), 9);
    // The first brick: bottom face counter-clockwise, then the face above it.
    int const expected[9] = {1, 1, 2, 6, 5, 13, 14, 18, 17};
    for (int j = 0; j < 9; ++j) EXPECT_EQ(elements.AsInt(0, j), expected[j]) << "column " << j;
    EXPECT_EQ(elements.AsInt(23, 7), generator.NodeCount());
}

TEST(DeckGeneratorFlat, GeneratedSetsCoverBottomAndTopFaces) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("flat.inp");
    inp_WriteDeck({.nx = 3, .ny = 2, .nz = 4}, path.CStr());

    ParsedDeck deck = parseStrictly(path);
    int generatedNodeSets = 0;
    for (inp_Keyword const& record : deck.keywords) {
        if (!record.Is(inp_kw_Nset) || !record.HasParameter("generate")) continue;
        ++generatedNodeSets;
        cow_String name = record.GetParameterAsString("nset", "");
        inp_DataArray const& range = record.Data();
        if (name == "BOTTOM") {
            EXPECT_EQ(range.AsInt(0, 0), 1);
            EXPECT_EQ(range.AsInt(0, 1), 12);
        } else {
            EXPECT_EQ(text(name), "TOP");
            EXPECT_EQ(range.AsInt(0, 0), 49);
            EXPECT_EQ(range.AsInt(0, 1), 60);
        }
    }
    EXPECT_EQ(generatedNodeSets, 2);
}

TEST(DeckGeneratorInstances, PartIsWrittenOnceAndPlacedPerInstance) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("instances.inp");
    inp_WriteDeck({.nx = 2, .ny = 2, .nz = 2, .instances = 3}, path.CStr());

    ParsedDeck deck = parseStrictly(path);
    EXPECT_EQ(deck.errors + deck.warnings + deck.fatalErrors, 0);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_Part), 1);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_Node), 1);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_Instance), 3);
    EXPECT_EQ(countOf(deck.keywords, inp_kw_EndInstance), 3);
    EXPECT_EQ(firstOf(deck.keywords, inp_kw_Node).Data().Rows(), 27);

    inp_Keyword const& boundary = firstOf(deck.keywords, inp_kw_Boundary);
    ASSERT_EQ(boundary.Data().Rows(), 3);
    EXPECT_EQ(text(boundary.Data().AsStringVerbatim(2, 0)), "BLOCK-3.BOTTOM");
    inp_Keyword const& load = firstOf(deck.keywords, inp_kw_Cload);
    EXPECT_EQ(text(load.Data().AsStringVerbatim(0, 0)), "BLOCK-1.27");
}

TEST(DeckGeneratorInstances, ThroughInputFileLeavesTheSinkEmpty) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("instances.inp");
    inp_WriteDeck({.nx = 2, .ny = 3, .nz = 1, .instances = 2}, path.CStr());

    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    sink.Clear();
    inp_InputFile input;
    input.Parse(path);
    EXPECT_TRUE(sink.Diagnostics().empty());
    EXPECT_EQ(countOf(input.Keywords(), inp_kw_Instance), 2);
}

// A deck larger than the writer's 4 MiB buffer must come out whole across flushes.
TEST(DeckGeneratorWriter, LargeDeckIsCompleteAndSizeIsReported) {
    TempDeckDirectory directory;
    cow_String path = directory.Path("large.inp");
    inp_DeckGenerator generator({.nx = 40, .ny = 40, .nz = 40});
    std::uint64_t bytes = generator.Write(path.CStr());
    EXPECT_EQ(bytes, std::filesystem::file_size(path.CStr()));
    EXPECT_GT(bytes, std::uint64_t{4} << 20);

    ParsedDeck deck = parseStrictly(path);
    EXPECT_EQ(deck.errors + deck.warnings + deck.fatalErrors, 0);
    inp_DataArray const& nodes = firstOf(deck.keywords, inp_kw_Node).Data();
    ASSERT_EQ(nodes.Rows(), 41 * 41 * 41);
    for (int row = 0; row < nodes.Rows(); row += 997) EXPECT_EQ(nodes.AsInt(row, 0), row + 1);
    EXPECT_EQ(text(nodes.AsStringVerbatim(nodes.Rows() - 1, 3)), "0.400000");
    EXPECT_EQ(firstOf(deck.keywords, inp_kw_Element).Data().Rows(), 64000);
}

TEST(DeckGeneratorLayout, RejectsSizesThatMakeNoDeck) {
    EXPECT_THROW(inp_DeckGenerator({.nx = 0}), std::invalid_argument);
    EXPECT_THROW(inp_DeckGenerator({.instances = -1}), std::invalid_argument);
    EXPECT_THROW(inp_DeckGenerator({.elementSize = 0.0}), std::invalid_argument);
    EXPECT_THROW(inp_DeckGenerator({.nx = 2000, .ny = 2000, .nz = 2000}), std::invalid_argument);
    EXPECT_THROW(inp_WriteDeck({}, "/nonexistent-directory/deck.inp"), std::runtime_error);
}

// The keyword decks: each keyword as many times as asked, every id it names
// defined, and the whole road without a diagnostic; without the mesh, the
// keywords alone.
TEST(KeywordDeckGenerator, WritesTheKeywordsAskedForAndTheMeshTheyName) {
    TempDeckDirectory directory;
    cow_String const path = directory.Path("keywords.inp");
    inp_WriteKeywordDeck({.nodeSets = 7, .elementSets = 5, .boundaries = 4, .concentrated = 3},
                         std::string(path.View()));
    ParsedDeck const parsed = parseStrictly(path);
    EXPECT_EQ(parsed.errors + parsed.warnings + parsed.fatalErrors, 0);
    EXPECT_EQ(countOf(parsed.keywords, inp_kw_Nset), 7);
    EXPECT_EQ(countOf(parsed.keywords, inp_kw_Elset), 5);
    EXPECT_EQ(countOf(parsed.keywords, inp_kw_Boundary), 4);
    EXPECT_EQ(countOf(parsed.keywords, inp_kw_Cload), 3);
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    sink.Clear();
    inp_InputFile input;
    input.Run(path, inp_Stage::OutOfPlace, inp_InputFile::RunRule::RunThrough);
    EXPECT_TRUE(sink.Diagnostics().empty())
        << (sink.Diagnostics().empty() ? "" : sink.Diagnostics().front().text.CStr());
    sink.Clear();

    inp_WriteKeywordDeck({.nodeSets = 2, .mesh = false}, std::string(path.View()));
    ParsedDeck const bare = parseStrictly(path);
    EXPECT_EQ(countOf(bare.keywords, inp_kw_Node), 0);
    EXPECT_EQ(countOf(bare.keywords, inp_kw_Nset), 2);
    EXPECT_THROW(inp_WriteKeywordDeck({.boundaries = -1}, std::string(path.View())),
                 std::invalid_argument);
}
