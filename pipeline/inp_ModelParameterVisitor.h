#pragma once
// The walk that fills inp_ModelParameters from the expanded deck. Section
// keywords count differently in heat transfer and coupled analyses, and the
// steps that say so come after them in the deck, so the walk goes twice:
// first from the first *STEP to the end, then from the start up to it.

#include "pipeline/inp_ModelParameters.h"
#include "pipeline/inp_Visitor.h"

class inp_ModelParameterVisitor : public inp_Visitor {
  public:
    // Fills `parameters`, which must outlive the walk; counts only rise.
    explicit inp_ModelParameterVisitor(inp_ModelParameters& parameters)
        : m_parameters(parameters) {}

    void VisitList(cow_List<inp_Keyword>& keywords) override;
    void DefaultAction(inp_Keyword&) override {}

    void VisitStep(inp_Keyword& keyword) override;
    void VisitStatic(inp_Keyword& keyword) override;
    void VisitHeatTransfer(inp_Keyword& keyword) override;
    void VisitCoupledTemperatureDisplacement(inp_Keyword& keyword) override;
    void VisitSymmetricModelGeneration(inp_Keyword& keyword) override;
    void VisitPart(inp_Keyword& keyword) override;
    void VisitAssembly(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitImport(inp_Keyword& keyword) override;
    void VisitDepvar(inp_Keyword& keyword) override;
    void VisitShellGeneralSection(inp_Keyword& keyword) override;
    void VisitUserElement(inp_Keyword& keyword) override;
    void VisitBeamSection(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitDistributionTable(inp_Keyword& keyword) override;
    void VisitOrientation(inp_Keyword& keyword) override;
    void VisitShellSection(inp_Keyword& keyword) override;

  private:
    bool thermalAnalysis() const {
        return m_hasHeatTransfer || m_hasCoupledTemperatureDisplacement;
    }
    void countCompositeLayers(inp_Keyword const& keyword);

    inp_ModelParameters& m_parameters;
    bool m_inPerturbationStep = false;
    bool m_hasHeatTransfer = false;
    bool m_hasCoupledTemperatureDisplacement = false;
};
