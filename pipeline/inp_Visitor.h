#pragma once
// The walk over a keyword list that every stage after parsing is made of.
//
// Visit dispatches on a keyword's numeric key to one virtual handler per
// keyword (VisitNode, VisitElset, ...), then descends into the keyword's
// suboptions. A stage derives from this class, overrides the handlers of the
// keywords it cares about and supplies DefaultAction for the rest. On the way
// the visitor follows the enclosing part, assembly, instance and step and
// the *SUBSTRUCTURE PATH depth, and it gathers the stage's diagnostics in
// three lists that Report hands, once, to the thread's wip_WIP sink.
//
// A visitor belongs to one thread and to one walk: make it, configure it, run
// VisitList or VisitListAndReport, read it back, destroy it.

#include "deck/inp_Keyword.h"
#include "pipeline/inp_VisitorSlots.h"
#include "support/ZELBasPair.h"
#include "support/ZELBasVector.h"
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/mem_Allocation.h"

#define INP_VISITOR_DECLARE_HANDLER(name) virtual void Visit##name(inp_Keyword& keyword);

class inp_Visitor : public mem_AllocationOperators {
  public:
    inp_Visitor() = default;
    inp_Visitor(inp_Visitor const&) = default;
    inp_Visitor& operator=(inp_Visitor const&) = default;
    virtual ~inp_Visitor();

    // -- walking (the order of these virtuals is part of the class layout) --

    // Visits the elements that the list holds when the walk starts, in order,
    // through their writable accessor: a handler that appends to the list
    // does not extend the walk. Beware that an append may relocate the list's
    // elements (see cow_List::Get), leaving the keyword being handled, whose
    // suboptions Visit walks next, dangling. A stage that adds keywords to
    // the list it walks should collect them and append them after the walk.
    virtual void VisitList(cow_List<inp_Keyword>& keywords);
    // Hands the three lists to the thread's sink, each only if it is not
    // empty: warnings, then errors (level 1), then fatal errors (level 2).
    // The lists stay as they are, so a second Report repeats them.
    virtual void Report() const;
    // VisitList, then Report.
    virtual void VisitListAndReport(cow_List<inp_Keyword>& keywords);
    // Calls the keyword's handler, then VisitSuboptions. A blanked keyword
    // (key 0) and the model root have no handler but are still descended
    // into. Any key outside deck/inp_keywords.h, and the end of file marker,
    // is a fault of the program: it is written to the error stream and fails
    // an assertion.
    virtual void Visit(inp_Keyword& keyword);
    // Visits, through inp_Keyword::Accept, the suboptions the keyword holds
    // when the call starts.
    virtual void VisitSuboptions(inp_Keyword& keyword);
    // What becomes of a keyword whose handler the stage does not override.
    virtual void DefaultAction(inp_Keyword& keyword) = 0;

    // -- one handler per keyword, in slot order -----------------------------
    // Each calls DefaultAction. Those of *PART, *ASSEMBLY, *INSTANCE and
    // *STEP set the scope name before it, those of the four end keywords
    // empty it after it (so the stage still sees the scope it closes), and
    // VisitSubstructurePath counts *SUBSTRUCTURE PATH levels entered (before
    // DefaultAction) and left (after it).
    INP_VISITOR_SLOTS(INP_VISITOR_DECLARE_HANDLER, INP_VISITOR_DECLARE_HANDLER)

    // -- scope --------------------------------------------------------------

    // The name of the enclosing *PART, *ASSEMBLY, *INSTANCE or *STEP; empty
    // outside one. A deck whose end keyword is missing keeps the name until
    // the next opening keyword or the end of the walk.
    cow_String const& PartName() const noexcept { return m_partName; }
    cow_String const& AssemblyName() const noexcept { return m_assemblyName; }
    cow_String const& InstanceName() const noexcept { return m_instanceName; }
    cow_String const& StepName() const noexcept { return m_stepName; }
    // How many *SUBSTRUCTURE PATH levels are entered; kept for subclasses.
    int SubstructurePathDepth() const noexcept { return m_substructurePathDepth; }

    // Each takes the value of the keyword's `name` parameter, if it has one;
    // otherwise the name stays as it was.
    void SetPartName(inp_Keyword const& keyword);
    void SetAssemblyName(inp_Keyword const& keyword);
    void SetStepName(inp_Keyword const& keyword);
    // Takes `name`, or else `instance`, or else stays as it was.
    void SetInstanceName(inp_Keyword const& keyword);
    void ClearInstanceName() { m_instanceName = cow_String(); }
    void ClearStepName() { m_stepName = cow_String(); }

    // Whether the process writes its results to a simulation file (alone or
    // beside the results database).
    bool IsSimWorkFlow() const;

    // -- diagnostics ----------------------------------------------------------

    cow_List<atr_String> const& GetErrorList() const noexcept { return m_errors; }
    cow_List<atr_String> const& GetWarningList() const noexcept { return m_warnings; }
    cow_List<atr_String> const& GetFatalErrorList() const noexcept { return m_fatalErrors; }
    // Errors and fatal errors both count.
    bool IsError() const noexcept { return m_errors.Length() + m_fatalErrors.Length() > 0; }
    bool IsWarning() const noexcept { return !m_warnings.IsEmpty(); }
    // Every error, then every fatal error, each followed by a line feed;
    // empty when there are none.
    atr_String Errors() const;
    // Every warning, each followed by a line feed.
    atr_String Warnings() const;
    // Sorts (severity, text) pairs made elsewhere into the lists, in order,
    // by the numbers of wip_Severity: 1 to the warnings, 2 to the errors, 3 to
    // the fatal errors, any other number to the warnings. The texts are taken
    // as they are, with their locations.
    void AddDiagnostics(ZELBasVector<ZELBasPair<int, atr_String>>& diagnostics);

  protected:
    // For stages: the text normally comes from inp_Utils::MessageInKeyword.
    void AddWarning(atr_String const& text) { m_warnings.Append(text); }
    void AddError(atr_String const& text) { m_errors.Append(text); }
    void AddFatalError(atr_String const& text) { m_fatalErrors.Append(text); }

    cow_String m_partName;
    cow_String m_assemblyName;
    cow_String m_instanceName;
    cow_String m_stepName;
    int m_substructurePathDepth = 0;
    cow_List<atr_String> m_errors;       // reported at level 1
    cow_List<atr_String> m_warnings;     // reported as warnings
    cow_List<atr_String> m_fatalErrors;  // reported at level 2
};

#undef INP_VISITOR_DECLARE_HANDLER
