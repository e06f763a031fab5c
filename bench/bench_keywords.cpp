// Decks of many small keywords through parse, expansion and organization
// (the road up to and including the organize stage), beside the mesh deck
// that the reader is built for: the cost per megabyte of deck and the peak
// memory per megabyte, where a keyword deck pays per keyword and a mesh deck
// per data line.
//
// Cases, generated once into a temporary directory removed at exit:
// - Mesh/flat_NxNxN: the flat block of N^3 bricks (N = 100, about 110 MB;
//   FEDECK_BENCH_SIZE=N sets N);
// - Nsets/1000000: a million one-line *NSET keywords and nothing else;
// - Boundaries/100000: 100,000 nodes, then one step of 100,000 *BOUNDARY;
// - Mixed/100000: 100,000 each of *NSET, *ELSET, *BOUNDARY and *CLOAD with
//   their mesh.
//
// Counters: MB/s, ms_per_MB, deck_MB, peak_MB (growth of the resident set's
// high-water mark over one run, in a child process), peak_per_deck, and
// vs_mesh: ms_per_MB over that of the mesh deck measured first in the same
// run (the target is the keyword decks within 5 times the mesh deck); and
// the milliseconds of one run spent in parse, expansion, the stages between
// expansion and organization, organization, and the release of the model.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "bench/BenchDecks.h"
#include "bench/inp_DeckGenerator.h"
#include "bench/inp_KeywordDeckGenerator.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

struct KeywordDeck {
    std::string path;
    double megabytes = 0;
    std::optional<double> peakMegabytes;
};

// The mesh deck's cost per megabyte, once its benchmark has run.
std::optional<double> meshMillisecondsPerMegabyte;

// Seconds spent in each stage, and in the release of the model at the end.
struct StageSeconds {
    double parse = 0, expand = 0, organize = 0, others = 0, release = 0;
};

void throughOrganize(cow_String const& path, StageSeconds* seconds = nullptr) {
    using Clock = std::chrono::steady_clock;
    auto last = Clock::now();
    auto lap = [&last] {
        auto const now = Clock::now();
        double const taken = std::chrono::duration<double>(now - last).count();
        last = now;
        return taken;
    };
    {
        inp_InputFile input;
        input.Run(path, inp_Stage::Organize, inp_InputFile::RunRule::RunThrough,
                  [&](inp_Stage stage) {
                      double const taken = lap();
                      if (!seconds) return;
                      if (stage == inp_Stage::Parse)
                          seconds->parse += taken;
                      else if (stage == inp_Stage::Expand)
                          seconds->expand += taken;
                      else if (stage == inp_Stage::Organize)
                          seconds->organize += taken;
                      else
                          seconds->others += taken;
                  });
        lap();
    }
    if (seconds) seconds->release += lap();
}

void BM_ThroughOrganize(benchmark::State& state, KeywordDeck* deck, bool isMesh) {
    cow_String const path(deck->path.c_str());
    if (!deck->peakMegabytes)
        deck->peakMegabytes = bench_MeasurePeakGrowth([&] { throughOrganize(path); }) / 1e6;
    std::chrono::duration<double> taken{};
    StageSeconds stages;
    for (auto _ : state) {
        auto const start = std::chrono::steady_clock::now();
        throughOrganize(path, &stages);
        taken += std::chrono::steady_clock::now() - start;
        thr_ThreadSingleton<wip_WIP>::Instance().Clear();
    }
    double const megabytes = deck->megabytes * static_cast<double>(state.iterations());
    double const millisecondsPerMegabyte = taken.count() * 1e3 / megabytes;
    if (isMesh) meshMillisecondsPerMegabyte = millisecondsPerMegabyte;
    state.counters["MB/s"] = megabytes / taken.count();
    state.counters["ms_per_MB"] = millisecondsPerMegabyte;
    state.counters["deck_MB"] = deck->megabytes;
    state.counters["peak_MB"] = *deck->peakMegabytes;
    state.counters["peak_per_deck"] = *deck->peakMegabytes / deck->megabytes;
    if (meshMillisecondsPerMegabyte)
        state.counters["vs_mesh"] = millisecondsPerMegabyte / *meshMillisecondsPerMegabyte;
    // Where the time goes, in ms per run.
    double const runs = static_cast<double>(state.iterations()) / 1e3;
    state.counters["parse_ms"] = stages.parse / runs;
    state.counters["expand_ms"] = stages.expand / runs;
    state.counters["between_ms"] = stages.others / runs;
    state.counters["organize_ms"] = stages.organize / runs;
    state.counters["release_ms"] = stages.release / runs;
}

int benchSize() {
    char const* text = std::getenv("FEDECK_BENCH_SIZE");
    int const size = text ? std::atoi(text) : 100;
    return size > 0 ? size : 100;
}

void registerCase(std::string const& name, KeywordDeck& deck, bool isMesh, int iterations) {
    benchmark::RegisterBenchmark(name.c_str(), BM_ThroughOrganize, &deck, isMesh)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(iterations)
        ->Repetitions(5);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    bench_DeckDirectory directory;
    int const size = benchSize();
    std::vector<KeywordDeck> decks(4);

    decks[0].path = directory.Path("mesh.inp");
    decks[0].megabytes =
        static_cast<double>(inp_WriteDeck({.nx = size, .ny = size, .nz = size}, decks[0].path)) /
        1e6;
    registerCase("Mesh/flat_" + std::to_string(size) + "x" + std::to_string(size) + "x" +
                     std::to_string(size),
                 decks[0], true, 2);

    struct Kind {
        char const* name;
        inp_KeywordDeckLayout layout;
    };
    Kind const kinds[] = {
        {"Nsets/1000000", {.nodeSets = 1000000, .mesh = false}},
        {"Boundaries/100000", {.boundaries = 100000}},
        {"Mixed/100000",
         {.nodeSets = 100000, .elementSets = 100000, .boundaries = 100000, .concentrated = 100000}},
    };
    for (int i = 0; i < 3; ++i) {
        KeywordDeck& deck = decks[static_cast<size_t>(i) + 1];
        deck.path = directory.Path(std::to_string(i) + ".inp");
        deck.megabytes =
            static_cast<double>(inp_WriteKeywordDeck(kinds[i].layout, deck.path)) / 1e6;
        registerCase(kinds[i].name, deck, false, 2);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
