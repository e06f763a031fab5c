#include "support/rgx_Regex.h"

#include <functional>
#include <regex>
#include <string>
#include <string_view>
#include <unordered_map>

#include "support/ZELBasAssert.h"

namespace {

struct PatternHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const noexcept {
        return std::hash<std::string_view>()(text);
    }
};

// Keys are private std::string copies: a cow_String key would share its
// counted representation with the caller's string.
using PatternCache = std::unordered_map<std::string, std::regex, PatternHash, std::equal_to<>>;

std::regex const& compiledPattern(std::string_view pattern) {
    thread_local PatternCache cache;
    auto found = cache.find(pattern);
    if (found != cache.end()) return found->second;
    // Compile before inserting, so that an invalid pattern leaves no entry.
    std::regex compiled(pattern.begin(), pattern.end(), std::regex::ECMAScript);
    return cache.emplace(std::string(pattern), std::move(compiled)).first->second;
}

int offsetIn(char const* begin, char const* position) {
    return static_cast<int>(position - begin);
}

}  // namespace

rgx_ReIterator rgx_match(cow_String const& text, cow_String const& pattern) {
    std::regex const& compiled = compiledPattern(pattern.View());
    rgx_ReIterator result;
    result.m_text = text;
    char const* begin = text.CStr();
    std::cmatch groups;
    result.m_matched = std::regex_search(begin, begin + text.Length(), groups, compiled);
    if (!result.m_matched) return result;
    result.m_bounds.reserve(2 * groups.size());
    for (auto const& group : groups) {
        result.m_bounds.push_back(group.matched ? offsetIn(begin, group.first) : -1);
        result.m_bounds.push_back(group.matched ? offsetIn(begin, group.second) : -1);
    }
    return result;
}

int rgx_ReIterator::GroupCount() const noexcept {
    return m_matched ? static_cast<int>(m_bounds.size() / 2) - 1 : 0;
}

bool rgx_ReIterator::groupTookPart(int group) const {
    return m_bounds[2 * static_cast<size_t>(group)] >= 0;
}

cow_String rgx_ReIterator::String(int group) const {
    ZELBAS_ASSERT(group >= 0);
    if (!m_matched) return cow_String();
    ZELBAS_ASSERT(group <= GroupCount());
    if (!groupTookPart(group)) return cow_String();
    int begin = m_bounds[2 * static_cast<size_t>(group)];
    int end = m_bounds[2 * static_cast<size_t>(group) + 1];
    if (begin == 0 && end == m_text.Length()) return m_text;  // shares, no copy
    return m_text.Substr(begin, end - begin);
}

cow_String rgx_ReIterator::String() const {
    for (int group = 1; group <= GroupCount(); ++group)
        if (groupTookPart(group)) return String(group);
    return String(0);
}

cow_List<cow_String> rgx_split(cow_String const& text, cow_String const& pattern) {
    std::regex const& compiled = compiledPattern(pattern.View());
    char const* begin = text.CStr();
    char const* end = begin + text.Length();
    cow_List<cow_String> pieces;
    char const* pieceStart = begin;
    for (std::cregex_iterator match(begin, end, compiled), done; match != done; ++match) {
        char const* matchStart = (*match)[0].first;
        pieces.Append(cow_String(pieceStart, offsetIn(pieceStart, matchStart)));
        pieceStart = (*match)[0].second;
    }
    pieces.Append(cow_String(pieceStart, offsetIn(pieceStart, end)));
    return pieces;
}

cow_String rgx_join(cow_List<cow_String> const& list, cow_String const& separator) {
    int length = 0;
    for (cow_String const& piece : list) length += piece.Length() + separator.Length();
    cow_String joined;
    if (length == 0) return joined;
    joined.Reserve(length - separator.Length());
    bool first = true;
    for (cow_String const& piece : list) {
        if (!first) joined.append(separator);
        joined.append(piece);
        first = false;
    }
    return joined;
}
