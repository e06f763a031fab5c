#include "assembly/inp_FakePartVisitors.h"

#include <string>

#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"

cow_String inp_PartSurfaceInstanceName(cow_String const& name) {
    cow_String scoped(name);
    scoped.append("-1.");
    scoped.append(name);
    return scoped;
}

// -- surfaces ------------------------------------------------------------------

inp_FakePartSurfaceVisitor::inp_FakePartSurfaceVisitor(inpM_SurfaceMap const& surfaces)
    : inp_SurfaceFixupVisitor(surfaces) {}

cow_String inp_FakePartSurfaceVisitor::FixupSurfaceName(cow_String const& name, cow_String const&,
                                                        cow_String const& instanceName,
                                                        cow_String const& partName) {
    if (!partName.IsEmpty() || !instanceName.IsEmpty()) return name;
    if (!m_partSurfaces.IsMember(name)) return name;
    return inp_PartSurfaceInstanceName(name);
}

void inp_FakePartSurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    if (inp_Utils::IsAnalyticalSurfaceType(type) && !name.IsEmpty())
        m_partSurfaces.AppendUnlessMember(name);
    inp_SurfaceFixupVisitor::VisitSurface(keyword);
}

// A rigid surface without a name is named "RigidSurface-" and a number that
// runs over every deck this thread reads, so that two such surfaces never
// share a part.
void inp_FakePartSurfaceVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    thread_local int unnamedRigidSurfaces = 0;
    cow_String name = keyword.GetParameterAsString("name", cow_String());
    if (name.IsEmpty()) {
        std::string const generated = "RigidSurface-" + std::to_string(++unnamedRigidSurfaces);
        name = cow_String(std::string_view(generated));
        keyword.SetParameter("name", inp_Item(name));
    }
    m_partSurfaces.AppendUnlessMember(name);
}

void inp_FakePartSurfaceVisitor::VisitRigidBody(inp_Keyword& keyword) {
    cow_String const surface = keyword.GetParameterAsString("analyticalsurface", cow_String());
    if (surface.IsEmpty()) return;
    keyword.SetParameter("analyticalsurface", inp_Item(inp_PartSurfaceInstanceName(surface)));
}

// -- distributions -------------------------------------------------------------

inp_FakeDistributionVisitor::inp_FakeDistributionVisitor(cow_Map<cow_String, int> const& known,
                                                         cow_Map<cow_String, int>& used)
    : m_known(known), m_used(used) {}

cow_String inp_FakeDistributionVisitor::FixupDistributionName(cow_String const& name) {
    if (m_known.IsMember(name)) m_used.Insert(name, 1);
    return name;
}
