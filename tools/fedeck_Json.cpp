#include "tools/fedeck_Json.h"

#include "support/ZELString.h"
#include "support/aio_Stream.h"

namespace {

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// The length a UTF-8 sequence announces by its lead byte, or 0 for a byte
// that can't start one.
int announcedLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

// The length of the valid sequence at the front of `text`, or 0. The final
// word on validity (overlong forms, surrogates) is the shared decoder's.
size_t validSequenceLength(std::string_view text) {
    size_t const length = static_cast<size_t>(announcedLength(static_cast<unsigned char>(text[0])));
    if (length == 0 || length > text.size()) return 0;
    return ZELString::IsValidUTF8(text.substr(0, length)) ? length : 0;
}

void writeControlCharacter(aio_ostream& out, unsigned char c) {
    static char const kHex[] = "0123456789abcdef";
    char const escaped[] = {'\\', 'u', '0', '0', kHex[c >> 4], kHex[c & 0xF]};
    out.write(escaped, sizeof escaped);
}

// Copies valid multi-byte sequences through and replaces invalid bytes one by
// one, so one bad byte costs one replacement character and no more.
void writeNonAscii(aio_ostream& out, std::string_view text, size_t& pos) {
    size_t const length = validSequenceLength(text.substr(pos));
    if (length == 0) {
        out.print(kReplacementCharacter);
        ++pos;
        return;
    }
    out.write(text.data() + pos, length);
    pos += length;
}

bool needsEscape(unsigned char c) {
    return c < 0x20 || c == '"' || c == '\\' || c >= 0x80;
}

}  // namespace

void fedeck_WriteJsonString(aio_ostream& out, std::string_view text) {
    out.put('"');
    size_t pos = 0;
    while (pos < text.size()) {
        // Plain runs go out in one write: most text needs no escaping at all.
        size_t runEnd = pos;
        while (runEnd < text.size() && !needsEscape(static_cast<unsigned char>(text[runEnd])))
            ++runEnd;
        out.write(text.data() + pos, runEnd - pos);
        pos = runEnd;
        if (pos == text.size()) break;
        unsigned char const c = static_cast<unsigned char>(text[pos]);
        if (c >= 0x80) {
            writeNonAscii(out, text, pos);
        } else if (c < 0x20) {
            writeControlCharacter(out, c);
            ++pos;
        } else {
            out.put('\\').put(static_cast<char>(c));
            ++pos;
        }
    }
    out.put('"');
}
