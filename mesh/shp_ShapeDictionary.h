#pragma once
// The faces of the element shapes: which nodes of an element make up its
// face n. Cropping a surface of element faces asks this of every element.
//
// One row per family of shapes (hexahedron, tetrahedron, wedge, the planar
// quadrilateral and triangle, whose faces are their edges, and the two
// shells, whose faces 1 and 2 are their two sides). An element type name is
// mapped to its family by its pattern: a known prefix, then the node count
// (C3D8R, DC3D20, CPS4, CAX8, S4R, M3D4, ...). Names that fit no pattern have
// no shape.
//
// A face lists the corner nodes only, also for the elements with midside or
// centre nodes, which come after the corners in a connectivity. Corners are
// enough for the in-box test of cropping: a crop box cuts a region out of a
// model, and an element at its border is kept or dropped by its corners (a
// face whose only node inside the box is a midside node is dropped).

#include <string_view>

#include "support/cow_String.h"

// One face: the local positions (0-based) of its nodes in the element's
// connectivity, in the order that walks around the face.
struct shp_Face {
    static constexpr int kMaxNodes = 4;
    int nodeCount;
    int nodes[kMaxNodes];
};

// The faces of one family. Face numbers count from 1, in the order in which
// facet identifiers (S1, S2, ..., SNEG, SPOS) name them.
struct shp_Shape {
    static constexpr int kMaxFaces = 6;
    char const* family;
    int cornerCount;  // every element of the family has at least these nodes
    int faceCount;
    shp_Face faces[kMaxFaces];

    int NumberOfFaces() const noexcept { return faceCount; }
    bool HasFace(int face) const noexcept { return face >= 1 && face <= faceCount; }
    // The face must exist (HasFace).
    int NumberOfFaceNodes(int face) const noexcept { return faces[face - 1].nodeCount; }
    int const* FaceNodes(int face) const noexcept { return faces[face - 1].nodes; }
};

class shp_ShapeDictionary {
  public:
    // The rows, one per family, in the order of Family; shp_ShapeTable.cpp.
    enum Family {
        kHexahedron,
        kTetrahedron,
        kWedge,
        kQuadrilateral,
        kTriangle,
        kQuadrilateralShell,
        kTriangleShell,
        kFamilyCount,
    };
    static shp_Shape const kShapes[kFamilyCount];

    // The shape of an element type (upper case, as the deck reader leaves
    // it), or null for a type whose name fits no family.
    static shp_Shape const* GetShape(std::string_view type);
    static shp_Shape const* GetShape(cow_String const& type) { return GetShape(type.View()); }
    static shp_Shape const* GetShape(char const* type) { return GetShape(std::string_view(type)); }
};
