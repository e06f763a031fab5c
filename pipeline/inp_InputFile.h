#pragma once
// The driver object of the pipeline: one object stands for one deck of one
// job and owns everything of it by value. A caller makes one, gives it an
// include path, calls Parse, and holds a flat keyword list; later stages
// turn that list into a tree and fill the model maps.

#include <functional>
#include <span>
#include <string_view>
#include <utility>

#include "deck/inp_Keyword.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_InputFileOptions.h"
#include "pipeline/inp_ModelParameters.h"
#include "pipeline/inp_Stage.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/gsl_Matrix.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_PartMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_SurfaceMap.h"

class aio_ostream;
class eli_eostream;

class inp_InputFile {
  public:
    // Options of a new job of the host (inp_InputFileOptions::FromHostCommandLine).
    inp_InputFile();
    explicit inp_InputFile(inp_InputFileOptions options) : m_options(std::move(options)) {}

    // -- the road ------------------------------------------------------------
    // The order of the stages is owned here; callers name where to stop.

    // Every stage of the road of a new job, in order.
    static std::span<inp_StageInfo const> Stages();
    // The stage of this name, or null.
    static inp_StageInfo const* FindStage(std::string_view name);

    enum class RunRule {
        StopAfterErrors,  // a stage that adds errors to the sink is the last to run
        RunThrough,       // every stage up to the last asked for runs, errors or not
    };
    // Called after each stage that ran, with that stage.
    using StageObserver = std::function<void(inp_Stage)>;

    // Reads the deck `fileName` and runs the stages from the first through
    // `last`, by `rule`; returns the last stage that ran. Diagnostics go to
    // this thread's sink. Only a deck file that cannot be opened throws (out
    // of the parse stage, as Parse does).
    inp_Stage Run(cow_String const& fileName, inp_Stage last,
                  RunRule rule = RunRule::StopAfterErrors, StageObserver const& afterStage = {});

    inp_InputFileOptions const& Options() const { return m_options; }
    // Set before the stages run.
    void SetOptions(inp_InputFileOptions const& options) { m_options = options; }

    // -- the stages ----------------------------------------------------------

    // Reads the deck into the keyword list and hands the parser's diagnostics
    // to this thread's message sink: fatal errors at level 0, errors at level
    // 1, then warnings. Returns normally whatever the deck holds; only a deck
    // file that cannot be opened throws (nex_PrimException<atr_String, 1>).
    void Parse(cow_String fileName);

    // Validates and normalises every keyword: parameter names and values in
    // full, data files read, *NODE data compacted, defective keywords
    // removed. Takes over what the deck is made of (parts or flat), its
    // instances and whether it is parameterized. Diagnostics go to the sink.
    void ExpandKeywords();
    // Makes the flat keyword list a tree of keywords and their suboptions;
    // misplaced keywords are reported and left out.
    void Reorganize();
    // Gathers the sizes and facts of the model (ModelParameters) from the
    // expanded deck, and registers its distribution tables with this
    // thread's inp_DistributionTableDB, checking each distribution against
    // the table it names.
    void setModelParameters();
    inp_ModelParameters const& ModelParameters() const { return m_modelParameters; }

    // Name hygiene. The period separates the pieces of a scoped name
    // (instance.name), so the names a deck defines may not hold one
    // outside quotes: the first offender is reported as an error, and the
    // check ends there. Runs on `keywords` and their suboptions.
    void ProhibitPeriodInNames(cow_List<inp_Keyword> const& keywords);
    // A flat deck, before it becomes a part: periods in the set, surface,
    // distribution, orientation, rebar and material names it refers to
    // become underscores. `fullFakeParts`: the part is to be built in full,
    // as the interactive pre-processor reads it.
    void RemovePeriods(bool fullFakeParts);
    // A deck of parts, after organization: references written with the
    // assembly's name in front (assembly.instance.name) lose that piece.
    // The first form takes the name of the first *ASSEMBLY of the list.
    void ModifyScopedNames();
    void ModifyScopedNames(cow_String const& assemblyName);

    // The model maps of a deck in parts and an assembly. ExtractPartMaps
    // reads the mesh of every part (PartCoordMap, PartElementMap,
    // PartNsets, PartElsets, PartSurfaces) and then releases the data lines
    // of the mesh keywords inside parts. ExtractAssemblyMaps gives each
    // instance its part's mesh by shared copies under its transform, and
    // reads the keywords of the assembly and the instances (AssemblyCoordMap,
    // AssemblyElementMap, AssemblyNsets, AssemblyElsets, AssemblySurfaces,
    // TransformationMap). `atelierCompatible`: the deck's reader is the
    // interactive pre-processor, which reads the keywords' data itself.
    void ExtractPartMaps(bool atelierCompatible);
    void ExtractAssemblyMaps(bool atelierCompatible);
    // The composite stages, for callers that want the whole of it in one
    // call. Classify: the import check, names, then for a deck in parts
    // the organizer, the scoped names and the part and assembly maps; for a
    // flat deck its fake part, the organizer and the assembly maps.
    // ReorganizeKeywords: the same without the maps (the converter's form),
    // the import check without the part map rule.
    void Classify(bool atelierCompatible);
    void ReorganizeKeywords(bool atelierCompatible);

    // A flat deck (no *PART, no *ASSEMBLY) made one of parts: its mesh read
    // under the pseudo part "FAKE", nodes it names but never defines placed
    // at the origin, then the keyword list rewritten as a generated part
    // "PART-1", its instance "PART-1-1" and the assembly "Assembly-1" (rigid
    // surfaces and, for the pre-processor, rigid bodies in parts of their
    // own). Fills PartCoordMap, PartElementMap, PartNsets, PartElsets,
    // PartSurfaces, InstancePartNames and the id maps of the numbering, and
    // scopes the deck's references to the instance. Runs on the flat list.
    void FakeEnhancements(bool atelierCompatible);
    // Import in the deck: *IMPORT with *MAP SOLUTION, an *IMPORT without the
    // part map of an earlier job (unless `continuation` or a restart), and
    // what inp_ImportValidityVisitor checks, which also makes the keywords
    // inside an imported instance dead. Runs on the flat list.
    void CheckImportValidity(bool continuation);

    // A continuation job, after ExpandKeywords: takes the finished model of
    // the earlier job (`partMap`, from that job's MakePartMap) as its own
    // sets, surfaces, instance names and numbering, classifies the job
    // (ClassifyRestartJob), and, unless it is a plain restart (step data
    // only, left flat), gives the deck's additions their fake part and the
    // assembly maps. Of an import job only the sets its *IMPORT keywords
    // name are kept; a symmetric model generation drops the earlier job's
    // internal sets from `partMap` itself.
    void InheritPartMap(inpM_PartMap& partMap, bool atelierCompatible);
    // After InheritPartMap of `earlier`'s part map, for a plain restart
    // (which stays flat): its new node sets, element sets and surfaces read
    // by the restart visitors against `earlier`'s names, then added with
    // AddRestartSetsAndSurfaces; diagnostics go to this thread's sink. A
    // restart that adds mesh has had its sets read with its fake part:
    // nothing is done. Offered to callers; no stage of the road runs it.
    void ReadRestartSetsAndSurfaces(inp_InputFile const& earlier);
    // The sets and surfaces a continuation job adds (as the restart set and
    // surface visitors read them) join its assembly's maps; NewNsets,
    // NewElsets and NewSurfaces keep them apart as well.
    void AddRestartSetsAndSurfaces(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                                   inpM_SurfaceMap const& surfaces);
    // The finished model of this job, for a job that continues it: the
    // assembly's sets and surfaces, the id maps, the instances' parts and
    // what the model is made of. Shares the maps; nothing is copied.
    inpM_PartMap MakePartMap() const;

    // What a restart adds to the model it continues (IsPlainRestart,
    // HasSymmetricModelGeneration, HasMapSolution, IsImportJob), from the
    // top keywords; more than step data is refused for a restart of a model
    // in parts.
    void ClassifyRestartJob();

    // Jobs that copy the model by offsetting its ids (a symmetric model
    // generation, reflected or revolved) get the copies' ids in the id maps:
    // the offsets are the largest ids unless the first *SYMMETRIC MODEL
    // GENERATION gives ELEMENT OFFSET and NODE OFFSET; nothing happens
    // without one.
    void AdjustMapsForSymModelGen();
    void AdjustMapsReflectModel(int elementOffset, int nodeOffset);
    void AdjustMapsRevolveModel(int elementOffset, int nodeOffset, int segments);
    // An import job keeps only the assembly sets that its *IMPORT NSET and
    // *IMPORT ELSET name (and the element sets *IMPORT names), for each
    // kind only if some keyword of it names any; one that names none is
    // warned about.
    void DeleteSetsWhichShouldNotBeImported();
    // The string items of every line, in order.
    static cow_List<cow_String> GatherSetNamesFromData(inp_DataArray const& data);

    // Each instance of `source` that `target` lacks is added.
    static void MergeInstancePartNames(inpM_InstanceMap<cow_String>& target,
                                       inpM_InstanceMap<cow_String> const& source);

    // The rules of what parts may hold and where node and element data may
    // stand (the part inventory); then, for a parts deck, the part element
    // tables are emptied: the instances hold what they need of them.
    void CheckOutOfPlace();

    // Writes the keyword list back as deck text, suboptions below their parent.
    void Print(eli_eostream& out) const;
    void Print(aio_ostream& out) const;

    // Removes every blanked record (enumerator 0), keeping the order of the rest.
    void DiscardEmptyKeywords();

    static cow_String TakeOutSpacesOutsideQuoted(char const* text);

    cow_List<inp_Keyword> const& Keywords() const { return m_keywords; }
    cow_List<inp_Keyword>& GetKeywords() { return m_keywords; }
    cow_String const& FileName() const { return m_fileName; }
    // Include names read while parsing, in order, and those not found.
    cow_List<cow_String> const& GetIncludedFiles() const { return m_includedFiles; }
    cow_List<cow_String> const& GetMissingIncludeFiles() const { return m_missingIncludeFiles; }
    // Data files (`INPUT=` of data keywords) that expansion read, and the
    // file names of those it did not find, each once.
    cow_List<cow_String> const& GetDataFiles() const { return m_dataFiles; }
    cow_List<cow_String> const& GetMissingDataFiles() const { return m_missingDataFiles; }

    bool IsRestartJob() const { return m_restartJob; }
    bool InOdbConverter() const { return m_inOdbConverter; }
    bool PartModelAllowed() const { return m_partModelAllowed; }
    bool IsPartsAndAssembly() const { return m_partsAndAssembly; }
    bool IsParameterized() const { return m_parameterized; }
    cow_String const& GetIncludePath() const { return m_options.includePath; }
    bool IsFakePartModel() const { return m_fakePartModel; }
    bool IsPlainRestart() const { return m_plainRestart; }
    bool IsImportJob() const { return m_importJob; }
    bool HasSymmetricModelGeneration() const { return m_symmetricModelGeneration; }
    bool HasMapSolution() const { return m_mapSolution; }
    bool UsesImportedData() const { return m_useImportedData; }
    int NumberRestartSteps() const { return m_numberRestartSteps; }
    cow_List<inp_Keyword> const& AssemblyElementKeywords() const {
        return m_assemblyElementKeywords;
    }
    cow_List<cow_String> const& ImportedInstanceNames() const { return m_importedInstanceNames; }

    // The model maps, filled by the extraction stages: part level, assembly
    // level, instance transforms, id maps of a renumbered model.
    inp_CoordMap const& PartCoordMap() const { return m_partCoordMap; }
    inpM_InstanceMap<inp_MapInt2Element> const& PartElementMap() const { return m_partElementMap; }
    // For a caller that has read the elements out of the maps and wants their
    // memory back: the part and assembly element maps are emptied.
    void ReleaseElementMaps() {
        m_partElementMap = inpM_InstanceMap<inp_MapInt2Element>();
        m_assemblyElementMap = inpM_InstanceMap<inp_MapInt2Element>();
    }
    inpM_SetMap const& PartNsets() const { return m_partNsets; }
    inpM_SetMap const& PartElsets() const { return m_partElsets; }
    inpM_SurfaceMap const& PartSurfaces() const { return m_partSurfaces; }
    inp_CoordMap const& AssemblyCoordMap() const { return m_assemblyCoordMap; }
    inpM_InstanceMap<inp_MapInt2Element> const& AssemblyElementMap() const {
        return m_assemblyElementMap;
    }
    inpM_SetMap const& AssemblyNsets() const { return m_assemblyNsets; }
    inpM_SetMap const& AssemblyElsets() const { return m_assemblyElsets; }
    inpM_SurfaceMap const& AssemblySurfaces() const { return m_assemblySurfaces; }
    inpM_InstanceMap<gsl_Matrix> const& TransformationMap() const { return m_transformationMap; }
    inpM_IdMap const& NodeIdMap() const { return m_nodeIdMap; }
    inpM_IdMap const& ElementIdMap() const { return m_elementIdMap; }
    inpM_InstanceMap<cow_String> const& InstancePartNames() const { return m_instancePartNames; }
    inpM_SetMap const& NewNsets() const { return m_newNsets; }
    inpM_SetMap const& NewElsets() const { return m_newElsets; }
    inpM_SurfaceMap const& NewSurfaces() const { return m_newSurfaces; }
    inpM_IdMap const& SpareNodeIdMap() const { return m_spareNodeIdMap; }
    inpM_IdMap const& SpareElementIdMap() const { return m_spareElementIdMap; }
    inpM_SetMap const& ImportedNsets() const { return m_importedNsets; }
    inpM_SetMap const& ImportedElsets() const { return m_importedElsets; }
    inpM_SurfaceMap const& ImportedSurfaces() const { return m_importedSurfaces; }

    // Settings of the caller, made before the stages run.
    void SetIncludePath(cow_String const& directory) { m_options.includePath = directory; }
    void SetInOdbConverter(bool inConverter) { m_inOdbConverter = inConverter; }
    void SetUseImportedData(bool useImported) { m_useImportedData = useImported; }
    void SetNumberRestartSteps(int steps) { m_numberRestartSteps = steps; }
    void SetImportedInstanceNames(cow_List<cow_String> const& names) {
        m_importedInstanceNames = names;
    }
    // The id maps of the earlier job a continuation job goes on from.
    void SetNodeIdMap(inpM_IdMap const& map) { m_nodeIdMap = map; }
    void SetElementIdMap(inpM_IdMap const& map) { m_elementIdMap = map; }
    // The sets and surfaces of the job an import job reads from.
    void SetImportedNsets(inpM_SetMap const& sets) { m_importedNsets = sets; }
    void SetImportedElsets(inpM_SetMap const& sets) { m_importedElsets = sets; }
    void SetImportedSurfaces(inpM_SurfaceMap const& surfaces) { m_importedSurfaces = surfaces; }

  private:
    friend struct inp_RoadTable;  // the table of stages, in inp_InputFileRoad.cpp

    // The parse stage of the road: Parse of the deck that Run was given.
    void parseStage() { Parse(m_fileName); }
    void namesStage() { ProhibitPeriodInNames(m_keywords); }
    void importValidityStage();
    void scopedNamesStage();
    void organizeStage();
    // The import check (`continuation` as CheckImportValidity takes it),
    // the names, then the tree in parts (a flat deck made a part first).
    void bringToParts(bool continuation, bool atelierCompatible);
    void fakePartStage();
    // InheritPartMap's taking of the earlier job's maps.
    void inheritModel(inpM_PartMap const& partMap);
    void extractPartMapsStage();
    void extractAssemblyMapsStage();

    inp_Stage m_roadEnd = inp_Stage::Organize;  // the last stage Run was asked for
    cow_List<inp_Keyword> m_assemblyElementKeywords;
    cow_List<inp_Keyword> m_keywords;
    bool m_partsAndAssembly = false;
    bool m_fakePartModel = false;
    bool m_restartJob = false;
    int m_numberRestartSteps = 0;
    bool m_plainRestart = false;
    bool m_importJob = false;
    bool m_symmetricModelGeneration = false;
    bool m_mapSolution = false;  // meaningful once the restart classification ran
    bool m_partModelAllowed = true;
    bool m_useImportedData = false;
    bool m_parameterized = false;
    bool m_inOdbConverter = false;
    cow_String m_fileName;
    inp_CoordMap m_partCoordMap;
    inpM_InstanceMap<inp_MapInt2Element> m_partElementMap;
    inpM_SetMap m_partNsets;
    inpM_SetMap m_partElsets;
    inpM_SurfaceMap m_partSurfaces;
    inp_CoordMap m_assemblyCoordMap;
    inpM_InstanceMap<inp_MapInt2Element> m_assemblyElementMap;
    inpM_SetMap m_assemblyNsets;
    inpM_SetMap m_assemblyElsets;
    inpM_SurfaceMap m_assemblySurfaces;
    inpM_InstanceMap<gsl_Matrix> m_transformationMap;
    inpM_IdMap m_nodeIdMap;
    inpM_IdMap m_elementIdMap;
    inpM_SetMap m_newNsets;  // sets a restart job adds at assembly level, before they are merged
    inpM_SetMap m_newElsets;
    inpM_SurfaceMap m_newSurfaces;
    inpM_IdMap m_spareNodeIdMap;  // spare id maps of the continuation jobs
    inpM_IdMap m_spareElementIdMap;
    inpM_SetMap m_importedNsets;
    inpM_SetMap m_importedElsets;
    inpM_SurfaceMap m_importedSurfaces;
    cow_List<cow_String> m_importedInstanceNames;
    inp_InputFileOptions m_options;  // the include path among them
    inp_ModelParameters m_modelParameters;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    cow_List<cow_String> m_includedFiles;
    cow_List<cow_String> m_missingIncludeFiles;
    cow_List<cow_String> m_dataFiles;
    cow_List<cow_String> m_missingDataFiles;
};
