#include "support/omi_BlockedArray.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "support/ZELBasException.h"

namespace {

TEST(OmiBlockedArrayGrowth, CellsKeepTheirAddressesAsTheArrayGrows) {
    omi_BlockedArray<int> array;
    int* first = &array.GetCell(0);
    *first = 11;
    int* endOfBlock = &array.GetCell(1023);
    *endOfBlock = 22;
    for (int i = 0; i < 100000; ++i) array.Append(i);
    EXPECT_EQ(&array.GetCell(0), first);
    EXPECT_EQ(&array.GetCell(1023), endOfBlock);
    EXPECT_EQ(*first, 11);
    EXPECT_EQ(*endOfBlock, 22);
    EXPECT_EQ(array.Size(), 1024 + 100000);
    EXPECT_EQ(array.ConstGetCell(1024 + 99999), 99999);
}

TEST(OmiBlockedArrayGrowth, GrowingFillsWithDefaultCellsAndClearStartsFresh) {
    omi_BlockedArray<double> array;
    array.GetCell(5000) = 1.5;
    EXPECT_EQ(array.Size(), 5001);
    EXPECT_EQ(array.ConstGetCell(4999), 0.0);
    EXPECT_THROW(array.ConstGetCell(5001), ZELBasAssertException);

    array.Clear();
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetCell(5000), 0.0);
}

TEST(OmiBlockedArrayGrowth, BlockCopySpansBlockBoundaries) {
    std::vector<int> values(3000);
    std::iota(values.begin(), values.end(), 1);
    omi_BlockedArray<int> array;
    array.BlockCopy(1000, values.data(), 3000);
    EXPECT_EQ(array.Size(), 4000);
    EXPECT_EQ(array.ConstGetCell(999), 0);
    for (int i = 0; i < 3000; ++i) ASSERT_EQ(array.ConstGetCell(1000 + i), i + 1);

    array.BlockCopy(0, values.data(), 2);
    EXPECT_EQ(array.Size(), 4000);
    EXPECT_EQ(array.ConstGetCell(1), 2);
}

TEST(OmiBlockedArrayCopies, ChangingACopyLeavesTheOriginal) {
    omi_BlockedArray<int> original;
    for (int i = 0; i < 2000; ++i) original.Append(i);
    omi_BlockedArray<int> copy(original);
    copy.GetCell(10) = -1;
    copy.Append(7);
    EXPECT_EQ(original.ConstGetCell(10), 10);
    EXPECT_EQ(original.Size(), 2000);
    // A cell past the end of the original, in its last block, is fresh in the copy too.
    EXPECT_EQ(copy.GetCell(2047), 0);
}

}  // namespace
