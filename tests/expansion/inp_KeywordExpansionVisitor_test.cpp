#include "expansion/inp_KeywordExpansionVisitor.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "deck/inp_Exceptions.h"
#include "expansion/inp_Schema.h"
#include "support/ZELBasException.h"

namespace {

using Parameters = std::vector<std::pair<char const*, char const*>>;

// As the parser leaves it: names folded, a value typed from its text, a
// parameter written without `=` a true boolean (null value here).
inp_Keyword keywordOf(inp_KeywordEnm key, Parameters const& parameters = {}) {
    inp_Keyword keyword(key, "deck.inp");
    keyword.SetLineNumber(7);
    for (auto const& [name, value] : parameters)
        keyword.SetParameter(name, value ? inp_Item(cow_String(value)) : inp_Item(true));
    return keyword;
}

std::string at(char const* name) {
    return std::string("in keyword *") + name + ", file \"deck.inp\", line 7: ";
}

std::vector<std::string> texts(cow_List<atr_String> const& list) {
    std::vector<std::string> result;
    for (atr_String const& text : list) result.emplace_back(text.View());
    return result;
}

std::string valueOf(inp_Keyword const& keyword, char const* name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item ? std::string(item->AsString().View()) : "<absent>";
}

inp_Types::typeEnm typeOf(inp_Keyword const& keyword, char const* name) {
    return keyword.Parameters().ConstGet(name).Type();
}

// The parameter names of a map in its iteration order.
std::vector<std::string> iterationOrder(inp_Keyword const& keyword) {
    std::vector<std::string> names;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(keyword.Parameters()); it.NotDone();
         it.Next())
        names.emplace_back(it.CurrentKey().View());
    return names;
}

constexpr char const* kSetWords[] = {"elset", "element", "generate", "nset", nullptr};
constexpr char const* kDefinitionWords[] = {"ACTUATOR",   "BUBBLE",  "DECAY", "SOLUTIONDEPENDENT",
                                            "SMOOTHSTEP", "TABULAR", nullptr};

}  // namespace

TEST(ParameterNameExpansion, TakesTheFirstWordTheNameAbbreviatesWithoutAmbiguity) {
    inp_KeywordExpansionVisitor visitor;
    for (char const* name : {"e", "el", "els"}) {
        inp_Keyword keyword = keywordOf(inp_kw_Elset, {{name, "a"}});
        visitor.ExpandParameters(keyword, kSetWords);
        EXPECT_EQ(valueOf(keyword, "elset"), "A") << name;
    }
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}

TEST(ParameterNameExpansion, ALongerNameTakesTheWordItStartsWithUnlessALaterOneMatchesMore) {
    constexpr char const* nameWords[] = {"name", "namex", nullptr};
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword nset = keywordOf(inp_kw_Nset, {{"nsetxyz", "A"}});
    visitor.ExpandParameters(nset, kSetWords);
    EXPECT_EQ(valueOf(nset, "nset"), "A");
    inp_Keyword named = keywordOf(inp_kw_Part, {{"namexyz", "P"}, {"nam", "Q"}});
    visitor.ExpandParameters(named, nameWords);
    EXPECT_EQ(valueOf(named, "namex"), "P");
    EXPECT_EQ(valueOf(named, "name"), "Q");
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}

TEST(ParameterNameExpansion, AWordStandingTwiceIsAmbiguousAndTheFirstIsKept) {
    constexpr char const* twice[] = {"ab", "ab", "abc", nullptr};
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Elset, {{"abx", "v"}});
    visitor.ExpandParameters(keyword, twice);
    EXPECT_EQ(texts(visitor.GetErrorList()),
              std::vector<std::string>{at("ELSET") + "Ambiguous parameter: abx"});
    EXPECT_EQ(valueOf(keyword, "ab"), "V");
}

TEST(ParameterNameExpansion, UnknownNamesStayAsWrittenWithAnErrorEach) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Heading, {{"foo", "Mixed"}, {"bar", nullptr}});
    visitor.DefaultAction(keyword);
    EXPECT_EQ(valueOf(keyword, "foo"), "Mixed");
    EXPECT_EQ(typeOf(keyword, "bar"), inp_Types::inp_BOOLEAN);
    std::string const tail = ". The parameter may be misspelled, obsolete, or invalid.";
    std::vector<std::string> expected;
    for (std::string const& name : iterationOrder(keyword))
        expected.push_back(at("HEADING") + "Unknown parameter: " + name + tail);
    EXPECT_EQ(texts(visitor.GetErrorList()), expected);
}

TEST(ParameterNameExpansion, StringValuesAreFoldedExceptFileNamesAndTheStepName) {
    constexpr char const* words[] = {"elset", "input", "name", "parameter", "inc", nullptr};
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword elset = keywordOf(inp_kw_Elset, {{"elset", "top set"},
                                                 {"input", "My Data.inp"},
                                                 {"inc", "1 0"},
                                                 {"name", "\"Mixed Case\""}});
    visitor.ExpandParameters(elset, words);
    EXPECT_EQ(valueOf(elset, "elset"), "TOPSET");
    EXPECT_EQ(valueOf(elset, "input"), "MyData.inp");
    EXPECT_EQ(typeOf(elset, "inc"), inp_Types::inp_INTEGER);  // typed anew as "10"
    EXPECT_EQ(valueOf(elset, "name"), "\"Mixed Case\"");

    inp_Keyword step = keywordOf(inp_kw_Step, {{"name", "Load 1"}, {"parameter", "Shape"}});
    visitor.ExpandParameters(step, words);
    EXPECT_EQ(valueOf(step, "name"), "Load1");
    EXPECT_EQ(valueOf(step, "parameter"), "SHAPE");
    for (inp_KeywordEnm key : {inp_kw_ParameterShapeVariation, inp_kw_DesignShapeVariation}) {
        inp_Keyword shape = keywordOf(key, {{"parameter", "Shape"}, {"name", "Load 1"}});
        visitor.ExpandParameters(shape, words);
        EXPECT_EQ(valueOf(shape, "parameter"), "Shape");
        EXPECT_EQ(valueOf(shape, "name"), "LOAD1");
    }
}

TEST(ParameterNameExpansion, ARepeatedParameterWarnsOnceAndTheLaterInIterationWins) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Elset, {{"elset", "A"}, {"els", "B"}});
    std::string const later = iterationOrder(keyword).back() == "els" ? "B" : "A";
    visitor.ExpandParameters(keyword, kSetWords);
    EXPECT_EQ(valueOf(keyword, "elset"), later);
    EXPECT_EQ(
        texts(visitor.GetWarningList()),
        std::vector<std::string>{at("ELSET") + "Repeated parameter: elset.  New definition of \"" +
                                 later + "\" overrides previous setting."});
}

TEST(ParameterNameExpansion, ARepeatedParameterWithoutValueWarnsWithTheNameAsWritten) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Elset, {{"generate", nullptr}, {"gen", nullptr}});
    std::string const later = iterationOrder(keyword).back();
    visitor.ExpandParameters(keyword, kSetWords);
    EXPECT_EQ(iterationOrder(keyword), std::vector<std::string>{"generate"});
    EXPECT_EQ(texts(visitor.GetWarningList()),
              std::vector<std::string>{at("ELSET") + "Repeated parameter: " + later +
                                       ".  New definition overrides previous setting."});
}

// A map already in expanded form is kept, shared with any copy taken before;
// a change anywhere in it gives the keyword a new map and leaves the copy.
TEST(ParameterNameExpansion, AMapAlreadyExpandedIsKeptAndAChangedOneIsNew) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword kept = keywordOf(inp_kw_Nset, {{"nset", "TOP"}, {"generate", nullptr}});
    cow_Map<cow_String, inp_Item> const before = kept.Parameters();
    visitor.ExpandParameters(kept, kSetWords);
    EXPECT_TRUE(kept.Parameters().SharesRootWith(before));

    for (Parameters const& written : {Parameters{{"nset", "top"}, {"generate", nullptr}},
                                      Parameters{{"nset", "TOP"}, {"gen", nullptr}},
                                      Parameters{{"nset", "TOP"}, {"elset", "e"}}}) {
        inp_Keyword changed = keywordOf(inp_kw_Nset, written);
        cow_Map<cow_String, inp_Item> const original = changed.Parameters();
        visitor.ExpandParameters(changed, kSetWords);
        EXPECT_FALSE(changed.Parameters().SharesRootWith(original));
        EXPECT_EQ(valueOf(changed, "nset"), "TOP");
        EXPECT_EQ(changed.Parameters().Size(), 2);
        EXPECT_EQ(original.Size(), 2);
        EXPECT_EQ(original.ConstGet("nset").AsString(), cow_String(written[0].second));
    }
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
    EXPECT_TRUE(visitor.GetWarningList().IsEmpty());
}

TEST(EnumeratedValues, AProperPrefixOfTwoWordsIsAmbiguousWhileAnExactWordAlwaysWins) {
    constexpr char const* exactLast[] = {"ABC", "ABD", "AB", nullptr};
    cow_String word = "untouched";
    EXPECT_EQ(inp_KeywordExpansionVisitor::inp_ExpandEnum(word, kDefinitionWords, " sm\t"), 1);
    EXPECT_EQ(word, "SMOOTHSTEP");
    EXPECT_EQ(inp_KeywordExpansionVisitor::inp_ExpandEnum(word, kDefinitionWords, "S"), 2);
    EXPECT_EQ(word, "SMOOTHSTEP");  // the last candidate
    EXPECT_EQ(inp_KeywordExpansionVisitor::inp_ExpandEnum(word, exactLast, "ab"), 1);
    EXPECT_EQ(word, "AB");
    word = "untouched";
    EXPECT_EQ(inp_KeywordExpansionVisitor::inp_ExpandEnum(word, kDefinitionWords, " \t "), 0);
    EXPECT_EQ(inp_KeywordExpansionVisitor::inp_ExpandEnum(word, kDefinitionWords, "DECAYS"), 0);
    EXPECT_EQ(word, "untouched");
}

TEST(EnumeratedValues, FailuresReportAndKeepTheValueWhileABareParameterTurnsNoneSilently) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword =
        keywordOf(inp_kw_Amplitude, {{"definition", "S"}, {"time", "XYZ"}, {"value", nullptr}});
    EXPECT_FALSE(visitor.ExpandEnum(keyword, kDefinitionWords, "definition"));
    EXPECT_FALSE(visitor.ExpandEnum(keyword, kDefinitionWords, "time"));
    EXPECT_TRUE(visitor.ExpandEnum(keyword, kDefinitionWords, "value"));
    EXPECT_EQ(valueOf(keyword, "definition"), "S");
    EXPECT_EQ(valueOf(keyword, "time"), "XYZ");
    EXPECT_EQ(typeOf(keyword, "value"), inp_Types::inp_NONE);
    EXPECT_EQ(
        texts(visitor.GetErrorList()),
        (std::vector<std::string>{
            at("AMPLITUDE") + "Ambiguous value \"S\" for parameter \"definition\".",
            at("AMPLITUDE") + "Illegal value \"XYZ\" for parameter \"time\".  The value may be "
                              "misspelled, obsolete, or invalid."}));
}

TEST(EnumeratedValues, DigitWordsAreTypedAnewAndDataItemsAreWrittenBack) {
    constexpr char const* stackDirection[] = {"1", "2", "3", "ORIENTATION", nullptr};
    constexpr char const* connections[] = {"BEAM", "HINGE", "TRANSLATOR", nullptr};
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_ConnectorSection, {{"stackdirection", "2"}});
    EXPECT_TRUE(visitor.ExpandEnum(keyword, stackDirection, "stackdirection"));
    EXPECT_EQ(typeOf(keyword, "stackdirection"), inp_Types::inp_INTEGER);
    keyword.Data().Append("hin, trans, slot");
    EXPECT_TRUE(visitor.ExpandEnumData(keyword, 0, 0, connections));
    EXPECT_TRUE(visitor.ExpandEnumData(keyword, 0, 1, connections));
    EXPECT_FALSE(visitor.ExpandEnumData(keyword, 0, 2, connections));
    EXPECT_EQ(keyword.Data().AsString(0, 0), "HINGE");
    EXPECT_EQ(keyword.Data().AsString(0, 1), "TRANSLATOR");
    EXPECT_EQ(texts(visitor.GetErrorList()),
              std::vector<std::string>{at("CONNECTORSECTION") +
                                       "Illegal value \"SLOT\" for data item under keyword "
                                       "\"CONNECTORSECTION\"."});
}

TEST(ValueChecks, DoubleAcceptsAnIntegerButDoubleOrLabelRefusesIt) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword =
        keywordOf(inp_kw_ShellSection,
                  {{"offset", "3"}, {"bare", nullptr}, {"label", "TOP"}, {"real", "2.5"}});
    EXPECT_TRUE(visitor.CheckDouble(keyword, "offset"));
    EXPECT_FALSE(visitor.CheckDoubleOrLabel(keyword, "offset"));
    EXPECT_TRUE(visitor.CheckDoubleOrLabel(keyword, "label"));
    EXPECT_TRUE(visitor.CheckNone(keyword, "bare"));
    EXPECT_FALSE(visitor.CheckNone(keyword, "label"));
    EXPECT_TRUE(visitor.CheckInteger(keyword, "absent"));
    EXPECT_FALSE(visitor.CheckFileName(keyword, "offset"));
    EXPECT_FALSE(visitor.CheckIntegerOrEnumerated(keyword, "real", kDefinitionWords));
    EXPECT_TRUE(visitor.CheckIntegerOrEnumerated(keyword, "offset", kDefinitionWords));
    std::string const prefix = at("SHELLSECTION") + "Value for parameter ";
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{
                  prefix + "OFFSET cannot be converted to a float or label: 3",
                  prefix + "LABEL cannot be converted to a boolean: TOP",
                  prefix + "OFFSET cannot be converted to a label: 3",
                  prefix + "REAL cannot be converted to an integer or an enumerated value: 2.5"}));
}

TEST(ValueChecks, RequiredParametersValuesAndDataLines) {
    constexpr char const* words[] = {"nset", "refnode", "elset", nullptr};
    constexpr bool required[] = {true, false, true};
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_RigidBody, {{"refnode", nullptr}, {"elset", "E"}});
    EXPECT_FALSE(visitor.CheckRequiredParameters(keyword, words, required));
    EXPECT_FALSE(visitor.checkRequiredParameterValue(keyword, "refnode"));
    EXPECT_TRUE(visitor.checkRequiredParameterValue(keyword, "elset"));
    EXPECT_FALSE(visitor.checkRequiredDataline(keyword));
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{
                  at("RIGIDBODY") + "Parameter NSET is a required parameter.",
                  at("RIGIDBODY") + "Parameter REFNODE requires a value.",
                  at("RIGIDBODY") + "Required values need to be specified on the dataline."}));
}

TEST(DataLineTruncation, OneTrailingEmptyItemIsToleratedAndNothingIsRebuilt) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Nset, {{"nset", "A"}});
    keyword.Data().Append("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,");
    keyword.Data().Append("a");
    inp_DataArray const before = keyword.Data();
    visitor.Visit(keyword);
    EXPECT_TRUE(keyword.Data().SharesWith(before));
    EXPECT_EQ(keyword.Data().Cols(0), 17);
    EXPECT_EQ(keyword.Data().AsStringVerbatim(1, 0), "a");
    EXPECT_TRUE(visitor.GetWarningList().IsEmpty());
}

TEST(DataLineTruncation, OneLongLineRebuildsEveryLineWithOneWarning) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword keyword = keywordOf(inp_kw_Elset, {{"elset", "A"}});
    keyword.Data().Append("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,");
    keyword.Data().Append("a, b");
    keyword.Data().Append("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18");
    visitor.Visit(keyword);
    inp_DataArray const& data = keyword.Data();
    ASSERT_EQ(data.Rows(), 3);
    EXPECT_EQ(data.Cols(0), 16);
    EXPECT_EQ(data.AsStringVerbatim(1, 1), "B");
    EXPECT_EQ(data.Cols(2), 16);
    EXPECT_EQ(data.AsStringVerbatim(2, 15), "16");
    EXPECT_EQ(texts(visitor.GetWarningList()),
              std::vector<std::string>{
                  at("ELSET") + "One or more data lines contain more than 16 items (counting "
                                "those after trailing commas).  The extra items are deleted."});
}

TEST(DeferredAssemblyErrors, AFlatDeckDropsThemAndALaterPartReleasesThemInOrder) {
    inp_KeywordExpansionVisitor flat;
    flat.AddAssemblyModelError(keywordOf(inp_kw_Nmap), "not in an assembly");
    EXPECT_TRUE(flat.GetErrorList().IsEmpty());
    EXPECT_FALSE(flat.FeatureEnhanced());

    inp_KeywordExpansionVisitor visitor;
    inp_Keyword unknown = keywordOf(inp_kw_Heading, {{"x", "1"}});
    visitor.AddAssemblyModelError(keywordOf(inp_kw_Nmap), "first");
    visitor.Visit(unknown);
    visitor.AddAssemblyModelError(keywordOf(inp_kw_MatrixAssemble), "second");
    inp_Keyword part = keywordOf(inp_kw_Part, {{"name", "P"}});
    visitor.Visit(part);
    visitor.AddAssemblyModelError(keywordOf(inp_kw_Nmap), "third");
    std::vector<std::string> errors = texts(visitor.GetErrorList());
    ASSERT_EQ(errors.size(), 4u);
    EXPECT_EQ(errors[1], at("NMAP") + "first");
    EXPECT_EQ(errors[2], at("MATRIXASSEMBLE") + "second");
    EXPECT_EQ(errors[3], at("NMAP") + "third");
    EXPECT_TRUE(visitor.FeatureEnhanced());
}

TEST(VisitFailures, ADeckExceptionCostsOneDecoratedErrorAndBlanksOnlyThatKeyword) {
    struct Throwing : inp_KeywordExpansionVisitor {
        void DefaultAction(inp_Keyword& keyword) override {
            if (keyword.Is(inp_kw_Heading)) throw inp_KeywordException(0, "", "bad heading");
            inp_KeywordExpansionVisitor::DefaultAction(keyword);
        }
    } visitor;
    inp_Keyword heading = keywordOf(inp_kw_Heading, {{"x", "1"}});
    heading.GetSuboptions().Append(keywordOf(inp_kw_Heading));
    cow_List<inp_Keyword> keywords{heading, keywordOf(inp_kw_Wind, {{"speed", "3"}})};
    visitor.VisitList(keywords);
    EXPECT_EQ(keywords[0].Keyword(), inp_kw_UndefinedKeyword);
    EXPECT_TRUE(keywords[0].Parameters().IsEmpty() && keywords[0].Suboptions().IsEmpty());
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{at("HEADING") + "bad heading",
                                        at("WIND") + "Unknown parameter: speed. The parameter may "
                                                     "be misspelled, obsolete, or invalid."}));
    EXPECT_EQ(valueOf(keywords[1], "speed"), "3");
}

// These go through the schema rows of the keywords.
TEST(SchemaDrivenExpansion, RowsExpandNamesAndEnumerationsWithTheirGuards) {
    inp_KeywordExpansionVisitor visitor;
    cow_List<inp_Keyword> keywords{
        keywordOf(inp_kw_Elset, {{"el", "a"}}),
        keywordOf(inp_kw_Nset, {{"nsetxyz", "a"}}),
        keywordOf(inp_kw_Amplitude, {{"name", "A"}, {"definition", "sm"}}),
        keywordOf(inp_kw_Amplitude, {{"name", "B"}, {"definition", "S"}}),
        keywordOf(inp_kw_Step, {{"nlgeom", nullptr}, {"amplitude", nullptr}, {"unsymm", "y"}}),
        keywordOf(inp_kw_ConnectorLock, {{"lock", "3"}}),
        keywordOf(inp_kw_ConnectorLock, {{"lock", "all"}}),
    };
    visitor.VisitList(keywords);
    EXPECT_EQ(valueOf(keywords[0], "elset"), "A");
    EXPECT_EQ(valueOf(keywords[1], "nset"), "A");
    EXPECT_EQ(valueOf(keywords[2], "definition"), "SMOOTHSTEP");
    EXPECT_EQ(valueOf(keywords[3], "definition"), "S");
    EXPECT_EQ(typeOf(keywords[4], "nlgeom"), inp_Types::inp_BOOLEAN);
    EXPECT_EQ(typeOf(keywords[4], "amplitude"), inp_Types::inp_NONE);
    EXPECT_EQ(valueOf(keywords[4], "unsymm"), "YES");
    EXPECT_EQ(typeOf(keywords[5], "lock"), inp_Types::inp_INTEGER);
    EXPECT_EQ(valueOf(keywords[6], "lock"), "ALL");
    EXPECT_EQ(texts(visitor.GetErrorList()),
              std::vector<std::string>{at("AMPLITUDE") +
                                       "Ambiguous value \"S\" for parameter \"definition\"."});
}

TEST(SchemaDrivenExpansion, OwnHandlersSetTheirFlagsAndEndScopesKeepTheBaseHandler) {
    inp_KeywordExpansionVisitor visitor;
    cow_List<inp_Keyword> keywords{
        keywordOf(inp_kw_Parameter, {{"anything", "x"}}),
        keywordOf(inp_kw_Dynamic, {{"exp", nullptr}}),
        keywordOf(inp_kw_RigidSurface),
        keywordOf(inp_kw_EndStep, {{"x", nullptr}}),
    };
    visitor.VisitList(keywords);
    EXPECT_TRUE(visitor.IsParameterized());
    EXPECT_EQ(valueOf(keywords[0], "anything"), "x");
    EXPECT_TRUE(visitor.IsExplicitJob());
    EXPECT_TRUE(visitor.HasRigidSurfaceKeyword());
    EXPECT_FALSE(visitor.FeatureEnhanced());
    EXPECT_EQ(texts(visitor.GetErrorList()),
              std::vector<std::string>{at("ENDSTEP") + "Unknown parameter: x. The parameter may be "
                                                       "misspelled, obsolete, or invalid."});
}

// A keyword of the logic kind whose handler was never registered would be
// expanded by its row alone, and its checks would silently not run. The one
// exception: the logic of *CONTACT STABILIZATION is the guard on its scale
// factor (a number or a word), which its row carries.
TEST(SchemaDrivenExpansion, EveryLogicKeywordHasAHandlerOfItsOwn) {
    std::string missing;
    for (inp_SchemaRow const* row : inp_Schema::AllRows())
        if (row->kind == inp_SchemaKind::Logic && row->key != inp_kw_ContactStabilization &&
            !inp_KeywordExpansionVisitor::HasHandlerOfItsOwn(row->key))
            missing += std::string(row->keyword) + " ";
    EXPECT_EQ(missing, "");
}

// Visit routes every keyword itself, past the handlers of the base class.
TEST(ExpansionDispatch, SuboptionsComeAfterTheirKeywordAndKeywordsWithoutRouteAreWalkedThrough) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword heading = keywordOf(inp_kw_Heading, {{"x", "1"}});
    heading.GetSuboptions().Append(keywordOf(inp_kw_Wind, {{"speed", "3"}}));
    inp_Keyword root = keywordOf(inp_kw_Model, {{"x", "1"}});
    root.GetSuboptions().Append(keywordOf(inp_kw_Elset, {{"el", "a"}}));
    inp_Keyword blanked = keywordOf(inp_kw_UndefinedKeyword);
    blanked.GetSuboptions().Append(keywordOf(inp_kw_Nset, {{"nsetxyz", "b"}}));
    cow_List<inp_Keyword> keywords{heading, root, blanked};
    visitor.VisitList(keywords);
    std::string const tail = ". The parameter may be misspelled, obsolete, or invalid.";
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{at("HEADING") + "Unknown parameter: x" + tail,
                                        at("WIND") + "Unknown parameter: speed" + tail}));
    EXPECT_EQ(valueOf(keywords[1], "x"), "1");
    EXPECT_EQ(valueOf(keywords[1].Suboptions()[0], "elset"), "A");
    EXPECT_EQ(valueOf(keywords[2].Suboptions()[0], "nset"), "B");
}

TEST(ExpansionDispatch, ModalPrintExpandsAsPrint) {
    inp_KeywordExpansionVisitor visitor;
    cow_List<inp_Keyword> keywords{keywordOf(inp_kw_Print, {{"allk", "y"}, {"sol", "n"}}),
                                   keywordOf(inp_kw_ModalPrint, {{"allk", "y"}, {"sol", "n"}})};
    visitor.VisitList(keywords);
    for (inp_Keyword const& keyword : keywords) {
        EXPECT_EQ(iterationOrder(keyword), (std::vector<std::string>{"allke", "solve"}));
        EXPECT_EQ(valueOf(keyword, "allke"), "YES");
        EXPECT_EQ(valueOf(keyword, "solve"), "NO");
    }
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}

// Only the step name is followed (a rule of *ELEMENT needs the part and
// instance names empty); the end keywords still close their scopes.
TEST(ExpansionDispatch, OnlyTheStepScopeIsFollowedAndTheEndKeywordsCloseIt) {
    inp_KeywordExpansionVisitor visitor;
    inp_Keyword part = keywordOf(inp_kw_Part, {{"name", "P"}});
    inp_Keyword assembly = keywordOf(inp_kw_Assembly, {{"name", "A"}});
    inp_Keyword instance = keywordOf(inp_kw_Instance, {{"name", "I"}, {"part", "P"}});
    inp_Keyword path = keywordOf(inp_kw_SubstructurePath, {{"enterelement", "1"}});
    for (inp_Keyword* keyword : {&part, &assembly, &instance, &path}) visitor.Visit(*keyword);
    EXPECT_TRUE(visitor.PartName().IsEmpty() && visitor.AssemblyName().IsEmpty() &&
                visitor.InstanceName().IsEmpty());
    EXPECT_EQ(visitor.SubstructurePathDepth(), 0);

    inp_Keyword step = keywordOf(inp_kw_Step, {{"name", "Load 1"}});
    visitor.Visit(step);
    EXPECT_EQ(visitor.StepName(), "Load1");
    inp_Keyword endStep = keywordOf(inp_kw_EndStep);
    visitor.Visit(endStep);
    EXPECT_TRUE(visitor.StepName().IsEmpty());
    for (inp_KeywordEnm key : {inp_kw_EndInstance, inp_kw_EndAssembly}) {
        inp_Keyword end = keywordOf(key, {{"x", nullptr}});
        visitor.Visit(end);
    }
    std::string const tail = ". The parameter may be misspelled, obsolete, or invalid.";
    EXPECT_EQ(texts(visitor.GetErrorList()),
              (std::vector<std::string>{
                  at("SUBSTRUCTUREPATH") +
                      "The following option is currently not supported in a model defined in "
                      "terms of an assembly of part instances: *SUBSTRUCTURE PATH",
                  at("ENDINSTANCE") + "Unknown parameter: x" + tail,
                  at("ENDASSEMBLY") + "Unknown parameter: x" + tail}));
}

TEST(ExpansionDispatch, TheEndOfFileAndKeysOutsideTheTableFailTheBaseAssertion) {
    for (int key : {99999, 19, -4, int(inp_kw_Eof)}) {
        inp_KeywordExpansionVisitor visitor;
        inp_Keyword keyword = keywordOf(static_cast<inp_KeywordEnm>(key));
        testing::internal::CaptureStderr();
        EXPECT_THROW(visitor.Visit(keyword), ZELBasAssertException) << key;
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "Unknown keyword key " + std::to_string(key) + "\n");
    }
}
