#include "mesh/inp_CoordMap.h"

#include <utility>

#include "support/aio_Stream.h"

namespace {
using InstanceHandle = cow_COW<inp_CoordMap, cow_Direct<inp_CoordMap>>;
}  // namespace

inp_Coord inp_CoordMap::ConstGet(int label) const {
    return globalRecord(m_nodes.ConstGet(LocalID(label)));
}

inp_Coord inp_CoordMap::ConstGet(int label, inp_Coord const& fallback) const {
    inp_Coord const* const record = m_nodes.Find(LocalID(label));
    return record != nullptr ? globalRecord(*record) : fallback;
}

inp_MapInt2Coord inp_CoordMap::ConstGet() const {
    if (m_transformation.IsIdentity() && m_localIds.IsEmpty()) return m_nodes;
    cow_IntTableInt const current = currentLabels();
    inp_MapInt2Coord global;
    omi_IntTableCoord& table = global.Get();
    for (auto [stored, value] : m_nodes.ConstGet()) {
        int const* const label = current.Lookup(stored);
        table.Insert(label != nullptr ? *label : stored,
                     globalRecord(omi_IntTableCoord::Record(value)));
    }
    return global;
}

bool inp_CoordMap::Insert(int label, inp_Coord const& record) {
    return m_nodes.Insert(LocalID(label), record);
}

bool inp_CoordMap::Remove(int label) {
    return m_nodes.Remove(LocalID(label));
}

cow_List<cow_String> inp_CoordMap::Instances() const {
    cow_List<cow_String> names;
    m_instances.ForEachSorted(
        [&names](cow_String const& name, InstanceHandle const&) { names.Append(name); });
    return names;
}

void inp_CoordMap::Insert(cow_String const& instance, inp_CoordMap const& map) {
    m_instances.Insert(instance, InstanceHandle(map));
}

void inp_CoordMap::ChangeInstanceName(cow_String const& oldName, cow_String const& newName) {
    if (oldName == newName) return;
    InstanceHandle const* const map = m_instances.Find(oldName);
    if (map == nullptr) return;
    InstanceHandle const moved = *map;  // `map` dies with the entry
    m_instances.Insert(newName, moved);
    m_instances.Remove(oldName);
}

int inp_CoordMap::Count() const {
    int count = m_nodes.Size();
    m_instances.ForEachSorted(
        [&count](cow_String const&, InstanceHandle const& map) { count += map->Count(); });
    return count;
}

void inp_CoordMap::Transform(gsl_Matrix const& matrix) {
    if (matrix.IsIdentity()) return;
    m_transformation.Concatenate(matrix);
    if (m_instances.IsEmpty()) return;
    InstanceMap moved;
    m_instances.ForEachSorted([&moved, &matrix](cow_String const& name, InstanceHandle map) {
        map.Get().m_transformation.Concatenate(matrix);
        moved.Insert(name, map);
    });
    m_instances = std::move(moved);
}

inpM_IdMap inp_CoordMap::Renumber(int start, bool keepLabels) {
    inpM_IdMap result;
    int next = start;
    renumberLevel(keepLabels, result, [&next](int) { return next++; });
    InstanceMap renumbered;
    m_instances.ForEachSorted([&](cow_String const& name, InstanceHandle const& map) {
        inp_CoordMap copy = map.ConstGet();
        inpM_IdMap const nested = copy.Renumber(next, keepLabels);
        next += nested.NumberIds();
        result.Insert(name, nested);
        renumbered.Insert(name, InstanceHandle(std::move(copy)));
    });
    m_instances = std::move(renumbered);
    return result;
}

inpM_IdMap inp_CoordMap::Renumber(int& next, bool keepLabels,
                                  omi_IntTable<int> const& fixedLabels) {
    inpM_IdMap result;
    renumberLevel(keepLabels, result, [&next, &fixedLabels](int label) {
        int const* const fixed = fixedLabels.Lookup(label);
        return fixed != nullptr ? *fixed : next++;
    });
    return result;
}

// Walks the nodes by ascending stored label and asks `newLabel` for the new
// label of each current one. The renumbering table is built anew rather than
// added to, so that renumbering twice leaves no stale entries behind.
template <class NewLabel>
void inp_CoordMap::renumberLevel(bool keepLabels, inpM_IdMap& result, NewLabel newLabel) {
    cow_IntTableInt const current = currentLabels();
    auto currentOf = [&current](int stored) {
        int const* const label = current.Lookup(stored);
        return label != nullptr ? *label : stored;
    };
    if (keepLabels) {
        for (auto entry : m_nodes.ConstGet()) {
            int const label = currentOf(entry.key);
            result.Insert(label, label);
        }
        return;
    }
    cow_IntTableInt renumbered;
    omi_IntTable<int>& table = renumbered.GetTable();
    for (auto entry : m_nodes.ConstGet()) {
        int const old = currentOf(entry.key);
        int const label = newLabel(old);
        table.Insert(label, entry.key);
        result.Insert(old, label);
    }
    m_localIds = std::move(renumbered);
}

void inp_CoordMap::Print(aio_ostream& out) const {
    for (auto entry : m_nodes.ConstGet()) out << entry.key << '\n';
    m_instances.ForEachSorted([&out](cow_String const& name, InstanceHandle const& map) {
        out << name << '\n';
        map->Print(out);
    });
}

// Moved by the transform of this level. The `defined` flag is not looked at,
// unlike inp_Coord::Transform: a record read through the map is always
// placed where the level lies.
inp_Coord inp_CoordMap::globalRecord(inp_Coord record) const {
    if (m_transformation.IsIdentity()) return record;
    gsl_Point point = record.Point();
    m_transformation.Transform(point);
    record.SetPoint(point);
    record.NormalizePlusRotate(m_transformation);
    return record;
}

cow_IntTableInt inp_CoordMap::currentLabels() const {
    return m_localIds.IsEmpty() ? cow_IntTableInt() : Invert(m_localIds);
}

cow_IntTableInt Invert(cow_IntTableInt const& table) {
    cow_IntTableInt inverted;
    if (table.IsEmpty()) return inverted;
    omi_IntTable<int>& entries = inverted.GetTable();
    for (auto [key, value] : table) entries.Insert(value, key);
    return inverted;
}
