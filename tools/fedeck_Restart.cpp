#include "tools/fedeck_Restart.h"

#include "continuation/inp_RestartSetVisitor.h"
#include "continuation/inp_RestartSurfaceVisitor.h"
#include "pipeline/inp_InputFile.h"

namespace {

// The name of the earlier model's assembly: that of its first *ASSEMBLY
// (a flat model's generated one among them).
cow_String assemblyNameOf(inp_InputFile const& deck) {
    for (inp_Keyword const& keyword : deck.Keywords())
        if (keyword.Is(inp_kw_Assembly)) return keyword.GetParameterAsString("name", cow_String());
    return cow_String();
}

}  // namespace

void fedeck_ReadRestartSetsAndSurfaces(inp_InputFile& later, inp_InputFile const& earlier) {
    if (!later.IsPlainRestart()) return;
    inpM_PartMap const partMap = earlier.MakePartMap();
    cow_String const assembly = assemblyNameOf(earlier);
    bool const partsModel = partMap.FeatureEnhanced();

    inp_RestartSetVisitor nodeSets(inp_RestartSetVisitor::Kind::NodeSets, partMap.ConstGetNsets(),
                                   assembly, partsModel, partMap.ConstGetNodeIdMap());
    nodeSets.setInstancePartNames(partMap.ConstGetInstancePartNames());
    nodeSets.VisitListAndReport(later.GetKeywords());
    inp_RestartSetVisitor elementSets(inp_RestartSetVisitor::Kind::ElementSets,
                                      partMap.ConstGetElsets(), assembly, partsModel,
                                      partMap.ConstGetElemIdMap());
    elementSets.setInstancePartNames(partMap.ConstGetInstancePartNames());
    elementSets.VisitListAndReport(later.GetKeywords());

    // New surfaces may be made of the new sets as well as the old.
    inpM_SetMap nodes = partMap.ConstGetNsets();
    nodes.Merge(nodeSets.NewSets());
    inpM_SetMap elements = partMap.ConstGetElsets();
    elements.Merge(elementSets.NewSets());
    inp_RestartSurfaceVisitor surfaces(partMap.ConstGetSurfaceMap(), assembly, partsModel, nodes,
                                       elements, earlier.AssemblyElementMap());
    surfaces.setInstancePartNames(partMap.ConstGetInstancePartNames());
    surfaces.VisitListAndReport(later.GetKeywords());
    later.AddRestartSetsAndSurfaces(nodeSets.NewSets(), elementSets.NewSets(),
                                    surfaces.NewSurfaces());
}
