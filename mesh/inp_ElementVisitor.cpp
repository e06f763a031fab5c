#include "mesh/inp_ElementVisitor.h"

#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

// *ELEMENT lives in inp_ElementReader.cpp, *ELGEN and *ELCOPY in
// inp_ElementGeneration.cpp, the set keywords in inp_ElementSets.cpp.

// -- construction -------------------------------------------------------------------

inp_ElementVisitor::inp_ElementVisitor(bool reportMissingMaster)
    : m_reportMissingMaster(reportMissingMaster) {}

inp_ElementVisitor::inp_ElementVisitor(inpM_SetMap const& elsets, bool reportMissingMaster)
    : m_searchAssembly(!elsets.IsEmpty()), m_reportMissingMaster(reportMissingMaster) {
    m_setMap = elsets;
}

inp_ElementVisitor::~inp_ElementVisitor() = default;

void inp_ElementVisitor::DefaultAction(inp_Keyword&) {}

cow_String inp_ElementVisitor::KeywordName() const {
    return "*ELEMENT";
}

bool inp_ElementVisitor::IsValidInstanceName(cow_String const& name) const {
    return name == CurrentName();
}

// -- supporting operations ------------------------------------------------------------

bool inp_ElementVisitor::CheckExistenceOfOldSet(cow_String const& name, cow_String& scope) const {
    return CheckExistenceOfSet(name, scope, m_setMap, m_searchAssembly);
}

// The visitor's reflection table is loaded from the same rows as the one
// the element types keep for the process.
void inp_ElementVisitor::RenumberTopologyDueToReflection(cow_String const& type,
                                                         cow_List<int>& nodes) const {
    inp_ElementTypes::RenumberTopologyDueToReflection(type, nodes);
}

inp_MapInt2Element& inp_ElementVisitor::targetTable() {
    cow_String const& scope = CurrentName();
    if (scope.IsEmpty()) {
        if (!m_elementMap.HasValue()) m_elementMap.SetValue(inp_MapInt2Element());
        return m_elementMap.Get();
    }
    if (!m_elementMap.IsMember(scope)) m_elementMap.Insert(scope, inp_MapInt2Element());
    inp_MapInt2Element& table = m_elementMap.Get(scope);
    if (table.UseCount() >= 2) table.AdoptNewTable();
    return table;
}

void inp_ElementVisitor::addLabelSet(cow_String const& name, cow_List<int> const& labels) {
    inpM_SetHandle const set = CreateSet(labels, false, false);
    if (CurrentName().IsEmpty())
        AddAssySet(name, set, false);
    else
        AddPartSet(name, set, false);
}
