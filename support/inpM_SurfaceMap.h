#pragma once
#include "support/aio_Stream.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_AssemblyInstanceSurface.h"
#include "support/inpM_PartInstanceSurfaceMap.h"
#include "support/inpM_Surface.h"

class inpM_IdMap;

using inpM_AssemblyInstanceSurfaceMap = cow_Map<cow_String, inpM_AssemblyInstanceSurface>;

// The surfaces of a model: the assembly's surfaces by name, and for each part
// or part instance its surfaces by name. A copy shares everything; writes copy
// only the paths and surfaces they touch.
//
// Lookups through ConstGet... require the member (callers test with the
// IsMember... and Has... questions first); a missing one raises a
// ZELBasAssertException.
class inpM_SurfaceMap {
  public:
    inpM_SurfaceMap() noexcept = default;

    bool IsMemberAssemblyInstanceSurface(cow_String const& name) const {
        return m_assemblySurfaces.IsMember(name);
    }
    // False, without complaint, for an instance the map doesn't know.
    bool IsMemberPartInstanceSurface(cow_String const& instance, cow_String const& name) const;
    bool HasInstanceInPartInstanceSurfaceMap(cow_String const& instance) const {
        return m_partSurfaces.IsMember(instance);
    }

    inpM_AssemblyInstanceSurface const& ConstGetAssemblyInstanceSurface(
        cow_String const& name) const {
        return m_assemblySurfaces.ConstGet(name);
    }
    inpM_PartInstanceSurfaceHandle const& ConstGetPartInstanceSurface(cow_String const& instance,
                                                                      cow_String const& name) const;
    inpM_PartInstanceSurfaceMap const& ConstGetPartInstanceSurfaceMap(
        cow_String const& instance) const {
        return m_partSurfaces.ConstGet(instance);
    }
    inpM_AssemblyInstanceSurfaceMap const& ConstGetAssemblyInstanceSurfaceMap() const noexcept {
        return m_assemblySurfaces;
    }
    // Instance (or part) name to its surfaces.
    cow_Map<cow_String, inpM_PartInstanceSurfaceMap> const& ConstGetInstanceMap() const noexcept {
        return m_partSurfaces;
    }
    // The instances (or parts) with a surface map, ascending.
    cow_List<cow_String> Instances() const;

    // Each Insert adds or replaces the entry of that name.
    void InsertAssemblyInstanceSurface(cow_String const& name,
                                       inpM_AssemblyInstanceSurface const& surface);
    // Creates the instance's entry when needed.
    void InsertPartInstanceSurface(cow_String const& instance, cow_String const& name,
                                   inpM_PartInstanceSurfaceHandle const& surface);
    // Holds a copy of the surface, of its own form.
    void InsertPartInstanceSurface(cow_String const& instance, cow_String const& name,
                                   inpM_PartInstanceSurface const& surface);
    // The whole level of the instance.
    void InsertPartInstanceSurfaceMap(cow_String const& instance,
                                      inpM_PartInstanceSurfaceMap const& surfaces);

    // Takes every surface of other. A name both maps have at the same level
    // (the assembly, or the same instance) takes other's surface. An instance
    // new to this map comes in shared.
    void Merge(inpM_SurfaceMap const& other);

    // Translates every surface from old to new ids: node surfaces through
    // `nodes`, element surfaces through `elements`. Assembly surfaces as
    // inpM_AssemblyInstanceSurface::Renumber; an instance level through the
    // nested map of that instance. A label the map lacks stays with
    // keepMissing, and is dropped without; so are all labels of an instance
    // level that the id map lacks. Surfaces are never removed, even when
    // they end up empty, so that their names still resolve.
    void Renumber(inpM_IdMap const& nodes, inpM_IdMap const& elements, bool keepMissing);

    bool IsEmpty() const noexcept {
        return m_assemblySurfaces.IsEmpty() && m_partSurfaces.IsEmpty();
    }
    void Clear() noexcept;

    // For each assembly surface, ascending: "surface <name>: " and its Print;
    // then for each instance and surface, ascending:
    // "instance <instance> surface <name>: " and its Print.
    void Print(aio_ostream& out) const;

  private:
    inpM_AssemblyInstanceSurfaceMap m_assemblySurfaces;
    cow_Map<cow_String, inpM_PartInstanceSurfaceMap> m_partSurfaces;
};
