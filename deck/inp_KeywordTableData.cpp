// The constant table of the deck language: for each keyword its name, number
// and the keywords that may stand directly below it, in the order of each row.
// A keyword without a row in the suboption lists has none. "__model__" is the
// top: what may stand in a deck outside any other keyword.

#include "deck/inp_KeywordTableData.h"

namespace {

// Each list ends with the zero enumerator.
constexpr inp_KeywordEnm k_Amplitude[] = {
    inp_kw_BaselineCorrection, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_AnisotropicHyperelastic[] = {
    inp_kw_MullinsEffect, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Assembly[] = {
    inp_kw_Adjust, inp_kw_ConnectorSection, inp_kw_Coupling, inp_kw_Dashpot, inp_kw_DisplayBody,
    inp_kw_Distributing, inp_kw_DistributingCoupling, inp_kw_Distribution,
    inp_kw_DomainDecomposition, inp_kw_Elset, inp_kw_EmbeddedElement, inp_kw_EndInstance,
    inp_kw_Enrichment, inp_kw_Equation, inp_kw_Fastener, inp_kw_FastenerFailure,
    inp_kw_FastenerProperty, inp_kw_FluidInflator, inp_kw_Foundation, inp_kw_Gap, inp_kw_HeatCap,
    inp_kw_Include, inp_kw_Instance, inp_kw_Interface, inp_kw_Kinematic, inp_kw_KinematicCoupling,
    inp_kw_Mass, inp_kw_MassAdjust, inp_kw_Mpc, inp_kw_NonStructuralMass, inp_kw_Normal,
    inp_kw_Nset, inp_kw_Orientation, inp_kw_IntegratedOutputSection, inp_kw_PreTensionSection,
    inp_kw_RigidBody, inp_kw_RotaryInertia, inp_kw_ShellToSolidCoupling, inp_kw_SlideLine,
    inp_kw_SpotWeld, inp_kw_SpotWeldInteraction, inp_kw_SpotWeldProperty, inp_kw_Spring,
    inp_kw_Submodel, inp_kw_Surface, inp_kw_Tie, inp_kw_Transform, inp_kw_UelProperty, inp_kw_Node,
    inp_kw_Element, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_BeamGeneralSection[] = {
    inp_kw_Axial, inp_kw_BeamAddedInertia, inp_kw_BeamFluidInertia, inp_kw_BeamSectionOffset,
    inp_kw_Centroid, inp_kw_Damping, inp_kw_M1, inp_kw_M2, inp_kw_SectionPoints, inp_kw_ShearCenter,
    inp_kw_ThermalExpansion, inp_kw_Torque, inp_kw_TransverseShearStiffness, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_BeamSection[] = {
    inp_kw_BeamAddedInertia, inp_kw_BeamFluidInertia, inp_kw_DesignVariation,
    inp_kw_TransverseShearStiffness, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_BeamSectionGenerate[] = {
    inp_kw_SectionOrigin, inp_kw_SectionPoints, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Biaxial[] = {
    inp_kw_LoadingData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_BrittleCracking[] = {
    inp_kw_BrittleFailure, inp_kw_BrittleShear, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_CapPlasticity[] = {
    inp_kw_CapCreep, inp_kw_CapHardening, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_CastIronPlasticity[] = {
    inp_kw_CastIronCompressionHardening, inp_kw_CastIronTensionHardening, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Cfd[] = {
    inp_kw_MomentumEquationSolver, inp_kw_PressureEquationSolver, inp_kw_EnergyEquationSolver,
    inp_kw_TurbulenceEquationSolver, inp_kw_TransportEquationSolver, inp_kw_TurbulenceModel,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ChangeFriction[] = {
    inp_kw_Friction, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ClayPlasticity[] = {
    inp_kw_ClayHardening, inp_kw_Potential, inp_kw_SofteningRegularization, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Cload[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_CohesiveSection[] = {
    inp_kw_TransverseShearStiffness, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Concrete[] = {
    inp_kw_FailureRatios, inp_kw_ShearRetention, inp_kw_TensionStiffening, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConcreteDamagedPlasticity[] = {
    inp_kw_ConcreteCompressionDamage, inp_kw_ConcreteCompressionHardening,
    inp_kw_ConcreteTensionDamage, inp_kw_ConcreteTensionStiffening, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorBehavior[] = {
    inp_kw_ConnectorConstitutiveReference, inp_kw_ConnectorDamageInitiation,
    inp_kw_ConnectorDamping, inp_kw_ConnectorDerivedComponent, inp_kw_ConnectorElasticity,
    inp_kw_ConnectorFailure, inp_kw_ConnectorFriction, inp_kw_ConnectorLock,
    inp_kw_ConnectorPlasticity, inp_kw_ConnectorStop, inp_kw_ConnectorUniaxialBehavior,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorDamageEvolution[] = {
    inp_kw_ConnectorPotential, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorDamageInitiation[] = {
    inp_kw_ConnectorPotential, inp_kw_ConnectorDamageEvolution, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorFriction[] = {
    inp_kw_ConnectorContactForce, inp_kw_Friction, inp_kw_ConnectorPotential,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorLock[] = {
    inp_kw_ConnectorPotential, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorPlasticity[] = {
    inp_kw_ConnectorHardening, inp_kw_ConnectorPotential, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorStop[] = {
    inp_kw_ConnectorPotential, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ConnectorUniaxialBehavior[] = {
    inp_kw_LoadingData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Contact[] = {
    inp_kw_ContactClearanceAssignment, inp_kw_ContactControlsAssignment, inp_kw_ContactExclusions,
    inp_kw_ContactFormulation, inp_kw_ContactInclusions, inp_kw_ContactInitializationAssignment,
    inp_kw_ContactPropertyAssignment, inp_kw_ContactStabilization, inp_kw_SurfacePropertyAssignment,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_CoSimulation[] = {
    inp_kw_CoSimulationRegion, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Coupling[] = {
    inp_kw_Kinematic, inp_kw_Distributing, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Creep[] = {
    inp_kw_Ornl, inp_kw_Potential, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_CrushableFoam[] = {
    inp_kw_CrushableFoamHardening, inp_kw_RateDependent, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_DamageInitiation[] = {
    inp_kw_DamageEvolution, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_DamageEvolution[] = {
    inp_kw_DamageStabilization, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Debond[] = {
    inp_kw_FractureCriterion, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Density[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Diffusivity[] = {
    inp_kw_Kappa, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_DirectCyclic[] = {
    inp_kw_TimePoints, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_DiscreteInteractionProperty[] = {
    inp_kw_CohesiveBehavior, inp_kw_ConnectorConstitutiveReference,
    inp_kw_ConnectorDamageInitiation, inp_kw_ConnectorDamping, inp_kw_ConnectorDerivedComponent,
    inp_kw_ConnectorElasticity, inp_kw_ConnectorFailure, inp_kw_ConnectorFriction,
    inp_kw_ConnectorLock, inp_kw_ConnectorPlasticity, inp_kw_ConnectorStop,
    inp_kw_ConnectorUniaxialBehavior, inp_kw_ContactDamping, inp_kw_DamageInitiation,
    inp_kw_Friction, inp_kw_SurfaceBehavior, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_DruckerPrager[] = {
    inp_kw_DruckerPragerHardening, inp_kw_DruckerPragerCreep, inp_kw_RateDependent,
    inp_kw_TriaxialTestData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Elastic[] = {
    inp_kw_DesignVariation, inp_kw_NoCompression, inp_kw_NoTension, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Eos[] = {
    inp_kw_EosShear, inp_kw_DetonationPoint, inp_kw_ReactionRate, inp_kw_TensileFailure,
    inp_kw_EosCompaction, inp_kw_GasSpecificHeat, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_EosShear[] = {
    inp_kw_Trs, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Epjoint[] = {
    inp_kw_JointElasticity, inp_kw_JointPlasticity, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_EulerianInflatorProperty[] = {
    inp_kw_EulerianInflatorMixture, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ExtremeValue[] = {
    inp_kw_ExtremeElementValue, inp_kw_ExtremeNodeValue, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Fabric[] = {
    inp_kw_ShearTestData, inp_kw_BiaxialTestData, inp_kw_UniaxialTestData, inp_kw_Uniaxial,
    inp_kw_Biaxial, inp_kw_Shear, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FastenerProperty[] = {
    inp_kw_FastenerFailure, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FileOutput[] = {
    inp_kw_ElFile, inp_kw_EnergyFile, inp_kw_NodeFile, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FluidBehavior[] = {
    inp_kw_FluidBulkModulus, inp_kw_Capacity, inp_kw_FluidDensity, inp_kw_FluidExpansion,
    inp_kw_MolecularWeight, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FluidInflatorProperty[] = {
    inp_kw_FluidInflatorMixture, inp_kw_EulerianInflatorMixture, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FluidProperty[] = {
    inp_kw_FluidBulkModulus, inp_kw_FluidDensity, inp_kw_FluidExpansion, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FluidPipeSection[] = {
    inp_kw_FluidPipeFlowLoss, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FluidPipeConnectorSection[] = {
    inp_kw_FluidPipeConnectorLoss, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Foam[] = {
    inp_kw_FoamHardening, inp_kw_RateDependent, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_FrameSection[] = {
    inp_kw_BucklingEnvelope, inp_kw_BucklingLength, inp_kw_BucklingReductionFactors,
    inp_kw_PlasticAxial, inp_kw_PlasticM1, inp_kw_PlasticM2, inp_kw_PlasticTorque,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Friction[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Gap[] = {
    inp_kw_ContactDamping, inp_kw_ContactPermeability, inp_kw_GapConductance,
    inp_kw_GapHeatGeneration, inp_kw_GapRadiation, inp_kw_Friction, inp_kw_SurfaceBehavior,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_GasketBehavior[] = {
    inp_kw_Creep, inp_kw_Depvar, inp_kw_Expansion, inp_kw_GasketContactArea,
    inp_kw_GasketElasticity, inp_kw_GasketThicknessBehavior, inp_kw_UserOutputVariables,
    inp_kw_Viscoelastic, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_GasketSection[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_HeatTransfer[] = {
    inp_kw_EnergyEquationSolver, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Hyperelastic[] = {
    inp_kw_BiaxialTestData, inp_kw_DesignVariation, inp_kw_Hysteresis, inp_kw_MullinsEffect,
    inp_kw_PlanarTestData, inp_kw_UniaxialTestData, inp_kw_VolumetricTestData,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Hyperfoam[] = {
    inp_kw_BiaxialTestData, inp_kw_DesignVariation, inp_kw_MullinsEffect, inp_kw_PlanarTestData,
    inp_kw_SimpleShearTestData, inp_kw_UniaxialTestData, inp_kw_VolumetricTestData,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Import[] = {
    inp_kw_ImportControls, inp_kw_ImportElset, inp_kw_ImportNset, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_IncidentWave[] = {
    inp_kw_IncidentWaveReflection, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_IncidentWaveInteraction[] = {
    inp_kw_IncidentWaveReflection, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_IncidentWaveInteractionProperty[] = {
    inp_kw_UndexChargeProperty, inp_kw_ConwepChargeProperty, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_IncidentWaveProperty[] = {
    inp_kw_IncidentWaveFluidProperty, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Instance[] = {
    inp_kw_Adjust, inp_kw_BeamGeneralSection, inp_kw_BeamSection, inp_kw_Centroid,
    inp_kw_CohesiveSection, inp_kw_ConnectorSection, inp_kw_Coupling, inp_kw_Damping,
    inp_kw_Dashpot, inp_kw_DesignShapeVariation, inp_kw_DiscreteSection, inp_kw_Distributing,
    inp_kw_DistributingCoupling, inp_kw_Distribution, inp_kw_DragChain, inp_kw_Elcopy,
    inp_kw_Element, inp_kw_Elgen, inp_kw_Elset, inp_kw_EmbeddedElement, inp_kw_Enrichment,
    inp_kw_Epjoint, inp_kw_Equation, inp_kw_EulerianInflatorProperty, inp_kw_EulerianSection,
    inp_kw_Fastener, inp_kw_FastenerFailure, inp_kw_FastenerProperty, inp_kw_FluidInflator,
    inp_kw_FluidInflatorProperty, inp_kw_FluidProperty, inp_kw_FluidLink, inp_kw_FluidSection,
    inp_kw_Foundation, inp_kw_FrameSection, inp_kw_FluidPipeSection, inp_kw_FluidPipeFlowLoss,
    inp_kw_FluidPipeConnectorSection, inp_kw_FluidPipeConnectorLoss, inp_kw_Gap,
    inp_kw_GasketSection, inp_kw_HeatCap, inp_kw_Import, inp_kw_Include, inp_kw_Interface,
    inp_kw_Its, inp_kw_Joint, inp_kw_Kinematic, inp_kw_KinematicCoupling, inp_kw_Mass, inp_kw_Mpc,
    inp_kw_Ncopy, inp_kw_Nfill, inp_kw_Ngen, inp_kw_Nmap, inp_kw_NodalEnergyRate,
    inp_kw_NodalThickness, inp_kw_Node, inp_kw_NonStructuralMass, inp_kw_Nset, inp_kw_Normal,
    inp_kw_MembraneSection, inp_kw_Orientation, inp_kw_IntegratedOutputSection,
    inp_kw_ParameterShapeVariation, inp_kw_ParticleGenerator, inp_kw_ParticleGeneratorMixture,
    inp_kw_ParticleGeneratorInlet, inp_kw_PipeSoilInteraction, inp_kw_PreTensionSection,
    inp_kw_ProbabilityDensityFunction, inp_kw_Rebar, inp_kw_RebarLayer, inp_kw_Release,
    inp_kw_RigidBody, inp_kw_RigidSurface, inp_kw_RotaryInertia, inp_kw_SolidSection,
    inp_kw_ShellGeneralSection, inp_kw_ShellSection, inp_kw_ShellToSolidCoupling, inp_kw_SpotWeld,
    inp_kw_SpotWeldInteraction, inp_kw_SpotWeldProperty, inp_kw_Spring, inp_kw_Submodel,
    inp_kw_Surface, inp_kw_SurfaceFlaw, inp_kw_SurfaceSection, inp_kw_System, inp_kw_Tie,
    inp_kw_Transform, inp_kw_UelProperty, inp_kw_UserElement, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Interface[] = {
    inp_kw_AsymmetricAxisymmetric, inp_kw_ContactDamping, inp_kw_ContactPermeability,
    inp_kw_Friction, inp_kw_GapConductance, inp_kw_GapHeatGeneration, inp_kw_GapRadiation,
    inp_kw_SurfaceBehavior, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Its[] = {
    inp_kw_Dashpot, inp_kw_Friction, inp_kw_Spring, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Joint[] = {
    inp_kw_Dashpot, inp_kw_Spring, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_LoadCase[] = {
    inp_kw_BaseMotion, inp_kw_ConnectorLoad, inp_kw_ConnectorMotion, inp_kw_Boundary, inp_kw_Cload,
    inp_kw_Dload, inp_kw_Dsload, inp_kw_InertiaRelief, inp_kw_Sload, inp_kw_Temperature,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_LoadingData[] = {
    inp_kw_UnloadingData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_LowDensityFoam[] = {
    inp_kw_UniaxialTestData, inp_kw_VolumetricTestData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MagneticPermeability[] = {
    inp_kw_NonlinearBH, inp_kw_PermanentMagnetization, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Material[] = {
    inp_kw_AnisotropicHyperelastic, inp_kw_AnnealTemperature, inp_kw_AcousticMedium,
    inp_kw_BrittleCracking, inp_kw_CapPlasticity, inp_kw_CastIronPlasticity,
    inp_kw_CharacteristicLength, inp_kw_ClayPlasticity, inp_kw_Concrete,
    inp_kw_ConcreteDamagedPlasticity, inp_kw_Conductivity, inp_kw_Creep, inp_kw_CrushStress,
    inp_kw_CrushStressVelocityFactor, inp_kw_CrushableFoam, inp_kw_DamageInitiation, inp_kw_Damping,
    inp_kw_DeformationPlasticity, inp_kw_Density, inp_kw_Depvar, inp_kw_Dielectric,
    inp_kw_Diffusivity, inp_kw_DruckerPrager, inp_kw_Elastic, inp_kw_ElectricalConductivity,
    inp_kw_Eos, inp_kw_Expansion, inp_kw_Fabric, inp_kw_FailStrain, inp_kw_FailStress,
    inp_kw_Failure, inp_kw_FluidLeakoff, inp_kw_Foam, inp_kw_GapFlow, inp_kw_Gel,
    inp_kw_HeatGeneration, inp_kw_Hyperelastic, inp_kw_Hyperfoam, inp_kw_Hypoelastic,
    inp_kw_Include, inp_kw_InelasticHeatFraction, inp_kw_JointedMaterial, inp_kw_JouleHeatFraction,
    inp_kw_LatentHeat, inp_kw_LowDensityFoam, inp_kw_MagneticPermeability, inp_kw_MohrCoulomb,
    inp_kw_MoistureSwelling, inp_kw_NonlinearBH, inp_kw_PermanentMagnetization, inp_kw_Permeability,
    inp_kw_Piezoelectric, inp_kw_Plastic, inp_kw_PorousBulkModuli, inp_kw_PorousElastic,
    inp_kw_PorousMetalPlasticity, inp_kw_Solubility, inp_kw_Sorption, inp_kw_SpecificHeat,
    inp_kw_Swelling, inp_kw_UserDefinedField, inp_kw_UserMaterial, inp_kw_UserOutputVariables,
    inp_kw_Viscoelastic, inp_kw_Viscosity, inp_kw_Viscous, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MatrixGenerate[] = {
    inp_kw_MatrixOutput, inp_kw_Impedance, inp_kw_Simpedance, inp_kw_MatrixCheck,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MembraneSection[] = {
    inp_kw_DesignVariation, inp_kw_HourglassStiffness, inp_kw_RebarLayer, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Model[] = {
    inp_kw_AcousticWaveFormulation, inp_kw_AdaptiveMeshRefinement, inp_kw_Aqua, inp_kw_Amplitude,
    inp_kw_Assembly, inp_kw_Boundary, inp_kw_Capacity, inp_kw_CavityDefinition, inp_kw_Clearance,
    inp_kw_ConnectorBehavior, inp_kw_ConnectorMotion, inp_kw_ConstraintControls, inp_kw_Contact,
    inp_kw_ContactClearance, inp_kw_ContactInitializationData, inp_kw_ContactPair,
    inp_kw_CyclicSymmetryModel, inp_kw_DesignParameter, inp_kw_DesignValue, inp_kw_Diagnostics,
    inp_kw_DiscreteInteraction, inp_kw_DiscreteInteractionProperty, inp_kw_Distribution,
    inp_kw_DistributionTable, inp_kw_DsaControls, inp_kw_Elset, inp_kw_EndAssembly, inp_kw_EndPart,
    inp_kw_EndStep, inp_kw_Fastener, inp_kw_FastenerFailure, inp_kw_FastenerProperty,
    inp_kw_FileFormat, inp_kw_FilmProperty, inp_kw_Filter, inp_kw_FluidBehavior,
    inp_kw_FluidBulkModulus, inp_kw_FluidCavity, inp_kw_FluidDensity, inp_kw_FluidExchange,
    inp_kw_FluidExchangeProperty, inp_kw_FluidExpansion, inp_kw_Foundation, inp_kw_GasketBehavior,
    inp_kw_Heading, inp_kw_ImpedanceProperty, inp_kw_Imperfection, inp_kw_Import,
    inp_kw_IncidentWaveInteractionProperty, inp_kw_IncidentWaveProperty, inp_kw_Include,
    inp_kw_InitialConditions, inp_kw_MapSolution, inp_kw_Mass, inp_kw_MassAdjust, inp_kw_Material,
    inp_kw_MatrixAssemble, inp_kw_MatrixInput, inp_kw_MolecularWeight, inp_kw_Nset,
    inp_kw_Parameter, inp_kw_Part, inp_kw_ParticleGenerator, inp_kw_ParticleGeneratorMixture,
    inp_kw_ParticleGeneratorInlet, inp_kw_PeriodicMedia, inp_kw_PostOutput, inp_kw_Preprint,
    inp_kw_ProbabilityDensityFunction, inp_kw_PsdDefinition, inp_kw_PhysicalConstants,
    inp_kw_RadiationSymmetry, inp_kw_Restart, inp_kw_RotaryInertia, inp_kw_SectionControls,
    inp_kw_SpatialDistribution, inp_kw_Spectrum, inp_kw_SpotWeldInteraction,
    inp_kw_SpotWeldProperty, inp_kw_Step, inp_kw_Subcycling, inp_kw_SubstructureCopy,
    inp_kw_SubstructureDelete, inp_kw_SubstructureDirectory, inp_kw_SubstructureProperty,
    inp_kw_SurfaceInteraction, inp_kw_SurfaceProperty, inp_kw_SurfaceSmoothing,
    inp_kw_SymmetricModelGeneration, inp_kw_SymmetricResultsTransfer, inp_kw_TimePoints,
    inp_kw_UelProperty, inp_kw_UserElement, inp_kw_Wave, inp_kw_Wind, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MohrCoulomb[] = {
    inp_kw_MohrCoulombHardening, inp_kw_TensionCutoff, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MoistureSwelling[] = {
    inp_kw_Ratios, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_MullinsEffect[] = {
    inp_kw_BiaxialTestData, inp_kw_PlanarTestData, inp_kw_UniaxialTestData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Orientation[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Output[] = {
    inp_kw_ContactOutput, inp_kw_ElementOutput, inp_kw_EnergyOutput, inp_kw_IncrementationOutput,
    inp_kw_ModalOutput, inp_kw_NodeOutput, inp_kw_RadiationOutput, inp_kw_IntegratedOutput,
    inp_kw_SurfaceOutput, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Part[] = {
    inp_kw_Adjust, inp_kw_BeamGeneralSection, inp_kw_BeamSection, inp_kw_Centroid,
    inp_kw_CohesiveSection, inp_kw_ConnectorSection, inp_kw_Coupling, inp_kw_Damping,
    inp_kw_Dashpot, inp_kw_DesignShapeVariation, inp_kw_DiscreteSection, inp_kw_Distributing,
    inp_kw_DistributingCoupling, inp_kw_Distribution, inp_kw_DragChain, inp_kw_Elcopy,
    inp_kw_Element, inp_kw_Elgen, inp_kw_Elset, inp_kw_EmbeddedElement, inp_kw_Enrichment,
    inp_kw_Epjoint, inp_kw_Equation, inp_kw_EulerianInflatorProperty, inp_kw_EulerianSection,
    inp_kw_Fastener, inp_kw_FastenerFailure, inp_kw_FastenerProperty, inp_kw_FluidInflator,
    inp_kw_FluidInflatorProperty, inp_kw_FluidProperty, inp_kw_FluidLink, inp_kw_FluidSection,
    inp_kw_Foundation, inp_kw_FrameSection, inp_kw_FluidPipeSection, inp_kw_FluidPipeFlowLoss,
    inp_kw_FluidPipeConnectorSection, inp_kw_FluidPipeConnectorLoss, inp_kw_Gap,
    inp_kw_GasketSection, inp_kw_HeatCap, inp_kw_Include, inp_kw_Interface, inp_kw_Its,
    inp_kw_Joint, inp_kw_Kinematic, inp_kw_KinematicCoupling, inp_kw_Mass, inp_kw_MembraneSection,
    inp_kw_Mpc, inp_kw_Ncopy, inp_kw_Nfill, inp_kw_Ngen, inp_kw_Nmap, inp_kw_NodalEnergyRate,
    inp_kw_NodalThickness, inp_kw_Node, inp_kw_NonStructuralMass, inp_kw_Normal, inp_kw_Nset,
    inp_kw_Orientation, inp_kw_IntegratedOutputSection, inp_kw_ParameterShapeVariation,
    inp_kw_ParticleGenerator, inp_kw_ParticleGeneratorMixture, inp_kw_ParticleGeneratorInlet,
    inp_kw_PipeSoilInteraction, inp_kw_PreTensionSection, inp_kw_ProbabilityDensityFunction,
    inp_kw_Rebar, inp_kw_RebarLayer, inp_kw_Release, inp_kw_RigidBody, inp_kw_RigidSurface,
    inp_kw_RotaryInertia, inp_kw_SolidSection, inp_kw_ShellGeneralSection, inp_kw_ShellSection,
    inp_kw_ShellToSolidCoupling, inp_kw_SpotWeld, inp_kw_SpotWeldInteraction,
    inp_kw_SpotWeldProperty, inp_kw_Spring, inp_kw_Submodel, inp_kw_Surface, inp_kw_SurfaceFlaw,
    inp_kw_SurfaceSection, inp_kw_System, inp_kw_Tie, inp_kw_Transform, inp_kw_UelProperty,
    inp_kw_UserElement, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ParticleGenerator[] = {
    inp_kw_ParticleGeneratorInlet, inp_kw_ParticleGeneratorMixture, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_PipeSoilInteraction[] = {
    inp_kw_PipeSoilStiffness, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Plastic[] = {
    inp_kw_CycledPlastic, inp_kw_CyclicHardening, inp_kw_DesignVariation, inp_kw_Ornl,
    inp_kw_Potential, inp_kw_RateDependent, inp_kw_ShearFailure, inp_kw_TensileFailure,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_PorousMetalPlasticity[] = {
    inp_kw_PorousFailureCriteria, inp_kw_VoidNucleation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_PostOutput[] = {
    inp_kw_ElFile, inp_kw_ElPrint, inp_kw_Elset, inp_kw_EnergyFile, inp_kw_EnergyPrint,
    inp_kw_Field, inp_kw_FileOutput, inp_kw_FileFormat, inp_kw_Include, inp_kw_ModalFile,
    inp_kw_ModalPrint, inp_kw_NodeFile, inp_kw_NodePrint, inp_kw_Nset, inp_kw_Output, inp_kw_Print,
    inp_kw_RadiationFile, inp_kw_RadiationPrint, inp_kw_TracerParticle, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_RadiationSymmetry[] = {
    inp_kw_Cyclic, inp_kw_Periodic, inp_kw_Reflection, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_RigidBody[] = {
    inp_kw_DesignVariation, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Shear[] = {
    inp_kw_LoadingData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ShellGeneralSection[] = {
    inp_kw_Damping, inp_kw_HourglassStiffness, inp_kw_TransverseShearStiffness,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_ShellSection[] = {
    inp_kw_DesignVariation, inp_kw_HourglassStiffness, inp_kw_TransverseShearStiffness,
    inp_kw_RebarLayer, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SolidSection[] = {
    inp_kw_DesignVariation, inp_kw_HourglassStiffness, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SpotWeldInteraction[] = {
    inp_kw_SpotWeld, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Step[] = {
    inp_kw_AcousticFlowVelocity, inp_kw_AdaptiveMesh, inp_kw_AdaptiveMeshConstraint,
    inp_kw_AdaptiveMeshControls, inp_kw_Amplitude, inp_kw_Anneal, inp_kw_BaseMotion,
    inp_kw_BeamSectionGenerate, inp_kw_Boundary, inp_kw_Buckle, inp_kw_BulkViscosity,
    inp_kw_Cecharge, inp_kw_Cecurrent, inp_kw_CAddedMass, inp_kw_Cfilm, inp_kw_Cflux, inp_kw_Cflow,
    inp_kw_ChangeFriction, inp_kw_Clearance, inp_kw_Cload, inp_kw_ComplexFrequency,
    inp_kw_CompositeModalDamping, inp_kw_ConnectorLoad, inp_kw_ConnectorMotion,
    inp_kw_ConstraintControls, inp_kw_Contact, inp_kw_ContactControls, inp_kw_ContactFile,
    inp_kw_ContactInterference, inp_kw_ContactPair, inp_kw_ContactPrint, inp_kw_ContactResponse,
    inp_kw_ContourIntegral, inp_kw_Controls, inp_kw_Correlation, inp_kw_CoSimulation,
    inp_kw_CoSimulationControls, inp_kw_CoupledTemperatureDisplacement,
    inp_kw_CoupledThermalElectrical, inp_kw_Cradiate, inp_kw_CreepStrainRateControl,
    inp_kw_DAddedMass, inp_kw_DampingControls, inp_kw_Debond, inp_kw_Decharge, inp_kw_Decurrent,
    inp_kw_DEmPotential, inp_kw_DesignResponse, inp_kw_Dflow, inp_kw_Dflux, inp_kw_Diagnostics,
    inp_kw_DirectCyclic, inp_kw_DiscreteInteraction, inp_kw_DiscreteInteractionProperty,
    inp_kw_Dload, inp_kw_DsaControls, inp_kw_Dsecharge, inp_kw_Dsecurrent, inp_kw_Dsflow,
    inp_kw_Dsflux, inp_kw_Dsload, inp_kw_Dynamic, inp_kw_DynamicTemperatureDisplacement,
    inp_kw_Electromagnetic, inp_kw_ElementMatrixOutput, inp_kw_ElementOperatorOutput,
    inp_kw_ElementResponse, inp_kw_ElementRecoveryMatrix, inp_kw_ElFile, inp_kw_ElPrint,
    inp_kw_Elset, inp_kw_EndLoadCase, inp_kw_EnergyFile, inp_kw_EnergyPrint,
    inp_kw_EnrichmentActivation, inp_kw_EulerianBoundary, inp_kw_EulerianMeshMotion,
    inp_kw_ExtremeValue, inp_kw_Field, inp_kw_FileOutput, inp_kw_FileFormat, inp_kw_Film,
    inp_kw_FixedMassScaling, inp_kw_FlexibleBody, inp_kw_Flow, inp_kw_FluidExchangeActivation,
    inp_kw_FluidExchangeInteraction, inp_kw_FluidInflatorActivation,
    inp_kw_FluidInflatorInteraction, inp_kw_FluidFlux, inp_kw_Frequency, inp_kw_Geostatic,
    inp_kw_GlobalDamping, inp_kw_HeatTransfer, inp_kw_Impedance, inp_kw_IncidentWave,
    inp_kw_LoadCase, inp_kw_MassDiffusion, inp_kw_IncidentWaveInteraction, inp_kw_Include,
    inp_kw_InertiaRelief, inp_kw_Magnetostatic, inp_kw_MatrixCheck, inp_kw_MassFlowRate,
    inp_kw_MatrixGenerate, inp_kw_MatrixOutput, inp_kw_MediaTransport, inp_kw_ModalDamping,
    inp_kw_ModalDynamic, inp_kw_ModalFile, inp_kw_ModalPrint, inp_kw_ModelChange, inp_kw_Monitor,
    inp_kw_Motion, inp_kw_NodeFile, inp_kw_NodePrint, inp_kw_NodeResponse, inp_kw_Nset,
    inp_kw_Output, inp_kw_ParticleGeneratorFlow, inp_kw_PressurePenetration, inp_kw_PressureStress,
    inp_kw_PrestressHold, inp_kw_Print, inp_kw_Radiate, inp_kw_RadiationFile, inp_kw_RadiationPrint,
    inp_kw_RadiationSymmetry, inp_kw_RadiationViewfactor, inp_kw_RandomResponse,
    inp_kw_RemeshTrigger, inp_kw_ResponseSpectrum, inp_kw_Restart, inp_kw_RetainedNodalDofs,
    inp_kw_SectionFile, inp_kw_SectionPrint, inp_kw_SelectEigenmodes,
    inp_kw_SelectCyclicSymmetryModes, inp_kw_Sfilm, inp_kw_Sflow, inp_kw_Simpedance, inp_kw_Sload,
    inp_kw_Soils, inp_kw_SolutionTechnique, inp_kw_SolverControls, inp_kw_Sradiate, inp_kw_Static,
    inp_kw_SteadyStateCriteria, inp_kw_SteadyStateDetection, inp_kw_SteadyStateDynamics,
    inp_kw_SteadyStateTransport, inp_kw_SubstructureGenerate, inp_kw_SubstructureLoadCase,
    inp_kw_SubstructureMatrixOutput, inp_kw_SubstructurePath, inp_kw_SurfaceInteraction,
    inp_kw_Temperature, inp_kw_TorquePrint, inp_kw_TracerParticle, inp_kw_TransportVelocity,
    inp_kw_VariableMassScaling, inp_kw_ViewfactorOutput, inp_kw_Visco, inp_kw_DesignVariation,
    inp_kw_Cfd, inp_kw_FluidBoundary, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SubstructureGenerate[] = {
    inp_kw_RetainedEigenModes, inp_kw_RetainedNodalDofs, inp_kw_SubstructureLoadCase,
    inp_kw_SubstructureMatrixOutput, inp_kw_ElementRecoveryMatrix, inp_kw_MatrixCheck,
    inp_kw_FlexibleBody, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SubstructureLoadCase[] = {
    inp_kw_Boundary, inp_kw_Cload, inp_kw_Dload, inp_kw_Dsload, inp_kw_Sload, inp_kw_Temperature,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SubstructureProperty[] = {
    inp_kw_Damping, inp_kw_DampingControls, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SurfaceInteraction[] = {
    inp_kw_Bond, inp_kw_CohesiveBehavior, inp_kw_ContactDamping, inp_kw_ContactPermeability,
    inp_kw_DamageInitiation, inp_kw_FractureCriterion, inp_kw_Friction, inp_kw_SurfaceBehavior,
    inp_kw_GapConductance, inp_kw_GapElectricalConductance, inp_kw_GapHeatGeneration,
    inp_kw_GapRadiation, inp_kw_Blockage, inp_kw_SurfacePermeability, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SurfaceProperty[] = {
    inp_kw_Emissivity, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_SurfaceSection[] = {
    inp_kw_RebarLayer, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Swelling[] = {
    inp_kw_Ratios, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Uniaxial[] = {
    inp_kw_LoadingData, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_UserElement[] = {
    inp_kw_Matrix, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Viscoelastic[] = {
    inp_kw_CombinedTestData, inp_kw_ShearTestData, inp_kw_Trs, inp_kw_VolumetricTestData,
    inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Viscosity[] = {
    inp_kw_Trs, inp_kw_UndefinedKeyword
};
constexpr inp_KeywordEnm k_Viscous[] = {
    inp_kw_Potential, inp_kw_UndefinedKeyword
};

}  // namespace

const inp_KeywordTableRow inp_keywordTableRows[] = {
    {"undefined keyword", inp_kw_UndefinedKeyword, nullptr},
    {"eof", inp_kw_Eof, nullptr},
    {"heading", inp_kw_Heading, nullptr},
    {"nfill", inp_kw_Nfill, nullptr},
    {"node", inp_kw_Node, nullptr},
    {"ngen", inp_kw_Ngen, nullptr},
    {"nset", inp_kw_Nset, nullptr},
    {"element", inp_kw_Element, nullptr},
    {"elgen", inp_kw_Elgen, nullptr},
    {"elset", inp_kw_Elset, nullptr},
    {"system", inp_kw_System, nullptr},
    {"restart", inp_kw_Restart, nullptr},
    {"nmap", inp_kw_Nmap, nullptr},
    {"ncopy", inp_kw_Ncopy, nullptr},
    {"elcopy", inp_kw_Elcopy, nullptr},
    {"physicalconstants", inp_kw_PhysicalConstants, nullptr},
    {"import", inp_kw_Import, k_Import},
    {"importelset", inp_kw_ImportElset, nullptr},
    {"importnset", inp_kw_ImportNset, nullptr},
    {"symmetricmodelgeneration", inp_kw_SymmetricModelGeneration, nullptr},
    {"initialconditions", inp_kw_InitialConditions, nullptr},
    {"symmetricresultstransfer", inp_kw_SymmetricResultsTransfer, nullptr},
    {"importcontrols", inp_kw_ImportControls, nullptr},
    {"mapsolution", inp_kw_MapSolution, nullptr},
    {"normal", inp_kw_Normal, nullptr},
    {"transform", inp_kw_Transform, nullptr},
    {"surfaceflaw", inp_kw_SurfaceFlaw, nullptr},
    {"nodalenergyrate", inp_kw_NodalEnergyRate, nullptr},
    {"nodalthickness", inp_kw_NodalThickness, nullptr},
    {"clearance", inp_kw_Clearance, nullptr},
    {"imperfection", inp_kw_Imperfection, nullptr},
    {"parametershapevariation", inp_kw_ParameterShapeVariation, nullptr},
    {"tracerparticle", inp_kw_TracerParticle, nullptr},
    {"beamsection", inp_kw_BeamSection, k_BeamSection},
    {"transverseshearstiffness", inp_kw_TransverseShearStiffness, nullptr},
    {"foundation", inp_kw_Foundation, nullptr},
    {"solidsection", inp_kw_SolidSection, k_SolidSection},
    {"dashpot", inp_kw_Dashpot, nullptr},
    {"shellsection", inp_kw_ShellSection, k_ShellSection},
    {"friction", inp_kw_Friction, k_Friction},
    {"shellgeneralsection", inp_kw_ShellGeneralSection, k_ShellGeneralSection},
    {"beamgeneralsection", inp_kw_BeamGeneralSection, k_BeamGeneralSection},
    {"surfaceinteraction", inp_kw_SurfaceInteraction, k_SurfaceInteraction},
    {"rebar", inp_kw_Rebar, nullptr},
    {"rigidsurface", inp_kw_RigidSurface, nullptr},
    {"slideline", inp_kw_SlideLine, nullptr},
    {"axial", inp_kw_Axial, nullptr},
    {"m1", inp_kw_M1, nullptr},
    {"m2", inp_kw_M2, nullptr},
    {"torque", inp_kw_Torque, nullptr},
    {"thermalexpansion", inp_kw_ThermalExpansion, nullptr},
    {"sectionpoints", inp_kw_SectionPoints, nullptr},
    {"dragchain", inp_kw_DragChain, nullptr},
    {"gap", inp_kw_Gap, k_Gap},
    {"surfacebehavior", inp_kw_SurfaceBehavior, nullptr},
    {"gapconductance", inp_kw_GapConductance, nullptr},
    {"gapradiation", inp_kw_GapRadiation, nullptr},
    {"its", inp_kw_Its, k_Its},
    {"spring", inp_kw_Spring, nullptr},
    {"mass", inp_kw_Mass, nullptr},
    {"surfaceproperty", inp_kw_SurfaceProperty, k_SurfaceProperty},
    {"userelement", inp_kw_UserElement, k_UserElement},
    {"emissivity", inp_kw_Emissivity, nullptr},
    {"jointelasticity", inp_kw_JointElasticity, nullptr},
    {"jointplasticity", inp_kw_JointPlasticity, nullptr},
    {"uelproperty", inp_kw_UelProperty, nullptr},
    {"matrix", inp_kw_Matrix, nullptr},
    {"asymmetric-axisymmetric", inp_kw_AsymmetricAxisymmetric, nullptr},
    {"interface", inp_kw_Interface, k_Interface},
    {"rotaryinertia", inp_kw_RotaryInertia, nullptr},
    {"hourglassstiffness", inp_kw_HourglassStiffness, nullptr},
    {"joint", inp_kw_Joint, k_Joint},
    {"epjoint", inp_kw_Epjoint, k_Epjoint},
    {"gapheatgeneration", inp_kw_GapHeatGeneration, nullptr},
    {"gapelectricalconductance", inp_kw_GapElectricalConductance, nullptr},
    {"rigidbody", inp_kw_RigidBody, k_RigidBody},
    {"centroid", inp_kw_Centroid, nullptr},
    {"shearcenter", inp_kw_ShearCenter, nullptr},
    {"fluidproperty", inp_kw_FluidProperty, k_FluidProperty},
    {"fluidexpansion", inp_kw_FluidExpansion, nullptr},
    {"fluiddensity", inp_kw_FluidDensity, nullptr},
    {"fluidbulkmodulus", inp_kw_FluidBulkModulus, nullptr},
    {"fluidlink", inp_kw_FluidLink, nullptr},
    {"membranesection", inp_kw_MembraneSection, k_MembraneSection},
    {"step", inp_kw_Step, k_Step},
    {"endstep", inp_kw_EndStep, nullptr},
    {"static", inp_kw_Static, nullptr},
    {"dynamic", inp_kw_Dynamic, nullptr},
    {"modaldynamic", inp_kw_ModalDynamic, nullptr},
    {"directcyclic", inp_kw_DirectCyclic, k_DirectCyclic},
    {"heattransfer", inp_kw_HeatTransfer, k_HeatTransfer},
    {"visco", inp_kw_Visco, nullptr},
    {"responsespectrum", inp_kw_ResponseSpectrum, nullptr},
    {"frequency", inp_kw_Frequency, nullptr},
    {"geostatic", inp_kw_Geostatic, nullptr},
    {"soils", inp_kw_Soils, nullptr},
    {"buckle", inp_kw_Buckle, nullptr},
    {"coupledtemperature-displacement", inp_kw_CoupledTemperatureDisplacement, nullptr},
    {"steadystatedynamics", inp_kw_SteadyStateDynamics, nullptr},
    {"randomresponse", inp_kw_RandomResponse, nullptr},
    {"coupledthermal-electrical", inp_kw_CoupledThermalElectrical, nullptr},
    {"contactcontrols", inp_kw_ContactControls, nullptr},
    {"electromagnetic", inp_kw_Electromagnetic, nullptr},
    {"massdiffusion", inp_kw_MassDiffusion, nullptr},
    {"controls", inp_kw_Controls, nullptr},
    {"creepstrainratecontrol", inp_kw_CreepStrainRateControl, nullptr},
    {"anneal", inp_kw_Anneal, nullptr},
    {"radiationviewfactor", inp_kw_RadiationViewfactor, nullptr},
    {"radiationsymmetry", inp_kw_RadiationSymmetry, k_RadiationSymmetry},
    {"reflection", inp_kw_Reflection, nullptr},
    {"periodic", inp_kw_Periodic, nullptr},
    {"cyclic", inp_kw_Cyclic, nullptr},
    {"motion", inp_kw_Motion, nullptr},
    {"steadystatetransport", inp_kw_SteadyStateTransport, nullptr},
    {"amplitude", inp_kw_Amplitude, k_Amplitude},
    {"spectrum", inp_kw_Spectrum, nullptr},
    {"preprint", inp_kw_Preprint, nullptr},
    {"periodicmedia", inp_kw_PeriodicMedia, nullptr},
    {"psd-definition", inp_kw_PsdDefinition, nullptr},
    {"orientation", inp_kw_Orientation, k_Orientation},
    {"impedanceproperty", inp_kw_ImpedanceProperty, nullptr},
    {"baselinecorrection", inp_kw_BaselineCorrection, nullptr},
    {"filmproperty", inp_kw_FilmProperty, nullptr},
    {"complexfrequency", inp_kw_ComplexFrequency, nullptr},
    {"cload", inp_kw_Cload, k_Cload},
    {"dload", inp_kw_Dload, nullptr},
    {"temperature", inp_kw_Temperature, nullptr},
    {"field", inp_kw_Field, nullptr},
    {"cflux", inp_kw_Cflux, nullptr},
    {"dflux", inp_kw_Dflux, nullptr},
    {"film", inp_kw_Film, nullptr},
    {"radiate", inp_kw_Radiate, nullptr},
    {"debond", inp_kw_Debond, k_Debond},
    {"dflow", inp_kw_Dflow, nullptr},
    {"flow", inp_kw_Flow, nullptr},
    {"cflow", inp_kw_Cflow, nullptr},
    {"modelchange", inp_kw_ModelChange, nullptr},
    {"basemotion", inp_kw_BaseMotion, nullptr},
    {"changefriction", inp_kw_ChangeFriction, k_ChangeFriction},
    {"correlation", inp_kw_Correlation, nullptr},
    {"prestresshold", inp_kw_PrestressHold, nullptr},
    {"contactinterference", inp_kw_ContactInterference, nullptr},
    {"sload", inp_kw_Sload, nullptr},
    {"energyprint", inp_kw_EnergyPrint, nullptr},
    {"elprint", inp_kw_ElPrint, nullptr},
    {"nodeprint", inp_kw_NodePrint, nullptr},
    {"modalprint", inp_kw_ModalPrint, nullptr},
    {"energyfile", inp_kw_EnergyFile, nullptr},
    {"elfile", inp_kw_ElFile, nullptr},
    {"nodefile", inp_kw_NodeFile, nullptr},
    {"modalfile", inp_kw_ModalFile, nullptr},
    {"fileformat", inp_kw_FileFormat, nullptr},
    {"print", inp_kw_Print, nullptr},
    {"substructurepath", inp_kw_SubstructurePath, nullptr},
    {"fileoutput", inp_kw_FileOutput, k_FileOutput},
    {"monitor", inp_kw_Monitor, nullptr},
    {"elementmatrixoutput", inp_kw_ElementMatrixOutput, nullptr},
    {"contactprint", inp_kw_ContactPrint, nullptr},
    {"contactfile", inp_kw_ContactFile, nullptr},
    {"sectionprint", inp_kw_SectionPrint, nullptr},
    {"sectionfile", inp_kw_SectionFile, nullptr},
    {"adaptivemesh", inp_kw_AdaptiveMesh, nullptr},
    {"adaptivemeshcontrols", inp_kw_AdaptiveMeshControls, nullptr},
    {"adaptivemeshconstraint", inp_kw_AdaptiveMeshConstraint, nullptr},
    {"adjust", inp_kw_Adjust, nullptr},
    {"dynamictemperature-displacement", inp_kw_DynamicTemperatureDisplacement, nullptr},
    {"impedance", inp_kw_Impedance, nullptr},
    {"simpedance", inp_kw_Simpedance, nullptr},
    {"substructuregenerate", inp_kw_SubstructureGenerate, k_SubstructureGenerate},
    {"aqua", inp_kw_Aqua, nullptr},
    {"wave", inp_kw_Wave, nullptr},
    {"wind", inp_kw_Wind, nullptr},
    {"elementrecoverymatrix", inp_kw_ElementRecoveryMatrix, nullptr},
    {"fluidcavity", inp_kw_FluidCavity, nullptr},
    {"fluidbehavior", inp_kw_FluidBehavior, k_FluidBehavior},
    {"capacity", inp_kw_Capacity, nullptr},
    {"molecularweight", inp_kw_MolecularWeight, nullptr},
    {"fluidexchange", inp_kw_FluidExchange, nullptr},
    {"fluidexchangeproperty", inp_kw_FluidExchangeProperty, nullptr},
    {"fluidexchangeactivation", inp_kw_FluidExchangeActivation, nullptr},
    {"fluidexchangeinteraction", inp_kw_FluidExchangeInteraction, nullptr},
    {"mediatransport", inp_kw_MediaTransport, nullptr},
    {"retainednodaldofs", inp_kw_RetainedNodalDofs, nullptr},
    {"substructuredelete", inp_kw_SubstructureDelete, nullptr},
    {"substructurecopy", inp_kw_SubstructureCopy, nullptr},
    {"substructureloadcase", inp_kw_SubstructureLoadCase, k_SubstructureLoadCase},
    {"substructurematrixoutput", inp_kw_SubstructureMatrixOutput, nullptr},
    {"substructuredirectory", inp_kw_SubstructureDirectory, nullptr},
    {"substructureproperty", inp_kw_SubstructureProperty, k_SubstructureProperty},
    {"retainedeigenmodes", inp_kw_RetainedEigenModes, nullptr},
    {"fluidinflator", inp_kw_FluidInflator, nullptr},
    {"fluidinflatorproperty", inp_kw_FluidInflatorProperty, k_FluidInflatorProperty},
    {"fluidinflatormixture", inp_kw_FluidInflatorMixture, nullptr},
    {"fluidinflatoractivation", inp_kw_FluidInflatorActivation, nullptr},
    {"fluidinflatorinteraction", inp_kw_FluidInflatorInteraction, nullptr},
    {"blockage", inp_kw_Blockage, nullptr},
    {"eulerianinflatormixture", inp_kw_EulerianInflatorMixture, nullptr},
    {"eulerianinflatorproperty", inp_kw_EulerianInflatorProperty, k_EulerianInflatorProperty},
    {"euleriansection", inp_kw_EulerianSection, nullptr},
    {"surfacepermeability", inp_kw_SurfacePermeability, nullptr},
    {"boundary", inp_kw_Boundary, nullptr},
    {"mpc", inp_kw_Mpc, nullptr},
    {"equation", inp_kw_Equation, nullptr},
    {"release", inp_kw_Release, nullptr},
    {"kinematiccoupling", inp_kw_KinematicCoupling, nullptr},
    {"connectormotion", inp_kw_ConnectorMotion, nullptr},
    {"embeddedelement", inp_kw_EmbeddedElement, nullptr},
    {"coupling", inp_kw_Coupling, k_Coupling},
    {"kinematic", inp_kw_Kinematic, nullptr},
    {"distributing", inp_kw_Distributing, nullptr},
    {"submodel", inp_kw_Submodel, nullptr},
    {"integratedoutputsection", inp_kw_IntegratedOutputSection, nullptr},
    {"nonstructuralmass", inp_kw_NonStructuralMass, nullptr},
    {"loadcase", inp_kw_LoadCase, k_LoadCase},
    {"endloadcase", inp_kw_EndLoadCase, nullptr},
    {"postoutput", inp_kw_PostOutput, k_PostOutput},
    {"contourintegral", inp_kw_ContourIntegral, nullptr},
    {"modaldamping", inp_kw_ModalDamping, nullptr},
    {"solutiontechnique", inp_kw_SolutionTechnique, nullptr},
    {"torqueprint", inp_kw_TorquePrint, nullptr},
    {"connectorbehavior", inp_kw_ConnectorBehavior, k_ConnectorBehavior},
    {"contactpair", inp_kw_ContactPair, nullptr},
    {"bulkviscosity", inp_kw_BulkViscosity, nullptr},
    {"cavitydefinition", inp_kw_CavityDefinition, nullptr},
    {"bond", inp_kw_Bond, nullptr},
    {"include", inp_kw_Include, nullptr},
    {"pre-tensionsection", inp_kw_PreTensionSection, nullptr},
    {"gasketsection", inp_kw_GasketSection, k_GasketSection},
    {"gasketbehavior", inp_kw_GasketBehavior, k_GasketBehavior},
    {"framesection", inp_kw_FrameSection, k_FrameSection},
    {"plasticaxial", inp_kw_PlasticAxial, nullptr},
    {"plasticm1", inp_kw_PlasticM1, nullptr},
    {"plasticm2", inp_kw_PlasticM2, nullptr},
    {"plastictorque", inp_kw_PlasticTorque, nullptr},
    {"sectioncontrols", inp_kw_SectionControls, nullptr},
    {"distributingcoupling", inp_kw_DistributingCoupling, nullptr},
    {"heatcap", inp_kw_HeatCap, nullptr},
    {"connectorsection", inp_kw_ConnectorSection, nullptr},
    {"contactdamping", inp_kw_ContactDamping, nullptr},
    {"pipe-soilinteraction", inp_kw_PipeSoilInteraction, k_PipeSoilInteraction},
    {"incidentwave", inp_kw_IncidentWave, k_IncidentWave},
    {"incidentwaveproperty", inp_kw_IncidentWaveProperty, k_IncidentWaveProperty},
    {"incidentwavereflection", inp_kw_IncidentWaveReflection, nullptr},
    {"incidentwavefluidproperty", inp_kw_IncidentWaveFluidProperty, nullptr},
    {"surfacesection", inp_kw_SurfaceSection, k_SurfaceSection},
    {"rebarlayer", inp_kw_RebarLayer, nullptr},
    {"acousticwaveformulation", inp_kw_AcousticWaveFormulation, nullptr},
    {"cohesivesection", inp_kw_CohesiveSection, k_CohesiveSection},
    {"incidentwaveinteraction", inp_kw_IncidentWaveInteraction, k_IncidentWaveInteraction},
    {"incidentwaveinteractionproperty", inp_kw_IncidentWaveInteractionProperty, k_IncidentWaveInteractionProperty},
    {"undexchargeproperty", inp_kw_UndexChargeProperty, nullptr},
    {"cohesivebehavior", inp_kw_CohesiveBehavior, nullptr},
    {"enrichment", inp_kw_Enrichment, nullptr},
    {"enrichmentactivation", inp_kw_EnrichmentActivation, nullptr},
    {"conwepchargeproperty", inp_kw_ConwepChargeProperty, nullptr},
    {"bucklingenvelope", inp_kw_BucklingEnvelope, nullptr},
    {"bucklinglength", inp_kw_BucklingLength, nullptr},
    {"bucklingreductionfactors", inp_kw_BucklingReductionFactors, nullptr},
    {"extremevalue", inp_kw_ExtremeValue, k_ExtremeValue},
    {"extremeelementvalue", inp_kw_ExtremeElementValue, nullptr},
    {"extremenodevalue", inp_kw_ExtremeNodeValue, nullptr},
    {"selecteigenmodes", inp_kw_SelectEigenmodes, nullptr},
    {"fastener", inp_kw_Fastener, nullptr},
    {"cyclicsymmetrymodel", inp_kw_CyclicSymmetryModel, nullptr},
    {"tie", inp_kw_Tie, nullptr},
    {"remeshtrigger", inp_kw_RemeshTrigger, nullptr},
    {"selectcyclicsymmetrymodes", inp_kw_SelectCyclicSymmetryModes, nullptr},
    {"surface", inp_kw_Surface, nullptr},
    {"fastenerfailure", inp_kw_FastenerFailure, nullptr},
    {"constraintcontrols", inp_kw_ConstraintControls, nullptr},
    {"shelltosolidcoupling", inp_kw_ShellToSolidCoupling, nullptr},
    {"contact", inp_kw_Contact, k_Contact},
    {"contactcontrolsassignment", inp_kw_ContactControlsAssignment, nullptr},
    {"contactexclusions", inp_kw_ContactExclusions, nullptr},
    {"contactformulation", inp_kw_ContactFormulation, nullptr},
    {"contactinclusions", inp_kw_ContactInclusions, nullptr},
    {"contactpropertyassignment", inp_kw_ContactPropertyAssignment, nullptr},
    {"spatialdistribution", inp_kw_SpatialDistribution, nullptr},
    {"surfacepropertyassignment", inp_kw_SurfacePropertyAssignment, nullptr},
    {"fastenerproperty", inp_kw_FastenerProperty, k_FastenerProperty},
    {"surfacesmoothing", inp_kw_SurfaceSmoothing, nullptr},
    {"spotweldinteraction", inp_kw_SpotWeldInteraction, k_SpotWeldInteraction},
    {"spotweld", inp_kw_SpotWeld, nullptr},
    {"spotweldproperty", inp_kw_SpotWeldProperty, nullptr},
    {"timepoints", inp_kw_TimePoints, nullptr},
    {"contactclearance", inp_kw_ContactClearance, nullptr},
    {"contactclearanceassignment", inp_kw_ContactClearanceAssignment, nullptr},
    {"distribution", inp_kw_Distribution, nullptr},
    {"co-simulationregion", inp_kw_CoSimulationRegion, nullptr},
    {"co-simulation", inp_kw_CoSimulation, k_CoSimulation},
    {"distributiontable", inp_kw_DistributionTable, nullptr},
    {"co-simulationcontrols", inp_kw_CoSimulationControls, nullptr},
    {"contactinitializationassignment", inp_kw_ContactInitializationAssignment, nullptr},
    {"contactinitializationdata", inp_kw_ContactInitializationData, nullptr},
    {"contactstabilization", inp_kw_ContactStabilization, nullptr},
    {"dampingcontrols", inp_kw_DampingControls, nullptr},
    {"globaldamping", inp_kw_GlobalDamping, nullptr},
    {"compositemodaldamping", inp_kw_CompositeModalDamping, nullptr},
    {"fluidboundary", inp_kw_FluidBoundary, nullptr},
    {"fluidsection", inp_kw_FluidSection, nullptr},
    {"fluidpipesection", inp_kw_FluidPipeSection, k_FluidPipeSection},
    {"fluidpipeflowloss", inp_kw_FluidPipeFlowLoss, nullptr},
    {"fluidpipeconnectorsection", inp_kw_FluidPipeConnectorSection, k_FluidPipeConnectorSection},
    {"fluidpipeconnectorloss", inp_kw_FluidPipeConnectorLoss, nullptr},
    {"contactpermeability", inp_kw_ContactPermeability, nullptr},
    {"material", inp_kw_Material, k_Material},
    {"conductivity", inp_kw_Conductivity, nullptr},
    {"creep", inp_kw_Creep, k_Creep},
    {"damping", inp_kw_Damping, nullptr},
    {"density", inp_kw_Density, k_Density},
    {"elastic", inp_kw_Elastic, k_Elastic},
    {"expansion", inp_kw_Expansion, nullptr},
    {"latentheat", inp_kw_LatentHeat, nullptr},
    {"ratios", inp_kw_Ratios, nullptr},
    {"potential", inp_kw_Potential, nullptr},
    {"plastic", inp_kw_Plastic, k_Plastic},
    {"specificheat", inp_kw_SpecificHeat, nullptr},
    {"swelling", inp_kw_Swelling, k_Swelling},
    {"depvar", inp_kw_Depvar, nullptr},
    {"ratedependent", inp_kw_RateDependent, nullptr},
    {"permeability", inp_kw_Permeability, nullptr},
    {"ornl", inp_kw_Ornl, nullptr},
    {"notension", inp_kw_NoTension, nullptr},
    {"nocompression", inp_kw_NoCompression, nullptr},
    {"trs", inp_kw_Trs, nullptr},
    {"viscoelastic", inp_kw_Viscoelastic, k_Viscoelastic},
    {"concrete", inp_kw_Concrete, k_Concrete},
    {"failureratios", inp_kw_FailureRatios, nullptr},
    {"tensionstiffening", inp_kw_TensionStiffening, nullptr},
    {"shearretention", inp_kw_ShearRetention, nullptr},
    {"hyperelastic", inp_kw_Hyperelastic, k_Hyperelastic},
    {"fabric", inp_kw_Fabric, k_Fabric},
    {"anisotropichyperelastic", inp_kw_AnisotropicHyperelastic, k_AnisotropicHyperelastic},
    {"usermaterial", inp_kw_UserMaterial, nullptr},
    {"porousbulkmoduli", inp_kw_PorousBulkModuli, nullptr},
    {"inelasticheatfraction", inp_kw_InelasticHeatFraction, nullptr},
    {"heatgeneration", inp_kw_HeatGeneration, nullptr},
    {"deformationplasticity", inp_kw_DeformationPlasticity, nullptr},
    {"acousticmedium", inp_kw_AcousticMedium, nullptr},
    {"sorption", inp_kw_Sorption, nullptr},
    {"foam", inp_kw_Foam, k_Foam},
    {"porouselastic", inp_kw_PorousElastic, nullptr},
    {"hypoelastic", inp_kw_Hypoelastic, nullptr},
    {"cycledplastic", inp_kw_CycledPlastic, nullptr},
    {"clayplasticity", inp_kw_ClayPlasticity, k_ClayPlasticity},
    {"druckerprager", inp_kw_DruckerPrager, k_DruckerPrager},
    {"uniaxialtestdata", inp_kw_UniaxialTestData, nullptr},
    {"biaxialtestdata", inp_kw_BiaxialTestData, nullptr},
    {"sheartestdata", inp_kw_ShearTestData, nullptr},
    {"volumetrictestdata", inp_kw_VolumetricTestData, nullptr},
    {"lowdensityfoam", inp_kw_LowDensityFoam, k_LowDensityFoam},
    {"piezoelectric", inp_kw_Piezoelectric, nullptr},
    {"dielectric", inp_kw_Dielectric, nullptr},
    {"combinedtestdata", inp_kw_CombinedTestData, nullptr},
    {"hyperfoam", inp_kw_Hyperfoam, k_Hyperfoam},
    {"planartestdata", inp_kw_PlanarTestData, nullptr},
    {"diffusivity", inp_kw_Diffusivity, k_Diffusivity},
    {"solubility", inp_kw_Solubility, nullptr},
    {"kappa", inp_kw_Kappa, nullptr},
    {"simplesheartestdata", inp_kw_SimpleShearTestData, nullptr},
    {"gel", inp_kw_Gel, nullptr},
    {"eos", inp_kw_Eos, k_Eos},
    {"detonationpoint", inp_kw_DetonationPoint, nullptr},
    {"failure", inp_kw_Failure, nullptr},
    {"moistureswelling", inp_kw_MoistureSwelling, k_MoistureSwelling},
    {"gapflow", inp_kw_GapFlow, nullptr},
    {"jointedmaterial", inp_kw_JointedMaterial, nullptr},
    {"capplasticity", inp_kw_CapPlasticity, k_CapPlasticity},
    {"caphardening", inp_kw_CapHardening, nullptr},
    {"failstress", inp_kw_FailStress, nullptr},
    {"failstrain", inp_kw_FailStrain, nullptr},
    {"foamhardening", inp_kw_FoamHardening, nullptr},
    {"clayhardening", inp_kw_ClayHardening, nullptr},
    {"useroutputvariables", inp_kw_UserOutputVariables, nullptr},
    {"fluidleakoff", inp_kw_FluidLeakoff, nullptr},
    {"porousmetalplasticity", inp_kw_PorousMetalPlasticity, k_PorousMetalPlasticity},
    {"voidnucleation", inp_kw_VoidNucleation, nullptr},
    {"porousfailurecriteria", inp_kw_PorousFailureCriteria, nullptr},
    {"druckerpragerhardening", inp_kw_DruckerPragerHardening, nullptr},
    {"electricalconductivity", inp_kw_ElectricalConductivity, nullptr},
    {"triaxialtestdata", inp_kw_TriaxialTestData, nullptr},
    {"brittlecracking", inp_kw_BrittleCracking, k_BrittleCracking},
    {"brittleshear", inp_kw_BrittleShear, nullptr},
    {"userdefinedfield", inp_kw_UserDefinedField, nullptr},
    {"jouleheatfraction", inp_kw_JouleHeatFraction, nullptr},
    {"cyclichardening", inp_kw_CyclicHardening, nullptr},
    {"softeningregularization", inp_kw_SofteningRegularization, nullptr},
    {"druckerpragercreep", inp_kw_DruckerPragerCreep, nullptr},
    {"capcreep", inp_kw_CapCreep, nullptr},
    {"gasketelasticity", inp_kw_GasketElasticity, nullptr},
    {"castironplasticity", inp_kw_CastIronPlasticity, k_CastIronPlasticity},
    {"castirontensionhardening", inp_kw_CastIronTensionHardening, nullptr},
    {"castironcompressionhardening", inp_kw_CastIronCompressionHardening, nullptr},
    {"gasketthicknessbehavior", inp_kw_GasketThicknessBehavior, nullptr},
    {"gasketcontactarea", inp_kw_GasketContactArea, nullptr},
    {"mohrcoulomb", inp_kw_MohrCoulomb, k_MohrCoulomb},
    {"mohrcoulombhardening", inp_kw_MohrCoulombHardening, nullptr},
    {"brittlefailure", inp_kw_BrittleFailure, nullptr},
    {"eosshear", inp_kw_EosShear, k_EosShear},
    {"shearfailure", inp_kw_ShearFailure, nullptr},
    {"tensilefailure", inp_kw_TensileFailure, nullptr},
    {"hysteresis", inp_kw_Hysteresis, nullptr},
    {"connectordamping", inp_kw_ConnectorDamping, nullptr},
    {"connectorelasticity", inp_kw_ConnectorElasticity, nullptr},
    {"connectorfailure", inp_kw_ConnectorFailure, nullptr},
    {"connectorfriction", inp_kw_ConnectorFriction, k_ConnectorFriction},
    {"connectorstop", inp_kw_ConnectorStop, k_ConnectorStop},
    {"connectorlock", inp_kw_ConnectorLock, k_ConnectorLock},
    {"connectorconstitutivereference", inp_kw_ConnectorConstitutiveReference, nullptr},
    {"connectorcontactforce", inp_kw_ConnectorContactForce, nullptr},
    {"connectorplasticity", inp_kw_ConnectorPlasticity, k_ConnectorPlasticity},
    {"connectorhardening", inp_kw_ConnectorHardening, nullptr},
    {"connectordamageevolution", inp_kw_ConnectorDamageEvolution, k_ConnectorDamageEvolution},
    {"crushablefoam", inp_kw_CrushableFoam, k_CrushableFoam},
    {"crushablefoamhardening", inp_kw_CrushableFoamHardening, nullptr},
    {"characteristiclength", inp_kw_CharacteristicLength, nullptr},
    {"viscosity", inp_kw_Viscosity, k_Viscosity},
    {"concretedamagedplasticity", inp_kw_ConcreteDamagedPlasticity, k_ConcreteDamagedPlasticity},
    {"concretetensionstiffening", inp_kw_ConcreteTensionStiffening, nullptr},
    {"concretecompressionhardening", inp_kw_ConcreteCompressionHardening, nullptr},
    {"concretetensiondamage", inp_kw_ConcreteTensionDamage, nullptr},
    {"concretecompressiondamage", inp_kw_ConcreteCompressionDamage, nullptr},
    {"mullinseffect", inp_kw_MullinsEffect, k_MullinsEffect},
    {"eoscompaction", inp_kw_EosCompaction, nullptr},
    {"damageinitiation", inp_kw_DamageInitiation, k_DamageInitiation},
    {"damageevolution", inp_kw_DamageEvolution, k_DamageEvolution},
    {"damagestabilization", inp_kw_DamageStabilization, nullptr},
    {"tensioncutoff", inp_kw_TensionCutoff, nullptr},
    {"connectorderivedcomponent", inp_kw_ConnectorDerivedComponent, nullptr},
    {"connectorpotential", inp_kw_ConnectorPotential, nullptr},
    {"connectordamageinitiation", inp_kw_ConnectorDamageInitiation, k_ConnectorDamageInitiation},
    {"connectoruniaxialbehavior", inp_kw_ConnectorUniaxialBehavior, k_ConnectorUniaxialBehavior},
    {"pipe-soilstiffness", inp_kw_PipeSoilStiffness, nullptr},
    {"annealtemperature", inp_kw_AnnealTemperature, nullptr},
    {"viscous", inp_kw_Viscous, k_Viscous},
    {"beamaddedinertia", inp_kw_BeamAddedInertia, nullptr},
    {"beamfluidinertia", inp_kw_BeamFluidInertia, nullptr},
    {"acousticflowvelocity", inp_kw_AcousticFlowVelocity, nullptr},
    {"magneticpermeability", inp_kw_MagneticPermeability, k_MagneticPermeability},
    {"magnetostatic", inp_kw_Magnetostatic, nullptr},
    {"nonlinearbh", inp_kw_NonlinearBH, nullptr},
    {"permanentmagnetization", inp_kw_PermanentMagnetization, nullptr},
    {"discretesection", inp_kw_DiscreteSection, nullptr},
    {"discreteinteraction", inp_kw_DiscreteInteraction, nullptr},
    {"discreteinteractionproperty", inp_kw_DiscreteInteractionProperty, k_DiscreteInteractionProperty},
    {"reactionrate", inp_kw_ReactionRate, nullptr},
    {"gasspecificheat", inp_kw_GasSpecificHeat, nullptr},
    {"massflowrate", inp_kw_MassFlowRate, nullptr},
    {"cecharge", inp_kw_Cecharge, nullptr},
    {"decharge", inp_kw_Decharge, nullptr},
    {"fracturecriterion", inp_kw_FractureCriterion, nullptr},
    {"fluidflux", inp_kw_FluidFlux, nullptr},
    {"cecurrent", inp_kw_Cecurrent, nullptr},
    {"decurrent", inp_kw_Decurrent, nullptr},
    {"daddedmass", inp_kw_DAddedMass, nullptr},
    {"caddedmass", inp_kw_CAddedMass, nullptr},
    {"pressurestress", inp_kw_PressureStress, nullptr},
    {"transportvelocity", inp_kw_TransportVelocity, nullptr},
    {"variablemassscaling", inp_kw_VariableMassScaling, nullptr},
    {"fixedmassscaling", inp_kw_FixedMassScaling, nullptr},
    {"pressurepenetration", inp_kw_PressurePenetration, nullptr},
    {"dsload", inp_kw_Dsload, nullptr},
    {"dsflux", inp_kw_Dsflux, nullptr},
    {"sfilm", inp_kw_Sfilm, nullptr},
    {"sradiate", inp_kw_Sradiate, nullptr},
    {"dsflow", inp_kw_Dsflow, nullptr},
    {"sflow", inp_kw_Sflow, nullptr},
    {"dsecharge", inp_kw_Dsecharge, nullptr},
    {"dsecurrent", inp_kw_Dsecurrent, nullptr},
    {"steadystatedetection", inp_kw_SteadyStateDetection, nullptr},
    {"steadystatecriteria", inp_kw_SteadyStateCriteria, nullptr},
    {"connectorload", inp_kw_ConnectorLoad, nullptr},
    {"cfilm", inp_kw_Cfilm, nullptr},
    {"cradiate", inp_kw_Cradiate, nullptr},
    {"inertiarelief", inp_kw_InertiaRelief, nullptr},
    {"beamsectiongenerate", inp_kw_BeamSectionGenerate, k_BeamSectionGenerate},
    {"sectionorigin", inp_kw_SectionOrigin, nullptr},
    {"matrixassemble", inp_kw_MatrixAssemble, nullptr},
    {"matrixinput", inp_kw_MatrixInput, nullptr},
    {"matrixgenerate", inp_kw_MatrixGenerate, k_MatrixGenerate},
    {"matrixoutput", inp_kw_MatrixOutput, nullptr},
    {"elementoperatoroutput", inp_kw_ElementOperatorOutput, nullptr},
    {"beamsectionoffset", inp_kw_BeamSectionOffset, nullptr},
    {"solvercontrols", inp_kw_SolverControls, nullptr},
    {"dempotential", inp_kw_DEmPotential, nullptr},
    {"subcycling", inp_kw_Subcycling, nullptr},
    {"massadjust", inp_kw_MassAdjust, nullptr},
    {"domaindecomposition", inp_kw_DomainDecomposition, nullptr},
    {"eulerianboundary", inp_kw_EulerianBoundary, nullptr},
    {"eulerianmeshmotion", inp_kw_EulerianMeshMotion, nullptr},
    {"adaptivemeshrefinement", inp_kw_AdaptiveMeshRefinement, nullptr},
    {"flexiblebody", inp_kw_FlexibleBody, nullptr},
    {"matrixcheck", inp_kw_MatrixCheck, nullptr},
    {"radiationprint", inp_kw_RadiationPrint, nullptr},
    {"radiationfile", inp_kw_RadiationFile, nullptr},
    {"viewfactoroutput", inp_kw_ViewfactorOutput, nullptr},
    {"output", inp_kw_Output, k_Output},
    {"elementoutput", inp_kw_ElementOutput, nullptr},
    {"nodeoutput", inp_kw_NodeOutput, nullptr},
    {"energyoutput", inp_kw_EnergyOutput, nullptr},
    {"modaloutput", inp_kw_ModalOutput, nullptr},
    {"contactoutput", inp_kw_ContactOutput, nullptr},
    {"radiationoutput", inp_kw_RadiationOutput, nullptr},
    {"diagnostics", inp_kw_Diagnostics, nullptr},
    {"incrementationoutput", inp_kw_IncrementationOutput, nullptr},
    {"surfaceoutput", inp_kw_SurfaceOutput, nullptr},
    {"integratedoutput", inp_kw_IntegratedOutput, nullptr},
    {"filter", inp_kw_Filter, nullptr},
    {"cfd", inp_kw_Cfd, k_Cfd},
    {"momentumequationsolver", inp_kw_MomentumEquationSolver, nullptr},
    {"pressureequationsolver", inp_kw_PressureEquationSolver, nullptr},
    {"transportequationsolver", inp_kw_TransportEquationSolver, nullptr},
    {"turbulencemodel", inp_kw_TurbulenceModel, nullptr},
    {"energyequationsolver", inp_kw_EnergyEquationSolver, nullptr},
    {"turbulenceequationsolver", inp_kw_TurbulenceEquationSolver, nullptr},
    {"designparameter", inp_kw_DesignParameter, nullptr},
    {"designvariation", inp_kw_DesignVariation, nullptr},
    {"designshapevariation", inp_kw_DesignShapeVariation, nullptr},
    {"designresponse", inp_kw_DesignResponse, nullptr},
    {"elementresponse", inp_kw_ElementResponse, nullptr},
    {"noderesponse", inp_kw_NodeResponse, nullptr},
    {"contactresponse", inp_kw_ContactResponse, nullptr},
    {"dsacontrols", inp_kw_DsaControls, nullptr},
    {"designvalue", inp_kw_DesignValue, nullptr},
    {"particlegenerator", inp_kw_ParticleGenerator, k_ParticleGenerator},
    {"particlegeneratormixture", inp_kw_ParticleGeneratorMixture, nullptr},
    {"particlegeneratorinlet", inp_kw_ParticleGeneratorInlet, nullptr},
    {"particlegeneratorflow", inp_kw_ParticleGeneratorFlow, nullptr},
    {"probabilitydensityfunction", inp_kw_ProbabilityDensityFunction, nullptr},
    {"crushstress", inp_kw_CrushStress, nullptr},
    {"crushstressvelocityfactor", inp_kw_CrushStressVelocityFactor, nullptr},
    {"uniaxial", inp_kw_Uniaxial, k_Uniaxial},
    {"loadingdata", inp_kw_LoadingData, k_LoadingData},
    {"unloadingdata", inp_kw_UnloadingData, nullptr},
    {"biaxial", inp_kw_Biaxial, k_Biaxial},
    {"shear", inp_kw_Shear, k_Shear},
    {"assembly", inp_kw_Assembly, k_Assembly},
    {"endassembly", inp_kw_EndAssembly, nullptr},
    {"endinstance", inp_kw_EndInstance, nullptr},
    {"endpart", inp_kw_EndPart, nullptr},
    {"instance", inp_kw_Instance, k_Instance},
    {"part", inp_kw_Part, k_Part},
    {"__model__", inp_kw_Model, k_Model},
    {"conflicts", inp_kw_Conflicts, nullptr},
    {"displaybody", inp_kw_DisplayBody, nullptr},
    {"parameter", inp_kw_Parameter, nullptr},
    {"parameterdependence", inp_kw_ParameterDependence, nullptr},
    {nullptr, inp_kw_UndefinedKeyword, nullptr},
};
