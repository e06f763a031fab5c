#pragma once
// Timing a program as users meet it: a process of its own, wall time from
// fork to exit, and its peak resident set. Shared by the benchmark programs
// that compare whole runs.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace inp_bench {

using Clock = std::chrono::steady_clock;

// ru_maxrss counts kibibytes; every size here is in MB of 10^6 bytes, the
// deck's as well, so that the ratios are of like units.
inline double megabytesOfKibibytes(long kibibytes) {
    return static_cast<double>(kibibytes) * 1024.0 / 1e6;
}

inline double seconds(Clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

struct ProcessRun {
    double seconds = 0;
    double peakMegabytes = 0;
};

// Runs `arguments` with its output discarded; wall time from fork to exit.
inline ProcessRun runProcess(std::vector<std::string> const& arguments) {
    std::fflush(stdout);  // or the child's freopen writes what is pending once more
    Clock::time_point const start = Clock::now();
    pid_t const child = fork();
    if (child == 0) {
        std::vector<char*> argv;
        for (std::string const& argument : arguments)
            argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        if (std::freopen("/dev/null", "w", stdout) == nullptr) _exit(127);
        execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    ProcessRun run;
    run.seconds = seconds(Clock::now() - start);
    run.peakMegabytes = megabytesOfKibibytes(usage.ru_maxrss);
    if (!WIFEXITED(status) || WEXITSTATUS(status) == 127)
        std::fprintf(stderr, "%s did not run\n", arguments[0].c_str());
    return run;
}

// The median time of `runs` runs, and the largest peak among them.
inline ProcessRun medianOf(int runs, std::vector<std::string> const& arguments) {
    std::vector<double> times;
    ProcessRun result;
    for (int i = 0; i < runs; ++i) {
        ProcessRun const run = runProcess(arguments);
        times.push_back(run.seconds);
        result.peakMegabytes = std::max(result.peakMegabytes, run.peakMegabytes);
    }
    std::sort(times.begin(), times.end());
    result.seconds = times[times.size() / 2];
    return result;
}

}  // namespace inp_bench
