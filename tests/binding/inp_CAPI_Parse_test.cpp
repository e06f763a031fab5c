#include "binding/inp_CAPI.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "binding/inp_CAPI_Item.h"
#include "deck/inp_Item.h"
#include "parser/inp_DeckEncryptor.h"
#include "tests/common/FailureText.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

// An item as the caller copies it during a callback: its type and its text.
struct ItemCopy {
    int type;
    std::string text;
    friend bool operator==(ItemCopy const&, ItemCopy const&) = default;
};

ItemCopy copyOf(inp_CAPI_Item const& item) {
    return {item.itemType, inp_CAPI_Item_AsCharPtr(&item)};
}

struct DataCall {
    std::string typeName;
    int rows = 0;
    int cols = 0;
    bool nullArray = false;
    std::vector<int> ints;
    std::vector<double> doubles;
    std::vector<ItemCopy> items;
};

// Everything the callbacks received, by path, and the order of the calls.
struct Recording {
    std::vector<std::string> calls;  // "<callback> <path>"
    std::map<std::string, std::vector<std::string>> strings;
    std::map<std::string, std::string> objTypes;
    std::map<std::string, std::map<std::string, ItemCopy>> parameters;
    std::map<std::string, bool> nullParameters;
    std::map<std::string, int> lists;
    std::map<std::string, DataCall> data;
};

Recording* g_recording = nullptr;

void recordStrings(char const* path, char const* objType, int count, char** strings) {
    g_recording->calls.push_back(std::string("strings ") + path);
    std::vector<std::string>& copy = g_recording->strings[path];
    for (int i = 0; i < count; ++i) copy.emplace_back(strings[i]);
    EXPECT_EQ(strings[count], nullptr) << path;
    g_recording->objTypes[path] = objType;
}

void recordParameters(char const* path, int count, inp_CAPI_paramKeyValue* params) {
    g_recording->calls.push_back(std::string("parameter ") + path);
    g_recording->nullParameters[path] = params == nullptr;
    std::map<std::string, ItemCopy>& copy = g_recording->parameters[path];
    for (int i = 0; i < count; ++i) copy[params[i].key] = copyOf(params[i].value);
    EXPECT_EQ(copy.size(), static_cast<size_t>(count)) << "a parameter came twice in " << path;
}

void recordList(char const* path, int count) {
    g_recording->calls.push_back(std::string("list ") + path);
    g_recording->lists[path] = count;
}

void recordData(char const* path, char const* typeName, int rows, int cols, void* array) {
    g_recording->calls.push_back(std::string("data ") + path);
    DataCall& call = g_recording->data[path];
    call = DataCall{typeName, rows, cols, array == nullptr, {}, {}, {}};
    size_t const count = static_cast<size_t>(rows) * static_cast<size_t>(cols);
    std::string const type(typeName);
    if (type == "inp_IsInt")
        call.ints.assign(static_cast<int*>(array), static_cast<int*>(array) + count);
    if (type == "inp_IsDouble" || type == "inp_IsDoubleCZI")
        call.doubles.assign(static_cast<double*>(array), static_cast<double*>(array) + count);
    if (type == "inp_IsItem")
        for (size_t k = 0; k < count; ++k)
            call.items.push_back(copyOf(static_cast<inp_CAPI_Item*>(array)[k]));
}

ItemCopy integer(int value) {
    return {inp_CAPI_INTEGER, std::to_string(value)};
}
ItemCopy real(char const* text) {
    return {inp_CAPI_REAL, text};
}
ItemCopy string(char const* text) {
    return {inp_CAPI_STRING, text};
}
ItemCopy none() {
    return {inp_CAPI_NONE, "None"};
}

class CapiParse : public ::testing::Test {
  protected:
    void TearDown() override { g_recording = nullptr; }

    // Parses `text` as main.inp of the test's directory through the recording callbacks.
    Recording const& parse(std::string const& text, bool organize = false, bool bulk = true,
                           int verbose = 0) {
        cow_String const path = dir.Write("main.inp", text);
        m_recording = Recording();
        g_recording = &m_recording;
        EXPECT_EQ(inp_CAPI_Parse(path.CStr(), dir.Directory().CStr(), organize, verbose, bulk,
                                 false, recordStrings, recordParameters, recordList, recordData),
                  0);
        return m_recording;
    }
    // The data of the first keyword of a deck made of `text` alone.
    DataCall dataOf(std::string const& text) {
        Recording const& r = parse(text);
        EXPECT_EQ(r.data.count(".keywords[0].data"), 1u);
        return r.data.count(".keywords[0].data") ? r.data.at(".keywords[0].data") : DataCall();
    }

    TempDeckDirectory dir;

  private:
    Recording m_recording;
};

}  // namespace

// -- which array the data of a keyword travels as -------------------------------------------

using CapiParseDataTypes = CapiParse;

TEST_F(CapiParseDataTypes, KeywordWithoutDataIsAnEmptyItemArrayWithNullPointer) {
    DataCall data = dataOf("*MATERIAL, NAME=Steel\n");
    EXPECT_EQ(data.typeName, "inp_IsItem");
    EXPECT_EQ(data.rows, 0);
    EXPECT_EQ(data.cols, 0);
    EXPECT_TRUE(data.nullArray);
}

TEST_F(CapiParseDataTypes, AllIntegersGoAsIntArrayRowAfterRow) {
    DataCall data = dataOf("*NSET, NSET=A\n1, 2, 3\n4, 5, 6\n");
    EXPECT_EQ(data.typeName, "inp_IsInt");
    EXPECT_EQ(data.rows, 2);
    EXPECT_EQ(data.cols, 3);
    EXPECT_EQ(data.ints, (std::vector<int>{1, 2, 3, 4, 5, 6}));
}

TEST_F(CapiParseDataTypes, AllRealsGoAsDoubleArrayAndAnIntegerLabelLaterIsWidened) {
    DataCall data = dataOf("*DENSITY\n1.5, 2.5\n3, 4.5\n");
    EXPECT_EQ(data.typeName, "inp_IsDouble");
    EXPECT_EQ(data.doubles, (std::vector<double>{1.5, 2.5, 3.0, 4.5}));
    EXPECT_EQ(dataOf("*DENSITY\n1.5D3, 2.5\n").doubles, (std::vector<double>{1500.0, 2.5}));
}

TEST_F(CapiParseDataTypes, IntegerColumnZeroWithRealsIsDoubleCZIWithIntegersReadAsDoubles) {
    DataCall data = dataOf("*DENSITY\n1, 2.5\n3, 4\n");
    EXPECT_EQ(data.typeName, "inp_IsDoubleCZI");
    EXPECT_EQ(data.rows, 2);
    EXPECT_EQ(data.cols, 2);
    EXPECT_EQ(data.doubles, (std::vector<double>{1.0, 2.5, 3.0, 4.0}));
}

TEST_F(CapiParseDataTypes, IntegerTypeIsBumpedToRealByALaterColumn) {
    DataCall data = dataOf("*DENSITY\n1, 2, 3.5\n4, 5, 6\n");
    EXPECT_EQ(data.typeName, "inp_IsDoubleCZI");
    EXPECT_EQ(data.doubles, (std::vector<double>{1, 2, 3.5, 4, 5, 6}));
}

TEST_F(CapiParseDataTypes, RealFirstThenIntegerInRowZeroTakesTheItemPath) {
    DataCall data = dataOf("*DENSITY\n1.5, 2\n");
    EXPECT_EQ(data.typeName, "inp_IsItem");
    EXPECT_EQ(data.items, (std::vector<ItemCopy>{real("1.5"), integer(2)}));
}

TEST_F(CapiParseDataTypes, StringInColumnZeroTakesTheItemPathVerbatim) {
    DataCall data = dataOf("*DENSITY\n Abc Def , 1\n");
    EXPECT_EQ(data.typeName, "inp_IsItem");
    EXPECT_EQ(data.items, (std::vector<ItemCopy>{string("Abc Def"), integer(1)}));
}

TEST_F(CapiParseDataTypes, RaggedRowsAreItemsAsWideAsTheLongestRowPaddedWithNone) {
    DataCall data = dataOf("*DENSITY\n1\n2, 3, 4\n5, 6\n");
    EXPECT_EQ(data.typeName, "inp_IsItem");
    EXPECT_EQ(data.rows, 3);
    EXPECT_EQ(data.cols, 3);
    EXPECT_EQ(data.items, (std::vector<ItemCopy>{integer(1), none(), none(), integer(2), integer(3),
                                                 integer(4), integer(5), integer(6), none()}));
}

TEST_F(CapiParseDataTypes, EmptyItemIsANoneItem) {
    EXPECT_EQ(dataOf("*DENSITY\n1, , 3\n").items,
              (std::vector<ItemCopy>{integer(1), none(), integer(3)}));
}

// Column 0 of a later row must be a number too, and a real there makes the
// table real: nothing is read as a number that isn't one, nothing truncated.
TEST_F(CapiParseDataTypes, LaterRowsColumnZeroNeitherTruncatesNorReadsTextAsNumber) {
    DataCall realLabel = dataOf("*DENSITY\n1, 2\n1.5, 3\n");
    EXPECT_EQ(realLabel.typeName, "inp_IsDoubleCZI");
    EXPECT_EQ(realLabel.doubles, (std::vector<double>{1, 2, 1.5, 3}));
    DataCall textLabel = dataOf("*DENSITY\n1.5, 2.5\nabc, 3.5\n");
    EXPECT_EQ(textLabel.typeName, "inp_IsItem");
    EXPECT_EQ(textLabel.items,
              (std::vector<ItemCopy>{real("1.5"), real("2.5"), string("abc"), real("3.5")}));
    EXPECT_EQ(dataOf("*DENSITY\n1, 2\n, 3\n").typeName, "inp_IsItem");
}

TEST_F(CapiParseDataTypes, CompactNodeTableIsDoubleCZIWithSevenColumns) {
    DataCall data = dataOf("*NODE\n1, 0.5, 0., 0.\n2, 1., 2.\n");
    EXPECT_EQ(data.typeName, "inp_IsDoubleCZI");
    EXPECT_EQ(data.rows, 2);
    EXPECT_EQ(data.cols, 7);
    EXPECT_EQ(data.doubles, (std::vector<double>{1, 0.5, 0, 0, 0, 0, 0, 2, 1, 2, 0, 0, 0, 0}));
}

TEST_F(CapiParseDataTypes, BigNodeTableIsOneCallWithEveryRow) {
    std::string deck("*NODE\n");
    for (int label = 1; label <= 20000; ++label)
        deck += std::to_string(label) + ", " + std::to_string(label) + ".5, 1., 2.\n";
    Recording const& r = parse(deck);
    DataCall const& data = r.data.at(".keywords[0].data");
    ASSERT_EQ(data.rows, 20000);
    EXPECT_EQ(data.doubles[19999 * 7], 20000.0);
    EXPECT_EQ(data.doubles[19999 * 7 + 1], 20000.5);
    EXPECT_EQ(r.calls.size(), 8u);
}

TEST_F(CapiParse, WithoutBulkOnlyHeadingAndStepLinesComeAsOneStringEach) {
    Recording const& r = parse(
        "*HEADING\nMy model, v2\n*NODE\n1, 0., 0., 0.\n*STEP\nLoad step, two\n*STATIC\n1., 2.\n"
        "*END STEP\n",
        false, false);
    EXPECT_EQ(r.data.at(".keywords[0].data").items, std::vector<ItemCopy>{string("My model, v2")});
    EXPECT_EQ(r.data.at(".keywords[2].data").items,
              std::vector<ItemCopy>{string("Load step, two")});
    for (char const* path : {".keywords[1].data", ".keywords[3].data", ".keywords[4].data"}) {
        EXPECT_EQ(r.data.at(path).typeName, "inp_IsItem") << path;
        EXPECT_TRUE(r.data.at(path).nullArray) << path;
    }
}

// -- the walk --------------------------------------------------------------------------------

constexpr char const* kMaterialDeck =
    "** first\n*MATERIAL, NAME=Steel\n*DENSITY\n7800.\n*ELASTIC\n2.1e5, 0.3\n** about "
    "plastic\n*PLASTIC\n250., 0.\n"
    "*STEP\n*STATIC\n*END STEP\n";

TEST_F(CapiParse, FlatWalkSendsEveryKeywordAtTopLevelWithItsComments) {
    Recording const& r = parse(kMaterialDeck);
    EXPECT_EQ(r.lists.at(".keywords"), 7);
    EXPECT_EQ(r.strings.at(".keywords[0].name"), std::vector<std::string>{"material"});
    EXPECT_EQ(r.objTypes.at(".keywords[0].name"), "str");
    EXPECT_EQ(r.strings.at(".keywords[0].comments"), std::vector<std::string>{" first"});
    EXPECT_EQ(r.strings.at(".keywords[3].comments"), std::vector<std::string>{" about plastic"});
    EXPECT_EQ(r.objTypes.at(".keywords[3].comments"), "tuple");
    EXPECT_EQ(r.lists.at(".keywords[0].suboptions"), 0);
}

TEST_F(CapiParse, OrganizedWalkNestsSuboptionsUnderTheirHolders) {
    Recording const& r = parse(kMaterialDeck, true);
    EXPECT_EQ(r.lists.at(".keywords"), 3);
    EXPECT_EQ(r.lists.at(".keywords[0].suboptions"), 3);
    EXPECT_EQ(r.strings.at(".keywords[0].suboptions[2].name"), std::vector<std::string>{"plastic"});
    EXPECT_EQ(r.strings.at(".keywords[0].suboptions[2].comments"),
              std::vector<std::string>{" about plastic"});
    EXPECT_EQ(r.data.at(".keywords[0].suboptions[1].data").doubles,
              (std::vector<double>{2.1e5, 0.3}));
    EXPECT_EQ(r.strings.at(".keywords[1].suboptions[0].name"), std::vector<std::string>{"static"});
    EXPECT_EQ(r.lists.at(".keywords[0].suboptions[2].suboptions"), 0);
}

TEST_F(CapiParse, CallsComeInWalkOrderWithListsBeforeTheirMembers) {
    Recording const& r = parse("*MATERIAL, NAME=Steel\n*DENSITY\n7800.\n", true);
    EXPECT_EQ(r.calls, (std::vector<std::string>{
                           "strings .includes",
                           "strings .missingIncludes",
                           "list .keywords",
                           "strings .keywords[0].name",
                           "parameter .keywords[0].parameter",
                           "data .keywords[0].data",
                           "list .keywords[0].suboptions",
                           "strings .keywords[0].suboptions[0].name",
                           "parameter .keywords[0].suboptions[0].parameter",
                           "data .keywords[0].suboptions[0].data",
                           "list .keywords[0].suboptions[0].suboptions",
                           "strings .keywords[0].suboptions[0].comments",
                           "strings .keywords[0].comments",
                       }));
}

TEST_F(CapiParse, ParametersComeOncePerNameWithEveryItemTypeAndNoneAllocatedForNone) {
    Recording const& r =
        parse("*DENSITY, FACTOR=2.5, COUNT=3, LABEL=Abc, FLAG, ODD=@#!\n*DENSITY\n");
    EXPECT_EQ(r.parameters.at(".keywords[0].parameter"),
              (std::map<std::string, ItemCopy>{{"count", integer(3)},
                                               {"factor", real("2.5")},
                                               {"flag", {inp_CAPI_BOOLEAN, "True"}},
                                               {"label", string("Abc")},
                                               {"odd", none()}}));
    EXPECT_TRUE(r.parameters.at(".keywords[1].parameter").empty());
    EXPECT_TRUE(r.nullParameters.at(".keywords[1].parameter"));
}

TEST_F(CapiParse, IncludeAndDataFilesAreListedOnceAndMissingOnesApart) {
    dir.Write("mesh.inp", "*NODE\n1, 0., 0., 0.\n");
    dir.Write("nodes.dat", "7, 1., 2., 3.\n");
    Recording const& r = parse(
        "*INCLUDE, INPUT=mesh.inp\n*INCLUDE, INPUT=absent.inp\n*NODE, INPUT=nodes.dat\n*NODE, "
        "INPUT=gone.dat\n"
        "*NODE, INPUT=nodes.dat\n");
    EXPECT_EQ(r.strings.at(".includes"), (std::vector<std::string>{"mesh.inp", "nodes.dat"}));
    EXPECT_EQ(r.strings.at(".missingIncludes"),
              (std::vector<std::string>{"absent.inp", "gone.dat"}));
    EXPECT_EQ(r.objTypes.at(".missingIncludes"), "tuple");
    EXPECT_EQ(r.data.at(".keywords[1].data").doubles, (std::vector<double>{7, 1, 2, 3, 0, 0, 0}));
}

TEST_F(CapiParse, EncryptedKeywordsComeWithoutTheirData) {
    dir.Write("secret.plain", "*MATERIAL, NAME=SECRET\n*DENSITY\n7800.\n");
    inp_EncryptDeck(dir.Path("secret.plain"), dir.Path("secret.enc"), "opensesame");
    Recording const& r = parse("*INCLUDE, INPUT=secret.enc, PASSWORD=opensesame\n*DENSITY\n1.5\n");
    EXPECT_EQ(r.lists.at(".keywords"), 3);
    EXPECT_EQ(r.strings.at(".keywords[1].name"), std::vector<std::string>{"density"});
    EXPECT_EQ(r.parameters.at(".keywords[0].parameter").at("name"), string("SECRET"));
    EXPECT_EQ(r.data.count(".keywords[0].data"), 0u);
    EXPECT_EQ(r.data.count(".keywords[1].data"), 0u);
    EXPECT_EQ(r.data.at(".keywords[2].data").doubles, std::vector<double>{1.5});
}

// -- messages and failures -------------------------------------------------------------------

TEST_F(CapiParse, ParserFatalErrorsAlwaysShowStageFatalErrorsOnlyWhenVerbose) {
    dir.Write("secret.plain", "*MATERIAL, NAME=SECRET\n");
    inp_EncryptDeck(dir.Path("secret.plain"), dir.Path("secret.enc"), "opensesame");
    std::string const deck = "*INCLUDE, INPUT=secret.enc, PASSWORD=guess\n*DENSITY\n";
    std::string const badHeader = std::string("Bad header. The encrypted input file, \"") +
                                  dir.Path("secret.enc").CStr() +
                                  "\", is either corrupt or the password is incorrect.\n";
    std::string const misplaced =
        std::string("in keyword *DENSITY, file \"") + dir.Path("main.inp").CStr() +
        "\", line 2: The keyword is misplaced. It can be suboption for the following "
        "keyword(s)/level(s): material\n";

    testing::internal::CaptureStderr();
    parse(deck, true, true, 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), badHeader);

    testing::internal::CaptureStderr();
    parse(deck, true, true, 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), badHeader + misplaced);
}

TEST_F(CapiParse, DeckThatCannotBeOpenedThrowsBeforeAnyCallback) {
    Recording recording;
    g_recording = &recording;
    EXPECT_ANY_THROW(inp_CAPI_Parse(dir.Path("absent.inp").CStr(), dir.Directory().CStr(), false, 0,
                                    true, false, recordStrings, recordParameters, recordList,
                                    recordData));
    EXPECT_TRUE(recording.calls.empty());
}

TEST_F(CapiParse, NullCallbacksAreSkipped) {
    cow_String const path = dir.Write("main.inp", kMaterialDeck);
    EXPECT_EQ(inp_CAPI_Parse(path.CStr(), nullptr, true, 0, true, false, nullptr, nullptr, nullptr,
                             nullptr),
              0);
}

// -- traces ----------------------------------------------------------------------------------

// Sets a trace variable for one test. The level outlives the call, so the
// variable is left at "0" for the next parse to read.
class TraceVariable {
  public:
    TraceVariable(char const* name, char const* value) : m_name(name) { setenv(name, value, 1); }
    ~TraceVariable() { setenv(m_name, "0", 1); }
    TraceVariable(TraceVariable const&) = delete;
    TraceVariable& operator=(TraceVariable const&) = delete;

  private:
    char const* m_name;
};

std::vector<std::string> linesOf(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

TEST_F(CapiParse, CallTraceNamesTheArgumentsAndTheRecordSizesAndOutlivesTheVariable) {
    TraceVariable trace("FNK_DBG_INPPARSER", "1");
    testing::internal::CaptureStderr();
    parse("*MATERIAL, NAME=A\n*DENSITY\n1.\n", true, false, 2);
    unsetenv("FNK_DBG_INPPARSER");
    parse("*DENSITY\n1.\n");
    std::vector<std::string> lines = linesOf(testing::internal::GetCapturedStderr());
    std::string const call = std::string("inp_ParserCAPI inp_CAPI_Parse(fileName=") +
                             dir.Path("main.inp").CStr() +
                             ", directoryName=" + dir.Directory().CStr();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], call + ", organize=true, verbose=2, bulk=false, printKwds=false)");
    EXPECT_EQ(lines[1],
              "inp_ParserCAPI sizeof(inp_CAPI_Item)=32 sizeof(inp_CAPI_paramKeyValue)=40");
    EXPECT_EQ(lines[2], call + ", organize=false, verbose=0, bulk=true, printKwds=false)");
}

TEST_F(CapiParse, PrintKwdsPrintsEveryTopLevelKeywordWithItsIndex) {
    cow_String const path = dir.Write("main.inp", kMaterialDeck);
    testing::internal::CaptureStderr();
    inp_CAPI_Parse(path.CStr(), dir.Directory().CStr(), true, 0, true, true, nullptr, nullptr,
                   nullptr, nullptr);
    std::string const printed = testing::internal::GetCapturedStderr();
    size_t const first = printed.find("inp_ParserCAPI inp_CAPI_Parse() keyword[0]:\n");
    size_t const last = printed.find("inp_ParserCAPI inp_CAPI_Parse() keyword[2]:\n");
    EXPECT_EQ(first, 0u);
    EXPECT_NE(last, std::string::npos);
    EXPECT_EQ(printed.find("keyword[3]"), std::string::npos);
    EXPECT_NE(printed.find("*density", first), std::string::npos)
        << "suboptions are printed with their holder";
}

// Each callback prints the block it got; the allocation trace must show that
// block freed before the next callback.
void announceBlock(void const* block) {
    if (!block) return;
    char line[64];
    std::snprintf(line, sizeof line, "callback got %p\n", block);
    std::fputs(line, stderr);
}
void announceStrings(char const*, char const*, int, char** strings) {
    announceBlock(strings);
}
void announceParameters(char const*, int, inp_CAPI_paramKeyValue* params) {
    announceBlock(params);
}
void announceData(char const*, char const*, int, int, void* array) {
    announceBlock(array);
}

TEST_F(CapiParse, EveryBlockIsFreedRightAfterItsCallbackReturns) {
    cow_String const path = dir.Write(
        "main.inp", std::string(kMaterialDeck) + "*NSET, NSET=A\n1, 2\n*DENSITY, X=1\nabc\n");
    TraceVariable trace("FNK_DBG_INPPARSER_MEM", "1");
    testing::internal::CaptureStderr();
    inp_CAPI_Parse(path.CStr(), nullptr, false, 0, true, false, announceStrings, announceParameters,
                   nullptr, announceData);
    std::vector<std::string> lines = linesOf(testing::internal::GetCapturedStderr());

    int callbacks = 0, allocations = 0, frees = 0;
    for (size_t k = 0; k < lines.size(); ++k) {
        allocations += lines[k].find("inp_ParserCAPI allocated ") == 0;
        frees += lines[k].find("inp_ParserCAPI freed ") == 0;
        if (lines[k].find("callback got ") != 0) continue;
        ++callbacks;
        std::string const block = " at " + lines[k].substr(13);
        size_t const next = k + 1;
        ASSERT_LT(next, lines.size());
        EXPECT_EQ(lines[next].find("inp_ParserCAPI freed "), 0u) << lines[next];
        EXPECT_EQ(lines[next].size() - lines[next].rfind(block), block.size()) << lines[next];
    }
    EXPECT_GT(callbacks, 20);
    EXPECT_EQ(allocations, callbacks);
    EXPECT_EQ(frees, callbacks);
}

// -- the records and their text ----------------------------------------------------------------

TEST(CapiItemText, EachTypeHasItsText) {
    inp_CAPI_OwnedItem const number(-42), real(2.5), tiny(1e-7), large(123456789.0);
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&number), "-42");
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&real), "2.5");
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&tiny), "1e-07");
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&large), "1.23457e+08");
    inp_CAPI_OwnedItem const yes(true), no(false), text("Top"), nothing;
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&yes), "True");
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&no), "False");
    EXPECT_EQ(inp_CAPI_Item_AsCharPtr(&text), text.sval);
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&nothing), "None");
}

TEST(CapiItemText, UnknownTypeFailsTheAssertionAndReleasesTheBuffer) {
    inp_CAPI_Item odd{};
    odd.itemType = 9;
    testing::internal::CaptureStderr();
    EXPECT_EQ(conditionOf([&] { inp_CAPI_Item_AsCharPtr(&odd); }), "\"Unknown data type\" == 0");
    inp_CAPI_OwnedItem const number(7);
    EXPECT_STREQ(inp_CAPI_Item_AsCharPtr(&number), "7");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "ERROR - inp_CAPI_Item_AsCharPtr() Unimplemented input file item type:9");
}

TEST(CapiRecords, DeckItemsKeepTheirTypeAndValue) {
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(inp_Item(5))), integer(5));
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(inp_Item(true))), (ItemCopy{inp_CAPI_BOOLEAN, "True"}));
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(inp_Item(2.5))), real("2.5"));
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(inp_Item("Top.Set"))), string("Top.Set"));
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(inp_Item())), none());
    EXPECT_EQ(copyOf(inp_CAPI_OwnedItem(static_cast<char const*>(nullptr))), none());
}

TEST(CapiRecords, CopiesOwnTheirStrings) {
    inp_CAPI_OwnedItem original(cow_String("abc"));
    inp_CAPI_OwnedItem copy(original);
    ASSERT_NE(copy.sval, original.sval);
    original.sval[0] = 'X';
    EXPECT_STREQ(copy.sval, "abc");

    inp_CAPI_OwnedItem assigned(3);
    assigned = copy;
    assigned = assigned;
    EXPECT_EQ(copyOf(assigned), string("abc"));
    EXPECT_NE(assigned.sval, copy.sval);

    inp_CAPI_OwnedParamKeyValue parameter(cow_String("name"), inp_Item("Steel"));
    inp_CAPI_OwnedParamKeyValue other;
    other = parameter;
    inp_CAPI_OwnedParamKeyValue third(other);
    parameter.key[0] = 'N';
    parameter.value.sval[0] = 's';
    EXPECT_STREQ(third.key, "name");
    EXPECT_STREQ(third.value.sval, "Steel");
    EXPECT_STREQ(other.key, "name");
}
