#include "mesh/shp_ShapeDictionary.h"

namespace {

// What the prefix of a type name says of the element's dimension.
enum class Kind { kSolid, kPlanar, kShell };

// A prefix, followed by the node count, and maybe letters and digits that
// say other things (reduced integration, hybrid, temperature, ...).
struct NamePattern {
    std::string_view prefix;
    Kind kind;
    // Only the first digit is the node count: in S4R5 or STRI65 the digits
    // after it count degrees of freedom, in CAXA41 Fourier modes.
    bool firstDigitOnly;
};

constexpr NamePattern kPatterns[] = {
    // Solids: stress, heat transfer, acoustic, coupled, cohesive, continuum shells.
    {"C3D", Kind::kSolid, false},
    {"DC3D", Kind::kSolid, false},
    {"AC3D", Kind::kSolid, false},
    {"DCC3D", Kind::kSolid, false},
    {"EC3D", Kind::kSolid, false},
    {"Q3D", Kind::kSolid, false},
    {"COH3D", Kind::kSolid, false},
    {"SC", Kind::kSolid, false},
    // Plane strain, plane stress, generalised plane strain and axisymmetric.
    {"CPE", Kind::kPlanar, false},
    {"CPS", Kind::kPlanar, false},
    {"CPEG", Kind::kPlanar, false},
    {"CAX", Kind::kPlanar, false},
    {"CGAX", Kind::kPlanar, false},
    {"CAXA", Kind::kPlanar, true},
    {"DC2D", Kind::kPlanar, false},
    {"DCAX", Kind::kPlanar, false},
    {"DCC2D", Kind::kPlanar, false},
    {"DCCAX", Kind::kPlanar, false},
    {"AC2D", Kind::kPlanar, false},
    {"ACAX", Kind::kPlanar, false},
    {"COH2D", Kind::kPlanar, false},
    {"COHAX", Kind::kPlanar, false},
    // Shells, heat transfer shells, membranes, rigid and surface elements.
    {"S", Kind::kShell, true},
    {"STRI", Kind::kShell, true},
    {"DS", Kind::kShell, false},
    {"M3D", Kind::kShell, false},
    {"R3D", Kind::kShell, false},
    {"SFM3D", Kind::kShell, false},
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The node count that stands right after the prefix, or 0 when no digit
// does. Three digits at most: no element has more nodes than that.
int nodeCountAfter(std::string_view type, NamePattern const& pattern) {
    if (!type.starts_with(pattern.prefix)) return 0;
    std::string_view rest = type.substr(pattern.prefix.size());
    int const digits = pattern.firstDigitOnly ? 1 : 3;
    int count = 0;
    for (int i = 0; i < digits && i < static_cast<int>(rest.size()) && isDigit(rest[i]); ++i)
        count = count * 10 + (rest[i] - '0');
    return count;
}

using Family = shp_ShapeDictionary::Family;

// kFamilyCount stands for "no family".
Family familyOf(Kind kind, int nodes) {
    switch (kind) {
        case Kind::kSolid:
            if (nodes == 4 || nodes == 10) return shp_ShapeDictionary::kTetrahedron;
            if (nodes == 6 || nodes == 15) return shp_ShapeDictionary::kWedge;
            if (nodes == 8 || nodes == 20 || nodes == 27) return shp_ShapeDictionary::kHexahedron;
            break;
        case Kind::kPlanar:
            if (nodes == 3 || nodes == 6) return shp_ShapeDictionary::kTriangle;
            if (nodes == 4 || nodes == 8) return shp_ShapeDictionary::kQuadrilateral;
            break;
        case Kind::kShell:
            if (nodes == 3 || nodes == 6) return shp_ShapeDictionary::kTriangleShell;
            if (nodes == 4 || nodes == 8 || nodes == 9)
                return shp_ShapeDictionary::kQuadrilateralShell;
            break;
    }
    return shp_ShapeDictionary::kFamilyCount;
}

}  // namespace

// Prefixes may begin one another (CPE and CPEG, S and SC): the one followed
// by a digit is the one that fits, and no two of them are both followed by
// one in any name.
shp_Shape const* shp_ShapeDictionary::GetShape(std::string_view type) {
    for (NamePattern const& pattern : kPatterns) {
        int const nodes = nodeCountAfter(type, pattern);
        if (nodes == 0) continue;
        Family const family = familyOf(pattern.kind, nodes);
        return family == kFamilyCount ? nullptr : &kShapes[family];
    }
    return nullptr;
}
