// Encrypted include files. Comment lines stay plain; every other line is the
// Base64 text of one enciphered line. The first line deciphered is a header of
// '/'-separated fields whose field 1 is the working key for all later lines.
// Each line is deciphered on its own, with a cipher made afresh for it.

#include <cstring>

#include "deck/inp_Exceptions.h"
#include "parser/inp_Parser.h"
#include "support/omi_Timer.h"
#include "support/uti_Rotor.h"
#include "support/utl_Base64.h"

namespace {

constexpr int kHeaderFields = 9;

int countFields(cow_String const& header) {
    int fields = 1;
    for (int i = 0; i < header.Length(); ++i) fields += header[i] == '/';
    return fields;
}

cow_String headerField(cow_String const& header, int field) {
    int start = 0;
    for (int k = 0; k < field; ++k) start = header.Find('/', start) + 1;
    int end = header.Find('/', start);
    return header.Substr(start, (end < 0 ? header.Length() : end) - start);
}

}  // namespace

void inp_Parser::Decrypt(char* line) {
    omi_Timer timer;
    timer.Start();
    if (m_password.IsEmpty())
        throw inp_EncryptionException(
            m_lineNumber, m_fileName,
            atr("The encrypted input file, \"%s\", requires a password.", m_fileName));

    cow_String text(line);
    text.LeftTrim(" ");
    if (text.StartsWith("**")) return;

    cow_String plain;
    try {
        plain = uti_Rotor(m_password).Decrypt(utl_base64Decode(text, true));
    } catch (utl_Base64CodecError const& error) {
        if (strictDecryption)
            throw inp_EncryptionException(m_lineNumber, m_fileName,
                                          atr("The encrypted input file, \"%1$s\", cannot be "
                                              "decrypted due to the following; %2$s. Most "
                                              "likely the file is corrupt or the password is "
                                              "incorrect.  The problem may indicate that the "
                                              "file was encrypted with an older version, in which "
                                              "case it should be decrypted with that "
                                              "version before proceeding.",
                                              m_fileName, error.UserReport()));
    }
    if (plain.EndsWith("\r")) plain.Erase(plain.Length() - 1);
    timer.Stop();
    m_decryptionTime += timer.GetElapsedTime();

    if (m_headerPending) {
        if (countFields(plain) < kHeaderFields)
            throw inp_EncryptionException(m_lineNumber, m_fileName,
                                          atr("Bad header. The encrypted input file, \"%s\", is "
                                              "either corrupt or the password is incorrect.",
                                              m_fileName));
        m_password = headerField(plain, 1);
        m_headerPending = false;
    }
    // The plain text of a line that fitted the line buffer fits it too; the
    // cut only guards against a cipher that would lengthen a line.
    size_t length = static_cast<size_t>(plain.Length());
    if (length > kMaxLineLength) length = kMaxLineLength;
    std::memcpy(line, plain.CStr(), length);
    line[length] = 0;
}
