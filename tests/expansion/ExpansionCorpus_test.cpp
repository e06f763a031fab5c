// The keyword expansion over a corpus of realistic decks (tests/expansion/
// corpus): structural, thermal, contact, implicit and explicit dynamic, and a
// flat deck of the older style. Each deck is a correct one, so expanding it
// must not find a parameter name or a value that the deck language lacks.
// When it does, the vocabulary is missing a word engineers really write.

#include "expansion/inp_KeywordExpansionVisitor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

std::filesystem::path corpusDirectory() {
    return std::filesystem::path(__FILE__).parent_path() / "corpus";
}

std::vector<std::string> corpusDeckNames() {
    std::vector<std::string> names;
    std::error_code ignored;
    for (auto const& entry : std::filesystem::directory_iterator(corpusDirectory(), ignored)) {
        if (entry.path().extension() == ".inp") names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

// One deck after parsing and expansion, with every diagnostic as text.
struct ExpandedDeck {
    cow_List<inp_Keyword> keywords;
    std::vector<std::string> parseDiagnostics;
    std::vector<std::string> expansionErrors;  // errors and fatal errors
    std::vector<std::string> expansionWarnings;
    bool featureEnhanced = false;
    bool explicitJob = false;
};

void appendTexts(std::vector<std::string>& to, cow_List<atr_String> const& from) {
    for (atr_String const& text : from) to.emplace_back(text.CStr());
}

ExpandedDeck expandDeck(std::string const& deckName) {
    cow_String directory(corpusDirectory().string().c_str());
    cow_String path((corpusDirectory() / deckName).string().c_str());

    ExpandedDeck deck;
    sink().Clear();
    inp_InputFile input;
    input.SetIncludePath(directory);
    input.Parse(path);
    for (wip_Diagnostic const& diagnostic : sink().Diagnostics()) {
        deck.parseDiagnostics.emplace_back(diagnostic.text.CStr());
    }
    sink().Clear();

    inp_KeywordExpansionVisitor visitor;
    visitor.SetIncludePath(directory);
    visitor.VisitList(input.GetKeywords());
    appendTexts(deck.expansionErrors, visitor.GetErrorList());
    appendTexts(deck.expansionErrors, visitor.GetFatalErrorList());
    appendTexts(deck.expansionWarnings, visitor.GetWarningList());
    deck.keywords = input.Keywords();
    deck.featureEnhanced = visitor.FeatureEnhanced();
    deck.explicitJob = visitor.IsExplicitJob();
    return deck;
}

// The messages that mean the vocabulary lacks a word the deck used.
bool speaksOfVocabulary(std::string const& text) {
    for (char const* marker : {"Unknown parameter", "Illegal value", "Ambiguous"}) {
        if (text.find(marker) != std::string::npos) return true;
    }
    return false;
}

std::string listed(std::vector<std::string> const& texts) {
    std::string out;
    for (std::string const& text : texts) out += "\n    " + text;
    return out;
}

// The `nth` keyword (from 0) with this key, in deck order.
inp_Keyword const& nthKeyword(ExpandedDeck const& deck, inp_KeywordEnm key, int nth = 0) {
    for (inp_Keyword const& keyword : deck.keywords) {
        if (keyword.Is(key) && nth-- == 0) return keyword;
    }
    static inp_Keyword const none;
    ADD_FAILURE() << "the deck has too few keywords with key " << key;
    return none;
}

// The parameter's value as text, or "<absent>".
std::string parameterText(inp_Keyword const& keyword, char const* name) {
    inp_Item const* item = keyword.Parameters().Find(cow_String(name));
    return item ? std::string(item->AsString().CStr()) : std::string("<absent>");
}

class ExpansionCorpus : public ::testing::TestWithParam<std::string> {};

TEST_P(ExpansionCorpus, DeckParsesWithoutDiagnostics) {
    ExpandedDeck deck = expandDeck(GetParam());
    EXPECT_GT(deck.keywords.Length(), 50) << GetParam() << ": the deck was not read";
    EXPECT_TRUE(deck.parseDiagnostics.empty())
        << GetParam() << ":" << listed(deck.parseDiagnostics);
}

TEST_P(ExpansionCorpus, EveryParameterNameAndValueIsKnown) {
    ExpandedDeck deck = expandDeck(GetParam());
    std::vector<std::string> vocabulary;
    for (auto const* texts : {&deck.expansionErrors, &deck.expansionWarnings}) {
        std::copy_if(texts->begin(), texts->end(), std::back_inserter(vocabulary),
                     speaksOfVocabulary);
    }
    EXPECT_TRUE(vocabulary.empty())
        << GetParam() << ": " << vocabulary.size() << " unknown words" << listed(vocabulary);
}

// A correct deck gives the stage nothing at all to complain of; this also
// catches messages of the required-parameter and structure checks.
TEST_P(ExpansionCorpus, ExpandsWithoutErrorsOrWarnings) {
    ExpandedDeck deck = expandDeck(GetParam());
    EXPECT_TRUE(deck.expansionErrors.empty()) << GetParam() << ":" << listed(deck.expansionErrors);
    EXPECT_TRUE(deck.expansionWarnings.empty())
        << GetParam() << ":" << listed(deck.expansionWarnings);
}

// The deck's file name without extension, as a test name may spell it.
std::string testNameOf(::testing::TestParamInfo<std::string> const& info) {
    std::string name = std::filesystem::path(info.param).stem().string();
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Decks, ExpansionCorpus, ::testing::ValuesIn(corpusDeckNames()),
                         testNameOf);

// -- the expansion did its work on each deck -----------------------------------------

// Without decks the parameterised tests above would pass having run nothing.
TEST(ExpansionCorpusContents, CorpusIsFoundBesideThisFile) {
    std::vector<std::string> names = corpusDeckNames();
    EXPECT_GE(names.size(), 5u) << corpusDirectory().string();
    for (char const* deck :
         {"flat_panel_strap.inp", "static_plate_stiffener.inp", "contact_punch.inp"}) {
        EXPECT_NE(std::find(names.begin(), names.end(), deck), names.end()) << deck;
    }
}

TEST(ExpansionCorpusContents, FlatDeckAbbreviationsBecomeWholeWords) {
    ExpandedDeck deck = expandDeck("flat_panel_strap.inp");
    EXPECT_FALSE(deck.featureEnhanced);

    inp_Keyword const& left = nthKeyword(deck, inp_kw_Nset, 0);  // *NSET, NSET=LEFT, GEN
    EXPECT_EQ(parameterText(left, "nset"), "LEFT");
    EXPECT_TRUE(left.HasParameter("generate"));
    EXPECT_FALSE(left.HasParameter("gen"));

    inp_Keyword const& panel = nthKeyword(deck, inp_kw_SolidSection);  // MAT=ALLOY
    EXPECT_EQ(parameterText(panel, "material"), "ALLOY");
    EXPECT_FALSE(panel.HasParameter("mat"));
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Elastic), "type"), "ISOTROPIC");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_NodePrint), "frequency"), "1");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_ElFile), "position"), "AVERAGEDATNODES");
}

TEST(ExpansionCorpusContents, FlatDeckStepsWithoutNamesAreNamedByTheirNumber) {
    ExpandedDeck deck = expandDeck("flat_panel_strap.inp");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Step, 0), "name"), "Step-1");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Step, 1), "name"), "Step-2");
}

TEST(ExpansionCorpusContents, PartsDeckKeepsStepNamesAndExpandsEnumerations) {
    ExpandedDeck deck = expandDeck("static_plate_stiffener.inp");
    EXPECT_TRUE(deck.featureEnhanced);
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Step, 0), "name"), "Preload");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Step, 1), "name"), "TipLoad");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Plastic, 0), "hardening"), "KINEMATIC");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_ShellSection), "sectionintegration"),
              "SIMPSON");
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Output, 2), "frequency"), "2");  // freq=2
    EXPECT_TRUE(nthKeyword(deck, inp_kw_Elset, 1).HasParameter("generate"));         // gen
    // Other string values are folded to upper case.
    EXPECT_EQ(parameterText(nthKeyword(deck, inp_kw_Material), "name"), "ALUMINIUM");
}

TEST(ExpansionCorpusContents, DynamicDecksExpandSectionsDataWordsAndTheExplicitFlag) {
    ExpandedDeck implicit = expandDeck("dynamic_frame_implicit.inp");
    EXPECT_FALSE(implicit.explicitJob);
    EXPECT_EQ(parameterText(nthKeyword(implicit, inp_kw_BeamSection, 1), "section"), "RECTANGULAR");
    EXPECT_EQ(parameterText(nthKeyword(implicit, inp_kw_BeamSection, 2), "section"), "CIRCULAR");
    EXPECT_EQ(parameterText(nthKeyword(implicit, inp_kw_Frequency), "eigensolver"), "LANCZOS");
    EXPECT_EQ(parameterText(nthKeyword(implicit, inp_kw_Dynamic), "application"),
              "MODERATEDISSIPATION");
    inp_Keyword const& connector = nthKeyword(implicit, inp_kw_ConnectorSection);
    ASSERT_GT(connector.Data().Rows(), 0);
    EXPECT_STREQ(connector.Data().AsString(0, 0).CStr(), "AXIAL");

    ExpandedDeck explicitDeck = expandDeck("dynamic_impact_explicit.inp");
    EXPECT_TRUE(explicitDeck.explicitJob);
    EXPECT_EQ(parameterText(nthKeyword(explicitDeck, inp_kw_Amplitude), "definition"),
              "SMOOTHSTEP");
    EXPECT_EQ(parameterText(nthKeyword(explicitDeck, inp_kw_DamageEvolution), "softening"),
              "LINEAR");
}

TEST(ExpansionCorpusContents, ContactAndThermalDecksFoldBlanksOutOfWords) {
    ExpandedDeck contact = expandDeck("contact_punch.inp");
    inp_Keyword const& pair = nthKeyword(contact, inp_kw_ContactPair);
    EXPECT_EQ(parameterText(pair, "type"), "SURFACETOSURFACE");
    inp_Item const* adjust = pair.Parameters().Find(cow_String("adjust"));
    ASSERT_NE(adjust, nullptr);
    EXPECT_EQ(adjust->Type(), inp_Types::inp_REAL);  // a distance stays a number
    EXPECT_TRUE(nthKeyword(contact, inp_kw_ContactInclusions).HasParameter("allexterior"));
    EXPECT_EQ(parameterText(nthKeyword(contact, inp_kw_SurfaceBehavior), "pressure-overclosure"),
              "HARD");
    EXPECT_EQ(parameterText(nthKeyword(contact, inp_kw_Coupling), "constraintname"), "PUNCHDRIVE");

    ExpandedDeck thermal = expandDeck("thermal_housing.inp");
    EXPECT_EQ(parameterText(nthKeyword(thermal, inp_kw_Conductivity, 1), "type"), "ORTHOTROPIC");
    EXPECT_EQ(parameterText(nthKeyword(thermal, inp_kw_Amplitude), "time"), "TOTALTIME");
    EXPECT_TRUE(nthKeyword(thermal, inp_kw_HeatTransfer).HasParameter("steadystate"));
    EXPECT_EQ(parameterText(nthKeyword(thermal, inp_kw_InitialConditions), "type"), "TEMPERATURE");
}

}  // namespace
