#pragma once
#include "mesh/inp_MapInt2Element.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_InstanceMap.h"
#include "support/omi_IntTable.h"

// The per-level holder of elements: the element table of a level and the
// holders of its instances, with the renumbering of element labels and the
// rewriting of connectivity after a renumbering of the nodes.
//
// A specialisation must be seen before any use of the holder, so
// inp_MapInt2Element.h includes this header: whoever can name the element
// table gets this holder.
//
// The table of a level is a shared pointer (writes show in every holder of
// it); the operations here that write never disturb another holder of the
// table: a shared table is copied, a table held alone is worked on in place.
template <>
class inpM_InstanceMap<inp_MapInt2Element> : public inpM_InstanceMapBase<inp_MapInt2Element> {
  public:
    using inpM_InstanceMapBase<inp_MapInt2Element>::inpM_InstanceMapBase;

    // Gives the elements of the tree labels without gaps from `start` on:
    // the elements of this level in ascending label order, then instance by
    // instance in ascending name order, each with all of its own tree. With
    // `keepLabels` every label maps to itself and no table changes. The
    // result records old to new and back, with a nested record per instance.
    inpM_IdMap Renumber(int start, bool keepLabels);

    // One level only, nested holders untouched: a label found in
    // `fixedLabels` takes the value found there, any other takes `next`,
    // which then grows by one.
    inpM_IdMap Renumber(int& next, bool keepLabels, omi_IntTable<int> const& fixedLabels);

    // Rewrites the connectivity of the tree through a renumbering of the
    // nodes: this level through the level's own entries of `nodeMap`, each
    // instance through the nested record of its name. A level with elements
    // that name nodes `nodeMap` lacks raises inp_ElementUndefinedNodesError
    // with their labels once all its elements were tried; the instances below
    // it are then not reached. Open positions (0, and the empty connector
    // field) are no node references and stay as they are.
    void Update(inpM_IdMap const& nodeMap);

  private:
    template <class NewLabelFor>
    void renumberLevel(inpM_IdMap& result, bool keepLabels, NewLabelFor&& newLabelFor);
    void update(inpM_IdMap const& nodeMap, cow_String const& instanceName);
    // The table of this level, for writing: cloned first when another holder
    // shares it.
    inp_MapInt2Element& isolatedTable();
};
