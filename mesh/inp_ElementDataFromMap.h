#pragma once
// The *ELEMENT data lines of elements held in an element map: the compact
// deck form of deck/inp_ElementDataArrayImpl.h, built from the map's records.

#include "deck/inp_ElementDataArrayImpl.h"
#include "support/cow_List.h"

class inp_MapInt2Element;

// The deck form of the listed elements, in the order of `labels`. A negative
// label names the map's second table under its absolute value; a label that
// the map lacks is skipped.
inp_ElementDataArrayImpl inp_ElementDataFromMap(cow_List<int> const& labels,
                                                inp_MapInt2Element const& elements);
