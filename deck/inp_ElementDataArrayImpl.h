#pragma once
// The data lines of an *ELEMENT keyword after expansion: each row a run of
// integers, the element label and its nodes as the deck wrote them. An
// integer 0 is a none item, an empty place in the line; in the last place of
// a row it marks the continuation that a trailing comma made in the deck.
// Visitors read it through inp_DataArray like the raw text form.
//
// Connectivity of more than 15 nodes takes several rows, as in the deck: the
// first row holds the label and 15 nodes, every further row up to 16 nodes,
// and each row but the last ends in the continuation 0.
//
// The row lengths are fixed once built: Set may change an integer in place,
// and generic text lines can never be appended.

#include <span>

#include "deck/inp_DataArray.h"
#include "deck/inp_DataArrayImpl.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"

class inp_ElementDataArrayImpl : public inp_DataArrayImpl {
  public:
    // Nodes that the first row of an element holds, behind its label.
    static constexpr int kNodesInFirstRow = 15;
    // Nodes that each further row holds.
    static constexpr int kNodesInFurtherRow = 16;

    // One element as the constructor from a span takes it: its label and
    // `count` nodes at `nodes` (which may be null when there are none).
    struct Connectivity {
        int label;
        int const* nodes;
        int count;
    };

    inp_ElementDataArrayImpl() = default;
    // One integer per item, read as atoi reads it, with the row and column
    // counts of `raw`. Nothing is checked: the element visitor has done that.
    explicit inp_ElementDataArrayImpl(inp_DataArray const& raw);
    // The deck form of the given elements, in their order. Holders of
    // elements elsewhere build through it (mesh/inp_ElementDataFromMap.h).
    explicit inp_ElementDataArrayImpl(std::span<Connectivity const> elements);
    // The deck form of every element of the map, ascending by label.
    explicit inp_ElementDataArrayImpl(cow_Map<int, cow_List<int>> const& elements);
    inp_ElementDataArrayImpl(inp_ElementDataArrayImpl const& other);
    inp_ElementDataArrayImpl& operator=(inp_ElementDataArrayImpl const& other);
    ~inp_ElementDataArrayImpl() override;

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

  private:
    class Writer;

    // Room for `rows` rows and `count` integers in all; throws inp_MemoryException.
    void allocate(int rows, size_t count);
    void swap(inp_ElementDataArrayImpl& other) noexcept;
    void checkRow(int i) const;
    void checkItem(int i, int j) const;

    int nrows = 0;
    int* ncols = nullptr;  // integers per row
    int** rows = nullptr;  // per row, its first integer
    // The integers of all rows, one row after the other: the row lengths are
    // known before any row is written, so one allocation serves them all.
    int* values = nullptr;
};
