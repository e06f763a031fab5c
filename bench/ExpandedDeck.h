#pragma once
// A generated deck parsed and expanded once, outside any timing, for the
// benchmarks of the walks that come after expansion.

#include <cstdio>
#include <filesystem>
#include <string>

#include "bench/inp_DeckGenerator.h"
#include "pipeline/inp_InputFile.h"

// The expanded keyword list of the deck `layout` describes; the deck file is
// written to the temporary directory under `fileName` and removed again.
inline cow_List<inp_Keyword> ExpandedGeneratedDeck(inp_DeckLayout const& layout,
                                                   char const* fileName) {
    std::string const path = (std::filesystem::temp_directory_path() / fileName).string();
    inp_WriteDeck(layout, path);
    inp_InputFile file;
    file.Parse(path.c_str());
    file.ExpandKeywords();
    std::remove(path.c_str());
    return file.Keywords();
}
