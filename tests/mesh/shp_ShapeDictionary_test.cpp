#include "mesh/shp_ShapeDictionary.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "mesh/inp_ElementTypes.h"

namespace {

using Nodes = std::vector<int>;
using Family = shp_ShapeDictionary::Family;

Nodes faceNodes(shp_Shape const& shape, int face) {
    int const* nodes = shape.FaceNodes(face);
    return Nodes(nodes, nodes + shape.NumberOfFaceNodes(face));
}

shp_Shape const& row(Family family) {
    return shp_ShapeDictionary::kShapes[family];
}

// How often each directed edge (from, to) is walked by the faces.
std::map<std::pair<int, int>, int> directedEdges(shp_Shape const& shape) {
    std::map<std::pair<int, int>, int> edges;
    for (int face = 1; face <= shape.NumberOfFaces(); ++face) {
        Nodes const nodes = faceNodes(shape, face);
        for (size_t k = 0; k < nodes.size(); ++k)
            ++edges[{nodes[k], nodes[(k + 1) % nodes.size()]}];
    }
    return edges;
}

}  // namespace

TEST(ShapeDictionary, EveryFamilyRowHoldsTogether) {
    std::map<Family, int> const faceCounts = {
        {shp_ShapeDictionary::kHexahedron, 6},    {shp_ShapeDictionary::kTetrahedron, 4},
        {shp_ShapeDictionary::kWedge, 5},         {shp_ShapeDictionary::kQuadrilateral, 4},
        {shp_ShapeDictionary::kTriangle, 3},      {shp_ShapeDictionary::kQuadrilateralShell, 2},
        {shp_ShapeDictionary::kTriangleShell, 2},
    };
    ASSERT_EQ(faceCounts.size(), static_cast<size_t>(shp_ShapeDictionary::kFamilyCount));
    for (auto const& [family, faces] : faceCounts) {
        shp_Shape const& shape = row(family);
        EXPECT_EQ(shape.NumberOfFaces(), faces) << shape.family;
        EXPECT_FALSE(shape.HasFace(0)) << shape.family;
        EXPECT_FALSE(shape.HasFace(faces + 1)) << shape.family;
        std::set<int> used;
        for (int face = 1; face <= faces; ++face) {
            Nodes const nodes = faceNodes(shape, face);
            EXPECT_GE(nodes.size(), 2u) << shape.family << " face " << face;
            EXPECT_EQ(std::set<int>(nodes.begin(), nodes.end()).size(), nodes.size())
                << shape.family << " face " << face;
            for (int node : nodes) {
                EXPECT_GE(node, 0) << shape.family << " face " << face;
                EXPECT_LT(node, shape.cornerCount) << shape.family << " face " << face;
                used.insert(node);
            }
        }
        EXPECT_EQ(static_cast<int>(used.size()), shape.cornerCount) << shape.family;
    }
}

// The faces of a solid close it, all turned the same way: each edge is
// walked once in each direction. The edges of a planar element chain round
// it, and a shell's two sides walk the same edges in opposite directions.
TEST(ShapeDictionary, FacesAreOrientedConsistently) {
    for (Family family : {shp_ShapeDictionary::kHexahedron, shp_ShapeDictionary::kTetrahedron,
                          shp_ShapeDictionary::kWedge, shp_ShapeDictionary::kQuadrilateralShell,
                          shp_ShapeDictionary::kTriangleShell}) {
        for (auto const& [edge, count] : directedEdges(row(family))) {
            EXPECT_EQ(count, 1) << row(family).family << " " << edge.first << "-" << edge.second;
            EXPECT_EQ(directedEdges(row(family)).count({edge.second, edge.first}), 1u)
                << row(family).family << " " << edge.first << "-" << edge.second;
        }
    }
    for (Family family : {shp_ShapeDictionary::kQuadrilateral, shp_ShapeDictionary::kTriangle}) {
        shp_Shape const& shape = row(family);
        for (int face = 1; face <= shape.NumberOfFaces(); ++face) {
            int const next = face % shape.NumberOfFaces() + 1;
            EXPECT_EQ(faceNodes(shape, face)[1], faceNodes(shape, next)[0]) << shape.family;
        }
    }
}

TEST(ShapeDictionary, NamedFaces) {
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kHexahedron), 1), (Nodes{0, 1, 2, 3}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kHexahedron), 2), (Nodes{4, 7, 6, 5}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kHexahedron), 6), (Nodes{3, 7, 4, 0}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kTetrahedron), 2), (Nodes{0, 3, 1}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kTetrahedron), 4), (Nodes{2, 3, 0}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kWedge), 2), (Nodes{3, 5, 4}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kWedge), 5), (Nodes{2, 5, 3, 0}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kQuadrilateral), 4), (Nodes{3, 0}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kTriangle), 3), (Nodes{2, 0}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kQuadrilateralShell), 1), (Nodes{0, 1, 2, 3}));
    EXPECT_EQ(faceNodes(row(shp_ShapeDictionary::kTriangleShell), 2), (Nodes{0, 2, 1}));
}

TEST(ShapeDictionary, TypeNamesMapToFamiliesByPattern) {
    std::map<std::string, Family> const families = {
        {"C3D8R", shp_ShapeDictionary::kHexahedron},
        {"C3D20", shp_ShapeDictionary::kHexahedron},
        {"DC3D8", shp_ShapeDictionary::kHexahedron},
        {"C3D27", shp_ShapeDictionary::kHexahedron},
        {"SC8R", shp_ShapeDictionary::kHexahedron},
        {"C3D4", shp_ShapeDictionary::kTetrahedron},
        {"C3D10M", shp_ShapeDictionary::kTetrahedron},
        {"C3D6", shp_ShapeDictionary::kWedge},
        {"C3D15V", shp_ShapeDictionary::kWedge},
        {"CPS4", shp_ShapeDictionary::kQuadrilateral},
        {"CAX8", shp_ShapeDictionary::kQuadrilateral},
        {"CAXA41", shp_ShapeDictionary::kQuadrilateral},
        {"CPE3", shp_ShapeDictionary::kTriangle},
        {"CGAX6M", shp_ShapeDictionary::kTriangle},
        {"S4R", shp_ShapeDictionary::kQuadrilateralShell},
        {"S8R5", shp_ShapeDictionary::kQuadrilateralShell},
        {"M3D4", shp_ShapeDictionary::kQuadrilateralShell},
        {"S3R", shp_ShapeDictionary::kTriangleShell},
        {"STRI65", shp_ShapeDictionary::kTriangleShell},
        {"R3D3", shp_ShapeDictionary::kTriangleShell},
    };
    for (auto const& [type, family] : families) {
        shp_Shape const* shape = shp_ShapeDictionary::GetShape(cow_String(type.c_str()));
        ASSERT_NE(shape, nullptr) << type;
        EXPECT_EQ(shape, &row(family)) << type;
    }
    for (char const* unknown :
         {"", "C3D", "C3D5", "AC3D5", "B31", "T3D2", "MASS", "SPRINGA", "SAX1", "DCCAX2", "c3d8"})
        EXPECT_EQ(shp_ShapeDictionary::GetShape(unknown), nullptr) << unknown;
}

// No element type of the type table gets a shape whose corners it may lack.
TEST(ShapeDictionary, EveryTableTypeWithAShapeHasItsCorners) {
    int withShape = 0;
    for (inp_ElementInfo const* info = inp_ElementTypes::kTypeRows; info->name != nullptr; ++info) {
        shp_Shape const* shape = shp_ShapeDictionary::GetShape(info->name);
        if (shape == nullptr) continue;
        ++withShape;
        EXPECT_GE(info->least, shape->cornerCount) << info->name << " as " << shape->family;
    }
    EXPECT_GT(withShape, 300);
}
