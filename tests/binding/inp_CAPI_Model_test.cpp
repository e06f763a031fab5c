// The flat model entry as a C caller uses it: counts, then arrays filled in
// one call each, on a deck in parts with a moved instance, elements of one
// type and two widths, sets across instances and surfaces of both kinds;
// then every way of calling it wrongly.

#include "binding/inp_CAPI_Model.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "tests/common/ModelEntryWalk.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

// One part placed twice, the second moved and turned; elements of one type
// in two widths; sets and surfaces at every level. The Python package's
// tests read the same deck.
std::string const kPartsDeckPath = FEDECK_SOURCE_DIR "/tests/binding/placed_brick.inp";

std::string fileText(std::string const& path) {
    std::ifstream file(path);
    return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

std::string const kPartsDeck = fileText(kPartsDeckPath);

struct ModelFree {
    void operator()(inp_CAPI_Model* model) const { inp_CAPI_Model_Free(model); }
};
using ModelHandle = std::unique_ptr<inp_CAPI_Model, ModelFree>;

struct Diagnostic {
    int severity;
    std::string text;
    std::string file;
    int line;
    std::string keyword;
};

void collect(void* context, int severity, char const* text, char const* file, int line,
             char const* keyword) {
    static_cast<std::vector<Diagnostic>*>(context)->push_back(
        {severity, text, file != nullptr ? file : "", line, keyword != nullptr ? keyword : ""});
}

class ModelEntry : public testing::Test {
  protected:
    ModelHandle read(std::string const& text, int expectedStatus = inp_CAPI_MODEL_CLEAN) {
        std::string const path(m_directory.Write("deck.inp", text).View());
        ModelHandle model(inp_CAPI_Model_New());
        EXPECT_EQ(inp_CAPI_Model_Read(model.get(), path.c_str(), nullptr, collect, &m_diagnostics),
                  expectedStatus);
        return model;
    }

    TempDeckDirectory m_directory;
    std::vector<Diagnostic> m_diagnostics;
};

std::vector<int32_t> setMembers(inp_CAPI_Model const* model, int level, int index, int kind,
                                int set, std::vector<int32_t>* instances = nullptr) {
    std::vector<int32_t> ids(std::size_t(inp_CAPI_Model_SetSize(model, level, index, kind, set)));
    std::vector<int32_t> owners(ids.size());
    EXPECT_EQ(inp_CAPI_Model_SetMembers(model, level, index, kind, set, ids.data(), owners.data()),
              0);
    if (instances != nullptr) *instances = owners;
    return ids;
}

TEST_F(ModelEntry, LevelsNodesAndTransformsOfADeckInParts) {
    ModelHandle const model = read(kPartsDeck);
    ASSERT_TRUE(m_diagnostics.empty()) << m_diagnostics.front().text;
    EXPECT_EQ(inp_CAPI_Model_LevelCount(model.get(), inp_CAPI_ASSEMBLY), 1);
    ASSERT_EQ(inp_CAPI_Model_LevelCount(model.get(), inp_CAPI_PART), 1);
    ASSERT_EQ(inp_CAPI_Model_LevelCount(model.get(), inp_CAPI_INSTANCE), 2);
    EXPECT_STREQ(inp_CAPI_Model_LevelName(model.get(), inp_CAPI_PART, 0), "BRICK");
    EXPECT_STREQ(inp_CAPI_Model_LevelName(model.get(), inp_CAPI_INSTANCE, 1), "TURNED");
    EXPECT_STREQ(inp_CAPI_Model_InstancePart(model.get(), 1), "BRICK");

    double rotation[9];
    double translation[3];
    ASSERT_EQ(inp_CAPI_Model_InstanceTransform(model.get(), 0, rotation, translation), 0);
    EXPECT_EQ(std::vector<double>(rotation, rotation + 9),
              (std::vector<double>{1, 0, 0, 0, 1, 0, 0, 0, 1}));

    // TURNED's nodes are placed: (x, y, z) moved by (10, 0, 0), then turned
    // a quarter about z through (10, 0, 0).
    ASSERT_EQ(inp_CAPI_Model_NodeCount(model.get(), inp_CAPI_INSTANCE, 1), 8);
    std::vector<int32_t> labels(8);
    std::vector<double> coordinates(24);
    ASSERT_EQ(
        inp_CAPI_Model_Nodes(model.get(), inp_CAPI_INSTANCE, 1, labels.data(), coordinates.data()),
        0);
    EXPECT_EQ(labels, (std::vector<int32_t>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_NEAR(coordinates[6], 8.0, 1e-12);  // node 3 at (1, 2, 0)
    EXPECT_NEAR(coordinates[7], 1.0, 1e-12);
    ASSERT_EQ(inp_CAPI_Model_InstanceTransform(model.get(), 1, rotation, translation), 0);
    for (int node = 0; node < 8; ++node) {
        // global = rotation * part + translation, against the part's nodes
        std::vector<double> part(24);
        std::vector<int32_t> partLabels(8);
        inp_CAPI_Model_Nodes(model.get(), inp_CAPI_PART, 0, partLabels.data(), part.data());
        for (int axis = 0; axis < 3; ++axis) {
            double placed = translation[axis];
            for (int k = 0; k < 3; ++k)
                placed += rotation[axis * 3 + k] * part[std::size_t(node * 3 + k)];
            EXPECT_NEAR(coordinates[std::size_t(node * 3 + axis)], placed, 1e-12);
        }
    }
    ASSERT_EQ(inp_CAPI_Model_NodeCount(model.get(), inp_CAPI_ASSEMBLY, 0), 1);
    int32_t assemblyLabel = 0;
    double assemblyNode[3];
    inp_CAPI_Model_Nodes(model.get(), inp_CAPI_ASSEMBLY, 0, &assemblyLabel, assemblyNode);
    EXPECT_EQ(assemblyLabel, 100);
}

TEST_F(ModelEntry, ElementsComeByTypeWithShortRowsPadded) {
    ModelHandle const model = read(kPartsDeck);
    ASSERT_EQ(inp_CAPI_Model_ElementTypeCount(model.get(), inp_CAPI_INSTANCE, 0), 2);
    EXPECT_STREQ(inp_CAPI_Model_ElementTypeName(model.get(), inp_CAPI_INSTANCE, 0, 0), "B31");
    EXPECT_STREQ(inp_CAPI_Model_ElementTypeName(model.get(), inp_CAPI_INSTANCE, 0, 1), "C3D8");
    int width = 0;
    ASSERT_EQ(inp_CAPI_Model_ElementCount(model.get(), inp_CAPI_INSTANCE, 0, 0, &width), 2);
    EXPECT_EQ(width, 3);
    std::vector<int32_t> labels(2);
    std::vector<int32_t> connectivity(6);
    ASSERT_EQ(inp_CAPI_Model_Elements(model.get(), inp_CAPI_INSTANCE, 0, 0, labels.data(),
                                      connectivity.data()),
              0);
    EXPECT_EQ(labels, (std::vector<int32_t>{21, 22}));
    EXPECT_EQ(connectivity, (std::vector<int32_t>{1, 2, 0, 2, 3, 4}));
    EXPECT_EQ(inp_CAPI_Model_ElementCount(model.get(), inp_CAPI_INSTANCE, 0, 1, &width), 1);
    EXPECT_EQ(width, 8);
    EXPECT_EQ(inp_CAPI_Model_ElementTypeCount(model.get(), inp_CAPI_ASSEMBLY, 0), 0);
}

TEST_F(ModelEntry, SetsAndSurfacesWithTheirInstances) {
    ModelHandle const model = read(kPartsDeck);
    ASSERT_EQ(inp_CAPI_Model_SetCount(model.get(), inp_CAPI_ASSEMBLY, 0, inp_CAPI_NODE_SET), 1);
    EXPECT_STREQ(inp_CAPI_Model_SetName(model.get(), inp_CAPI_ASSEMBLY, 0, inp_CAPI_NODE_SET, 0),
                 "TOPS");
    std::vector<int32_t> instances;
    EXPECT_EQ(setMembers(model.get(), inp_CAPI_ASSEMBLY, 0, inp_CAPI_NODE_SET, 0, &instances),
              (std::vector<int32_t>{100, 5, 6, 7}));
    EXPECT_EQ(instances, (std::vector<int32_t>{-1, 0, 0, 1}));
    ASSERT_EQ(inp_CAPI_Model_SetCount(model.get(), inp_CAPI_PART, 0, inp_CAPI_ELEMENT_SET), 2);
    EXPECT_STREQ(inp_CAPI_Model_SetName(model.get(), inp_CAPI_PART, 0, inp_CAPI_ELEMENT_SET, 1),
                 "BEAMS");
    EXPECT_EQ(setMembers(model.get(), inp_CAPI_PART, 0, inp_CAPI_ELEMENT_SET, 1),
              (std::vector<int32_t>{21, 22}));
    EXPECT_EQ(setMembers(model.get(), inp_CAPI_INSTANCE, 1, inp_CAPI_NODE_SET, 0),
              (std::vector<int32_t>{1, 2, 3, 4}));

    // The part's surfaces: CORNER (nodes with areas), TOP (faces).
    ASSERT_EQ(inp_CAPI_Model_SurfaceCount(model.get(), inp_CAPI_PART, 0), 2);
    EXPECT_STREQ(inp_CAPI_Model_SurfaceName(model.get(), inp_CAPI_PART, 0, 0), "CORNER");
    int instance = 0;
    int type = 0;
    int64_t size = 0;
    ASSERT_EQ(
        inp_CAPI_Model_SurfacePiece(model.get(), inp_CAPI_PART, 0, 0, 0, &instance, &type, &size),
        0);
    EXPECT_EQ(instance, -1);
    EXPECT_EQ(type, inp_CAPI_NODES);
    ASSERT_EQ(size, 1);
    int32_t node = 0;
    double area = 0;
    inp_CAPI_Model_SurfaceMembers(model.get(), inp_CAPI_PART, 0, 0, 0, &node, nullptr, &area);
    EXPECT_EQ(node, 1);
    EXPECT_EQ(area, 2.5);

    // The assembly's OUTSIDE: no own nodes, then one piece per instance.
    ASSERT_EQ(inp_CAPI_Model_SurfaceCount(model.get(), inp_CAPI_ASSEMBLY, 0), 1);
    ASSERT_EQ(inp_CAPI_Model_SurfacePieceCount(model.get(), inp_CAPI_ASSEMBLY, 0, 0), 3);
    inp_CAPI_Model_SurfacePiece(model.get(), inp_CAPI_ASSEMBLY, 0, 0, 0, &instance, &type, &size);
    EXPECT_EQ(size, 0);
    inp_CAPI_Model_SurfacePiece(model.get(), inp_CAPI_ASSEMBLY, 0, 0, 2, &instance, &type, &size);
    EXPECT_EQ(instance, 1);
    EXPECT_EQ(type, inp_CAPI_ELEMENT_FACES);
    ASSERT_EQ(size, 1);
    int32_t element = 0;
    int32_t face = -1;
    inp_CAPI_Model_SurfaceMembers(model.get(), inp_CAPI_ASSEMBLY, 0, 0, 2, &element, &face,
                                  nullptr);
    EXPECT_EQ(element, 11);
    EXPECT_STREQ(inp_CAPI_Model_FaceName(model.get(), face), "S3");
    EXPECT_EQ(inp_CAPI_Model_FaceCount(model.get()), 3);  // S1, S2, S3
}

// A caller keeps one array for levels that share a table, and gives the
// elements back once it has them.
TEST_F(ModelEntry, SharedTablesAndElementsGivenBack) {
    ModelHandle const model = read(kPartsDeck);
    EXPECT_EQ(inp_CAPI_Model_SameNodes(model.get(), inp_CAPI_INSTANCE, 0, inp_CAPI_PART, 0), 1);
    EXPECT_EQ(inp_CAPI_Model_SameNodes(model.get(), inp_CAPI_INSTANCE, 1, inp_CAPI_PART, 0), 0);
    EXPECT_EQ(inp_CAPI_Model_SameNodes(model.get(), inp_CAPI_INSTANCE, 0, inp_CAPI_ASSEMBLY, 0), 0);
    EXPECT_EQ(inp_CAPI_Model_SameElements(model.get(), inp_CAPI_INSTANCE, 0, inp_CAPI_INSTANCE, 1),
              1);
    EXPECT_EQ(inp_CAPI_Model_SameElements(model.get(), inp_CAPI_INSTANCE, 0, inp_CAPI_PART, 3), -1);

    ASSERT_EQ(inp_CAPI_Model_ElementTypeCount(model.get(), inp_CAPI_INSTANCE, 0), 2);
    EXPECT_EQ(inp_CAPI_Model_ReleaseElements(model.get()), 0);
    EXPECT_EQ(inp_CAPI_Model_ElementTypeCount(model.get(), inp_CAPI_INSTANCE, 0), 0);
    EXPECT_EQ(setMembers(model.get(), inp_CAPI_PART, 0, inp_CAPI_ELEMENT_SET, 1),
              (std::vector<int32_t>{21, 22}));
    EXPECT_EQ(inp_CAPI_Model_NodeCount(model.get(), inp_CAPI_INSTANCE, 1), 8);
    EXPECT_EQ(inp_CAPI_Model_ReleaseElements(nullptr), -1);
}

TEST_F(ModelEntry, TheCellsOfViewers) {
    int nodes = 0;
    int order[20];
    char const* name = nullptr;
    EXPECT_EQ(inp_CAPI_VtkCell("C3D15", &nodes, order, &name), 26);
    EXPECT_EQ(nodes, 15);
    EXPECT_STREQ(name, "wedge15");
    EXPECT_EQ(order[1], 2);
    EXPECT_EQ(inp_CAPI_VtkCell("MASS", &nodes, order, &name), 0);
    EXPECT_EQ(inp_CAPI_VtkCell(nullptr, nullptr, nullptr, nullptr), 0);
}

TEST_F(ModelEntry, ADeckWithErrorsGivesWhatWasBuiltAndWhere) {
    ModelHandle const model =
        read("*NODE\n1, 0, 0, 0\n*ELEMENT, TYPE=NOSUCH7\n1, 1\n", inp_CAPI_MODEL_ERRORS);
    ASSERT_FALSE(m_diagnostics.empty());
    EXPECT_EQ(m_diagnostics.front().severity, 1);
    EXPECT_NE(m_diagnostics.front().text.find("NOSUCH7"), std::string::npos);
    EXPECT_EQ(m_diagnostics.front().line, 3);
    EXPECT_NE(m_diagnostics.front().file.find("deck.inp"), std::string::npos);
    EXPECT_EQ(m_diagnostics.front().keyword, "ELEMENT");
    // The road stops after the stage that found the error; what it built
    // is there to be read.
    EXPECT_GE(inp_CAPI_Model_LevelCount(model.get(), inp_CAPI_INSTANCE), 0);
}

TEST_F(ModelEntry, WrongCallsFailCleanly) {
    EXPECT_EQ(inp_CAPI_Model_Read(nullptr, "deck.inp", nullptr, nullptr, nullptr),
              inp_CAPI_MODEL_MISUSE);
    ModelHandle const unread(inp_CAPI_Model_New());
    EXPECT_EQ(inp_CAPI_Model_Read(unread.get(), nullptr, nullptr, nullptr, nullptr),
              inp_CAPI_MODEL_MISUSE);
    EXPECT_EQ(inp_CAPI_Model_LevelCount(unread.get(), inp_CAPI_PART), -1);
    EXPECT_EQ(inp_CAPI_Model_NodeCount(nullptr, inp_CAPI_ASSEMBLY, 0), -1);
    inp_CAPI_Model_Free(nullptr);

    ModelHandle const model = read(kPartsDeck);
    std::string const path(m_directory.Path("deck.inp").View());
    EXPECT_EQ(inp_CAPI_Model_Read(model.get(), path.c_str(), nullptr, nullptr, nullptr),
              inp_CAPI_MODEL_MISUSE);
    EXPECT_EQ(inp_CAPI_Model_LevelCount(model.get(), 7), -1);
    EXPECT_EQ(inp_CAPI_Model_NodeCount(model.get(), inp_CAPI_INSTANCE, 2), -1);
    EXPECT_EQ(inp_CAPI_Model_LevelName(model.get(), inp_CAPI_PART, -1), nullptr);
    EXPECT_EQ(inp_CAPI_Model_ElementCount(model.get(), inp_CAPI_INSTANCE, 0, 2, nullptr), -1);
    EXPECT_EQ(inp_CAPI_Model_SetSize(model.get(), inp_CAPI_PART, 0, 2, 0), -1);
    EXPECT_EQ(inp_CAPI_Model_SurfacePiece(model.get(), inp_CAPI_ASSEMBLY, 0, 0, 3, nullptr, nullptr,
                                          nullptr),
              -1);
    EXPECT_EQ(inp_CAPI_Model_Nodes(model.get(), inp_CAPI_PART, 0, nullptr, nullptr), -1);
    EXPECT_EQ(inp_CAPI_Model_FaceName(model.get(), 99), nullptr);

    ModelHandle const missing(inp_CAPI_Model_New());
    std::string const none(m_directory.Path("none.inp").View());
    EXPECT_EQ(inp_CAPI_Model_Read(missing.get(), none.c_str(), nullptr, nullptr, nullptr),
              inp_CAPI_MODEL_UNREADABLE);
    EXPECT_EQ(inp_CAPI_Model_LevelCount(missing.get(), inp_CAPI_PART), 0);
    ModelHandle const directory(inp_CAPI_Model_New());
    std::string const folder(m_directory.Directory().View());
    EXPECT_EQ(inp_CAPI_Model_Read(directory.get(), folder.c_str(), nullptr, nullptr, nullptr),
              inp_CAPI_MODEL_UNREADABLE);
}

// Models on different threads are independent: each thread reads its own
// handles while the other does (the ThreadSanitizer build runs this too).
TEST(ModelEntryThreads, HandlesOnTwoThreadsReadTheSameModelAtOnce) {
    std::size_t const alone = WalkModelEntry(kPartsDeckPath.c_str(), nullptr);
    ASSERT_GT(alone, 0u);
    std::size_t read[2] = {0, 0};
    auto const readTenTimes = [&read, alone](int thread) {
        for (int round = 0; round < 10; ++round)
            if (WalkModelEntry(kPartsDeckPath.c_str(), nullptr) == alone) ++read[thread];
    };
    std::thread first(readTenTimes, 0);
    std::thread second(readTenTimes, 1);
    first.join();
    second.join();
    EXPECT_EQ(read[0], 10u);
    EXPECT_EQ(read[1], 10u);
}

// Every deck of the repository through the entry with every accessor
// called: under the sanitizers, a fault of the entry on a real deck shows
// here.
TEST(ModelEntryOnEveryDeck, EveryAccessorTakesEveryDeckOfTheRepository) {
    namespace fs = std::filesystem;
    int read = 0;
    for (char const* folder : {"examples", "tests", "fuzz/corpus"})
        for (auto const& entry :
             fs::recursive_directory_iterator(fs::path(FEDECK_SOURCE_DIR) / folder))
            if (entry.is_regular_file() && entry.path().extension() == ".inp") {
                WalkModelEntry(entry.path().c_str(), entry.path().parent_path().c_str());
                ++read;
            }
    EXPECT_GE(read, 10);
}

}  // namespace
