// The schema rows of one family of keywords.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// How the gas mixtures of inflators give the share of each species.
constexpr char const* kMixtureFractionWords[] = {"MASSFRACTION", "MOLARFRACTION", nullptr};

// The analytical shapes of a nonreflecting acoustic boundary.
constexpr char const* kNonreflectingShapes[] = {
    "PLANAR", "IMPROVED", "CIRCULAR", "SPHERICAL", "ELLIPTICAL", "PROLATESPHEROID", nullptr};

// *ACOUSTIC FLOW VELOCITY
constexpr char const* kAcousticFlowVelocityWords[] = {"op", nullptr};
constexpr inp_SchemaEnum kAcousticFlowVelocityEnums[] = {{"op", inp_wordsModNew}};

// *ACOUSTIC WAVE FORMULATION
constexpr char const* kAcousticWaveFormulationWords[] = {"type", nullptr};
constexpr char const* kAcousticWaveFormulationType[] = {"SCATTEREDWAVE", "TOTALWAVE", nullptr};
constexpr inp_SchemaEnum kAcousticWaveFormulationEnums[] = {{"type", kAcousticWaveFormulationType}};

// *AQUA
constexpr char const* kAquaWords[] = {"input", nullptr};

// *BLOCKAGE, *CONWEP CHARGE PROPERTY and *UNDEX CHARGE PROPERTY give all
// their values on data lines: their rows hold no parameter word.

// *EULERIAN BOUNDARY
// OUTFLOW takes any text: a condition missing from a word list would refuse
// a valid deck.
constexpr char const* kEulerianBoundaryWords[] = {"inflow", "op", "outflow", nullptr};
constexpr char const* kEulerianBoundaryInflow[] = {"FREE", "NONE", "VOID", nullptr};
constexpr inp_SchemaEnum kEulerianBoundaryEnums[] = {{"inflow", kEulerianBoundaryInflow},
                                                     {"op", inp_wordsModNew}};

// *EULERIAN INFLATOR MIXTURE
constexpr char const* kEulerianInflatorMixtureWords[] = {"numberspecies", "type", nullptr};
constexpr inp_SchemaEnum kEulerianInflatorMixtureEnums[] = {{"type", kMixtureFractionWords}};

// *EULERIAN INFLATOR PROPERTY
constexpr char const* kEulerianInflatorPropertyWords[] = {"name", "type", nullptr};

// *EULERIAN MESH MOTION
constexpr char const* kEulerianMeshMotionWords[] = {"aspectlimit", "contraction",  "elset",
                                                    "orientation", "surface",      "type",
                                                    "vmaxfactor",  "volfraclimit", nullptr};
constexpr inp_SchemaEnum kEulerianMeshMotionEnums[] = {{"contraction", inp_wordsNoYes}};

// *FLUID BEHAVIOR
constexpr char const* kFluidBehaviorWords[] = {"name", nullptr};

// *FLUID BOUNDARY
constexpr char const* kFluidBoundaryWords[] = {"amplitude", "op", "type", nullptr};
constexpr inp_SchemaEnum kFluidBoundaryEnums[] = {{"op", inp_wordsModNew}};

// *FLUID BULK MODULUS
constexpr char const* kFluidBulkModulusWords[] = {"dependencies", nullptr};

// *FLUID CAVITY
constexpr char const* kFluidCavityWords[] = {"adiabatic", "ambientpressure", "ambienttemperature",
                                             "behavior",  "checknormals",    "mixture",
                                             "name",      "refnode",         "surface",
                                             nullptr};
constexpr inp_SchemaEnum kFluidCavityEnums[] = {{"checknormals", inp_wordsNoYes},
                                                {"mixture", kMixtureFractionWords}};

// *FLUID DENSITY
constexpr char const* kFluidDensityWords[] = {"dependencies", nullptr};

// *FLUID EXCHANGE
constexpr char const* kFluidExchangeWords[] = {"name", "property", "surface", nullptr};

// *FLUID EXCHANGE ACTIVATION
constexpr char const* kFluidExchangeActivationWords[] = {
    "amplitude", "blockage", "deltaleakagearea", "onlyoutflow", nullptr};

// *FLUID EXCHANGE INTERACTION
constexpr char const* kFluidExchangeInteractionWords[] = {
    "amplitude", "blockage", "deltaleakagearea", "onlyoutflow", nullptr};

// *FLUID EXCHANGE PROPERTY
// TYPE takes any text: a kind missing from a word list would refuse a valid
// deck.
constexpr char const* kFluidExchangePropertyWords[] = {"dependencies", "name", "type", nullptr};

// *FLUID EXPANSION
constexpr char const* kFluidExpansionWords[] = {"dependencies", "zero", nullptr};

// *FLUID FLUX
constexpr char const* kFluidFluxWords[] = {"amplitude", "op", nullptr};
constexpr inp_SchemaEnum kFluidFluxEnums[] = {{"op", inp_wordsModNew}};

// *FLUID INFLATOR
constexpr char const* kFluidInflatorWords[] = {"name", "property", "type", nullptr};
constexpr char const* kFluidInflatorType[] = {"COMBINED", "EULERIAN", "FLUIDCAVITY", nullptr};
constexpr inp_SchemaEnum kFluidInflatorEnums[] = {{"type", kFluidInflatorType}};

// *FLUID INFLATOR ACTIVATION
constexpr char const* kFluidInflatorActivationWords[] = {"inflationtimeamplitude",
                                                         "massflowamplitude", nullptr};

// *FLUID INFLATOR INTERACTION
constexpr char const* kFluidInflatorInteractionWords[] = {"inflationtimeamplitude",
                                                          "massflowamplitude", nullptr};

// *FLUID INFLATOR MIXTURE
constexpr char const* kFluidInflatorMixtureWords[] = {"numberspecies", "type", nullptr};
constexpr inp_SchemaEnum kFluidInflatorMixtureEnums[] = {{"type", kMixtureFractionWords}};

// *FLUID INFLATOR PROPERTY
constexpr char const* kFluidInflatorPropertyWords[] = {"name", "type", nullptr};
constexpr char const* kFluidInflatorPropertyType[] = {"DUALPRESSURE", "PRESSUREANDMASS", "TANKTEST",
                                                      "TEMPERATUREANDMASS", nullptr};
constexpr inp_SchemaEnum kFluidInflatorPropertyEnums[] = {{"type", kFluidInflatorPropertyType}};

// *FLUID LEAKOFF
constexpr char const* kFluidLeakoffWords[] = {"dependencies", "type", nullptr};

// *FLUID LINK
constexpr char const* kFluidLinkWords[] = {"dependencies", "elset", "user", nullptr};

// *FLUID PIPE CONNECTOR LOSS
constexpr char const* kFluidPipeConnectorLossWords[] = {"type", "user", nullptr};

// *FLUID PIPE FLOW LOSS
constexpr char const* kFluidPipeFlowLossWords[] = {"type", "user", nullptr};

// *FLUID PROPERTY
constexpr char const* kFluidPropertyWords[] = {"elset", "refnode", "type", "user", nullptr};
constexpr char const* kFluidPropertyType[] = {"HYDRAULIC", "PNEUMATIC", nullptr};
constexpr inp_SchemaEnum kFluidPropertyEnums[] = {{"type", kFluidPropertyType}};

// *IMPEDANCE
constexpr char const* kImpedanceWords[] = {"op", "property", nullptr};
constexpr inp_SchemaEnum kImpedanceEnums[] = {{"op", inp_wordsModNew}};

// *IMPEDANCE PROPERTY
constexpr char const* kImpedancePropertyWords[] = {"data", "input", "name", "type", nullptr};
constexpr char const* kImpedancePropertyType[] = {"TABULAR",         "PLANAR",    "IMPROVED",
                                                  "CIRCULAR",        "SPHERICAL", "ELLIPTICAL",
                                                  "PROLATESPHEROID", nullptr};
constexpr inp_SchemaEnum kImpedancePropertyEnums[] = {{"type", kImpedancePropertyType}};

// *INCIDENT WAVE
constexpr char const* kIncidentWaveWords[] = {"accelerationamplitude", "pressureamplitude",
                                              "property", nullptr};

// *INCIDENT WAVE INTERACTION
constexpr char const* kIncidentWaveInteractionWords[] = {"accelerationamplitude", "conwep",
                                                         "pressureamplitude", "property", nullptr};

// *INCIDENT WAVE INTERACTION PROPERTY
// TYPE takes any text: the blast models bring kinds of source of their own.
constexpr char const* kIncidentWaveInteractionPropertyWords[] = {"name", "type", nullptr};

// *INCIDENT WAVE PROPERTY
constexpr char const* kIncidentWavePropertyWords[] = {"name", "type", nullptr};

// *INCIDENT WAVE REFLECTION
constexpr char const* kIncidentWaveReflectionWords[] = {"type", nullptr};

// *PARTICLE GENERATOR
constexpr char const* kParticleGeneratorWords[] = {"maximumnumberofparticles", "name", "type",
                                                   nullptr};

// *PARTICLE GENERATOR FLOW
constexpr char const* kParticleGeneratorFlowWords[] = {"amplitude", "generator", nullptr};

// *PARTICLE GENERATOR INLET
constexpr char const* kParticleGeneratorInletWords[] = {"name", "surface", nullptr};

// *PIPE-SOIL INTERACTION
constexpr char const* kPipeSoilInteractionWords[] = {"elset", "orientation", nullptr};

// *PIPE-SOIL STIFFNESS
constexpr char const* kPipeSoilStiffnessWords[] = {"dependencies", "direction", "type", nullptr};
constexpr char const* kPipeSoilStiffnessDirection[] = {"AXIAL", "HORIZONTAL", "VERTICAL", nullptr};
constexpr inp_SchemaEnum kPipeSoilStiffnessEnums[] = {{"direction", kPipeSoilStiffnessDirection}};

// *SIMPEDANCE
constexpr char const* kSimpedanceWords[] = {"nonreflecting", "op", "property", nullptr};
constexpr inp_SchemaEnum kSimpedanceEnums[] = {{"nonreflecting", kNonreflectingShapes},
                                               {"op", inp_wordsModNew}};

// *WAVE
constexpr char const* kWaveWords[] = {"input", "type", "waveperiod", nullptr};
constexpr char const* kWaveType[] = {"AIRY", "GRIDDED", "STOKES", "USER", nullptr};
constexpr inp_SchemaEnum kWaveEnums[] = {{"type", kWaveType}};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_AcousticFlowVelocity, inp_SchemaKind::Row, kAcousticFlowVelocityWords,
     kAcousticFlowVelocityEnums},
    {inp_kw_AcousticWaveFormulation, inp_SchemaKind::Row, kAcousticWaveFormulationWords,
     kAcousticWaveFormulationEnums},
    {inp_kw_Aqua, inp_SchemaKind::Logic, kAquaWords, {}},
    {inp_kw_Blockage, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_ConwepChargeProperty, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_DetonationPoint, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_EulerianBoundary, inp_SchemaKind::Row, kEulerianBoundaryWords, kEulerianBoundaryEnums},
    {inp_kw_EulerianInflatorMixture, inp_SchemaKind::Row, kEulerianInflatorMixtureWords,
     kEulerianInflatorMixtureEnums},
    {inp_kw_EulerianInflatorProperty, inp_SchemaKind::Row, kEulerianInflatorPropertyWords, {}},
    {inp_kw_EulerianMeshMotion, inp_SchemaKind::Row, kEulerianMeshMotionWords,
     kEulerianMeshMotionEnums},
    {inp_kw_FluidBehavior, inp_SchemaKind::Row, kFluidBehaviorWords, {}},
    {inp_kw_FluidBoundary, inp_SchemaKind::Row, kFluidBoundaryWords, kFluidBoundaryEnums},
    {inp_kw_FluidBulkModulus, inp_SchemaKind::Row, kFluidBulkModulusWords, {}},
    {inp_kw_FluidCavity, inp_SchemaKind::Row, kFluidCavityWords, kFluidCavityEnums},
    {inp_kw_FluidDensity, inp_SchemaKind::Row, kFluidDensityWords, {}},
    {inp_kw_FluidExchange, inp_SchemaKind::Row, kFluidExchangeWords, {}},
    {inp_kw_FluidExchangeActivation, inp_SchemaKind::Row, kFluidExchangeActivationWords, {}},
    {inp_kw_FluidExchangeInteraction, inp_SchemaKind::Row, kFluidExchangeInteractionWords, {}},
    {inp_kw_FluidExchangeProperty, inp_SchemaKind::Row, kFluidExchangePropertyWords, {}},
    {inp_kw_FluidExpansion, inp_SchemaKind::Row, kFluidExpansionWords, {}},
    {inp_kw_FluidFlux, inp_SchemaKind::Row, kFluidFluxWords, kFluidFluxEnums},
    {inp_kw_FluidInflator, inp_SchemaKind::Row, kFluidInflatorWords, kFluidInflatorEnums},
    {inp_kw_FluidInflatorActivation, inp_SchemaKind::Row, kFluidInflatorActivationWords, {}},
    {inp_kw_FluidInflatorInteraction, inp_SchemaKind::Row, kFluidInflatorInteractionWords, {}},
    {inp_kw_FluidInflatorMixture, inp_SchemaKind::Row, kFluidInflatorMixtureWords,
     kFluidInflatorMixtureEnums},
    {inp_kw_FluidInflatorProperty, inp_SchemaKind::Row, kFluidInflatorPropertyWords,
     kFluidInflatorPropertyEnums},
    {inp_kw_FluidLeakoff, inp_SchemaKind::Row, kFluidLeakoffWords, {}},
    {inp_kw_FluidLink, inp_SchemaKind::Row, kFluidLinkWords, {}},
    {inp_kw_FluidPipeConnectorLoss, inp_SchemaKind::Row, kFluidPipeConnectorLossWords, {}},
    {inp_kw_FluidPipeFlowLoss, inp_SchemaKind::Row, kFluidPipeFlowLossWords, {}},
    {inp_kw_FluidProperty, inp_SchemaKind::Row, kFluidPropertyWords, kFluidPropertyEnums},
    {inp_kw_Impedance, inp_SchemaKind::Row, kImpedanceWords, kImpedanceEnums},
    {inp_kw_ImpedanceProperty, inp_SchemaKind::Logic, kImpedancePropertyWords,
     kImpedancePropertyEnums},
    {inp_kw_IncidentWave, inp_SchemaKind::Row, kIncidentWaveWords, {}},
    {inp_kw_IncidentWaveFluidProperty, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_IncidentWaveInteraction, inp_SchemaKind::Row, kIncidentWaveInteractionWords, {}},
    {inp_kw_IncidentWaveInteractionProperty,
     inp_SchemaKind::Row,
     kIncidentWaveInteractionPropertyWords,
     {}},
    {inp_kw_IncidentWaveProperty, inp_SchemaKind::Row, kIncidentWavePropertyWords, {}},
    {inp_kw_IncidentWaveReflection, inp_SchemaKind::Row, kIncidentWaveReflectionWords, {}},
    {inp_kw_ParticleGenerator, inp_SchemaKind::Row, kParticleGeneratorWords, {}},
    {inp_kw_ParticleGeneratorFlow, inp_SchemaKind::Row, kParticleGeneratorFlowWords, {}},
    {inp_kw_ParticleGeneratorInlet, inp_SchemaKind::Row, kParticleGeneratorInletWords, {}},
    {inp_kw_ParticleGeneratorMixture, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PipeSoilInteraction, inp_SchemaKind::Row, kPipeSoilInteractionWords, {}},
    {inp_kw_PipeSoilStiffness, inp_SchemaKind::Row, kPipeSoilStiffnessWords,
     kPipeSoilStiffnessEnums},
    {inp_kw_Simpedance, inp_SchemaKind::Row, kSimpedanceWords, kSimpedanceEnums},
    {inp_kw_UndexChargeProperty, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_Wave, inp_SchemaKind::Logic, kWaveWords, kWaveEnums},
    {inp_kw_Wind, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
};

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaFluidsRows() {
    return kRows;
}
