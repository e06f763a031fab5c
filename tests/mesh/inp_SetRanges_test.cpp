#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "deck/inp_DataArray.h"
#include "mesh/inp_Utils.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

Ids ids(cow_List<int> const& list) {
    return Ids(list.begin(), list.end());
}

Ids ids(inpM_OmiSet const& set) {
    return ids(set.ConstGetArrayCounterpart());
}

template <class Text>
Texts texts(cow_List<Text> const& list) {
    Texts result;
    for (Text const& text : list) result.emplace_back(text.View());
    return result;
}

inp_DataArray rows(std::initializer_list<char const*> lines) {
    inp_DataArray data;
    for (char const* line : lines) data.Append(line);
    return data;
}

std::string badIncrement(char const* inc, char const* from, char const* to) {
    return std::string("Increment of ") + inc + " cannot be used to step from " + from + " to " +
           to + " on *NSET keyword.";
}

char const kFewer[] =
    "There are fewer than 2 items on a data line for which a generation sequence (start id, end "
    "id, optional increment number) is expected.  The keyword in question is related to *NSET.  "
    "Please check input data.";

}  // namespace

TEST(SetRangesRow, StepsUpDownAndOverSingleIds) {
    cow_List<atr_String> errors;
    EXPECT_EQ(ids(inp_Utils::GenerateUnsortedSetRow({1, 10, 3}, "*NSET", errors)),
              (Ids{1, 4, 7, 10}));
    EXPECT_EQ(ids(inp_Utils::GenerateUnsortedSetRow({10, 1, -3}, "*NSET", errors)),
              (Ids{10, 7, 4, 1}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({10, 1, -3}, "*NSET", errors)), (Ids{1, 4, 7, 10}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({5, 5, 7}, "*NSET", errors)), (Ids{5}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({5, 5, -7}, "*NSET", errors)), (Ids{5}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({3, 6, 0}, "*NSET", errors)), (Ids{3, 4, 5, 6}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({3, 6}, "*NSET", errors)), (Ids{3, 4, 5, 6}));
    EXPECT_EQ(ids(inp_Utils::GenerateSetRow({-2, 2, 2}, "*NSET", errors)), (Ids{-2, 0, 2}));
    EXPECT_TRUE(errors.IsEmpty()) << texts(errors)[0];
}

TEST(SetRangesRow, RefusedRowsGiveTheirMessageAndNothingElse) {
    cow_List<atr_String> errors;
    EXPECT_TRUE(inp_Utils::GenerateSetRow({1, 10, 2}, "*NSET", errors).IsEmpty());
    EXPECT_TRUE(inp_Utils::GenerateUnsortedSetRow({1, 10, -1}, "*NSET", errors).IsEmpty());
    EXPECT_TRUE(inp_Utils::GenerateSetRow({5, 1}, "*NSET", errors).IsEmpty());
    EXPECT_TRUE(inp_Utils::GenerateSetRow({5}, "*NSET", errors).IsEmpty());
    EXPECT_TRUE(inp_Utils::GenerateUnsortedSetRow({}, "*NSET", errors).IsEmpty());
    EXPECT_EQ(texts(errors), (Texts{badIncrement("2", "1", "10"), badIncrement("-1", "1", "10"),
                                    badIncrement("1", "5", "1"), kFewer, kFewer}));
}

TEST(SetRangesRow, ExtremeValuesNeitherOverflowNorExplode) {
    cow_List<atr_String> errors;
    // A difference beyond int that the increment divides.
    EXPECT_TRUE(
        inp_Utils::GenerateSetRow({-2147483647 - 1, 2147483647, 1}, "*NSET", errors).IsEmpty());
    EXPECT_TRUE(inp_Utils::GenerateSetRow({1, 1000000000, 1}, "*NSET", errors).IsEmpty());
    EXPECT_EQ(errors.Length(), 2);
    errors.Clear();
    EXPECT_EQ(inp_Utils::GenerateSetRow({999999998, 999999999}, "*NSET", errors).Size(), 2);
    EXPECT_TRUE(errors.IsEmpty());
}

TEST(SetRangesData, RowsUniteSortedAndConcatenateUnsortedSkippingEmptyFields) {
    inp_DataArray const data = rows({"7, 9", "1,, 5, 2", "6, 8, 2"});
    cow_List<atr_String> errors;
    EXPECT_EQ(ids(inp_Utils::GenerateSetIds(data, "*ELSET", errors)), (Ids{1, 3, 5, 6, 7, 8, 9}));
    EXPECT_EQ(ids(inp_Utils::GenerateUnsortedSetIds(data, "*ELSET", errors)),
              (Ids{7, 8, 9, 1, 3, 5, 6, 8}));
    EXPECT_TRUE(errors.IsEmpty());
}

TEST(SetRangesScoped, InstancesPrefixTheIdsAndMustAgree) {
    inp_DataArray const data = rows({"i.5, i.1, -2", "3, 4", "a.1, b.3", "j.2, 3"});
    cow_List<atr_String> errors;
    EXPECT_EQ(texts(inp_Utils::GenerateUnsortedScopedIds(data, "*NSET", errors)),
              (Texts{"I.5", "I.3", "I.1", "3", "4", "J.2", "J.3"}));
    EXPECT_EQ(texts(errors),
              (Texts{"The start and end id instance names must match when generating assembly "
                     "*NSET ids: A, B"}));
    errors.Clear();
    // Sorted: the assembly's own ids first, then each instance ascending.
    EXPECT_EQ(texts(inp_Utils::GenerateScopedIds(data, "*NSET", errors)),
              (Texts{"3", "4", "I.1", "I.3", "I.5", "J.2", "J.3"}));
    EXPECT_EQ(errors.Length(), 1);
}

TEST(SetRangesScoped, QuotedInstanceNamesKeepTheirPeriods) {
    cow_List<atr_String> errors;
    EXPECT_EQ(texts(inp_Utils::GenerateScopedIds(rows({"\"my.inst\".1, \"my.inst\".2"}), "*ELSET",
                                                 errors)),
              (Texts{"\"my.inst\".1", "\"my.inst\".2"}));
    EXPECT_TRUE(errors.IsEmpty());
}
