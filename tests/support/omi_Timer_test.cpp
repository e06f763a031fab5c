#include "support/omi_Timer.h"

#include <gtest/gtest.h>

namespace {

// Burns CPU the optimiser can't remove.
double Work() {
    volatile double sum = 0.0;
    for (int i = 0; i < 20000000; ++i) sum = sum + i * 0.5;
    return sum;
}

TEST(OmiTimer, ReadingsGrowWhileRunningAndHoldWhenStopped) {
    omi_Timer timer;
    EXPECT_EQ(timer.GetElapsedTime(), 0.0);
    timer.Start();
    Work();
    double const runningWall = timer.GetElapsedTime();
    EXPECT_GT(runningWall, 0.0);
    EXPECT_GT(timer.GetTotalCpuTime(), 0.0);

    timer.Stop();
    double const stoppedWall = timer.GetElapsedTime();
    double const stoppedCpu = timer.GetTotalCpuTime();
    EXPECT_GE(stoppedWall, runningWall);
    Work();
    EXPECT_EQ(timer.GetElapsedTime(), stoppedWall);
    EXPECT_EQ(timer.GetTotalCpuTime(), stoppedCpu);

    timer.Start();
    Work();
    timer.Stop();
    EXPECT_GT(timer.GetElapsedTime(), stoppedWall);

    timer.Reset();
    EXPECT_FALSE(timer.IsRunning());
    EXPECT_EQ(timer.GetElapsedTime(), 0.0);
    EXPECT_EQ(timer.GetTotalCpuTime(), 0.0);
}

}  // namespace
