#include "parser/inp_DeckEncryptor.h"

#include <ctime>
#include <filesystem>
#include <random>

#include "support/ZELBasAssert.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "support/utl_Base64.h"

namespace {

using EncryptorException = nex_PrimException<atr_String, 1>;

constexpr int kWorkingKeyLength = 32;

// Gives the lines of a deck ready for enciphering, and refuses the first one
// that won't fit an enciphered line.
class DeckLineReader {
  public:
    explicit DeckLineReader(cow_String const& path) : m_path(path) {
        if (!m_in.open(path))
            throw EncryptorException(
                atr("The input file, \"%s\", cannot be opened for reading.", path));
    }

    // The next line without its line end and trailing blanks, tabs and
    // carriage returns; false at the end of the deck.
    bool Next(cow_String& line) {
        m_in.getline(m_buffer, kBufferSize);
        if (m_in.bad())
            throw EncryptorException(atr("The input file, \"%s\", cannot be read.", m_path));
        int length = m_in.good() ? m_in.gcount() - 1 : m_in.gcount();
        if (length == 0 && m_in.fail()) return false;
        ++m_lineNumber;
        // A full buffer (fail without end of file) is a line far too long.
        if (m_in.fail()) throwTooLong();
        while (length > 0 && isTrailingSpace(m_buffer[length - 1])) --length;
        if (length > inp_DeckEncryptor::kMaxPlainLineLength) throwTooLong();
        line = cow_String(m_buffer, length);
        return true;
    }

  private:
    static constexpr int kBufferSize = 1024;
    static bool isTrailingSpace(char c) { return c == ' ' || c == '\t' || c == '\r'; }
    [[noreturn]] void throwTooLong() const {
        throw EncryptorException(
            atr("Line %d of the input file, \"%s\", is longer than %d characters, the most an "
                "encrypted line can hold.",
                m_lineNumber, m_path, inp_DeckEncryptor::kMaxPlainLineLength));
    }

    aio_ifstream m_in;
    cow_String m_path;
    int m_lineNumber = 0;
    char m_buffer[kBufferSize];
};

cow_String freshWorkingKey() {
    static constexpr char kHexDigits[] = "0123456789abcdef";
    std::random_device source;
    char key[kWorkingKeyLength];
    for (int i = 0; i < kWorkingKeyLength; i += 8) {
        std::uint32_t bits = source();
        for (int digit = 0; digit < 8; ++digit, bits >>= 4) key[i + digit] = kHexDigits[bits & 0xf];
    }
    return cow_String(key, kWorkingKeyLength);
}

cow_String utcTimestamp() {
    std::time_t const now = std::time(nullptr);
    std::tm parts{};
    gmtime_r(&now, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return cow_String(text);
}

bool sameFile(cow_String const& a, cow_String const& b) {
    std::error_code ignored;  // a file that doesn't exist is the same as none
    return std::filesystem::equivalent(a.CStr(), b.CStr(), ignored);
}

// A partial output is of no use, but a device or a link named as the output
// must stay.
void removeIfPlainFile(cow_String const& path) {
    std::error_code ignored;
    if (std::filesystem::is_regular_file(std::filesystem::symlink_status(path.CStr(), ignored)))
        std::filesystem::remove(path.CStr(), ignored);
}

void writeEnciphered(aio_ostream& out, uti_Rotor const& rotor, cow_String const& plain) {
    cow_String const encoded = utl_base64Encode(rotor.Encrypt(plain));
    ZELBAS_ASSERT(encoded.Length() <= inp_DeckEncryptor::kMaxEncodedLineLength);
    out << encoded << '\n';
}

}  // namespace

inp_DeckEncryptor::inp_DeckEncryptor(cow_String const& password) : m_password(password) {
    if (m_password.IsEmpty())
        throw EncryptorException(atr("An encrypted file needs a password, and none was given."));
}

void inp_DeckEncryptor::EncryptFile(cow_String const& inputPath,
                                    cow_String const& outputPath) const {
    DeckSize const size = measureDeck(inputPath);
    if (sameFile(inputPath, outputPath))
        throw EncryptorException(
            atr("The encrypted file, \"%s\", would overwrite its own input.", outputPath));
    aio_ofstream out;
    if (!out.open(outputPath.CStr()))
        throw EncryptorException(
            atr("The encrypted file, \"%s\", cannot be opened for writing.", outputPath));
    try {
        writeEncrypted(inputPath, size, out);
        out.close();
        if (out.fail())
            throw EncryptorException(
                atr("The encrypted file, \"%s\", could not be written completely.", outputPath));
    } catch (...) {
        out.close();
        removeIfPlainFile(outputPath);
        throw;
    }
}

inp_DeckEncryptor::DeckSize inp_DeckEncryptor::measureDeck(cow_String const& inputPath) {
    DeckSize size;
    DeckLineReader reader(inputPath);
    cow_String line;
    while (reader.Next(line)) {
        ++size.lines;
        size.characters += line.Length();
    }
    return size;
}

cow_String inp_DeckEncryptor::header(cow_String const& workingKey, DeckSize const& size) {
    cow_String const fields[kHeaderFieldCount] = {"fedeck-encrypted-deck",
                                                  workingKey,
                                                  "1",
                                                  "rotor-1",
                                                  utcTimestamp(),
                                                  cow_String::FromInt(size.lines),
                                                  cow_String::FromInt(size.characters),
                                                  cow_String::FromInt(kMaxPlainLineLength),
                                                  "fedeck"};
    cow_String text = fields[0];
    for (int i = 1; i < kHeaderFieldCount; ++i) text.append('/').append(fields[i]);
    return text;
}

void inp_DeckEncryptor::writeEncrypted(cow_String const& inputPath, DeckSize const& size,
                                       aio_ostream& out) const {
    DeckLineReader reader(inputPath);
    out << kMarkerLine << '\n';
    cow_String const workingKey = freshWorkingKey();
    writeEnciphered(out, uti_Rotor(m_password), header(workingKey, size));
    uti_Rotor const rotor(workingKey);
    cow_String line;
    while (reader.Next(line)) writeEnciphered(out, rotor, line);
}

void inp_EncryptDeck(cow_String const& inputPath, cow_String const& outputPath,
                     cow_String const& password) {
    inp_DeckEncryptor(password).EncryptFile(inputPath, outputPath);
}
