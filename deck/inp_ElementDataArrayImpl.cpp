#include "deck/inp_ElementDataArrayImpl.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "deck/inp_Exceptions.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "support/ZELBasAssert.h"

namespace {

constexpr int kFirst = inp_ElementDataArrayImpl::kNodesInFirstRow;
constexpr int kFurther = inp_ElementDataArrayImpl::kNodesInFurtherRow;

[[noreturn]] void raise(atr_String const& message) {
    throw inp_PrimException(message);
}

bool isWhiteSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// atoi, without the library call for a plain number of up to 9 digits.
// `end` is where the reading stopped.
int parseInt(char const* text, char const*& end) {
    char const* p = text;
    while (isWhiteSpace(*p)) ++p;
    bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    long long value = 0;
    int digits = 0;
    for (; digits < 10 && p[digits] >= '0' && p[digits] <= '9'; ++digits)
        value = value * 10 + (p[digits] - '0');
    end = p + digits;
    if (digits == 10) return static_cast<int>(std::strtol(text, nullptr, 10));
    return static_cast<int>(negative ? -value : value);
}

int parseInt(char const* text) {
    char const* end = nullptr;
    return parseInt(text, end);
}

// atoi of the item at `item` in a raw row, moving `item` on to the next one.
int readItem(char const*& item) {
    char const* end = nullptr;
    int value = parseInt(item, end);
    while (*end) ++end;
    item = end + 1;
    return value;
}

int rowsForNodes(int nodeCount) {
    if (nodeCount <= kFirst) return 1;
    return 1 + (nodeCount - kFirst + kFurther - 1) / kFurther;
}

// The label, the nodes, and a continuation 0 at the end of every row but the last.
size_t integersForNodes(int nodeCount) {
    return static_cast<size_t>(1 + nodeCount + rowsForNodes(nodeCount) - 1);
}

}  // namespace

// Lays rows out one after the other in the array's single block of integers.
class inp_ElementDataArrayImpl::Writer {
  public:
    explicit Writer(inp_ElementDataArrayImpl& target) : m_target(target), m_next(target.values) {}

    // Starts the next row with `count` integers and returns where they go.
    int* Row(int count) {
        m_target.rows[m_row] = m_next;
        m_target.ncols[m_row] = count;
        ++m_row;
        int* row = m_next;
        m_next += count;
        return row;
    }

    // The deck form of one element, over as many rows as its nodes need.
    template <class NodeIt>
    void Element(int label, NodeIt nodes, int count) {
        int taken = std::min(count, kFirst);
        bool more = count > taken;
        int* row = Row(1 + taken + more);
        row[0] = label;
        nodes = fill(row + 1, nodes, taken, more);
        for (count -= taken; count > 0; count -= taken) {
            taken = std::min(count, kFurther);
            more = count > taken;
            nodes = fill(Row(taken + more), nodes, taken, more);
        }
    }

  private:
    template <class NodeIt>
    static NodeIt fill(int* row, NodeIt nodes, int count, bool continued) {
        for (int k = 0; k < count; ++k, ++nodes) row[k] = *nodes;
        if (continued) row[count] = 0;
        return nodes;
    }

    inp_ElementDataArrayImpl& m_target;
    int* m_next;
    int m_row = 0;
};

// The constructors that fill the array delegate to the empty one first, so
// that the destructor frees what was allocated if anything later throws.

inp_ElementDataArrayImpl::inp_ElementDataArrayImpl(inp_DataArray const& raw)
    : inp_ElementDataArrayImpl() {
    int rowCount = raw.Rows();
    size_t count = 0;
    for (int i = 0; i < rowCount; ++i) count += static_cast<size_t>(raw.Cols(i));
    allocate(rowCount, count);
    auto const* text = dynamic_cast<inp_RawDataArrayImpl const*>(raw.Impl());
    Writer writer(*this);
    for (int i = 0; i < rowCount; ++i) {
        int columns = raw.Cols(i);
        int* row = writer.Row(columns);
        if (!text) {
            for (int j = 0; j < columns; ++j) row[j] = parseInt(raw.AsStringVerbatim(i, j).CStr());
            continue;
        }
        // A raw row is its items one after the other, each ended by a zero.
        char const* item = text->Item(i, 0);
        for (int j = 0; j < columns; ++j) row[j] = readItem(item);
    }
}

inp_ElementDataArrayImpl::inp_ElementDataArrayImpl(std::span<Connectivity const> elements)
    : inp_ElementDataArrayImpl() {
    int rowCount = 0;
    size_t count = 0;
    for (Connectivity const& element : elements) {
        rowCount += rowsForNodes(element.count);
        count += integersForNodes(element.count);
    }
    allocate(rowCount, count);
    Writer writer(*this);
    for (Connectivity const& element : elements)
        writer.Element(element.label, element.nodes, element.count);
}

inp_ElementDataArrayImpl::inp_ElementDataArrayImpl(cow_Map<int, cow_List<int>> const& elements)
    : inp_ElementDataArrayImpl() {
    int rowCount = 0;
    size_t count = 0;
    elements.ForEachSorted([&](int, cow_List<int> const& nodes) {
        rowCount += rowsForNodes(nodes.Length());
        count += integersForNodes(nodes.Length());
    });
    allocate(rowCount, count);
    Writer writer(*this);
    elements.ForEachSorted([&](int label, cow_List<int> const& nodes) {
        writer.Element(label, nodes.begin(), nodes.Length());
    });
}

inp_ElementDataArrayImpl::inp_ElementDataArrayImpl(inp_ElementDataArrayImpl const& other)
    : inp_ElementDataArrayImpl() {
    size_t count = 0;
    for (int i = 0; i < other.nrows; ++i) count += static_cast<size_t>(other.ncols[i]);
    allocate(other.nrows, count);
    if (nrows == 0) return;
    std::memcpy(ncols, other.ncols, static_cast<size_t>(nrows) * sizeof(int));
    std::memcpy(values, other.values, count * sizeof(int));
    for (int i = 0; i < nrows; ++i) rows[i] = values + (other.rows[i] - other.values);
}

inp_ElementDataArrayImpl& inp_ElementDataArrayImpl::operator=(
    inp_ElementDataArrayImpl const& other) {
    if (this != &other) {
        inp_ElementDataArrayImpl copy(other);
        swap(copy);
    }
    return *this;
}

inp_ElementDataArrayImpl::~inp_ElementDataArrayImpl() {
    Clear();
}

void inp_ElementDataArrayImpl::Clear() noexcept {
    mem_Free(ncols);
    mem_Free(rows);
    mem_Free(values);
    ncols = nullptr;
    rows = nullptr;
    values = nullptr;
    nrows = 0;
}

inp_DataArrayImpl* inp_ElementDataArrayImpl::Copy() const {
    return new inp_ElementDataArrayImpl(*this);
}

void inp_ElementDataArrayImpl::allocate(int rowCount, size_t count) {
    Clear();
    if (rowCount == 0) return;
    size_t size = static_cast<size_t>(rowCount);
    ncols = static_cast<int*>(mem_Malloc(size * sizeof(int)));
    rows = static_cast<int**>(mem_Malloc(size * sizeof(int*)));
    values = static_cast<int*>(mem_Malloc(count * sizeof(int)));
    if (!ncols || !rows || !values) {
        Clear();
        throw inp_MemoryException();
    }
    nrows = rowCount;
}

void inp_ElementDataArrayImpl::swap(inp_ElementDataArrayImpl& other) noexcept {
    std::swap(nrows, other.nrows);
    std::swap(ncols, other.ncols);
    std::swap(rows, other.rows);
    std::swap(values, other.values);
}

void inp_ElementDataArrayImpl::checkRow(int i) const {
    ZELBAS_ASSERT_TEXT(i >= 0 && i < nrows, "i >= 0 && i < nrows");
}

void inp_ElementDataArrayImpl::checkItem(int i, int j) const {
    checkRow(i);
    ZELBAS_ASSERT_TEXT(j >= 0 && j < ncols[i], "j >= 0 && j < ncols[i]");
}

int inp_ElementDataArrayImpl::Cols(int i) const {
    checkRow(i);
    return ncols[i];
}

inp_Types::typeEnm inp_ElementDataArrayImpl::Type(int i, int j) {
    return IsNone(i, j) ? inp_Types::inp_NONE : inp_Types::inp_INTEGER;
}

bool inp_ElementDataArrayImpl::IsNone(int i, int j) const {
    checkItem(i, j);
    return rows[i][j] == 0;
}

bool inp_ElementDataArrayImpl::HasValue(int i, int j) const {
    return i >= 0 && i < nrows && j >= 0 && j < ncols[i] && rows[i][j] != 0;
}

int inp_ElementDataArrayImpl::AsInt(int i, int j) const {
    checkItem(i, j);
    return rows[i][j];
}

double inp_ElementDataArrayImpl::AsDouble(int, int) const {
    raise(atr("Element keyword data cannot be converted to a double"));
}

cow_String inp_ElementDataArrayImpl::AsString(int i, int j) {
    return cow_String::FromInt(AsInt(i, j));
}

cow_String inp_ElementDataArrayImpl::AsStringVerbatim(int i, int j) {
    return AsString(i, j);
}

inp_DataArrayImpl& inp_ElementDataArrayImpl::Set(int, int, cow_String const&) {
    raise(atr("Illegal operation on element data"));
}

inp_DataArrayImpl& inp_ElementDataArrayImpl::Set(int, int, double) {
    raise(atr("Illegal operation on element data"));
}

inp_DataArrayImpl& inp_ElementDataArrayImpl::Set(int i, int j, int value) {
    checkItem(i, j);
    rows[i][j] = value;
    return *this;
}

void inp_ElementDataArrayImpl::Append(char const*) {
    raise(
        atr("There has been an attempt to append a generic data line to a *ELEMENT keyword.  This "
            "can happen when the element connectivity listing is separated from the *ELEMENT "
            "keyword.  Please make sure your include files contain complete keywords (keyword + "
            "parameters + data lines).  Note that you can still use multiple files to list the "
            "elements, provided you have *ELEMENT at the top of each file. "));
}

void inp_ElementDataArrayImpl::AppendRaw(char const* line) {
    Append(line);
}

bool inp_ElementDataArrayImpl::HasRowContinuation(int i) const {
    checkRow(i);
    return ncols[i] > 0 && rows[i][ncols[i] - 1] == 0;
}
