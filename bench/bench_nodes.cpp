// The node visitor over the generated flat deck of 101 x 101 x 101 nodes,
// parsed and expanded once outside the timing: the walk builds the coordinate
// map from the compact *NODE data (and reads the deck's few *NSET keywords
// and the NSET=ALL of its *NODE). NodesOnly walks the *NODE keyword alone,
// without its NSET parameter, to separate the map from the sets.
//
// GenerateMillionIds times *NSET, GENERATE of one row 1 to 1,000,000;
// NgenMillionNodes an *NGEN of 999,999 nodes on a straight line between two
// nodes of a *NODE.

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

#include "bench/ExpandedDeck.h"
#include "mesh/inp_NodeVisitor.h"
#include "pipeline/inp_InputFile.h"

namespace {

cow_List<inp_Keyword> const& expandedDeck() {
    static cow_List<inp_Keyword> const keywords = [] {
        inp_DeckLayout layout;
        layout.nx = layout.ny = layout.nz = 100;
        return ExpandedGeneratedDeck(layout, "fedeck_bench_nodes.inp");
    }();
    return keywords;
}

int nodeCount(inp_NodeVisitor const& visitor) {
    return visitor.ConstGetCoordMap().Count();
}

// Times fresh node visitors walking `keywords`; the nodes they store are the
// items processed unless `items` says otherwise.
void timeNodeWalk(benchmark::State& state, cow_List<inp_Keyword>& keywords, int items = 0) {
    std::optional<inp_NodeVisitor> visitor;
    int nodes = 0;
    for (auto _ : state) {
        state.PauseTiming();  // releasing the last map is not part of the walk
        visitor.reset();
        visitor.emplace(true);
        state.ResumeTiming();
        visitor->VisitList(keywords);
        nodes = nodeCount(*visitor);
    }
    state.counters["nodes"] = nodes;
    state.SetItemsProcessed(state.iterations() * (items > 0 ? items : nodes));
}

void BM_NodeVisitorFlatDeck(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = expandedDeck();
    timeNodeWalk(state, keywords);
}
BENCHMARK(BM_NodeVisitorFlatDeck)->Unit(benchmark::kMillisecond);

void BM_NodeVisitorNodesOnly(benchmark::State& state) {
    cow_List<inp_Keyword> keywords;
    for (inp_Keyword const& keyword : expandedDeck())
        if (keyword.Is(inp_kw_Node)) keywords.Append(keyword);
    for (int i = 0; i < keywords.Length(); ++i) keywords.Get(i).RemoveParameter("nset");
    timeNodeWalk(state, keywords);
}
BENCHMARK(BM_NodeVisitorNodesOnly)->Unit(benchmark::kMillisecond);

void BM_NsetGenerateMillionIds(benchmark::State& state) {
    inp_Keyword keyword(inp_kw_Nset);
    keyword.SetParameter("nset", inp_Item(cow_String("BIG")));
    keyword.SetParameter("generate", inp_Item(true));
    keyword.Data().Append("1, 1000000, 1");
    cow_List<inp_Keyword> keywords;
    keywords.Append(keyword);
    for (auto _ : state) {
        inp_NodeVisitor visitor(true);
        visitor.VisitList(keywords);
        benchmark::DoNotOptimize(visitor.ConstGetSetMap());
    }
    state.SetItemsProcessed(state.iterations() * 1000000);
}
BENCHMARK(BM_NsetGenerateMillionIds)->Unit(benchmark::kMillisecond);

void BM_NgenMillionNodes(benchmark::State& state) {
    inp_Keyword ends(inp_kw_Node);
    ends.Data().Append("1, 0., 0., 0.");
    ends.Data().Append("1000001, 1., 0., 0.");
    inp_Keyword line(inp_kw_Ngen);
    line.Data().Append("1, 1000001, 1");
    cow_List<inp_Keyword> keywords;
    keywords.Append(ends);
    keywords.Append(line);
    timeNodeWalk(state, keywords, 999999);
}
BENCHMARK(BM_NgenMillionNodes)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
