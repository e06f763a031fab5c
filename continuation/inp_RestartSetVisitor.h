#pragma once
// The node or element sets a restart deck adds to the model of the job it
// continues. A restart may add sets, never change one: a set the earlier
// job has is refused. What a new set may name depends on what the earlier
// model was made of:
//
// - a model in parts and an assembly: the set is named in full, the
//   assembly's name first ("Assembly-1.S" for the assembly, "Assembly-1.I.S"
//   for instance I), and read at that level;
// - a flat model (made parts by the system): the name has no period, the
//   set goes to the assembly, and each id or set it names is found in
//   whichever generated instance holds it.
//
// The new sets are kept apart from the earlier ones (NewSets); the earlier
// ones are only read.

#include "mesh/inp_SetVisitor.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_InstanceMap.h"

class inp_RestartSetVisitor : public inp_SetVisitor {
  public:
    enum class Kind { NodeSets, ElementSets };

    // `oldSets` are the earlier job's sets of this kind, `ids` its id map of
    // this kind (node or element), `partsModel` whether its model was
    // written in parts and an assembly, named `assemblyName`.
    inp_RestartSetVisitor(Kind kind, inpM_SetMap const& oldSets, cow_String const& assemblyName,
                          bool partsModel, inpM_IdMap const& ids);

    // The flat model's id maps are kept by part; a part that an instance of
    // `names` (instance to part) uses stands for that instance when a set's
    // ids are placed.
    void setInstancePartNames(inpM_InstanceMap<cow_String> const& names) {
        m_instancePartNames = names;
    }

    inpM_SetMap const& NewSets() const noexcept { return m_newSets; }

    // Only the set keywords of this visitor's kind are read.
    void DefaultAction(inp_Keyword&) override {}
    void VisitNset(inp_Keyword& keyword) override;
    void VisitElset(inp_Keyword& keyword) override;
    // "NSET" or "ELSET".
    cow_String KeywordName() const override;

    void KeywordNsetElset(inp_Keyword& keyword, char const* parameterName);

    // The first instance of `ids` whose own table holds `id`, as the
    // instance it stands for; empty for none.
    cow_String FindOwningInstance(inpM_IdMap const& ids, int id) const;
    // The first instance of `sets` with a set `name`; empty for none.
    static cow_String FindOwningInstance(inpM_SetMap const& sets, cow_String const& name);

    // A flat model's new set: generated rows, or ids and set names, each
    // placed in the instance that holds it.
    inpM_SetHandle GenerateAssemblySetSpanningInstances(inp_Keyword const& keyword, bool internal);
    inpM_SetHandle ReadAssemblyIdsAndSetNamesSpanningInstances(inp_Keyword const& keyword,
                                                               bool internal);

  private:
    bool existsInOriginal(cow_String const& name) const;
    void readPartsModelSet(inp_Keyword& keyword, cow_String const& name, bool generate,
                           bool internal);
    void readFlatModelSet(inp_Keyword& keyword, cow_String const& name, bool generate,
                          bool internal);
    bool isOriginalInstance(cow_String const& instance) const;
    // The one error that lists what a spanning set named in vain.
    void reportMissing(inp_Keyword const& keyword, cow_List<cow_String> const& missing);
    // The instance an id-map key stands for (see setInstancePartNames).
    cow_String instanceOfKey(cow_String const& key) const;

    Kind m_kind;
    inpM_SetMap m_oldSets;
    cow_String m_originalAssemblyName;
    bool m_partsModel;
    inpM_IdMap m_ids;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    inpM_SetMap m_newSets;
};
