// The element visitor over the 1,000,000 eight-node bricks of the generated
// 100 x 100 x 100 deck, parsed and expanded once outside the timing.
//
// FlatDeck walks the whole flat deck: its *ELEMENT keeps the raw text of its
// lines, and the walk builds the element map and the set EALL of all the
// elements (ELSET on the *ELEMENT), and reads the deck's one *ELSET.
// ElementsOnly walks the *ELEMENT alone without its ELSET, to separate the
// map from the set. PartDeck walks the same mesh as a part of one instance,
// where expansion has made the element data compact.
//
// Heap: every iteration frees a million records and makes a million new
// ones. By default the C library hands freed memory back to the system when
// the freed blocks happen to lie at the top of the heap, and the next
// iteration then pays a page fault for every page it touches again, which
// costs more than the walk itself on some machines; whether that happens
// depends on where other blocks lie, so the figures would vary with the
// order of the benchmarks. With glibc the freed memory is therefore kept in
// the process, and the library's deferred merging of freed blocks is done
// while the timer is paused, with the release: every iteration then starts
// from the same warm heap.

#include <benchmark/benchmark.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <optional>
#include <string>

#include "bench/ExpandedDeck.h"
#include "mesh/inp_ElementVisitor.h"
#include "pipeline/inp_InputFile.h"

namespace {

#ifdef __GLIBC__
constexpr int kKeepFreedMemory = 1 << 30;  // bytes at the top of the heap kept on free
#endif

// mallopt merges the freed blocks that the library holds back (fast bins)
// before it sets the value, which is the same each time.
void keepFreedMemory() {
#ifdef __GLIBC__
    mallopt(M_TRIM_THRESHOLD, kKeepFreedMemory);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
#endif
}

cow_List<inp_Keyword> expandedDeck(int instances) {
    keepFreedMemory();
    inp_DeckLayout layout;
    layout.nx = layout.ny = layout.nz = 100;
    layout.instances = instances;
    return ExpandedGeneratedDeck(layout, "fedeck_bench_elements.inp");
}

cow_List<inp_Keyword> const& flatDeck() {
    static cow_List<inp_Keyword> const keywords = expandedDeck(0);
    return keywords;
}

cow_List<inp_Keyword> const& partDeck() {
    static cow_List<inp_Keyword> const keywords = expandedDeck(1);
    return keywords;
}

int elementCount(inp_ElementVisitor const& visitor, char const* scope) {
    inpM_InstanceMap<inp_MapInt2Element> const& map = visitor.ConstGetElementMap();
    return *scope ? map.ConstGet(scope).Size() : map.ConstGet().Size();
}

// Times fresh element visitors walking `keywords`; the elements they store
// in `scope` are the items processed.
void timeElementWalk(benchmark::State& state, cow_List<inp_Keyword>& keywords, char const* scope) {
    std::optional<inp_ElementVisitor> visitor;
    int elements = 0;
    for (auto _ : state) {
        state.PauseTiming();  // releasing the last map is not part of the walk
        visitor.reset();
        keepFreedMemory();
        visitor.emplace(false);
        state.ResumeTiming();
        visitor->VisitList(keywords);
        elements = elementCount(*visitor, scope);
    }
    state.counters["elements"] = elements;
    state.SetItemsProcessed(state.iterations() * elements);
}

void BM_ElementVisitorFlatDeck(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = flatDeck();
    timeElementWalk(state, keywords, "");
}
BENCHMARK(BM_ElementVisitorFlatDeck)->Unit(benchmark::kMillisecond);

void BM_ElementVisitorElementsOnly(benchmark::State& state) {
    cow_List<inp_Keyword> keywords;
    for (inp_Keyword const& keyword : flatDeck())
        if (keyword.Is(inp_kw_Element)) keywords.Append(keyword);
    for (int i = 0; i < keywords.Length(); ++i) keywords.Get(i).RemoveParameter("elset");
    timeElementWalk(state, keywords, "");
}
BENCHMARK(BM_ElementVisitorElementsOnly)->Unit(benchmark::kMillisecond);

void BM_ElementVisitorPartDeck(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = partDeck();
    timeElementWalk(state, keywords, "BLOCK");
}
BENCHMARK(BM_ElementVisitorPartDeck)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
