// The flat entry: parses, expands and optionally organizes a deck (the
// library's road, read leniently), then walks
// the result and hands it out through the caller's four callbacks as plain
// arrays and strings. Every block handed out is allocated just before its
// callback and freed as soon as the callback returns (or an exception passes
// by), so the caller never frees anything and never keeps a pointer of ours.

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "binding/inp_CAPI.h"
#include "binding/inp_CAPI_Item.h"
#include "deck/inp_Keyword.h"
#include "pipeline/inp_InputFile.h"
#include "support/ZELBasAssert.h"
#include "support/aio_Stream.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// -- the state that outlives a call: callbacks and trace levels ------------------------------

inp_CAPI_PopulateStrings s_populateStrings = nullptr;
inp_CAPI_PopulateParam s_populateParam = nullptr;
inp_CAPI_CreateKwdsList s_createKwdsList = nullptr;
inp_CAPI_PopulateDataArray s_populateDataArray = nullptr;

int s_traceLevel = 0;        // FNK_DBG_INPPARSER: the call and the data analysis
int s_memoryTraceLevel = 0;  // FNK_DBG_INPPARSER_MEM: every block handed out
int s_recordTraceLevel = 0;  // FNK_DBG_INPPARSERCTORS: the records' lives

// Numeric tables smaller than this in both directions go as items. Not in
// force (-1); it is kept so that a build for a caller whose small tables are
// cheaper as objects can turn it on in one place.
int s_arrayThreshold = -1;

constexpr char const* kIntArray = "inp_IsInt";
constexpr char const* kDoubleArray = "inp_IsDouble";
constexpr char const* kDoubleArrayIntColumnZero = "inp_IsDoubleCZI";
constexpr char const* kItemArray = "inp_IsItem";

// A variable that is not set leaves the level of the previous call.
void readDebugLevel(char const* variable, int& level) {
    if (char const* value = std::getenv(variable)) level = std::atoi(value);
}

void readDebugLevels() {
    readDebugLevel("FNK_DBG_INPPARSER", s_traceLevel);
    readDebugLevel("FNK_DBG_INPPARSER_MEM", s_memoryTraceLevel);
    readDebugLevel("FNK_DBG_INPPARSERCTORS", s_recordTraceLevel);
    inp_CAPI_OwnedItem::SetTraceLevel(s_recordTraceLevel);
}

char const* yesNo(bool flag) {
    return flag ? "true" : "false";
}

// -- blocks handed to the callbacks ----------------------------------------------------------

// "inp_ParserCAPI allocated 96 bytes for inp_IsInt at 0x...", "inp_ParserCAPI
// freed inp_IsInt at 0x...": one line per event, the address last.
void traceBlock(char const* event, char const* what, void const* block) {
    char line[160];
    std::snprintf(line, sizeof line, "inp_ParserCAPI %s %s at %p\n", event, what, block);
    aio_cerr().print(line);
}

// Exactly `count` elements. The blocks are not padded beyond what is used: a
// caller could not tell, and a million-line node table must cost its own
// size, not a multiple of it. A zero-size request allocates nothing and
// gives a null pointer; a failed one, reported whatever the trace level, a
// null pointer too: neither stops the run.
void* allocateBlock(size_t count, size_t elementSize, char const* what) {
    if (count == 0 || elementSize == 0) {
        if (s_memoryTraceLevel > 0) {
            aio_cerr() << "WARNING - inp_ParserCAPI zero size allocation for " << what << '\n';
        }
        return nullptr;
    }
    bool const tooLarge = count > static_cast<size_t>(PTRDIFF_MAX) / elementSize;
    size_t const bytes = tooLarge ? 0 : count * elementSize;
    void* block = tooLarge ? nullptr : mem_Malloc(bytes);
    if (!block) {
        aio_cerr() << "ERROR - inp_ParserCAPI could not allocate " << count << " times "
                   << elementSize << " bytes for " << what << '\n';
    } else if (s_memoryTraceLevel > 0) {
        char event[64];
        std::snprintf(event, sizeof event, "allocated %zu bytes for", bytes);
        traceBlock(event, what, block);
    }
    return block;
}

void freeBlock(void* block, char const* what) {
    if (!block) return;
    mem_Free(block);
    if (s_memoryTraceLevel > 0) traceBlock("freed", what, block);
}

// The three free routines, one per kind of block.

// A null-terminated array of strings.
void freeStringArray(char** strings) {
    if (!strings) return;
    for (char** s = strings; *s; ++s) mem_Free(*s);
    freeBlock(strings, "strings");
}

void freeParameterArray(inp_CAPI_paramKeyValue* params, int count) {
    if (!params) return;
    auto* records = static_cast<inp_CAPI_OwnedParamKeyValue*>(params);
    for (int i = 0; i < count; ++i) records[i].~inp_CAPI_OwnedParamKeyValue();
    freeBlock(params, "inp_CAPI_paramKeyValue");
}

// Only an item array holds anything of its own.
void freeDataArray(void* array, size_t count, char const* typeName) {
    if (!array) return;
    if (std::strcmp(typeName, kItemArray) == 0) {
        auto* items = static_cast<inp_CAPI_OwnedItem*>(array);
        for (size_t k = 0; k < count; ++k) items[k].~inp_CAPI_OwnedItem();
    }
    freeBlock(array, typeName);
}

// An array of strings ending in a null pointer. `at(i)` gives string i. An
// allocation that fails leaves the whole array empty rather than shorter
// than its count says.
class StringArray {
  public:
    template <class At>
    StringArray(int count, At at) {
        m_strings = static_cast<char**>(
            allocateBlock(static_cast<size_t>(count) + 1, sizeof(char*), "strings"));
        if (!m_strings) return;
        std::memset(m_strings, 0, (static_cast<size_t>(count) + 1) * sizeof(char*));
        for (int i = 0; i < count; ++i) {
            cow_String const& text = at(i);
            char* copy = static_cast<char*>(mem_Malloc(static_cast<size_t>(text.Length()) + 1));
            if (!copy) {
                dropAll();
                return;
            }
            std::memcpy(copy, text.CStr(), static_cast<size_t>(text.Length()) + 1);
            m_strings[i] = copy;
        }
        m_count = count;
    }
    ~StringArray() { freeStringArray(m_strings); }
    StringArray(StringArray const&) = delete;
    StringArray& operator=(StringArray const&) = delete;

    int Count() const { return m_count; }
    char** Strings() const { return m_strings; }

  private:
    void dropAll() {
        aio_cerr().print("ERROR - inp_ParserCAPI could not allocate a string\n");
        freeStringArray(m_strings);
        m_strings = nullptr;
    }

    char** m_strings = nullptr;
    int m_count = 0;
};

// The parameter records of one keyword; none allocated for no parameters.
class ParameterArray {
  public:
    explicit ParameterArray(cow_Map<cow_String, inp_Item> const& parameters) {
        int const count = parameters.Size();
        if (count == 0) return;
        void* block = allocateBlock(static_cast<size_t>(count), sizeof(inp_CAPI_paramKeyValue),
                                    "inp_CAPI_paramKeyValue");
        m_records = static_cast<inp_CAPI_OwnedParamKeyValue*>(block);
        if (!m_records) return;
        for (cow_ConstMapIterator<cow_String, inp_Item> it(parameters); it.NotDone(); it.Next()) {
            new (m_records + m_count)
                inp_CAPI_OwnedParamKeyValue(it.CurrentKey(), it.CurrentValue());
            ++m_count;
        }
    }
    ~ParameterArray() { freeParameterArray(m_records, m_count); }
    ParameterArray(ParameterArray const&) = delete;
    ParameterArray& operator=(ParameterArray const&) = delete;

    int Count() const { return m_count; }
    inp_CAPI_paramKeyValue* Records() const { return m_records; }

  private:
    inp_CAPI_OwnedParamKeyValue* m_records = nullptr;
    int m_count = 0;
};

// The data of one keyword as `count` elements of `Element`; `filled` counts
// the elements written so far, which for items are objects to destroy.
template <class Element>
class CallbackArray {
  public:
    CallbackArray(size_t count, char const* typeName)
        : m_elements(static_cast<Element*>(allocateBlock(count, sizeof(Element), typeName))),
          m_typeName(typeName) {}
    ~CallbackArray() { freeDataArray(m_elements, m_filled, m_typeName); }
    CallbackArray(CallbackArray const&) = delete;
    CallbackArray& operator=(CallbackArray const&) = delete;

    Element* Elements() const { return m_elements; }
    template <class... Args>
    void Add(Args&&... args) {
        new (m_elements + m_filled) Element(static_cast<Args&&>(args)...);
        ++m_filled;
    }

  private:
    Element* m_elements;
    size_t m_filled = 0;
    char const* m_typeName;
};

// -- the data analysis: which array a keyword's data can travel as ----------------------------

struct DataShape {
    int rows = 0;
    int cols = 0;  // the longest row
    bool sameLength = true;
};

DataShape shapeOf(inp_DataArray const& data) {
    DataShape shape;
    shape.rows = data.Rows();
    int const firstCols = shape.rows > 0 ? data.Cols(0) : 0;
    for (int i = 0; i < shape.rows; ++i) {
        int const cols = data.Cols(i);
        if (cols != firstCols) shape.sameLength = false;
        if (cols > shape.cols) shape.cols = cols;
    }
    return shape;
}

bool isNumeric(inp_Types::typeEnm type) {
    return type == inp_Types::inp_INTEGER || type == inp_Types::inp_REAL;
}

// The walk of the type analysis over a table of rows of equal length.
class ArrayPlan {
  public:
    ArrayPlan(inp_DataArray const& data, DataShape const& shape) {
        m_okForArray = shape.rows > 0 && shape.sameLength;
        if (s_arrayThreshold > 0 && shape.rows < s_arrayThreshold && shape.cols < s_arrayThreshold)
            m_okForArray = false;
        for (int i = 0; m_okForArray && i < shape.rows; ++i)
            for (int j = 0; m_okForArray && j < shape.cols; ++j)
                m_okForArray = accepts(i, j, data.Type(i, j));
    }

    // "inp_IsItem" unless the table is all numbers.
    char const* TypeName() const {
        if (m_okForArray && m_type1 == inp_Types::inp_INTEGER) return kIntArray;
        if (m_okForArray && m_type1 == inp_Types::inp_REAL)
            return m_colZeroIsInt ? kDoubleArrayIntColumnZero : kDoubleArray;
        return kItemArray;
    }
    void Trace(char const* path, DataShape const& shape) const {
        char line[512];
        std::snprintf(
            line, sizeof line,
            "inp_ParserCAPI %s: rows=%d cols=%d okForArray=%s type1=%s colZeroIsInt=%s -> %s\n",
            path, shape.rows, shape.cols, yesNo(m_okForArray), inp_CAPI_TypeName(m_type1),
            yesNo(m_colZeroIsInt), TypeName());
        aio_cerr().print(line);
    }

  private:
    bool accepts(int i, int j, inp_Types::typeEnm type) {
        if (i == 0 && j == 0) return acceptsFirst(type);
        if (j == 0) return acceptsColumnZero(type);
        return acceptsOther(type);
    }
    bool acceptsFirst(inp_Types::typeEnm type) {
        m_type1 = type;
        m_colZeroIsInt = type == inp_Types::inp_INTEGER;
        return isNumeric(type);
    }
    // Any number, and only a number, whichever the first item was: the
    // arrays carry numbers alone. A real label in an integer table makes it
    // a table of doubles, as a real anywhere else does, so it isn't cut to
    // an integer.
    bool acceptsColumnZero(inp_Types::typeEnm type) {
        if (!isNumeric(type)) return false;
        if (type == inp_Types::inp_REAL) m_type1 = inp_Types::inp_REAL;
        return true;
    }
    bool acceptsOther(inp_Types::typeEnm type) {
        if (type == m_type1) return true;
        if (m_type1 == inp_Types::inp_INTEGER && type == inp_Types::inp_REAL) {
            m_type1 = inp_Types::inp_REAL;  // bumped to REAL
            return true;
        }
        return m_colZeroIsInt && m_type1 == inp_Types::inp_REAL && type == inp_Types::inp_INTEGER;
    }

    bool m_okForArray = false;
    inp_Types::typeEnm m_type1 = inp_Types::inp_NONE;
    bool m_colZeroIsInt = false;
};

// -- sending ---------------------------------------------------------------------------------

void sendIntArray(std::string const& path, inp_DataArray const& data, DataShape const& shape) {
    CallbackArray<int> array(static_cast<size_t>(shape.rows) * static_cast<size_t>(shape.cols),
                             kIntArray);
    if (!array.Elements()) return s_populateDataArray(path.c_str(), kIntArray, 0, 0, nullptr);
    for (int i = 0; i < shape.rows; ++i)
        for (int j = 0; j < shape.cols; ++j) array.Add(data.AsInt(i, j));
    s_populateDataArray(path.c_str(), kIntArray, shape.rows, shape.cols, array.Elements());
}

// An integer goes through AsInt and is widened here: a compact node table
// has no double form of its labels.
double numberAsDouble(inp_DataArray const& data, int i, int j) {
    if (data.Type(i, j) == inp_Types::inp_INTEGER) return data.AsInt(i, j);
    return data.AsDouble(i, j);
}

void sendDoubleArray(std::string const& path, char const* typeName, inp_DataArray const& data,
                     DataShape const& shape) {
    CallbackArray<double> array(static_cast<size_t>(shape.rows) * static_cast<size_t>(shape.cols),
                                typeName);
    if (!array.Elements()) return s_populateDataArray(path.c_str(), typeName, 0, 0, nullptr);
    for (int i = 0; i < shape.rows; ++i)
        for (int j = 0; j < shape.cols; ++j) array.Add(numberAsDouble(data, i, j));
    s_populateDataArray(path.c_str(), typeName, shape.rows, shape.cols, array.Elements());
}

void addItem(CallbackArray<inp_CAPI_OwnedItem>& array, inp_DataArray const& data, int i, int j) {
    switch (data.Type(i, j)) {
        case inp_Types::inp_INTEGER:
            return array.Add(data.AsInt(i, j));
        case inp_Types::inp_REAL:
            return array.Add(data.AsDouble(i, j));
        case inp_Types::inp_STRING:
            return array.Add(data.AsStringVerbatim(i, j));
        case inp_Types::inp_BOOLEAN:
            return array.Add(data.AsString(i, j));
        case inp_Types::inp_NONE:
            return array.Add();
    }
    ZELBAS_ASSERT_TEXT(false, "\"Unknown data type\" == 0");
}

// Places beyond the end of a short row are none items.
void sendItemArray(std::string const& path, inp_DataArray const& data, DataShape const& shape) {
    CallbackArray<inp_CAPI_OwnedItem> array(
        static_cast<size_t>(shape.rows) * static_cast<size_t>(shape.cols), kItemArray);
    if (!array.Elements()) return s_populateDataArray(path.c_str(), kItemArray, 0, 0, nullptr);
    for (int i = 0; i < shape.rows; ++i) {
        int const cols = data.Cols(i);
        for (int j = 0; j < cols; ++j) addItem(array, data, i, j);
        for (int j = cols; j < shape.cols; ++j) array.Add();
    }
    s_populateDataArray(path.c_str(), kItemArray, shape.rows, shape.cols, array.Elements());
}

// The data of an encrypted keyword never leaves the parser.
void sendData(std::string const& path, inp_Keyword const& keyword) {
    if (keyword.IsEncrypted() || !s_populateDataArray) return;
    inp_DataArray const& data = keyword.Data();
    DataShape const shape = shapeOf(data);
    ArrayPlan const plan(data, shape);
    if (s_traceLevel > 1) plan.Trace(path.c_str(), shape);
    char const* typeName = plan.TypeName();
    if (typeName == kIntArray) return sendIntArray(path, data, shape);
    if (typeName == kItemArray) return sendItemArray(path, data, shape);
    sendDoubleArray(path, typeName, data, shape);
}

void sendStrings(std::string const& path, char const* objType,
                 cow_List<cow_String> const& strings) {
    if (!s_populateStrings) return;
    StringArray array(strings.Length(),
                      [&](int i) -> cow_String const& { return strings.ConstGet(i); });
    s_populateStrings(path.c_str(), objType, array.Count(), array.Strings());
}

void sendName(std::string const& path, cow_String const& name) {
    if (!s_populateStrings) return;
    StringArray array(1, [&](int) -> cow_String const& { return name; });
    s_populateStrings(path.c_str(), "str", array.Count(), array.Strings());
}

void sendParameters(std::string const& path, inp_Keyword const& keyword) {
    if (!s_populateParam) return;
    ParameterArray records(keyword.Parameters());
    s_populateParam(path.c_str(), records.Count(), records.Records());
}

void createList(std::string const& path, int count) {
    if (s_createKwdsList) s_createKwdsList(path.c_str(), count);
}

void sendKeywordList(std::string& path, cow_List<inp_Keyword> const& keywords);

// `path` names the keyword (".keywords[3]"); the members are sent under it.
// The path is one buffer that grows and shrinks with the walk.
void sendKeyword(std::string& path, inp_Keyword const& keyword) {
    size_t const base = path.size();
    sendName(path.append(".name"), keyword.Name());
    path.resize(base);
    sendParameters(path.append(".parameter"), keyword);
    path.resize(base);
    sendData(path.append(".data"), keyword);
    path.resize(base);
    sendKeywordList(path.append(".suboptions"), keyword.Suboptions());
    path.resize(base);
    sendStrings(path.append(".comments"), "tuple", keyword.Comments());
    path.resize(base);
}

// `path` names the list (".keywords", "....suboptions").
void sendKeywordList(std::string& path, cow_List<inp_Keyword> const& keywords) {
    createList(path, keywords.Length());
    size_t const base = path.size();
    int i = 0;
    for (inp_Keyword const& keyword : keywords) {
        path.append("[").append(std::to_string(i++)).append("]");
        sendKeyword(path, keyword);
        path.resize(base);
    }
}

// -- the stages ------------------------------------------------------------------------------

// What the parse has gathered of one deck, as it goes out.
struct inp_CAPI_InputFile {
    cow_String fileName;
    cow_String directoryName;
    cow_List<cow_String> includes;
    cow_List<cow_String> missingIncludes;
    cow_List<inp_Keyword> keywords;
};

char const* orNull(char const* text) {
    return text ? text : "(null)";
}

void traceCall(char const* fileName, char const* directoryName, bool organize, int verbose,
               bool bulk, bool printKwds) {
    std::string const line = std::string("inp_ParserCAPI inp_CAPI_Parse(fileName=") +
                             orNull(fileName) + ", directoryName=" + orNull(directoryName) +
                             ", organize=" + yesNo(organize) +
                             ", verbose=" + std::to_string(verbose) + ", bulk=" + yesNo(bulk) +
                             ", printKwds=" + yesNo(printKwds) + ")\n";
    aio_cerr().print(line);
    char sizes[128];
    std::snprintf(sizes, sizeof sizes,
                  "inp_ParserCAPI sizeof(inp_CAPI_Item)=%zu sizeof(inp_CAPI_paramKeyValue)=%zu\n",
                  sizeof(inp_CAPI_Item), sizeof(inp_CAPI_paramKeyValue));
    aio_cerr().print(sizes);
}

// Prints, one per line, the fatal diagnostics that a stage added to the sink
// from position `first` on. The fatal errors of the parse are always shown,
// those of the later stages only when `verbose`; errors and warnings never.
class FatalErrorPrinter {
  public:
    FatalErrorPrinter(wip_WIP const& sink, int verbose)
        : m_sink(sink), m_verbose(verbose), m_first(sink.Diagnostics().size()) {}

    void AfterStage(inp_Stage stage) {
        std::vector<wip_Diagnostic> const& diagnostics = m_sink.Diagnostics();
        bool const shown = stage == inp_Stage::Parse || m_verbose >= 1;
        for (size_t i = m_first; shown && i < diagnostics.size(); ++i)
            if (diagnostics[i].severity == wip_Severity::Fatal)
                aio_cerr() << diagnostics[i].text << '\n';
        m_first = diagnostics.size();
    }

  private:
    wip_WIP const& m_sink;
    int m_verbose;
    size_t m_first;
};

// The library's road with a lenient parse and data left as read, through
// expansion and, if asked, organization, whatever the deck's errors. The
// data files that expansion read join the include lists.
void readDeck(inp_CAPI_InputFile& file, bool organize, int verbose, bool bulk) {
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    size_t const sinkBefore = sink.Diagnostics().size();
    FatalErrorPrinter printer(sink, verbose);
    inp_InputFile deck(inp_InputFileOptions::ForScripting(file.directoryName, bulk));
    try {
        deck.Run(file.fileName, organize ? inp_Stage::Organize : inp_Stage::Expand,
                 inp_InputFile::RunRule::RunThrough,
                 [&](inp_Stage stage) { printer.AfterStage(stage); });
    } catch (...) {
        sink.ForgetFrom(sinkBefore);
        throw;
    }
    // What the caller needs went to standard error: the sink is left as it was.
    sink.ForgetFrom(sinkBefore);
    file.includes = deck.GetIncludedFiles();
    file.missingIncludes = deck.GetMissingIncludeFiles();
    file.missingIncludes.Concatenate(deck.GetMissingDataFiles());
    for (cow_String const& dataFile : deck.GetDataFiles())
        file.includes.AppendUnlessMember(dataFile);
    file.keywords = deck.Keywords();
}

void send(inp_CAPI_InputFile const& file) {
    sendStrings(".includes", "tuple", file.includes);
    sendStrings(".missingIncludes", "tuple", file.missingIncludes);
    std::string path(".keywords");
    path.reserve(128);
    sendKeywordList(path, file.keywords);
}

void printKeywords(cow_List<inp_Keyword> const& keywords) {
    int i = 0;
    for (inp_Keyword const& keyword : keywords) {
        char head[96];
        std::snprintf(head, sizeof head, "inp_ParserCAPI inp_CAPI_Parse() keyword[%d]:\n", i++);
        aio_cerr() << head << keyword.Print(true) << '\n';
    }
}

}  // namespace

extern "C" int inp_CAPI_Parse(char const* fileName, char const* directoryName,
                              bool organizeKeywords, int verbose, bool bulk, bool printKwds,
                              inp_CAPI_PopulateStrings populateStrings,
                              inp_CAPI_PopulateParam populateParam,
                              inp_CAPI_CreateKwdsList createKwdsList,
                              inp_CAPI_PopulateDataArray populateDataArray) {
    readDebugLevels();
    if (s_traceLevel != 0)
        traceCall(fileName, directoryName, organizeKeywords, verbose, bulk, printKwds);
    s_populateStrings = populateStrings;
    s_populateParam = populateParam;
    s_createKwdsList = createKwdsList;
    s_populateDataArray = populateDataArray;

    inp_CAPI_InputFile file;
    file.fileName = fileName ? fileName : "";
    file.directoryName = directoryName ? directoryName : "";
    readDeck(file, organizeKeywords, verbose, bulk);
    send(file);
    if (printKwds) printKeywords(file.keywords);
    return 0;
}
