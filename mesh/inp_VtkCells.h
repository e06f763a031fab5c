#pragma once
// Which VTK cell draws an element type, and in which order its nodes go.
//
// The type is recognised by its name as the element library names its
// families: a prefix, then the node count (C3D8R, DC3D20, CPS4, S4R, M3D9,
// T3D2, ...), or for the one-dimensional families a digit for the order
// (B31, B32, SAX2, PIPE21, ...). Connectors, springs, masses, user elements,
// gaskets, infinite and other special elements have no cell.

#include <cstdint>
#include <string_view>

struct inp_VtkCell {
    static constexpr int kMaxNodes = 20;
    // The VTK cell type number (VTK_HEXAHEDRON is 12, ...).
    std::uint8_t vtkType;
    // The cell's nodes, taken from the start of the element's connectivity.
    // An element may have more (a beam's orientation node, the face and
    // centre nodes of a 27-node brick, which is drawn as a 20-node one).
    int nodeCount;
    // VTK node i is the element's node at (0-based) position order[i]. The
    // two conventions agree but for wedges, whose VTK base triangle turns
    // the other way, and three-node lines, whose middle node VTK puts last.
    std::uint8_t order[kMaxNodes];
    // The name meshio and other readers give the cell ("hexahedron20", ...).
    char const* name;
};

// The cell of an element type (upper case, as the deck reader leaves it),
// or null for a type that has none.
inp_VtkCell const* inp_VtkCellOf(std::string_view type);
