#pragma once
// Where a keyword names a distribution: section thickness and offset
// parameters, the data of *ORIENTATION and of material behaviours, and
// *DISTRIBUTION itself. Each name goes through FixupDistributionName.

#include "assembly/inp_NameFixupVisitor.h"
#include "deck/inp_Keyword.h"
#include "support/cow_Map.h"

class inp_DistributionFixupVisitor : public inp_NameFixupVisitor {
  public:
    ~inp_DistributionFixupVisitor() override;

    virtual cow_String FixupDistributionName(cow_String const& name) = 0;
    cow_String FixupName(cow_String const& name) override { return FixupDistributionName(name); }

    // Reads up to `count` numbers of the default line (the first line, whose
    // first item is blank) of the *DISTRIBUTION called `name` that the walk
    // has passed, as the walk left it, into `values`. Returns how many were
    // read: 0 for an unknown distribution or one without a default line.
    int GetDefaultDataDouble(cow_String const& name, double* values, int count) const;

    void VisitDensity(inp_Keyword& keyword) override;
    void VisitDistribution(inp_Keyword& keyword) override;
    void VisitElastic(inp_Keyword& keyword) override;
    void VisitExpansion(inp_Keyword& keyword) override;
    void VisitMembraneSection(inp_Keyword& keyword) override;
    void VisitOrientation(inp_Keyword& keyword) override;
    void VisitShellGeneralSection(inp_Keyword& keyword) override;
    void VisitShellSection(inp_Keyword& keyword) override;

  private:
    // The first item of the first line, when it is a name.
    void replaceFirstNameOfFirstLine(inp_Keyword& keyword);

    cow_Map<cow_String, inp_Keyword> m_distributions;  // by name, as the walk left them
};
