#pragma once
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_Set.h"

// The sets of one level by name. Copies share the tree and the sets.
class inpM_BaseSetMap : public cow_Map<cow_String, inpM_SetHandle> {
  public:
    using cow_Map<cow_String, inpM_SetHandle>::cow_Map;
};

// Walks a snapshot of a set map in ascending name order: First, Next,
// IsDone, CurrentKey (the name), CurrentValue (the set handle).
class inpM_BaseSetMapSIT : public cow_ConstMapSortedIt<cow_String, inpM_SetHandle> {
    using Base = cow_ConstMapSortedIt<cow_String, inpM_SetHandle>;

  public:
    explicit inpM_BaseSetMapSIT(inpM_BaseSetMap const& sets) : Base(sets, &Base::AscSortCmp) {}
};
