#include "deck/inp_NodeDataArrayImpl.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>

#include "deck/inp_Exceptions.h"
#include "support/ZELBasException.h"
#include "tests/common/FailureText.h"

namespace {

inp_DataArray rawOf(std::initializer_list<char const*> lines) {
    inp_DataArray raw;
    for (char const* line : lines) raw.Append(line);
    return raw;
}

inp_NodeDataArrayImpl nodesOf(std::initializer_list<char const*> lines) {
    inp_NodeDataArrayImpl nodes;
    nodes.SetRaw(rawOf(lines));
    return nodes;
}

std::string setRawMessage(std::initializer_list<char const*> lines) {
    return messageOf([&] { nodesOf(lines); });
}

constexpr char kAppendMessage[] =
    "There has been an attempt to append a generic data line to a *NODE keyword.  This can happen "
    "when the nodal coordinate listing is separated from the *NODE keyword.  Please make sure your "
    "include files contain complete keywords (keyword + parameters + data lines).  Note that you "
    "can still use multiple files to list the nodes, provided you have *NODE at the top of each "
    "file. ";

}  // namespace

TEST(NodeConversion, EveryRowHasALabelAndSixDoubles) {
    inp_NodeDataArrayImpl nodes =
        nodesOf({"1, 0.0, 1.0", "2, 1, 2, 3, 0, 0, 1", "999999999, , 2.5 ,\t", " +12345678 "});
    ASSERT_EQ(nodes.Rows(), 4);
    EXPECT_EQ(nodes.Cols(0), 7);
    EXPECT_EQ(nodes.AsInt(0, 0), 1);
    EXPECT_EQ(nodes.AsDouble(0, 1), 0.0);
    EXPECT_EQ(nodes.AsDouble(0, 2), 1.0);
    for (int j = 3; j < 7; ++j) EXPECT_EQ(nodes.AsDouble(0, j), 0.0);
    EXPECT_EQ(nodes.AsDouble(1, 6), 1.0);
    EXPECT_EQ(nodes.Type(0, 0), inp_Types::inp_INTEGER);
    EXPECT_EQ(nodes.Type(0, 6), inp_Types::inp_REAL);
    EXPECT_FALSE(nodes.IsNone(0, 5));
    EXPECT_TRUE(nodes.HasValue(0, 6));
    EXPECT_FALSE(nodes.HasRowContinuation(0));
    EXPECT_EQ(nodes.AsString(1, 0), "2");
    EXPECT_EQ(nodes.AsStringVerbatim(1, 1), "1");
    EXPECT_EQ(nodes.AsInt(2, 0), 999999999);
    EXPECT_EQ(nodes.AsDouble(2, 1), 0.0);  // empty and blank items read as 0
    EXPECT_EQ(nodes.AsDouble(2, 2), 2.5);
    EXPECT_EQ(nodes.AsDouble(2, 3), 0.0);
    EXPECT_EQ(nodes.AsInt(3, 0), 12345678);
}

TEST(NodeConversion, BlankLineGivesARowOfLabelZero) {
    inp_NodeDataArrayImpl nodes = nodesOf({"1, 1., 2.", " \t", "2, 3."});
    ASSERT_EQ(nodes.Rows(), 3);
    EXPECT_EQ(nodes.AsInt(1, 0), 0);
    for (int j = 1; j < 7; ++j) EXPECT_EQ(nodes.AsDouble(1, j), 0.0);
    EXPECT_EQ(nodes.AsInt(2, 0), 2);
}

TEST(NodeConversion, NumbersAreReadAsStrtodReadsThem) {
    char const* texts[] = {"1.5",
                           "-2.25e-3",
                           "+7",
                           ".5",
                           "5.",
                           "1e400",
                           "-1e-400",
                           "1e-310",
                           "0x1p3",
                           "inf",
                           "-nan",
                           " 3.0 ",
                           "12345678901234567890",
                           "0.1000000000000000055511151231257827"};
    for (char const* text : texts) {
        std::string line = std::string("1, ") + text;
        inp_NodeDataArrayImpl nodes = nodesOf({line.c_str()});
        double expected = std::strtod(text, nullptr);
        if (std::isnan(expected)) {
            EXPECT_TRUE(std::isnan(nodes.AsDouble(0, 1))) << text;
        } else {
            EXPECT_EQ(nodes.AsDouble(0, 1), expected) << text;
        }
    }
}

TEST(NodeConversion, RandomDecimalsReadToTheSameBitsAsStrtod) {
    std::mt19937 random(20240531);
    auto digits = [&](int most) {
        std::string text;
        for (int n = std::uniform_int_distribution<int>(0, most)(random); n > 0; --n)
            text += static_cast<char>('0' + random() % 10);
        return text;
    };
    for (int k = 0; k < 5000; ++k) {
        std::string text = std::string(" +-" + random() % 3, random() % 3 ? 0 : 1);
        text += digits(12) + (random() % 4 ? "." : "") + digits(12);
        if (random() % 3 == 0) text += std::string("eE" + random() % 2, 1) + digits(1) + digits(2);
        char* end = nullptr;
        double expected = std::strtod(text.c_str(), &end);
        bool clean = std::string(end).find_first_not_of(' ') == std::string::npos;
        std::string line = "1, " + text;
        if (!clean) {
            EXPECT_EQ(setRawMessage({line.c_str()}),
                      "Invalid nodal coordinate values were specified for the following nodes: 1")
                << text;
            continue;
        }
        double value = nodesOf({line.c_str()}).AsDouble(0, 1);
        EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << text;
    }
}

TEST(NodeConversion, ExponentLetterDReadsAsE) {
    inp_DataArray raw = rawOf({"1, 1.5D3, 2d-1, -3.E2, 4"});
    inp_NodeDataArrayImpl nodes;
    nodes.SetRaw(raw);
    EXPECT_EQ(nodes.AsDouble(0, 1), 1500.0);
    EXPECT_DOUBLE_EQ(nodes.AsDouble(0, 2), 0.2);
    EXPECT_EQ(nodes.AsDouble(0, 3), -300.0);
    EXPECT_EQ(nodes.AsDouble(0, 4), 4.0);
    EXPECT_EQ(raw.AsStringVerbatim(0, 1), "1.5D3");  // the source is left as it was
}

TEST(NodeConversion, ItemsBeyondTheSeventhAreIgnored) {
    inp_NodeDataArrayImpl nodes = nodesOf({"3, 1, 2, 3, 4, 5, 6, 99, not a number"});
    EXPECT_EQ(nodes.AsDouble(0, 6), 6.0);
    EXPECT_EQ(nodes.Cols(0), 7);
}

TEST(NodeConversion, AnyDataArrayCanBeTheSource) {
    inp_NodeDataArrayImpl nodes = nodesOf({"7, 1.25, -2, 3"});
    inp_DataArray compact(nodes.Copy());
    inp_NodeDataArrayImpl again;
    again.SetRaw(compact);
    EXPECT_EQ(again.AsInt(0, 0), 7);
    EXPECT_EQ(again.AsDouble(0, 1), 1.25);
    EXPECT_EQ(again.AsDouble(0, 2), -2.0);
}

TEST(NodeLabelErrors, EachFaultHasItsMessageWithTheItemText) {
    EXPECT_EQ(setRawMessage({"0, 1., 2."}), "Node label is not a positive integer: 0");
    EXPECT_EQ(setRawMessage({"-4, 1."}), "Node label is not a positive integer: -4");
    EXPECT_EQ(setRawMessage({"1234567890, 0."}), "Node label is not an integer: 1234567890");
    EXPECT_EQ(setRawMessage({"+123456789, 0."}), "Node label exceeds 9 digits: +123456789");
    EXPECT_EQ(setRawMessage({"1, 1.", "n 1, 2."}), "Node label is not an integer: N1");
    EXPECT_EQ(setRawMessage({"1.5, 2."}), "Node label is not an integer: 1.5");
    EXPECT_EQ(setRawMessage({", 1., 2."}), "Node label is not an integer: ");
}

TEST(NodeLabelErrors, ALabelErrorComesBeforeCollectedCoordinateErrors) {
    EXPECT_EQ(setRawMessage({"1, 2x", "0, 1."}), "Node label is not a positive integer: 0");
}

TEST(NodeCoordinateErrors, BadValuesAreCollectedOverAllRows) {
    EXPECT_EQ(setRawMessage({"1, 2x, 3.", "2, 1., 2.", "3, 1., 2., abc"}),
              "Invalid nodal coordinate values were specified for the following nodes: 1 3");
    EXPECT_EQ(setRawMessage({"5, x", "2, 1, 2, 3, 4, 5, 6, 7, bad", "2, +-1", "5, 1, y"}),
              "Invalid nodal coordinate values were specified for the following nodes: 2 5");
}

TEST(NodeCoordinateErrors, AtMost102NodesAreListed) {
    inp_DataArray raw;
    std::string expected =
        "Invalid nodal coordinate values were specified for the following nodes:";
    for (int label = 200; label >= 1; --label) {
        raw.Append((std::to_string(label) + ", 1.0q").c_str());
        if (label <= 102) expected += " " + std::to_string(103 - label);
    }
    inp_NodeDataArrayImpl nodes;
    EXPECT_EQ(messageOf([&] { nodes.SetRaw(raw); }), expected);
}

TEST(NodeCoordinateErrors, AFailedConversionKeepsTheOldContent) {
    inp_NodeDataArrayImpl nodes = nodesOf({"8, 1., 2., 3."});
    EXPECT_THROW(nodes.SetRaw(rawOf({"9, 1.", "10, x"})), inp_PrimException);
    EXPECT_THROW(nodes.SetRaw(rawOf({"9, 1.", "0, 1."})), inp_PrimException);
    ASSERT_EQ(nodes.Rows(), 1);
    EXPECT_EQ(nodes.AsInt(0, 0), 8);
    EXPECT_EQ(nodes.AsDouble(0, 3), 3.0);
}

TEST(NodeOperations, WrongKindsOfAccessThrowTheirMessages) {
    inp_NodeDataArrayImpl nodes = nodesOf({"1, 2., 3."});
    EXPECT_EQ(messageOf([&] { nodes.AsInt(0, 1); }),
              "Keyword data cannot be converted to an integer");
    EXPECT_EQ(messageOf([&] { nodes.AsDouble(0, 0); }),
              "Node number cannot be converted to a double");
    EXPECT_EQ(messageOf([&] { nodes.Set(0, 0, 1.0); }), "Node number cannot be a double");
    EXPECT_EQ(messageOf([&] { nodes.Set(0, 1, 1); }),
              "Nodal coordinates or normals cannot be an integer");
    EXPECT_EQ(messageOf([&] { nodes.Set(0, 1, cow_String("1.")); }),
              "Nodal id, coordinates or normals cannot set as a string");
    EXPECT_EQ(messageOf([&] { nodes.Append("2, 1."); }), kAppendMessage);
    EXPECT_EQ(messageOf([&] { nodes.AppendRaw("2, 1."); }), kAppendMessage);
    EXPECT_EQ(nodes.Rows(), 1);
}

TEST(NodeOperations, SetWritesLabelsAndDoubles) {
    inp_NodeDataArrayImpl nodes = nodesOf({"1, 2., 3."});
    nodes.Set(0, 0, 42).Set(0, 5, -0.5);
    EXPECT_EQ(nodes.AsInt(0, 0), 42);
    EXPECT_EQ(nodes.AsDouble(0, 5), -0.5);
    EXPECT_EQ(nodes.AsString(0, 5), "-0.5");
}

TEST(NodeOperations, OutOfRangeAccessAssertsWithTheCondition) {
    inp_NodeDataArrayImpl nodes = nodesOf({"1, 2."});
    EXPECT_EQ(conditionOf([&] { nodes.AsInt(1, 0); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { nodes.Cols(-1); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { nodes.AsDouble(0, 7); }), "j >= 0 && j < 7");
    EXPECT_EQ(conditionOf([&] { nodes.Set(0, -1, 1.0); }), "j >= 0 && j < 7");
    EXPECT_EQ(conditionOf([&] { nodes.AsString(0, 7); }), "j >= 0 && j < 7");
    EXPECT_FALSE(nodes.HasValue(0, 7));
    EXPECT_FALSE(nodes.HasValue(1, 0));
    EXPECT_FALSE(nodes.HasValue(-1, 0));
}

TEST(NodeAppend, FillsPreparedRowsButNeverTheLast) {
    inp_NodeDataArrayImpl nodes(3);
    EXPECT_EQ(nodes.Rows(), 0);
    nodes.Append(10, 1.0, 2.0, 3.0);
    nodes.Append(20, 4.0, 5.0, 6.0);
    EXPECT_EQ(conditionOf([&] { nodes.Append(30, 0.0, 0.0, 0.0); }), "nrows+1 < allocatedSize");
    ASSERT_EQ(nodes.Rows(), 2);
    EXPECT_EQ(nodes.AsInt(1, 0), 20);
    EXPECT_EQ(nodes.AsDouble(1, 3), 6.0);
    EXPECT_EQ(nodes.AsDouble(1, 4), 0.0);  // the normal stays zero
    inp_NodeDataArrayImpl empty;
    EXPECT_EQ(conditionOf([&] { empty.Append(1, 0.0, 0.0, 0.0); }), "nrows+1 < allocatedSize");
}

TEST(NodeCopy, CopiesAreIndependentAndKeepTheirRoom) {
    inp_NodeDataArrayImpl nodes(4);
    nodes.Append(1, 1.0, 1.0, 1.0);
    std::unique_ptr<inp_DataArrayImpl> copy(nodes.Copy());
    copy->Set(0, 1, 9.0);
    EXPECT_EQ(nodes.AsDouble(0, 1), 1.0);
    auto& copied = static_cast<inp_NodeDataArrayImpl&>(*copy);
    copied.Append(2, 2.0, 2.0, 2.0);
    EXPECT_EQ(copied.Rows(), 2);
    EXPECT_EQ(nodes.Rows(), 1);

    inp_NodeDataArrayImpl assigned;
    assigned = copied;
    assigned.Set(1, 0, 5);
    EXPECT_EQ(copied.AsInt(1, 0), 2);
    EXPECT_EQ(assigned.AsInt(1, 0), 5);
    assigned.Clear();
    EXPECT_EQ(assigned.Rows(), 0);
}

// A block without normals keeps three doubles a row; the normals read as
// zero all the same, and writing one widens every row without losing any.
TEST(NodeWidth, ABlockWithoutNormalsWidensWhenANormalIsSet) {
    inp_NodeDataArrayImpl nodes = nodesOf({"1, 1., 2., 3.", "2, 4., 5., 6."});
    EXPECT_EQ(nodes.Cols(1), 7);
    EXPECT_EQ(nodes.AsDouble(1, 6), 0.0);
    EXPECT_EQ(nodes.AsString(1, 5), "0");
    nodes.Set(0, 5, 0.0);  // what it reads already: nothing to widen
    std::unique_ptr<inp_DataArrayImpl> const narrow(nodes.Copy());
    nodes.Set(1, 6, 1.0);
    EXPECT_EQ(nodes.AsDouble(1, 6), 1.0);
    for (int row = 0; row < 2; ++row)
        for (int j = 1; j <= 3; ++j) EXPECT_EQ(nodes.AsDouble(row, j), 3.0 * row + j);
    EXPECT_EQ(nodes.AsDouble(0, 6), 0.0);
    EXPECT_EQ(narrow->AsDouble(1, 6), 0.0);  // the copy kept its own rows
    EXPECT_EQ(narrow->AsDouble(1, 3), 6.0);
    // One line with a normal makes the block wide from the start.
    inp_NodeDataArrayImpl const mixed = nodesOf({"1, 1., 2., 3.", "2, 4., 5., 6., 0., 0., 1."});
    EXPECT_EQ(mixed.AsDouble(1, 6), 1.0);
    EXPECT_EQ(mixed.AsDouble(0, 3), 3.0);
}
