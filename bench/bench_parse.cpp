// Parsing whole decks through inp_InputFile::Parse, and the first stages
// after it (Parse, ExpandKeywords, Reorganize), for flat decks the road
// through their fake part, and the whole road through the extraction of the
// model maps: throughput and the peak memory they add.
//
// The decks are generated once into a temporary directory that is removed at
// exit: a flat block of N^3 bricks (N = 100 by default, about 110 MB), a
// small flat block, and a part of (N/2)^3 bricks placed as one, ten and a
// hundred instances (instances share their part's mesh: the peak memory of
// the hundred should stay near that of the one).
// FEDECK_BENCH_SIZE=N sets N for quick runs.
//
// Counters: MB/s (decimal megabytes of deck per second of wall time),
// deck_MB, peak_MB (growth of the resident set's high-water mark over one
// run of the stages, measured in a forked child so that nothing else the process did
// counts), peak_per_deck (peak_MB / deck_MB), and release_ms (time to free
// the keyword list afterwards, which the timings leave out).

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "bench/BenchDecks.h"
#include "bench/inp_DeckGenerator.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// How far down the pipeline a benchmark runs.
enum class Stages { ParseOnly, ThroughOrganize, ThroughFakePart, ThroughExtraction, Count };

struct Deck {
    std::string path;
    double megabytes = 0;
    // Measured once per kind of run, on first use.
    std::optional<double> peakGrowthMegabytes[static_cast<int>(Stages::Count)];
};

void runStages(inp_InputFile& input, cow_String const& path, Stages stages) {
    if (stages == Stages::ThroughFakePart || stages == Stages::ThroughExtraction) {
        inp_Stage const last =
            stages == Stages::ThroughFakePart ? inp_Stage::FakePart : inp_Stage::OutOfPlace;
        input.Run(path, last, inp_InputFile::RunRule::RunThrough);
        return;
    }
    input.Parse(path);
    if (stages == Stages::ParseOnly) return;
    input.ExpandKeywords();
    input.Reorganize();
}

// Takes the diagnostics of the last parse out of this thread's sink.
int takeDiagnostics() {
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    int const diagnostics = static_cast<int>(sink.Diagnostics().size());
    sink.Clear();
    return diagnostics;
}

void BM_Stages(benchmark::State& state, Deck* deck, Stages stages) {
    std::optional<double>& peak = deck->peakGrowthMegabytes[static_cast<int>(stages)];
    if (!peak)
        peak = bench_MeasurePeakGrowth([&] {
                   inp_InputFile input;
                   runStages(input, cow_String(deck->path.c_str()), stages);
               }) /
               1e6;
    std::chrono::duration<double> parsing{};
    std::chrono::duration<double> releasing{};
    int diagnostics = takeDiagnostics();
    cow_String const path(deck->path.c_str());
    for (auto _ : state) {
        std::optional<inp_InputFile> input(std::in_place);
        auto const start = std::chrono::steady_clock::now();
        runStages(*input, path, stages);
        parsing += std::chrono::steady_clock::now() - start;
        // Freeing millions of data lines is not parsing: keep it out of the figures.
        state.PauseTiming();
        diagnostics += takeDiagnostics();
        auto const released = std::chrono::steady_clock::now();
        input.reset();
        releasing += std::chrono::steady_clock::now() - released;
        state.ResumeTiming();
    }
    if (diagnostics > 0) state.SkipWithError("the generated deck caused diagnostics");
    double const megabytes = deck->megabytes * static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<int64_t>(megabytes * 1e6));
    state.counters["MB/s"] = megabytes / parsing.count();
    state.counters["release_ms"] =
        releasing.count() * 1e3 / static_cast<double>(state.iterations());
    state.counters["deck_MB"] = deck->megabytes;
    state.counters["peak_MB"] = *peak;
    state.counters["peak_per_deck"] = *peak / deck->megabytes;
}

int benchSize() {
    char const* text = std::getenv("FEDECK_BENCH_SIZE");
    int const size = text ? std::atoi(text) : 100;
    return size > 0 ? size : 100;
}

std::string caseName(inp_DeckLayout const& layout) {
    std::string name = std::to_string(layout.nx) + "x" + std::to_string(layout.ny) + "x" +
                       std::to_string(layout.nz);
    return layout.instances == 0 ? "flat_" + name
                                 : std::to_string(layout.instances) + "_instances_of_" + name;
}

// One parse of the big deck takes a large fraction of a second: a fixed small
// iteration count, repeated, gives a median without minutes of waiting.
char const* stageLabel(Stages stages) {
    switch (stages) {
        case Stages::ParseOnly:
            return "Parse/";
        case Stages::ThroughOrganize:
            return "ParseExpandOrganize/";
        case Stages::ThroughFakePart:
            return "ThroughFakePart/";
        default:
            return "ThroughExtraction/";
    }
}

void registerCase(bench_DeckDirectory const& directory, std::map<std::string, Deck>& decks,
                  inp_DeckLayout const& layout, int iterations) {
    std::string const name = caseName(layout);
    Deck& deck = decks[name];
    deck.path = directory.Path(name + ".inp");
    deck.megabytes = static_cast<double>(inp_WriteDeck(layout, deck.path)) / 1e6;
    // A flat deck is made a part (then read like a parts deck); a parts deck
    // has no fake part to make.
    for (Stages stages : {Stages::ParseOnly, Stages::ThroughOrganize, Stages::ThroughFakePart,
                          Stages::ThroughExtraction}) {
        if (stages == Stages::ThroughFakePart && layout.instances != 0) continue;
        std::string const label = stageLabel(stages);
        benchmark::RegisterBenchmark((label + name).c_str(), BM_Stages, &deck, stages)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(iterations)
            ->Repetitions(5);
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    bench_DeckDirectory directory;
    std::map<std::string, Deck> decks;
    int const size = benchSize();
    int const small = 20;
    int const part = std::max(size / 2, 1);
    registerCase(directory, decks, {.nx = size, .ny = size, .nz = size}, 2);
    if (size > small) registerCase(directory, decks, {.nx = small, .ny = small, .nz = small}, 20);
    for (int instances : {1, 10, 100})
        registerCase(directory, decks, {.nx = part, .ny = part, .nz = part, .instances = instances},
                     5);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
