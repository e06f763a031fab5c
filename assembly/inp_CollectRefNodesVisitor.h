#pragma once
// Gathers, after renumbering, the global ids of the nodes that keywords name
// as reference nodes (REF NODE of rigid bodies, couplings, fluid properties,
// integrated output sections and rigid surfaces), and the nodes of each
// tracer set of *TRACER PARTICLE. A reference may be a node id, a node set,
// or at the assembly level a scoped id (instance.id) or scoped set
// (instance.set); whatever cannot be resolved is left out without a message,
// since the stages that read these keywords have reported it already.

#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_SetMap.h"

class inp_CollectRefNodesVisitor : public inp_Visitor {
  public:
    // `nodeSets`: the assembly-level sets and those of each instance, holding
    // global ids. `nodeIds`: old to global node ids, with a record per
    // instance.
    inp_CollectRefNodesVisitor(inpM_SetMap const& nodeSets, inpM_IdMap const& nodeIds);
    ~inp_CollectRefNodesVisitor() override;

    cow_List<int> const& RefNodes() const noexcept { return m_refNodes; }
    cow_Map<cow_String, cow_List<int>> const& TracerSets() const noexcept { return m_tracerSets; }

    void DefaultAction(inp_Keyword& keyword) override;
    void VisitFluidProperty(inp_Keyword& keyword) override;
    void VisitIntegratedOutputSection(inp_Keyword& keyword) override;
    void VisitKinematicCoupling(inp_Keyword& keyword) override;
    void VisitRigidBody(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitTracerParticle(inp_Keyword& keyword) override;

    // Appends the global ids of the keyword's REF NODE, if it has one.
    void CollectRefNodeFromParameter(inp_Keyword const& keyword);
    // The global ids that `text` names in the current scope.
    cow_List<int> TranslateDataIntoGlobalIDs(cow_String const& text) const;

  private:
    void appendGlobalIds(cow_String const& text, cow_List<int>& ids) const;
    void appendInInstance(cow_String const& instance, cow_String const& text,
                          cow_List<int>& ids) const;
    void appendAtAssembly(cow_String const& text, cow_List<int>& ids) const;
    void appendScoped(cow_List<cow_String> const& pieces, cow_List<int>& ids) const;

    inpM_SetMap m_nodeSets;
    inpM_IdMap m_nodeIds;
    cow_List<int> m_refNodes;
    cow_Map<cow_String, cow_List<int>> m_tracerSets;
};
