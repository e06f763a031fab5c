#include "support/cow_List.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/ZELBasException.h"

namespace {

std::vector<int> contents(cow_List<int> const& list) {
    return std::vector<int>(list.begin(), list.end());
}

cow_List<int> countingList(int n) {
    cow_List<int> list;
    for (int i = 0; i < n; ++i) list.Append(i);
    return list;
}

void expectOutOfRange(auto&& action) {
    try {
        action();
        ADD_FAILURE() << "no exception";
    } catch (ZELBasAssertException const& e) {
        EXPECT_EQ(e.Condition(), "index out of range");
    }
}

// Counts live objects, so that tests see every element destroyed exactly once
// and no slot constructed without an element.
struct Tracked {
    static inline int live = 0;
    Tracked(int v = 0) : value(v) { ++live; }  // NOLINT: converts from int in tests
    Tracked(Tracked const& other) : value(other.value) { ++live; }
    Tracked& operator=(Tracked const&) = default;
    ~Tracked() { --live; }
    bool operator==(Tracked const& other) const { return value == other.value; }
    int value;
};

TEST(CowListSharing, WriteThroughCopyIsolatesOnlyTheBlockTouched) {
    cow_List<int> original = countingList(1000000);
    cow_List<int> copy(original);
    EXPECT_TRUE(copy.SharesStorageWith(original));
    copy.Get(500000) = -1;
    EXPECT_EQ(original[500000], 500000);
    EXPECT_EQ(copy[500000], -1);
    EXPECT_FALSE(copy.SharesStorageWith(original));
    EXPECT_FALSE(copy.SharesBlockWith(original, 500000));
    EXPECT_TRUE(copy.SharesBlockWith(original, 0));
    EXPECT_TRUE(copy.SharesBlockWith(original, 999999));
    copy.IsolateRange(100, 300000);
    EXPECT_FALSE(copy.SharesBlockWith(original, 100));
    EXPECT_FALSE(copy.SharesBlockWith(original, 299999));
    EXPECT_TRUE(copy.SharesBlockWith(original, 999999));
}

TEST(CowListSharing, StructuralChangesOfACopyDoNotShowInTheOriginal) {
    cow_List<int> original = countingList(100);
    cow_List<int> copy(original);
    copy.RemoveLast();
    copy.Prepend(-1);
    copy.InsertIndex(50, -2);
    copy.RemoveIndex(10);
    copy.Append(-3);
    EXPECT_EQ(contents(original), contents(countingList(100)));
    cow_List<int> second(original);
    original.Resize(3);
    EXPECT_EQ(second.Length(), 100);
    EXPECT_EQ(second.Last(), 99);
    // A copy that shrank and grew again must not write into the slots the
    // other copy still reads.
    cow_List<int> third(second);
    for (int i = 0; i < 20; ++i) second.RemoveLast();
    for (int i = 0; i < 20; ++i) second.Append(-i);
    EXPECT_EQ(third[85], 85);
    EXPECT_EQ(second[85], -5);
}

TEST(CowListIterator, WalksASnapshotTakenAtConstruction) {
    cow_List<int> list = countingList(50);
    cow_ListIter<int> it(list);
    list.Get(0) = 100;
    list.Clear();
    std::vector<int> seen;
    for (it.First(); it.NotDone(); it.Next()) seen.push_back(it.CurrentItem());
    EXPECT_EQ(seen, contents(countingList(50)));
    EXPECT_TRUE(it.IsDone());
    it.First();
    it.Next();
    cow_ListIter<int> copy(it);
    it.Next();
    EXPECT_EQ(copy.CurrentItem(), 1);
    EXPECT_EQ(it.CurrentItem(), 2);
}

TEST(CowListEnds, PrependAndAppendMixAcrossBlockBoundaries) {
    cow_List<int> list;
    std::deque<int> expected;
    for (int i = 0; i < 5000; ++i) {
        if (i % 3 == 0) {
            list.Prepend(i);
            expected.push_front(i);
        } else {
            list.Append(i);
            expected.push_back(i);
        }
    }
    EXPECT_EQ(contents(list), std::vector<int>(expected.begin(), expected.end()));
    EXPECT_EQ(list[0], expected.front());
    EXPECT_EQ(list.Last(), expected.back());
}

TEST(CowListEnds, PopReturnsTheLastAndEmptiesTheList) {
    cow_List<int> list = countingList(33);
    cow_List<int> copy(list);
    for (int i = 32; i >= 0; --i) EXPECT_EQ(list.Pop(), i);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(copy.Length(), 33);
    list.Append(7);
    EXPECT_EQ(contents(list), std::vector<int>{7});
}

TEST(CowListIndexing, InsertAndRemoveAtBlockBoundaries) {
    std::vector<int> const original = contents(countingList(64));
    for (int index : {0, 1, 15, 16, 17, 31, 32, 33, 48, 63, 64}) {
        cow_List<int> list = countingList(64);
        std::vector<int> expected = original;
        list.InsertIndex(index, -1);
        expected.insert(expected.begin() + index, -1);
        EXPECT_EQ(contents(list), expected) << "insert at " << index;
        list.RemoveIndex(index);
        EXPECT_EQ(contents(list), original) << "remove at " << index;
        int const last = std::min(index, 63);
        list.RemoveIndex(last);
        expected = original;
        expected.erase(expected.begin() + last);
        EXPECT_EQ(contents(list), expected) << "remove at " << last;
    }
}

TEST(CowListIndexing, InsertingAnElementOfTheListItself) {
    cow_List<std::string> list{"a", "b", "c"};
    list.InsertIndex(1, list[2]);
    list.InsertIndex(4, list[0]);
    EXPECT_EQ(list, (cow_List<std::string>{"a", "c", "b", "c", "a"}));
}

// A list inserted in one pass lands where the same elements inserted one by
// one would, a copy taken before stays as it was, and inserting a list into
// itself takes its old elements.
TEST(CowListIndexing, InsertingAListEqualsInsertingItsElementsInTurn) {
    cow_List<int> const inserted = countingList(40);
    for (int index : {0, 1, 16, 33, 64}) {
        cow_List<int> list = countingList(64);
        cow_List<int> const before = list;
        cow_List<int> oneByOne = list;
        for (int k = 0; k < inserted.Length(); ++k) oneByOne.InsertIndex(index + k, inserted[k]);
        list.InsertList(index, inserted);
        EXPECT_EQ(contents(list), contents(oneByOne)) << "insert at " << index;
        EXPECT_EQ(contents(before), contents(countingList(64)));
    }
    cow_List<int> self = countingList(3);
    self.InsertList(1, self);
    EXPECT_EQ(contents(self), (std::vector<int>{0, 0, 1, 2, 1, 2}));
    self.InsertList(2, cow_List<int>());
    EXPECT_EQ(self.Length(), 6);
    expectOutOfRange([&] { self.InsertList(7, inserted); });
}

// Counts the copies made of it; a move is no copy, and leaves kMovedOut
// behind, so that an element moved out of a list that still holds it shows.
struct CopyCounted {
    static constexpr int kMovedOut = -999;
    static inline int copies = 0;
    int value = 0;
    CopyCounted(int v = 0) : value(v) {}  // NOLINT(google-explicit-constructor)
    CopyCounted(CopyCounted const& other) : value(other.value) { ++copies; }
    CopyCounted(CopyCounted&& other) noexcept : value(std::exchange(other.value, kMovedOut)) {}
    CopyCounted& operator=(CopyCounted const& other) {
        value = other.value;
        ++copies;
        return *this;
    }
    CopyCounted& operator=(CopyCounted&& other) noexcept {
        value = std::exchange(other.value, kMovedOut);
        return *this;
    }
    ~CopyCounted() = default;
};

std::vector<int> valuesOf(cow_List<CopyCounted> const& list) {
    std::vector<int> values;
    for (CopyCounted const& item : list) values.push_back(item.value);
    return values;
}

cow_List<CopyCounted> trackedList(int first, int n) {
    cow_List<CopyCounted> list;
    for (int i = 0; i < n; ++i) list.Append(CopyCounted(first + i));
    return list;
}

// Inserting moves what no other list holds and copies what one does: a list
// that shared the target's or the source's storage keeps its elements.
TEST(CowListIndexing, InsertingAListMovesWhatNothingElseHolds) {
    std::vector<int> expected;
    for (int v : {0, 1, 100, 101, 102, 2, 3, 4}) expected.push_back(v);

    cow_List<CopyCounted> alone = trackedList(0, 5);
    CopyCounted::copies = 0;
    alone.InsertList(2, trackedList(100, 3));
    EXPECT_EQ(CopyCounted::copies, 0);
    EXPECT_EQ(valuesOf(alone), expected);

    cow_List<CopyCounted> target = trackedList(0, 5);
    cow_List<CopyCounted> const targetSharer = target;
    cow_List<CopyCounted> const source = trackedList(100, 3);
    CopyCounted::copies = 0;
    target.InsertList(2, source);
    EXPECT_EQ(CopyCounted::copies, 8);
    EXPECT_EQ(valuesOf(target), expected);
    EXPECT_EQ(valuesOf(targetSharer), (std::vector<int>{0, 1, 2, 3, 4}));
    EXPECT_EQ(valuesOf(source), (std::vector<int>{100, 101, 102}));

    // Own elements move even when the inserted ones are shared and copied.
    cow_List<CopyCounted> mine = trackedList(0, 5);
    CopyCounted::copies = 0;
    mine.InsertList(2, source);
    EXPECT_EQ(CopyCounted::copies, 3);
    EXPECT_EQ(valuesOf(mine), expected);
    EXPECT_EQ(valuesOf(source), (std::vector<int>{100, 101, 102}));

    // A table of its own whose later blocks another list still shares.
    cow_List<CopyCounted> partly = trackedList(0, 40);
    cow_List<CopyCounted> const partlySharer = partly;
    partly.Get(0) = CopyCounted(-1);
    ASSERT_FALSE(partly.SharesStorageWith(partlySharer));
    ASSERT_TRUE(partly.SharesBlockWith(partlySharer, 39));
    CopyCounted::copies = 0;
    partly.InsertList(40, trackedList(40, 2));
    EXPECT_EQ(CopyCounted::copies, 24);  // the two shared blocks, 16 and 8 elements
    EXPECT_EQ(partly.Length(), 42);
    EXPECT_EQ(partly[39].value, 39);
    EXPECT_EQ(partlySharer[39].value, 39);
    EXPECT_EQ(partlySharer[0].value, 0);

    // A list inserted into itself shares its storage with the source: copies.
    cow_List<CopyCounted> self = trackedList(0, 2);
    self.InsertList(1, self);
    EXPECT_EQ(valuesOf(self), (std::vector<int>{0, 0, 1, 1}));
}

TEST(CowListIndexing, OutOfRangeRaises) {
    cow_List<int> list = countingList(3);
    cow_List<int> empty;
    expectOutOfRange([&] { list.Get(3); });
    expectOutOfRange([&] { list.ConstGet(-1); });
    expectOutOfRange([&] { (void)list[3]; });
    expectOutOfRange([&] { list.InsertIndex(4, 0); });
    expectOutOfRange([&] { list.RemoveIndex(3); });
    expectOutOfRange([&] { list.Slice(2, 4); });
    expectOutOfRange([&] { list.Slice(2, 1); });
    expectOutOfRange([&] { empty.Pop(); });
    expectOutOfRange([&] { empty.Last(); });
    expectOutOfRange([&] { empty.RemoveLast(); });
    expectOutOfRange([&] { empty.GetLast(); });
    EXPECT_EQ(contents(list), (std::vector<int>{0, 1, 2}));
}

TEST(CowListSlice, TakesTheRangeAndSharesItsBlocksUntilWritten) {
    cow_List<int> list = countingList(100);
    cow_List<int> slice = list.Slice(10, 60);
    std::vector<int> const all = contents(list);
    EXPECT_EQ(contents(slice), std::vector<int>(all.begin() + 10, all.begin() + 60));
    EXPECT_TRUE(list.Slice(0, 100).SharesBlockWith(list, 50));
    EXPECT_TRUE(slice.Slice(0, 0).IsEmpty());
    slice.Get(0) = -1;
    slice.Prepend(-2);
    slice.Append(-3);
    EXPECT_EQ(list[10], 10);
    EXPECT_EQ(list[60], 60);
    EXPECT_EQ(list[9], 9);
    EXPECT_EQ(slice.Length(), 52);
}

TEST(CowListWholeList, FillResizeClearAndArrays) {
    cow_List<int> list = countingList(20);
    cow_List<int> copy(list);
    list.Fill(list[3]);
    EXPECT_EQ(contents(list), std::vector<int>(20, 3));
    EXPECT_EQ(copy[5], 5);
    list.Resize(40);
    EXPECT_EQ(list[39], 0);
    EXPECT_EQ(list.Size(), 40);
    int raw[] = {4, 5, 6};
    list.SetFromArray(raw, 3);
    int out[3] = {};
    list.GetCArray(out);
    EXPECT_EQ(std::vector<int>(out, out + 3), (std::vector<int>{4, 5, 6}));
    list.Clear();
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(copy.Length(), 20);
}

TEST(CowListWholeList, ConcatenateWithItselfAndMembership) {
    cow_List<int> list{1, 2};
    list.Concatenate(list);
    EXPECT_EQ(contents(list), (std::vector<int>{1, 2, 1, 2}));
    EXPECT_TRUE(list.IsMember(2));
    EXPECT_FALSE(list.AppendUnlessMember(1));
    EXPECT_TRUE(list.AppendUnlessMember(3));
    EXPECT_EQ(list.Last(), 3);
    cow_List<int> empty;
    empty.Concatenate(list);
    EXPECT_TRUE(empty.SharesStorageWith(list));
}

TEST(CowListLifetime, EveryElementIsDestroyedOnceAndNoSlotIsFilledInAdvance) {
    {
        cow_List<Tracked> list;
        list.Append(Tracked(1));
        EXPECT_EQ(Tracked::live, 1);
        for (int i = 0; i < 300; ++i) list.Prepend(Tracked(i));
        cow_List<Tracked> copy(list);
        copy.RemoveIndex(150);
        copy.Get(3) = Tracked(9);
        list.Resize(100);
        cow_List<Tracked> slice = copy.Slice(5, 200);
        copy.Clear();
        slice.Pop();
    }
    EXPECT_EQ(Tracked::live, 0);
}

// Random operations on several lists that copy each other, against a model.
TEST(CowListModel, RandomOperationsOnCopiesMatchIndependentDeques) {
    std::mt19937 random(7);
    std::vector<cow_List<int>> lists(4);
    std::vector<std::deque<int>> models(4);
    for (int step = 0; step < 40000; ++step) {
        int const k = static_cast<int>(random() % 4);
        cow_List<int>& list = lists[k];
        std::deque<int>& model = models[k];
        int const n = static_cast<int>(model.size());
        int const value = static_cast<int>(random() % 1000);
        int const i = n == 0 ? 0 : static_cast<int>(random() % n);
        switch (random() % 9) {
            case 0:
                list.Append(value);
                model.push_back(value);
                break;
            case 1:
                list.Prepend(value);
                model.push_front(value);
                break;
            case 2:
                if (n) {
                    list.Get(i) = value;
                    model[i] = value;
                }
                break;
            case 3:
                if (n) {
                    list.RemoveLast();
                    model.pop_back();
                }
                break;
            case 4:
                list.InsertIndex(i, value);
                model.insert(model.begin() + i, value);
                break;
            case 5:
                if (n) {
                    list.RemoveIndex(i);
                    model.erase(model.begin() + i);
                }
                break;
            case 6:
                lists[k] = lists[value % 4];
                models[k] = models[value % 4];
                break;
            case 7:
                list = list.Slice(i / 2, i);
                model = std::deque<int>(model.begin() + i / 2, model.begin() + i);
                break;
            default:
                if (n > 2000) {
                    list.Resize(100);
                    model.resize(100);
                }
                break;
        }
        ASSERT_EQ(list.Length(), static_cast<int>(model.size()));
        if (step % 50 == 0) {
            for (int j = 0; j < 4; ++j) {
                ASSERT_EQ(contents(lists[j]), std::vector<int>(models[j].begin(), models[j].end()))
                    << step;
            }
        }
    }
}

}  // namespace
