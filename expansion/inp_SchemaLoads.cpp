// The schema rows of one family of keywords: loads, prescribed conditions and fields.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

// The tables keep their own layout: one keyword per block, word lists packed.
// clang-format off
namespace {

// Loads that take no more than an amplitude and the choice of op:
// *CECHARGE, *CECURRENT, *CFLUX, *CRADIATE, *DECHARGE, *DECURRENT, *DFLOW, *DFLUX,
// *DSECHARGE, *DSECURRENT, *DSFLOW, *DSFLUX, *FLOW, *RADIATE, *SFLOW, *SLOAD, *SRADIATE,
// *TRANSPORT VELOCITY
constexpr char const* kAmplitudeOpWords[] = {"amplitude", "op", nullptr};
constexpr inp_SchemaEnum kAmplitudeOpEnums[] = {{"op", inp_wordsModNew}};

// Film conditions, whose coefficient may follow an amplitude of its own:
// *CFILM, *FILM, *SFILM
constexpr char const* kFilmAmplitudeOpWords[] = {"amplitude", "filmamplitude", "op", nullptr};
constexpr inp_SchemaEnum kFilmAmplitudeOpEnums[] = {{"op", inp_wordsModNew}};

// *AMPLITUDE
constexpr char const* kAmplitudeWords[] = {"begin", "definition", "fixedinterval", "input", "name",
    "properties", "smooth", "time", "value", "scalex", "scaley", "shiftx", "shifty", "variables",
    nullptr};
constexpr char const* kAmplitudeDefinitionWords[] = {"ACTUATOR", "BUBBLE", "DECAY", "EQUALLYSPACED",
    "MODULATED", "PERIODIC", "HICKS", "SOLUTIONDEPENDENT", "TABULAR", "SMOOTHSTEP", "USER",
    nullptr};
constexpr char const* kAmplitudeTimeWords[] = {"STEPTIME", "TOTALTIME", nullptr};
constexpr char const* kAmplitudeValueWords[] = {"ABSOLUTE", "RELATIVE", nullptr};
constexpr inp_SchemaEnum kAmplitudeEnums[] = {{"definition", kAmplitudeDefinitionWords},
    {"time", kAmplitudeTimeWords}, {"value", kAmplitudeValueWords}};

// *BOUNDARY
constexpr char const* kBoundaryWords[] = {"amplitude", "basename", "blocking", "fixed", "inc",
    "loadcase", "name", "op", "phantom", "regiontype", "scale", "step", "submodel", "timescale",
    "type", "user", "real", "imaginary", nullptr};
constexpr char const* kBoundaryTypeWords[] = {"ACCELERATION", "DISPLACEMENT", "VELOCITY", nullptr};
constexpr char const* kBoundaryPhantomWords[] = {"NODE", "EDGE", "INCLUDED", nullptr};
constexpr inp_SchemaEnum kBoundaryEnums[] = {{"blocking", inp_wordsNoYes},
    {"loadcase", inp_wordsOneTwo}, {"op", inp_wordsModNew}, {"regiontype", inp_wordsRegionType},
    {"type", kBoundaryTypeWords}, {"phantom", kBoundaryPhantomWords}};

// *CAPACITY
constexpr char const* kCapacityWords[] = {"type", nullptr};
constexpr char const* kCapacityTypeWords[] = {"POLYNOMIAL", "TABULAR", nullptr};
constexpr inp_SchemaEnum kCapacityEnums[] = {{"type", kCapacityTypeWords}};

// *CFLOW
// A flow at a phantom edge names the edge's second node in its data, as a
// phantom *BOUNDARY does; the two take the same words.
constexpr char const* kCflowWords[] = {"amplitude", "op", "phantom", nullptr};
constexpr inp_SchemaEnum kCflowEnums[] = {{"op", inp_wordsModNew},
    {"phantom", kBoundaryPhantomWords}};

// *CLOAD
constexpr char const* kCloadWords[] = {"amplitude", "cyclicmode", "follower", "loadcase", "op",
    "regiontype", "sectornumber", "real", "imaginary", "file", "step", "inc", nullptr};
constexpr inp_SchemaEnum kCloadEnums[] = {{"op", inp_wordsModNew},
    {"regiontype", inp_wordsRegionType}, {"sectornumber", inp_wordsOneTwo}};

// *DLOAD
constexpr char const* kDloadWords[] = {"amplitude", "cyclicmode", "loadcase", "op", "regiontype",
    "sectornumber", "orientation", "follower", "constantresultant", "refnode", "real", "imaginary",
    nullptr};
constexpr inp_SchemaEnum kDloadEnums[] = {{"loadcase", inp_wordsOneTwo}, {"op", inp_wordsModNew},
    {"regiontype", inp_wordsRegionType}, {"sectornumber", inp_wordsOneTwo},
    {"follower", inp_wordsNoYes}, {"constantresultant", inp_wordsNoYes}};

// *DSLOAD
constexpr char const* kDsloadWords[] = {"amplitude", "cyclicmode", "loadcase", "op", "regiontype",
    "sectornumber", "orientation", "follower", "constantresultant", "refnode", "submodel", "step",
    "inc", "real", "imaginary", nullptr};
constexpr inp_SchemaEnum kDsloadEnums[] = {{"loadcase", inp_wordsOneTwo}, {"op", inp_wordsModNew},
    {"regiontype", inp_wordsRegionType}, {"sectornumber", inp_wordsOneTwo},
    {"follower", inp_wordsNoYes}, {"constantresultant", inp_wordsNoYes}};

// *FIELD
constexpr char const* kFieldWords[] = {"amplitude", "binc", "bstep", "einc", "estep", "file",
    "input", "number", "op", "user", "variable", "blocking", "outputvariable", "interpolate",
    nullptr};
constexpr inp_SchemaEnum kFieldEnums[] = {{"op", inp_wordsModNew}};

// *HEATCAP
constexpr char const* kHeatCapWords[] = {"elset", nullptr};

// *INITIAL CONDITIONS
constexpr char const* kInitialConditionsWords[] = {"absoluteexteriortolerance", "definition",
    "elementaverage", "eoffset", "exteriortolerance", "file", "geostatic", "inc", "input",
    "interpolate", "midside", "normal", "rebar", "sectionpoints", "step", "type", "user",
    "variable", "unbalancedstress", "numberbackstresses", "fulltensor", "outputvariable",
    "drivingelsets", "criterion", nullptr};
constexpr char const* kInitialConditionsTypeWords[] = {"ACOUSTICSTATICPRESSURE", "CONCENTRATION",
    "CONTACT", "DENSITY", "ENRICHMENT", "ENTHALPY", "FIELD", "FLUIDPRESSURE", "HARDENING",
    "IENTHALPY", "INITIALGAP", "MASSFLOWRATE", "NODEREFCOORDINATE", "NONAXI", "OLDMESH",
    "PLASTICSTRAIN", "POREPRESSURE", "POROSITY", "PRESSURESTRESS", "RAMP", "RATIO", "REFCOORDINATE",
    "RELATIVEDENSITY", "ROTATINGVELOCITY", "SATURATION", "SOLUTION", "SPECIFICENERGY",
    "SPUDEMBEDMENT", "SPUDPRELOAD", "STEP", "STRESS", "TEMPERATURE", "TURBEPS", "TURBKE",
    "TURBOMEGA", "TURBNU", "TURBINTENSITY", "TURBVISCOSITYRATIO", "TURBLENGTHSCALE",
    "TURBVELOCITYSCALE", "TURBPROD", "TURBZETA", "VELOCITY", "VOLUMEFRACTION", "HYDRAULICFRICTION",
    "DAMAGEINITIATION", nullptr};
constexpr char const* kInitialConditionsUnbalancedstressWords[] = {"RAMP", "STEP", nullptr};
constexpr char const* kInitialConditionsCriterionWords[] = {"DUCTILE", "SHEAR", "MSFLD", nullptr};
constexpr inp_SchemaEnum kInitialConditionsEnums[] = {{"definition", inp_wordsCoordinatesNodes},
    {"type", kInitialConditionsTypeWords},
    {"unbalancedstress", kInitialConditionsUnbalancedstressWords},
    {"criterion", kInitialConditionsCriterionWords}};

// *MASS FLOW RATE
constexpr char const* kMassFlowRateWords[] = {"amplitude", "input", "op", nullptr};
constexpr inp_SchemaEnum kMassFlowRateEnums[] = {{"op", inp_wordsModNew}};

// *MOTION
// With `element` the data lines name elements rather than nodes.
constexpr char const* kMotionWords[] = {"amplitude", "element", "op", "type", nullptr};
constexpr inp_SchemaEnum kMotionEnums[] = {{"op", inp_wordsModNew}};

// *NODAL ENERGY RATE
// With `generate` a data line gives a first node, a last node and an increment.
constexpr char const* kNodalEnergyRateWords[] = {"generate", "input", nullptr};

// *PRESSURE STRESS
constexpr char const* kPressureStressWords[] = {"amplitude", "binc", "bstep", "einc", "estep",
    "file", "input", "op", nullptr};
constexpr inp_SchemaEnum kPressureStressEnums[] = {{"op", inp_wordsModNew}};

// *RADIATION SYMMETRY
constexpr char const* kRadiationSymmetryWords[] = {"name", nullptr};

// *RADIATION VIEWFACTOR
constexpr char const* kRadiationViewfactorWords[] = {"blocking", "cavity", "infinity", "nset",
    "range", nullptr};

// *RATIOS
constexpr char const* kRatiosWords[] = {"dependencies", nullptr};

// *REFLECTION
constexpr char const* kReflectionWords[] = {"type", nullptr};

// *TEMPERATURE
constexpr char const* kTemperatureWords[] = {"absoluteexteriortolerance", "amplitude", "binc",
    "bstep", "btramp", "einc", "estep", "exteriortolerance", "file", "input", "interpolate",
    "midside", "op", "user", "drivingelsets", nullptr};
constexpr inp_SchemaEnum kTemperatureEnums[] = {{"op", inp_wordsModNew}};

// *TORQUE
constexpr char const* kTorqueWords[] = {"dependencies", "elastic", "extrapolation", "linear",
    "plastic", nullptr};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_Amplitude, inp_SchemaKind::Logic, kAmplitudeWords, kAmplitudeEnums},
    {inp_kw_Boundary, inp_SchemaKind::Logic, kBoundaryWords, kBoundaryEnums},
    {inp_kw_Capacity, inp_SchemaKind::Logic, kCapacityWords, kCapacityEnums},
    {inp_kw_Cecharge, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Cecurrent, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Cfilm, inp_SchemaKind::Row, kFilmAmplitudeOpWords, kFilmAmplitudeOpEnums},
    {inp_kw_Cflow, inp_SchemaKind::Row, kCflowWords, kCflowEnums},
    {inp_kw_Cflux, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Cload, inp_SchemaKind::Row, kCloadWords, kCloadEnums},
    {inp_kw_Cradiate, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Decharge, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Decurrent, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dflow, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dflux, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dload, inp_SchemaKind::Row, kDloadWords, kDloadEnums},
    {inp_kw_Dsecharge, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dsecurrent, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dsflow, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dsflux, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Dsload, inp_SchemaKind::Row, kDsloadWords, kDsloadEnums},
    {inp_kw_Field, inp_SchemaKind::Logic, kFieldWords, kFieldEnums},
    {inp_kw_Film, inp_SchemaKind::Row, kFilmAmplitudeOpWords, kFilmAmplitudeOpEnums},
    {inp_kw_Flow, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_HeatCap, inp_SchemaKind::Logic, kHeatCapWords, {}},
    {inp_kw_HeatGeneration, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_InitialConditions, inp_SchemaKind::Logic,
     kInitialConditionsWords, kInitialConditionsEnums},
    {inp_kw_MassFlowRate, inp_SchemaKind::Logic, kMassFlowRateWords, kMassFlowRateEnums},
    {inp_kw_Motion, inp_SchemaKind::Row, kMotionWords, kMotionEnums},
    {inp_kw_NodalEnergyRate, inp_SchemaKind::Logic, kNodalEnergyRateWords, {}},
    {inp_kw_PressureStress, inp_SchemaKind::Logic, kPressureStressWords, kPressureStressEnums},
    {inp_kw_Radiate, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_RadiationSymmetry, inp_SchemaKind::Row, kRadiationSymmetryWords, {}},
    {inp_kw_RadiationViewfactor, inp_SchemaKind::Row, kRadiationViewfactorWords, {}},
    {inp_kw_Ratios, inp_SchemaKind::Row, kRatiosWords, {}},
    {inp_kw_Reflection, inp_SchemaKind::Row, kReflectionWords, {}},
    {inp_kw_Sfilm, inp_SchemaKind::Row, kFilmAmplitudeOpWords, kFilmAmplitudeOpEnums},
    {inp_kw_Sflow, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Sload, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Sradiate, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
    {inp_kw_Temperature, inp_SchemaKind::Logic, kTemperatureWords, kTemperatureEnums},
    {inp_kw_Torque, inp_SchemaKind::Row, kTorqueWords, {}},
    {inp_kw_TransportVelocity, inp_SchemaKind::Row, kAmplitudeOpWords, kAmplitudeOpEnums},
};

}  // namespace
// clang-format on

std::span<inp_SchemaRow const> inp_SchemaLoadsRows() {
    return kRows;
}
