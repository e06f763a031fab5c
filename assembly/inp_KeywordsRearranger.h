#pragma once
// Puts every analytical rigid surface of a flat keyword list ahead of the
// *RIGID BODY that refers to it, so that a walk in list order meets the
// surface's definition before its use. Only those two keywords move, each
// into the other's place; everything else keeps its index.
//
// The positions are held, not inherited: an index only means something for
// the list that Rearrange walks, and a map open to any Insert or Remove could
// hold an entry whose key is not its surface's name.

#include "assembly/inp_RigidKeywordPositions.h"
#include "deck/inp_Keyword.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

class inp_KeywordsRearranger {
  public:
    // Records the positions of the rigid keywords of `keywords` (earlier
    // records are forgotten first), then, in ascending order of surface name,
    // swaps each rigid body that stands before its surface with that surface.
    // A second keyword of one kind for one surface is reported to the
    // thread's sink at level 0 and otherwise ignored.
    void Rearrange(cow_List<inp_Keyword>& keywords);

    // Records that `keyword`, a *RIGID BODY or a rigid surface keyword, stands
    // at `index` and belongs to the analytical surface `surfaceName`.
    void RecordPositionOfRigidKeyword(cow_String const& surfaceName, inp_Keyword const& keyword,
                                      int index);

    // By surface name.
    cow_Map<cow_String, inp_RigidKeywordPositions> const& Positions() const noexcept {
        return m_positions;
    }

    // *RIGID SURFACE, or *SURFACE whose type is an analytical one.
    static bool IsRigidSurfaceKeyword(inp_Keyword const& keyword);

  private:
    inp_RigidKeywordPositions& positionsOf(cow_String const& surfaceName);
    void recordRigidKeywords(cow_List<inp_Keyword> const& keywords);
    void swapReversedPairs(cow_List<inp_Keyword>& keywords) const;

    cow_Map<cow_String, inp_RigidKeywordPositions> m_positions;
};
