// Where keywords name an orientation.

#include "assembly/inp_OrientationFixupVisitor.h"

#include <algorithm>
#include <array>

namespace {

// The keywords whose ORIENTATION parameter is their only orientation name.
constexpr std::array kOrientationParameterKeywords = {
    inp_kw_Adjust,
    inp_kw_CohesiveSection,
    inp_kw_Coupling,
    inp_kw_Dashpot,
    inp_kw_DiscreteSection,
    inp_kw_Dload,
    inp_kw_Dsload,
    inp_kw_Epjoint,
    inp_kw_EulerianMeshMotion,
    inp_kw_Fastener,
    inp_kw_GasketSection,
    inp_kw_InertiaRelief,
    inp_kw_IntegratedOutputSection,
    inp_kw_Joint,
    inp_kw_KinematicCoupling,
    inp_kw_Mass,
    inp_kw_MembraneSection,
    inp_kw_PeriodicMedia,
    inp_kw_PipeSoilInteraction,
    inp_kw_Rebar,
    inp_kw_RebarLayer,
    inp_kw_RotaryInertia,
    inp_kw_ShellGeneralSection,
    inp_kw_Spring,
    inp_kw_UelProperty,
};

}  // namespace

inp_OrientationFixupVisitor::~inp_OrientationFixupVisitor() = default;

std::span<inp_KeywordEnm const> inp_OrientationFixupVisitor::OrientationParameterKeywords() {
    return kOrientationParameterKeywords;
}

void inp_OrientationFixupVisitor::DefaultAction(inp_Keyword& keyword) {
    if (std::find(kOrientationParameterKeywords.begin(), kOrientationParameterKeywords.end(),
                  keyword.Keyword()) != kOrientationParameterKeywords.end())
        ReplaceParameter(keyword, "orientation");
}

// The second line gives the connector's one or two orientations.
void inp_OrientationFixupVisitor::VisitConnectorSection(inp_Keyword& keyword) {
    ReplaceData(keyword, 1, 0);
    ReplaceData(keyword, 1, 1);
}

// A line names the two surfaces of the pair; the orientations that may
// follow them (columns 2 and 3) are names only where they are not numbers.
void inp_OrientationFixupVisitor::VisitContactPair(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        for (int column : {2, 3})
            if (keyword.Data().HasValue(line, column) &&
                IsNameText(keyword.Data().AsString(line, column)))
                ReplaceData(keyword, line, column);
}

// These name the orientation in the first column of each line.
void inp_OrientationFixupVisitor::VisitDEmPotential(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 0);
}
void inp_OrientationFixupVisitor::VisitDecurrent(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 0);
}
void inp_OrientationFixupVisitor::VisitDsecurrent(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 0);
}
void inp_OrientationFixupVisitor::VisitEulerianSection(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 0);
}
void inp_OrientationFixupVisitor::VisitFluidInflatorActivation(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 0);
}

void inp_OrientationFixupVisitor::VisitFluidInflator(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "name");
    ReplaceParameter(keyword, "property");
}

void inp_OrientationFixupVisitor::VisitFluidInflatorProperty(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "name");
}

void inp_OrientationFixupVisitor::VisitJointedMaterial(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "jointdirection");
}

void inp_OrientationFixupVisitor::VisitOrientation(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "name");
}

// A composite section gives each layer's orientation as its fourth item.
void inp_OrientationFixupVisitor::VisitShellSection(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "orientation");
    if (keyword.HasParameter("composite")) ReplaceColumn(keyword, 3);
}

void inp_OrientationFixupVisitor::VisitSolidSection(inp_Keyword& keyword) {
    VisitShellSection(keyword);
}
