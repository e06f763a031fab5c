// The transformation walk of moved instances over a tree of 100 instances
// holding ten geometry keywords each (a thousand in all): every instance
// moved, then none moved, beside a walk that does nothing over the same
// tree. And setModelParameters over the expanded 1,000,000-element flat
// deck, which the road runs before the maps.
//
// Each run of the walk starts from a shared copy of the tree, which costs
// a reference count; the keywords it writes to get data of their own.

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <numbers>
#include <string>

#include "bench/inp_DeckGenerator.h"
#include "pipeline/inp_InputFile.h"
#include "transform/inp_TransformationVisitor.h"

namespace {

constexpr int kInstances = 100;

inp_Keyword keyword(char const* name,
                    std::initializer_list<std::pair<char const*, char const*>> parameters,
                    std::initializer_list<char const*> lines) {
    inp_Keyword result{cow_String(name)};
    for (auto const& [parameter, value] : parameters)
        result.SetParameter(parameter, inp_Item(cow_String(value)));
    for (char const* line : lines) result.Data().Append(line);
    return result;
}

// Ten keywords that hold geometry: local systems, sections, a gap, a
// normal, a tensor, a cutting plane and a keyword on the global axes. A
// surface is rewritten in any instance, moved or not; without it the walk
// of unmoved instances passes every keyword by.
cow_List<inp_Keyword> geometry(bool withSurface) {
    cow_List<inp_Keyword> keywords;
    keywords.Append(keyword("orientation", {{"name", "OR"}}, {"1., 0., 0., 0., 1., 0."}));
    keywords.Append(keyword("transform", {{"nset", "N"}}, {"1., 0., 0., 0., 1., 0."}));
    keywords.Append(
        keyword("solidsection", {{"elset", "E"}, {"material", "M"}}, {"1., 1., 0., 0."}));
    keywords.Append(keyword("gap", {{"elset", "G"}}, {"0.5, 1., 0., 0."}));
    keywords.Append(keyword("normal", {}, {"1, 2, 1., 0., 0."}));
    keywords.Append(keyword("rotaryinertia", {{"elset", "R"}}, {"1., 2., 3., 0., 0., 0."}));
    keywords.Append(keyword("beamgeneralsection", {{"elset", "B"}, {"section", "RECT"}},
                            {"0.1, 0.2", "1., 0., 0."}));
    if (withSurface)
        keywords.Append(keyword("surface", {{"name", "CUT"}, {"type", "CUTTINGSURFACE"}},
                                {"1., 0., 0., 1., 0., 0."}));
    keywords.Append(keyword("kinematiccoupling", {{"refnode", "5"}}, {"1, 1"}));
    keywords.Append(
        keyword("pre-tensionsection", {{"element", "5"}, {"node", "1"}}, {"1., 0., 0."}));
    return keywords;
}

cow_List<inp_Keyword> makeTree(bool withSurface) {
    cow_List<inp_Keyword> instances;
    cow_List<inp_Keyword> const body = geometry(withSurface);
    for (int i = 0; i < kInstances; ++i) {
        std::string name = "I";
        name += std::to_string(i);
        inp_Keyword instance = keyword("instance", {{"name", name.c_str()}, {"part", "P"}}, {});
        instance.SetSuboptions(body);
        instances.Append(instance);
        instances.Append(inp_Keyword{cow_String("endinstance")});
    }
    instances.Append(inp_Keyword{cow_String("endassembly")});
    inp_Keyword assembly = keyword("assembly", {{"name", "A"}}, {});
    assembly.SetSuboptions(instances);
    cow_List<inp_Keyword> result;
    result.Append(assembly);
    return result;
}

cow_List<inp_Keyword> const& tree(bool withSurface) {
    static cow_List<inp_Keyword> const with = makeTree(true);
    static cow_List<inp_Keyword> const without = makeTree(false);
    return withSurface ? with : without;
}

inpM_InstanceMap<gsl_Matrix> transforms(bool moved) {
    inpM_InstanceMap<gsl_Matrix> map;
    for (int i = 0; i < kInstances; ++i) {
        gsl_Matrix matrix;
        if (moved) {
            matrix = gsl_Matrix::AxisRotation({0, 0, 0}, {0, 0, 1}, std::numbers::pi / 6 + i);
            matrix.SetTranslation(i, 0, 0);
        }
        std::string name = "I";
        name += std::to_string(i);
        map.Insert(cow_String(name.c_str()), matrix);
    }
    return map;
}

void BM_TransformationWalk(benchmark::State& state, bool moved, bool withSurface) {
    inpM_InstanceMap<gsl_Matrix> const matrices = transforms(moved);
    for (auto _ : state) {
        cow_List<inp_Keyword> model = tree(withSurface);
        inpM_SetMap nodeSets;
        inp_TransformationVisitor walk(matrices, cow_List<int>(), nodeSets, inpM_IdMap(), false,
                                       inp_CoordMap(), inpM_InstanceMap<inp_MapInt2Element>(),
                                       inpM_SetMap(), inp_ModelParameters());
        walk.VisitList(model);
        benchmark::DoNotOptimize(model);
    }
}

// The floor of any walk: visiting every keyword and doing nothing.
class EmptyWalk : public inp_Visitor {
  public:
    void DefaultAction(inp_Keyword&) override {}
};

void BM_EmptyWalk(benchmark::State& state) {
    for (auto _ : state) {
        cow_List<inp_Keyword> model = tree(true);
        EmptyWalk walk;
        walk.VisitList(model);
        benchmark::DoNotOptimize(model);
    }
}

inp_InputFile const& expandedFlatDeck() {
    static inp_InputFile const input = [] {
        inp_DeckLayout layout;
        layout.nx = layout.ny = layout.nz = 100;
        std::string const path =
            (std::filesystem::temp_directory_path() / "fedeck_bench_transformation.inp").string();
        inp_WriteDeck(layout, path);
        inp_InputFile file;
        file.Parse(path.c_str());
        file.ExpandKeywords();
        std::remove(path.c_str());
        return file;
    }();
    return input;
}

void BM_SetModelParameters(benchmark::State& state) {
    inp_InputFile const& expanded = expandedFlatDeck();
    for (auto _ : state) {
        inp_InputFile input = expanded;
        input.setModelParameters();
        benchmark::DoNotOptimize(input);
    }
}

}  // namespace

BENCHMARK_CAPTURE(BM_TransformationWalk, moved_100_instances, true, true)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_TransformationWalk, unmoved_100_instances, false, true)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_TransformationWalk, unmoved_without_surfaces, false, false)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EmptyWalk)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SetModelParameters)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_MAIN();
