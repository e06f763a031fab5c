#pragma once
// Rows of a table that belong to keywords (a row has a `keyword` member),
// found by keyword in one step: the rows grouped by keyword, and for each
// keyword number where its group begins and ends. The tables of reference
// positions are written in the order a reader looks for them; this index
// makes that order free.

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "deck/inp_keywords.h"

template <class Row>
class inp_KeywordRowIndex {
  public:
    explicit inp_KeywordRowIndex(std::span<Row const> table) : m_rows(table.begin(), table.end()) {
        std::stable_sort(m_rows.begin(), m_rows.end(),
                         [](Row const& a, Row const& b) { return a.keyword < b.keyword; });
        if (m_rows.empty()) return;
        m_range.assign(static_cast<size_t>(m_rows.back().keyword) + 1, {0, 0});
        for (size_t i = 0; i < m_rows.size(); ++i) {
            auto& range = m_range[static_cast<size_t>(m_rows[i].keyword)];
            if (range[1] == 0) range[0] = static_cast<int>(i);
            range[1] = static_cast<int>(i) + 1;
        }
    }

    // The rows of `keyword`, in table order; empty for a keyword without.
    std::span<Row const> RowsOf(inp_KeywordEnm keyword) const {
        auto const number = static_cast<size_t>(keyword);
        if (number >= m_range.size()) return {};
        auto const [first, last] = m_range[number];
        return std::span<Row const>(m_rows).subspan(static_cast<size_t>(first),
                                                    static_cast<size_t>(last - first));
    }

  private:
    std::vector<Row> m_rows;
    std::vector<std::array<int, 2>> m_range;  // by keyword number: first row, past the last
};
