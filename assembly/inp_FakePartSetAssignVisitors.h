#pragma once
// The sets of a flat deck once its mesh is parts. The flat deck's sets live
// under the pseudo part "FAKE"; a set used inside one generated part, and
// whose members all lie in it, becomes a *NSET or *ELSET of that part, and
// any other set a set of the assembly, its members named by instance
// ("PART-1-1.7,"). The walk only reads: it records which part uses which
// set, and reports a part that uses what it does not hold; Keywords then
// writes the set keywords into the list.
//
// inp_SimpleFakeAssignVisitor is the solver's form: there is one part, and
// every set is that part's.

#include <vector>

#include "assembly/inp_SetFixupVisitor.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_ModelParameters.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/inpM_InstanceMap.h"

class inpM_BaseSet;

class inp_FakePartSetAssignVisitor : public inp_SetFixupVisitor {
  public:
    // The part maps are nested by part name and hold the deck's labels; the
    // sets are those of the flat deck, nested under "FAKE".
    inp_FakePartSetAssignVisitor(inpM_InstanceMap<inp_MapInt2Element> const& partElements,
                                 inp_CoordMap const& partCoords, inpM_IdMap const& nodeIds,
                                 inpM_IdMap const& elementIds, inpM_SetMap const& nodeSets,
                                 inpM_SetMap const& elementSets,
                                 inp_ModelParameters const& parameters);
    ~inp_FakePartSetAssignVisitor() override;

    // Never changes the datum: records the set users of the part at hand,
    // and reports a reference the part does not hold.
    cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                            inpM_SetMap const& sets, inpM_IdMap const& ids,
                            cow_String const& assemblyName, cow_String const& instanceName,
                            cow_String const& partName, inp_SetType type,
                            cow_String const& parameterName) override;

    // Inside a section keyword an undefined set is a warning only.
    void VisitBeamGeneralSection(inp_Keyword& keyword) override;
    void VisitBeamSection(inp_Keyword& keyword) override;
    void VisitCohesiveSection(inp_Keyword& keyword) override;
    void VisitConnectorSection(inp_Keyword& keyword) override;
    void VisitEulerianSection(inp_Keyword& keyword) override;
    void VisitFrameSection(inp_Keyword& keyword) override;
    void VisitGasketSection(inp_Keyword& keyword) override;
    void VisitMembraneSection(inp_Keyword& keyword) override;
    void VisitShellGeneralSection(inp_Keyword& keyword) override;
    void VisitShellSection(inp_Keyword& keyword) override;
    void VisitSolidSection(inp_Keyword& keyword) override;
    // The element set of a fastener counts in every part it spans.
    void VisitFastener(inp_Keyword& keyword) override;
    // The reference node of a rigid surface must lie in some part.
    void VisitRigidSurface(inp_Keyword& keyword) override;

    // Writes the set keywords into `list`: each part's sets behind its
    // *PART, the assembly's before *END ASSEMBLY. Call after VisitList.
    virtual void Keywords(cow_List<inp_Keyword>& list);

    // The sets after Keywords(), nested by part.
    inpM_SetMap const& ConstGetNsetMap() const { return m_resultNodeSets; }
    inpM_SetMap const& ConstGetElsetMap() const { return m_resultElementSets; }

    // The instance (part name and "-1") that holds a node or element, the
    // first in instance order; empty if none. And all of them.
    cow_String GetInstanceName(inp_ReferenceKind kind, int id) const;
    cow_List<cow_String> GetInstanceNames(inp_ReferenceKind kind, int id) const;
    // The distinct parts that hold the ids, or the members of the "FAKE"
    // set `name`, in instance order (ascending part name).
    cow_List<cow_String> PartsSpannedByIds(inp_ReferenceKind kind, cow_List<int> const& ids) const;
    cow_List<cow_String> PartsSpannedBySet(inp_ReferenceKind kind, cow_String const& name) const;

  protected:
    using SetUsers = cow_Map<cow_String, cow_Map<cow_String, int>>;  // part to set names

    inpM_SetMap const& FakeSets(inp_ReferenceKind kind) const;
    SetUsers& Users(inp_ReferenceKind kind) {
        return kind == inp_ReferenceKind::Node ? m_nodeSetUsers : m_elementSetUsers;
    }
    using inp_SetFixupVisitor::PartName;  // the scope of the walk
    // The first part that uses the set; empty for an assembly set.
    virtual cow_String PartName(inp_ReferenceKind kind, cow_String const& name) const;
    // The set keywords of `names` that `part` uses, inserted behind its *PART.
    void InsertPartSets(cow_List<inp_Keyword>& list, inp_ReferenceKind kind, cow_String const& part,
                        cow_List<cow_String> const& names) const;
    cow_List<inp_Keyword> CreatePartSets(inp_ReferenceKind kind, cow_String const& part,
                                         cow_List<cow_String> const& names) const;
    void AddSets(inp_ReferenceKind kind, cow_String const& part, cow_String const& name);
    void AddSets(inp_ReferenceKind kind);
    cow_List<inp_Keyword> CreateAssemblySets(inp_ReferenceKind kind) const;
    void InsertAssemblySets(cow_List<inp_Keyword>& list, inp_ReferenceKind kind) const;
    inp_Keyword CreateSetKeyword(inp_ReferenceKind kind, bool assemblyLevel, cow_String const& name,
                                 inpM_BaseSet const& set) const;
    void GenerateUnsortedSetKeyword(inp_ReferenceKind kind, bool assemblyLevel,
                                    cow_List<int> const& ids, inp_Keyword& keyword) const;
    // The set keywords of each part gathered behind its *PART.
    void RearrangeNsetKeywords(cow_List<inp_Keyword>& list) const;
    // The index behind the *PART named `part`; -1 if none.
    static int GetInsertPosition(cow_List<inp_Keyword> const& list, cow_String const& part);

    inpM_SetMap& Result(inp_ReferenceKind kind) {
        return kind == inp_ReferenceKind::Node ? m_resultNodeSets : m_resultElementSets;
    }

    inpM_InstanceMap<inp_MapInt2Element> m_partElements;
    inp_CoordMap m_partCoords;
    cow_List<cow_String> m_parts;  // instance order
    inp_ModelParameters m_parameters;
    SetUsers m_nodeSetUsers;
    SetUsers m_elementSetUsers;
    inpM_SetMap m_resultNodeSets;
    inpM_SetMap m_resultElementSets;

  private:
    void record(inp_ReferenceKind kind, cow_String const& part, cow_String const& set);
    bool holds(cow_String const& part, inp_ReferenceKind kind, int id) const;
    void report(inp_Keyword const& keyword, inp_ReferenceKind kind, bool isSet,
                cow_String const& datum, cow_String const& part,
                cow_List<cow_String> const& spanned);

    bool m_inSectionKeyword = false;
};

// One part, "PART-1", which owns every set.
class inp_SimpleFakeAssignVisitor : public inp_FakePartSetAssignVisitor {
  public:
    using inp_FakePartSetAssignVisitor::inp_FakePartSetAssignVisitor;

    // The sets go to the maps alone, without keywords.
    void SuppressSetKeywords(bool suppress) { m_suppressSetKeywords = suppress; }

    void Keywords(cow_List<inp_Keyword>& list) override;

  protected:
    using inp_FakePartSetAssignVisitor::PartName;
    cow_String PartName(inp_ReferenceKind kind, cow_String const& name) const override;

  private:
    bool m_suppressSetKeywords = false;
};
