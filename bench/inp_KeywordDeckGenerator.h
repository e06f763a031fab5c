#pragma once
// Writes decks of many small keywords, as scripts and converters write them:
// one *NSET per node, *ELSET of a few elements, and in one step a *BOUNDARY
// and a *CLOAD per node. Such decks cost the reader per keyword, where the
// mesh decks of inp_DeckGenerator cost it per data line.
//
// With `mesh`, the deck is complete: a line of nodes 1..N (N the largest
// count asked for, at least 3) and two-node truss elements between them come
// first, so that every id a keyword names exists. Without, the deck is the
// keywords alone, every byte of it keyword text.

#include <cstdint>
#include <string>

struct inp_KeywordDeckLayout {
    int nodeSets = 0;      // "*NSET, NSET=N<i>" with the one id i
    int elementSets = 0;   // "*ELSET, ELSET=E<i>" with the ids i, i+1, i+2 (wrapping)
    int boundaries = 0;    // "*BOUNDARY" with the line "i, 1, 3", in the step
    int concentrated = 0;  // "*CLOAD" with the line "i, 2, 1.5", in the step
    bool mesh = true;
};

// Writes the deck to `path` and returns its size in bytes. Throws
// std::invalid_argument for a negative count, std::runtime_error if the
// file can't be written.
std::uint64_t inp_WriteKeywordDeck(inp_KeywordDeckLayout const& layout, std::string const& path);
