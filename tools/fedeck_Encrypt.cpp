#include "tools/fedeck_Encrypt.h"

#include "parser/inp_DeckEncryptor.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Commands.h"

namespace {

// The writer reports every failure alike; an unreadable input is told apart
// beforehand, as it means the command was given the wrong file.
bool isReadable(std::string const& path) {
    aio_ifstream probe(size_t{1});
    return probe.open(path.c_str());
}

}  // namespace

int fedeck_Encrypt(std::string const& inputPath, std::string const& outputPath,
                   std::string const& password, aio_ostream& err) {
    if (!isReadable(inputPath)) {
        err.print("fedeck: cannot read input: ").print(inputPath).put('\n');
        return fedeck_EXIT_USAGE;
    }
    try {
        inp_EncryptDeck(cow_String(inputPath.c_str()), cow_String(outputPath.c_str()),
                        cow_String(password.c_str()));
    } catch (nex_PrimException<atr_String, 1> const& failure) {
        atr_String message = failure.UserReport();
        err.print("fedeck: ").print(message.RightTrim("\r\n")).put('\n');
        return fedeck_EXIT_ERRORS;
    }
    return fedeck_EXIT_CLEAN;
}
