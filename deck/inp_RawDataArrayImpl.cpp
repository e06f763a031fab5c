#include "deck/inp_RawDataArrayImpl.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "deck/inp_Exceptions.h"
#include "deck/inp_QuotedText.h"
#include "support/ZELBasAssert.h"

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// atoi, without the library call for the common case of a short plain number.
int parseInt(char const* text) {
    char const* p = text;
    while (*p == ' ' || *p == '\t' || *p == '\r' || *p == '\n' || *p == '\f' || *p == '\v') ++p;
    bool negative = *p == '-';
    if (*p == '+' || *p == '-') ++p;
    int digits = 0;
    long long value = 0;
    while (p[digits] >= '0' && p[digits] <= '9' && digits < 10)
        value = value * 10 + (p[digits++] - '0');
    if (digits == 10) return static_cast<int>(std::strtol(text, nullptr, 10));
    return static_cast<int>(negative ? -value : value);
}

// atof, through the faster from_chars where it gives the same answer. Forms
// that from_chars reads differently (hexadecimal, inf, nan, out of range) go
// to strtod.
double parseDouble(char const* text) {
    char const* p = text;
    while (*p == ' ' || *p == '\t' || *p == '\r' || *p == '\n' || *p == '\f' || *p == '\v') ++p;
    char const* start = *p == '+' ? p + 1 : p;
    if (*p == '+' && start[0] == '-') return 0.0;  // "+-1" is no number for atof either
    size_t length = std::strlen(start);
    double value = 0.0;
    auto [end, error] = std::from_chars(start, start + length, value);
    if (error == std::errc() && !std::strchr("xXnNiIpP", *end)) return value;
    if (error == std::errc::invalid_argument && !std::strchr("nNiI", *start)) return 0.0;
    return std::strtod(text, nullptr);
}

}  // namespace

inp_RawDataArrayImpl::inp_RawDataArrayImpl() = default;

// The copy packs every row that is left into one text block of its own.
inp_RawDataArrayImpl::inp_RawDataArrayImpl(inp_RawDataArrayImpl const& other)
    : inp_DataArrayImpl(other) {
    if (other.nrows == 0) return;
    size_t total = 0;
    int live = 0;
    for (int i = 0; i < other.nrows; ++i) {
        if (other.rows[i] == nullptr) continue;  // a released row
        total += other.rowSize(i);
        ++live;
    }
    rows = static_cast<char**>(mem_Malloc(sizeof(char*) * static_cast<size_t>(other.nrows)));
    ncols = static_cast<int*>(mem_Malloc(sizeof(int) * static_cast<size_t>(other.nrows)));
    blocks = static_cast<TextBlock*>(mem_Malloc(sizeof(TextBlock)));
    char* text = live > 0 ? static_cast<char*>(mem_Malloc(total)) : nullptr;
    if (!rows || !ncols || !blocks || (live > 0 && !text)) {
        mem_Free(rows);
        mem_Free(ncols);
        mem_Free(blocks);
        mem_Free(text);
        rows = nullptr;
        ncols = nullptr;
        blocks = nullptr;
        throw inp_MemoryException();
    }
    allocatedSize = other.nrows;
    nrows = other.nrows;
    allocatedBlocks = 1;
    nblocks = 1;
    blocks[0] = TextBlock{text, total, total, 0, live};
    char* next = text;
    for (int i = 0; i < other.nrows; ++i) {
        ncols[i] = other.ncols[i];
        rows[i] = nullptr;
        if (other.rows[i] == nullptr) continue;
        size_t const size = other.rowSize(i);
        std::memcpy(next, other.rows[i], size);
        rows[i] = next;
        next += size;
    }
}

inp_RawDataArrayImpl::~inp_RawDataArrayImpl() {
    for (int k = 0; k < nownRows; ++k) mem_Free(rows[ownRows[k]]);
    for (int k = 0; k < nblocks; ++k) freeText(blocks[k].text);
    mem_Free(ownRows);
    if (blocks != firstBlock) mem_Free(blocks);
    if (rows != firstRow) mem_Free(rows);
    if (ncols != firstColumns) mem_Free(ncols);
}

void inp_RawDataArrayImpl::freeText(char* text) noexcept {
    if (text != inlineText) mem_Free(text);
}

namespace {

// realloc for a table that may still lie in the object (`inPlace`): such a
// table is copied out, never handed to the allocator.
template <class T>
T* grownTable(T* table, T* inPlace, int oldSize, int newSize) {
    size_t const bytes = sizeof(T) * static_cast<size_t>(newSize);
    if (table != inPlace) return static_cast<T*>(mem_Realloc(table, bytes));
    T* grown = static_cast<T*>(mem_Malloc(bytes));
    if (grown) std::memcpy(grown, table, sizeof(T) * static_cast<size_t>(oldSize));
    return grown;
}

}  // namespace

// A row block holds the line with zeros for commas: its size is the position
// of the last item's terminator plus one.
size_t inp_RawDataArrayImpl::rowSize(int i) const {
    char const* last = Item(i, ncols[i] - 1);
    return static_cast<size_t>(last - rows[i]) + std::strlen(last) + 1;
}

bool inp_RawDataArrayImpl::hasOwnBlock(int i) const noexcept {
    return nownRows > 0 && std::binary_search(ownRows, ownRows + nownRows, i);
}

inp_RawDataArrayImpl::TextBlock& inp_RawDataArrayImpl::blockOf(int i) {
    TextBlock* const after =
        std::upper_bound(blocks, blocks + nblocks, i,
                         [](int row, TextBlock const& block) { return row < block.firstRow; });
    ZELBAS_ASSERT(after != blocks);
    return after[-1];
}

void inp_RawDataArrayImpl::dropRowText(int i) noexcept {
    if (rows[i] == nullptr) return;
    if (hasOwnBlock(i)) {
        mem_Free(rows[i]);
        int* const own = std::lower_bound(ownRows, ownRows + nownRows, i);
        std::memmove(own, own + 1, sizeof(int) * static_cast<size_t>(ownRows + nownRows - own - 1));
        --nownRows;
    } else if (TextBlock& block = blockOf(i); --block.liveRows == 0) {
        freeText(block.text);
        block.text = nullptr;
        block.used = block.capacity = 0;
    }
    rows[i] = nullptr;
}

void inp_RawDataArrayImpl::ReleaseRows(int first, int last) {
    ZELBAS_ASSERT_TEXT(first >= 0 && first <= last && last <= nrows,
                       "first >= 0 && first <= last && last <= nrows");
    for (int i = first; i < last; ++i) {
        dropRowText(i);
        ncols[i] = 0;
    }
}

inp_DataArrayImpl* inp_RawDataArrayImpl::Copy() const {
    return new inp_RawDataArrayImpl(*this);
}

// The row table starts with the one row that lies in the object and doubles.
void inp_RawDataArrayImpl::growIfFull() {
    if (nrows + 1 <= allocatedSize) return;
    int const newSize = allocatedSize * 2;
    char** newRows = grownTable(rows, firstRow, allocatedSize, newSize);
    if (!newRows) throw inp_MemoryException();
    rows = newRows;
    int* newCols = grownTable(ncols, firstColumns, allocatedSize, newSize);
    if (!newCols) throw inp_MemoryException();
    ncols = newCols;
    allocatedSize = newSize;
}

char* inp_RawDataArrayImpl::copyLine(char const* line, size_t& length) {
    length = std::strlen(line);
    char* block = static_cast<char*>(mem_Malloc(length + 1));
    if (!block) throw inp_MemoryException();
    std::memcpy(block, line, length + 1);
    return block;
}

char* inp_RawDataArrayImpl::packedRoom(size_t size) {
    if (nblocks > 0) {
        TextBlock& last = blocks[nblocks - 1];
        if (last.text != nullptr && last.capacity - last.used >= size) {
            char* room = last.text + last.used;
            last.used += size;
            ++last.liveRows;
            return room;
        }
    }
    if (nblocks == allocatedBlocks) {
        int const newSize = allocatedBlocks * 2;
        TextBlock* newBlocks = grownTable(blocks, firstBlock, allocatedBlocks, newSize);
        if (!newBlocks) throw inp_MemoryException();
        blocks = newBlocks;
        allocatedBlocks = newSize;
    }
    if (nblocks == 0 && size <= kInlineText) {
        blocks[nblocks++] = TextBlock{inlineText, size, kInlineText, nrows, 1};
        return inlineText;
    }
    size_t const grown =
        nblocks > 0 ? std::min(2 * blocks[nblocks - 1].capacity, kMaxBlockSize) : 0;
    size_t const capacity = std::max(size, grown);
    char* text = static_cast<char*>(mem_Malloc(capacity));
    if (!text) throw inp_MemoryException();
    blocks[nblocks++] = TextBlock{text, size, capacity, nrows, 1};
    return text;
}

namespace {

// 0x80 in each byte of `word` that is zero, 0 in every other byte; exact,
// with no false hits from borrows.
uint64_t zeroBytes(uint64_t word) {
    constexpr uint64_t kLow7 = 0x7F7F7F7F7F7F7F7FULL;
    return ~(((word & kLow7) + kLow7) | word | kLow7);
}

}  // namespace

// Eight bytes at a time while no quote is in sight (items are a few bytes
// long, so a library search per comma would cost more in calls than it
// saves), then byte by byte, with commas inside quotes left alone.
int inp_RawDataArrayImpl::splitAtCommas(char* block, size_t length) {
    constexpr uint64_t kCommas = 0x0101010101010101ULL * static_cast<unsigned char>(',');
    constexpr uint64_t kQuotes = 0x0101010101010101ULL * static_cast<unsigned char>('"');
    int columns = 1;
    size_t k = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (; k + 8 <= length; k += 8) {
            uint64_t word = 0;
            std::memcpy(&word, block + k, 8);
            if (zeroBytes(word ^ kQuotes) != 0) break;
            for (uint64_t hits = zeroBytes(word ^ kCommas); hits != 0; hits &= hits - 1) {
                block[k + static_cast<size_t>(std::countr_zero(hits)) / 8] = 0;
                ++columns;
            }
        }
    }
    bool quoted = false;
    for (; k < length; ++k) {
        char c = block[k];
        if (c == '"') {
            quoted = !quoted;
        } else if (c == ',' && !quoted) {
            block[k] = 0;
            ++columns;
        }
    }
    return columns;
}

void inp_RawDataArrayImpl::Append(char const* line) {
    growIfFull();
    if (!line) line = "";
    size_t const length = std::strlen(line);
    char* text = packedRoom(length + 1);
    std::memcpy(text, line, length + 1);
    rows[nrows] = text;
    ncols[nrows] = splitAtCommas(text, length);
    ++nrows;
}

void inp_RawDataArrayImpl::AppendRaw(char const* line) {
    growIfFull();
    if (!line) line = "";
    size_t const length = std::strlen(line);
    char* text = packedRoom(length + 1);
    std::memcpy(text, line, length + 1);
    rows[nrows] = text;
    ncols[nrows] = 1;
    ++nrows;
}

void inp_RawDataArrayImpl::checkRow(int i) const {
    ZELBAS_ASSERT_TEXT(i >= 0 && i < nrows, "i >= 0 && i < nrows");
}

void inp_RawDataArrayImpl::checkItem(int i, int j) const {
    checkRow(i);
    ZELBAS_ASSERT_TEXT(j >= 0 && j < ncols[i], "j >= 0 && j < ncols[i]");
}

int inp_RawDataArrayImpl::Cols(int i) const {
    checkRow(i);
    return ncols[i];
}

char const* inp_RawDataArrayImpl::Item(int i, int j) const {
    checkItem(i, j);
    char const* item = rows[i];
    for (int k = 0; k < j; ++k) item += std::strlen(item) + 1;
    return item;
}

inp_Types::typeEnm inp_RawDataArrayImpl::Type(char const* text) {
    char const* p = text;
    while (isBlank(*p)) ++p;
    // After the leading blanks, anything at all means a non-blank length.
    if (*p == 0) return inp_Types::inp_NONE;

    char first = *p;
    if (*p == '+' || *p == '-') ++p;
    if (first == 'e' || first == 'd' || first == 'E' || first == 'D') return inp_Types::inp_STRING;

    // Blanks inside the item are passed over like those around it.
    int signs = 0, points = 0, exponents = 0, digits = 0;
    for (; *p; ++p) {
        char c = *p;
        if (c >= '0' && c <= '9') {
            ++digits;
        } else if (c == '+' || c == '-') {
            ++signs;
        } else if (c == '.') {
            ++points;
        } else if (c == 'e' || c == 'd' || c == 'E' || c == 'D') {
            ++exponents;
        } else if (!isBlank(c)) {
            return inp_Types::inp_STRING;
        }
    }
    if (signs >= 2) return inp_Types::inp_STRING;
    if (signs == 0 && points == 0) {
        if (exponents == 1) return inp_Types::inp_REAL;
        if (exponents >= 2) return inp_Types::inp_STRING;
        return digits <= 9 ? inp_Types::inp_INTEGER : inp_Types::inp_REAL;
    }
    if (points >= 2 || exponents >= 2) return inp_Types::inp_STRING;
    return inp_Types::inp_REAL;
}

inp_Types::typeEnm inp_RawDataArrayImpl::Type(int i, int j) {
    return Type(Item(i, j));
}

bool inp_RawDataArrayImpl::IsNone(int i, int j) const {
    for (char const* p = Item(i, j); *p; ++p)
        if (!isBlank(*p)) return false;
    return true;
}

bool inp_RawDataArrayImpl::HasValue(int i, int j) const {
    if (i < 0 || i >= nrows || j < 0 || j >= ncols[i]) return false;
    return !IsNone(i, j);
}

int inp_RawDataArrayImpl::AsInt(int i, int j) const {
    return parseInt(Item(i, j));
}

double inp_RawDataArrayImpl::AsDouble(int i, int j) const {
    // The stored text is rewritten on purpose: "1.5D3" becomes "1.5e3" for good.
    char* item = const_cast<char*>(Item(i, j));
    char* exponent = std::strchr(item, 'D');
    if (!exponent) exponent = std::strchr(item, 'd');
    if (exponent) *exponent = 'e';
    return parseDouble(item);
}

cow_String inp_RawDataArrayImpl::AsStringVerbatim(int i, int j) {
    char const* item = Item(i, j);
    size_t begin = 0, end = std::strlen(item);
    while (begin < end && (item[begin] == ' ' || item[begin] == '\t')) ++begin;
    while (end > begin && (item[end - 1] == ' ' || item[end - 1] == '\t')) --end;
    return cow_String(item + begin, static_cast<int>(end - begin));
}

// The fold drops every blank outside quotes, those at the ends too, so the
// item is folded as it stands, without a trimmed copy first.
cow_String inp_RawDataArrayImpl::AsString(int i, int j) {
    return inp_TakeOutSpacesAndUpperOutsideQuoted(Item(i, j));
}

inp_DataArrayImpl& inp_RawDataArrayImpl::Set(int i, int j, cow_String const& text) {
    checkRow(i);
    ZELBAS_ASSERT_TEXT(j >= 0, "j >= 0");
    int columns = ncols[i] > j + 1 ? ncols[i] : j + 1;
    cow_String line;
    for (int k = 0; k < columns; ++k) {
        if (k > 0) line.append(',');
        if (k == j) {
            line.append(text);
        } else if (k < ncols[i]) {
            line.append(AsStringVerbatim(i, k));
        }
    }
    size_t length = 0;
    char* block = copyLine(line.CStr(), length);
    auto* newOwnRows =
        static_cast<int*>(mem_Realloc(ownRows, sizeof(int) * static_cast<size_t>(nownRows + 1)));
    if (!newOwnRows) {
        mem_Free(block);
        throw inp_MemoryException();
    }
    ownRows = newOwnRows;
    dropRowText(i);
    int* const own = std::lower_bound(ownRows, ownRows + nownRows, i);
    std::memmove(own + 1, own, sizeof(int) * static_cast<size_t>(ownRows + nownRows - own));
    *own = i;
    ++nownRows;
    rows[i] = block;
    ncols[i] = splitAtCommas(block, length);
    return *this;
}

inp_DataArrayImpl& inp_RawDataArrayImpl::Set(int i, int j, double value) {
    return Set(i, j, cow_String::FromDouble(value));
}

inp_DataArrayImpl& inp_RawDataArrayImpl::Set(int i, int j, int value) {
    return Set(i, j, cow_String::FromInt(value));
}

bool inp_RawDataArrayImpl::HasRowContinuation(int i) const {
    return IsNone(i, Cols(i) - 1);
}
