#pragma once
// Nodes a flat deck refers to but never defines. The model must still close,
// so every node reference the set fixup walk knows of is looked up in the
// coordinates of the pseudo part "FAKE", and a node not found there is
// placed at the origin, with a warning the first time it is met. Node sets
// named in a reference get their missing nodes likewise, silently. Element
// references are passed over.

#include "assembly/inp_SetFixupVisitor.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "support/cow_List.h"
#include "support/inpM_InstanceMap.h"

class inpM_BaseSet;

class inp_UndefinedNodeVisitor : public inp_SetFixupVisitor {
  public:
    // `coordinates` hold the nodes of the flat deck under "FAKE"; without
    // that pseudo part the walk adds nothing. `warn`: a node placed at the
    // origin is reported.
    inp_UndefinedNodeVisitor(inp_CoordMap const& coordinates, inpM_SetMap const& nodeSets,
                             bool warn);
    ~inp_UndefinedNodeVisitor() override;

    // Always the datum as it is; a label or a node set is completed on the
    // way.
    cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                            inpM_SetMap const& sets, inpM_IdMap const& ids,
                            cow_String const& assemblyName, cow_String const& instanceName,
                            cow_String const& partName, inp_SetType type,
                            cow_String const& parameterName) override;
    // Elements are not of interest here.
    cow_String ReplaceElementOrElset(inp_Keyword const& keyword, cow_String const& datum) override;
    // With GENERATE, the generated labels are references too.
    void VisitSlideLine(inp_Keyword& keyword) override;

    // For a restart job, whose sets may hold nodes of the earlier model:
    // every set of `sets`, nested ones included, gets its missing nodes.
    void AddUndefinedSetNodes(inpM_SetMap const& sets);
    // The nodes that the elements under "FAKE" name but the coordinates lack
    // are placed at the origin, each with the undefined node warning (when
    // warning at all), which then has no keyword to point at.
    void AddUndefinedElementNodes(inpM_InstanceMap<inp_MapInt2Element> const& elements);
    // Puts each node of `set` that `coordinates` lacks at the origin. True
    // if the set had such nodes.
    static bool AddAssemblySetNodes(inpM_BaseSet const& set, inp_CoordMap& coordinates);

    // The coordinates, completed.
    inp_CoordMap const& ConstGetCoordMap() const { return m_coordinates; }
    // The names of the sets that had undefined nodes, in the order met.
    cow_List<cow_String> const& SetsWithUndefinedNodes() const { return m_setNames; }

  private:
    void completeLabel(inp_Keyword const& keyword, cow_String const& datum);
    void completeSet(cow_String const& datum);
    void completeNamedSet(cow_String const& name, inpM_BaseSet const& set);

    inp_CoordMap m_coordinates;
    bool m_warn;
    cow_List<cow_String> m_setNames;
};
