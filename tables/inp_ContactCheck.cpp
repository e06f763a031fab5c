#include "tables/inp_ContactCheck.h"

#include "deck/inp_Item.h"
#include "support/inpM_AssemblyInstanceSurface.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

constexpr char kCrossInstanceContactOutput[] =
    "Contact field output is requested for a node-based surface (*SURFACE, TYPE=NODE) spanning "
    "multiple instances in an Fenrik/Explicit analysis. This is currently not supported. Please "
    "remove the contact field output for the contact pair in question, or split the node-based "
    "surface into separate surfaces each spanning just one instance. ";

bool hasFieldOutput(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_Output) && keyword.HasParameter("field");
}

void removeFrom(cow_List<cow_String>& list, cow_String const& name) {
    for (int i = list.Length() - 1; i >= 0; --i)
        if (list.ConstGet(i) == name) list.RemoveIndex(i);
}

}  // namespace

inp_ContactCheck::inp_ContactCheck(inpM_SurfaceMap const& assemblySurfaces,
                                   cow_List<inp_Keyword> const& tree)
    : m_surfaces(assemblySurfaces), m_tree(tree) {}

cow_String inp_ContactCheck::setNameOf(inp_Keyword const& keyword) {
    return keyword.GetParameterAsString("cpset", cow_String(kUniversalSet));
}

void inp_ContactCheck::PerformCheck(bool universalOutput) {
    if (!IsExplicitJob() || !HasCrossInstanceNodeBasedSurfaces()) return;
    if (!InputContainsOutputKeywords(m_tree) && universalOutput)
        m_outputSets.AppendUnlessMember(cow_String(kUniversalSet));
    for (inp_Keyword const& keyword : m_tree)
        if (keyword.Is(inp_kw_Step)) CheckIndividualStep(keyword.Suboptions());
}

bool inp_ContactCheck::IsExplicitKeyword(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_DynamicTemperatureDisplacement) ||
           (keyword.Is(inp_kw_Dynamic) && keyword.HasParameter("explicit"));
}

bool inp_ContactCheck::IsExplicitJob() const {
    for (inp_Keyword const& keyword : m_tree)
        if (keyword.Is(inp_kw_Step) && !keyword.Suboptions().IsEmpty() &&
            IsExplicitKeyword(keyword.Suboptions().ConstGet(0)))
            return true;
    return false;
}

bool inp_ContactCheck::HasCrossInstanceNodeBasedSurfaces() {
    m_surfaces.ConstGetAssemblyInstanceSurfaceMap().ForEachSorted(
        [this](cow_String const& name, inpM_AssemblyInstanceSurface const& surface) {
            if (surface.IsCrossInstanceNodeBasedSurface()) m_crossInstanceSurfaces.Append(name);
        });
    return !m_crossInstanceSurfaces.IsEmpty();
}

bool inp_ContactCheck::InputContainsOutputKeywords(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords)
        if (keyword.Is(inp_kw_Output) || InputContainsOutputKeywords(keyword.Suboptions()))
            return true;
    return false;
}

void inp_ContactCheck::CheckIndividualStep(cow_List<inp_Keyword> const& suboptions) {
    if (suboptions.IsEmpty() || !IsExplicitKeyword(suboptions.ConstGet(0))) return;
    FindActiveCPSETs(suboptions);
    FindOutputCPSETs(suboptions);
    for (cow_String const& set : m_outputSets) {
        if (!m_activeSets.IsMember(set)) continue;
        thr_ThreadSingleton<wip_WIP>::Instance().Error(atr_String(kCrossInstanceContactOutput),
                                                       wip_LEVEL0);
        return;
    }
}

cow_List<cow_String> inp_ContactCheck::GrabAssySurfaceNamesFromData(inp_Keyword const& keyword) {
    cow_List<cow_String> names;
    inp_DataArray const& data = keyword.Data();
    for (int line = 0; line < data.Rows(); ++line) {
        if (data.Cols(line) == 1) {
            names.Append(data.AsString(line, 0));
            continue;
        }
        for (int column = 0; column < data.Cols(line); ++column)
            if (data.Type(line, column) == inp_Types::inp_STRING)
                names.Append(data.AsString(line, column));
    }
    return names;
}

// Active sets carry over from step to step.
void inp_ContactCheck::FindActiveCPSETs(cow_List<inp_Keyword> const& suboptions) {
    cow_String const universal(kUniversalSet);
    for (inp_Keyword const& keyword : suboptions) {
        if (!keyword.Is(inp_kw_ContactPair)) continue;
        bool crossInstance = false;
        for (cow_String const& surface : GrabAssySurfaceNamesFromData(keyword))
            crossInstance |= m_crossInstanceSurfaces.IsMember(surface);
        if (!crossInstance) continue;
        cow_String const set = setNameOf(keyword);
        if (keyword.GetParameterAsString("op", cow_String("NEW")) == cow_String("DELETE")) {
            removeFrom(m_activeSets, set);
            removeFrom(m_activeSets, universal);
        } else {
            m_activeSets.AppendUnlessMember(set);
            m_activeSets.AppendUnlessMember(universal);
        }
    }
}

void inp_ContactCheck::FindOutputCPSETs(cow_List<inp_Keyword> const& suboptions) {
    for (inp_Keyword const& keyword : suboptions) {
        if (!hasFieldOutput(keyword)) continue;
        if (keyword.GetParameterAsString("op", cow_String()) != cow_String("NEW")) continue;
        m_outputSets = cow_List<cow_String>();
        break;
    }
    for (inp_Keyword const& keyword : suboptions) {
        if (!hasFieldOutput(keyword)) continue;
        CheckForAndAppendDefaultOutput(keyword);
        for (inp_Keyword const& output : keyword.Suboptions())
            if (output.Is(inp_kw_ContactOutput)) m_outputSets.AppendUnlessMember(setNameOf(output));
    }
    // Field output that asks for no intervals is no output.
    for (inp_Keyword const& keyword : suboptions) {
        if (!hasFieldOutput(keyword)) continue;
        inp_Item const* intervals = keyword.Parameters().Find("numberinterval");
        if (intervals == nullptr || intervals->Type() != inp_Types::inp_INTEGER ||
            intervals->AsInt() != 0)
            continue;
        m_outputSets = cow_List<cow_String>();
        return;
    }
}

void inp_ContactCheck::CheckForAndAppendDefaultOutput(inp_Keyword const& output) {
    cow_String const variable = output.GetParameterAsString("variable", cow_String());
    if (variable == cow_String("ALL") || variable == cow_String("PRESELECT"))
        m_outputSets.AppendUnlessMember(cow_String(kUniversalSet));
}
