// The schema rows of one family of keywords.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

std::span<inp_SchemaRow const> inp_SchemaMeshRows() { return {}; }
