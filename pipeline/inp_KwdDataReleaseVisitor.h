#pragma once
// Frees the bulk data of the mesh keywords of parts once the maps hold what
// they said: the *NODE, *ELEMENT, *NSET and *ELSET keywords inside a *PART
// keep their parameters and get an empty data array of the same kind, so that
// a model of millions of nodes does not keep its text and its maps at once.
// Keywords outside parts (a flat deck, the assembly) keep their data: later
// stages still read them.
//
// In the compatibility mode nothing is released: the caller of that mode
// reads the keywords' data after the maps are built.

#include "pipeline/inp_Visitor.h"

class inp_KwdDataReleaseVisitor : public inp_Visitor {
  public:
    // `releaseData` is what the input file passes for its own road (true);
    // false makes a walk that changes nothing. `atelierCompatible`: the
    // compatibility mode of the input file.
    inp_KwdDataReleaseVisitor(bool releaseData, bool atelierCompatible)
        : m_releaseData(releaseData), m_atelierCompatible(atelierCompatible) {}

    bool AtelierCompatible() const noexcept { return m_atelierCompatible; }

    // *ASSEMBLY and all it holds are left alone, suboptions included.
    void Visit(inp_Keyword& keyword) override;
    void DefaultAction(inp_Keyword&) override {}
    void VisitNode(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitNset(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;

  private:
    // Whether the keyword in hand lies in a part and may lose its data.
    bool releases() const noexcept {
        return m_releaseData && !m_atelierCompatible && !PartName().IsEmpty();
    }

    bool m_releaseData;
    bool m_atelierCompatible;
};
