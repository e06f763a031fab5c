#pragma once
// Resolves the name of a keyword line, as written, to its folded form and its
// enumerator through the keyword table, and remembers the answer for each
// name, failures included. A deck names the same few keywords again and
// again: the fold and the table's search then run once per name, not once
// per line.
//
// Belongs to one parser, on one thread. Stops remembering new names at
// kMaxNames.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "deck/inp_keywords.h"
#include "parser/inp_TextHash.h"
#include "support/cow_String.h"

class inp_KeywordResolver {
  public:
    static constexpr size_t kMaxNames = 4096;

    enum class Outcome { Found, Unknown, Ambiguous };
    struct Result {
        Outcome outcome = Outcome::Unknown;
        inp_KeywordEnm keyword = inp_kw_UndefinedKeyword;
        cow_String folded;  // the name folded, as messages show it
    };

    Result const& Resolve(std::string_view written);

  private:
    std::unordered_map<std::string, Result, inp_TextHash, std::equal_to<>> m_known;
    Result m_unremembered;
};
