#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "deck/inp_Exceptions.h"
#include "deck/inp_Item.h"
#include "support/ZELBasException.h"
#include "support/rgx_Regex.h"

// Readable failure messages.
void PrintTo(cow_String const& text, std::ostream* out) {
    *out << '"' << text.View() << '"';
}

namespace {

struct Inferred {
    char const* text;
    inp_Types::typeEnm type;
    char const* asString;
};

void PrintTo(Inferred const& inferred, std::ostream* out) {
    *out << '"' << inferred.text << '"';
}

class InpItemInference : public ::testing::TestWithParam<Inferred> {};

TEST_P(InpItemInference, TypeAndTextAreAsExpected) {
    inp_Item item{cow_String(GetParam().text)};
    EXPECT_EQ(item.Type(), GetParam().type);
    EXPECT_EQ(item.AsString(), GetParam().asString);
}

using T = inp_Types;
INSTANTIATE_TEST_SUITE_P(
    Table, InpItemInference,
    ::testing::Values(
        Inferred{"", T::inp_NONE, "None"}, Inferred{" \t ", T::inp_NONE, "None"},
        Inferred{"17", T::inp_INTEGER, "17"}, Inferred{"+5", T::inp_INTEGER, "5"},
        Inferred{" -3\t", T::inp_INTEGER, "-3"}, Inferred{"1e5", T::inp_REAL, "1e+05"},
        Inferred{"e5", T::inp_STRING, "e5"}, Inferred{"Part-1.7", T::inp_STRING, "Part-1.7"},
        Inferred{"1.7", T::inp_REAL, "1.7"}, Inferred{"3d2", T::inp_REAL, "300"},
        Inferred{"/tmp/a.inp", T::inp_STRING, "/tmp/a.inp"},
        Inferred{"1a.txt", T::inp_STRING, "1a.txt"}, Inferred{"1-2", T::inp_STRING, "1-2"},
        Inferred{"\"\"", T::inp_NONE, "None"}, Inferred{"a=b", T::inp_NONE, "None"},
        Inferred{"a,b", T::inp_NONE, "None"}, Inferred{"5.", T::inp_REAL, "5"},
        Inferred{".5", T::inp_REAL, "0.5"}, Inferred{".", T::inp_REAL, "0"},
        Inferred{"1.5D+3", T::inp_REAL, "1500"}, Inferred{"1.5d3", T::inp_REAL, "1500"},
        Inferred{"7.8E3", T::inp_REAL, "7800"},
        Inferred{"  ELSET_Top ", T::inp_STRING, "ELSET_Top"},
        Inferred{"\"my part\".\"my set\"", T::inp_STRING, "\"my part\".\"my set\""},
        Inferred{" \"a, b\" ", T::inp_STRING, "\"a, b\""}, Inferred{"-", T::inp_NONE, "None"},
        // Scoped ids that aren't set names are kept whole.
        Inferred{"\"my part\".17", T::inp_STRING, "\"my part\".17"},
        Inferred{"a,b.7", T::inp_STRING, "a,b.7"}));

TEST(InpItemInferenceNumbers, FollowAtoiAndAtof) {
    EXPECT_EQ(inp_Item(cow_String("-0042")).AsInt(), -42);
    EXPECT_EQ(inp_Item(cow_String("2147483647")).AsInt(), 2147483647);
    EXPECT_DOUBLE_EQ(inp_Item(cow_String("-.25e-2")).AsDouble(), -0.0025);
    EXPECT_DOUBLE_EQ(inp_Item(cow_String("2.5D-1")).AsDouble(), 0.25);
    // No range check: atof overflows to infinity, and the item is a double all the same.
    EXPECT_EQ(inp_Item(cow_String("1e999")).AsDouble(), HUGE_VAL);
    std::string longMantissa = "0." + std::string(100, '0') + "1e101";
    EXPECT_DOUBLE_EQ(inp_Item(cow_String(std::string_view(longMantissa))).AsDouble(), 1.0);
    std::string longFortran = std::string(70, '0') + "2d1";
    EXPECT_DOUBLE_EQ(inp_Item(cow_String(std::string_view(longFortran))).AsDouble(), 20.0);
}

TEST(InpItemInferenceText, KeepsCaseAndSharesAnUntrimmedText) {
    cow_String text("Top.Set");
    inp_Item item(text);
    EXPECT_EQ(item.AsString(), "Top.Set");
    EXPECT_TRUE(item.AsString().SharesWith(text));
    EXPECT_EQ(inp_Item("abc").Type(), inp_Types::inp_STRING);  // not the bool constructor
}

TEST(InpItemConversions, ByType) {
    EXPECT_TRUE(inp_Item(true).AsBool() && inp_Item(-1).AsBool() && inp_Item(0.1).AsBool() &&
                inp_Item("x").AsBool());
    EXPECT_FALSE(inp_Item(false).AsBool() || inp_Item(0).AsBool() || inp_Item(0.0).AsBool() ||
                 inp_Item().AsBool());
    EXPECT_EQ(inp_Item(true).AsString(), "TRUE");
    EXPECT_EQ(inp_Item(false).AsString(), "FALSE");
    EXPECT_EQ(inp_Item(-12).AsString(), "-12");
    EXPECT_EQ(inp_Item(0.1).AsString(), "0.1");
    EXPECT_EQ(inp_Item(7).AsDouble(), 7.0);
}

void expectConversionFailure(void (*convert)(), char const* message) {
    try {
        convert();
        ADD_FAILURE() << "no exception, expected: " << message;
    } catch (inp_KeywordException const& failure) {
        EXPECT_EQ(failure.UserReport(), message);
        EXPECT_EQ(failure.LineNumber(), 0);
        EXPECT_EQ(failure.FileName(), "");
    }
}

TEST(InpItemConversions, FailuresThrowKeywordExceptionsWithTheItemText) {
    expectConversionFailure([] { (void)inp_Item(2.0).AsInt(); },
                            "Value cannot be converted to an integer: 2");
    expectConversionFailure([] { (void)inp_Item(true).AsInt(); },
                            "Value cannot be converted to an integer: TRUE");
    expectConversionFailure([] { (void)inp_Item().AsInt(); },
                            "Value cannot be converted to an integer: None");
    expectConversionFailure([] { (void)inp_Item("top").AsDouble(); },
                            "Value cannot be converted to a double: top");
    expectConversionFailure([] { (void)inp_Item(false).AsDouble(); },
                            "Value cannot be converted to a double: FALSE");
}

// Inference written out plainly with the regular expressions, to hold the
// fast inference to.
struct Reference {
    inp_Types::typeEnm type;
    cow_String text;
};

Reference inferWithRegex(cow_String text) {
    text.Trim(" \t");
    if (text.IsEmpty()) return {inp_Types::inp_NONE, "None"};
    auto real = [](cow_String number) { return cow_String::FromDouble(std::atof(number.CStr())); };
    if (rgx_ReIterator m = rgx_match(text, inp_Types::integerPat()))
        return {inp_Types::inp_INTEGER, cow_String::FromInt(std::atoi(m.String().CStr()))};
    if (rgx_ReIterator m = rgx_match(text, inp_Types::setNamePat()))
        return {inp_Types::inp_STRING, m.String()};
    if (rgx_ReIterator m = rgx_match(text, inp_Types::scopedIDPat()))
        return {inp_Types::inp_STRING, m.String(0)};
    if (rgx_ReIterator m = rgx_match(text, inp_Types::doublePat()))
        return {inp_Types::inp_REAL, real(m.String())};
    if (rgx_ReIterator m = rgx_match(text, inp_Types::doublePatD())) {
        std::string number(m.String().View());
        if (size_t at = number.find('D'); at != std::string::npos) number[at] = 'e';
        if (size_t at = number.find('d'); at != std::string::npos) number[at] = 'e';
        return {inp_Types::inp_REAL, real(cow_String(number.c_str()))};
    }
    if (rgx_ReIterator m = rgx_match(text, inp_Types::fileNamePat()))
        return {inp_Types::inp_STRING, m.String()};
    return {inp_Types::inp_NONE, "None"};
}

TEST(InpItemInferenceDifferential, AgreesWithInferenceByRegularExpressions) {
    std::vector<std::string> const tokens = {
        "a", "Part-1", "_", ".", ".", "\"",   "\"x y\"", "\"\"", "1",  "42",
        "0", "+",      "-", "e", "E", "d",    "D",       " ",    "\t", "\n",
        ",", "=",      "/", "$", "%", "\xe9", "7.8E3",   "1d2",  "Z"};
    std::mt19937 random(77);
    int disagreements = 0;
    for (int n = 0; n < 30000; ++n) {
        std::string text;
        for (size_t length = random() % 13; text.size() < length;)
            text += tokens[random() % tokens.size()];
        cow_String input(std::string_view{text});
        Reference expected = inferWithRegex(input);
        inp_Item item(input);
        if (item.Type() == expected.type && item.AsString() == expected.text) continue;
        if (++disagreements <= 10)
            ADD_FAILURE() << "\"" << text << "\": expected type " << expected.type << " "
                          << expected.text.View() << ", got " << item.Type() << " "
                          << item.AsString().View();
    }
    EXPECT_EQ(disagreements, 0);
}

// Inference must survive any bytes: random texts, high bytes included.
TEST(InpItemRobustness, ArbitraryBytesGiveSomeTypeWithoutCrashing) {
    std::mt19937 random(5);
    int counts[5] = {};
    for (int n = 0; n < 100000; ++n) {
        std::string text(random() % 20, ' ');
        for (char& c : text) c = static_cast<char>(1 + random() % 255);
        inp_Item item{cow_String(std::string_view(text))};
        ASSERT_GE(item.Type(), inp_Types::inp_INTEGER);
        ASSERT_LE(item.Type(), inp_Types::inp_NONE);
        ++counts[item.Type()];
        (void)item.AsString();
        (void)item.AsBool();
    }
    EXPECT_GT(counts[inp_Types::inp_STRING], 0);
    EXPECT_GT(counts[inp_Types::inp_NONE], 0);
}

}  // namespace
