// The hot operations of the deck model: storing data lines and typing their
// items. Figures are in bytes of line text per second and items per second.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "deck/inp_RawDataArrayImpl.h"

namespace {

// Typical *NODE lines: a label and three coordinates.
std::vector<std::string> nodeLines(int count) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<size_t>(count));
    char buffer[128];
    for (int i = 1; i <= count; ++i) {
        std::snprintf(buffer, sizeof buffer, "%d, %.6f, %.6f, %.6f", i, i * 0.001, i * 0.002 + 1.5,
                      -i * 0.003);
        lines.emplace_back(buffer);
    }
    return lines;
}

void AppendNodeLines(benchmark::State& state) {
    std::vector<std::string> lines = nodeLines(100000);
    size_t bytes = 0;
    for (std::string const& line : lines) bytes += line.size() + 1;
    for (auto _ : state) {
        inp_RawDataArrayImpl data;
        for (std::string const& line : lines) data.Append(line.c_str());
        benchmark::DoNotOptimize(data.Rows());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}
BENCHMARK(AppendNodeLines)->Unit(benchmark::kMillisecond);

void TypeScanOfItems(benchmark::State& state) {
    std::vector<std::string> lines = nodeLines(10000);
    inp_RawDataArrayImpl data;
    for (std::string const& line : lines) data.Append(line.c_str());
    std::vector<char const*> items;
    for (int i = 0; i < data.Rows(); ++i)
        for (int j = 0; j < data.Cols(i); ++j) items.push_back(data.Item(i, j));
    for (auto _ : state) {
        int reals = 0;
        for (char const* item : items)
            reals += inp_RawDataArrayImpl::Type(item) == inp_Types::inp_REAL;
        benchmark::DoNotOptimize(reals);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * items.size()));
}
BENCHMARK(TypeScanOfItems);

void ReadNodeRows(benchmark::State& state) {
    std::vector<std::string> lines = nodeLines(100000);
    inp_RawDataArrayImpl data;
    for (std::string const& line : lines) data.Append(line.c_str());
    for (auto _ : state) {
        double sum = 0;
        for (int i = 0; i < data.Rows(); ++i) {
            sum += data.AsInt(i, 0);
            for (int j = 1; j < 4; ++j) sum += data.AsDouble(i, j);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * data.Rows() * 4));
}
BENCHMARK(ReadNodeRows)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
