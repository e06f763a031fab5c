// The surface visitor on surfaces of a million members, the maps put in by
// hand rather than read from a deck:
//
// - ElementFacesFromSet: *SURFACE, NAME=S with the one row "ALL, S1" in a
//   part whose element set ALL holds 1,000,000 elements.
// - NodesFromLabels: a node surface of 1,000,000 rows "label, area", the
//   rows of one area gathered into one piece.
// - CropElementFaces: a surface of 200,000 hexahedra in a row cropped to the
//   half of them that a box holds.
//
// Building and releasing the visitor's maps is not timed.

#include <benchmark/benchmark.h>

#include <optional>
#include <string>

#include "deck/inp_Keyword.h"
#include "mesh/inp_SurfaceVisitor.h"

namespace {

constexpr int kMillion = 1000000;
constexpr int kHexahedra = 200000;

// Reads every surface inside the part P.
class PartSurfaces : public inp_SurfaceVisitor {
  public:
    PartSurfaces(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                 inpM_InstanceMap<inp_MapInt2Element> const& elements, inp_CoordMap const& coords)
        : inp_SurfaceVisitor(nodeSets, elementSets, elements, coords) {
        m_partName = "P";
    }
    void VisitAnalyticalSurface(inp_Keyword&) override {}
    void VisitSurfaceDefinition(inp_Keyword& keyword) override {
        CreateInstanceLevelSurface(keyword);
    }
};

inp_Keyword surfaceKeyword(char const* name, char const* type) {
    inp_Keyword keyword(inp_kw_Surface);
    keyword.SetParameter("name", inp_Item(name));
    if (type != nullptr) keyword.SetParameter("type", inp_Item(type));
    return keyword;
}

cow_List<int> range(int first, int count) {
    cow_List<int> ids;
    ids.Reserve(count);
    for (int id = first; id < first + count; ++id) ids.Append(id);
    return ids;
}

// Times fresh visitors reading `keyword` into P; the members of the surface
// S they store are the items processed.
void timeSurface(benchmark::State& state, inp_Keyword& keyword, inpM_SetMap const& nodeSets,
                 inpM_SetMap const& elementSets,
                 inpM_InstanceMap<inp_MapInt2Element> const& elements, inp_CoordMap const& coords,
                 char const* name) {
    std::optional<PartSurfaces> visitor;
    int members = 0;
    for (auto _ : state) {
        state.PauseTiming();
        visitor.reset();
        visitor.emplace(nodeSets, elementSets, elements, coords);
        state.ResumeTiming();
        visitor->VisitSurface(keyword);
        inpM_PartInstanceSurface const& surface =
            visitor->ConstGetSurfaceMap().ConstGetPartInstanceSurface("P", name).ConstGet();
        members = surface.ConstGetNodeAreaList().Size();
        surface.ConstGetFaceIdElementIdsMap().ForEachSorted(
            [&](cow_String const&, cow_List<int> const& ids) { members += ids.Length(); });
    }
    state.counters["members"] = members;
    state.SetItemsProcessed(state.iterations() * members);
}

void BM_ElementFacesFromSet(benchmark::State& state) {
    inpM_SetMap elementSets;
    elementSets.InsertNestedSet("P", "ALL", CreateSet(range(1, kMillion), false, false));
    inp_Keyword keyword = surfaceKeyword("S", nullptr);
    keyword.Data().Append("ALL, S1");
    timeSurface(state, keyword, inpM_SetMap(), elementSets, inpM_InstanceMap<inp_MapInt2Element>(),
                inp_CoordMap(), "S");
}
BENCHMARK(BM_ElementFacesFromSet)->Unit(benchmark::kMillisecond);

void BM_NodesFromLabels(benchmark::State& state) {
    inp_Keyword keyword = surfaceKeyword("S", "NODE");
    for (int label = 1; label <= kMillion; ++label)
        keyword.Data().Append((std::to_string(label) + ", 2.5").c_str());
    timeSurface(state, keyword, inpM_SetMap(), inpM_SetMap(),
                inpM_InstanceMap<inp_MapInt2Element>(), inp_CoordMap(), "S");
}
BENCHMARK(BM_NodesFromLabels)->Unit(benchmark::kMillisecond);

// Hexahedron e spans x from e - 1 to e; the box holds x up to kHexahedra / 2.
void BM_CropElementFaces(benchmark::State& state) {
    inp_CoordMap part;
    for (int i = 0; i <= kHexahedra; ++i) {
        int const first = 4 * i + 1;
        part.Insert(first, inp_Coord(i, 0, 0));
        part.Insert(first + 1, inp_Coord(i, 1, 0));
        part.Insert(first + 2, inp_Coord(i, 1, 1));
        part.Insert(first + 3, inp_Coord(i, 0, 1));
    }
    inp_CoordMap coords;
    coords.Insert("P", part);
    inp_MapInt2Element table;
    for (int e = 1; e <= kHexahedra; ++e) {
        int const a = 4 * (e - 1) + 1;
        int const b = a + 4;
        int const nodes[8] = {a, b, b + 1, a + 1, a + 3, b + 3, b + 2, a + 2};
        table.Insert(e, inp_Element("C3D8", 8, nodes, 8, 0, 0));
    }
    inpM_InstanceMap<inp_MapInt2Element> elements;
    elements.Insert("P", table);

    inpM_SetMap elementSets;
    elementSets.InsertNestedSet("P", "ALL", CreateSet(range(1, kHexahedra), false, false));
    inp_Keyword all = surfaceKeyword("SRC", nullptr);
    all.Data().Append("ALL, S3");

    inp_Keyword keyword = surfaceKeyword("S", nullptr);
    keyword.SetParameter("crop", inp_Item());
    keyword.Data().Append("SRC");
    keyword.Data().Append(
        ("-0.5, -0.5, -0.5, " + std::to_string(kHexahedra / 2) + ".5, 1.5, 1.5").c_str());

    std::optional<PartSurfaces> visitor;
    int members = 0;
    for (auto _ : state) {
        state.PauseTiming();
        visitor.reset();
        visitor.emplace(inpM_SetMap(), elementSets, elements, coords);
        // The source surface, as an earlier keyword would have left it.
        visitor->VisitSurface(all);
        state.ResumeTiming();
        visitor->VisitSurface(keyword);
        members = visitor->ConstGetSurfaceMap()
                      .ConstGetPartInstanceSurface("P", "S")
                      ->ConstGetFaceIdElementIdsMap()
                      .ConstGet("S3")
                      .Length();
    }
    state.counters["kept"] = members;
    state.SetItemsProcessed(state.iterations() * kHexahedra);
}
BENCHMARK(BM_CropElementFaces)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
