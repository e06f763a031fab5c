#include "support/inpM_AssemblyInstanceSurface.h"

#include <gtest/gtest.h>

#include <vector>

#include "SurfaceContents.h"
#include "support/inpM_IdMap.h"

namespace {

inpM_PartInstanceSurface const& part(inpM_AssemblyInstanceSurface const& surface,
                                     char const* instance) {
    return *surface.ConstGetInstance2PartInstanceSurfaceMap().ConstGet(instance);
}

std::vector<cow_String> instancesOf(inpM_AssemblyInstanceSurface const& surface) {
    cow_List<cow_String> const names = surface.ConstGetInstance2PartInstanceSurfaceMap().Names();
    return std::vector<cow_String>(names.begin(), names.end());
}

// Assembly nodes {1, 2}; instance A: nodes {10, 11}; instance B: nodes {20}.
inpM_AssemblyInstanceSurface nodeSurface() {
    inpM_AssemblyInstanceSurface surface;
    surface.Add(inpM_NodeAreaSurface(1.0, {1, 2}));
    surface.Add("A", inpM_NodeAreaSurface(1.0, {10, 11}));
    surface.Add("B", inpM_NodeAreaSurface(1.0, {20}));
    return surface;
}

}  // namespace

TEST(InpMAssemblySurfaceSharing, WriteToCopyDoesNotShowInOriginal) {
    inpM_AssemblyInstanceSurface const original = nodeSurface();
    inpM_AssemblyInstanceSurface copy = original;
    copy.Add("A", inpM_NodeAreaSurface(1.0, {12}));
    copy.GetAssemblyNodeAreaSurface().Add({3}, 1.0);
    EXPECT_EQ(nodesOf(part(copy, "A")), (std::vector<int>{10, 11, 12}));
    EXPECT_EQ(nodesOf(part(original, "A")), (std::vector<int>{10, 11}));
    EXPECT_EQ(nodesOf(original.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{1, 2}));
    // The untouched instance is still the same object in both.
    EXPECT_TRUE(copy.ConstGetInstance2PartInstanceSurfaceMap().ConstGet("B").SharesWith(
        original.ConstGetInstance2PartInstanceSurfaceMap().ConstGet("B")));
}

TEST(InpMAssemblySurfaceAdd, AddsPartByPart) {
    inpM_AssemblyInstanceSurface surface = nodeSurface();
    inpM_AssemblyInstanceSurface other;
    other.Add(inpM_NodeAreaSurface(1.0, {3}));
    other.Add("B", inpM_NodeAreaSurface(1.0, {21}));
    other.Add("C", inpM_ElementFaceIdSurface("S1", {5}));
    surface.Add(other);
    EXPECT_EQ(nodesOf(surface.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(nodesOf(part(surface, "B")), (std::vector<int>{20, 21}));
    EXPECT_EQ(face(part(surface, "C"), "S1"), (std::vector<int>{5}));
    EXPECT_EQ(instancesOf(surface), (std::vector<cow_String>{"A", "B", "C"}));
}

TEST(InpMAssemblySurfaceDifference, SubtractsPartByPartAndFromOneInstance) {
    inpM_AssemblyInstanceSurface surface = nodeSurface();
    inpM_AssemblyInstanceSurface other;
    other.Add(inpM_NodeAreaSurface(1.0, {2}));
    other.Add("A", inpM_NodeAreaSurface(1.0, {10}));
    other.Add("Z", inpM_NodeAreaSurface(1.0, {1}));
    surface.Difference(other);
    EXPECT_EQ(nodesOf(surface.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{1}));
    EXPECT_EQ(nodesOf(part(surface, "A")), (std::vector<int>{11}));
    EXPECT_EQ(instancesOf(surface), (std::vector<cow_String>{"A", "B"}));

    surface.Difference("B", inpM_NodeAreaSurface(1.0, {20}));
    surface.Difference("Q", inpM_NodeAreaSurface(1.0, {1}));  // unknown instance: nothing
    EXPECT_TRUE(part(surface, "B").IsEmpty());
    EXPECT_EQ(nodesOf(surface.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{1}));
}

TEST(InpMAssemblySurfaceIntersection, KeepsWhatBothHave) {
    inpM_AssemblyInstanceSurface surface = nodeSurface();
    inpM_AssemblyInstanceSurface other;
    other.Add(inpM_NodeAreaSurface(1.0, {2, 3}));
    other.Add("A", inpM_NodeAreaSurface(1.0, {11}));
    surface.Intersection(other);
    EXPECT_EQ(nodesOf(surface.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{2}));
    EXPECT_EQ(nodesOf(part(surface, "A")), (std::vector<int>{11}));
    EXPECT_EQ(instancesOf(surface), (std::vector<cow_String>{"A"}));  // B: not in other
}

TEST(InpMAssemblySurfaceIntersection, WithAnInstancePartLeavesOnlyThatInstance) {
    inpM_AssemblyInstanceSurface surface = nodeSurface();
    surface.Intersection("A", inpM_NodeAreaSurface(1.0, {11, 99}));
    EXPECT_TRUE(surface.ConstGetAssemblyNodeAreaSurface().IsEmpty());
    EXPECT_EQ(instancesOf(surface), (std::vector<cow_String>{"A"}));
    EXPECT_EQ(nodesOf(part(surface, "A")), (std::vector<int>{11}));

    // The operand may be one of the surface's own parts.
    inpM_AssemblyInstanceSurface own = nodeSurface();
    own.Intersection("A", part(own, "B"));
    EXPECT_EQ(instancesOf(own), (std::vector<cow_String>{"A"}));
    EXPECT_TRUE(part(own, "A").IsEmpty());
}

TEST(InpMAssemblySurfaceCrossInstance, NeedsNodesOnTwoLevels) {
    EXPECT_TRUE(nodeSurface().IsCrossInstanceNodeBasedSurface());

    inpM_AssemblyInstanceSurface oneInstance;
    oneInstance.Add("A", inpM_NodeAreaSurface(1.0, {1}));
    oneInstance.Add("B", inpM_NodeAreaSurface());  // no nodes: doesn't count
    EXPECT_FALSE(oneInstance.IsCrossInstanceNodeBasedSurface());

    inpM_AssemblyInstanceSurface withAssemblyNodes = oneInstance;
    withAssemblyNodes.Add(inpM_NodeAreaSurface(1.0, {7}));
    EXPECT_TRUE(withAssemblyNodes.IsCrossInstanceNodeBasedSurface());

    inpM_AssemblyInstanceSurface elementFaces;
    elementFaces.Add("A", inpM_ElementFaceIdSurface("S1", {1}));
    elementFaces.Add("B", inpM_ElementFaceIdSurface("S1", {1}));
    EXPECT_FALSE(elementFaces.IsCrossInstanceNodeBasedSurface());
}

TEST(InpMAssemblySurfaceRenumber, UsesTheNestedMapOfEachInstance) {
    inpM_IdMap nodes;
    nodes.Insert(1, 1001);
    inpM_IdMap nodesOfA;
    nodesOfA.Insert(10, 110);
    nodes.Insert("A", nodesOfA);
    inpM_IdMap elements;
    inpM_IdMap elementsOfC;
    elementsOfC.Insert(5, 500);
    elements.Insert("C", elementsOfC);

    inpM_AssemblyInstanceSurface surface = nodeSurface();
    surface.Add("C", inpM_ElementFaceIdSurface("S1", {5, 6}));
    inpM_AssemblyInstanceSurface kept = surface;
    kept.Renumber(nodes, elements, true);
    EXPECT_EQ(nodesOf(kept.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{2, 1001}));
    EXPECT_EQ(nodesOf(part(kept, "A")), (std::vector<int>{11, 110}));
    EXPECT_EQ(nodesOf(part(kept, "B")), (std::vector<int>{20}));  // no record of B
    EXPECT_EQ(face(part(kept, "C"), "S1"), (std::vector<int>{500, 6}));

    surface.Renumber(nodes, elements, false);
    EXPECT_EQ(nodesOf(surface.ConstGetAssemblyNodeAreaSurface()), (std::vector<int>{1001}));
    EXPECT_EQ(nodesOf(part(surface, "A")), (std::vector<int>{110}));
    EXPECT_TRUE(part(surface, "B").IsEmpty());
    EXPECT_EQ(face(part(surface, "C"), "S1"), (std::vector<int>{500}));
}

TEST(InpMAssemblySurfacePrint, PrintsAssemblyNodesThenInstances) {
    inpM_AssemblyInstanceSurface surface;
    surface.Add(inpM_NodeAreaSurface(1.0, {1}));
    surface.Add("A", inpM_ElementFaceIdSurface("S1", {5}));
    surface.SetInternal(true);
    aio_ostringstream out;
    surface.Print(out);
    EXPECT_EQ(out.Str(),
              "assembly surface (internal), 1 instance\n"
              "assembly nodes: node-area surface, 1 node\n"
              "  1 1\n"
              "instance A: element-face surface, 1 face, 1 element\n"
              "  S1: 5\n");
}
