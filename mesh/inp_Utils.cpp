#include "mesh/inp_Utils.h"

#include <charconv>
#include <string_view>

#include "deck/inp_Keyword.h"
#include "deck/inp_KeywordMessage.h"
#include "deck/inp_PatternMatchers.h"

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Calls `onPeriod(i)` for each period outside quotes, in order; stops early
// when it returns false. Returns whether the scan ran to the end.
template <class OnPeriod>
bool forEachUnquotedPeriod(std::string_view text, OnPeriod onPeriod) {
    bool quoted = false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            quoted = !quoted;
        } else if (text[i] == '.' && !quoted && !onPeriod(i)) {
            return false;
        }
    }
    return true;
}

// The name, each unquoted period replaced by `replacement` or dropped when it
// is 0, cut after kMaxRewrittenName characters. The limit is that of the
// fixed buffer the names were always rewritten in; names that long are
// defects of the deck, and cutting them keeps the result bounded.
cow_String rewriteUnquotedPeriods(cow_String const& name, char replacement) {
    if (!inp_Utils::HasNameUnquotedPeriod(name)) return name;
    char out[inp_Utils::kMaxRewrittenName];
    int used = 0;
    bool quoted = false;
    for (int i = 0; i < name.Length() && used < inp_Utils::kMaxRewrittenName; ++i) {
        char c = name[i];
        if (c == '"') {
            quoted = !quoted;
        } else if (c == '.' && !quoted) {
            if (replacement == 0) continue;
            c = replacement;
        }
        out[used++] = c;
    }
    return cow_String(out, used);
}

bool isQuoted(cow_String const& name) {
    return !name.IsEmpty() && name[0] == '"' && name[name.Length() - 1] == '"';
}

// The name without its enclosing quotes. A lone quote character counts as a
// quoted empty name.
std::string_view unquoted(cow_String const& name) {
    std::string_view text = name.View();
    return text.size() < 2 ? std::string_view() : text.substr(1, text.size() - 2);
}

void appendInt(cow_String& out, int value) {
    char digits[16];
    auto const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out.append(digits, static_cast<int>(end - digits));
}

void appendItem(cow_String& out, int value) {
    appendInt(out, value);
}

void appendItem(cow_String& out, cow_String const& value) {
    out.append(value);
}

// The items joined by ", ".
template <class T>
void appendJoined(cow_String& out, cow_List<T> const& items) {
    bool first = true;
    for (T const& item : items) {
        if (!first) out.append(", ", 2);
        appendItem(out, item);
        first = false;
    }
}

template <class T>
atr_String messageInKeywordWithItems(inp_Keyword const& keyword, atr_String const& text,
                                     cow_List<T> const& items) {
    cow_String joined;
    appendJoined(joined, items);
    atr_String message = inp_Utils::MessageInKeyword(keyword, text);
    message.append(atr(":\n%s", joined));
    return message;
}

}  // namespace

// -- name tests ------------------------------------------------------------------

bool inp_Utils::IsId(cow_String const& name) {
    return isDigit(name[0]);  // "" gives its terminating zero
}

bool inp_Utils::IsSetName(cow_String const& name) {
    return inp_PatternMatchers::MatchSetName(name.View()).matched;
}

bool inp_Utils::IsScopedSetName(cow_List<cow_String> const& pieces) {
    return pieces.Length() > 1 && IsSetName(pieces.Last());
}

bool inp_Utils::IsScopedSetId(cow_List<cow_String> const& pieces) {
    return pieces.Length() > 1 && inp_PatternMatchers::MatchInteger(pieces.Last().View()).matched;
}

bool inp_Utils::HasNameUnquotedPeriod(cow_String const& name) {
    return !forEachUnquotedPeriod(name.View(), [](size_t) { return false; });
}

bool inp_Utils::IsAnalyticalSurfaceType(cow_String const& type) {
    static constexpr std::string_view kTypes[] = {"SEGMENTS", "CYLINDER", "REVOLUTION",
                                                  "USER",     "BEZIER",   "BSPLINE"};
    for (std::string_view known : kTypes)
        if (type.View() == known) return true;
    return false;
}

// -- name rewriting ------------------------------------------------------------------

cow_String inp_Utils::RemovePeriod(cow_String const& name) {
    if (IsId(name) || name.Find('.') < 0) return name;
    cow_String result = name;
    result.Substitute(".", "_");
    return result;
}

cow_String inp_Utils::RemoveUnquotedPeriod(cow_String const& name) {
    return rewriteUnquotedPeriods(name, 0);
}

cow_String inp_Utils::ReplaceUnquotedPeriodWithUnderscore(cow_String const& name) {
    return rewriteUnquotedPeriods(name, '_');
}

cow_List<cow_String> inp_Utils::SplitScopedSet(cow_String const& name) {
    cow_List<cow_String> pieces;
    int start = 0;
    forEachUnquotedPeriod(name.View(), [&](size_t period) {
        int const end = static_cast<int>(period);
        pieces.Append(name.Substr(start, end - start));
        start = end + 1;
        return true;
    });
    pieces.Append(name.Substr(start));
    return pieces;
}

cow_String inp_Utils::CreateFlattenedName(cow_String const& first, cow_String const& second) {
    bool const firstQuoted = isQuoted(first);
    bool const secondQuoted = isQuoted(second);
    bool const anyQuoted = firstQuoted || secondQuoted;
    std::string_view const head = firstQuoted ? unquoted(first) : first.View();
    std::string_view const tail = secondQuoted ? unquoted(second) : second.View();

    cow_String result;
    result.Reserve(static_cast<int>(head.size() + tail.size()) + 3);
    if (anyQuoted) result.append('"');
    result.append(head).append('_').append(tail);
    if (anyQuoted) result.append('"');
    return result;
}

cow_String inp_Utils::CreateFlattenedName(cow_String const& first, cow_String const& second,
                                          cow_String const& third) {
    return CreateFlattenedName(first, CreateFlattenedName(second, third));
}

// -- messages ------------------------------------------------------------------------

atr_String inp_Utils::FormTitleForMessage(inp_Keyword const& keyword) {
    return inp_FormTitleForMessage(keyword);
}

atr_String inp_Utils::MessageInKeyword(inp_Keyword const& keyword, atr_String const& text) {
    return inp_MessageInKeyword(keyword, text);
}

atr_String inp_Utils::MessageInKeyword(inp_Keyword const& keyword, atr_String const& text,
                                       cow_List<int> const& items) {
    return messageInKeywordWithItems(keyword, text, items);
}

atr_String inp_Utils::MessageInKeyword(inp_Keyword const& keyword, atr_String const& text,
                                       cow_List<cow_String> const& items) {
    return messageInKeywordWithItems(keyword, text, items);
}

atr_String inp_Utils::MessageWithItems(cow_String const& text, cow_List<cow_String> const& items) {
    if (items.IsEmpty()) return atr_String();
    atr_String message = text;
    message.append("\n    ");
    appendJoined(message, items);
    return message;
}

// The first label is written once as the start of the list and then again by
// the walk over all labels, so "7, 8" reads "7, 7, 8". Readers of these
// messages expect that form; keep it.
atr_String inp_Utils::MessageWithItems(cow_String const& text, cow_List<int> const& items) {
    if (items.IsEmpty()) return atr_String();
    atr_String message = text;
    message.append("\n    ");
    appendInt(message, items[0]);
    message.append(", ", 2);
    appendJoined(message, items);
    return message;
}
