#include "mesh/inp_MapInt2Element.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/ZELBasException.h"

namespace {

inp_Element element(char const* type, std::initializer_list<int> nodes) {
    return inp_Element(type, cow_List<int>(nodes), 0, 0, 0);
}

std::vector<int> labelsOf(inp_MapInt2Element const& map) {
    std::vector<int> labels;
    for (inp_MapInt2ElementSIT walk(map); walk.NotDone(); walk.Next()) {
        labels.push_back(walk.CurrentKey());
    }
    return labels;
}

TEST(InpMapInt2ElementInsert, NewLabelIsTrueExistingLabelAssignsIntoItsRecord) {
    inp_MapInt2Element map;
    EXPECT_TRUE(map.Insert(7, element("C3D4", {1, 2, 3, 4})));
    inp_Element const* const record = map.GetEltPtr(7);
    EXPECT_FALSE(map.Insert(7, element("C3D8", {1, 2, 3, 4, 5, 6, 7, 8})));
    EXPECT_EQ(map.Size(), 1);
    EXPECT_EQ(map.GetEltPtr(7), record);  // same record, array reallocated
    EXPECT_EQ(map.ConstGet(7), element("C3D8", {1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(InpMapInt2ElementInsert, InsertPtrTakesTheRecordOverAndReplacesAnOldOne) {
    inp_MapInt2Element map;
    auto* first = new inp_Element(element("T3D2", {1, 2}));
    EXPECT_TRUE(map.InsertPtr(3, first));
    EXPECT_EQ(map.GetEltPtr(3), first);
    auto* second = new inp_Element(element("T3D3", {1, 2, 3}));
    EXPECT_FALSE(map.InsertPtr(3, second));  // first is destroyed: the sanitizers watch
    EXPECT_EQ(map.GetEltPtr(3), second);
    EXPECT_EQ(map.Size(), 1);
}

TEST(InpMapInt2ElementLookup, MissingLabelIsNullOrAnAssertion) {
    inp_MapInt2Element map;
    map.Insert(-4, element("MASS", {9}));
    EXPECT_TRUE(map.IsMember(-4));
    EXPECT_FALSE(map.IsMember(4));
    EXPECT_EQ(map.GetEltPtr(4), nullptr);
    EXPECT_THROW(map.ConstGet(4), ZELBasAssertException);
    map.GetEltPtr(-4)->nodes()[0] = 10;  // writable in place
    EXPECT_EQ(map.ConstGet(-4).nodes()[0], 10);
}

TEST(InpMapInt2ElementSharing, CopiesSeeOneTableAndWritesShowInAll) {
    inp_MapInt2Element first;
    inp_MapInt2Element second(first);
    second.Insert(1, element("MASS", {1}));
    EXPECT_TRUE(first.IsMember(1));
    EXPECT_EQ(first.UseCount(), 2);
    first.Clear();
    EXPECT_EQ(second.Size(), 0);
}

TEST(InpMapInt2ElementSharing, AdoptNewTableLeavesTheOldOneWithTheOthers) {
    inp_MapInt2Element first;
    first.Insert(1, element("MASS", {1}));
    inp_MapInt2Element second(first);
    auto const weak = first.WeakTable();
    EXPECT_EQ(first.UseCount(), 2);  // the weak handle does not count
    second.AdoptNewTable();
    EXPECT_EQ(first.UseCount(), 1);
    EXPECT_EQ(second.UseCount(), 1);
    EXPECT_TRUE(first.IsMember(1));
    EXPECT_EQ(second.Size(), 0);
}

TEST(InpMapInt2ElementSharing, AdoptCopyOfTableClonesTheRecords) {
    inp_MapInt2Element first;
    first.Insert(1, element("MASS", {1}));
    inp_MapInt2Element second(first);
    second.AdoptCopyOfTable();
    second.GetEltPtr(1)->nodes()[0] = 5;
    EXPECT_EQ(first.ConstGet(1).nodes()[0], 1);
    EXPECT_FALSE(first.SharesTableWith(second));
}

TEST(InpMapInt2ElementSharing, ReleasedHolderReadsEmptyAndTakesAFreshTableOnInsert) {
    inp_MapInt2Element first;
    first.Insert(1, element("MASS", {1}));
    inp_MapInt2Element second(first);
    first.ReleaseTable();
    EXPECT_EQ(first.UseCount(), 0);
    EXPECT_EQ(first.Size(), 0);
    EXPECT_FALSE(first.IsMember(1));
    EXPECT_EQ(first.GetEltPtr(1), nullptr);
    EXPECT_TRUE(labelsOf(first).empty());
    EXPECT_TRUE(second.IsMember(1));
    first.InsertPtr(2, new inp_Element(element("MASS", {2})));
    EXPECT_EQ(first.UseCount(), 1);
    EXPECT_FALSE(second.IsMember(2));
}

TEST(InpMapInt2ElementWalk, VisitsAscendingLabelsNegativeOnesFirst) {
    inp_MapInt2Element map;
    for (int label : {30, -2, 5, 0, 100000, -70000}) map.Insert(label, element("MASS", {label}));
    EXPECT_EQ(labelsOf(map), (std::vector<int>{-70000, -2, 0, 5, 30, 100000}));
    inp_MapInt2ElementSIT walk(map);
    walk.Next();
    EXPECT_EQ(walk.CurrentValue().nodes()[0], -2);
    EXPECT_EQ(walk.CurrentValuePtr(), map.GetEltPtr(-2));
}

TEST(OmiIntTableElementOwnership, CopyClonesEveryRecord) {
    omi_IntTableElement original;
    original.Insert(1, element("T3D2", {1, 2}));
    original.Insert(2, element("T3D2", {2, 3}));
    omi_IntTableElement copy(original);
    EXPECT_NE(copy.Lookup(1), original.Lookup(1));
    EXPECT_EQ(*copy.Lookup(2), *original.Lookup(2));
    copy = original;  // assignment frees the old clones
    EXPECT_EQ(copy.Size(), 2);
}

TEST(OmiIntTableElementOwnership, MoveRecordsIntoHandsRecordsOverUnderNewLabels) {
    omi_IntTableElement source;
    source.Insert(10, element("MASS", {1}));
    source.Insert(20, element("MASS", {2}));
    source.Insert(30, element("MASS", {3}));
    inp_Element const* const record = source.Lookup(20);
    omi_IntTableElement target;
    // 10 and 20 meet under one label: the later record stays.
    source.MoveRecordsInto(target, [](int label) { return label == 30 ? 2 : 1; });
    EXPECT_TRUE(source.IsEmpty());
    EXPECT_EQ(target.Size(), 2);
    EXPECT_EQ(target.Lookup(1), record);
    EXPECT_THROW(source.MoveRecordsInto(target, [](int label) { return label; }),
                 ZELBasAssertException);  // the target must be empty
}

}  // namespace
