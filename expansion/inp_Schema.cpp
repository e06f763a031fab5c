#include "expansion/inp_Schema.h"

#include <algorithm>

namespace {

// The lookup is an array indexed by key, so a keyword visit costs one load.
constexpr int kKeyLimit = inp_keywordKeyLimit;

struct SchemaIndex {
    std::vector<inp_SchemaRow const*> rows;
    std::vector<inp_SchemaRow const*> byKey;

    SchemaIndex() : byKey(kKeyLimit, nullptr) {
        for (auto family : {inp_SchemaStructureRows, inp_SchemaMeshRows, inp_SchemaMaterialsRows,
                            inp_SchemaSectionsRows, inp_SchemaConstraintsRows,
                            inp_SchemaConnectorsRows, inp_SchemaContactRows, inp_SchemaFluidsRows,
                            inp_SchemaProceduresRows, inp_SchemaLoadsRows, inp_SchemaOutputRows}) {
            for (inp_SchemaRow const& row : family()) add(row);
        }
    }

    void add(inp_SchemaRow const& row) {
        rows.push_back(&row);
        int const key = row.key;
        if (key >= 0 && key < kKeyLimit && !byKey[key]) byKey[key] = &row;
    }
};

// Built on first use and never changed: safe to share between threads.
SchemaIndex const& index() {
    static SchemaIndex const instance;
    return instance;
}

}  // namespace

inp_SchemaRow const* inp_Schema::Find(int key) {
    if (key < 0 || key >= kKeyLimit) return nullptr;
    return index().byKey[key];
}

std::vector<inp_SchemaRow const*> const& inp_Schema::AllRows() {
    return index().rows;
}
