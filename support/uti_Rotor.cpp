#include "support/uti_Rotor.h"

#include <algorithm>
#include <bit>
#include <random>

namespace {

using Block = std::array<std::uint32_t, 16>;

// "expand 32-byte k", the ChaCha constants.
constexpr std::array<std::uint32_t, 4> kConstants = {0x61707865, 0x3320646e, 0x79622d32,
                                                     0x6b206574};
constexpr std::uint32_t kKeyDomain = 1;
constexpr std::uint32_t kCheckDomain = 2;
constexpr int kDoubleRounds = 10;
constexpr int kBlockBytes = 64;

// Marked inline because GCC otherwise leaves it a call, which makes the
// permutation three times slower.
inline void quarterRound(std::uint32_t& a, std::uint32_t& b, std::uint32_t& c, std::uint32_t& d) {
    a += b;
    d = std::rotl(d ^ a, 16);
    c += d;
    b = std::rotl(b ^ c, 12);
    a += b;
    d = std::rotl(d ^ a, 8);
    c += d;
    b = std::rotl(b ^ c, 7);
}

// Works on a local copy, which the compiler can keep in registers.
void permute(Block& block) {
    Block x = block;
    for (int round = 0; round < kDoubleRounds; ++round) {
        quarterRound(x[0], x[4], x[8], x[12]);
        quarterRound(x[1], x[5], x[9], x[13]);
        quarterRound(x[2], x[6], x[10], x[14]);
        quarterRound(x[3], x[7], x[11], x[15]);
        quarterRound(x[0], x[5], x[10], x[15]);
        quarterRound(x[1], x[6], x[11], x[12]);
        quarterRound(x[2], x[7], x[8], x[13]);
        quarterRound(x[3], x[4], x[9], x[14]);
    }
    block = x;
}

std::uint8_t byteOf(Block const& block, int index) {
    return static_cast<std::uint8_t>(block[static_cast<size_t>(index / 4)] >> (8 * (index % 4)));
}

// The hash of the rotor: input goes into words 0-7, words 8-15 are capacity.
class Sponge {
  public:
    explicit Sponge(std::uint32_t domain) {
        m_state.fill(0);
        for (size_t i = 0; i < kConstants.size(); ++i) m_state[8 + i] = kConstants[i];
        m_state[12] = domain;
    }
    void Absorb(std::string_view bytes) {
        for (char byte : bytes) {
            xorByte(m_position, static_cast<std::uint8_t>(byte));
            if (++m_position == kRate) {
                permute(m_state);
                m_position = 0;
            }
        }
    }
    void AbsorbWords(std::uint32_t const* words, int count) {
        for (int i = 0; i < count; ++i)
            for (int shift = 0; shift < 32; shift += 8) absorbByte(words[i] >> shift);
    }
    void Absorb64(std::uint64_t value) {
        for (int shift = 0; shift < 64; shift += 8) absorbByte(value >> shift);
    }
    // Pads, permutes and gives the state, whose words 0-7 are the digest.
    Block const& Finish() {
        xorByte(m_position, 0x01);
        xorByte(kRate - 1, 0x80);
        permute(m_state);
        return m_state;
    }

  private:
    static constexpr int kRate = 32;
    void absorbByte(std::uint64_t byte) {
        char const c = static_cast<char>(byte & 0xff);
        Absorb(std::string_view(&c, 1));
    }
    void xorByte(int position, std::uint8_t byte) {
        m_state[static_cast<size_t>(position / 4)] ^= std::uint32_t{byte} << (8 * (position % 4));
    }

    Block m_state;
    int m_position = 0;
};

// ChaCha20 block `counter` of the key stream for `key` and `nonce`.
Block keyStreamBlock(std::array<std::uint32_t, 8> const& key, std::uint64_t nonce,
                     std::uint64_t counter) {
    Block input;
    for (size_t i = 0; i < 4; ++i) input[i] = kConstants[i];
    for (size_t i = 0; i < 8; ++i) input[4 + i] = key[i];
    input[12] = static_cast<std::uint32_t>(counter);
    input[13] = static_cast<std::uint32_t>(counter >> 32);
    input[14] = static_cast<std::uint32_t>(nonce);
    input[15] = static_cast<std::uint32_t>(nonce >> 32);
    Block output = input;
    permute(output);
    for (size_t i = 0; i < output.size(); ++i) output[i] += input[i];
    return output;
}

void appendLittleEndian(cow_String& out, std::uint64_t value, int length) {
    char bytes[8];
    for (int i = 0; i < length; ++i) bytes[i] = static_cast<char>(value >> (8 * i));
    out.append(bytes, length);
}

std::uint64_t readLittleEndian(char const* bytes, int length) {
    std::uint64_t value = 0;
    for (int i = length - 1; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return value;
}

// Nonces of this thread: a random start stepped by a fixed odd constant and
// put through the SplitMix64 finaliser, a bijection, so none repeats.
class NonceSequence {
  public:
    NonceSequence() {
        std::random_device source;
        m_state = std::uint64_t{source()} << 32 | source();
    }
    std::uint64_t Next() {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

  private:
    std::uint64_t m_state;
};

std::uint64_t nextNonce() {
    thread_local NonceSequence sequence;
    return sequence.Next();
}

}  // namespace

uti_Rotor::uti_Rotor(cow_String const& key) {
    Sponge sponge(kKeyDomain);
    sponge.Absorb(key.View());
    Block const& digest = sponge.Finish();
    for (size_t i = 0; i < m_key.size(); ++i) m_key[i] = digest[i];
}

cow_String uti_Rotor::Encrypt(cow_String const& plain) const {
    return Encrypt(plain, nextNonce());
}

cow_String uti_Rotor::Encrypt(cow_String const& plain, std::uint64_t nonce) const {
    cow_String out;
    out.Reserve(kOverhead + plain.Length());
    appendLittleEndian(out, nonce, kNonceLength);
    appendLittleEndian(out, checkValue(nonce, plain.View()), kCheckLength);
    applyKeyStream(nonce, plain.CStr(), plain.Length(), out);
    return out;
}

cow_String uti_Rotor::Decrypt(cow_String const& text) const {
    cow_String plain;
    TryDecrypt(text, plain);
    return plain;
}

bool uti_Rotor::TryDecrypt(cow_String const& text, cow_String& plain) const {
    plain = cow_String();
    if (text.Length() < kOverhead) return false;
    std::uint64_t const nonce = readLittleEndian(text.CStr(), kNonceLength);
    auto const check = readLittleEndian(text.CStr() + kNonceLength, kCheckLength);
    plain.Reserve(text.Length() - kOverhead);
    applyKeyStream(nonce, text.CStr() + kOverhead, text.Length() - kOverhead, plain);
    if (checkValue(nonce, plain.View()) == check) return true;
    plain = cow_String();
    return false;
}

std::uint32_t uti_Rotor::checkValue(std::uint64_t nonce, std::string_view plain) const {
    Sponge sponge(kCheckDomain);
    sponge.AbsorbWords(m_key.data(), static_cast<int>(m_key.size()));
    sponge.Absorb64(nonce);
    sponge.Absorb(plain);
    return sponge.Finish()[0];
}

void uti_Rotor::applyKeyStream(std::uint64_t nonce, char const* data, int length,
                               cow_String& out) const {
    char chunk[kBlockBytes];
    for (int done = 0, counter = 0; done < length; done += kBlockBytes, ++counter) {
        Block const stream = keyStreamBlock(m_key, nonce, static_cast<std::uint64_t>(counter));
        int const count = std::min(kBlockBytes, length - done);
        for (int i = 0; i < count; ++i)
            chunk[i] =
                static_cast<char>(static_cast<std::uint8_t>(data[done + i]) ^ byteOf(stream, i));
        out.append(chunk, count);
    }
}
