// Line reading throughput of aio_ifstream::getline over a generated file of
// typical node lines, with std::ifstream::getline on the same file as the
// yardstick. Throughput is reported as bytes_per_second.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/aio_Stream.h"

namespace {

constexpr size_t kTargetBytes = size_t{100} << 20;
constexpr int kLineLimit = 257;  // what the deck parser asks for

// "123456, 1.2345, 2.3456, 3.4567" with numbers that vary from line to line.
class DeckLinesFile {
  public:
    DeckLinesFile() {
        m_path = std::filesystem::temp_directory_path() /
                 ("fedeck_bench_aio_" + std::to_string(::getpid()) + ".inp");
        aio_ofstream out(m_path.c_str());
        char line[96];
        for (long label = 1; m_size < kTargetBytes; ++label) {
            double const x = static_cast<double>(label % 1000) * 0.0125;
            int length = std::snprintf(line, sizeof line, "%ld, %.4f, %.4f, %.4f\n", label, x,
                                       x + 1.1111, x + 2.2222);
            out.write(line, static_cast<size_t>(length));
            m_size += static_cast<size_t>(length);
        }
        out.close();
    }
    ~DeckLinesFile() { std::filesystem::remove(m_path); }
    char const* Path() const { return m_path.c_str(); }
    size_t Size() const { return m_size; }

  private:
    std::filesystem::path m_path;
    size_t m_size = 0;
};

DeckLinesFile const& deckLines() {
    static DeckLinesFile const file;
    return file;
}

void BM_AioIfstreamGetline(benchmark::State& state) {
    DeckLinesFile const& file = deckLines();
    char buffer[kLineLimit];
    for (auto _ : state) {
        aio_ifstream in(static_cast<size_t>(state.range(0)));
        in.open(file.Path());
        long lines = 0;
        while (in.getline(buffer, kLineLimit)) ++lines;
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(file.Size()));
}
BENCHMARK(BM_AioIfstreamGetline)
    ->Arg(64 << 10)
    ->Arg(1 << 20)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void BM_StdIfstreamGetline(benchmark::State& state) {
    DeckLinesFile const& file = deckLines();
    char buffer[kLineLimit];
    for (auto _ : state) {
        std::ifstream in(file.Path());
        long lines = 0;
        while (in.getline(buffer, kLineLimit)) ++lines;
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                            static_cast<int64_t>(file.Size()));
}
BENCHMARK(BM_StdIfstreamGetline)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
