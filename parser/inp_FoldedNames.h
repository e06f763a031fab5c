#pragma once
// The folded names of one deck's keywords and parameters (lower case, blanks
// and tabs dropped), one shared string per name as written. A deck of a
// million *NSET lines names "nset" a million times: every keyword then holds
// a count on one string instead of a block of its own, and a name costs a
// lookup of the text as written instead of a fold and an allocation.
//
// Belongs to one parser, on one thread, like the keywords it fills. The table
// stops growing at kMaxNames names (a deck that invents a new name on every
// line gains nothing from sharing); later new names are folded into strings
// of their own.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "parser/inp_TextHash.h"
#include "support/cow_String.h"

class inp_FoldedNames {
  public:
    static constexpr size_t kMaxNames = 4096;

    // The folded form of `written`.
    cow_String Fold(std::string_view written);

  private:
    std::unordered_map<std::string, cow_String, inp_TextHash, std::equal_to<>> m_names;
};

// Lower case, every blank and tab removed: how keyword and parameter names compare.
cow_String inp_FoldName(std::string_view text);
