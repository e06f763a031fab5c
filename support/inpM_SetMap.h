#pragma once
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_BaseSetMap.h"
#include "support/inpM_Set.h"

class inpM_IdMap;

// The sets of one kind (nodes or elements) of a model: those of the assembly
// level, and those of each instance in a nested set map by instance name.
// Copies share both maps and the sets in them until written.
class inpM_SetMap {
  public:
    using InstanceMap = cow_Map<cow_String, inpM_SetMap>;

    inpM_SetMap() noexcept = default;

    // The assembly level.
    inpM_BaseSetMap const& ConstGetSetMap() const noexcept { return m_sets; }
    inpM_BaseSetMap const& ConstGetMap() const noexcept { return m_sets; }
    bool HasSet(cow_String const& name) const { return m_sets.IsMember(name); }
    // The set must exist.
    inpM_SetHandle const& ConstGetSet(cow_String const& name) const {
        return m_sets.ConstGet(name);
    }
    // Adds the set, or replaces the one of that name.
    void InsertSet(cow_String const& name, inpM_SetHandle const& set) { m_sets.Insert(name, set); }
    bool RemoveSet(cow_String const& name) { return m_sets.Remove(name); }

    // The instance levels.
    InstanceMap const& ConstGetInstanceMap() const noexcept { return m_instances; }
    bool HasInstance(cow_String const& instance) const { return m_instances.IsMember(instance); }
    // The instance names, ascending.
    cow_List<cow_String> Instances() const;
    // The nested map of an instance, which must exist.
    inpM_SetMap const& ConstGet(cow_String const& instance) const {
        return m_instances.ConstGet(instance);
    }
    inpM_BaseSetMap const& ConstGetNestedSetMap(cow_String const& instance) const {
        return ConstGet(instance).m_sets;
    }
    // False, not a fault, for an unknown instance.
    bool HasNestedSet(cow_String const& instance, cow_String const& name) const;
    // The set of the instance, or null where the instance or the set is missing.
    inpM_SetHandle const* FindNestedSet(cow_String const& instance, cow_String const& name) const;
    // The instance and the set must exist.
    inpM_SetHandle const& ConstGetNestedSet(cow_String const& instance,
                                            cow_String const& name) const {
        return ConstGetNestedSetMap(instance).ConstGet(name);
    }
    // Adds or replaces the set in the instance, which is created at need.
    void InsertNestedSet(cow_String const& instance, cow_String const& name,
                         inpM_SetHandle const& set);
    // Gives the instance (created at need) these sets in place of its own.
    void InsertNestedSetMap(cow_String const& instance, inpM_BaseSetMap const& sets);
    bool RemoveNestedSet(cow_String const& instance, cow_String const& name);

    // Seeks the set in the assembly level first, then in the instances in
    // ascending name order. Found: true, and `scope` is the instance that
    // holds it, empty for the assembly. Not found: false and `scope` empty.
    bool SearchAssemblyAndInstancesForSet(cow_String const& name, cow_String& scope) const;

    // No set at any level (instances without sets don't count).
    bool IsEmpty() const;
    // Takes in every set of `other`, level by level; a set of a name this map
    // holds at the same level replaces it, as InsertSet does.
    void Merge(inpM_SetMap const& other);
    // Moves the sets of instance `oldName` to `newName` (replacing what that
    // held). Nothing happens for equal names or an unknown old name.
    void ChangeInstanceName(cow_String const& oldName, cow_String const& newName);
    // Removes, at every level, each set whose name is not in the list.
    void DeleteAllSetsExceptThoseListed(cow_List<cow_String> const& keep);
    // Removes the internal sets of every level.
    void RemoveInternalSets();
    // Translates the ids of every set (see inpM_BaseSet::Renumber): the sets
    // of the assembly level through `map`, those of an instance through the
    // nested map of that instance; an instance the map lacks is translated
    // through an empty map.
    void Renumber(inpM_IdMap const& map, bool keepMissing);

  private:
    // Removes from every level the sets `doomed` picks; writes only to the
    // levels that lose a set.
    template <class Doomed>
    void removeSetsIf(Doomed const& doomed);
    inpM_SetMap& instanceForWriting(cow_String const& instance);

    inpM_BaseSetMap m_sets;
    InstanceMap m_instances;
};
