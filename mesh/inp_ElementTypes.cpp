#include "mesh/inp_ElementTypes.h"

#include <algorithm>

#include "deck/inp_PatternMatchers.h"
#include "support/ZELBasAssert.h"

namespace {

cow_Map<cow_String, inp_ElementInfo> loadInfoRows(inp_ElementInfo const* rows) {
    cow_Map<cow_String, inp_ElementInfo> table;
    for (; rows->name != nullptr; ++rows) table.Insert(rows->name, *rows);
    return table;
}

cow_List<int> positionsOf(inp_ReflectionRow const& row) {
    int const* const end =
        std::find(row.positions, row.positions + inp_ReflectionRow::kMaxPositions, 0);
    cow_List<int> positions;
    positions.SetFromArray(row.positions, static_cast<int>(end - row.positions));
    return positions;
}

// Loaded once, and only ever read afterwards: reading a map touches no count.
cow_Map<cow_String, cow_List<int>> const& processReflectionTable() {
    static cow_Map<cow_String, cow_List<int>> const table = inp_ElementTypes::LoadReflectionTable();
    return table;
}

}  // namespace

cow_Map<cow_String, inp_ElementInfo> inp_ElementTypes::LoadTypeTable() {
    return loadInfoRows(kTypeRows);
}

cow_Map<cow_String, inp_ElementInfo> inp_ElementTypes::LoadObsoleteTable() {
    return loadInfoRows(kObsoleteRows);
}

cow_Map<cow_String, cow_List<int>> inp_ElementTypes::LoadReflectionTable() {
    cow_Map<cow_String, cow_List<int>> table;
    for (inp_ReflectionRow const* row = kReflectionRows; row->name != nullptr; ++row) {
        table.Insert(row->name, positionsOf(*row));
    }
    return table;
}

inp_ElementTypes::inp_ElementTypes()
    : m_types(LoadTypeTable()),
      m_obsolete(LoadObsoleteTable()),
      m_reflection(LoadReflectionTable()) {}

inp_ElementTypes::Kind inp_ElementTypes::Classify(cow_String const& type,
                                                  inp_ElementInfo& info) const {
    if (inp_ElementInfo const* const row = FindType(type)) {
        info = *row;
        return kTableType;
    }
    if (IsSuperelementName(type)) return kSuperelement;
    if (IsUserElementName(type)) return kUserElement;
    if (IsObsolete(type)) return kObsolete;
    return kUnsupported;
}

inp_ElementInfo const* inp_ElementTypes::FindType(cow_String const& type) const {
    // Membership goes by the name as it stands. Every key is upper case, so a
    // member is its own upper-case form and one lookup serves for the fetch.
    return m_types.Find(type);
}

bool inp_ElementTypes::IsSuperelementName(cow_String const& type) {
    return inp_PatternMatchers::MatchSuperelementID(type.View()).matched;
}

bool inp_ElementTypes::IsUserElementName(cow_String const& type) {
    return inp_PatternMatchers::MatchUserElementID(type.View()).matched;
}

void inp_ElementTypes::RenumberTopologyDueToReflection(cow_String const& type, int* nodes,
                                                       int count) {
    cow_List<int> const* const positions = processReflectionTable().Find(type);
    ZELBAS_ASSERT_TEXT(positions != nullptr, "type has a row in the reflection table");
    RenumberTopologyDueToReflection(*positions, nodes, count);
}

void inp_ElementTypes::RenumberTopologyDueToReflection(cow_String const& type,
                                                       cow_List<int>& nodes) {
    int buffer[inp_ReflectionRow::kMaxPositions];
    int const count = std::min(nodes.Length(), inp_ReflectionRow::kMaxPositions);
    std::copy_n(nodes.begin(), count, buffer);
    RenumberTopologyDueToReflection(type, buffer, count);
    for (int i = 0; i < count; ++i) {
        if (nodes.ConstGet(i) != buffer[i]) nodes.Get(i) = buffer[i];
    }
}

void inp_ElementTypes::RenumberTopologyDueToReflection(cow_List<int> const& positions, int* nodes,
                                                       int count) {
    ZELBAS_ASSERT(positions.Length() <= inp_ReflectionRow::kMaxPositions);
    int old[inp_ReflectionRow::kMaxPositions];
    int const reordered = std::min(count, positions.Length());
    std::copy_n(nodes, reordered, old);
    for (int i = 0; i < reordered; ++i) {
        int const from = positions.ConstGet(i) - 1;
        if (from >= 0 && from < reordered) nodes[i] = old[from];
    }
}
