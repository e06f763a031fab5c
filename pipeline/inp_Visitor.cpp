#include "pipeline/inp_Visitor.h"

#include "support/ZELAspBcuAnalysisIROptions.h"
#include "support/ZELBasAssert.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// One route per keyword of deck/inp_keywords.h, from the keyword's camel
// name to the handler it reaches. The routes of ordinary keywords come from
// the slot list, so a keyword without a slot leaves its route undefined and
// the dispatch below fails to compile; the special keys are routed by hand.
// [[maybe_unused]]: the slot without a keyword (UserSubroutines) gets a
// route that nothing calls.
#define INP_VISITOR_ROUTE(name)                                                            \
    [[maybe_unused]] inline void route##name(inp_Visitor& visitor, inp_Keyword& keyword) { \
        visitor.Visit##name(keyword);                                                      \
    }
INP_VISITOR_SLOTS(INP_VISITOR_ROUTE, INP_VISITOR_ROUTE)
#undef INP_VISITOR_ROUTE

[[noreturn]] void failOnUnknownKey(int key) {
    aio_ostream& err = aio_cerr();
    err << "Unknown keyword key " << key << '\n';
    err.flush();
    zelbas_AssertFailed("\"Check inp_keywords.h\" == 0", __FILE__, __LINE__);
}

// A blanked keyword and the root of the keyword tree have nothing to handle;
// their suboptions are still walked.
inline void routeUndefinedKeyword(inp_Visitor&, inp_Keyword&) {}
inline void routeModel(inp_Visitor&, inp_Keyword&) {}
// The end of file marker never reaches a stage: seeing it is a fault.
inline void routeEof(inp_Visitor&, inp_Keyword& keyword) {
    failOnUnknownKey(keyword.Keyword());
}
// *MODAL PRINT takes the same options as *PRINT and is handled with it.
inline void routeModalPrint(inp_Visitor& visitor, inp_Keyword& keyword) {
    visitor.VisitPrint(keyword);
}

// Every slot but UserSubroutines belongs to one keyword, and four keywords
// (the special ones above) have no slot of their own.
#define INP_VISITOR_COUNT(name) +1
constexpr int kSlotCount = 0 INP_VISITOR_SLOTS(INP_VISITOR_COUNT, INP_VISITOR_COUNT);
#undef INP_VISITOR_COUNT
static_assert(kSlotCount == inp_keywordCount - 4 + 1,
              "inp_VisitorSlots.h and inp_keywords.h disagree on the keyword handlers");

bool hasParameter(inp_Keyword const& keyword, char const* name) {
    return keyword.HasParameter(name);
}

// Takes the text of the keyword's parameter into `field` if it has it.
bool takeParameter(inp_Keyword const& keyword, char const* name, cow_String& field) {
    inp_Item const* value = keyword.Parameters().Find(name);
    if (!value) return false;
    field = value->AsString();
    return true;
}

atr_String joinLines(cow_List<atr_String> const& first, cow_List<atr_String> const& second) {
    atr_String text;
    for (atr_String const& line : first) text.append(line).append('\n');
    for (atr_String const& line : second) text.append(line).append('\n');
    return text;
}

}  // namespace

inp_Visitor::~inp_Visitor() = default;

// -- walking ------------------------------------------------------------------

void inp_Visitor::VisitList(cow_List<inp_Keyword>& keywords) {
    int const count = keywords.Length();
    for (int i = 0; i < count; ++i) Visit(keywords.Get(i));
}

void inp_Visitor::Report() const {
    if (m_warnings.IsEmpty() && m_errors.IsEmpty() && m_fatalErrors.IsEmpty()) return;
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    if (!m_warnings.IsEmpty()) sink.WarningList(m_warnings, zel_DefaultStringMode);
    if (!m_errors.IsEmpty()) sink.ErrorList(m_errors, wip_LEVEL1, zel_DefaultStringMode);
    if (!m_fatalErrors.IsEmpty()) sink.ErrorList(m_fatalErrors, wip_LEVEL2, zel_DefaultStringMode);
}

void inp_Visitor::VisitListAndReport(cow_List<inp_Keyword>& keywords) {
    VisitList(keywords);
    Report();
}

// The keys come in sparse bands, so the switch compiles to a few jump tables
// and comparisons: no string is looked at and nothing is allocated.
void inp_Visitor::Visit(inp_Keyword& keyword) {
    switch (keyword.Keyword()) {
#define INP_VISITOR_CASE(camel, name, number) \
    case number:                              \
        route##camel(*this, keyword);         \
        break;
        INP_KEYWORDS(INP_VISITOR_CASE)
#undef INP_VISITOR_CASE
        default:
            failOnUnknownKey(keyword.Keyword());
    }
    VisitSuboptions(keyword);
}

void inp_Visitor::VisitSuboptions(inp_Keyword& keyword) {
    cow_List<inp_Keyword>& suboptions = keyword.GetSuboptions();
    int const count = suboptions.Length();
    for (int i = 0; i < count; ++i) suboptions.Get(i).Accept(*this);
}

// inp_Keyword::Accept is declared with the keyword but defined here: the deck
// layer lies below the visitors and may not include this header, while
// calling Visit needs the full visitor class.
void inp_Keyword::Accept(inp_Visitor& visitor) {
    visitor.Visit(*this);
}

// -- handlers -------------------------------------------------------------------

#define INP_VISITOR_DEFAULT_HANDLER(name)                 \
    void inp_Visitor::Visit##name(inp_Keyword& keyword) { \
        DefaultAction(keyword);                           \
    }
#define INP_VISITOR_SCOPED_HANDLER(name)  // written out below
INP_VISITOR_SLOTS(INP_VISITOR_DEFAULT_HANDLER, INP_VISITOR_SCOPED_HANDLER)
#undef INP_VISITOR_DEFAULT_HANDLER
#undef INP_VISITOR_SCOPED_HANDLER

void inp_Visitor::VisitPart(inp_Keyword& keyword) {
    SetPartName(keyword);
    DefaultAction(keyword);
}

// A new *ASSEMBLY or *STEP scope always takes the keyword's name. The
// expansion stage reports an *ASSEMBLY without a name but keeps the keyword,
// and a caller may walk a list that expansion has not seen, so a missing
// name is input, not a fault of the program: the scope name is then empty.
void inp_Visitor::VisitAssembly(inp_Keyword& keyword) {
    m_assemblyName = cow_String();
    takeParameter(keyword, "name", m_assemblyName);
    DefaultAction(keyword);
}

void inp_Visitor::VisitInstance(inp_Keyword& keyword) {
    SetInstanceName(keyword);
    DefaultAction(keyword);
}

void inp_Visitor::VisitStep(inp_Keyword& keyword) {
    m_stepName = cow_String();
    takeParameter(keyword, "name", m_stepName);
    DefaultAction(keyword);
}

void inp_Visitor::VisitEndPart(inp_Keyword& keyword) {
    DefaultAction(keyword);
    m_partName = cow_String();
}

void inp_Visitor::VisitEndAssembly(inp_Keyword& keyword) {
    DefaultAction(keyword);
    m_assemblyName = cow_String();
}

void inp_Visitor::VisitEndInstance(inp_Keyword& keyword) {
    DefaultAction(keyword);
    ClearInstanceName();
}

void inp_Visitor::VisitEndStep(inp_Keyword& keyword) {
    DefaultAction(keyword);
    ClearStepName();
}

// A keyword with both `enterelement` and `leave` (or neither) leaves the
// depth alone, and leaving never takes it below 0.
void inp_Visitor::VisitSubstructurePath(inp_Keyword& keyword) {
    bool const enters = hasParameter(keyword, "enterelement");
    bool const leaves = hasParameter(keyword, "leave");
    if (enters && !leaves) ++m_substructurePathDepth;
    DefaultAction(keyword);
    if (leaves && !enters && m_substructurePathDepth > 0) --m_substructurePathDepth;
}

// -- scope ----------------------------------------------------------------------

void inp_Visitor::SetPartName(inp_Keyword const& keyword) {
    takeParameter(keyword, "name", m_partName);
}

void inp_Visitor::SetAssemblyName(inp_Keyword const& keyword) {
    takeParameter(keyword, "name", m_assemblyName);
}

void inp_Visitor::SetStepName(inp_Keyword const& keyword) {
    takeParameter(keyword, "name", m_stepName);
}

void inp_Visitor::SetInstanceName(inp_Keyword const& keyword) {
    if (!takeParameter(keyword, "name", m_instanceName))
        takeParameter(keyword, "instance", m_instanceName);
}

bool inp_Visitor::IsSimWorkFlow() const {
    return ZELAspBcuAnalysisIROptions::Instance().WritesSimulationFile();
}

// -- diagnostics ------------------------------------------------------------------

atr_String inp_Visitor::Errors() const {
    return joinLines(m_errors, m_fatalErrors);
}

atr_String inp_Visitor::Warnings() const {
    return joinLines(m_warnings, cow_List<atr_String>());
}

void inp_Visitor::AddDiagnostics(ZELBasVector<ZELBasPair<int, atr_String>>& diagnostics) {
    for (ZELBasPair<int, atr_String> const& diagnostic : diagnostics) {
        switch (static_cast<wip_Severity>(diagnostic.first)) {
            case wip_Severity::Error:
                m_errors.Append(diagnostic.second);
                break;
            case wip_Severity::Fatal:
                m_fatalErrors.Append(diagnostic.second);
                break;
            default:  // warnings, and any number without a meaning of its own
                m_warnings.Append(diagnostic.second);
        }
    }
}
