#pragma once
// How the reference walks read one datum of a keyword, ask what it is to
// become, and write it back. Shared by the set, surface and name families,
// which differ only in the question they ask.
//
// A datum is written only when the answer differs from it. Data handles are
// shared by the copies of a keyword, and a write through one shows in all of
// them; so the first change gives the keyword lines of its own, and its
// copies keep what they had. A walk that changes nothing copies nothing.

#include <initializer_list>
#include <string_view>

#include "deck/inp_Item.h"
#include "deck/inp_Keyword.h"

inline void inp_WriteOwnDataItem(inp_Keyword& keyword, int line, int column,
                                 cow_String const& text) {
    if (keyword.Data().UseCount() > 1) keyword.SetData(keyword.Data().Copy());
    keyword.Data().Set(line, column, text);
}

// The item at (line, column) through `answer`; absent and blank items pass.
template <class Answer>
void inp_RewriteDataItem(inp_Keyword& keyword, int line, int column, Answer&& answer) {
    if (!keyword.Data().HasValue(line, column)) return;
    cow_String const datum = keyword.Data().AsString(line, column);
    cow_String const result = answer(datum);
    if (result != datum) inp_WriteOwnDataItem(keyword, line, column, result);
}

// The value of parameter `name` through `answer`, if the keyword has one.
template <class Answer>
void inp_RewriteParameter(inp_Keyword& keyword, cow_String const& name, Answer&& answer) {
    inp_Item const* value = keyword.Parameters().Find(name);
    if (value == nullptr || value->Type() == inp_Types::inp_NONE) return;
    cow_String const datum = value->AsString();
    cow_String const result = answer(datum);
    if (result != datum) keyword.SetParameter(name, inp_Item(result));
}

// Whether the string value of parameter `name` is one of `words`.
inline bool inp_ParameterIsOneOf(inp_Keyword const& keyword, char const* name,
                                 std::initializer_list<std::string_view> words) {
    inp_Item const* value = keyword.Parameters().Find(name);
    if (value == nullptr) return false;
    cow_String const text = value->AsString();
    for (std::string_view word : words)
        if (text.View() == word) return true;
    return false;
}

// Whether an item's text starts like a number (a digit, a sign or a
// period) rather than a name.
inline bool inp_StartsLikeNumber(cow_String const& text) {
    if (text.IsEmpty()) return false;
    char const first = text.View().front();
    return (first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.';
}
