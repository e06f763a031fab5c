#include "deck/inp_ElementDataArrayImpl.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "deck/inp_Exceptions.h"
#include "support/ZELBasException.h"
#include "tests/common/FailureText.h"
#include "tests/common/IntRows.h"

namespace {

inp_DataArray rawOf(std::initializer_list<char const*> lines) {
    inp_DataArray raw;
    for (char const* line : lines) raw.Append(line);
    return raw;
}

cow_List<int> nodesFrom(int first, int count) {
    cow_List<int> nodes;
    for (int k = 0; k < count; ++k) nodes.Append(first + k);
    return nodes;
}

constexpr char kAppendMessage[] =
    "There has been an attempt to append a generic data line to a *ELEMENT keyword.  This can "
    "happen when the element connectivity listing is separated from the *ELEMENT keyword.  Please "
    "make sure your include files contain complete keywords (keyword + parameters + data lines).  "
    "Note that you can still use multiple files to list the elements, provided you have *ELEMENT "
    "at the top of each file. ";

}  // namespace

TEST(ElementFromRaw, OneIntegerPerItemWithTheRawShape) {
    inp_ElementDataArrayImpl data(
        rawOf({"1, 2, 3, 4", "5, 6,", "7, , 8", " 12abc, -3, +4", "123456789, 987654321"}));
    ASSERT_EQ(data.Rows(), 5);
    EXPECT_EQ(rowOf(data, 0), (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(rowOf(data, 1), (std::vector<int>{5, 6, 0}));
    EXPECT_EQ(rowOf(data, 3), (std::vector<int>{12, -3, 4}));
    EXPECT_EQ(rowOf(data, 4), (std::vector<int>{123456789, 987654321}));
    EXPECT_TRUE(data.HasRowContinuation(1));
    EXPECT_FALSE(data.HasRowContinuation(0));
    EXPECT_TRUE(data.IsNone(2, 1));
    EXPECT_EQ(data.Type(2, 1), inp_Types::inp_NONE);
    EXPECT_EQ(data.Type(2, 2), inp_Types::inp_INTEGER);
    EXPECT_FALSE(data.HasValue(2, 1));
    EXPECT_TRUE(data.HasValue(2, 2));
    EXPECT_FALSE(data.HasValue(2, 3));
    EXPECT_FALSE(data.HasValue(5, 0));
    EXPECT_FALSE(data.HasValue(-1, 0));
    EXPECT_EQ(data.AsString(3, 1), "-3");
    EXPECT_EQ(data.AsStringVerbatim(2, 1), "0");
}

TEST(ElementFromRaw, AnyDataArrayCanBeTheSource) {
    inp_DataArray compact(new inp_ElementDataArrayImpl(rawOf({"1, 2, 3,", "4"})));
    inp_ElementDataArrayImpl again(compact);
    EXPECT_EQ(rowOf(again, 0), (std::vector<int>{1, 2, 3, 0}));
    EXPECT_EQ(rowOf(again, 1), (std::vector<int>{4}));
}

TEST(ElementFromMap, LongConnectivityTakesContinuationRows) {
    cow_Map<int, cow_List<int>> elements;
    elements.Insert(40, nodesFrom(1, 40));
    elements.Insert(15, nodesFrom(1, 15));
    elements.Insert(16, nodesFrom(1, 16));
    elements.Insert(31, nodesFrom(1, 31));
    elements.Insert(1, cow_List<int>());
    inp_ElementDataArrayImpl data(elements);
    ASSERT_EQ(data.Rows(), 1 + 1 + 2 + 2 + 3);
    int i = 0;
    EXPECT_EQ(rowOf(data, i++), (std::vector<int>{1}));
    EXPECT_EQ(rowOf(data, i++), std::vector<int>{15} + range(1, 15));
    EXPECT_EQ(rowOf(data, i++), std::vector<int>{16} + range(1, 15) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, i++), (std::vector<int>{16}));
    EXPECT_EQ(rowOf(data, i++), std::vector<int>{31} + range(1, 15) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, i++), range(16, 16));
    EXPECT_EQ(rowOf(data, i++), std::vector<int>{40} + range(1, 15) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, i++), range(16, 16) + std::vector<int>{0});
    EXPECT_EQ(rowOf(data, i++), range(32, 9));
    std::vector<bool> continued;
    for (int r = 0; r < data.Rows(); ++r) continued.push_back(data.HasRowContinuation(r));
    EXPECT_EQ(continued,
              (std::vector<bool>{false, false, true, false, true, false, true, true, false}));
}

TEST(ElementOperations, WrongKindsOfAccessThrowTheirMessages) {
    inp_ElementDataArrayImpl data(rawOf({"1, 2"}));
    EXPECT_EQ(messageOf([&] { data.AsDouble(0, 1); }),
              "Element keyword data cannot be converted to a double");
    EXPECT_EQ(messageOf([&] { data.Set(0, 1, 2.0); }), "Illegal operation on element data");
    EXPECT_EQ(messageOf([&] { data.Set(0, 1, cow_String("2")); }),
              "Illegal operation on element data");
    EXPECT_EQ(messageOf([&] { data.Append("3, 4"); }), kAppendMessage);
    EXPECT_EQ(messageOf([&] { data.AppendRaw("3, 4"); }), kAppendMessage);
    EXPECT_EQ(data.Rows(), 1);
}

TEST(ElementOperations, SetChangesAnIntegerInPlace) {
    inp_ElementDataArrayImpl data(rawOf({"1, 2, 3"}));
    data.Set(0, 2, 0).Set(0, 1, 20);
    EXPECT_EQ(rowOf(data, 0), (std::vector<int>{1, 20, 0}));
    EXPECT_TRUE(data.HasRowContinuation(0));
}

TEST(ElementOperations, OutOfRangeAccessAssertsWithTheCondition) {
    inp_ElementDataArrayImpl data(rawOf({"1, 2"}));
    EXPECT_EQ(conditionOf([&] { data.Cols(1); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { data.HasRowContinuation(-1); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { data.AsInt(0, 2); }), "j >= 0 && j < ncols[i]");
    EXPECT_EQ(conditionOf([&] { data.IsNone(0, -1); }), "j >= 0 && j < ncols[i]");
    EXPECT_EQ(conditionOf([&] { data.Set(0, 2, 5); }), "j >= 0 && j < ncols[i]");
    EXPECT_EQ(conditionOf([&] { data.AsString(1, 0); }), "i >= 0 && i < nrows");
}

TEST(ElementCopy, CopiesAreIndependent) {
    inp_ElementDataArrayImpl data(rawOf({"1, 2, 3,", "4, 5"}));
    std::unique_ptr<inp_DataArrayImpl> copy(data.Copy());
    copy->Set(1, 1, 50);
    EXPECT_EQ(data.AsInt(1, 1), 5);
    EXPECT_EQ(rowOf(*copy, 0), (std::vector<int>{1, 2, 3, 0}));
    EXPECT_EQ(rowOf(*copy, 1), (std::vector<int>{4, 50}));

    inp_ElementDataArrayImpl assigned;
    assigned = data;
    data.Clear();
    EXPECT_EQ(data.Rows(), 0);
    EXPECT_EQ(rowOf(assigned, 1), (std::vector<int>{4, 5}));
}
