#pragma once
// The mesh walks over an expanded keyword list, in the order the extraction
// of a flat deck runs them: elements, then nodes (which may take nodes from
// element sets), then the nodes that exist only implicitly, then surfaces.
// For tests and the fuzz target that must see every mesh walk go over any
// deck without a fault; the diagnostics go to the thread's sink.

#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_NodeGenerationVisitor.h"
#include "mesh/inp_NodeVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "tables/inp_ContactCheck.h"
#include "tests/mesh/SurfaceVisitorForTests.h"
#include "transform/inp_TransformationVisitor.h"

// The number of nodes, elements and surfaces made, so that a caller can
// keep the walks from being optimised away.
inline int RunMeshWalks(cow_List<inp_Keyword>& keywords) {
    inp_ElementVisitor elements(true);
    elements.VisitListAndReport(keywords);
    inp_NodeVisitor nodes(elements.ConstGetElementMap(), elements.ConstGetSetMap(), true);
    nodes.VisitListAndReport(keywords);
    inp_NodeGenerationVisitor implicitNodes(nodes.ConstGetCoordMap(), elements.ConstGetElementMap(),
                                            elements.ConstGetSetMap(), true, false, true,
                                            cow_String());
    implicitNodes.VisitListAndReport(keywords);
    SurfaceVisitorForTests surfaces(nodes.ConstGetSetMap(), elements.ConstGetSetMap(),
                                    elements.ConstGetElementMap(),
                                    implicitNodes.ConstGetCoordMap());
    surfaces.VisitListAndReport(keywords);
    int made = implicitNodes.ConstGetCoordMap().Count();
    if (elements.ConstGetElementMap().HasValue())
        made += elements.ConstGetElementMap().ConstGet().Size();
    made += surfaces.ConstGetSurfaceMap().ConstGetAssemblyInstanceSurfaceMap().Size();
    return made;
}

// `expanded` as a job that continues `earlier`: the earlier part map taken,
// then the sets and surfaces of a restart read against its names.
inline void RunContinuationJob(inp_InputFile const& expanded, inp_InputFile const& earlier) {
    inp_InputFile later = expanded;
    inpM_PartMap partMap = earlier.MakePartMap();
    later.InheritPartMap(partMap, false);
    later.ReadRestartSetsAndSurfaces(earlier);
}

// The fake part of each reader (the solver's, the pre-processor's, the
// converter's) over a copy of an expanded flat list, then the stages that
// follow it on the road, whatever the deck is made of.
inline void RunFakePartStages(inp_InputFile const& expanded) {
    for (int reader = 0; reader < 3; ++reader) {
        inp_InputFile input = expanded;
        input.SetInOdbConverter(reader == 2);
        input.CheckImportValidity(reader == 1);
        input.FakeEnhancements(reader == 1);
        input.Reorganize();
        input.ExtractAssemblyMaps(reader == 1);
        input.CheckOutOfPlace();
        if (reader == 0) RunContinuationJob(expanded, input);
    }
}

// The name stages and the extraction stages over an organized deck, called
// directly so that they run whatever the deck is made of (the road runs the
// period removal for flat decks only, the scoped names and the map
// extraction for decks in parts only).
inline void RunExtractionStages(inp_InputFile& input) {
    input.setModelParameters();
    input.ProhibitPeriodInNames(input.Keywords());
    input.RemovePeriods(false);
    input.ModifyScopedNames();
    input.ExtractPartMaps(false);
    input.ExtractAssemblyMaps(false);
    input.CheckOutOfPlace();
    inp_ContactCheck(input.AssemblySurfaces(), input.Keywords()).PerformCheck(true);
    // The tree in the global frame, on a copy, as a converter flattens it.
    cow_List<inp_Keyword> flattened = input.Keywords();
    inpM_SetMap nodeSets = input.AssemblyNsets();
    inp_TransformationVisitor(input.TransformationMap(), cow_List<int>(), nodeSets,
                              input.NodeIdMap(), true, input.AssemblyCoordMap(),
                              input.AssemblyElementMap(), input.AssemblyElsets(),
                              input.ModelParameters())
        .VisitList(flattened);
}
