#include "support/mem_Allocation.h"

#include <cstdint>
#include <cstdlib>

namespace {

// No object can be larger than half the address space; refusing such sizes
// here keeps the answer the same with or without an instrumented allocator.
constexpr size_t kLargestRequest = static_cast<size_t>(PTRDIFF_MAX);

size_t atLeastOne(size_t size) {
    return size == 0 ? 1 : size;
}

}  // namespace

void* mem_Malloc(size_t size) noexcept {
    if (size > kLargestRequest) return nullptr;
    return std::malloc(atLeastOne(size));
}

void mem_Free(void* block) noexcept {
    std::free(block);
}

void* mem_Realloc(void* block, size_t size) noexcept {
    if (size > kLargestRequest) return nullptr;
    // realloc(p, 0) may free p and return null, which would read as a failure
    // that left p alive.
    return std::realloc(block, atLeastOne(size));
}

void* mem_OperatorNewThrow(size_t size) {
    void* block = mem_Malloc(size);
    if (!block) throw std::bad_alloc();
    return block;
}

void* mem_OperatorNewTinyThrow(size_t size) {
    return mem_OperatorNewThrow(size);
}

namespace {

void* allocateObject(size_t size) {
    return size <= mem_AllocationOperators::kTinyLimit ? mem_OperatorNewTinyThrow(size)
                                                       : mem_OperatorNewThrow(size);
}

}  // namespace

void* mem_AllocationOperators::operator new(size_t size) {
    return allocateObject(size);
}
void* mem_AllocationOperators::operator new[](size_t size) {
    return allocateObject(size);
}
void* mem_AllocationOperators::operator new(size_t size, std::nothrow_t const&) noexcept {
    return mem_Malloc(size);
}
void* mem_AllocationOperators::operator new[](size_t size, std::nothrow_t const&) noexcept {
    return mem_Malloc(size);
}
void mem_AllocationOperators::operator delete(void* block) noexcept {
    mem_Free(block);
}
void mem_AllocationOperators::operator delete[](void* block) noexcept {
    mem_Free(block);
}
void mem_AllocationOperators::operator delete(void* block, std::nothrow_t const&) noexcept {
    mem_Free(block);
}
void mem_AllocationOperators::operator delete[](void* block, std::nothrow_t const&) noexcept {
    mem_Free(block);
}
