#include "deck/inp_DataArray.h"

#include "deck/inp_QuotedText.h"
#include "deck/inp_RawDataArrayImpl.h"

inp_DataArray::inp_DataArray(inp_DataArrayImpl* impl) : m_impl(impl) {
    retain();
}

inp_DataArrayImpl* inp_DataArray::storage() const {
    if (!m_impl) {
        m_impl = new inp_RawDataArrayImpl();
        retain();
    }
    return m_impl;
}

// Shared by every thread: reads of an array of no rows change nothing (the
// item reads assert before they touch a row), and nothing writes to it.
inp_DataArrayImpl* inp_DataArray::emptyArray() noexcept {
    static inp_RawDataArrayImpl empty;
    return &empty;
}

// Out of line, like the counts of the other shared handles: when two handles
// of one array die in the same function, the compiler's use-after-free
// analysis cannot tell that only the last one deletes.
void inp_DataArray::release() noexcept {
    if (m_impl && --m_impl->m_handles == 0) delete m_impl;
    m_impl = nullptr;
}

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
