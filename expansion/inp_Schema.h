#pragma once
// The keyword schema: one row for each keyword that a deck may hold (every
// keyword of the keyword table but the blanked keyword, the end of file
// marker and the model root). The rows live in one constant table per family
// of keywords; this class finds them by key.

#include <span>
#include <vector>

#include "expansion/inp_SchemaRow.h"

// The families, one file each (inp_Schema<Family>.cpp).
std::span<inp_SchemaRow const> inp_SchemaStructureRows();
std::span<inp_SchemaRow const> inp_SchemaMeshRows();
std::span<inp_SchemaRow const> inp_SchemaMaterialsRows();
std::span<inp_SchemaRow const> inp_SchemaSectionsRows();
std::span<inp_SchemaRow const> inp_SchemaConstraintsRows();
std::span<inp_SchemaRow const> inp_SchemaConnectorsRows();
std::span<inp_SchemaRow const> inp_SchemaContactRows();
std::span<inp_SchemaRow const> inp_SchemaFluidsRows();
std::span<inp_SchemaRow const> inp_SchemaProceduresRows();
std::span<inp_SchemaRow const> inp_SchemaLoadsRows();
std::span<inp_SchemaRow const> inp_SchemaOutputRows();

class inp_Schema {
  public:
    // The row of the keyword with this key; null for a key without one. When
    // two families hold a row for the same key (a fault the schema's tests
    // catch), the first family in the order above wins.
    static inp_SchemaRow const* Find(int key);
    // Every row of every family, family by family, in table order.
    static std::vector<inp_SchemaRow const*> const& AllRows();
};
