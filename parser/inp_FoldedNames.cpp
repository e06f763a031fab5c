#include "parser/inp_FoldedNames.h"

cow_String inp_FoldName(std::string_view text) {
    cow_String folded;
    folded.Reserve(static_cast<int>(text.size()));
    for (char c : text) {
        if (c == ' ' || c == '\t') continue;
        folded.append(static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c));
    }
    return folded;
}

cow_String inp_FoldedNames::Fold(std::string_view written) {
    if (auto known = m_names.find(written); known != m_names.end()) return known->second;
    cow_String folded = inp_FoldName(written);
    if (m_names.size() < kMaxNames) m_names.emplace(std::string(written), folded);
    return folded;
}
