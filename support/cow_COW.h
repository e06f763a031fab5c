#pragma once
#include <utility>

// Counted handles: the sharing primitive beneath the copy-on-write containers.
// A deck belongs to one thread, so counts are plain ints.

// The count of a cow_CountedHld, made and dropped out of line: when two handles
// of one object die in the same function, GCC's use-after-free analysis can't
// tell that only the last one frees the count, and warns if it sees both.
int* cow_NewCount();
// Takes one reference away; true (and the count freed) if it was the last.
bool cow_DropReference(int* count) noexcept;
// Takes one reference away from a count held inside a shared object; true if
// it was the last. Out of line for the same reason.
bool cow_DropIsLast(int& refs) noexcept;

// A counted pointer to an owned object. Copies share the object; the last
// handle deletes it, through T*, so a virtual destructor of T is honoured and
// the handle may hold derived objects behind an abstract base. The count lives
// apart from the object, so any type can be held without being prepared for it.
template <class T>
class cow_CountedHld {
  public:
    cow_CountedHld() noexcept = default;
    // Takes ownership of `owned`, which may be null.
    explicit cow_CountedHld(T* owned) { adopt(owned); }
    cow_CountedHld(cow_CountedHld const& other) noexcept
        : m_object(other.m_object), m_count(other.m_count) {
        if (m_count) ++*m_count;
    }
    cow_CountedHld(cow_CountedHld&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr)),
          m_count(std::exchange(other.m_count, nullptr)) {}
    cow_CountedHld& operator=(cow_CountedHld const& other) noexcept {
        cow_CountedHld(other).swap(*this);
        return *this;
    }
    cow_CountedHld& operator=(cow_CountedHld&& other) noexcept {
        cow_CountedHld(std::move(other)).swap(*this);
        return *this;
    }
    ~cow_CountedHld() { release(); }

    T* Get() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    T* operator->() const noexcept { return m_object; }
    int UseCount() const noexcept { return m_count ? *m_count : 0; }
    bool IsNull() const noexcept { return m_object == nullptr; }
    bool SharesWith(cow_CountedHld const& other) const noexcept {
        return m_count != nullptr && m_count == other.m_count;
    }

    // This handle alone leaves its group and takes `owned` with a count of 1;
    // the other handles keep the old object. The old object is deleted if this
    // handle was its only owner.
    void Reset(T* owned) {
        release();
        adopt(owned);
    }

    void swap(cow_CountedHld& other) noexcept {
        std::swap(m_object, other.m_object);
        std::swap(m_count, other.m_count);
    }

  private:
    void adopt(T* owned) {
        if (!owned) return;
        try {
            m_count = cow_NewCount();
        } catch (...) {
            delete owned;  // ownership was handed over: don't leak it
            throw;
        }
        m_object = owned;
    }
    void release() noexcept {
        if (m_count && cow_DropReference(m_count)) delete m_object;
        m_object = nullptr;
        m_count = nullptr;
    }

    T* m_object = nullptr;
    int* m_count = nullptr;
};

// The clone policy of cow_COW for concrete types: copy construction.
template <class T>
struct cow_Direct {
    static T* Clone(T const& value) { return new T(value); }
};

// A counted handle that gives copy-on-write value semantics to the object it
// holds: const access reads the shared object, writable access first clones it
// with Policy::Clone when other handles share it. A handle always holds an
// object (so that ConstGet never fails); the default constructor holds a
// default-constructed T. A policy other than cow_Direct lets T be a base class
// whose copies must keep their dynamic type.
template <class T, class Policy = cow_Direct<T>>
class cow_COW {
  public:
    cow_COW() : m_handle(new T()) {}
    cow_COW(T const& value)
        : m_handle(Policy::Clone(value)) {}  // NOLINT: a value converts to its handle
    cow_COW(T&& value) : m_handle(new T(std::move(value))) {}  // NOLINT: as above
    // Takes ownership of an object made by the caller (e.g. a derived one).
    explicit cow_COW(T* owned) : m_handle(owned) {}

    T const& ConstGet() const noexcept { return *m_handle; }
    T const& operator*() const noexcept { return *m_handle; }
    T const* operator->() const noexcept { return m_handle.Get(); }
    // Writable access: clones the object first unless this handle owns it alone.
    T& Get() {
        Isolate();
        return *m_handle;
    }
    void Isolate() {
        if (m_handle.UseCount() > 1) m_handle.Reset(Policy::Clone(*m_handle));
    }

    int UseCount() const noexcept { return m_handle.UseCount(); }
    bool SharesWith(cow_COW const& other) const noexcept {
        return m_handle.SharesWith(other.m_handle);
    }

  private:
    cow_CountedHld<T> m_handle;
};
