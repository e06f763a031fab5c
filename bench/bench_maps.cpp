#include <benchmark/benchmark.h>

#include <cstdint>

#include "support/cow_Btree.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_OmiSet.h"
#include "support/inpM_Set.h"
#include "support/omi_IntTable.h"

namespace {

constexpr int kLabels = 1000000;

// One million ascending labels into an int table: the node and element tables
// and the renumbering maps are filled this way.
void BM_IntTableAscendingInsert(benchmark::State& state) {
    for (auto _ : state) {
        omi_IntTable<int> table;
        for (int label = 1; label <= kLabels; ++label) table.Insert(label, label);
        benchmark::DoNotOptimize(table);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_IntTableAscendingInsert)->Unit(benchmark::kMillisecond);

void BM_IntTableLookup(benchmark::State& state) {
    omi_IntTable<int> table;
    for (int label = 1; label <= kLabels; ++label) table.Insert(label, label);
    for (auto _ : state) {
        int64_t sum = 0;
        for (int label = 1; label <= kLabels; ++label) sum += *table.Lookup(label);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_IntTableLookup)->Unit(benchmark::kMillisecond);

// The same through the copy-on-write table of the id maps.
void BM_IdMapTranslate(benchmark::State& state) {
    inpM_IdMap map;
    for (int label = 1; label <= kLabels; ++label) map.Insert(label, kLabels + 1 - label);
    int nodes[8];
    for (auto _ : state) {
        int64_t sum = 0;
        for (int first = 1; first + 8 <= kLabels; first += 8) {
            for (int i = 0; i < 8; ++i) nodes[i] = first + i;
            map.Renumber(nodes, 8);
            sum += nodes[0];
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * (kLabels / 8) * 8);
}
BENCHMARK(BM_IdMapTranslate)->Unit(benchmark::kMillisecond);

// One million ascending ids into a set: what a reader of a generated *NSET does.
void BM_OmiSetAscendingInsert(benchmark::State& state) {
    for (auto _ : state) {
        inpM_OmiSet set;
        set.ReserveAdditional(kLabels);
        for (int id = 1; id <= kLabels; ++id) set.Insert(id);
        benchmark::DoNotOptimize(set);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_OmiSetAscendingInsert)->Unit(benchmark::kMillisecond);

// The whole path of a set reader: an id list built first, then one Add.
void BM_SortedSetFromAscendingList(benchmark::State& state) {
    cow_List<int> ids;
    ids.Reserve(kLabels);
    for (int id = 1; id <= kLabels; ++id) ids.Append(id);
    for (auto _ : state) {
        inpM_SetHandle set = CreateSet(ids, false, false);
        benchmark::DoNotOptimize(set);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_SortedSetFromAscendingList)->Unit(benchmark::kMillisecond);

void BM_SetIdListOut(benchmark::State& state) {
    cow_List<int> ids;
    for (int id = 1; id <= kLabels; ++id) ids.Append(id);
    inpM_SetHandle const set = CreateSet(ids, false, false);
    for (auto _ : state) benchmark::DoNotOptimize(set->ConstGetIdList());
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_SetIdListOut)->Unit(benchmark::kMillisecond);

void BM_BtreeAscendingInsert(benchmark::State& state) {
    for (auto _ : state) {
        cow_Btree<int, int> tree;
        for (int key = 1; key <= kLabels; ++key) tree.Insert(key, key);
        benchmark::DoNotOptimize(tree);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_BtreeAscendingInsert)->Unit(benchmark::kMillisecond);

void BM_BtreeLookup(benchmark::State& state) {
    cow_Btree<int, int> tree;
    for (int key = 1; key <= kLabels; ++key) tree.Insert(key, key);
    for (auto _ : state) {
        int64_t sum = 0;
        for (int key = 1; key <= kLabels; ++key) sum += *tree.Find(key);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kLabels);
}
BENCHMARK(BM_BtreeLookup)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
