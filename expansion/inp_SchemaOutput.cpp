// The schema rows of one family of keywords: output requests.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

// The tables keep their own layout: one keyword per block, word lists packed.
// clang-format off
namespace {

// Section forces to the printed output and to the results file:
// *SECTION FILE, *SECTION PRINT
constexpr char const* kSectionOutputWords[] = {"axes", "frequency", "name", "surface", "update",
    nullptr};
constexpr char const* kSectionOutputAxesWords[] = {"GLOBAL", "LOCAL", nullptr};
constexpr inp_SchemaEnum kSectionOutputEnums[] = {{"axes", kSectionOutputAxesWords},
    {"update", inp_wordsNoYes}};

// *CONTOUR INTEGRAL
constexpr char const* kContourIntegralWords[] = {"contours", "crackname", "cracktipnodes",
    "direction", "frequency", "normal", "output", "residualstressstep", "symm", "type", "xfem",
    nullptr};

// *ELEMENT MATRIX OUTPUT
constexpr char const* kElementMatrixOutputWords[] = {"dload", "elset", "filename", "frequency",
    "mass", "outputfile", "stiffness", nullptr};
constexpr char const* kElementMatrixOutputOutputfileWords[] = {"RESULTSFILE", "USERDEFINED",
    nullptr};
constexpr inp_SchemaEnum kElementMatrixOutputEnums[] = {{"dload", inp_wordsNoYes},
    {"mass", inp_wordsNoYes}, {"outputfile", kElementMatrixOutputOutputfileWords},
    {"stiffness", inp_wordsNoYes}};

// *ELEMENT OPERATOR OUTPUT
constexpr char const* kElementOperatorOutputWords[] = {"elset", "frequency", nullptr};

// *ELEMENT OUTPUT
constexpr char const* kElementOutputWords[] = {"elset", "exterior", "directions", "rebar",
    "variable", "position", "tracerset", "allsectionpts", "top", "middle", "bottom", nullptr};
constexpr inp_SchemaEnum kElementOutputEnums[] = {{"variable", inp_wordsAllPreselect},
    {"position", inp_wordsOutputPosition}, {"directions", inp_wordsNoYes}};

// *ELEMENT RESPONSE
constexpr char const* kElementResponseWords[] = {"elset", "position", nullptr};

// *EL FILE
constexpr char const* kElFileWords[] = {"directions", "elset", "frequency", "lastmode", "mode",
    "position", "rebar", nullptr};
constexpr inp_SchemaEnum kElFileEnums[] = {{"directions", inp_wordsNoYes},
    {"position", inp_wordsOutputPosition}};

// *EL PRINT
constexpr char const* kElPrintWords[] = {"elset", "frequency", "lastmode", "mode", "position",
    "rebar", "summary", "totals", nullptr};
constexpr inp_SchemaEnum kElPrintEnums[] = {{"position", inp_wordsOutputPosition},
    {"summary", inp_wordsNoYes}, {"totals", inp_wordsNoYes}};

// *ENERGY FILE
constexpr char const* kEnergyFileWords[] = {"elset", "frequency", nullptr};

// *ENERGY OUTPUT
constexpr char const* kEnergyOutputWords[] = {"elset", "variable", "persection", "perelementset",
    nullptr};
constexpr inp_SchemaEnum kEnergyOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *ENERGY PRINT
constexpr char const* kEnergyPrintWords[] = {"elset", "frequency", nullptr};

// *EXTREME ELEMENT VALUE
constexpr char const* kExtremeElementValueWords[] = {"elset", "max", "min", nullptr};

// *EXTREME NODE VALUE
constexpr char const* kExtremeNodeValueWords[] = {"max", "min", "nset", nullptr};

// *EXTREME VALUE
constexpr char const* kExtremeValueWords[] = {"halt", nullptr};

// *FILE OUTPUT
constexpr char const* kFileOutputWords[] = {"numberinterval", "timemarks", nullptr};
constexpr inp_SchemaEnum kFileOutputEnums[] = {{"timemarks", inp_wordsNoYes}};

// *FILTER
constexpr char const* kFilterWords[] = {"halt", "invariant", "limit", "name", "operator", "order",
    "type", nullptr};

// *INCREMENTATION OUTPUT
constexpr char const* kIncrementationOutputWords[] = {"variable", nullptr};
constexpr inp_SchemaEnum kIncrementationOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *INTEGRATED OUTPUT
constexpr char const* kIntegratedOutputWords[] = {"elset", "section", "surface", "variable",
    nullptr};
constexpr inp_SchemaEnum kIntegratedOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *INTEGRATED OUTPUT SECTION
constexpr char const* kIntegratedOutputSectionWords[] = {"name", "orientation", "position",
    "projectorientation", "refnode", "refnodemotion", "surface", nullptr};
constexpr inp_SchemaEnum kIntegratedOutputSectionEnums[] = {{"projectorientation", inp_wordsNoYes}};

// *MODAL FILE
constexpr char const* kModalFileWords[] = {"frequency", nullptr};

// *MODAL OUTPUT
constexpr char const* kModalOutputWords[] = {"variable", nullptr};
constexpr inp_SchemaEnum kModalOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *MONITOR
constexpr char const* kMonitorWords[] = {"dof", "frequency", "node", nullptr};

// *NODE FILE
constexpr char const* kNodeFileWords[] = {"frequency", "global", "lastmode", "mode", "nset",
    nullptr};
constexpr inp_SchemaEnum kNodeFileEnums[] = {{"global", inp_wordsNoYes}};

// *NODE OUTPUT
constexpr char const* kNodeOutputWords[] = {"exterior", "filter", "nset", "tracerset", "variable",
    "global", nullptr};
constexpr inp_SchemaEnum kNodeOutputEnums[] = {{"variable", inp_wordsAllPreselect},
    {"global", inp_wordsNoYes}};

// *NODE PRINT
constexpr char const* kNodePrintWords[] = {"frequency", "global", "lastmode", "mode", "nset",
    "summary", "totals", nullptr};
constexpr inp_SchemaEnum kNodePrintEnums[] = {{"global", inp_wordsNoYes},
    {"summary", inp_wordsNoYes}, {"totals", inp_wordsNoYes}};

// *NODE RESPONSE
constexpr char const* kNodeResponseWords[] = {"nset", nullptr};

// *OUTPUT
constexpr char const* kOutputWords[] = {"diagnostics", "field", "frequency", "filter", "history",
    "modelist", "name", "numberinterval", "op", "sensor", "timeinterval", "timemarks", "timepoints",
    "unconverged", "variable", nullptr};
constexpr char const* kOutputOpWords[] = {"ADD", "NEW", "REPLACE", nullptr};
constexpr inp_SchemaEnum kOutputEnums[] = {{"op", kOutputOpWords},
    {"variable", inp_wordsAllPreselect}, {"diagnostics", inp_wordsNoYes},
    {"timemarks", inp_wordsNoYes}};

// *POST OUTPUT
constexpr char const* kPostOutputWords[] = {"inc", "iteration", "step", nullptr};

// *PRINT
// *MODAL PRINT takes the same words: its row points at these tables.
constexpr char const* kPrintWords[] = {"allke", "contact", "criticalelement", "dmass", "etotal",
    "mspei", "frequency", "plasticity", "residual", "solve", "modelchange", "adaptivemesh", "mass",
    "allae", "allcd", "alldmd", "allmw", "allwk", "allfd", "allie", "allcw", "allpw", "allpd",
    "allse", "allvd", "allfc", "alldc", "allihe", "allhf", "forcecon", nullptr};
constexpr inp_SchemaEnum kPrintEnums[] = {{"allke", inp_wordsNoYes}, {"contact", inp_wordsNoYes},
    {"criticalelement", inp_wordsNoYes}, {"dmass", inp_wordsNoYes}, {"etotal", inp_wordsNoYes},
    {"mspei", inp_wordsNoYes}, {"plasticity", inp_wordsNoYes}, {"residual", inp_wordsNoYes},
    {"solve", inp_wordsNoYes}, {"modelchange", inp_wordsNoYes}, {"adaptivemesh", inp_wordsNoYes},
    {"mass", inp_wordsNoYes}, {"allae", inp_wordsNoYes}, {"allcd", inp_wordsNoYes},
    {"alldmd", inp_wordsNoYes}, {"allmw", inp_wordsNoYes}, {"allwk", inp_wordsNoYes},
    {"allfd", inp_wordsNoYes}, {"allie", inp_wordsNoYes}, {"allcw", inp_wordsNoYes},
    {"allpw", inp_wordsNoYes}, {"allpd", inp_wordsNoYes}, {"allse", inp_wordsNoYes},
    {"allvd", inp_wordsNoYes}, {"allfc", inp_wordsNoYes}, {"alldc", inp_wordsNoYes},
    {"allihe", inp_wordsNoYes}, {"allhf", inp_wordsNoYes}};

// *RADIATION FILE, *RADIATION OUTPUT: output for a cavity, an element set or
// a surface.
constexpr char const* kRadiationFileWords[] = {"cavity", "elset", "frequency", "surface",
    nullptr};
constexpr char const* kRadiationOutputWords[] = {"cavity", "elset", "surface", "variable",
    nullptr};
constexpr inp_SchemaEnum kRadiationOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *RADIATION PRINT
constexpr char const* kRadiationPrintWords[] = {"cavity", "frequency", "summary", "totals",
    nullptr};
constexpr inp_SchemaEnum kRadiationPrintEnums[] = {{"summary", inp_wordsNoYes},
    {"totals", inp_wordsNoYes}};

// *SURFACE OUTPUT
constexpr char const* kSurfaceOutputWords[] = {"surface", "variable", nullptr};
constexpr inp_SchemaEnum kSurfaceOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *TIME POINTS
constexpr char const* kTimePointsWords[] = {"generate", "name", nullptr};

// *TORQUE PRINT
constexpr char const* kTorquePrintWords[] = {"frequency", nullptr};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_ContourIntegral, inp_SchemaKind::Row, kContourIntegralWords, {}},
    {inp_kw_ElementMatrixOutput, inp_SchemaKind::Row,
     kElementMatrixOutputWords, kElementMatrixOutputEnums},
    {inp_kw_ElementOperatorOutput, inp_SchemaKind::Row, kElementOperatorOutputWords, {}},
    {inp_kw_ElementOutput, inp_SchemaKind::Row, kElementOutputWords, kElementOutputEnums},
    {inp_kw_ElementResponse, inp_SchemaKind::Row, kElementResponseWords, {}},
    {inp_kw_ElFile, inp_SchemaKind::Row, kElFileWords, kElFileEnums},
    {inp_kw_ElPrint, inp_SchemaKind::Row, kElPrintWords, kElPrintEnums},
    {inp_kw_EnergyFile, inp_SchemaKind::Row, kEnergyFileWords, {}},
    {inp_kw_EnergyOutput, inp_SchemaKind::Row, kEnergyOutputWords, kEnergyOutputEnums},
    {inp_kw_EnergyPrint, inp_SchemaKind::Row, kEnergyPrintWords, {}},
    {inp_kw_ExtremeElementValue, inp_SchemaKind::Row, kExtremeElementValueWords, {}},
    {inp_kw_ExtremeNodeValue, inp_SchemaKind::Row, kExtremeNodeValueWords, {}},
    {inp_kw_ExtremeValue, inp_SchemaKind::Row, kExtremeValueWords, {}},
    {inp_kw_FileOutput, inp_SchemaKind::Row, kFileOutputWords, kFileOutputEnums},
    {inp_kw_Filter, inp_SchemaKind::Row, kFilterWords, {}},
    {inp_kw_IncrementationOutput, inp_SchemaKind::Row,
     kIncrementationOutputWords, kIncrementationOutputEnums},
    {inp_kw_IntegratedOutput, inp_SchemaKind::Row, kIntegratedOutputWords, kIntegratedOutputEnums},
    {inp_kw_IntegratedOutputSection, inp_SchemaKind::Logic,
     kIntegratedOutputSectionWords, kIntegratedOutputSectionEnums},
    {inp_kw_ModalFile, inp_SchemaKind::Row, kModalFileWords, {}},
    {inp_kw_ModalOutput, inp_SchemaKind::Row, kModalOutputWords, kModalOutputEnums},
    {inp_kw_ModalPrint, inp_SchemaKind::Row, kPrintWords, kPrintEnums},
    {inp_kw_Monitor, inp_SchemaKind::Row, kMonitorWords, {}},
    {inp_kw_NodeFile, inp_SchemaKind::Row, kNodeFileWords, kNodeFileEnums},
    {inp_kw_NodeOutput, inp_SchemaKind::Row, kNodeOutputWords, kNodeOutputEnums},
    {inp_kw_NodePrint, inp_SchemaKind::Row, kNodePrintWords, kNodePrintEnums},
    {inp_kw_NodeResponse, inp_SchemaKind::Row, kNodeResponseWords, {}},
    {inp_kw_Output, inp_SchemaKind::Row, kOutputWords, kOutputEnums},
    {inp_kw_PostOutput, inp_SchemaKind::Row, kPostOutputWords, {}},
    {inp_kw_Print, inp_SchemaKind::Row, kPrintWords, kPrintEnums},
    {inp_kw_RadiationFile, inp_SchemaKind::Row, kRadiationFileWords, {}},
    {inp_kw_RadiationOutput, inp_SchemaKind::Row, kRadiationOutputWords, kRadiationOutputEnums},
    {inp_kw_RadiationPrint, inp_SchemaKind::Row, kRadiationPrintWords, kRadiationPrintEnums},
    {inp_kw_RandomResponse, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_SectionFile, inp_SchemaKind::Row, kSectionOutputWords, kSectionOutputEnums},
    {inp_kw_SectionPrint, inp_SchemaKind::Row, kSectionOutputWords, kSectionOutputEnums},
    {inp_kw_SurfaceOutput, inp_SchemaKind::Row, kSurfaceOutputWords, kSurfaceOutputEnums},
    {inp_kw_TimePoints, inp_SchemaKind::Logic, kTimePointsWords, {}},
    {inp_kw_TorquePrint, inp_SchemaKind::Row, kTorquePrintWords, {}},
    {inp_kw_ViewfactorOutput, inp_SchemaKind::Row, inp_wordsEmpty, {}},
};

}  // namespace
// clang-format on

std::span<inp_SchemaRow const> inp_SchemaOutputRows() {
    return kRows;
}
