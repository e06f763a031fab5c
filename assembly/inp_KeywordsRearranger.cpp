#include "assembly/inp_KeywordsRearranger.h"

#include <utility>

#include "mesh/inp_Utils.h"
#include "support/atr_String.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// Null when the keyword lacks the parameter.
inp_Item const* parameterOf(inp_Keyword const& keyword, char const* name) {
    return keyword.Parameters().Find(name);
}

void reportSecondKeyword(char const* format, cow_String const& surfaceName) {
    thr_ThreadSingleton<wip_WIP>::Instance().Error(atr(format, surfaceName), wip_LEVEL0);
}

}  // namespace

bool inp_KeywordsRearranger::IsRigidSurfaceKeyword(inp_Keyword const& keyword) {
    if (keyword.Is(inp_kw_RigidSurface)) return true;
    if (!keyword.Is(inp_kw_Surface)) return false;
    inp_Item const* type = parameterOf(keyword, "type");
    return type && inp_Utils::IsAnalyticalSurfaceType(type->AsString());
}

void inp_KeywordsRearranger::Rearrange(cow_List<inp_Keyword>& keywords) {
    m_positions.Clear();
    recordRigidKeywords(keywords);
    swapReversedPairs(keywords);
}

void inp_KeywordsRearranger::recordRigidKeywords(cow_List<inp_Keyword> const& keywords) {
    int index = 0;
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.Is(inp_kw_RigidBody)) {
            if (inp_Item const* surface = parameterOf(keyword, "analyticalsurface"))
                RecordPositionOfRigidKeyword(surface->AsString(), keyword, index);
        } else if (IsRigidSurfaceKeyword(keyword)) {
            if (inp_Item const* name = parameterOf(keyword, "name"))
                RecordPositionOfRigidKeyword(name->AsString(), keyword, index);
        }
        ++index;
    }
}

void inp_KeywordsRearranger::RecordPositionOfRigidKeyword(cow_String const& surfaceName,
                                                          inp_Keyword const& keyword, int index) {
    inp_RigidKeywordPositions& positions = positionsOf(surfaceName);
    if (keyword.Is(inp_kw_RigidBody)) {
        if (!positions.InsertRigidBody(index))
            reportSecondKeyword(
                "There are more than one *RIGID BODY keywords associated with the analytical "
                "surface %s.  Please check input data.",
                surfaceName);
    } else if (!positions.InsertRigidSurface(index)) {
        reportSecondKeyword(
            "There are more than one rigid surface keywords associated with the analytical "
            "surface %s.  Please check input data.",
            surfaceName);
    }
}

inp_RigidKeywordPositions& inp_KeywordsRearranger::positionsOf(cow_String const& surfaceName) {
    if (!m_positions.IsMember(surfaceName))
        m_positions.Insert(surfaceName, inp_RigidKeywordPositions(surfaceName));
    return m_positions.Get(surfaceName);
}

// Each keyword belongs to at most one entry, so the swaps never touch the
// same index twice and their order does not change the result; the order of
// names is kept anyway, so that a reader of the list sees one fixed rule.
void inp_KeywordsRearranger::swapReversedPairs(cow_List<inp_Keyword>& keywords) const {
    m_positions.ForEachSorted(
        [&keywords](cow_String const&, inp_RigidKeywordPositions const& entry) {
            if (!entry.IsOrderReversed()) return;
            int const body = entry.ConstGetRigidBodyIndex();
            int const surface = entry.ConstGetRigidSurfaceIndex();
            inp_Keyword rigidBody = keywords.ConstGet(body);
            inp_Keyword rigidSurface = keywords.ConstGet(surface);
            keywords.Get(body) = std::move(rigidSurface);
            keywords.Get(surface) = std::move(rigidBody);
        });
}
