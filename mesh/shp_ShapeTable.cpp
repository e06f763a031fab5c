#include "mesh/shp_ShapeDictionary.h"

// The faces of each family in the usual corner numbering of the shapes,
// written 0-based (node 1 of an element is position 0). Faces with fewer
// nodes than shp_Face::kMaxNodes leave the rest 0, unread.
shp_Shape const shp_ShapeDictionary::kShapes[kFamilyCount] = {
    // Hexahedron: 1-2-3-4, 5-8-7-6, 1-5-6-2, 2-6-7-3, 3-7-8-4, 4-8-5-1.
    {"hexahedron",
     8,
     6,
     {{4, {0, 1, 2, 3}},
      {4, {4, 7, 6, 5}},
      {4, {0, 4, 5, 1}},
      {4, {1, 5, 6, 2}},
      {4, {2, 6, 7, 3}},
      {4, {3, 7, 4, 0}}}},
    // Tetrahedron: 1-2-3, 1-4-2, 2-4-3, 3-4-1.
    {"tetrahedron", 4, 4, {{3, {0, 1, 2}}, {3, {0, 3, 1}}, {3, {1, 3, 2}}, {3, {2, 3, 0}}}},
    // Wedge: 1-2-3, 4-6-5, 1-4-5-2, 2-5-6-3, 3-6-4-1.
    {"wedge",
     6,
     5,
     {{3, {0, 1, 2}}, {3, {3, 5, 4}}, {4, {0, 3, 4, 1}}, {4, {1, 4, 5, 2}}, {4, {2, 5, 3, 0}}}},
    // Quadrilateral, faces are edges: 1-2, 2-3, 3-4, 4-1.
    {"quadrilateral", 4, 4, {{2, {0, 1}}, {2, {1, 2}}, {2, {2, 3}}, {2, {3, 0}}}},
    // Triangle, faces are edges: 1-2, 2-3, 3-1.
    {"triangle", 3, 3, {{2, {0, 1}}, {2, {1, 2}}, {2, {2, 0}}}},
    // Shells: face 1 is the negative side, face 2 the positive one; the same
    // corners, walked the other way round, since the normals are opposite.
    {"quadrilateral shell", 4, 2, {{4, {0, 1, 2, 3}}, {4, {0, 3, 2, 1}}}},
    {"triangle shell", 3, 2, {{3, {0, 1, 2}}, {3, {0, 2, 1}}}},
};
