#include "tools/fedeck_RuleId.h"

#include <cstdint>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isUpper(char c) {
    return c >= 'A' && c <= 'Z';
}
bool isLower(char c) {
    return c >= 'a' && c <= 'z';
}
bool isClosingPunctuation(char c) {
    return c == '.' || c == ',' || c == ':' || c == ';' || c == ')' || c == '?' || c == '!';
}

// What stands for one word of the message.
std::string_view wordKind(std::string_view word) {
    bool upper = false, lower = false, digit = false;
    for (char const c : word) {
        upper |= isUpper(c);
        lower |= isLower(c);
        digit |= isDigit(c);
    }
    if (word.size() > 1 && word.front() == '*' && (upper || lower)) return "*<keyword>";
    if (upper && !lower && word.size() > 1) return "<name>";
    if (digit) return "<n>";
    return word;
}

// The length of a span quoted by `quote` at the start of `text`, quotes
// included; 0 when it is not closed on the line.
size_t quotedLength(std::string_view text, char quote) {
    size_t const close = text.find(quote, 1);
    return close == std::string_view::npos ? 0 : close + 1;
}

}  // namespace

std::string fedeck_MessageKind(std::string_view text) {
    text = text.substr(0, text.find('\n'));
    std::string kind;
    while (!text.empty()) {
        if (isBlank(text.front())) {
            if (!kind.empty() && kind.back() != ' ') kind += ' ';
            text.remove_prefix(1);
            continue;
        }
        if (text.front() == '"' || text.front() == '\'') {
            if (size_t const length = quotedLength(text, text.front()); length > 0) {
                kind += "<text>";
                text.remove_prefix(length);
                continue;
            }
        }
        size_t end = 0;
        while (end < text.size() && !isBlank(text[end])) ++end;
        size_t wordEnd = end;
        while (wordEnd > 1 && isClosingPunctuation(text[wordEnd - 1])) --wordEnd;
        kind += wordKind(text.substr(0, wordEnd));
        kind += text.substr(wordEnd, end - wordEnd);
        text.remove_prefix(end);
    }
    while (!kind.empty() && kind.back() == ' ') kind.pop_back();
    return kind;
}

std::string fedeck_RuleId(std::string_view text) {
    return fedeck_RuleIdOfKind(fedeck_MessageKind(text));
}

std::string fedeck_RuleIdOfKind(std::string_view kind) {
    // FNV-1a, 32 bits: short, and the same on every machine.
    uint32_t hash = 2166136261u;
    for (char const c : kind) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 16777619u;
    }
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string id = "FD";
    for (int shift = 28; shift >= 0; shift -= 4) id += kHex[(hash >> shift) & 0xF];
    return id;
}
