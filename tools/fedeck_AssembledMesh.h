#pragma once
// The model as one mesh in the global frame, as a viewer draws it: the
// assembly's own nodes and those of every instance placed by its transform,
// the elements that have a VTK cell, and each set as the points or cells it
// holds.
//
// The mesh is a view of the model's maps, not a copy: points and cells are
// walked out of the maps each time they are asked for, so that writing a
// big model costs little memory beyond the model itself. What it keeps is a
// lookup per level from labels to indices, and the members of the sets.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/cow_String.h"
#include "tools/fedeck_LabelIndex.h"

class inp_CoordMap;
class inp_Element;
class inp_InputFile;
class inp_MapInt2Element;
struct inp_VtkCell;

class fedeck_AssembledMesh {
  public:
    // One point: its place, its node's label, and its instance (an index
    // into InstanceNames(), -1 for the assembly's own level).
    struct Point {
        double x, y, z;
        std::int32_t label;
        std::int32_t instance;
    };
    // One cell: its VTK type, its points in VTK order, its element's label,
    // its instance and its element type (an index into ElementTypeNames()).
    struct Cell {
        std::uint8_t vtkType;
        int pointCount;
        std::int32_t const* points;
        std::int32_t label;
        std::int32_t instance;
        std::int32_t elementType;
    };
    // A set by its name in the model (an instance's as "<instance>.<name>")
    // and the indices of its points or cells, ascending and each once.
    struct Set {
        std::string name;
        std::vector<std::int32_t> members;
    };

    // Reads the maps of the deck as far as they were built. The deck must
    // outlive the mesh.
    explicit fedeck_AssembledMesh(inp_InputFile const& deck);
    ~fedeck_AssembledMesh();
    fedeck_AssembledMesh(fedeck_AssembledMesh const&) = delete;
    fedeck_AssembledMesh& operator=(fedeck_AssembledMesh const&) = delete;

    // The instances, ascending.
    std::vector<std::string> const& InstanceNames() const { return m_instanceNames; }
    // The element types of the cells, in the order first met.
    std::vector<std::string> const& ElementTypeNames() const { return m_elementTypeNames; }

    std::size_t PointCount() const { return m_pointCount; }
    std::size_t CellCount() const { return m_cellCount; }
    // The points of all cells together.
    std::size_t ConnectivitySize() const { return m_connectivitySize; }

    // The points, then the cells, in file order: level by level (the
    // assembly's own, then the instances ascending), labels ascending.
    void ForEachPoint(std::function<void(Point const&)> const& visit) const;
    // Cell::points is null unless `withPoints`.
    void ForEachCell(std::function<void(Cell const&)> const& visit, bool withPoints) const;

    std::vector<Set> const& NodeSets() const { return m_nodeSets; }
    std::vector<Set> const& ElementSets() const { return m_elementSets; }

    // What could not be drawn: element types without a cell, with their
    // counts, and elements naming a node their level does not have.
    std::map<std::string, int> const& TypesWithoutCell() const { return m_typesWithoutCell; }
    int ElementsWithMissingNodes() const { return m_elementsWithMissingNodes; }

  private:
    struct Level {
        int instance = -1;
        cow_String name;  // empty for the assembly's own level
        inp_CoordMap const* nodes = nullptr;
        inp_MapInt2Element const* elements = nullptr;
        fedeck_LabelIndex points;
        fedeck_LabelIndex cells;
    };
    struct ElementType {
        inp_VtkCell const* cell = nullptr;
        std::int32_t index = -1;
    };

    void indexPoints(Level& level);
    void indexCells(Level& level);
    ElementType const& typeOf(cow_String const& type) const;
    // The element's cell points into `points`; false when it has no cell or
    // names a node its level lacks.
    bool cellPoints(Level const& level, inp_Element const& element, ElementType const& type,
                    std::int32_t* points) const;
    void addSets(inp_InputFile const& deck);
    Level const* levelNamed(cow_String const& instance) const;

    std::vector<Level> m_levels;
    std::vector<std::string> m_instanceNames;
    mutable std::vector<std::string> m_elementTypeNames;
    mutable std::map<std::string, ElementType, std::less<>> m_types;
    mutable std::string_view m_lastTypeName;
    mutable ElementType const* m_lastType = nullptr;
    std::size_t m_pointCount = 0;
    std::size_t m_cellCount = 0;
    std::size_t m_connectivitySize = 0;
    std::vector<Set> m_nodeSets;
    std::vector<Set> m_elementSets;
    std::map<std::string, int> m_typesWithoutCell;
    int m_elementsWithMissingNodes = 0;
};
