#include "support/omi_Timer.h"

void omi_Timer::Start() {
    if (m_running) return;
    m_running = true;
    m_wallStart = WallClock::now();
    m_cpuStart = std::clock();
}

void omi_Timer::Stop() {
    if (!m_running) return;
    m_wallSeconds += runningWallSeconds();
    m_cpuSeconds += runningCpuSeconds();
    m_running = false;
}

void omi_Timer::Reset() {
    m_running = false;
    m_wallSeconds = 0.0;
    m_cpuSeconds = 0.0;
}

double omi_Timer::GetElapsedTime() const {
    return m_running ? m_wallSeconds + runningWallSeconds() : m_wallSeconds;
}

double omi_Timer::GetTotalCpuTime() const {
    return m_running ? m_cpuSeconds + runningCpuSeconds() : m_cpuSeconds;
}

double omi_Timer::runningWallSeconds() const {
    return std::chrono::duration<double>(WallClock::now() - m_wallStart).count();
}

// std::clock counts the CPU time of the whole process, all threads included.
double omi_Timer::runningCpuSeconds() const {
    return static_cast<double>(std::clock() - m_cpuStart) / CLOCKS_PER_SEC;
}
