#pragma once
#include <utility>

#include "support/ZELBasAssert.h"
#include "support/cow_COW.h"

// The clone policy for objects behind an abstract base: the object copies
// itself through its virtual `T* Copy() const`, so a copy keeps its dynamic
// type. Usable with cow_COW and cow_ArrayCOW.
template <class T>
struct cow_Virtual {
    static T* Clone(T const& value) { return value.Copy(); }
};

// A copy-on-write handle that may be empty, for the bulk objects of the model
// maps (sets above all) that travel by value between stages. Copies share the
// object; a writable access clones it first, by the policy, when another handle
// shares it. Unlike cow_COW it never makes an object on its own, so T may be
// abstract and an empty handle costs no allocation.
//
// The name speaks of an array, but what the model maps need of it is the
// handle of one (polymorphic) set, so that is what it is.
template <class T, class Policy = cow_Direct<T>>
class cow_ArrayCOW {
  public:
    cow_ArrayCOW() noexcept = default;
    // Takes ownership of an object made by the caller (e.g. a derived one).
    explicit cow_ArrayCOW(T* owned) : m_handle(owned) {}
    // A handle on a clone of the value.
    cow_ArrayCOW(T const& value) : m_handle(Policy::Clone(value)) {}  // NOLINT: value to handle
    // A handle on a new `Made` (T or a class derived from it) made from
    // `args` in one block with its count.
    template <class Made, class... Args>
    static cow_ArrayCOW Make(Args&&... args) {
        cow_ArrayCOW made;
        made.m_handle = cow_CountedHld<T>::template Make<Made>(std::forward<Args>(args)...);
        return made;
    }

    bool IsNull() const noexcept { return m_handle.IsNull(); }

    // Reading needs an object: an empty handle is a fault of the caller.
    T const& ConstGet() const {
        requireObject();
        return *m_handle;
    }
    T const& operator*() const { return ConstGet(); }
    T const* operator->() const { return &ConstGet(); }

    // Writable access: clones the object first unless this handle owns it alone.
    T& Get() {
        requireObject();
        Isolate();
        return *m_handle;
    }
    void Isolate() {
        if (m_handle.UseCount() > 1) m_handle.Reset(Policy::Clone(*m_handle));
    }

    // This handle alone takes `owned` (null empties it); its copies keep the old object.
    void Reset(T* owned = nullptr) { m_handle.Reset(owned); }

    int UseCount() const noexcept { return m_handle.UseCount(); }
    bool SharesWith(cow_ArrayCOW const& other) const noexcept {
        return m_handle.SharesWith(other.m_handle);
    }
    void swap(cow_ArrayCOW& other) noexcept { m_handle.swap(other.m_handle); }

  private:
    void requireObject() const { ZELBAS_ASSERT_TEXT(!m_handle.IsNull(), "handle holds an object"); }

    cow_CountedHld<T> m_handle;
};
