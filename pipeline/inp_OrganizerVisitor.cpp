#include "pipeline/inp_OrganizerVisitor.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "deck/inp_KeywordTable.h"
#include "mesh/inp_Utils.h"
#include "support/atr_String.h"
#include "support/pnt_PrettyPrint.h"
#include "support/typ_DebugFlags.h"

namespace {

// What a flat deck's top level takes: in a deck of parts these keywords would
// stand in the model, the assembly, an instance or a part.
constexpr inp_KeywordEnm kFlatDeckLevels[] = {inp_kw_Model, inp_kw_Assembly, inp_kw_Instance,
                                              inp_kw_Part};

void appendSuboptions(int key, std::vector<int>& keys) {
    cow_List<int> const& suboptions = inp_KeywordTable::Instance().Suboptions(key);
    keys.insert(keys.end(), suboptions.begin(), suboptions.end());
}

std::vector<int> ascendingUnique(std::vector<int>& keys) {
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return std::move(keys);
}

std::vector<int> rootLevelKeys(bool enhanced) {
    std::vector<int> keys;
    if (enhanced) {
        appendSuboptions(inp_kw_Model, keys);
    } else {
        for (inp_KeywordEnm level : kFlatDeckLevels) appendSuboptions(level, keys);
    }
    return ascendingUnique(keys);
}

void printMove(char const* move, inp_Keyword const& keyword) {
    if (typ_DebugFlags::GetDebugFlags(typ_DebugFlags::kDeckFlag) < 1) return;
    pnt_debugPrint().StartDebug(__FILE__, __LINE__);
    pnt_debugPrint() << move << keyword.Name();
    pnt_debugPrint().EndDebug();
}

// The lists are ascending: a deck of millions of keywords asks this once
// for each keyword and each level it climbs.
bool accepts(std::vector<int> const& allowed, int key) {
    return std::binary_search(allowed.begin(), allowed.end(), key);
}

// The levels that only their own end keyword closes (see CanPopKeyword).
bool closesAtItsOwnEnd(inp_KeywordEnm key) {
    return key == inp_kw_Part || key == inp_kw_Instance || key == inp_kw_Step ||
           key == inp_kw_Assembly;
}

// The record has no field of its own for the key of the keyword that holds
// it; its level mark, which no stage before this one sets, carries it.
void setParentKey(inp_Keyword& keyword, int parentKey) {
    keyword.SetLevel(parentKey);
}

}  // namespace

inp_OrganizerVisitor::inp_OrganizerVisitor(bool enhanced)
    : m_enhanced(enhanced), m_rootKeys(rootLevelKeys(enhanced)) {
    m_openKeywords.Append(inp_Keyword());
    m_allowedKeys.push_back(&m_rootKeys);
}

// The climb is a loop rather than a fresh Visit(keyword) after each pop:
// Visit would run the keyword's handler again for every level climbed (a
// *SUBSTRUCTURE PATH would count its depth twice) and would walk the
// keyword's own suboptions once per level besides the walk that follows the
// handler. A keyword that may not climb out of the top level is refused
// before the pop, which leaves the stacks as a pop and push back would.
void inp_OrganizerVisitor::DefaultAction(inp_Keyword& keyword) {
    int const key = keyword.Keyword();
    for (;;) {
        if (accepts(*m_allowedKeys.back(), key)) {
            printMove("OrganizerVisitor - Push: ", keyword);
            // A keyword of a flat list is taken out of it rather than copied;
            // one with suboptions stays, as the walk goes on into them.
            if (keyword.Suboptions().IsEmpty())
                push(std::move(keyword));
            else
                push(keyword);
            return;
        }
        if (m_openKeywords.Length() == 1 || !CanPopKeyword(m_openKeywords.Last(), keyword)) {
            MisplacedKeywordError(keyword);
            return;
        }
        printMove("OrganizerVisitor - Pop: ", keyword);
        closeTop();
    }
}

void inp_OrganizerVisitor::OrganizeAndReport(cow_List<inp_Keyword>&& keywords) {
    cow_List<inp_Keyword> flat = std::move(keywords);
    // A flat deck puts most of its keywords into the top level: room for
    // them all spares that list the moves of growing into larger blocks.
    cow_List<inp_Keyword>& topLevel = m_openKeywords.Get(0).GetSuboptions();
    if (topLevel.IsEmpty()) topLevel.Reserve(flat.Length());
    while (!flat.IsEmpty()) {
        Visit(flat.Get(0));
        flat.RemoveIndex(0);
    }
    Report();
}

// Scope as the base keeps it, but a step without a name is not this stage's
// fault to find.
void inp_OrganizerVisitor::VisitStep(inp_Keyword& keyword) {
    SetStepName(keyword);
    m_rootKeys = {inp_kw_Step, inp_kw_EndStep};
    DefaultAction(keyword);
}

cow_List<inp_Keyword> inp_OrganizerVisitor::Keywords() {
    while (m_openKeywords.Length() > 1) closeTop();
    cow_List<inp_Keyword>& topLevel = m_openKeywords.Get(0).GetSuboptions();
    int const count = topLevel.Length();
    // Most keywords of a flat deck have no suboptions: those are passed by
    // without the writable access that each Get would check sharing for.
    for (int i = 0; i < count; ++i)
        if (!topLevel.ConstGet(i).Suboptions().IsEmpty()) SetParentKeyOfSuboptions(topLevel.Get(i));
    return topLevel;
}

bool inp_OrganizerVisitor::CanPopKeyword(inp_Keyword const& open, inp_Keyword const& incoming) {
    switch (open.Keyword()) {
        case inp_kw_Part:
            return incoming.Is(inp_kw_EndPart);
        case inp_kw_Instance:
            return incoming.Is(inp_kw_EndInstance);
        case inp_kw_Step:
            return incoming.Is(inp_kw_EndStep);
        case inp_kw_Assembly:
            return incoming.Is(inp_kw_EndAssembly);
        default:
            return true;
    }
}

void inp_OrganizerVisitor::SetParentKeyOfSuboptions(inp_Keyword& keyword) {
    cow_List<inp_Keyword>& suboptions = keyword.GetSuboptions();
    int const count = suboptions.Length();
    for (int i = 0; i < count; ++i) {
        inp_Keyword& suboption = suboptions.Get(i);
        setParentKey(suboption, keyword.Keyword());
        SetParentKeyOfSuboptions(suboption);
    }
}

void inp_OrganizerVisitor::MisplacedKeywordError(inp_Keyword const& keyword) {
    AddFatalError(inp_Utils::MessageInKeyword(
        keyword, atr("The keyword is misplaced. It can be suboption for the following "
                     "keyword(s)/level(s): %s",
                     levelsThatAccept(keyword.Keyword()))));
}

// -- private ----------------------------------------------------------------------

// Decks write keywords of a kind in runs (a set after a set, a load after
// a load): the last answer is kept beside the cache.
std::vector<int> const& inp_OrganizerVisitor::allowedBelow(int key) {
    if (m_lastAllowed && m_lastAllowedKey == key) return *m_lastAllowed;
    auto [entry, added] = m_sortedSuboptions.try_emplace(key);
    if (added) {
        std::vector<int> keys;
        appendSuboptions(key, keys);
        entry->second = ascendingUnique(keys);
    }
    m_lastAllowedKey = key;
    m_lastAllowed = &entry->second;
    return entry->second;
}

// A keyword that may hold nothing would be closed by whatever comes next, as
// it accepts nothing: it goes straight into the open level that takes it
// instead of through the stack.
void inp_OrganizerVisitor::push(inp_Keyword keyword) {
    std::vector<int> const& allowed = allowedBelow(keyword.Keyword());
    if (allowed.empty() && !closesAtItsOwnEnd(keyword.Keyword())) {
        m_openKeywords.GetLast().GetSuboptions().Append(std::move(keyword));
        return;
    }
    m_allowedKeys.push_back(&allowed);
    m_openKeywords.Append(std::move(keyword));
}

void inp_OrganizerVisitor::closeTop() {
    m_allowedKeys.pop_back();
    inp_Keyword closed = m_openKeywords.Pop();
    m_openKeywords.GetLast().GetSuboptions().Append(std::move(closed));
}

cow_String inp_OrganizerVisitor::levelsThatAccept(int key) {
    if (cow_String const* known = m_parentLevels.Find(key)) return *known;
    inp_KeywordTable& table = inp_KeywordTable::Instance();
    cow_String levels =
        table.KeywordEnum2String(table.ParentKeywords(static_cast<inp_KeywordEnm>(key)));
    levels.Trim("_");
    m_parentLevels.Insert(key, levels);
    return levels;
}
