#pragma once
// The encrypt command.

#include <string>

class aio_ostream;

// Writes the encrypted form of the deck `inputPath` to `outputPath` and
// returns the exit status: 0 when written, 2 when the input can't be read,
// 1 for any other failure (a line too long, an output that can't be written
// or would overwrite the input). Failures are reported on `err`.
int fedeck_Encrypt(std::string const& inputPath, std::string const& outputPath,
                   std::string const& password, aio_ostream& err);
