#include "bench/inp_DeckGenerator.h"

#include "bench/inp_ChunkedFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace {

// Node (i, j, k) has label 1 + i + (nx+1) * (j + (ny+1) * k): x runs fastest,
// so the bottom face z = 0 is the label range 1 .. (nx+1)(ny+1) and the top
// face is the last range of that length. Elements are numbered the same way.
struct Grid {
    std::int64_t nx, ny, nz;
    std::int64_t stepMicros;

    std::int64_t node(std::int64_t i, std::int64_t j, std::int64_t k) const {
        return 1 + i + (nx + 1) * (j + (ny + 1) * k);
    }
    std::int64_t nodesPerLayer() const { return (nx + 1) * (ny + 1); }
    std::int64_t nodeCount() const { return nodesPerLayer() * (nz + 1); }
    std::int64_t elementCount() const { return nx * ny * nz; }
    std::int64_t widthMicros() const { return nx * stepMicros; }
};

Grid gridOf(inp_DeckLayout const& layout) {
    return {layout.nx, layout.ny, layout.nz, std::llround(layout.elementSize * 1e6)};
}

char const* const kPartName = "BLOCK";

void writeHeading(inp_ChunkedFile& out, inp_DeckLayout const& layout) {
    out.Line("*HEADING");
    out.Text("Structured block of ");
    out.Integer(layout.nx);
    out.Text(" x ");
    out.Integer(layout.ny);
    out.Text(" x ");
    out.Integer(layout.nz);
    out.Line(" eight-node bricks");
    out.Line("** Written by the deck generator: units mm, N, s.");
}

void writeNodes(inp_ChunkedFile& out, Grid const& grid) {
    out.Line("*NODE, NSET=ALL");
    std::int64_t label = 1;
    for (std::int64_t k = 0; k <= grid.nz; ++k)
        for (std::int64_t j = 0; j <= grid.ny; ++j)
            for (std::int64_t i = 0; i <= grid.nx; ++i) {
                out.Integer(label++);
                out.Comma();
                out.Fixed6(i * grid.stepMicros);
                out.Comma();
                out.Fixed6(j * grid.stepMicros);
                out.Comma();
                out.Fixed6(k * grid.stepMicros);
                out.EndLine();
            }
}

void writeElements(inp_ChunkedFile& out, Grid const& grid) {
    out.Line("*ELEMENT, TYPE=C3D8, ELSET=EALL");
    std::int64_t const row = grid.nx + 1;
    std::int64_t const layer = grid.nodesPerLayer();
    std::int64_t label = 1;
    for (std::int64_t k = 0; k < grid.nz; ++k)
        for (std::int64_t j = 0; j < grid.ny; ++j)
            for (std::int64_t i = 0; i < grid.nx; ++i) {
                std::int64_t const base = grid.node(i, j, k);
                std::int64_t const corners[8] = {
                    base,         base + 1,         base + row + 1,         base + row,
                    base + layer, base + layer + 1, base + layer + row + 1, base + layer + row};
                out.Integer(label++);
                for (std::int64_t corner : corners) {
                    out.Comma();
                    out.Integer(corner);
                }
                out.EndLine();
            }
}

void writeGeneratedSet(inp_ChunkedFile& out, std::string_view keywordLine, std::int64_t first,
                       std::int64_t last) {
    out.Line(keywordLine);
    out.Integer(first);
    out.Comma();
    out.Integer(last);
    out.Line(", 1");
}

// The nodes along the x axis, listed sixteen to a line as decks usually do.
void writeEdgeSet(inp_ChunkedFile& out, Grid const& grid) {
    out.Line("*NSET, NSET=EDGE");
    for (std::int64_t i = 0; i <= grid.nx; ++i) {
        out.Integer(grid.node(i, 0, 0));
        bool const lineFull = i % 16 == 15;
        if (i == grid.nx || lineFull)
            out.EndLine();
        else
            out.Comma();
    }
}

void writeMesh(inp_ChunkedFile& out, Grid const& grid) {
    writeNodes(out, grid);
    writeElements(out, grid);
    writeGeneratedSet(out, "*NSET, NSET=BOTTOM, GENERATE", 1, grid.nodesPerLayer());
    writeGeneratedSet(out, "*NSET, NSET=TOP, GENERATE", grid.nodeCount() - grid.nodesPerLayer() + 1,
                      grid.nodeCount());
    writeEdgeSet(out, grid);
    writeGeneratedSet(out, "*ELSET, ELSET=BOTTOM_LAYER, GENERATE", 1, grid.nx * grid.ny);
    out.Line("*SOLID SECTION, ELSET=EALL, MATERIAL=STEEL");
    out.Line(",");
}

void writeMaterial(inp_ChunkedFile& out) {
    out.Line("** Structural steel");
    out.Line("*MATERIAL, NAME=STEEL");
    out.Line("*ELASTIC");
    out.Line("210000., 0.3");
    out.Line("*DENSITY");
    out.Line("7.85e-09,");
}

void writeInstance(inp_ChunkedFile& out, int number, std::int64_t offsetMicros) {
    out.Text("*INSTANCE, NAME=");
    out.Text(kPartName);
    out.Text("-");
    out.Integer(number);
    out.Text(", PART=");
    out.Line(kPartName);
    out.Fixed6(offsetMicros);
    out.Line(", 0.000000, 0.000000");
    out.Line("*END INSTANCE");
}

// Instances stand along x with a gap of two elements between neighbours.
void writeAssembly(inp_ChunkedFile& out, Grid const& grid, int instances) {
    out.Line("*ASSEMBLY, NAME=ASSEMBLY");
    std::int64_t const pitch = grid.widthMicros() + 2 * grid.stepMicros;
    for (int n = 1; n <= instances; ++n) writeInstance(out, n, (n - 1) * pitch);
    out.Line("*END ASSEMBLY");
}

// A flat deck names its sets and nodes directly; a deck of instances prefixes
// them with "BLOCK-n." for every instance.
void writeScopedRows(inp_ChunkedFile& out, int instances, std::string_view target,
                     std::string_view rest) {
    for (int n = 1; n <= std::max(instances, 1); ++n) {
        if (instances > 0) {
            out.Text(kPartName);
            out.Text("-");
            out.Integer(n);
            out.Text(".");
        }
        out.Text(target);
        out.Line(rest);
    }
}

void writeStep(inp_ChunkedFile& out, Grid const& grid, int instances) {
    out.Line("*STEP, NAME=LOAD");
    out.Line("Pull on one top corner of a clamped block");
    out.Line("*STATIC");
    out.Line("0.1, 1., 1e-05, 1.");
    out.Line("*BOUNDARY");
    writeScopedRows(out, instances, "BOTTOM", ", 1, 3");
    out.Line("*CLOAD");
    char corner[24];
    char* end = std::to_chars(corner, corner + sizeof corner, grid.nodeCount()).ptr;
    writeScopedRows(out, instances,
                    std::string_view(corner, static_cast<std::size_t>(end - corner)),
                    ", 3, -1000.");
    out.Line("*OUTPUT, FIELD");
    out.Line("*NODE OUTPUT");
    out.Line("U, RF");
    out.Line("*ELEMENT OUTPUT, ELSET=EALL");
    out.Line("S, E");
    out.Line("*END STEP");
}

bool exceedsLabels(std::int64_t count) {
    return count > std::numeric_limits<int>::max();
}

}  // namespace

inp_DeckGenerator::inp_DeckGenerator(inp_DeckLayout const& layout) : m_layout(layout) {
    if (layout.nx < 1 || layout.ny < 1 || layout.nz < 1)
        throw std::invalid_argument("deck sizes must be at least 1");
    if (layout.instances < 0) throw std::invalid_argument("instance count must not be negative");
    if (!(layout.elementSize > 0.0) || gridOf(layout).stepMicros < 1)
        throw std::invalid_argument("element size must be at least 1e-6");
    if (exceedsLabels(NodeCount()) || exceedsLabels(ElementCount()))
        throw std::invalid_argument("deck too large for 32-bit labels");
}

std::int64_t inp_DeckGenerator::NodeCount() const {
    return gridOf(m_layout).nodeCount();
}

std::int64_t inp_DeckGenerator::ElementCount() const {
    return gridOf(m_layout).elementCount();
}

std::int64_t inp_DeckGenerator::NodeLabel(int i, int j, int k) const {
    return gridOf(m_layout).node(i, j, k);
}

std::uint64_t inp_DeckGenerator::Write(std::string const& path) const {
    Grid const grid = gridOf(m_layout);
    inp_ChunkedFile out(path);
    writeHeading(out, m_layout);
    if (m_layout.instances == 0) {
        writeMesh(out, grid);
    } else {
        out.Text("*PART, NAME=");
        out.Line(kPartName);
        writeMesh(out, grid);
        out.Line("*END PART");
        writeAssembly(out, grid, m_layout.instances);
    }
    writeMaterial(out);
    writeStep(out, grid, m_layout.instances);
    return out.Finish();
}

std::uint64_t inp_WriteDeck(inp_DeckLayout const& layout, std::string const& path) {
    return inp_DeckGenerator(layout).Write(path);
}
