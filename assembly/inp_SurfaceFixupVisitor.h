#pragma once
// The one place that knows where a keyword names a surface: by a parameter
// (SURFACE=, MASTER=, SLAVE=), by columns of its data lines, or by all of
// them. For each name it asks FixupSurfaceName and writes back the answer
// when it differs; subclasses give the answer (replace periods, strip the
// assembly name, scope a flat deck's names to its part).
//
// Plain positions are rows of a table (inp_SurfaceFixupPositions.cpp);
// keywords whose positions depend on their parameters have handlers
// (inp_SurfaceFixupRules.cpp). Blank items are never passed on.

#include <cstdint>
#include <span>

#include "deck/inp_keywords.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_String.h"
#include "support/inpM_SurfaceMap.h"

// One plain position of a surface name.
struct inp_SurfaceReference {
    enum class Form : std::uint8_t {
        Parameter,  // the value of `parameter`
        Column,     // item `column` of every `stride`-th data line, from the first
        AllData,    // every item of every data line
    };
    inp_KeywordEnm keyword;
    Form form;
    char const* parameter = nullptr;  // Form::Parameter
    int column = 0;                   // Form::Column
    int stride = 1;                   // Form::Column
};

class inp_SurfaceFixupVisitor : public inp_Visitor {
  public:
    explicit inp_SurfaceFixupVisitor(inpM_SurfaceMap const& surfaces);
    ~inp_SurfaceFixupVisitor() override;

    // Every plain position, grouped by keyword.
    static std::span<inp_SurfaceReference const> PlainReferences();
    // Those of one keyword; empty for most.
    static std::span<inp_SurfaceReference const> PlainReferencesOf(inp_KeywordEnm keyword);

    // The plain positions of the keyword, if any.
    void DefaultAction(inp_Keyword& keyword) override;

    // The name as it is to stand in the deck. A message exception
    // (inp_PrimException) becomes a warning on the keyword; the name stays.
    virtual cow_String FixupSurfaceName(cow_String const& name, cow_String const& assemblyName,
                                        cow_String const& instanceName,
                                        cow_String const& partName) = 0;
    // The items at `columns` of lines offset, offset + stride, ...
    virtual void ReplaceSurfaceData(inp_Keyword& keyword, std::span<int const> columns, int stride,
                                    int offset);
    virtual void ReplaceSurfaceAllData(inp_Keyword& keyword);
    virtual void ReplaceSurfaceParameter(inp_Keyword& keyword, cow_String const& name);

    // -- keywords whose positions depend on their parameters -------------------

    void VisitCavityDefinition(inp_Keyword& keyword) override;
    void VisitContactControlsAssignment(inp_Keyword& keyword) override;
    void VisitContactInterference(inp_Keyword& keyword) override;
    void VisitContactStabilization(inp_Keyword& keyword) override;
    void VisitCoSimulationRegion(inp_Keyword& keyword) override;
    void VisitFastener(inp_Keyword& keyword) override;
    void VisitInitialConditions(inp_Keyword& keyword) override;
    void VisitModelChange(inp_Keyword& keyword) override;
    void VisitNormal(inp_Keyword& keyword) override;
    void VisitPeriodicMedia(inp_Keyword& keyword) override;
    void VisitRadiationViewfactor(inp_Keyword& keyword) override;
    void VisitSpotWeld(inp_Keyword& keyword) override;
    void VisitSubmodel(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;
    void VisitTie(inp_Keyword& keyword) override;

  protected:
    inpM_SurfaceMap const& Surfaces() const { return m_surfaces; }

    // FixupSurfaceName with the visitor's scope, a message exception turned
    // into a warning on the keyword (the name then stays).
    cow_String Fixup(inp_Keyword const& keyword, cow_String const& name);
    // The item at (line, column) through Fixup, written back when it
    // changed; absent and blank items pass.
    void ReplaceSurfaceItem(inp_Keyword& keyword, int line, int column);
    // The same, except for an item that is a number.
    void ReplaceSurfaceNameItem(inp_Keyword& keyword, int line, int column);

  private:
    inpM_SurfaceMap m_surfaces;
};
