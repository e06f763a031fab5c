#pragma once
#include "support/ZELBasAssert.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_Surface.h"

// The surfaces of one part or part instance, by name. A copy shares the tree
// and every surface; a write copies the path to the entry it touches, and a
// writable surface (Get(name).Get()) clones only that surface if it is shared.
class inpM_PartInstanceSurfaceMap {
  public:
    using Map = cow_Map<cow_String, inpM_PartInstanceSurfaceHandle>;

    inpM_PartInstanceSurfaceMap() noexcept = default;

    bool IsMember(cow_String const& name) const { return m_surfaces.IsMember(name); }
    // The name must be a member (a ZELBasAssertException otherwise).
    inpM_PartInstanceSurfaceHandle const& ConstGet(cow_String const& name) const {
        return m_surfaces.ConstGet(name);
    }
    inpM_PartInstanceSurfaceHandle& Get(cow_String const& name) { return m_surfaces.Get(name); }
    // Null when the name is not a member: the one-lookup form.
    inpM_PartInstanceSurfaceHandle const* Find(cow_String const& name) const {
        return m_surfaces.Find(name);
    }

    // Adds or replaces; true if the name was new.
    bool Insert(cow_String const& name, inpM_PartInstanceSurfaceHandle const& surface) {
        return m_surfaces.Insert(name, surface);
    }
    // Holds a copy of the surface, of its own form.
    bool Insert(cow_String const& name, inpM_PartInstanceSurface const& surface) {
        return Insert(name, inpM_PartInstanceSurfaceHandle(surface.Copy()));
    }
    bool Remove(cow_String const& name) { return m_surfaces.Remove(name); }
    void Clear() noexcept { m_surfaces.Clear(); }

    int Size() const noexcept { return m_surfaces.Size(); }
    bool IsEmpty() const noexcept { return m_surfaces.IsEmpty(); }
    // The names, ascending.
    cow_List<cow_String> Names() const {
        cow_List<cow_String> names;
        names.Reserve(Size());
        m_surfaces.ForEachSorted(
            [&names](cow_String const& name, inpM_PartInstanceSurfaceHandle const&) {
                names.Append(name);
            });
        return names;
    }
    // Calls f(name, handle) for every surface in ascending name order.
    template <class F>
    void ForEachSorted(F&& f) const {
        m_surfaces.ForEachSorted(f);
    }

    Map const& ConstGetMap() const noexcept { return m_surfaces; }
    bool SharesWith(inpM_PartInstanceSurfaceMap const& other) const noexcept {
        return m_surfaces.SharesRootWith(other.m_surfaces);
    }

  private:
    Map m_surfaces;
};

// Walks a snapshot of a surface map in ascending name order.
class inpM_PartInstanceSurfaceMapSIT {
  public:
    explicit inpM_PartInstanceSurfaceMapSIT(inpM_PartInstanceSurfaceMap const& map)
        : m_walk(map.ConstGetMap(), Walk::AscSortCmp) {}

    void First() noexcept { m_walk.First(); }
    void Next() noexcept { m_walk.Next(); }
    bool IsDone() const noexcept { return m_walk.IsDone(); }
    bool NotDone() const noexcept { return m_walk.NotDone(); }
    cow_String const& CurrentKey() const { return m_walk.CurrentKey(); }
    inpM_PartInstanceSurfaceHandle const& CurrentValue() const { return m_walk.CurrentValue(); }
    // The surface itself.
    inpM_PartInstanceSurface const& CurrentItem() const { return CurrentValue().ConstGet(); }

  private:
    using Walk = cow_ConstMapSortedIt<cow_String, inpM_PartInstanceSurfaceHandle>;
    Walk m_walk;
};
