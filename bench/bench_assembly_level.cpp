// The visitors offered to callers after renumbering, over 100,000 items:
// assembly-level connectors with integer and with scoped (instance.id)
// connectivity, and reference nodes given as instance.id.

#include <benchmark/benchmark.h>
#include <string>
#include "assembly/inp_AssyLevelElemVisitor.h"
#include "assembly/inp_CollectRefNodesVisitor.h"
#include "tests/mesh/InlineDeck.h"

static inpM_IdMap ids(int n) {
    inpM_IdMap m;
    inpM_IdMap inst;
    for (int i = 1; i <= n; ++i) {
        m.Insert(i, i + 1000000);
        inst.Insert(i, i + 2000000);
    }
    m.Insert("INST", inst);
    return m;
}
static std::string deck(int n, bool scoped) {
    std::string t = "*ELEMENT, TYPE=CONN3D2\n";
    for (int i = 1; i <= n; ++i)
        t += std::to_string(i) + ", " + std::to_string(i) + ", " + (scoped ? "Inst." : "") +
             std::to_string(i % n + 1) + "\n";
    return t;
}
static void run(benchmark::State& state, bool scoped) {
    int const n = static_cast<int>(state.range(0));
    inpM_IdMap const m = ids(n);
    cow_List<inp_Keyword> const kw = InlineDeck(deck(n, scoped));
    for (auto _ : state) {
        cow_List<inp_Keyword> k = kw;
        inp_AssyLevelElemVisitor v(inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(), m);
        v.VisitList(k);
        benchmark::DoNotOptimize(v.ConstGetElementMap());
    }
    state.SetItemsProcessed(state.iterations() * n);
}
static void BM_AssyElementsIntegers(benchmark::State& s) {
    run(s, false);
}
static void BM_AssyElementsScoped(benchmark::State& s) {
    run(s, true);
}
BENCHMARK(BM_AssyElementsIntegers)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AssyElementsScoped)->Arg(100000)->Unit(benchmark::kMillisecond);
static void BM_RefNodes(benchmark::State& state) {
    int const n = static_cast<int>(state.range(0));
    inpM_IdMap const m = ids(n);
    std::string t;
    for (int i = 1; i <= n; ++i)
        t += "*RIGID BODY, REF NODE=Inst." + std::to_string(i) + ", ELSET=E\n";
    cow_List<inp_Keyword> const kw = InlineDeck(t);
    for (auto _ : state) {
        cow_List<inp_Keyword> k = kw;
        inp_CollectRefNodesVisitor v(inpM_SetMap(), m);
        v.VisitList(k);
        benchmark::DoNotOptimize(v.RefNodes());
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_RefNodes)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
