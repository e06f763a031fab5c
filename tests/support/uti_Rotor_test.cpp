#include "support/uti_Rotor.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <string>

namespace {

std::string randomBytes(std::mt19937& random, int length) {
    std::string bytes(static_cast<size_t>(length), '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 256);
    return bytes;
}

std::string hex(cow_String const& bytes) {
    std::string text;
    char digits[3];
    for (char byte : bytes.View()) {
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(byte));
        text += digits;
    }
    return text;
}

int slashFields(cow_String const& text) {
    int fields = 1;
    for (char c : text.View()) fields += c == '/';
    return fields;
}

cow_String const kHeader(
    "fedeck-encrypted-deck/0123456789abcdef0123456789abcdef/1/rotor-1/"
    "2024-05-31T12:00:00Z/120/4000/180/fedeck");

}  // namespace

TEST(RotorRoundTrip, EveryLengthComesBackWithTwelveBytesOverhead) {
    std::mt19937 random(11);
    uti_Rotor const rotor("password");
    for (int length = 0; length <= 300; ++length) {
        cow_String const plain(randomBytes(random, length));
        cow_String const enciphered = rotor.Encrypt(plain);
        EXPECT_EQ(enciphered.Length(), length + uti_Rotor::kOverhead);
        cow_String deciphered;
        EXPECT_TRUE(uti_Rotor("password").TryDecrypt(enciphered, deciphered));
        EXPECT_EQ(deciphered, plain) << "length " << length;
    }
}

TEST(RotorRoundTrip, EmptyLineIsToldFromAFailedCheck) {
    uti_Rotor const rotor("k");
    cow_String plain("not yet emptied");
    EXPECT_TRUE(rotor.TryDecrypt(rotor.Encrypt(""), plain));
    EXPECT_EQ(plain, "");
    plain = "not yet emptied";
    EXPECT_FALSE(uti_Rotor("K").TryDecrypt(rotor.Encrypt(""), plain));
    EXPECT_EQ(plain, "");
}

// Worked out independently of this code from the format the header describes;
// a change here makes files already written unreadable.
TEST(RotorFormat, KnownAnswersKeepFilesOfEarlierVersionsReadable) {
    EXPECT_EQ(hex(uti_Rotor("fedeck").Encrypt("*NODE\n1, 0.0, 0.0", 0x0123456789abcdefULL)),
              "efcdab8967452301f4454d044ff6c819057cdf9b7313bc84c5d8044275");
    // Keys and texts of several sponge blocks, and several key stream blocks.
    std::string bytes;
    for (int i = 0; i < 200; ++i) bytes += static_cast<char>(i);
    std::string const expected =
        "050000000000000030fbf4e40753b0923d83731cc830485d2d67882b886af6c7f59e36ea071b614c159cec"
        "d689cf0805a7504930eac0c31d60bd322a0cc6719ca7499491fe855d8dcbc2972d9fbbcd4b29dbb9a199a9"
        "08a1bb0383a7c3f6ee64fd1bfe35ad5ac71f5fb3ec6e9ed6a8a0caf30703844c5092bd7b91f031d43b4bec"
        "341c28cd07d8d5e91f844de8709c1fb829e7769e4a9d46a29c3dd4b2b1c97bbb239f8bf972548229c1e362"
        "d5a06bdbbb0d71d4ba27b7a01e0bd85e3be4bea29b69124c2e13a7d49c6602e0a5564dca06b356c9";
    EXPECT_EQ(hex(uti_Rotor(cow_String(std::string(70, 'k'))).Encrypt(cow_String(bytes), 5)),
              expected);
}

TEST(RotorNonce, SameNonceRepeatsAndOtherNoncesChangeEveryCipheredByte) {
    uti_Rotor const rotor("key");
    cow_String const plain(std::string(64, 'x'));
    EXPECT_EQ(rotor.Encrypt(plain, 42), rotor.Encrypt(plain, 42));
    cow_String const a = rotor.Encrypt(plain, 42);
    cow_String const b = rotor.Encrypt(plain, 43);
    int sameBytes = 0;
    for (int i = uti_Rotor::kOverhead; i < a.Length(); ++i) sameBytes += a[i] == b[i];
    EXPECT_LT(sameBytes, 5);  // about 1 in 256 agree by chance
    EXPECT_NE(rotor.Encrypt(plain), rotor.Encrypt(plain));
}

TEST(RotorWrongKey, HeaderNeverSurvivesAnyOfManyRandomKeys) {
    std::mt19937 random(5);
    cow_String const enciphered = uti_Rotor("the right one").Encrypt(kHeader);
    for (int trial = 0; trial < 2000; ++trial) {
        cow_String const key(randomBytes(random, 1 + trial % 40));
        cow_String const plain = uti_Rotor(key).Decrypt(enciphered);
        EXPECT_EQ(plain, "");
        EXPECT_LT(slashFields(plain), 9);
    }
}

TEST(RotorWrongKey, NearMissesOfTheKeyFailToo) {
    cow_String const enciphered = uti_Rotor("Secret").Encrypt(kHeader);
    for (char const* key : {"secret", "Secret ", "Secre", "Secret\n", "SECRET", ""})
        EXPECT_EQ(uti_Rotor(key).Decrypt(enciphered), "") << key;
    EXPECT_EQ(uti_Rotor("Secret").Decrypt(enciphered), kHeader);
}

TEST(RotorTampering, AnyFlippedBitOrShortenedTextFailsTheCheck) {
    uti_Rotor const rotor("key");
    cow_String const enciphered = rotor.Encrypt("*ELEMENT, TYPE=C3D8", 7);
    cow_String plain;
    for (int i = 0; i < enciphered.Length(); ++i) {
        std::string changed(enciphered.View());
        changed[static_cast<size_t>(i)] ^= static_cast<char>(1 << (i % 8));
        EXPECT_FALSE(rotor.TryDecrypt(cow_String(changed), plain)) << "byte " << i;
    }
    for (int length = 0; length < enciphered.Length(); ++length)
        EXPECT_EQ(rotor.Decrypt(enciphered.Substr(0, length)), "") << "length " << length;
}
