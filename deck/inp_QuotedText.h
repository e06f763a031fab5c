#pragma once
// Folding of deck text outside double quotes. A double quote opens a quoted
// stretch and the next one closes it; quoted text keeps its case and blanks,
// and the quote characters themselves are kept.

#include "support/cow_String.h"

// Copies `text` up to its end or its first newline. Outside quotes blanks,
// tabs and carriage returns are dropped and letters are upper-cased; inside
// quotes everything stays as it is. A newline that ended the copy is kept as
// the last character.
cow_String inp_TakeOutSpacesAndUpperOutsideQuoted(char const* text);

// The same without upper-casing.
cow_String inp_TakeOutSpacesOutsideQuoted(char const* text);

// The same folds of a whole string; a string that folds to itself is handed
// back, shared, instead of copied.
cow_String inp_TakeOutSpacesAndUpperOutsideQuoted(cow_String const& text);
cow_String inp_TakeOutSpacesOutsideQuoted(cow_String const& text);
