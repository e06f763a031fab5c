#include "support/inpM_SurfaceFacet.h"

#include <climits>
#include <string_view>

namespace {

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool equalsIgnoringCase(std::string_view text, std::string_view upperWord) {
    if (text.size() != upperWord.size()) return false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (upper(text[i]) != upperWord[i]) return false;
    }
    return true;
}

// The value of a non-empty run of decimal digits, or 0 when it is anything
// else or too large for an int.
int positiveNumber(std::string_view digits) {
    if (digits.empty()) return 0;
    long long value = 0;
    for (char c : digits) {
        if (c < '0' || c > '9') return 0;
        value = value * 10 + (c - '0');
        if (value > INT_MAX) return 0;
    }
    return static_cast<int>(value);
}

}  // namespace

inpM_SurfaceFacet::inpM_SurfaceFacet(cow_String const& name) : m_id(parse(name)) {}

int inpM_SurfaceFacet::parse(cow_String const& name) {
    cow_String trimmed = name;
    std::string_view const text = trimmed.Trim().View();
    if (equalsIgnoringCase(text, "SNEG")) return 1;
    if (equalsIgnoringCase(text, "SPOS")) return 2;
    if (text.empty()) return 0;
    char const kind = upper(text.front());
    if (kind != 'S' && kind != 'F' && kind != 'E') return 0;
    return positiveNumber(text.substr(1));
}
