#include "parser/inp_KeywordResolver.h"

#include "deck/inp_KeywordTable.h"
#include "parser/inp_FoldedNames.h"

inp_KeywordResolver::Result const& inp_KeywordResolver::Resolve(std::string_view written) {
    if (auto known = m_known.find(written); known != m_known.end()) return known->second;
    Result result;
    result.folded = inp_FoldName(written);
    int const matches = inp_KeywordTable::Instance().Match(result.folded.View(), result.keyword);
    result.outcome = matches == 1   ? Outcome::Found
                     : matches == 0 ? Outcome::Unknown
                                    : Outcome::Ambiguous;
    if (m_known.size() >= kMaxNames) return m_unremembered = result;
    return m_known.emplace(std::string(written), result).first->second;
}
