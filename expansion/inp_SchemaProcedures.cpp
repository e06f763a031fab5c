// The schema rows of one family of keywords: the analysis procedures and their controls.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

// The tables keep their own layout: one keyword per block, word lists packed.
// clang-format off
namespace {

// Enumerations that several keywords of this family share.
constexpr char const* kWordsDetailOffSummary[] = {"DETAIL", "OFF", "SUMMARY", nullptr};
constexpr char const* kWordsNostop[] = {"NOSTOP", nullptr};
constexpr char const* kWordsModenumbersFrequencyrange[] = {"MODENUMBERS", "FREQUENCYRANGE",
    nullptr};

// The equation solvers share their controls:
// *ENERGY EQUATION SOLVER, *MOMENTUM EQUATION SOLVER, *PRESSURE EQUATION SOLVER,
// *TRANSPORT EQUATION SOLVER, *TURBULENCE EQUATION SOLVER
constexpr char const* kEquationSolverWords[] = {"convergence", "preconditioner", "type", nullptr};

// *ANNEAL
constexpr char const* kAnnealWords[] = {"temperature", nullptr};

// *ANNEAL TEMPERATURE
constexpr char const* kAnnealTemperatureWords[] = {"dependencies", nullptr};

// *BASE MOTION
constexpr char const* kBaseMotionWords[] = {"amplitude", "basename", "dof", "loadcase", "scale",
    "type", nullptr};
constexpr char const* kBaseMotionTypeWords[] = {"ACCELERATION", "DISPLACEMENT", "VELOCITY",
    nullptr};
constexpr inp_SchemaEnum kBaseMotionEnums[] = {{"loadcase", inp_wordsOneTwo},
    {"type", kBaseMotionTypeWords}};

// *BUCKLE
constexpr char const* kBuckleWords[] = {"eigensolver", "sim", nullptr};
constexpr char const* kBuckleEigensolverWords[] = {"SUBSPACE", "LANCZOS", nullptr};
constexpr inp_SchemaEnum kBuckleEnums[] = {{"eigensolver", kBuckleEigensolverWords}};

// *CFD
constexpr char const* kCfdWords[] = {"energyequation", "incompressiblenavierstokes",
    "incrementation", nullptr};

// *COMPLEX FREQUENCY
constexpr char const* kComplexFrequencyWords[] = {"frictiondamping", "propertyevaluation", nullptr};

// *CONTROLS
constexpr char const* kControlsWords[] = {"analysis", "field", "parameters", "reset", nullptr};

// *CORRELATION
constexpr char const* kCorrelationWords[] = {"input", "psd", "type", nullptr};

// *COUPLED TEMPERATURE-DISPLACEMENT
constexpr char const* kCoupledTemperatureDisplacementWords[] = {"allsdtol", "cetol", "continue",
    "creep", "deltmx", "factor", "mxdem", "stabilize", "steadystate", nullptr};
constexpr char const* kCoupledTemperatureDisplacementCreepWords[] = {"EXPLICIT", "NONE", nullptr};
constexpr inp_SchemaEnum kCoupledTemperatureDisplacementEnums[] = {{"continue", inp_wordsNoYes},
    {"creep", kCoupledTemperatureDisplacementCreepWords}};

// *COUPLED THERMAL-ELECTRICAL
constexpr char const* kCoupledThermalElectricalWords[] = {"deltmx", "end", "steadystate", nullptr};
constexpr inp_SchemaEnum kCoupledThermalElectricalEnums[] = {{"end", inp_wordsEndPeriodSs}};

// *CREEP STRAIN RATE CONTROL
constexpr char const* kCreepStrainRateControlWords[] = {"amplitude", "elset", nullptr};

// *DAMPING CONTROLS
constexpr char const* kDampingControlsWords[] = {"structural", "viscous", nullptr};

// *DIAGNOSTICS
constexpr char const* kDiagnosticsWords[] = {"adaptivemesh", "contactinitialoverclosure",
    "criticalelements", "cutoffratio", "deeppenetrationfactor", "deformationspeedcheck",
    "detectcrossedsurfaces", "plasticity", "warningratio", "warpedsurface", "xspeedchecktype",
    "nonhybridincompressible", nullptr};
constexpr char const* kDiagnosticsAdaptivemeshWords[] = {"DETAIL", "OFF", "STEPSUMMARY", "SUMMARY",
    nullptr};
constexpr char const* kDiagnosticsContactinitialoverclosureWords[] = {"DETAIL", "SUMMARY", nullptr};
constexpr char const* kDiagnosticsDetectcrossedsurfacesWords[] = {"OFF", "ON", nullptr};
constexpr char const* kDiagnosticsXspeedchecktypeWords[] = {"INCREMENT", "RATE", nullptr};
constexpr inp_SchemaEnum kDiagnosticsEnums[] = {{"adaptivemesh", kDiagnosticsAdaptivemeshWords},
    {"contactinitialoverclosure", kDiagnosticsContactinitialoverclosureWords},
    {"deformationspeedcheck", kWordsDetailOffSummary},
    {"detectcrossedsurfaces", kDiagnosticsDetectcrossedsurfacesWords},
    {"plasticity", kWordsDetailOffSummary}, {"warpedsurface", kWordsDetailOffSummary},
    {"xspeedchecktype", kDiagnosticsXspeedchecktypeWords}};

// *DIRECT CYCLIC
constexpr char const* kDirectCyclicWords[] = {"cetol", "continue", "deltmx", "fatigue", nullptr};
constexpr inp_SchemaEnum kDirectCyclicEnums[] = {{"continue", inp_wordsNoYes}};

// *DSA CONTROLS
constexpr char const* kDsaControlsWords[] = {"formulation", "sizingfrequency", nullptr};

// *DYNAMIC
constexpr char const* kDynamicWords[] = {"adiabatic", "alpha", "application", "beta",
    "directusercontrol", "elementbyelement", "explicit", "fixedtimeincrementation", "gamma",
    "global", "haftol", "halfincscalefactor", "hhtalphacontact", "initial", "impact",
    "improveddtmethod", "incrementation", "timeintegrator", "massalpha", "rho-infinity", "nohaf",
    "scalefactor", "singularmass", "subspace", "vectors", "xgf", "xgs", "xms", nullptr};
constexpr char const* kDynamicApplicationWords[] = {"TRANSIENTFIDELITY", "MODERATEDISSIPATION",
    "QUASI-STATIC", nullptr};
constexpr char const* kDynamicImpactWords[] = {"AVERAGETIME", "CURRENTTIME", "NO", nullptr};
constexpr char const* kDynamicIncrementationWords[] = {"CONSERVATIVE", "AGGRESSIVE", nullptr};
constexpr char const* kDynamicTimeintegratorWords[] = {"HHT-TF", "BWE", "HYBRID", "HHT-MD", "CH-TF",
    "CH-MD", nullptr};
constexpr char const* kDynamicSingularmassWords[] = {"ERROR", "WARNING", "MAKEADJUSTMENTS",
    nullptr};
constexpr inp_SchemaEnum kDynamicEnums[] = {
    {"directusercontrol", kWordsNostop, inp_EnumGuard::SkipBoolean}, {"initial", inp_wordsNoYes},
    {"improveddtmethod", inp_wordsNoYes}, {"xgs", inp_wordsNoYes},
    {"application", kDynamicApplicationWords}, {"impact", kDynamicImpactWords},
    {"incrementation", kDynamicIncrementationWords},
    {"timeintegrator", kDynamicTimeintegratorWords}, {"singularmass", kDynamicSingularmassWords}};

// *DYNAMIC TEMPERATURE-DISPLACEMENT
constexpr char const* kDynamicTemperatureDisplacementWords[] = {"application", "cetol", "creep",
    "deltmx", "directusercontrol", "elementbyelement", "explicit", "fixedtimeincrementation",
    "improveddtmethod", "scalefactor", nullptr};
constexpr inp_SchemaEnum kDynamicTemperatureDisplacementEnums[] = {
    {"improveddtmethod", inp_wordsNoYes}};

// *ELECTROMAGNETIC
constexpr char const* kElectromagneticWords[] = {"lowfrequency", "timeharmonic", "transient",
    nullptr};

// *FIXED MASS SCALING
constexpr char const* kFixedMassScalingWords[] = {"crosssectionnodes", "dt", "elset",
    "extrudedlength", "factor", "feedrate", "numberelements", "type", nullptr};

// *FREQUENCY
constexpr char const* kFrequencyWords[] = {"eigensolver", "normalization", "propertyevaluation",
    "acousticcoupling", "numberinterval", "userboundaries", "bias", "residualmodes", "nset",
    "dampingprojection", "sim", "maxamssubstructure", "savecoupling", "excludepropertychangenodes",
    nullptr};
constexpr char const* kFrequencyEigensolverWords[] = {"SUBSPACE", "LANCZOS", "AMS", nullptr};
constexpr char const* kFrequencyNormalizationWords[] = {"DISPLACEMENT", "MASS", nullptr};
constexpr char const* kFrequencyAcousticcouplingWords[] = {"ON", "OFF", "PROJECTION", nullptr};
constexpr char const* kFrequencyResidualmodesWords[] = {"YES", "NO", "ON", "OFF", nullptr};
constexpr inp_SchemaEnum kFrequencyEnums[] = {{"eigensolver", kFrequencyEigensolverWords},
    {"normalization", kFrequencyNormalizationWords},
    {"acousticcoupling", kFrequencyAcousticcouplingWords},
    {"residualmodes", kFrequencyResidualmodesWords}, {"dampingprojection", inp_wordsOnOff}};

// *GEOSTATIC
constexpr char const* kGeostaticWords[] = {"utol", nullptr};

// *GLOBAL DAMPING
constexpr char const* kGlobalDampingWords[] = {"alpha", "beta", "field", "structural", nullptr};

// *HEAT TRANSFER
constexpr char const* kHeatTransferWords[] = {"centering", "deltmx", "end", "mxdem", "steadystate",
    "type", "gradients", nullptr};
constexpr char const* kHeatTransferCenteringWords[] = {"ELEMENT", "NODE", nullptr};
constexpr char const* kHeatTransferTypeWords[] = {"THERMALMECHANICAL", "THERMALFLOW", nullptr};
constexpr char const* kHeatTransferGradientsWords[] = {"HYBRIDLEASTSQUARES", "LEASTSQUARES",
    "GREENGAUSS", nullptr};
constexpr inp_SchemaEnum kHeatTransferEnums[] = {{"centering", kHeatTransferCenteringWords},
    {"end", inp_wordsEndPeriodSs}, {"type", kHeatTransferTypeWords},
    {"gradients", kHeatTransferGradientsWords}};

// *INERTIA RELIEF
constexpr char const* kInertiaReliefWords[] = {"orientation", "remove", nullptr};

// *MASS DIFFUSION
constexpr char const* kMassDiffusionWords[] = {"dcmax", "end", "steadystate", nullptr};
constexpr inp_SchemaEnum kMassDiffusionEnums[] = {{"end", inp_wordsEndPeriodSs}};

// *MODAL DAMPING
constexpr char const* kModalDampingWords[] = {"definition", "modal", "rayleigh", "structural",
    "viscous", nullptr};
constexpr char const* kModalDampingModalWords[] = {"DIRECT", "COMPOSITE", nullptr};
constexpr inp_SchemaEnum kModalDampingEnums[] = {{"definition", kWordsModenumbersFrequencyrange},
    {"modal", kModalDampingModalWords}};

// *MODAL DYNAMIC
constexpr char const* kModalDynamicWords[] = {"continue", nullptr};
constexpr inp_SchemaEnum kModalDynamicEnums[] = {{"continue", inp_wordsNoYes}};

// *MODEL CHANGE
constexpr char const* kModelChangeWords[] = {"activate", "add", "remove", "type", nullptr};
constexpr char const* kModelChangeAddWords[] = {"STRAINFREE", "WITHSTRAIN", nullptr};
constexpr char const* kModelChangeTypeWords[] = {"CONTACTPAIR", "ELEMENT", nullptr};
constexpr inp_SchemaEnum kModelChangeEnums[] = {
    {"add", kModelChangeAddWords, inp_EnumGuard::SkipBoolean}, {"type", kModelChangeTypeWords}};

// *PSD-DEFINITION
constexpr char const* kPsdDefinitionWords[] = {"g", "input", "name", "type", "units", nullptr};
constexpr char const* kPsdDefinitionTypeWords[] = {"BASE", "FORCE", nullptr};
constexpr char const* kPsdDefinitionUnitsWords[] = {"DB", "POWER", nullptr};
constexpr inp_SchemaEnum kPsdDefinitionEnums[] = {{"type", kPsdDefinitionTypeWords},
    {"units", kPsdDefinitionUnitsWords}};

// *RESPONSE SPECTRUM
constexpr char const* kResponseSpectrumWords[] = {"comp", "sum", nullptr};

// *RETAINED NODAL DOFS
constexpr char const* kRetainedNodalDofsWords[] = {"sorted", nullptr};
constexpr inp_SchemaEnum kRetainedNodalDofsEnums[] = {{"sorted", inp_wordsNoYes}};

// *SELECT CYCLIC SYMMETRY MODES
constexpr char const* kSelectCyclicSymmetryModesWords[] = {"begin", "end", "inc", nullptr};

// *SELECT EIGENMODES
constexpr char const* kSelectEigenmodesWords[] = {"definition", "generate", nullptr};
constexpr inp_SchemaEnum kSelectEigenmodesEnums[] = {
    {"definition", kWordsModenumbersFrequencyrange}};

// *SOILS
constexpr char const* kSoilsWords[] = {"cetol", "consolidation", "continue", "creep", "end",
    "nocreep", "utol", "stabilize", "factor", "allsdtol", "deltmx", "heat", nullptr};
constexpr char const* kSoilsCreepWords[] = {"NONE", nullptr};
constexpr inp_SchemaEnum kSoilsEnums[] = {{"end", inp_wordsEndPeriodSs},
    {"creep", kSoilsCreepWords}, {"continue", inp_wordsNoYes}, {"heat", inp_wordsNoYes}};

// *SOLUTION TECHNIQUE
constexpr char const* kSolutionTechniqueWords[] = {"reformkernel", "type", nullptr};

// *SOLVER CONTROLS
constexpr char const* kSolverControlsWords[] = {"reset", nullptr};

// *SPECTRUM
constexpr char const* kSpectrumWords[] = {"file", "g", "input", "name", "type", nullptr};
constexpr char const* kSpectrumTypeWords[] = {"ACCELERATION", "DISPLACEMENT", "GRAVITY", "VELOCITY",
    nullptr};
constexpr inp_SchemaEnum kSpectrumEnums[] = {{"type", kSpectrumTypeWords}};

// *STATIC
constexpr char const* kStaticWords[] = {"adiabatic", "continue", "direct", "factor", "fullyplastic",
    "allsdtol", "longterm", "riks", "stabilize", nullptr};
constexpr inp_SchemaEnum kStaticEnums[] = {{"direct", kWordsNostop, inp_EnumGuard::SkipBoolean},
    {"continue", inp_wordsNoYes}};

// *STEADY STATE DETECTION
constexpr char const* kSteadyStateDetectionWords[] = {"elset", "sampling", nullptr};

// *STEADY STATE DYNAMICS
constexpr char const* kSteadyStateDynamicsWords[] = {"direct", "subspaceprojection", "interval",
    "stiffnesschange", "dampingchange", "frequencyscale", "realonly", "travelingwave",
    "frictiondamping", "acousticcoupling", nullptr};
constexpr char const* kSteadyStateDynamicsSubspaceprojectionWords[] = {"ALLFREQUENCIES", "CONSTANT",
    "EIGENFREQUENCY", "PROPERTYCHANGE", "RANGE", nullptr};
constexpr char const* kSteadyStateDynamicsIntervalWords[] = {"RANGE", "EIGENFREQUENCY", "SPREAD",
    nullptr};
constexpr char const* kSteadyStateDynamicsFrequencyscaleWords[] = {"LOGARITHMIC", "LINEAR",
    nullptr};
constexpr char const* kSteadyStateDynamicsFrictiondampingWords[] = {"NO", "YES", "NEGATIVEONLY",
    nullptr};
constexpr char const* kSteadyStateDynamicsAcousticcouplingWords[] = {"FULL", "SEQUENTIAL", "OFF",
    nullptr};
constexpr inp_SchemaEnum kSteadyStateDynamicsEnums[] = {
    {"subspaceprojection", kSteadyStateDynamicsSubspaceprojectionWords},
    {"interval", kSteadyStateDynamicsIntervalWords},
    {"frequencyscale", kSteadyStateDynamicsFrequencyscaleWords}, {"travelingwave", inp_wordsOneTwo},
    {"frictiondamping", kSteadyStateDynamicsFrictiondampingWords},
    {"acousticcoupling", kSteadyStateDynamicsAcousticcouplingWords}};

// *STEADY STATE TRANSPORT
constexpr char const* kSteadyStateTransportWords[] = {"allsdtol", "continue", "factor", "inertia",
    "longterm", "stabilize", nullptr};
constexpr inp_SchemaEnum kSteadyStateTransportEnums[] = {{"continue", inp_wordsNoYes},
    {"inertia", inp_wordsNoYes}};

// *SUBCYCLING
// The element set whose elements take increments of their own.
constexpr char const* kSubcyclingWords[] = {"elset", nullptr};

// *TURBULENCE MODEL
constexpr char const* kTurbulenceModelWords[] = {"type", nullptr};

// *VARIABLE MASS SCALING
constexpr char const* kVariableMassScalingWords[] = {"crosssectionnodes", "dt", "elset",
    "extrudedlength", "feedrate", "frequency", "numberelements", "numberinterval", "type", nullptr};

// *VISCO
constexpr char const* kViscoWords[] = {"cetol", "explicit", "stabilize", "factor", "creep",
    "allsdtol", "continue", nullptr};
constexpr char const* kViscoCreepWords[] = {"EXPLICIT", nullptr};
constexpr inp_SchemaEnum kViscoEnums[] = {{"creep", kViscoCreepWords},
    {"continue", inp_wordsNoYes}};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_Anneal, inp_SchemaKind::Row, kAnnealWords, {}},
    {inp_kw_AnnealTemperature, inp_SchemaKind::Row,
     kAnnealTemperatureWords, {}},
    {inp_kw_BaselineCorrection, inp_SchemaKind::NoParameters,
     inp_wordsEmpty, {}},
    {inp_kw_BaseMotion, inp_SchemaKind::Row, kBaseMotionWords, kBaseMotionEnums},
    {inp_kw_Buckle, inp_SchemaKind::Row, kBuckleWords, kBuckleEnums},
    {inp_kw_BulkViscosity, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Cfd, inp_SchemaKind::Row, kCfdWords, {}},
    {inp_kw_ComplexFrequency, inp_SchemaKind::Row, kComplexFrequencyWords, {}},
    {inp_kw_CompositeModalDamping, inp_SchemaKind::Row,
     inp_wordsEmpty, {}},
    {inp_kw_Controls, inp_SchemaKind::Row, kControlsWords, {}},
    {inp_kw_Correlation, inp_SchemaKind::Logic, kCorrelationWords, {}},
    {inp_kw_CoupledTemperatureDisplacement, inp_SchemaKind::Row,
     kCoupledTemperatureDisplacementWords, kCoupledTemperatureDisplacementEnums},
    {inp_kw_CoupledThermalElectrical, inp_SchemaKind::Row,
     kCoupledThermalElectricalWords, kCoupledThermalElectricalEnums},
    {inp_kw_CreepStrainRateControl, inp_SchemaKind::Row,
     kCreepStrainRateControlWords, {}},
    {inp_kw_DampingControls, inp_SchemaKind::Row, kDampingControlsWords, {}},
    {inp_kw_Diagnostics, inp_SchemaKind::Row, kDiagnosticsWords, kDiagnosticsEnums},
    {inp_kw_DirectCyclic, inp_SchemaKind::Row,
     kDirectCyclicWords, kDirectCyclicEnums},
    {inp_kw_DsaControls, inp_SchemaKind::Row, kDsaControlsWords, {}},
    {inp_kw_Dynamic, inp_SchemaKind::Row, kDynamicWords, kDynamicEnums},
    {inp_kw_DynamicTemperatureDisplacement, inp_SchemaKind::Row,
     kDynamicTemperatureDisplacementWords, kDynamicTemperatureDisplacementEnums},
    {inp_kw_Electromagnetic, inp_SchemaKind::Row, kElectromagneticWords, {}},
    {inp_kw_EnergyEquationSolver, inp_SchemaKind::Row,
     kEquationSolverWords, {}},
    {inp_kw_FixedMassScaling, inp_SchemaKind::Row, kFixedMassScalingWords, {}},
    {inp_kw_Frequency, inp_SchemaKind::Row, kFrequencyWords, kFrequencyEnums},
    {inp_kw_Geostatic, inp_SchemaKind::Row, kGeostaticWords, {}},
    {inp_kw_GlobalDamping, inp_SchemaKind::Row, kGlobalDampingWords, {}},
    {inp_kw_HeatTransfer, inp_SchemaKind::Row,
     kHeatTransferWords, kHeatTransferEnums},
    {inp_kw_InertiaRelief, inp_SchemaKind::Row, kInertiaReliefWords, {}},
    {inp_kw_Magnetostatic, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_MassDiffusion, inp_SchemaKind::Row,
     kMassDiffusionWords, kMassDiffusionEnums},
    {inp_kw_ModalDamping, inp_SchemaKind::Row,
     kModalDampingWords, kModalDampingEnums},
    {inp_kw_ModalDynamic, inp_SchemaKind::Row,
     kModalDynamicWords, kModalDynamicEnums},
    {inp_kw_ModelChange, inp_SchemaKind::Row, kModelChangeWords, kModelChangeEnums},
    {inp_kw_MomentumEquationSolver, inp_SchemaKind::Row,
     kEquationSolverWords, {}},
    {inp_kw_PressureEquationSolver, inp_SchemaKind::Row,
     kEquationSolverWords, {}},
    {inp_kw_PrestressHold, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PsdDefinition, inp_SchemaKind::Logic,
     kPsdDefinitionWords, kPsdDefinitionEnums},
    {inp_kw_ResponseSpectrum, inp_SchemaKind::Row, kResponseSpectrumWords, {}},
    {inp_kw_RetainedEigenModes, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_RetainedNodalDofs, inp_SchemaKind::Row,
     kRetainedNodalDofsWords, kRetainedNodalDofsEnums},
    {inp_kw_SelectCyclicSymmetryModes, inp_SchemaKind::Row,
     kSelectCyclicSymmetryModesWords, {}},
    {inp_kw_SelectEigenmodes, inp_SchemaKind::Row,
     kSelectEigenmodesWords, kSelectEigenmodesEnums},
    {inp_kw_Soils, inp_SchemaKind::Row, kSoilsWords, kSoilsEnums},
    {inp_kw_SolutionTechnique, inp_SchemaKind::Row,
     kSolutionTechniqueWords, {}},
    {inp_kw_SolverControls, inp_SchemaKind::Row, kSolverControlsWords, {}},
    {inp_kw_Spectrum, inp_SchemaKind::Logic, kSpectrumWords, kSpectrumEnums},
    {inp_kw_Static, inp_SchemaKind::Row, kStaticWords, kStaticEnums},
    {inp_kw_SteadyStateCriteria, inp_SchemaKind::NoParameters,
     inp_wordsEmpty, {}},
    {inp_kw_SteadyStateDetection, inp_SchemaKind::Row,
     kSteadyStateDetectionWords, {}},
    {inp_kw_SteadyStateDynamics, inp_SchemaKind::Row,
     kSteadyStateDynamicsWords, kSteadyStateDynamicsEnums},
    {inp_kw_SteadyStateTransport, inp_SchemaKind::Row,
     kSteadyStateTransportWords, kSteadyStateTransportEnums},
    {inp_kw_Subcycling, inp_SchemaKind::Row, kSubcyclingWords, {}},
    {inp_kw_TransportEquationSolver, inp_SchemaKind::Row,
     kEquationSolverWords, {}},
    {inp_kw_TurbulenceEquationSolver, inp_SchemaKind::Row,
     kEquationSolverWords, {}},
    {inp_kw_TurbulenceModel, inp_SchemaKind::Row, kTurbulenceModelWords, {}},
    {inp_kw_VariableMassScaling, inp_SchemaKind::Row,
     kVariableMassScalingWords, {}},
    {inp_kw_Visco, inp_SchemaKind::Row, kViscoWords, kViscoEnums},
};

}  // namespace
// clang-format on

std::span<inp_SchemaRow const> inp_SchemaProceduresRows() {
    return kRows;
}
