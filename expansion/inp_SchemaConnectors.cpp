// The schema rows of one family of keywords: connector sections, the
// behaviours that make up a connector behaviour, and connector loading.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// The tables are laid out by hand, one keyword to a block.
// clang-format off

// Words that several rows of this family share.
constexpr char const* kExtrapolationWords[] = {"CONSTANT", "LINEAR", nullptr};
constexpr char const* kIndependentComponentsWords[] = {"POSITION", "CONSTITUTIVEMOTION", nullptr};
constexpr char const* kAllComponentsWords[] = {"ALL", nullptr};

// *CONNECTOR BEHAVIOR
constexpr char const* kConnectorBehaviorWords[] = {"extrapolation", "integration", "name",
                                                   "regularize",    "rtol",        nullptr};
constexpr char const* kConnectorIntegrationWords[] = {"EXPLICIT", "IMPLICIT", nullptr};
constexpr inp_SchemaEnum kConnectorBehaviorEnums[] = {{"integration", kConnectorIntegrationWords},
                                                      {"extrapolation", kExtrapolationWords},
                                                      {"regularize", inp_wordsOnOff}};

// *CONNECTOR CONTACT FORCE
// Either component is a component number or says which motion the force
// depends on, as the independent components of the other behaviours do.
constexpr char const* kConnectorContactForceWords[] = {"independentcomponent",
                                                       "tangentialcomponent", nullptr};
constexpr inp_SchemaEnum kConnectorContactForceEnums[] = {
    {"independentcomponent", kIndependentComponentsWords, inp_EnumGuard::SkipInteger},
    {"tangentialcomponent", kIndependentComponentsWords, inp_EnumGuard::SkipInteger}};

// *CONNECTOR DAMAGE EVOLUTION
constexpr char const* kConnectorDamageEvolutionWords[] = {
    "affectedcomponents", "degradation", "dependencies", "extrapolation",
    "softening",          "type",        nullptr};
constexpr char const* kDamageEvolutionTypeWords[] = {"MOTION", "ENERGY", nullptr};
constexpr char const* kDegradationWords[] = {"MAXIMUM", "MULTIPLICATIVE", nullptr};
constexpr char const* kSofteningWords[] = {"LINEAR", "EXPONENTIAL", "TABULAR", nullptr};
constexpr inp_SchemaEnum kConnectorDamageEvolutionEnums[] = {
    {"type", kDamageEvolutionTypeWords},
    {"degradation", kDegradationWords},
    {"softening", kSofteningWords},
    {"extrapolation", kExtrapolationWords}};

// *CONNECTOR DAMAGE INITIATION
constexpr char const* kConnectorDamageInitiationWords[] = {"component", "criterion", "dependencies",
                                                           "extrapolation", nullptr};
constexpr char const* kDamageInitiationCriterionWords[] = {"FORCE", "MOTION", "PLASTICMOTION",
                                                           nullptr};
constexpr inp_SchemaEnum kConnectorDamageInitiationEnums[] = {
    {"criterion", kDamageInitiationCriterionWords}, {"extrapolation", kExtrapolationWords}};

// *CONNECTOR DAMPING
constexpr char const* kConnectorDampingWords[] = {
    "component", "dependencies", "extrapolation", "independentcomponents",
    "nonlinear", "type",         nullptr};
constexpr char const* kDampingTypeWords[] = {"VISCOUS", "STRUCTURAL", nullptr};
constexpr inp_SchemaEnum kConnectorDampingEnums[] = {
    {"extrapolation", kExtrapolationWords},
    {"independentcomponents", kIndependentComponentsWords},
    {"type", kDampingTypeWords}};

// *CONNECTOR DERIVED COMPONENT
constexpr char const* kConnectorDerivedComponentWords[] = {"name", "operator", nullptr};

// *CONNECTOR ELASTICITY
constexpr char const* kConnectorElasticityWords[] = {
    "component", "dependencies", "extrapolation", "independentcomponents",
    "nonlinear", "rigid",        nullptr};
constexpr inp_SchemaEnum kConnectorElasticityEnums[] = {
    {"extrapolation", kExtrapolationWords}, {"independentcomponents", kIndependentComponentsWords}};

// *CONNECTOR FAILURE
constexpr char const* kConnectorFailureWords[] = {"component", "release", nullptr};
constexpr inp_SchemaEnum kConnectorFailureEnums[] = {
    {"release", kAllComponentsWords, inp_EnumGuard::SkipInteger}};

// *CONNECTOR FRICTION
constexpr char const* kConnectorFrictionWords[] = {
    "component",  "contactforce",   "dependencies", "extrapolation", "independentcomponents",
    "predefined", "stickstiffness", nullptr};
// `component` shares the words of `independentcomponents`: both are a number
// or the motion the friction depends on.
constexpr inp_SchemaEnum kConnectorFrictionEnums[] = {
    {"component", kIndependentComponentsWords, inp_EnumGuard::SkipInteger},
    {"independentcomponents", kIndependentComponentsWords, inp_EnumGuard::SkipInteger},
    {"extrapolation", kExtrapolationWords}};

// *CONNECTOR HARDENING
constexpr char const* kConnectorHardeningWords[] = {"definition", "dependencies", "extrapolation",
                                                    "rate",       "type",         nullptr};
constexpr char const* kHardeningDefinitionWords[] = {"TABULAR",    "EXPONENTIALLAW", "HALFCYCLE",
                                                     "STABILIZED", "PARAMETERS",     nullptr};
constexpr char const* kHardeningTypeWords[] = {"ISOTROPIC", "KINEMATIC", nullptr};
constexpr inp_SchemaEnum kConnectorHardeningEnums[] = {{"definition", kHardeningDefinitionWords},
                                                       {"extrapolation", kExtrapolationWords},
                                                       {"type", kHardeningTypeWords}};

// *CONNECTOR LOAD
constexpr char const* kConnectorLoadWords[] = {"amplitude", "loadcase", "op", nullptr};
constexpr inp_SchemaEnum kConnectorLoadEnums[] = {{"op", inp_wordsModNew}};

// *CONNECTOR LOCK
constexpr char const* kConnectorLockWords[] = {"component", "lock", nullptr};
constexpr inp_SchemaEnum kConnectorLockEnums[] = {
    {"lock", kAllComponentsWords, inp_EnumGuard::SkipInteger}};

// *CONNECTOR MOTION
constexpr char const* kConnectorMotionWords[] = {"amplitude", "fixed", "loadcase",
                                                 "op",        "type",  nullptr};
constexpr char const* kMotionTypeWords[] = {"ACCELERATION", "DISPLACEMENT", "VELOCITY", nullptr};
constexpr inp_SchemaEnum kConnectorMotionEnums[] = {{"op", inp_wordsModNew},
                                                    {"type", kMotionTypeWords}};

// *CONNECTOR PLASTICITY
constexpr char const* kConnectorPlasticityWords[] = {"component", nullptr};

// *CONNECTOR POTENTIAL
constexpr char const* kConnectorPotentialWords[] = {"exponent", "operator", nullptr};

// *CONNECTOR SECTION
constexpr char const* kConnectorSectionWords[] = {"behavior", "controls", "elimination", "elset",
                                                  nullptr};
constexpr inp_SchemaEnum kConnectorSectionEnums[] = {{"elimination", inp_wordsNoYes}};

// *CONNECTOR STOP
constexpr char const* kConnectorStopWords[] = {"component", nullptr};

// *CONNECTOR UNIAXIAL BEHAVIOR
constexpr char const* kConnectorUniaxialBehaviorWords[] = {"component", nullptr};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_ConnectorBehavior, inp_SchemaKind::Row,
     kConnectorBehaviorWords, kConnectorBehaviorEnums},
    // Takes no parameter: its data lines give the reference lengths and angles.
    {inp_kw_ConnectorConstitutiveReference, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_ConnectorContactForce, inp_SchemaKind::Row,
     kConnectorContactForceWords, kConnectorContactForceEnums},
    {inp_kw_ConnectorDamageEvolution, inp_SchemaKind::Logic,
     kConnectorDamageEvolutionWords, kConnectorDamageEvolutionEnums},
    {inp_kw_ConnectorDamageInitiation, inp_SchemaKind::Row,
     kConnectorDamageInitiationWords, kConnectorDamageInitiationEnums},
    {inp_kw_ConnectorDamping, inp_SchemaKind::Row, kConnectorDampingWords, kConnectorDampingEnums},
    {inp_kw_ConnectorDerivedComponent, inp_SchemaKind::Logic, kConnectorDerivedComponentWords, {}},
    {inp_kw_ConnectorElasticity, inp_SchemaKind::Row,
     kConnectorElasticityWords, kConnectorElasticityEnums},
    {inp_kw_ConnectorFailure, inp_SchemaKind::Row, kConnectorFailureWords, kConnectorFailureEnums},
    {inp_kw_ConnectorFriction, inp_SchemaKind::Row,
     kConnectorFrictionWords, kConnectorFrictionEnums},
    {inp_kw_ConnectorHardening, inp_SchemaKind::Row,
     kConnectorHardeningWords, kConnectorHardeningEnums},
    {inp_kw_ConnectorLoad, inp_SchemaKind::Row, kConnectorLoadWords, kConnectorLoadEnums},
    {inp_kw_ConnectorLock, inp_SchemaKind::Row, kConnectorLockWords, kConnectorLockEnums},
    {inp_kw_ConnectorMotion, inp_SchemaKind::Row, kConnectorMotionWords, kConnectorMotionEnums},
    {inp_kw_ConnectorPlasticity, inp_SchemaKind::Row, kConnectorPlasticityWords, {}},
    {inp_kw_ConnectorPotential, inp_SchemaKind::Row, kConnectorPotentialWords, {}},
    {inp_kw_ConnectorSection, inp_SchemaKind::Logic,
     kConnectorSectionWords, kConnectorSectionEnums},
    {inp_kw_ConnectorStop, inp_SchemaKind::Row, kConnectorStopWords, {}},
    {inp_kw_ConnectorUniaxialBehavior, inp_SchemaKind::Row, kConnectorUniaxialBehaviorWords, {}},
};

// clang-format on

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaConnectorsRows() {
    return kRows;
}
