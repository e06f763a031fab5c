#pragma once
// Data lines kept as the text that was read. Each row is one heap block
// holding the line with every separating comma overwritten by a zero byte, so
// the items of a row are consecutive zero-terminated strings and a row costs
// one allocation however many items it has. Nothing is typed or converted
// until somebody asks.
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
    // the reader builds what replaces it.
    void ReleaseRows(int first, int last);

  private:
    void growIfFull();
    // Copies `line` into a new block and returns it with the length in `length`.
    static char* copyLine(char const* line, size_t& length);
    // Overwrites separating commas (outside quotes) with zeros; returns the item count.
    static int splitAtCommas(char* block, size_t length);
    void checkRow(int i) const;
    void checkItem(int i, int j) const;

    int nrows = 0;          // rows in use
    int allocatedSize = 0;  // rows allocated
    char** rows = nullptr;  // one block per row
    int* ncols = nullptr;   // items per row
};
