#pragma once
#include "support/cow_ArrayCOW.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_OmiSet.h"

class inpM_IdMap;

// 1 for a set the user defined, 2 for one the system made for itself.
enum inpM_SetTypeFlag : int { inpM_ORDINARY_SET = 1, inpM_INTERNAL_SET = 2 };

// The dynamic type of a set.
enum inpM_SetTypeEnm : int { inpM_SORTED_SET = 1, inpM_UNSORTED_SET = 2 };

class inpM_BaseSet;
// The handle through which sets travel: copies share the set, a write clones
// it, keeping its dynamic type.
using inpM_SetHandle = cow_ArrayCOW<inpM_BaseSet, cow_Virtual<inpM_BaseSet>>;

// A named set of node or element ids. It holds the ids of its own level and,
// for a set of the assembly level, ids by instance name. An empty instance
// name stands for the own level wherever one is taken, so a scope found by a
// search (empty for the assembly) can be passed on as it is.
class inpM_BaseSet {
  public:
    using InstanceIds = cow_Map<cow_String, inpM_OmiSet>;
    using InstanceIdLists = cow_Map<cow_String, cow_List<int>>;

    virtual ~inpM_BaseSet();
    // A new set of the same dynamic type, owned by the caller.
    virtual inpM_BaseSet* Copy() const = 0;

    // Adding ids: under an instance or to the own level, from the forms the
    // readers build. The sorted set keeps one ascending unique list whatever
    // the order given; the unsorted one appends in the order given.
    virtual void Add(cow_String const& instance, inpM_OmiSet const& ids) = 0;
    virtual void Add(cow_String const& instance, cow_List<int> const& ids) = 0;
    virtual void Add(cow_List<int> const& ids) = 0;
    // The own ids of `set` under the instance (ids `set` holds by instance
    // are not taken: a set put under an instance is a set of a part).
    virtual void Add(cow_String const& instance, inpM_BaseSet const& set) = 0;
    virtual void Add(inpM_OmiSet const& ids) = 0;
    // Union: own ids to the own level, ids by instance to the same instance.
    virtual void Add(inpM_BaseSet const& set) = 0;
    virtual void ReserveAdditional(int count) = 0;

    // True for the form that keeps insertion order and repeats.
    virtual bool IsUnsorted() const = 0;
    // The ids of the own level, in set order.
    virtual cow_List<int> ConstGetIdList() const = 0;
    // The same, for a set of the assembly level: the ids under instances are
    // never part of it.
    virtual cow_List<int> ConstGetAssemblyIdList() const = 0;
    // The ids by instance, each ascending and unique.
    virtual InstanceIds ConstGetInstanceIds() const = 0;
    // The ids by instance in set order (with the repeats of an unsorted set).
    virtual InstanceIdLists ConstGetInstanceIdLists() const = 0;
    virtual inpM_SetTypeEnm DynTypeId() const = 0;

    // The number of ids of the own level (repeats counted).
    virtual int Size() const = 0;
    // No id at any level.
    virtual bool IsEmpty() const = 0;
    virtual bool IsMember(int id) const = 0;
    // Translates every id through the id map: own ids through its own table,
    // ids under an instance through the nested map of that instance. An id
    // the map lacks (also for lack of the instance's map) is kept as it stands
    // with `keepMissing`, dropped without.
    virtual void Renumber(inpM_IdMap const& map, bool keepMissing) = 0;

    inpM_SetTypeFlag SetType() const noexcept { return m_type; }
    void AssignSetType(inpM_SetTypeFlag type) noexcept { m_type = type; }
    bool IsInternal() const noexcept { return m_type == inpM_INTERNAL_SET; }
    // Made by a picking tool rather than read from a deck.
    bool IsPicked() const noexcept { return m_picked; }
    void SetPicked(bool picked) noexcept { m_picked = picked; }

  protected:
    explicit inpM_BaseSet(inpM_SetTypeFlag type) noexcept : m_type(type) {}
    inpM_BaseSet(inpM_BaseSet const&) = default;
    inpM_BaseSet& operator=(inpM_BaseSet const&) = default;

  private:
    inpM_SetTypeFlag m_type;
    bool m_picked = false;
};

// Unique ids in ascending order.
class inpM_SortedSet : public inpM_BaseSet {
  public:
    explicit inpM_SortedSet(inpM_SetTypeFlag type = inpM_ORDINARY_SET) noexcept
        : inpM_BaseSet(type) {}
    inpM_SortedSet(inpM_OmiSet const& ids, inpM_SetTypeFlag type) noexcept
        : inpM_BaseSet(type), m_ids(ids) {}

    static inpM_SetTypeEnm TypeId() noexcept { return inpM_SORTED_SET; }
    inpM_OmiSet const& ConstGetIdsGrid() const noexcept { return m_ids; }
    InstanceIds const& ConstGetInstanceIdsGrid() const noexcept { return m_instanceIds; }

    inpM_BaseSet* Copy() const override { return new inpM_SortedSet(*this); }
    void Add(cow_String const& instance, inpM_OmiSet const& ids) override;
    void Add(cow_String const& instance, cow_List<int> const& ids) override;
    void Add(cow_List<int> const& ids) override { m_ids.Insert(ids); }
    void Add(cow_String const& instance, inpM_BaseSet const& set) override;
    void Add(inpM_OmiSet const& ids) override { m_ids += ids; }
    void Add(inpM_BaseSet const& set) override;
    void ReserveAdditional(int count) override { m_ids.ReserveAdditional(count); }

    bool IsUnsorted() const override { return false; }
    cow_List<int> ConstGetIdList() const override { return m_ids.ConstGetArrayCounterpart(); }
    cow_List<int> ConstGetAssemblyIdList() const override { return ConstGetIdList(); }
    InstanceIds ConstGetInstanceIds() const override { return m_instanceIds; }
    InstanceIdLists ConstGetInstanceIdLists() const override;
    inpM_SetTypeEnm DynTypeId() const override { return TypeId(); }

    int Size() const override { return m_ids.Size(); }
    bool IsEmpty() const override { return m_ids.IsEmpty() && m_instanceIds.IsEmpty(); }
    bool IsMember(int id) const override { return m_ids.IsMember(id); }
    void Renumber(inpM_IdMap const& map, bool keepMissing) override;

  private:
    inpM_OmiSet& idsOf(cow_String const& instance);

    inpM_OmiSet m_ids;
    InstanceIds m_instanceIds;
};

// Ids in the order of insertion, repeats included: what the UNSORTED
// parameter asks for.
class inpM_UnsortedSet : public inpM_BaseSet {
  public:
    explicit inpM_UnsortedSet(inpM_SetTypeFlag type = inpM_ORDINARY_SET) noexcept
        : inpM_BaseSet(type) {}
    inpM_UnsortedSet(cow_List<int> const& ids, inpM_SetTypeFlag type) noexcept
        : inpM_BaseSet(type), m_ids(ids) {}

    static inpM_SetTypeEnm TypeId() noexcept { return inpM_UNSORTED_SET; }
    cow_List<int> const& ConstGetIds() const noexcept { return m_ids; }

    inpM_BaseSet* Copy() const override { return new inpM_UnsortedSet(*this); }
    void Add(cow_String const& instance, inpM_OmiSet const& ids) override;
    void Add(cow_String const& instance, cow_List<int> const& ids) override;
    void Add(cow_List<int> const& ids) override { m_ids.Concatenate(ids); }
    void Add(cow_String const& instance, inpM_BaseSet const& set) override;
    void Add(inpM_OmiSet const& ids) override { m_ids.Concatenate(ids.ConstGetArrayCounterpart()); }
    void Add(inpM_BaseSet const& set) override;
    void ReserveAdditional(int count) override;

    bool IsUnsorted() const override { return true; }
    cow_List<int> ConstGetIdList() const override { return m_ids; }
    cow_List<int> ConstGetAssemblyIdList() const override { return m_ids; }
    InstanceIds ConstGetInstanceIds() const override;
    InstanceIdLists ConstGetInstanceIdLists() const override { return m_instanceIds; }
    inpM_SetTypeEnm DynTypeId() const override { return TypeId(); }

    int Size() const override { return m_ids.Length(); }
    bool IsEmpty() const override { return m_ids.IsEmpty() && m_instanceIds.IsEmpty(); }
    bool IsMember(int id) const override { return m_ids.IsMember(id); }
    void Renumber(inpM_IdMap const& map, bool keepMissing) override;

  private:
    cow_List<int>& idsOf(cow_String const& instance);

    cow_List<int> m_ids;
    InstanceIdLists m_instanceIds;
};

// An empty set of the flag (internal: 2, else 1) and form.
inpM_SetHandle CreateSet(bool internal, bool unsorted);
// A set of the ids, in the flag and form.
inpM_SetHandle CreateSet(cow_List<int> const& ids, bool internal, bool unsorted);
inpM_SetHandle CreateSet(cow_List<int> const& ids, inpM_SetTypeFlag type, bool unsorted);
// A handle on a copy of the set, of its dynamic type.
inpM_SetHandle CreateSet(inpM_BaseSet const& set);

// Replaces an unsorted set by a sorted one with the same ids, type flag and
// picked state. A sorted set or an empty handle stays as it is.
void ConvertToSorted(inpM_SetHandle& set);
