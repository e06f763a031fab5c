#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <new>

#include "support/mem_Allocation.h"

namespace {

struct Routed : mem_AllocationOperators {
    static inline int alive = 0;
    Routed() { ++alive; }
    ~Routed() { --alive; }
    char payload[300];
};

}  // namespace

TEST(MemHeap, ExhaustionGivesNullOrBadAllocByForm) {
    EXPECT_EQ(mem_Malloc(SIZE_MAX), nullptr);
    EXPECT_THROW(mem_OperatorNewThrow(SIZE_MAX), std::bad_alloc);
    EXPECT_THROW(mem_OperatorNewTinyThrow(SIZE_MAX), std::bad_alloc);
    void* block = mem_Malloc(8);
    EXPECT_EQ(mem_Realloc(block, SIZE_MAX), nullptr);  // and the old block survives
    mem_Free(block);
}

TEST(MemHeap, ZeroSizesStillGiveBlocksAndReallocKeepsContent) {
    void* empty = mem_Malloc(0);
    EXPECT_NE(empty, nullptr);
    char* text = static_cast<char*>(mem_Realloc(empty, 6));
    ASSERT_NE(text, nullptr);
    std::memcpy(text, "hello", 6);
    text = static_cast<char*>(mem_Realloc(text, 1 << 20));
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "hello");
    void* shrunk = mem_Realloc(text, 0);
    EXPECT_NE(shrunk, nullptr);
    mem_Free(shrunk);
}

TEST(MemAllocationOperators, ObjectsArraysAndPlacementAllWork) {
    delete new Routed;
    Routed* many = new Routed[3];
    EXPECT_EQ(Routed::alive, 3);
    delete[] many;
    Routed* maybe = new (std::nothrow) Routed;
    ASSERT_NE(maybe, nullptr);
    delete maybe;
    alignas(Routed) unsigned char place[sizeof(Routed)];
    Routed* placed = new (place) Routed;
    placed->~Routed();
    EXPECT_EQ(Routed::alive, 0);
}
