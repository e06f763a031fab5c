#include "support/utl_Base64.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::int8_t kNotInAlphabet = -1;

constexpr std::array<std::int8_t, 256> makeDecodeTable() {
    std::array<std::int8_t, 256> table{};
    for (auto& entry : table) entry = kNotInAlphabet;
    for (int value = 0; value < 64; ++value)
        table[static_cast<unsigned char>(kAlphabet[value])] = static_cast<std::int8_t>(value);
    return table;
}

constexpr std::array<std::int8_t, 256> kDecodeTable = makeDecodeTable();

int sextet(char c) {
    return kDecodeTable[static_cast<unsigned char>(c)];
}

// Collects output bytes in a local chunk and hands whole chunks to the result,
// whose room is reserved up front: one allocation per result, no call per byte.
class ByteCollector {
  public:
    explicit ByteCollector(int expectedLength) { m_result.Reserve(expectedLength); }
    void Put(char byte) {
        if (m_filled == kChunkSize) flush();
        m_chunk[m_filled++] = byte;
    }
    cow_String Take() {
        flush();
        return std::move(m_result);
    }

  private:
    static constexpr int kChunkSize = 240;
    void flush() {
        m_result.append(m_chunk, m_filled);
        m_filled = 0;
    }

    cow_String m_result;
    char m_chunk[kChunkSize];
    int m_filled = 0;
};

std::string_view withoutLineEnd(std::string_view text) {
    size_t end = text.size();
    while (end > 0 && std::string_view(" \t\r\n").find(text[end - 1]) != std::string_view::npos)
        --end;
    return text.substr(0, end);
}

[[noreturn]] void throwCodecError(atr_String const& message) {
    throw utl_Base64CodecError(message);
}

[[noreturn]] void throwBadCharacter(char c, size_t index) {
    int const position = static_cast<int>(index) + 1;
    if (c == '=') throwCodecError(atr("misplaced Base64 padding at position %d", position));
    auto const code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code < 0x7f)
        throwCodecError(
            atr("invalid Base64 character '%s' at position %d", cow_String(&c, 1), position));
    throwCodecError(atr("invalid Base64 character (code %d) at position %d", int{code}, position));
}

int countPadding(std::string_view text) {
    int padding = 0;
    while (padding < 2 && padding < static_cast<int>(text.size()) &&
           text[text.size() - 1 - static_cast<size_t>(padding)] == '=')
        ++padding;
    return padding;
}

// A padded last group holds 2 characters (12 bits, one byte) or 3 characters
// (18 bits, two bytes); the bits beyond those bytes must be zero.
void putPaddedGroup(std::uint32_t bits, int padding, size_t paddingIndex, ByteCollector& out) {
    if (padding == 0) return;
    int const unusedBits = padding == 2 ? 4 : 2;
    if ((bits & ((1u << unusedBits) - 1)) != 0)
        throwCodecError(atr("Base64 padding at position %d follows unused bits that are not zero",
                            static_cast<int>(paddingIndex) + 1));
    bits >>= unusedBits;
    if (padding == 1) out.Put(static_cast<char>(bits >> 8));
    out.Put(static_cast<char>(bits));
}

cow_String decodeStrict(std::string_view text) {
    int const padding = countPadding(text);
    size_t const dataLength = text.size() - static_cast<size_t>(padding);
    ByteCollector out(std::max(0, static_cast<int>(text.size() / 4 * 3) - padding));
    std::uint32_t bits = 0;
    for (size_t i = 0; i < dataLength; ++i) {
        int const value = sextet(text[i]);
        if (value == kNotInAlphabet) throwBadCharacter(text[i], i);
        bits = (bits << 6) | static_cast<std::uint32_t>(value);
        if (i % 4 == 3) {
            out.Put(static_cast<char>(bits >> 16));
            out.Put(static_cast<char>(bits >> 8));
            out.Put(static_cast<char>(bits));
            bits = 0;
        }
    }
    // Checked after the characters, since a stray character is the likelier
    // fault and the more useful report.
    if (text.size() % 4 != 0)
        throwCodecError(
            atr("Base64 text of %d characters is not a whole number of 4-character "
                "groups",
                static_cast<int>(text.size())));
    putPaddedGroup(bits, padding, dataLength, out);
    return out.Take();
}

cow_String decodeLenient(std::string_view text) {
    ByteCollector out(static_cast<int>(text.size() / 4 * 3 + 2));
    std::uint32_t bits = 0;
    int bitCount = 0;
    for (char c : text) {
        int const value = sextet(c);
        if (value == kNotInAlphabet) {
            if (c == '=') bitCount = 0;
            continue;
        }
        bits = (bits << 6) | static_cast<std::uint32_t>(value);
        bitCount += 6;
        if (bitCount >= 8) {
            bitCount -= 8;
            out.Put(static_cast<char>(bits >> bitCount));
        }
    }
    return out.Take();
}

}  // namespace

cow_String utl_base64Decode(cow_String const& text, bool strict) {
    return strict ? decodeStrict(withoutLineEnd(text.View())) : decodeLenient(text.View());
}

cow_String utl_base64Encode(cow_String const& bytes) {
    std::string_view const in = bytes.View();
    ByteCollector out(static_cast<int>((in.size() + 2) / 3 * 4));
    size_t i = 0;
    auto byteAt = [&in](size_t index) {
        return std::uint32_t{static_cast<unsigned char>(in[index])};
    };
    for (; i + 3 <= in.size(); i += 3) {
        std::uint32_t const group = byteAt(i) << 16 | byteAt(i + 1) << 8 | byteAt(i + 2);
        out.Put(kAlphabet[group >> 18]);
        out.Put(kAlphabet[(group >> 12) & 0x3f]);
        out.Put(kAlphabet[(group >> 6) & 0x3f]);
        out.Put(kAlphabet[group & 0x3f]);
    }
    size_t const rest = in.size() - i;
    if (rest == 0) return out.Take();
    std::uint32_t const group = byteAt(i) << 16 | (rest == 2 ? byteAt(i + 1) << 8 : 0);
    out.Put(kAlphabet[group >> 18]);
    out.Put(kAlphabet[(group >> 12) & 0x3f]);
    out.Put(rest == 2 ? kAlphabet[(group >> 6) & 0x3f] : '=');
    out.Put('=');
    return out.Take();
}
