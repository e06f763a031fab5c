#include "support/inpM_SurfaceMap.h"

#include "support/inpM_IdMap.h"

namespace {

template <class V>
cow_List<cow_String> keysOf(cow_Map<cow_String, V> const& map) {
    cow_List<cow_String> keys;
    keys.Reserve(map.Size());
    map.ForEachSorted([&keys](cow_String const& key, V const&) { keys.Append(key); });
    return keys;
}

}  // namespace

bool inpM_SurfaceMap::IsMemberPartInstanceSurface(cow_String const& instance,
                                                  cow_String const& name) const {
    inpM_PartInstanceSurfaceMap const* surfaces = m_partSurfaces.Find(instance);
    return surfaces != nullptr && surfaces->IsMember(name);
}

inpM_PartInstanceSurfaceHandle const& inpM_SurfaceMap::ConstGetPartInstanceSurface(
    cow_String const& instance, cow_String const& name) const {
    return m_partSurfaces.ConstGet(instance).ConstGet(name);
}

cow_List<cow_String> inpM_SurfaceMap::Instances() const {
    return keysOf(m_partSurfaces);
}

void inpM_SurfaceMap::InsertAssemblyInstanceSurface(cow_String const& name,
                                                    inpM_AssemblyInstanceSurface const& surface) {
    m_assemblySurfaces.Insert(name, surface);
}

void inpM_SurfaceMap::InsertPartInstanceSurface(cow_String const& instance, cow_String const& name,
                                                inpM_PartInstanceSurfaceHandle const& surface) {
    if (!m_partSurfaces.IsMember(instance)) {
        m_partSurfaces.Insert(instance, inpM_PartInstanceSurfaceMap());
    }
    m_partSurfaces.Get(instance).Insert(name, surface);
}

void inpM_SurfaceMap::InsertPartInstanceSurface(cow_String const& instance, cow_String const& name,
                                                inpM_PartInstanceSurface const& surface) {
    InsertPartInstanceSurface(instance, name, inpM_PartInstanceSurfaceHandle(surface.Copy()));
}

void inpM_SurfaceMap::InsertPartInstanceSurfaceMap(cow_String const& instance,
                                                   inpM_PartInstanceSurfaceMap const& surfaces) {
    m_partSurfaces.Insert(instance, surfaces);
}

void inpM_SurfaceMap::Merge(inpM_SurfaceMap const& other) {
    if (IsEmpty()) {
        *this = other;  // all of other and nothing else: share it
        return;
    }
    inpM_SurfaceMap const source = other;  // a counted copy: other may be this map
    source.m_assemblySurfaces.ForEachSorted(
        [this](cow_String const& name, inpM_AssemblyInstanceSurface const& surface) {
            m_assemblySurfaces.Insert(name, surface);
        });
    source.m_partSurfaces.ForEachSorted(
        [this](cow_String const& instance, inpM_PartInstanceSurfaceMap const& surfaces) {
            if (!m_partSurfaces.IsMember(instance)) {
                m_partSurfaces.Insert(instance, surfaces);
                return;
            }
            inpM_PartInstanceSurfaceMap& mine = m_partSurfaces.Get(instance);
            surfaces.ForEachSorted(
                [&mine](cow_String const& name, inpM_PartInstanceSurfaceHandle const& surface) {
                    mine.Insert(name, surface);
                });
        });
}

void inpM_SurfaceMap::Renumber(inpM_IdMap const& nodes, inpM_IdMap const& elements,
                               bool keepMissing) {
    for (cow_String const& name : keysOf(m_assemblySurfaces)) {
        m_assemblySurfaces.Get(name).Renumber(nodes, elements, keepMissing);
    }
    for (cow_String const& instance : keysOf(m_partSurfaces)) {
        inpM_PartInstanceSurfaceMap& surfaces = m_partSurfaces.Get(instance);
        for (cow_String const& name : surfaces.Names()) {
            RenumberInstanceSurface(surfaces.Get(name).Get(), instance, nodes, elements,
                                    keepMissing);
        }
    }
}

void inpM_SurfaceMap::Clear() noexcept {
    m_assemblySurfaces.Clear();
    m_partSurfaces.Clear();
}

void inpM_SurfaceMap::Print(aio_ostream& out) const {
    m_assemblySurfaces.ForEachSorted(
        [&out](cow_String const& name, inpM_AssemblyInstanceSurface const& surface) {
            out << "surface " << name << ": ";
            surface.Print(out);
        });
    m_partSurfaces.ForEachSorted([&out](cow_String const& instance,
                                        inpM_PartInstanceSurfaceMap const& surfaces) {
        surfaces.ForEachSorted([&out, &instance](cow_String const& name,
                                                 inpM_PartInstanceSurfaceHandle const& surface) {
            out << "instance " << instance << " surface " << name << ": ";
            surface->Print(out);
        });
    });
}
