#pragma once
// The families of element types whose data lines are read apart from the
// plain rule "every node given, none zero": which types they are, whether a
// zero node may stand, and how the layered ones are built from their bottom
// nodes.
//
// Layered types may be given by their bottom nodes alone; the layers above
// are then made by adding the OFFSET once per layer: bottom node i gives node
// i + offset in the first layer above, i + 2 x offset in the second. The
// asymmetric axisymmetric types (CAXA, SAXA) are always layered; gasket and
// cohesive types only when the keyword has OFFSET.
//
// Shared by the *ELEMENT reader and the element generators, so that both
// read a type the same way.

#include <string_view>

struct inp_ElementLayering {
    enum Family : unsigned char {
        kPlain,                   // every node must be given, and no zero
        kAxisymmetricAsymmetric,  // CAXA, SAXA: characters 2 to 4 are "AXA"
        kOptionalFaceNodes,       // C3D27, C3D15V: the face nodes may be left open
        kConnector,               // CONN: an empty node field has a meaning
        kGasket,                  // GK
        kCohesive,                // COH, COD
    };

    Family family = kPlain;
    bool zeroAllowed = false;    // a 0 node is an open position, not an error
    bool layered = false;        // the layers above the bottom may be generated
    bool threeLayers = false;    // pore pressure cohesive: bottom, top, then middle
    bool solidNumbered = false;  // GK3D18, GK3D18N (see ForGivenNodes)
    int bottom = 0;              // nodes of the bottom layer
    int layersAbove = 0;         // layers that generation adds above the bottom
    int fullSize = 0;            // nodes of an element once its layers are made

    bool IsGasketOrCohesive() const noexcept { return family == kGasket || family == kCohesive; }
    // The most values a data line of a layered gasket or cohesive element
    // gives: the bottom, and for three layers the bottom and the top.
    int GivenLimit() const noexcept { return threeLayers ? 2 * bottom : bottom; }
    // Whether `given` nodes are bottom-only input from which the rest is
    // generated: exactly the bottom, or for three layers bottom and top.
    bool GeneratesFrom(int given) const noexcept {
        return given == bottom || (threeLayers && given == 2 * bottom);
    }
    // The layering that applies to an element of `given` nodes. A layered
    // GK3D18 reads a 9-node bottom of 18 nodes in all, except when exactly 8
    // nodes are given: then an 8-node bottom of 16.
    inp_ElementLayering ForGivenNodes(int given) const noexcept;
    // Makes the upper layers of an element whose `given` nodes (for which
    // GeneratesFrom holds) stand at the front of `nodes`, which has room for
    // fullSize entries: positions behind the given ones are zeroed, then node
    // i of each layer l above is bottom node i + l x offset. When bottom and
    // top of a three-layer type are given, the one layer left (the middle)
    // follows the given nodes.
    void FillUpperLayers(int given, int offset, int* nodes) const noexcept;
};

// How the *ELEMENT reader reads the upper-case `type`, whose node counts are
// `least` to `greatest`, with or without an OFFSET parameter.
inp_ElementLayering inp_ClassifyElementLayering(std::string_view type, int least, int greatest,
                                                bool offsetGiven);

// GK3D18 and GK3D18N: the gaskets whose node order SOLID ELEMENT NUMBERING
// changes.
bool inp_IsSolidNumberedGasket(std::string_view type);
// The greatest node count of a gasket type when the keyword has SOLID
// ELEMENT NUMBERING: 27 for GK3D18 and GK3D18N, 18 for GK3D12M and GK3D12MN,
// else `greatest` as it is.
int inp_GreatestWithSolidNumbering(std::string_view type, int greatest);

// The solid numberings of GK3D18: for numbering 1 to kSolidNumberings, the
// position of the solid element's connectivity (0-based) that goes to
// gasket position 0 to kSolidNumberedPositions - 1.
inline constexpr int kSolidNumberings = 8;
inline constexpr int kSolidNumberedPositions = 16;
int inp_SolidNumberingSource(int numbering, int position);
