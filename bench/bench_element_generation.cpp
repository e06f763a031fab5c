// *ELGEN of one million elements: one 8-node brick copied 100 x 100 x 100
// times, the node labels of each copy shifted as in a structured block. The
// walk reads the master's *ELEMENT (one row) and the *ELGEN row; every copy
// is a record of its own in the element table. WithSet adds ELSET, which
// gathers the million labels and stores them as one sorted set.

#include <benchmark/benchmark.h>

#include <optional>

#include "mesh/inp_ElementVisitor.h"

namespace {

cow_List<inp_Keyword> blockOfCopies(bool withSet) {
    inp_Keyword master(inp_kw_Element);
    master.SetParameter("type", inp_Item(cow_String("C3D8")));
    master.Data().Append("1, 1, 2, 103, 102, 10202, 10203, 10304, 10303");
    inp_Keyword copies(inp_kw_Elgen);
    if (withSet) copies.SetParameter("elset", inp_Item(cow_String("BLOCK")));
    // Nodes step by 1, 101 and 10201 in a block of 101 x 101 x 101 nodes.
    copies.Data().Append("1, 100, 1, 1, 100, 101, 100, 100, 10201, 10000");
    cow_List<inp_Keyword> keywords;
    keywords.Append(master);
    keywords.Append(copies);
    return keywords;
}

void timeElgen(benchmark::State& state, bool withSet) {
    cow_List<inp_Keyword> keywords = blockOfCopies(withSet);
    std::optional<inp_ElementVisitor> visitor;
    int elements = 0;
    for (auto _ : state) {
        state.PauseTiming();  // releasing the last table is not part of the walk
        visitor.reset();
        visitor.emplace(true);
        state.ResumeTiming();
        visitor->VisitList(keywords);
        elements = visitor->ConstGetElementMap().ConstGet().Size();
    }
    state.counters["elements"] = elements;
    state.SetItemsProcessed(state.iterations() * elements);
}

void BM_ElgenMillionElements(benchmark::State& state) {
    timeElgen(state, false);
}
BENCHMARK(BM_ElgenMillionElements)->Unit(benchmark::kMillisecond);

void BM_ElgenMillionElementsWithSet(benchmark::State& state) {
    timeElgen(state, true);
}
BENCHMARK(BM_ElgenMillionElementsWithSet)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
