#include "assembly/inp_AssemblySurfaceVisitor.h"

#include "assembly/inp_PartMeshVisitors.h"
#include "mesh/inp_Utils.h"

inp_AssemblySurfaceVisitor::inp_AssemblySurfaceVisitor(
    inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
    inpM_InstanceMap<inp_MapInt2Element> const& elements, inp_CoordMap const& coords,
    inpM_SurfaceMap const& partSurfaces, inpM_InstanceMap<cow_String> const& instanceParts,
    inpM_SurfaceMap const& importedSurfaces, cow_List<cow_String> const& importedInstances)
    : inp_SurfaceVisitor(nodeSets, elementSets, elements, coords),
      m_importedSurfaces(importedSurfaces),
      m_importedInstances(importedInstances) {
    m_partSurfaces = partSurfaces;
    setInstancePartNames(instanceParts);
}

inp_AssemblySurfaceVisitor::~inp_AssemblySurfaceVisitor() = default;

bool inp_AssemblySurfaceVisitor::isImported(cow_String const& instance) const {
    for (cow_String const& name : m_importedInstances)
        if (name == instance) return true;
    return false;
}

// -- *INSTANCE ------------------------------------------------------------------------

void inp_AssemblySurfaceVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_SurfaceVisitor::VisitInstance(keyword);
    cow_String const& instance = InstanceName();
    m_instancePart = keyword.GetParameterAsString("part", cow_String());
    // A nameless instance is reported by expansion; it has no level to fill.
    if (instance.IsEmpty()) return;
    if (!m_instancePart.IsEmpty()) {
        if (m_partSurfaces.HasInstanceInPartInstanceSurfaceMap(m_instancePart))
            m_surfaceMap.InsertPartInstanceSurfaceMap(
                instance, m_partSurfaces.ConstGetPartInstanceSurfaceMap(m_instancePart));
        return;
    }
    // An imported instance knows its part only through the map.
    if (m_instancePartNames.IsMember(instance) &&
        m_instancePartNames.ConstGetMap(instance).HasValue())
        m_instancePart = m_instancePartNames.ConstGet(instance);
    if (isImported(instance) && m_importedSurfaces.HasInstanceInPartInstanceSurfaceMap(instance))
        m_surfaceMap.InsertPartInstanceSurfaceMap(
            instance, m_importedSurfaces.ConstGetPartInstanceSurfaceMap(instance));
}

void inp_AssemblySurfaceVisitor::VisitEndInstance(inp_Keyword& keyword) {
    inp_SurfaceVisitor::VisitEndInstance(keyword);
    m_instancePart = cow_String();
}

// -- *SURFACE -------------------------------------------------------------------------

// A redefinition is an error, but the surface is still read. An analytical
// surface outside a part or instance goes to VisitAnalyticalSurface, which
// refuses it in the words of the assembly level; the base reader decides
// every other kind.
void inp_AssemblySurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    if (PartName().IsEmpty() && !InstanceName().IsEmpty() &&
        m_partSurfaces.IsMemberPartInstanceSurface(m_instancePart, name))
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The surface %1$s was defined within part %2$s, then redefined within "
                         "part instance %3$s. A surface cannot be defined at the part level, then "
                         "redefined at the part instance level.",
                         name, m_instancePart, InstanceName())));
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    if (CurrentScope().IsEmpty() && inp_Utils::IsAnalyticalSurfaceType(type)) {
        VisitAnalyticalSurface(keyword);
        return;
    }
    inp_SurfaceVisitor::VisitSurface(keyword);
}

void inp_AssemblySurfaceVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    if (!PartName().IsEmpty() || InstanceName().IsEmpty()) return;
    if (keyword.HasParameter("elset")) InsertRigidSurface(m_surfaceMap, InstanceName());
}

void inp_AssemblySurfaceVisitor::VisitAnalyticalSurface(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) return;
    if (InstanceName().IsEmpty()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("There should not be any Analytical Surfaces at the assembly level.")));
        return;
    }
    InsertAnalyticalSurface(m_surfaceMap, InstanceName(), keyword);
}

// COMBINE and CROP go through here as every other definition: the reader of
// the level takes them (the assembly readers read CROP, the instance reader
// too), so that a combined surface inside an instance is one of the instance.
void inp_AssemblySurfaceVisitor::VisitSurfaceDefinition(inp_Keyword& keyword) {
    if (!PartName().IsEmpty()) return;
    bool const combine = keyword.HasParameter("combine");
    if (InstanceName().IsEmpty()) {
        m_surfaceMap.InsertAssemblyInstanceSurface(
            keyword.GetParameterAsString("name", cow_String()),
            combine ? CreateCombinedAssemblyLevelSurface(keyword)
                    : CreateAssemblyLevelSurface(keyword));
        return;
    }
    if (combine)
        CreateCombinedInstanceLevelSurface(keyword);
    else
        CreateInstanceLevelSurface(keyword);
}
