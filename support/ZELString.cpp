#include "support/ZELString.h"

namespace {

struct SequenceRule {
    int length;                           // bytes in the sequence, 0 for a byte that can't lead
    unsigned char secondLow, secondHigh;  // the allowed range of the second byte
    char32_t leadBits;                    // the code point bits of the lead byte
};

// The second-byte ranges are what rules out overlongs (E0, F0), surrogates
// (ED) and values past U+10FFFF (F4); every later byte is 80..BF.
SequenceRule ruleFor(unsigned char lead) {
    if (lead < 0x80) return {1, 0, 0, lead};
    if (lead < 0xC2) return {0, 0, 0, 0};  // a continuation byte, or an overlong 2-byte lead
    if (lead < 0xE0) return {2, 0x80, 0xBF, char32_t(lead & 0x1Fu)};
    if (lead == 0xE0) return {3, 0xA0, 0xBF, 0};
    if (lead == 0xED) return {3, 0x80, 0x9F, 0xD};
    if (lead < 0xF0) return {3, 0x80, 0xBF, char32_t(lead & 0x0Fu)};
    if (lead == 0xF0) return {4, 0x90, 0xBF, 0};
    if (lead < 0xF4) return {4, 0x80, 0xBF, char32_t(lead & 0x07u)};
    if (lead == 0xF4) return {4, 0x80, 0x8F, 4};
    return {0, 0, 0, 0};
}

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0u) == 0x80u;
}

// Decodes `text`, handing each code point to `emit`; false at the first fault.
template <class Emit>
bool decode(std::string_view text, Emit emit) {
    auto const* bytes = reinterpret_cast<unsigned char const*>(text.data());
    size_t const size = text.size();
    size_t i = 0;
    while (i < size) {
        SequenceRule const rule = ruleFor(bytes[i]);
        if (rule.length == 0 || size - i < static_cast<size_t>(rule.length)) return false;
        char32_t codePoint = rule.leadBits;
        if (rule.length > 1) {
            unsigned char const second = bytes[i + 1];
            if (second < rule.secondLow || second > rule.secondHigh) return false;
            codePoint = (codePoint << 6) | (second & 0x3Fu);
            for (int k = 2; k < rule.length; ++k) {
                unsigned char const next = bytes[i + static_cast<size_t>(k)];
                if (!isContinuation(next)) return false;
                codePoint = (codePoint << 6) | (next & 0x3Fu);
            }
        }
        emit(codePoint);
        i += static_cast<size_t>(rule.length);
    }
    return true;
}

}  // namespace

ZELString ZELString::BuildFromUTF8(char const* text) {
    return BuildFromUTF8(text ? std::string_view(text) : std::string_view());
}

ZELString ZELString::BuildFromUTF8(std::string_view text) {
    ZELString result;
    result.m_codePoints.reserve(text.size());
    if (!decode(text, [&result](char32_t c) { result.m_codePoints.push_back(c); })) {
        result.m_codePoints.clear();
        result.m_codePoints.shrink_to_fit();
        result.m_bad = true;
    }
    return result;
}

bool ZELString::IsValidUTF8(std::string_view text) noexcept {
    return decode(text, [](char32_t) {});
}
