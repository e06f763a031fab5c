#pragma once
// Where a keyword names an orientation (*ORIENTATION and the ORIENTATION
// parameter of sections, connectors and loads, and a few data columns); each
// name goes through FixupOrientationName.

#include <span>

#include "assembly/inp_NameFixupVisitor.h"
#include "deck/inp_keywords.h"

class inp_OrientationFixupVisitor : public inp_NameFixupVisitor {
  public:
    ~inp_OrientationFixupVisitor() override;

    virtual cow_String FixupOrientationName(cow_String const& name) = 0;
    cow_String FixupName(cow_String const& name) override { return FixupOrientationName(name); }

    // The keywords with an ORIENTATION parameter and nothing else to touch.
    static std::span<inp_KeywordEnm const> OrientationParameterKeywords();
    void DefaultAction(inp_Keyword& keyword) override;

    void VisitConnectorSection(inp_Keyword& keyword) override;
    void VisitContactPair(inp_Keyword& keyword) override;
    void VisitDEmPotential(inp_Keyword& keyword) override;
    void VisitDecurrent(inp_Keyword& keyword) override;
    void VisitDsecurrent(inp_Keyword& keyword) override;
    void VisitEulerianSection(inp_Keyword& keyword) override;
    void VisitFluidInflator(inp_Keyword& keyword) override;
    void VisitFluidInflatorActivation(inp_Keyword& keyword) override;
    void VisitFluidInflatorProperty(inp_Keyword& keyword) override;
    void VisitJointedMaterial(inp_Keyword& keyword) override;
    void VisitOrientation(inp_Keyword& keyword) override;
    void VisitShellSection(inp_Keyword& keyword) override;
    void VisitSolidSection(inp_Keyword& keyword) override;
};
