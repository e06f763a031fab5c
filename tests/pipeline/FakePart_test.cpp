// Flat decks made parts: the road of a deck without *PART and *ASSEMBLY
// gives it the generated part "PART-1", its instance and the assembly, puts
// each keyword where it belongs, and scopes the references that now stand
// outside the part. The tree is read back as the deck text it prints.

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "assembly/inp_FakePartMeshVisitors.h"
#include "assembly/inp_FakePartVisitor.h"
#include "deck/inp_Item.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

constexpr char kBrick[] = R"(*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
4, 0., 1., 0.
5, 0., 0., 1.
6, 1., 0., 1.
7, 1., 1., 1.
8, 0., 1., 1.
*ELEMENT, TYPE=C3D8, ELSET=ALL
1, 1, 2, 3, 4, 5, 6, 7, 8
)";

enum class Reader { Solver, PreProcessor, Converter };

class FakePart : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    // The road of a new job through `last`, for the reader given.
    inp_Stage run(std::string const& deck, Reader reader = Reader::Solver,
                  inp_Stage last = inp_Stage::OutOfPlace) {
        inp_InputFileOptions options;
        options.atelierCompatible = reader == Reader::PreProcessor;
        input = inp_InputFile(options);
        input.SetInOdbConverter(reader == Reader::Converter);
        return input.Run(dir.Write("flat.inp", deck), last, inp_InputFile::RunRule::RunThrough);
    }
    // The tree as lines of folded deck text, depth first, parameters in
    // name order: "*instance, name=PART-1-1, part=PART-1", then data lines.
    std::vector<std::string> tree() const {
        std::vector<std::string> lines;
        outline(input.Keywords(), lines);
        return lines;
    }
    static void outline(cow_List<inp_Keyword> const& keywords, std::vector<std::string>& lines) {
        for (inp_Keyword const& keyword : keywords) {
            std::string line = "*" + std::string(keyword.Name().View());
            keyword.Parameters().ForEachSorted([&](cow_String const& name, inp_Item const& value) {
                line += ", " + std::string(name.View());
                if (value.Type() != inp_Types::inp_BOOLEAN)
                    line += "=" + std::string(value.AsString().View());
            });
            lines.push_back(line);
            inp_DataArray const& data = keyword.Data();
            for (int row = 0; row < data.Rows(); ++row) {
                std::string items;
                for (int column = 0; column < data.Cols(row); ++column)
                    items +=
                        (column > 0 ? ", " : "") + std::string(data.AsString(row, column).View());
                lines.push_back(items);
            }
            outline(keyword.Suboptions(), lines);
        }
    }
    // The index of the first line that is `line`, from `from` on; -1 if none.
    int indexOf(std::string const& line, int from = 0) const {
        std::vector<std::string> const lines = tree();
        for (int i = from; i < static_cast<int>(lines.size()); ++i)
            if (lines[i] == line) return i;
        return -1;
    }
    static std::string diagnostics() {
        std::string text;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            text += std::string(diagnostic.text.View()) + "\n";
        return text;
    }
    static bool said(std::string const& piece) {
        return diagnostics().find(piece) != std::string::npos;
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

std::string joined(std::vector<std::string> const& lines) {
    std::string text;
    for (std::string const& line : lines) text += line + "\n";
    return text;
}

}  // namespace

// The smallest flat deck: the part holds an *ELEMENT header, the assembly
// one instance of it.
TEST_F(FakePart, OneNodeAndOneElementBecomeAPartWithItsInstance) {
    run("*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n*ELEMENT, TYPE=T3D2\n1, 1, 2\n");
    EXPECT_EQ(joined(tree()),
              "*part, name=PART-1\n*element, type=T3D2\n*endpart\n"
              "*assembly, name=Assembly-1\n"
              "*instance, name=PART-1-1, part=PART-1\n*endinstance\n"
              "*endassembly\n")
        << diagnostics();
    EXPECT_TRUE(input.IsFakePartModel());
    EXPECT_EQ(input.PartElementMap().ConstGet("PART-1").Size(), 1);
    EXPECT_EQ(input.PartCoordMap().ConstGet("PART-1").Count(), 2);
    EXPECT_EQ(input.InstancePartNames().ConstGet("PART-1-1"), cow_String("PART-1"));
    // The instance holds the part's mesh at the assembly level.
    EXPECT_EQ(input.AssemblyCoordMap().ConstGet("PART-1-1").Count(), 2);
}

// `--until organize` still shows the deck as written.
TEST_F(FakePart, TheOrganizerAloneLeavesTheDeckFlat) {
    run(kBrick, Reader::Solver, inp_Stage::Organize);
    EXPECT_EQ(indexOf("*part, name=PART-1"), -1);
    EXPECT_FALSE(input.IsFakePartModel());
}

TEST_F(FakePart, KeywordsGoToTheirLevelsAndReferencesOutsideThePartAreScoped) {
    run(std::string(kBrick) + R"(*NSET, NSET=BASE
1, 2, 3, 4
*SURFACE, NAME=TOP
ALL, S2
*SOLID SECTION, ELSET=ALL, MATERIAL=STEEL
*MATERIAL, NAME=STEEL
*ELASTIC
210000., 0.3
*BOUNDARY
BASE, ENCASTRE
*DSLOAD
TOP, P, 1.
*STEP
*STATIC
*CLOAD
7, 3, 10.
*DSLOAD
TOP, P, 5.
*OUTPUT, FIELD
*NODE OUTPUT, NSET=BASE
U
*END STEP
)");
    std::vector<std::string> const lines = tree();
    std::string const text = joined(lines);
    EXPECT_FALSE(sink().HasErrors()) << diagnostics();
    int const part = indexOf("*part, name=PART-1");
    int const endPart = indexOf("*endpart");
    int const assembly = indexOf("*assembly, name=Assembly-1");
    int const step = indexOf("*step, name=Step-1");
    ASSERT_TRUE(part == 0 && endPart > part && assembly > endPart && step > assembly) << text;
    // The part: its sets, its section and the element header.
    EXPECT_GT(indexOf("*nset, generate, nset=BASE"), part);
    EXPECT_LT(indexOf("*nset, generate, nset=BASE"), endPart);
    EXPECT_LT(indexOf("*solidsection, elset=ALL, material=STEEL"), endPart);
    EXPECT_EQ(indexOf("*element, type=C3D8"), endPart - 1);
    // The model level after the parts; the boundary on the part's set scoped.
    EXPECT_GT(indexOf("*material, name=STEEL"), endPart);
    EXPECT_EQ(lines[indexOf("*boundary") + 1].find("PART-1-1.BASE"), 0u) << text;
    // The element surface at the assembly, on the instance's set; a
    // distributed load outside a step is gone without a word.
    int const surface = indexOf("*surface, name=TOP");
    EXPECT_GT(surface, assembly);
    EXPECT_EQ(lines[surface + 1].find("PART-1-1.ALL"), 0u) << text;
    EXPECT_EQ(indexOf("*dsload"), indexOf("*dsload", step));
    // In the step: the node label scoped, the assembly surface as it was.
    EXPECT_EQ(lines[indexOf("*cload") + 1].find("PART-1-1.7"), 0u) << text;
    EXPECT_EQ(lines[indexOf("*dsload") + 1].find("TOP"), 0u) << text;
    EXPECT_NE(indexOf("*nodeoutput, nset=PART-1-1.BASE"), -1) << text;
    // The maps: the sets belong to the part.
    EXPECT_TRUE(input.PartNsets().HasNestedSet("PART-1", "BASE"));
    EXPECT_TRUE(input.PartElsets().HasNestedSet("PART-1", "ALL"));
}

TEST_F(FakePart, KeywordsOfAParentFollowItAndAMisplacedOneIsReported) {
    run(std::string(kBrick) + R"(*SOLID SECTION, ELSET=ALL, MATERIAL=STEEL
*FRICTION
0.1
*SURFACE INTERACTION, NAME=ROUGH
*FRICTION
0.3
*MATERIAL, NAME=STEEL
*DAMPING, ALPHA=0.1
*ELASTIC
210000., 0.3
)");
    EXPECT_TRUE(said("Misplaced keyword.")) << diagnostics();
    int const interaction = indexOf("*surfaceinteraction, name=ROUGH");
    ASSERT_NE(interaction, -1);
    EXPECT_EQ(indexOf("*friction"), interaction + 1);
    EXPECT_EQ(tree()[interaction + 2], "0.3");
    EXPECT_EQ(indexOf("*damping, alpha=0.1"), indexOf("*material, name=STEEL") + 1);
}

// Item 2 of a line is what every even item of it becomes.
TEST_F(FakePart, PrestressHoldScopesEveryEvenItemFromTheSecond) {
    run(std::string(kBrick) + "*STEP\n*STATIC\n*PRESTRESS HOLD\nA, B, C, D\n*END STEP\n");
    int const hold = indexOf("*prestresshold");
    ASSERT_NE(hold, -1) << joined(tree());
    EXPECT_EQ(tree()[hold + 1], "A, PART-1-1.B, C, PART-1-1.B");
}

TEST_F(FakePart, NodesThatElementsNameButNoNodeDefinesArePlacedAtTheOrigin) {
    run("*NODE\n1, 1., 2., 3.\n2, 1., 0., 0.\n*ELEMENT, TYPE=T3D2\n1, 1, 2\n2, 2, 9\n");
    EXPECT_TRUE(said("Undefined node 9 was detected and placed at the origin. ")) << diagnostics();
    inp_CoordMap const& nodes = input.PartCoordMap().ConstGet("PART-1");
    ASSERT_TRUE(nodes.IsMember(9));
    EXPECT_EQ(nodes.ConstGet(9).x, 0.0);
    EXPECT_EQ(nodes.ConstGet(1).z, 3.0);
}

TEST_F(FakePart, UndefinedNodesOfLoadsAndSetsAreWarnedOnceAndPlaced) {
    run(std::string(kBrick) + R"(*NSET, NSET=EXTRA
20, 21
*STEP
*STATIC
*CLOAD
30, 1, 1.
30, 2, 1.
EXTRA, 3, 1.
*END STEP
)");
    std::string const text = diagnostics();
    size_t const first = text.find("Undefined node 30 was detected");
    ASSERT_NE(first, std::string::npos) << text;
    EXPECT_EQ(text.find("Undefined node 30 was detected", first + 1), std::string::npos);
    inp_CoordMap const& nodes = input.PartCoordMap().ConstGet("PART-1");
    EXPECT_TRUE(nodes.IsMember(30));
    EXPECT_TRUE(nodes.IsMember(20) && nodes.IsMember(21));
}

// A deck without elements, or without nodes, still closes.
TEST_F(FakePart, NodesWithoutElementsAndElementsWithoutNodesStillMakeAModel) {
    run("*NODE\n1, 0., 0., 0.\n*NSET, NSET=N\n1\n*BOUNDARY\nN, 1\n");
    EXPECT_NE(indexOf("*part, name=PART-1"), -1);
    EXPECT_EQ(input.PartCoordMap().ConstGet("PART-1").Count(), 1);
    run("*ELEMENT, TYPE=T3D2\n1, 1, 2\n");
    EXPECT_NE(indexOf("*instance, name=PART-1-1, part=PART-1"), -1);
    EXPECT_EQ(input.PartCoordMap().ConstGet("PART-1").Count(), 2);
}

// The solver's reader keeps one part; a rigid surface still has a part and
// instance of its own.
TEST_F(FakePart, TheSolversReaderKeepsRigidBodiesInThePart) {
    run(std::string(kBrick) + R"(*NODE
100, 5., 5., 5.
*RIGID BODY, REF NODE=100, ANALYTICAL SURFACE=PLANE
*SURFACE, TYPE=SEGMENTS, NAME=PLANE
START, 0., 0.
LINE, 1., 0.
)");
    EXPECT_FALSE(sink().HasErrors()) << diagnostics();
    EXPECT_NE(indexOf("*part, name=PLANE"), -1) << joined(tree());
    EXPECT_NE(indexOf("*instance, name=PLANE-1, part=PLANE"), -1);
    EXPECT_TRUE(input.PartCoordMap().ConstGet("PART-1").IsMember(100));
    EXPECT_NE(indexOf("*rigidbody, analyticalsurface=PLANE-1.PLANE, refnode=PART-1-1.100"), -1)
        << joined(tree());
}

TEST_F(FakePart, ThePreProcessorsReaderMakesRigidPartsWithTheirReferenceNodes) {
    run(std::string(kBrick) + R"(*NODE
100, 5., 5., 5.
101, 0., 0., 3.
102, 1., 0., 3.
103, 0., 1., 3.
104, 9., 9., 9.
*ELEMENT, TYPE=R3D3, ELSET=PLATE
10, 101, 102, 103
*ELEMENT, TYPE=SPRING2, ELSET=LINK
20, 100, 1
*SPRING, ELSET=LINK
1, 1
1000.
*RIGID BODY, REF NODE=100, ELSET=PLATE
*RIGID BODY, REF NODE=104, ANALYTICAL SURFACE=CYL
*RIGID SURFACE, TYPE=CYLINDER, NAME=CYL
0., 0., 0., 1., 0., 0.
0., 0., 1.
START, 1., 0.
LINE, 1., 1.
)",
        Reader::PreProcessor);
    std::string const text = joined(tree());
    EXPECT_NE(indexOf("*part, name=PLATE"), -1) << text << diagnostics();
    EXPECT_NE(indexOf("*part, name=CYL"), -1) << text;
    // Each reference node in its rigid part, once.
    EXPECT_TRUE(input.PartCoordMap().ConstGet("PLATE").IsMember(100));
    EXPECT_TRUE(input.PartCoordMap().ConstGet("CYL").IsMember(104));
    EXPECT_FALSE(input.PartCoordMap().ConstGet("PART-1").IsMember(100));
    // A spring between two parts stays at the assembly, its nodes scoped.
    int const spring = indexOf("*element, type=SPRING2");
    ASSERT_GT(spring, indexOf("*assembly, name=Assembly-1")) << text;
    EXPECT_EQ(tree()[spring + 1], "20, PLATE-1.100, PART-1-1.1");
    EXPECT_GT(indexOf("*spring, elset=LINK"), indexOf("*assembly, name=Assembly-1"));
    // The cylinder's local system became its instance's position; its
    // data start at START.
    int const instance = indexOf("*instance, name=CYL-1, part=CYL");
    ASSERT_NE(instance, -1) << text;
    EXPECT_NE(tree()[instance + 1].find("0"), std::string::npos);
    int const surface = indexOf("*rigidsurface, name=CYL, type=CYLINDER");
    ASSERT_NE(surface, -1) << text;
    EXPECT_EQ(tree()[surface + 1].rfind("START", 0), 0u) << text;
}

TEST_F(FakePart, RigidBodiesNamingMissingSetsAreReported) {
    run(std::string(kBrick) + "*RIGID BODY, REF NODE=MISSING, ELSET=ALL\n", Reader::PreProcessor);
    EXPECT_TRUE(
        said("Reference node set \"MISSING\" given for rigid body \"PART-1\" does not "
             "exist or is invalid"))
        << diagnostics();
    EXPECT_NE(indexOf("*part, name=PART-1"), -1);
}

// The converter's reader writes the mesh into the list itself.
TEST_F(FakePart, TheConvertersReaderWritesTheMeshOut) {
    run(kBrick, Reader::Converter, inp_Stage::FakePart);
    std::string const text = joined(tree());
    EXPECT_NE(indexOf("*node"), -1) << text;
    EXPECT_NE(text.find("1, 1, 2, 3, 4, 5, 6, 7, 8"), std::string::npos) << text;
    EXPECT_LT(indexOf("*element, type=C3D8"), indexOf("*endpart"));
}

// Substructure elements, straight from maps: each is a part named by its
// type, a second of one type "1-" and the type; their nodes leave the flat
// mesh with them.
TEST(FakePartVisitor, EachSubstructureElementIsAPartOfItsOwn) {
    cow_String const fake("FAKE");
    inp_CoordMap coords;
    coords.Insert(fake, inp_CoordMap());
    for (int id = 1; id <= 6; ++id) coords.Get(fake).Insert(id, inp_Coord(id, 0., 0.));
    inp_MapInt2Element elements;
    elements.Insert(1, inp_Element(cow_String("C3D4"), cow_List<int>{1, 2, 3, 4}, 4, 0, 0));
    elements.Insert(7, inp_Element(cow_String("Z12"), cow_String("a.sim"), cow_List<int>{5}, 1));
    elements.Insert(8, inp_Element(cow_String("Z12"), cow_String("b.sim"), cow_List<int>{6}, 1));
    inpM_InstanceMap<inp_MapInt2Element> elementMap;
    elementMap.Insert(fake, elements);

    inp_FakePartVisitor visitor(coords, elementMap, inpM_SetMap(), inpM_SetMap(), false);
    cow_List<inp_Keyword> none;
    visitor.VisitList(none);
    cow_List<inp_Keyword> const keywords = visitor.Keywords();
    EXPECT_EQ(visitor.ConstGetElementMap().ConstGet("Z12").Size(), 1);
    EXPECT_EQ(visitor.ConstGetElementMap().ConstGet("1-Z12").Size(), 1);
    EXPECT_TRUE(visitor.ConstGetCoordMap().ConstGet("Z12").IsMember(5));
    EXPECT_TRUE(visitor.ConstGetCoordMap().ConstGet("1-Z12").IsMember(6));
    EXPECT_FALSE(visitor.ConstGetCoordMap().ConstGet("PART-1").IsMember(5));
    EXPECT_EQ(visitor.ConstGetElementMap().ConstGet("PART-1").Size(), 1);
    // The substructure's *ELEMENT header carries its file.
    bool withFile = false;
    for (inp_Keyword const& keyword : keywords)
        withFile |= keyword.Is(inp_kw_Element) &&
                    keyword.GetParameterAsString("file", cow_String()) == cow_String("a.sim");
    EXPECT_TRUE(withFile);
}

// The pre-processor's reader: a set that a part uses and holds is that
// part's; a set over two parts belongs to the assembly, its members named by
// instance.
TEST_F(FakePart, SetsGoToThePartThatHoldsThemOrToTheAssembly) {
    run(std::string(kBrick) + R"(*NODE
100, 5., 5., 5.
101, 0., 0., 3.
102, 1., 0., 3.
103, 0., 1., 3.
*ELEMENT, TYPE=T3D2
2, 1, 2
3, 2, 3
4, 3, 4
5, 4, 5
6, 5, 6
*ELSET, ELSET=BARS
2, 4, 6
*ELSET, ELSET=PAIR
3, 5
*ELEMENT, TYPE=R3D3, ELSET=PLATE
10, 101, 102, 103
*RIGID BODY, REF NODE=100, ELSET=PLATE
*NSET, NSET=MIXED
1, 100
*SOLID SECTION, ELSET=BARS, MATERIAL=STEEL
*SOLID SECTION, ELSET=PAIR, MATERIAL=STEEL
*SOLID SECTION, ELSET=NOSUCH, MATERIAL=STEEL
*ORIENTATION, NAME=BYNODES, DEFINITION=NODES
100, 2, 4
*BOUNDARY
MIXED, 1
)",
        Reader::PreProcessor);
    std::vector<std::string> const lines = tree();
    std::string const text = joined(lines);
    int const endPart = indexOf("*endpart");
    int const bars = indexOf("*elset, elset=BARS, generate");
    ASSERT_TRUE(bars > 0 && bars < endPart) << text;
    EXPECT_EQ(lines[bars + 1], "2, 6, 2");
    // Two members are no progression; a line's items each end in a comma.
    int const pair = indexOf("*elset, elset=PAIR");
    ASSERT_TRUE(pair > 0 && pair < endPart) << text;
    EXPECT_EQ(lines[pair + 1], "3, 5, ");
    int const mixed = indexOf("*nset, nset=MIXED");
    ASSERT_GT(mixed, indexOf("*assembly, name=Assembly-1")) << text;
    EXPECT_EQ(lines[mixed + 1], "PART-1-1.1, PLATE-1.100, ");
    EXPECT_EQ(lines[indexOf("*boundary") + 1], "MIXED, 1");
    // An undefined set of a section is a warning; a node of another part
    // named in a part, an error.
    EXPECT_TRUE(
        said("The elset: \"NOSUCH\" is referenced in part: \"PART-1\" and should be "
             "assigned to this part. The set appears to be undefined."))
        << diagnostics();
    EXPECT_TRUE(
        said("The node: \"100\" is referenced in part: \"PART-1\" and should be assigned "
             "to this part. It is assigned to the following parts: \"PLATE\"."))
        << diagnostics();
    EXPECT_TRUE(input.PartElsets().HasNestedSet("PART-1", "BARS"));
    EXPECT_FALSE(input.PartNsets().HasNestedSet("PART-1", "MIXED"));
}

// The flat deck's sets become set keywords of its one part, in name order,
// eight members to a line.
TEST_F(FakePart, EverySetOfAFlatDeckIsWrittenIntoItsPart) {
    run(std::string(kBrick) + R"(*NSET, NSET=SCATTERED
1, 2, 4, 5, 7, 8, 10, 3, 6, 7
*NSET, NSET=CORNER
5, 1, 6
*NSET, NSET=EMPTY
*NSET, NSET=ALL1
1, 2, 3
)",
        Reader::Solver);
    std::vector<std::string> const lines = tree();
    std::string const text = joined(lines);
    int const part = indexOf("*part, name=PART-1");
    int const all = indexOf("*nset, generate, nset=ALL1");
    int const corner = indexOf("*nset, nset=CORNER");
    int const scattered = indexOf("*nset, nset=SCATTERED");
    ASSERT_TRUE(part >= 0 && part < all && all < corner && corner < scattered) << text;
    EXPECT_EQ(lines[all + 1], "1, 3, 1");
    EXPECT_EQ(lines[corner + 1], "1, 5, 6, ");
    EXPECT_EQ(lines[scattered + 1], "1, 2, 3, 4, 5, 6, 7, 8, ");
    EXPECT_EQ(lines[scattered + 2], "10, ");
    EXPECT_LT(indexOf("*nset, nset=EMPTY"), 0) << text;
}

// -- decks written by another mesher ------------------------------------------------------

namespace {

// What a mesher's deck says, read by the simplest reader that can: nodes,
// elements by type, and node and element sets, names in upper case.
struct MesherDeck {
    struct Element {
        std::string type;
        std::vector<int> nodes;
    };
    std::map<int, std::array<double, 3>> nodes;
    std::map<int, Element> elements;
    std::map<std::string, std::set<int>> nodeSets;
    std::map<std::string, std::set<int>> elementSets;
};

std::string upper(std::string text) {
    for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

std::vector<std::string> fields(std::string const& line) {
    std::vector<std::string> items;
    std::stringstream stream(line);
    for (std::string item; std::getline(stream, item, ',');) {
        item.erase(0, item.find_first_not_of(' '));
        item.erase(item.find_last_not_of(" \r") + 1);
        if (!item.empty()) items.push_back(item);
    }
    return items;
}

// The value of `name=` in a keyword line, in upper case.
std::string parameter(std::string const& line, std::string const& name) {
    std::string const text = upper(line);
    size_t const at = text.find(name + "=");
    if (at == std::string::npos) return std::string();
    size_t const start = at + name.size() + 1;
    return fields(text.substr(start)).front();
}

MesherDeck readMesherDeck(std::string const& path) {
    MesherDeck deck;
    std::ifstream in(path);
    std::string keyword, type, set;
    for (std::string line; std::getline(in, line);) {
        // An element's line that ends in a comma goes on on the next.
        while (keyword == "*ELEMENT" && line.find_last_not_of(" \r") != std::string::npos &&
               line[line.find_last_not_of(" \r")] == ',') {
            std::string next;
            if (!std::getline(in, next)) break;
            line += next;
        }
        if (line.rfind("**", 0) == 0) continue;
        if (line.rfind("*", 0) == 0) {
            keyword = upper(fields(line).front());
            type = parameter(line, "TYPE");
            set = keyword == "*NSET" ? parameter(line, "NSET") : parameter(line, "ELSET");
            continue;
        }
        std::vector<std::string> const items = fields(line);
        if (items.empty()) continue;
        if (keyword == "*NODE") {
            deck.nodes[std::stoi(items[0])] = {std::stod(items[1]), std::stod(items[2]),
                                               std::stod(items[3])};
        } else if (keyword == "*ELEMENT") {
            MesherDeck::Element& element = deck.elements[std::stoi(items[0])];
            element.type = type;
            for (size_t i = 1; i < items.size(); ++i) element.nodes.push_back(std::stoi(items[i]));
            if (!set.empty()) deck.elementSets[set].insert(std::stoi(items[0]));
        } else if (keyword == "*NSET" || keyword == "*ELSET") {
            auto& sets = keyword == "*NSET" ? deck.nodeSets : deck.elementSets;
            for (std::string const& item : items) sets[set].insert(std::stoi(item));
        }
    }
    return deck;
}

std::set<int> idsOf(inpM_SetMap const& sets, char const* level, std::string const& name) {
    cow_String const setName(name.c_str());
    if (!sets.HasNestedSet(cow_String(level), setName)) return {};
    cow_List<int> const ids = sets.ConstGetNestedSet(cow_String(level), setName)->ConstGetIdList();
    return std::set<int>(ids.begin(), ids.end());
}

struct MesherCase {
    char const* name;
    char const* geometry;
    int dimension;
};

// A unit square or cube, meshed as each case asks; the physical groups
// become sets of elements and of nodes.
constexpr char kSquare[] = R"(Point(1) = {0, 0, 0}; Point(2) = {2, 0, 0};
Point(3) = {2, 1, 0}; Point(4) = {0, 1, 0};
Line(1) = {1, 2}; Line(2) = {2, 3}; Line(3) = {3, 4}; Line(4) = {4, 1};
Curve Loop(1) = {1, 2, 3, 4}; Plane Surface(1) = {1};
Mesh.SaveGroupsOfNodes = 1;
)";

std::vector<MesherCase> mesherCases() {
    static std::string const triangles = std::string(kSquare) +
                                         "Mesh.CharacteristicLengthMax = 0.3;\n"
                                         "Physical Surface(\"PLATE\") = {1};\n"
                                         "Physical Curve(\"EDGE\") = {4};\n";
    static std::string const quadrilaterals =
        std::string(kSquare) +
        "Transfinite Curve {1, 3} = 5; Transfinite Curve {2, 4} = 3;\n"
        "Transfinite Surface {1}; Recombine Surface {1};\n"
        "Physical Surface(\"PLATE\") = {1};\nPhysical Curve(\"EDGE\") = {4};\n";
    static std::string const tetrahedra =
        "SetFactory(\"OpenCASCADE\");\nBox(1) = {0, 0, 0, 1, 1, 1};\n"
        "Mesh.CharacteristicLengthMax = 0.5;\n"
        "Physical Volume(\"SOLID\") = {1};\n"
        "Physical Surface(\"BOTTOM\") = {5};\n"
        "Mesh.SaveGroupsOfNodes = 1;\n";
    static std::string const hexahedra =
        std::string(kSquare) +
        "Transfinite Curve {1, 2, 3, 4} = 4; Transfinite Surface {1}; Recombine Surface {1};\n"
        "out[] = Extrude {0, 0, 1} { Surface{1}; Layers{3}; Recombine; };\n"
        "Physical Volume(\"BLOCK\") = {out[1]};\nPhysical Surface(\"BASE\") = {1};\n";
    static std::string const prisms =
        std::string(kSquare) +
        "Mesh.CharacteristicLengthMax = 0.4;\n"
        "out[] = Extrude {0, 0, 1} { Surface{1}; Layers{2}; Recombine; };\n"
        "Physical Volume(\"WEDGES\") = {out[1]};\n"
        "Physical Surface(\"BASE\") = {1};\n";
    return {{"triangles", triangles.c_str(), 2},
            {"quadrilaterals", quadrilaterals.c_str(), 2},
            {"tetrahedra", tetrahedra.c_str(), 3},
            {"hexahedra", hexahedra.c_str(), 3},
            {"prisms", prisms.c_str(), 3}};
}

bool mesherIsPresent() {
    return std::system("gmsh --version > /dev/null 2>&1") == 0;
}

}  // namespace

// Decks that no one here wrote: each element family of the mesher, first and
// second order, through the whole road, compared with the deck node for node,
// element for element and set for set.
TEST_F(FakePart, DecksOfAnotherMesherGiveTheirModelExactly) {
    if (!mesherIsPresent()) GTEST_SKIP() << "gmsh is not installed";
    for (MesherCase const& mesh : mesherCases()) {
        for (int order : {1, 2}) {
            SCOPED_TRACE(std::string(mesh.name) + " of order " + std::to_string(order));
            std::string const geometry(dir.Write("mesh.geo", mesh.geometry).View());
            std::string const deckPath = geometry.substr(0, geometry.size() - 4) + ".inp";
            std::string const command = "gmsh -" + std::to_string(mesh.dimension) + " -order " +
                                        std::to_string(order) +
                                        " -setnumber Mesh.SecondOrderIncomplete 1 " + geometry +
                                        " -format inp -o " + deckPath + " > /dev/null 2>&1";
            ASSERT_EQ(std::system(command.c_str()), 0) << command;
            MesherDeck const deck = readMesherDeck(deckPath);
            ASSERT_FALSE(deck.elements.empty());

            sink().Clear();
            input = inp_InputFile();
            input.Run(cow_String(deckPath.c_str()), inp_Stage::OutOfPlace);
            ASSERT_FALSE(sink().HasErrors()) << sink().Diagnostics().front().text.View();

            inp_CoordMap const& nodes = input.PartCoordMap().ConstGet("PART-1");
            EXPECT_EQ(nodes.ConstGet().Size(), static_cast<int>(deck.nodes.size()));
            for (auto const& [label, xyz] : deck.nodes) {
                ASSERT_TRUE(nodes.IsMember(label)) << label;
                inp_Coord const node = nodes.ConstGet(label);
                std::array<double, 3> const stored = {node.x, node.y, node.z};
                EXPECT_EQ(stored, xyz) << label;
            }
            inp_MapInt2Element const& elements = input.AssemblyElementMap().ConstGet("PART-1-1");
            EXPECT_EQ(elements.Size(), static_cast<int>(deck.elements.size()));
            for (auto const& [label, expected] : deck.elements) {
                ASSERT_TRUE(elements.IsMember(label)) << label;
                inp_Element const& element = elements.ConstGet(label);
                EXPECT_EQ(std::string(element.type().View()), expected.type) << label;
                EXPECT_EQ(std::vector<int>(element.nodes(),
                                           element.nodes() + element.numNodesPerElement()),
                          expected.nodes)
                    << label;
            }
            for (auto const& [name, ids] : deck.nodeSets)
                EXPECT_EQ(idsOf(input.PartNsets(), "PART-1", name), ids) << name;
            for (auto const& [name, ids] : deck.elementSets)
                EXPECT_EQ(idsOf(input.PartElsets(), "PART-1", name), ids) << name;
        }
    }
}

// The flat element lines go as the element walk reads them, once they are
// the walk's alone; a deck that another holder shares keeps every line.
TEST_F(FakePart, TheElementWalkConsumesOnlyLinesItHoldsAlone) {
    std::string deck = "*NODE\n";
    for (int node = 1; node <= 5001; ++node) deck += std::to_string(node) + ", 0., 0., 0.\n";
    deck += "*ELEMENT, TYPE=T3D2\n";
    for (int element = 1; element <= 5000; ++element)
        deck += std::to_string(element) + ", " + std::to_string(element) + ", " +
                std::to_string(element + 1) + "\n";
    run(deck, Reader::Solver, inp_Stage::Expand);
    int const elementKeyword = 1;
    ASSERT_TRUE(input.Keywords().ConstGet(elementKeyword).Is(inp_kw_Element));

    inp_InputFile const shared = input;  // shares the lines
    inp_FakePartElementVisitor walk(inpM_SetMap(), true);
    walk.setConsumeElementText(true);
    walk.VisitList(input.GetKeywords());
    EXPECT_EQ(shared.Keywords().ConstGet(elementKeyword).Data().Cols(0), 3);

    inp_InputFile alone = shared;  // then given lines of its own
    alone.GetKeywords()
        .Get(elementKeyword)
        .SetData(shared.Keywords().ConstGet(elementKeyword).Data().Copy());
    inp_FakePartElementVisitor consuming(inpM_SetMap(), true);
    consuming.setConsumeElementText(true);
    consuming.VisitList(alone.GetKeywords());
    EXPECT_EQ(alone.Keywords().ConstGet(elementKeyword).Data().Cols(0), 0);  // read and freed
    EXPECT_EQ(shared.Keywords().ConstGet(elementKeyword).Data().Cols(0), 3);
    EXPECT_EQ(consuming.ConstGetElementMap().ConstGet("FAKE").Size(), 5000);
}
