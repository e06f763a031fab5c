#include "mesh/inp_Element.h"

#include <gtest/gtest.h>

#include <utility>

#include "support/ZELBasException.h"

namespace {

cow_List<int> listOf(std::initializer_list<int> values) {
    return cow_List<int>(values);
}

TEST(InpElementConstruction, EmptyRecordIsAllZero) {
    inp_Element const empty;
    EXPECT_TRUE(empty.type().IsEmpty());
    EXPECT_EQ(empty.nodes(), nullptr);
    EXPECT_EQ(empty.numNodesPerElement(), 0);
    EXPECT_EQ(empty.solidElementNumbering(), 0);
    EXPECT_EQ(empty.numNodesDefined(), 0);
    EXPECT_EQ(empty.nodeOffset(), 0);
}

TEST(InpElementConstruction, ArrayAndListFormsHoldTheSameRecord) {
    int const nodes[] = {1, 2, 0, 4};
    inp_Element const fromArray("GK3D8", 4, nodes, 4, 10, 3);
    inp_Element const fromList("GK3D8", listOf({1, 2, 0, 4}), 4, 10, 3);
    EXPECT_EQ(fromArray, fromList);
    EXPECT_EQ(fromList.numNodesPerElement(), 4);
    EXPECT_EQ(fromList.nodes()[2], 0);
    EXPECT_EQ(fromList.numNodesDefined(), 4);
    EXPECT_EQ(fromList.nodeOffset(), 10);
    EXPECT_EQ(fromList.solidElementNumbering(), 3);
    EXPECT_EQ(fromList.NodeList(), listOf({1, 2, 0, 4}));
}

TEST(InpElementConstruction, SuperelementKeepsItsFileAndZeroCounts) {
    inp_Element element("Z1", "sub.sup", listOf({5, 6}), 2);
    EXPECT_EQ(element.file(), "sub.sup");
    EXPECT_EQ(element.nodeOffset(), 0);
    EXPECT_EQ(element.solidElementNumbering(), 0);
    element.setFile("other.sup");
    EXPECT_EQ(element.file(), "other.sup");
}

TEST(InpElementConstruction, CountsBeyondTheirWidthAreRefused) {
    EXPECT_THROW(inp_Element("X", listOf({1}), 0, 0, 40000), ZELBasAssertException);
    EXPECT_THROW(inp_Element("X", inp_Element::kMaxNodes + 1, nullptr, 0, 0, 0),
                 ZELBasAssertException);
}

TEST(InpElementCopying, CopyOwnsItsOwnNodes) {
    inp_Element original("C3D4", listOf({1, 2, 3, 4}), 0, 0, 0);
    inp_Element copy(original);
    EXPECT_NE(copy.nodes(), original.nodes());
    copy.nodes()[0] = 99;
    EXPECT_EQ(original.nodes()[0], 1);
}

TEST(InpElementCopying, AssignmentKeepsAnArrayOfEqualLength) {
    inp_Element const source("S4R", listOf({9, 10, 11, 12}), 0, 0, 0);
    inp_Element reused("C3D4", listOf({1, 2, 3, 4}), 0, 0, 0);
    int const* const kept = reused.nodes();
    reused = source;
    EXPECT_EQ(reused.nodes(), kept);
    EXPECT_EQ(reused, source);
}

TEST(InpElementCopying, AssignmentReallocatesOrFreesForOtherLengths) {
    inp_Element target("C3D4", listOf({1, 2, 3, 4}), 0, 0, 0);
    inp_Element const longer("C3D8", listOf({1, 2, 3, 4, 5, 6, 7, 8}), 0, 0, 0);
    target = longer;
    EXPECT_EQ(target, longer);
    target = inp_Element();
    EXPECT_EQ(target.numNodesPerElement(), 0);
    EXPECT_EQ(target.nodes(), nullptr);
    inp_Element const& alias = target;
    target = alias;  // self-assignment keeps the record
    EXPECT_EQ(target, inp_Element());
}

// Connectivities short enough to live in the record and longer ones on the
// heap: copies, moves and assignments across the two keep every record whole
// and independent of the others.
TEST(InpElementCopying, ShortAndLongConnectivitiesCopyMoveAndAssignAcrossTheirForms) {
    cow_List<int> twentySeven;
    for (int i = 1; i <= 27; ++i) twentySeven.Append(i);
    inp_Element const brick("C3D8", listOf({1, 2, 3, 4, 5, 6, 7, 8}), 0, 0, 0);
    inp_Element const big("C3D27", twentySeven, 0, 0, 0);
    ASSERT_LE(brick.numNodesPerElement(), inp_Element::kInlineNodes);
    ASSERT_GT(big.numNodesPerElement(), inp_Element::kInlineNodes);

    for (inp_Element const* source : {&brick, &big}) {
        inp_Element copy(*source);
        EXPECT_EQ(copy, *source);
        copy.nodes()[copy.numNodesPerElement() - 1] = 99;
        EXPECT_NE(source->nodes()[source->numNodesPerElement() - 1], 99);
        inp_Element moved(std::move(copy));
        EXPECT_EQ(moved.nodes()[moved.numNodesPerElement() - 1], 99);
        EXPECT_EQ(copy.numNodesPerElement(), 0);
        EXPECT_EQ(copy.nodes(), nullptr);
    }
    inp_Element target = brick;
    target = big;  // short to long
    EXPECT_EQ(target, big);
    target = brick;  // long to short
    EXPECT_EQ(target, brick);
    inp_Element moveTarget = brick;
    moveTarget = inp_Element(big);
    EXPECT_EQ(moveTarget, big);
    moveTarget = inp_Element(brick);
    EXPECT_EQ(moveTarget, brick);
}

}  // namespace
