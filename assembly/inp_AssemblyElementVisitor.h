#pragma once
// The element visitor of the assembly level. An instance is never expanded:
// it gets its part's element table by a shared handle and its part's element
// sets as its nested set map, and only a keyword inside the instance that
// changes them makes a copy. At the assembly level itself only the element
// types that may live there (masses, inertias, springs, dashpots, heat
// capacitances and connectors) are read.
//
// The maps of the parts are the results of inp_PartElementVisitor; they are
// only read here.

#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_MapInt2Element.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

class inp_AssemblyElementVisitor : public inp_ElementVisitor {
  public:
    // `instanceParts` maps each instance to its part; `validInstances` are
    // the instances a scoped id may name. The instances imported from an
    // earlier job come with their element sets; a new job has none.
    inp_AssemblyElementVisitor(inpM_InstanceMap<inp_MapInt2Element> const& partElements,
                               inpM_SetMap const& partElementSets,
                               inpM_InstanceMap<cow_String> const& instanceParts,
                               cow_List<cow_String> const& validInstances,
                               bool reportMissingMaster = true,
                               cow_List<cow_String> const& importedInstances = {},
                               inpM_SetMap const& importedElementSets = inpM_SetMap());
    ~inp_AssemblyElementVisitor() override;

    // *PART, with all it holds, is passed over.
    void Visit(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;
    void VisitEndInstance(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;

    bool IsValidInstanceName(cow_String const& name) const override;

    // Whether an *ELEMENT of this type may stand at the assembly level.
    static bool IsAssemblyLevelType(cow_String const& type);

  private:
    void shareMeshOfPart(cow_String const& instance, cow_String const& part);
    void shareImportedSets(cow_String const& instance);

    inpM_InstanceMap<inp_MapInt2Element> m_partElements;
    inpM_SetMap m_partElementSets;
    cow_List<cow_String> m_validInstances;
    cow_List<cow_String> m_importedInstances;
    inpM_SetMap m_importedElementSets;
    cow_String m_instancePart;  // the part of the open instance
};
