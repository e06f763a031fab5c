#pragma once
// Rows of integer data as vectors, for tests that compare compact data.

#include <vector>

#include "deck/inp_DataArrayImpl.h"

// Row `i` of `data`, read as integers.
inline std::vector<int> rowOf(inp_DataArrayImpl& data, int i) {
    std::vector<int> row;
    for (int j = 0; j < data.Cols(i); ++j) row.push_back(data.AsInt(i, j));
    return row;
}

// first, first + 1, ..., count values.
inline std::vector<int> range(int first, int count) {
    std::vector<int> values;
    for (int k = 0; k < count; ++k) values.push_back(first + k);
    return values;
}

// The values of a, then those of b.
inline std::vector<int> operator+(std::vector<int> a, std::vector<int> const& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}
