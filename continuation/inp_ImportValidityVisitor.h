#pragma once
// Whether a deck imports correctly. An instance written with INSTANCE= (and
// a LIBRARY, or the old job named on the command line) is imported from an
// earlier analysis: its content comes from the old job, so the keywords
// inside it are neutralised (made dead, with a warning), except the few
// that may refine an imported instance (sets, surfaces, masses, couplings,
// rigid bodies, ...). It needs its *IMPORT option. The old *IMPORT outside
// the assembly and the new keyword interface may not be mixed, nor import
// with a rezoning *MAP SOLUTION.

#include "continuation/inp_ImportKwdData.h"
#include "pipeline/inp_Visitor.h"

class inp_ImportValidityVisitor : public inp_Visitor {
  public:
    // VisitList, then the checks of the whole deck, then Report.
    void VisitListAndReport(cow_List<inp_Keyword>& keywords) override;

    // Inside an imported instance, a keyword without a handler of its own
    // is made dead, with a warning.
    void DefaultAction(inp_Keyword& keyword) override;

    void VisitAssembly(inp_Keyword& keyword) override;
    void VisitPart(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitEndInstance(inp_Keyword& keyword) override;
    void VisitImport(inp_Keyword& keyword) override;
    void VisitMapSolution(inp_Keyword& keyword) override;
    void VisitSymmetricModelGeneration(inp_Keyword& keyword) override;
    // Allowed in an imported instance: they refine it.
    void VisitCoupling(inp_Keyword&) override {}
    void VisitElset(inp_Keyword&) override {}
    void VisitEndAssembly(inp_Keyword&) override {}
    void VisitEndPart(inp_Keyword&) override {}
    void VisitGap(inp_Keyword&) override {}
    void VisitInclude(inp_Keyword&) override {}
    void VisitIntegratedOutputSection(inp_Keyword&) override {}
    void VisitMass(inp_Keyword&) override {}
    void VisitMpc(inp_Keyword&) override {}
    void VisitNonStructuralMass(inp_Keyword&) override {}
    void VisitNset(inp_Keyword&) override {}
    void VisitRelease(inp_Keyword&) override {}
    void VisitRigidBody(inp_Keyword&) override {}
    void VisitRigidSurface(inp_Keyword&) override {}
    void VisitRotaryInertia(inp_Keyword&) override {}
    void VisitSurface(inp_Keyword&) override {}

    // The old job named on the command line ("oldjobcla").
    static bool oldJobCommandLineParameterDefined();
    static cow_String getOldJobCommandLineParameter();
    // Any of INSTANCE, REFERENCE CONFIGURATION, LIBRARY, STATE, STEP,
    // INCREMENT, INTERVAL, ITERATION.
    static bool hasImportComponentParameters(inp_Keyword const& keyword);

    bool isImportActive() const { return m_importActive; }
    void setImportActive(bool active) { m_importActive = active; }
    bool inImportedComponent() const { return !m_importedComponentName.IsEmpty(); }
    void setImportedComponentName(cow_String const& name) { m_importedComponentName = name; }
    void unsetImportedComponentName() { m_importedComponentName = cow_String(); }
    inp_ImportKwdData const& ImportData() const { return m_importData; }

  private:
    void checkImportValidity();
    void readLibraryOfInstance(inp_Keyword const& keyword);

    bool m_importActive = false;
    bool m_oldImportKeywordSeen = false;
    bool m_newImportKeywordSeen = false;
    bool m_mapSolutionSeen = false;
    bool m_symmetricModelGenerationSeen = false;
    bool m_inAssembly = false;
    bool m_importOptionSeen = false;
    cow_String m_importedComponentName;
    inp_ImportKwdData m_importData;
};
