#include "deck/inp_NodeDataArrayImpl.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "deck/inp_Exceptions.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "support/ZELBasAssert.h"

namespace {

constexpr int kMaxLabelCharacters = 9;
constexpr size_t kMaxListedBadNodes = 102;

bool isWhiteSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

[[noreturn]] void raise(atr_String const& message) {
    throw inp_PrimException(message);
}

// atoi, without the library call for a plain number of up to 9 digits.
int parseInt(char const* text) {
    char const* p = text;
    while (isWhiteSpace(*p)) ++p;
    bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    long long value = 0;
    int digits = 0;
    for (; digits < 10 && isDigit(p[digits]); ++digits) value = value * 10 + (p[digits] - '0');
    if (digits == 10) return static_cast<int>(std::strtol(text, nullptr, 10));
    return static_cast<int>(negative ? -value : value);
}

// strtod over [text, last), through the faster from_chars where both read
// the same number. from_chars knows no leading plus sign and reads "0x1p3" as
// 0; hexadecimal, infinite, not-a-number and out-of-range forms go to strtod.
double parseDouble(char const* text, char const* last, char const*& end) {
    char const* p = text;
    while (isWhiteSpace(*p)) ++p;
    char const* start = *p == '+' ? p + 1 : p;
    char const* mantissa = *p == '+' || *p == '-' ? p + 1 : p;
    if (isDigit(*mantissa) || *mantissa == '.') {
        double value = 0.0;
        auto [stop, error] = std::from_chars(start, last, value);
        if (error == std::errc() && *stop != 'x' && *stop != 'X') {
            end = stop;
            return value;
        }
    }
    char* stop = nullptr;
    double value = std::strtod(text, &stop);
    end = stop;
    return value;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The common label: 1 to 9 digits between blanks. Such an item types as an
// integer and passes the length test, so it is read here in one pass; false
// for any other text, and for 0, so that the general checks give the message.
bool readPlainLabel(char const* p, int& label) {
    while (isBlank(*p)) ++p;
    int digits = 0;
    int value = 0;
    for (; isDigit(*p); ++p) {
        if (++digits > kMaxLabelCharacters) return false;
        value = value * 10 + (*p - '0');
    }
    while (isBlank(*p)) ++p;
    if (digits == 0 || *p || value < 1) return false;
    label = value;
    return true;
}

constexpr int kMaxExactPowerOfTen = 22;
constexpr double kPowersOfTen[kMaxExactPowerOfTen + 1] = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int kMaxSignificantDigits = 19;           // still fits 64 bits
constexpr uint64_t kMaxExactMantissa = 1ull << 53;  // still an exact double

// Appends one digit to the mantissa; false when it would overflow. Leading
// zeros are not significant.
bool addDigit(char digit, uint64_t& mantissa, int& significant) {
    if (mantissa == 0 && digit == '0') return true;
    if (++significant > kMaxSignificantDigits) return false;
    mantissa = mantissa * 10 + static_cast<uint64_t>(digit - '0');
    return true;
}

// The common coordinate: a plain decimal number, with only white space
// behind it, whose digits make an exact double and whose power of ten is at
// most 22 either way. Both factors are then exact, and the one multiplication
// or division rounds correctly, as strtod does. False for any other text,
// which is left to the general reading.
bool readPlainDecimal(char const* p, double& value) {
    while (isWhiteSpace(*p)) ++p;
    bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    uint64_t mantissa = 0;
    int significant = 0;
    int scale = 0;
    char const* numberStart = p;
    for (; isDigit(*p); ++p)
        if (!addDigit(*p, mantissa, significant)) return false;
    bool point = *p == '.';
    if (point) ++p;
    for (; isDigit(*p); ++p, --scale)
        if (!addDigit(*p, mantissa, significant)) return false;
    if (p - numberStart == point) return false;  // a point, or nothing, but no digit
    if (*p == 'e' || *p == 'E') {
        ++p;
        bool negativeExponent = *p == '-';
        if (*p == '+' || *p == '-') ++p;
        if (!isDigit(*p)) return false;
        int exponent = 0;
        for (; isDigit(*p); ++p)
            if (exponent < 10000) exponent = exponent * 10 + (*p - '0');
        scale += negativeExponent ? -exponent : exponent;
    }
    while (isWhiteSpace(*p)) ++p;
    if (*p || mantissa > kMaxExactMantissa) return false;
    double magnitude = 0.0;
    if (mantissa != 0) {
        if (scale < -kMaxExactPowerOfTen || scale > kMaxExactPowerOfTen) return false;
        magnitude = static_cast<double>(mantissa);
        magnitude = scale < 0 ? magnitude / kPowersOfTen[-scale] : magnitude * kPowersOfTen[scale];
    }
    value = negative ? -magnitude : magnitude;
    return true;
}

// The length of an item's folded text (its AsString) when the item types as
// an integer: such an item holds no quote, so folding only drops blanks.
int foldedIntegerLength(char const* text) {
    int length = 0;
    for (char const* p = text; *p; ++p)
        if (*p != ' ' && *p != '\t' && *p != '\r') ++length;
    return length;
}

// The texts of the items of one row, in order. The rows of a raw array are
// read in place, stepping over the zero that ends each item; any other form
// of data array is read through its verbatim strings.
class RowItems {
  public:
    explicit RowItems(inp_DataArray const& data)
        : m_data(data), m_raw(dynamic_cast<inp_RawDataArrayImpl const*>(data.Impl())) {}

    char const* First(int row) {
        m_row = row;
        m_column = 0;
        if (m_raw) return m_item = m_raw->Item(row, 0);
        return textOf(row, 0);
    }
    char const* Next() {
        ++m_column;
        if (m_raw) return m_item += std::strlen(m_item) + 1;
        return textOf(m_row, m_column);
    }

  private:
    char const* textOf(int i, int j) {
        m_text = m_data.AsStringVerbatim(i, j);
        return m_text.CStr();
    }

    inp_DataArray const& m_data;
    inp_RawDataArrayImpl const* m_raw;
    char const* m_item = nullptr;
    cow_String m_text;
    int m_row = 0;
    int m_column = 0;
};

// Converts the rows of a raw *NODE block one at a time. Bad labels throw at
// once; bad coordinates are collected so that one message names them all.
class NodeRowConverter {
  public:
    explicit NodeRowConverter(inp_DataArray const& raw) : m_raw(raw), m_items(raw) {}

    // Fills the label and the `width` doubles of row i; the block's rows
    // have at most 1 + width columns.
    void Convert(int i, int& label, double* doubles, int width) {
        int columns = m_raw.Cols(i);
        int used = std::min(columns, 1 + width);
        label = labelOf(m_items.First(i), columns, i);
        int j = 1;
        for (; j < used; ++j) doubles[j - 1] = coordinateOf(m_items.Next(), label);
        for (; j <= width; ++j) doubles[j - 1] = 0.0;
    }

    void ThrowIfBadCoordinates() {
        if (m_badNodes.empty()) return;
        std::sort(m_badNodes.begin(), m_badNodes.end());
        m_badNodes.erase(std::unique(m_badNodes.begin(), m_badNodes.end()), m_badNodes.end());
        cow_String listed;
        size_t count = std::min(m_badNodes.size(), kMaxListedBadNodes);
        for (size_t k = 0; k < count; ++k) {
            listed.append(' ');
            listed.append(cow_String::FromInt(m_badNodes[k]));
        }
        raise(atr("Invalid nodal coordinate values were specified for the following nodes:%s",
                  listed));
    }

  private:
    // 0 for the one empty item of a blank line in the block.
    int labelOf(char const* text, int columns, int i) const {
        int label = 0;
        if (readPlainLabel(text, label)) return label;
        inp_Types::typeEnm type = inp_RawDataArrayImpl::Type(text);
        if (type == inp_Types::inp_NONE && columns == 1) return 0;
        if (type != inp_Types::inp_INTEGER) raiseForLabel("Node label is not an integer: %s", i);
        if (foldedIntegerLength(text) > kMaxLabelCharacters)
            raiseForLabel("Node label exceeds 9 digits: %s", i);
        label = parseInt(text);
        if (label < 1) raiseForLabel("Node label is not a positive integer: %s", i);
        return label;
    }

    [[noreturn]] void raiseForLabel(char const* format, int i) const {
        raise(atr(format, m_raw.AsString(i, 0)));
    }

    // strtod with a D exponent letter (or else a d) read as e. Anything but
    // white space behind the number marks the node bad; the value read so far
    // stays, and an empty item reads as 0.
    double coordinateOf(char const* text, int label) {
        double value = 0.0;
        if (readPlainDecimal(text, value)) return value;
        size_t length = 0;
        char const* upper = nullptr;
        char const* lower = nullptr;
        for (; text[length]; ++length) {
            if (text[length] == 'D' && !upper) upper = text + length;
            if (text[length] == 'd' && !lower) lower = text + length;
        }
        if (char const* exponent = upper ? upper : lower) {
            m_scratch.assign(text, length);
            m_scratch[static_cast<size_t>(exponent - text)] = 'e';
            text = m_scratch.c_str();
        }
        char const* end = nullptr;
        value = parseDouble(text, text + length, end);
        while (isWhiteSpace(*end)) ++end;
        if (*end) m_badNodes.push_back(label);
        return value;
    }

    inp_DataArray const& m_raw;
    RowItems m_items;
    std::string m_scratch;        // an item with its exponent letter rewritten
    std::vector<int> m_badNodes;  // labels, in row order, possibly repeated
};

}  // namespace

inp_NodeDataArrayImpl::inp_NodeDataArrayImpl(int size) {
    ZELBAS_ASSERT(size >= 0);
    allocate(size, true, kPositionDoubles);
}

inp_NodeDataArrayImpl::inp_NodeDataArrayImpl(inp_NodeDataArrayImpl const& other)
    : inp_DataArrayImpl(other) {
    allocate(other.allocatedSize, false, other.width);
    nrows = other.nrows;
    size_t size = static_cast<size_t>(allocatedSize);
    if (size == 0) return;
    std::memcpy(labels, other.labels, size * sizeof(int));
    std::memcpy(coords, other.coords, size * static_cast<size_t>(width) * sizeof(double));
}

inp_NodeDataArrayImpl& inp_NodeDataArrayImpl::operator=(inp_NodeDataArrayImpl const& other) {
    if (this != &other) {
        inp_NodeDataArrayImpl copy(other);
        swap(copy);
    }
    return *this;
}

inp_NodeDataArrayImpl::~inp_NodeDataArrayImpl() {
    Clear();
}

void inp_NodeDataArrayImpl::Clear() noexcept {
    mem_Free(labels);
    mem_Free(coords);
    labels = nullptr;
    coords = nullptr;
    nrows = 0;
    allocatedSize = 0;
}

inp_DataArrayImpl* inp_NodeDataArrayImpl::Copy() const {
    return new inp_NodeDataArrayImpl(*this);
}

void inp_NodeDataArrayImpl::allocate(int size, bool zeroed, int rowWidth) {
    Clear();
    width = rowWidth;
    if (size == 0) return;
    size_t rows = static_cast<size_t>(size);
    size_t const doubles = rows * static_cast<size_t>(width);
    labels = static_cast<int*>(mem_Malloc(rows * sizeof(int)));
    coords = static_cast<double*>(mem_Malloc(doubles * sizeof(double)));
    if (!labels || !coords) {
        Clear();
        throw inp_MemoryException();
    }
    allocatedSize = size;
    if (!zeroed) return;
    std::memset(labels, 0, rows * sizeof(int));
    std::memset(coords, 0, doubles * sizeof(double));
}

void inp_NodeDataArrayImpl::widen() {
    size_t const rows = static_cast<size_t>(allocatedSize);
    auto* wide =
        static_cast<double*>(mem_Malloc(std::max<size_t>(rows, 1) * kDoubles * sizeof(double)));
    if (!wide) throw inp_MemoryException();
    for (size_t i = 0; i < rows; ++i) {
        double* row = wide + i * kDoubles;
        for (int j = 0; j < kDoubles; ++j) row[j] = j < width ? coords[i * width + j] : 0.0;
    }
    mem_Free(coords);
    coords = wide;
    width = kDoubles;
}

void inp_NodeDataArrayImpl::swap(inp_NodeDataArrayImpl& other) noexcept {
    std::swap(nrows, other.nrows);
    std::swap(allocatedSize, other.allocatedSize);
    std::swap(labels, other.labels);
    std::swap(coords, other.coords);
    std::swap(width, other.width);
}

// The conversion fills a new array and takes it over only at the end, so that
// a bad block leaves this one as it was.
void inp_NodeDataArrayImpl::SetRaw(inp_DataArray const& raw) {
    int rows = raw.Rows();
    int rowWidth = kPositionDoubles;
    for (int i = 0; i < rows && rowWidth == kPositionDoubles; ++i)
        if (raw.Cols(i) > 1 + kPositionDoubles) rowWidth = kDoubles;
    inp_NodeDataArrayImpl converted;
    converted.allocate(rows, false, rowWidth);
    NodeRowConverter converter(raw);
    for (int i = 0; i < rows; ++i)
        converter.Convert(i, converted.labels[i], converted.doublesOf(i), rowWidth);
    converter.ThrowIfBadCoordinates();
    converted.nrows = rows;
    swap(converted);
}

void inp_NodeDataArrayImpl::checkRow(int i) const {
    ZELBAS_ASSERT_TEXT(i >= 0 && i < nrows, "i >= 0 && i < nrows");
}

void inp_NodeDataArrayImpl::checkItem(int i, int j) const {
    checkRow(i);
    ZELBAS_ASSERT_TEXT(j >= 0 && j < kColumns, "j >= 0 && j < 7");
}

int inp_NodeDataArrayImpl::Cols(int i) const {
    checkRow(i);
    return kColumns;
}

inp_Types::typeEnm inp_NodeDataArrayImpl::Type(int i, int j) {
    checkItem(i, j);
    return j == 0 ? inp_Types::inp_INTEGER : inp_Types::inp_REAL;
}

bool inp_NodeDataArrayImpl::IsNone(int i, int j) const {
    checkItem(i, j);
    return false;
}

bool inp_NodeDataArrayImpl::HasValue(int i, int j) const {
    return i >= 0 && i < nrows && j >= 0 && j < kColumns;
}

int inp_NodeDataArrayImpl::AsInt(int i, int j) const {
    checkItem(i, j);
    if (j != 0) raise(atr("Keyword data cannot be converted to an integer"));
    return labels[i];
}

double inp_NodeDataArrayImpl::AsDouble(int i, int j) const {
    checkItem(i, j);
    if (j == 0) raise(atr("Node number cannot be converted to a double"));
    return doubleAt(i, j - 1);
}

cow_String inp_NodeDataArrayImpl::AsString(int i, int j) {
    checkItem(i, j);
    if (j == 0) return cow_String::FromInt(labels[i]);
    return cow_String::FromDouble(doubleAt(i, j - 1));
}

cow_String inp_NodeDataArrayImpl::AsStringVerbatim(int i, int j) {
    return AsString(i, j);
}

inp_DataArrayImpl& inp_NodeDataArrayImpl::Set(int, int, cow_String const&) {
    raise(atr("Nodal id, coordinates or normals cannot set as a string"));
}

inp_DataArrayImpl& inp_NodeDataArrayImpl::Set(int i, int j, double value) {
    checkItem(i, j);
    if (j == 0) raise(atr("Node number cannot be a double"));
    if (j - 1 >= width) {
        if (value == 0.0) return *this;  // what a narrow row reads there already
        widen();
    }
    doublesOf(i)[j - 1] = value;
    return *this;
}

inp_DataArrayImpl& inp_NodeDataArrayImpl::Set(int i, int j, int value) {
    checkItem(i, j);
    if (j != 0) raise(atr("Nodal coordinates or normals cannot be an integer"));
    labels[i] = value;
    return *this;
}

void inp_NodeDataArrayImpl::Append(char const*) {
    raise(
        atr("There has been an attempt to append a generic data line to a *NODE keyword.  This can "
            "happen when the nodal coordinate listing is separated from the *NODE keyword.  Please "
            "make sure your include files contain complete keywords (keyword + parameters + data "
            "lines).  Note that you can still use multiple files to list the nodes, provided you "
            "have *NODE at the top of each file. "));
}

void inp_NodeDataArrayImpl::AppendRaw(char const* line) {
    Append(line);
}

bool inp_NodeDataArrayImpl::HasRowContinuation(int i) const {
    checkRow(i);
    return false;
}

void inp_NodeDataArrayImpl::Append(int label, double x, double y, double z) {
    ZELBAS_ASSERT_TEXT(nrows + 1 < allocatedSize, "nrows+1 < allocatedSize");
    labels[nrows] = label;
    double* doubles = doublesOf(nrows);
    doubles[0] = x;
    doubles[1] = y;
    doubles[2] = z;
    ++nrows;
}
