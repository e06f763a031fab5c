#pragma once
// The names of the parts and instances of a model: every name one of the
// maps of that level knows, ascending and each once. The maps of one level
// need not agree (a part without sets has no entry in the set map), so each
// map keyed by them has a say.

#include <vector>

#include "support/cow_String.h"

class inp_InputFile;

std::vector<cow_String> inp_PartNames(inp_InputFile const& deck);
std::vector<cow_String> inp_InstanceNames(inp_InputFile const& deck);
