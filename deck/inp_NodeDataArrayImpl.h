#pragma once
// The data lines of a *NODE keyword after expansion: per row a label and six
// doubles (X, Y, Z and the three components of a normal), in place of the
// text that was read. Every row has exactly 7 columns whatever the deck said:
// column 0 is the label, columns 1 to 6 the doubles, and absent columns read
// as 0.0. Visitors read it through inp_DataArray like the raw text form.
//
// The rows are fixed once built: SetRaw converts a whole raw array, and the
// size constructor prepares rows that Append(label, x, y, z) fills in turn.
// Generic text lines can never be appended.
//
// Most decks give no normals: a block none of whose lines goes beyond Z keeps
// three doubles a row, and its normals read as 0.0 all the same. Setting a
// normal component other than 0.0 widens the rows to six doubles.

#include "deck/inp_DataArray.h"
#include "deck/inp_DataArrayImpl.h"

class inp_NodeDataArrayImpl : public inp_DataArrayImpl {
  public:
    static constexpr int kColumns = 7;

    inp_NodeDataArrayImpl() = default;
    // `size` rows allocated and zeroed, none in use yet, for Append(label, x, y, z).
    explicit inp_NodeDataArrayImpl(int size);
    inp_NodeDataArrayImpl(inp_NodeDataArrayImpl const& other);
    inp_NodeDataArrayImpl& operator=(inp_NodeDataArrayImpl const& other);
    ~inp_NodeDataArrayImpl() override;

    // Replaces all content by the conversion of the raw lines of `raw`. On a
    // bad label or bad coordinates it throws and the old content stays.
    void SetRaw(inp_DataArray const& raw);
    void Clear() noexcept;

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

    // Fills the next prepared row; the normal stays zero. Needs
    // nrows + 1 < allocatedSize, so the last prepared row is never filled.
    virtual void Append(int label, double x, double y, double z);

  private:
    static constexpr int kDoubles = kColumns - 1;
    static constexpr int kPositionDoubles = 3;  // a row without a normal

    // Allocates `size` rows of `width` doubles, zeroed when `zeroed`; throws
    // inp_MemoryException.
    void allocate(int size, bool zeroed, int width);
    // Makes the rows six doubles wide, the normals zero.
    void widen();
    void swap(inp_NodeDataArrayImpl& other) noexcept;
    void checkRow(int i) const;
    void checkItem(int i, int j) const;
    double* doublesOf(int i) const { return coords + static_cast<size_t>(i) * width; }
    // Double j of row i (0 for X), 0.0 beyond the row's width.
    double doubleAt(int i, int j) const { return j < width ? doublesOf(i)[j] : 0.0; }

    int nrows = 0;          // rows in use
    int allocatedSize = 0;  // rows allocated
    int* labels = nullptr;  // one node label per row
    // `width` doubles per row, the rows one after the other in a single block:
    // every way of filling the array knows its size first, so one allocation
    // serves all rows and a row costs exactly its 24 or 48 bytes.
    double* coords = nullptr;
    int width = kDoubles;
};
