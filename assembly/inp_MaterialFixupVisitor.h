#pragma once
// Where a keyword names a material outside *MATERIAL itself; each name goes
// through FixupMaterialName.

#include "assembly/inp_NameFixupVisitor.h"

class inp_MaterialFixupVisitor : public inp_NameFixupVisitor {
  public:
    ~inp_MaterialFixupVisitor() override;

    virtual cow_String FixupMaterialName(cow_String const& name) = 0;
    cow_String FixupName(cow_String const& name) override { return FixupMaterialName(name); }

    void VisitEulerianSection(inp_Keyword& keyword) override;
    void VisitFluidInflator(inp_Keyword& keyword) override;
    void VisitInitialConditions(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;

  private:
    // The items of `column` that are names.
    void replaceNames(inp_Keyword& keyword, int column);
};
