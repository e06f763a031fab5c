// Decks of random keywords in random order, with random parameters and data,
// must go through parsing, expansion and organization, and the node visitor
// over the expanded list, with diagnostics only:
// no exception, no crash, no memory fault (the suite also runs under the
// address and undefined-behaviour sanitizers).

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "expansion/inp_Schema.h"
#include "mesh/inp_NodeVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

// Writes decks from a fixed seed, so that a failure can be replayed.
class RandomDeckWriter {
  public:
    explicit RandomDeckWriter(unsigned seed) : m_random(seed) {}

    std::string Deck(int keywordCount) {
        std::string deck;
        for (int i = 0; i < keywordCount; ++i) appendKeyword(deck);
        return deck;
    }

  private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    bool chance(int percent) { return below(100) < percent; }

    // A keyword of the language most of the time, spelled as decks spell it
    // (upper or mixed case, sometimes abbreviated); now and then a word that
    // is no keyword at all.
    std::string keywordName(inp_SchemaRow const*& row) {
        auto const& rows = inp_Schema::AllRows();
        row = rows[below(static_cast<int>(rows.size()))];
        if (chance(3)) return "NOSUCH" + std::to_string(below(100));
        std::string name = row->keyword;
        if (chance(30)) {
            for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        return name;
    }

    std::string parameterValue(inp_SchemaRow const& row, std::string const& parameter) {
        for (inp_SchemaEnum const& enumeration : row.enumerations) {
            if (parameter != enumeration.parameter || !chance(70)) continue;
            int count = 0;
            while (enumeration.words[count]) ++count;
            std::string word = enumeration.words[below(count)];
            if (chance(20) && word.size() > 1)
                word.resize(1 + below(static_cast<int>(word.size())));
            return word;
        }
        static char const* const values[] = {"A", "Set-1", "\"quoted name\"", "12",    "-3.5e2",
                                             "",  "1.0d0", "<param>",         "x y z", "None"};
        return values[below(10)];
    }

    void appendParameters(std::string& deck, inp_SchemaRow const& row) {
        std::vector<std::string> words;
        for (inp_WordTable word = row.parameters; *word; ++word) words.emplace_back(*word);
        int const count = below(4);
        for (int i = 0; i < count; ++i) {
            std::string name = words.empty() || chance(10)
                                   ? "bogus"
                                   : words[below(static_cast<int>(words.size()))];
            if (chance(25) && name.size() > 2)
                name.resize(2 + below(static_cast<int>(name.size()) - 1));
            deck += ", " + name;
            if (chance(80)) deck += "=" + parameterValue(row, name);
        }
    }

    void appendDataLines(std::string& deck) {
        static char const* const items[] = {"1",     "2.5",   "-7",  "1e3",          "A", "", " ",
                                            "SET-1", "1.5.5", "'q'", "999999999999", "0"};
        int const lines = chance(40) ? 0 : below(6);
        for (int line = 0; line < lines; ++line) {
            int const count = 1 + below(20);
            for (int i = 0; i < count; ++i) {
                if (i > 0) deck += ", ";
                deck += items[below(12)];
            }
            deck += '\n';
        }
    }

    void appendKeyword(std::string& deck) {
        if (chance(5)) deck += "** a comment\n";
        inp_SchemaRow const* row = nullptr;
        deck += "*" + keywordName(row);
        appendParameters(deck, *row);
        deck += '\n';
        appendDataLines(deck);
    }

    std::mt19937 m_random;
};

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

TEST(RandomDeckStages, RandomDecksGoThroughParseExpansionAndOrganizationWithDiagnosticsOnly) {
    TempDeckDirectory dir;
    int decksWithDiagnostics = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        RandomDeckWriter writer(seed);
        cow_String const path = dir.Write("random.inp", writer.Deck(40));
        sink().Clear();
        inp_InputFile input;
        input.SetIncludePath(dir.Directory());
        ASSERT_NO_THROW({
            input.Parse(path);
            input.ExpandKeywords();
            inp_NodeVisitor nodes(true);
            nodes.VisitList(input.GetKeywords());
            input.Reorganize();
        }) << "seed "
           << seed;
        for (inp_Keyword const& keyword : input.Keywords())
            EXPECT_NE(keyword.Keyword(), inp_kw_UndefinedKeyword) << "seed " << seed;
        if (!sink().Diagnostics().empty()) ++decksWithDiagnostics;
    }
    sink().Clear();
    // Random decks are wrong in many ways; if they pass clean, the stages
    // did not look at them.
    EXPECT_GT(decksWithDiagnostics, 50);
}

}  // namespace
