#pragma once
// From the labels of one level of a model to the indices they were given in
// a flat mesh. Labels are mostly dense, so a table over their range serves;
// a level whose labels are scattered wide gets a hash map instead.

#include <cstdint>
#include <unordered_map>
#include <vector>

class fedeck_LabelIndex {
  public:
    // Before the first Add: the least and greatest label and their number.
    void Reserve(int first, int last, std::size_t count) {
        std::int64_t const range = std::int64_t(last) - first + 1;
        m_dense = range > 0 && range <= std::int64_t(2 * count + 1024);
        m_first = first;
        if (m_dense) m_table.assign(static_cast<std::size_t>(range), -1);
    }
    void Add(int label, std::int32_t index) {
        if (m_dense)
            m_table[static_cast<std::size_t>(std::int64_t(label) - m_first)] = index;
        else
            m_sparse.emplace(label, index);
    }
    // -1 for a label the level lacks.
    std::int32_t Find(int label) const {
        if (m_dense) {
            std::int64_t const at = std::int64_t(label) - m_first;
            return at >= 0 && at < std::int64_t(m_table.size()) ? m_table[std::size_t(at)] : -1;
        }
        auto const found = m_sparse.find(label);
        return found != m_sparse.end() ? found->second : -1;
    }

  private:
    bool m_dense = true;
    int m_first = 0;
    std::vector<std::int32_t> m_table;
    std::unordered_map<int, std::int32_t> m_sparse;
};
