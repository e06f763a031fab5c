// The schema rows of one family of keywords: nodes, elements, sets, surfaces,
// orientations and the other keywords that build or modify the mesh.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// *ADAPTIVE MESH
constexpr char const* kAdaptiveMeshWords[] = {
    "controls", "elset", "frequency", "initialmeshsweeps", "meshsweeps", "op", nullptr};
constexpr inp_SchemaEnum kAdaptiveMeshEnums[] = {{"op", inp_wordsModNew}};

// *ADAPTIVE MESH CONSTRAINT
constexpr char const* kAdaptiveMeshConstraintWords[] = {"amplitude", "constrainttype", "op",
                                                        "type",      "user",           nullptr};
constexpr char const* kConstraintTypeWords[] = {"LAGRANGIAN", "SPATIAL", nullptr};
constexpr char const* kDisplacementVelocityWords[] = {"DISPLACEMENT", "VELOCITY", nullptr};
constexpr inp_SchemaEnum kAdaptiveMeshConstraintEnums[] = {{"constrainttype", kConstraintTypeWords},
                                                           {"op", inp_wordsModNew},
                                                           {"type", kDisplacementVelocityWords}};

// *ADAPTIVE MESH CONTROLS
constexpr char const* kAdaptiveMeshControlsWords[] = {"advection",
                                                      "curvaturerefinement",
                                                      "geometricenhancement",
                                                      "initialfeatureangle",
                                                      "meshconstraintangle",
                                                      "meshingpredictor",
                                                      "momentumadvection",
                                                      "name",
                                                      "reset",
                                                      "smoothingobjective",
                                                      "smoothingpriority",
                                                      "transitionfeatureangle",
                                                      nullptr};
constexpr char const* kAdvectionWords[] = {"FIRSTORDER", "SECONDORDER", nullptr};
constexpr char const* kMeshingPredictorWords[] = {"CURRENT", "PREVIOUS", nullptr};
constexpr char const* kMomentumAdvectionWords[] = {"ELEMENTCENTERPROJECTION", "HALFINDEXSHIFT",
                                                   nullptr};
constexpr char const* kGradedUniformWords[] = {"GRADED", "UNIFORM", nullptr};
constexpr inp_SchemaEnum kAdaptiveMeshControlsEnums[] = {
    {"advection", kAdvectionWords},
    {"geometricenhancement", inp_wordsNoYes},
    {"meshingpredictor", kMeshingPredictorWords},
    {"momentumadvection", kMomentumAdvectionWords},
    {"smoothingobjective", kGradedUniformWords},
    {"smoothingpriority", kGradedUniformWords}};

// *ADAPTIVE MESH REFINEMENT
constexpr char const* kAdaptiveMeshRefinementWords[] = {"elset", nullptr};

// *DISTRIBUTION
constexpr char const* kDistributionWords[] = {"input", "location", "name",
                                              "table", "type",     nullptr};

// *DISTRIBUTION TABLE
constexpr char const* kDistributionTableWords[] = {"name", nullptr};

// *DRAG CHAIN
constexpr char const* kDragChainWords[] = {"elset", nullptr};

// *ELCOPY
// With `reflect` the copies are mirror images, their nodes put in order by
// the reflection table. Only its presence counts, so it takes any value.
constexpr char const* kElcopyWords[] = {"elementshift", "newset",     "oldset",
                                        "reflect",      "shiftnodes", nullptr};

// *ELEMENT
constexpr char const* kElementWords[] = {
    "type", "elset", "file", "input", "offset", "solidelementnumbering", nullptr};

// *ELEMENT RECOVERY MATRIX
constexpr char const* kElementRecoveryMatrixWords[] = {"elset", "position", nullptr};

// *ELGEN
constexpr char const* kElgenWords[] = {"allnodes", "elset", nullptr};

// *ELSET
constexpr char const* kElsetWords[] = {"elset",    "generate", "instance",
                                       "internal", "unsorted", nullptr};

// *EMBEDDED ELEMENT
constexpr char const* kEmbeddedElementWords[] = {"absoluteexteriortolerance",
                                                 "embednodes",
                                                 "exteriortolerance",
                                                 "hostelset",
                                                 "roundofftolerance",
                                                 "weightfactortolerance",
                                                 nullptr};

// *ENRICHMENT
constexpr char const* kEnrichmentWords[] = {
    "elset", "enrichmentradius", "interaction", "name", "type", nullptr};

// *ENRICHMENT ACTIVATION
constexpr char const* kEnrichmentActivationWords[] = {"activate", "elset", "name", nullptr};
constexpr inp_SchemaEnum kEnrichmentActivationEnums[] = {{"activate", inp_wordsOnOff}};

// *MATRIX
constexpr char const* kMatrixWords[] = {"input", "type", nullptr};

// *MATRIX ASSEMBLE
constexpr char const* kMatrixAssembleWords[] = {"mass", "stiffness", "structuraldamping",
                                                "viscousdamping", nullptr};

// *MATRIX GENERATE
constexpr char const* kMatrixGenerateWords[] = {
    "elementbyelement",  "elset",          "load", "mass", "propertyevaluation", "stiffness",
    "structuraldamping", "viscousdamping", nullptr};

// *MATRIX INPUT
constexpr char const* kMatrixInputWords[] = {"input",       "matrix", "name",
                                             "scalefactor", "type",   nullptr};
constexpr char const* kMatrixKindWords[] = {
    "LOAD", "MASS", "STIFFNESS", "STRUCTURALDAMPING", "VISCOUSDAMPING", nullptr};
constexpr char const* kMatrixSymmetryWords[] = {"SYMMETRIC", "UNSYMMETRIC", nullptr};
constexpr inp_SchemaEnum kMatrixInputEnums[] = {{"type", kMatrixSymmetryWords},
                                                {"matrix", kMatrixKindWords}};

// *MATRIX OUTPUT
constexpr char const* kMatrixOutputWords[] = {
    "format", "load", "mass", "stiffness", "structuraldamping", "viscousdamping", nullptr};
constexpr char const* kMatrixFormatWords[] = {"COORDINATE", "LABELS", "MATRIXINPUT", nullptr};
constexpr inp_SchemaEnum kMatrixOutputEnums[] = {{"format", kMatrixFormatWords},
                                                 {"load", inp_wordsNoYes},
                                                 {"mass", inp_wordsNoYes},
                                                 {"stiffness", inp_wordsNoYes},
                                                 {"structuraldamping", inp_wordsNoYes},
                                                 {"viscousdamping", inp_wordsNoYes}};

// *NCOPY
constexpr char const* kNcopyWords[] = {"changenumber", "multiple", "newset", "oldset",
                                       "pole",         "reflect",  "shift",  nullptr};
constexpr char const* kReflectWords[] = {"LINE", "MIRROR", "POINT", nullptr};
constexpr inp_SchemaEnum kNcopyEnums[] = {{"reflect", kReflectWords}};

// *NFILL
constexpr char const* kNfillWords[] = {"bias", "nset", "singular", "twostep", nullptr};

// *NGEN
constexpr char const* kNgenWords[] = {"line", "nset", "system", nullptr};
constexpr char const* kNgenLineWords[] = {"C", "P", nullptr};
constexpr char const* kNgenSystemWords[] = {"C", "RC", "S", nullptr};
constexpr inp_SchemaEnum kNgenEnums[] = {{"line", kNgenLineWords}, {"system", kNgenSystemWords}};

// *NMAP
constexpr char const* kNmapWords[] = {"nset", "type", "definition", nullptr};
constexpr char const* kNmapTypeWords[] = {"BLENDED",     "CYLINDRICAL", "DIAMOND",   "RECTANGULAR",
                                          "ROTATION",    "SCALE",       "SPHERICAL", "TOROIDAL",
                                          "TRANSLATION", nullptr};
constexpr inp_SchemaEnum kNmapEnums[] = {{"definition", inp_wordsCoordinatesNodes},
                                         {"type", kNmapTypeWords}};

// *NODAL THICKNESS
constexpr char const* kNodalThicknessWords[] = {"generate", "input", nullptr};

// *NODE
constexpr char const* kNodeWords[] = {"input", "nset", "system", nullptr};
constexpr inp_SchemaEnum kNodeEnums[] = {{"system", inp_wordsCylindricalRectangularSpherical}};

// *NORMAL
constexpr char const* kNormalWords[] = {"type", nullptr};
constexpr char const* kNormalTypeWords[] = {"CONTACTSURFACE", "ELEMENT", nullptr};
constexpr inp_SchemaEnum kNormalEnums[] = {{"type", kNormalTypeWords}};

// *NSET
constexpr char const* kNsetWords[] = {"elset",    "generate", "instance", "nset",
                                      "internal", "unsorted", nullptr};

// *ORIENTATION
constexpr char const* kOrientationWords[] = {"definition", "localdirections", "name", "orthogonal",
                                             "system",     "projection",      nullptr};
constexpr char const* kOrientationDefinitionWords[] = {"COORDINATES", "NODES", "OFFSETTONODES",
                                                       nullptr};
constexpr char const* kOrientationSystemWords[] = {"CYLINDRICAL", "RECTANGULAR",  "SPHERICAL",
                                                   "USER",        "ZRECTANGULAR", nullptr};
constexpr inp_SchemaEnum kOrientationEnums[] = {{"definition", kOrientationDefinitionWords},
                                                {"orthogonal", inp_wordsNoYes},
                                                {"system", kOrientationSystemWords}};

// *REBAR
constexpr char const* kRebarWords[] = {"element",     "geometry", "material", "name",
                                       "orientation", "single",   nullptr};

// *REBAR LAYER
constexpr char const* kRebarLayerWords[] = {"geometry", "orientation", nullptr};

// *RIGID SURFACE
constexpr char const* kRigidSurfaceWords[] = {"elset",  "filletradius", "name", "refnode",
                                              "smooth", "type",         nullptr};

// *SPATIAL DISTRIBUTION
constexpr char const* kSpatialDistributionWords[] = {"input", "name", "position", nullptr};

// *SURFACE
constexpr char const* kSurfaceWords[] = {
    "combine",    "crop",       "definition", "filletradius", "internal", "length",
    "maxratio",   "name",       "nooffset",   "nothick",      "property", "refnode",
    "regiontype", "scalethick", "trim",       "type",         nullptr};
constexpr char const* kSurfaceTypeWords[] = {
    "CUTTINGSURFACE", "ELEMENT",  "EULERIANMATERIAL", "NODE", "SEGMENTS", "BEZIER",
    "BSPLINE",        "CYLINDER", "REVOLUTION",       "USER", "XFEM",     nullptr};
constexpr char const* kCombineWords[] = {"DIFFERENCE", "INTERSECTION", "UNION", nullptr};
constexpr inp_SchemaEnum kSurfaceEnums[] = {{"definition", inp_wordsCoordinatesNodes},
                                            {"regiontype", inp_wordsRegionType},
                                            {"trim", inp_wordsNoYes},
                                            {"type", kSurfaceTypeWords},
                                            {"combine", kCombineWords}};

// *SURFACE FLAW
constexpr char const* kSurfaceFlawWords[] = {"input", "side", nullptr};
constexpr char const* kFlawSideWords[] = {"NEGATIVE", "POSITIVE", nullptr};
constexpr inp_SchemaEnum kSurfaceFlawEnums[] = {{"side", kFlawSideWords}};

// *SURFACE SMOOTHING
constexpr char const* kSurfaceSmoothingWords[] = {"name", nullptr};

// *TRACER PARTICLE
constexpr char const* kTracerParticleWords[] = {"follow", "tracerset", nullptr};

// *TRANSFORM
constexpr char const* kTransformWords[] = {"nset", "type", nullptr};
constexpr inp_SchemaEnum kTransformEnums[] = {{"type", inp_wordsCylindricalRectangularSpherical}};

// *UEL PROPERTY
constexpr char const* kUelPropertyWords[] = {"elset", "material", "orientation", nullptr};

// *USER ELEMENT
constexpr char const* kUserElementWords[] = {"coordinates", "file",   "increment",  "iproperties",
                                             "linear",      "nodes",  "oldelement", "properties",
                                             "step",        "type",   "unsymm",     "variables",
                                             "integration", "tensor", nullptr};
constexpr char const* kTensorWords[] = {"THREED", "TWOD", "PSTRAIN", "PSTRESS", nullptr};
constexpr inp_SchemaEnum kUserElementEnums[] = {{"tensor", kTensorWords}};

// *MATRIX CHECK takes no parameter: its row is empty.

constexpr inp_SchemaRow kRows[] = {
    {inp_kw_AdaptiveMesh, inp_SchemaKind::Row, kAdaptiveMeshWords, kAdaptiveMeshEnums},
    {inp_kw_AdaptiveMeshConstraint, inp_SchemaKind::Row, kAdaptiveMeshConstraintWords,
     kAdaptiveMeshConstraintEnums},
    {inp_kw_AdaptiveMeshControls, inp_SchemaKind::Row, kAdaptiveMeshControlsWords,
     kAdaptiveMeshControlsEnums},
    {inp_kw_AdaptiveMeshRefinement, inp_SchemaKind::Row, kAdaptiveMeshRefinementWords, {}},
    {inp_kw_Distribution, inp_SchemaKind::Logic, kDistributionWords, {}},
    {inp_kw_DistributionTable, inp_SchemaKind::Row, kDistributionTableWords, {}},
    {inp_kw_DragChain, inp_SchemaKind::Row, kDragChainWords, {}},
    {inp_kw_Elcopy, inp_SchemaKind::Row, kElcopyWords, {}},
    {inp_kw_Element, inp_SchemaKind::Logic, kElementWords, {}},
    {inp_kw_ElementRecoveryMatrix, inp_SchemaKind::Row, kElementRecoveryMatrixWords, {}},
    {inp_kw_Elgen, inp_SchemaKind::Row, kElgenWords, {}},
    {inp_kw_Elset, inp_SchemaKind::Logic, kElsetWords, {}},
    {inp_kw_EmbeddedElement, inp_SchemaKind::Row, kEmbeddedElementWords, {}},
    {inp_kw_Enrichment, inp_SchemaKind::Row, kEnrichmentWords, {}},
    {inp_kw_EnrichmentActivation, inp_SchemaKind::Row, kEnrichmentActivationWords,
     kEnrichmentActivationEnums},
    {inp_kw_Matrix, inp_SchemaKind::Logic, kMatrixWords, {}},
    {inp_kw_MatrixAssemble, inp_SchemaKind::Logic, kMatrixAssembleWords, {}},
    {inp_kw_MatrixCheck, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_MatrixGenerate, inp_SchemaKind::Row, kMatrixGenerateWords, {}},
    {inp_kw_MatrixInput, inp_SchemaKind::Logic, kMatrixInputWords, kMatrixInputEnums},
    {inp_kw_MatrixOutput, inp_SchemaKind::Row, kMatrixOutputWords, kMatrixOutputEnums},
    {inp_kw_Ncopy, inp_SchemaKind::Row, kNcopyWords, kNcopyEnums},
    {inp_kw_Nfill, inp_SchemaKind::Row, kNfillWords, {}},
    {inp_kw_Ngen, inp_SchemaKind::Row, kNgenWords, kNgenEnums},
    {inp_kw_Nmap, inp_SchemaKind::Logic, kNmapWords, kNmapEnums},
    {inp_kw_NodalThickness, inp_SchemaKind::Logic, kNodalThicknessWords, {}},
    {inp_kw_Node, inp_SchemaKind::Logic, kNodeWords, kNodeEnums},
    {inp_kw_Normal, inp_SchemaKind::Row, kNormalWords, kNormalEnums},
    {inp_kw_Nset, inp_SchemaKind::Logic, kNsetWords, {}},
    {inp_kw_Orientation, inp_SchemaKind::Row, kOrientationWords, kOrientationEnums},
    {inp_kw_Rebar, inp_SchemaKind::Row, kRebarWords, {}},
    {inp_kw_RebarLayer, inp_SchemaKind::Row, kRebarLayerWords, {}},
    {inp_kw_RemeshTrigger, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_RigidSurface, inp_SchemaKind::Row, kRigidSurfaceWords, {}},
    {inp_kw_SpatialDistribution, inp_SchemaKind::Logic, kSpatialDistributionWords, {}},
    {inp_kw_Surface, inp_SchemaKind::Logic, kSurfaceWords, kSurfaceEnums},
    {inp_kw_SurfaceFlaw, inp_SchemaKind::Logic, kSurfaceFlawWords, kSurfaceFlawEnums},
    {inp_kw_SurfaceSmoothing, inp_SchemaKind::Row, kSurfaceSmoothingWords, {}},
    {inp_kw_System, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_TracerParticle, inp_SchemaKind::Row, kTracerParticleWords, {}},
    {inp_kw_Transform, inp_SchemaKind::Logic, kTransformWords, kTransformEnums},
    {inp_kw_UelProperty, inp_SchemaKind::Row, kUelPropertyWords, {}},
    {inp_kw_UserElement, inp_SchemaKind::Logic, kUserElementWords, kUserElementEnums},
};

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaMeshRows() {
    return kRows;
}
