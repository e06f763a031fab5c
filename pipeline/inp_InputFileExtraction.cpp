// The stages that turn a deck in parts and an assembly into the model maps,
// and check where its mesh keywords stand. Each runs its visitors over the
// top keyword list, in order, each seeing the maps of those before it.

#include "assembly/inp_AssemblyElementVisitor.h"
#include "assembly/inp_AssemblyNodeVisitor.h"
#include "assembly/inp_AssemblySurfaceVisitor.h"
#include "assembly/inp_PartInventoryVisitor.h"
#include "assembly/inp_PartMeshVisitors.h"
#include "mesh/inp_NodeGenerationVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_KwdDataReleaseVisitor.h"
#include "pipeline/inp_StageTime.h"

// Parts first: elements, nodes (element-based node sets read the elements),
// the nodes that exist only implicitly, surfaces. Then the data lines of the
// mesh keywords inside parts are released: the maps hold them now.
void inp_InputFile::ExtractPartMaps(bool atelierCompatible) {
    omi_Timer timer;
    timer.Start();

    inp_PartElementVisitor elements;
    elements.setAtelierCompatible(atelierCompatible);
    elements.VisitListAndReport(m_keywords);

    inp_PartNodeVisitor nodes(elements.ConstGetElementMap(), elements.ConstGetSetMap());
    nodes.setAtelierCompatible(atelierCompatible);
    nodes.VisitListAndReport(m_keywords);

    inp_NodeGenerationVisitor implicitNodes(nodes.ConstGetCoordMap(), elements.ConstGetElementMap(),
                                            elements.ConstGetSetMap(), true, m_restartJob, true,
                                            cow_String());
    implicitNodes.setAtelierCompatible(atelierCompatible);
    implicitNodes.VisitListAndReport(m_keywords);

    inp_PartSurfaceVisitor surfaces(nodes.ConstGetSetMap(), elements.ConstGetSetMap(),
                                    elements.ConstGetElementMap(),
                                    implicitNodes.ConstGetCoordMap());
    surfaces.VisitListAndReport(m_keywords);

    m_partCoordMap = implicitNodes.ConstGetCoordMap();
    m_partElementMap = elements.ConstGetElementMap();
    m_partElsets = elements.ConstGetSetMap();
    m_partNsets = nodes.ConstGetSetMap();
    m_partSurfaces = surfaces.ConstGetSurfaceMap();

    inp_KwdDataReleaseVisitor(true, atelierCompatible).VisitList(m_keywords);
    inp_PrintStageTime("ExtractPartMaps - Elapsed time: ", timer);
}

// The assembly level: each instance takes its part's maps by shared copies
// (moved by its transform), and the keywords of the assembly and of the
// instances add to them. The part maps are only read.
void inp_InputFile::ExtractAssemblyMaps(bool atelierCompatible) {
    omi_Timer timer;
    timer.Start();
    // A restart that imports or regenerates a model without the data of the
    // earlier job only makes labels known.
    bool const generate =
        !(!m_useImportedData && m_restartJob && (m_importJob || m_symmetricModelGeneration));
    cow_List<cow_String> const instances = m_instancePartNames.Instances();
    cow_List<cow_String> const noInstances;
    cow_List<cow_String> const& imported =
        m_useImportedData ? m_importedInstanceNames : noInstances;

    inp_AssemblyElementVisitor elements(m_partElementMap, m_partElsets, m_instancePartNames,
                                        instances, generate, imported,
                                        m_useImportedData ? m_importedElsets : inpM_SetMap());
    elements.setAtelierCompatible(atelierCompatible);
    elements.setInstancePartNames(m_instancePartNames);
    elements.VisitListAndReport(m_keywords);

    inp_AssemblyNodeVisitor nodes(m_partCoordMap, m_partNsets, elements.ConstGetElementMap(),
                                  elements.ConstGetSetMap(), m_instancePartNames, instances,
                                  m_symmetricModelGeneration, generate, m_assemblyNsets, imported,
                                  m_useImportedData ? m_importedNsets : inpM_SetMap());
    nodes.setAtelierCompatible(atelierCompatible);
    nodes.VisitListAndReport(m_keywords);

    inp_NodeGenerationVisitor implicitNodes(nodes.ConstGetCoordMap(), elements.ConstGetElementMap(),
                                            elements.ConstGetSetMap(), generate, m_restartJob,
                                            false, cow_String());
    implicitNodes.setAtelierCompatible(atelierCompatible);
    implicitNodes.VisitListAndReport(m_keywords);

    inp_AssemblySurfaceVisitor surfaces(
        nodes.ConstGetSetMap(), elements.ConstGetSetMap(), elements.ConstGetElementMap(),
        implicitNodes.ConstGetCoordMap(), m_partSurfaces, m_instancePartNames,
        m_useImportedData ? m_importedSurfaces : inpM_SurfaceMap(), imported);
    surfaces.VisitListAndReport(m_keywords);

    m_assemblyCoordMap = implicitNodes.ConstGetCoordMap();
    m_assemblyElementMap = elements.ConstGetElementMap();
    if (!m_restartJob || m_useImportedData) {
        m_assemblyNsets = nodes.ConstGetSetMap();
        m_assemblyElsets = elements.ConstGetSetMap();
        m_assemblySurfaces = surfaces.ConstGetSurfaceMap();
        m_transformationMap = nodes.ConstGetTransformationMap();
    } else {
        // A restart adds its new sets to those of the model it continues.
        m_newNsets = nodes.ConstGetSetMap();
        m_newElsets = elements.ConstGetSetMap();
        m_assemblyNsets.Merge(m_newNsets);
        m_assemblyElsets.Merge(m_newElsets);
        if (m_symmetricModelGeneration) m_assemblySurfaces.Merge(surfaces.ConstGetSurfaceMap());
    }
    inp_PrintStageTime("ExtractAssemblyMaps - Elapsed time: ", timer);
}

void inp_InputFile::CheckOutOfPlace() {
    omi_Timer timer;
    timer.Start();
    inp_PartInventoryVisitor inventory(m_partElementMap, m_assemblyElementMap, m_partElsets,
                                       m_assemblyElsets);
    if (m_partsAndAssembly) {
        inventory.VisitList(m_keywords);
        inventory.CheckViolations();
    }
    inventory.CheckOutOfPlace(m_keywords);
    inventory.Report();
    // The instances hold what they need of the parts' elements: give the
    // memory of the part tables back.
    if (m_partsAndAssembly) m_partElementMap = inpM_InstanceMap<inp_MapInt2Element>();
    inp_PrintStageTime("Checking out of place keywords - Elapsed time: ", timer);
}

// The road reads the parts of a deck written in parts; a flat deck's part
// maps are made with its generated part, and both have their assembly read.
void inp_InputFile::extractPartMapsStage() {
    if (m_partsAndAssembly) ExtractPartMaps(m_options.atelierCompatible);
}

void inp_InputFile::extractAssemblyMapsStage() {
    if (m_partsAndAssembly || m_fakePartModel) ExtractAssemblyMaps(m_options.atelierCompatible);
}
