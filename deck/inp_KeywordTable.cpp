#include "deck/inp_KeywordTable.h"

#include <algorithm>
#include <vector>

#include "deck/inp_Exceptions.h"
#include "deck/inp_KeywordTableData.h"

inp_KeywordTable::inp_KeywordTable() {
    for (inp_KeywordTableRow const* row = inp_keywordTableRows; row->name; ++row) {
        cow_List<int> suboptions;
        if (row->suboptions)
            for (inp_KeywordEnm const* sub = row->suboptions; *sub != inp_kw_UndefinedKeyword;
                 ++sub)
                suboptions.Append(*sub);
        m_suboptionMap.Insert(row->keyword, suboptions);
        m_nameMap.Insert(row->keyword, cow_String(row->name));
        m_sortedNames.emplace_back(row->name, row->keyword);
    }
    std::sort(m_sortedNames.begin(), m_sortedNames.end());
    thr_ThrSingletonRegistry::SetDestructLevel(&thr_ThreadSingleton<inp_KeywordTable>::Finalize, 9);
}

// The names that start with `name` lie together in sorted order, from where
// `name` would stand: an exact name is the first of them, and a second one
// there makes an abbreviation ambiguous.
int inp_KeywordTable::Match(std::string_view name, inp_KeywordEnm& keyword) const {
    auto const first =
        std::lower_bound(m_sortedNames.begin(), m_sortedNames.end(), name,
                         [](std::pair<std::string_view, inp_KeywordEnm> const& entry,
                            std::string_view wanted) { return entry.first < wanted; });
    auto const startsWithName = [&](auto it) {
        return it != m_sortedNames.end() && it->first.starts_with(name);
    };
    keyword = inp_kw_UndefinedKeyword;
    if (!startsWithName(first)) return 0;
    if (first->first != name && startsWithName(first + 1)) return 2;
    keyword = first->second;
    return 1;
}

cow_String inp_KeywordTable::FullName(cow_String const& name) const {
    inp_KeywordEnm keyword = inp_kw_UndefinedKeyword;
    int const matches = Match(name.View(), keyword);
    if (matches == 0) throw inp_UnknownKeywordException(0, cow_String(), name);
    if (matches > 1) throw inp_AmbiguousKeywordException(0, cow_String(), name);
    return m_nameMap.ConstGet(keyword);
}

inp_KeywordEnm inp_KeywordTable::Enum(cow_String const& name) const {
    inp_KeywordEnm keyword = inp_kw_UndefinedKeyword;
    Match(name.View(), keyword);
    return keyword;
}

cow_String inp_KeywordTable::Name(inp_KeywordEnm keyword) const {
    return m_nameMap.ConstGet(keyword);
}

cow_List<int> const& inp_KeywordTable::Suboptions(int const& keyword) const {
    return m_suboptionMap.ConstGet(keyword);
}

void inp_KeywordTable::appendBelow(int keyword, cow_List<int>& result) const {
    for (int sub : Suboptions(keyword)) {
        result.Append(sub);
        appendBelow(sub, result);
    }
}

cow_List<int> inp_KeywordTable::AllKeywordsBelow(int const& keyword) const {
    cow_List<int> result;
    appendBelow(keyword, result);
    return result;
}

cow_List<int> inp_KeywordTable::AllKeywordsBelow(cow_List<int> const& keywords) const {
    cow_List<int> result;
    for (int keyword : keywords) {
        result.Append(keyword);
        appendBelow(keyword, result);
    }
    return result;
}

cow_List<int> inp_KeywordTable::AllKeywords() const {
    std::vector<int> keys;
    keys.reserve(static_cast<size_t>(m_suboptionMap.Size()));
    for (cow_ConstMapIterator<int, cow_List<int>> it(m_suboptionMap); it.NotDone(); it.Next())
        keys.push_back(it.CurrentKey());
    std::sort(keys.begin(), keys.end());
    cow_List<int> result;
    result.SetFromArray(keys.data(), static_cast<int>(keys.size()));
    return result;
}

cow_List<int> inp_KeywordTable::ParentKeywords(inp_KeywordEnm keyword) const {
    cow_List<int> parents;
    for (cow_ConstMapIterator<int, cow_List<int>> it(m_suboptionMap); it.NotDone(); it.Next())
        if (it.CurrentValue().IsMember(keyword)) parents.AppendUnlessMember(it.CurrentKey());
    return parents;
}

cow_List<int> inp_KeywordTable::PartSuboptions() const {
    return AllKeywordsBelow(inp_kw_Part);
}

cow_List<int> inp_KeywordTable::InstanceSuboptions() const {
    return AllKeywordsBelow(inp_kw_Instance);
}

cow_List<int> inp_KeywordTable::directSuboptionsWithout(int keyword, int excluded) const {
    cow_List<int> result;
    for (int sub : Suboptions(keyword))
        if (sub != excluded) result.Append(sub);
    return result;
}

cow_List<int> inp_KeywordTable::AssemblySuboptions() const {
    return AllKeywordsBelow(directSuboptionsWithout(inp_kw_Assembly, inp_kw_Instance));
}

cow_List<int> inp_KeywordTable::ModelSuboptions() const {
    cow_List<int> direct;
    for (int sub : Suboptions(inp_kw_Model))
        if (sub != inp_kw_Assembly && sub != inp_kw_Part) direct.Append(sub);
    return AllKeywordsBelow(direct);
}

cow_String inp_KeywordTable::KeywordEnum2String(cow_List<int> keywords) const {
    cow_String result;
    for (int k = 0; k < keywords.Length(); ++k) {
        if (k > 0) result.append(", ");
        result.append(Name(static_cast<inp_KeywordEnm>(keywords.ConstGet(k))));
    }
    return result;
}

int inp_KeywordTable::Finalize() {
    thr_ThreadSingleton<inp_KeywordTable>::Finalize();
    return 0;
}
