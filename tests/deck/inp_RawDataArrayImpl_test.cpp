#include "deck/inp_RawDataArrayImpl.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <random>
#include <string>

#include "support/ZELBasException.h"
#include "tests/common/FailureText.h"

namespace {

inp_RawDataArrayImpl arrayOf(std::initializer_list<char const*> lines) {
    inp_RawDataArrayImpl data;
    for (char const* line : lines) data.Append(line);
    return data;
}

}  // namespace

TEST(RawDataSplit, CommasOutsideQuotesSeparateItems) {
    inp_RawDataArrayImpl data = arrayOf({"1, 2,", "\"a,b\", c", "", "a,,b"});
    EXPECT_EQ(data.Rows(), 4);
    EXPECT_EQ(data.Cols(0), 3);
    EXPECT_TRUE(data.HasRowContinuation(0));
    EXPECT_TRUE(data.IsNone(0, 2));
    EXPECT_EQ(data.Cols(1), 2);
    EXPECT_EQ(data.AsString(1, 0), "\"a,b\"");
    EXPECT_EQ(data.AsString(1, 1), "C");
    EXPECT_EQ(data.Cols(2), 1);
    EXPECT_TRUE(data.IsNone(2, 0));
    EXPECT_FALSE(data.HasValue(3, 1));
    EXPECT_TRUE(data.HasValue(3, 2));
    EXPECT_FALSE(data.HasValue(9, 0));
    EXPECT_FALSE(data.HasValue(-1, 0));
    EXPECT_FALSE(data.HasRowContinuation(1));
}

// Lines long enough to be split eight bytes at a time: commas in every
// position of a word, a quote met after some words, commas inside the quotes.
TEST(RawDataSplit, LongLinesSplitLikeShortOnesWhereverTheCommasAndQuotesFall) {
    for (size_t shift = 0; shift < 9; ++shift) {
        std::string const lead(shift, ' ');
        std::string const plain = lead + "1,22,333,4444,55555,666666,7777777,88888888,,x";
        std::string const quoted = lead + "a,bb,ccc,dddd,\"e,ee,eee\",f,\"g\",h,i";
        inp_RawDataArrayImpl const data = arrayOf({plain.c_str(), quoted.c_str()});
        ASSERT_EQ(data.Cols(0), 10) << shift;
        EXPECT_EQ(data.AsInt(0, 7), 88888888);
        EXPECT_FALSE(data.HasValue(0, 8));
        ASSERT_EQ(data.Cols(1), 9) << shift;
        EXPECT_STREQ(data.Item(1, 4), "\"e,ee,eee\"");
        EXPECT_STREQ(data.Item(1, 8), "i");
    }
}

TEST(RawDataSplit, AppendRawKeepsTheLineAsOneItem) {
    inp_RawDataArrayImpl data;
    data.AppendRaw("Title, with commas, kept");
    EXPECT_EQ(data.Cols(0), 1);
    EXPECT_EQ(data.AsStringVerbatim(0, 0), "Title, with commas, kept");
}

TEST(RawDataSplit, ManyRowsGrowTheTable) {
    inp_RawDataArrayImpl data;
    for (int i = 0; i < 10000; ++i) data.Append(std::to_string(i).c_str());
    EXPECT_EQ(data.Rows(), 10000);
    EXPECT_EQ(data.AsInt(9999, 0), 9999);
    EXPECT_EQ(data.AsInt(10, 0), 10);
}

TEST(RawDataType, ScanFollowsTheCountingRules) {
    using T = inp_Types;
    struct Case {
        char const* text;
        inp_Types::typeEnm type;
    } cases[] = {
        {"17", T::inp_INTEGER},
        {" -17 ", T::inp_INTEGER},
        {"+", T::inp_INTEGER},
        {"-", T::inp_INTEGER},
        {"123456789", T::inp_INTEGER},
        {"1234567890", T::inp_REAL},
        {"-1234567890", T::inp_REAL},
        {"1e5", T::inp_REAL},
        {"1.5", T::inp_REAL},
        {".", T::inp_REAL},
        {"+.", T::inp_REAL},
        {"1-2", T::inp_REAL},
        {"1.5D3", T::inp_REAL},
        {"-1.5e-3", T::inp_REAL},
        {"e5", T::inp_STRING},
        {"D1", T::inp_STRING},
        {"+e5", T::inp_REAL},
        {"1e5e", T::inp_STRING},
        {"1.2.3", T::inp_STRING},
        {"1+2-3", T::inp_STRING},
        {"abc", T::inp_STRING},
        {"1.e5e", T::inp_STRING},
        {"", T::inp_NONE},
        {" \t\r", T::inp_NONE},
        {"12 3", T::inp_INTEGER},
        {"\"1\"", T::inp_STRING},
    };
    for (Case const& c : cases)
        EXPECT_EQ(inp_RawDataArrayImpl::Type(c.text), c.type) << '"' << c.text << '"';
}

TEST(RawDataType, NoByteSequenceUpsetsTheScan) {
    std::mt19937 random(7);
    for (int n = 0; n < 20000; ++n) {
        std::string text;
        int length = static_cast<int>(random() % 12);
        for (int k = 0; k < length; ++k) text += static_cast<char>(1 + random() % 255);
        inp_RawDataArrayImpl data;
        data.Append(text.c_str());
        for (int j = 0; j < data.Cols(0); ++j) {
            data.Type(0, j);
            data.AsInt(0, j);
            data.AsDouble(0, j);
            data.AsString(0, j);
        }
    }
}

TEST(RawDataConversion, AsDoubleRewritesTheExponentLetterInPlace) {
    inp_RawDataArrayImpl data = arrayOf({"1.5D3, 2.5d-1, 3d2D1"});
    EXPECT_DOUBLE_EQ(data.AsDouble(0, 0), 1500.0);
    EXPECT_EQ(data.AsStringVerbatim(0, 0), "1.5e3");
    EXPECT_DOUBLE_EQ(data.AsDouble(0, 1), 0.25);
    EXPECT_EQ(data.AsStringVerbatim(0, 1), "2.5e-1");
    data.AsDouble(0, 2);  // the first D, not the first d, is rewritten
    EXPECT_EQ(data.AsStringVerbatim(0, 2), "3d2e1");
}

TEST(RawDataConversion, NumbersReadAsTheCLibraryReadsThem) {
    char const* texts[] = {
        " 12",    "+5",    "-0",         "1e",          "5.",          ".5",          ".",   "+.",
        "1.5e3x", "0x10",  "inf",        "-nan",        "1e999",       "12abc",       "+-1", "-+1",
        "",       "  7  ", "2147483648", "99999999999", "-2147483649", "00000000012", "1-2"};
    for (char const* text : texts) {
        inp_RawDataArrayImpl data;
        data.AppendRaw(text);
        double expected = std::atof(text);
        double actual = data.AsDouble(0, 0);
        if (expected != expected) {
            EXPECT_NE(actual, actual) << text;
        } else {
            EXPECT_EQ(actual, expected) << text;
        }
        EXPECT_EQ(data.AsInt(0, 0), std::atoi(text)) << text;
    }
}

TEST(RawDataConversion, StringsAreTrimmedOrFolded) {
    inp_RawDataArrayImpl data = arrayOf({"  part 1 \t, \"My Set\" ,x"});
    EXPECT_EQ(data.AsStringVerbatim(0, 0), "part 1");
    EXPECT_EQ(data.AsString(0, 0), "PART1");
    EXPECT_EQ(data.AsString(0, 1), "\"My Set\"");
    EXPECT_EQ(data.AsStringVerbatim(0, 2), "x");
}

TEST(RawDataSet, RebuildsTheRowAndPadsMissingColumns) {
    inp_RawDataArrayImpl data = arrayOf({" a , b"});
    data.Set(0, 4, cow_String("x"));
    EXPECT_EQ(data.Cols(0), 5);
    EXPECT_EQ(data.AsStringVerbatim(0, 0), "a");
    EXPECT_EQ(data.AsStringVerbatim(0, 1), "b");
    EXPECT_TRUE(data.IsNone(0, 2));
    EXPECT_TRUE(data.IsNone(0, 3));
    EXPECT_EQ(data.AsStringVerbatim(0, 4), "x");

    data.Set(0, 1, 2.5).Set(0, 0, 7);
    EXPECT_EQ(data.AsInt(0, 0), 7);
    EXPECT_DOUBLE_EQ(data.AsDouble(0, 1), 2.5);
    EXPECT_EQ(data.Cols(0), 5);

    data.Set(0, 2, cow_String("p,q"));  // a comma in the new text splits like any line
    EXPECT_EQ(data.Cols(0), 6);
}

TEST(RawDataRange, OutOfRangeAccessAssertsWithTheCondition) {
    inp_RawDataArrayImpl data = arrayOf({"1, 2"});
    EXPECT_EQ(conditionOf([&] { data.AsInt(1, 0); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { data.Cols(-1); }), "i >= 0 && i < nrows");
    EXPECT_EQ(conditionOf([&] { data.AsString(0, 2); }), "j >= 0 && j < ncols[i]");
    EXPECT_EQ(conditionOf([&] { data.Type(0, -1); }), "j >= 0 && j < ncols[i]");
    EXPECT_EQ(conditionOf([&] { data.Set(0, -1, cow_String("x")); }), "j >= 0");
    EXPECT_EQ(conditionOf([&] { data.Set(3, 0, cow_String("x")); }), "i >= 0 && i < nrows");
}

TEST(RawDataCopy, CopyIsIndependent) {
    inp_RawDataArrayImpl data = arrayOf({"1, 2D0", "\"a,b\",c,"});
    inp_DataArrayImpl* copy = data.Copy();
    copy->Set(0, 0, 9);
    copy->AsDouble(0, 1);
    EXPECT_EQ(data.AsInt(0, 0), 1);
    EXPECT_EQ(data.AsStringVerbatim(0, 1), "2D0");
    EXPECT_EQ(copy->Cols(1), 3);
    EXPECT_EQ(copy->AsString(1, 0), "\"a,b\"");
    EXPECT_TRUE(copy->HasRowContinuation(1));
    delete copy;
}

// Released rows read as rows without items; the others, and a copy, stay.
TEST(RawDataRelease, ReleasedRowsLoseTheirItemsAndCopyAsSuch) {
    inp_RawDataArrayImpl data = arrayOf({"1, 2", "3, 4", "5, 6"});
    data.ReleaseRows(0, 2);
    EXPECT_EQ(data.Rows(), 3);
    EXPECT_EQ(data.Cols(0), 0);
    EXPECT_EQ(data.Cols(1), 0);
    EXPECT_EQ(data.AsInt(2, 1), 6);
    std::unique_ptr<inp_DataArrayImpl> const copy(data.Copy());
    EXPECT_EQ(copy->Cols(1), 0);
    EXPECT_EQ(copy->AsInt(2, 0), 5);
}

// Rows packed into many text blocks, some rewritten, released in batches as
// a reader releases them, copied half released and appended to afterwards:
// every row left reads as it was written or set. The sanitizer builds catch
// a block freed while a row still lives in it, or one never freed.
TEST(RawDataRelease, PackedRowsOutliveTheReleaseOfTheirNeighbours) {
    inp_RawDataArrayImpl data;
    std::string const padding(1000, 'x');
    constexpr int kRows = 2000;  // about 2 MB of text: several of the largest blocks
    for (int i = 0; i < kRows; ++i)
        data.Append((std::to_string(i) + ", " + padding + ", " + std::to_string(-i)).c_str());
    data.Set(5, 1, 55);
    data.Set(1500, 0, cow_String("rewritten"));
    for (int first = 0; first < 1200; first += 300) data.ReleaseRows(first, first + 300);
    data.ReleaseRows(1501, 1999);
    EXPECT_EQ(data.Cols(5), 0);
    EXPECT_EQ(data.AsStringVerbatim(1500, 0), "rewritten");
    EXPECT_EQ(data.AsInt(1500, 2), -1500);
    EXPECT_EQ(data.AsInt(1999, 0), 1999);
    for (int i = 1200; i < 1500; ++i) ASSERT_EQ(data.AsInt(i, 2), -i);

    std::unique_ptr<inp_DataArrayImpl> const copy(data.Copy());
    data.ReleaseRows(1200, kRows);
    data.Append("7, 8");
    EXPECT_EQ(data.AsInt(kRows, 1), 8);
    EXPECT_EQ(copy->Cols(1600), 0);
    EXPECT_EQ(copy->AsStringVerbatim(1500, 0), "rewritten");
    for (int i = 1200; i < 1500; ++i) ASSERT_EQ(copy->AsInt(i, 0), i);
    copy->Set(1300, 1, 1);
    copy->Append("9");
    EXPECT_EQ(copy->AsInt(1300, 1), 1);
    EXPECT_EQ(copy->AsInt(1301, 2), -1301);
    EXPECT_EQ(copy->AsInt(kRows, 0), 9);
}

// The first row and its text lie in the array object itself while they fit;
// every way of leaving that state must keep what the rows say. The sanitizer
// builds catch the object's own storage handed to the allocator.
TEST(RawDataFirstRow, RowsReadTheSameWhereverTheirTextLies) {
    std::string const longLine = "1, " + std::string(40, '7') + ", 3";  // beyond the object's room
    for (std::string const& first : {std::string("1, 2"), longLine}) {
        SCOPED_TRACE(first.size());
        inp_RawDataArrayImpl data;
        data.Append(first.c_str());
        std::unique_ptr<inp_DataArrayImpl> const single(data.Copy());
        for (int i = 1; i < 40; ++i) data.Append((std::to_string(i) + ", x").c_str());
        EXPECT_EQ(data.AsInt(0, 0), 1);
        EXPECT_EQ(data.AsStringVerbatim(0, 1),
                  cow_String(first == longLine ? std::string(40, '7') : "2"));
        EXPECT_EQ(data.AsInt(39, 0), 39);
        EXPECT_EQ(single->Rows(), 1);
        EXPECT_EQ(single->AsInt(0, 0), 1);

        data.Set(0, 1, cow_String("set"));
        data.ReleaseRows(1, 20);
        EXPECT_EQ(data.AsStringVerbatim(0, 1), "set");
        EXPECT_EQ(data.AsInt(20, 0), 20);
    }

    inp_RawDataArrayImpl released;
    released.Append("5");
    released.ReleaseRows(0, 1);
    released.Append("6, 7");
    EXPECT_EQ(released.Cols(0), 0);
    EXPECT_EQ(released.AsInt(1, 1), 7);
    std::unique_ptr<inp_DataArrayImpl> const copy(released.Copy());
    EXPECT_EQ(copy->AsInt(1, 0), 6);
}
