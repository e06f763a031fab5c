#pragma once
// The surfaces a restart deck adds to the model of the job it continues,
// by the rules of the restart sets (inp_RestartSetVisitor): a surface the
// earlier job has is refused; a model in parts names a new surface in full
// ("Assembly-1.S" or "Assembly-1.I.S"), a flat model without a period.
// Element and node surfaces only: an analytical surface may not be added.
// Each new surface is an assembly surface under its short name ("S").

#include "mesh/inp_SurfaceVisitor.h"

class inp_RestartSurfaceVisitor : public inp_SurfaceVisitor {
  public:
    // `oldSurfaces` are the earlier job's surfaces; the sets and elements
    // are those its new surfaces are read from.
    inp_RestartSurfaceVisitor(inpM_SurfaceMap const& oldSurfaces, cow_String const& assemblyName,
                              bool partsModel, inpM_SetMap const& nodeSets,
                              inpM_SetMap const& elementSets,
                              inpM_InstanceMap<inp_MapInt2Element> const& elements);

    inpM_SurfaceMap const& NewSurfaces() const noexcept { return m_newSurfaces; }

    void VisitSurface(inp_Keyword& keyword) override;
    // A *RIGID SURFACE is analytical.
    void VisitRigidSurface(inp_Keyword& keyword) override { VisitAnalyticalSurface(keyword); }
    void VisitAnalyticalSurface(inp_Keyword& keyword) override;
    void VisitSurfaceDefinition(inp_Keyword& keyword) override;

    // False for element (the default) and node surfaces, true for the
    // analytical types.
    static bool IsAnalyticalSurface(inp_Keyword const& keyword);
    // The first `columns` items of every line become "name.item".
    static void PrependNameToData(inp_Keyword& keyword, cow_String const& name, int columns);

  private:
    // Whether the surface `name` may be added; reports why not.
    bool mayAdd(inp_Keyword const& keyword, cow_String const& name);

    inpM_SurfaceMap m_oldSurfaces;
    cow_String m_originalAssemblyName;
    bool m_partsModel;
    inpM_SurfaceMap m_newSurfaces;
};
