// The schema rows of one family of keywords: element sections, their
// suboptions and the properties of special-purpose elements.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// The tables are laid out by hand, one keyword to a block.
// clang-format off

// Words that several rows of this family share.
constexpr char const* kExtrapolationWords[] = {"CONSTANT", "LINEAR", nullptr};
constexpr char const* kRotaryInertiaWords[] = {"EXACT", "ISOTROPIC", nullptr};

// *BEAM ADDED INERTIA
constexpr char const* kBeamAddedInertiaWords[] = {"alpha", "composite", nullptr};

// *BEAM FLUID INERTIA
constexpr char const* kBeamFluidInertiaWords[] = {"full", nullptr};

// *BEAM GENERAL SECTION
// With `taper` the first direction of the section stands one data line lower.
constexpr char const* kBeamGeneralSectionWords[] = {"density", "dependencies", "elset",
                                                    "lumped",  "poisson",      "rotaryinertia",
                                                    "section", "taper",        "zero",
                                                    nullptr};
// The library shapes of *BEAM SECTION except ELBOW, which only elbow elements
// take; GENERAL, MESHED and NONLINEARGENERAL give the section by its properties.
constexpr char const* kBeamGeneralSectionShapes[] = {
    "ARBITRARY", "BOX",    "CIRCULAR",         "GENERAL", "HEX",         "I-BEAM",
    "L-BEAM",    "MESHED", "NONLINEARGENERAL", "PIPE",    "RECTANGULAR", "THICKPIPE",
    "TRAPEZOID", nullptr};
constexpr inp_SchemaEnum kBeamGeneralSectionEnums[] = {{"lumped", inp_wordsNoYes},
                                                       {"rotaryinertia", kRotaryInertiaWords},
                                                       {"section", kBeamGeneralSectionShapes}};

// *BEAM SECTION
constexpr char const* kBeamSectionWords[] = {"elset",         "material", "poisson",
                                             "rotaryinertia", "section",  "temperature",
                                             "control",       "lumped",   nullptr};
constexpr char const* kBeamSectionShapes[] = {"ARBITRARY",   "BOX",       "CIRCULAR",  "ELBOW",
                                              "HEX",         "I-BEAM",    "L-BEAM",    "PIPE",
                                              "RECTANGULAR", "THICKPIPE", "TRAPEZOID", nullptr};
constexpr char const* kBeamSectionTemperatureWords[] = {"GRADIENTS", "VALUES", nullptr};
constexpr inp_SchemaEnum kBeamSectionEnums[] = {{"rotaryinertia", kRotaryInertiaWords},
                                                {"section", kBeamSectionShapes},
                                                {"temperature", kBeamSectionTemperatureWords},
                                                {"lumped", inp_wordsNoYes}};

// *COHESIVE SECTION
constexpr char const* kCohesiveSectionWords[] = {"controls",    "elset",    "material",
                                                 "orientation", "response", "stackdirection",
                                                 "thickness",   nullptr};
constexpr char const* kCohesiveResponseWords[] = {"TRACTIONSEPARATION", "CONTINUUM", "GASKET",
                                                  nullptr};
constexpr char const* kCohesiveThicknessWords[] = {"GEOMETRY", "SPECIFIED", nullptr};
constexpr inp_SchemaEnum kCohesiveSectionEnums[] = {{"response", kCohesiveResponseWords},
                                                    {"stackdirection", inp_wordsStackDirection},
                                                    {"thickness", kCohesiveThicknessWords}};

// *CYCLIC
constexpr char const* kCyclicWords[] = {"cavity", nullptr};

// *DASHPOT
constexpr char const* kDashpotWords[] = {"dependencies", "elset", "nonlinear",
                                         "orientation",  "rtol",  nullptr};

// *DISCRETE SECTION
constexpr char const* kDiscreteSectionWords[] = {"alpha", "density", "elset", "orientation",
                                                 "shape", nullptr};

// *EPJOINT
constexpr char const* kEpjointWords[] = {"elset", "orientation", nullptr};

// *EULERIAN SECTION
constexpr char const* kEulerianSectionWords[] = {"controls", "elset", nullptr};

// *FLEXIBLE BODY
constexpr char const* kFlexibleBodyWords[] = {"type", nullptr};

// *FLUID PIPE CONNECTOR SECTION
constexpr char const* kFluidPipeConnectorSectionWords[] = {"elset", "material", nullptr};

// *FLUID PIPE SECTION
constexpr char const* kFluidPipeSectionWords[] = {"elset", "material", nullptr};

// *FLUID SECTION
constexpr char const* kFluidSectionWords[] = {"elset", "material", nullptr};

// *FRAME SECTION
constexpr char const* kFrameSectionWords[] = {"buckling", "density", "elset",
                                              "pinned",   "section", nullptr};
constexpr char const* kFrameSectionShapes[] = {"ARBITRARY",   "BOX",       "CIRCULAR",  "GENERAL",
                                               "HEX",         "I-BEAM",    "L-BEAM",    "PIPE",
                                               "RECTANGULAR", "THICKPIPE", "TRAPEZOID", nullptr};
constexpr inp_SchemaEnum kFrameSectionEnums[] = {{"section", kFrameSectionShapes}};

// *GAP
constexpr char const* kGapWords[] = {"elset", nullptr};

// *GASKET BEHAVIOR
constexpr char const* kGasketBehaviorWords[] = {"name", nullptr};

// *GASKET CONTACT AREA
constexpr char const* kGasketContactAreaWords[] = {"dependencies", nullptr};

// *GASKET ELASTICITY
constexpr char const* kGasketElasticityWords[] = {"component", "dependencies", nullptr};
constexpr char const* kGasketElasticityComponents[] = {"MEMBRANE", "TRANSVERSESHEAR", nullptr};
constexpr inp_SchemaEnum kGasketElasticityEnums[] = {{"component", kGasketElasticityComponents}};

// *GASKET SECTION
constexpr char const* kGasketSectionWords[] = {"behavior", "elset", "material", "orientation",
                                               nullptr};

// *GASKET THICKNESS BEHAVIOR
// `yieldonset` stands before `yieldonsetmethod`, which begins with it.
constexpr char const* kGasketThicknessBehaviorWords[] = {
    "dependencies", "direction",  "tensilestiffnessfactor", "type",
    "variable",     "yieldonset", "yieldonsetmethod",       nullptr};
constexpr char const* kGasketDirectionWords[] = {"LOADING", "UNLOADING", nullptr};
constexpr char const* kGasketThicknessTypeWords[] = {"DAMAGE", "ELASTICPLASTIC", nullptr};
constexpr inp_SchemaEnum kGasketThicknessBehaviorEnums[] = {{"direction", kGasketDirectionWords},
                                                            {"type", kGasketThicknessTypeWords}};

// *INTERFACE
constexpr char const* kInterfaceWords[] = {"elset", nullptr};

// *ITS
constexpr char const* kItsWords[] = {"elset", nullptr};

// *JOINT
constexpr char const* kJointWords[] = {"elset", "orientation", nullptr};

// *M1
constexpr char const* kM1Words[] = {"dependencies", "elastic", "extrapolation", nullptr};
constexpr inp_SchemaEnum kM1Enums[] = {{"extrapolation", kExtrapolationWords}};

// *M2
constexpr char const* kM2Words[] = {"dependencies", "elastic", "extrapolation", nullptr};
constexpr inp_SchemaEnum kM2Enums[] = {{"extrapolation", kExtrapolationWords}};

// *MASS
constexpr char const* kMassWords[] = {"alpha", "composite", "elset", "orientation", "type",
                                      nullptr};
constexpr char const* kMassTypeWords[] = {"ANISOTROPIC", "ISOTROPIC", nullptr};
constexpr inp_SchemaEnum kMassEnums[] = {{"type", kMassTypeWords}};

// *MEMBRANE SECTION
// `membranethickness` names a distribution of thicknesses. It stands behind
// `material`, so that a bare M keeps meaning the material.
constexpr char const* kMembraneSectionWords[] = {
    "controls", "elset", "material", "membranethickness", "nodalthickness", "orientation",
    "poisson", nullptr};

// *NONSTRUCTURAL MASS
constexpr char const* kNonStructuralMassWords[] = {"distribution", "elset", "surface", "units",
                                                   nullptr};
constexpr char const* kNonStructuralMassDistributions[] = {"MASSPROPORTIONAL", "VOLUMEPROPORTIONAL",
                                                           nullptr};
constexpr char const* kNonStructuralMassUnits[] = {"MASSPERAREA", "MASSPERLENGTH", "MASSPERVOLUME",
                                                   "TOTALMASS", nullptr};
constexpr inp_SchemaEnum kNonStructuralMassEnums[] = {
    {"distribution", kNonStructuralMassDistributions}, {"units", kNonStructuralMassUnits}};

// *PRE-TENSION SECTION
constexpr char const* kPreTensionSectionWords[] = {"element", "node", "surface", nullptr};

// *ROTARY INERTIA
constexpr char const* kRotaryInertiaParameters[] = {"alpha", "composite", "elset", "orientation",
                                                    nullptr};

// *SECTION CONTROLS
constexpr char const* kSectionControlsWords[] = {
    "conversioncriterion", "distortioncontrol", "elementconversion", "elementdeletion", "hourglass",
    "kernel", "kinematicsplit", "lengthratio", "maxdegradation", "name", "secondorderaccuracy",
    "viscosity", "weightfactor", nullptr};
constexpr char const* kHourglassWords[] = {"COMBINED",  "ENHANCED", "RELAXSTIFFNESS",
                                           "STIFFNESS", "VISCOUS",  nullptr};
constexpr char const* kKinematicSplitWords[] = {"AVERAGESTRAIN", "CENTRALDIFFERENCE", "ORTHOGONAL",
                                                nullptr};
constexpr inp_SchemaEnum kSectionControlsEnums[] = {{"distortioncontrol", inp_wordsNoYes},
                                                    {"elementdeletion", inp_wordsNoYes},
                                                    {"hourglass", kHourglassWords},
                                                    {"kinematicsplit", kKinematicSplitWords},
                                                    {"secondorderaccuracy", inp_wordsNoYes}};

// *SECTION ORIGIN
constexpr char const* kSectionOriginWords[] = {"origin", nullptr};

// *SHELL GENERAL SECTION
constexpr char const* kShellGeneralSectionWords[] = {
    "composite", "controls",   "density",        "dependencies", "elset",
    "layup",     "material",   "nodalthickness", "offset",       "orientation",
    "poisson",   "properties", "shellthickness", "symmetric",    "thicknessmodulus",
    "unsymm",    "user",       "variables",      "zero",         nullptr};

// *SHELL SECTION
constexpr char const* kShellSectionWords[] = {
    "elset", "composite", "controls", "material", "nodalthickness", "offset", "orientation",
    "poisson", "sectionintegration", "stackdirection", "symmetric", "temperature",
    "thicknessmodulus", "density", "layup", "shellthickness", nullptr};
constexpr char const* kSectionIntegrationWords[] = {"SIMPSON", "GAUSS", nullptr};
constexpr inp_SchemaEnum kShellSectionEnums[] = {{"sectionintegration", kSectionIntegrationWords},
                                                 {"stackdirection", inp_wordsStackDirection}};

// *SLIDE LINE
// With `generate` the data lines give node ranges: first, last and step.
constexpr char const* kSlideLineWords[] = {"elset", "generate", "smooth", "type", nullptr};

// *SOLID SECTION
constexpr char const* kSolidSectionWords[] = {
    "elset",          "controls",  "composite", "material", "order", "orientation",
    "stackdirection", "symmetric", "refnode",   "layup",    nullptr};

// *SPRING
constexpr char const* kSpringWords[] = {"dependencies", "elset", "nonlinear",
                                        "orientation",  "rtol",  nullptr};

// *SURFACE SECTION
constexpr char const* kSurfaceSectionWords[] = {"density", "elset", nullptr};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_BeamAddedInertia, inp_SchemaKind::Row, kBeamAddedInertiaWords, {}},
    {inp_kw_BeamFluidInertia, inp_SchemaKind::Row, kBeamFluidInertiaWords, {}},
    {inp_kw_BeamGeneralSection, inp_SchemaKind::Row,
     kBeamGeneralSectionWords, kBeamGeneralSectionEnums},
    {inp_kw_BeamSection, inp_SchemaKind::Row, kBeamSectionWords, kBeamSectionEnums},
    {inp_kw_BeamSectionGenerate, inp_SchemaKind::Untouched,
     inp_wordsEmpty, {}},
    {inp_kw_BeamSectionOffset, inp_SchemaKind::NoParameters,
     inp_wordsEmpty, {}},
    {inp_kw_Centroid, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_CohesiveSection, inp_SchemaKind::Row,
     kCohesiveSectionWords, kCohesiveSectionEnums},
    {inp_kw_Cyclic, inp_SchemaKind::Row, kCyclicWords, {}},
    {inp_kw_Dashpot, inp_SchemaKind::Row, kDashpotWords, {}},
    {inp_kw_DiscreteSection, inp_SchemaKind::Row, kDiscreteSectionWords, {}},
    {inp_kw_Epjoint, inp_SchemaKind::Row, kEpjointWords, {}},
    {inp_kw_EulerianSection, inp_SchemaKind::Row, kEulerianSectionWords, {}},
    {inp_kw_FlexibleBody, inp_SchemaKind::Row, kFlexibleBodyWords, {}},
    {inp_kw_FluidPipeConnectorSection, inp_SchemaKind::Row,
     kFluidPipeConnectorSectionWords, {}},
    {inp_kw_FluidPipeSection, inp_SchemaKind::Row, kFluidPipeSectionWords, {}},
    {inp_kw_FluidSection, inp_SchemaKind::Row, kFluidSectionWords, {}},
    {inp_kw_FrameSection, inp_SchemaKind::Row,
     kFrameSectionWords, kFrameSectionEnums},
    {inp_kw_Gap, inp_SchemaKind::Row, kGapWords, {}},
    {inp_kw_GasketBehavior, inp_SchemaKind::Row, kGasketBehaviorWords, {}},
    {inp_kw_GasketContactArea, inp_SchemaKind::Row,
     kGasketContactAreaWords, {}},
    {inp_kw_GasketElasticity, inp_SchemaKind::Row,
     kGasketElasticityWords, kGasketElasticityEnums},
    {inp_kw_GasketSection, inp_SchemaKind::Row, kGasketSectionWords, {}},
    {inp_kw_GasketThicknessBehavior, inp_SchemaKind::Row,
     kGasketThicknessBehaviorWords, kGasketThicknessBehaviorEnums},
    {inp_kw_HourglassStiffness, inp_SchemaKind::NoParameters,
     inp_wordsEmpty, {}},
    {inp_kw_Interface, inp_SchemaKind::Row, kInterfaceWords, {}},
    {inp_kw_Its, inp_SchemaKind::Row, kItsWords, {}},
    {inp_kw_Joint, inp_SchemaKind::Row, kJointWords, {}},
    {inp_kw_M1, inp_SchemaKind::Row, kM1Words, kM1Enums},
    {inp_kw_M2, inp_SchemaKind::Row, kM2Words, kM2Enums},
    {inp_kw_Mass, inp_SchemaKind::Row, kMassWords, kMassEnums},
    {inp_kw_MembraneSection, inp_SchemaKind::Row, kMembraneSectionWords, {}},
    {inp_kw_NonStructuralMass, inp_SchemaKind::Row,
     kNonStructuralMassWords, kNonStructuralMassEnums},
    {inp_kw_PreTensionSection, inp_SchemaKind::Row,
     kPreTensionSectionWords, {}},
    {inp_kw_RotaryInertia, inp_SchemaKind::Row, kRotaryInertiaParameters, {}},
    {inp_kw_SectionControls, inp_SchemaKind::Row,
     kSectionControlsWords, kSectionControlsEnums},
    {inp_kw_SectionOrigin, inp_SchemaKind::Row, kSectionOriginWords, {}},
    {inp_kw_SectionPoints, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ShearCenter, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ShellGeneralSection, inp_SchemaKind::Row,
     kShellGeneralSectionWords, {}},
    {inp_kw_ShellSection, inp_SchemaKind::Row,
     kShellSectionWords, kShellSectionEnums},
    {inp_kw_SlideLine, inp_SchemaKind::Row, kSlideLineWords, {}},
    {inp_kw_SolidSection, inp_SchemaKind::Row, kSolidSectionWords, {}},
    {inp_kw_Spring, inp_SchemaKind::Row, kSpringWords, {}},
    {inp_kw_SurfaceSection, inp_SchemaKind::Row, kSurfaceSectionWords, {}},
    {inp_kw_TransverseShearStiffness, inp_SchemaKind::NoParameters,
     inp_wordsEmpty, {}},
};

// clang-format on

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaSectionsRows() {
    return kRows;
}
