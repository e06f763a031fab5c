#pragma once
// A handle to the data lines of a keyword. Copies of a handle share the very
// same lines: a Set or Append through one copy shows in all of them. Only
// Copy (and inp_Keyword::DeepCopy) makes independent data. The operations
// forward to the implementation without making the data private first.
//
// A new handle holds no storage: many keywords have no data lines (*MATERIAL,
// *STATIC, *END STEP), and a handle that is only moved never needs any. The
// storage (an empty raw-text array) is made by the first write, by Impl(),
// and by the first copy, in the handle copied from, so that the copies
// share it like any other. Reads of a handle without storage see an array
// of no rows. A handle that was moved from is such a handle.

#include <utility>

#include "deck/inp_DataArrayImpl.h"
#include "support/cow_List.h"

class inp_DataArray {
  public:
    // An empty raw-text array, without storage yet.
    inp_DataArray() noexcept = default;
    // Takes ownership of `impl`, which no other handle may hold.
    explicit inp_DataArray(inp_DataArrayImpl* impl);
    inp_DataArray(inp_DataArray const& other) : m_impl(other.storage()) { retain(); }
    inp_DataArray(inp_DataArray&& other) noexcept : m_impl(std::exchange(other.m_impl, nullptr)) {}
    inp_DataArray& operator=(inp_DataArray const& other) {
        inp_DataArray(other).swap(*this);
        return *this;
    }
    inp_DataArray& operator=(inp_DataArray&& other) noexcept {
        inp_DataArray(std::move(other)).swap(*this);
        return *this;
    }
    ~inp_DataArray() { release(); }
    void swap(inp_DataArray& other) noexcept { std::swap(m_impl, other.m_impl); }

    int Rows() const { return reader()->Rows(); }
    int Cols(int i) const { return reader()->Cols(i); }
    inp_Types::typeEnm Type(int i, int j) const { return reader()->Type(i, j); }
    bool IsNone(int i, int j) const { return reader()->IsNone(i, j); }
    bool HasValue(int i, int j) const { return reader()->HasValue(i, j); }
    int AsInt(int i, int j) const { return reader()->AsInt(i, j); }
    double AsDouble(int i, int j) const { return reader()->AsDouble(i, j); }
    cow_String AsString(int i, int j) const { return reader()->AsString(i, j); }
    // The item if (i, j) is in range, else `fallback` folded like an item.
    cow_String AsString(int i, int j, cow_String const& fallback) const;
    cow_String AsStringVerbatim(int i, int j) const { return reader()->AsStringVerbatim(i, j); }
    bool HasRowContinuation(int i) const { return reader()->HasRowContinuation(i); }

    // Writes are shared with every copy of this handle.
    void Set(int i, int j, cow_String const& text) const { storage()->Set(i, j, text); }
    void Set(int i, int j, double value) const { storage()->Set(i, j, value); }
    void Set(int i, int j, int value) const { storage()->Set(i, j, value); }
    void Append(char const* line) const { storage()->Append(line); }
    void Append(cow_String const& line) const { storage()->Append(line.CStr()); }
    // Joins the items with commas; an empty list appends an empty line.
    void Append(cow_List<cow_String> const& items) const;
    void AppendRaw(char const* line) const { storage()->AppendRaw(line); }

    // Replaces the implementation. The only owner deletes the old one; a
    // shared handle leaves its group, and the others keep the old data.
    void Set(inp_DataArrayImpl* impl) { inp_DataArray(impl).swap(*this); }

    // Independent data: a new handle owning a deep copy (none without storage).
    inp_DataArray Copy() const { return m_impl ? inp_DataArray(m_impl->Copy()) : inp_DataArray(); }

    // The implementation, made if the handle has no storage yet.
    inp_DataArrayImpl* Impl() const { return storage(); }
    // 0 for a handle without storage.
    int UseCount() const { return m_impl ? m_impl->m_handles : 0; }
    // Whether both handles hold the same storage; a handle without any
    // shares nothing.
    bool SharesWith(inp_DataArray const& other) const {
        return m_impl != nullptr && m_impl == other.m_impl;
    }

  private:
    void retain() const noexcept {
        if (m_impl) ++m_impl->m_handles;
    }
    void release() noexcept;
    // The storage, made on first need.
    inp_DataArrayImpl* storage() const;
    // What reads see: the storage, or a shared empty array that nothing
    // writes to when there is none.
    inp_DataArrayImpl* reader() const noexcept { return m_impl ? m_impl : emptyArray(); }
    static inp_DataArrayImpl* emptyArray() noexcept;

    // Made on first need by const operations too: which storage a handle
    // holds is no part of its value, the lines are.
    mutable inp_DataArrayImpl* m_impl = nullptr;
};
