// The reference walks over the 1,000,000-element flat deck after expansion.
// Keywords without references are passed over by one table lookup, and the
// data of *NODE and *ELEMENT are never read as text, so a walk that
// rewrites nothing costs about as much as the walk itself.

#include <benchmark/benchmark.h>

#include <string>

#include "assembly/inp_RemovePeriodVisitors.h"
#include "assembly/inp_SetFixupVisitor.h"
#include "bench/ExpandedDeck.h"

namespace {

cow_List<inp_Keyword>& flatDeck() {
    static cow_List<inp_Keyword> keywords = [] {
        inp_DeckLayout layout;
        layout.nx = layout.ny = layout.nz = 100;
        return ExpandedGeneratedDeck(layout, "fedeck_bench_set_fixup.inp");
    }();
    return keywords;
}

class UnchangedReferences : public inp_SetFixupVisitor {
  public:
    UnchangedReferences()
        : inp_SetFixupVisitor(inpM_SetMap(), inpM_SetMap(), inpM_IdMap(), inpM_IdMap()) {}
    cow_String FixupIdOrSet(inp_Keyword const&, cow_String const& datum, inpM_SetMap const&,
                            inpM_IdMap const&, cow_String const&, cow_String const&,
                            cow_String const&, inp_SetType, cow_String const&) override {
        return datum;
    }
};

void BM_SetFixupRewritingNothing(benchmark::State& state) {
    cow_List<inp_Keyword>& keywords = flatDeck();
    for (auto _ : state) {
        UnchangedReferences walk;
        walk.VisitList(keywords);
        benchmark::DoNotOptimize(walk.GetWarningList().Length());
    }
}
BENCHMARK(BM_SetFixupRewritingNothing)->Unit(benchmark::kMillisecond);

// Where references are many: one *BOUNDARY of 1,000,000 lines, each node
// read and asked about, none rewritten.
void BM_SetFixupOverAMillionBoundaryLines(benchmark::State& state) {
    static cow_List<inp_Keyword> keywords = [] {
        inp_Keyword boundary(inp_kw_Boundary);
        std::string line;
        for (int node = 1; node <= 1'000'000; ++node) {
            line = std::to_string(node) + ", 1, 3";
            boundary.Data().Append(line.c_str());
        }
        cow_List<inp_Keyword> list;
        list.Append(boundary);
        return list;
    }();
    for (auto _ : state) {
        UnchangedReferences walk;
        walk.VisitList(keywords);
        benchmark::DoNotOptimize(walk.GetWarningList().Length());
    }
    state.SetItemsProcessed(state.iterations() * 1'000'000);
}
BENCHMARK(BM_SetFixupOverAMillionBoundaryLines)->Unit(benchmark::kMillisecond);

// The six walks of period removal, as a flat deck gets them before it
// becomes a part.
void BM_RemovePeriodWalks(benchmark::State& state) {
    cow_List<inp_Keyword>& keywords = flatDeck();
    for (auto _ : state) {
        inp_RemovePeriodSetVisitor sets(false);
        sets.VisitList(keywords);
        inp_RemovePeriodSurfaceVisitor surfaces;
        surfaces.VisitList(keywords);
        inp_RemovePeriodDistributionVisitor distributions;
        distributions.VisitList(keywords);
        inp_RemovePeriodOrientationVisitor orientations;
        orientations.VisitList(keywords);
        inp_RemovePeriodRebarVisitor rebars;
        rebars.VisitList(keywords);
        inp_RemovePeriodMaterialVisitor materials;
        materials.VisitList(keywords);
    }
}
BENCHMARK(BM_RemovePeriodWalks)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
