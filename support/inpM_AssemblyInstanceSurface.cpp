#include "support/inpM_AssemblyInstanceSurface.h"

#include "support/inpM_IdMap.h"

void inpM_AssemblyInstanceSurface::Add(inpM_AssemblyInstanceSurface const& other) {
    m_assemblyNodes.Add(other.m_assemblyNodes);
    // A counted copy: other may be this surface.
    inpM_PartInstanceSurfaceMap const theirs = other.m_instances;
    theirs.ForEachSorted(
        [this](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& surface) {
            if (m_instances.IsMember(instance)) {
                m_instances.Get(instance).Get().Add(*surface);
            } else {
                m_instances.Insert(instance, surface);
            }
        });
}

void inpM_AssemblyInstanceSurface::Add(cow_String const& instance,
                                       inpM_PartInstanceSurface const& surface) {
    if (m_instances.IsMember(instance)) {
        m_instances.Get(instance).Get().Add(surface);
    } else {
        m_instances.Insert(instance, surface);
    }
}

void inpM_AssemblyInstanceSurface::Add(inpM_NodeAreaSurface const& assemblyNodes) {
    m_assemblyNodes.Add(assemblyNodes);
}

void inpM_AssemblyInstanceSurface::Difference(inpM_AssemblyInstanceSurface const& other) {
    m_assemblyNodes.Difference(other.m_assemblyNodes);
    inpM_PartInstanceSurfaceMap const theirs = other.m_instances;
    theirs.ForEachSorted(
        [this](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& surface) {
            Difference(instance, *surface);
        });
}

void inpM_AssemblyInstanceSurface::Difference(cow_String const& instance,
                                              inpM_PartInstanceSurface const& surface) {
    if (m_instances.IsMember(instance)) m_instances.Get(instance).Get().Difference(surface);
}

void inpM_AssemblyInstanceSurface::Intersection(inpM_AssemblyInstanceSurface const& other) {
    m_assemblyNodes.Intersection(other.m_assemblyNodes);
    inpM_PartInstanceSurfaceMap const theirs = other.m_instances;
    for (cow_String const& instance : m_instances.Names()) {
        inpM_PartInstanceSurfaceHandle const* surface = theirs.Find(instance);
        if (surface == nullptr) {
            m_instances.Remove(instance);
        } else if (!surface->SharesWith(m_instances.ConstGet(instance))) {
            m_instances.Get(instance).Get().Intersection(**surface);
        }
    }
}

void inpM_AssemblyInstanceSurface::Intersection(cow_String const& instance,
                                                inpM_PartInstanceSurface const& surface) {
    // Intersected before anything is removed: surface may be a part of this one.
    if (m_instances.IsMember(instance)) m_instances.Get(instance).Get().Intersection(surface);
    for (cow_String const& name : m_instances.Names()) {
        if (!(name == instance)) m_instances.Remove(name);
    }
    m_assemblyNodes = inpM_NodeAreaSurface();
}

void inpM_AssemblyInstanceSurface::Renumber(inpM_IdMap const& nodes, inpM_IdMap const& elements,
                                            bool keepMissing) {
    m_assemblyNodes.Renumber(nodes, keepMissing);
    for (cow_String const& instance : m_instances.Names()) {
        RenumberInstanceSurface(m_instances.Get(instance).Get(), instance, nodes, elements,
                                keepMissing);
    }
}

bool inpM_AssemblyInstanceSurface::IsCrossInstanceNodeBasedSurface() const {
    int levelsWithNodes = m_assemblyNodes.ConstGetNodeAreaList().IsEmpty() ? 0 : 1;
    inpM_PartInstanceSurfaceMapSIT walk(m_instances);
    for (; walk.NotDone() && levelsWithNodes < 2; walk.Next()) {
        inpM_PartInstanceSurface const& part = walk.CurrentItem();
        if (part.Type() == inpM_NodeAreaSurfaceType && !part.ConstGetNodeAreaList().IsEmpty()) {
            ++levelsWithNodes;
        }
    }
    return levelsWithNodes >= 2;
}

bool inpM_AssemblyInstanceSurface::IsEmpty() const {
    if (!m_assemblyNodes.IsEmpty()) return false;
    for (inpM_PartInstanceSurfaceMapSIT walk(m_instances); walk.NotDone(); walk.Next()) {
        if (!walk.CurrentItem().IsEmpty()) return false;
    }
    return true;
}

void inpM_AssemblyInstanceSurface::Print(aio_ostream& out) const {
    out << "assembly surface";
    if (m_internal) out << " (internal)";
    int const instances = m_instances.Size();
    out << ", " << instances << (instances == 1 ? " instance\n" : " instances\n");
    out << "assembly nodes: ";
    m_assemblyNodes.Print(out);
    m_instances.ForEachSorted(
        [&out](cow_String const& instance, inpM_PartInstanceSurfaceHandle const& surface) {
            out << "instance " << instance << ": ";
            surface->Print(out);
        });
}
