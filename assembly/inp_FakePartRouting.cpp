// Where each keyword of a flat deck goes when the deck becomes parts: into
// the current step, the model level, the assembly, "PART-1" or a part of its
// own; mesh keywords are dropped, their content is in the maps. A keyword
// that names an orientation or rebar of the part gets the instance prefix,
// since it now stands outside the part.

#include <string>

#include "assembly/inp_FakePartVisitor.h"
#include "assembly/inp_KeywordRewrite.h"
#include "assembly/inp_KeywordsRearranger.h"
#include "deck/inp_KeywordDisplayName.h"
#include "deck/inp_KeywordTable.h"
#include "deck/inp_PatternMatchers.h"
#include "mesh/inp_Utils.h"

namespace {

std::vector<bool> levelTable(cow_List<int> const& keywords) {
    std::vector<bool> table;
    for (int const keyword : keywords) {
        if (keyword < 0) continue;
        if (static_cast<size_t>(keyword) >= table.size()) table.resize(keyword + 1, false);
        table[keyword] = true;
    }
    return table;
}

bool inTable(std::vector<bool> const& table, int keyword) {
    return keyword >= 0 && static_cast<size_t>(keyword) < table.size() && table[keyword];
}

cow_String withInstancePrefix(cow_String const& datum) {
    cow_String result(inp_FakePartVisitor::kInstancePrefix);
    result.append(datum);
    return result;
}

// The value of parameter `name`, if present and not blank, gets the prefix.
void prefixParameter(inp_Keyword& keyword, char const* name) {
    inp_RewriteParameter(keyword, name, [](cow_String const& value) {
        return value.IsEmpty() ? value : withInstancePrefix(value);
    });
}

void prefixItem(inp_Keyword& keyword, int line, int column) {
    inp_RewriteDataItem(keyword, line, column, withInstancePrefix);
}

}  // namespace

char const* const inp_FakePartVisitor::kPartName = "PART-1";
char const* const inp_FakePartVisitor::kInstancePrefix = "PART-1-1.";
char const* const inp_FakePartVisitor::kAssemblyName = "Assembly-1";

cow_String inp_FakePartVisitor::InstanceOf(cow_String const& part) {
    cow_String instance(part);
    instance.append("-1");
    return instance;
}

inp_FakePartVisitor::inp_FakePartVisitor(inp_CoordMap const& coordinates,
                                         inpM_InstanceMap<inp_MapInt2Element> const& elements,
                                         inpM_SetMap const& elementSets,
                                         inpM_SetMap const& nodeSets, bool symmetricGeneration)
    : m_nodeSets(nodeSets), m_elementSets(elementSets), m_symmetricGeneration(symmetricGeneration) {
    cow_String const fake(inp_Types::fakeName());
    if (coordinates.IsMember(fake)) m_fakeCoords = coordinates.ConstGet(fake);
    // The table is shared with the caller's map: elements moved out of it
    // into parts leave that map too. The stage hands its map over whole.
    if (elements.IsMember(fake) && elements.ConstGetMap(fake).HasValue())
        m_fakeElements = elements.ConstGet(fake);
    inp_KeywordTable const& table = inp_KeywordTable::Instance();
    m_modelLevel = levelTable(table.ModelSuboptions());
    m_assemblyLevel = levelTable(table.AssemblySuboptions());
    m_partLevel = levelTable(table.PartSuboptions());
    m_seenTypes.reserve(4096);
}

inp_FakePartVisitor::~inp_FakePartVisitor() = default;

void inp_FakePartVisitor::VisitList(cow_List<inp_Keyword>& keywords) {
    inp_KeywordsRearranger().Rearrange(keywords);
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword& keyword = keywords.Get(i);
        Visit(keyword);
        m_seenTypes.push_back(keyword.Keyword());
    }
}

// -- the routing table ----------------------------------------------------------------

void inp_FakePartVisitor::Visit(inp_Keyword& keyword) {
    switch (keyword.Keyword()) {
        case inp_kw_UndefinedKeyword:
            return;
        case inp_kw_Nset:
            // A symmetric generation reads element-based node sets itself.
            if (m_symmetricGeneration && keyword.HasParameter("elset"))
                m_assemblyKeywords.Append(keyword);
            return;
        case inp_kw_Node:
        case inp_kw_Nfill:
        case inp_kw_Ngen:
        case inp_kw_Nmap:
        case inp_kw_Ncopy:
        case inp_kw_Element:
        case inp_kw_Elgen:
        case inp_kw_Elcopy:
        case inp_kw_Elset:
        case inp_kw_AdaptiveMeshRefinement:
            return;  // the maps hold what they said
        case inp_kw_Orientation:
            m_partKeywords.Append(keyword);
            return;
        case inp_kw_Its:
        case inp_kw_Joint:
            m_hasItsOrJoint = true;
            m_partKeywords.Append(keyword);
            return;
        case inp_kw_HeatCap:
            m_assemblyKeywords.Append(keyword);
            return;
        case inp_kw_Mass:
        case inp_kw_RotaryInertia:
        case inp_kw_Adjust:
        case inp_kw_Coupling:
        case inp_kw_KinematicCoupling:
        case inp_kw_Fastener:
        case inp_kw_IntegratedOutputSection:
            prefixParameter(keyword, "orientation");
            m_assemblyKeywords.Append(keyword);
            return;
        case inp_kw_ConnectorSection:
            // Its second line names the orientations of the connector.
            prefixItem(keyword, 1, 0);
            prefixItem(keyword, 1, 1);
            m_assemblyKeywords.Append(keyword);
            return;
        case inp_kw_Surface:
            VisitSurface(keyword);
            return;
        case inp_kw_Boundary:
            AppendToStepOrModel(keyword);
            return;
        case inp_kw_InitialConditions:
            VisitInitialConditionsRebar(keyword);
            m_modelKeywords.Append(keyword);
            return;
        case inp_kw_JointedMaterial:
            prefixParameter(keyword, "jointdirection");
            m_modelKeywords.Append(keyword);
            return;
        case inp_kw_ElFile:
        case inp_kw_ElPrint:
            if (keyword.Parameters().Find("rebar") != nullptr &&
                keyword.Parameters().Find("rebar")->Type() == inp_Types::inp_STRING)
                prefixParameter(keyword, "rebar");
            AppendToStepOrModel(keyword);
            return;
        case inp_kw_Dsload:
        case inp_kw_InertiaRelief:
            // Outside a step they have no meaning, and they go without a word.
            if (!InStep()) return;
            prefixParameter(keyword, "orientation");
            AppendToStep(keyword);
            return;
        case inp_kw_PrestressHold:
            if (!InStep()) return;
            VisitPrestressHoldData(keyword);
            AppendToStep(keyword);
            return;
        case inp_kw_Distribution:
            m_distributions.Append(keyword);
            return;
        case inp_kw_EulerianSection:
            VisitEulerianSection(keyword);
            return;
        case inp_kw_RigidBody:
            VisitRigidBody(keyword);
            return;
        case inp_kw_RigidSurface:
            VisitRigidSurface(keyword);
            return;
        case inp_kw_Spring:
        case inp_kw_Dashpot:
            VisitSpringOrDashpot(keyword);
            return;
        case inp_kw_Step:
            VisitStepKeyword(keyword);
            return;
        case inp_kw_EndStep:
            VisitEndStepKeyword(keyword);
            return;
        case inp_kw_Friction:
            AppendToParent({inp_kw_ChangeFriction, inp_kw_ConnectorFriction, inp_kw_Gap,
                            inp_kw_Interface, inp_kw_Its, inp_kw_SurfaceInteraction},
                           keyword);
            return;
        case inp_kw_SurfaceBehavior:
        case inp_kw_GapConductance:
        case inp_kw_GapRadiation:
        case inp_kw_GapHeatGeneration:
        case inp_kw_ContactDamping:
            AppendToParent({inp_kw_Gap, inp_kw_Interface, inp_kw_SurfaceInteraction}, keyword);
            return;
        case inp_kw_Blockage:
            AppendToParent({inp_kw_SurfaceInteraction}, keyword);
            return;
        case inp_kw_BucklingReductionFactors:
            AppendToParent({inp_kw_BrittleCracking, inp_kw_FrameSection}, keyword);
            return;
        case inp_kw_ConnectorContactForce:
            AppendToParent({inp_kw_ConnectorFriction}, keyword);
            return;
        case inp_kw_Damping:
            AppendToParent({inp_kw_BeamGeneralSection, inp_kw_Material, inp_kw_ShellGeneralSection,
                            inp_kw_SubstructureProperty},
                           keyword);
            return;
        case inp_kw_SectionPoints:
            AppendToParent({inp_kw_BeamSectionGenerate, inp_kw_BeamGeneralSection}, keyword);
            return;
        case inp_kw_DesignVariation:
            AppendToParent(
                {inp_kw_BeamSection, inp_kw_Density, inp_kw_Elastic, inp_kw_Hyperelastic,
                 inp_kw_Hyperfoam, inp_kw_MembraneSection, inp_kw_Orientation, inp_kw_Plastic,
                 inp_kw_RigidBody, inp_kw_ShellSection, inp_kw_SolidSection, inp_kw_Friction,
                 inp_kw_GasketSection, inp_kw_Cload},
                keyword);
            return;
        default:
            DefaultAction(keyword);
            return;
    }
}

// In a step, the step's; else the highest level that allows the keyword.
void inp_FakePartVisitor::DefaultAction(inp_Keyword& keyword) {
    int const type = keyword.Keyword();
    if (InStep()) {
        AppendToStep(keyword);
    } else if (inTable(m_modelLevel, type)) {
        m_modelKeywords.Append(keyword);
    } else if (inTable(m_assemblyLevel, type)) {
        m_assemblyKeywords.Append(keyword);
    } else if (!inTable(m_partLevel, type)) {
        std::string text = "Unknown keyword: ";
        text += inp_KeywordDisplayName(keyword.Keyword()).View();
        AddError(inp_Utils::MessageInKeyword(keyword, atr_String(text.c_str())));
    } else {
        m_partKeywords.Append(keyword);
    }
}

// -- handlers ---------------------------------------------------------------------------

void inp_FakePartVisitor::VisitSurface(inp_Keyword& keyword) {
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    if (type.View() == "NODE") {
        m_assemblyKeywords.Append(keyword);
    } else if (inp_Utils::IsAnalyticalSurfaceType(type)) {
        VisitRigidSurface(keyword);
    } else {
        VisitSurfaceDefinition(keyword);
    }
}

void inp_FakePartVisitor::VisitSurfaceDefinition(inp_Keyword& keyword) {
    AppendToStepOrAssembly(keyword);
}

// Rebar names of HARDENING and STRESS initial conditions are item 2 of each
// line; those of SOLUTION the same, when they read as names.
void inp_FakePartVisitor::VisitInitialConditionsRebar(inp_Keyword& keyword) {
    if (!keyword.HasParameter("rebar") || !keyword.HasParameter("type")) return;
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    bool const always = type.View() == "HARDENING" || type.View() == "STRESS";
    bool const ifName = type.View() == "SOLUTION";
    if (!always && !ifName) return;
    int const minimumItems = always ? 1 : 2;
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        if (keyword.Data().Cols(line) < minimumItems) continue;
        if (ifName && keyword.Data().HasValue(line, 1) &&
            !inp_PatternMatchers::MatchString(keyword.Data().AsString(line, 1).View()))
            continue;
        prefixItem(keyword, line, 1);
    }
}

// Every even item of a line (2, 4, ...) that is not blank becomes the prefix
// and item 2 of that line: item 2 is what is read for all of them, so that
// a, b, c, d gives a, P.b, c, P.b.
void inp_FakePartVisitor::VisitPrestressHoldData(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        if (!keyword.Data().HasValue(line, 1)) continue;
        cow_String const scoped = withInstancePrefix(keyword.Data().AsString(line, 1));
        for (int column = 1; column < keyword.Data().Cols(line); column += 2)
            inp_RewriteDataItem(
                keyword, line, column,
                [&scoped](cow_String const&) -> cow_String const& { return scoped; });
    }
}

// A spring or dashpot right after the *ITS or *JOINT it belongs to stays
// with it in "PART-1"; any other waits for the part of its elements.
void inp_FakePartVisitor::VisitSpringOrDashpot(inp_Keyword& keyword) {
    if (m_hasItsOrJoint) {
        for (auto type = m_seenTypes.rbegin(); type != m_seenTypes.rend(); ++type) {
            if (*type != inp_kw_Its && *type != inp_kw_Joint) continue;
            if (FindLastParentKey(m_partKeywords, {inp_kw_Its, inp_kw_Joint}) == *type) {
                m_partKeywords.Append(keyword);
                return;
            }
            break;
        }
    }
    m_deferredKeywords.Append(keyword);
}

void inp_FakePartVisitor::VisitStepKeyword(inp_Keyword& keyword) {
    m_stepName = cow_String();
    SetStepName(keyword);
    // A step without a name still needs a list of its own.
    if (m_stepName.IsEmpty()) {
        std::string const name = "Step-" + std::to_string(m_stepNames.Length() + 1);
        m_stepName = cow_String(std::string_view(name));
    }
    if (!m_stepKeywordLists.IsMember(m_stepName)) {
        m_stepNames.Append(m_stepName);
        m_stepKeywordLists.Insert(m_stepName, cow_List<inp_Keyword>());
    }
    m_stepKeywordLists.Get(m_stepName).Append(keyword);
}

void inp_FakePartVisitor::VisitEndStepKeyword(inp_Keyword& keyword) {
    if (!InStep()) return;
    AppendToStep(keyword);
    ClearStepName();
}

// A keyword of its own part: an Eulerian section names the element set
// that becomes the part.
void inp_FakePartVisitor::VisitEulerianSection(inp_Keyword& keyword) {
    cow_String const set = keyword.GetParameterAsString("elset", cow_String());
    if (set.IsEmpty()) {
        m_partKeywords.Append(keyword);
        return;
    }
    m_eulerianParts.Insert(set, set);
    CreatePartEntry(set);
    PartKeywordList(set).Append(keyword);
}

// -- where keywords go ----------------------------------------------------------------

void inp_FakePartVisitor::AppendToStep(inp_Keyword const& keyword) {
    m_stepKeywordLists.Get(m_stepName).Append(keyword);
}

void inp_FakePartVisitor::AppendToStepOrModel(inp_Keyword const& keyword) {
    if (InStep()) {
        AppendToStep(keyword);
    } else {
        m_modelKeywords.Append(keyword);
    }
}

void inp_FakePartVisitor::AppendToStepOrAssembly(inp_Keyword const& keyword) {
    if (InStep()) {
        AppendToStep(keyword);
    } else {
        m_assemblyKeywords.Append(keyword);
    }
}

void inp_FakePartVisitor::ReportMisplaced(inp_Keyword const& keyword) {
    AddError(inp_Utils::MessageInKeyword(keyword, "Misplaced keyword."));
}

// The nearest keyword before this one of a type in `parents` is its
// parent; the keyword joins the first list whose last parent of those types
// is that one, with only suboptions behind it.
void inp_FakePartVisitor::AppendToParent(std::initializer_list<inp_KeywordEnm> parents,
                                         inp_Keyword const& keyword) {
    int parent = 0;
    for (auto type = m_seenTypes.rbegin(); type != m_seenTypes.rend() && parent == 0; ++type)
        for (inp_KeywordEnm candidate : parents)
            if (*type == candidate) parent = candidate;
    if (parent == 0) {
        ReportMisplaced(keyword);
        return;
    }
    cow_List<inp_Keyword>* lists[] = {InStep() ? &m_stepKeywordLists.Get(m_stepName) : nullptr,
                                      &m_modelKeywords, &m_assemblyKeywords, &m_partKeywords};
    for (cow_List<inp_Keyword>* list : lists) {
        if (list != nullptr && FindLastParentKey(*list, parents) == parent) {
            list->Append(keyword);
            return;
        }
    }
    ReportMisplaced(keyword);
}

namespace {

bool isDirectSuboption(int parent, int child) {
    cow_List<int> const& suboptions = inp_KeywordTable::Instance().Suboptions(parent);
    for (int const suboption : suboptions)
        if (suboption == child) return true;
    return false;
}

// Each keyword of list[first+1..] is a direct suboption of the keyword at
// `first` or of one in between that is itself in the range.
bool isSuboptionRange(cow_List<inp_Keyword> const& list, int first) {
    for (int i = first + 1; i < list.Length(); ++i) {
        int const child = list.ConstGet(i).Keyword();
        bool placed = false;
        for (int j = i - 1; j >= first && !placed; --j)
            placed = isDirectSuboption(list.ConstGet(j).Keyword(), child);
        if (!placed) return false;
    }
    return true;
}

}  // namespace

int inp_FakePartVisitor::FindLastParentKey(cow_List<inp_Keyword> const& list,
                                           std::initializer_list<inp_KeywordEnm> parents) {
    for (int i = list.Length() - 1; i >= 0; --i) {
        int const type = list.ConstGet(i).Keyword();
        for (inp_KeywordEnm parent : parents) {
            if (type != parent) continue;
            return isSuboptionRange(list, i) ? type : 0;
        }
    }
    return 0;
}
