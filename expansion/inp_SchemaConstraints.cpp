// The schema rows of one family of keywords: constraints between nodes,
// surfaces and bodies, fasteners and spot welds.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// The tables are laid out by hand, one keyword to a block.
// clang-format off

// Words that several rows of this family share: how a reference point is
// coupled to the nodes around it, and how their weights fall off.
constexpr char const* kCouplingWords[] = {"CONTINUUM", "STRUCTURAL", nullptr};
constexpr char const* kWeightingMethodWords[] = {"UNIFORM", "LINEAR", "QUADRATIC", "CUBIC",
                                                 nullptr};

// *ADJUST
// `orientation` names the local axes of the adjusted nodes; an instance moved
// by the transformation gets one made for it.
constexpr char const* kAdjustWords[] = {"nodeset", "orientation", "surface", nullptr};

// *CAVITY DEFINITION
// With `setproperty` only the first item of a data line names a surface.
constexpr char const* kCavityDefinitionWords[] = {"ambienttemp", "name", "setproperty", nullptr};

// *CONSTRAINT CONTROLS
constexpr char const* kConstraintControlsWords[] = {"nochecks", "print", nullptr};
constexpr inp_SchemaEnum kConstraintControlsEnums[] = {{"print", inp_wordsNoYes}};

// *COUPLING
constexpr char const* kCouplingParameters[] = {"constraintname", "influenceradius", "orientation",
                                               "refnode",        "surface",         nullptr};

// *DISTRIBUTING
constexpr char const* kDistributingWords[] = {"coupling", "weightingmethod", nullptr};
constexpr inp_SchemaEnum kDistributingEnums[] = {{"coupling", kCouplingWords},
                                                 {"weightingmethod", kWeightingMethodWords}};

// *DISTRIBUTING COUPLING
constexpr char const* kDistributingCouplingWords[] = {"elset", "orientation", nullptr};

// *EQUATION
constexpr char const* kEquationWords[] = {"input", nullptr};

// *FASTENER
constexpr char const* kFastenerWords[] = {
    "adjustorientation", "attachmentmethod", "coupling", "elset", "interactionname",
    "numberoflayers", "orientation", "property", "radiusofinfluence", "referencenodeset",
    "searchradius", "unsorted", "weightingmethod", nullptr};
constexpr inp_SchemaEnum kFastenerEnums[] = {{"adjustorientation", inp_wordsNoYes},
                                             {"coupling", kCouplingWords},
                                             {"weightingmethod", kWeightingMethodWords}};

// *FASTENER PROPERTY
constexpr char const* kFastenerPropertyWords[] = {"name", nullptr};

// *KINEMATIC COUPLING
constexpr char const* kKinematicCouplingWords[] = {"orientation", "refnode", nullptr};

// *MPC
constexpr char const* kMpcWords[] = {"input", "mode", "user", "name", nullptr};
constexpr char const* kMpcModeWords[] = {"DOF", "NODE", nullptr};
constexpr inp_SchemaEnum kMpcEnums[] = {{"mode", kMpcModeWords}};

// *PERIODIC
constexpr char const* kPeriodicWords[] = {"cavity", nullptr};

// *RELEASE
constexpr char const* kReleaseWords[] = {"input", nullptr};

// *RIGID BODY
constexpr char const* kRigidBodyWords[] = {
    "analyticalsurface", "elset", "isothermal", "refnode", "pinnset", "position", "tienset",
    "density", "nodalthickness", "offset", "type", "angle1", "angle2", "nodea", "nodeb", nullptr};
constexpr char const* kRigidBodyPositionWords[] = {"INPUT", "CENTEROFMASS", nullptr};
constexpr inp_SchemaEnum kRigidBodyEnums[] = {{"position", kRigidBodyPositionWords},
                                              {"isothermal", inp_wordsNoYes}};

// *SHELL TO SOLID COUPLING
constexpr char const* kShellToSolidCouplingWords[] = {"constraintname", "influencedistance",
                                                      "positiontolerance", nullptr};

// *SPOT WELD
constexpr char const* kSpotWeldWords[] = {"elset",    "interactionname",  "orientation",
                                          "property", "referencenodeset", nullptr};

// *SPOT WELD INTERACTION
constexpr char const* kSpotWeldInteractionWords[] = {
    "adjustorientation", "attachmentmethod", "coupling",
    "interactionname",   "numberoflayers",   "radiusofinfluence",
    "searchradius",      "weightingmethod",  nullptr};
constexpr inp_SchemaEnum kSpotWeldInteractionEnums[] = {{"adjustorientation", inp_wordsNoYes},
                                                        {"coupling", kCouplingWords},
                                                        {"weightingmethod", kWeightingMethodWords}};

// *SPOT WELD PROPERTY
constexpr char const* kSpotWeldPropertyWords[] = {"name", nullptr};

// *TIE
constexpr char const* kTieWords[] = {
    "accuracy", "adjust", "constraintratio", "cyclicsymmetry", "explicitconstraint", "name",
    "nobeam", "noporepressure", "norotation", "nothickness", "positiontolerance", "tiednset",
    "type", nullptr};
constexpr inp_SchemaEnum kTieEnums[] = {{"type", inp_wordsNodeSurfaceContact},
                                        {"adjust", inp_wordsNoYes},
                                        {"explicitconstraint", inp_wordsNoYes}};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_Adjust, inp_SchemaKind::Row, kAdjustWords, {}},
    {inp_kw_CavityDefinition, inp_SchemaKind::Row, kCavityDefinitionWords, {}},
    {inp_kw_ConstraintControls, inp_SchemaKind::Row,
     kConstraintControlsWords, kConstraintControlsEnums},
    {inp_kw_Coupling, inp_SchemaKind::Logic, kCouplingParameters, {}},
    {inp_kw_Distributing, inp_SchemaKind::Row, kDistributingWords, kDistributingEnums},
    {inp_kw_DistributingCoupling, inp_SchemaKind::Row, kDistributingCouplingWords, {}},
    {inp_kw_Equation, inp_SchemaKind::Logic, kEquationWords, {}},
    {inp_kw_Fastener, inp_SchemaKind::Logic, kFastenerWords, kFastenerEnums},
    // No parameter of its own is known; its data lines carry the failure values.
    {inp_kw_FastenerFailure, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_FastenerProperty, inp_SchemaKind::Logic, kFastenerPropertyWords, {}},
    {inp_kw_Kinematic, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_KinematicCoupling, inp_SchemaKind::Row, kKinematicCouplingWords, {}},
    {inp_kw_Mpc, inp_SchemaKind::Logic, kMpcWords, kMpcEnums},
    {inp_kw_Periodic, inp_SchemaKind::Row, kPeriodicWords, {}},
    {inp_kw_Release, inp_SchemaKind::Logic, kReleaseWords, {}},
    {inp_kw_RigidBody, inp_SchemaKind::Logic, kRigidBodyWords, kRigidBodyEnums},
    {inp_kw_ShellToSolidCoupling, inp_SchemaKind::Row, kShellToSolidCouplingWords, {}},
    {inp_kw_SpotWeld, inp_SchemaKind::Logic, kSpotWeldWords, {}},
    {inp_kw_SpotWeldInteraction, inp_SchemaKind::Logic,
     kSpotWeldInteractionWords, kSpotWeldInteractionEnums},
    {inp_kw_SpotWeldProperty, inp_SchemaKind::Logic, kSpotWeldPropertyWords, {}},
    {inp_kw_Tie, inp_SchemaKind::Row, kTieWords, kTieEnums},
};

// clang-format on

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaConstraintsRows() {
    return kRows;
}
