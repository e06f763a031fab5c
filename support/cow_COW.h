#pragma once
#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>
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
//
// An object made by Make lives in one block with its count: one allocation
// instead of two, for the many small objects (sets, tables) a deck makes by
// the million. The low bit of the count's address tells such a block.
template <class T>
class cow_CountedHld {
  public:
    cow_CountedHld() noexcept = default;
    // Takes ownership of `owned`, which may be null.
    explicit cow_CountedHld(T* owned) { adopt(owned); }
    // A new `Made` (T or, when T's destructor is virtual, a class derived from
    // it) made from `args`, in one block with its count of 1.
    template <class Made = T, class... Args>
    static cow_CountedHld Make(Args&&... args) {
        static_assert(std::is_same_v<std::remove_cv_t<Made>, std::remove_cv_t<T>> ||
                          std::has_virtual_destructor_v<T>,
                      "an object of a derived class is destroyed through T");
        static_assert(alignof(Made) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        void* block = ::operator new(objectOffset<Made>() + sizeof(Made));
        Made* object = nullptr;
        try {
            object = ::new (static_cast<char*>(block) + objectOffset<Made>())
                Made(std::forward<Args>(args)...);
        } catch (...) {
            ::operator delete(block);
            throw;
        }
        cow_CountedHld made;
        made.m_object = object;
        made.m_count = tagged(::new (block) int(1));
        return made;
    }
    cow_CountedHld(cow_CountedHld const& other) noexcept
        : m_object(other.m_object), m_count(other.m_count) {
        if (m_count) ++*count();
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
    int UseCount() const noexcept { return m_count ? *count() : 0; }
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
        if (m_count && madeTogether()) {
            if (cow_DropIsLast(*count())) destroyTogether(m_object, count());
        } else if (m_count && cow_DropReference(m_count)) {
            delete m_object;
        }
        m_object = nullptr;
        m_count = nullptr;
    }

    // Where the object of a block made by Make begins: behind the count.
    template <class Made>
    static constexpr std::size_t objectOffset() {
        return (sizeof(int) + alignof(Made) - 1) / alignof(Made) * alignof(Made);
    }
    static int* tagged(int* count) noexcept {
        return reinterpret_cast<int*>(reinterpret_cast<std::uintptr_t>(count) | 1u);
    }
    bool madeTogether() const noexcept {
        return (reinterpret_cast<std::uintptr_t>(m_count) & 1u) != 0;
    }
    int* count() const noexcept {
        return reinterpret_cast<int*>(reinterpret_cast<std::uintptr_t>(m_count) &
                                      ~std::uintptr_t{1});
    }
    // Out of line, like the drop of a separate count: the compiler would
    // otherwise see the block freed by one handle and read by another.
    [[gnu::noinline]] static void destroyTogether(T* object, int* block) noexcept {
        object->~T();
        ::operator delete(static_cast<void*>(block));
    }

    T* m_object = nullptr;
    int* m_count = nullptr;  // the low bit set: the object lies in the count's block
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
    cow_COW() : m_handle(cow_CountedHld<T>::Make()) {}
    cow_COW(T const& value) : m_handle(copyOf(value)) {}  // NOLINT: a value converts to its handle
    cow_COW(T&& value)                                    // NOLINT: as above
        : m_handle(cow_CountedHld<T>::Make(std::move(value))) {}
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
        if (m_handle.UseCount() > 1) m_handle = copyOf(*m_handle);
    }

    int UseCount() const noexcept { return m_handle.UseCount(); }
    bool SharesWith(cow_COW const& other) const noexcept {
        return m_handle.SharesWith(other.m_handle);
    }

  private:
    // A copy by the policy; a plain copy is made in one block with its count.
    static cow_CountedHld<T> copyOf(T const& value) {
        if constexpr (std::is_same_v<Policy, cow_Direct<T>>)
            return cow_CountedHld<T>::Make(value);
        else
            return cow_CountedHld<T>(Policy::Clone(value));
    }

    cow_CountedHld<T> m_handle;
};
