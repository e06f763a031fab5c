#pragma once
#include <array>
#include <cstdint>
#include <string_view>

#include "support/cow_String.h"

// The cipher of encrypted decks: enciphers one line at a time under a key
// string, so that every line of a file can be read on its own.
//
// Primitive. The ChaCha permutation: 16 words of 32 bits, 20 rounds (ten
// double rounds of column and diagonal quarter rounds), as in ChaCha20.
//
// Hash. A sponge over that permutation: the state starts as zeros with the
// four ChaCha constants in words 8-11 and a domain number in word 12. Input
// is XORed, little-endian, into words 0-7 (32 bytes) and the permutation runs
// after each full 32 bytes. The input is closed by XORing 0x01 at the next
// input byte and 0x80 at byte 31, then permuting once more. The digest is
// words 0-7. Words 8-15 are never touched by input (256 bits of capacity).
//
// Key. The digest, with domain 1, of the bytes of the key string. Any string
// is a key, the empty one included; keys are case-sensitive. There is no
// deliberate slowing down: a reader sets up a rotor for every line.
//
// Enciphered line, as bytes:
//   nonce  8 bytes   little-endian; random for each line
//   check  4 bytes   digest word 0 (little-endian) with domain 2 of
//                    key (32 bytes) + nonce (8 bytes) + plain bytes
//   ciphered bytes   plain bytes XOR the ChaCha20 key stream
// The key stream is the ChaCha20 block function with the 256-bit key, a
// 64-bit block counter from 0 in words 12-13 and the nonce in words 14-15.
// So an enciphered line is 12 bytes longer than its plain text, and the
// same plain text enciphers differently every time.
//
// A wrong key or a changed line fails the check (a wrong key passes by
// chance once in 2^32), and Decrypt then gives an empty text: it has no '/'
// and reads as a bad header, and as an empty line anywhere else.
class uti_Rotor {
  public:
    static constexpr int kNonceLength = 8;
    static constexpr int kCheckLength = 4;
    // Bytes an enciphered line has on top of its plain text.
    static constexpr int kOverhead = kNonceLength + kCheckLength;

    explicit uti_Rotor(cow_String const& key);

    // Enciphers under a fresh nonce. Nonces come from a per-thread sequence
    // seeded from the system's random source and never repeat within it.
    cow_String Encrypt(cow_String const& plain) const;
    // Enciphers under the given nonce; the same arguments give the same bytes.
    cow_String Encrypt(cow_String const& plain, std::uint64_t nonce) const;

    // The plain text of an enciphered line, or "" when the line is shorter
    // than the overhead or fails the check.
    cow_String Decrypt(cow_String const& text) const;
    // As Decrypt, telling a failed check (false, `plain` emptied) from an
    // enciphered empty line.
    bool TryDecrypt(cow_String const& text, cow_String& plain) const;

  private:
    std::uint32_t checkValue(std::uint64_t nonce, std::string_view plain) const;
    // Appends `length` bytes of `data` XOR the key stream of `nonce` to `out`.
    void applyKeyStream(std::uint64_t nonce, char const* data, int length, cow_String& out) const;

    std::array<std::uint32_t, 8> m_key;
};
