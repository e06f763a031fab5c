#pragma once
// The surface visitor of the assembly level. An instance shares its part's
// surfaces (those of inp_PartSurfaceVisitor, only read here); a *SURFACE
// inside an instance adds to them, one outside any instance is an assembly
// surface. Keywords inside a part are the part visitor's and are passed over.

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_SurfaceVisitor.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_SurfaceMap.h"

class inp_AssemblySurfaceVisitor : public inp_SurfaceVisitor {
  public:
    // The sets, elements and coordinates are those of the assembly and its
    // instances; `instanceParts` maps each instance to its part. Instances
    // imported from an earlier job come with their surfaces; a new job has
    // none.
    inp_AssemblySurfaceVisitor(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                               inpM_InstanceMap<inp_MapInt2Element> const& elements,
                               inp_CoordMap const& coords, inpM_SurfaceMap const& partSurfaces,
                               inpM_InstanceMap<cow_String> const& instanceParts,
                               inpM_SurfaceMap const& importedSurfaces = inpM_SurfaceMap(),
                               cow_List<cow_String> const& importedInstances = {});
    ~inp_AssemblySurfaceVisitor() override;

    void VisitEndInstance(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;
    void VisitAnalyticalSurface(inp_Keyword& keyword) override;
    void VisitSurfaceDefinition(inp_Keyword& keyword) override;

  private:
    bool isImported(cow_String const& instance) const;

    inpM_SurfaceMap m_importedSurfaces;
    cow_List<cow_String> m_importedInstances;
    cow_String m_instancePart;  // the part of the open instance
};
