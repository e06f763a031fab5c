#include "assembly/inp_PartMeshVisitors.h"

#include "support/inpM_Surface.h"

// -- inp_PartElementVisitor ----------------------------------------------------------

inp_PartElementVisitor::inp_PartElementVisitor(bool reportMissingMaster)
    : inp_ElementVisitor(reportMissingMaster) {}

inp_PartElementVisitor::~inp_PartElementVisitor() = default;

// The dispatcher descends after the handler, so returning here hides the
// keyword's whole sub-tree.
void inp_PartElementVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Assembly) || keyword.Is(inp_kw_Step)) return;
    inp_ElementVisitor::Visit(keyword);
}

void inp_PartElementVisitor::VisitPart(inp_Keyword& keyword) {
    inp_ElementVisitor::VisitPart(keyword);
    // A *PART without a name has no scope to hold a table.
    if (!PartName().IsEmpty()) m_elementMap.Insert(PartName(), inp_MapInt2Element());
}

void inp_PartElementVisitor::VisitElcopy(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_ElementVisitor::VisitElcopy(keyword);
}

void inp_PartElementVisitor::VisitElement(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_ElementVisitor::VisitElement(keyword);
}

void inp_PartElementVisitor::VisitElgen(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_ElementVisitor::VisitElgen(keyword);
}

void inp_PartElementVisitor::VisitElset(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_ElementVisitor::VisitElset(keyword);
}

// -- inp_PartNodeVisitor ---------------------------------------------------------------

inp_PartNodeVisitor::inp_PartNodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                         inpM_SetMap const& elementSets, bool readCoordinates)
    : inp_NodeVisitor(elements, elementSets, readCoordinates) {}

inp_PartNodeVisitor::~inp_PartNodeVisitor() = default;

void inp_PartNodeVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Assembly)) return;
    inp_NodeVisitor::Visit(keyword);
}

void inp_PartNodeVisitor::VisitPart(inp_Keyword& keyword) {
    inp_NodeVisitor::VisitPart(keyword);
    if (!PartName().IsEmpty()) m_coordMap.Insert(PartName(), inp_CoordMap());
    m_instanceTransform.FillIdentity();
}

void inp_PartNodeVisitor::VisitNcopy(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNcopy(keyword);
}

void inp_PartNodeVisitor::VisitNfill(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNfill(keyword);
}

void inp_PartNodeVisitor::VisitNgen(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNgen(keyword);
}

void inp_PartNodeVisitor::VisitNmap(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNmap(keyword);
}

void inp_PartNodeVisitor::VisitNode(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNode(keyword);
}

void inp_PartNodeVisitor::VisitNset(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitNset(keyword);
}

void inp_PartNodeVisitor::VisitSystem(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_NodeVisitor::VisitSystem(keyword);
}

// -- inp_PartSurfaceVisitor ------------------------------------------------------------

inp_PartSurfaceVisitor::inp_PartSurfaceVisitor(inpM_SetMap const& nodeSets,
                                               inpM_SetMap const& elementSets,
                                               inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                               inp_CoordMap const& coords)
    : inp_SurfaceVisitor(nodeSets, elementSets, elements, coords) {}

inp_PartSurfaceVisitor::~inp_PartSurfaceVisitor() = default;

void inp_PartSurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) inp_SurfaceVisitor::VisitSurface(keyword);
}

void inp_PartSurfaceVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    if (!PartName().IsEmpty() && keyword.HasParameter("elset"))
        InsertRigidSurface(m_surfaceMap, PartName());
}

void inp_PartSurfaceVisitor::VisitAnalyticalSurface(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) InsertAnalyticalSurface(m_surfaceMap, PartName(), keyword);
}

void inp_PartSurfaceVisitor::VisitSurfaceDefinition(inp_Keyword& keyword) {
    if (PartName().IsEmpty()) return;
    if (keyword.HasParameter("combine"))
        CreateCombinedInstanceLevelSurface(keyword);
    else
        CreateInstanceLevelSurface(keyword);
}

// -- shared surface makers -------------------------------------------------------------

// The rigid surface only has to be known by name in its scope: its members
// are the element set of the keyword, which the rigid body reads itself. An
// empty surface of element faces stands for it, the form an element-based
// rigid surface takes.
void InsertRigidSurface(inpM_SurfaceMap& surfaces, cow_String const& scope) {
    surfaces.InsertPartInstanceSurface(scope, kRigidSurfaceName,
                                       CreateSurface(inpM_ElementFaceIdSurfaceType));
}

void InsertAnalyticalSurface(inpM_SurfaceMap& surfaces, cow_String const& scope,
                             inp_Keyword const& keyword) {
    inpM_PartInstanceSurfaceHandle surface = CreateSurface(inpM_AnalyticalSurfaceType);
    surface.Get().SetInternal(keyword.HasParameter("internal"));
    surfaces.InsertPartInstanceSurface(scope, keyword.GetParameterAsString("name", cow_String()),
                                       surface);
}
