#pragma once
// The members of a surface as plain vectors, for comparisons in tests.

#include <vector>

#include "support/inpM_Surface.h"

// The nodes of a node-area surface, ascending.
inline std::vector<int> nodesOf(inpM_PartInstanceSurface const& surface) {
    std::vector<int> nodes;
    for (auto entry : surface.ConstGetNodeAreaList()) nodes.push_back(entry.key);
    return nodes;
}

// The elements of one face of an element-face surface, in their order.
inline std::vector<int> face(inpM_PartInstanceSurface const& surface, char const* faceId) {
    cow_List<int> const* elements = surface.ConstGetFaceIdElementIdsMap().Find(faceId);
    if (elements == nullptr) return {};
    return std::vector<int>(elements->begin(), elements->end());
}
