// Where keywords name surfaces by plain positions: one row per position.
// Keywords whose positions depend on their parameters have handlers in
// inp_SurfaceFixupRules.cpp instead.

#include "assembly/inp_KeywordRowIndex.h"
#include "assembly/inp_SurfaceFixupVisitor.h"

namespace {

using Form = inp_SurfaceReference::Form;

constexpr inp_SurfaceReference parameter(inp_KeywordEnm keyword, char const* name) {
    return {keyword, Form::Parameter, name, 0, 1};
}

constexpr inp_SurfaceReference column(inp_KeywordEnm keyword, int index) {
    return {keyword, Form::Column, nullptr, index, 1};
}

// By a parameter; then the two surfaces of a pair in the first two columns;
// then one surface in the first column.
constexpr inp_SurfaceReference kPlainReferences[] = {
    parameter(inp_kw_Adjust, "surface"),
    parameter(inp_kw_Coupling, "surface"),
    parameter(inp_kw_EulerianMeshMotion, "surface"),
    parameter(inp_kw_FluidCavity, "surface"),
    parameter(inp_kw_FluidExchange, "surface"),
    parameter(inp_kw_IntegratedOutput, "surface"),
    parameter(inp_kw_IntegratedOutputSection, "surface"),
    parameter(inp_kw_PreTensionSection, "surface"),
    parameter(inp_kw_RadiationFile, "surface"),
    parameter(inp_kw_RadiationOutput, "surface"),
    parameter(inp_kw_SectionFile, "surface"),
    parameter(inp_kw_SectionPrint, "surface"),
    parameter(inp_kw_NonStructuralMass, "surface"),
    parameter(inp_kw_Clearance, "master"),
    parameter(inp_kw_Clearance, "slave"),
    parameter(inp_kw_ContactControls, "master"),
    parameter(inp_kw_ContactControls, "slave"),
    parameter(inp_kw_ContactFile, "master"),
    parameter(inp_kw_ContactFile, "slave"),
    parameter(inp_kw_ContactPrint, "master"),
    parameter(inp_kw_ContactPrint, "slave"),
    parameter(inp_kw_ContactResponse, "master"),
    parameter(inp_kw_ContactResponse, "slave"),
    parameter(inp_kw_Debond, "master"),
    parameter(inp_kw_Debond, "slave"),
    parameter(inp_kw_PressurePenetration, "master"),
    parameter(inp_kw_PressurePenetration, "slave"),
    parameter(inp_kw_ContactOutput, "master"),
    parameter(inp_kw_ContactOutput, "slave"),
    parameter(inp_kw_ContactOutput, "surface"),
    parameter(inp_kw_RigidBody, "analyticalsurface"),
    parameter(inp_kw_RigidSurface, "name"),

    column(inp_kw_ContactClearanceAssignment, 0),
    column(inp_kw_ContactClearanceAssignment, 1),
    column(inp_kw_ContactExclusions, 0),
    column(inp_kw_ContactExclusions, 1),
    column(inp_kw_ContactFormulation, 0),
    column(inp_kw_ContactFormulation, 1),
    column(inp_kw_ContactInclusions, 0),
    column(inp_kw_ContactInclusions, 1),
    column(inp_kw_ContactInitializationAssignment, 0),
    column(inp_kw_ContactInitializationAssignment, 1),
    column(inp_kw_ContactPair, 0),
    column(inp_kw_ContactPair, 1),
    column(inp_kw_ContactPropertyAssignment, 0),
    column(inp_kw_ContactPropertyAssignment, 1),
    column(inp_kw_ShellToSolidCoupling, 0),
    column(inp_kw_ShellToSolidCoupling, 1),
    column(inp_kw_SurfaceSmoothing, 0),
    column(inp_kw_SurfaceSmoothing, 1),

    column(inp_kw_DEmPotential, 0),
    column(inp_kw_Dsecharge, 0),
    column(inp_kw_Dsecurrent, 0),
    column(inp_kw_Dsflow, 0),
    column(inp_kw_Dsflux, 0),
    column(inp_kw_Dsload, 0),
    column(inp_kw_EulerianBoundary, 0),
    column(inp_kw_IncidentWave, 0),
    column(inp_kw_IncidentWaveInteraction, 0),
    column(inp_kw_Sfilm, 0),
    column(inp_kw_Sflow, 0),
    column(inp_kw_Simpedance, 0),
    column(inp_kw_Sradiate, 0),
    column(inp_kw_SurfacePropertyAssignment, 0),
};

}  // namespace

std::span<inp_SurfaceReference const> inp_SurfaceFixupVisitor::PlainReferences() {
    return kPlainReferences;
}

std::span<inp_SurfaceReference const> inp_SurfaceFixupVisitor::PlainReferencesOf(
    inp_KeywordEnm keyword) {
    static inp_KeywordRowIndex<inp_SurfaceReference> const index{PlainReferences()};
    return index.RowsOf(keyword);
}
