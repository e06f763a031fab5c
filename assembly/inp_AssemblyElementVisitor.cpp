#include "assembly/inp_AssemblyElementVisitor.h"

#include "mesh/inp_Utils.h"
#include "support/inpM_Utils.h"

namespace {

bool contains(cow_List<cow_String> const& names, cow_String const& name) {
    for (cow_String const& candidate : names)
        if (candidate == name) return true;
    return false;
}

}  // namespace

inp_AssemblyElementVisitor::inp_AssemblyElementVisitor(
    inpM_InstanceMap<inp_MapInt2Element> const& partElements, inpM_SetMap const& partElementSets,
    inpM_InstanceMap<cow_String> const& instanceParts, cow_List<cow_String> const& validInstances,
    bool reportMissingMaster, cow_List<cow_String> const& importedInstances,
    inpM_SetMap const& importedElementSets)
    : inp_ElementVisitor(reportMissingMaster),
      m_partElements(partElements),
      m_partElementSets(partElementSets),
      m_validInstances(validInstances),
      m_importedInstances(importedInstances),
      m_importedElementSets(importedElementSets) {
    setInstancePartNames(instanceParts);
}

inp_AssemblyElementVisitor::~inp_AssemblyElementVisitor() = default;

void inp_AssemblyElementVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Part)) return;
    inp_ElementVisitor::Visit(keyword);
}

bool inp_AssemblyElementVisitor::IsValidInstanceName(cow_String const& name) const {
    return contains(m_validInstances, name);
}

bool inp_AssemblyElementVisitor::IsAssemblyLevelType(cow_String const& type) {
    static char const* const kTypes[] = {"MASS",     "ROTARYI",  "HEATCAP", "CONN2D2",
                                         "CONN3D2",  "SPRINGA",  "SPRING1", "SPRING2",
                                         "DASHPOTA", "DASHPOT1", "DASHPOT2"};
    for (char const* candidate : kTypes)
        if (type == candidate) return true;
    return false;
}

// -- *INSTANCE ------------------------------------------------------------------------

void inp_AssemblyElementVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_ElementVisitor::VisitInstance(keyword);
    cow_String const instance = InstanceName();
    m_instancePart = keyword.GetParameterAsString("part", cow_String());
    // A nameless instance is reported by expansion; it has no level to fill.
    if (instance.IsEmpty()) return;
    if (!m_instancePart.IsEmpty()) {
        shareMeshOfPart(instance, m_instancePart);
        return;
    }
    // Without PART the instance comes from an earlier job, if it is one of
    // those at all; its part is then known only through the map.
    if (m_instancePartNames.IsMember(instance) &&
        m_instancePartNames.ConstGetMap(instance).HasValue())
        m_instancePart = m_instancePartNames.ConstGet(instance);
    if (!m_importedInstances.IsEmpty() && contains(m_importedInstances, instance))
        shareImportedSets(instance);
}

// The empty table stands until the part's own replaces it, so that an
// instance of a part without elements still has a table to write into.
void inp_AssemblyElementVisitor::shareMeshOfPart(cow_String const& instance,
                                                 cow_String const& part) {
    m_elementMap.Insert(instance, inp_MapInt2Element());
    if (m_partElementSets.HasInstance(part))
        m_setMap.InsertNestedSetMap(instance, m_partElementSets.ConstGetNestedSetMap(part));
    if (m_partElements.IsMember(part) && m_partElements.ConstGetMap(part).HasValue())
        m_elementMap.Insert(instance, m_partElements.ConstGet(part));
}

// The earlier job may have kept the name without its quotes: the form its
// sets know is the one used.
void inp_AssemblyElementVisitor::shareImportedSets(cow_String const& instance) {
    cow_String name = instance;
    cow_String const unquoted = inpM_Utils::RemoveQuotes(instance);
    if (m_importedElementSets.HasInstance(unquoted)) name = unquoted;
    if (m_importedElementSets.HasInstance(name))
        m_setMap.InsertNestedSetMap(name, m_importedElementSets.ConstGetNestedSetMap(name));
}

void inp_AssemblyElementVisitor::VisitEndInstance(inp_Keyword& keyword) {
    inp_ElementVisitor::VisitEndInstance(keyword);
    m_instancePart = cow_String();
}

// -- *ELEMENT and *ELSET ------------------------------------------------------------------

// Other types at the assembly level, and an *ELEMENT without TYPE, are passed
// over in silence: the visitor that reads assembly elements once ids are
// global is the one that refuses them.
void inp_AssemblyElementVisitor::VisitElement(inp_Keyword& keyword) {
    if (!InstanceName().IsEmpty()) {
        inp_ElementVisitor::VisitElement(keyword);
        return;
    }
    if (!keyword.HasParameter("type")) return;
    if (IsAssemblyLevelType(keyword.GetParameterAsString("type", cow_String())))
        inp_ElementVisitor::VisitElement(keyword);
}

// A redefinition is an error, but the set is still read, so that the later
// stages see what the user wrote.
void inp_AssemblyElementVisitor::VisitElset(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("elset", cow_String());
    if (!InstanceName().IsEmpty() && keyword.HasParameter("elset") &&
        m_partElementSets.HasNestedSet(m_instancePart, name))
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The element set %1$s was defined within part %2$s, then redefined "
                         "within part instance %3$s. An element set cannot be defined at the "
                         "part level, then modified at the part instance level.",
                         name, m_instancePart, InstanceName())));
    inp_ElementVisitor::VisitElset(keyword);
}
