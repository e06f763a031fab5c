// The part inventory over big parts: the classification of a part of a
// million elements with the coverage scan of its rigid body, the same for
// rigid elements with the *RIGID SURFACE walk, and CheckOutOfPlace over ten
// thousand parts, each with an instance.
#include <benchmark/benchmark.h>

#include "assembly/inp_PartInventoryVisitor.h"
#include "support/inpM_Set.h"

namespace {

constexpr int kElements = 1000000;

struct BigPart {
    inpM_InstanceMap<inp_MapInt2Element> parts;
    inpM_SetMap sets;
    cow_List<inp_Keyword> keywords;
    BigPart(char const* type, bool pointTail) {
        inp_MapInt2Element map;
        int const nodes[8] = {1, 2, 3, 4, 5, 6, 7, 8};
        cow_String const solid(type), point("MASS");
        for (int i = 1; i <= kElements; ++i) {
            bool const isPoint = pointTail && i > kElements - 1000;
            map.Insert(i, inp_Element(isPoint ? point : solid, isPoint ? 1 : 3, nodes,
                                      isPoint ? 1 : 3, 0, 0));
        }
        parts.Insert("P", map);
        cow_List<int> ids;
        ids.Reserve(kElements);
        for (int i = 1; i <= kElements - (pointTail ? 1000 : 0); ++i) ids.Append(i);
        sets.InsertNestedSet("P", "S", CreateSet(ids, false, false));
        inp_Keyword part(inp_kw_Part);
        part.SetParameter("name", inp_Item(cow_String("P")));
        inp_Keyword body(inp_kw_RigidBody);
        body.SetParameter("elset", inp_Item(cow_String("S")));
        body.SetParameter("refnode", inp_Item(cow_String("1")));
        inp_Keyword surface(inp_kw_RigidSurface);
        surface.SetParameter("elset", inp_Item(cow_String("S")));
        surface.SetParameter("type", inp_Item(cow_String("SEGMENTS")));
        part.GetSuboptions().Append(pointTail ? body : surface);
        keywords.Append(part);
        keywords.Append(inp_Keyword(inp_kw_EndPart));
    }
};

void walk(benchmark::State& state, BigPart& deck) {
    for (auto _ : state) {
        inp_PartInventoryVisitor inventory(deck.parts, {}, deck.sets, {});
        inventory.VisitList(deck.keywords);
        inventory.CheckViolations();
        benchmark::DoNotOptimize(inventory.GetErrorList().Length());
        if (inventory.IsError()) state.SkipWithError("unexpected diagnostic");
    }
    state.SetItemsProcessed(state.iterations() * kElements);
}

// Classifies a million elements, then scans them for point elements left
// out of the rigid body's set.
void BM_RigidBodyCoverageMillionElements(benchmark::State& state) {
    static BigPart deck("C3D8R", true);
    walk(state, deck);
}
BENCHMARK(BM_RigidBodyCoverageMillionElements)->Unit(benchmark::kMillisecond);

// Classifies a million IRS elements and walks the *RIGID SURFACE set of all.
void BM_RigidSurfaceMillionElements(benchmark::State& state) {
    static BigPart deck("IRS21A", false);
    walk(state, deck);
}
BENCHMARK(BM_RigidSurfaceMillionElements)->Unit(benchmark::kMillisecond);

// CheckOutOfPlace over 10,000 parts, each with an instance.
void BM_OutOfPlaceTenThousandParts(benchmark::State& state) {
    cow_List<inp_Keyword> keywords;
    inp_Keyword assembly(inp_kw_Assembly);
    assembly.SetParameter("name", inp_Item(cow_String("A")));
    for (int i = 0; i < 10000; ++i) {
        cow_String const name = cow_String("P") + cow_String::FromInt(i);
        inp_Keyword part(inp_kw_Part);
        part.SetParameter("name", inp_Item(name));
        part.GetSuboptions().Append(inp_Keyword(inp_kw_Node));
        keywords.Append(part);
        keywords.Append(inp_Keyword(inp_kw_EndPart));
        inp_Keyword instance(inp_kw_Instance);
        instance.SetParameter("name", inp_Item(cow_String("I") + cow_String::FromInt(i)));
        instance.SetParameter("part", inp_Item(name));
        assembly.GetSuboptions().Append(instance);
        assembly.GetSuboptions().Append(inp_Keyword(inp_kw_EndInstance));
    }
    keywords.Append(assembly);
    for (auto _ : state) {
        inp_PartInventoryVisitor inventory({}, {}, {}, {});
        inventory.CheckOutOfPlace(keywords);
        if (inventory.IsError()) state.SkipWithError("unexpected diagnostic");
    }
    state.SetItemsProcessed(state.iterations() * 20000);
}
BENCHMARK(BM_OutOfPlaceTenThousandParts)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
