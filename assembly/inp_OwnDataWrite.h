#pragma once
// Writing one data item of a keyword that may share its lines. Data handles
// are shared by the copies of a keyword, and a write through one shows in
// all of them; so the first change gives the keyword lines of its own, and
// its copies keep what they had. A walk that changes nothing copies nothing.

#include "deck/inp_Keyword.h"

inline void inp_WriteOwnDataItem(inp_Keyword& keyword, int line, int column,
                                 cow_String const& text) {
    if (keyword.Data().UseCount() > 1) keyword.SetData(keyword.Data().Copy());
    keyword.Data().Set(line, column, text);
}
