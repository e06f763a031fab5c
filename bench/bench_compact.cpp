// Conversion of big *NODE and *ELEMENT blocks from their raw text to the
// compact typed rows. The raw arrays are built once, outside the timed
// region; each iteration converts all of their rows.

#include <benchmark/benchmark.h>

#include <cstdio>

#include "deck/inp_DataArray.h"
#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_NodeDataArrayImpl.h"

namespace {

constexpr int kRows = 1000000;

// Lines as a mesher writes them: a label and three coordinates.
inp_DataArray const& rawNodeRows() {
    static inp_DataArray const raw = [] {
        inp_DataArray lines;
        char buffer[128];
        for (int i = 1; i <= kRows; ++i) {
            std::snprintf(buffer, sizeof buffer, "%d, %.6f, %.6f, %.6f", i, i * 0.001,
                          i * 0.002 + 1.5, -i * 0.003);
            lines.Append(buffer);
        }
        return lines;
    }();
    return raw;
}

// Lines of 8-node hexahedra: a label and eight node labels.
inp_DataArray const& rawElementRows() {
    static inp_DataArray const raw = [] {
        inp_DataArray lines;
        char buffer[160];
        for (int i = 1; i <= kRows; ++i) {
            std::snprintf(buffer, sizeof buffer, "%d, %d, %d, %d, %d, %d, %d, %d, %d", i, i, i + 1,
                          i + 2, i + 3, i + 1000, i + 1001, i + 1002, i + 1003);
            lines.Append(buffer);
        }
        return lines;
    }();
    return raw;
}

void ConvertMillionNodeRows(benchmark::State& state) {
    inp_DataArray const& raw = rawNodeRows();
    for (auto _ : state) {
        inp_NodeDataArrayImpl nodes;
        nodes.SetRaw(raw);
        benchmark::DoNotOptimize(nodes.Rows());
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(ConvertMillionNodeRows)->Unit(benchmark::kMillisecond)->UseRealTime();

void ConvertMillionElementRows(benchmark::State& state) {
    inp_DataArray const& raw = rawElementRows();
    for (auto _ : state) {
        inp_ElementDataArrayImpl elements(raw);
        benchmark::DoNotOptimize(elements.Rows());
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(ConvertMillionElementRows)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
