#include "mesh/inp_MapInt2Coord.h"

#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <vector>

#include "mesh/omi_IntTableCoord.h"
#include "support/ZELBasException.h"

namespace {

std::vector<int> KeysOf(inp_MapInt2Coord const& map) {
    std::vector<int> keys;
    for (inp_MapInt2CoordSIT it(map); !it.IsDone(); it.Next()) keys.push_back(it.CurrentKey());
    return keys;
}

TEST(InpCoordTableKeys, ZeroAndNegativeLabelsAreKeysInNumericOrder) {
    inp_MapInt2Coord map;
    for (int label : {7, 0, -3, INT_MIN, INT_MAX, -1}) {
        EXPECT_TRUE(map.Insert(label, inp_Coord(label, 0, 0)));
    }
    EXPECT_EQ(map.Size(), 6);
    EXPECT_EQ(KeysOf(map), (std::vector<int>{INT_MIN, -3, -1, 0, 7, INT_MAX}));
    EXPECT_EQ(map.ConstGet(-3).x, -3.0);
    EXPECT_TRUE(map.IsMember(0));
    EXPECT_FALSE(map.IsMember(3));
    EXPECT_EQ(map.Find(3), nullptr);
}

TEST(InpCoordTableKeys, InsertOnExistingLabelReplacesAndReturnsFalse) {
    inp_MapInt2Coord map;
    map.Insert(5, inp_Coord(1, 1, 1));
    EXPECT_FALSE(map.Insert(5, inp_Coord(2, 2, 2)));
    EXPECT_EQ(map.Size(), 1);
    EXPECT_EQ(map.ConstGet(5), inp_Coord(2, 2, 2));
}

TEST(InpCoordTableKeys, MissingLabelIsAnAssertion) {
    inp_MapInt2Coord map;
    EXPECT_THROW(map.ConstGet(1), ZELBasAssertException);
    EXPECT_FALSE(map.Remove(1));
}

TEST(InpCoordTableOwnership, CopiesOwnTheirRecords) {
    omi_IntTableCoord table;
    for (int label = -2000; label <= 2000; ++label) table.Insert(label, inp_Coord(label, 0, 0));
    omi_IntTableCoord copy(table);
    table.Insert(17, inp_Coord(-1, -1, -1));
    table.Remove(18);
    EXPECT_EQ(copy.ConstGet(17).x, 17.0);
    EXPECT_TRUE(copy.IsMember(18));
    EXPECT_NE(copy.Find(19), table.Find(19));

    omi_IntTableCoord assigned;
    assigned.Insert(1, inp_Coord());
    assigned = copy;
    EXPECT_EQ(assigned.Size(), 4001);
    copy.Clear();
    EXPECT_TRUE(copy.IsEmpty());
    EXPECT_EQ(assigned.ConstGet(-2000).x, -2000.0);
}

// Records live in blocks of the table: many insertions over several blocks,
// removals whose room the next insertions take, a copy made in between and a
// table moved: every record keeps its value and its address while in its
// table, and no two labels share a record.
TEST(InpCoordTableOwnership, PooledRecordsStayPutAndRemovedRoomsAreReused) {
    omi_IntTableCoord table;
    constexpr int kNodes = 3 * omi_IntTableCoord::kMaxBlockRecords;
    for (int label = 1; label <= kNodes; ++label) table.Insert(label, inp_Coord(label, 1, 2));
    inp_Coord const* const kept = table.Find(kNodes - 1);
    std::set<inp_Coord const*> removedRooms;
    for (int label = 2; label <= kNodes; label += 2) {
        removedRooms.insert(table.Find(label));
        EXPECT_TRUE(table.Remove(label));
    }
    omi_IntTableCoord const copy(table);
    for (int label = -1; label >= -kNodes / 2; --label) table.Insert(label, inp_Coord(label, 0, 0));
    EXPECT_EQ(table.Size(), kNodes);
    EXPECT_EQ(table.Find(kNodes - 1), kept);
    EXPECT_EQ(table.Find(kNodes), nullptr);
    for (int label = -1; label >= -kNodes / 2; --label)
        ASSERT_TRUE(removedRooms.count(table.Find(label))) << "no reuse for " << label;
    std::set<inp_Coord const*> records;
    for (auto [label, value] : table) {
        EXPECT_EQ(omi_IntTableCoord::Record(value).x, label);
        EXPECT_TRUE(records.insert(&omi_IntTableCoord::Record(value)).second) << label;
    }
    EXPECT_EQ(copy.Size(), kNodes / 2);
    for (int label = 1; label <= kNodes; label += 2) ASSERT_EQ(copy.ConstGet(label).x, label);
    omi_IntTableCoord moved(std::move(table));
    EXPECT_EQ(moved.ConstGet(-7).x, -7.0);
    EXPECT_EQ(moved.Find(kNodes - 1), kept);
}

TEST(InpCoordTableSharing, WriteThroughOneCopyDoesNotShowInTheOther) {
    inp_MapInt2Coord original;
    original.Insert(1, inp_Coord(1, 0, 0));
    inp_MapInt2Coord copy = original;
    EXPECT_TRUE(copy.SharesWith(original));

    copy.Insert(1, inp_Coord(9, 9, 9));
    copy.Insert(2, inp_Coord());
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(original.ConstGet(1).x, 1.0);
    EXPECT_EQ(original.Size(), 1);

    inp_MapInt2Coord third = original;
    EXPECT_TRUE(third.Remove(1));
    EXPECT_TRUE(original.IsMember(1));
    inp_MapInt2Coord fourth = original;
    fourth.Clear();
    EXPECT_TRUE(fourth.IsEmpty());
    EXPECT_EQ(original.Size(), 1);
}

}  // namespace
