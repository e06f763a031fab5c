#pragma once
// The deck's distribution tables and their uses: each *DISTRIBUTION TABLE
// is registered with the thread's inp_DistributionTableDB (its columns read
// as kinds of value), then each *DISTRIBUTION is checked against the table
// it names: the table must exist, and no line may give more values than the
// table's columns take. Keywords are only read.

#include <vector>

#include "pipeline/inp_Visitor.h"

class inp_DistributionTableVisitor : public inp_Visitor {
  public:
    // Forgets the tables of any earlier deck, registers this deck's, then
    // checks the distributions; Report.
    void VisitListAndReport(cow_List<inp_Keyword>& keywords) override;

    void DefaultAction(inp_Keyword&) override {}
    void VisitDistributionTable(inp_Keyword& keyword) override;
    void VisitDistribution(inp_Keyword& keyword) override;

  private:
    void checkUse(inp_Keyword const& distribution);

    // The distributions that name a table, in deck order; copies share
    // their parts with the deck's records.
    std::vector<inp_Keyword> m_uses;
};
