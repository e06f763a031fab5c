#pragma once
// Decks written inline in the tests of the mesh walks. The mesh tests link
// the mesh layer alone, without parser or expansion, so the deck is read
// here into the keyword list those stages leave: names folded to lower case
// without blanks, a parameter without a value a flag (true), values
// upper-cased outside quotes and typed, data lines raw, each keyword on its
// line of "deck.inp"; *ELEMENT data inside a part made compact, as
// expansion does, unless the test asks for the raw form.

#include <sstream>
#include <string>
#include <vector>

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_Keyword.h"
#include "deck/inp_QuotedText.h"
#include "support/atr_String.h"
#include "support/cow_List.h"

enum class InlineElementData { CompactInParts, Raw };

inline cow_List<inp_Keyword> InlineDeck(
    std::string const& text, InlineElementData elementData = InlineElementData::CompactInParts) {
    cow_List<inp_Keyword> keywords;
    std::istringstream lines(text);
    std::string line, field;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty() || line[0] != '*') {
            if (!keywords.IsEmpty()) keywords.GetLast().Data().Append(line.c_str());
            continue;
        }
        std::istringstream fields(line.substr(1));
        std::getline(fields, field, ',');
        inp_Keyword keyword(inp_TakeOutSpacesOutsideQuoted(field.c_str()).ToLower());
        keyword.SetFileName("deck.inp");
        keyword.SetLineNumber(number);
        while (std::getline(fields, field, ',')) {
            size_t const eq = field.find('=');
            cow_String const value = eq == std::string::npos
                                         ? cow_String()
                                         : inp_TakeOutSpacesAndUpperOutsideQuoted(&field[eq + 1]);
            keyword.SetParameter(
                inp_TakeOutSpacesOutsideQuoted(field.substr(0, eq).c_str()).ToLower(),
                value.IsEmpty() ? inp_Item(true) : inp_Item(value));
        }
        keywords.Append(keyword);
    }
    if (elementData == InlineElementData::Raw) return keywords;
    bool inPart = false;
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword& keyword = keywords.Get(i);
        if (keyword.Is(inp_kw_Part) || keyword.Is(inp_kw_EndPart)) inPart = keyword.Is(inp_kw_Part);
        if (keyword.Is(inp_kw_Element) && inPart)
            keyword.SetData(inp_DataArray(new inp_ElementDataArrayImpl(keyword.Data())));
    }
    return keywords;
}

// The texts of a list of diagnostics, for comparisons.
inline std::vector<std::string> TextsOf(cow_List<atr_String> const& list) {
    std::vector<std::string> result;
    for (atr_String const& text : list) result.emplace_back(text.View());
    return result;
}
