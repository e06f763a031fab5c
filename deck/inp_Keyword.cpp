#include "deck/inp_Keyword.h"

#include "deck/inp_KeywordTable.h"
#include "support/eli_eostream.h"

namespace {

constexpr int kPrintWidth = 132;

bool hasNoValueText(inp_Item const& item) {
    return item.Type() == inp_Types::inp_BOOLEAN || item.Type() == inp_Types::inp_NONE;
}

}  // namespace

inp_Keyword::inp_Keyword(cow_String const& name)
    : m_keyword(inp_KeywordTable::Instance().Enum(name)) {}

cow_String inp_Keyword::Name() const {
    return inp_KeywordTable::Instance().Name(m_keyword);
}

int inp_Keyword::intOf(inp_Item const* item, int fallback) {
    return item && item->Type() == inp_Types::inp_INTEGER ? item->AsInt() : fallback;
}

double inp_Keyword::doubleOf(inp_Item const* item, double fallback) {
    if (!item) return fallback;
    if (item->Type() == inp_Types::inp_REAL || item->Type() == inp_Types::inp_INTEGER)
        return item->AsDouble();
    return fallback;
}

cow_String inp_Keyword::stringOf(inp_Item const* item, cow_String fallback) {
    return item && item->Type() == inp_Types::inp_STRING ? item->AsString() : fallback;
}

bool inp_Keyword::hasSuboption(inp_KeywordEnm keyword) const {
    for (inp_Keyword const& sub : m_suboptions)
        if (sub.m_keyword == keyword) return true;
    return false;
}

inp_Keyword inp_Keyword::DeepCopy() const {
    inp_Keyword copy(m_keyword, m_origin.WithoutComments());
    copy.m_level = m_level;
    copy.m_parameters = m_parameters;
    copy.m_data = m_data.Copy();
    for (inp_Keyword const& sub : m_suboptions) copy.m_suboptions.Append(sub.DeepCopy());
    copy.m_lineNumber = m_lineNumber;
    copy.m_encrypted = m_encrypted;
    return copy;
}

// Set and surface names with blanks must keep them when the deck is read
// again, so the set keywords quote such items.
bool inp_Keyword::quotesItemsWithBlanks() const {
    return m_keyword == inp_kw_Nset || m_keyword == inp_kw_Elset ||
           m_keyword == inp_kw_ImportNset || m_keyword == inp_kw_ImportElset;
}

void inp_Keyword::printDataRows(eli_eostream& out) const {
    bool quoteBlanks = quotesItemsWithBlanks();
    for (int i = 0; i < m_data.Rows(); ++i) {
        cow_String row;
        for (int j = 0; j < m_data.Cols(i); ++j) {
            if (j > 0) row.append(", ");
            cow_String verbatim = m_data.AsStringVerbatim(i, j);
            if (quoteBlanks && !verbatim.IsEmpty() && verbatim[0] != '"' &&
                verbatim.Find(' ') >= 0) {
                row.append('"').append(verbatim).append('"');
            } else {
                row.append(m_data.AsString(i, j));
            }
        }
        row.append('\n');
        out.Write(row);
    }
}

void inp_Keyword::Print(eli_eostream& out, bool withSuboptions) const {
    cow_String name = Name();
    cow_String line = "*" + name;
    int width = name.Length() + 1;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(m_parameters); it.NotDone(); it.Next()) {
        cow_String const& parameter = it.CurrentKey();
        inp_Item const& item = it.CurrentValue();
        cow_String value = item.AsString();
        width += parameter.Length() + value.Length() + 5;
        if (width >= kPrintWidth) {
            line.append(",\n");
            out.Write(line);
            line = parameter;
            width = parameter.Length() + value.Length() + 3;
        } else {
            line.append(", ").append(parameter);
        }
        if (!hasNoValueText(item)) line.append('=').append(value);
    }
    line.append('\n');
    out.Write(line);
    printDataRows(out);
    if (withSuboptions)
        for (inp_Keyword const& sub : m_suboptions) sub.Print(out, true);
}

void inp_Keyword::Print(aio_ostream& out, bool withSuboptions) const {
    eli_eostream lines(out, 1024);
    Print(lines, withSuboptions);
}

// The debug form: values after " = ", a wrap goes on with the name on the new
// line, and data items are always folded.
void inp_Keyword::printDebug(cow_String& out, bool withSuboptions) const {
    cow_String name = Name();
    out.append('*').append(name);
    int width = name.Length() + 1;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(m_parameters); it.NotDone(); it.Next()) {
        cow_String const& parameter = it.CurrentKey();
        inp_Item const& item = it.CurrentValue();
        cow_String value = item.AsString();
        width += parameter.Length() + value.Length() + 3;
        if (width >= kPrintWidth) {
            out.append(", \n");
            width = parameter.Length() + value.Length() + 1;
        } else {
            out.append(", ");
        }
        out.append(parameter);
        if (!hasNoValueText(item)) out.append(" = ").append(value);
    }
    out.append('\n');
    for (int i = 0; i < m_data.Rows(); ++i) {
        for (int j = 0; j < m_data.Cols(i); ++j) {
            if (j > 0) out.append(", ");
            out.append(m_data.AsString(i, j));
        }
        out.append('\n');
    }
    if (withSuboptions)
        for (inp_Keyword const& sub : m_suboptions) sub.printDebug(out, true);
}

cow_String inp_Keyword::Print(bool withSuboptions) const {
    cow_String out;
    printDebug(out, withSuboptions);
    return out;
}

// Walks over decks of a million keywords read every record: one that fits a
// cache line costs one line of memory traffic.
static_assert(sizeof(inp_Keyword) <= 64, "a keyword record should fit in a cache line");
