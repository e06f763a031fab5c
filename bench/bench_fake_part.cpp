// The stage that makes a flat deck a part (inp_InputFile::FakeEnhancements)
// on the 1,000,000-element flat deck, parsed and expanded once outside the
// timing: the flat mesh read into maps, undefined nodes, the fake part and
// its list, the numbering, set assignment and the scoping of references.
// Each run starts from a shared copy of the expanded deck, which costs a
// reference count. The peak memory of the road through this stage is
// measured by bench_parse (ThroughFakePart/flat_100x100x100).

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "bench/inp_DeckGenerator.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

inp_InputFile const& expandedFlatDeck() {
    static inp_InputFile const input = [] {
        inp_DeckLayout layout;
        layout.nx = layout.ny = layout.nz = 100;
        std::string const path =
            (std::filesystem::temp_directory_path() / "fedeck_bench_fake_part.inp").string();
        inp_WriteDeck(layout, path);
        inp_InputFile file;
        file.Parse(path.c_str());
        file.ExpandKeywords();
        file.setModelParameters();
        std::remove(path.c_str());
        return file;
    }();
    return input;
}

void BM_FakeEnhancements(benchmark::State& state) {
    inp_InputFile const& expanded = expandedFlatDeck();
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    for (auto _ : state) {
        state.PauseTiming();
        inp_InputFile input = expanded;
        sink.Clear();
        state.ResumeTiming();
        input.FakeEnhancements(false);
        state.PauseTiming();
        if (sink.HasErrors()) state.SkipWithError("the generated deck caused errors");
        input = inp_InputFile();  // freeing the maps is not part of the stage
        state.ResumeTiming();
    }
}
BENCHMARK(BM_FakeEnhancements)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
