#pragma once
// For tests of sharing in the copy-on-write trees: how many node objects two
// trees have in common, given the nodes each reaches.

#include <algorithm>
#include <iterator>
#include <vector>

template <class Node>
int cow_CountCommonNodes(std::vector<Node const*> mine, std::vector<Node const*> theirs) {
    std::sort(mine.begin(), mine.end());
    std::sort(theirs.begin(), theirs.end());
    std::vector<Node const*> common;
    std::set_intersection(mine.begin(), mine.end(), theirs.begin(), theirs.end(),
                          std::back_inserter(common));
    return static_cast<int>(common.size());
}
