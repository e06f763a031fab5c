#pragma once
// The data lines of a keyword, behind one abstract interface. Three forms
// exist: raw text (inp_RawDataArrayImpl) and the compact node and element
// arrays. Rows and columns count from 0.

#include "deck/inp_Types.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"

class inp_DataArrayImpl : public mem_AllocationOperators {
  public:
    inp_DataArrayImpl() = default;
    // A copy of an implementation starts with no handles of its own.
    inp_DataArrayImpl(inp_DataArrayImpl const&) {}
    inp_DataArrayImpl& operator=(inp_DataArrayImpl const&) = delete;
    virtual ~inp_DataArrayImpl() = default;

    virtual int Rows() const = 0;
    virtual int Cols(int i) const = 0;
    virtual inp_Types::typeEnm Type(int i, int j) = 0;
    virtual bool IsNone(int i, int j) const = 0;
    // The only access without assertion: false for a position out of range.
    virtual bool HasValue(int i, int j) const = 0;
    virtual int AsInt(int i, int j) const = 0;
    virtual double AsDouble(int i, int j) const = 0;
    virtual cow_String AsString(int i, int j) = 0;
    virtual cow_String AsStringVerbatim(int i, int j) = 0;
    virtual inp_DataArrayImpl& Set(int i, int j, cow_String const& text) = 0;
    virtual inp_DataArrayImpl& Set(int i, int j, double value) = 0;
    virtual inp_DataArrayImpl& Set(int i, int j, int value) = 0;
    virtual void Append(char const* line) = 0;
    virtual void AppendRaw(char const* line) = 0;
    // Whether the last item of row i is empty: the line ended in a comma.
    virtual bool HasRowContinuation(int i) const = 0;
    // A deep copy, owned by the caller.
    virtual inp_DataArrayImpl* Copy() const = 0;

  private:
    friend class inp_DataArray;
    // The inp_DataArray handles that share this object. Kept in the object
    // itself, so that a keyword's data costs one allocation, not two.
    int m_handles = 0;
};
