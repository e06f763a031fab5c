#pragma once
#include <cstddef>
#include <new>

// The heap of the system. Everything that allocates on behalf of the deck
// logic goes through these, so that a host can account for or replace them in
// one place.
//
// The plain forms return null on failure; the Throw forms raise std::bad_alloc.
// A request of zero bytes still yields a distinct, freeable block, so that a
// null result always means failure.
void* mem_Malloc(size_t size) noexcept;
void mem_Free(void* block) noexcept;
void* mem_Realloc(void* block, size_t size) noexcept;
void* mem_OperatorNewThrow(size_t size);
// For the many small objects (keyword records, tree nodes): same contract, a
// separate entry so that small blocks can be pooled without touching callers.
void* mem_OperatorNewTinyThrow(size_t size);

// A base class whose objects, and arrays of them, are allocated by the heap
// functions above. Placement and nothrow forms are declared too, because a
// class-scope operator new hides every global form.
class mem_AllocationOperators {
  public:
    // Blocks up to this size count as tiny.
    static constexpr size_t kTinyLimit = 256;

    static void* operator new(size_t size);
    static void* operator new[](size_t size);
    static void* operator new(size_t size, std::nothrow_t const&) noexcept;
    static void* operator new[](size_t size, std::nothrow_t const&) noexcept;
    static void* operator new(size_t, void* place) noexcept { return place; }
    static void* operator new[](size_t, void* place) noexcept { return place; }

    static void operator delete(void* block) noexcept;
    static void operator delete[](void* block) noexcept;
    static void operator delete(void* block, std::nothrow_t const&) noexcept;
    static void operator delete[](void* block, std::nothrow_t const&) noexcept;
    static void operator delete(void*, void*) noexcept {}
    static void operator delete[](void*, void*) noexcept {}
};
