#pragma once
#include "support/ZELBasException.h"
#include "support/atr_String.h"
#include "support/cow_COW.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

template <class T>
class inpM_InstanceMap;

// The per-level holder of a model: the value of this level, which may be
// absent, and the holders of the instances below it by instance name. Copies
// share the value and the nested holders; a writable access clones only what
// it reaches. The nested map costs nothing until an instance is inserted.
//
// The common part of every inpM_InstanceMap<T>. The nested holders are of the
// final type inpM_InstanceMap<T>, so a type that needs more operations
// specialises inpM_InstanceMap<T> as a class derived from this base, and its
// nested holders have those operations too:
//
//     template <>
//     class inpM_InstanceMap<X> : public inpM_InstanceMapBase<X> {
//       public:
//         using inpM_InstanceMapBase<X>::inpM_InstanceMapBase;
//         ... more operations ...
//     };
template <class T>
class inpM_InstanceMapBase {
  public:
    using Holder = inpM_InstanceMap<T>;
    using NestedMap = cow_Map<cow_String, Holder>;

    inpM_InstanceMapBase() noexcept = default;
    explicit inpM_InstanceMapBase(T const& value) : m_item(new T(value)) {}
    inpM_InstanceMapBase(inpM_InstanceMapBase const&) = default;
    inpM_InstanceMapBase(inpM_InstanceMapBase&&) noexcept = default;
    inpM_InstanceMapBase& operator=(inpM_InstanceMapBase const&) = default;
    inpM_InstanceMapBase& operator=(inpM_InstanceMapBase&&) noexcept = default;
    virtual ~inpM_InstanceMapBase() = default;

    // The value of this level.
    bool HasValue() const noexcept { return !m_item.IsNull(); }
    // Writable: the value is cloned first when another holder shares it.
    // Without a value, nex_PrimException<atr_String, 1> "item.HasValue()".
    T& Get() {
        requireValue("item.HasValue()");
        if (m_item.UseCount() > 1) m_item.Reset(new T(*m_item));
        return *m_item;
    }
    T const& ConstGet() const {
        requireValue("item.HasValue()");
        return *m_item;
    }
    // Gives this level a value, replacing the old one (its other holders keep it).
    void SetValue(T const& value) { m_item.Reset(new T(value)); }
    void ClearValue() noexcept { m_item.Reset(nullptr); }

    // The value of an instance. An unknown instance is reported as an error
    // "Unknown instance %s" and then, like a known instance without a value,
    // raises nex_PrimException<atr_String, 1> "GetMap(instanceName).item.HasValue()".
    T& Get(cow_String const& name) {
        Holder& holder = GetMap(name);
        holder.requireValue("GetMap(instanceName).item.HasValue()");
        return holder.Get();
    }
    T const& ConstGet(cow_String const& name) const {
        Holder const& holder = ConstGetMap(name);
        holder.requireValue("GetMap(instanceName).item.HasValue()");
        return holder.ConstGet();
    }

    // The holder of an instance. An unknown instance is reported as an error
    // "Unknown instance %s"; the lookup then yields an empty holder that
    // belongs to no map: the const form a shared one that nobody may change,
    // the writable form a scratch holder of this thread, emptied on each such
    // lookup, whose changes go nowhere.
    Holder& GetMap(cow_String const& name) {
        if (!IsMember(name)) return unknownScratchHolder(name);
        return m_instances.Get(name);
    }
    Holder const& ConstGetMap(cow_String const& name) const {
        Holder const* holder = m_instances.Find(name);
        if (holder == nullptr) return unknownEmptyHolder(name);
        return *holder;
    }

    bool IsMember(cow_String const& name) const { return m_instances.IsMember(name); }
    // Adds an instance with the value, or replaces the value of a known
    // instance (keeping the instances below it).
    void Insert(cow_String const& name, T const& value) {
        if (IsMember(name)) {
            m_instances.Get(name).SetValue(value);
        } else {
            m_instances.Insert(name, Holder(value));
        }
    }
    // Adds or replaces the whole holder of an instance.
    void InsertMap(cow_String const& name, Holder const& holder) {
        m_instances.Insert(name, holder);
    }
    bool Remove(cow_String const& name) { return m_instances.Remove(name); }

    // The instance names, ascending.
    cow_List<cow_String> Instances() const {
        cow_List<cow_String> names;
        names.Reserve(m_instances.Size());
        m_instances.ForEachSorted(
            [&names](cow_String const& name, Holder const&) { names.Append(name); });
        return names;
    }
    NestedMap const& ConstGetInstanceMap() const noexcept { return m_instances; }

    // Sharing, for tests.
    bool SharesValueWith(inpM_InstanceMapBase const& other) const noexcept {
        return m_item.SharesWith(other.m_item);
    }

  protected:
    void requireValue(char const* condition) const {
        if (!HasValue()) throw nex_PrimException<atr_String, 1>(atr_raw(condition));
    }

    cow_CountedHld<T> m_item;
    NestedMap m_instances;

  private:
    static void reportUnknown(cow_String const& name) {
        thr_ThreadSingleton<wip_WIP>::Instance().Error(atr("Unknown instance %s", name),
                                                       wip_LEVEL1);
    }
    static Holder const& unknownEmptyHolder(cow_String const& name) {
        reportUnknown(name);
        static Holder const empty;  // holds no counted storage: safe to share
        return empty;
    }
    static Holder& unknownScratchHolder(cow_String const& name) {
        reportUnknown(name);
        thread_local Holder scratch;
        scratch = Holder();
        return scratch;
    }
};

// The holder for any value type without operations of its own.
template <class T>
class inpM_InstanceMap : public inpM_InstanceMapBase<T> {
  public:
    using inpM_InstanceMapBase<T>::inpM_InstanceMapBase;
};
