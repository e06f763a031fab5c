#include "support/inpM_Set.h"

#include "support/inpM_IdMap.h"

inpM_BaseSet::~inpM_BaseSet() = default;

namespace {

// The ids of one level translated through the table of that level.
inpM_OmiSet renumbered(inpM_OmiSet const& ids, inpM_IdMap const& map, bool keepMissing) {
    inpM_OmiSet result;
    cow_IntTableInt const& oldToNew = map.ConstGetOldToNew();
    for (inpM_OmiSetIT walk(ids); walk.NotDone(); walk.Next()) {
        int const id = walk.CurrentItem();
        if (int const* newId = oldToNew.Lookup(id)) {
            result.Insert(*newId);
        } else if (keepMissing) {
            result.Insert(id);
        }
    }
    return result;
}

// The map of an instance, or an empty one when the id map has none.
inpM_IdMap const& nestedMapOf(inpM_IdMap const& map, cow_String const& instance) {
    static inpM_IdMap const none;
    return map.IsMember(instance) ? map.ConstGet(instance) : none;
}

// Ids by instance, each renumbered by `translate`; an instance left without
// ids is dropped.
template <class Ids, class Translate>
cow_Map<cow_String, Ids> renumberedByInstance(cow_Map<cow_String, Ids> const& byInstance,
                                              inpM_IdMap const& map, Translate translate) {
    cow_Map<cow_String, Ids> result;
    byInstance.ForEachSorted([&](cow_String const& instance, Ids const& ids) {
        Ids translated = translate(ids, nestedMapOf(map, instance));
        if (!translated.IsEmpty()) result.Insert(instance, translated);
    });
    return result;
}

}  // namespace

// ---------------------------------------------------------------- sorted

inpM_OmiSet& inpM_SortedSet::idsOf(cow_String const& instance) {
    if (instance.IsEmpty()) return m_ids;
    if (!m_instanceIds.IsMember(instance)) m_instanceIds.Insert(instance, inpM_OmiSet());
    return m_instanceIds.Get(instance);
}

void inpM_SortedSet::Add(cow_String const& instance, inpM_OmiSet const& ids) {
    idsOf(instance) += ids;
}

void inpM_SortedSet::Add(cow_String const& instance, cow_List<int> const& ids) {
    idsOf(instance).Insert(ids);
}

void inpM_SortedSet::Add(cow_String const& instance, inpM_BaseSet const& set) {
    if (set.DynTypeId() == inpM_SORTED_SET) {
        Add(instance, static_cast<inpM_SortedSet const&>(set).m_ids);
    } else {
        Add(instance, set.ConstGetIdList());
    }
}

void inpM_SortedSet::Add(inpM_BaseSet const& set) {
    if (&set == this) return;
    if (set.DynTypeId() == inpM_SORTED_SET) {
        auto const& sorted = static_cast<inpM_SortedSet const&>(set);
        m_ids += sorted.m_ids;
        sorted.m_instanceIds.ForEachSorted(
            [this](cow_String const& instance, inpM_OmiSet const& ids) { Add(instance, ids); });
        return;
    }
    m_ids.Insert(set.ConstGetIdList());
    set.ConstGetInstanceIdLists().ForEachSorted(
        [this](cow_String const& instance, cow_List<int> const& ids) { Add(instance, ids); });
}

inpM_BaseSet::InstanceIdLists inpM_SortedSet::ConstGetInstanceIdLists() const {
    InstanceIdLists lists;
    m_instanceIds.ForEachSorted([&lists](cow_String const& instance, inpM_OmiSet const& ids) {
        lists.Insert(instance, ids.ConstGetArrayCounterpart());
    });
    return lists;
}

void inpM_SortedSet::Renumber(inpM_IdMap const& map, bool keepMissing) {
    m_ids = renumbered(m_ids, map, keepMissing);
    m_instanceIds = renumberedByInstance(
        m_instanceIds, map, [keepMissing](inpM_OmiSet const& ids, inpM_IdMap const& nested) {
            return renumbered(ids, nested, keepMissing);
        });
}

// ---------------------------------------------------------------- unsorted

cow_List<int>& inpM_UnsortedSet::idsOf(cow_String const& instance) {
    if (instance.IsEmpty()) return m_ids;
    if (!m_instanceIds.IsMember(instance)) m_instanceIds.Insert(instance, cow_List<int>());
    return m_instanceIds.Get(instance);
}

void inpM_UnsortedSet::Add(cow_String const& instance, inpM_OmiSet const& ids) {
    idsOf(instance).Concatenate(ids.ConstGetArrayCounterpart());
}

void inpM_UnsortedSet::Add(cow_String const& instance, cow_List<int> const& ids) {
    idsOf(instance).Concatenate(ids);
}

void inpM_UnsortedSet::Add(cow_String const& instance, inpM_BaseSet const& set) {
    Add(instance, set.ConstGetIdList());
}

void inpM_UnsortedSet::Add(inpM_BaseSet const& set) {
    // Lists taken first: `set` may be this set.
    cow_List<int> const ids = set.ConstGetIdList();
    InstanceIdLists const byInstance = set.ConstGetInstanceIdLists();
    m_ids.Concatenate(ids);
    byInstance.ForEachSorted(
        [this](cow_String const& instance, cow_List<int> const& list) { Add(instance, list); });
}

void inpM_UnsortedSet::ReserveAdditional(int count) {
    // A list reserves only while empty; later it grows by blocks anyway.
    m_ids.Reserve(count);
}

inpM_BaseSet::InstanceIds inpM_UnsortedSet::ConstGetInstanceIds() const {
    InstanceIds sets;
    m_instanceIds.ForEachSorted([&sets](cow_String const& instance, cow_List<int> const& ids) {
        inpM_OmiSet unique;
        unique.Insert(ids);
        sets.Insert(instance, unique);
    });
    return sets;
}

void inpM_UnsortedSet::Renumber(inpM_IdMap const& map, bool keepMissing) {
    m_ids = map.Renumber(m_ids, keepMissing);
    m_instanceIds = renumberedByInstance(
        m_instanceIds, map, [keepMissing](cow_List<int> const& ids, inpM_IdMap const& nested) {
            return nested.Renumber(ids, keepMissing);
        });
}

// ---------------------------------------------------------------- factories

inpM_SetHandle CreateSet(bool internal, bool unsorted) {
    return CreateSet(cow_List<int>(), internal ? inpM_INTERNAL_SET : inpM_ORDINARY_SET, unsorted);
}

inpM_SetHandle CreateSet(cow_List<int> const& ids, bool internal, bool unsorted) {
    return CreateSet(ids, internal ? inpM_INTERNAL_SET : inpM_ORDINARY_SET, unsorted);
}

inpM_SetHandle CreateSet(cow_List<int> const& ids, inpM_SetTypeFlag type, bool unsorted) {
    if (unsorted) return inpM_SetHandle::Make<inpM_UnsortedSet>(ids, type);
    inpM_SetHandle handle = inpM_SetHandle::Make<inpM_SortedSet>(type);
    handle.Get().Add(ids);
    return handle;
}

inpM_SetHandle CreateSet(inpM_BaseSet const& set) {
    return inpM_SetHandle(set.Copy());
}

void ConvertToSorted(inpM_SetHandle& set) {
    if (set.IsNull() || !set->IsUnsorted()) return;
    auto* sorted = new inpM_SortedSet(set->SetType());
    inpM_SetHandle replacement(sorted);
    sorted->SetPicked(set->IsPicked());
    sorted->Add(*set);
    set = replacement;
}
