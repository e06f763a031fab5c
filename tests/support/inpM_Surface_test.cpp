#include "support/inpM_Surface.h"

#include <gtest/gtest.h>

#include <vector>

#include "SurfaceContents.h"
#include "support/ZELBasException.h"
#include "support/inpM_IdMap.h"

namespace {

cow_String printed(inpM_PartInstanceSurface const& surface) {
    aio_ostringstream out;
    surface.Print(out);
    return out.Str();
}

inpM_IdMap idMap(std::vector<std::pair<int, int>> const& oldToNew) {
    inpM_IdMap ids;
    for (auto [oldId, newId] : oldToNew) ids.Insert(oldId, newId);
    return ids;
}

}  // namespace

TEST(InpMNodeAreaList, InsertReturnsFalseOnRepeatAndKeepsTheFirstArea) {
    inpM_NodeAreaList list;
    EXPECT_TRUE(list.Insert(7, 2.5));
    EXPECT_FALSE(list.Insert(7, 9.0));
    EXPECT_EQ(list.Size(), 1);
    EXPECT_EQ(list.ConstGet(7), 2.5);
    EXPECT_THROW(list.ConstGet(8), ZELBasAssertException);
}

TEST(InpMNodeAreaList, CopiesShareUntilWrittenAndRepeatsCopyNothing) {
    inpM_NodeAreaList original;
    original.Insert(1, 1.0);
    inpM_NodeAreaList copy = original;
    EXPECT_TRUE(copy.SharesWith(original));
    copy.Insert(1, 5.0);  // a repeat: no write
    copy.Remove(99);      // not there: no write
    EXPECT_TRUE(copy.SharesWith(original));
    copy.Insert(2, 1.0);
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(original.Size(), 1);
    EXPECT_EQ(copy.Size(), 2);
}

TEST(InpMNodeAreaList, IteratorWalksASnapshotInAscendingOrder) {
    inpM_NodeAreaList list;
    for (int node : {30, -4, 10}) list.Insert(node, node * 0.5);
    inpM_NodeAreaListIT walk(list);
    list.Insert(20, 1.0);  // not seen by the walk
    std::vector<double> seen;
    for (walk.First(); walk.NotDone(); walk.Next()) {
        seen.insert(seen.end(), {double(walk.CurrentNode()), walk.CurrentArea()});
    }
    EXPECT_EQ(seen, (std::vector<double>{-4, -2.0, 10, 5.0, 30, 15.0}));
}

TEST(InpMSurfaceHandle, WriteThroughCopyKeepsFormAndDoesNotShowInOriginal) {
    inpM_PartInstanceSurfaceHandle original = CreateSurface(inpM_NodeAreaSurfaceType);
    static_cast<inpM_NodeAreaSurface&>(original.Get()).Add({1, 2}, 1.0);
    inpM_PartInstanceSurfaceHandle copy = original;
    EXPECT_TRUE(copy.SharesWith(original));
    copy.Get().Difference(inpM_NodeAreaSurface(1.0, {1}));
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(copy->Type(), inpM_NodeAreaSurfaceType);
    EXPECT_EQ(nodesOf(*copy), (std::vector<int>{2}));
    EXPECT_EQ(nodesOf(*original), (std::vector<int>{1, 2}));
}

TEST(InpMSurfaceWrongForm, EachFormAnswersTheOtherFormsQuestionWithAnEmptyMap) {
    for (auto type :
         {inpM_ElementFaceIdSurfaceType, inpM_NodeAreaSurfaceType, inpM_AnalyticalSurfaceType}) {
        EXPECT_EQ(CreateSurface(type)->Type(), type);
    }
    EXPECT_THROW(CreateSurface(static_cast<inpM_SurfaceTypes>(7)), ZELBasAssertException);
    EXPECT_TRUE(inpM_NodeAreaSurface(1.0, {1}).ConstGetFaceIdElementIdsMap().IsEmpty());
    EXPECT_TRUE(inpM_ElementFaceIdSurface("S1", {10}).ConstGetNodeAreaList().IsEmpty());
    EXPECT_TRUE(inpM_AnalyticalSurface().IsEmpty());
}

TEST(InpMSurfaceWrongForm, TheOtherFormReadsAsEmptyInSetOperations) {
    inpM_NodeAreaSurface nodes(1.0, {1, 2});
    inpM_ElementFaceIdSurface elements("S1", {10});
    nodes.Add(elements);
    nodes.Difference(elements);
    EXPECT_EQ(nodesOf(nodes), (std::vector<int>{1, 2}));
    nodes.Intersection(elements);
    EXPECT_TRUE(nodes.IsEmpty());
    elements.Intersection(inpM_AnalyticalSurface());
    EXPECT_TRUE(elements.IsEmpty());
}

TEST(InpMNodeAreaSurface, AddDifferenceIntersection) {
    inpM_NodeAreaSurface surface(1.0, {1, 2, 3});
    surface.Add({3, 4}, 0.5);
    EXPECT_EQ(surface.ConstGetNodeAreaList().ConstGet(3), 1.0);  // kept its first area
    EXPECT_EQ(surface.ConstGetNodeAreaList().ConstGet(4), 0.5);

    surface.Add(inpM_NodeAreaSurface(2.0, {5}));
    EXPECT_EQ(nodesOf(surface), (std::vector<int>{1, 2, 3, 4, 5}));

    surface.Difference(inpM_NodeAreaSurface(9.0, {2, 4, 99}));
    EXPECT_EQ(nodesOf(surface), (std::vector<int>{1, 3, 5}));

    surface.Intersection(inpM_NodeAreaSurface(7.0, {3, 5, 6}));
    EXPECT_EQ(nodesOf(surface), (std::vector<int>{3, 5}));
    EXPECT_EQ(surface.ConstGetNodeAreaList().ConstGet(5), 2.0);  // own area stays
}

TEST(InpMNodeAreaSurface, OperationsWithItselfAreSafe) {
    inpM_NodeAreaSurface surface(1.0, {1, 2});
    surface.Add(surface);
    surface.Intersection(surface);
    EXPECT_EQ(nodesOf(surface), (std::vector<int>{1, 2}));
    surface.Difference(surface);
    EXPECT_TRUE(surface.IsEmpty());
}

TEST(InpMNodeAreaSurface, RenumberKeepsOrDropsMissingNodesAndCleanupOnlyDrops) {
    inpM_IdMap const ids = idMap({{1, 101}, {2, 102}});
    inpM_NodeAreaSurface kept(1.0, {1, 2, 3});
    inpM_NodeAreaSurface dropped = kept;
    inpM_NodeAreaSurface cleaned = kept;
    kept.Renumber(ids, true);
    EXPECT_EQ(nodesOf(kept), (std::vector<int>{3, 101, 102}));
    dropped.Renumber(ids, false);
    EXPECT_EQ(nodesOf(dropped), (std::vector<int>{101, 102}));
    cleaned.Cleanup(ids);
    EXPECT_EQ(nodesOf(cleaned), (std::vector<int>{1, 2}));
}

TEST(InpMElementFaceIdSurface, AddKeepsFirstOrderAndIgnoresRepeats) {
    inpM_ElementFaceIdSurface surface("S1", {5, 3, 5});
    surface.Add("S1", {9, 3, 1});
    surface.Add("S2", {});
    EXPECT_EQ(face(surface, "S1"), (std::vector<int>{5, 3, 9, 1}));
    EXPECT_FALSE(surface.ConstGetFaceIdElementIdsMap().IsMember("S2"));
    EXPECT_EQ(surface.NumberOfMembers(), 4);
}

TEST(InpMElementFaceIdSurface, AddDifferenceIntersectionWorkFaceByFace) {
    inpM_ElementFaceIdSurface surface("S1", {1, 2, 3});
    surface.Add(inpM_ElementFaceIdSurface("S2", {1, 2}));
    EXPECT_EQ(face(surface, "S2"), (std::vector<int>{1, 2}));

    surface.Difference(inpM_ElementFaceIdSurface("S2", {1, 3}));
    EXPECT_EQ(face(surface, "S1"), (std::vector<int>{1, 2, 3}));  // S2's elements only
    EXPECT_EQ(face(surface, "S2"), (std::vector<int>{2}));

    surface.Difference("S2", {2});
    EXPECT_FALSE(surface.ConstGetFaceIdElementIdsMap().IsMember("S2"));

    surface.Add("S3", {4});
    inpM_ElementFaceIdSurface other("S1", {3, 2, 8});
    other.Add("S4", {4});
    surface.Intersection(other);
    EXPECT_EQ(face(surface, "S1"), (std::vector<int>{2, 3}));  // own order stays
    EXPECT_FALSE(surface.ConstGetFaceIdElementIdsMap().IsMember("S3"));
    EXPECT_EQ(surface.ConstGetFaceIdElementIdsMap().Size(), 1);
}

TEST(InpMElementFaceIdSurface, CopyThroughHandleIsolatesFacesAndRepeatIndex) {
    inpM_PartInstanceSurfaceHandle original(new inpM_ElementFaceIdSurface("S1", {1, 2}));
    inpM_PartInstanceSurfaceHandle copy = original;
    auto& writable = static_cast<inpM_ElementFaceIdSurface&>(copy.Get());
    writable.Difference("S1", {1});
    writable.Add("S1", {1});  // new again in the copy: goes to the end
    EXPECT_EQ(face(*copy, "S1"), (std::vector<int>{2, 1}));
    EXPECT_EQ(face(*original, "S1"), (std::vector<int>{1, 2}));
}

TEST(InpMElementFaceIdSurface, RenumberMergesElementsThatMeetOnOneId) {
    inpM_IdMap const ids = idMap({{1, 10}, {2, 20}, {3, 10}});
    inpM_ElementFaceIdSurface kept("S1", {3, 4, 2, 1});
    kept.Renumber(ids, true);
    EXPECT_EQ(face(kept, "S1"), (std::vector<int>{10, 4, 20}));
    inpM_ElementFaceIdSurface dropped("S1", {4});
    dropped.Add("S2", {2, 4});
    dropped.Renumber(ids, false);
    EXPECT_FALSE(dropped.ConstGetFaceIdElementIdsMap().IsMember("S1"));
    EXPECT_EQ(face(dropped, "S2"), (std::vector<int>{20}));
}

TEST(InpMSurfacePrint, FormsPrintTheirMembers) {
    inpM_NodeAreaSurface nodes(0.5, {2, 1});
    EXPECT_EQ(printed(nodes), "node-area surface, 2 nodes\n  1 0.5\n  2 0.5\n");

    inpM_ElementFaceIdSurface elements("S2", {7});
    cow_List<int> many;
    for (int i = 1; i <= 17; ++i) many.Append(i);
    elements.Add("S1", many);
    elements.SetInternal(true);
    EXPECT_EQ(printed(elements),
              "element-face surface (internal), 2 faces, 18 elements\n"
              "  S1: 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16\n"
              "    17\n"
              "  S2: 7\n");

    EXPECT_EQ(printed(inpM_AnalyticalSurface()), "analytical surface\n");
    EXPECT_EQ(printed(inpM_NodeAreaSurface(1.0, {3})), "node-area surface, 1 node\n  3 1\n");
}
