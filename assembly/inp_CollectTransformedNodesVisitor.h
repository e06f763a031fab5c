#pragma once
// Gathers the nodes whose local systems *TRANSFORM sets: the ids of each
// NSET it names, at the assembly level or, inside an instance, nested under
// that instance. A set that does not exist adds nothing; its keyword has been
// reported by the stage that reads the sets.

#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/inpM_SetMap.h"

class inp_CollectTransformedNodesVisitor : public inp_Visitor {
  public:
    explicit inp_CollectTransformedNodesVisitor(inpM_SetMap const& nodeSets);
    ~inp_CollectTransformedNodesVisitor() override;

    // In the order of the keywords; a node in two sets stands twice.
    cow_List<int> const& Nodes() const noexcept { return m_nodes; }

    void DefaultAction(inp_Keyword& keyword) override;
    void VisitTransform(inp_Keyword& keyword) override;

  private:
    inpM_SetMap m_nodeSets;
    cow_List<int> m_nodes;
};
