// The report formats of editors and CI systems: a SARIF log has the
// structure the 2.1.0 schema requires, and SARIF results and workflow
// annotations point where the text report points, in the deck and in its
// include files, for diagnostics of every stage.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "tests/common/InProcessFedeck.h"
#include "tests/common/JsonReader.h"
#include "tests/common/TempDeckDirectory.h"
#include "tools/fedeck_Commands.h"
#include "tools/fedeck_RuleId.h"

namespace {

testing::Environment* const g_module = testing::AddGlobalTestEnvironment(new DeckModuleEnvironment);

// Where a diagnostic points and what it says, as each format gives it.
struct Place {
    std::string file;
    int line;  // 0 where unknown
    std::string severity;
    std::string firstLine;  // of the text
    bool operator==(Place const&) const = default;
};

std::ostream& operator<<(std::ostream& out, Place const& place) {
    return out << place.file << ":" << place.line << " " << place.severity << " "
               << place.firstLine;
}

// From `fedeck check --json`, which the text form writes as FILE:LINE too.
std::vector<Place> placesOfJson(Json const& report) {
    std::vector<Place> places;
    for (Json const& diagnostic : report["diagnostics"].items) {
        std::string const& text = diagnostic["text"].text;
        places.push_back(
            {diagnostic["file"].kind == Json::Null ? report["deck"].text : diagnostic["file"].text,
             diagnostic["line"].kind == Json::Null ? 0 : diagnostic["line"].Int(),
             diagnostic["severity"].text, text.substr(0, text.find('\n'))});
    }
    return places;
}

std::string percentDecoded(std::string const& text) {
    std::string decoded;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            decoded += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

// ::error file=F,line=L::TEXT
std::vector<Place> placesOfAnnotations(std::string const& out) {
    std::vector<Place> places;
    for (std::string const& line : LinesOf(out)) {
        size_t const command = line.find(' ');
        size_t const text = line.find("::", 2);
        EXPECT_TRUE(line.starts_with("::") && command != std::string::npos &&
                    text != std::string::npos)
            << line;
        if (text == std::string::npos) continue;
        std::string const severity = line.substr(2, command - 2);
        std::string properties = line.substr(command + 1, text - command - 1);
        Place place{"", 0, severity, percentDecoded(line.substr(text + 2))};
        place.firstLine = place.firstLine.substr(0, place.firstLine.find('\n'));
        for (size_t start = 0; start <= properties.size();) {
            size_t end = properties.find(',', start);
            if (end == std::string::npos) end = properties.size();
            std::string const property = properties.substr(start, end - start);
            if (property.starts_with("file=")) place.file = percentDecoded(property.substr(5));
            if (property.starts_with("line=")) place.line = std::stoi(property.substr(5));
            start = end + 1;
        }
        places.push_back(place);
    }
    return places;
}

std::string const kLevels[] = {"none", "note", "warning", "error"};

// The properties SARIF 2.1.0 requires of what we write, and their types;
// the places of the results, which must name rules of the log.
std::vector<Place> placesOfSarif(Json const& log) {
    EXPECT_EQ(log.kind, Json::Object);
    EXPECT_EQ(log["version"].text, "2.1.0");
    EXPECT_EQ(log["$schema"].kind, Json::String);
    EXPECT_EQ(log["runs"].kind, Json::Array);
    EXPECT_EQ(log["runs"].items.size(), 1u);
    Json const& run = log["runs"][0];
    Json const& driver = run["tool"]["driver"];
    EXPECT_EQ(driver["name"].text, "fedeck");
    EXPECT_EQ(driver["version"].kind, Json::String);
    std::set<std::string> ruleIds;
    for (Json const& rule : driver["rules"].items) {
        EXPECT_EQ(rule["id"].kind, Json::String);
        EXPECT_EQ(rule["shortDescription"]["text"].kind, Json::String);
        EXPECT_TRUE(ruleIds.insert(rule["id"].text).second) << "rule twice: " << rule["id"].text;
    }
    std::vector<Place> places;
    for (Json const& result : run["results"].items) {
        EXPECT_EQ(result["message"]["text"].kind, Json::String);
        EXPECT_TRUE(ruleIds.count(result["ruleId"].text)) << result["ruleId"].text;
        EXPECT_NE(std::find(std::begin(kLevels), std::end(kLevels), result["level"].text),
                  std::end(kLevels));
        EXPECT_EQ(result["locations"].items.size(), 1u);
        Json const& physical = result["locations"][0]["physicalLocation"];
        EXPECT_EQ(physical["artifactLocation"]["uri"].kind, Json::String);
        int line = 0;
        if (physical.Has("region")) {
            Json const& startLine = physical["region"]["startLine"];
            EXPECT_TRUE(startLine.kind == Json::Number && startLine.integer &&
                        startLine.Int() >= 1);
            line = startLine.Int();
        }
        std::string const& text = result["message"]["text"].text;
        std::string uri = physical["artifactLocation"]["uri"].text;
        if (uri.starts_with("file:///")) uri.erase(0, 7);  // an absolute path
        places.push_back(
            {percentDecoded(uri), line, result["level"].text, text.substr(0, text.find('\n'))});
    }
    return places;
}

// Decks whose diagnostics come from different stages: the reader (an
// unknown keyword, in an include file), expansion (a missing parameter), the
// mesh (a node copy of a set that does not exist, in an include file, and a
// warning without a place), and the assembly (an instance of a part that is
// not there); a path with a comma, a blank and a per cent sign.
class FormatDecks : public testing::Test {
  protected:
    void SetUp() override {
        m_directory.Write("unknown.inc", "*NODE\n1, 0., 0., 0.\n*NOT A KEYWORD\n2, 1., 0., 0.\n");
        m_decks.push_back(write("reader.inp", "*HEADING\nreader\n*INCLUDE, INPUT=unknown.inc\n"));
        m_decks.push_back(write("expansion.inp", "*NODE\n1, 0., 0., 0.\n*NSET\n1\n"));
        m_directory.Write("elements.inc",
                          "** elements\n*ELEMENT, TYPE=T3D2, ELSET=BAR\n1, 1, 2\n2, 2, 3\n"
                          "*NCOPY, OLD SET=NOPE, CHANGE NUMBER=10\n");
        m_decks.push_back(write("mesh, 100%.inp",
                                "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n"
                                "*INCLUDE, INPUT=elements.inc\n*SOLID SECTION, ELSET=BAR, "
                                "MATERIAL=M\n1.\n*MATERIAL, NAME=M\n*ELASTIC\n1., 0.3\n"));
        m_decks.push_back(write("assembly.inp",
                                "*PART, NAME=P\n*NODE\n1, 0., 0., 0.\n*END PART\n"
                                "*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, PART=NOPE\n"
                                "*END INSTANCE\n*END ASSEMBLY\n"));
    }
    std::string write(std::string const& name, std::string const& text) const {
        return std::string(m_directory.Write(name, text).View());
    }

    TempDeckDirectory m_directory;
    std::vector<std::string> m_decks;
};

TEST_F(FormatDecks, SarifAndAnnotationsPointWhereTheTextReportPoints) {
    std::vector<Place> expected;
    int stagesWithErrors = 0;
    int includeFileLines = 0;
    for (std::string const& deck : m_decks) {
        FedeckOutcome const json = RunFedeckInProcess({"check", "--json", deck});
        std::vector<Place> const places = placesOfJson(JsonReader(json.out).Read());
        EXPECT_FALSE(places.empty()) << deck;
        stagesWithErrors += json.status == fedeck_EXIT_ERRORS;
        for (Place const& place : places)
            includeFileLines += (place.file.ends_with("unknown.inc") && place.line == 3) +
                                (place.file.ends_with("elements.inc") && place.line == 5);
        expected.insert(expected.end(), places.begin(), places.end());

        FedeckOutcome const github = RunFedeckInProcess({"check", "--format", "github", deck});
        EXPECT_EQ(github.status, json.status);
        EXPECT_EQ(placesOfAnnotations(github.out), places) << github.out;
        FedeckOutcome const sarif = RunFedeckInProcess({"check", "--format", "sarif", deck});
        EXPECT_EQ(sarif.status, json.status);
        EXPECT_EQ(placesOfSarif(JsonReader(sarif.out).Read()), places) << sarif.out;
    }
    EXPECT_EQ(stagesWithErrors, 4);
    EXPECT_EQ(includeFileLines, 2) << "the errors of include files point elsewhere";

    // All decks in one log, in the order given.
    std::vector<std::string> all = {"check", "--format=sarif", "-j", "2"};
    all.insert(all.end(), m_decks.begin(), m_decks.end());
    FedeckOutcome const sarif = RunFedeckInProcess(all);
    EXPECT_EQ(sarif.status, fedeck_EXIT_ERRORS);
    EXPECT_EQ(LinesOf(sarif.out).size(), 1u);
    EXPECT_EQ(placesOfSarif(JsonReader(sarif.out).Read()), expected);
}

TEST_F(FormatDecks, AnnotationsEscapeWhatWouldEndTheLineOrTheProperty) {
    FedeckOutcome const github = RunFedeckInProcess({"check", "--format", "github", m_decks[2]});
    int namingTheDeck = 0;
    for (std::string const& line : LinesOf(github.out)) {
        std::string const properties = line.substr(0, line.find("::", 2));
        namingTheDeck += properties.ends_with("/mesh%2C 100%25.inp");
    }
    EXPECT_EQ(namingTheDeck, 1) << github.out;
}

TEST(RuleId, MessagesOfOneKindShareTheirIdAndOthersDoNot) {
    EXPECT_EQ(fedeck_MessageKind("Node set ALL does not exist."),
              "Node set <name> does not exist.");
    EXPECT_EQ(fedeck_RuleId("Node set ALL does not exist."),
              fedeck_RuleId("Node set PART-1-1.TOP does not exist."));
    EXPECT_EQ(fedeck_RuleId("Element 12 on nodes 3 and 4 \"SET\"\nlist 1, 2, 3"),
              fedeck_RuleId("Element 7 on nodes 30 and 41 \"other set\"\nlist 9"));
    EXPECT_EQ(fedeck_MessageKind("in keyword *NODE, line 3: 'x y' is\tbad,  here"),
              "in keyword *<keyword>, line <n>: <text> is bad, here");
    EXPECT_NE(fedeck_RuleId("Node set ALL does not exist."),
              fedeck_RuleId("Element set ALL does not exist."));
    std::string const id = fedeck_RuleId("anything");
    EXPECT_EQ(id.size(), 10u);
    EXPECT_TRUE(id.starts_with("FD"));
    EXPECT_EQ(id.find_first_not_of("0123456789ABCDEF", 2), std::string::npos);
}

}  // namespace
