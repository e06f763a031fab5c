#pragma once
// Name and message utilities shared by every stage: how a name is taken apart
// and how a diagnostic about a keyword is worded. Every message about a
// keyword goes through MessageInKeyword, so that all of them begin alike and
// name keyword, file and line.

#include "deck/inp_QuotedText.h"
#include "support/atr_String.h"

class inp_Keyword;

class inp_Utils {
public:
    static cow_String TakeOutSpacesAndUpperOutsideQuoted(char const* text) {
        return inp_TakeOutSpacesAndUpperOutsideQuoted(text);
    }
    static cow_String TakeOutSpacesOutsideQuoted(char const* text) { return inp_TakeOutSpacesOutsideQuoted(text); }

    // "in keyword *NAME, file "x.inp", line 12: " — the file part only when
    // the keyword came from a named file (the name behind its last
    // backslash), the line part and its colon only for a line other than 0.
    static atr_String FormTitleForMessage(inp_Keyword const& keyword);
    // The title, then the text.
    static atr_String MessageInKeyword(inp_Keyword const& keyword, atr_String const& text);
};
