#pragma once
// The name of a keyword as decks and users write it: upper case, with blanks
// between its words ("*SOLID SECTION", "*END STEP", "*PRE-TENSION SECTION").
//
// The keyword table holds only the folded name ("solidsection"), which is all
// the reader needs: it folds every name it reads the same way, so where the
// blanks go never changes what a deck means. The words come from the handler
// name of the keyword (SolidSection): a capital that begins a lower-case run,
// or that follows a lower-case letter, begins a word, unless the folded name
// has a hyphen there already. So "CAddedMass" reads "C ADDED MASS" and
// "NonlinearBH" reads "NONLINEAR BH".

#include "deck/inp_keywords.h"
#include "support/cow_String.h"

// The display name of a keyword; the folded table name upper-cased for the
// keywords whose handler name does not spell it (the special ones such as
// "undefined keyword"), and an empty string for a number that is no key.
cow_String inp_KeywordDisplayName(inp_KeywordEnm key);
