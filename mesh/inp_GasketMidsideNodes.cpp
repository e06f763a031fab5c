// The midside nodes of GK3D18 gaskets, for the simulation workflow: the
// nodes 17 and 18 sit at the centers of the two quadratic faces, nodes 1 to 8
// and 9 to 16. A deck may leave them open; they then get the labels above the
// highest node of the scope and the position the face's own shape functions
// give its center.

#include "mesh/inp_NodeGenerationVisitor.h"

#include <algorithm>

namespace {

constexpr int kFaceNodes = 8;
constexpr int kGasketNodes = 18;
// Zero-based positions of the two midside nodes, and where their faces begin.
constexpr int kFirstMidside = 16;
constexpr int kSecondMidside = 17;
constexpr int kSecondFace = 8;

}  // namespace

void inp_NodeGenerationVisitor::BiquadraticInterpolator(double const& r, double const& s,
                                                        double* const weights) const {
    weights[0] = -(1.0 - r) * (1.0 - s) * (1.0 + r + s) / 4.0;
    weights[1] = -(1.0 + r) * (1.0 - s) * (1.0 - r + s) / 4.0;
    weights[2] = -(1.0 + r) * (1.0 + s) * (1.0 - r - s) / 4.0;
    weights[3] = -(1.0 - r) * (1.0 + s) * (1.0 + r - s) / 4.0;
    weights[4] = (1.0 - r) * (1.0 + r) * (1.0 - s) / 2.0;
    weights[5] = (1.0 + r) * (1.0 - s) * (1.0 + s) / 2.0;
    weights[6] = (1.0 - r) * (1.0 + r) * (1.0 + s) / 2.0;
    weights[7] = (1.0 - r) * (1.0 - s) * (1.0 + s) / 2.0;
}

void inp_NodeGenerationVisitor::GenerateGasketGK3D18MidsideNodes(inp_CoordMap& map,
                                                                 cow_List<int> const& faceNodes,
                                                                 cow_List<int> const& midside) {
    if (faceNodes.Length() != kFaceNodes || midside.Length() != 1) return;
    int face[kFaceNodes];  // a list is not one block of memory
    std::copy(faceNodes.begin(), faceNodes.end(), face);
    GenerationTarget target(map, nullptr);
    makeMidsideNode(target, face, midside[0]);
}

void inp_NodeGenerationVisitor::GenerateGasketGK3D18MidsideNodes(inp_CoordMap& map, bool first,
                                                                 bool second,
                                                                 cow_List<int> const& nodes) {
    if (nodes.Length() != kGasketNodes) return;
    int connectivity[kGasketNodes];  // a list is not one block of memory
    std::copy(nodes.begin(), nodes.end(), connectivity);
    GenerationTarget target(map, nullptr);
    if (first) makeMidsideNode(target, connectivity, connectivity[kFirstMidside]);
    if (second) makeMidsideNode(target, connectivity + kSecondFace, connectivity[kSecondMidside]);
}

// Written in place: every holder of the element table sees the new labels.
void inp_NodeGenerationVisitor::completeGasketMidsides(GenerationTarget& target,
                                                       inp_Element& element) {
    int* const nodes = element.nodes();
    bool const first = nodes[kFirstMidside] == 0;
    bool const second = nodes[kSecondMidside] == 0;
    if (first) nodes[kFirstMidside] = ++m_maxNodeLabel;
    if (second) nodes[kSecondMidside] = ++m_maxNodeLabel;
    if (first) makeMidsideNode(target, nodes, nodes[kFirstMidside]);
    if (second) makeMidsideNode(target, nodes + kSecondFace, nodes[kSecondMidside]);
}

// The weights sum to one, so the center can be reckoned on the global
// positions and moved back into the frame of the level as a point.
void inp_NodeGenerationVisitor::makeMidsideNode(GenerationTarget& target, int const* face,
                                                int midside) {
    if (midside == 0 || target.nodes.IsMember(midside)) return;
    for (int k = 0; k < kFaceNodes; ++k)
        if (!target.nodes.IsMember(face[k])) return;
    double weights[kFaceNodes];
    BiquadraticInterpolator(0.0, 0.0, weights);
    gsl_Point center;
    for (int k = 0; k < kFaceNodes; ++k) {
        inp_Coord const node = target.nodes.ConstGet(face[k]);
        center.x += weights[k] * node.x;
        center.y += weights[k] * node.y;
        center.z += weights[k] * node.z;
    }
    target.Store(midside, center);
}
