// The schema rows of one family of keywords: the shape of a deck (parts,
// instances, the assembly, steps, restarts, substructures, design variables).
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// *ASSEMBLY
constexpr char const* kAssemblyWords[] = {"name", nullptr};

// *CO-SIMULATION
constexpr char const* kCoSimulationWords[] = {"controls", "name", "program", nullptr};

// *CO-SIMULATION CONTROLS
constexpr char const* kCoSimulationControlsWords[] = {
    "couplingscheme",     "name",      "schememodifier", "stepsize",
    "timeincrementation", "timemarks", nullptr};
constexpr char const* kCouplingSchemeWords[] = {"GAUSS-SEIDEL", "JACOBI", nullptr};
constexpr char const* kSchemeModifierWords[] = {"LAG", "LEAD", nullptr};
constexpr char const* kTimeIncrementationWords[] = {"LOCKSTEP", "SUBCYCLE", nullptr};
constexpr inp_SchemaEnum kCoSimulationControlsEnums[] = {
    {"couplingscheme", kCouplingSchemeWords},
    {"schememodifier", kSchemeModifierWords},
    {"timeincrementation", kTimeIncrementationWords},
    {"timemarks", inp_wordsNoYes}};

// *CO-SIMULATION REGION
constexpr char const* kCoSimulationRegionWords[] = {"export", "import", "type", nullptr};

// *CYCLIC SYMMETRY MODEL
constexpr char const* kCyclicSymmetryModelWords[] = {"check", "n", "tie", nullptr};
constexpr inp_SchemaEnum kCyclicSymmetryModelEnums[] = {{"check", inp_wordsNoYes}};

// *DESIGN RESPONSE
constexpr char const* kDesignResponseWords[] = {"frequency", "lastmode", "mode", nullptr};

// *DISPLAY BODY
constexpr char const* kDisplayBodyWords[] = {"instance", nullptr};

// *DOMAIN DECOMPOSITION
constexpr char const* kDomainDecompositionWords[] = {"elset", nullptr};

// *FILE FORMAT
constexpr char const* kFileFormatWords[] = {"ascii", "zeroincrement", nullptr};

// *IMPERFECTION
constexpr char const* kImperfectionWords[] = {"file", "inc",    "input", "nset",
                                              "step", "system", nullptr};
constexpr inp_SchemaEnum kImperfectionEnums[] = {
    {"system", inp_wordsCylindricalRectangularSpherical}};

// *IMPORT
constexpr char const* kImportWords[] = {"convert", "hourglass", "increment", "interval",
                                        "state",   "step",      "update",    "iteration",
                                        "xdata",   "cycle",     nullptr};
constexpr inp_SchemaEnum kImportEnums[] = {{"state", inp_wordsNoYes}, {"update", inp_wordsNoYes}};

// *IMPORT CONTROLS
constexpr char const* kImportControlsWords[] = {"normals", nullptr};

// *INCLUDE
constexpr char const* kIncludeWords[] = {"input", "password", nullptr};

// *INSTANCE
constexpr char const* kInstanceWords[] = {"instance", "library",      "name",
                                          "part",     "superelement", nullptr};

// *LOAD CASE
constexpr char const* kLoadCaseWords[] = {"name", nullptr};

// *MAP SOLUTION
constexpr char const* kMapSolutionWords[] = {"inc", "step", "unbalancedstress", nullptr};
constexpr char const* kRampStepWords[] = {"RAMP", "STEP", nullptr};
constexpr inp_SchemaEnum kMapSolutionEnums[] = {{"unbalancedstress", kRampStepWords}};

// *PARAMETER SHAPE VARIATION, and *DESIGN SHAPE VARIATION, which shares its handler
constexpr char const* kShapeVariationWords[] = {"file",      "inc",  "input",  "nset",
                                                "parameter", "step", "system", nullptr};
constexpr inp_SchemaEnum kShapeVariationEnums[] = {
    {"system", inp_wordsCylindricalRectangularSpherical}};

// *PART
constexpr char const* kPartWords[] = {"inc",  "instance", "library", "name", "part",
                                      "step", "state",    "update",  nullptr};
constexpr inp_SchemaEnum kPartEnums[] = {{"state", inp_wordsNoYes}, {"update", inp_wordsNoYes}};

// *PERIODIC MEDIA
constexpr char const* kPeriodicMediaWords[] = {"inletcontrolnode", "orientation",
                                               "outletcontrolnode", "triggernode", nullptr};

// *PHYSICAL CONSTANTS
constexpr char const* kPhysicalConstantsWords[] = {"absolutezero", "stefanboltzmann",
                                                   "universalgasconstant", nullptr};

// *PREPRINT
constexpr char const* kPreprintWords[] = {
    "contact",   "coupling",        "echo",         "gasket", "history", "model",
    "parvalues", "parsubstitution", "massproperty", nullptr};
constexpr char const* kDebugNoYesWords[] = {"DEBUG", "NO", "YES", nullptr};
constexpr char const* kDebugWords[] = {"DEBUG", nullptr};
constexpr inp_SchemaEnum kPreprintEnums[] = {
    {"contact", kDebugNoYesWords},   {"coupling", kDebugWords},
    {"echo", inp_wordsNoYes},        {"gasket", kDebugNoYesWords},
    {"history", inp_wordsNoYes},     {"model", inp_wordsNoYes},
    {"parvalues", inp_wordsNoYes},   {"parsubstitution", inp_wordsNoYes},
    {"massproperty", inp_wordsNoYes}};

// *RESTART
constexpr char const* kRestartWords[] = {
    "endstep", "frequency", "inc",       "interval", "iteration", "numberinterval", "overlay",
    "read",    "step",      "timemarks", "write",    "cycle",     "single",         nullptr};
constexpr inp_SchemaEnum kRestartEnums[] = {{"timemarks", inp_wordsNoYes}};

// *STEP
constexpr char const* kStepWords[] = {"amplitude", "dsa",        "extrapolation", "inc",
                                      "name",      "nlgeom",     "perturbation",  "unsymm",
                                      "solver",    "convertsdi", nullptr};
constexpr char const* kStepAmplitudeWords[] = {"STEP", "RAMP", nullptr};
constexpr char const* kExtrapolationWords[] = {"LINEAR", "PARABOLIC", "NO", "VELOCITYPARABOLIC",
                                               nullptr};
constexpr char const* kIterativeWords[] = {"ITERATIVE", nullptr};
// Written bare, DSA, NLGEOM and UNSYMM switch the feature on: the guards keep
// them true booleans instead of emptying them.
constexpr inp_SchemaEnum kStepEnums[] = {{"amplitude", kStepAmplitudeWords},
                                         {"extrapolation", kExtrapolationWords},
                                         {"dsa", inp_wordsNoYes, inp_EnumGuard::SkipBoolean},
                                         {"nlgeom", inp_wordsNoYes, inp_EnumGuard::SkipBoolean},
                                         {"unsymm", inp_wordsNoYes, inp_EnumGuard::SkipBoolean},
                                         {"solver", kIterativeWords},
                                         {"convertsdi", inp_wordsYesNo}};

// *SUBMODEL
constexpr char const* kSubmodelWords[] = {"absoluteexteriortolerance",
                                          "exteriortolerance",
                                          "globalelset",
                                          "intersectiononly",
                                          "shelltosolid",
                                          "type",
                                          nullptr};

// *SUBSTRUCTURE COPY
constexpr char const* kSubstructureCopyWords[] = {"newtype", "oldtype", nullptr};

// *SUBSTRUCTURE DELETE
constexpr char const* kSubstructureDeleteWords[] = {"type", nullptr};

// *SUBSTRUCTURE GENERATE
constexpr char const* kSubstructureGenerateWords[] = {"elset",
                                                      "library",
                                                      "massmatrix",
                                                      "overwrite",
                                                      "propertyevaluation",
                                                      "recoverymatrix",
                                                      "structuraldampingmatrix",
                                                      "type",
                                                      "viscousdampingmatrix",
                                                      nullptr};
constexpr char const* kRecoveryMatrixWords[] = {"NO", "REGION", "YES", nullptr};
constexpr inp_SchemaEnum kSubstructureGenerateEnums[] = {
    {"massmatrix", inp_wordsNoYes},
    {"recoverymatrix", kRecoveryMatrixWords},
    {"structuraldampingmatrix", inp_wordsNoYes},
    {"viscousdampingmatrix", inp_wordsNoYes}};

// *SUBSTRUCTURE LOAD CASE
constexpr char const* kSubstructureLoadCaseWords[] = {"name", nullptr};

// *SUBSTRUCTURE MATRIX OUTPUT
constexpr char const* kSubstructureMatrixOutputWords[] = {
    "filename",          "mass",           "outputfile", "recoverymatrix", "sload", "stiffness",
    "structuraldamping", "viscousdamping", nullptr};
constexpr char const* kOutputFileWords[] = {"RESULTSFILE", "USERDEFINED", nullptr};
constexpr inp_SchemaEnum kSubstructureMatrixOutputEnums[] = {
    {"mass", inp_wordsNoYes},           {"outputfile", kOutputFileWords},
    {"recoverymatrix", inp_wordsNoYes}, {"sload", inp_wordsNoYes},
    {"stiffness", inp_wordsNoYes},      {"structuraldamping", inp_wordsNoYes},
    {"viscousdamping", inp_wordsNoYes}};

// *SUBSTRUCTURE PATH
constexpr char const* kSubstructurePathWords[] = {"enterelement", "leave", nullptr};

// *SUBSTRUCTURE PROPERTY
constexpr char const* kSubstructurePropertyWords[] = {"elset", nullptr};

// *SYMMETRIC MODEL GENERATION
constexpr char const* kSymmetricModelGenerationWords[] = {"elementoffset", "nodeoffset", "periodic",
                                                          "reflect",       "revolve",    nullptr};

// *SYMMETRIC RESULTS TRANSFER
constexpr char const* kSymmetricResultsTransferWords[] = {"inc", "step", "unbalancedstress",
                                                          nullptr};
constexpr inp_SchemaEnum kSymmetricResultsTransferEnums[] = {{"unbalancedstress", kRampStepWords}};

// *USER DEFINED FIELD
constexpr char const* kUserDefinedFieldWords[] = {"properties", nullptr};

// *CONFLICTS, *END PART and *PARAMETER have handlers that expand nothing, and
// *SUBSTRUCTURE DIRECTORY takes no parameter: their rows are empty.

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_Assembly, inp_SchemaKind::Logic, kAssemblyWords, {}},
    {inp_kw_CoSimulation, inp_SchemaKind::Row, kCoSimulationWords, {}},
    {inp_kw_CoSimulationControls, inp_SchemaKind::Logic, kCoSimulationControlsWords,
     kCoSimulationControlsEnums},
    {inp_kw_CoSimulationRegion, inp_SchemaKind::Row, kCoSimulationRegionWords, {}},
    {inp_kw_Conflicts, inp_SchemaKind::Logic, inp_wordsEmpty, {}},
    {inp_kw_CyclicSymmetryModel, inp_SchemaKind::Row, kCyclicSymmetryModelWords,
     kCyclicSymmetryModelEnums},
    {inp_kw_DesignParameter, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_DesignResponse, inp_SchemaKind::Row, kDesignResponseWords, {}},
    {inp_kw_DesignShapeVariation, inp_SchemaKind::Row, kShapeVariationWords, kShapeVariationEnums},
    {inp_kw_DesignValue, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_DesignVariation, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_DisplayBody, inp_SchemaKind::Logic, kDisplayBodyWords, {}},
    {inp_kw_DomainDecomposition, inp_SchemaKind::Row, kDomainDecompositionWords, {}},
    {inp_kw_EndAssembly, inp_SchemaKind::EndScope, inp_wordsEmpty, {}},
    {inp_kw_EndInstance, inp_SchemaKind::EndScope, inp_wordsEmpty, {}},
    {inp_kw_EndLoadCase, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_EndPart, inp_SchemaKind::Logic, inp_wordsEmpty, {}},
    {inp_kw_EndStep, inp_SchemaKind::EndScope, inp_wordsEmpty, {}},
    {inp_kw_FileFormat, inp_SchemaKind::Row, kFileFormatWords, {}},
    {inp_kw_Heading, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Imperfection, inp_SchemaKind::Logic, kImperfectionWords, kImperfectionEnums},
    {inp_kw_Import, inp_SchemaKind::Logic, kImportWords, kImportEnums},
    {inp_kw_ImportControls, inp_SchemaKind::Row, kImportControlsWords, {}},
    {inp_kw_ImportElset, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ImportNset, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Include, inp_SchemaKind::Logic, kIncludeWords, {}},
    {inp_kw_Instance, inp_SchemaKind::Logic, kInstanceWords, {}},
    {inp_kw_LoadCase, inp_SchemaKind::Row, kLoadCaseWords, {}},
    {inp_kw_MapSolution, inp_SchemaKind::Row, kMapSolutionWords, kMapSolutionEnums},
    {inp_kw_Parameter, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_ParameterDependence, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ParameterShapeVariation, inp_SchemaKind::Logic, kShapeVariationWords,
     kShapeVariationEnums},
    {inp_kw_Part, inp_SchemaKind::Logic, kPartWords, kPartEnums},
    {inp_kw_PeriodicMedia, inp_SchemaKind::Row, kPeriodicMediaWords, {}},
    {inp_kw_PhysicalConstants, inp_SchemaKind::Row, kPhysicalConstantsWords, {}},
    {inp_kw_Preprint, inp_SchemaKind::Row, kPreprintWords, kPreprintEnums},
    {inp_kw_Restart, inp_SchemaKind::Logic, kRestartWords, kRestartEnums},
    {inp_kw_Step, inp_SchemaKind::Logic, kStepWords, kStepEnums},
    {inp_kw_Submodel, inp_SchemaKind::Row, kSubmodelWords, {}},
    {inp_kw_SubstructureCopy, inp_SchemaKind::Logic, kSubstructureCopyWords, {}},
    {inp_kw_SubstructureDelete, inp_SchemaKind::Logic, kSubstructureDeleteWords, {}},
    {inp_kw_SubstructureDirectory, inp_SchemaKind::Logic, inp_wordsEmpty, {}},
    {inp_kw_SubstructureGenerate, inp_SchemaKind::Logic, kSubstructureGenerateWords,
     kSubstructureGenerateEnums},
    {inp_kw_SubstructureLoadCase, inp_SchemaKind::Row, kSubstructureLoadCaseWords, {}},
    {inp_kw_SubstructureMatrixOutput, inp_SchemaKind::Row, kSubstructureMatrixOutputWords,
     kSubstructureMatrixOutputEnums},
    {inp_kw_SubstructurePath, inp_SchemaKind::Logic, kSubstructurePathWords, {}},
    {inp_kw_SubstructureProperty, inp_SchemaKind::Logic, kSubstructurePropertyWords, {}},
    {inp_kw_SymmetricModelGeneration, inp_SchemaKind::Logic, kSymmetricModelGenerationWords, {}},
    {inp_kw_SymmetricResultsTransfer, inp_SchemaKind::Logic, kSymmetricResultsTransferWords,
     kSymmetricResultsTransferEnums},
    {inp_kw_UserDefinedField, inp_SchemaKind::Row, kUserDefinedFieldWords, {}},
    {inp_kw_UserOutputVariables, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
};

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaStructureRows() {
    return kRows;
}
