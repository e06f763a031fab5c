// The stage that gives a flat deck its generated parts: the flat mesh is read
// under the pseudo part "FAKE", completed with the nodes the deck names but
// never defines, cut into parts by the fake part visitor, numbered, and its
// sets and references moved to the part or the assembly.

#include <memory>

#include "assembly/inp_FakePartMeshVisitors.h"
#include "assembly/inp_FakePartSetAssignVisitors.h"
#include "assembly/inp_FakePartSetVisitor.h"
#include "assembly/inp_FakePartVisitor.h"
#include "assembly/inp_FakePartVisitors.h"
#include "assembly/inp_UndefinedNodeVisitor.h"
#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_NodeDataArrayImpl.h"
#include "mesh/inp_MapInt2Coord.h"
#include "mesh/inp_NodeGenerationVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_StageTime.h"

namespace {

// The fake part visitor of the reader at hand: the converter's writes the
// mesh out, the pre-processor's cuts rigid and Eulerian parts, the solver's
// keeps one part.
std::unique_ptr<inp_FakePartVisitor> makeFakePartVisitor(
    bool inConverter, bool atelierCompatible, inp_CoordMap const& coordinates,
    inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elementSets,
    inpM_SetMap const& nodeSets, bool symmetricGeneration) {
    if (inConverter)
        return std::make_unique<inp_FullFakePartVisitor>(coordinates, elements, elementSets,
                                                         nodeSets, symmetricGeneration);
    if (atelierCompatible)
        return std::make_unique<inp_FakePartVisitor>(coordinates, elements, elementSets, nodeSets,
                                                     symmetricGeneration);
    return std::make_unique<inp_SimpleFakePartVisitor>(coordinates, elements, elementSets, nodeSets,
                                                       symmetricGeneration);
}

// Once a flat map holds what the *NODE or *ELEMENT keywords said, their
// data are not read again: they go at once, so that the deck's data and
// its maps are held together no longer than one map's making.
void releaseFlatMeshData(cow_List<inp_Keyword>& keywords, inp_KeywordEnm kind) {
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword const& keyword = keywords.ConstGet(i);
        if (!keyword.Is(kind) || keyword.Data().Rows() == 0) continue;
        inp_DataArray const empty(kind == inp_kw_Node
                                      ? static_cast<inp_DataArrayImpl*>(new inp_NodeDataArrayImpl())
                                      : new inp_ElementDataArrayImpl());
        keywords.Get(i).SetData(empty);
    }
}

// The numbering of the nodes and elements of the generated model: the
// labels of each part in ascending order, part after part. Only the id maps
// are made; the maps themselves keep the deck's labels.
// What Renumber(1, false) of a copy gives, without the copy's table of
// current labels, which nobody would read: the part maps of a flat deck are
// fresh, so each level's stored labels are its current ones, ascending.
void numberLevel(inp_CoordMap const& level, int& next, inpM_IdMap& result) {
    inp_MapInt2Coord const nodes = level.ConstGet();
    for (inp_MapInt2CoordSIT it(nodes); it.NotDone(); it.Next())
        result.Insert(it.CurrentKey(), next++);
    for (cow_String const& name : level.Instances()) {
        inpM_IdMap nested;
        numberLevel(level.ConstGet(name), next, nested);
        result.Insert(name, nested);
    }
}

inpM_IdMap numberingOf(inp_CoordMap const& coordinates) {
    inpM_IdMap result;
    int next = 1;
    numberLevel(coordinates, next, result);
    return result;
}

inpM_IdMap numberingOf(inpM_InstanceMap<inp_MapInt2Element> const& elements) {
    inpM_IdMap result;
    int next = 1;
    for (cow_String const& part : elements.Instances()) {
        inpM_IdMap nested;
        if (elements.ConstGetMap(part).HasValue()) {
            for (inp_MapInt2ElementSIT it(elements.ConstGet(part)); it.NotDone(); it.Next())
                nested.Insert(it.CurrentKey(), next++);
        }
        result.Insert(part, nested);
    }
    return result;
}

// A continuation job keeps the numbering of the job it goes on from: the
// ids that job numbered keep their numbers, and those the new deck adds
// are numbered after the largest of the whole map, in the order of
// `fresh`.
inpM_IdMap continuedNumbering(inpM_IdMap const& inherited, inpM_IdMap const& fresh) {
    inpM_IdMap result = inherited;
    int next = inherited.LargestId() + 1;
    for (cow_String const& part : fresh.Instances()) {
        inpM_IdMap nested = inherited.IsMember(part) ? inherited.ConstGet(part) : inpM_IdMap();
        for (cow_IntTableIntIT it(fresh.ConstGet(part).ConstGetOldToNew()); it.NotDone(); it.Next())
            if (!nested.IsMember(it.CurrentKey())) nested.Insert(it.CurrentKey(), next++);
        result.Insert(part, nested);
    }
    return result;
}

// The levels of `sets` that are parts of `coordinates` or `elements`, and
// its own level. A continuation job's set assignment also meets the earlier
// job's sets, kept by instance; those stay with the assembly.
inpM_SetMap partLevelsOf(inpM_SetMap const& sets, inp_CoordMap const& coordinates,
                         inpM_InstanceMap<inp_MapInt2Element> const& elements) {
    inpM_SetMap parts;
    sets.ConstGetSetMap().ForEachSorted(
        [&parts](cow_String const& name, inpM_SetHandle const& set) {
            parts.InsertSet(name, set);
        });
    for (cow_String const& level : sets.Instances())
        if (coordinates.IsMember(level) || elements.IsMember(level))
            parts.InsertNestedSetMap(level, sets.ConstGetNestedSetMap(level));
    return parts;
}

}  // namespace

void inp_InputFile::FakeEnhancements(bool atelierCompatible) {
    omi_Timer timer;
    timer.Start();
    bool const generate = !(m_restartJob && (m_importJob || m_symmetricModelGeneration));
    RemovePeriods(atelierCompatible);

    inp_FakePartElementVisitor elements(m_assemblyElsets, generate);
    elements.setAtelierCompatible(atelierCompatible);
    elements.setConsumeElementText(!atelierCompatible);  // released below in any case
    elements.VisitListAndReport(m_keywords);
    if (!atelierCompatible) releaseFlatMeshData(m_keywords, inp_kw_Element);

    inp_FakePartNodeVisitor nodes(elements.ConstGetElementMap(), elements.ConstGetSetMap(),
                                  m_assemblyNsets, generate);
    nodes.setAtelierCompatible(atelierCompatible);
    nodes.VisitListAndReport(m_keywords);
    if (!atelierCompatible) releaseFlatMeshData(m_keywords, inp_kw_Node);

    inp_NodeGenerationVisitor implicitNodes(nodes.ConstGetCoordMap(), elements.ConstGetElementMap(),
                                            elements.ConstGetSetMap(), generate, m_restartJob, true,
                                            cow_String(inp_Types::fakeName()));
    implicitNodes.setAtelierCompatible(atelierCompatible);
    implicitNodes.VisitListAndReport(m_keywords);

    inp_CoordMap coordinates = implicitNodes.ConstGetCoordMap();
    if (!m_symmetricModelGeneration) {
        inp_UndefinedNodeVisitor undefinedNodes(coordinates, nodes.ConstGetSetMap(), true);
        undefinedNodes.setAtelierCompatible(atelierCompatible);
        undefinedNodes.VisitList(m_keywords);
        if (m_restartJob) undefinedNodes.AddUndefinedSetNodes(nodes.ConstGetSetMap());
        undefinedNodes.AddUndefinedElementNodes(elements.ConstGetElementMap());
        undefinedNodes.Report();
        coordinates = undefinedNodes.ConstGetCoordMap();
    }

    std::unique_ptr<inp_FakePartVisitor> fakePart = makeFakePartVisitor(
        m_inOdbConverter, atelierCompatible, coordinates, elements.ConstGetElementMap(),
        elements.ConstGetSetMap(), nodes.ConstGetSetMap(), m_symmetricModelGeneration);
    fakePart->SetNodesComplete(!m_symmetricModelGeneration);
    fakePart->VisitList(m_keywords);
    m_keywords = fakePart->Keywords();
    fakePart->Report();

    if (m_restartJob) {
        MergeInstancePartNames(m_instancePartNames, fakePart->ConstGetInstancePartNames());
    } else {
        m_instancePartNames = fakePart->ConstGetInstancePartNames();
    }
    m_partCoordMap = fakePart->ConstGetCoordMap();
    m_partElementMap = fakePart->ConstGetElementMap();
    m_partSurfaces = fakePart->ConstGetPartSurfaces();
    fakePart.reset();

    if (m_restartJob) {
        m_nodeIdMap = continuedNumbering(m_nodeIdMap, numberingOf(m_partCoordMap));
        m_elementIdMap = continuedNumbering(m_elementIdMap, numberingOf(m_partElementMap));
    } else {
        m_nodeIdMap = numberingOf(m_partCoordMap);
        m_elementIdMap = numberingOf(m_partElementMap);
    }

    std::unique_ptr<inp_FakePartSetAssignVisitor> assign;
    if (atelierCompatible) {
        assign = std::make_unique<inp_FakePartSetAssignVisitor>(
            m_partElementMap, m_partCoordMap, m_nodeIdMap, m_elementIdMap, nodes.ConstGetSetMap(),
            elements.ConstGetSetMap(), m_modelParameters);
    } else {
        assign = std::make_unique<inp_SimpleFakeAssignVisitor>(
            m_partElementMap, m_partCoordMap, m_nodeIdMap, m_elementIdMap, nodes.ConstGetSetMap(),
            elements.ConstGetSetMap(), m_modelParameters);
    }
    assign->setAtelierCompatible(atelierCompatible);
    assign->VisitList(m_keywords);
    assign->Keywords(m_keywords);
    m_partNsets = assign->ConstGetNsetMap();
    m_partElsets = assign->ConstGetElsetMap();
    if (m_restartJob) {
        m_partNsets = partLevelsOf(m_partNsets, m_partCoordMap, m_partElementMap);
        m_partElsets = partLevelsOf(m_partElsets, m_partCoordMap, m_partElementMap);
    }
    assign->Report();
    assign.reset();

    if (!m_restartJob) {
        inp_FakePartSetVisitor references(
            m_nodeIdMap, m_elementIdMap, m_partNsets, m_partElsets,
            inp_FakePartSetVisitor::Options::For(m_modelParameters, false));
        references.setAtelierCompatible(atelierCompatible);
        references.VisitListAndReport(m_keywords);
        inp_FakePartSurfaceVisitor surfaces(m_partSurfaces);
        surfaces.VisitListAndReport(m_keywords);
    }
    m_fakePartModel = true;
    inp_PrintStageTime("Fake Enhancements - Elapsed time: ", timer);
}

void inp_InputFile::MergeInstancePartNames(inpM_InstanceMap<cow_String>& target,
                                           inpM_InstanceMap<cow_String> const& source) {
    for (cow_String const& instance : source.Instances())
        if (!target.IsMember(instance)) target.Insert(instance, source.ConstGet(instance));
}

// A flat deck on a road that goes past the organizer is organized by this
// stage, once it has been rewritten as parts: the organize stage leaves it
// flat then (see organizeStage). On a road that stops at the organizer, the
// deck is shown as written.
void inp_InputFile::fakePartStage() {
    if (m_partsAndAssembly) return;
    FakeEnhancements(m_options.atelierCompatible);
    Reorganize();
}
