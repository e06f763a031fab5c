// Where keywords refer to nodes, elements, node sets or element sets, by
// plain positions: one row per position. A keyword added to the vocabulary
// that refers to sets is one row here (or, if its positions depend on the
// values of its parameters, a handler in inp_SetFixupRules.cpp).
//
// *SLIDE PLANE would refer by its ELSET parameter and its first column, but
// it is no keyword of the vocabulary, so it has no row.

#include "assembly/inp_KeywordRowIndex.h"
#include "assembly/inp_SetFixupVisitor.h"

namespace {

using Form = inp_SetReference::Form;
using Condition = inp_SetReference::Condition;
constexpr inp_ReferenceKind Node = inp_ReferenceKind::Node;
constexpr inp_ReferenceKind Element = inp_ReferenceKind::Element;
constexpr Condition If = Condition::IfParameter;
constexpr Condition Unless = Condition::UnlessParameter;

constexpr inp_SetReference parameter(inp_KeywordEnm keyword, inp_ReferenceKind kind,
                                     char const* name, Condition when = Condition::Always,
                                     char const* condition = nullptr) {
    return {keyword, Form::Parameter, kind, name, 0, 1, when, condition};
}

constexpr inp_SetReference column(inp_KeywordEnm keyword, inp_ReferenceKind kind, int index,
                                  int stride, Condition when = Condition::Always,
                                  char const* condition = nullptr) {
    return {keyword, Form::Column, kind, nullptr, index, stride, when, condition};
}

constexpr inp_SetReference columnsFrom(inp_KeywordEnm keyword, inp_ReferenceKind kind, int first) {
    return {keyword, Form::ColumnsFrom, kind, nullptr, first, 1, Condition::Always, nullptr};
}

constexpr inp_SetReference allData(inp_KeywordEnm keyword, inp_ReferenceKind kind,
                                   Condition when = Condition::Always,
                                   char const* condition = nullptr) {
    return {keyword, Form::AllData, kind, nullptr, 0, 1, when, condition};
}

constexpr inp_SetReference kPlainReferences[] = {
    // By a parameter only.
    parameter(inp_kw_Adjust, Node, "nodeset"),
    parameter(inp_kw_ContactClearance, Node, "searchnset"),
    parameter(inp_kw_Dsload, Node, "refnode"),
    parameter(inp_kw_Coupling, Node, "refnode"),
    parameter(inp_kw_FluidCavity, Node, "refnode"),
    parameter(inp_kw_Monitor, Node, "node"),
    parameter(inp_kw_IntegratedOutputSection, Node, "refnode"),
    parameter(inp_kw_SpotWeld, Node, "referencenodeset"),
    parameter(inp_kw_Tie, Node, "tiednset"),
    parameter(inp_kw_ContactControls, Node, "nset"),
    parameter(inp_kw_ContactFile, Node, "nset"),
    parameter(inp_kw_ContactOutput, Node, "nset"),
    parameter(inp_kw_ContactPrint, Node, "nset"),
    parameter(inp_kw_ContactResponse, Node, "nset"),
    parameter(inp_kw_ExtremeNodeValue, Node, "nset"),
    parameter(inp_kw_FractureCriterion, Node, "nset"),
    parameter(inp_kw_NodeFile, Node, "nset"),
    parameter(inp_kw_NodeOutput, Node, "nset"),
    parameter(inp_kw_NodePrint, Node, "nset"),
    parameter(inp_kw_NodeResponse, Node, "nset"),
    parameter(inp_kw_RadiationViewfactor, Node, "nset"),
    parameter(inp_kw_Transform, Node, "nset"),
    parameter(inp_kw_NonStructuralMass, Element, "elset"),
    parameter(inp_kw_AdaptiveMesh, Element, "elset"),
    parameter(inp_kw_AdaptiveMeshRefinement, Element, "elset"),
    parameter(inp_kw_BeamGeneralSection, Element, "elset"),
    parameter(inp_kw_BeamSection, Element, "elset"),
    parameter(inp_kw_ChangeFriction, Element, "elset"),
    parameter(inp_kw_CohesiveSection, Element, "elset"),
    parameter(inp_kw_ConnectorSection, Element, "elset"),
    parameter(inp_kw_CreepStrainRateControl, Element, "elset"),
    parameter(inp_kw_Dashpot, Element, "elset"),
    parameter(inp_kw_DiscreteSection, Element, "elset"),
    parameter(inp_kw_DragChain, Element, "elset"),
    parameter(inp_kw_ElementMatrixOutput, Element, "elset"),
    parameter(inp_kw_ElementOutput, Element, "elset"),
    parameter(inp_kw_ElementResponse, Element, "elset"),
    parameter(inp_kw_ElFile, Element, "elset"),
    parameter(inp_kw_ElPrint, Element, "elset"),
    parameter(inp_kw_EnergyFile, Element, "elset"),
    parameter(inp_kw_EnergyOutput, Element, "elset"),
    parameter(inp_kw_EnergyPrint, Element, "elset"),
    parameter(inp_kw_Enrichment, Element, "elset"),
    parameter(inp_kw_EnrichmentActivation, Element, "elset"),
    parameter(inp_kw_Epjoint, Element, "elset"),
    parameter(inp_kw_EulerianMeshMotion, Element, "elset"),
    parameter(inp_kw_EulerianSection, Element, "elset"),
    parameter(inp_kw_ExtremeElementValue, Element, "elset"),
    parameter(inp_kw_FixedMassScaling, Element, "elset"),
    parameter(inp_kw_FluidLink, Element, "elset"),
    parameter(inp_kw_FluidPipeSection, Element, "elset"),
    parameter(inp_kw_FluidPipeConnectorSection, Element, "elset"),
    parameter(inp_kw_FrameSection, Element, "elset"),
    parameter(inp_kw_Gap, Element, "elset"),
    parameter(inp_kw_GasketSection, Element, "elset"),
    parameter(inp_kw_HeatCap, Element, "elset"),
    parameter(inp_kw_IntegratedOutput, Element, "elset"),
    parameter(inp_kw_Interface, Element, "elset"),
    parameter(inp_kw_Its, Element, "elset"),
    parameter(inp_kw_Joint, Element, "elset"),
    parameter(inp_kw_Mass, Element, "elset"),
    parameter(inp_kw_MatrixGenerate, Element, "elset"),
    parameter(inp_kw_MembraneSection, Element, "elset"),
    parameter(inp_kw_PipeSoilInteraction, Element, "elset"),
    parameter(inp_kw_RadiationFile, Element, "elset"),
    parameter(inp_kw_RadiationOutput, Element, "elset"),
    parameter(inp_kw_RotaryInertia, Element, "elset"),
    parameter(inp_kw_ShellGeneralSection, Element, "elset"),
    parameter(inp_kw_ShellSection, Element, "elset"),
    parameter(inp_kw_Spring, Element, "elset"),
    parameter(inp_kw_SteadyStateDetection, Element, "elset"),
    parameter(inp_kw_Subcycling, Element, "elset"),
    parameter(inp_kw_SurfaceSection, Element, "elset"),
    parameter(inp_kw_UelProperty, Element, "elset"),
    parameter(inp_kw_VariableMassScaling, Element, "elset"),

    // By data.
    column(inp_kw_AcousticFlowVelocity, Node, 0, 1),
    column(inp_kw_Bond, Node, 0, 1),
    column(inp_kw_Cecharge, Node, 0, 1),
    column(inp_kw_Cecurrent, Node, 0, 1),
    column(inp_kw_Cfilm, Node, 0, 1),
    column(inp_kw_Cflux, Node, 0, 1),
    column(inp_kw_Cradiate, Node, 0, 1),
    column(inp_kw_FluidFlux, Node, 0, 1),
    column(inp_kw_MassFlowRate, Node, 0, 1),
    column(inp_kw_MatrixInput, Node, 0, 1),
    column(inp_kw_PressureStress, Node, 0, 1),
    column(inp_kw_RetainedNodalDofs, Node, 0, 1),
    column(inp_kw_SurfaceFlaw, Node, 0, 1),
    column(inp_kw_TransportVelocity, Node, 0, 1),
    column(inp_kw_CompositeModalDamping, Element, 0, 1),
    column(inp_kw_ConnectorLoad, Element, 0, 1),
    column(inp_kw_ConnectorMotion, Element, 0, 1),
    column(inp_kw_DAddedMass, Element, 0, 1),
    column(inp_kw_Decharge, Element, 0, 1),
    column(inp_kw_Decurrent, Element, 0, 1),
    column(inp_kw_Dflow, Element, 0, 1),
    column(inp_kw_Dflux, Element, 0, 1),
    column(inp_kw_Film, Element, 0, 1),
    column(inp_kw_Flow, Element, 0, 1),
    column(inp_kw_Foundation, Element, 0, 1),
    column(inp_kw_Impedance, Element, 0, 1),
    column(inp_kw_MassAdjust, Element, 0, 1),
    column(inp_kw_PrestressHold, Element, 0, 1),
    column(inp_kw_Radiate, Element, 0, 1),
    column(inp_kw_Release, Element, 0, 1),
    column(inp_kw_Sload, Element, 0, 1),
    column(inp_kw_CAddedMass, Node, 0, 2),
    columnsFrom(inp_kw_Mpc, Node, 1),
    column(inp_kw_SteadyStateCriteria, Node, 5, 1),
    column(inp_kw_FluidExchange, Node, 0, 1),
    column(inp_kw_FluidExchange, Node, 1, 1),
    column(inp_kw_IncidentWaveInteraction, Node, 1, 1),
    column(inp_kw_IncidentWaveInteraction, Node, 2, 1),
    column(inp_kw_PressurePenetration, Node, 0, 1),
    column(inp_kw_PressurePenetration, Node, 1, 1),
    allData(inp_kw_ImportElset, Element),
    allData(inp_kw_ImportNset, Node),
    column(inp_kw_NodalEnergyRate, Node, 0, 1),
    column(inp_kw_NodalThickness, Node, 0, 1),
    column(inp_kw_NodalEnergyRate, Node, 1, 1, If, "generate"),
    column(inp_kw_NodalThickness, Node, 1, 1, If, "generate"),
    column(inp_kw_Motion, Element, 0, 1, If, "element"),
    column(inp_kw_Motion, Node, 0, 1, Unless, "element"),
    allData(inp_kw_TracerParticle, Node),

    // By parameters and data.
    parameter(inp_kw_Dload, Node, "refnode"),
    column(inp_kw_Dload, Element, 0, 1),
    parameter(inp_kw_DomainDecomposition, Element, "elset"),
    column(inp_kw_DomainDecomposition, Element, 0, 1),
    parameter(inp_kw_DistributingCoupling, Element, "elset"),
    column(inp_kw_DistributingCoupling, Node, 0, 1),
    parameter(inp_kw_KinematicCoupling, Node, "refnode"),
    column(inp_kw_KinematicCoupling, Node, 0, 1),
    parameter(inp_kw_ParameterShapeVariation, Node, "nset"),
    column(inp_kw_ParameterShapeVariation, Node, 0, 1),
    parameter(inp_kw_EmbeddedElement, Element, "hostelset"),
    allData(inp_kw_EmbeddedElement, Node, If, "embednodes"),
    allData(inp_kw_EmbeddedElement, Element, Unless, "embednodes"),
    parameter(inp_kw_Fastener, Node, "referencenodeset"),
    parameter(inp_kw_Fastener, Element, "elset"),
    parameter(inp_kw_PreTensionSection, Node, "node"),
    parameter(inp_kw_PreTensionSection, Element, "element"),
    parameter(inp_kw_FluidProperty, Element, "elset"),
    parameter(inp_kw_FluidProperty, Node, "refnode"),
    parameter(inp_kw_SolidSection, Element, "elset"),
    parameter(inp_kw_SolidSection, Node, "refnode"),
    parameter(inp_kw_RigidBody, Node, "refnode"),
    parameter(inp_kw_RigidBody, Node, "pinnset"),
    parameter(inp_kw_RigidBody, Node, "tienset"),
    parameter(inp_kw_RigidBody, Element, "elset"),
    parameter(inp_kw_RigidSurface, Node, "refnode"),
    parameter(inp_kw_RigidSurface, Element, "elset"),
    parameter(inp_kw_Imperfection, Node, "nset"),
    column(inp_kw_Imperfection, Node, 0, 1, Unless, "file"),
    column(inp_kw_Static, Node, 5, 1, If, "riks"),
    parameter(inp_kw_Static, Element, "fullyplastic"),
};

}  // namespace

std::span<inp_SetReference const> inp_SetFixupVisitor::PlainReferences() {
    return kPlainReferences;
}

std::span<inp_SetReference const> inp_SetFixupVisitor::PlainReferencesOf(inp_KeywordEnm keyword) {
    static inp_KeywordRowIndex<inp_SetReference> const index{PlainReferences()};
    return index.RowsOf(keyword);
}
