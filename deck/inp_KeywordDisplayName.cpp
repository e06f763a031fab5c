#include "deck/inp_KeywordDisplayName.h"

#include <cctype>
#include <string>

namespace {

struct NamePair {
    char const* camel;
    char const* folded;
};

NamePair namesOf(inp_KeywordEnm key) {
    switch (key) {
#define INP_KEYWORD_NAME_PAIR(camel, name, number) \
    case inp_kw_##camel:                           \
        return {#camel, name};
        INP_KEYWORDS(INP_KEYWORD_NAME_PAIR)
#undef INP_KEYWORD_NAME_PAIR
    }
    return {nullptr, nullptr};
}

bool isUpper(char c) {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}
bool isLower(char c) {
    return std::islower(static_cast<unsigned char>(c)) != 0;
}

// Whether the capital at camel[i] begins a word.
bool beginsWord(char const* camel, int i) {
    if (i == 0 || !isUpper(camel[i])) return false;
    return isLower(camel[i - 1]) || isLower(camel[i + 1]);
}

std::string upperCased(char const* folded) {
    std::string name;
    for (char const* p = folded; *p; ++p)
        name += static_cast<char>(std::toupper(static_cast<unsigned char>(*p)));
    return name;
}

// Walks the folded name and the handler name side by side; they hold the same
// letters and digits, the folded name a hyphen here and there. Null when they
// do not match.
bool spellWithWords(char const* camel, char const* folded, std::string& name) {
    int i = 0;
    for (char const* p = folded; *p; ++p) {
        if (*p == '-') {
            name += '-';
            continue;
        }
        if (std::tolower(static_cast<unsigned char>(camel[i])) != *p) return false;
        if (beginsWord(camel, i) && !name.empty() && name.back() != '-') name += ' ';
        name += static_cast<char>(std::toupper(static_cast<unsigned char>(*p)));
        ++i;
    }
    return camel[i] == '\0';
}

}  // namespace

cow_String inp_KeywordDisplayName(inp_KeywordEnm key) {
    NamePair const names = namesOf(key);
    if (names.folded == nullptr) return cow_String();
    std::string name;
    if (!spellWithWords(names.camel, names.folded, name)) name = upperCased(names.folded);
    return cow_String(name.c_str(), static_cast<int>(name.size()));
}
