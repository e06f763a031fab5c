#pragma once
// Reads the *ELEMENT keywords of the assembly level once the model has been
// renumbered, when node ids are global. Only the elements that may join
// instances (connectors, springs, dashpots, gaps, masses, rotary inertias,
// capacitances, couplings) are allowed there, and their connectivity items
// are assembly-level node numbers or scoped ids (instance.id), each turned
// into its global id through the node id map.
//
// The walk skips the sub-trees of *PART, *INSTANCE and *STEP: elements of a
// part or instance are not this visitor's business. Its *ELSET handler reads
// assembly-level element sets only when the caller asks for it.

#include "mesh/inp_ElementVisitor.h"
#include "support/inpM_IdMap.h"

class inp_AssyLevelElemVisitor : public inp_ElementVisitor {
  public:
    // Starts from the instance element maps and element sets as they stand;
    // the assembly-level table is copied before the first write, so the
    // caller's maps are never written into. `nodeIds` translates old node
    // ids to global ones, its nested records those of each instance.
    inp_AssyLevelElemVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elementMaps,
                             inpM_SetMap const& elsets, inpM_IdMap const& nodeIds,
                             bool readElsets = false);
    ~inp_AssyLevelElemVisitor() override;

    // Passes over *PART, *INSTANCE and *STEP with all they hold.
    void Visit(inp_Keyword& keyword) override;
    // Elements inside an instance are left alone.
    void VisitElement(inp_Keyword& keyword) override;
    // Assembly-level element sets, read only when enabled at construction.
    void VisitElset(inp_Keyword& keyword) override;
    // Scoped ids may name any instance: the id map decides what exists.
    bool IsValidInstanceName(cow_String const& name) const override;

    // Reads one assembly-level *ELEMENT keyword into the assembly table.
    void VisitElementImpl(inp_Keyword& keyword);
    // The global id of a connectivity item: an assembly-level node number,
    // or instance.id (the instance being the last but one piece). A failure
    // is reported against the keyword being read and gives 0; so does a 0
    // when `zeroAllowed` (a connector's ground), without a message. Virtual
    // so that a caller can widen what an item may be; note that the reader
    // resolves the plain form instance.id of raw data in place (see
    // resolveRawScopedId) and comes here for every other item and failure.
    virtual int GetGlobalNodeFromScopedID(cow_String const& item, bool zeroAllowed);

  private:
    class ElementLineReader;

    // The global id of a raw item of the form instance.id, read in place;
    // false, with nothing reported, for any other form or an unknown
    // instance or id, which GetGlobalNodeFromScopedID then words.
    bool resolveRawScopedId(char const* text, int& node);
    // The global id of an assembly-level node number.
    int globalAssemblyNode(int label, bool zeroAllowed);
    // The global id of the scoped id split into `pieces` (instance.id).
    int globalInstanceNode(cow_List<cow_String> const& pieces);
    // The table of the assembly level, private to this visitor.
    inp_MapInt2Element& assemblyTable();
    void error(atr_String const& text);

    inpM_IdMap m_nodeIds;
    bool m_readElsets;
    inp_Keyword const* m_keyword = nullptr;  // the keyword being read, for messages
    // The instance of the last raw scoped id resolved, and its id record.
    cow_String m_lastInstance;
    inpM_IdMap const* m_lastInstanceIds = nullptr;
};
