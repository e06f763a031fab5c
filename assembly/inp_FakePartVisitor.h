#pragma once
// A deck written without parts (a flat deck) rewritten as one: its mesh goes
// into a generated part "PART-1" with one instance "PART-1-1" in an assembly
// "Assembly-1", rigid bodies and rigid surfaces into parts of their own, and
// every keyword to the level where it belongs. Nobody wrote these parts,
// hence "fake". After this walk the rest of the pipeline sees one form of
// model, whether the deck was flat or not.
//
// The walk reads the flat list (no suboptions yet) and the mesh the flat
// deck's mesh visitors built under the pseudo part "FAKE"; Keywords() then
// builds the new list and the part maps. Three variants:
//   inp_SimpleFakePartVisitor  the solver's: every element in "PART-1"
//   inp_FakePartVisitor        rigid, Eulerian and substructure parts too
//   inp_FullFakePartVisitor    as the last, with the mesh written out as
//                              keyword data, for a reader without the maps
//
// Routing (inp_FakePartRouting.cpp), building the list
// (inp_FakePartKeywords.cpp), rigid parts and reference nodes
// (inp_FakeRigidParts.cpp) and the variants each have a file of their own.

#include <string>
#include <unordered_map>
#include <vector>

#include "deck/inp_Keyword.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/gsl_Matrix.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"
#include "support/inpM_SurfaceMap.h"

class gsl_Point;

class inp_FakePartVisitor : public inp_Visitor {
  public:
    // The fixed names of the generated model.
    static char const* const kPartName;        // "PART-1"
    static char const* const kInstancePrefix;  // "PART-1-1."
    static char const* const kAssemblyName;    // "Assembly-1"
    // An instance is always named by its part and "-1".
    static cow_String InstanceOf(cow_String const& part);

    // The mesh of the flat deck, each under the pseudo part "FAKE" as the
    // flat deck's mesh visitors left it. `symmetricGeneration`: the job is a
    // symmetric model generation.
    inp_FakePartVisitor(inp_CoordMap const& coordinates,
                        inpM_InstanceMap<inp_MapInt2Element> const& elements,
                        inpM_SetMap const& elementSets, inpM_SetMap const& nodeSets,
                        bool symmetricGeneration);
    ~inp_FakePartVisitor() override;

    // The coordinates already hold every node the elements name (the check
    // of undefined nodes ran): the simple form need not look again.
    void SetNodesComplete(bool complete) { m_nodesComplete = complete; }

    // Puts analytical rigid surfaces ahead of the rigid bodies that name
    // them, then routes each keyword in order. No descent: the list is flat.
    void VisitList(cow_List<inp_Keyword>& keywords) override;
    // Routes one keyword (see the table in inp_FakePartRouting.cpp).
    void Visit(inp_Keyword& keyword) override;
    // The rule for every keyword without a route of its own: the current
    // step, else the highest level that allows it.
    void DefaultAction(inp_Keyword& keyword) override;

    // Handlers the variants change.
    void VisitEulerianSection(inp_Keyword& keyword) override;
    void VisitRigidBody(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;

    // The new keyword list. Call once, after the walk; the "FAKE" element
    // map is spent afterwards.
    virtual cow_List<inp_Keyword> Keywords();

    // The outputs, after Keywords(): by part name.
    inp_CoordMap const& ConstGetCoordMap() const { return m_partCoords; }
    inpM_InstanceMap<inp_MapInt2Element> const& ConstGetElementMap() const {
        return m_partElements;
    }
    inpM_SurfaceMap const& ConstGetPartSurfaces() const { return m_partSurfaces; }
    // Instance name to part name.
    inpM_InstanceMap<cow_String> const& ConstGetInstancePartNames() const {
        return m_instanceParts;
    }
    // The position of each generated part's instance, by part name.
    cow_Map<cow_String, gsl_Matrix> const& ConstGetInstanceTransforms() const {
        return m_instanceTransforms;
    }
    // Reference nodes of rigid parts, by part name.
    cow_Map<cow_String, cow_List<int>> const& ReferenceNodes() const { return m_referenceNodes; }

    // -- rigid parts and reference nodes (inp_FakeRigidParts.cpp) -------------
    bool AddRefNode(gsl_Matrix const& transform, cow_String const& part, int id, bool flag);
    bool AddRefNode(gsl_Matrix const& transform, cow_String const& part, cow_String const& setName,
                    bool flag);
    // The local system of a CYLINDER or REVOLUTION rigid surface; the
    // keyword keeps only its data from the START line on.
    gsl_Matrix ProcessRigidSurfaceLocalSystem(inp_Keyword& keyword);
    gsl_Matrix ComputeCoordSystemFromPointsABC(inp_Keyword const& keyword, gsl_Point const& a,
                                               gsl_Point const& b, gsl_Point const& c);
    gsl_Matrix ComputeCoordSystemFromPointsAB(inp_Keyword const& keyword, gsl_Point const& a,
                                              gsl_Point const& b);

    // The parts the nodes belong to, in order of first appearance: a
    // reference node's parts, "PART-1" for any other node.
    cow_List<cow_String> PartsSpannedByNodeIds(int const* nodes, int count) const;
    bool IsReferenceNode(int const* nodes, int count) const;

  protected:
    // -- routing (inp_FakePartRouting.cpp) -------------------------------------
    bool InStep() const { return !m_stepName.IsEmpty(); }
    // The current step's list, "Misplaced keyword." and the like.
    void AppendToStep(inp_Keyword const& keyword);
    void AppendToStepOrModel(inp_Keyword const& keyword);
    void AppendToStepOrAssembly(inp_Keyword const& keyword);
    void AppendToParent(std::initializer_list<inp_KeywordEnm> parents, inp_Keyword const& keyword);
    void ReportMisplaced(inp_Keyword const& keyword);
    virtual void VisitSurfaceDefinition(inp_Keyword& keyword);
    void VisitStepKeyword(inp_Keyword& keyword);
    void VisitEndStepKeyword(inp_Keyword& keyword);
    void VisitSpringOrDashpot(inp_Keyword& keyword);
    void VisitInitialConditionsRebar(inp_Keyword& keyword);
    void VisitPrestressHoldData(inp_Keyword& keyword);
    // The parent type that the last keyword of `list` of a type in
    // `parents` is, if everything behind it in `list` is its suboption; 0
    // otherwise.
    static int FindLastParentKey(cow_List<inp_Keyword> const& list,
                                 std::initializer_list<inp_KeywordEnm> parents);

    // -- building the list (inp_FakePartKeywords.cpp) ---------------------------
    void CreatePartKeywordsForDeformablePart();
    virtual bool AddElementsAndTheirNodes(cow_String const& part, std::vector<int> const& ids);
    virtual void AppendNodeKeywords();
    virtual void AssignElementsAndKeywords(std::vector<int> const& deformable,
                                           std::vector<int> const& other);
    virtual void InsertAssemblyElementKeywords();
    virtual void AppendElementKeywords(cow_List<inp_Keyword>& result);
    virtual bool AddSubstructure(int id, inp_Element const& element);
    virtual void CreateSubstructurePartEntries();
    void AssignDistributions();
    void KeywordsEnding(cow_List<inp_Keyword>& result);
    void AppendInstancePositioningData(inp_Keyword& instance, gsl_Matrix const& transform) const;
    // The keywords that open part `part`, made if missing.
    cow_List<inp_Keyword>& PartKeywordList(cow_String const& part);
    // The *ELEMENT headers of part `part`, with data where the solver needs
    // it (springs, dashpots, masses, heat capacities), and the *NODE of those.
    cow_List<inp_Keyword> ElementKeywordsOfPart(cow_String const& part) const;
    // `keywords` inserted before the *END PART of part `part` in `result`.
    static void InsertBeforeEndOfPart(cow_List<inp_Keyword>& result, cow_String const& part,
                                      cow_List<inp_Keyword> const& keywords);
    // The coordinate of `id` in the flat mesh, the default record if none.
    inp_Coord FakeCoordinate(int id) const;
    // The placeholder of a blank connectivity item.
    static constexpr int kBlankNode = -91440;
    // "%i, %lg, %lg, %lg": a node as a data line of *NODE.
    static std::string NodeLine(int id, inp_Coord const& coord);
    static void AppendLine(inp_Keyword& keyword, std::string const& line);
    // Spring or dashpot types, and the types of rigid elements.
    static bool IsSpringOrDashpotType(cow_String const& type);
    static bool IsRigidElementType(cow_String const& type);

    // -- rigid parts (inp_FakeRigidParts.cpp) ----------------------------------
    void CreatePartEntry(cow_String const& name);
    void CreateRigidBodyPartEntry(cow_String const& name);
    void MoveReferenceNodes(int id, cow_String const& part);
    void RemoveRedundantRefNodes();
    void RemoveDuplicateRefNodes();
    cow_List<cow_String> PartsSpannedByRefNode(int id) const;
    std::unordered_map<int, cow_List<cow_String>> const& referenceNodeOwners() const;
    struct SurfaceNames {
        bool unnamed = false;
        cow_String part;
        cow_String surface;
    };
    static SurfaceNames GatherSurfacePartNames(inp_Keyword const& keyword);
    void AddAnalyticalSurfaceNameToPartMap(SurfaceNames const& names);
    void ReportReferenceNode(inp_Keyword const& keyword, cow_String const& owner, bool ofBody);

    // -- inputs ------------------------------------------------------------------
    inp_CoordMap m_fakeCoords;          // the "FAKE" level
    inp_MapInt2Element m_fakeElements;  // the "FAKE" table; what stays is assembly level
    inpM_SetMap m_nodeSets;             // nested under "FAKE"
    inpM_SetMap m_elementSets;
    bool m_symmetricGeneration;

    // -- the lists the walk fills ----------------------------------------------------
    std::vector<int> m_seenTypes;
    cow_List<inp_Keyword> m_modelKeywords;
    cow_List<inp_Keyword> m_assemblyKeywords;
    cow_List<inp_Keyword> m_partKeywords;      // those of "PART-1"
    cow_List<inp_Keyword> m_deferredKeywords;  // springs and dashpots awaiting a part
    cow_List<inp_Keyword> m_distributions;     // held back until their users are known
    cow_Map<cow_String, cow_List<inp_Keyword>> m_partKeywordLists;
    cow_Map<cow_String, cow_List<inp_Keyword>> m_stepKeywordLists;
    cow_List<cow_String> m_stepNames;
    // Which levels a keyword may stand at, by enumerator.
    std::vector<bool> m_modelLevel, m_assemblyLevel, m_partLevel;

    // -- outputs and working state ----------------------------------------------------
    inp_CoordMap m_partCoords;
    inpM_InstanceMap<inp_MapInt2Element> m_partElements;
    inpM_SurfaceMap m_partSurfaces;
    inpM_InstanceMap<cow_String> m_instanceParts;
    cow_Map<cow_String, gsl_Matrix> m_instanceTransforms;
    cow_Map<cow_String, cow_List<int>> m_referenceNodes;
    // The index of referenceNodeOwners, and the map it was made from.
    mutable std::unordered_map<int, cow_List<cow_String>> m_referenceNodeOwners;
    mutable cow_Map<cow_String, cow_List<int>> m_indexedReferenceNodes;
    cow_List<int> m_flaggedReferenceNodes;
    std::vector<std::pair<int, inp_Element>> m_substructureElements;
    cow_Map<cow_String, cow_String> m_eulerianParts;  // element set to part
    cow_List<cow_String> m_rigidElementSets;
    bool m_hasItsOrJoint = false;
    bool m_nodesComplete = false;
};

// Every element in "PART-1", whatever its nodes: the cheap form the solver
// takes. Rigid bodies stay in "PART-1"; a rigid surface still gets a part
// of its own, with its data as written.
class inp_SimpleFakePartVisitor : public inp_FakePartVisitor {
  public:
    using inp_FakePartVisitor::inp_FakePartVisitor;

    void VisitEulerianSection(inp_Keyword& keyword) override;
    void VisitRigidBody(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;

    cow_List<inp_Keyword> Keywords() override;
    // *ASSEMBLY "Assembly-1", the *SURFACE keywords of TYPE=NODE, *END ASSEMBLY.
    cow_List<inp_Keyword> DiscreteSurfaceKeywords() const;
    // The maps alone, under the instance "PART-1-1", without a new list.
    void GatherPartMapOnly();

  protected:
    bool AddElementsAndTheirNodes(cow_String const& part, std::vector<int> const& ids) override;
    void AssignElementsAndKeywords(std::vector<int> const& deformable,
                                   std::vector<int> const& other) override;

  private:
    cow_List<inp_Keyword> m_nodeSurfaces;
};

// The mesh written out as keyword data, so that the new deck is complete in
// itself: for a reader that has no maps to consult.
class inp_FullFakePartVisitor : public inp_FakePartVisitor {
  public:
    using inp_FakePartVisitor::inp_FakePartVisitor;

  protected:
    void AppendNodeKeywords() override;
    void AppendElementKeywords(cow_List<inp_Keyword>& result) override;
};
