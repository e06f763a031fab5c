// `fedeck model` as scripts read it: the output is parsed as JSON and checked
// field by field, on decks in parts, a flat deck and a deck with errors.

#include "tools/fedeck_Model.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "pipeline/inp_Module.h"
#include "support/aio_Stream.h"
#include "tests/common/InProcessFedeck.h"
#include "tests/common/JsonReader.h"
#include "tests/common/TempDeckDirectory.h"
#include "tools/fedeck_Commands.h"

namespace {

namespace fs = std::filesystem;

std::vector<int> ints(Json const& array) {
    std::vector<int> values;
    for (Json const& item : array.items) values.push_back(item.Int());
    return values;
}

testing::Environment* const kModule = testing::AddGlobalTestEnvironment(new DeckModuleEnvironment);

struct Outcome : FedeckOutcome {
    Json Model() const { return JsonReader(out).Read(); }
};

Outcome runFedeck(std::vector<std::string> const& arguments) {
    return {RunFedeckInProcess(arguments)};
}

// One part, a brick, placed twice: FIXED where the part stands, MOVED
// translated by (10, 0, 0) and then turned 30 degrees about the z axis.
constexpr char kPartsDeck[] = R"(*HEADING
*PART, NAME=BRICK
*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
4, 0., 1., 0.
5, 0., 0., 1.
6, 1., 0., 1.
7, 1., 1., 1.
8, 0.1, 1., 1.
*ELEMENT, TYPE=C3D8, ELSET=ALL
1, 1, 2, 3, 4, 5, 6, 7, 8
*NSET, NSET=BASE, UNSORTED
4, 1, 2, 3
*SURFACE, NAME=TOP
ALL, S2
*SURFACE, NAME=PTS, TYPE=NODE
BASE, 0.1
*SOLID SECTION, ELSET=ALL, MATERIAL=STEEL
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=FIXED, PART=BRICK
*END INSTANCE
*INSTANCE, NAME=MOVED, PART=BRICK
10., 0., 0.
0., 0., 0., 0., 0., 1., 30.
*END INSTANCE
*NODE
100, 5., 5., 5.
*NSET, NSET=BASES, UNSORTED
FIXED.BASE, MOVED.1, 100
*ELSET, ELSET=PAIR
MOVED.1, FIXED.1
*SURFACE, NAME=BOTH
MOVED.ALL, S1
FIXED.ALL, S3
*SURFACE, NAME=ANCH, TYPE=NODE
100, 2.5
MOVED.BASE,
*END ASSEMBLY
*MATERIAL, NAME=STEEL
*ELASTIC
210000., 0.3
*STEP
*STATIC
*END STEP
)";

class FedeckModel : public testing::Test {
  protected:
    Outcome model(std::string const& deck, std::vector<std::string> options = {}) {
        options.push_back(std::string(m_dir.Write("deck.inp", deck).View()));
        options.insert(options.begin(), "model");
        return runFedeck(options);
    }
    TempDeckDirectory m_dir;
};

void expectCounts(Json const& counts, std::vector<int> const& expected) {
    std::vector<std::string> const names = {"parts",    "instances",   "nodes",   "elements",
                                            "nodeSets", "elementSets", "surfaces"};
    EXPECT_EQ(counts.order, names);
    for (size_t i = 0; i < names.size(); ++i) EXPECT_EQ(counts[names[i]].Int(), expected[i]);
}

}  // namespace

TEST_F(FedeckModel, InstancesShareTheirPartAndStandInTheGlobalFrame) {
    Outcome const run = model(kPartsDeck);
    ASSERT_EQ(run.status, 0) << run.out;
    Json const json = run.Model();
    EXPECT_EQ(json["stage"].text, "out-of-place");
    EXPECT_EQ(json["partsAndAssembly"].number, 1.0);
    EXPECT_EQ(json["fakePartModel"].number, 0.0);
    expectCounts(json["counts"], {1, 2, 17, 2, 2, 2, 4});

    Json const& brick = json["parts"]["BRICK"];
    ASSERT_EQ(brick["nodes"].items.size(), 8u);
    EXPECT_EQ(brick["nodes"][7][3].number, 1.0);
    EXPECT_EQ(brick["nodes"][7][1].number, 0.1);  // reads back to the same double
    // After the whole road a part's elements are seen through its instances.
    EXPECT_TRUE(brick["elements"].items.empty());

    Json const& moved = json["assembly"]["instances"]["MOVED"];
    EXPECT_EQ(moved["part"].text, "BRICK");
    double const c = std::cos(std::numbers::pi / 6), s = std::sin(std::numbers::pi / 6);
    double const rotation[3][3] = {{c, -s, 0}, {s, c, 0}, {0, 0, 1}};
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            EXPECT_NEAR(moved["rotation"][row][column].number, rotation[row][column], 1e-12);
    EXPECT_NEAR(moved["translation"][0].number, 10 * c, 1e-12);
    EXPECT_NEAR(moved["translation"][1].number, 10 * s, 1e-12);
    for (size_t i = 0; i < 8; ++i) {
        Json const& local = brick["nodes"][i];
        Json const& global = moved["nodes"][i];
        EXPECT_EQ(global[0].Int(), local[0].Int());
        double const x = local[1].number + 10, y = local[2].number;
        EXPECT_NEAR(global[1].number, c * x - s * y, 1e-12) << i;
        EXPECT_NEAR(global[2].number, s * x + c * y, 1e-12) << i;
        EXPECT_NEAR(global[3].number, local[3].number, 1e-12) << i;
        EXPECT_EQ(json["assembly"]["instances"]["FIXED"]["nodes"][i][1].number, local[1].number);
    }
    ASSERT_EQ(moved["elements"].items.size(), 1u);
    EXPECT_EQ(moved["elements"][0][1].text, "C3D8");
    EXPECT_EQ(ints(moved["elements"][0]), (std::vector<int>{1, 0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(ints(moved["nodeSets"]["BASE"]), (std::vector<int>{4, 1, 2, 3}));  // set order
    EXPECT_EQ(ints(moved["elementSets"]["ALL"]), std::vector<int>{1});
    EXPECT_EQ(json["assembly"]["instances"]["FIXED"]["translation"][0].number, 0.0);
}

TEST_F(FedeckModel, AssemblySetsAndSurfacesKeepTheirScopesAndForms) {
    Json const json = model(kPartsDeck).Model();
    Json const& assembly = json["assembly"];
    EXPECT_EQ(assembly["nodes"].items.size(), 1u);
    EXPECT_EQ(ints(assembly["nodes"][0]), (std::vector<int>{100, 5, 5, 5}));
    EXPECT_TRUE(assembly["elements"].items.empty());

    Json const& bases = assembly["nodeSets"]["BASES"];
    EXPECT_EQ(ints(bases["ids"]), std::vector<int>{100});
    EXPECT_EQ(bases["instances"].order, (std::vector<std::string>{"FIXED", "MOVED"}));
    EXPECT_EQ(ints(bases["instances"]["FIXED"]), (std::vector<int>{4, 1, 2, 3}));
    EXPECT_EQ(ints(bases["instances"]["MOVED"]), std::vector<int>{1});
    Json const& pair = assembly["elementSets"]["PAIR"];
    EXPECT_TRUE(pair["ids"].items.empty());
    EXPECT_EQ(ints(pair["instances"]["MOVED"]), std::vector<int>{1});

    Json const& both = assembly["surfaces"]["BOTH"];
    EXPECT_TRUE(both["nodes"].items.empty());
    EXPECT_EQ(both["instances"]["MOVED"]["type"].text, "element");
    EXPECT_EQ(ints(both["instances"]["MOVED"]["faces"]["S1"]), std::vector<int>{1});
    EXPECT_EQ(ints(both["instances"]["FIXED"]["faces"]["S3"]), std::vector<int>{1});
    Json const& anchor = assembly["surfaces"]["ANCH"];
    EXPECT_EQ(anchor["nodes"][0][1].number, 2.5);
    EXPECT_EQ(anchor["instances"]["MOVED"]["type"].text, "node");
    EXPECT_EQ(anchor["instances"]["MOVED"]["nodes"].items.size(), 4u);
    EXPECT_EQ(anchor["instances"]["MOVED"]["nodes"][0][0].Int(), 1);  // ascending

    Json const& partSurfaces = json["parts"]["BRICK"]["surfaces"];
    EXPECT_EQ(partSurfaces["TOP"]["faces"].order, std::vector<std::string>{"S2"});
    EXPECT_EQ(partSurfaces["PTS"]["nodes"][3][0].Int(), 4);
    EXPECT_EQ(partSurfaces["PTS"]["nodes"][3][1].number, 0.1);
}

TEST_F(FedeckModel, StopsWhereTheUserAsksAndShowsWhatWasBuiltThen) {
    Json const json = model(kPartsDeck, {"--until", "assembly-maps"}).Model();
    EXPECT_EQ(json["stage"].text, "assembly-maps");
    // Before out-of-place the part still holds its elements.
    EXPECT_EQ(json["parts"]["BRICK"]["elements"].items.size(), 1u);
    Json const organized = model(kPartsDeck, {"--until=organize"}).Model();
    EXPECT_EQ(organized["parts"].kind, Json::Object);
    EXPECT_TRUE(organized["parts"].members.empty());
    EXPECT_EQ(organized["partsAndAssembly"].number, 1.0);
}

// A flat deck is shown as the part it was made: "PART-1" with one instance.
TEST_F(FedeckModel, FlatDeckShowsItsGeneratedPartAndInstance) {
    Outcome const run = model("*HEADING\n*NODE, NSET=ALL\n1, 0., 0.\n2, 1., 0.\n");
    EXPECT_EQ(run.status, 0);
    Json const json = run.Model();
    EXPECT_EQ(json["partsAndAssembly"].number, 0.0);
    EXPECT_EQ(json["fakePartModel"].number, 1.0);
    EXPECT_EQ(json["parts"].order, std::vector<std::string>{"PART-1"});
    EXPECT_EQ(json["parts"]["PART-1"]["nodes"].items.size(), 2u);
    EXPECT_EQ(json["assembly"]["instances"].order, std::vector<std::string>{"PART-1-1"});
    expectCounts(json["counts"], {1, 1, 2, 0, 1, 0, 0});  // ALL is the part's
    Json const organized = model("*HEADING\n*NODE\n1, 0., 0.\n", {"--until=organize"}).Model();
    EXPECT_TRUE(organized["parts"].members.empty());
    EXPECT_EQ(organized["fakePartModel"].number, 0.0);
}

// An analytical surface beside solid elements breaks a rule of parts: the
// run ends in errors, yet every map built on the way is printed.
TEST_F(FedeckModel, DeckWithErrorsStillPrintsItsMapsAndExitsWithOne) {
    std::string deck = kPartsDeck;
    deck.insert(deck.find("*SOLID SECTION"),
                "*SURFACE, NAME=RIGID, TYPE=SEGMENTS\nSTART, 0., 0.\nLINE, 1., 0.\n");
    Outcome const run = model(deck);
    EXPECT_EQ(run.status, 1);
    Json const json = run.Model();
    ASSERT_EQ(json["diagnostics"].items.size(), 2u);
    EXPECT_EQ(json["diagnostics"][1]["text"].text,
              "in keyword *PART, file \"" + std::string(m_dir.Path("deck.inp").View()) +
                  "\", line 2: Rigid elements, deformable elements, connectors and analytical "
                  "surfaces cannot be combined within a part. This rule is violated by part BRICK");
    EXPECT_EQ(json["parts"]["BRICK"]["surfaces"]["RIGID"]["type"].text, "analytical");
    EXPECT_EQ(json["assembly"]["instances"]["MOVED"]["elements"].items.size(), 1u);
    expectCounts(json["counts"], {1, 2, 17, 2, 2, 2, 5});
}

// An instance of a part that does not exist ends the run at expansion,
// before any map is built: the instances read so far are still listed.
TEST_F(FedeckModel, InstanceOfAnUnknownPartStopsBeforeTheMaps) {
    std::string deck = kPartsDeck;
    deck.insert(deck.find("*INSTANCE, NAME=FIXED"),
                "*INSTANCE, NAME=GHOST, PART=NOPE\n*END INSTANCE\n");
    Outcome const run = model(deck);
    EXPECT_EQ(run.status, 1);
    Json const json = run.Model();
    EXPECT_EQ(json["stage"].text, "expand");
    ASSERT_EQ(json["diagnostics"].items.size(), 1u);
    std::string const text = json["diagnostics"][0]["text"].text;
    EXPECT_NE(text.find(R"(: Part with the name "NOPE" has not been defined.)"), std::string::npos)
        << text;
    EXPECT_TRUE(json["parts"].members.empty());
    Json const& ghost = json["assembly"]["instances"]["GHOST"];
    EXPECT_EQ(ghost["part"].text, "NOPE");
    EXPECT_TRUE(ghost["nodes"].items.empty());
    EXPECT_EQ(json["assembly"]["instances"]["MOVED"]["part"].text, "BRICK");
    expectCounts(json["counts"], {0, 3, 0, 0, 0, 0, 0});
}

TEST(FedeckModelCounts, CheckJsonCarriesTheSameCounts) {
    TempDeckDirectory dir;
    std::string const deck(dir.Write("deck.inp", kPartsDeck).View());
    Outcome const check = runFedeck({"check", "--json", deck});
    EXPECT_EQ(check.status, 0);
    expectCounts(JsonReader(check.out).Read()["counts"], {1, 2, 17, 2, 2, 2, 4});
}

std::string readFile(fs::path const& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// The example of the README, run as a user in the examples directory would;
// the README shows the deck and the output verbatim.
TEST(FedeckModelReadme, ExampleGivesTheDocumentedOutput) {
    fs::path const source = fs::path(__FILE__).parent_path();
    fs::path const root = source.parent_path().parent_path();
    std::string const expected = readFile(source / "data" / "model_example.json");
    fs::path const before = fs::current_path();
    fs::current_path(root / "examples");
    Outcome const run = runFedeck({"model", "model_example.inp"});
    fs::current_path(before);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, expected);
    std::string const readme = readFile(root / "README.md");
    EXPECT_NE(readme.find("```\n" + readFile(root / "examples" / "model_example.inp") + "```"),
              std::string::npos);
    EXPECT_NE(readme.find("```json\n" + expected + "```"), std::string::npos);
}

// -- every kind of job, through the whole road --------------------------------------------

namespace {

// A flat deck whose rigid body holds an analytical surface: that surface
// gets a part and an instance of its own, the mesh stays in PART-1.
constexpr char kFlatRigidDeck[] = R"(*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
4, 0., 1., 0.
5, 0., 0., 1.
6, 1., 0., 1.
7, 1., 1., 1.
8, 0., 1., 1.
100, 5., 5., 5.
101, 9., 9., 9.
102, 10., 9., 9.
*ELEMENT, TYPE=C3D8, ELSET=BLOCK
1, 1, 2, 3, 4, 5, 6, 7, 8
*ELEMENT, TYPE=R3D3, ELSET=PLATE
2, 100, 101, 102
*RIGID BODY, REF NODE=100, ELSET=PLATE
*SURFACE, NAME=FLOOR, TYPE=SEGMENTS
START, 0., 0.
LINE, 1., 0.
*RIGID BODY, REF NODE=101, ANALYTICAL SURFACE=FLOOR
*SOLID SECTION, ELSET=BLOCK, MATERIAL=STEEL
*MATERIAL, NAME=STEEL
*ELASTIC
210000., 0.3
*STEP
*STATIC
*END STEP
)";

// The earlier job of the continuation jobs below.
constexpr char kEarlierJob[] = R"(*NODE
1, 0., 0.
2, 1., 0.
3, 1., 1.
*ELEMENT, TYPE=CPS3, ELSET=PLATE
10, 1, 2, 3
*NSET, NSET=FIXED
1, 2
*NSET, NSET=TIP
3
*STEP
*STATIC
*BOUNDARY
FIXED, ENCASTRE
*END STEP
)";

class FedeckJobs : public FedeckModel {
  protected:
    Json continued(std::string const& deck) {
        std::string const earlier(m_dir.Write("earlier.inp", kEarlierJob).View());
        Outcome const run = model(deck, {"--restart-from", earlier});
        EXPECT_EQ(run.status, 0) << run.out;
        Json json = run.Model();
        EXPECT_EQ(json["stage"].text, "inherit-part-map");
        EXPECT_EQ(json["fakePartModel"].number, 1.0);
        return json;
    }
};

}  // namespace

TEST_F(FedeckJobs, AFlatDeckWithRigidBodiesKeepsItsMeshAndGivesTheSurfaceAPart) {
    Outcome const run = model(kFlatRigidDeck);
    ASSERT_EQ(run.status, 0) << run.out;
    Json const json = run.Model();
    EXPECT_EQ(json["parts"].order, (std::vector<std::string>{"FLOOR", "PART-1"}));
    EXPECT_EQ(json["parts"]["FLOOR"]["surfaces"]["FLOOR"]["type"].text, "analytical");
    Json const& part = json["parts"]["PART-1"];
    ASSERT_EQ(part["nodes"].items.size(), 11u);
    EXPECT_EQ(ints(part["nodes"][10]), (std::vector<int>{102, 10, 9, 9}));
    Json const& instances = json["assembly"]["instances"];
    EXPECT_EQ(instances.order, (std::vector<std::string>{"FLOOR-1", "PART-1-1"}));
    EXPECT_EQ(instances["FLOOR-1"]["part"].text, "FLOOR");
    ASSERT_EQ(instances["PART-1-1"]["elements"].items.size(), 2u);
    EXPECT_EQ(instances["PART-1-1"]["elements"][1][1].text, "R3D3");
    EXPECT_EQ(ints(instances["PART-1-1"]["elementSets"]["PLATE"]), std::vector<int>{2});
}

// A restart of step data only: its new sets are read against the earlier
// model, each id found in the instance that holds it.
TEST_F(FedeckJobs, ARestartAddsSetsAndSurfacesToTheEarlierModel) {
    Json const json = continued(
        "*ELSET, ELSET=ALSO\nPLATE\n*NSET, NSET=CORNER\n3\n"
        "*SURFACE, NAME=EDGE\nALSO, S1\n*STEP\n*STATIC\n*CLOAD\n"
        "CORNER, 2, 1.\n*END STEP\n");
    Json const& assembly = json["assembly"];
    EXPECT_EQ(ints(assembly["nodeSets"]["CORNER"]["instances"]["PART-1-1"]), std::vector<int>{3});
    EXPECT_EQ(ints(assembly["elementSets"]["ALSO"]["instances"]["PART-1-1"]), std::vector<int>{10});
    EXPECT_EQ(ints(assembly["surfaces"]["EDGE"]["instances"]["PART-1-1"]["faces"]["S1"]),
              std::vector<int>{10});
    // The earlier model's sets stand where that job left them.
    EXPECT_EQ(ints(assembly["instances"]["PART-1-1"]["nodeSets"]["FIXED"]),
              (std::vector<int>{1, 2}));
    EXPECT_TRUE(json["parts"].members.empty());  // no mesh of its own
}

TEST_F(FedeckJobs, ARestartThatAddsMeshMakesItsOwnPart) {
    Json const json = continued("*NODE\n7, 2., 0.\n*ELEMENT, TYPE=CPS3, ELSET=MORE\n11, 2, 7, 3\n");
    EXPECT_EQ(json["parts"].order, std::vector<std::string>{"PART-1"});
    Json const& instance = json["assembly"]["instances"]["PART-1-1"];
    EXPECT_EQ(ints(instance["elements"][0]), (std::vector<int>{11, 0, 2, 7, 3}));
    EXPECT_EQ(ints(instance["elementSets"]["MORE"]), std::vector<int>{11});
    EXPECT_EQ(ints(instance["elementSets"]["PLATE"]), std::vector<int>{10});
}

// An import keeps of the earlier sets only those its keywords name.
TEST_F(FedeckJobs, AnImportKeepsTheSetsItNames) {
    Json const json = continued("*IMPORT, STEP=1, UPDATE=NO\nPLATE\n*IMPORT NSET\nTIP\n");
    Json const& instance = json["assembly"]["instances"]["PART-1-1"];
    EXPECT_EQ(instance["elementSets"].order, std::vector<std::string>{"PLATE"});
    EXPECT_EQ(instance["nodeSets"].order, std::vector<std::string>{"TIP"});
}

TEST_F(FedeckJobs, ASymmetricModelGenerationGoesOnFromTheEarlierSets) {
    Json const json = continued(
        "*SYMMETRIC MODEL GENERATION, REFLECT=LINE, ELEMENT OFFSET=100, "
        "NODE OFFSET=100\n0., 0., 0.\n0., 1., 0.\n");
    EXPECT_TRUE(json["diagnostics"].items.empty());
    Json const& instance = json["assembly"]["instances"]["PART-1-1"];
    EXPECT_EQ(ints(instance["nodeSets"]["FIXED"]), (std::vector<int>{1, 2}));
    EXPECT_EQ(json["parts"].order, std::vector<std::string>{"PART-1"});
}
