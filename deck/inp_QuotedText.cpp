#include "deck/inp_QuotedText.h"

#include <cstring>
#include <memory>
#include <string_view>

namespace {

// The callers hand one item of one deck line (at most 256 characters), so a
// stack buffer covers the normal case; longer text, which only a defective
// caller can pass, goes to the heap instead of overrunning the buffer.
constexpr size_t kStackBuffer = 272;

// `unchanged`, when given, is the string `text` comes from: a fold that
// changes nothing hands it back instead of a new copy.
template <bool upper>
cow_String foldOutsideQuotes(char const* text, cow_String const* unchanged = nullptr) {
    if (!text) return cow_String();
    size_t length = 0;
    while (text[length] && text[length] != '\n') ++length;
    bool endsAtNewline = text[length] == '\n';

    char stackBuffer[kStackBuffer];
    std::unique_ptr<char[]> heapBuffer;
    char* out = stackBuffer;
    if (length + 1 > kStackBuffer) {
        heapBuffer = std::make_unique<char[]>(length + 1);
        out = heapBuffer.get();
    }

    size_t used = 0;
    bool quoted = false;
    for (size_t i = 0; i < length; ++i) {
        char c = text[i];
        if (c == '"') {
            quoted = !quoted;
        } else if (!quoted) {
            if (c == ' ' || c == '\t' || c == '\r') continue;
            if (upper && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        }
        out[used++] = c;
    }
    if (endsAtNewline) out[used++] = '\n';
    if (used == 0) return cow_String();
    if (unchanged && used == static_cast<size_t>(unchanged->Length()) &&
        std::memcmp(out, text, used) == 0)
        return *unchanged;
    return cow_String(out, static_cast<int>(used));
}

// Whether the fold would give `text` back as it is: most values in a deck
// are written in the form the fold gives, and one look at them spares the
// copy and the comparison. A line end or a zero byte stops the fold, so
// text holding one takes the full way.
template <bool upper>
bool foldsToItself(std::string_view text) {
    bool quoted = false;
    for (char const c : text) {
        if (c == '"') {
            quoted = !quoted;
        } else if (c == '\n' || c == '\0') {
            return false;
        } else if (!quoted) {
            if (c == ' ' || c == '\t' || c == '\r') return false;
            if (upper && c >= 'a' && c <= 'z') return false;
        }
    }
    return true;
}

}  // namespace

cow_String inp_TakeOutSpacesAndUpperOutsideQuoted(char const* text) {
    return foldOutsideQuotes<true>(text);
}

cow_String inp_TakeOutSpacesOutsideQuoted(char const* text) {
    return foldOutsideQuotes<false>(text);
}

cow_String inp_TakeOutSpacesAndUpperOutsideQuoted(cow_String const& text) {
    if (foldsToItself<true>(text.View())) return text;
    return foldOutsideQuotes<true>(text.CStr(), &text);
}

cow_String inp_TakeOutSpacesOutsideQuoted(cow_String const& text) {
    if (foldsToItself<false>(text.View())) return text;
    return foldOutsideQuotes<false>(text.CStr(), &text);
}
