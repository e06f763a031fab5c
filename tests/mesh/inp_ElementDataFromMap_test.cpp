#include "mesh/inp_ElementDataFromMap.h"

#include <gtest/gtest.h>

#include <vector>

#include "mesh/inp_MapInt2Element.h"
#include "tests/common/IntRows.h"

TEST(ElementFromMap, ListedLabelsInListOrderMissingOnesSkipped) {
    inp_MapInt2Element elements;
    std::vector<int> forty = range(101, 40);
    elements.Insert(7, inp_Element("C3D4", 4, range(1, 4).data(), 0, 0, 0));
    elements.Insert(-7, inp_Element("B31", 2, range(5, 2).data(), 0, 0, 0));
    elements.Insert(3, inp_Element("CAXA84", 40, forty.data(), 8, 0, 0));
    cow_List<int> labels{-7, 99, 3, 7};
    inp_ElementDataArrayImpl data = inp_ElementDataFromMap(labels, elements);
    ASSERT_EQ(data.Rows(), 1 + 3 + 1);
    EXPECT_EQ(rowOf(data, 0), (std::vector<int>{-7, 5, 6}));
    EXPECT_EQ(rowOf(data, 1), std::vector<int>{3} + range(101, 15) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, 2), range(116, 16) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, 3), range(132, 9));
    EXPECT_EQ(rowOf(data, 4), (std::vector<int>{7, 1, 2, 3, 4}));

    inp_ElementDataArrayImpl none = inp_ElementDataFromMap(cow_List<int>{1, 2}, elements);
    EXPECT_EQ(none.Rows(), 0);
}
