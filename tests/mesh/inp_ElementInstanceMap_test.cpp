#include "mesh/inp_ElementInstanceMap.h"

#include <gtest/gtest.h>

#include "mesh/inp_ElementUndefinedNodesError.h"

namespace {

using ElementHolder = inpM_InstanceMap<inp_MapInt2Element>;

inp_MapInt2Element tableOf(std::initializer_list<std::pair<int, cow_List<int>>> elements) {
    inp_MapInt2Element map;
    for (auto const& [label, nodes] : elements) {
        map.Insert(label, inp_Element("T3D2", nodes, 0, 0, 0));
    }
    return map;
}

inpM_IdMap nodeMapOf(std::initializer_list<std::pair<int, int>> entries) {
    inpM_IdMap map;
    for (auto [oldId, newId] : entries) map.Insert(oldId, newId);
    return map;
}

cow_List<int> nodesOf(inp_MapInt2Element const& map, int label) {
    return map.ConstGet(label).NodeList();
}

// A level of labels 10 and 20 with instances "B" (5, 7) and "A" (3).
ElementHolder smallTree() {
    ElementHolder holder(tableOf({{20, {2, 3}}, {10, {1, 2}}}));
    holder.Insert("B", tableOf({{7, {1, 1}}, {5, {1, 1}}}));
    holder.Insert("A", tableOf({{3, {1, 1}}}));
    return holder;
}

TEST(ElementHolderRenumber, NumbersRunWithoutGapLevelFirstThenInstancesByName) {
    ElementHolder holder = smallTree();
    inp_Element const* const record = holder.ConstGet().GetEltPtr(20);
    inpM_IdMap const ids = holder.Renumber(1, false);
    EXPECT_EQ(ids.NumberIds(), 5);
    EXPECT_EQ(ids.ConstGet(10), 1);
    EXPECT_EQ(ids.ConstGetOld(2), 20);
    EXPECT_EQ(ids.ConstGet("A").ConstGet(3), 3);
    EXPECT_EQ(ids.ConstGet("B").ConstGet(5), 4);
    EXPECT_EQ(ids.ConstGet("B").ConstGet(7), 5);
    EXPECT_FALSE(holder.ConstGet().IsMember(10));
    EXPECT_EQ(nodesOf(holder.ConstGet(), 2), cow_List<int>({2, 3}));
    EXPECT_EQ(holder.ConstGet().GetEltPtr(2), record);  // held alone: moved, not copied
    EXPECT_TRUE(holder.ConstGet("B").IsMember(5));
}

TEST(ElementHolderRenumber, KeepLabelsMapsEachLabelToItselfAndKeepsTheTables) {
    ElementHolder holder = smallTree();
    inp_MapInt2Element const before = holder.ConstGet();
    inpM_IdMap const ids = holder.Renumber(1, true);
    EXPECT_EQ(ids.NumberIds(), 5);
    EXPECT_EQ(ids.ConstGet(20), 20);
    EXPECT_EQ(ids.ConstGet("B").ConstGetOld(7), 7);
    EXPECT_TRUE(holder.ConstGet().SharesTableWith(before));
}

TEST(ElementHolderRenumber, EmptyLevelGivesNoEntriesAndKeepsItsTable) {
    ElementHolder holder{inp_MapInt2Element()};
    inp_MapInt2Element const before = holder.ConstGet();
    EXPECT_EQ(holder.Renumber(1, false).NumberIds(), 0);
    EXPECT_TRUE(holder.ConstGet().SharesTableWith(before));
    EXPECT_EQ(ElementHolder().Renumber(1, false).NumberIds(), 0);  // no value at all
}

TEST(ElementHolderRenumber, TableOfASecondHolderSurvivesUnchanged) {
    inp_MapInt2Element const other = tableOf({{10, {1, 2}}, {20, {2, 3}}});
    ElementHolder holder(other);
    ElementHolder const copyOfHolder = holder;
    holder.Renumber(100, false);
    EXPECT_TRUE(holder.ConstGet().IsMember(101));
    for (inp_MapInt2Element const& untouched : {other, copyOfHolder.ConstGet()}) {
        EXPECT_EQ(untouched.Size(), 2);
        EXPECT_EQ(nodesOf(untouched, 20), cow_List<int>({2, 3}));
        EXPECT_FALSE(untouched.IsMember(101));
    }
    EXPECT_NE(holder.ConstGet().GetEltPtr(101), other.GetEltPtr(10));  // copied
}

TEST(ElementHolderRenumber, FixedLabelsKeepTheirValueOthersTakeNext) {
    ElementHolder holder = smallTree();
    holder.Get().Insert(30, inp_Element());
    omi_IntTable<int> fixed;
    fixed.Insert(20, 500);
    int next = 1;
    inpM_IdMap const ids = holder.Renumber(next, false, fixed);
    EXPECT_EQ(ids.ConstGet(10), 1);
    EXPECT_EQ(ids.ConstGet(20), 500);
    EXPECT_EQ(ids.ConstGet(30), 2);
    EXPECT_EQ(next, 3);
    EXPECT_FALSE(ids.IsMember("A"));  // one level only
    EXPECT_TRUE(holder.ConstGet("A").IsMember(3));
}

TEST(ElementHolderUpdate, TranslatesConnectivityAndLeavesOpenPositions) {
    ElementHolder holder(tableOf({{1, {1, 0}}, {2, {2, inp_Element::kEmptyConnectorField}}}));
    holder.Insert("A", tableOf({{1, {1, 2}}}));
    inpM_IdMap nodes = nodeMapOf({{1, 11}, {2, 12}});
    nodes.Insert("A", nodeMapOf({{1, 21}, {2, 22}}));
    holder.Update(nodes);
    EXPECT_EQ(nodesOf(holder.ConstGet(), 1), cow_List<int>({11, 0}));
    EXPECT_EQ(nodesOf(holder.ConstGet(), 2),
              cow_List<int>({12, inp_Element::kEmptyConnectorField}));
    EXPECT_EQ(nodesOf(holder.ConstGet("A"), 1), cow_List<int>({21, 22}));
}

TEST(ElementHolderUpdate, RaisesAfterTryingAllElementsWithEachLabelOnce) {
    ElementHolder holder(tableOf({{3, {9, 9}}, {1, {1, 2}}, {2, {2, 9}}, {4, {2, 1}}}));
    holder.Insert("A", tableOf({{1, {1, 2}}}));
    inpM_IdMap nodes = nodeMapOf({{1, 11}, {2, 12}});
    nodes.Insert("A", nodeMapOf({{1, 21}, {2, 22}}));
    try {
        holder.Update(nodes);
        FAIL() << "no error raised";
    } catch (inp_ElementUndefinedNodesError const& error) {
        EXPECT_EQ(error.Elements(), cow_List<int>({2, 3}));
        EXPECT_EQ(error.UserReport(),
                  "The following elements reference one or more nodes that do not exist\n"
                  "    2, 3");
    }
    EXPECT_EQ(nodesOf(holder.ConstGet(), 4), cow_List<int>({12, 11}));   // tried after 2 and 3
    EXPECT_EQ(nodesOf(holder.ConstGet(), 2), cow_List<int>({2, 9}));     // left as it was
    EXPECT_EQ(nodesOf(holder.ConstGet("A"), 1), cow_List<int>({1, 2}));  // not reached
}

TEST(ElementHolderUpdate, InstanceErrorNamesTheInstanceAndSharedTablesStayAsTheyWere) {
    inp_MapInt2Element const part = tableOf({{5, {1, 3}}});
    ElementHolder holder;
    holder.Insert("PART-1-1", part);
    inpM_IdMap nodes;
    nodes.Insert("PART-1-1", nodeMapOf({{1, 11}}));
    try {
        holder.Update(nodes);
        FAIL() << "no error raised";
    } catch (inp_ElementUndefinedNodesError const& error) {
        EXPECT_EQ(error.InstanceName(), "PART-1-1");
        EXPECT_EQ(error.UserReport(),
                  "The following elements in instance PART-1-1 reference one or more nodes "
                  "that do not exist\n    5");
    }
    holder.Insert("PART-1-1", part);
    nodes.Insert("PART-1-1", nodeMapOf({{1, 11}, {3, 13}}));
    holder.Update(nodes);
    EXPECT_EQ(nodesOf(holder.ConstGet("PART-1-1"), 5), cow_List<int>({11, 13}));
    EXPECT_EQ(nodesOf(part, 5), cow_List<int>({1, 3}));
}

}  // namespace
