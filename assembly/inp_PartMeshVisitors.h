#pragma once
// The mesh visitors of the part level. Each reads the mesh keywords that
// stand inside a *PART into the maps of that part, and leaves everything
// outside a part alone: the keywords of the assembly and of its instances are
// the business of the assembly visitors, which start from what these ones
// built.
//
// They are thin on purpose: the reading is the base classes' work, these
// classes only say where a keyword counts.

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_NodeVisitor.h"
#include "mesh/inp_SurfaceVisitor.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_SurfaceMap.h"

// The element tables and element sets of each part.
class inp_PartElementVisitor : public inp_ElementVisitor {
  public:
    // `reportMissingMaster` as for inp_ElementVisitor: inside parts *ELCOPY
    // normally copies whole records.
    explicit inp_PartElementVisitor(bool reportMissingMaster = true);
    ~inp_PartElementVisitor() override;

    // *ASSEMBLY and *STEP, with all they hold, are passed over.
    void Visit(inp_Keyword& keyword) override;
    // Opens the part with an empty element table.
    void VisitPart(inp_Keyword& keyword) override;
    void VisitElcopy(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitElgen(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;
};

// The coordinates and node sets of each part. Element-based *NSET reads the
// element tables and element sets that inp_PartElementVisitor built.
class inp_PartNodeVisitor : public inp_NodeVisitor {
  public:
    inp_PartNodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements,
                        inpM_SetMap const& elementSets, bool readCoordinates = true);
    ~inp_PartNodeVisitor() override;

    // *ASSEMBLY, with all it holds, is passed over.
    void Visit(inp_Keyword& keyword) override;
    // Opens the part with an empty coordinate map; a part is never moved.
    void VisitPart(inp_Keyword& keyword) override;
    void VisitNcopy(inp_Keyword& keyword) override;
    void VisitNfill(inp_Keyword& keyword) override;
    void VisitNgen(inp_Keyword& keyword) override;
    void VisitNmap(inp_Keyword& keyword) override;
    void VisitNode(inp_Keyword& keyword) override;
    void VisitNset(inp_Keyword& keyword) override;
    void VisitSystem(inp_Keyword& keyword) override;
};

// The surfaces of each part.
class inp_PartSurfaceVisitor : public inp_SurfaceVisitor {
  public:
    inp_PartSurfaceVisitor(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                           inpM_InstanceMap<inp_MapInt2Element> const& elements,
                           inp_CoordMap const& coords);
    ~inp_PartSurfaceVisitor() override;

    void VisitSurface(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitAnalyticalSurface(inp_Keyword& keyword) override;
    void VisitSurfaceDefinition(inp_Keyword& keyword) override;
};

// The name under which the surface of a *RIGID SURFACE is kept in its scope.
inline constexpr char const* kRigidSurfaceName = " <not named>";

// The surfaces that *RIGID SURFACE (with ELSET) and an analytical *SURFACE
// leave in the part or instance `scope`; shared by the part and the assembly
// visitors, which differ only in where they allow them.
void InsertRigidSurface(inpM_SurfaceMap& surfaces, cow_String const& scope);
void InsertAnalyticalSurface(inpM_SurfaceMap& surfaces, cow_String const& scope,
                             inp_Keyword const& keyword);
