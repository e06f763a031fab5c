#pragma once
// The base of the visitors that build node and element sets: it owns the set
// map of its kind and reads the data blocks of *NSET and *ELSET (and the NSET
// or ELSET of a generator) into sets. The keyword-level decisions (which
// parameters, which reader) lie in the subclasses; this class tells how a
// data block becomes a set, how ids, names and scoped names are resolved and
// how a set is stored.
//
// The scope of a reader is the current part name, or else the current
// instance name (CurrentName). The part readers work inside a scope and the
// assembly readers outside one; calling one on the wrong side is a fault of
// the subclass and fails an assertion.
//
// Every fault of the deck becomes an error in the visitor's list, and the
// reading goes on: a set that could be read only partly is returned (and
// stored by the caller) with what could be read.

#include "pipeline/inp_Visitor.h"
#include "support/inpM_Set.h"
#include "support/inpM_SetMap.h"

class inp_SetVisitor : public inp_Visitor {
  public:
    inp_SetVisitor() = default;
    // Starts from a copy of `sets`, inside the part `partName`.
    inp_SetVisitor(inpM_SetMap const& sets, cow_String const& partName);
    ~inp_SetVisitor() override;

    inpM_SetMap const& ConstGetSetMap() const noexcept { return m_setMap; }

    // -- the operations subclasses replace (after the base's slots) ----------

    // The keyword a subclass reads its sets for: "*NODE" for nodes,
    // "*ELEMENT" for elements. Messages name the set keyword of that kind
    // (see SetKeywordName).
    virtual cow_String KeywordName() const = 0;
    // Whether a scoped id or generated range may follow `name` into an
    // instance. By default an instance is valid when this visitor's set map
    // has a level for it or it is the current scope: the set map is all the
    // base knows of the model. The level-specific visitors, which know the
    // instances of the assembly, give their own answer.
    virtual bool IsValidInstanceName(cow_String const& name) const;

    // -- storing ----------------------------------------------------------------

    // Stores `set` under `name` nested in the current scope (AddPartSet) or
    // at the assembly level (AddAssySet). A name that does not start with a
    // letter, a double quote or an underscore, or that is longer than
    // kMaxSetName, is refused with an error and nothing is stored. With
    // `replace` false an existing set of the name grows by the new one (a
    // copy of it takes the union, the original stays with whoever shares it);
    // otherwise the new set takes the name.
    void AddPartSet(cow_String const& name, inpM_SetHandle const& set, bool replace);
    void AddAssySet(cow_String const& name, inpM_SetHandle const& set, bool replace);
    // The same on another map than this visitor's own.
    void AddPartSet(cow_String const& name, inpM_SetHandle const& set, inpM_SetMap& sets,
                    bool replace);
    void AddAssySet(cow_String const& name, inpM_SetHandle const& set, inpM_SetMap& sets,
                    bool replace);
    static constexpr int kMaxSetName = 80;

    // -- reading inside a part or instance ---------------------------------------

    // Ids and set names of the keyword's data, into a sorted set of the type
    // `internal`. A name is looked up nested in the scope; with
    // `searchAssembly`, at the assembly level first (its own ids) and then in
    // each instance in ascending order. Labels above kMaxId and values that
    // are neither ids nor names are listed as invalid, names found nowhere as
    // missing, each list in one error.
    inpM_SetHandle ReadIdsAndSetNames(inp_Keyword const& keyword, bool internal,
                                      bool searchAssembly);
    // The same into an unsorted set: ids of named sets and literal ids keep
    // the order in which they stand.
    inpM_SetHandle ReadUnsortedIdsAndSetNames(inp_Keyword const& keyword, bool internal,
                                              bool searchAssembly);
    // Rows of start, end and increment, into a set of the type `internal`,
    // sorted unless `unsorted`. Needs no scope. Having no keyword, its
    // messages are the plain texts of inp_Utils::GenerateSetRow.
    inpM_SetHandle GenerateSet(inp_DataArray const& data, bool internal, bool unsorted);

    // -- reading at the assembly level ---------------------------------------------

    // Generated rows whose start and end may be scoped (instance.id): the ids
    // of the assembly level, or under the instance.
    inpM_SetHandle GenerateAssemblySet(inp_Keyword const& keyword, bool internal, bool unsorted);
    // Ids, names, scoped ids (instance.id) and scoped names (instance.set,
    // assembly.instance.set) of the keyword's data; names are looked up in
    // `sets`.
    inpM_SetHandle ReadAssemblyIdsAndSetNames(inpM_SetMap const& sets, inp_Keyword const& keyword,
                                              bool internal);
    inpM_SetHandle ReadUnsortedAssemblyIdsAndSetNames(inpM_SetMap const& sets,
                                                      inp_Keyword const& keyword, bool internal);

    // -- accumulating forms ----------------------------------------------------------
    // A second block for a set `name` that may exist already (nested in the
    // scope for the part forms, at the assembly level for the assembly forms).
    // The result holds the old members and the new ones, and the caller
    // stores it in the replacing mode. An existing unsorted set read by a
    // sorted block becomes sorted; otherwise the existing set's form is kept.
    // Without an existing set the block is read into a new set of `internal`
    // and `unsorted`.

    inpM_SetHandle GenerateSetAccumulate(cow_String const& name, inp_DataArray const& data,
                                         bool internal, bool unsorted);
    inpM_SetHandle GenerateAssemblySetAccumulate(cow_String const& name, inp_Keyword const& keyword,
                                                 bool internal, bool unsorted);
    inpM_SetHandle ReadIdsAndSetNamesAccumulate(cow_String const& name, inp_Keyword const& keyword,
                                                bool internal, bool unsorted, bool searchAssembly);
    inpM_SetHandle ReadAssemblyIdsAndSetNamesAccumulate(cow_String const& name,
                                                        inpM_SetMap const& sets,
                                                        inp_Keyword const& keyword, bool internal,
                                                        bool unsorted);

    // At the assembly level, a keyword with INSTANCE=i gets its data
    // rewritten as scoped values (i.1, i.2, ...); with GENERATE the third
    // column, the increment, stays. Inside a part or instance, or without the
    // parameter, nothing happens.
    void ProcessInstanceParameter(inp_Keyword& keyword);

    // The largest node or element label: nine digits.
    static constexpr int kMaxId = 999999999;

  protected:
    // The part name when it is set, else the instance name.
    cow_String const& CurrentName() const noexcept {
        return m_partName.IsEmpty() ? m_instanceName : m_partName;
    }
    // KeywordName() as the messages about sets name it: "*NODE" reads
    // "*NSET", "*ELEMENT" reads "*ELSET", any other name stands as it is.
    cow_String SetKeywordName() const;

    inpM_SetMap m_setMap;
    inpM_SetMap m_fixupSets;                      // for the restart subclass
    cow_List<cow_String> m_missingNames;          // for subclasses
    cow_List<cow_String> m_missingAssemblyNames;  // for subclasses

  private:
    // Whether `name` may name a set; adds the error when it may not.
    bool checkSetName(cow_String const& name);
    void addSet(cow_String const& scope, cow_String const& name, inpM_SetHandle const& set,
                inpM_SetMap& sets, bool replace);
    inpM_SetHandle readIdsAndSetNames(inp_Keyword const& keyword, bool internal, bool unsorted,
                                      bool searchAssembly);
    inpM_SetHandle readAssemblyIdsAndSetNames(inpM_SetMap const& sets, inp_Keyword const& keyword,
                                              bool internal, bool unsorted);
    // The copy of an existing set that a further block grows, sorted first
    // when the block is sorted; a null handle when there is none.
    static inpM_SetHandle accumulationBase(inpM_SetHandle const* existing, bool unsorted);
    // The existing set of the name in the scope, or null.
    inpM_SetHandle const* existingPartSet(cow_String const& name) const;
    inpM_SetHandle const* existingAssemblySet(cow_String const& name) const;
};

// Whether the set `name` exists in `sets`: with `searchAssembly` at the
// assembly level or in an instance (`scope` then tells where), else nested in
// `scope`.
bool CheckExistenceOfSet(cow_String const& name, cow_String& scope, inpM_SetMap const& sets,
                         bool searchAssembly);
