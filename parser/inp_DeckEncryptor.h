#pragma once
// Writes the encrypted form of a deck, to be read through
// *INCLUDE, INPUT=file, PASSWORD=password.
//
// The file written has, one per line:
//   ** encrypted input        the marker, plain
//   header                    enciphered under the password
//   every line of the deck    enciphered under the working key
// Each enciphered line is the Base64 text of uti_Rotor::Encrypt, so it is at
// most 256 characters long, the most the reader takes from a line.
//
// The header has nine '/'-separated fields, counted from 0:
//   0  format name, "fedeck-encrypted-deck"
//   1  working key: 32 hex digits, fresh for every file
//   2  format version, "1"
//   3  cipher, "rotor-1"
//   4  time written, UTC, as 2024-05-31T12:00:00Z
//   5  number of deck lines
//   6  characters of deck text, line ends not counted
//   7  longest deck line allowed, 180
//   8  writer, "fedeck"
// Only field 1 is read back; a reader must accept further fields. The header
// never starts with '*', so that a reader takes it for a data line.
//
// Deck lines are enciphered as they stand, comment and empty lines included,
// except that trailing blanks, tabs and carriage returns are dropped: the
// reader drops those from every line anyway, and they would take up room.

#include <string_view>

#include "support/cow_String.h"
#include "support/uti_Rotor.h"

class aio_ostream;

class inp_DeckEncryptor {
  public:
    static constexpr std::string_view kMarkerLine = "** encrypted input";
    static constexpr int kMaxEncodedLineLength = 256;
    // The longest deck line whose enciphered Base64 text still fits.
    static constexpr int kMaxPlainLineLength = kMaxEncodedLineLength / 4 * 3 - uti_Rotor::kOverhead;
    static constexpr int kHeaderFieldCount = 9;

    // An empty password is refused: the reader can't open a file without one.
    explicit inp_DeckEncryptor(cow_String const& password);

    // Writes the encrypted form of the deck `inputPath` to `outputPath`. The
    // whole deck is checked before the output is created; if writing fails
    // the partial output is removed. Throws nex_PrimException<atr_String, 1>
    // when the input can't be read, a line is longer than kMaxPlainLineLength,
    // the output would overwrite the input, or the output can't be written.
    void EncryptFile(cow_String const& inputPath, cow_String const& outputPath) const;

  private:
    struct DeckSize {
        long long lines = 0;
        long long characters = 0;
    };
    static DeckSize measureDeck(cow_String const& inputPath);
    static cow_String header(cow_String const& workingKey, DeckSize const& size);
    void writeEncrypted(cow_String const& inputPath, DeckSize const& size, aio_ostream& out) const;

    cow_String m_password;
};

// inp_DeckEncryptor(password).EncryptFile(inputPath, outputPath).
void inp_EncryptDeck(cow_String const& inputPath, cow_String const& outputPath,
                     cow_String const& password);
