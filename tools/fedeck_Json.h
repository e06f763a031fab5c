#pragma once
// JSON text for the program's machine-readable output.

#include <string_view>

class aio_ostream;

// Writes `text` as a JSON string literal, quotes included. Quotes and
// backslashes are escaped, control characters become \uXXXX, and every byte
// that is not part of a valid UTF-8 sequence becomes U+FFFD: deck files are
// arbitrary bytes, but a script reading the output needs valid JSON.
void fedeck_WriteJsonString(aio_ostream& out, std::string_view text);
