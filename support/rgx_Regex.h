#pragma once
#include <vector>

#include "support/cow_List.h"
#include "support/cow_String.h"

// A thin facade over std::regex (ECMAScript grammar) for the few places that
// match text against a pattern given as text.
//
// Every pattern is compiled once per thread and kept for the life of the
// thread, so calling rgx_match in a loop with the same pattern costs a search,
// not a compilation. An invalid pattern throws std::regex_error and is not kept.

// The outcome of one rgx_match: whether the pattern matched, and the groups.
class rgx_ReIterator {
  public:
    // Matched nothing.
    rgx_ReIterator() = default;

    bool Matched() const noexcept { return m_matched; }
    explicit operator bool() const noexcept { return m_matched; }

    // The matched text: the first capture group that took part in the match,
    // or the whole match if the pattern has no groups or none of them took
    // part. So for an anchored pattern with one group around the value, this is
    // the value without what surrounds it; with alternatives, each holding its
    // own group, it is the group of the alternative that matched. Empty when
    // nothing matched.
    cow_String String() const;
    // Group 0 is the whole match. A group that took no part gives "".
    cow_String String(int group) const;
    // The number of capture groups of the pattern; 0 when nothing matched.
    int GroupCount() const noexcept;

  private:
    friend rgx_ReIterator rgx_match(cow_String const& text, cow_String const& pattern);
    bool groupTookPart(int group) const;

    cow_String m_text;
    // Begin and end offset of each group into m_text, -1 for a group that took
    // no part; offsets rather than iterators keep <regex> out of this header.
    std::vector<int> m_bounds;
    bool m_matched = false;
};

// Searches `text` for `pattern` (std::regex_search semantics).
rgx_ReIterator rgx_match(cow_String const& text, cow_String const& pattern);

// The pieces of `text` between the matches of `pattern`, in order. Empty
// pieces are kept, also at the start and the end: "a,,b," split by "," gives
// "a", "", "b", "". A text without a match gives one piece, the text itself
// (so "" gives one empty piece). A match of zero length splits as well, so
// "ab" split by "x*" gives "", "a", "b", "".
cow_List<cow_String> rgx_split(cow_String const& text, cow_String const& pattern);

// The pieces joined with `separator` between each two; the reverse of
// rgx_split when the separator is what the pattern matched.
cow_String rgx_join(cow_List<cow_String> const& list, cow_String const& separator);
