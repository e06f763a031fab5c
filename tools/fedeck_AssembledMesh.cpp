#include "tools/fedeck_AssembledMesh.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_VtkCells.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_ModelNames.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

namespace {

using ElementHolder = inpM_InstanceMap<inp_MapInt2Element>;

// From the labels of one level to the indices they were given in the mesh.
// Labels are mostly dense, so a table over their range serves; a level
// whose labels are scattered wide gets a hash map instead.
class LabelIndex {
  public:
    void Reserve(int first, int last, std::size_t count) {
        std::int64_t const range = std::int64_t(last) - first + 1;
        m_dense = range > 0 && range <= std::int64_t(2 * count + 1024);
        m_first = first;
        if (m_dense) m_table.assign(static_cast<std::size_t>(range), -1);
    }
    void Add(int label, std::int32_t index) {
        if (m_dense)
            m_table[static_cast<std::size_t>(std::int64_t(label) - m_first)] = index;
        else
            m_sparse.emplace(label, index);
    }
    // -1 for a label the level lacks.
    std::int32_t Find(int label) const {
        if (m_dense) {
            std::int64_t const at = std::int64_t(label) - m_first;
            return at >= 0 && at < std::int64_t(m_table.size()) ? m_table[std::size_t(at)] : -1;
        }
        auto const found = m_sparse.find(label);
        return found != m_sparse.end() ? found->second : -1;
    }

  private:
    bool m_dense = true;
    int m_first = 0;
    std::vector<std::int32_t> m_table;
    std::unordered_map<int, std::int32_t> m_sparse;
};

// One level of the model: the assembly's own (instance -1) or an instance.
struct Level {
    int instance;
    cow_String name;  // empty for the assembly's own level
    LabelIndex points;
    LabelIndex cells;
};

class MeshAssembler {
  public:
    MeshAssembler(inp_InputFile const& deck, fedeck_AssembledMesh& mesh)
        : m_deck(deck), m_mesh(mesh) {}

    void Assemble() {
        std::vector<cow_String> const instances = inp_InstanceNames(m_deck);
        m_levels.resize(instances.size() + 1);
        m_levels[0].instance = -1;
        for (std::size_t i = 0; i < instances.size(); ++i) {
            m_levels[i + 1].instance = static_cast<int>(i);
            m_levels[i + 1].name = instances[i];
            m_mesh.instanceNames.emplace_back(instances[i].View());
        }
        for (Level& level : m_levels) addPoints(level);
        for (Level& level : m_levels) addCells(level);
        addAssemblySets(m_deck.AssemblyNsets(), m_mesh.nodeSets, &Level::points);
        addAssemblySets(m_deck.AssemblyElsets(), m_mesh.elementSets, &Level::cells);
        for (Level& level : m_levels) {
            if (level.instance < 0) continue;
            addInstanceSets(m_deck.AssemblyNsets(), level, m_mesh.nodeSets, level.points);
            addInstanceSets(m_deck.AssemblyElsets(), level, m_mesh.elementSets, level.cells);
        }
    }

  private:
    inp_CoordMap const* nodesOf(Level const& level) const {
        inp_CoordMap const& assembly = m_deck.AssemblyCoordMap();
        if (level.instance < 0) return &assembly;
        return assembly.IsMember(level.name) ? &assembly.ConstGet(level.name) : nullptr;
    }

    ElementHolder const* elementsOf(Level const& level) const {
        ElementHolder const& assembly = m_deck.AssemblyElementMap();
        if (level.instance < 0) return &assembly;
        return assembly.ConstGetInstanceMap().Find(level.name);
    }

    // The nodes of the level in global position: its own transform applied.
    void addPoints(Level& level) {
        inp_CoordMap const* nodes = nodesOf(level);
        if (nodes == nullptr) return;
        inp_MapInt2Coord const global = nodes->ConstGet();
        inp_MapInt2CoordSIT walk(global);
        if (walk.NotDone()) {
            int last = walk.CurrentKey();
            for (inp_MapInt2CoordSIT end(global); end.NotDone(); end.Next())
                last = end.CurrentKey();
            level.points.Reserve(walk.CurrentKey(), last, static_cast<std::size_t>(global.Size()));
        }
        for (; walk.NotDone(); walk.Next()) {
            inp_Coord const& coord = walk.CurrentValue();
            level.points.Add(walk.CurrentKey(), static_cast<std::int32_t>(m_mesh.PointCount()));
            m_mesh.coordinates.insert(m_mesh.coordinates.end(), {coord.x, coord.y, coord.z});
            m_mesh.nodeLabels.push_back(walk.CurrentKey());
            m_mesh.pointInstances.push_back(level.instance);
        }
    }

    void addCells(Level& level) {
        ElementHolder const* holder = elementsOf(level);
        if (holder == nullptr || !holder->HasValue()) return;
        inp_MapInt2Element const& elements = holder->ConstGet();
        inp_MapInt2ElementSIT walk(elements);
        if (walk.NotDone()) {
            int last = walk.CurrentKey();
            for (inp_MapInt2ElementSIT end(elements); end.NotDone(); end.Next())
                last = end.CurrentKey();
            level.cells.Reserve(walk.CurrentKey(), last, static_cast<std::size_t>(elements.Size()));
        }
        for (; walk.NotDone(); walk.Next()) addCell(level, walk.CurrentKey(), walk.CurrentValue());
    }

    void addCell(Level& level, int label, inp_Element const& element) {
        TypeInfo const& type = typeOf(element.type());
        if (type.cell == nullptr || element.numNodesPerElement() < type.cell->nodeCount) {
            ++m_mesh.typesWithoutCell[std::string(element.type().View())];
            return;
        }
        std::size_t const start = m_mesh.connectivity.size();
        int const* nodes = element.nodes();
        for (int i = 0; i < type.cell->nodeCount; ++i) {
            std::int32_t const point = level.points.Find(nodes[type.cell->order[i]]);
            if (point < 0) {
                m_mesh.connectivity.resize(start);
                ++m_mesh.elementsWithMissingNodes;
                return;
            }
            m_mesh.connectivity.push_back(point);
        }
        level.cells.Add(label, static_cast<std::int32_t>(m_mesh.CellCount()));
        m_mesh.offsets.push_back(static_cast<std::int32_t>(m_mesh.connectivity.size()));
        m_mesh.cellTypes.push_back(type.cell->vtkType);
        m_mesh.elementLabels.push_back(label);
        m_mesh.cellInstances.push_back(level.instance);
        m_mesh.cellElementTypes.push_back(type.index);
    }

    struct TypeInfo {
        inp_VtkCell const* cell = nullptr;
        std::int32_t index = -1;
    };

    // Runs of elements share a type, so the last one is kept at hand.
    TypeInfo const& typeOf(cow_String const& type) {
        std::string_view const name = type.View();
        if (m_lastType != nullptr && m_lastTypeName == name) return *m_lastType;
        auto found = m_types.find(std::string(name));
        if (found == m_types.end()) {
            TypeInfo info;
            info.cell = inp_VtkCellOf(name);
            if (info.cell != nullptr) {
                info.index = static_cast<std::int32_t>(m_mesh.elementTypeNames.size());
                m_mesh.elementTypeNames.emplace_back(name);
            }
            found = m_types.emplace(std::string(name), info).first;
        }
        m_lastTypeName = found->first;
        m_lastType = &found->second;
        return *m_lastType;
    }

    // A set of the assembly level holds ids of the assembly's own level and
    // ids by instance.
    void addAssemblySets(inpM_SetMap const& sets, std::vector<fedeck_AssembledMesh::Set>& out,
                         LabelIndex Level::*index) {
        sets.ConstGetSetMap().ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
            if (set->IsInternal()) return;
            fedeck_AssembledMesh::Set members{std::string(name.View()), {}};
            collect(set->ConstGetIdList(), m_levels[0].*index, members.members);
            set->ConstGetInstanceIdLists().ForEachSorted(
                [&](cow_String const& instance, cow_List<int> const& ids) {
                    if (Level const* level = levelNamed(instance))
                        collect(ids, level->*index, members.members);
                });
            finish(members, out);
        });
    }

    void addInstanceSets(inpM_SetMap const& sets, Level const& level,
                         std::vector<fedeck_AssembledMesh::Set>& out, LabelIndex const& index) {
        if (!sets.HasInstance(level.name)) return;
        sets.ConstGetNestedSetMap(level.name)
            .ForEachSorted([&](cow_String const& name, inpM_SetHandle const& set) {
                if (set->IsInternal()) return;
                std::string fullName(level.name.View());
                fullName.append(".").append(name.View());
                fedeck_AssembledMesh::Set members{std::move(fullName), {}};
                collect(set->ConstGetIdList(), index, members.members);
                finish(members, out);
            });
    }

    Level const* levelNamed(cow_String const& instance) const {
        if (instance.View().empty()) return &m_levels[0];
        for (Level const& level : m_levels)
            if (level.instance >= 0 && level.name.View() == instance.View()) return &level;
        return nullptr;
    }

    // Ids of what was not drawn (a node no element uses is drawn; an
    // element without a cell is not) are left out.
    static void collect(cow_List<int> const& ids, LabelIndex const& index,
                        std::vector<std::int32_t>& members) {
        for (int const id : ids) {
            std::int32_t const at = index.Find(id);
            if (at >= 0) members.push_back(at);
        }
    }

    static void finish(fedeck_AssembledMesh::Set& set,
                       std::vector<fedeck_AssembledMesh::Set>& out) {
        std::sort(set.members.begin(), set.members.end());
        set.members.erase(std::unique(set.members.begin(), set.members.end()), set.members.end());
        out.push_back(std::move(set));
    }

    inp_InputFile const& m_deck;
    fedeck_AssembledMesh& m_mesh;
    std::vector<Level> m_levels;
    std::unordered_map<std::string, TypeInfo> m_types;
    std::string_view m_lastTypeName;
    TypeInfo const* m_lastType = nullptr;
};

}  // namespace

fedeck_AssembledMesh fedeck_AssembleMesh(inp_InputFile const& deck) {
    fedeck_AssembledMesh mesh;
    MeshAssembler(deck, mesh).Assemble();
    return mesh;
}
