#include <benchmark/benchmark.h>

#include <vector>

#include "deck/inp_Item.h"
#include "deck/inp_PatternMatchers.h"
#include "support/rgx_Regex.h"

namespace {

// Parameter values as they come in decks: names, integers, reals, files.
std::vector<cow_String> typicalValues() {
    return {"Part-1",     "ELSET_TOP",   "12",          "-7",         "7.8E3",  "0.25",
            "/tmp/a.inp", "1.5d3",       "\"my part\"", "Part-1.top", "210000", "NO",
            "1e-6",       "results.odb", "3",           "Step-2"};
}

void BM_ItemInference(benchmark::State& state) {
    std::vector<cow_String> const values = typicalValues();
    for (auto _ : state) {
        for (cow_String const& value : values) {
            inp_Item item(value);
            benchmark::DoNotOptimize(item);
        }
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}
BENCHMARK(BM_ItemInference);

void BM_ParameterNameMatch(benchmark::State& state) {
    std::vector<cow_String> const names = {"elset", "name",      "instance", "input",
                                           "type",  "mass flow", "nset"};
    for (auto _ : state) {
        for (cow_String const& name : names)
            benchmark::DoNotOptimize(inp_PatternMatchers::MatchParam(name.View()));
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * names.size()));
}
BENCHMARK(BM_ParameterNameMatch);

// For comparison: one regular expression match, of the up to six that
// inference would need without the hand-written matchers.
void BM_OneRegexMatch(benchmark::State& state) {
    std::vector<cow_String> const values = typicalValues();
    cow_String const pattern = inp_Types::integerPat();
    for (auto _ : state) {
        for (cow_String const& value : values)
            benchmark::DoNotOptimize(rgx_match(value, pattern).Matched());
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * values.size()));
}
BENCHMARK(BM_OneRegexMatch);

}  // namespace

BENCHMARK_MAIN();
