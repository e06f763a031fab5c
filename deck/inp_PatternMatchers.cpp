#include "deck/inp_PatternMatchers.h"

// Every pattern is anchored at both ends and lets blanks stand around its
// group, and the group never starts with a blank. So each matcher first finds
// the text between the outer blanks and checks its grammar there. Where the
// pattern has a lazy repetition before its trailing blanks, the engine ends
// the group at the last character that is not a blank, which is where the
// trimmed text ends as well.

namespace {

using Match = inp_PatternMatch;
constexpr size_t kNone = std::string_view::npos;

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isAlphanumeric(char c) {
    return isLetter(c) || isDigit(c);
}
bool isSign(char c) {
    return c == '+' || c == '-';
}
bool isNameStart(char c) {
    return isLetter(c) || c == '_';
}
// [^,=\n]
bool isNameChar(char c) {
    return c != ',' && c != '=' && c != '\n';
}
// [^"\n]
bool isQuotedChar(char c) {
    return c != '"' && c != '\n';
}
bool isFileNameStart(char c) {
    return isAlphanumeric(c) || c == '_' || c == '$' || c == '%' || c == '/' || c == '.';
}

// [begin, end) of the text without the blanks around it; begin == end when
// there is nothing else.
struct Span {
    size_t begin;
    size_t end;
    bool IsEmpty() const { return begin == end; }
};

Span withoutOuterBlanks(std::string_view text) {
    size_t begin = 0;
    size_t end = text.size();
    while (begin < end && isBlank(text[begin])) ++begin;
    while (end > begin && isBlank(text[end - 1])) --end;
    return {begin, end};
}

Match matched(std::string_view text, size_t begin, size_t end) {
    return {true, text.substr(begin, end - begin)};
}
Match matched(std::string_view text, Span span) {
    return matched(text, span.begin, span.end);
}

template <class Predicate>
bool allOf(std::string_view text, size_t begin, size_t end, Predicate predicate) {
    for (size_t i = begin; i < end; ++i)
        if (!predicate(text[i])) return false;
    return true;
}

bool allDigits(std::string_view text, size_t begin, size_t end) {
    return allOf(text, begin, end, isDigit);
}

size_t skipDigits(std::string_view text, size_t at, size_t end) {
    while (at < end && isDigit(text[at])) ++at;
    return at;
}

// A name: letter or underscore, then no comma, equals or newline.
bool isUnquotedName(std::string_view text, Span span) {
    return isNameStart(text[span.begin]) && allOf(text, span.begin + 1, span.end, isNameChar);
}

// A double-quoted text of at least `minimum` characters without quote or newline.
bool isQuotedName(std::string_view text, Span span, size_t minimum) {
    if (span.end - span.begin < minimum + 2) return false;
    if (text[span.begin] != '"' || text[span.end - 1] != '"') return false;
    return allOf(text, span.begin + 1, span.end - 1, isQuotedChar);
}

// Both double patterns: [-+]?[0-9]*\.[0-9]* or
// [-+]?[0-9]*\.?[0-9]*<exponent letter>[-+]?[0-9]+, where the mantissa of the
// second is the first's with the point made optional.
Match matchReal(std::string_view text, char exponentLower, char exponentUpper) {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty()) return {};
    size_t at = span.begin;
    if (isSign(text[at])) ++at;
    at = skipDigits(text, at, span.end);
    bool hasPoint = at < span.end && text[at] == '.';
    if (hasPoint) at = skipDigits(text, at + 1, span.end);
    if (at == span.end) return hasPoint ? matched(text, span) : Match{};
    if (text[at] != exponentLower && text[at] != exponentUpper) return {};
    ++at;
    if (at < span.end && isSign(text[at])) ++at;
    if (at == span.end || !allDigits(text, at, span.end)) return {};
    return matched(text, span);
}

// The set-name grammar N(\.N)*, with N an unquoted name (which may itself
// hold periods and quotes) or a quoted one, is ambiguous, so it is run as a
// small nondeterministic automaton: one bit per state, all live states at once.
enum SetNameState : unsigned {
    kElementStart = 1,  // a name must begin here
    kUnquoted = 2,      // inside an unquoted name; may end here
    kQuoteOpened = 4,   // after an opening quote, nothing inside yet
    kQuoteBody = 8,     // inside quotes, at least one character in
    kQuoteClosed = 16   // after a closing quote; may end here
};

unsigned nextSetNameStates(unsigned states, char c) {
    unsigned next = 0;
    if ((states & kElementStart) && isNameStart(c)) next |= kUnquoted;
    if ((states & kElementStart) && c == '"') next |= kQuoteOpened;
    if ((states & kUnquoted) && isNameChar(c)) next |= kUnquoted;
    if ((states & (kUnquoted | kQuoteClosed)) && c == '.') next |= kElementStart;
    if ((states & (kQuoteOpened | kQuoteBody)) && isQuotedChar(c)) next |= kQuoteBody;
    if ((states & kQuoteBody) && c == '"') next |= kQuoteClosed;
    return next;
}

bool isSetNameChain(std::string_view text, Span span) {
    unsigned states = kElementStart;
    for (size_t i = span.begin; i < span.end && states != 0; ++i)
        states = nextSetNameStates(states, text[i]);
    return (states & (kUnquoted | kQuoteClosed)) != 0;
}

// One "name." of the scoped-id pattern starting at `at`: the position after
// its period, or kNone. An unquoted name runs to the next period; a quoted
// one must be followed by a period at once.
size_t afterScopePart(std::string_view text, size_t at) {
    if (isNameStart(text[at])) {
        size_t period = text.find('.', at + 1);
        return period == kNone ? kNone : period + 1;
    }
    if (text[at] != '"') return kNone;
    size_t closing = text.find('"', at + 1);
    if (closing == kNone || closing == at + 1) return kNone;
    if (closing + 1 >= text.size() || text[closing + 1] != '.') return kNone;
    return closing + 2;
}

}  // namespace

Match inp_PatternMatchers::MatchString(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty()) return {};
    if (isUnquotedName(text, span) || isQuotedName(text, span, 0)) return matched(text, span);
    return {};
}

Match inp_PatternMatchers::MatchInteger(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty()) return {};
    size_t digits = isSign(text[span.begin]) ? span.begin + 1 : span.begin;
    if (digits == span.end || !allDigits(text, digits, span.end)) return {};
    return matched(text, span);
}

Match inp_PatternMatchers::MatchDouble(std::string_view text) noexcept {
    return matchReal(text, 'e', 'E');
}

Match inp_PatternMatchers::MatchDoubleD(std::string_view text) noexcept {
    return matchReal(text, 'd', 'D');
}

std::string_view inp_PatternMatchers::WithoutOuterBlanks(std::string_view text) noexcept {
    Span const span = withoutOuterBlanks(text);
    return text.substr(span.begin, span.end - span.begin);
}

Match inp_PatternMatchers::MatchParam(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty() || !isLetter(text[span.begin])) return {};
    auto isParamChar = [](char c) { return isAlphanumeric(c) || c == '-' || isBlank(c); };
    if (!allOf(text, span.begin + 1, span.end, isParamChar)) return {};
    return matched(text, span);
}

Match inp_PatternMatchers::MatchSetName(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty() || !isSetNameChain(text, span)) return {};
    return matched(text, span);
}

Match inp_PatternMatchers::MatchScopedID(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty()) return {};
    size_t at = span.begin;
    size_t lastPart = kNone;
    // The id's digits can't start a part and a part can't start with digits,
    // so taking every part that fits never needs to be undone.
    for (size_t next; at < span.end && (next = afterScopePart(text, at)) != kNone; at = next)
        lastPart = at;
    if (at == span.end || !allDigits(text, at, span.end)) return {};
    if (lastPart == kNone) return {true, text};
    return matched(text, lastPart, at);
}

Match inp_PatternMatchers::MatchFileName(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty()) return {};
    bool unquoted =
        isFileNameStart(text[span.begin]) && allOf(text, span.begin + 1, span.end, isNameChar);
    if (unquoted || isQuotedName(text, span, 1)) return matched(text, span);
    return {};
}

Match inp_PatternMatchers::MatchSuperelementID(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    if (span.IsEmpty() || (text[span.begin] != 'Z' && text[span.begin] != 'z')) return {};
    if (span.begin + 1 == span.end || !allDigits(text, span.begin + 1, span.end)) return {};
    return matched(text, span);
}

Match inp_PatternMatchers::MatchUserElementID(std::string_view text) noexcept {
    Span span = withoutOuterBlanks(text);
    size_t at = span.begin;
    while (at < span.end && (text[at] == 'V' || text[at] == 'v')) ++at;
    if (at == span.end || (text[at] != 'U' && text[at] != 'u')) return {};
    ++at;
    if (at == span.end || !allDigits(text, at, span.end)) return {};
    return matched(text, span);
}
