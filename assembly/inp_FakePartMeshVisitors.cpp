#include "assembly/inp_FakePartMeshVisitors.h"

#include "deck/inp_Types.h"

inp_FakePartElementVisitor::inp_FakePartElementVisitor(inpM_SetMap const& elementSets,
                                                       bool generate)
    : inp_ElementVisitor(elementSets, generate) {}

inp_FakePartElementVisitor::~inp_FakePartElementVisitor() = default;

// A flat deck has no *PART to name a scope: the walk runs in "FAKE" from the
// start, and nothing in the deck changes it.
void inp_FakePartElementVisitor::VisitList(cow_List<inp_Keyword>& keywords) {
    m_partName = cow_String(inp_Types::fakeName());
    if (!m_elementMap.IsMember(m_partName)) m_elementMap.Insert(m_partName, inp_MapInt2Element());
    inp_ElementVisitor::VisitList(keywords);
}

inp_FakePartNodeVisitor::inp_FakePartNodeVisitor(
    inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elementSets,
    inpM_SetMap const& nodeSets, bool readCoordinates)
    : inp_NodeVisitor(elements, elementSets, nodeSets, readCoordinates) {}

inp_FakePartNodeVisitor::~inp_FakePartNodeVisitor() = default;

void inp_FakePartNodeVisitor::VisitList(cow_List<inp_Keyword>& keywords) {
    m_partName = cow_String(inp_Types::fakeName());
    if (!m_coordMap.IsMember(m_partName)) m_coordMap.Insert(m_partName, inp_CoordMap());
    inp_NodeVisitor::VisitList(keywords);
}
