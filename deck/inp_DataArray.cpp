#include "deck/inp_DataArray.h"

#include "deck/inp_QuotedText.h"
#include "deck/inp_RawDataArrayImpl.h"

inp_DataArray::inp_DataArray() : m_impl(new inp_RawDataArrayImpl()) {}

inp_DataArray::inp_DataArray(inp_DataArrayImpl* impl) : m_impl(impl) {}

cow_String inp_DataArray::AsString(int i, int j, cow_String const& fallback) const {
    if (i >= 0 && i < Rows() && j >= 0 && j < Cols(i)) return AsString(i, j);
    return inp_TakeOutSpacesAndUpperOutsideQuoted(fallback.CStr());
}

void inp_DataArray::Append(cow_List<cow_String> const& items) const {
    cow_String line;
    for (int k = 0; k < items.Length(); ++k) {
        if (k > 0) line.append(',');
        line.append(items.ConstGet(k));
    }
    Append(line.CStr());
}
