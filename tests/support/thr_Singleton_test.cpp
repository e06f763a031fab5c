#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "support/thr_Singleton.h"

namespace {

// Destructions recorded across threads, in order.
std::mutex g_logLock;
std::vector<std::string> g_log;

void logDestruction(std::string const& name) {
    std::lock_guard<std::mutex> lock(g_logLock);
    g_log.push_back(name);
}

std::vector<std::string> takeLog() {
    std::lock_guard<std::mutex> lock(g_logLock);
    std::vector<std::string> log;
    log.swap(g_log);
    return log;
}

struct Counted {
    static inline std::atomic<int> constructed{0};
    Counted() { ++constructed; }
    int value = 0;
};

// A singleton that registers itself at a level in its constructor.
template <int Level, char Name>
struct Leveled {
    Leveled() {
        thr_ThrSingletonRegistry::SetDestructLevel(&thr_ThreadSingleton<Leveled>::Finalize, Level);
    }
    ~Leveled() { logDestruction(std::string(1, Name)); }
};

struct Unregistered {
    ~Unregistered() { logDestruction("default"); }
};

using NinthA = Leveled<9, 'A'>;
using NinthB = Leveled<9, 'B'>;
using Second = Leveled<2, 'S'>;
using Eleventh = Leveled<11, 'E'>;

void makeOrderedSingletons() {
    thr_ThreadSingleton<NinthA>::Instance();
    thr_ThreadSingleton<Unregistered>::Instance();  // default level, 10
    thr_ThreadSingleton<Eleventh>::Instance();
    thr_ThreadSingleton<Second>::Instance();
    thr_ThreadSingleton<NinthB>::Instance();
}

std::vector<std::string> const kExpectedOrder = {"S", "B", "A", "default", "E"};

}  // namespace

TEST(ThrThreadSingleton, SameObjectWithinAThreadAndDifferentAcrossThreads) {
    Counted* mine = &thr_ThreadSingleton<Counted>::Instance();
    EXPECT_EQ(&thr_ThreadSingleton<Counted>::Instance(), mine);
    mine->value = 1;

    Counted* theirs = nullptr;
    int theirValue = -1;
    std::thread other([&] {
        theirs = &thr_ThreadSingleton<Counted>::Instance();
        theirValue = theirs->value;
    });
    other.join();
    EXPECT_NE(theirs, mine);
    EXPECT_EQ(theirValue, 0);
    EXPECT_EQ(mine->value, 1);
}

TEST(ThrThreadSingleton, LiveCountFollowsThreadsThatHoldAnInstance) {
    struct Tracked {};
    int const before = thr_ThreadSingleton<Tracked>::LiveCount();
    std::latch made(2), release(1);
    auto holder = [&] {
        thr_ThreadSingleton<Tracked>::Instance();
        made.count_down();
        release.wait();
    };
    std::thread first(holder), second(holder);
    made.wait();
    EXPECT_EQ(thr_ThreadSingleton<Tracked>::LiveCount(), before + 2);
    release.count_down();
    first.join();
    second.join();
    EXPECT_EQ(thr_ThreadSingleton<Tracked>::LiveCount(), before);
}

TEST(ThrThreadSingleton, FinalizeEndsTheInstanceAndTheNextUseMakesANewOne) {
    std::thread([] {
        int const before = Counted::constructed;
        thr_ThreadSingleton<Counted>::Instance().value = 5;
        thr_ThreadSingleton<Counted>::Finalize();
        EXPECT_FALSE(thr_ThreadSingleton<Counted>::Exists());
        EXPECT_EQ(thr_ThreadSingleton<Counted>::Instance().value, 0);
        EXPECT_EQ(Counted::constructed, before + 2);
        thr_ThreadSingleton<Counted>::Finalize();
        thr_ThreadSingleton<Counted>::Finalize();  // nothing left: harmless
    }).join();
}

TEST(ThrSingletonRegistry, ThreadExitDestroysByLevelThenLatestFirst) {
    takeLog();
    std::thread(makeOrderedSingletons).join();
    EXPECT_EQ(takeLog(), kExpectedOrder);
}

TEST(ThrSingletonRegistry, FinalizeThreadRunsTheSameOrderAndForgetsTheInstances) {
    std::thread([] {
        takeLog();
        makeOrderedSingletons();
        thr_ThrSingletonRegistry::FinalizeThread();
        EXPECT_EQ(takeLog(), kExpectedOrder);
        EXPECT_FALSE(thr_ThreadSingleton<NinthA>::Exists());
        EXPECT_FALSE(
            thr_ThrSingletonRegistry::IsRegistered(&thr_ThreadSingleton<NinthA>::Finalize));
        // Made again, it registers again and ends with the thread.
        thr_ThreadSingleton<NinthA>::Instance();
        EXPECT_TRUE(thr_ThrSingletonRegistry::IsRegistered(&thr_ThreadSingleton<NinthA>::Finalize));
    }).join();
    EXPECT_EQ(takeLog(), std::vector<std::string>{"A"});
}

TEST(ThrSingletonRegistry, SingletonRevivedByAFinalizerIsFinalizedToo) {
    struct Reviver {
        ~Reviver() {
            logDestruction("reviver");
            thr_ThreadSingleton<Unregistered>::Instance();
        }
    };
    std::thread([] {
        takeLog();
        thr_ThrSingletonRegistry::SetDestructLevel(&thr_ThreadSingleton<Reviver>::Finalize, 20);
        thr_ThreadSingleton<Reviver>::Instance();
        thr_ThreadSingleton<Unregistered>::Instance();
        thr_ThrSingletonRegistry::FinalizeThread();
        EXPECT_EQ(takeLog(), (std::vector<std::string>{"default", "reviver", "default"}));
        EXPECT_FALSE(thr_ThreadSingleton<Unregistered>::Exists());
    }).join();
}

namespace {

// Its construction asks for the singleton being built, once.
struct Reentrant {
    static inline bool reentered = false;
    Reentrant() {
        if (reentered) return;
        reentered = true;
        thr_ThreadSingleton<Reentrant>::Instance();
    }
};

}  // namespace

TEST(ThrThreadSingletonDeathTest, ReentrantConstructionAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(thr_ThreadSingleton<Reentrant>::Instance(), "");
}

TEST(ThrGlobalSingleton, OneObjectForAllThreadsUntilFinalized) {
    struct Shared {
        int value = 0;
    };
    Shared* mine = &thr_GlobalSingleton<Shared>::Instance();
    mine->value = 7;
    std::vector<Shared*> seen(4);
    std::vector<std::thread> threads;
    for (auto& slot : seen)
        threads.emplace_back([&slot] { slot = &thr_GlobalSingleton<Shared>::Instance(); });
    for (auto& thread : threads) thread.join();
    for (Shared* other : seen) EXPECT_EQ(other, mine);

    thr_GlobalSingleton<Shared>::Finalize();
    EXPECT_FALSE(thr_GlobalSingleton<Shared>::Exists());
    EXPECT_EQ(thr_GlobalSingleton<Shared>::Instance().value, 0);
}
