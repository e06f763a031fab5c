#pragma once
#include "mesh/inp_ElementInfo.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

// One row of the reflection table: a type name and the one-based positions
// that make up a mirrored element's connectivity, ended by a 0.
struct inp_ReflectionRow {
    static constexpr int kMaxPositions = 27;
    char const* name;
    int positions[kMaxPositions + 1];
};

// What an element type is: the constant tables of element types, of obsolete
// types and of reflections, and the lookups the element and node readers make
// on them.
//
// The readers each load their own maps of the tables (the maps are copied by
// a count, so loading once and sharing a copy is just as well). The
// reflection of a connectivity is also offered as a static function on a map
// loaded once for the process and never written, so that reading it from
// several threads is safe.
class inp_ElementTypes {
  public:
    // The constant tables, each ended by a row with a null name.
    static inp_ElementInfo const kTypeRows[];
    static inp_ElementInfo const kObsoleteRows[];
    static inp_ReflectionRow const kReflectionRows[];

    static cow_Map<cow_String, inp_ElementInfo> LoadTypeTable();
    static cow_Map<cow_String, inp_ElementInfo> LoadObsoleteTable();
    static cow_Map<cow_String, cow_List<int>> LoadReflectionTable();

    // How an element type name is resolved, in this order of precedence.
    enum Kind {
        kTableType,     // a row of the type table: its counts apply
        kSuperelement,  // Z and digits: node counts are open
        kUserElement,   // U and digits, possibly after Vs: counts come from *USER ELEMENT
        kObsolete,      // a type that is refused with a message of its own
        kUnsupported,   // anything else
    };

    // Loads all three tables.
    inp_ElementTypes();

    // Resolves a type name; `info` gets the row of a table type and is left
    // alone for every other kind.
    Kind Classify(cow_String const& type, inp_ElementInfo& info) const;
    // The row of a table type, or null. The name is taken as it stands: the
    // parser has upper-cased parameter values by then.
    inp_ElementInfo const* FindType(cow_String const& type) const;
    bool IsObsolete(cow_String const& type) const { return m_obsolete.IsMember(type); }
    static bool IsSuperelementName(cow_String const& type);
    static bool IsUserElementName(cow_String const& type);
    bool HasReflection(cow_String const& type) const { return m_reflection.IsMember(type); }

    cow_Map<cow_String, inp_ElementInfo> const& TypeTable() const { return m_types; }
    cow_Map<cow_String, inp_ElementInfo> const& ObsoleteTable() const { return m_obsolete; }
    cow_Map<cow_String, cow_List<int>> const& ReflectionTable() const { return m_reflection; }

    // Reorders the connectivity of a mirrored copy: position i takes the old
    // node at the one-based position the type's list holds at i. The type
    // must have a row in the reflection table. An element shorter than its
    // row (optional nodes left out) is reordered on the positions it has.
    static void RenumberTopologyDueToReflection(cow_String const& type, int* nodes, int count);
    static void RenumberTopologyDueToReflection(cow_String const& type, cow_List<int>& nodes);
    // The same with a list of positions at hand, e.g. from a loaded table.
    static void RenumberTopologyDueToReflection(cow_List<int> const& positions, int* nodes,
                                                int count);

  private:
    cow_Map<cow_String, inp_ElementInfo> m_types;
    cow_Map<cow_String, inp_ElementInfo> m_obsolete;
    cow_Map<cow_String, cow_List<int>> m_reflection;
};
