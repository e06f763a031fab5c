#pragma once
// The node visitor of the assembly level. Besides reading the nodes of the
// assembly and of its instances, it turns the data lines of *INSTANCE into
// the instance's transform: line 1 a translation, line 2 a rotation about an
// axis through two points, the translation done first. Each instance gets
// its part's coordinate map by a shared copy, moved by that transform when
// there is one (inp_CoordMap keeps the transform beside the nodes, so the
// nodes themselves stay shared), and its part's node sets.
//
// The maps of the parts are the results of inp_PartNodeVisitor; they are
// only read here.

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_NodeVisitor.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

class inp_AssemblyNodeVisitor : public inp_NodeVisitor {
  public:
    // `elements` and `elementSets` are those of the assembly and its
    // instances (inp_AssemblyElementVisitor), read by element-based *NSET.
    // `instanceParts` maps each instance to its part; `validInstances` are
    // the instances a scoped id may name.
    //
    // The rest serves jobs that do not exist yet and is off by default: a
    // symmetric model generation job; node sets of the model given before
    // the walk (`presetNodeSets`, then the walk starts from `oldNodeSets`);
    // instances imported from an earlier job with their node sets.
    inp_AssemblyNodeVisitor(inp_CoordMap const& partCoords, inpM_SetMap const& partNodeSets,
                            inpM_InstanceMap<inp_MapInt2Element> const& elements,
                            inpM_SetMap const& elementSets,
                            inpM_InstanceMap<cow_String> const& instanceParts,
                            cow_List<cow_String> const& validInstances,
                            bool symmetricGenerationJob = false, bool presetNodeSets = false,
                            inpM_SetMap const& oldNodeSets = inpM_SetMap(),
                            cow_List<cow_String> const& importedInstances = {},
                            inpM_SetMap const& importedNodeSets = inpM_SetMap());
    ~inp_AssemblyNodeVisitor() override;

    // *PART, with all it holds, is passed over.
    void Visit(inp_Keyword& keyword) override;
    void VisitEndInstance(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitNset(inp_Keyword& keyword) override;

    // The open part, else the open instance; outside both any instance of
    // the assembly.
    bool IsValidInstanceName(cow_String const& name) const override;

  private:
    bool isImported(cow_String const& instance) const;
    // Reports the values among the first `count` of data line `row` that
    // are not numbers.
    void checkTransformLine(inp_Keyword const& keyword, int row, int count);
    // Line 1 of *INSTANCE into the transform.
    void readTranslation(inp_Keyword const& keyword);
    // Line 2 of *INSTANCE, behind the translation.
    void readRotation(inp_Keyword const& keyword);
    // The part's coordinates under the instance, moved by the transform.
    void placePartCoords(cow_String const& instance, cow_String const& part);

    inp_CoordMap m_partCoords;
    inpM_SetMap m_partNodeSets;
    cow_List<cow_String> m_validInstances;
    cow_List<cow_String> m_importedInstances;
    inpM_SetMap m_importedNodeSets;
    bool m_symmetricGenerationJob = false;
    cow_String m_instancePart;  // the part of the open instance
};
