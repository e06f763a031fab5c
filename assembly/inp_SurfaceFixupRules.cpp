// The keywords whose surface names stand where their parameters say: one
// handler each. None of them also has rows in the table of plain positions.

#include "assembly/inp_KeywordRewrite.h"
#include "assembly/inp_SurfaceFixupVisitor.h"

namespace {

constexpr int kFirst[] = {0};
constexpr int kPair[] = {0, 1};

}  // namespace

void inp_SurfaceFixupVisitor::ReplaceSurfaceNameItem(inp_Keyword& keyword, int line, int column) {
    if (!keyword.Data().HasValue(line, column)) return;
    if (inp_StartsLikeNumber(keyword.Data().AsString(line, column))) return;
    ReplaceSurfaceItem(keyword, line, column);
}

// With SETPROPERTY a line names a surface and its property values;
// otherwise every item is a surface of the cavity.
void inp_SurfaceFixupVisitor::VisitCavityDefinition(inp_Keyword& keyword) {
    if (keyword.HasParameter("setproperty"))
        ReplaceSurfaceData(keyword, kFirst, 1, 0);
    else
        ReplaceSurfaceAllData(keyword);
}

// Only the overclosure resolution form names surface pairs.
void inp_SurfaceFixupVisitor::VisitContactControlsAssignment(inp_Keyword& keyword) {
    if (keyword.HasParameter("automaticoverclosureresolution"))
        ReplaceSurfaceData(keyword, kPair, 1, 0);
}

void inp_SurfaceFixupVisitor::VisitContactInterference(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"CONTACTPAIR"}))
        ReplaceSurfaceData(keyword, kPair, 1, 0);
}

// The stabilization is given per pair of surfaces, except where a RESET
// line only switches the earlier stabilization off.
void inp_SurfaceFixupVisitor::VisitContactStabilization(inp_Keyword& keyword) {
    if (!keyword.HasParameter("reset") ||
        inp_ParameterIsOneOf(keyword, "scaleadaptive", {"USERADAPTIVE"}))
        ReplaceSurfaceData(keyword, kPair, 1, 0);
}

void inp_SurfaceFixupVisitor::VisitCoSimulationRegion(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"SURFACE", "DISCRETE"}))
        ReplaceSurfaceData(keyword, kFirst, 1, 0);
}

// Every name on a fastener's lines is a surface it joins.
void inp_SurfaceFixupVisitor::VisitFastener(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        for (int column = 0; column < keyword.Data().Cols(line); ++column)
            ReplaceSurfaceNameItem(keyword, line, column);
}

void inp_SurfaceFixupVisitor::VisitInitialConditions(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"CONTACT"}))
        ReplaceSurfaceData(keyword, kPair, 1, 0);
}

void inp_SurfaceFixupVisitor::VisitModelChange(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"CONTACTPAIR"}))
        ReplaceSurfaceData(keyword, kPair, 1, 0);
}

void inp_SurfaceFixupVisitor::VisitNormal(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"CONTACTSURFACE"}))
        ReplaceSurfaceData(keyword, kFirst, 1, 0);
}

// The first line names the surfaces of the medium.
void inp_SurfaceFixupVisitor::VisitPeriodicMedia(inp_Keyword& keyword) {
    if (keyword.Data().Rows() == 0) return;
    for (int column = 0; column < keyword.Data().Cols(0); ++column)
        ReplaceSurfaceItem(keyword, 0, column);
}

void inp_SurfaceFixupVisitor::VisitRadiationViewfactor(inp_Keyword& keyword) {
    ReplaceSurfaceAllData(keyword);
}

// A spot weld's line gives the weld's node (or node set) and then its
// values, the two surfaces it joins first among them: columns 1 and 2.
void inp_SurfaceFixupVisitor::VisitSpotWeld(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        ReplaceSurfaceNameItem(keyword, line, 1);
        ReplaceSurfaceNameItem(keyword, line, 2);
    }
}

void inp_SurfaceFixupVisitor::VisitSubmodel(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"ACOUSTICTOSTRUCTURE", "SURFACE"}))
        ReplaceSurfaceData(keyword, kFirst, 1, 0);
}

// A surface made of others names them in its data.
void inp_SurfaceFixupVisitor::VisitSurface(inp_Keyword& keyword) {
    ReplaceSurfaceParameter(keyword, "name");
    if (keyword.HasParameter("combine") || keyword.HasParameter("crop"))
        ReplaceSurfaceAllData(keyword);
}

void inp_SurfaceFixupVisitor::VisitTie(inp_Keyword& keyword) {
    ReplaceSurfaceParameter(keyword, "name");
    ReplaceSurfaceData(keyword, kPair, 1, 0);
}
