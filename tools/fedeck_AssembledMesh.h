#pragma once
// The model as one mesh in the global frame, as a viewer draws it: the
// assembly's own nodes and those of every instance placed by its transform,
// the elements that have a VTK cell, and each set as the points or cells it
// holds. Flat arrays, ready to be written out.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class inp_InputFile;

struct fedeck_AssembledMesh {
    // The instances, ascending; a point or cell of the assembly's own level
    // has instance -1.
    std::vector<std::string> instanceNames;
    // The element types of the cells, in the order first met.
    std::vector<std::string> elementTypeNames;

    // Points: three coordinates each.
    std::vector<double> coordinates;
    std::vector<std::int32_t> nodeLabels;
    std::vector<std::int32_t> pointInstances;

    // Cells: VTK types, point indices in VTK order, and the end of each
    // cell's points in `connectivity`.
    std::vector<std::uint8_t> cellTypes;
    std::vector<std::int32_t> connectivity;
    std::vector<std::int32_t> offsets;
    std::vector<std::int32_t> elementLabels;
    std::vector<std::int32_t> cellInstances;
    std::vector<std::int32_t> cellElementTypes;  // index into elementTypeNames

    // A set by its name in the model (an instance's as "<instance>.<name>")
    // and the indices of its points or cells, ascending and each once.
    struct Set {
        std::string name;
        std::vector<std::int32_t> members;
    };
    std::vector<Set> nodeSets;
    std::vector<Set> elementSets;

    // What could not be drawn: element types without a cell, with their
    // counts, and elements naming a node the model does not have.
    std::map<std::string, int> typesWithoutCell;
    int elementsWithMissingNodes = 0;

    std::size_t PointCount() const { return nodeLabels.size(); }
    std::size_t CellCount() const { return cellTypes.size(); }
};

// The mesh of the maps the deck holds, as far as they were built.
fedeck_AssembledMesh fedeck_AssembleMesh(inp_InputFile const& deck);
