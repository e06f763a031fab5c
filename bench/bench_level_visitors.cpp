// The level-specific node visitors: the part node visitor over 100,000 nodes
// of raw text, and the assembly node visitor placing 1,000 moved instances of
// parts of 1,000 and of 100,000 nodes (an instance must cost the same
// whatever its part holds: nothing is copied per node).

#include <benchmark/benchmark.h>
#include <string>
#include "assembly/inp_AssemblyElementVisitor.h"
#include "assembly/inp_AssemblyNodeVisitor.h"
#include "assembly/inp_PartMeshVisitors.h"
#include "tests/mesh/InlineDeck.h"

static std::string partDeck(int nodes) {
    std::string text = "*PART, NAME=P\n*NODE, NSET=ALL\n";
    for (int i = 1; i <= nodes; ++i)
        text += std::to_string(i) + ", " + std::to_string(i) + ".5, 1.25, 2.\n";
    text += "*END PART\n";
    return text;
}
static std::string assemblyDeck(int instances) {
    std::string text = "*ASSEMBLY, NAME=A\n";
    for (int i = 0; i < instances; ++i)
        text += "*INSTANCE, NAME=I" + std::to_string(i) + ", PART=P\n" + std::to_string(i) +
                "., 1., 2.\n0., 0., 0., 0., 0., 1., 30.\n*END INSTANCE\n";
    return text + "*END ASSEMBLY\n";
}

static void BM_PartNodeVisitor(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = InlineDeck(partDeck(int(state.range(0))));
    inpM_InstanceMap<inp_MapInt2Element> elements;
    for (auto _ : state) {
        inp_PartNodeVisitor v(elements, inpM_SetMap());
        v.VisitList(keywords);
        benchmark::DoNotOptimize(v.ConstGetCoordMap().Count());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_PartNodeVisitor)->Arg(100000)->Unit(benchmark::kMillisecond);

// Instances of one part, each moved: args (instances, part nodes).
static void BM_AssemblyNodeVisitorInstances(benchmark::State& state) {
    int const instances = int(state.range(0));
    cow_List<inp_Keyword> part = InlineDeck(partDeck(int(state.range(1))));
    inp_PartNodeVisitor pv{inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap()};
    pv.VisitList(part);
    cow_List<inp_Keyword> keywords = InlineDeck(assemblyDeck(instances));
    inpM_InstanceMap<cow_String> parts;
    cow_List<cow_String> names;
    for (int i = 0; i < instances; ++i) {
        cow_String n = ("I" + std::to_string(i)).c_str();
        parts.Insert(n, "P");
        names.Append(n);
    }
    for (auto _ : state) {
        inp_AssemblyNodeVisitor v(pv.ConstGetCoordMap(), pv.ConstGetSetMap(),
                                  inpM_InstanceMap<inp_MapInt2Element>(), inpM_SetMap(), parts,
                                  names);
        v.VisitList(keywords);
        benchmark::DoNotOptimize(v.ConstGetTransformationMap().Instances().Length());
    }
    state.SetItemsProcessed(state.iterations() * instances);
}
BENCHMARK(BM_AssemblyNodeVisitorInstances)
    ->Args({1000, 1000})
    ->Args({1000, 100000})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
