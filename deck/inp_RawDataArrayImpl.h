#pragma once
// Data lines kept as the text that was read. A row holds the line with every
// separating comma overwritten by a zero byte, so the items of a row are
// consecutive zero-terminated strings. Appended rows are packed one after the
// other into text blocks that grow with the keyword (the first just fits its
// line, each next one is twice the size of the one before, up to
// kMaxBlockSize), so that a million data lines cost some hundreds of
// allocations, not a million. A row rewritten by Set() gets a block of its
// own. Nothing is typed or converted until somebody asks.
//
// Most small keywords have one data line: the tables of the first row and
// of the first text block lie in the object itself, and so does the first
// block's text when it is short, so that such a keyword's data cost one
// allocation.
//
// Not thread-safe, and not const-pure: AsDouble rewrites a D exponent letter
// in the stored text so that a second read needs no work.

#include "deck/inp_DataArrayImpl.h"

class inp_RawDataArrayImpl : public inp_DataArrayImpl {
  public:
    inp_RawDataArrayImpl();
    inp_RawDataArrayImpl(inp_RawDataArrayImpl const& other);
    inp_RawDataArrayImpl& operator=(inp_RawDataArrayImpl const&) = delete;
    ~inp_RawDataArrayImpl() override;

    // The quick typing of one data item that stands in for the item patterns,
    // so that millions of items can be typed without a regular expression.
    static inp_Types::typeEnm Type(char const* text);

    int Rows() const override { return nrows; }
    int Cols(int i) const override;
    inp_Types::typeEnm Type(int i, int j) override;
    bool IsNone(int i, int j) const override;
    bool HasValue(int i, int j) const override;
    int AsInt(int i, int j) const override;
    double AsDouble(int i, int j) const override;
    cow_String AsString(int i, int j) override;
    cow_String AsStringVerbatim(int i, int j) override;
    inp_DataArrayImpl& Set(int i, int j, cow_String const& text) override;
    inp_DataArrayImpl& Set(int i, int j, double value) override;
    inp_DataArrayImpl& Set(int i, int j, int value) override;
    void Append(char const* line) override;
    void AppendRaw(char const* line) override;
    bool HasRowContinuation(int i) const override;
    inp_DataArrayImpl* Copy() const override;

    // The item's text as stored (after any in-place exponent rewrite).
    char const* Item(int i, int j) const;
    // Frees the text of rows [first, last): they read as rows without items
    // from then on. For a reader that has taken what those rows said and
    // whose keyword's data go afterwards anyway: the memory comes free while
    // the reader builds what replaces it, a text block as soon as none of
    // its rows is left.
    void ReleaseRows(int first, int last);

    // The largest text block rows are packed into.
    static constexpr size_t kMaxBlockSize = size_t{256} << 10;
    // The first text block lies in the object when its first row fits here.
    static constexpr size_t kInlineText = 24;

  private:
    // A block of packed row text: rows [firstRow, next block's firstRow).
    struct TextBlock {
        char* text;  // null once every row in it is released
        size_t used;
        size_t capacity;
        int firstRow;
        int liveRows;  // rows of the block not yet released or rewritten
    };

    void growIfFull();
    // Lets go of a text block's text unless it lies in the object.
    void freeText(char* text) noexcept;
    // Room for `size` bytes at the end of the last text block, or in a new
    // block; the row being appended is counted in the block.
    char* packedRoom(size_t size);
    // The block that holds the packed row `i`.
    TextBlock& blockOf(int i);
    // Lets go of row `i`'s text, whether packed or a block of its own.
    void dropRowText(int i) noexcept;
    bool hasOwnBlock(int i) const noexcept;
    // The bytes of row `i`'s text, the last terminator included.
    size_t rowSize(int i) const;
    // Copies `line` into a new block and returns it with the length in `length`.
    static char* copyLine(char const* line, size_t& length);
    // Overwrites separating commas (outside quotes) with zeros; returns the item count.
    static int splitAtCommas(char* block, size_t length);
    void checkRow(int i) const;
    void checkItem(int i, int j) const;

    // Counts first and the first row's tables last, packed so that an array
    // of one short row fits a small allocation. What a walk that checks the
    // shape of each keyword's data reads, the count of rows and the items of
    // the first, lies in the first bytes.
    int nrows = 0;          // rows in use
    int allocatedSize = 1;  // rows allocated
    int nblocks = 0;
    int allocatedBlocks = 1;
    int nownRows = 0;
    int firstColumns[1] = {};
    char** rows = firstRow;     // each row's text: in a text block, or a block of its own
    int* ncols = firstColumns;  // items per row
    TextBlock* blocks = firstBlock;
    // The rows rewritten by Set(), ascending: each has a block of its own.
    int* ownRows = nullptr;
    // The tables' first entries, until a second row or block moves them out.
    char* firstRow[1] = {};
    TextBlock firstBlock[1] = {};
    char inlineText[kInlineText] = {};
};
