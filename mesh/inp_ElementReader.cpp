#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "mesh/inp_ElementDataFromMap.h"
#include "mesh/inp_ElementLayering.h"
#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_Utils.h"

// *ELEMENT: one pass over the data lines. Each element's connectivity is
// gathered in a buffer that lives as long as the keyword's walk and is copied
// once, at its exact size, into the record that the table takes over.

namespace {

// One value of a data line as the reader sees it.
struct RowItem {
    enum Kind : unsigned char { kEmpty, kInteger, kOther };
    Kind kind;
    // The integer; for other text what atoi makes of it, which is what a
    // value taken without a test becomes.
    int value;
};

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The raw item at `item` typed as the raw array types it, and `item` moved on
// to the next item of the row (the items of a raw row follow each other, each
// ended by a zero).
RowItem readTypedRawItem(char const*& item) {
    inp_Types::typeEnm const type = inp_RawDataArrayImpl::Type(item);
    RowItem const result{type == inp_Types::inp_INTEGER ? RowItem::kInteger
                         : type == inp_Types::inp_NONE  ? RowItem::kEmpty
                                                        : RowItem::kOther,
                         static_cast<int>(std::strtol(item, nullptr, 10))};
    item += std::strlen(item) + 1;
    return result;
}

// The same, with the items of a mesh read in one go: blanks, then up to nine
// digits that run to the item's end. Anything else (a sign, blanks behind
// the number, ten digits, text) takes the full typing.
RowItem readRawItem(char const*& item) {
    char const* p = item;
    while (isBlank(*p)) ++p;
    if (*p == 0) {
        item = p + 1;
        return {RowItem::kEmpty, 0};
    }
    char const* const first = p;
    unsigned value = 0;  // wraps harmlessly on a long run, which is refused below
    for (unsigned digit; (digit = static_cast<unsigned char>(*p) - '0') < 10; ++p)
        value = value * 10 + digit;
    if (*p == 0 && p > first && p - first <= 9) {
        item = p + 1;
        return {RowItem::kInteger, static_cast<int>(value)};
    }
    return readTypedRawItem(item);
}

// The data lines of an *ELEMENT keyword, decoded a row at a time into a
// buffer that is reused. Raw text and the compact integer rows have a path
// of their own, any other form of data is read through inp_DataArray.
// Trailing rows with no columns, or with one empty column, do not count.
class ElementRows {
  public:
    explicit ElementRows(inp_DataArray const& data)
        : m_data(data),
          m_raw(dynamic_cast<inp_RawDataArrayImpl const*>(data.Impl())),
          m_compact(dynamic_cast<inp_ElementDataArrayImpl*>(data.Impl())),
          m_count(data.Rows()) {
        while (m_count > 0 && isBlankRow(m_count - 1)) --m_count;
    }

    int Count() const { return m_count; }
    int Columns(int row) const { return m_data.Cols(row); }
    // Whether a row ends in an empty value (a trailing comma).
    bool Continues(int row) const { return m_data.Cols(row) > 0 && m_data.HasRowContinuation(row); }
    // The values of `row`, valid until the next call.
    RowItem const* Decode(int row) {
        // Qualified calls: no dispatch for the form of nearly every deck.
        int const columns = m_raw ? m_raw->inp_RawDataArrayImpl::Cols(row) : m_data.Cols(row);
        m_decodedColumns = columns;
        // A row without columns reads as one empty value.
        if (static_cast<int>(m_items.size()) <= columns) m_items.resize(columns + 1);
        m_items[0] = {RowItem::kEmpty, 0};
        if (m_raw)
            decodeRaw(row, columns);
        else if (m_compact)
            decodeCompact(row, columns);
        else
            decodeGeneric(row, columns);
        m_decodedContinues = columns > 0 && m_items[columns - 1].kind == RowItem::kEmpty;
        return m_items.data();
    }
    // Columns() and Continues() of the row decoded last.
    int DecodedColumns() const { return m_decodedColumns; }
    bool DecodedRowContinues() const { return m_decodedContinues; }
    // A value as written, for messages.
    cow_String Text(int row, int column) const { return m_data.AsStringVerbatim(row, column); }

  private:
    bool isBlankRow(int row) const {
        int const columns = m_data.Cols(row);
        return columns == 0 || (columns == 1 && m_data.IsNone(row, 0));
    }
    void decodeRaw(int row, int columns) {
        char const* item = m_raw->Item(row, 0);
        RowItem* const items = m_items.data();
        for (int j = 0; j < columns; ++j) items[j] = readRawItem(item);
    }
    // A compact row holds 0 for an empty place, and a zero written in the
    // deck cannot be told from it. Inside a part, where the data come in
    // this form, a written zero is therefore read as an empty field: passed
    // over (or marked, for a connector in compatibility mode) rather than
    // reported or kept, and a label 0 reads as no integer. Only raw data
    // read in a scope reach the zero rules. A value of more than nine digits
    // is no label.
    void decodeCompact(int row, int columns) {
        for (int j = 0; j < columns; ++j) {
            int const value = m_compact->inp_ElementDataArrayImpl::AsInt(row, j);
            RowItem::Kind const kind = value == 0                       ? RowItem::kEmpty
                                       : value > inp_SetVisitor::kMaxId ? RowItem::kOther
                                                                        : RowItem::kInteger;
            m_items[j] = {kind, value};
        }
    }
    void decodeGeneric(int row, int columns) {
        for (int j = 0; j < columns; ++j) {
            inp_Types::typeEnm const type = m_data.Type(row, j);
            if (type == inp_Types::inp_NONE)
                m_items[j] = {RowItem::kEmpty, 0};
            else if (type == inp_Types::inp_INTEGER)
                m_items[j] = {RowItem::kInteger, m_data.AsInt(row, j)};
            else
                m_items[j] = {RowItem::kOther, std::atoi(Text(row, j).CStr())};
        }
    }

    inp_DataArray const& m_data;
    inp_RawDataArrayImpl const* m_raw;
    inp_ElementDataArrayImpl* m_compact;
    int m_count;
    std::vector<RowItem> m_items;
    int m_decodedColumns = 0;
    bool m_decodedContinues = false;
};

// The connectivity of the element being read. The storage grows to the
// largest element of the keyword and is reused for every element; the hot
// loops write through Room and Grow, a plain pointer, rather than appending
// one node at a time.
class NodeBuffer {
  public:
    void clear() { m_count = 0; }
    bool empty() const { return m_count == 0; }
    int size() const { return m_count; }
    int* data() { return m_storage.data(); }
    int& operator[](int i) { return m_storage[static_cast<size_t>(i)]; }
    // Where `more` nodes behind the present ones go; Grow takes in those
    // that were written.
    int* Room(int more) {
        size_t const needed = static_cast<size_t>(m_count) + static_cast<size_t>(more);
        if (m_storage.size() < needed) m_storage.resize(needed);
        return m_storage.data() + m_count;
    }
    void Grow(int added) { m_count += added; }
    void push_back(int node) {
        *Room(1) = node;
        ++m_count;
    }
    // Open positions (0) fill what a longer connectivity gains.
    void resize(int count) {
        if (count > m_count) std::fill_n(Room(count - m_count), count - m_count, 0);
        m_count = count;
    }

  private:
    std::vector<int> m_storage;
    int m_count = 0;
};

}  // namespace

class inp_ElementVisitor::ElementKeywordReader {
  public:
    ElementKeywordReader(inp_ElementVisitor& visitor, inp_Keyword& keyword)
        : m_visitor(visitor),
          m_keyword(keyword),
          m_rows(keyword.Data()),
          m_inScope(!visitor.CurrentName().IsEmpty()) {}

    void Run() {
        if (!resolveType() || !readOffset()) return;
        classify();
        m_table = &m_visitor.targetTable();
        m_labels.Reserve(m_rows.Count());  // at most one element per row
        inp_RawDataArrayImpl* const consumed = consumableText();
        int released = 0;
        for (int row = 0; row < m_rows.Count(); ++row) {
            if (consumed != nullptr && row - released >= kReleaseBatch) {
                consumed->ReleaseRows(released, row);
                released = row;
            }
            Outcome const outcome = readElement(row);
            if (outcome == Outcome::kEndKeyword) return;
            if (outcome == Outcome::kEndWalk) break;
        }
        finish();
    }

  private:
    // Rows of text freed at a time when the text is consumed: the rows
    // before the one being read, which no message names any more.
    static constexpr int kReleaseBatch = 4096;

    // The keyword's text, when the visitor consumes it and nothing else
    // holds it; null otherwise.
    inp_RawDataArrayImpl* consumableText() const {
        if (!m_visitor.m_consumeElementText || m_keyword.Data().UseCount() != 1) return nullptr;
        return dynamic_cast<inp_RawDataArrayImpl*>(m_keyword.Data().Impl());
    }

    // What a data line leaves for the rest of the keyword.
    enum class Outcome { kNext, kEndWalk, kEndKeyword };
    // What completing an element's connectivity decided.
    enum class Completion { kStore, kSkip, kEndKeyword };

    void error(atr_String const& text) {
        m_visitor.AddError(inp_Utils::MessageInKeyword(m_keyword, text));
    }

    // -- the keyword's rules --------------------------------------------------------

    // The node limits of the TYPE; false when the keyword ends here.
    bool resolveType() {
        inp_Item const* const item = m_keyword.Parameters().Find("type");
        if (!item) error(atr("Element type is required."));
        // Without a type the keyword goes on with an empty one, which no
        // table knows: it ends as an unsupported type.
        cow_String const type =
            item && item->Type() != inp_Types::inp_NONE ? item->AsString() : cow_String();
        inp_ElementInfo info;
        inp_ElementTypes::Kind const kind = m_visitor.m_types.Classify(type, info);
        m_type = type;
        m_type.ToUpper();
        switch (kind) {
            case inp_ElementTypes::kTableType:
                m_least = info.least;
                m_greatest = info.greatest;
                return true;
            case inp_ElementTypes::kSuperelement:
                m_superelement = true;
                m_file = m_keyword.GetParameterAsString("file", cow_String());
                return true;
            case inp_ElementTypes::kUserElement:
                userElementCounts();
                return true;
            case inp_ElementTypes::kObsolete:
                error(
                    atr("Element type \"%s\" has become obsolete.  Please check the User's "
                        "manual for the current release.",
                        m_type));
                return false;
            case inp_ElementTypes::kUnsupported:
                break;
        }
        error(atr("Element type \"%s\" is not supported.", m_type));
        return false;
    }

    // A count of -1 (a user element read from a file) leaves the counts open.
    void userElementCounts() {
        int const* const count = m_visitor.m_userElementNodes.Find(m_type);
        if (!count) {
            error(
                atr("This user element type has not been defined properly.Check *USER ELEMENT "
                    "definitions."));
            return;
        }
        if (*count == -1) return;
        m_least = m_greatest = *count;
    }

    // A given OFFSET must be a positive number. One that is not an integer
    // passes here and is refused where layers are made from it.
    bool readOffset() {
        inp_Item const* const item = m_keyword.Parameters().Find("offset");
        m_offsetGiven = item != nullptr;
        if (!item) return true;
        bool const number =
            item->Type() == inp_Types::inp_INTEGER || item->Type() == inp_Types::inp_REAL;
        if (!number || item->AsDouble() <= 0.0) {
            error(atr("Offset parameter must be positive."));
            return false;
        }
        m_offsetIsInteger = item->Type() == inp_Types::inp_INTEGER;
        m_offset = m_offsetIsInteger ? item->AsInt() : 0;
        return true;
    }

    void classify() {
        m_layering = inp_ClassifyElementLayering(m_type.View(), m_least, m_greatest, m_offsetGiven);
        m_emptyConnectorField =
            m_layering.family == inp_ElementLayering::kConnector && m_visitor.m_atelierCompatible;
        if (m_layering.family != inp_ElementLayering::kGasket ||
            !m_keyword.HasParameter("solidelementnumbering"))
            return;
        m_solidNumbering = std::max(1, m_keyword.GetParameterAsInt("solidelementnumbering", 1));
        m_greatest = inp_GreatestWithSolidNumbering(m_type.View(), m_greatest);
    }

    // -- one element ------------------------------------------------------------------

    // Reads the element that starts at `row`; `row` is left on the last data
    // line the element took.
    Outcome readElement(int& row) {
        RowItem const* items = m_rows.Decode(row);
        int label = 0;
        if (!readLabel(items[0], label)) return Outcome::kEndWalk;
        bool continues = m_rows.DecodedRowContinues();
        int count = m_rows.DecodedColumns() - 1;
        // A layered gasket or cohesive line gives its bottom (and top) nodes
        // only: the rest of the line is cut off, continuation and all.
        if (m_layering.layered && m_layering.IsGasketOrCohesive() &&
            count > m_layering.GivenLimit()) {
            continues = false;
            count = m_layering.GivenLimit();
        }
        if (continues) {
            --count;  // the empty value behind the trailing comma
            continues = continuesInto(row + 1, count);
        }
        m_nodes.clear();
        takeFirstRow(items, std::min(m_greatest, count), label);
        bool const spansRows = continues;
        while (continues) {
            ++row;
            items = m_rows.Decode(row);
            bool const next = m_rows.DecodedRowContinues();
            int const values = m_rows.DecodedColumns() - (next ? 1 : 0);
            takeContinuationRow(row, items, count, std::min(values, m_greatest - count), label);
            count += values;
            continues = next && continuesInto(row + 1, count);
        }
        if (m_nodes.empty()) {
            error(atr("Element connectivity is missing for element %1$s of type \"%2$s\"", label,
                      m_type));
            return Outcome::kEndKeyword;
        }
        Completion const completion = complete(label, spansRows);
        if (completion == Completion::kEndKeyword) return Outcome::kEndKeyword;
        if (completion == Completion::kSkip) return Outcome::kNext;
        if (count > m_greatest) m_tooMany.Append(label);
        if (m_nodes.size() < m_least) m_tooFew.Append(label);
        store(label);
        return Outcome::kNext;
    }

    bool readLabel(RowItem const& item, int& label) {
        if (item.kind != RowItem::kInteger || item.value > inp_SetVisitor::kMaxId) {
            error(
                atr("Element number is not an integer or exceeds 9 digits for element of type %s.",
                    m_type));
            return false;
        }
        if (item.value <= 0) {
            error(atr("Element number is not a positive integer for element of type %s.", m_type));
            return false;
        }
        label = item.value;
        return true;
    }

    // Whether an element of `count` values so far goes on into `next`: not
    // once it has its greatest count, nor past the last row. It does when
    // the next row's values fit within the greatest count; otherwise only
    // while the element is still short of its least count, so that a row
    // that can stand as an element by itself does not swallow the next.
    bool continuesInto(int next, int count) const {
        if (count >= m_greatest || next >= m_rows.Count()) return false;
        int const values = m_rows.Columns(next) - (m_rows.Continues(next) ? 1 : 0);
        if (values <= m_greatest - count) return true;
        return count < m_least;
    }

    // The first `taken` values behind the label. In a part or instance (a
    // scope of the walk) each is checked and a bad one is reported and passed
    // over, as is an empty field (which a connector in compatibility mode
    // marks instead); at the assembly level the values are taken as they are.
    void takeFirstRow(RowItem const* items, int taken, int label) {
        int* const out = m_nodes.Room(taken);
        if (!m_inScope) {
            for (int j = 1; j <= taken; ++j) out[j - 1] = items[j].value;
            m_nodes.Grow(taken);
            return;
        }
        int added = 0;
        for (int j = 1; j <= taken; ++j) {
            RowItem const& item = items[j];
            switch (item.kind) {
                case RowItem::kEmpty:
                    if (m_emptyConnectorField) out[added++] = inp_Element::kEmptyConnectorField;
                    break;
                case RowItem::kOther:
                    error(
                        atr("Non integer or label exceeds 9 digits in element connectivity for "
                            "element %1$s",
                            label));
                    break;
                case RowItem::kInteger:
                    if (acceptNode(item.value, label)) out[added++] = item.value;
                    break;
            }
        }
        m_nodes.Grow(added);
    }

    bool acceptNode(int node, int label) {
        if (node < 0)
            error(atr("Integer in element connectivity for element %1$s is negative.", label));
        else if (node == 0 && !m_layering.zeroAllowed)
            error(atr("Integer in element connectivity for element %1$s is zero.", label));
        else
            return true;
        return false;
    }

    // A continuation row's values keep their places: each is taken as an
    // integer, an empty one as 0 (an open position), text as atoi reads it.
    // Only a value at a position the element needs (within its least count)
    // must be an integer, and only in a part or instance; one that is not is
    // reported and still holds its place.
    void takeContinuationRow(int row, RowItem const* items, int before, int taken, int label) {
        for (int k = 0; k < taken; ++k) {
            if (m_inScope && before + k < m_least && items[k].kind != RowItem::kInteger)
                error(
                    atr("Label \"%1$s\" is non integer or exceeds 9 digits in element "
                        "connectivity for element %2$s",
                        m_rows.Text(row, k), label));
            m_nodes.push_back(items[k].value);
        }
    }

    // -- completing the connectivity ------------------------------------------------

    Completion complete(int label, bool spansRows) {
        m_numNodesDefined = 0;
        m_nodeOffset = 0;
        m_numbering = 0;
        if (m_layering.layered) return completeLayered(label);
        switch (m_layering.family) {
            case inp_ElementLayering::kOptionalFaceNodes:
                // A line that went on to the next but stopped short of the
                // least count leaves one face node open.
                if (spansRows && m_nodes.size() < m_least) m_nodes.push_back(0);
                break;
            case inp_ElementLayering::kGasket:
                completeGasket();
                break;
            default:
                break;
        }
        return Completion::kStore;
    }

    void completeGasket() {
        bool const solidNumbered = inp_IsSolidNumberedGasket(m_type.View());
        if (m_solidNumbering == 0) {
            // GK3D18 takes up to 18 nodes; the two last ones may be left open.
            if (solidNumbered && (m_nodes.size() == 16 || m_nodes.size() == 17)) m_nodes.resize(18);
            return;
        }
        // The table has eight numberings; a value beyond them has no order
        // to apply, and the connectivity is kept as written with the value,
        // as for the other gasket types.
        if (!solidNumbered || m_solidNumbering > kSolidNumberings) {
            m_numbering = m_solidNumbering;
            return;
        }
        reorderBySolidNumbering();
    }

    // The connectivity was written in the numbering of a solid element (20
    // nodes for a brick). Gasket positions 0 to 15 take their nodes from the
    // table, positions 16 and 17 are left open, and the list loses its two
    // last entries: 20 solid nodes give the 18 of the gasket. A source
    // position the line does not reach gives an open position.
    void reorderBySolidNumbering() {
        m_source.assign(m_nodes.data(), m_nodes.data() + m_nodes.size());
        if (m_nodes.size() < 18) m_nodes.resize(18);
        for (int i = 0; i < kSolidNumberedPositions; ++i) {
            int const from = inp_SolidNumberingSource(m_solidNumbering, i);
            m_nodes[i] = from < static_cast<int>(m_source.size()) ? m_source[from] : 0;
        }
        m_nodes[16] = m_nodes[17] = 0;
        m_nodes.resize(m_nodes.size() - 2);
    }

    // Gasket and cohesive types are layered only when OFFSET is given, so
    // their bottom-only input always has an offset to build on: a check that
    // OFFSET is there would never fire, and there is none. An offset that is
    // not positive ended the keyword before the first row.
    Completion completeLayered(int label) {
        int const given = m_nodes.size();
        inp_ElementLayering const layering = m_layering.ForGivenNodes(given);
        if (!layering.GeneratesFrom(given)) {
            if (given >= m_greatest) return Completion::kStore;  // complete as written
            // The keyword ends here: elements made before stay in the map,
            // and its data keep the lines as written.
            cow_List<int> padded;
            padded.SetFromArray(m_nodes.data(), given);
            for (int k = given; k < m_greatest; ++k) padded.Append(0);
            m_visitor.AddError(inp_Utils::MessageInKeyword(
                m_keyword, atr("Node numbers must be positive in element %s", label), padded));
            return Completion::kEndKeyword;
        }
        // Node labels step by the offset, so it must be an integer, for the
        // asymmetric axisymmetric types as for the others. The fault is the
        // parameter's and is told once; elements whose layers cannot be made
        // are left out.
        if (!m_offsetIsInteger) {
            if (!m_offsetReported) error(atr("Offset must be a positive integer value."));
            m_offsetReported = true;
            return Completion::kSkip;
        }
        if (layering.IsGasketOrCohesive()) {
            m_numNodesDefined = given;
            m_nodeOffset = m_offset;
        }
        m_nodes.resize(layering.fullSize);
        layering.FillUpperLayers(given, m_offset, m_nodes.data());
        m_generated = true;
        return Completion::kStore;
    }

    // A label given twice keeps the later element.
    void store(int label) {
        auto* const record = new inp_Element(m_type, m_nodes.size(), m_nodes.data(),
                                             m_numNodesDefined, m_nodeOffset, m_numbering);
        if (m_superelement) record->setFile(m_file);
        m_table->InsertPtr(label, record);
        m_labels.Append(label);
    }

    // -- after the last row -----------------------------------------------------------

    void finish() {
        if (!m_tooMany.IsEmpty())
            m_visitor.AddWarning(inp_Utils::MessageInKeyword(
                m_keyword, atr("Too many nodes for element(s) of type \"%s\" ", m_type),
                m_tooMany));
        if (!m_tooFew.IsEmpty()) {
            m_visitor.AddError(inp_Utils::MessageInKeyword(
                m_keyword, atr("Too few nodes for element(s) of type \"%s\" ", m_type), m_tooFew));
            return;
        }
        cow_String const elset = m_keyword.GetParameterAsString("elset", cow_String());
        if (!elset.IsEmpty() && !m_labels.IsEmpty()) m_visitor.addLabelSet(elset, m_labels);
        if (m_generated) replaceDataByCompleteRows();
    }

    // Later readers of the keyword see every element whole. The offset has
    // then done its work, except for gasket and cohesive elements, whose
    // records keep it.
    void replaceDataByCompleteRows() {
        m_keyword.SetData(inp_DataArray(
            new inp_ElementDataArrayImpl(inp_ElementDataFromMap(m_labels, *m_table))));
        if (!m_layering.IsGasketOrCohesive()) m_keyword.RemoveParameter("offset");
    }

    inp_ElementVisitor& m_visitor;
    inp_Keyword& m_keyword;
    ElementRows m_rows;
    bool const m_inScope;
    inp_MapInt2Element* m_table = nullptr;

    // The keyword's rules.
    cow_String m_type;  // upper case
    cow_String m_file;  // of a superelement
    bool m_superelement = false;
    int m_least = 0;
    int m_greatest = INT_MAX;
    bool m_offsetGiven = false;
    bool m_offsetIsInteger = true;
    bool m_offsetReported = false;
    int m_offset = kDefaultOffset;
    int m_solidNumbering = 0;  // 0 without SOLID ELEMENT NUMBERING
    inp_ElementLayering m_layering;
    bool m_emptyConnectorField = false;

    // The element being read, and what becomes of its record.
    NodeBuffer m_nodes;
    std::vector<int> m_source;
    int m_numNodesDefined = 0;
    int m_nodeOffset = 0;
    int m_numbering = 0;

    // What the keyword has read so far.
    cow_List<int> m_labels;
    cow_List<int> m_tooMany;
    cow_List<int> m_tooFew;
    bool m_generated = false;
};

void inp_ElementVisitor::VisitElement(inp_Keyword& keyword) {
    ElementKeywordReader reader(*this, keyword);
    reader.Run();
}
