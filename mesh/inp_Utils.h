#pragma once
// Name and message utilities shared by every stage: how a name is taken apart
// and how a diagnostic about a keyword is worded.

#include "deck/inp_QuotedText.h"

class inp_Utils {
  public:
    static cow_String TakeOutSpacesAndUpperOutsideQuoted(char const* text) {
        return inp_TakeOutSpacesAndUpperOutsideQuoted(text);
    }
    static cow_String TakeOutSpacesOutsideQuoted(char const* text) {
        return inp_TakeOutSpacesOutsideQuoted(text);
    }
};
