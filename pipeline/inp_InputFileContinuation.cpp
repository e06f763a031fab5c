// What jobs that continue or copy an earlier model need of the deck: that
// its import is written correctly, the copies of a symmetric model
// generation in the id maps, and for an import job only the sets its
// *IMPORT keywords name.

#include "continuation/inp_ImportValidityVisitor.h"
#include "continuation/inp_RestartSetVisitor.h"
#include "continuation/inp_RestartSurfaceVisitor.h"
#include "mesh/inp_Utils.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// The segments of a revolved model: the second item of each line from the
// third on, a line without one, or with one of 1 or less, counting 1.
int segmentsOf(inp_Keyword const& generation) {
    inp_DataArray const& data = generation.Data();
    if (data.Rows() < 3) return 1;
    int segments = 0;
    for (int row = 2; row < data.Rows(); ++row) {
        bool const given = data.Cols(row) > 1 && data.HasValue(row, 1) &&
                           data.Type(row, 1) == inp_Types::inp_INTEGER;
        int const value = given ? data.AsInt(row, 1) : 1;
        segments += value > 1 ? value : 1;
    }
    return segments;
}

// A name that an import asks for and the earlier model lacks imports
// nothing; the user hears of it.
void warnOfUnknownSets(inp_Keyword const& keyword, cow_List<cow_String> const& names,
                       inpM_SetMap const& sets) {
    cow_String scope;
    for (cow_String const& name : names)
        if (!sets.SearchAssemblyAndInstancesForSet(name, scope))
            thr_ThreadSingleton<wip_WIP>::Instance().Warning(inp_Utils::MessageInKeyword(
                keyword,
                atr("The set %1$s to be imported does not exist in the original analysis.", name)));
}

// The name of the earlier model's assembly: that of its first *ASSEMBLY
// (a flat model's generated one among them).
cow_String assemblyNameOf(inp_InputFile const& deck) {
    for (inp_Keyword const& keyword : deck.Keywords())
        if (keyword.Is(inp_kw_Assembly)) return keyword.GetParameterAsString("name", cow_String());
    return cow_String();
}

// Whether the import validity walk may have something to say about the
// keyword or what lies below it: an assembly or part (import parameters), an
// instance (which may open an imported component), an *IMPORT. Everything
// else the walk passes by unless a component is open, which only those open.
bool mayConcernImport(inp_Keyword const& keyword) {
    switch (keyword.Keyword()) {
        case inp_kw_Assembly:
        case inp_kw_Part:
        case inp_kw_Instance:
        case inp_kw_Import:
            return true;
        default:
            return !keyword.Suboptions().IsEmpty();
    }
}

}  // namespace

// `continuation`: the job has (or the caller vouches for) the part map of an
// earlier job, which an import needs.
void inp_InputFile::CheckImportValidity(bool continuation) {
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    bool import = false;
    bool mapSolution = false;
    bool walkMayFindSomething = false;
    for (inp_Keyword const& keyword : m_keywords) {
        import |= keyword.Is(inp_kw_Import);
        mapSolution |= keyword.Is(inp_kw_MapSolution);
        walkMayFindSomething |= mayConcernImport(keyword);
    }
    if (import && mapSolution)
        sink.Error("*IMPORT and *MAP SOLUTION (rezoning) cannot be used in the same analysis. ",
                   wip_LEVEL1);
    if (import && !continuation && !m_restartJob)
        sink.Error(
            "An import analysis requires the part map from a previous job. Please use the "
            "-oldpartmap command line option to specify it.",
            wip_LEVEL1);
    // The walk only speaks, or blanks a keyword, once it has met one of the
    // keywords that write or open an import; a deck without them is spared it.
    if (!walkMayFindSomething) return;
    inp_ImportValidityVisitor validity;
    validity.VisitListAndReport(m_keywords);
}

// A plain restart adds step data only; new nodes or elements, an import, a
// symmetric model generation or a rezoning make it more, which a model in
// parts cannot take.
void inp_InputFile::ClassifyRestartJob() {
    m_plainRestart = true;
    m_symmetricModelGeneration = false;
    m_mapSolution = false;
    m_importJob = false;
    for (inp_Keyword const& keyword : m_keywords) {
        if (keyword.Is(inp_kw_SymmetricModelGeneration)) {
            m_symmetricModelGeneration = true;
        } else if (keyword.Is(inp_kw_MapSolution)) {
            m_mapSolution = true;
        } else if (keyword.Is(inp_kw_Import)) {
            m_importJob = true;
        } else if (!keyword.Is(inp_kw_Node) && !keyword.Is(inp_kw_Element)) {
            continue;
        }
        m_plainRestart = false;
    }
    if (m_restartJob && !m_plainRestart && m_partsAndAssembly)
        thr_ThreadSingleton<wip_WIP>::Instance().Error(
            "Features such as new nodes/elements, IMPORT, SYMMETRIC MODEL GENERATION, MAP SOLUTION "
            "are detected in a continuation analysis where the original model is defined in terms "
            "of an assembly of part instances. This is not allowed. ",
            wip_LEVEL1);
}

// The flag that ClassifyRestartJob reads to refuse more than step data for
// a model in parts is the one the restart deck itself set in expansion: the
// part map's own flag is taken only afterwards (step 6 below), so a restart
// deck without *PART of its own is classified as for a flat model.
void inp_InputFile::InheritPartMap(inpM_PartMap& partMap, bool atelierCompatible) {
    m_restartJob = true;
    ClassifyRestartJob();
    if (m_symmetricModelGeneration) partMap.RemoveRedundantInternalSets();
    if (m_importJob) m_partModelAllowed = false;
    if (!m_mapSolution) inheritModel(partMap);
    if (m_importJob) DeleteSetsWhichShouldNotBeImported();
    m_fakePartModel = partMap.IsFakePartModel();
    m_partsAndAssembly = partMap.FeatureEnhanced();
    CheckImportValidity(false);
    if (m_plainRestart) return;
    FakeEnhancements(atelierCompatible);
    Reorganize();
    ExtractAssemblyMaps(atelierCompatible);
}

// The sets and surfaces of a model in parts go into the numbering of the
// earlier job's id maps; ids those maps lack stay as they are.
void inp_InputFile::inheritModel(inpM_PartMap const& partMap) {
    m_assemblyNsets = partMap.ConstGetNsets();
    m_assemblyElsets = partMap.ConstGetElsets();
    m_assemblySurfaces = partMap.ConstGetSurfaceMap();
    m_instancePartNames = partMap.ConstGetInstancePartNames();
    m_nodeIdMap = partMap.ConstGetNodeIdMap();
    m_elementIdMap = partMap.ConstGetElemIdMap();
    if (!partMap.FeatureEnhanced()) return;
    m_assemblySurfaces.Renumber(m_nodeIdMap, m_elementIdMap, true);
    m_assemblyElsets.Renumber(m_elementIdMap, true);
    m_assemblyNsets.Renumber(m_nodeIdMap, true);
}

void inp_InputFile::AddRestartSetsAndSurfaces(inpM_SetMap const& nodeSets,
                                              inpM_SetMap const& elementSets,
                                              inpM_SurfaceMap const& surfaces) {
    m_newNsets.Merge(nodeSets);
    m_newElsets.Merge(elementSets);
    m_newSurfaces.Merge(surfaces);
    m_assemblyNsets.Merge(nodeSets);
    m_assemblyElsets.Merge(elementSets);
    m_assemblySurfaces.Merge(surfaces);
}

inpM_PartMap inp_InputFile::MakePartMap() const {
    inpM_PartMap partMap;
    partMap.GetNsets() = m_assemblyNsets;
    partMap.GetElsets() = m_assemblyElsets;
    partMap.GetSurfaceMap() = m_assemblySurfaces;
    partMap.GetNodeIdMap() = m_nodeIdMap;
    partMap.GetElemIdMap() = m_elementIdMap;
    partMap.GetInstancePartNames() = m_instancePartNames;
    partMap.SetRenumbered(!m_nodeIdMap.IsEmpty() || !m_elementIdMap.IsEmpty());
    partMap.SetFeatureEnhanced(m_partsAndAssembly);
    partMap.SetFakePartModel(m_fakePartModel);
    return partMap;
}

void inp_InputFile::importValidityStage() {
    CheckImportValidity(m_options.atelierCompatible);
}

void inp_InputFile::AdjustMapsForSymModelGen() {
    int elementOffset = m_elementIdMap.LargestId();
    int nodeOffset = m_nodeIdMap.LargestId();
    inp_Keyword const* generation = nullptr;
    for (inp_Keyword const& keyword : m_keywords) {
        if (!keyword.Is(inp_kw_SymmetricModelGeneration)) continue;
        generation = &keyword;
        break;
    }
    if (generation == nullptr) return;
    elementOffset = generation->GetParameterAsInt("elementoffset", elementOffset);
    nodeOffset = generation->GetParameterAsInt("nodeoffset", nodeOffset);
    if (generation->HasParameter("revolve")) {
        AdjustMapsRevolveModel(elementOffset, nodeOffset, segmentsOf(*generation));
    } else {
        AdjustMapsReflectModel(elementOffset, nodeOffset);
    }
}

void inp_InputFile::AdjustMapsReflectModel(int elementOffset, int nodeOffset) {
    m_elementIdMap.InsertDuplicateOffsetIds(elementOffset, 1);
    m_nodeIdMap.InsertDuplicateOffsetIds(nodeOffset, 1);
}

// The nodes of the last segment are a layer of their own: one copy more.
void inp_InputFile::AdjustMapsRevolveModel(int elementOffset, int nodeOffset, int segments) {
    m_elementIdMap.InsertDuplicateOffsetIds(elementOffset, segments - 1);
    m_nodeIdMap.InsertDuplicateOffsetIds(nodeOffset, segments);
}

cow_List<cow_String> inp_InputFile::GatherSetNamesFromData(inp_DataArray const& data) {
    cow_List<cow_String> names;
    for (int row = 0; row < data.Rows(); ++row)
        for (int column = 0; column < data.Cols(row); ++column)
            if (data.Type(row, column) == inp_Types::inp_STRING)
                names.Append(data.AsString(row, column));
    return names;
}

// The keywords stay in the list whatever the warnings say; only the sets go.
void inp_InputFile::DeleteSetsWhichShouldNotBeImported() {
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    cow_List<cow_String> keptNodeSets;
    cow_List<cow_String> keptElementSets;
    bool nodeSetsNamed = false;
    bool elementSetsNamed = false;
    for (inp_Keyword const& keyword : m_keywords) {
        bool const nodes = keyword.Is(inp_kw_ImportNset);
        bool const elements = keyword.Is(inp_kw_ImportElset);
        if (!nodes && !elements && !keyword.Is(inp_kw_Import)) continue;
        cow_List<cow_String> const names = GatherSetNamesFromData(keyword.Data());
        warnOfUnknownSets(keyword, names, nodes ? m_assemblyNsets : m_assemblyElsets);
        if (!nodes && !elements) {
            for (cow_String const& name : names) keptElementSets.Append(name);
            continue;
        }
        if (names.IsEmpty()) {
            sink.Warning(inp_Utils::MessageInKeyword(
                keyword, nodes ? "This keyword is removed because no NSET name is provided in "
                                 "the following line."
                               : "This keyword is removed because no ELSET name is provided in "
                                 "the following line."));
            continue;
        }
        (nodes ? nodeSetsNamed : elementSetsNamed) = true;
        for (cow_String const& name : names) (nodes ? keptNodeSets : keptElementSets).Append(name);
    }
    if (nodeSetsNamed) m_assemblyNsets.DeleteAllSetsExceptThoseListed(keptNodeSets);
    if (elementSetsNamed) m_assemblyElsets.DeleteAllSetsExceptThoseListed(keptElementSets);
}

void inp_InputFile::ReadRestartSetsAndSurfaces(inp_InputFile const& earlier) {
    if (!m_plainRestart) return;
    inpM_PartMap const partMap = earlier.MakePartMap();
    cow_String const assembly = assemblyNameOf(earlier);
    bool const partsModel = partMap.FeatureEnhanced();

    inp_RestartSetVisitor nodeSets(inp_RestartSetVisitor::Kind::NodeSets, partMap.ConstGetNsets(),
                                   assembly, partsModel, partMap.ConstGetNodeIdMap());
    nodeSets.setInstancePartNames(partMap.ConstGetInstancePartNames());
    nodeSets.VisitListAndReport(m_keywords);
    inp_RestartSetVisitor elementSets(inp_RestartSetVisitor::Kind::ElementSets,
                                      partMap.ConstGetElsets(), assembly, partsModel,
                                      partMap.ConstGetElemIdMap());
    elementSets.setInstancePartNames(partMap.ConstGetInstancePartNames());
    elementSets.VisitListAndReport(m_keywords);

    // New surfaces may be made of the new sets as well as the old.
    inpM_SetMap nodes = partMap.ConstGetNsets();
    nodes.Merge(nodeSets.NewSets());
    inpM_SetMap elements = partMap.ConstGetElsets();
    elements.Merge(elementSets.NewSets());
    inp_RestartSurfaceVisitor surfaces(partMap.ConstGetSurfaceMap(), assembly, partsModel, nodes,
                                       elements, earlier.AssemblyElementMap());
    surfaces.setInstancePartNames(partMap.ConstGetInstancePartNames());
    surfaces.VisitListAndReport(m_keywords);
    AddRestartSetsAndSurfaces(nodeSets.NewSets(), elementSets.NewSets(), surfaces.NewSurfaces());
}
