// The reference walks over the 1,000,000-element flat deck after expansion.
// Keywords without references are passed over by one table lookup, and the
// data of *NODE and *ELEMENT are never read as text, so a walk that
// rewrites nothing costs about as much as the walk itself.

#include <benchmark/benchmark.h>

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
