#include "expansion/inp_KeywordExpansionVisitor.h"

#include <cstring>
#include <memory>

#include "deck/inp_DeckFileLookup.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "mesh/inp_Utils.h"
#include "support/ZELBasUtlFilePath.h"
#include "support/aio_Stream.h"

namespace {

constexpr char const* kNoWords[] = {nullptr};

// getline's buffer for data files: at most 255 characters a line.
constexpr int kDataFileLineBuffer = 256;

bool isType(inp_Item const& item, inp_Types::typeEnm type) {
    return item.Type() == type;
}

// The parser stores a parameter written without `=value` as a true boolean:
// such a parameter has no text of its own.
bool writtenWithoutValue(inp_Item const& item) {
    return isType(item, inp_Types::inp_BOOLEAN);
}

// File names, and the names of design parameters, are case-sensitive; the
// step name is kept as the user wrote it because the output names the step.
bool keepsCase(inp_Keyword const& keyword, char const* word) {
    if (!std::strcmp(word, "input") || !std::strcmp(word, "file") ||
        !std::strcmp(word, "datafile") || !std::strcmp(word, "library"))
        return true;
    if (!std::strcmp(word, "parameter"))
        return keyword.Is(inp_kw_ParameterShapeVariation) ||
               keyword.Is(inp_kw_DesignShapeVariation);
    return !std::strcmp(word, "name") && keyword.Is(inp_kw_Step);
}

// A string value loses its blanks outside quotes and is, as a rule,
// upper-cased; the item is typed anew from the result. Other types stay, and
// so does a string the rule leaves as it is.
inp_Item normalisedValue(inp_Keyword const& keyword, char const* word, inp_Item const& value,
                         bool& changed) {
    changed = false;
    cow_String const* text = value.IfString();
    if (!text) return value;
    cow_String const folded = keepsCase(keyword, word)
                                  ? inp_Utils::TakeOutSpacesOutsideQuoted(*text)
                                  : inp_Utils::TakeOutSpacesAndUpperOutsideQuoted(*text);
    if (folded.SharesWith(*text) || folded == *text) return value;
    changed = true;
    return inp_Item(folded);
}

bool skippedByGuard(inp_EnumGuard guard, inp_Item const& item) {
    switch (guard) {
        case inp_EnumGuard::SkipBoolean:
            return isType(item, inp_Types::inp_BOOLEAN);
        case inp_EnumGuard::SkipInteger:
            return isType(item, inp_Types::inp_INTEGER);
        case inp_EnumGuard::SkipNumber:
            return isType(item, inp_Types::inp_INTEGER) || isType(item, inp_Types::inp_REAL);
        case inp_EnumGuard::None:
            break;
    }
    return false;
}

cow_String upperName(inp_Keyword const& keyword) {
    return cow_String(keyword.Name()).ToUpper();
}

bool isEmptyDataLine(inp_DataArray const& data, int row) {
    int const columns = data.Cols(row);
    return columns == 0 || (columns == 1 && data.IsNone(row, 0));
}

// The items of a line below `columns`, joined by commas, as the data array
// reads them (blanks out, upper case outside quotes).
cow_String lineText(inp_DataArray const& data, int row, int columns) {
    cow_String line;
    for (int col = 0; col < columns; ++col) {
        if (col > 0) line.append(',');
        line.append(data.AsString(row, col));
    }
    return line;
}

// One trailing comma (an empty last item) does not count as an item.
bool lineExceeds(inp_DataArray const& data, int row, int items) {
    int const columns = data.Cols(row);
    if (columns <= items) return false;
    return !(columns == items + 1 && data.IsNone(row, items));
}

bool anyLineExceeds(inp_DataArray const& data, int items) {
    int const rows = data.Rows();
    for (int row = 0; row < rows; ++row)
        if (lineExceeds(data, row, items)) return true;
    return false;
}

// A fresh raw array of the first `rows` lines of `data`, each cut to at most
// `items` items and made anew from the items' text.
inp_DataArray rebuiltFromText(inp_DataArray const& data, int rows, int items) {
    auto impl = std::make_unique<inp_RawDataArrayImpl>();
    for (int row = 0; row < rows; ++row) {
        int const columns = data.Cols(row) < items ? data.Cols(row) : items;
        impl->Append(lineText(data, row, columns).CStr());
    }
    return inp_DataArray(impl.release());
}

constexpr int kAllItems = 1 << 30;

}  // namespace

inp_KeywordExpansionVisitor::inp_KeywordExpansionVisitor() = default;

inp_KeywordExpansionVisitor::~inp_KeywordExpansionVisitor() = default;

// -- walking --------------------------------------------------------------------------

// When the handling fails, the suboptions are not walked: they go with the
// blanked keyword.
void inp_KeywordExpansionVisitor::Visit(inp_Keyword& keyword) {
    try {
        if (Route const* route = RouteOf(keyword.Keyword())) {
            (this->*route->handler)(keyword, route->row);
            VisitSuboptions(keyword);
        } else {
            inp_Visitor::Visit(keyword);
        }
    } catch (inp_PrimException const& failure) {
        error(keyword, failure.UserReport());
        keyword = inp_Keyword();
    }
}

void inp_KeywordExpansionVisitor::DefaultAction(inp_Keyword& keyword) {
    ExpandParameters(keyword, kNoWords);
}

// -- the routes that are not a keyword's own ----------------------------------------------

void inp_KeywordExpansionVisitor::ExpandByRow(inp_Keyword& keyword, inp_SchemaRow const* row) {
    if (!row) {
        ExpandParameters(keyword, kNoWords);
        return;
    }
    expandParameterNames(keyword, row->parameters);
    expandRowEnumerations(keyword, row);
}

void inp_KeywordExpansionVisitor::expandRowEnumerations(inp_Keyword& keyword,
                                                        inp_SchemaRow const* row) {
    if (!row) return;
    for (inp_SchemaEnum const& enumeration : row->enumerations) {
        cow_String const* key = matchedKey(enumeration.parameter);
        if (!key) continue;
        inp_Item const* item = keyword.Parameters().Find(*key);
        if (!item || skippedByGuard(enumeration.guard, *item)) continue;
        ExpandEnum(keyword, enumeration.words, *key);
    }
}

void inp_KeywordExpansionVisitor::ExpandNothing(inp_Keyword&, inp_SchemaRow const*) {}

void inp_KeywordExpansionVisitor::ExpandAsDefault(inp_Keyword& keyword, inp_SchemaRow const*) {
    DefaultAction(keyword);
}

// -- parameter names --------------------------------------------------------------------------

void inp_KeywordExpansionVisitor::ExpandParameters(inp_Keyword& keyword, char const* const* table) {
    expandParameterNames(keyword, table);
}

// Most keywords are written with their parameters in full and in the form
// expansion gives them: their map is kept as it is. A new map is made from
// the first parameter that changes, with the ones before it as they were.
// A map of more than two parameters is always made anew: the order in which
// the keyword is written back is the walk of the map's tree, and a tree
// built in the order of that walk is the one every later reading of the
// written keyword gives again. (With one or two parameters the two trees
// are the same.)
void inp_KeywordExpansionVisitor::expandParameterNames(inp_Keyword& keyword,
                                                       char const* const* table) {
    m_matched.clear();
    if (keyword.Parameters().IsEmpty()) return;
    if (!table) table = kNoWords;
    cow_Map<cow_String, inp_Item> const& written = keyword.Parameters();
    cow_Map<cow_String, inp_Item> expanded;
    int taken = 0;  // parameters walked so far
    bool rebuilt = written.Size() > 2;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(written); it.NotDone(); it.Next(), ++taken) {
        cow_String const& name = it.CurrentKey();
        char const* word = findParameterWord(keyword, name, table);
        if (!word) {
            error(keyword, atr("Unknown parameter: %s. The parameter may be misspelled, obsolete, "
                               "or invalid.",
                               name));
            if (rebuilt) expanded.Insert(name, it.CurrentValue());
            continue;
        }
        // A name written in full keeps its string: no copy of the word.
        cow_String const key = name == word ? name : cow_String(word);
        bool valueChanged = false;
        inp_Item const value = normalisedValue(keyword, word, it.CurrentValue(), valueChanged);
        if (!rebuilt && (valueChanged || !(key == name))) {
            expanded = firstParameters(written, taken);
            rebuilt = true;
        }
        // Until the map is rebuilt every key is a key of the written map, and
        // those are distinct.
        if (!rebuilt || !expanded.IsMember(key)) {
            m_matched.push_back({word, key});
        } else if (writtenWithoutValue(value)) {
            warning(
                keyword,
                atr("Repeated parameter: %s.  New definition overrides previous setting.", name));
        } else {
            warning(keyword, atr("Repeated parameter: %s.  New definition of \"%s\" overrides "
                                 "previous setting.",
                                 key, value.AsString()));
        }
        if (rebuilt) expanded.Insert(key, value);
    }
    if (rebuilt) keyword.SetParameters(expanded);
}

// The first `count` entries of `parameters` in the order of its walk.
cow_Map<cow_String, inp_Item> inp_KeywordExpansionVisitor::firstParameters(
    cow_Map<cow_String, inp_Item> const& parameters, int count) {
    cow_Map<cow_String, inp_Item> first;
    cow_ConstMapIterator<cow_String, inp_Item> it(parameters);
    for (int i = 0; i < count && it.NotDone(); ++i, it.Next())
        first.Insert(it.CurrentKey(), it.CurrentValue());
    return first;
}

// The word of the table the name stands for: the first word that the name
// abbreviates ends the search at once, while a word that is a proper start
// of the name is only the best so far, as a later word may match more of it.
// Two equally good words can only be one word standing twice in a table.
char const* inp_KeywordExpansionVisitor::findParameterWord(inp_Keyword const& keyword,
                                                           cow_String const& name,
                                                           char const* const* table) {
    size_t const length = static_cast<size_t>(name.Length());
    char const* best = nullptr;
    size_t bestLength = 0;
    for (; *table; ++table) {
        char const* word = *table;
        // Most words differ at once: spare them the length.
        if (length > 0 && word[0] != 0 && word[0] != name[0]) continue;
        size_t const wordLength = std::strlen(word);
        size_t const compared = length < wordLength ? length : wordLength;
        if (std::memcmp(name.CStr(), word, compared) != 0) continue;
        if (best && compared == bestLength) {
            error(keyword, atr("Ambiguous parameter: %s", name));
            continue;
        }
        if (!best || compared > bestLength) {
            best = word;
            bestLength = compared;
            if (compared == length) break;
        }
    }
    return best;
}

cow_String const* inp_KeywordExpansionVisitor::matchedKey(char const* word) const {
    for (MatchedParameter const& matched : m_matched)
        if (matched.word == word || !std::strcmp(matched.word, word)) return &matched.key;
    return nullptr;
}

// -- enumerated values --------------------------------------------------------------------

bool inp_KeywordExpansionVisitor::ExpandEnum(inp_Keyword& keyword, char const* const* table,
                                             cow_String const& name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    if (!item) return false;
    if (writtenWithoutValue(*item)) {
        keyword.SetParameter(name, inp_Item());
        return true;
    }
    cow_String const text = item->AsString();
    cow_String word;
    int const matches = inp_ExpandEnum(word, table, text);
    if (matches == 1) {
        keyword.SetParameter(name, inp_Item(word));
        return true;
    }
    if (matches == 0) {
        error(keyword, atr("Illegal value \"%1$s\" for parameter \"%2$s\".  The value may be "
                           "misspelled, obsolete, or invalid.",
                           text, name));
    } else {
        error(keyword, atr("Ambiguous value \"%1$s\" for parameter \"%2$s\".", text, name));
    }
    return false;
}

int inp_KeywordExpansionVisitor::inp_ExpandEnum(cow_String& result, char const* const* table,
                                                cow_String value) {
    value.ToUpper().Trim(" \t");
    size_t const length = static_cast<size_t>(value.Length());
    if (length == 0) return 0;
    int candidates = 0;
    char const* last = nullptr;
    for (; *table; ++table) {
        char const* word = *table;
        // A word shorter than the value differs at its terminating zero.
        if (std::strncmp(word, value.CStr(), length) != 0) continue;
        if (word[length] == 0) {
            result = word;
            return 1;
        }
        ++candidates;
        last = word;
    }
    if (last) result = last;
    return candidates;
}

bool inp_KeywordExpansionVisitor::ExpandEnumData(inp_Keyword& keyword, int row, int col,
                                                 char const* const* table) {
    inp_DataArray const& data = keyword.Data();
    cow_String const text = data.AsString(row, col);
    cow_String word;
    int const matches = inp_ExpandEnum(word, table, text);
    if (matches == 1) {
        data.Set(row, col, word);
        return true;
    }
    if (matches == 0) {
        error(keyword, atr("Illegal value \"%1$s\" for data item under keyword \"%2$s\".", text,
                           upperName(keyword)));
    } else {
        error(keyword, atr("Ambiguous value \"%1$s\" for data item under keyword \"%2$s\".", text,
                           upperName(keyword)));
    }
    return false;
}

// -- data files ------------------------------------------------------------------------------

void inp_KeywordExpansionVisitor::ProcessInputParameter(inp_Keyword& keyword) {
    consumeFileParameter(keyword, "input");
}

void inp_KeywordExpansionVisitor::consumeFileParameter(inp_Keyword& keyword,
                                                       cow_String const& name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    if (!item) return;
    cow_String const path = item->AsString();
    ReadInputParameter(path, keyword);
    keyword.RemoveParameter(name);
}

void inp_KeywordExpansionVisitor::ReadInputParameter(cow_String const& path, inp_Keyword& keyword) {
    if (path.IsEmpty()) {
        error(keyword, atr("Input file is missing"));
        return;
    }
    cow_String const found = inp_LocateDeckFile(path, m_includePath);
    if (found.IsEmpty()) {
        error(keyword, atr("Input file \"%s\" does not exist.", path));
        inp_ListMissingDeckFile(m_missingIncludedFiles, path);
        return;
    }
    ZELBasUtlFilePath const file(found);
    if (!file.IsReadable()) {
        error(keyword, atr("Input file \"%s\" is not readable.", path));
        return;
    }
    m_includedFiles.Append(path);
    readDataLines(path, file.AbsolutePathName(), keyword);
}

// Lines go to the keyword's data as they are read, after any it had. A
// `**` line is a comment; any other line starting with `*` and one more
// character is a keyword, which a data file must not hold: the read stops
// there and keeps what it read. A line longer than the buffer keeps its
// first 255 characters and ends the read. Trailing empty lines are dropped,
// and then the whole array is made anew from its items' text.
void inp_KeywordExpansionVisitor::readDataLines(cow_String const& path,
                                                cow_String const& absolutePath,
                                                inp_Keyword& keyword) {
    aio_ifstream in;
    if (!in.open(absolutePath)) {
        error(keyword, atr("Input file \"%s\" is not readable.", path));
        return;
    }
    inp_DataArray const& data = keyword.Data();
    char line[kDataFileLineBuffer];
    for (;;) {
        in.getline(line, kDataFileLineBuffer);
        if (in.gcount() == 0) break;  // end of file, on an empty line
        if (line[0] == '*' && line[1] != 0) {
            if (line[1] == '*') continue;
            error(keyword, atr("Data file \"%1$s\" contains a keyword definition. It must only "
                               "contain the data required under keyword \"%2$s\". You may use "
                               "the *INCLUDE keyword instead.",
                               path, upperName(keyword)));
            break;
        }
        data.Append(line);
        if (in.fail()) break;
    }
    in.close();

    int lastLine = data.Rows();
    while (lastLine > 0 && isEmptyDataLine(data, lastLine - 1)) --lastLine;
    if (lastLine < data.Rows()) keyword.SetData(rebuiltFromText(data, lastLine, kAllItems));
}

// -- data line cuts -----------------------------------------------------------------------

void inp_KeywordExpansionVisitor::TruncateEachDataLineBeyondItemN(inp_Keyword& keyword, int items) {
    inp_DataArray const& data = keyword.Data();
    if (data.Rows() == 0 || !anyLineExceeds(data, items)) return;
    keyword.SetData(rebuiltFromText(data, data.Rows(), items));
    warning(keyword, atr("One or more data lines contain more than %d items (counting those "
                         "after trailing commas).  The extra items are deleted.",
                         items));
}

// -- required parameters and value checks ---------------------------------------------------

bool inp_KeywordExpansionVisitor::checkRequiredParameter(inp_Keyword& keyword, cow_String name) {
    if (keyword.HasParameter(name)) return true;
    error(keyword, atr("Parameter %1$s is a required parameter.", name.ToUpper()));
    return false;
}

bool inp_KeywordExpansionVisitor::checkRequiredParameterValue(inp_Keyword& keyword,
                                                              cow_String name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    if (!item || !(isType(*item, inp_Types::inp_BOOLEAN) || isType(*item, inp_Types::inp_NONE)))
        return true;
    error(keyword, atr("Parameter %1$s requires a value.", name.ToUpper()));
    return false;
}

bool inp_KeywordExpansionVisitor::CheckRequiredParameters(inp_Keyword& keyword,
                                                          char const* const* table,
                                                          bool const* required) {
    bool passed = true;
    for (int i = 0; table[i]; ++i)
        if (required[i] && !checkRequiredParameter(keyword, table[i])) passed = false;
    return passed;
}

bool inp_KeywordExpansionVisitor::checkRequiredDataline(inp_Keyword& keyword) {
    if (keyword.Data().Rows() >= 1) return true;
    error(keyword, atr("Required values need to be specified on the dataline."));
    return false;
}

bool inp_KeywordExpansionVisitor::checkValue(inp_Keyword& keyword, char const* name,
                                             bool (*accepts)(inp_Item const&), char const* format) {
    inp_Item const* item = keyword.Parameters().Find(name);
    if (!item || accepts(*item)) return true;
    error(keyword, atr(format, cow_String(name).ToUpper(), item->AsString()));
    return false;
}

bool inp_KeywordExpansionVisitor::CheckInteger(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name, [](inp_Item const& item) { return isType(item, inp_Types::inp_INTEGER); },
        "Value for parameter %s cannot be converted to an integer: %s");
}

bool inp_KeywordExpansionVisitor::CheckDouble(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name,
        [](inp_Item const& item) {
            return isType(item, inp_Types::inp_REAL) || isType(item, inp_Types::inp_INTEGER);
        },
        "Value for parameter %s cannot be converted to a float: %s");
}

bool inp_KeywordExpansionVisitor::CheckLabel(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name, [](inp_Item const& item) { return isType(item, inp_Types::inp_STRING); },
        "Value for parameter %s cannot be converted to a label: %s");
}

bool inp_KeywordExpansionVisitor::CheckBoolean(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name, [](inp_Item const& item) { return isType(item, inp_Types::inp_BOOLEAN); },
        "Value for parameter %s cannot be converted to a boolean: %s");
}

bool inp_KeywordExpansionVisitor::CheckNone(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name,
        [](inp_Item const& item) {
            return isType(item, inp_Types::inp_NONE) ||
                   (isType(item, inp_Types::inp_BOOLEAN) && item.AsString() == "TRUE");
        },
        "Value for parameter %s cannot be converted to a boolean: %s");
}

bool inp_KeywordExpansionVisitor::CheckIntegerOrLabel(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name,
        [](inp_Item const& item) {
            return isType(item, inp_Types::inp_INTEGER) || isType(item, inp_Types::inp_STRING);
        },
        "Value for parameter %s cannot be converted to an integer or label: %s");
}

bool inp_KeywordExpansionVisitor::CheckDoubleOrLabel(inp_Keyword& keyword, char const* name) {
    return checkValue(
        keyword, name,
        [](inp_Item const& item) {
            return isType(item, inp_Types::inp_REAL) || isType(item, inp_Types::inp_STRING);
        },
        "Value for parameter %s cannot be converted to a float or label: %s");
}

bool inp_KeywordExpansionVisitor::CheckEnumerated(inp_Keyword& keyword, char const* name,
                                                  char const* const* table) {
    cow_String const parameter(name);
    if (!keyword.HasParameter(parameter)) return true;
    return ExpandEnum(keyword, table, parameter);
}

bool inp_KeywordExpansionVisitor::CheckIntegerOrEnumerated(inp_Keyword& keyword, char const* name,
                                                           char const* const* table) {
    cow_String const parameter(name);
    inp_Item const* item = keyword.Parameters().Find(parameter);
    if (!item || isType(*item, inp_Types::inp_INTEGER)) return true;
    if (isType(*item, inp_Types::inp_STRING)) return ExpandEnum(keyword, table, parameter);
    error(keyword, atr("Value for parameter %s cannot be converted to an integer or an "
                       "enumerated value: %s",
                       cow_String(parameter).ToUpper(), item->AsString()));
    return false;
}

// -- the assembly-model family --------------------------------------------------------------

void inp_KeywordExpansionVisitor::AddAssemblyModelError(inp_Keyword const& keyword,
                                                        atr_String const& text) {
    atr_String message = inp_Utils::MessageInKeyword(keyword, text);
    if (m_featureEnhanced) {
        AddError(message);
    } else {
        m_deferredAssemblyErrors.Append(std::move(message));
    }
}

void inp_KeywordExpansionVisitor::EnterAssemblyModel() {
    m_featureEnhanced = true;
    if (m_deferredAssemblyErrors.IsEmpty()) return;
    for (atr_String const& message : m_deferredAssemblyErrors) AddError(message);
    m_deferredAssemblyErrors.Clear();
}

// -- diagnostics ------------------------------------------------------------------------------

void inp_KeywordExpansionVisitor::error(inp_Keyword const& keyword, atr_String const& text) {
    AddError(inp_Utils::MessageInKeyword(keyword, text));
}

void inp_KeywordExpansionVisitor::errorAtFront(inp_Keyword const& keyword, atr_String const& text) {
    m_errors.Prepend(inp_Utils::MessageInKeyword(keyword, text));
}

void inp_KeywordExpansionVisitor::fatalError(inp_Keyword const& keyword, atr_String const& text) {
    AddFatalError(inp_Utils::MessageInKeyword(keyword, text));
}

void inp_KeywordExpansionVisitor::warning(inp_Keyword const& keyword, atr_String const& text) {
    AddWarning(inp_Utils::MessageInKeyword(keyword, text));
}

bool inp_KeywordExpansionVisitor::hasStringParameter(inp_Keyword const& keyword,
                                                     cow_String const& name) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item && isType(*item, inp_Types::inp_STRING);
}
