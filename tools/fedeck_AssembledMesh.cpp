#include "tools/fedeck_AssembledMesh.h"

#include <algorithm>
#include <string_view>

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_VtkCells.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_ModelNames.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

namespace {

using ElementHolder = inpM_InstanceMap<inp_MapInt2Element>;

inp_MapInt2Element const* elementsIn(ElementHolder const* holder) {
    return holder != nullptr && holder->HasValue() ? &holder->ConstGet() : nullptr;
}

// Ids of what was not drawn (an element without a cell) are left out.
void collect(cow_List<int> const& ids, fedeck_LabelIndex const& index,
             std::vector<std::int32_t>& members) {
    for (int const id : ids) {
        std::int32_t const at = index.Find(id);
        if (at >= 0) members.push_back(at);
    }
}

// Members mostly come in ascending order already (sorted sets, labels
// walked in order), which is checked in one pass before sorting.
void finish(fedeck_AssembledMesh::Set& set, std::vector<fedeck_AssembledMesh::Set>& out) {
    if (!std::is_sorted(set.members.begin(), set.members.end()))
        std::sort(set.members.begin(), set.members.end());
    set.members.erase(std::unique(set.members.begin(), set.members.end()), set.members.end());
    out.push_back(std::move(set));
}

}  // namespace

fedeck_AssembledMesh::fedeck_AssembledMesh(inp_InputFile const& deck) {
    std::vector<cow_String> const instances = inp_InstanceNames(deck);
    inp_CoordMap const& nodes = deck.AssemblyCoordMap();
    ElementHolder const& elements = deck.AssemblyElementMap();
    m_levels.resize(instances.size() + 1);
    m_levels[0].nodes = &nodes;
    m_levels[0].elements = elementsIn(&elements);
    for (std::size_t i = 0; i < instances.size(); ++i) {
        Level& level = m_levels[i + 1];
        level.instance = static_cast<int>(i);
        level.name = instances[i];
        level.nodes = nodes.IsMember(level.name) ? &nodes.ConstGet(level.name) : nullptr;
        level.elements = elementsIn(elements.ConstGetInstanceMap().Find(level.name));
        m_instanceNames.emplace_back(instances[i].View());
    }
    for (Level& level : m_levels) indexPoints(level);
    for (Level& level : m_levels) indexCells(level);
    addSets(deck);
}

fedeck_AssembledMesh::~fedeck_AssembledMesh() = default;

// The labels of the level in ascending order get the next point indices.
void fedeck_AssembledMesh::indexPoints(Level& level) {
    if (level.nodes == nullptr) return;
    inp_MapInt2Coord const table = level.nodes->ConstGet();
    if (table.Size() == 0) return;
    omi_IntTableCoord const& nodes = table.ConstGet();
    level.points.Reserve(nodes.MinKey(), nodes.MaxKey(), static_cast<std::size_t>(table.Size()));
    for (inp_MapInt2CoordSIT walk(table); walk.NotDone(); walk.Next())
        level.points.Add(walk.CurrentKey(), static_cast<std::int32_t>(m_pointCount++));
}

// The elements of the level that make a cell get the next cell indices;
// the others are counted by what kept them out.
void fedeck_AssembledMesh::indexCells(Level& level) {
    if (level.elements == nullptr || level.elements->Size() == 0) return;
    omi_IntTableElement const& elements = *level.elements->ConstGetTable();
    level.cells.Reserve(elements.MinKey(), elements.MaxKey(),
                        static_cast<std::size_t>(level.elements->Size()));
    std::int32_t points[inp_VtkCell::kMaxNodes];
    for (inp_MapInt2ElementSIT walk(*level.elements); walk.NotDone(); walk.Next()) {
        inp_Element const& element = walk.CurrentValue();
        ElementType const& type = typeOf(element.type());
        if (type.cell == nullptr) {
            ++m_typesWithoutCell[std::string(element.type().View())];
        } else if (!cellPoints(level, element, type, points)) {
            ++m_elementsWithMissingNodes;
        } else {
            level.cells.Add(walk.CurrentKey(), static_cast<std::int32_t>(m_cellCount++));
            m_connectivitySize += static_cast<std::size_t>(type.cell->nodeCount);
        }
    }
}

// Elements come in runs of one type, so the last one is kept at hand; the
// map behind it is small (the types of a model).
fedeck_AssembledMesh::ElementType const& fedeck_AssembledMesh::typeOf(
    cow_String const& type) const {
    std::string_view const name = type.View();
    if (m_lastType != nullptr && m_lastTypeName == name) return *m_lastType;
    auto found = m_types.find(name);
    if (found == m_types.end()) {
        ElementType info;
        info.cell = inp_VtkCellOf(name);
        if (info.cell != nullptr) {
            info.index = static_cast<std::int32_t>(m_elementTypeNames.size());
            m_elementTypeNames.emplace_back(name);
        }
        found = m_types.emplace(std::string(name), info).first;
    }
    m_lastTypeName = found->first;
    m_lastType = &found->second;
    return *m_lastType;
}

bool fedeck_AssembledMesh::cellPoints(Level const& level, inp_Element const& element,
                                      ElementType const& type, std::int32_t* points) const {
    // A type of the library always has the nodes of its cell; an element
    // with fewer was refused by the readers, but a short one is no cell.
    if (element.numNodesPerElement() < type.cell->nodeCount) return false;
    int const* nodes = element.nodes();
    for (int i = 0; i < type.cell->nodeCount; ++i) {
        points[i] = level.points.Find(nodes[type.cell->order[i]]);
        if (points[i] < 0) return false;
    }
    return true;
}

void fedeck_AssembledMesh::ForEachPoint(std::function<void(Point const&)> const& visit) const {
    for (Level const& level : m_levels) {
        if (level.nodes == nullptr) continue;
        inp_MapInt2Coord const table = level.nodes->ConstGet();
        for (inp_MapInt2CoordSIT walk(table); walk.NotDone(); walk.Next()) {
            inp_Coord const& coord = walk.CurrentValue();
            visit({coord.x, coord.y, coord.z, walk.CurrentKey(), level.instance});
        }
    }
}

// An element is a cell when the index pass gave it an index; its points
// are looked up only for a walk that wants them.
void fedeck_AssembledMesh::ForEachCell(std::function<void(Cell const&)> const& visit,
                                       bool withPoints) const {
    std::int32_t points[inp_VtkCell::kMaxNodes];
    for (Level const& level : m_levels) {
        if (level.elements == nullptr) continue;
        for (inp_MapInt2ElementSIT walk(*level.elements); walk.NotDone(); walk.Next()) {
            if (level.cells.Find(walk.CurrentKey()) < 0) continue;
            inp_Element const& element = walk.CurrentValue();
            ElementType const& type = typeOf(element.type());
            if (withPoints) cellPoints(level, element, type, points);
            visit({type.cell->vtkType, type.cell->nodeCount, withPoints ? points : nullptr,
                   walk.CurrentKey(), level.instance, type.index});
        }
    }
}

// Internal sets, which the system made for itself, are not shown.
void fedeck_AssembledMesh::addSets(inp_InputFile const& deck) {
    auto const addLevel = [&](inpM_SetMap const& sets, std::vector<Set>& out,
                              fedeck_LabelIndex Level::*index) {
        // A set of the assembly level holds ids of the assembly's own level
        // and ids by instance.
        sets.ConstGetSetMap().ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
            if (set->IsInternal()) return;
            Set members{std::string(name.View()), {}};
            collect(set->ConstGetIdList(), m_levels[0].*index, members.members);
            set->ConstGetInstanceIdLists().ForEachSorted(
                [&](cow_String const& instance, cow_List<int> const& ids) {
                    if (Level const* level = levelNamed(instance))
                        collect(ids, level->*index, members.members);
                });
            finish(members, out);
        });
        for (Level const& level : m_levels) {
            if (level.instance < 0 || !sets.HasInstance(level.name)) continue;
            sets.ConstGetNestedSetMap(level.name)
                .ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
                    if (set->IsInternal()) return;
                    std::string fullName(level.name.View());
                    fullName.append(".").append(name.View());
                    Set members{std::move(fullName), {}};
                    collect(set->ConstGetIdList(), level.*index, members.members);
                    finish(members, out);
                });
        }
    };
    addLevel(deck.AssemblyNsets(), m_nodeSets, &Level::points);
    addLevel(deck.AssemblyElsets(), m_elementSets, &Level::cells);
}

fedeck_AssembledMesh::Level const* fedeck_AssembledMesh::levelNamed(
    cow_String const& instance) const {
    if (instance.View().empty()) return &m_levels[0];
    auto const found = std::lower_bound(
        m_instanceNames.begin(), m_instanceNames.end(), instance.View(),
        [](std::string const& a, std::string_view b) { return std::string_view(a) < b; });
    if (found == m_instanceNames.end() || *found != instance.View()) return nullptr;
    return &m_levels[std::size_t(found - m_instanceNames.begin()) + 1];
}
