// `fedeck convert` read back by a reader of its own world: the .vtu files are
// read with meshio (tests/tools/read_vtu.py) and what it sees is compared with
// the model: points in the global frame, cell types and node order of every
// element family that has a VTK cell, set arrays, and the volume of a block.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "bench/inp_DeckGenerator.h"
#include "mesh/inp_ElementTypes.h"
#include "mesh/inp_VtkCells.h"
#include "tests/common/InProcessFedeck.h"
#include "tests/common/JsonReader.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

testing::Environment* const kModule = testing::AddGlobalTestEnvironment(new DeckModuleEnvironment);

using Point = std::array<double, 3>;

// What meshio makes of the file, or nothing when no python3 at hand can
// import it.
std::optional<Json> readWithMeshio(std::string const& path) {
    for (char const* python : {"python3", "/usr/bin/python3"}) {
        std::string const command = std::string(python) +
                                    " " FEDECK_SOURCE_DIR "/tests/tools/read_vtu.py '" + path +
                                    "' 2>&1";
        std::FILE* pipe = popen(command.c_str(), "r");
        if (pipe == nullptr) continue;
        std::string text;
        char chunk[65536];
        for (std::size_t got; (got = std::fread(chunk, 1, sizeof chunk, pipe)) > 0;)
            text.append(chunk, got);
        int const status = pclose(pipe);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return JsonReader(text).Read();
        if (!(WIFEXITED(status) && (WEXITSTATUS(status) == 77 || WEXITSTATUS(status) == 127))) {
            ADD_FAILURE() << python << " could not read " << path << ":\n" << text;
            return std::nullopt;
        }
    }
    return std::nullopt;
}

#define READ_OR_SKIP(json, path)                                                          \
    std::optional<Json> const json##Read = readWithMeshio(path);                          \
    if (!json##Read) GTEST_SKIP() << "meshio is not importable (Debian: python3-meshio)"; \
    Json const& json = *json##Read

Point pointAt(Json const& mesh, int index) {
    Json const& point = mesh["points"][static_cast<std::size_t>(index)];
    return {point[0].number, point[1].number, point[2].number};
}

// The cells of all blocks in file order: meshio type and point indices.
struct Cell {
    std::string type;
    std::vector<int> points;
};

std::vector<Cell> cellsOf(Json const& mesh) {
    std::vector<Cell> cells;
    for (Json const& block : mesh["cells"].items)
        for (Json const& row : block["data"].items) {
            Cell cell{block["type"].text, {}};
            for (Json const& index : row.items) cell.points.push_back(index.Int());
            cells.push_back(cell);
        }
    return cells;
}

std::vector<int> intsOf(Json const& array) {
    std::vector<int> values;
    for (Json const& item : array.items) values.push_back(item.Int());
    return values;
}

// The reference element of each family in the element library's node order.
std::map<std::string, std::vector<Point>> const kLibraryOrder = {
    {"line", {{0, 0, 0}, {1, 0, 0}}},
    {"line3", {{0, 0, 0}, {0.5, 0, 0}, {1, 0, 0}}},
    {"triangle", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}},
    {"triangle6", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {.5, 0, 0}, {.5, .5, 0}, {0, .5, 0}}},
    {"quad", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}},
    {"quad8",
     {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {.5, 0, 0}, {1, .5, 0}, {.5, 1, 0}, {0, .5, 0}}},
    {"quad9",
     {{0, 0, 0},
      {1, 0, 0},
      {1, 1, 0},
      {0, 1, 0},
      {.5, 0, 0},
      {1, .5, 0},
      {.5, 1, 0},
      {0, .5, 0},
      {.5, .5, 0}}},
    {"tetra", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {"tetra10",
     {{0, 0, 0},
      {1, 0, 0},
      {0, 1, 0},
      {0, 0, 1},
      {.5, 0, 0},
      {.5, .5, 0},
      {0, .5, 0},
      {0, 0, .5},
      {.5, 0, .5},
      {0, .5, .5}}},
    {"pyramid", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {.5, .5, 1}}},
    {"wedge", {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {0, 1, 1}}},
    {"wedge15",
     {{0, 0, 0},
      {1, 0, 0},
      {0, 1, 0},
      {0, 0, 1},
      {1, 0, 1},
      {0, 1, 1},
      {.5, 0, 0},
      {.5, .5, 0},
      {0, .5, 0},
      {.5, 0, 1},
      {.5, .5, 1},
      {0, .5, 1},
      {0, 0, .5},
      {1, 0, .5},
      {0, 1, .5}}},
    {"hexahedron",
     {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}}},
    {"hexahedron20",
     {{0, 0, 0},  {1, 0, 0},  {1, 1, 0},  {0, 1, 0},  {0, 0, 1},  {1, 0, 1},  {1, 1, 1},
      {0, 1, 1},  {.5, 0, 0}, {1, .5, 0}, {.5, 1, 0}, {0, .5, 0}, {.5, 0, 1}, {1, .5, 1},
      {.5, 1, 1}, {0, .5, 1}, {0, 0, .5}, {1, 0, .5}, {1, 1, .5}, {0, 1, .5}}},
};

// The same elements in VTK's node order, where it differs: a three-node
// line has its middle node last, and the first triangle of a wedge turns
// so that its normal (right-hand rule) points away from the second. meshio
// turns the six-node wedge back to the library's order when it reads one
// (the file itself is checked in WedgesAreTurnedInTheFile), the fifteen-node
// one it leaves as VTK has it.
std::map<std::string, std::vector<Point>> meshioOrder() {
    std::map<std::string, std::vector<Point>> order = kLibraryOrder;
    order["line3"] = {{0, 0, 0}, {1, 0, 0}, {0.5, 0, 0}};
    order["wedge15"] = {{0, 0, 0},   {0, 1, 0},  {1, 0, 0},   {0, 0, 1},  {0, 1, 1},
                        {1, 0, 1},   {0, .5, 0}, {.5, .5, 0}, {.5, 0, 0}, {0, .5, 1},
                        {.5, .5, 1}, {.5, 0, 1}, {0, 0, .5},  {0, 1, .5}, {1, 0, .5}};
    return order;
}

// One element of every type of the library that has a VTK cell, each on
// nodes of its own at the reference positions, moved apart along x. Nodes
// beyond the cell's (an orientation node, the face nodes of a 27-node
// brick) stand further out.
struct TypeDeck {
    std::string text;
    std::map<int, std::string> typeOfLabel;
};

TypeDeck deckOfEveryType() {
    TypeDeck deck;
    std::ostringstream nodes;
    std::ostringstream elements;
    int label = 0;
    for (inp_ElementInfo const* row = inp_ElementTypes::kTypeRows; row->name != nullptr; ++row) {
        inp_VtkCell const* cell = inp_VtkCellOf(row->name);
        if (cell == nullptr) continue;
        ++label;
        deck.typeOfLabel[label] = row->name;
        std::vector<Point> const& reference = kLibraryOrder.at(cell->name);
        elements << "*ELEMENT, TYPE=" << row->name << "\n" << label;
        for (int node = 0; node < row->least; ++node) {
            int const nodeLabel = label * 100 + node + 1;
            Point position = node < cell->nodeCount ? reference[std::size_t(node)]
                                                    : Point{0.25 * node, 3.0, 0.0};
            nodes << nodeLabel << ", " << position[0] + 10.0 * label << ", " << position[1] << ", "
                  << position[2] << "\n";
            elements << (node % 14 == 13 ? ",\n" : ", ") << nodeLabel;
        }
        elements << "\n";
    }
    deck.text = "*HEADING\n*NODE\n" + nodes.str() + elements.str();
    return deck;
}

Point shifted(Point point, double dx) {
    point[0] += dx;
    return point;
}

void expectNear(Point const& actual, Point const& expected, std::string const& what) {
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(actual[std::size_t(axis)], expected[std::size_t(axis)], 1e-9)
            << what << ", axis " << axis;
}

TEST(Convert, EveryElementFamilyWithACellIsWrittenInVtkNodeOrder) {
    TempDeckDirectory directory;
    TypeDeck const deck = deckOfEveryType();
    std::string const deckPath(directory.Write("types.inp", deck.text).View());
    std::string const output(directory.Path("types.vtu").View());
    FedeckOutcome const run = RunFedeckInProcess({"convert", deckPath, output});
    EXPECT_NE(run.status, 2) << run.err;
    READ_OR_SKIP(mesh, output);
    std::vector<Cell> const cells = cellsOf(mesh);
    std::vector<int> const labels = intsOf(mesh["cell_data"]["element_label"]);
    ASSERT_EQ(cells.size(), deck.typeOfLabel.size()) << run.err;
    ASSERT_EQ(labels.size(), cells.size());
    std::map<std::string, std::vector<Point>> const expectedOrder = meshioOrder();
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::string const& type = deck.typeOfLabel.at(labels[i]);
        inp_VtkCell const* cell = inp_VtkCellOf(type);
        ASSERT_EQ(cells[i].type, cell->name) << type;
        std::vector<Point> const& expected = expectedOrder.at(cell->name);
        ASSERT_EQ(cells[i].points.size(), expected.size()) << type;
        for (std::size_t node = 0; node < expected.size(); ++node)
            expectNear(pointAt(mesh, cells[i].points[node]),
                       shifted(expected[node], 10.0 * labels[i]),
                       type + " node " + std::to_string(node));
    }
}

std::string fileText(std::string const& path) {
    std::ifstream file(path);
    return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

// The numbers of the connectivity array of an ASCII file.
std::vector<int> connectivityInFile(std::string const& path) {
    std::string const text = fileText(path);
    std::size_t const start = text.find('>', text.find("Name=\"connectivity\"")) + 1;
    std::istringstream numbers(text.substr(start, text.find('<', start) - start));
    std::vector<int> values;
    for (int value; numbers >> value;) values.push_back(value);
    return values;
}

TEST(Convert, WedgesAreTurnedInTheFile) {
    TempDeckDirectory directory;
    std::string const deckPath(directory
                                   .Write("wedges.inp",
                                          "*NODE\n1,0,0,0\n2,1,0,0\n3,0,1,0\n4,0,0,1\n5,1,0,1\n"
                                          "6,0,1,1\n7,.5,0,0\n8,.5,.5,0\n9,0,.5,0\n10,.5,0,1\n"
                                          "11,.5,.5,1\n12,0,.5,1\n13,0,0,.5\n14,1,0,.5\n15,0,1,.5\n"
                                          "*ELEMENT, TYPE=C3D6\n1, 1, 2, 3, 4, 5, 6\n"
                                          "*ELEMENT, TYPE=C3D15\n2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10,"
                                          " 11, 12, 13, 14, 15\n")
                                   .View());
    std::string const output(directory.Path("wedges.vtu").View());
    ASSERT_EQ(RunFedeckInProcess({"convert", "--ascii", deckPath, output}).status, 0);
    EXPECT_EQ(connectivityInFile(output), (std::vector<int>{0, 2, 1, 3, 5,  4,  0, 2,  1,  3, 5,
                                                            4, 8, 7, 6, 11, 10, 9, 12, 14, 13}));
}

// One part placed twice: STILL where it stands, TURNED a quarter turn about
// z and moved by (10, 0, 0). Sets of the assembly span both instances; a
// mass element of the assembly has no cell.
constexpr char kPartsDeck[] = R"(*HEADING
*PART, NAME=BRICK
*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 2., 0.
4, 0., 2., 0.
5, 0., 0., 3.
6, 1., 0., 3.
7, 1., 2., 3.
8, 0., 2., 3.
*ELEMENT, TYPE=C3D8, ELSET=ALL
11, 1, 2, 3, 4, 5, 6, 7, 8
*NSET, NSET=BOTTOM
1, 2, 3, 4
*SOLID SECTION, ELSET=ALL, MATERIAL=STEEL
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=STILL, PART=BRICK
*END INSTANCE
*INSTANCE, NAME=TURNED, PART=BRICK
10., 0., 0.
10., 0., 0., 10., 0., 1., 90.
*END INSTANCE
*NODE
100, 5., 5., 5.
*ELEMENT, TYPE=MASS, ELSET=POINT
200, 100
*NSET, NSET=TOPS
STILL.5, STILL.6, TURNED.7
*ELSET, ELSET=BOTH
STILL.11, TURNED.11
*END ASSEMBLY
*MATERIAL, NAME=STEEL
*ELASTIC
200000., 0.3
*MASS, ELSET=POINT
1.
*STEP
*STATIC
*END STEP
)";

TEST(Convert, InstancesArePlacedAndSetsMarkTheirPointsAndCells) {
    TempDeckDirectory directory;
    std::string const deckPath(directory.Write("parts.inp", kPartsDeck).View());
    std::string const output(directory.Path("parts.vtu").View());
    FedeckOutcome const run = RunFedeckInProcess({"convert", deckPath, output});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find("elements without a VTK cell are left out: MASS (1)"), std::string::npos)
        << run.err;
    READ_OR_SKIP(mesh, output);
    EXPECT_EQ(mesh["field_data"]["instance_names"].text, "STILL\nTURNED\n");
    EXPECT_EQ(mesh["field_data"]["element_type_names"].text, "C3D8\n");
    std::vector<int> const labels = intsOf(mesh["point_data"]["node_label"]);
    std::vector<int> const instances = intsOf(mesh["point_data"]["instance"]);
    ASSERT_EQ(labels.size(), 17u);
    // The assembly's node first, then STILL's and TURNED's in label order.
    EXPECT_EQ(labels[0], 100);
    EXPECT_EQ(instances[0], -1);
    expectNear(pointAt(mesh, 0), {5, 5, 5}, "assembly node");
    for (int node = 1; node <= 8; ++node) {
        EXPECT_EQ(labels[std::size_t(node)], node);
        EXPECT_EQ(instances[std::size_t(node)], 0);
        EXPECT_EQ(labels[std::size_t(node + 8)], node);
        EXPECT_EQ(instances[std::size_t(node + 8)], 1);
    }
    // TURNED: (x, y, z) + (10, 0, 0), then a quarter turn about the z axis
    // through (10, 0, 0): (10 - y, x, z).
    expectNear(pointAt(mesh, 3), {1, 2, 0}, "STILL.3");
    expectNear(pointAt(mesh, 11), {8, 1, 0}, "TURNED.3");
    expectNear(pointAt(mesh, 15), {8, 1, 3}, "TURNED.7");

    std::vector<Cell> const cells = cellsOf(mesh);
    ASSERT_EQ(cells.size(), 2u);
    EXPECT_EQ(cells[0].points, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(cells[1].points, (std::vector<int>{9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_EQ(intsOf(mesh["cell_data"]["instance"]), (std::vector<int>{0, 1}));
    EXPECT_EQ(intsOf(mesh["cell_data"]["element_label"]), (std::vector<int>{11, 11}));

    std::vector<int> tops(17, 0);
    tops[5] = tops[6] = tops[15] = 1;
    EXPECT_EQ(intsOf(mesh["point_data"]["nset:TOPS"]), tops);
    std::vector<int> turnedBottom(17, 0);
    for (int node = 9; node <= 12; ++node) turnedBottom[std::size_t(node)] = 1;
    EXPECT_EQ(intsOf(mesh["point_data"]["nset:TURNED.BOTTOM"]), turnedBottom);
    EXPECT_EQ(intsOf(mesh["cell_data"]["elset:BOTH"]), (std::vector<int>{1, 1}));
    EXPECT_EQ(intsOf(mesh["cell_data"]["elset:STILL.ALL"]), (std::vector<int>{1, 0}));
}

double tetVolume(Point const& a, Point const& b, Point const& c, Point const& d) {
    Point const u{b[0] - a[0], b[1] - a[1], b[2] - a[2]};
    Point const v{c[0] - a[0], c[1] - a[1], c[2] - a[2]};
    Point const w{d[0] - a[0], d[1] - a[1], d[2] - a[2]};
    return ((u[1] * v[2] - u[2] * v[1]) * w[0] + (u[2] * v[0] - u[0] * v[2]) * w[1] +
            (u[0] * v[1] - u[1] * v[0]) * w[2]) /
           6.0;
}

// Six tetrahedra around the diagonal from VTK node 0 to node 6: each is
// positive for a hexahedron in VTK's order.
double hexVolume(Json const& mesh, std::vector<int> const& nodes) {
    static constexpr int kTets[6][3] = {{1, 2, 6}, {2, 3, 6}, {3, 7, 6},
                                        {7, 4, 6}, {4, 5, 6}, {5, 1, 6}};
    double volume = 0.0;
    for (auto const& tet : kTets) {
        double const part = tetVolume(
            pointAt(mesh, nodes[0]), pointAt(mesh, nodes[std::size_t(tet[0])]),
            pointAt(mesh, nodes[std::size_t(tet[1])]), pointAt(mesh, nodes[std::size_t(tet[2])]));
        EXPECT_GT(part, 0.0);
        volume += part;
    }
    return volume;
}

TEST(Convert, TheCellsOfAGeneratedBlockFillItsVolume) {
    TempDeckDirectory directory;
    for (int instances : {0, 3}) {
        inp_DeckLayout layout;
        layout.nx = 6;
        layout.ny = 5;
        layout.nz = 4;
        layout.instances = instances;
        layout.elementSize = 0.25;
        std::string const deckPath(directory.Path("block.inp").View());
        inp_WriteDeck(layout, deckPath);
        std::string const output(directory.Path("block.vtu").View());
        FedeckOutcome const run = RunFedeckInProcess({"convert", deckPath, output});
        ASSERT_EQ(run.status, 0) << run.err;
        READ_OR_SKIP(mesh, output);
        double volume = 0.0;
        std::vector<Cell> const cells = cellsOf(mesh);
        for (Cell const& cell : cells) volume += hexVolume(mesh, cell.points);
        int const copies = instances == 0 ? 1 : instances;
        EXPECT_EQ(cells.size(), std::size_t(6 * 5 * 4 * copies));
        EXPECT_NEAR(volume, 6 * 5 * 4 * 0.25 * 0.25 * 0.25 * copies, 1e-9);
    }
}

TEST(Convert, AsciiFilesHoldTheSameModel) {
    TempDeckDirectory directory;
    std::string const deckPath(directory.Write("parts.inp", kPartsDeck).View());
    std::string const binary(directory.Path("binary.vtu").View());
    std::string const ascii(directory.Path("ascii.vtu").View());
    ASSERT_EQ(RunFedeckInProcess({"convert", deckPath, binary}).status, 0);
    ASSERT_EQ(RunFedeckInProcess({"convert", "--ascii", deckPath, ascii}).status, 0);
    READ_OR_SKIP(fromBinary, binary);
    READ_OR_SKIP(fromAscii, ascii);
    EXPECT_EQ(fromBinary["points"].items.size(), fromAscii["points"].items.size());
    for (std::size_t i = 0; i < fromBinary["points"].items.size(); ++i)
        expectNear(pointAt(fromAscii, int(i)), pointAt(fromBinary, int(i)), "point");
    EXPECT_EQ(intsOf(fromAscii["point_data"]["nset:TOPS"]),
              intsOf(fromBinary["point_data"]["nset:TOPS"]));
    EXPECT_EQ(fromAscii["field_data"]["instance_names"].text, "STILL\nTURNED\n");
}

TEST(Convert, BadInputGivesAClearMessageAndTheRightStatus) {
    TempDeckDirectory directory;
    std::string const deckPath(directory.Write("parts.inp", kPartsDeck).View());

    FedeckOutcome const unwritable = RunFedeckInProcess(
        {"convert", deckPath, std::string(directory.Path("no/such/dir/out.vtu").View())});
    EXPECT_EQ(unwritable.status, 2);
    EXPECT_NE(unwritable.err.find("cannot open"), std::string::npos) << unwritable.err;
    EXPECT_NE(unwritable.err.find("for writing: No such file or directory"), std::string::npos);

    // A disk that fills up on the way: the write fails, and says so.
    std::string const full(directory.Path("full.vtu").View());
    std::error_code linked;
    std::filesystem::create_symlink("/dev/full", full, linked);
    if (!linked) {
        FedeckOutcome const noSpace = RunFedeckInProcess({"convert", deckPath, full});
        EXPECT_EQ(noSpace.status, 2);
        EXPECT_NE(noSpace.err.find("cannot write " + full + ": No space left on device"),
                  std::string::npos)
            << noSpace.err;
    }

    FedeckOutcome const notVtu = RunFedeckInProcess({"convert", deckPath, "out.vtk"});
    EXPECT_EQ(notVtu.status, 2);
    EXPECT_NE(notVtu.err.find("'convert' writes a .vtu file, not 'out.vtk'"), std::string::npos)
        << notVtu.err;

    // An element type the library does not know: an error of the deck,
    // which ends the road before the maps are built; the file is written
    // all the same, and says so.
    std::string const broken(directory
                                 .Write("broken.inp",
                                        "*NODE\n1, 0, 0, 0\n2, 1, 0, 0\n3, 0, 1, 0\n"
                                        "*ELEMENT, TYPE=CPS3\n1, 1, 2, 3\n"
                                        "*ELEMENT, TYPE=NOSUCH7\n2, 1, 2, 3\n")
                                 .View());
    std::string const brokenOut(directory.Path("broken.vtu").View());
    FedeckOutcome const errors = RunFedeckInProcess({"convert", broken, brokenOut});
    EXPECT_EQ(errors.status, 1) << errors.err;
    EXPECT_NE(errors.err.find("Element type NOSUCH7 is not supported."), std::string::npos);
    EXPECT_NE(
        errors.err.find("the model has no nodes and no elements; " + brokenOut + " holds no mesh"),
        std::string::npos)
        << errors.err;
    // Only masses: the nodes alone, with a warning.
    std::string const masses(directory
                                 .Write("masses.inp",
                                        "*NODE\n1, 0, 0, 0\n2, 1, 0, 0\n"
                                        "*ELEMENT, TYPE=MASS, ELSET=M\n1, 1\n2, 2\n"
                                        "*MASS, ELSET=M\n1.\n")
                                 .View());
    std::string const massesOut(directory.Path("masses.vtu").View());
    FedeckOutcome const noCells = RunFedeckInProcess({"convert", masses, massesOut});
    EXPECT_EQ(noCells.status, 0) << noCells.err;
    EXPECT_NE(noCells.err.find("no element of the model has a VTK cell; " + massesOut +
                               " holds the nodes alone"),
              std::string::npos)
        << noCells.err;
    EXPECT_NE(noCells.err.find("left out: MASS (2)"), std::string::npos) << noCells.err;

    // meshio cannot read a grid without cells; the files say what they hold.
    EXPECT_NE(fileText(massesOut).find("<Piece NumberOfPoints=\"2\" NumberOfCells=\"0\">"),
              std::string::npos);
    EXPECT_NE(fileText(brokenOut).find("<Piece NumberOfPoints=\"0\" NumberOfCells=\"0\">"),
              std::string::npos);
}

}  // namespace
