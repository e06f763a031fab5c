#include "mesh/inp_ElementLayering.h"

#include <algorithm>

namespace {

// Rows by numbering - 1: a gasket position's source in the solid element.
constexpr int kSolidNumberingTable[kSolidNumberings][kSolidNumberedPositions] = {
    {0, 1, 2, 3, 8, 9, 10, 11, 4, 5, 6, 7, 12, 13, 14, 15},
    {7, 6, 5, 4, 14, 13, 12, 15, 3, 2, 1, 0, 10, 9, 8, 11},
    {0, 4, 5, 1, 16, 12, 17, 8, 3, 7, 6, 2, 19, 14, 18, 10},
    {2, 1, 5, 6, 9, 17, 13, 18, 3, 0, 4, 7, 11, 16, 15, 19},
    {7, 3, 2, 6, 19, 10, 18, 14, 4, 0, 1, 5, 16, 8, 17, 12},
    {4, 0, 3, 7, 16, 11, 19, 15, 5, 1, 2, 6, 17, 9, 18, 13},
    {0, 1, 2, 3, 4, 5, 6, 7, 7, 6, 5, 4, 3, 2, 1, 0},
    {0, 4, 5, 1, 3, 7, 6, 2, 2, 1, 5, 6, 3, 0, 4, 7},
};

bool startsWith(std::string_view type, std::string_view prefix) {
    return type.substr(0, prefix.size()) == prefix;
}

inp_ElementLayering::Family familyOf(std::string_view type) {
    using L = inp_ElementLayering;
    if (type.size() >= 4 && type.substr(1, 3) == "AXA") return L::kAxisymmetricAsymmetric;
    if (startsWith(type, "C3D27") || startsWith(type, "C3D15V")) return L::kOptionalFaceNodes;
    if (startsWith(type, "CONN")) return L::kConnector;
    if (startsWith(type, "GK")) return L::kGasket;
    if (startsWith(type, "COH") || startsWith(type, "COD")) return L::kCohesive;
    return L::kPlain;
}

// Bottom-only input of a gasket or cohesive type: half the least count, or
// for the pore pressure cohesive types (a "P" as seventh character) a third.
void layerByOffset(inp_ElementLayering& layering, std::string_view type, int least) {
    layering.layered = true;
    layering.threeLayers =
        layering.family == inp_ElementLayering::kCohesive && type.size() >= 7 && type[6] == 'P';
    int const layers = layering.threeLayers ? 3 : 2;
    layering.bottom = least / layers;
    layering.layersAbove = layers - 1;
    layering.fullSize = layers * layering.bottom;
    if (inp_IsSolidNumberedGasket(type)) {
        layering.solidNumbered = true;
        layering.bottom = 9;
        layering.fullSize = 18;
    }
}

}  // namespace

inp_ElementLayering inp_ClassifyElementLayering(std::string_view type, int least, int greatest,
                                                bool offsetGiven) {
    inp_ElementLayering layering;
    layering.family = familyOf(type);
    layering.zeroAllowed = layering.family != inp_ElementLayering::kPlain;
    switch (layering.family) {
        case inp_ElementLayering::kAxisymmetricAsymmetric:
            // A type of open counts has no bottom to build on.
            if (least <= 0) break;
            layering.layered = true;
            layering.bottom = least;
            layering.layersAbove = greatest / least - 1;
            layering.fullSize = greatest / least * least;
            break;
        case inp_ElementLayering::kGasket:
        case inp_ElementLayering::kCohesive:
            if (offsetGiven) layerByOffset(layering, type, least);
            break;
        default:
            break;
    }
    return layering;
}

inp_ElementLayering inp_ElementLayering::ForGivenNodes(int given) const noexcept {
    inp_ElementLayering result = *this;
    if (layered && solidNumbered && given == 8) {
        result.bottom = 8;
        result.fullSize = 16;
    }
    return result;
}

void inp_ElementLayering::FillUpperLayers(int given, int offset, int* nodes) const noexcept {
    std::fill(nodes + given, nodes + fullSize, 0);
    // Bottom and top given: the middle layer is the one left, behind them.
    bool const middleOnly = given != bottom;
    int const stride = middleOnly ? given : bottom;
    int const layers = middleOnly ? 1 : layersAbove;
    for (int layer = 1; layer <= layers; ++layer)
        for (int i = 0; i < bottom; ++i) nodes[i + layer * stride] = nodes[i] + layer * offset;
}

bool inp_IsSolidNumberedGasket(std::string_view type) {
    return type == "GK3D18" || type == "GK3D18N";
}

int inp_GreatestWithSolidNumbering(std::string_view type, int greatest) {
    if (inp_IsSolidNumberedGasket(type)) return 27;
    if (type == "GK3D12M" || type == "GK3D12MN") return 18;
    return greatest;
}

int inp_SolidNumberingSource(int numbering, int position) {
    return kSolidNumberingTable[numbering - 1][position];
}
