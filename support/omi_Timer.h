#pragma once
#include <chrono>
#include <ctime>

// Measures wall time and process CPU time over one or more Start/Stop
// stretches, in seconds. While running, the readings include the stretch under
// way. A timer belongs to one thread.
class omi_Timer {
  public:
    // Starting a running timer, or stopping a stopped one, changes nothing.
    void Start();
    void Stop();
    // Stops the timer and forgets what it measured.
    void Reset();
    bool IsRunning() const { return m_running; }

    double GetElapsedTime() const;
    double GetTotalCpuTime() const;

  private:
    using WallClock = std::chrono::steady_clock;

    double runningWallSeconds() const;
    double runningCpuSeconds() const;

    bool m_running = false;
    WallClock::time_point m_wallStart;
    std::clock_t m_cpuStart = 0;
    double m_wallSeconds = 0.0;
    double m_cpuSeconds = 0.0;
};
