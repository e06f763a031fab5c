#include "mesh/inp_ElementInstanceMap.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "mesh/inp_ElementUndefinedNodesError.h"
#include "support/inpM_OmiSet.h"

namespace {

bool namesNode(int entry) {
    return entry != inp_Element::kOpenPosition && entry != inp_Element::kEmptyConnectorField;
}

// Translates the node references of one connectivity; open positions stay as
// they are. A node the map lacks raises, and then nothing has changed.
void translateConnectivity(inpM_IdMap const& nodeMap, int* nodes, int count,
                           std::vector<int>& references) {
    if (std::all_of(nodes, nodes + count, namesNode)) {
        nodeMap.Renumber(nodes, count);
        return;
    }
    references.clear();
    std::copy_if(nodes, nodes + count, std::back_inserter(references), namesNode);
    nodeMap.Renumber(references.data(), static_cast<int>(references.size()));
    auto translated = references.begin();
    for (int i = 0; i < count; ++i) {
        if (namesNode(nodes[i])) nodes[i] = *translated++;
    }
}

}  // namespace

inpM_IdMap inpM_InstanceMap<inp_MapInt2Element>::Renumber(int start, bool keepLabels) {
    inpM_IdMap result;
    int next = start;
    renumberLevel(result, keepLabels, [&next](int) { return next++; });
    for (cow_String const& name : Instances()) {
        inpM_IdMap const nested = m_instances.Get(name).Renumber(next, keepLabels);
        next += nested.NumberIds();
        result.Insert(name, nested);
    }
    return result;
}

inpM_IdMap inpM_InstanceMap<inp_MapInt2Element>::Renumber(int& next, bool keepLabels,
                                                          omi_IntTable<int> const& fixedLabels) {
    inpM_IdMap result;
    renumberLevel(result, keepLabels, [&next, &fixedLabels](int label) {
        int const* const fixed = fixedLabels.Lookup(label);
        return fixed ? *fixed : next++;
    });
    return result;
}

void inpM_InstanceMap<inp_MapInt2Element>::Update(inpM_IdMap const& nodeMap) {
    update(nodeMap, cow_String());
}

template <class NewLabelFor>
void inpM_InstanceMap<inp_MapInt2Element>::renumberLevel(inpM_IdMap& result, bool keepLabels,
                                                         NewLabelFor&& newLabelFor) {
    // A level without a table has no labels to give.
    if (!HasValue()) return;
    if (keepLabels) {
        for (inp_MapInt2ElementSIT walk(ConstGet()); walk.NotDone(); walk.Next()) {
            result.Insert(walk.CurrentKey(), walk.CurrentKey());
        }
        return;
    }
    if (ConstGet().IsEmpty()) return;
    // Get() first: a handle shared with a copy of this holder is cloned, and
    // that clone is one more holder of the table, so the count read below
    // tells whether anybody else would see a change made in place.
    inp_MapInt2Element& level = Get();
    auto relabel = [&result, &newLabelFor](int label) {
        int const newLabel = newLabelFor(label);
        result.Insert(label, newLabel);
        return newLabel;
    };
    inp_MapInt2Element renumbered;
    if (level.UseCount() > 1) {
        for (auto [label, record] : *level.ConstGetTable()) {
            renumbered.Insert(relabel(label), *record);
        }
    } else {
        // Held alone: the records change hands, none is copied. Our table is
        // one table for both signs, so "clearing both sign tables" of the old
        // one is the single forget inside the move.
        level.GetTable().MoveRecordsInto(renumbered.GetTable(), relabel);
    }
    level = std::move(renumbered);
}

void inpM_InstanceMap<inp_MapInt2Element>::update(inpM_IdMap const& nodeMap,
                                                  cow_String const& instanceName) {
    if (HasValue() && !ConstGet().IsEmpty()) {
        inp_MapInt2Element& level = isolatedTable();
        inpM_OmiSet undefined;
        std::vector<int> references;
        for (inp_MapInt2ElementSIT walk(level); walk.NotDone(); walk.Next()) {
            inp_Element* const element = walk.CurrentValuePtr();
            try {
                translateConnectivity(nodeMap, element->nodes(), element->numNodesPerElement(),
                                      references);
            } catch (nex_PrimException<atr_String, 1> const&) {
                undefined.Insert(walk.CurrentKey());
            }
        }
        if (!undefined.IsEmpty()) {
            cow_List<int> const labels = undefined.ConstGetArrayCounterpart();
            if (instanceName.IsEmpty()) throw inp_ElementUndefinedNodesError(labels);
            throw inp_ElementUndefinedNodesError(instanceName, labels);
        }
    }
    for (cow_String const& name : Instances()) {
        // An instance the node renumbering has no record of has no nodes to
        // name: its elements, if any, are reported, rather than looked up in
        // a record that isn't there.
        inpM_IdMap const nested = nodeMap.IsMember(name) ? nodeMap.ConstGet(name) : inpM_IdMap();
        m_instances.Get(name).update(nested, name);
    }
}

inp_MapInt2Element& inpM_InstanceMap<inp_MapInt2Element>::isolatedTable() {
    inp_MapInt2Element& level = Get();
    if (level.UseCount() > 1) level.AdoptCopyOfTable();
    return level;
}
