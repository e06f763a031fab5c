#include <benchmark/benchmark.h>

#include <string>

#include "deck/inp_DataArray.h"
#include "deck/inp_Keyword.h"
#include "mesh/inp_SetVisitor.h"
#include "mesh/inp_Utils.h"

namespace {

constexpr int kIds = 1000000;

class SetReader : public inp_SetVisitor {
  public:
    SetReader() { m_partName = "P"; }
    void DefaultAction(inp_Keyword&) override {}
    cow_String KeywordName() const override { return "*NODE"; }
};

// One generated row of a million ids into a sorted set.
void BM_GenerateSetIds(benchmark::State& state) {
    inp_DataArray data;
    data.Append("1, 1000000, 1");
    for (auto _ : state) {
        cow_List<atr_String> errors;
        inpM_OmiSet ids = inp_Utils::GenerateSetIds(data, "*NSET", errors);
        benchmark::DoNotOptimize(ids);
    }
    state.SetItemsProcessed(state.iterations() * kIds);
}
BENCHMARK(BM_GenerateSetIds)->Unit(benchmark::kMillisecond);

void BM_GenerateUnsortedSetIds(benchmark::State& state) {
    inp_DataArray data;
    data.Append("1, 1000000, 1");
    for (auto _ : state) {
        cow_List<atr_String> errors;
        cow_List<int> ids = inp_Utils::GenerateUnsortedSetIds(data, "*NSET", errors);
        benchmark::DoNotOptimize(ids);
    }
    state.SetItemsProcessed(state.iterations() * kIds);
}
BENCHMARK(BM_GenerateUnsortedSetIds)->Unit(benchmark::kMillisecond);

// A list of a million ids, sixteen to a line as decks write them.
inp_Keyword idList() {
    inp_Keyword keyword(inp_kw_Nset);
    std::string line;
    for (int id = 1; id <= kIds; ++id) {
        line += std::to_string(id);
        if (id % 16 == 0 || id == kIds) {
            keyword.Data().Append(line.c_str());
            line.clear();
        } else {
            line += ", ";
        }
    }
    return keyword;
}

void BM_ReadIdsAndSetNames(benchmark::State& state) {
    inp_Keyword const keyword = idList();
    bool const unsorted = state.range(0) != 0;
    for (auto _ : state) {
        SetReader reader;
        inpM_SetHandle set = unsorted ? reader.ReadUnsortedIdsAndSetNames(keyword, false, false)
                                      : reader.ReadIdsAndSetNames(keyword, false, false);
        benchmark::DoNotOptimize(set);
    }
    state.SetItemsProcessed(state.iterations() * kIds);
}
BENCHMARK(BM_ReadIdsAndSetNames)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
