#pragma once
#include "deck/inp_keywords.h"

// One row of the keyword table: the folded name, the enumerator, and the
// zero-terminated list of keywords allowed directly below it (null for none).
// A row with a null name ends the table.
struct inp_KeywordTableRow {
    char const* name;
    inp_KeywordEnm keyword;
    inp_KeywordEnm const* suboptions;
};

extern const inp_KeywordTableRow inp_keywordTableRows[];
