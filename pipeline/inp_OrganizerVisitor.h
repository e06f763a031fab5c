#pragma once
// Turns the flat keyword list of a deck into a tree: each keyword becomes a
// suboption of the nearest open keyword that may hold it, by the suboption
// lists of the keyword table. A keyword that fits nowhere is left out, with a
// fatal error that names the levels that would take it.
//
// Two stacks of equal depth drive the walk: the open keywords, whose bottom is
// an empty root, and for each of them the keys that may stand directly below
// it. A keyword that the top does not accept closes open levels one by one
// until one accepts it; *PART, *INSTANCE, *ASSEMBLY and *STEP close only at
// their own end keyword. From the first *STEP on, the top level holds nothing
// but steps.
//
// Use: construct, OrganizeAndReport (or VisitListAndReport) over the flat
// list, then Keywords() once. The walk takes the keywords it places out of
// the flat list, leaving empty records behind (a keyword with suboptions is
// copied instead): the flat list is meant to be replaced by what Keywords()
// returns.

#include <unordered_map>
#include <vector>

#include "deck/inp_Keyword.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

class inp_OrganizerVisitor : public inp_Visitor {
  public:
    // `enhanced`: the deck is built of parts and an assembly. A flat deck's
    // top level takes what a part, an instance or an assembly would hold.
    explicit inp_OrganizerVisitor(bool enhanced);
    // The stack of open levels points into the object itself.
    inp_OrganizerVisitor(inp_OrganizerVisitor const&) = delete;
    inp_OrganizerVisitor& operator=(inp_OrganizerVisitor const&) = delete;

    // Walks `keywords`, taken over, and reports: each record leaves the flat
    // list as soon as it is placed, so that the flat list's memory comes free
    // while the tree grows instead of after.
    void OrganizeAndReport(cow_List<inp_Keyword>&& keywords);

    void DefaultAction(inp_Keyword& keyword) override;
    void VisitStep(inp_Keyword& keyword) override;

    // Closes the levels still open and returns the top level of the tree,
    // every suboption carrying its holder's key as parent key. A later call
    // returns the same tree.
    cow_List<inp_Keyword> Keywords();

    bool IsEnhanced() const noexcept { return m_enhanced; }

    // False only where `open` is a *PART, *INSTANCE, *STEP or *ASSEMBLY and
    // `incoming` is not its end keyword.
    static bool CanPopKeyword(inp_Keyword const& open, inp_Keyword const& incoming);
    // Depth first below `keyword`: each suboption gets its holder's key as
    // parent key; `keyword` itself is left as it is.
    static void SetParentKeyOfSuboptions(inp_Keyword& keyword);
    // The parent key that SetParentKeyOfSuboptions gave. The record has no
    // field of its own for it and keeps it in its level mark, so a keyword it
    // did not reach reads whatever mark it had (0 unless a stage set one).
    static int ParentKeyOf(inp_Keyword const& keyword) { return keyword.Level(); }
    // Adds the fatal error for a keyword that no open level takes.
    void MisplacedKeywordError(inp_Keyword const& keyword);

  private:
    std::vector<int> const& allowedBelow(int key);
    void push(inp_Keyword keyword);
    void closeTop();
    cow_String levelsThatAccept(int key);

    bool m_enhanced;
    cow_List<inp_Keyword> m_openKeywords;  // bottom: the root
    std::vector<int> m_rootKeys;           // what the root takes, ascending
    // In step with m_openKeywords: what each open level takes, ascending;
    // the root's list, then entries of m_sortedSuboptions.
    std::vector<std::vector<int> const*> m_allowedKeys;
    // Caches of values that depend only on a key, so that a deck of millions
    // of keywords asks the table once per kind of keyword. The suboptions'
    // lists stay where they are once made: the stack above points at them.
    std::unordered_map<int, std::vector<int>> m_sortedSuboptions;
    int m_lastAllowedKey = 0;
    std::vector<int> const* m_lastAllowed = nullptr;  // the entry of m_lastAllowedKey
    cow_Map<int, cow_String> m_parentLevels;
};
