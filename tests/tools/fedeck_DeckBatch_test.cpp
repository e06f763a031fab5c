// `fedeck check DECK...`: many decks on several threads report exactly what
// single runs of each deck report, in the order given. The program runs in
// this process, so that a thread-sanitizer build of this test sees every
// thread that checks a deck.

#include "tools/fedeck_DeckBatch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/common/InProcessFedeck.h"
#include "tests/common/JsonReader.h"
#include "tests/common/TempDeckDirectory.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_Commands.h"

namespace {

namespace fs = std::filesystem;

testing::Environment* const g_module = testing::AddGlobalTestEnvironment(new DeckModuleEnvironment);

// A small brick of `elements` hexahedra in a row, and what deck `index`
// plants in it: nothing, an element on a node that is not there, a keyword
// that does not exist, or an unknown parameter; every fifth deck also takes
// its elements from an include file.
void writeDeck(TempDeckDirectory const& directory, int index) {
    int const elements = 1 + index % 5;
    std::string nodes = "*NODE, NSET=ALL\n";
    for (int column = 0; column <= elements; ++column)
        for (int corner = 0; corner < 4; ++corner)
            nodes += std::to_string(4 * column + corner + 1) + ", " + std::to_string(column) +
                     ", " + std::to_string(corner % 2) + ", " + std::to_string(corner / 2) + "\n";
    std::string elementLines = "*ELEMENT, TYPE=C3D8, ELSET=BRICK\n";
    for (int e = 0; e < elements; ++e) {
        int const a = 4 * e;
        elementLines += std::to_string(e + 1) + ", " + std::to_string(a + 1) + ", " +
                        std::to_string(a + 2) + ", " + std::to_string(a + 4) + ", " +
                        std::to_string(a + 3) + ", " + std::to_string(a + 5) + ", " +
                        std::to_string(a + 6) + ", " + std::to_string(a + 8) + ", " +
                        std::to_string(a + 7) + "\n";
    }
    if (index % 4 == 1) elementLines += "99, 1, 2, 4, 3, 500, 501, 502, 503\n";
    std::string const name = "deck" + std::to_string(index);
    std::string deck = "*HEADING\n" + name + "\n" + nodes;
    if (index % 5 == 0) {
        directory.Write(name + "-elements.inc", elementLines);
        deck += "*INCLUDE, INPUT=" + name + "-elements.inc\n";
    } else {
        deck += elementLines;
    }
    if (index % 4 == 2) deck += "*NOT A KEYWORD\n";
    deck += index % 4 == 3 ? "*SOLID SECTION, ELSET=BRICK, MATERIAL=STEEL, COLOUR=RED\n"
                           : "*SOLID SECTION, ELSET=BRICK, MATERIAL=STEEL\n";
    deck += "*MATERIAL, NAME=STEEL\n*ELASTIC\n210000., 0.3\n*STEP\n*STATIC\n*END STEP\n";
    directory.Write(name + ".inp", deck);
}

class ManyDecks : public testing::Test {
  protected:
    static constexpr int kDecks = 100;

    void SetUp() override {
        for (int i = 0; i < kDecks; ++i) {
            writeDeck(m_directory, i);
            m_decks.emplace_back(m_directory.Path("deck" + std::to_string(i) + ".inp").View());
        }
    }
    std::vector<std::string> with(std::vector<std::string> options) const {
        options.insert(options.end(), m_decks.begin(), m_decks.end());
        return options;
    }

    TempDeckDirectory m_directory;
    std::vector<std::string> m_decks;
};

TEST_F(ManyDecks, TwoThreadsReportWhatSingleRunsReportInTheOrderGiven) {
    std::string singleJson, singleText;
    int worst = 0, withErrors = 0, withWarnings = 0;
    for (std::string const& deck : m_decks) {
        FedeckOutcome const json = RunFedeckInProcess({"check", "--json", deck});
        FedeckOutcome const text = RunFedeckInProcess({"check", deck});
        ASSERT_EQ(json.status, text.status);
        singleJson += json.out;
        singleText += text.out;
        worst = std::max(worst, json.status);
        Json const report = JsonReader(json.out).Read();
        withErrors += json.status == fedeck_EXIT_ERRORS ? 1 : 0;
        auto const& diagnostics = report["diagnostics"].items;
        withWarnings += std::any_of(diagnostics.begin(), diagnostics.end(),
                                    [](Json const& d) { return d["severity"].text == "warning"; });
    }
    ASSERT_EQ(worst, fedeck_EXIT_ERRORS);
    ASSERT_GT(withErrors, 0);

    FedeckOutcome const json = RunFedeckInProcess(with({"check", "-j", "2", "--json"}));
    EXPECT_EQ(json.status, worst);
    std::vector<std::string> lines = LinesOf(json.out);
    ASSERT_EQ(lines.size(), kDecks + 1u);
    Json const summary = JsonReader(lines.back()).Read()["summary"];
    EXPECT_EQ(summary["decks"].Int(), kDecks);
    EXPECT_EQ(summary["withErrors"].Int(), withErrors);
    EXPECT_EQ(summary["withWarnings"].Int(), withWarnings);
    EXPECT_EQ(summary["unreadable"].Int(), 0);
    EXPECT_EQ(summary["seconds"].kind, Json::Number);
    lines.pop_back();
    std::string joined;
    for (std::string const& line : lines) {
        JsonReader(line).Read();  // each line is a JSON object of its own
        joined += line + "\n";
    }
    EXPECT_EQ(joined, singleJson);

    FedeckOutcome const text = RunFedeckInProcess(with({"check", "-j2"}));
    EXPECT_EQ(text.status, worst);
    ASSERT_TRUE(text.out.starts_with(singleText));
    std::string const closing = text.out.substr(singleText.size());
    EXPECT_TRUE(
        closing.starts_with("fedeck: 100 decks, " + std::to_string(withErrors) + " with errors, "))
        << closing;
    EXPECT_NE(closing.find(" with warnings, 0 unreadable, "), std::string::npos) << closing;
}

TEST_F(ManyDecks, MoreThreadsThanDecksAndOneThreadGiveTheSameReports) {
    std::vector<std::string> const few(m_decks.begin(), m_decks.begin() + 3);
    std::vector<std::string> many = {"check", "--json", "-j", "64"};
    many.insert(many.end(), few.begin(), few.end());
    std::vector<std::string> one = {"check", "--json", "--jobs=1"};
    one.insert(one.end(), few.begin(), few.end());
    FedeckOutcome const wide = RunFedeckInProcess(many);
    FedeckOutcome const narrow = RunFedeckInProcess(one);
    EXPECT_EQ(wide.status, narrow.status);
    // The summaries differ in their time only.
    std::vector<std::string> wideLines = LinesOf(wide.out), narrowLines = LinesOf(narrow.out);
    ASSERT_EQ(wideLines.size(), 4u);
    ASSERT_EQ(narrowLines.size(), 4u);
    for (size_t i = 0; i < 3; ++i) EXPECT_EQ(wideLines[i], narrowLines[i]);
}

TEST_F(ManyDecks, AnUnreadableDeckIsReportedInItsPlaceAndTheOthersAreChecked) {
    fs::create_directory(std::string(m_directory.Path("folder.inp").View()));
    std::string const missing = std::string(m_directory.Path("missing.inp").View());
    std::string const folder = std::string(m_directory.Path("folder.inp").View());
    FedeckOutcome const single = RunFedeckInProcess({"check", m_decks[4]});
    FedeckOutcome const text =
        RunFedeckInProcess({"check", m_decks[4], missing, folder, m_decks[4]});
    EXPECT_EQ(text.status, fedeck_EXIT_USAGE);
    std::vector<std::string> const lines = LinesOf(text.out);
    ASSERT_EQ(lines.size(), LinesOf(single.out).size() + 3);
    EXPECT_TRUE(text.out.starts_with(single.out));
    EXPECT_EQ(lines[lines.size() - 3], "fedeck: cannot read deck: " + missing);
    EXPECT_EQ(lines[lines.size() - 2], "fedeck: cannot read deck: " + folder + " is a directory");
    EXPECT_TRUE(lines.back().starts_with("fedeck: 3 decks, 0 with errors, "));
    EXPECT_NE(lines.back().find("2 unreadable"), std::string::npos);
    EXPECT_NE(text.err.find(m_decks[4] + " is given more than once"), std::string::npos)
        << text.err;

    // The same deck under another name is still the same deck.
    fs::path const relative = fs::relative(m_decks[4]);
    FedeckOutcome const twice =
        RunFedeckInProcess({"check", "--json", m_decks[4], relative.string()});
    EXPECT_EQ(LinesOf(twice.out).size(), 1u);
    EXPECT_NE(twice.err.find("is given more than once"), std::string::npos);

    FedeckOutcome const json = RunFedeckInProcess({"check", "--json", missing, m_decks[0]});
    EXPECT_EQ(json.status, fedeck_EXIT_USAGE);
    Json const unreadable = JsonReader(LinesOf(json.out)[0]).Read();
    EXPECT_EQ(unreadable["deck"].text, missing);
    EXPECT_EQ(unreadable["error"].text, "cannot read deck: " + missing);
}

TEST(DeckBatchArguments, JobsAndFormatsAreReadOrRefusedClearly) {
    auto const parse = [](std::vector<char const*> argv) {
        argv.insert(argv.begin(), "fedeck");
        return fedeck_ParseArguments(static_cast<int>(argv.size()), argv.data());
    };
    EXPECT_EQ(parse({"check", "-j", "3", "a", "b"}).jobs, 3);
    EXPECT_EQ(parse({"check", "-j7", "a"}).jobs, 7);
    EXPECT_EQ(parse({"check", "--jobs=2", "a"}).jobs, 2);
    EXPECT_EQ(parse({"check", "a"}).jobs, 0);
    EXPECT_EQ(parse({"check", "a", "b", "c"}).operands.size(), 3u);
    EXPECT_EQ(parse({"check", "--format", "sarif", "a"}).format, fedeck_Format::Sarif);
    EXPECT_EQ(parse({"check", "--format=github", "a"}).format, fedeck_Format::Github);
    EXPECT_EQ(parse({"check", "--json", "a"}).format, fedeck_Format::Json);

    FedeckOutcome const zero = RunFedeckInProcess({"check", "-j", "0", "a.inp"});
    EXPECT_EQ(zero.status, fedeck_EXIT_USAGE);
    EXPECT_TRUE(zero.err.starts_with(
        "fedeck: option '-j' needs a number of decks checked at once (1 or more), not '0'"))
        << zero.err;
    EXPECT_EQ(RunFedeckInProcess({"check", "-j", "two", "a.inp"}).status, fedeck_EXIT_USAGE);
    FedeckOutcome const format = RunFedeckInProcess({"check", "--format", "xml", "a.inp"});
    EXPECT_TRUE(format.err.starts_with(
        "fedeck: option '--format' takes text, json, sarif or github, not 'xml'"));
    FedeckOutcome const restart =
        RunFedeckInProcess({"check", "--restart-from", "e.inp", "a.inp", "b.inp"});
    EXPECT_TRUE(
        restart.err.starts_with("fedeck: a continuation job ('--restart-from') takes one DECK"));
    EXPECT_EQ(RunFedeckInProcess({"tree", "a.inp", "b.inp"}).status, fedeck_EXIT_USAGE);
    EXPECT_EQ(RunFedeckInProcess({"tree", "-j", "2", "a.inp"}).status, fedeck_EXIT_USAGE);
}

}  // namespace
