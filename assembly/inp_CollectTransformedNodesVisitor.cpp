#include "assembly/inp_CollectTransformedNodesVisitor.h"

inp_CollectTransformedNodesVisitor::inp_CollectTransformedNodesVisitor(inpM_SetMap const& nodeSets)
    : m_nodeSets(nodeSets) {}

inp_CollectTransformedNodesVisitor::~inp_CollectTransformedNodesVisitor() = default;

void inp_CollectTransformedNodesVisitor::DefaultAction(inp_Keyword&) {}

void inp_CollectTransformedNodesVisitor::VisitTransform(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("nset", cow_String());
    cow_String const& instance = InstanceName();
    inpM_SetHandle const* set = nullptr;
    if (instance.IsEmpty()) {
        if (m_nodeSets.HasSet(name)) set = &m_nodeSets.ConstGetSet(name);
    } else if (m_nodeSets.HasNestedSet(instance, name)) {
        set = &m_nodeSets.ConstGetNestedSet(instance, name);
    }
    if (set) m_nodes.Concatenate((*set)->ConstGetIdList());
}
