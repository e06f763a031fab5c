#pragma once
// Writes structured hexahedral decks of any size for benchmarks, tests and
// the generate_deck program: a block of nx by ny by nz eight-node bricks with
// node and element sets, a solid section, one material and one static step.
//
// A flat deck holds the mesh at the top level. With instances > 0 the mesh
// becomes one part, and the assembly places that many instances of it side by
// side along x; the step then refers to the sets as instance.set.
//
// Coordinates are written with six decimals ("12, 0.010000, 0.020000,
// 0.000000"), which makes a flat 100x100x100 deck about 110 MB.

#include <cstdint>
#include <string>

struct inp_DeckLayout {
    int nx = 10;
    int ny = 10;
    int nz = 10;
    int instances = 0;          // 0: a flat deck
    double elementSize = 0.01;  // edge length of every brick, written to 6 decimals
};

class inp_DeckGenerator {
  public:
    // Throws std::invalid_argument for non-positive sizes, a negative instance
    // count, or a mesh whose labels don't fit a 32-bit int.
    explicit inp_DeckGenerator(inp_DeckLayout const& layout);

    // Counts of the mesh itself; instances don't repeat it in the deck.
    std::int64_t NodeCount() const;
    std::int64_t ElementCount() const;
    // Label of the node at grid position (i, j, k), 0 <= i <= nx and so on.
    std::int64_t NodeLabel(int i, int j, int k) const;

    // Writes the deck to `path` and returns its size in bytes. Throws
    // std::runtime_error if the file can't be created or written.
    std::uint64_t Write(std::string const& path) const;

  private:
    inp_DeckLayout m_layout;
};

// inp_DeckGenerator(layout).Write(path).
std::uint64_t inp_WriteDeck(inp_DeckLayout const& layout, std::string const& path);
