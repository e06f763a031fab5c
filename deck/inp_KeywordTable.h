#pragma once
// The dictionary of the deck language: every keyword's name and number, and
// which keywords may stand directly below which. One instance per thread,
// built from the constant table on first use.
//
// Names are the folded forms: lower case, no blanks ("beamgeneralsection").
// Any unique prefix of a name resolves to it; an exact name wins over longer
// names that start with it.

#include <string_view>
#include <utility>
#include <vector>

#include "deck/inp_keywords.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/thr_Singleton.h"

class inp_KeywordTable : public thr_ThreadSingleton<inp_KeywordTable> {
  public:
    inp_KeywordTable();

    // The exact name, or the one name that `name` abbreviates. Throws
    // inp_UnknownKeywordException or inp_AmbiguousKeywordException (line 0, no file).
    cow_String FullName(cow_String const& name) const;
    // The enumerator; 0 for an unknown or ambiguous name.
    inp_KeywordEnm Enum(cow_String const& name) const;
    // How a folded name resolves, without throwing: 0 if it is no name and
    // abbreviates none, 1 if it is a name or abbreviates exactly one (then
    // `keyword` is set to it), 2 if it abbreviates several. Any count but 1
    // leaves `keyword` 0.
    int Match(std::string_view name, inp_KeywordEnm& keyword) const;
    // The table's name; the enumerator must exist.
    cow_String Name(inp_KeywordEnm keyword) const;
    // Direct suboptions; the enumerator must exist.
    cow_List<int> const& Suboptions(int const& keyword) const;

    // Everything below, depth first, each member before what lies below it.
    // Not made unique: a keyword reachable twice stands twice.
    cow_List<int> AllKeywordsBelow(int const& keyword) const;
    cow_List<int> AllKeywordsBelow(cow_List<int> const& keywords) const;
    // All enumerators, ascending.
    cow_List<int> AllKeywords() const;
    // Every keyword that has `keyword` among its direct suboptions, in the map's order.
    cow_List<int> ParentKeywords(inp_KeywordEnm keyword) const;

    // What may stand below *PART, below *INSTANCE, in an *ASSEMBLY (without
    // what only an instance allows), and at model level (without the part and
    // assembly structure).
    cow_List<int> PartSuboptions() const;
    cow_List<int> InstanceSuboptions() const;
    cow_List<int> AssemblySuboptions() const;
    cow_List<int> ModelSuboptions() const;

    // The names joined by ", ".
    cow_String KeywordEnum2String(cow_List<int> keywords) const;

    // Ends this thread's instance; the next use builds a new one.
    static int Finalize();

  private:
    void appendBelow(int keyword, cow_List<int>& result) const;
    cow_List<int> directSuboptionsWithout(int keyword, int excluded) const;

    cow_Map<int, cow_List<int>> m_suboptionMap;  // enumerator to suboptions
    cow_Map<int, cow_String> m_nameMap;          // enumerator to name
    // Every name with its enumerator, in ascending order of the names.
    std::vector<std::pair<std::string_view, inp_KeywordEnm>> m_sortedNames;
};
