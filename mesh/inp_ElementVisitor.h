#pragma once
// The visitor that builds the elements of a model: it walks a keyword list
// and reads *ELEMENT, *USER ELEMENT, *ELSET, *ELGEN, *ELCOPY, the ELSET of
// *FASTENER and the sets of *PARTICLE GENERATOR MIXTURE into the element
// maps and the element set map of its base.
//
// Its heart is *ELEMENT: the type decides how many nodes an element has and
// how many data rows it spans; layered types (the asymmetric axisymmetric,
// gasket and cohesive families) may be given by their bottom nodes alone,
// and the upper layers are then made by OFFSET. Where layers were made the
// keyword's data are replaced by the complete rows, so that every later
// reader of the keyword sees full connectivity.
//
// Like the node visitor it knows nothing of parts by itself: the scope is
// the current part, else instance, name of inp_Visitor, which the
// level-specific subclasses set. Every fault of the deck becomes an error in
// the visitor's lists, and the walk goes on with what was good.

#include "mesh/inp_ElementInfo.h"
#include "mesh/inp_ElementTypes.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_SetVisitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

class inp_ElementVisitor : public inp_SetVisitor {
  public:
    // `reportMissingMaster`: *ELGEN reports a master element that is not
    // defined, and *ELCOPY copies the records of the old set (without it,
    // *ELCOPY only makes the new labels known, as empty records).
    explicit inp_ElementVisitor(bool reportMissingMaster);
    // Starts from the element sets `elsets`. When they are not empty, old
    // sets named by the generators are sought at the assembly level and in
    // all instances instead of nested in the scope.
    inp_ElementVisitor(inpM_SetMap const& elsets, bool reportMissingMaster);
    ~inp_ElementVisitor() override;

    inpM_InstanceMap<inp_MapInt2Element> const& ConstGetElementMap() const noexcept {
        return m_elementMap;
    }
    // Connector elements in a part get kEmptyConnectorField for an empty
    // node field.
    void setAtelierCompatible(bool compatible) noexcept { m_atelierCompatible = compatible; }
    void setInstancePartNames(inpM_InstanceMap<cow_String> const& names) {
        m_instancePartNames = names;
    }
    // For a caller that drops the *ELEMENT data lines once this walk has
    // read them: each keyword's lines of text are freed as they are read,
    // where this visitor's keyword is the only holder of its data, so that
    // the text and the element table it becomes are not held whole at once.
    void setConsumeElementText(bool consume) noexcept { m_consumeElementText = consume; }
    // *ELSET keywords of the assembly level whose reading failed: their
    // errors were withdrawn so that they can be read again once every
    // instance is known (ReadAssyElsetIdsAndSetNames).
    cow_List<inp_Keyword> const& UnresolvedElsets() const noexcept { return m_unresolvedElsets; }

    // -- the keywords ------------------------------------------------------------
    void DefaultAction(inp_Keyword& keyword) override;
    void VisitElcopy(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitElgen(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;
    void VisitFastener(inp_Keyword& keyword) override;
    void VisitParticleGeneratorMixture(inp_Keyword& keyword) override;
    void VisitUserElement(inp_Keyword& keyword) override;
    // "*ELEMENT": messages about sets name *ELSET.
    cow_String KeywordName() const override;
    // Whether `name` is the current scope (part, else instance). The
    // level-specific subclasses, which know the instances, widen this.
    bool IsValidInstanceName(cow_String const& name) const override;

    // -- supporting operations ------------------------------------------------------

    // Whether the element set `name` exists: with searchAssembly at the
    // assembly level or in an instance (`scope` then tells where), else
    // nested in `scope`.
    bool CheckExistenceOfOldSet(cow_String const& name, cow_String& scope) const;
    // Reorders the connectivity of a mirrored element by the reflection
    // table; the type must have a row there.
    void RenumberTopologyDueToReflection(cow_String const& type, cow_List<int>& nodes) const;
    // Reads an assembly-level *ELSET. When the reading raised errors they are
    // withdrawn and the keyword is kept in UnresolvedElsets() for a second
    // reading once all instances are known; the set read so far is returned
    // all the same.
    inpM_SetHandle ReadAssyElsetIdsAndSetNames(inpM_SetMap const& sets, inp_Keyword const& keyword,
                                               bool internal, bool unsorted);

    // The largest element label: nine digits.
    static constexpr double kMaxElementLabel = 999999999.0;
    // The OFFSET of layered elements when the keyword gives none.
    static constexpr int kDefaultOffset = 100000;

  protected:
    // The element table of the scope, the top level for an empty scope. A
    // table that another holder shares is first replaced by a fresh one for
    // this scope, so that a shared copy is never written into.
    inp_MapInt2Element& targetTable();
    // Stores a sorted set of `labels` under `name` in the merging mode, in
    // the scope or at the assembly level.
    void addLabelSet(cow_String const& name, cow_List<int> const& labels);

    cow_List<inp_Keyword> m_unresolvedElsets;
    inpM_InstanceMap<inp_MapInt2Element> m_elementMap;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    inp_ElementTypes m_types;  // the type, obsolete and reflection tables
    bool m_searchAssembly = false;
    bool m_reportMissingMaster = false;
    // Node count per user element type; -1 when it is not known (FILE).
    cow_Map<cow_String, int> m_userElementNodes;
    bool m_atelierCompatible = false;
    bool m_consumeElementText = false;

  private:
    // -- *ELEMENT reading --
    // The walk over one *ELEMENT keyword's data lines (inp_ElementReader.cpp).
    class ElementKeywordReader;
    // The placeholder set of *FASTENER at the assembly level
    // (inp_ElementSets.cpp).
    void addFastenerSetAtAssembly(inp_Keyword const& keyword, cow_String const& name);

    // -- *ELGEN and *ELCOPY --
    // (inp_ElementGeneration.cpp)
    // The elements of `scope` (the top level for an empty one) as they
    // stand, without a table of their own being taken; null when it has none.
    inp_MapInt2Element const* existingTable(cow_String const& scope) const;
    // One *ELGEN row; false when the keyword ends there. The labels it makes
    // go to `labels` when that is not null.
    bool generateElgenRow(inp_Keyword const& keyword, int row, bool allNodes,
                          cow_List<int>* labels);
    // How many trailing nodes of `master` keep their labels in its copies.
    int fixedTrailingNodes(inp_Element const& master, bool allNodes) const;
    // Whether `label` may name a new element; reports it when it may not.
    bool checkGeneratedLabel(inp_Keyword const& keyword, double label);
    // The copies of *ELCOPY: empty records that only make the new labels
    // known, or shifted (and mirrored) copies of the records of the old set,
    // which lies in `setScope`. Both give the labels made.
    cow_List<int> copyLabels(inp_Keyword const& keyword, cow_List<int> const& ids);
    cow_List<int> copyElements(inp_Keyword const& keyword, cow_String const& setScope,
                               cow_List<int> const& ids);
};
