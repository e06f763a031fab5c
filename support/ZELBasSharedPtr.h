#pragma once
#include <utility>

// A shared pointer with plain counts, for objects that are shared on purpose
// rather than copied on write: every handle of a group sees the one object,
// and a write through any of them shows in all. The last strong handle deletes
// the object through T*, so a virtual destructor of T is honoured.
//
// ZELBasWeakPtr watches an object without keeping it alive and without
// counting in UseCount(), which is what writers ask before they decide to
// share or to take a table of their own.
//
// Counts are plain ints: a group belongs to one thread.

template <class T>
class ZELBasWeakPtr;

namespace zelbas_detail {

// The strong handles together hold one weak reference, so the block outlives
// the object by as long as a weak handle needs it, and deleting the object
// can never free the block under the handle that is deleting it.
struct SharedCounts {
    int strong = 1;
    int weak = 1;
};

// True (and the block freed) when this was the last reference of any kind.
// Kept out of line: when two handles of one group die in the same function,
// GCC's use-after-free analysis can't tell that only the last one frees the
// block, and warns if it sees both.
[[gnu::noinline]] inline bool DropWeak(SharedCounts* counts) noexcept {
    if (--counts->weak != 0) return false;
    delete counts;
    return true;
}

}  // namespace zelbas_detail

template <class T>
class ZELBasSharedPtr {
  public:
    ZELBasSharedPtr() noexcept = default;
    // Takes ownership of `owned`, which may be null (an empty handle). Should
    // the counts not be allocated, `owned` is deleted before the exception
    // leaves, since its ownership was handed over.
    explicit ZELBasSharedPtr(T* owned) { adopt(owned); }
    ZELBasSharedPtr(ZELBasSharedPtr const& other) noexcept
        : m_object(other.m_object), m_counts(other.m_counts) {
        if (m_counts) ++m_counts->strong;
    }
    ZELBasSharedPtr(ZELBasSharedPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr)),
          m_counts(std::exchange(other.m_counts, nullptr)) {}
    ZELBasSharedPtr& operator=(ZELBasSharedPtr const& other) noexcept {
        ZELBasSharedPtr(other).swap(*this);
        return *this;
    }
    ZELBasSharedPtr& operator=(ZELBasSharedPtr&& other) noexcept {
        ZELBasSharedPtr(std::move(other)).swap(*this);
        return *this;
    }
    ~ZELBasSharedPtr() { release(); }

    T* Get() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    T* operator->() const noexcept { return m_object; }
    bool IsNull() const noexcept { return m_object == nullptr; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    // The number of strong handles of the group; 0 for an empty handle.
    int UseCount() const noexcept { return m_counts ? m_counts->strong : 0; }
    bool SharesWith(ZELBasSharedPtr const& other) const noexcept {
        return m_counts != nullptr && m_counts == other.m_counts;
    }

    // This handle alone leaves its group and takes `owned` (possibly null);
    // the others keep the old object, which is deleted if this was its last
    // strong handle.
    void Reset(T* owned = nullptr) { ZELBasSharedPtr(owned).swap(*this); }

    void swap(ZELBasSharedPtr& other) noexcept {
        std::swap(m_object, other.m_object);
        std::swap(m_counts, other.m_counts);
    }

  private:
    friend class ZELBasWeakPtr<T>;

    // For Lock: joins the group of a live object.
    ZELBasSharedPtr(T* object, zelbas_detail::SharedCounts* counts) noexcept
        : m_object(object), m_counts(counts) {
        ++m_counts->strong;
    }

    void adopt(T* owned) {
        if (!owned) return;
        try {
            m_counts = new zelbas_detail::SharedCounts;
        } catch (...) {
            delete owned;
            throw;
        }
        m_object = owned;
    }

    void release() noexcept {
        zelbas_detail::SharedCounts* const counts = std::exchange(m_counts, nullptr);
        T* const object = std::exchange(m_object, nullptr);
        if (!counts || --counts->strong != 0) return;
        delete object;
        zelbas_detail::DropWeak(counts);
    }

    T* m_object = nullptr;
    zelbas_detail::SharedCounts* m_counts = nullptr;
};

template <class T>
class ZELBasWeakPtr {
  public:
    ZELBasWeakPtr() noexcept = default;
    ZELBasWeakPtr(ZELBasSharedPtr<T> const& shared) noexcept  // NOLINT: watching is implicit
        : m_object(shared.m_object), m_counts(shared.m_counts) {
        if (m_counts) ++m_counts->weak;
    }
    ZELBasWeakPtr(ZELBasWeakPtr const& other) noexcept
        : m_object(other.m_object), m_counts(other.m_counts) {
        if (m_counts) ++m_counts->weak;
    }
    ZELBasWeakPtr(ZELBasWeakPtr&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr)),
          m_counts(std::exchange(other.m_counts, nullptr)) {}
    ZELBasWeakPtr& operator=(ZELBasWeakPtr const& other) noexcept {
        ZELBasWeakPtr(other).swap(*this);
        return *this;
    }
    ZELBasWeakPtr& operator=(ZELBasWeakPtr&& other) noexcept {
        ZELBasWeakPtr(std::move(other)).swap(*this);
        return *this;
    }
    ~ZELBasWeakPtr() {
        if (m_counts) zelbas_detail::DropWeak(m_counts);
    }

    // True once the last strong handle is gone (or for a handle that never
    // watched anything).
    bool Expired() const noexcept { return m_counts == nullptr || m_counts->strong == 0; }
    int UseCount() const noexcept { return m_counts ? m_counts->strong : 0; }
    // A strong handle on the object, or an empty one once it has expired.
    ZELBasSharedPtr<T> Lock() const noexcept {
        return Expired() ? ZELBasSharedPtr<T>() : ZELBasSharedPtr<T>(m_object, m_counts);
    }

    void swap(ZELBasWeakPtr& other) noexcept {
        std::swap(m_object, other.m_object);
        std::swap(m_counts, other.m_counts);
    }

  private:
    T* m_object = nullptr;
    zelbas_detail::SharedCounts* m_counts = nullptr;
};
