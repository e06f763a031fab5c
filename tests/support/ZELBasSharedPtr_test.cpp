#include "support/ZELBasSharedPtr.h"

#include <gtest/gtest.h>

namespace {

// Counts its own destructions, so that tests see each object deleted exactly once.
struct Tracked {
    explicit Tracked(int* deaths) : deaths(deaths) {}
    virtual ~Tracked() { ++*deaths; }
    int* deaths;
    int value = 0;
};

struct Derived : Tracked {
    using Tracked::Tracked;
};

TEST(ZELBasSharedPtrSharing, CopiesSeeOneObjectAndWritesShowInAll) {
    int deaths = 0;
    ZELBasSharedPtr<Tracked> first(new Tracked(&deaths));
    ZELBasSharedPtr<Tracked> second(first);
    ZELBasSharedPtr<Tracked> third;
    third = second;
    third->value = 7;
    EXPECT_EQ(first->value, 7);
    EXPECT_EQ(first.UseCount(), 3);
    EXPECT_TRUE(first.SharesWith(third));
    EXPECT_EQ(ZELBasSharedPtr<Tracked>().UseCount(), 0);
}

TEST(ZELBasSharedPtrSharing, LastHandleDeletesOnceThroughBase) {
    int deaths = 0;
    {
        ZELBasSharedPtr<Tracked> first(new Derived(&deaths));
        ZELBasSharedPtr<Tracked> moved(std::move(first));
        ZELBasSharedPtr<Tracked> copy(moved);
        EXPECT_TRUE(first.IsNull());
        EXPECT_EQ(moved.UseCount(), 2);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(ZELBasSharedPtrSharing, ResetLeavesTheGroupAndOthersKeepTheObject) {
    int deaths = 0;
    ZELBasSharedPtr<Tracked> first(new Tracked(&deaths));
    ZELBasSharedPtr<Tracked> second(first);
    first.Reset(new Tracked(&deaths));
    EXPECT_EQ(deaths, 0);
    EXPECT_FALSE(first.SharesWith(second));
    EXPECT_EQ(second.UseCount(), 1);
    second.Reset();
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(second.UseCount(), 0);
}

TEST(ZELBasWeakPtrWatching, DoesNotCountAndExpiresWithTheLastStrongHandle) {
    int deaths = 0;
    ZELBasWeakPtr<Tracked> weak;
    EXPECT_TRUE(weak.Expired());
    {
        ZELBasSharedPtr<Tracked> strong(new Tracked(&deaths));
        weak = strong;
        ZELBasWeakPtr<Tracked> another(weak);
        EXPECT_EQ(strong.UseCount(), 1);
        ZELBasSharedPtr<Tracked> locked = weak.Lock();
        EXPECT_TRUE(locked.SharesWith(strong));
        EXPECT_EQ(strong.UseCount(), 2);
    }
    EXPECT_EQ(deaths, 1);
    EXPECT_TRUE(weak.Expired());
    EXPECT_TRUE(weak.Lock().IsNull());
}

// An object that holds a weak handle to itself: deleting it drops the last
// weak reference while the strong side is still releasing.
struct SelfWatching {
    ZELBasWeakPtr<SelfWatching> self;
};

TEST(ZELBasWeakPtrWatching, ObjectHoldingAWeakHandleToItselfIsFreedCleanly) {
    ZELBasSharedPtr<SelfWatching> strong(new SelfWatching);
    strong->self = strong;
    EXPECT_EQ(strong.UseCount(), 1);
    strong.Reset();  // the sanitizer build catches a use of the freed counts
    EXPECT_TRUE(strong.IsNull());
}

}  // namespace
