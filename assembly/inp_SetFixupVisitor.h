#pragma once
// The one place that knows where a keyword refers to nodes, elements, node
// sets or element sets: by a parameter (NSET=, REFNODE=), by a column of its
// data lines, or by all of them. The visitor decides nothing itself: for each
// reference it asks FixupIdOrSet and writes back what that returns, so a
// subclass is one answer (rename a scoped name, replace periods, note an
// undefined node, ...).
//
// Where the positions are plain they are rows of a table
// (inp_SetFixupPositions.cpp): a keyword, the form of the reference, the
// kind of thing referred to, and at most one parameter that must be present
// or absent. Keywords whose positions depend on parameter values have a
// handler of their own (inp_SetFixupRules.cpp). Keywords with no reference
// are passed over by one table lookup; their data are never read.
//
// A datum is one item of a parameter value or of a data line, as text.
// Blank items are never passed on. A datum is written back only when the
// answer differs from it, so a walk that rewrites nothing leaves every
// keyword, and the data lines it shares with copies, as they were.

#include <cstdint>
#include <span>

#include "deck/inp_keywords.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_String.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_SetMap.h"

// What the datum handed to FixupIdOrSet may be. The walk always passes
// inp_SET_OR_ID: a position of the deck holds a label or a set name alike.
enum inp_SetType : int { inp_SET = 0, inp_ID = 1, inp_SET_OR_ID = 2 };

// What a reference position names.
enum class inp_ReferenceKind : std::uint8_t { Node, Element };

// One plain reference position of a keyword.
struct inp_SetReference {
    enum class Form : std::uint8_t {
        Parameter,    // the value of `parameter`
        Column,       // item `column` of every `stride`-th data line, from the first
        ColumnsFrom,  // every item from `column` on, of every data line
        AllData,      // every item of every data line
    };
    enum class Condition : std::uint8_t {
        Always,
        IfParameter,      // only when the keyword has `condition`
        UnlessParameter,  // only when it has not
    };
    inp_KeywordEnm keyword;
    Form form;
    inp_ReferenceKind kind;
    char const* parameter = nullptr;  // Form::Parameter
    int column = 0;                   // Form::Column, Form::ColumnsFrom
    int stride = 1;                   // Form::Column
    Condition when = Condition::Always;
    char const* condition = nullptr;  // the parameter `when` tests
};

class inp_SetFixupVisitor : public inp_Visitor {
  public:
    // The sets and id maps the subclass answers from; the walk itself only
    // hands them on. Copies share the maps.
    inp_SetFixupVisitor(inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
                        inpM_IdMap const& nodeIds, inpM_IdMap const& elementIds);
    ~inp_SetFixupVisitor() override;

    // For callers serving files written by the interactive pre-processor.
    void setAtelierCompatible(bool compatible) { m_atelierCompatible = compatible; }
    bool AtelierCompatible() const { return m_atelierCompatible; }

    // Every plain position, grouped by keyword. The keywords with handlers
    // of their own are not in it.
    static std::span<inp_SetReference const> PlainReferences();
    // Those of one keyword; empty for most.
    static std::span<inp_SetReference const> PlainReferencesOf(inp_KeywordEnm keyword);

    // The plain positions of the keyword, if any.
    void DefaultAction(inp_Keyword& keyword) override;

    // -- the answer ---------------------------------------------------------

    // The datum as it is to stand in the deck. `parameterName` is the
    // parameter the datum is the value of, empty for a data item. A message
    // exception (inp_PrimException) becomes a warning on this keyword and
    // the datum stays.
    virtual cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                                    inpM_SetMap const& sets, inpM_IdMap const& ids,
                                    cow_String const& assemblyName, cow_String const& instanceName,
                                    cow_String const& partName, inp_SetType type,
                                    cow_String const& parameterName) = 0;

    // -- the node or element maps chosen --------------------------------------

    virtual void ReplaceNodeOrNsetData(inp_Keyword& keyword, std::span<int const> columns,
                                       int stride);
    virtual void ReplaceNodeOrNsetAllData(inp_Keyword& keyword);
    virtual void ReplaceElementOrElsetData(inp_Keyword& keyword, std::span<int const> columns,
                                           int stride);
    virtual void ReplaceElementOrElsetAllData(inp_Keyword& keyword);
    virtual void ReplaceNodeOrNsetParameter(inp_Keyword& keyword, cow_String const& name);
    virtual void ReplaceElementOrElsetParameter(inp_Keyword& keyword, cow_String const& name);

    // -- the generic forms ------------------------------------------------------

    // The item at (line, column), if it exists, only if it is a label: an
    // integer, or a scoped id whose last piece is one. A name stays.
    virtual void ReplaceIdSingleDatum(inp_Keyword& keyword, int line, int column,
                                      inpM_SetMap const& sets, inpM_IdMap const& ids);
    // The item at (line, column), if it exists.
    virtual void ReplaceIdOrSetSingleDatum(inp_Keyword& keyword, int line, int column,
                                           inpM_SetMap const& sets, inpM_IdMap const& ids);
    // The items at `columns` of lines 0, stride, 2 * stride, ...
    virtual void ReplaceIdOrSetData(inp_Keyword& keyword, std::span<int const> columns,
                                    inpM_SetMap const& sets, inpM_IdMap const& ids, int stride);
    virtual void ReplaceIdOrSetAllData(inp_Keyword& keyword, inpM_SetMap const& sets,
                                       inpM_IdMap const& ids);
    virtual void ReplaceIdOrSetParameter(inp_Keyword& keyword, cow_String const& name,
                                         inpM_SetMap const& sets, inpM_IdMap const& ids);

    // -- one text, not written back ---------------------------------------------

    virtual cow_String ReplaceNodeOrNset(inp_Keyword const& keyword, cow_String const& datum);
    virtual cow_String ReplaceElementOrElset(inp_Keyword const& keyword, cow_String const& datum);

    // -- keywords whose positions depend on their parameters -------------------

    void VisitAdaptiveMeshConstraint(inp_Keyword& keyword) override;
    void VisitBoundary(inp_Keyword& keyword) override;
    void VisitCflow(inp_Keyword& keyword) override;
    void VisitClearance(inp_Keyword& keyword) override;
    void VisitCload(inp_Keyword& keyword) override;
    void VisitContactPair(inp_Keyword& keyword) override;
    void VisitContourIntegral(inp_Keyword& keyword) override;
    void VisitCoSimulationRegion(inp_Keyword& keyword) override;
    void VisitContactInterference(inp_Keyword& keyword) override;
    void VisitDistribution(inp_Keyword& keyword) override;
    void VisitEquation(inp_Keyword& keyword) override;
    void VisitField(inp_Keyword& keyword) override;
    void VisitFluidInflator(inp_Keyword& keyword) override;
    void VisitFrequency(inp_Keyword& keyword) override;
    void VisitInitialConditions(inp_Keyword& keyword) override;
    void VisitModelChange(inp_Keyword& keyword) override;
    void VisitNormal(inp_Keyword& keyword) override;
    void VisitOrientation(inp_Keyword& keyword) override;
    void VisitPeriodicMedia(inp_Keyword& keyword) override;
    void VisitRebar(inp_Keyword& keyword) override;
    void VisitSectionFile(inp_Keyword& keyword) override;
    void VisitSectionPrint(inp_Keyword& keyword) override;
    void VisitSlideLine(inp_Keyword& keyword) override;
    void VisitSpatialDistribution(inp_Keyword& keyword) override;
    void VisitSubmodel(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;
    void VisitTemperature(inp_Keyword& keyword) override;

  protected:
    inpM_SetMap const& NodeSets() const { return m_nodeSets; }
    inpM_SetMap const& ElementSets() const { return m_elementSets; }
    inpM_IdMap const& NodeIds() const { return m_nodeIds; }
    inpM_IdMap const& ElementIds() const { return m_elementIds; }

    // FixupIdOrSet with the visitor's scope, turning a message exception
    // into a warning on the keyword (the datum then stays).
    cow_String Fixup(inp_Keyword const& keyword, cow_String const& datum, inpM_SetMap const& sets,
                     inpM_IdMap const& ids, cow_String const& parameterName);

  private:
    // The item through ReplaceNodeOrNset, written back when it changed.
    void replaceThroughNodeOrNset(inp_Keyword& keyword, int line, int column);
    // The node at the start of each record of values (a line of eight
    // items is continued on the next).
    void replaceNodeRecords(inp_Keyword& keyword);
    // Every item from column `first` on, of every line.
    void replaceColumnsFrom(inp_Keyword& keyword, int first, inpM_SetMap const& sets,
                            inpM_IdMap const& ids);

    inpM_SetMap m_nodeSets;
    inpM_SetMap m_elementSets;
    inpM_IdMap m_nodeIds;
    inpM_IdMap m_elementIds;
    bool m_atelierCompatible = false;
};
