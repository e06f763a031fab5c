// The schema rows of one family of keywords: materials and their behaviours,
// with the test data and hardening curves below them, and the few behaviour
// keywords of sections, joints and fabrics that share their vocabulary.
#include "expansion/inp_Schema.h"
#include "expansion/inp_SchemaWords.h"

namespace {

// The tables keep the packed layout of word lists; a formatter would put
// one word on each line.
// clang-format off

// Enumerations that several rows of this family share.
constexpr char const* kIsoOrthoAnisoValues[] = {"ANISO", "ISO", "ORTHO", nullptr};
constexpr char const* kDisplacementStrainValues[] = {"DISPLACEMENT", "STRAIN", nullptr};
constexpr char const* kDisplacementGfiStrainValues[] = {"DISPLACEMENT", "GFI", "STRAIN", nullptr};
constexpr char const* kCompressionTensionValues[] = {"COMPRESSION", "TENSION", nullptr};
constexpr char const* kBrittleDuctileValues[] = {"BRITTLE", "DUCTILE", nullptr};
constexpr char const* kConstantLinearValues[] = {"CONSTANT", "LINEAR", nullptr};

// *ACOUSTIC MEDIUM
constexpr char const* kAcousticMediumWords[] = {
    "bulkmodulus", "cavitationlimit", "complexbulkmodulus", "complexdensity", "dependencies",
    "porousmodel", "volumetricdrag", nullptr};
constexpr char const* kAcousticMediumPorousModelValues[] = {
    "CRAGGS", "DELANYBAZLEY", "DELANYBAZLEYMIKI", nullptr};
constexpr inp_SchemaEnum kAcousticMediumEnums[] = {
    {"porousmodel", kAcousticMediumPorousModelValues}};

// *ANISOTROPIC HYPERELASTIC
constexpr char const* kAnisotropicHyperelasticWords[] = {
    "dependencies", "formulation", "fung-anisotropic", "fung-orthotropic", "holzapfel",
    "localdirections", "moduli", "properties", "type", "user", nullptr};
constexpr char const* kAnisotropicHyperelasticFormulationValues[] = {
    "INVARIANT", "STRAIN", nullptr};
constexpr char const* kAnisotropicHyperelasticTypeValues[] = {
    "COMPRESSIBLE", "INCOMPRESSIBLE", nullptr};
constexpr inp_SchemaEnum kAnisotropicHyperelasticEnums[] = {
    {"formulation", kAnisotropicHyperelasticFormulationValues}, {"moduli", inp_wordsModuli},
    {"type", kAnisotropicHyperelasticTypeValues}};

// *AXIAL
constexpr char const* kAxialWords[] = {
    "dependencies", "elastic", "extrapolation", "linear", "plastic", nullptr};
constexpr inp_SchemaEnum kAxialEnums[] = {{"extrapolation", kConstantLinearValues}};

// *BIAXIAL
constexpr char const* kBiaxialWords[] = {"component", nullptr};

// *BIAXIAL TEST DATA
constexpr char const* kBiaxialTestDataWords[] = {"dependencies", "smooth", nullptr};

// *BRITTLE CRACKING
constexpr char const* kBrittleCrackingWords[] = {"dependencies", "type", nullptr};
constexpr inp_SchemaEnum kBrittleCrackingEnums[] = {{"type", kDisplacementGfiStrainValues}};

// *BRITTLE FAILURE
constexpr char const* kBrittleFailureWords[] = {"cracks", "dependencies", nullptr};

// *BRITTLE SHEAR
constexpr char const* kBrittleShearWords[] = {"dependencies", "type", nullptr};
constexpr char const* kBrittleShearTypeValues[] = {"POWERLAW", "RETENTIONFACTOR", nullptr};
constexpr inp_SchemaEnum kBrittleShearEnums[] = {{"type", kBrittleShearTypeValues}};

// *CAP CREEP
// The creep laws have grown over the releases: `law` stays open rather than refuse a law
// this table does not know.
constexpr char const* kCapCreepWords[] = {"dependencies", "law", "mechanism", nullptr};
constexpr char const* kCapCreepMechanismValues[] = {"COHESION", "CONSOLIDATION", nullptr};
constexpr inp_SchemaEnum kCapCreepEnums[] = {{"mechanism", kCapCreepMechanismValues}};

// *CAP HARDENING
constexpr char const* kCapHardeningWords[] = {"dependencies", nullptr};

// *CAP PLASTICITY
constexpr char const* kCapPlasticityWords[] = {"dependencies", nullptr};

// *CAST IRON COMPRESSION HARDENING
constexpr char const* kCastIronCompressionHardeningWords[] = {"dependencies", nullptr};

// *CAST IRON PLASTICITY
constexpr char const* kCastIronPlasticityWords[] = {"dependencies", nullptr};

// *CAST IRON TENSION HARDENING
constexpr char const* kCastIronTensionHardeningWords[] = {"dependencies", nullptr};

// *CHARACTERISTIC LENGTH
// `components` rather than `component`: both spellings reach it.
constexpr char const* kCharacteristicLengthWords[] = {
    "components", "definition", "properties", nullptr};

// *CLAY HARDENING
constexpr char const* kClayHardeningWords[] = {"dependencies", nullptr};

// *CLAY PLASTICITY
constexpr char const* kClayPlasticityWords[] = {"dependencies", "hardening", nullptr};
constexpr char const* kClayPlasticityHardeningValues[] = {"EXPONENTIAL", "TABULAR", nullptr};
constexpr inp_SchemaEnum kClayPlasticityEnums[] = {{"hardening", kClayPlasticityHardeningValues}};

// *COMBINED TEST DATA
constexpr char const* kCombinedTestDataWords[] = {"shrinf", "volinf", nullptr};

// *CONCRETE
constexpr char const* kConcreteWords[] = {"dependencies", nullptr};

// *CONCRETE COMPRESSION DAMAGE
constexpr char const* kConcreteCompressionDamageWords[] = {
    "dependencies", "tensionrecovery", nullptr};

// *CONCRETE COMPRESSION HARDENING
constexpr char const* kConcreteCompressionHardeningWords[] = {"dependencies", nullptr};

// *CONCRETE DAMAGED PLASTICITY
constexpr char const* kConcreteDamagedPlasticityWords[] = {"dependencies", nullptr};

// *CONCRETE TENSION DAMAGE
constexpr char const* kConcreteTensionDamageWords[] = {
    "compressionrecovery", "dependencies", "type", nullptr};
constexpr inp_SchemaEnum kConcreteTensionDamageEnums[] = {{"type", kDisplacementStrainValues}};

// *CONCRETE TENSION STIFFENING
constexpr char const* kConcreteTensionStiffeningWords[] = {"dependencies", "type", nullptr};
constexpr inp_SchemaEnum kConcreteTensionStiffeningEnums[] = {
    {"type", kDisplacementGfiStrainValues}};

// *CONDUCTIVITY
constexpr char const* kConductivityWords[] = {"dependencies", "type", "porefluid", nullptr};
constexpr inp_SchemaEnum kConductivityEnums[] = {{"type", inp_wordsAnisotropy}};

// *CREEP
constexpr char const* kCreepWords[] = {"dependencies", "law", "time", nullptr};
constexpr char const* kCreepLawValues[] = {
    "ANAND", "DARVEAUX", "DOUBLEPOWER", "HYPERB", "STRAIN", "TIME", "USER", nullptr};
constexpr char const* kCreepTimeValues[] = {"CREEP", "TOTAL", nullptr};
constexpr inp_SchemaEnum kCreepEnums[] = {{"law", kCreepLawValues}, {"time", kCreepTimeValues}};

// *CRUSHABLE FOAM
constexpr char const* kCrushableFoamWords[] = {"dependencies", "hardening", nullptr};
constexpr char const* kCrushableFoamHardeningValues[] = {"ISOTROPIC", "VOLUMETRIC", nullptr};
constexpr inp_SchemaEnum kCrushableFoamEnums[] = {{"hardening", kCrushableFoamHardeningValues}};

// *CRUSHABLE FOAM HARDENING
constexpr char const* kCrushableFoamHardeningWords[] = {"dependencies", nullptr};

// *CRUSH STRESS
constexpr char const* kCrushStressWords[] = {"dependencies", nullptr};

// *CYCLIC HARDENING
constexpr char const* kCyclicHardeningWords[] = {"dependencies", "parameters", nullptr};

// *DAMAGE EVOLUTION
constexpr char const* kDamageEvolutionWords[] = {
    "degradation", "dependencies", "failureindex", "mixedmodebehavior", "modemixratio", "power",
    "softening", "type", nullptr};
constexpr char const* kDamageEvolutionDegradationValues[] = {"MAXIMUM", "MULTIPLICATIVE", nullptr};
constexpr char const* kDamageEvolutionSofteningValues[] = {
    "EXPONENTIAL", "LINEAR", "TABULAR", nullptr};
constexpr char const* kDamageEvolutionTypeValues[] = {
    "DISPLACEMENT", "ENERGY", "HYSTERESISENERGY", nullptr};
constexpr char const* kDamageEvolutionMixedModeBehaviorValues[] = {
    "TABULAR", "POWERLAW", "BK", nullptr};
constexpr char const* kDamageEvolutionModeMixRatioValues[] = {
    "TRACTION", "ENERGY", "NONACCUMULATEDENERGY", "ACCUMULATEDENERGY", nullptr};
constexpr inp_SchemaEnum kDamageEvolutionEnums[] = {
    {"degradation", kDamageEvolutionDegradationValues},
    {"softening", kDamageEvolutionSofteningValues}, {"type", kDamageEvolutionTypeValues},
    {"mixedmodebehavior", kDamageEvolutionMixedModeBehaviorValues},
    {"modemixratio", kDamageEvolutionModeMixRatioValues}};

// *DAMAGE INITIATION
// CUBIC SPLINE keeps its blank: a deck value loses its blanks before it is compared, so
// only the abbreviation CUBIC reaches that word.
constexpr char const* kDamageInitiationWords[] = {
    "alpha", "criterion", "definition", "dependencies", "failuremechanisms", "feq", "fnn", "fnt",
    "frequency", "ks", "normaldirection", "numberimperfections", "omega", "peinc", "properties",
    "lodedependent", "tolerance", "unstablegrowthtolerance", "position", "smoothing",
    "weightingmethod", "rcrackdirection", "rcrackinitiation", nullptr};
constexpr char const* kDamageInitiationCriterionValues[] = {
    "DUCTILE", "FLD", "FLSD", "HASHIN", "HYSTERESISENERGY", "JOHNSONCOOK", "MAXE", "MAXPE", "MAXPS",
    "MAXS", "MAXU", "MK", "MSFLD", "QUADE", "QUADS", "QUADU", "SHEAR", "USER", nullptr};
constexpr char const* kDamageInitiationDefinitionValues[] = {"FLD", "MSFLD", nullptr};
constexpr char const* kDamageInitiationPositionValues[] = {
    "CENTROID", "CRACKTIP", "COMBINED", "NONLOCAL", nullptr};
constexpr char const* kDamageInitiationSmoothingValues[] = {"NONE", "NODAL", nullptr};
constexpr char const* kDamageInitiationWeightingMethodValues[] = {
    "UNIFORM", "GAUSS", "CUBIC SPLINE", "USER", nullptr};
constexpr inp_SchemaEnum kDamageInitiationEnums[] = {
    {"criterion", kDamageInitiationCriterionValues},
    {"definition", kDamageInitiationDefinitionValues},
    {"position", kDamageInitiationPositionValues}, {"smoothing", kDamageInitiationSmoothingValues},
    {"weightingmethod", kDamageInitiationWeightingMethodValues}};

// *DAMPING
constexpr char const* kDampingWords[] = {
    "alpha", "beta", "composite", "dependencies", "structural", nullptr};

// *D EM POTENTIAL
constexpr char const* kDEmPotentialWords[] = {"amplitude", "op", nullptr};
constexpr inp_SchemaEnum kDEmPotentialEnums[] = {{"op", inp_wordsModNew}};

// *DENSITY
constexpr char const* kDensityWords[] = {"dependencies", "porefluid", nullptr};

// *DEPVAR
constexpr char const* kDepvarWords[] = {"delete", nullptr};

// *DIELECTRIC
constexpr char const* kDielectricWords[] = {"dependencies", "frequency", "type", nullptr};
constexpr inp_SchemaEnum kDielectricEnums[] = {{"type", kIsoOrthoAnisoValues}};

// *DIFFUSIVITY
constexpr char const* kDiffusivityWords[] = {"dependencies", "law", "type", nullptr};
constexpr char const* kDiffusivityLawValues[] = {"FICK", "GENERAL", nullptr};
constexpr inp_SchemaEnum kDiffusivityEnums[] = {
    {"law", kDiffusivityLawValues}, {"type", kIsoOrthoAnisoValues}};

// *DRUCKER PRAGER
constexpr char const* kDruckerPragerWords[] = {
    "dependencies", "shearcriterion", "testdata", nullptr};
constexpr char const* kDruckerPragerShearCriterionValues[] = {
    "EXPONENTFORM", "HYPERBOLIC", "LINEAR", nullptr};
constexpr inp_SchemaEnum kDruckerPragerEnums[] = {
    {"shearcriterion", kDruckerPragerShearCriterionValues}};

// *DRUCKER PRAGER CREEP
// `law` stays open, as for *CAP CREEP.
constexpr char const* kDruckerPragerCreepWords[] = {"dependencies", "law", nullptr};

// *DRUCKER PRAGER HARDENING
constexpr char const* kDruckerPragerHardeningWords[] = {"dependencies", "rate", "type", nullptr};
constexpr char const* kDruckerPragerHardeningTypeValues[] = {
    "COMPRESSION", "SHEAR", "TENSION", nullptr};
constexpr inp_SchemaEnum kDruckerPragerHardeningEnums[] = {
    {"type", kDruckerPragerHardeningTypeValues}};

// *ELASTIC
constexpr char const* kElasticWords[] = {
    "compressionfactor", "dependencies", "moduli", "type", nullptr};
constexpr char const* kElasticTypeValues[] = {
    "ANISOTROPIC", "COUPLEDTRACTION", "ENGINEERINGCONSTANTS", "ISOTROPIC", "LAMINA", "ORTHOTROPIC",
    "SHEAR", "SHORTFIBER", "TRACTION", nullptr};
constexpr inp_SchemaEnum kElasticEnums[] = {
    {"type", kElasticTypeValues}, {"moduli", inp_wordsModuli}};

// *ELECTRICAL CONDUCTIVITY
constexpr char const* kElectricalConductivityWords[] = {
    "dependencies", "frequency", "type", nullptr};
constexpr inp_SchemaEnum kElectricalConductivityEnums[] = {{"type", kIsoOrthoAnisoValues}};

// *EMISSIVITY
constexpr char const* kEmissivityWords[] = {"dependencies", nullptr};

// *EOS
// The equation-of-state types are many and still growing: `type` stays open.
constexpr char const* kEosWords[] = {"properties", "type", nullptr};

// *EOS SHEAR
constexpr char const* kEosShearWords[] = {"type", nullptr};
constexpr char const* kEosShearTypeValues[] = {"ELASTIC", "VISCOUS", nullptr};
constexpr inp_SchemaEnum kEosShearEnums[] = {{"type", kEosShearTypeValues}};

// *EXPANSION
constexpr char const* kExpansionWords[] = {
    "dependencies", "field", "porefluid", "type", "user", "zero", nullptr};
constexpr inp_SchemaEnum kExpansionEnums[] = {{"type", inp_wordsAnisotropy}};

// *FABRIC
constexpr char const* kFabricWords[] = {"properties", "user", nullptr};

// *FAIL STRAIN
constexpr char const* kFailStrainWords[] = {"dependencies", nullptr};

// *FAIL STRESS
constexpr char const* kFailStressWords[] = {"dependencies", nullptr};

// *FAILURE RATIOS
constexpr char const* kFailureRatiosWords[] = {"dependencies", nullptr};

// *FILM PROPERTY
constexpr char const* kFilmPropertyWords[] = {"dependencies", "name", nullptr};

// *FOAM
constexpr char const* kFoamWords[] = {"dependencies", "hardening", nullptr};

// *FOAM HARDENING
constexpr char const* kFoamHardeningWords[] = {"dependencies", nullptr};

// *GAS SPECIFIC HEAT
constexpr char const* kGasSpecificHeatWords[] = {"dependencies", nullptr};

// *HYPERELASTIC
constexpr char const* kHyperelasticWords[] = {
    "arruda-boyce", "beta", "direct", "mooney-rivlin", "moduli", "marlow", "n", "neohooke", "ogden",
    "poisson", "polynomial", "properties", "reducedpolynomial", "testdatainput", "type", "user",
    "vanderwaals", "yeoh", nullptr};
constexpr char const* kHyperelasticTypeValues[] = {"INCOMPRESSIBLE", "COMPRESSIBLE", nullptr};
constexpr inp_SchemaEnum kHyperelasticEnums[] = {
    {"moduli", inp_wordsModuli}, {"type", kHyperelasticTypeValues}};

// *HYPERFOAM
constexpr char const* kHyperfoamWords[] = {"moduli", "n", "poisson", "testdatainput", nullptr};
constexpr inp_SchemaEnum kHyperfoamEnums[] = {{"moduli", inp_wordsModuli}};

// *HYPOELASTIC
constexpr char const* kHypoelasticWords[] = {"user", nullptr};

// *JOINTED MATERIAL
// `direction` takes a joint number or BULK: not an enumeration.
// `jointdirection` names the orientation that gives the joint directions.
constexpr char const* kJointedMaterialWords[] = {"dependencies", "direction", "jointdirection",
                                                 nullptr};

// *KAPPA
constexpr char const* kKappaWords[] = {"dependencies", "type", nullptr};
constexpr char const* kKappaTypeValues[] = {"PRESS", "TEMP", nullptr};
constexpr inp_SchemaEnum kKappaEnums[] = {{"type", kKappaTypeValues}};

// *LATENT HEAT
constexpr char const* kLatentHeatWords[] = {"porefluid", nullptr};

// *LOADING DATA
constexpr char const* kLoadingDataWords[] = {"dependencies", "direction", nullptr};
constexpr inp_SchemaEnum kLoadingDataEnums[] = {{"direction", kCompressionTensionValues}};

// *LOW DENSITY FOAM
constexpr char const* kLowDensityFoamWords[] = {
    "alpha", "elementremoval", "mu0", "mu1", "strainrate", nullptr};
constexpr char const* kLowDensityFoamStrainRateValues[] = {"PRINCIPAL", "VOLUMETRIC", nullptr};
constexpr inp_SchemaEnum kLowDensityFoamEnums[] = {
    {"elementremoval", inp_wordsNoYes}, {"strainrate", kLowDensityFoamStrainRateValues}};

// *MAGNETIC PERMEABILITY
constexpr char const* kMagneticPermeabilityWords[] = {
    "dependencies", "frequency", "nonlinear", "type", nullptr};
constexpr inp_SchemaEnum kMagneticPermeabilityEnums[] = {{"type", kIsoOrthoAnisoValues}};

// *MASS ADJUST
constexpr char const* kMassAdjustWords[] = {"elset", nullptr};

// *MATERIAL
constexpr char const* kMaterialWords[] = {
    "name", "rtol", "strainrateregularization", "sratefactor", nullptr};
constexpr char const* kMaterialStrainRateRegularizationValues[] = {
    "LINEAR", "LOGARITHMIC", nullptr};
constexpr inp_SchemaEnum kMaterialEnums[] = {
    {"strainrateregularization", kMaterialStrainRateRegularizationValues}};

// *MOHR COULOMB
constexpr char const* kMohrCoulombWords[] = {
    "dependencies", "deviatoriceccentricity", "meridionaleccentricity", nullptr};

// *MOHR COULOMB HARDENING
constexpr char const* kMohrCoulombHardeningWords[] = {"dependencies", nullptr};

// *MULLINS EFFECT
constexpr char const* kMullinsEffectWords[] = {
    "dependencies", "properties", "testdatainput", "user", nullptr};

// *NONLINEAR BH
// `direction` rather than its short form `dir`: both spellings reach it.
constexpr char const* kNonlinearBHWords[] = {"direction", nullptr};

// *ORNL
constexpr char const* kOrnlWords[] = {"reset", "saturationrate", nullptr};

// *PERMANENT MAGNETIZATION
constexpr char const* kPermanentMagnetizationWords[] = {"dependencies", nullptr};

// *PERMEABILITY
constexpr char const* kPermeabilityWords[] = {
    "dependencies", "inertialdragcoefficient", "specific", "type", nullptr};
constexpr char const* kPermeabilityTypeValues[] = {
    "ANISOTROPIC", "ISOTROPIC", "ORTHOTROPIC", "SATURATION", "VELOCITY", nullptr};
constexpr inp_SchemaEnum kPermeabilityEnums[] = {{"type", kPermeabilityTypeValues}};

// *PIEZOELECTRIC
constexpr char const* kPiezoelectricWords[] = {"type", nullptr};
constexpr char const* kPiezoelectricTypeValues[] = {"E", "S", nullptr};
constexpr inp_SchemaEnum kPiezoelectricEnums[] = {{"type", kPiezoelectricTypeValues}};

// *PLANAR TEST DATA
constexpr char const* kPlanarTestDataWords[] = {"dependencies", "smooth", nullptr};

// *PLASTIC
constexpr char const* kPlasticWords[] = {
    "datatype", "dependencies", "hardening", "properties", "rate", "numberbackstresses",
    "scalestress", nullptr};
constexpr char const* kPlasticDataTypeValues[] = {"HALFCYCLE", "PARAMETERS", "STABILIZED", nullptr};
constexpr char const* kPlasticHardeningValues[] = {
    "ISOTROPIC", "JOHNSONCOOK", "KINEMATIC", "COMBINED", "USER", nullptr};
constexpr inp_SchemaEnum kPlasticEnums[] = {
    {"datatype", kPlasticDataTypeValues}, {"hardening", kPlasticHardeningValues}};

// *POROUS ELASTIC
constexpr char const* kPorousElasticWords[] = {"dependencies", "shear", nullptr};
constexpr char const* kPorousElasticShearValues[] = {"G", "POISSON", nullptr};
constexpr inp_SchemaEnum kPorousElasticEnums[] = {{"shear", kPorousElasticShearValues}};

// *POROUS METAL PLASTICITY
constexpr char const* kPorousMetalPlasticityWords[] = {"dependencies", "relativedensity", nullptr};

// *POTENTIAL
constexpr char const* kPotentialWords[] = {"dependencies", "type", nullptr};

// *PROBABILITY DENSITY FUNCTION
constexpr char const* kProbabilityDensityFunctionWords[] = {"name", "type", nullptr};

// *RATE DEPENDENT
// The rate laws have grown over the releases: `type` stays open.
constexpr char const* kRateDependentWords[] = {"dependencies", "type", nullptr};

// *SHEAR FAILURE
constexpr char const* kShearFailureWords[] = {"dependencies", "elementdeletion", nullptr};
constexpr inp_SchemaEnum kShearFailureEnums[] = {{"elementdeletion", inp_wordsNoYes}};

// *SHEAR RETENTION
constexpr char const* kShearRetentionWords[] = {"dependencies", nullptr};

// *SHEAR TEST DATA
constexpr char const* kShearTestDataWords[] = {"shrinf", nullptr};

// *SOFTENING REGULARIZATION
constexpr char const* kSofteningRegularizationWords[] = {"dependencies", nullptr};

// *SOLUBILITY
constexpr char const* kSolubilityWords[] = {"dependencies", nullptr};

// *SORPTION
constexpr char const* kSorptionWords[] = {"law", "type", nullptr};
constexpr char const* kSorptionLawValues[] = {"LOG", "TABULAR", nullptr};
constexpr char const* kSorptionTypeValues[] = {"ABSORPTION", "EXSORPTION", "SCANNING", nullptr};
constexpr inp_SchemaEnum kSorptionEnums[] = {
    {"law", kSorptionLawValues}, {"type", kSorptionTypeValues}};

// *SPECIFIC HEAT
constexpr char const* kSpecificHeatWords[] = {"definition", "dependencies", "porefluid", nullptr};

// *SURFACE PERMEABILITY
constexpr char const* kSurfacePermeabilityWords[] = {"dependencies", nullptr};

// *SWELLING
constexpr char const* kSwellingWords[] = {"dependencies", "law", nullptr};

// *TENSILE FAILURE
constexpr char const* kTensileFailureWords[] = {
    "dependencies", "elementdeletion", "pressure", "shear", nullptr};
constexpr inp_SchemaEnum kTensileFailureEnums[] = {
    {"elementdeletion", inp_wordsNoYes}, {"pressure", kBrittleDuctileValues},
    {"shear", kBrittleDuctileValues}};

// *TENSION CUTOFF
constexpr char const* kTensionCutoffWords[] = {"dependencies", nullptr};

// *TENSION STIFFENING
constexpr char const* kTensionStiffeningWords[] = {"dependencies", "type", nullptr};
constexpr inp_SchemaEnum kTensionStiffeningEnums[] = {{"type", kDisplacementStrainValues}};

// *THERMAL EXPANSION
constexpr char const* kThermalExpansionWords[] = {"dependencies", "zero", nullptr};

// *TRIAXIAL TEST DATA
constexpr char const* kTriaxialTestDataWords[] = {"dependencies", nullptr};

// *TRS
constexpr char const* kTrsWords[] = {"definition", nullptr};

// *UNIAXIAL
constexpr char const* kUniaxialWords[] = {"component", nullptr};

// *UNIAXIAL TEST DATA
constexpr char const* kUniaxialTestDataWords[] = {"dependencies", "direction", "smooth", nullptr};
constexpr inp_SchemaEnum kUniaxialTestDataEnums[] = {{"direction", kCompressionTensionValues}};

// *UNLOADING DATA
// The unloading definitions differ between fabrics and connectors: `definition`
// stays open.
constexpr char const* kUnloadingDataWords[] = {"definition", "dependencies", nullptr};

// *USER MATERIAL
constexpr char const* kUserMaterialWords[] = {
    "constants", "type", "unsymm", "xeffmod", "hybridformulation", nullptr};
constexpr char const* kUserMaterialTypeValues[] = {"MECHANICAL", "THERMAL", nullptr};
constexpr char const* kUserMaterialHybridFormulationValues[] = {
    "INCREMENTAL", "TOTAL", "INCOMPRESSIBLE", nullptr};
constexpr inp_SchemaEnum kUserMaterialEnums[] = {
    {"type", kUserMaterialTypeValues}, {"hybridformulation", kUserMaterialHybridFormulationValues}};

// *VISCOELASTIC
constexpr char const* kViscoelasticWords[] = {
    "datat2f", "errtol", "formulation", "frequency", "maxiter", "nmax", "preload", "time", "type",
    "nonlinear", "law", "sratio", "dependencies", "networkid", "properties", nullptr};
constexpr char const* kViscoelasticFormulationValues[] = {"SOLID", "FLUID", nullptr};
constexpr char const* kViscoelasticFrequencyValues[] = {
    "FORMULA", "CREEPTESTDATA", "PRONY", "RELAXATIONTESTDATA", "TABULAR", nullptr};
constexpr char const* kViscoelasticPreloadValues[] = {"UNIAXIAL", "VOLUMETRIC", nullptr};
constexpr char const* kViscoelasticTimeValues[] = {
    "CREEPTESTDATA", "FREQUENCYDATA", "PRONY", "RELAXATIONTESTDATA", nullptr};
constexpr char const* kViscoelasticTypeValues[] = {"ISOTROPIC", "TRACTION", nullptr};
constexpr char const* kViscoelasticLawValues[] = {
    "STRAIN", "HYPERBOLIC", "USER", "BERGSTROM-BOYCE", "POWERLAW", nullptr};
constexpr inp_SchemaEnum kViscoelasticEnums[] = {
    {"formulation", kViscoelasticFormulationValues}, {"frequency", kViscoelasticFrequencyValues},
    {"preload", kViscoelasticPreloadValues}, {"time", kViscoelasticTimeValues},
    {"type", kViscoelasticTypeValues}, {"law", kViscoelasticLawValues}};

// *VISCOSITY
// The viscosity models are many and still growing: `definition` stays open.
constexpr char const* kViscosityWords[] = {"definition", "dependencies", "properties", nullptr};

// *VISCOUS
// `law` stays open, as for *CAP CREEP.
constexpr char const* kViscousWords[] = {"dependencies", "law", "time", nullptr};

// *VOID NUCLEATION
constexpr char const* kVoidNucleationWords[] = {"dependencies", nullptr};

// *VOLUMETRIC TEST DATA
constexpr char const* kVolumetricTestDataWords[] = {"dependencies", "smooth", "volinf", nullptr};

// A row whose table is inp_wordsEmpty has no block above: its keyword takes no
// parameter, or is passed over untouched.
constexpr inp_SchemaRow kRows[] = {
    {inp_kw_AcousticMedium, inp_SchemaKind::Row, kAcousticMediumWords, kAcousticMediumEnums},
    {inp_kw_AnisotropicHyperelastic, inp_SchemaKind::Row,
     kAnisotropicHyperelasticWords, kAnisotropicHyperelasticEnums},
    {inp_kw_AsymmetricAxisymmetric, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_Axial, inp_SchemaKind::Row, kAxialWords, kAxialEnums},
    {inp_kw_Biaxial, inp_SchemaKind::Row, kBiaxialWords, {}},
    {inp_kw_BiaxialTestData, inp_SchemaKind::Row, kBiaxialTestDataWords, {}},
    {inp_kw_BrittleCracking, inp_SchemaKind::Row, kBrittleCrackingWords, kBrittleCrackingEnums},
    {inp_kw_BrittleFailure, inp_SchemaKind::Row, kBrittleFailureWords, {}},
    {inp_kw_BrittleShear, inp_SchemaKind::Row, kBrittleShearWords, kBrittleShearEnums},
    {inp_kw_BucklingEnvelope, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_BucklingLength, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_BucklingReductionFactors, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_CAddedMass, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_CapCreep, inp_SchemaKind::Row, kCapCreepWords, kCapCreepEnums},
    {inp_kw_CapHardening, inp_SchemaKind::Row, kCapHardeningWords, {}},
    {inp_kw_CapPlasticity, inp_SchemaKind::Row, kCapPlasticityWords, {}},
    {inp_kw_CastIronCompressionHardening, inp_SchemaKind::Row,
     kCastIronCompressionHardeningWords, {}},
    {inp_kw_CastIronPlasticity, inp_SchemaKind::Row, kCastIronPlasticityWords, {}},
    {inp_kw_CastIronTensionHardening, inp_SchemaKind::Row, kCastIronTensionHardeningWords, {}},
    {inp_kw_CharacteristicLength, inp_SchemaKind::Row, kCharacteristicLengthWords, {}},
    {inp_kw_ClayHardening, inp_SchemaKind::Row, kClayHardeningWords, {}},
    {inp_kw_ClayPlasticity, inp_SchemaKind::Row, kClayPlasticityWords, kClayPlasticityEnums},
    {inp_kw_CombinedTestData, inp_SchemaKind::Row, kCombinedTestDataWords, {}},
    {inp_kw_Concrete, inp_SchemaKind::Row, kConcreteWords, {}},
    {inp_kw_ConcreteCompressionDamage, inp_SchemaKind::Row, kConcreteCompressionDamageWords, {}},
    {inp_kw_ConcreteCompressionHardening, inp_SchemaKind::Row,
     kConcreteCompressionHardeningWords, {}},
    {inp_kw_ConcreteDamagedPlasticity, inp_SchemaKind::Row, kConcreteDamagedPlasticityWords, {}},
    {inp_kw_ConcreteTensionDamage, inp_SchemaKind::Row,
     kConcreteTensionDamageWords, kConcreteTensionDamageEnums},
    {inp_kw_ConcreteTensionStiffening, inp_SchemaKind::Row,
     kConcreteTensionStiffeningWords, kConcreteTensionStiffeningEnums},
    {inp_kw_Conductivity, inp_SchemaKind::Row, kConductivityWords, kConductivityEnums},
    {inp_kw_Creep, inp_SchemaKind::Row, kCreepWords, kCreepEnums},
    {inp_kw_CrushableFoam, inp_SchemaKind::Row, kCrushableFoamWords, kCrushableFoamEnums},
    {inp_kw_CrushableFoamHardening, inp_SchemaKind::Row, kCrushableFoamHardeningWords, {}},
    {inp_kw_CrushStress, inp_SchemaKind::Row, kCrushStressWords, {}},
    {inp_kw_CrushStressVelocityFactor, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_CycledPlastic, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_CyclicHardening, inp_SchemaKind::Row, kCyclicHardeningWords, {}},
    {inp_kw_DAddedMass, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_DamageEvolution, inp_SchemaKind::Row, kDamageEvolutionWords, kDamageEvolutionEnums},
    {inp_kw_DamageInitiation, inp_SchemaKind::Row, kDamageInitiationWords, kDamageInitiationEnums},
    {inp_kw_DamageStabilization, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Damping, inp_SchemaKind::Row, kDampingWords, {}},
    {inp_kw_DeformationPlasticity, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_DEmPotential, inp_SchemaKind::Row, kDEmPotentialWords, kDEmPotentialEnums},
    {inp_kw_Density, inp_SchemaKind::Row, kDensityWords, {}},
    {inp_kw_Depvar, inp_SchemaKind::Row, kDepvarWords, {}},
    {inp_kw_Dielectric, inp_SchemaKind::Row, kDielectricWords, kDielectricEnums},
    {inp_kw_Diffusivity, inp_SchemaKind::Row, kDiffusivityWords, kDiffusivityEnums},
    {inp_kw_DruckerPrager, inp_SchemaKind::Row, kDruckerPragerWords, kDruckerPragerEnums},
    {inp_kw_DruckerPragerCreep, inp_SchemaKind::Row, kDruckerPragerCreepWords, {}},
    {inp_kw_DruckerPragerHardening, inp_SchemaKind::Row,
     kDruckerPragerHardeningWords, kDruckerPragerHardeningEnums},
    {inp_kw_Elastic, inp_SchemaKind::Logic, kElasticWords, kElasticEnums},
    {inp_kw_ElectricalConductivity, inp_SchemaKind::Row,
     kElectricalConductivityWords, kElectricalConductivityEnums},
    {inp_kw_Emissivity, inp_SchemaKind::Row, kEmissivityWords, {}},
    {inp_kw_Eos, inp_SchemaKind::Row, kEosWords, {}},
    {inp_kw_EosCompaction, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_EosShear, inp_SchemaKind::Row, kEosShearWords, kEosShearEnums},
    {inp_kw_Expansion, inp_SchemaKind::Logic, kExpansionWords, kExpansionEnums},
    {inp_kw_Fabric, inp_SchemaKind::Row, kFabricWords, {}},
    {inp_kw_FailStrain, inp_SchemaKind::Row, kFailStrainWords, {}},
    {inp_kw_FailStress, inp_SchemaKind::Row, kFailStressWords, {}},
    {inp_kw_Failure, inp_SchemaKind::Untouched, inp_wordsEmpty, {}},
    {inp_kw_FailureRatios, inp_SchemaKind::Row, kFailureRatiosWords, {}},
    {inp_kw_FilmProperty, inp_SchemaKind::Row, kFilmPropertyWords, {}},
    {inp_kw_Foam, inp_SchemaKind::Row, kFoamWords, {}},
    {inp_kw_FoamHardening, inp_SchemaKind::Row, kFoamHardeningWords, {}},
    {inp_kw_Foundation, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_GasSpecificHeat, inp_SchemaKind::Row, kGasSpecificHeatWords, {}},
    {inp_kw_Gel, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Hyperelastic, inp_SchemaKind::Row, kHyperelasticWords, kHyperelasticEnums},
    {inp_kw_Hyperfoam, inp_SchemaKind::Row, kHyperfoamWords, kHyperfoamEnums},
    {inp_kw_Hypoelastic, inp_SchemaKind::Row, kHypoelasticWords, {}},
    {inp_kw_Hysteresis, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_InelasticHeatFraction, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_JointedMaterial, inp_SchemaKind::Row, kJointedMaterialWords, {}},
    {inp_kw_JointElasticity, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_JointPlasticity, inp_SchemaKind::Row, inp_wordsEmpty, {}},
    {inp_kw_JouleHeatFraction, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Kappa, inp_SchemaKind::Row, kKappaWords, kKappaEnums},
    {inp_kw_LatentHeat, inp_SchemaKind::Row, kLatentHeatWords, {}},
    {inp_kw_LoadingData, inp_SchemaKind::Row, kLoadingDataWords, kLoadingDataEnums},
    {inp_kw_LowDensityFoam, inp_SchemaKind::Row, kLowDensityFoamWords, kLowDensityFoamEnums},
    {inp_kw_MagneticPermeability, inp_SchemaKind::Row,
     kMagneticPermeabilityWords, kMagneticPermeabilityEnums},
    {inp_kw_MassAdjust, inp_SchemaKind::Row, kMassAdjustWords, {}},
    {inp_kw_Material, inp_SchemaKind::Logic, kMaterialWords, kMaterialEnums},
    {inp_kw_MediaTransport, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_MohrCoulomb, inp_SchemaKind::Row, kMohrCoulombWords, {}},
    {inp_kw_MohrCoulombHardening, inp_SchemaKind::Row, kMohrCoulombHardeningWords, {}},
    {inp_kw_MoistureSwelling, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_MolecularWeight, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_MullinsEffect, inp_SchemaKind::Row, kMullinsEffectWords, {}},
    {inp_kw_NoCompression, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_NonlinearBH, inp_SchemaKind::Row, kNonlinearBHWords, {}},
    {inp_kw_NoTension, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Ornl, inp_SchemaKind::Row, kOrnlWords, {}},
    {inp_kw_PermanentMagnetization, inp_SchemaKind::Row, kPermanentMagnetizationWords, {}},
    {inp_kw_Permeability, inp_SchemaKind::Logic, kPermeabilityWords, kPermeabilityEnums},
    {inp_kw_Piezoelectric, inp_SchemaKind::Row, kPiezoelectricWords, kPiezoelectricEnums},
    {inp_kw_PlanarTestData, inp_SchemaKind::Row, kPlanarTestDataWords, {}},
    {inp_kw_Plastic, inp_SchemaKind::Logic, kPlasticWords, kPlasticEnums},
    {inp_kw_PlasticAxial, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PlasticM1, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PlasticM2, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PlasticTorque, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PorousBulkModuli, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PorousElastic, inp_SchemaKind::Row, kPorousElasticWords, kPorousElasticEnums},
    {inp_kw_PorousFailureCriteria, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_PorousMetalPlasticity, inp_SchemaKind::Row, kPorousMetalPlasticityWords, {}},
    {inp_kw_Potential, inp_SchemaKind::Row, kPotentialWords, {}},
    {inp_kw_ProbabilityDensityFunction, inp_SchemaKind::Row, kProbabilityDensityFunctionWords, {}},
    {inp_kw_RateDependent, inp_SchemaKind::Row, kRateDependentWords, {}},
    {inp_kw_ReactionRate, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_Shear, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_ShearFailure, inp_SchemaKind::Row, kShearFailureWords, kShearFailureEnums},
    {inp_kw_ShearRetention, inp_SchemaKind::Row, kShearRetentionWords, {}},
    {inp_kw_ShearTestData, inp_SchemaKind::Row, kShearTestDataWords, {}},
    {inp_kw_SimpleShearTestData, inp_SchemaKind::NoParameters, inp_wordsEmpty, {}},
    {inp_kw_SofteningRegularization, inp_SchemaKind::Row, kSofteningRegularizationWords, {}},
    {inp_kw_Solubility, inp_SchemaKind::Row, kSolubilityWords, {}},
    {inp_kw_Sorption, inp_SchemaKind::Row, kSorptionWords, kSorptionEnums},
    {inp_kw_SpecificHeat, inp_SchemaKind::Row, kSpecificHeatWords, {}},
    {inp_kw_SurfacePermeability, inp_SchemaKind::Row, kSurfacePermeabilityWords, {}},
    {inp_kw_Swelling, inp_SchemaKind::Row, kSwellingWords, {}},
    {inp_kw_TensileFailure, inp_SchemaKind::Row, kTensileFailureWords, kTensileFailureEnums},
    {inp_kw_TensionCutoff, inp_SchemaKind::Row, kTensionCutoffWords, {}},
    {inp_kw_TensionStiffening, inp_SchemaKind::Row, kTensionStiffeningWords,
     kTensionStiffeningEnums},
    {inp_kw_ThermalExpansion, inp_SchemaKind::Row, kThermalExpansionWords, {}},
    {inp_kw_TriaxialTestData, inp_SchemaKind::Row, kTriaxialTestDataWords, {}},
    {inp_kw_Trs, inp_SchemaKind::Row, kTrsWords, {}},
    {inp_kw_Uniaxial, inp_SchemaKind::Row, kUniaxialWords, {}},
    {inp_kw_UniaxialTestData, inp_SchemaKind::Row, kUniaxialTestDataWords, kUniaxialTestDataEnums},
    {inp_kw_UnloadingData, inp_SchemaKind::Row, kUnloadingDataWords, {}},
    {inp_kw_UserMaterial, inp_SchemaKind::Row, kUserMaterialWords, kUserMaterialEnums},
    {inp_kw_Viscoelastic, inp_SchemaKind::Row, kViscoelasticWords, kViscoelasticEnums},
    {inp_kw_Viscosity, inp_SchemaKind::Row, kViscosityWords, {}},
    {inp_kw_Viscous, inp_SchemaKind::Row, kViscousWords, {}},
    {inp_kw_VoidNucleation, inp_SchemaKind::Row, kVoidNucleationWords, {}},
    {inp_kw_VolumetricTestData, inp_SchemaKind::Row, kVolumetricTestDataWords, {}},
};

// clang-format on

}  // namespace

std::span<inp_SchemaRow const> inp_SchemaMaterialsRows() {
    return kRows;
}
