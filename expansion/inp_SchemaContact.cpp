// The schema rows of one family of keywords.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// *CHANGE FRICTION
constexpr char const* kChangeFrictionWords[] = {"elset", "interaction", "reset", nullptr};

// *CLEARANCE
constexpr char const* kClearanceWords[] = {"bolt",    "cpset", "master", "slave",
                                           "tabular", "value", "input",  nullptr};

// *COHESIVE BEHAVIOR
constexpr char const* kCohesiveBehaviorWords[] = {"dependencies", "eligibility", "repeatedcontacts",
                                                  "type", nullptr};
constexpr char const* kCohesiveBehaviorEligibility[] = {"ORIGINALCONTACTS", "SPECIFIEDCONTACTS",
                                                        "CURRENTCONTACTS", nullptr};
constexpr inp_SchemaEnum kCohesiveBehaviorEnums[] = {{"eligibility", kCohesiveBehaviorEligibility}};

// *CONTACT
constexpr char const* kContactWords[] = {"name", "op", "type", nullptr};
constexpr inp_SchemaEnum kContactEnums[] = {{"op", inp_wordsModNew}};

// *CONTACT CLEARANCE
constexpr char const* kContactClearanceWords[] = {
    "adjust", "clearance", "name", "searchabove", "searchbelow", "searchnset", nullptr};
constexpr inp_SchemaEnum kContactClearanceEnums[] = {{"adjust", inp_wordsNoYes}};

// *CONTACT CONTROLS
// `nset` names a node set the controls refer to; no other word begins with
// n, so its place changes no abbreviation.
constexpr char const* kContactControlsWords[] = {"absolutepenetrationtolerance",
                                                 "allsdtol",
                                                 "approach",
                                                 "automatictolerances",
                                                 "cpset",
                                                 "dtaudpstick",
                                                 "fastlocaltrk",
                                                 "frictiononset",
                                                 "freezefriction",
                                                 "freezeiteration",
                                                 "freezeslipreversal",
                                                 "freezestickslip",
                                                 "freezetrigger",
                                                 "global",
                                                 "globtrkinc",
                                                 "h-filtering",
                                                 "lagrangemultiplier",
                                                 "master",
                                                 "maxchp",
                                                 "nset",
                                                 "perrmx",
                                                 "perturbationtangentscalefactor",
                                                 "pressuredependentperturbation",
                                                 "relativepenetrationtolerance",
                                                 "reset",
                                                 "rfactor",
                                                 "r0factor",
                                                 "scalepenalty",
                                                 "separate",
                                                 "slave",
                                                 "slidedistance",
                                                 "stabilize",
                                                 "stiffnessscalefactor",
                                                 "tangentfraction",
                                                 "uerrmx",
                                                 "warpcheckperiod",
                                                 "warpcutoff",
                                                 nullptr};
constexpr char const* kContactControlsFrictionOnset[] = {"IMMEDIATE", "DELAYED", nullptr};
constexpr char const* kContactControlsDtaudpStick[] = {"ALWAYS", "PREVSTICK", nullptr};
constexpr char const* kContactControlsFreezeFriction[] = {"NO", "STICK", "SLIP", nullptr};
constexpr inp_SchemaEnum kContactControlsEnums[] = {
    {"fastlocaltrk", inp_wordsNoYes},
    {"frictiononset", kContactControlsFrictionOnset},
    {"dtaudpstick", kContactControlsDtaudpStick},
    {"freezefriction", kContactControlsFreezeFriction}};

// *CONTACT CONTROLS ASSIGNMENT
constexpr char const* kContactControlsAssignmentWords[] = {"automaticoverclosureresolution",
                                                           "contactthicknessreduction",
                                                           "duplicatethicknesstransfer",
                                                           "nodalerosion",
                                                           "type",
                                                           "seeding",
                                                           "euleriannormal",
                                                           "propagationmask",
                                                           "rotationalterms",
                                                           nullptr};
constexpr char const* kContactControlsAssignmentOverclosure[] = {"ADJUSTNODES", "NOOFFSETS", "OFF",
                                                                 "STOREOFFSETS", nullptr};
constexpr char const* kContactControlsAssignmentThicknessReduction[] = {"ALL", "NOPERIMSELF",
                                                                        "SELF", "NONE", nullptr};
constexpr char const* kContactControlsAssignmentType[] = {
    "EDGETRACKING",   "ENHANCEDEDGETRACKING", "FOLDTRACKING", "FOLDINVERSIONCHECK",
    "LEAKAGECONTROL", "SCALEPENALTY",         nullptr};
constexpr char const* kContactControlsAssignmentSeeding[] = {"GLOBAL", "LOCAL", "DYNAMIC", nullptr};
constexpr char const* kContactControlsAssignmentRotationalTerms[] = {"NONE", "STRUCTURAL", nullptr};
constexpr inp_SchemaEnum kContactControlsAssignmentEnums[] = {
    {"automaticoverclosureresolution", kContactControlsAssignmentOverclosure},
    {"contactthicknessreduction", kContactControlsAssignmentThicknessReduction},
    {"duplicatethicknesstransfer", inp_wordsNoYes},
    {"nodalerosion", inp_wordsNoYes},
    {"type", kContactControlsAssignmentType},
    {"seeding", kContactControlsAssignmentSeeding},
    {"euleriannormal", inp_wordsNoYes},
    {"propagationmask", inp_wordsNoYes},
    {"rotationalterms", kContactControlsAssignmentRotationalTerms}};

// *CONTACT DAMPING
constexpr char const* kContactDampingWords[] = {"definition", "tangentfraction", nullptr};
// The whole word CRITICAL DAMPING FRACTION: its shorter form CRITICAL DAMPING
// is then accepted as an abbreviation of it.
constexpr char const* kContactDampingDefinition[] = {"DAMPINGCOEFFICIENT",
                                                     "CRITICALDAMPINGFRACTION", nullptr};
constexpr inp_SchemaEnum kContactDampingEnums[] = {{"definition", kContactDampingDefinition}};

// *CONTACT FILE
constexpr char const* kContactFileWords[] = {"cpset", "frequency", "lastmode", "master",
                                             "mode",  "nset",      "slave",    nullptr};

// *CONTACT FORMULATION
constexpr char const* kContactFormulationWords[] = {"formulation", "type", nullptr};

// *CONTACT INCLUSIONS
// The blank after `all` is deliberate: a bare ALL lands on this first word,
// which no deck can spell, and is refused instead of taken for ALL EXTERIOR.
constexpr char const* kContactInclusionsWords[] = {"all ", "allelementbased", "allexterior",
                                                   nullptr};

// *CONTACT INITIALIZATION DATA
constexpr char const* kContactInitializationDataWords[] = {
    "clearancedistance",    "interferencedistance", "interferencefit", "name", "openingtolerance",
    "overclosuretolerance", "searchabove",          "searchbelow",     nullptr};

// *CONTACT INTERFERENCE
constexpr char const* kContactInterferenceWords[] = {"amplitude", "op", "shrink", "type", nullptr};
constexpr char const* kContactInterferenceType[] = {"CONTACTPAIR", "ELEMENT", nullptr};
constexpr inp_SchemaEnum kContactInterferenceEnums[] = {{"op", inp_wordsModNew},
                                                        {"type", kContactInterferenceType}};

// *CONTACT OUTPUT
constexpr char const* kContactOutputWords[] = {"cpset",    "filter", "generalcontact", "master",
                                               "nset",     "slave",  "secondsurface",  "surface",
                                               "variable", nullptr};
constexpr inp_SchemaEnum kContactOutputEnums[] = {{"variable", inp_wordsAllPreselect}};

// *CONTACT PAIR
// `adjust` takes YES, NO, a number or a node set, so its handler reads it.
constexpr char const* kContactPairWords[] = {"accuracy",
                                             "adjust",
                                             "cpset",
                                             "extensionzone",
                                             "hcrit",
                                             "interaction",
                                             "positiontolerance",
                                             "nsettied",
                                             "mechanicalconstraint",
                                             "midfacenodes",
                                             "nothickness",
                                             "storeoffset",
                                             "op",
                                             "penalty",
                                             "slidedistance",
                                             "slidingtransition",
                                             "smallsliding",
                                             "smooth",
                                             "supplementaryconstraints",
                                             "tied",
                                             "tracking",
                                             "type",
                                             "weight",
                                             "usereducedintegration",
                                             "geometriccorrection",
                                             "coupledslavenodes",
                                             "minimumdistance",
                                             "normal",
                                             "adaptiveintegration",
                                             nullptr};
constexpr char const* kContactPairOp[] = {"ADD", "DELETE", nullptr};
constexpr char const* kContactPairMechanicalConstraint[] = {"KINEMATIC", "PENALTY", nullptr};
constexpr char const* kContactPairTracking[] = {"STATE", "PATH", nullptr};
constexpr char const* kContactPairSupplementaryConstraints[] = {"SELECTIVE", "NO", "YES", nullptr};
constexpr char const* kContactPairMinimumDistance[] = {"YES", "NO", "ALTERNATIVE", nullptr};
constexpr char const* kContactPairNormal[] = {"MASTER", "SLAVE", nullptr};
constexpr char const* kContactPairSlidingTransition[] = {"ELEMENTORDERSMOOTHING", "LINEARSMOOTHING",
                                                         "QUADRATICSMOOTHING", nullptr};
constexpr inp_SchemaEnum kContactPairEnums[] = {
    {"op", kContactPairOp},
    {"mechanicalconstraint", kContactPairMechanicalConstraint},
    {"type", inp_wordsNodeSurfaceContact},
    {"tracking", kContactPairTracking},
    {"supplementaryconstraints", kContactPairSupplementaryConstraints},
    {"coupledslavenodes", inp_wordsNoYes},
    {"minimumdistance", kContactPairMinimumDistance},
    {"normal", kContactPairNormal},
    {"midfacenodes", inp_wordsNoYes},
    {"slidingtransition", kContactPairSlidingTransition}};

// *CONTACT PERMEABILITY
constexpr char const* kContactPermeabilityWords[] = {"dependencies", nullptr};

// *CONTACT PRINT
constexpr char const* kContactPrintWords[] = {"cpset", "frequency", "lastmode", "master", "mode",
                                              "nset",  "slave",     "summary",  "totals", nullptr};
constexpr inp_SchemaEnum kContactPrintEnums[] = {{"summary", inp_wordsNoYes},
                                                 {"totals", inp_wordsNoYes}};

// *CONTACT RESPONSE
constexpr char const* kContactResponseWords[] = {"cpset", "master", "nset", "slave", nullptr};

// *CONTACT STABILIZATION
// SCALE FACTOR stands before SCALE ADAPTIVE so that a bare SCALE is taken
// for the factor, the parameter users mean by it.
constexpr char const* kContactStabilizationWords[] = {"amplitude", "reset", "scalefactor",
                                                      "scaleadaptive", nullptr};
// SCALE FACTOR is mostly a number, which its guard lets through untouched.
constexpr char const* kContactStabilizationScaleFactor[] = {"USERADAPTIVE", nullptr};
constexpr inp_SchemaEnum kContactStabilizationEnums[] = {
    {"scalefactor", kContactStabilizationScaleFactor, inp_EnumGuard::SkipNumber}};

// *DEBOND
constexpr char const* kDebondWords[] = {"debondingforce", "frequency", "master",
                                        "output",         "slave",     nullptr};
constexpr char const* kDebondDebondingForce[] = {"RAMP", "STEP", nullptr};
constexpr char const* kDebondOutput[] = {"BOTH", "FILE", "PRINT", nullptr};
constexpr inp_SchemaEnum kDebondEnums[] = {{"debondingforce", kDebondDebondingForce},
                                           {"output", kDebondOutput}};

// *DISCRETE INTERACTION
constexpr char const* kDiscreteInteractionWords[] = {"name", "property", nullptr};

// *DISCRETE INTERACTION PROPERTY
constexpr char const* kDiscreteInteractionPropertyWords[] = {"name", nullptr};

// *FRACTURE CRITERION
constexpr char const* kFractureCriterionWords[] = {
    "dependencies", "mixedmodebehavior",       "nset",      "tolerance",
    "type",         "unstablegrowthtolerance", "viscosity", nullptr};
constexpr char const* kFractureCriterionType[] = {
    "CRITICALSTRESS", "CRACKOPENINGDISPLACEMENT", "CRACKLENGTH", "VCCT", "ENHANCEDVCCT", "FATIGUE",
    nullptr};
constexpr char const* kFractureCriterionMixedModeBehavior[] = {"BK", "POWER", "REEDER", nullptr};
constexpr inp_SchemaEnum kFractureCriterionEnums[] = {
    {"mixedmodebehavior", kFractureCriterionMixedModeBehavior}, {"type", kFractureCriterionType}};

// *FRICTION
constexpr char const* kFrictionWords[] = {"anisotropic",
                                          "constpenalty",
                                          "dependencies",
                                          "depvar",
                                          "elasticslip",
                                          "elslip2",
                                          "extrapolateaugmentedshear",
                                          "lagrange",
                                          "properties",
                                          "rough",
                                          "scalepenalty",
                                          "sliptolerance",
                                          "slptol2",
                                          "sheartractionslope",
                                          "taumax",
                                          "user",
                                          "velmstx",
                                          "velmsty",
                                          "velmstz",
                                          "exponentialdecay",
                                          "testdata",
                                          nullptr};

// *GAP CONDUCTANCE
constexpr char const* kGapConductanceWords[] = {"dependencies", "pressure", "user", nullptr};

// *GAP ELECTRICAL CONDUCTANCE
constexpr char const* kGapElectricalConductanceWords[] = {"dependencies", "pressure", "user",
                                                          nullptr};

// *GAP FLOW
constexpr char const* kGapFlowWords[] = {"dependencies", "kmax", "type", nullptr};

// *PRESSURE PENETRATION
constexpr char const* kPressurePenetrationWords[] = {"amplitude", "master", "penetrationtime",
                                                     "slave", nullptr};

// *SURFACE BEHAVIOR
constexpr char const* kSurfaceBehaviorWords[] = {
    "augmentedlagrange", "direct",  "noseparation",   "penalty", "pressure-overclosure",
    "softened",          "tabular", "viscousdamping", nullptr};
constexpr char const* kSurfaceBehaviorPressureOverclosure[] = {
    "EXPONENTIAL", "HARD", "LINEAR", "SCALEFACTOR", "TABULAR", "CRUSHSTRESS", nullptr};
constexpr char const* kSurfaceBehaviorPenalty[] = {"LINEAR", "NONLINEAR", nullptr};
constexpr inp_SchemaEnum kSurfaceBehaviorEnums[] = {
    {"pressure-overclosure", kSurfaceBehaviorPressureOverclosure},
    {"penalty", kSurfaceBehaviorPenalty}};

// *SURFACE INTERACTION
constexpr char const* kSurfaceInteractionWords[] = {
    "corotational",      "czone",  "depvar", "name", "padthickness", "properties",
    "trackingthickness", "ucrack", "unsymm", "user", nullptr};

// *SURFACE PROPERTY
constexpr char const* kSurfacePropertyWords[] = {"name", nullptr};

// *SURFACE PROPERTY ASSIGNMENT
constexpr char const* kSurfacePropertyAssignmentWords[] = {"property", nullptr};

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_Bond, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ChangeFriction, inp_SchemaKind::Row, kChangeFrictionWords, {}},
    {inp_kw_Clearance, inp_SchemaKind::Logic, kClearanceWords, {}},
    {inp_kw_CohesiveBehavior, inp_SchemaKind::Row, kCohesiveBehaviorWords, kCohesiveBehaviorEnums},
    {inp_kw_Contact, inp_SchemaKind::Row, kContactWords, kContactEnums},
    {inp_kw_ContactClearance, inp_SchemaKind::Logic, kContactClearanceWords,
     kContactClearanceEnums},
    {inp_kw_ContactClearanceAssignment, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ContactControls, inp_SchemaKind::Row, kContactControlsWords, kContactControlsEnums},
    {inp_kw_ContactControlsAssignment, inp_SchemaKind::Row, kContactControlsAssignmentWords,
     kContactControlsAssignmentEnums},
    {inp_kw_ContactDamping, inp_SchemaKind::Row, kContactDampingWords, kContactDampingEnums},
    {inp_kw_ContactExclusions, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ContactFile, inp_SchemaKind::Row, kContactFileWords, {}},
    {inp_kw_ContactFormulation, inp_SchemaKind::Row, kContactFormulationWords, {}},
    {inp_kw_ContactInclusions, inp_SchemaKind::Logic, kContactInclusionsWords, {}},
    {inp_kw_ContactInitializationAssignment, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ContactInitializationData, inp_SchemaKind::Row, kContactInitializationDataWords, {}},
    {inp_kw_ContactInterference, inp_SchemaKind::Row, kContactInterferenceWords,
     kContactInterferenceEnums},
    {inp_kw_ContactOutput, inp_SchemaKind::Row, kContactOutputWords, kContactOutputEnums},
    {inp_kw_ContactPair, inp_SchemaKind::Logic, kContactPairWords, kContactPairEnums},
    {inp_kw_ContactPermeability, inp_SchemaKind::Row, kContactPermeabilityWords, {}},
    {inp_kw_ContactPrint, inp_SchemaKind::Row, kContactPrintWords, kContactPrintEnums},
    {inp_kw_ContactPropertyAssignment, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ContactResponse, inp_SchemaKind::Row, kContactResponseWords, {}},
    {inp_kw_ContactStabilization, inp_SchemaKind::Logic, kContactStabilizationWords,
     kContactStabilizationEnums},
    {inp_kw_Debond, inp_SchemaKind::Row, kDebondWords, kDebondEnums},
    {inp_kw_DiscreteInteraction, inp_SchemaKind::Row, kDiscreteInteractionWords, {}},
    {inp_kw_DiscreteInteractionProperty,
     inp_SchemaKind::Row,
     kDiscreteInteractionPropertyWords,
     {}},
    {inp_kw_FractureCriterion, inp_SchemaKind::Row, kFractureCriterionWords,
     kFractureCriterionEnums},
    {inp_kw_Friction, inp_SchemaKind::Row, kFrictionWords, {}},
    {inp_kw_GapConductance, inp_SchemaKind::Row, kGapConductanceWords, {}},
    {inp_kw_GapElectricalConductance, inp_SchemaKind::Row, kGapElectricalConductanceWords, {}},
    {inp_kw_GapFlow, inp_SchemaKind::Row, kGapFlowWords, {}},
    {inp_kw_GapHeatGeneration, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_GapRadiation, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PressurePenetration, inp_SchemaKind::Row, kPressurePenetrationWords, {}},
    {inp_kw_SurfaceBehavior, inp_SchemaKind::Row, kSurfaceBehaviorWords, kSurfaceBehaviorEnums},
    {inp_kw_SurfaceInteraction, inp_SchemaKind::Row, kSurfaceInteractionWords, {}},
    {inp_kw_SurfaceProperty, inp_SchemaKind::Row, kSurfacePropertyWords, {}},
    {inp_kw_SurfacePropertyAssignment, inp_SchemaKind::Logic, kSurfacePropertyAssignmentWords, {}},
};

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaContactRows() {
    return kRows;
}
