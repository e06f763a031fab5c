// Name hygiene: the period is the separator of scoped names, and these
// stages keep it so. The names a deck defines may not hold one; a flat deck
// has the periods of the names it refers to replaced before it becomes a
// part; a deck of parts has references by the assembly's full name
// shortened to the instance-level form the maps use.

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "assembly/inp_RemovePeriodVisitors.h"
#include "assembly/inp_ScopedNameVisitors.h"
#include "mesh/inp_Utils.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// The parameters whose value is a name the keyword defines.
struct DefiningParameters {
    inp_KeywordEnm keyword;
    std::initializer_list<std::string_view> parameters;
};

DefiningParameters const kDefiningParameters[] = {
    {inp_kw_Assembly, {"name"}},
    {inp_kw_Instance, {"name"}},
    {inp_kw_Part, {"name"}},
    {inp_kw_Elcopy, {"newset", "oldset"}},
    {inp_kw_Ncopy, {"newset", "oldset"}},
    {inp_kw_Element, {"elset"}},
    {inp_kw_Elgen, {"elset"}},
    {inp_kw_Elset, {"elset"}},
    {inp_kw_Nfill, {"nset"}},
    {inp_kw_Ngen, {"nset"}},
    {inp_kw_Node, {"nset"}},
    {inp_kw_Nmap, {"nset"}},
    {inp_kw_Nset, {"nset"}},
    {inp_kw_RigidSurface, {"name"}},
    {inp_kw_Surface, {"name"}},
    {inp_kw_Orientation, {"name"}},
    {inp_kw_Rebar, {"name"}},
};

DefiningParameters const* definingParametersOf(inp_KeywordEnm keyword) {
    for (DefiningParameters const& entry : kDefiningParameters)
        if (entry.keyword == keyword) return &entry;
    return nullptr;
}

// The only message the check raises. Its sibling for flat decks, "A period
// may not be used within a set, surface, orientation, or rebar name. To
// avoid further errors, remove the period from this name.", is not used:
// a flat deck is told the same as a deck of parts.
constexpr char const* kPeriodInName =
    "Period cannot be used within set, surface, orientation, instance, and assembly names in a "
    "model defined in terms of an assembly of parts";

// A name is most often a string, read where it lies; an integer holds no
// period; other values are seen as they print.
bool hasUnquotedPeriod(inp_Item const& value) {
    if (cow_String const* text = value.IfString()) return inp_Utils::HasNameUnquotedPeriod(*text);
    if (value.Type() == inp_Types::inp_INTEGER) return false;
    return inp_Utils::HasNameUnquotedPeriod(value.AsString());
}

// Depth first, keyword before its suboptions; false once an offender is
// reported, which ends the whole check.
bool checkNames(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords) {
        if (DefiningParameters const* entry = definingParametersOf(keyword.Keyword())) {
            for (std::string_view const parameter : entry->parameters) {
                inp_Item const* value = keyword.Parameters().Find(parameter);
                if (value == nullptr) continue;
                if (!hasUnquotedPeriod(*value)) continue;
                thr_ThreadSingleton<wip_WIP>::Instance().Error(
                    inp_Utils::MessageInKeyword(keyword, atr(kPeriodInName)), wip_LEVEL1);
                return false;
            }
        }
        if (!keyword.Suboptions().IsEmpty() && !checkNames(keyword.Suboptions())) return false;
    }
    return true;
}

}  // namespace

void inp_InputFile::ProhibitPeriodInNames(cow_List<inp_Keyword> const& keywords) {
    checkNames(keywords);
}

void inp_InputFile::RemovePeriods(bool fullFakeParts) {
    // The set and surface walks only rename; what they might say is said
    // again, where it matters, by the stages that read the names.
    inp_RemovePeriodSetVisitor sets(fullFakeParts);
    sets.VisitList(m_keywords);
    inp_RemovePeriodSurfaceVisitor surfaces;
    surfaces.VisitList(m_keywords);
    inp_RemovePeriodDistributionVisitor distributions;
    distributions.VisitListAndReport(m_keywords);
    inp_RemovePeriodOrientationVisitor orientations;
    orientations.VisitListAndReport(m_keywords);
    inp_RemovePeriodRebarVisitor rebars;
    rebars.VisitListAndReport(m_keywords);
    inp_RemovePeriodMaterialVisitor materials;
    materials.VisitListAndReport(m_keywords);
}

void inp_InputFile::ModifyScopedNames() {
    cow_String assemblyName;
    for (inp_Keyword const& keyword : m_keywords) {
        if (!keyword.Is(inp_kw_Assembly)) continue;
        assemblyName = keyword.GetParameterAsString("name", cow_String());
        break;
    }
    ModifyScopedNames(assemblyName);
}

void inp_InputFile::ModifyScopedNames(cow_String const& assemblyName) {
    inp_ScopedNameSetVisitor sets(assemblyName);
    sets.VisitListAndReport(m_keywords);
    inp_ScopedNameSurfaceVisitor surfaces(assemblyName, m_restartJob);
    surfaces.VisitListAndReport(m_keywords);
    inp_ScopedNameDistributionVisitor distributions(assemblyName);
    distributions.VisitListAndReport(m_keywords);
    inp_ScopedNameOrientationVisitor orientations(assemblyName);
    orientations.VisitListAndReport(m_keywords);
    inp_ScopedNameRebarVisitor rebars(assemblyName);
    rebars.VisitListAndReport(m_keywords);
    inp_ScopedNameMaterialVisitor materials(assemblyName);
    materials.VisitListAndReport(m_keywords);
}

void inp_InputFile::scopedNamesStage() {
    if (m_partsAndAssembly) ModifyScopedNames();
}
