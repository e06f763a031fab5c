#include "support/omi_IntTable.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "support/ZELBasException.h"

namespace {

template <class Table>
std::vector<typename Table::key_type> KeysOf(Table const& table) {
    std::vector<typename Table::key_type> keys;
    for (auto [key, value] : table) keys.push_back(key);
    return keys;
}

TEST(OmiIntTableLabels, DenseLabelsAreFoundAndWalkedInOrder) {
    omi_IntTable<int> table;
    for (int label = 1; label <= 100000; ++label) EXPECT_TRUE(table.Insert(label, -label));
    EXPECT_EQ(table.Size(), 100000);
    EXPECT_FALSE(table.IsMember(0));
    EXPECT_FALSE(table.IsMember(100001));
    EXPECT_EQ(table.ConstGet(54321), -54321);
    EXPECT_EQ(table.MinKey(), 1);
    EXPECT_EQ(table.MaxKey(), 100000);

    int expected = 1;
    for (omi_IntTableIterator<int> it(table); it.NotDone(); it.Next(), ++expected) {
        ASSERT_EQ(it.CurrentKey(), expected);
        ASSERT_EQ(it.CurrentValue(), -expected);
    }
    EXPECT_EQ(expected, 100001);
}

TEST(OmiIntTableLabels, DescendingInsertionAcrossManyBlocksStillWalksAscending) {
    omi_IntTable<int> table;
    for (int label = 300000; label >= 1; --label) table.Insert(label, label);
    std::vector<int> keys = KeysOf(table);
    ASSERT_EQ(keys.size(), 300000u);
    for (int i = 0; i < 300000; ++i) ASSERT_EQ(keys[i], i + 1);
}

TEST(OmiIntTableLabels, SparseAndNegativeLabelsComeOutAscending) {
    omi_IntTable<int> table;
    for (int label : {999999999, 5000, INT_MAX, -1, 0, INT_MIN, 123456789, -999999999, 1}) {
        table.Insert(label, label / 2);
    }
    EXPECT_EQ(KeysOf(table), (std::vector<int>{INT_MIN, -999999999, -1, 0, 1, 5000, 123456789,
                                               999999999, INT_MAX}));
    EXPECT_EQ(table.MinKey(), INT_MIN);
    EXPECT_EQ(table.MaxKey(), INT_MAX);
    EXPECT_EQ(*table.Lookup(-999999999), -999999999 / 2);
    EXPECT_EQ(table.Lookup(2), nullptr);
    EXPECT_EQ(table.Lookup(-2), nullptr);
}

TEST(OmiIntTableLabels, UnsignedTableCoversTheWholeKeyRange) {
    omi_UintTable<char> table;
    table.Insert(UINT32_MAX, 'z');
    table.Insert(0, 'a');
    table.Insert(1u << 31, 'm');
    std::vector<uint32_t> keys;
    std::string values;
    for (omi_UintTableIterator<char> it(table); !it.IsDone(); it.Next()) {
        keys.push_back(it.CurrentKey());
        values += it.CurrentValue();
    }
    EXPECT_EQ(keys, (std::vector<uint32_t>{0, 1u << 31, UINT32_MAX}));
    EXPECT_EQ(values, "amz");
}

TEST(OmiIntTableContents, InsertReplacesAndRemoveReportsPresence) {
    omi_IntTable<std::string> table;
    EXPECT_TRUE(table.Insert(7, "first"));
    EXPECT_FALSE(table.Insert(7, "second"));
    EXPECT_EQ(table.Size(), 1);
    EXPECT_EQ(table.ConstGet(7), "second");

    table.GetOrInsert(8) += "grown";
    EXPECT_EQ(table.ConstGet(8), "grown");
    *table.LookupWritable(7) = "third";
    EXPECT_EQ(table.ConstGet(7), "third");

    EXPECT_TRUE(table.Remove(7));
    EXPECT_FALSE(table.Remove(7));
    EXPECT_FALSE(table.Remove(-7));
    EXPECT_EQ(table.Size(), 1);
    EXPECT_FALSE(table.IsMember(7));
}

TEST(OmiIntTableContents, WalkSkipsRemovedKeysAndFreedBlocks) {
    omi_IntTable<int> table;
    for (int label = 1; label <= 5000; ++label) table.Insert(label, label);
    for (int label = 2; label <= 4999; ++label) table.Remove(label);
    EXPECT_EQ(KeysOf(table), (std::vector<int>{1, 5000}));
    EXPECT_EQ(table.MaxKey(), 5000);

    table.Remove(5000);
    EXPECT_EQ(table.MaxKey(), 1);
    table.Remove(1);
    EXPECT_TRUE(table.IsEmpty());
    EXPECT_TRUE(table.begin() == table.end());
    EXPECT_TRUE(omi_IntTableIterator<int>(table).IsDone());

    table.Insert(42, 1);
    EXPECT_EQ(KeysOf(table), (std::vector<int>{42}));
}

TEST(OmiIntTableContents, ValuesStayPutWhileTheTableGrows) {
    omi_IntTable<int> table;
    table.Insert(500, 5);
    int const* value = table.Lookup(500);
    for (int label = -20000; label <= 20000; label += 3) table.Insert(label, 0);
    EXPECT_EQ(table.Lookup(500), value);
    EXPECT_EQ(*value, 5);
}

TEST(OmiIntTableContents, ConstGetOfMissingKeyAsserts) {
    omi_IntTable<int> table;
    table.Insert(1, 1);
    try {
        table.ConstGet(2);
        FAIL() << "no exception";
    } catch (ZELBasAssertException const& e) {
        EXPECT_EQ(e.Condition(), "key not in table");
    }
    table.Clear();
    EXPECT_TRUE(table.IsEmpty());
    EXPECT_THROW(table.MinKey(), ZELBasAssertException);
}

TEST(OmiIntTableCopies, ChangingACopyLeavesTheOriginal) {
    omi_IntTable<std::string> original;
    for (int label = -3000; label <= 3000; ++label) original.Insert(label, std::to_string(label));
    omi_IntTable<std::string> copy(original);
    copy.Insert(0, "changed");
    copy.Remove(1);
    copy.Insert(10000, "new");

    EXPECT_EQ(original.Size(), 6001);
    EXPECT_EQ(original.ConstGet(0), "0");
    EXPECT_TRUE(original.IsMember(1));
    EXPECT_FALSE(original.IsMember(10000));

    original = copy;
    EXPECT_EQ(original.ConstGet(0), "changed");
    copy.Clear();
    EXPECT_EQ(original.Size(), 6001);
}

TEST(OmiIntTableCopies, MovedFromTableIsEmptyAndReusable) {
    omi_IntTable<int> source;
    for (int label = 1; label <= 3000; ++label) source.Insert(label, label);
    omi_IntTable<int> target(std::move(source));
    EXPECT_EQ(target.Size(), 3000);
    EXPECT_TRUE(source.IsEmpty());  // NOLINT(bugprone-use-after-move)
    source.Insert(9, 9);
    source.Remove(9);
    EXPECT_TRUE(source.IsEmpty());
    EXPECT_EQ(target.ConstGet(3000), 3000);
}

// Each insertion below lands in the leaf of the one before it, which the
// table keeps at hand: a leaf freed by removals, a table cleared, copied,
// assigned or moved must never let an insertion reach a leaf it no longer
// owns (the sanitizer builds see such a write).
TEST(OmiIntTableCopies, InsertionsAfterFreeingCopyingOrMovingLandInTheirOwnTable) {
    omi_IntTable<int> table;
    table.Insert(5, 5);
    table.Remove(5);  // frees the leaf the last insertion used
    table.Insert(6, 6);
    EXPECT_EQ(KeysOf(table), (std::vector<int>{6}));

    omi_IntTable<int> copy(table);
    copy.Insert(7, 7);
    table.Insert(8, 8);
    EXPECT_EQ(KeysOf(copy), (std::vector<int>{6, 7}));
    EXPECT_EQ(KeysOf(table), (std::vector<int>{6, 8}));

    omi_IntTable<int> assigned;
    assigned.Insert(9, 9);
    assigned = copy;
    assigned.Insert(10, 10);
    copy.Insert(11, 11);
    EXPECT_EQ(KeysOf(assigned), (std::vector<int>{6, 7, 10}));
    EXPECT_EQ(KeysOf(copy), (std::vector<int>{6, 7, 11}));

    omi_IntTable<int> moved(std::move(table));
    table.Insert(12, 12);  // NOLINT(bugprone-use-after-move): a moved-from table is reusable
    moved.Insert(13, 13);
    EXPECT_EQ(KeysOf(table), (std::vector<int>{12}));
    EXPECT_EQ(KeysOf(moved), (std::vector<int>{6, 8, 13}));

    moved.Clear();
    moved.Insert(14, 14);
    EXPECT_EQ(KeysOf(moved), (std::vector<int>{14}));
    EXPECT_EQ(moved.Size(), 1);
}

}  // namespace
