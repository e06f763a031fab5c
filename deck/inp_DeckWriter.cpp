#include "deck/inp_DeckWriter.h"

#include <charconv>
#include <cstring>

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_Keyword.h"
#include "deck/inp_KeywordDisplayName.h"
#include "deck/inp_NodeDataArrayImpl.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "support/aio_Stream.h"
#include "support/cow_Map.h"

namespace {

// The text of a parameter as the reader takes it back: the name in upper
// case, and "=value" unless the parameter is a flag.
std::string parameterText(cow_String const& name, inp_Item const& value) {
    std::string text;
    text.reserve(static_cast<size_t>(name.Length()) + 16);
    for (char c : name.View())
        text += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (value.Type() == inp_Types::inp_BOOLEAN || value.Type() == inp_Types::inp_NONE) return text;
    text += '=';
    text += value.AsString().View();
    return text;
}

// Whether the lines of the keyword are titles, kept whole by the reader.
bool hasTitleLines(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_Heading) || keyword.Is(inp_kw_Step);
}

// Whether a blank line among the keyword's data lines holds nothing: node
// and element blocks, whose rows each define one node or element.
bool dropsBlankRows(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_Node) || keyword.Is(inp_kw_Element);
}

}  // namespace

void inp_DeckWriter::Write(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords) {
        WriteKeyword(keyword);
        Write(keyword.Suboptions());
    }
}

void inp_DeckWriter::WriteKeyword(inp_Keyword const& keyword) {
    if (keyword.Is(inp_kw_UndefinedKeyword) || keyword.Is(inp_kw_Model)) return;
    writeKeywordLine(keyword);
    if (keyword.Data().Rows() == 0) return;
    if (keyword.IsEncrypted()) {
        m_out.print(kWithheldNote);
        return;
    }
    writeDataLines(keyword);
}

// The parameters follow the name, ", " between them; a parameter that would
// pass the width goes on the next line, behind a trailing comma, which the
// reader joins back.
void inp_DeckWriter::writeKeywordLine(inp_Keyword const& keyword) {
    m_line.clear();
    m_line += '*';
    m_line += inp_KeywordDisplayName(keyword.Keyword()).View();
    size_t lineStart = 0;
    for (cow_ConstMapIterator<cow_String, inp_Item> it(keyword.Parameters()); it.NotDone();
         it.Next()) {
        std::string const parameter = parameterText(it.CurrentKey(), it.CurrentValue());
        if (m_line.size() - lineStart + parameter.size() + 2 >= kKeywordLineWidth) {
            m_line += ",\n";
            lineStart = m_line.size();
        } else {
            m_line += ", ";
        }
        m_line += parameter;
    }
    m_line += '\n';
    m_out.write(m_line.data(), m_line.size());
}

void inp_DeckWriter::writeDataLines(inp_Keyword const& keyword) {
    inp_DataArray const& data = keyword.Data();
    inp_DataArrayImpl const* impl = data.Impl();
    if (dynamic_cast<inp_NodeDataArrayImpl const*>(impl) != nullptr)
        writeNodeRows(data);
    else if (dynamic_cast<inp_ElementDataArrayImpl const*>(impl) != nullptr)
        writeElementRows(data);
    else if (hasTitleLines(keyword) && dynamic_cast<inp_RawDataArrayImpl const*>(impl) != nullptr)
        writeTitleLines(data);
    else
        writeRawRows(keyword);
}

void inp_DeckWriter::writeTitleLines(inp_DataArray const& data) {
    auto const& raw = static_cast<inp_RawDataArrayImpl const&>(*data.Impl());
    for (int i = 0; i < raw.Rows(); ++i) {
        char const* line = raw.Item(i, 0);
        m_out.write(line, std::strlen(line));
        m_out.put('\n');
    }
}

// Raw rows go out as the deck wrote them, commas and blanks and case: the
// reader makes of them what it made of the deck's own lines. An array of
// another kind (filled by a caller) gives its items as text.
void inp_DeckWriter::writeRawRows(inp_Keyword const& keyword) {
    inp_DataArray const& data = keyword.Data();
    auto const* raw = dynamic_cast<inp_RawDataArrayImpl const*>(data.Impl());
    bool const dropBlank = dropsBlankRows(keyword);
    bool previousContinues = false;
    for (int i = 0; i < data.Rows(); ++i) {
        int const columns = data.Cols(i);
        bool const blank = columns == 0 || (columns == 1 && data.IsNone(i, 0));
        if (dropBlank && blank && !previousContinues) continue;
        if (raw != nullptr && columns > 0) {
            writeRawLine(raw->Item(i, 0), columns);
        } else {
            for (int j = 0; j < columns; ++j) {
                cow_String const text = data.AsStringVerbatim(i, j);
                addItem(text.CStr(), static_cast<size_t>(text.Length()));
            }
            endRow();
        }
        previousContinues = columns > 1 && data.IsNone(i, columns - 1);
    }
}

// The items of a raw row follow each other, each ended by a zero where the
// deck had its comma.
void inp_DeckWriter::writeRawLine(char const* items, int columns) {
    m_line.clear();
    char const* item = items;
    for (int j = 0; j < columns; ++j) {
        size_t const length = std::strlen(item);
        if (j > 0) m_line += ',';
        m_line.append(item, length);
        item += length + 1;
    }
    m_line += '\n';
    m_out.write(m_line.data(), m_line.size());
}

// A row of label 0 is a blank line of the block.
void inp_DeckWriter::writeNodeRows(inp_DataArray const& data) {
    auto const& nodes = static_cast<inp_NodeDataArrayImpl const&>(*data.Impl());
    for (int i = 0; i < nodes.Rows(); ++i) {
        int const label = nodes.inp_NodeDataArrayImpl::AsInt(i, 0);
        if (label == 0) continue;
        addNumber(label);
        for (int j = 1; j < inp_NodeDataArrayImpl::kColumns; ++j)
            addNumber(nodes.inp_NodeDataArrayImpl::AsDouble(i, j));
        endRow();
    }
}

// A 0 is an empty place; in the last place of a row it is the trailing comma
// that continues the element on the next row. A row that holds nothing and
// continues no element is a blank line of the block.
void inp_DeckWriter::writeElementRows(inp_DataArray const& data) {
    auto const& elements = static_cast<inp_ElementDataArrayImpl const&>(*data.Impl());
    bool previousContinues = false;
    for (int i = 0; i < elements.Rows(); ++i) {
        int const columns = elements.Cols(i);
        bool blank = true;
        for (int j = 0; j < columns && blank; ++j) blank = elements.IsNone(i, j);
        if (blank && !previousContinues) continue;
        for (int j = 0; j < columns; ++j) {
            if (elements.IsNone(i, j))
                addItem("", 0);
            else
                addNumber(elements.AsInt(i, j));
        }
        endRow();
        previousContinues = columns > 0 && elements.IsNone(i, columns - 1);
    }
}

void inp_DeckWriter::addItem(char const* text, size_t length) {
    if (m_rowStarted) {
        m_line += ", ";
        m_separatorBlanks.push_back(m_line.size() - 1);
    } else {
        m_line.clear();
        m_separatorBlanks.clear();
        m_rowStarted = true;
    }
    m_line.append(text, length);
}

void inp_DeckWriter::addNumber(int value) {
    char buffer[16];
    auto const result = std::to_chars(buffer, buffer + sizeof buffer, value);
    addItem(buffer, static_cast<size_t>(result.ptr - buffer));
}

// The shortest text that reads back to the same double.
void inp_DeckWriter::addNumber(double value) {
    char buffer[40];
    auto const result = std::to_chars(buffer, buffer + sizeof buffer, value);
    addItem(buffer, static_cast<size_t>(result.ptr - buffer));
}

void inp_DeckWriter::endRow() {
    if (!m_rowStarted) {
        m_line.clear();
        m_separatorBlanks.clear();
    }
    m_rowStarted = false;
    // An empty last item is a trailing comma, written without a blank.
    if (!m_separatorBlanks.empty() && m_separatorBlanks.back() + 1 == m_line.size()) {
        m_line.pop_back();
        m_separatorBlanks.pop_back();
    }
    if (m_line.size() > static_cast<size_t>(kMaxLineLength) && !m_separatorBlanks.empty()) {
        std::string compact;
        compact.reserve(m_line.size());
        size_t next = 0;
        for (size_t k = 0; k < m_line.size(); ++k) {
            if (next < m_separatorBlanks.size() && m_separatorBlanks[next] == k) {
                ++next;
                continue;
            }
            compact += m_line[k];
        }
        m_line.swap(compact);
    }
    m_line += '\n';
    m_out.write(m_line.data(), m_line.size());
}
