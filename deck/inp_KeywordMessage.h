#pragma once
// How a diagnostic about a keyword is worded and where it points. Every
// message about a keyword is made here, so that all of them begin alike,
// name keyword, file and line in their text, and carry the same place as a
// location beside the text.

#include "support/atr_String.h"

class inp_Keyword;

// "in keyword *NAME, file "x.inp", line 12: " — the file part only when the
// keyword came from a named file (the name behind its last backslash), the
// line part and its colon only for a line other than 0.
atr_String inp_FormTitleForMessage(inp_Keyword const& keyword);

// The title, then the text; located at the keyword's file and line.
atr_String inp_MessageInKeyword(inp_Keyword const& keyword, atr_String const& text);

// The location of a keyword record: its file, its line, its name in upper case.
atr_Location inp_LocationOf(inp_Keyword const& keyword);
