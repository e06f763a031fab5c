#pragma once
// A handle to the data lines of a keyword. Copies of a handle share the very
// same lines: a Set or Append through one copy shows in all of them. Only
// Copy (and inp_Keyword::DeepCopy) makes independent data. The operations
// forward to the implementation without making the data private first.
//
// A handle that was moved from holds nothing and reads as an array of no
// rows; every other operation on it is a fault of the caller.

#include <utility>

#include "deck/inp_DataArrayImpl.h"
#include "support/cow_List.h"

class inp_DataArray {
  public:
    // A new, empty raw-text array.
    inp_DataArray();
    // Takes ownership of `impl`, which no other handle may hold.
    explicit inp_DataArray(inp_DataArrayImpl* impl);
    inp_DataArray(inp_DataArray const& other) noexcept : m_impl(other.m_impl) { retain(); }
    inp_DataArray(inp_DataArray&& other) noexcept : m_impl(std::exchange(other.m_impl, nullptr)) {}
    inp_DataArray& operator=(inp_DataArray const& other) noexcept {
        inp_DataArray(other).swap(*this);
        return *this;
    }
    inp_DataArray& operator=(inp_DataArray&& other) noexcept {
        inp_DataArray(std::move(other)).swap(*this);
        return *this;
    }
    ~inp_DataArray() { release(); }
    void swap(inp_DataArray& other) noexcept { std::swap(m_impl, other.m_impl); }

    int Rows() const { return m_impl ? m_impl->Rows() : 0; }
    int Cols(int i) const { return m_impl->Cols(i); }
    inp_Types::typeEnm Type(int i, int j) const { return m_impl->Type(i, j); }
    bool IsNone(int i, int j) const { return m_impl->IsNone(i, j); }
    bool HasValue(int i, int j) const { return m_impl->HasValue(i, j); }
    int AsInt(int i, int j) const { return m_impl->AsInt(i, j); }
    double AsDouble(int i, int j) const { return m_impl->AsDouble(i, j); }
    cow_String AsString(int i, int j) const { return m_impl->AsString(i, j); }
    // The item if (i, j) is in range, else `fallback` folded like an item.
    cow_String AsString(int i, int j, cow_String const& fallback) const;
    cow_String AsStringVerbatim(int i, int j) const { return m_impl->AsStringVerbatim(i, j); }
    bool HasRowContinuation(int i) const { return m_impl->HasRowContinuation(i); }

    // Writes are shared with every copy of this handle.
    void Set(int i, int j, cow_String const& text) const { m_impl->Set(i, j, text); }
    void Set(int i, int j, double value) const { m_impl->Set(i, j, value); }
    void Set(int i, int j, int value) const { m_impl->Set(i, j, value); }
    void Append(char const* line) const { m_impl->Append(line); }
    void Append(cow_String const& line) const { m_impl->Append(line.CStr()); }
    // Joins the items with commas; an empty list appends an empty line.
    void Append(cow_List<cow_String> const& items) const;
    void AppendRaw(char const* line) const { m_impl->AppendRaw(line); }

    // Replaces the implementation. The only owner deletes the old one; a
    // shared handle leaves its group, and the others keep the old data.
    void Set(inp_DataArrayImpl* impl) { inp_DataArray(impl).swap(*this); }

    // Independent data: a new handle owning a deep copy.
    inp_DataArray Copy() const { return inp_DataArray(m_impl->Copy()); }

    inp_DataArrayImpl* Impl() const { return m_impl; }
    int UseCount() const { return m_impl ? m_impl->m_handles : 0; }
    bool SharesWith(inp_DataArray const& other) const { return m_impl == other.m_impl; }

  private:
    void retain() const noexcept {
        if (m_impl) ++m_impl->m_handles;
    }
    void release() noexcept;

    inp_DataArrayImpl* m_impl = nullptr;
};
