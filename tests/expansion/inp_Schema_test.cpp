#include "expansion/inp_Schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace {

struct KeywordName {
    inp_KeywordEnm key;
    char const* name;
};

// Every keyword of the table that a deck may hold.
std::vector<KeywordName> deckKeywords() {
    std::vector<KeywordName> keywords;
#define INP_TEST_KEYWORD(camel, name, number)                                        \
    if (inp_kw_##camel != inp_kw_UndefinedKeyword && inp_kw_##camel != inp_kw_Eof && \
        inp_kw_##camel != inp_kw_Model)                                              \
        keywords.push_back({inp_kw_##camel, name});
    INP_KEYWORDS(INP_TEST_KEYWORD)
#undef INP_TEST_KEYWORD
    return keywords;
}

std::vector<std::string> wordsOf(inp_WordTable table) {
    std::vector<std::string> words;
    for (; *table; ++table) words.emplace_back(*table);
    return words;
}

std::string joined(std::vector<std::string> const& names) {
    std::string text;
    for (std::string const& name : names) text += name + " ";
    return text;
}

std::set<std::string> namesOfKind(inp_SchemaKind kind) {
    std::set<std::string> names;
    for (inp_SchemaRow const* row : inp_Schema::AllRows())
        if (row->kind == kind) names.insert(row->keyword);
    return names;
}

std::set<std::string> setOf(char const* spaceSeparated) {
    std::set<std::string> names;
    std::string word;
    for (char const* c = spaceSeparated;; ++c) {
        if (*c == ' ' || *c == '\0') {
            if (!word.empty()) names.insert(word);
            word.clear();
            if (*c == '\0') break;
        } else {
            word += *c;
        }
    }
    return names;
}

bool isParameterWord(inp_SchemaRow const& row, std::string const& word) {
    // The one word with a blank: `all ` stands before `allelementbased` and
    // `allexterior` so that a bare ALL lands on it and is refused.
    if (std::string(row.keyword) == "contactinclusions" && word == "all ") return true;
    if (word.empty()) return false;
    for (char c : word)
        if (!(std::islower(static_cast<unsigned char>(c)) ||
              std::isdigit(static_cast<unsigned char>(c)) || c == '-'))
            return false;
    return true;
}

bool isEnumerationWord(inp_SchemaRow const& row, char const* parameter, std::string const& word) {
    // A deck value loses its blanks before the comparison, so this word can
    // only be reached by its abbreviation CUBIC; it stays as the table has it.
    if (std::string(row.keyword) == "damageinitiation" &&
        std::string(parameter) == "weightingmethod" && word == "CUBIC SPLINE")
        return true;
    if (word.empty()) return false;
    for (char c : word)
        if (!(std::isupper(static_cast<unsigned char>(c)) ||
              std::isdigit(static_cast<unsigned char>(c)) || c == '-'))
            return false;
    return true;
}

TEST(KeywordSchemaCoverage, EveryDeckKeywordHasExactlyOneRowUnderItsTableName) {
    std::map<int, int> rowsByKey;
    for (inp_SchemaRow const* row : inp_Schema::AllRows()) ++rowsByKey[row->key];

    std::vector<std::string> missing, repeated, misnamed;
    for (KeywordName const& keyword : deckKeywords()) {
        int const count = rowsByKey[keyword.key];
        if (count == 0) missing.push_back(keyword.name);
        if (count > 1) repeated.push_back(keyword.name);
        inp_SchemaRow const* row = inp_Schema::Find(keyword.key);
        if (row && std::strcmp(row->keyword, keyword.name) != 0) misnamed.push_back(row->keyword);
    }
    EXPECT_TRUE(missing.empty()) << "no row: " << joined(missing);
    EXPECT_TRUE(repeated.empty()) << "more than one row: " << joined(repeated);
    EXPECT_TRUE(misnamed.empty()) << "name differs from the keyword table: " << joined(misnamed);
    EXPECT_EQ(inp_Schema::AllRows().size(), 544u);
}

TEST(KeywordSchemaCoverage, SpecialKeysHaveNoRow) {
    EXPECT_EQ(inp_Schema::Find(inp_kw_UndefinedKeyword), nullptr);
    EXPECT_EQ(inp_Schema::Find(inp_kw_Eof), nullptr);
    EXPECT_EQ(inp_Schema::Find(inp_kw_Model), nullptr);
    EXPECT_EQ(inp_Schema::Find(-1), nullptr);
    EXPECT_EQ(inp_Schema::Find(1 << 30), nullptr);
}

TEST(KeywordSchemaKinds, KeywordsWithoutParametersEndScopesAndUntouchedAreExactlyTheseOnes) {
    EXPECT_EQ(namesOfKind(inp_SchemaKind::NoParameters),
              setOf("baselinecorrection beamsectionoffset bond bucklingenvelope bucklinglength "
                    "bulkviscosity caddedmass centroid contactclearanceassignment "
                    "contactexclusions contactinitializationassignment contactpropertyassignment "
                    "cycledplastic daddedmass damagestabilization deformationplasticity "
                    "designparameter detonationpoint eoscompaction foundation gapheatgeneration "
                    "gapradiation gel heading heatgeneration hourglassstiffness hysteresis "
                    "importelset importnset inelasticheatfraction jouleheatfraction "
                    "mediatransport moistureswelling molecularweight nocompression notension "
                    "parameterdependence particlegeneratormixture plasticaxial plasticm1 "
                    "plasticm2 plastictorque porousbulkmoduli porousfailurecriteria "
                    "prestresshold randomresponse reactionrate sectionpoints shear shearcenter "
                    "simplesheartestdata steadystatecriteria system transverseshearstiffness "
                    "useroutputvariables wind"));
    EXPECT_EQ(namesOfKind(inp_SchemaKind::EndScope), setOf("endassembly endinstance endstep"));
    EXPECT_EQ(namesOfKind(inp_SchemaKind::Untouched),
              setOf("beamsectiongenerate designvalue designvariation endloadcase failure "
                    "incidentwavefluidproperty kinematic remeshtrigger"));
}

TEST(KeywordSchemaKinds, KeywordsWithLogicOfTheirOwnAreExactlyTheseOnes) {
    EXPECT_EQ(
        namesOfKind(inp_SchemaKind::Logic),
        setOf("amplitude aqua assembly boundary capacity clearance co-simulationcontrols "
              "conflicts connectordamageevolution connectorderivedcomponent connectorsection "
              "contactclearance contactinclusions contactpair contactstabilization correlation "
              "coupling displaybody distribution elastic element elset endpart equation "
              "expansion fastener fastenerproperty field heatcap impedanceproperty imperfection "
              "import include initialconditions instance integratedoutputsection massflowrate "
              "material matrix matrixassemble matrixinput mpc nmap nodalenergyrate "
              "nodalthickness node nset parametershapevariation part permeability plastic "
              "pressurestress psd-definition release restart rigidbody spatialdistribution "
              "spectrum spotweld spotweldinteraction spotweldproperty step substructurecopy "
              "substructuredelete substructuredirectory substructuregenerate substructurepath "
              "substructureproperty surface surfaceflaw surfacepropertyassignment "
              "symmetricmodelgeneration symmetricresultstransfer temperature timepoints "
              "transform userelement wave"));
    EXPECT_EQ(namesOfKind(inp_SchemaKind::Row).size(), 399u);
}

TEST(KeywordSchemaKinds, KindsThatExpandNothingHaveEmptyTables) {
    for (inp_SchemaRow const* row : inp_Schema::AllRows()) {
        if (row->kind == inp_SchemaKind::Row || row->kind == inp_SchemaKind::Logic) continue;
        EXPECT_EQ(row->parameters[0], nullptr) << row->keyword;
        EXPECT_TRUE(row->enumerations.empty()) << row->keyword;
    }
}

TEST(KeywordSchemaWords, ParameterWordsAreLowerCaseWithoutBlanksAndNeverRepeat) {
    for (inp_SchemaRow const* row : inp_Schema::AllRows()) {
        std::set<std::string> seen;
        for (std::string const& word : wordsOf(row->parameters)) {
            EXPECT_TRUE(isParameterWord(*row, word)) << row->keyword << ": '" << word << "'";
            EXPECT_TRUE(seen.insert(word).second) << row->keyword << " repeats " << word;
        }
    }
}

// A parameter name takes the first word of the table that it abbreviates,
// so a word that begins an earlier word can never be reached.
TEST(KeywordSchemaWords, NoParameterWordIsShadowedByAnEarlierOne) {
    for (inp_SchemaRow const* row : inp_Schema::AllRows()) {
        std::vector<std::string> const words = wordsOf(row->parameters);
        for (size_t later = 0; later < words.size(); ++later)
            for (size_t earlier = 0; earlier < later; ++earlier)
                EXPECT_NE(words[earlier].rfind(words[later], 0), 0u)
                    << row->keyword << ": '" << words[later] << "' is shadowed by '"
                    << words[earlier] << "'";
    }
}

TEST(KeywordSchemaWords, EnumerationsBelongToRowParametersAndHoldDistinctUpperCaseWords) {
    for (inp_SchemaRow const* row : inp_Schema::AllRows()) {
        std::vector<std::string> const parameters = wordsOf(row->parameters);
        std::set<std::string> enumerated;
        for (inp_SchemaEnum const& enumeration : row->enumerations) {
            std::string const parameter = enumeration.parameter;
            EXPECT_TRUE(std::count(parameters.begin(), parameters.end(), parameter) == 1)
                << row->keyword << ": enumeration of a parameter it lacks, " << parameter;
            EXPECT_TRUE(enumerated.insert(parameter).second)
                << row->keyword << ": two enumerations for " << parameter;
            std::vector<std::string> const words = wordsOf(enumeration.words);
            EXPECT_FALSE(words.empty()) << row->keyword << "." << parameter;
            std::set<std::string> seen;
            for (std::string const& word : words) {
                EXPECT_TRUE(isEnumerationWord(*row, enumeration.parameter, word))
                    << row->keyword << "." << parameter << ": '" << word << "'";
                EXPECT_TRUE(seen.insert(word).second)
                    << row->keyword << "." << parameter << " repeats " << word;
            }
        }
    }
}

TEST(KeywordSchemaWords, GuardsStandOnlyOnTheParametersThatTakeAnotherTypeBesideWords) {
    using Guarded = std::tuple<std::string, std::string, inp_EnumGuard>;
    std::set<Guarded> guards;
    for (inp_SchemaRow const* row : inp_Schema::AllRows())
        for (inp_SchemaEnum const& enumeration : row->enumerations)
            if (enumeration.guard != inp_EnumGuard::None)
                guards.insert({row->keyword, enumeration.parameter, enumeration.guard});
    auto const boolean = inp_EnumGuard::SkipBoolean;
    auto const integer = inp_EnumGuard::SkipInteger;
    EXPECT_EQ(guards, (std::set<Guarded>{
                          {"step", "dsa", boolean},
                          {"step", "nlgeom", boolean},
                          {"step", "unsymm", boolean},
                          {"static", "direct", boolean},
                          {"dynamic", "directusercontrol", boolean},
                          {"modelchange", "add", boolean},
                          {"connectorcontactforce", "independentcomponent", integer},
                          {"connectorcontactforce", "tangentialcomponent", integer},
                          {"connectorfailure", "release", integer},
                          {"connectorfriction", "component", integer},
                          {"connectorfriction", "independentcomponents", integer},
                          {"connectorlock", "lock", integer},
                          {"contactstabilization", "scalefactor", inp_EnumGuard::SkipNumber},
                      }));
}

// Rows whose word order carries meaning that the engine's rules depend on.
TEST(KeywordSchemaWords, OrderSensitiveRowsKeepTheirOrder) {
    inp_SchemaRow const* inclusions = inp_Schema::Find(inp_kw_ContactInclusions);
    ASSERT_NE(inclusions, nullptr);
    EXPECT_EQ(wordsOf(inclusions->parameters),
              (std::vector<std::string>{"all ", "allelementbased", "allexterior"}));

    inp_SchemaRow const* elset = inp_Schema::Find(inp_kw_Elset);
    ASSERT_NE(elset, nullptr);
    EXPECT_EQ(wordsOf(elset->parameters).front(), "elset");

    inp_SchemaRow const* print = inp_Schema::Find(inp_kw_Print);
    inp_SchemaRow const* modalPrint = inp_Schema::Find(inp_kw_ModalPrint);
    ASSERT_NE(print, nullptr);
    ASSERT_NE(modalPrint, nullptr);
    EXPECT_EQ(wordsOf(print->parameters), wordsOf(modalPrint->parameters));
}

}  // namespace
