#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "deck/inp_PatternMatchers.h"
#include "deck/inp_Types.h"
#include "support/rgx_Regex.h"

namespace {

using Matcher = inp_PatternMatch (*)(std::string_view) noexcept;

TEST(InpTypesPatterns, TextsAreExactlyAsHandedToTheEngine) {
    EXPECT_STREQ(inp_Types::stringPat(),
                 R"(^[ \t]*([a-zA-Z_][^,=\n]*?)[ \t]*$|^[ \t]*("[^"\n]*")[ \t]*$)");
    EXPECT_STREQ(inp_Types::integerPat(), R"(^[ \t]*([-+]?[0-9]+)[ \t]*$)");
    EXPECT_STREQ(
        inp_Types::doublePat(),
        R"(^[ \t]*([-+]?[0-9]*\.[0-9]*)[ \t]*$|^[ \t]*([-+]?[0-9]*\.?[0-9]*[eE][-+]?[0-9]+)[ \t]*$)");
    EXPECT_STREQ(
        inp_Types::doublePatD(),
        R"(^[ \t]*([-+]?[0-9]*\.[0-9]*)[ \t]*$|^[ \t]*([-+]?[0-9]*\.?[0-9]*[dD][-+]?[0-9]+)[ \t]*$)");
    EXPECT_STREQ(inp_Types::paramPat(), R"(^[ \t]*([a-zA-Z][-a-zA-Z0-9 \t]*?[a-zA-Z0-9]*)[ \t]*$)");
    // The last bracket holds a real newline character.
    EXPECT_STREQ(inp_Types::setNamePat(),
                 R"(^[ \t]*((([a-zA-Z_][^,=\n]*?)|("[^"\n]+"))(\.(([a-zA-Z_][^,=\n]*?)|("[^")"
                 "\n"
                 R"(]+")))*?)[ \t]*$)");
    EXPECT_STREQ(inp_Types::scopedIDPat(), R"(^[ \t]*(([a-zA-Z_][^\.]*|"[^"]+")\.)*[0-9]+[ \t]*$)");
    EXPECT_STREQ(inp_Types::fileNamePat(),
                 R"(^[ \t]*([a-zA-Z0-9_$%/\.][^,=\n]*?)[ \t]*$|^[ \t]*("[^"\n]+")[ \t]*$)");
    EXPECT_STREQ(inp_Types::superelementIDPat(), R"(^[ \t]*([Zz][0-9]+)[ \t]*$)");
    EXPECT_STREQ(inp_Types::userElementIDPat(), R"(^[ \t]*([Vv]*[Uu][0-9]+)[ \t]*$)");
    EXPECT_STREQ(inp_Types::fakeName(), "FAKE");
}

// Callers compare the numbers.
static_assert(inp_Types::inp_INTEGER == 0 && inp_Types::inp_BOOLEAN == 1 &&
              inp_Types::inp_REAL == 2 && inp_Types::inp_STRING == 3 && inp_Types::inp_NONE == 4);

std::string printable(std::string_view text) {
    std::string out = "\"";
    for (char c : text) {
        auto byte = static_cast<unsigned char>(c);
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\x%02x", byte);
        out += (byte < 32 || byte >= 127) ? escaped : std::string(1, c);
    }
    return out + "\"";
}

// Up to `count` distinct texts of 0 to 12 characters (a little more when a
// token runs over), each a run of tokens drawn at random.
std::vector<std::string> textsFromTokens(std::vector<std::string> const& tokens, size_t count,
                                         unsigned seed) {
    std::mt19937 random(seed);
    std::unordered_set<std::string> seen;
    std::vector<std::string> out;
    for (size_t attempts = 0; out.size() < count && attempts < 4 * count; ++attempts) {
        std::string text;
        size_t length = random() % 13;
        while (text.size() < length) text += tokens[random() % tokens.size()];
        if (seen.insert(text).second) out.push_back(std::move(text));
    }
    return out;
}

std::vector<std::string> charactersOf(std::string_view alphabet) {
    std::vector<std::string> out;
    for (char c : alphabet) out.emplace_back(1, c);
    return out;
}

// Texts for every pattern, rich in the characters the patterns care about:
// single characters, and tokens that build names, quotes and numbers.
std::vector<std::string> const& generatedTexts() {
    static std::vector<std::string> const texts = [] {
        // Ends in a zero byte of its own, besides the terminating one.
        static constexpr char alphabet[] =
            "aAbzZeEdDuUvVx_0159.,=\"+- \t\n/$%#;:*()'\\\r\x80\xe9\xff\0";
        std::vector<std::string> single =
            charactersOf(std::string_view(alphabet, sizeof alphabet - 1));
        std::vector<std::string> out = textsFromTokens(single, 100000, 20240611);
        std::vector<std::string> words = {
            "a",       "Part-1", "_x",  "e",        "E",  "d",   "D",    "Z", "z",  "U",
            "vu",      "1",      "42",  "007",      ".",  "..",  ",",    "=", "\"", "\"ab\"",
            "\"a b\"", "\"\"",   "+",   "-",        " ",  "\t",  "\n",   "/", "$",  "%",
            "x.y",     "7.8E3",  "1d2", "\xc3\xa9", "\r", "a,b", "\".\""};
        for (std::string& text : textsFromTokens(words, 100000, 7)) out.push_back(std::move(text));
        return out;
    }();
    return texts;
}

std::vector<std::string> const& handPickedTexts() {
    static std::vector<std::string> const texts = {
        "",
        " ",
        "\t \t",
        "a",
        " a ",
        "a ",
        "a\t",
        "_",
        "1",
        "+",
        "-",
        "+1",
        "-0",
        "1 2",
        "\"\"",
        "\" \"",
        "\"a\"",
        "\"a\".\"b\"",
        "\"a\"b",
        "\"a\".b",
        "a.\"b\"",
        "a.\"\"",
        "\"\".a",
        "\"a,b\"",
        "\"a,b\".c",
        "a,b",
        "a=b",
        "a.",
        "a..b",
        ".a",
        "a.1",
        "a.17",
        "Part-1.17",
        "\"my part\".17",
        "\"my part\".\"my set\"",
        "a.b.7",
        "a,b.7",
        "a\n.7",
        "a.\n7",
        "\"a\nb\".7",
        "1.2.3",
        "1.7",
        "1e5",
        "e5",
        ".e5",
        "1.e5",
        "1.5e",
        "+.",
        ".",
        "5.",
        ".5",
        "1.5D+3",
        "1.5d3",
        "3d2",
        "d2",
        "1-2",
        "1a.txt",
        "/tmp/a.inp",
        "$HOME/x",
        "%x",
        "x y  z",
        "a - b",
        "a-",
        "a--b",
        "Z12",
        "z",
        "Z",
        "VVU3",
        "u7",
        "U",
        "vU",
        "a\r",
        "\ra",
        "a \"b\" c",
        "\"a\"\"b\"",
        "\"a\" . \"b\"",
        "a.\"b\".c",
        "a.\"b\"c",
        "\"a\".\"b\".7",
        "a.b.",
        "\xe9t\xe9",
        "a\xff",
        "a\n",
        "\na",
    };
    return texts;
}

struct NamedPattern {
    char const* name;
    char const* pattern;
    Matcher matcher;
    // Characters and pieces that make texts close to the pattern, matching
    // or just missing it; each is one token.
    std::vector<std::string> nearTokens;
    // Texts that match, to be mutated into near misses.
    std::vector<std::string> seeds;
};

void PrintTo(NamedPattern const& named, std::ostream* out) {
    *out << named.name;
}

// Each seed with one to three random edits: a token inserted, a character
// replaced by a token, or a character removed.
std::vector<std::string> mutationsOf(NamedPattern const& pattern, size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::unordered_set<std::string> seen;
    std::vector<std::string> out;
    auto const& tokens = pattern.nearTokens;
    for (size_t attempts = 0; out.size() < count && attempts < 4 * count; ++attempts) {
        std::string text = pattern.seeds[random() % pattern.seeds.size()];
        for (int edits = 1 + random() % 3; edits > 0; --edits) {
            size_t at = text.empty() ? 0 : random() % (text.size() + 1);
            std::string const& token = tokens[random() % tokens.size()];
            switch (random() % 3) {
                case 0:
                    text.insert(at, token);
                    break;
                case 1:
                    if (at < text.size()) text.replace(at, 1, token);
                    break;
                default:
                    if (at < text.size()) text.erase(at, 1);
                    break;
            }
        }
        if (seen.insert(text).second) out.push_back(std::move(text));
    }
    return out;
}

class InpPatternMatchersAgreeWithRegex : public ::testing::TestWithParam<NamedPattern> {
  protected:
    // Compares the matcher with the engine on every text; reports the first
    // few disagreements in full rather than failing a hundred thousand times.
    static int expectAgreement(NamedPattern const& pattern, std::vector<std::string> const& texts) {
        int disagreements = 0;
        int matches = 0;
        std::string report;
        for (std::string const& text : texts) {
            rgx_ReIterator expected =
                rgx_match(cow_String(std::string_view(text)), pattern.pattern);
            inp_PatternMatch actual = pattern.matcher(text);
            matches += expected.Matched();
            if (actual.matched == expected.Matched() && actual.text == expected.String().View())
                continue;
            if (++disagreements <= 10)
                report += printable(text) + ": engine " +
                          (expected ? printable(expected.String().View()) : "no") + ", matcher " +
                          (actual ? printable(actual.text) : "no") + "\n";
        }
        EXPECT_EQ(disagreements, 0) << report;
        return matches;
    }
};

TEST_P(InpPatternMatchersAgreeWithRegex, OnHandPickedTexts) {
    expectAgreement(GetParam(), handPickedTexts());
}

TEST_P(InpPatternMatchersAgreeWithRegex, OnGeneratedTexts) {
    expectAgreement(GetParam(), generatedTexts());
}

TEST_P(InpPatternMatchersAgreeWithRegex, OnTextsNearThePattern) {
    std::vector<std::string> texts = textsFromTokens(GetParam().nearTokens, 50000, 1234);
    for (std::string& text : mutationsOf(GetParam(), 60000, 99)) texts.push_back(std::move(text));
    int matches = expectAgreement(GetParam(), texts);
    // A comparison on texts that hardly ever match proves little.
    EXPECT_GE(matches, static_cast<int>(texts.size() / 50)) << "too few matching texts";
}

using Texts = std::vector<std::string>;

Texts nameTokens() {
    return {"a",  "Z",  "_", "x1", "-", ".",  ".", "\"", "\"", "\"q\"", "\"a b\"", "\"\"", " ",
            "\t", "\n", ",", "=",  "7", "42", "/", "$",  "%",  "\xe9",  "\r",      "e",    "d"};
}

Texts nameSeeds() {
    return {"a",
            " Part-1 ",
            "_x.y",
            "\"my part\".\"my set\"",
            "a.\"b,c\".d",
            "\"a\"",
            "x y\t",
            "1a.txt",
            "/tmp/a.inp",
            "$H/%x",
            "\"a=b\"",
            "a.b.c",
            "\"q\".r.\"s\""};
}

Texts numberTokens() {
    return charactersOf("0159+-..eEdD \t\n,x");
}

Texts numberSeeds() {
    return {"1",   "+5",     " -12 ", "1.5", ".5",     "5.",  ".",      "-.",
            "1e5", "1.5E-3", "e5",    "2d3", "1.5D+3", ".d1", "\t7.8E3"};
}

INSTANTIATE_TEST_SUITE_P(
    EachPattern, InpPatternMatchersAgreeWithRegex,
    ::testing::Values(
        NamedPattern{"string", inp_Types::stringPat(), &inp_PatternMatchers::MatchString,
                     nameTokens(), nameSeeds()},
        NamedPattern{"integer", inp_Types::integerPat(), &inp_PatternMatchers::MatchInteger,
                     charactersOf("0123456789+- \t.e\n,x"), numberSeeds()},
        NamedPattern{"double", inp_Types::doublePat(), &inp_PatternMatchers::MatchDouble,
                     numberTokens(), numberSeeds()},
        NamedPattern{"doubleD", inp_Types::doublePatD(), &inp_PatternMatchers::MatchDoubleD,
                     numberTokens(), numberSeeds()},
        NamedPattern{"param",
                     inp_Types::paramPat(),
                     &inp_PatternMatchers::MatchParam,
                     charactersOf("aZq09-- \t\t_.\n=,\""),
                     {"a", "elset", " Nset-Name 2 ", "a - b\t", "X9"}},
        NamedPattern{"setName", inp_Types::setNamePat(), &inp_PatternMatchers::MatchSetName,
                     nameTokens(), nameSeeds()},
        NamedPattern{"scopedID",
                     inp_Types::scopedIDPat(),
                     &inp_PatternMatchers::MatchScopedID,
                     {"a", "_b", "Part-1", "\"", "\"x\"", "\"a b\"", "\"\"", ".", ".", "7", "42",
                      "0", " ", "\t", "\n", ",", "=", "e", "\"\n\""},
                     {"17", " Part-1.17 ", "a.b.7", "\"my part\".17", "\"a.b\".c.0", "a,b.5",
                      "x y.\"z\".12"}},
        NamedPattern{"fileName", inp_Types::fileNamePat(), &inp_PatternMatchers::MatchFileName,
                     nameTokens(), nameSeeds()},
        NamedPattern{"superelementID",
                     inp_Types::superelementIDPat(),
                     &inp_PatternMatchers::MatchSuperelementID,
                     charactersOf("zZ0199 \tuU+"),
                     {"Z1", " z204 ", "Z0\t"}},
        NamedPattern{"userElementID",
                     inp_Types::userElementIDPat(),
                     &inp_PatternMatchers::MatchUserElementID,
                     charactersOf("vVuU0199 \tz"),
                     {"U1", "VU12", " vvu3 ", "VvVU0"}}),
    [](::testing::TestParamInfo<NamedPattern> const& info) {
        return std::string(info.param.name);
    });

// The captures that callers rely on, stated outright.
TEST(InpPatternMatchersCaptures, SetNameIsTheWholeChainWithoutOuterBlanks) {
    EXPECT_EQ(inp_PatternMatchers::MatchSetName("  Part-1.top \t").text, "Part-1.top");
    EXPECT_EQ(inp_PatternMatchers::MatchSetName("\"my part\".\"my set\"").text,
              "\"my part\".\"my set\"");
    EXPECT_EQ(inp_PatternMatchers::MatchSetName("\"a,b\".c").text, "\"a,b\".c");
    EXPECT_FALSE(inp_PatternMatchers::MatchSetName("\"\""));
    // An unquoted name swallows periods, digits and quotes ...
    EXPECT_EQ(inp_PatternMatchers::MatchSetName("a.7").text, "a.7");
    EXPECT_EQ(inp_PatternMatchers::MatchSetName("a.\"b\"c").text, "a.\"b\"c");
    // ... but a quoted one must be followed by a period and a name.
    EXPECT_FALSE(inp_PatternMatchers::MatchSetName("\"a\".7"));
    EXPECT_FALSE(inp_PatternMatchers::MatchSetName("\"a\"b"));
    EXPECT_FALSE(inp_PatternMatchers::MatchSetName("a,b"));
}

TEST(InpPatternMatchersCaptures, ScopedIDGivesItsLastNameOrTheWholeText) {
    EXPECT_EQ(inp_PatternMatchers::MatchScopedID("a.b.7").text, "b.");
    EXPECT_EQ(inp_PatternMatchers::MatchScopedID("\"my part\".17").text, "\"my part\".");
    EXPECT_EQ(inp_PatternMatchers::MatchScopedID(" 17 ").text, " 17 ");
    EXPECT_FALSE(inp_PatternMatchers::MatchScopedID("a.b"));
}

TEST(InpPatternMatchersCaptures, LazyPartsStopBeforeTrailingBlanks) {
    EXPECT_EQ(inp_PatternMatchers::MatchParam(" a b \t").text, "a b");
    EXPECT_EQ(inp_PatternMatchers::MatchString("x y  ").text, "x y");
    EXPECT_EQ(inp_PatternMatchers::MatchFileName(" 1a.txt\t").text, "1a.txt");
}

}  // namespace
