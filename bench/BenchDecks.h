#pragma once
// What the benchmarks of whole decks share: a directory for the generated
// decks, and the peak memory of one run measured in a child process.

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

// The directory of the generated decks, removed when main returns.
class bench_DeckDirectory {
  public:
    bench_DeckDirectory() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "fedeck-bench-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot create a temporary directory");
        m_path = pattern;
    }
    ~bench_DeckDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    bench_DeckDirectory(bench_DeckDirectory const&) = delete;
    bench_DeckDirectory& operator=(bench_DeckDirectory const&) = delete;

    std::string Path(std::string const& name) const { return (m_path / name).string(); }

  private:
    std::filesystem::path m_path;
};

namespace bench_detail {

// The value of a "Name:   1234 kB" line of /proc/self/status, in bytes; 0 if absent.
inline double statusBytes(char const* field) {
    std::ifstream status("/proc/self/status");
    std::string line;
    std::size_t const length = std::strlen(field);
    while (std::getline(status, line))
        if (line.compare(0, length, field) == 0 && line[length] == ':')
            return std::strtod(line.c_str() + length + 1, nullptr) * 1024.0;
    return 0;
}

// Sets the high-water mark of the resident set back to the current size.
inline bool resetPeakResidentSet() {
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
    clear.flush();
    return clear.good();
}

}  // namespace bench_detail

// Runs `run` once in a child process, whose heap holds nothing left over
// from earlier runs, and returns how far the resident set's peak rose above
// its size before, in bytes. Negative if it couldn't be measured.
inline double bench_MeasurePeakGrowth(std::function<void()> const& run) {
    int channel[2];
    if (pipe(channel) != 0) return -1;
    pid_t const child = fork();
    if (child == 0) {
        close(channel[0]);
#ifdef __GLIBC__
        malloc_trim(0);
#endif
        double growth = -1;
        if (bench_detail::resetPeakResidentSet()) {
            double const before = bench_detail::statusBytes("VmRSS");
            run();
            growth = bench_detail::statusBytes("VmHWM") - before;
        }
        ssize_t const written = write(channel[1], &growth, sizeof growth);
        _exit(written == sizeof growth ? 0 : 1);
    }
    close(channel[1]);
    double growth = -1;
    if (child < 0 || read(channel[0], &growth, sizeof growth) != sizeof growth) growth = -1;
    close(channel[0]);
    if (child > 0) waitpid(child, nullptr, 0);
    return growth;
}
