#include "mesh/inp_VtkCells.h"

namespace {

// The cells, by the VTK cell type numbers of VTK's own header.
enum CellIndex {
    kLine,
    kQuadraticLine,
    kTriangle,
    kQuadraticTriangle,
    kQuad,
    kQuadraticQuad,
    kBiquadraticQuad,
    kTetra,
    kQuadraticTetra,
    kPyramid,
    kWedge,
    kQuadraticWedge,
    kHexahedron,
    kQuadraticHexahedron,
};

// A wedge's first triangle turns one way in the element library (its
// normal points into the element, as a brick's first face does) and the
// other way in VTK (its normal points out), so the second and third corner
// of each triangle change places, and the midside nodes follow their edges.
constexpr inp_VtkCell kCells[] = {
    {3, 2, {0, 1}, "line"},
    {21, 3, {0, 2, 1}, "line3"},
    {5, 3, {0, 1, 2}, "triangle"},
    {22, 6, {0, 1, 2, 3, 4, 5}, "triangle6"},
    {9, 4, {0, 1, 2, 3}, "quad"},
    {23, 8, {0, 1, 2, 3, 4, 5, 6, 7}, "quad8"},
    {28, 9, {0, 1, 2, 3, 4, 5, 6, 7, 8}, "quad9"},
    {10, 4, {0, 1, 2, 3}, "tetra"},
    {24, 10, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, "tetra10"},
    {14, 5, {0, 1, 2, 3, 4}, "pyramid"},
    {13, 6, {0, 2, 1, 3, 5, 4}, "wedge"},
    {26, 15, {0, 2, 1, 3, 5, 4, 8, 7, 6, 11, 10, 9, 12, 14, 13}, "wedge15"},
    {12, 8, {0, 1, 2, 3, 4, 5, 6, 7}, "hexahedron"},
    {25,
     20,
     {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19},
     "hexahedron20"},
};

// What the digits after a prefix say.
enum class Kind {
    kSolid,        // the node count of a solid
    kPlanar,       // the node count of a plane or axisymmetric element
    kShell,        // the node count of a shell, membrane or surface in space
    kLineByCount,  // the node count of a truss or link: 2 or 3
    kLineByOrder,  // the order of a beam or axisymmetric shell: 1 linear, 2 quadratic
    kTwoNodeLine,  // the dimension of a frame, which is a two-node line either way
};

struct NamePattern {
    std::string_view prefix;
    Kind kind;
    // Only the first digit counts: in S4R5 or STRI65 the digits after it
    // count degrees of freedom, in CAXA41 Fourier modes.
    bool firstDigitOnly;
};

// Prefixes may begin one another (CPE and CPEG, S and SC, DS and DSAX): the
// one followed by a digit is the one that fits, and in no name are two of
// them followed by one.
constexpr NamePattern kPatterns[] = {
    {"C3D", Kind::kSolid, false},         {"DC3D", Kind::kSolid, false},
    {"AC3D", Kind::kSolid, false},        {"DCC3D", Kind::kSolid, false},
    {"EC3D", Kind::kSolid, false},        {"FC3D", Kind::kSolid, false},
    {"Q3D", Kind::kSolid, false},         {"COH3D", Kind::kSolid, false},
    {"SC", Kind::kSolid, false},          {"CPE", Kind::kPlanar, false},
    {"CPS", Kind::kPlanar, false},        {"CPEG", Kind::kPlanar, false},
    {"CAX", Kind::kPlanar, false},        {"CGAX", Kind::kPlanar, false},
    {"CAXA", Kind::kPlanar, true},        {"DC2D", Kind::kPlanar, false},
    {"DCAX", Kind::kPlanar, false},       {"DCC2D", Kind::kPlanar, false},
    {"DCCAX", Kind::kPlanar, false},      {"AC2D", Kind::kPlanar, false},
    {"ACAX", Kind::kPlanar, false},       {"COH2D", Kind::kPlanar, false},
    {"COHAX", Kind::kPlanar, false},      {"S", Kind::kShell, true},
    {"STRI", Kind::kShell, true},         {"DS", Kind::kShell, false},
    {"M3D", Kind::kShell, false},         {"R3D", Kind::kShell, false},
    {"SFM3D", Kind::kShell, false},       {"T2D", Kind::kLineByCount, false},
    {"T3D", Kind::kLineByCount, false},   {"DC1D", Kind::kLineByCount, false},
    {"DCC1D", Kind::kLineByCount, false}, {"AC1D", Kind::kLineByCount, false},
    {"SFM2D", Kind::kLineByCount, false}, {"R2D", Kind::kLineByCount, false},
    {"RB2D", Kind::kLineByCount, false},  {"RB3D", Kind::kLineByCount, false},
    {"RAX", Kind::kLineByCount, false},   {"B2", Kind::kLineByOrder, true},
    {"B3", Kind::kLineByOrder, true},     {"PIPE2", Kind::kLineByOrder, true},
    {"PIPE3", Kind::kLineByOrder, true},  {"ELBOW3", Kind::kLineByOrder, true},
    {"SAX", Kind::kLineByOrder, true},    {"DSAX", Kind::kLineByOrder, true},
    {"MAX", Kind::kLineByOrder, true},    {"MGAX", Kind::kLineByOrder, true},
    {"SFMAX", Kind::kLineByOrder, true},  {"SFMGAX", Kind::kLineByOrder, true},
    {"FRAME", Kind::kTwoNodeLine, true},
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The number right after the prefix, or 0 when no digit stands there.
int numberAfter(std::string_view type, NamePattern const& pattern) {
    if (!type.starts_with(pattern.prefix)) return 0;
    std::string_view const rest = type.substr(pattern.prefix.size());
    int const digits = pattern.firstDigitOnly ? 1 : 2;
    int number = 0;
    for (int i = 0; i < digits && i < static_cast<int>(rest.size()) && isDigit(rest[i]); ++i)
        number = number * 10 + (rest[i] - '0');
    return number;
}

inp_VtkCell const* cell(CellIndex index) {
    return &kCells[index];
}

inp_VtkCell const* solidCell(int nodes) {
    switch (nodes) {
        case 4:
            return cell(kTetra);
        case 5:
            return cell(kPyramid);
        case 6:
            return cell(kWedge);
        case 8:
            return cell(kHexahedron);
        case 10:
            return cell(kQuadraticTetra);
        case 15:
            return cell(kQuadraticWedge);
        case 20:
        case 27:  // the face and centre nodes come after the twenty of the edges
            return cell(kQuadraticHexahedron);
        default:
            return nullptr;
    }
}

inp_VtkCell const* surfaceCell(int nodes) {
    switch (nodes) {
        case 3:
            return cell(kTriangle);
        case 4:
            return cell(kQuad);
        case 6:
            return cell(kQuadraticTriangle);
        case 8:
            return cell(kQuadraticQuad);
        case 9:
            return cell(kBiquadraticQuad);
        default:
            return nullptr;
    }
}

inp_VtkCell const* cellOf(Kind kind, int number) {
    switch (kind) {
        case Kind::kSolid:
            return solidCell(number);
        case Kind::kPlanar:
        case Kind::kShell:
            return surfaceCell(number);
        case Kind::kLineByCount:
            return number == 2 ? cell(kLine) : number == 3 ? cell(kQuadraticLine) : nullptr;
        case Kind::kLineByOrder:
            // Cubic beams (B23, B33, B34) have two nodes.
            return number == 2 ? cell(kQuadraticLine) : cell(kLine);
        case Kind::kTwoNodeLine:
            return cell(kLine);
    }
    return nullptr;
}

}  // namespace

inp_VtkCell const* inp_VtkCellOf(std::string_view type) {
    for (NamePattern const& pattern : kPatterns) {
        int const number = numberAfter(type, pattern);
        if (number == 0) continue;
        return cellOf(pattern.kind, number);
    }
    return nullptr;
}
