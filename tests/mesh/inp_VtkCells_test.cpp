// The VTK cell of each element type: the names of every family resolve to
// the cell of their shape, the special elements to none, and no cell asks
// for more nodes than its type must have. The node order of each cell is
// checked through a real reader in tests/tools/fedeck_Convert_test.cpp.

#include "mesh/inp_VtkCells.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "mesh/inp_ElementTypes.h"

namespace {

// The library's rows, their least node counts and the cells agree: an
// element given with the fewest nodes its type allows still has all the
// nodes of its cell.
TEST(Convert, NoCellAsksForMoreNodesThanItsTypeMustHave) {
    int withCell = 0;
    for (inp_ElementInfo const* row = inp_ElementTypes::kTypeRows; row->name != nullptr; ++row) {
        inp_VtkCell const* cell = inp_VtkCellOf(row->name);
        if (cell == nullptr) continue;
        ++withCell;
        EXPECT_LE(cell->nodeCount, row->least) << row->name;
    }
    EXPECT_GT(withCell, 300);
    for (char const* none : {"CONN3D2", "MASS", "SPRING1", "DASHPOTA", "GK3D8", "CIN3D8", "U1",
                             "JOINTC", "SAXA11", "DCCAX2", "ROTARYI"})
        EXPECT_EQ(inp_VtkCellOf(none), nullptr) << none;
    std::map<std::string, std::string> const named = {
        {"C3D8R", "hexahedron"}, {"C3D27", "hexahedron20"}, {"C3D10M", "tetra10"},
        {"SC6R", "wedge"},       {"C3D15V", "wedge15"},     {"FC3D5", "pyramid"},
        {"S9R5", "quad9"},       {"STRI65", "triangle6"},   {"S4R5", "quad"},
        {"CAXA8R1", "quad8"},    {"B32OS", "line3"},        {"B33", "line"},
        {"SAX2", "line3"},       {"FRAME3D", "line"},       {"T3D3", "line3"},
        {"COH2D4", "quad"},      {"R3D3", "triangle"},      {"DSAX1", "line"}};
    for (auto const& [type, cell] : named) {
        ASSERT_NE(inp_VtkCellOf(type), nullptr) << type;
        EXPECT_EQ(inp_VtkCellOf(type)->name, cell) << type;
    }
}

}  // namespace
