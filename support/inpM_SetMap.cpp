#include "support/inpM_SetMap.h"

#include <unordered_set>

#include "support/inpM_IdMap.h"

cow_List<cow_String> inpM_SetMap::Instances() const {
    cow_List<cow_String> names;
    names.Reserve(m_instances.Size());
    m_instances.ForEachSorted(
        [&names](cow_String const& name, inpM_SetMap const&) { names.Append(name); });
    return names;
}

bool inpM_SetMap::HasNestedSet(cow_String const& instance, cow_String const& name) const {
    return FindNestedSet(instance, name) != nullptr;
}

inpM_SetHandle const* inpM_SetMap::FindNestedSet(cow_String const& instance,
                                                 cow_String const& name) const {
    inpM_SetMap const* nested = m_instances.Find(instance);
    return nested ? nested->m_sets.Find(name) : nullptr;
}

inpM_SetMap& inpM_SetMap::instanceForWriting(cow_String const& instance) {
    if (!m_instances.IsMember(instance)) m_instances.Insert(instance, inpM_SetMap());
    return m_instances.Get(instance);
}

void inpM_SetMap::InsertNestedSet(cow_String const& instance, cow_String const& name,
                                  inpM_SetHandle const& set) {
    instanceForWriting(instance).InsertSet(name, set);
}

void inpM_SetMap::InsertNestedSetMap(cow_String const& instance, inpM_BaseSetMap const& sets) {
    instanceForWriting(instance).m_sets = sets;
}

bool inpM_SetMap::RemoveNestedSet(cow_String const& instance, cow_String const& name) {
    if (!HasNestedSet(instance, name)) return false;
    return m_instances.Get(instance).RemoveSet(name);
}

bool inpM_SetMap::SearchAssemblyAndInstancesForSet(cow_String const& name,
                                                   cow_String& scope) const {
    scope = cow_String();
    if (HasSet(name)) return true;
    bool found = false;
    // ForEachSorted visits every instance; the first holder in name order wins.
    m_instances.ForEachSorted([&](cow_String const& instance, inpM_SetMap const& nested) {
        if (found || !nested.HasSet(name)) return;
        scope = instance;
        found = true;
    });
    return found;
}

bool inpM_SetMap::IsEmpty() const {
    if (!m_sets.IsEmpty()) return false;
    bool empty = true;
    m_instances.ForEachSorted([&empty](cow_String const&, inpM_SetMap const& nested) {
        if (empty && !nested.IsEmpty()) empty = false;
    });
    return empty;
}

void inpM_SetMap::Merge(inpM_SetMap const& other) {
    if (&other == this) return;
    if (m_sets.IsEmpty()) {
        m_sets = other.m_sets;
    } else {
        other.m_sets.ForEachSorted([this](cow_String const& name, inpM_SetHandle const& set) {
            m_sets.Insert(name, set);
        });
    }
    other.m_instances.ForEachSorted([this](cow_String const& instance, inpM_SetMap const& nested) {
        if (HasInstance(instance)) {
            m_instances.Get(instance).Merge(nested);
        } else {
            m_instances.Insert(instance, nested);
        }
    });
}

void inpM_SetMap::ChangeInstanceName(cow_String const& oldName, cow_String const& newName) {
    if (oldName == newName || !HasInstance(oldName)) return;
    inpM_SetMap const moved = m_instances.ConstGet(oldName);
    m_instances.Remove(oldName);
    m_instances.Insert(newName, moved);
}

namespace {

// The names of the sets `doomed` picks.
template <class Doomed>
cow_List<cow_String> pickedNames(inpM_BaseSetMap const& sets, Doomed const& doomed) {
    cow_List<cow_String> names;
    sets.ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
        if (doomed(name, set)) names.Append(name);
    });
    return names;
}

bool holdsPicked(inpM_SetMap const& map, auto const& doomed) {
    if (!pickedNames(map.ConstGetSetMap(), doomed).IsEmpty()) return true;
    bool found = false;
    map.ConstGetInstanceMap().ForEachSorted([&](cow_String const&, inpM_SetMap const& nested) {
        found = found || holdsPicked(nested, doomed);
    });
    return found;
}

}  // namespace

template <class Doomed>
void inpM_SetMap::removeSetsIf(Doomed const& doomed) {
    for (cow_String const& name : pickedNames(m_sets, doomed)) m_sets.Remove(name);
    for (cow_String const& instance : Instances()) {
        if (holdsPicked(m_instances.ConstGet(instance), doomed)) {
            m_instances.Get(instance).removeSetsIf(doomed);
        }
    }
}

void inpM_SetMap::DeleteAllSetsExceptThoseListed(cow_List<cow_String> const& keep) {
    std::unordered_set<cow_String> const kept(keep.begin(), keep.end());
    removeSetsIf([&kept](cow_String const& name, inpM_SetHandle const&) {
        return kept.find(name) == kept.end();
    });
}

void inpM_SetMap::RemoveInternalSets() {
    removeSetsIf([](cow_String const&, inpM_SetHandle const& set) {
        return !set.IsNull() && set->IsInternal();
    });
}

namespace {

inpM_BaseSetMap renumbered(inpM_BaseSetMap const& sets, inpM_IdMap const& map, bool keepMissing) {
    inpM_BaseSetMap result;
    sets.ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
        inpM_SetHandle translated(set);
        if (!translated.IsNull()) translated.Get().Renumber(map, keepMissing);
        result.Insert(name, translated);
    });
    return result;
}

}  // namespace

void inpM_SetMap::Renumber(inpM_IdMap const& map, bool keepMissing) {
    m_sets = renumbered(m_sets, map, keepMissing);
    static inpM_IdMap const none;
    for (cow_String const& instance : Instances()) {
        inpM_IdMap const& nested = map.IsMember(instance) ? map.ConstGet(instance) : none;
        m_instances.Get(instance).Renumber(nested, keepMissing);
    }
}
