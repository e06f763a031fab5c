#pragma once

// One row of the element type tables: a type name (upper case) and the least
// and greatest number of nodes an element of the type may have. The rows are
// constants, so the name points into static storage.
struct inp_ElementInfo {
    char const* name = nullptr;
    int least = 0;
    int greatest = 0;

    // Whether the type accepts more than one node count.
    bool HasRangedCount() const noexcept { return least != greatest; }
};
