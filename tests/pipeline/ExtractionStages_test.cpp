// The extraction stages on whole decks: a deck in parts and an assembly comes
// out as maps, one mesh per part shared by its instances under their
// transforms, and the placement rules are reported.

#include <gtest/gtest.h>

#include <string>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

constexpr char kPartsDeck[] = R"(*HEADING
two bricks of one part
*PART, NAME=BRICK
*NODE
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
*NSET, NSET=BASE
1, 2, 3, 4
*SURFACE, NAME=TOP
ALL, S2
*SOLID SECTION, ELSET=ALL, MATERIAL=STEEL
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=FIXED, PART=BRICK
*END INSTANCE
*INSTANCE, NAME=MOVED, PART=BRICK
10., 0., 0.
*END INSTANCE
*NSET, NSET=BASES
FIXED.BASE, MOVED.1
*END ASSEMBLY
*MATERIAL, NAME=STEEL
*ELASTIC
210000., 0.3
*STEP
*STATIC
*END STEP
)";

class ExtractionStages : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    inp_Stage run(inp_InputFile& input, std::string const& deck, inp_Stage last) {
        return input.Run(dir.Write("deck.inp", deck), last,
                         inp_InputFile::RunRule::StopAfterErrors);
    }
    static std::string diagnostics() {
        std::string text;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            text += std::string(diagnostic.text.View()) + "\n";
        return text;
    }

    TempDeckDirectory dir;
};

}  // namespace

TEST_F(ExtractionStages, APartsDeckBecomesPartMapsAndSharedInstances) {
    inp_InputFile input;
    EXPECT_EQ(run(input, kPartsDeck, inp_Stage::OutOfPlace), inp_Stage::OutOfPlace)
        << diagnostics();
    EXPECT_EQ(diagnostics(), "");

    // The part's own maps.
    ASSERT_TRUE(input.PartCoordMap().IsMember("BRICK"));
    EXPECT_EQ(input.PartCoordMap().ConstGet("BRICK").Count(), 8);
    EXPECT_TRUE(input.PartNsets().HasNestedSet("BRICK", "BASE"));
    EXPECT_TRUE(input.PartElsets().HasNestedSet("BRICK", "ALL"));
    EXPECT_TRUE(input.PartSurfaces().IsMemberPartInstanceSurface("BRICK", "TOP"));
    // Emptied once the instances hold what they need of it.
    EXPECT_FALSE(input.PartElementMap().IsMember("BRICK"));

    // Both instances share the part's element table; the moved one reads
    // its nodes in global position, the fixed one where the part has them.
    inpM_InstanceMap<inp_MapInt2Element> const& elements = input.AssemblyElementMap();
    ASSERT_TRUE(elements.IsMember("FIXED") && elements.IsMember("MOVED"));
    EXPECT_TRUE(elements.ConstGet("FIXED").SharesTableWith(elements.ConstGet("MOVED")));
    EXPECT_EQ(elements.ConstGet("MOVED").ConstGet(1).type(), "C3D8");
    inp_CoordMap const& coords = input.AssemblyCoordMap();
    EXPECT_DOUBLE_EQ(coords.ConstGet("FIXED").ConstGet(2).x, 1.0);
    EXPECT_DOUBLE_EQ(coords.ConstGet("MOVED").ConstGet(2).x, 11.0);
    EXPECT_DOUBLE_EQ(input.TransformationMap().ConstGet("MOVED").GetTranslation().X(), 10.0);

    // Assembly sets hold scoped ids by instance; instances have their part's sets.
    ASSERT_TRUE(input.AssemblyNsets().HasSet("BASES"));
    auto const byInstance = input.AssemblyNsets().ConstGetSet("BASES")->ConstGetInstanceIds();
    EXPECT_EQ(byInstance.ConstGet("FIXED").Size(), 4);
    EXPECT_EQ(byInstance.ConstGet("MOVED").Size(), 1);
    EXPECT_TRUE(input.AssemblyNsets().HasNestedSet("MOVED", "BASE"));
    EXPECT_TRUE(input.AssemblySurfaces().IsMemberPartInstanceSurface("MOVED", "TOP"));

    // The mesh data lines of the part were given up for the maps.
    for (inp_Keyword const& keyword : input.Keywords()) {
        if (!keyword.Is(inp_kw_Part)) continue;
        for (inp_Keyword const& sub : keyword.Suboptions()) {
            if (sub.Is(inp_kw_Node) || sub.Is(inp_kw_Element)) {
                EXPECT_EQ(sub.Data().Rows(), 0);
            }
        }
    }
}

TEST_F(ExtractionStages, StagesStopWhereAskedAndFlatDecksAreReadAsTheirPart) {
    inp_InputFile parts;
    run(parts, kPartsDeck, inp_Stage::PartMaps);
    EXPECT_TRUE(parts.PartElementMap().IsMember("BRICK"));
    EXPECT_FALSE(parts.AssemblyElementMap().IsMember("FIXED"));

    inp_InputFile flat;
    EXPECT_EQ(run(flat, "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n*ELEMENT, TYPE=T3D2\n1, 1, 2\n",
                  inp_Stage::OutOfPlace),
              inp_Stage::OutOfPlace);
    EXPECT_EQ(diagnostics(), "");
    EXPECT_EQ(flat.PartCoordMap().Instances(), cow_List<cow_String>{cow_String("PART-1")});
    EXPECT_EQ(flat.AssemblyElementMap().ConstGet("PART-1-1").Size(), 1);
}

TEST_F(ExtractionStages, DataInBothAPartAndItsInstanceIsReportedAndTheMapsKeepWhatWasGood) {
    std::string deck = kPartsDeck;
    deck.replace(deck.find("*INSTANCE, NAME=FIXED, PART=BRICK\n"),
                 std::string("*INSTANCE, NAME=FIXED, PART=BRICK\n").size(),
                 "*INSTANCE, NAME=FIXED, PART=BRICK\n*NODE\n99, 0., 0., 9.\n");
    inp_InputFile input;
    EXPECT_EQ(run(input, deck, inp_Stage::OutOfPlace), inp_Stage::OutOfPlace);
    EXPECT_NE(diagnostics().find("Node and element data may only be defined in the instance or the "
                                 "part, not both.  The following instance/part pairs attempt to "
                                 "do so:\n Instance: instance Part:BRICK"),
              std::string::npos)
        << diagnostics();
    // What was good is in the maps all the same.
    EXPECT_TRUE(input.AssemblyCoordMap().ConstGet("FIXED").IsMember(99));
    EXPECT_TRUE(input.AssemblyCoordMap().ConstGet("FIXED").IsMember(1));
}

// Instances share their part's mesh until one of them writes: a set or a
// surface made inside one instance is that instance's alone.
TEST_F(ExtractionStages, AWriteInsideOneInstanceShowsNowhereElse) {
    std::string deck = kPartsDeck;
    std::string const moved = "*INSTANCE, NAME=MOVED, PART=BRICK\n10., 0., 0.\n";
    deck.replace(deck.find(moved), moved.size(),
                 moved +
                     "*NSET, NSET=CORNER\n7\n*ELSET, ELSET=ONE\n1\n"
                     "*SURFACE, NAME=BOTTOM\nALL, S1\n");
    inp_InputFile input;
    run(input, deck, inp_Stage::OutOfPlace);
    EXPECT_EQ(diagnostics(), "");
    EXPECT_TRUE(input.AssemblyNsets().HasNestedSet("MOVED", "CORNER"));
    EXPECT_TRUE(input.AssemblyElsets().HasNestedSet("MOVED", "ONE"));
    EXPECT_TRUE(input.AssemblySurfaces().IsMemberPartInstanceSurface("MOVED", "BOTTOM"));
    EXPECT_FALSE(input.AssemblyNsets().HasNestedSet("FIXED", "CORNER"));
    EXPECT_FALSE(input.AssemblyElsets().HasNestedSet("FIXED", "ONE"));
    EXPECT_FALSE(input.AssemblySurfaces().IsMemberPartInstanceSurface("FIXED", "BOTTOM"));
    EXPECT_FALSE(input.PartNsets().HasNestedSet("BRICK", "CORNER"));
    EXPECT_FALSE(input.PartElsets().HasNestedSet("BRICK", "ONE"));
    EXPECT_FALSE(input.PartSurfaces().IsMemberPartInstanceSurface("BRICK", "BOTTOM"));
    // The sets the instance had from its part are still there, and shared.
    EXPECT_TRUE(input.AssemblyNsets().HasNestedSet("MOVED", "BASE"));
}

TEST_F(ExtractionStages, TransformValuesThatAreNoNumbersAreToldAndReadAsZero) {
    std::string deck = kPartsDeck;
    std::string const line = "*INSTANCE, NAME=MOVED, PART=BRICK\n10., 0., 0.\n";
    deck.replace(deck.find(line), line.size(),
                 "*INSTANCE, NAME=MOVED, PART=BRICK\nten, 0., 0.\n0., 0., 0., 0., 0., 1., "
                 "ninety\n");
    inp_InputFile input;
    run(input, deck, inp_Stage::OutOfPlace);
    std::string const text = diagnostics();
    std::string const message =
        "The position of an instance is given by numbers; these values are not numbers and are "
        "read as 0:\n";
    EXPECT_NE(text.find(message + "ten\n"), std::string::npos) << text;
    EXPECT_NE(text.find(message + "ninety\n"), std::string::npos) << text;
    // The rest of the model is built, the instance where the numbers put it.
    EXPECT_DOUBLE_EQ(input.AssemblyCoordMap().ConstGet("MOVED").ConstGet(2).x, 1.0);
    EXPECT_TRUE(input.AssemblyElementMap().IsMember("FIXED"));
}

// The composite stages after expansion: Classify reads a deck, in parts or
// flat, to its maps; ReorganizeKeywords stops at the tree in parts.
TEST_F(ExtractionStages, ClassifyReadsEitherKindOfDeckToItsMaps) {
    inp_InputFile parts;
    run(parts, kPartsDeck, inp_Stage::Expand);
    parts.Classify(false);
    EXPECT_TRUE(parts.AssemblyElementMap().IsMember("MOVED"));
    EXPECT_FALSE(parts.IsFakePartModel());

    inp_InputFile flat;
    run(flat, "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n*ELEMENT, TYPE=T3D2\n1, 1, 2\n*IMPORT\nS\n",
        inp_Stage::Expand);
    sink().Clear();
    flat.Classify(false);  // an import without the part map of an earlier job
    EXPECT_NE(diagnostics().find("An import analysis requires the part map"), std::string::npos);
    EXPECT_TRUE(flat.IsFakePartModel());
    EXPECT_TRUE(flat.AssemblyElementMap().IsMember("PART-1-1"));
    // The pre-processor reads an import without the part map.
    inp_InputFile atelier;
    run(atelier, "*NODE\n1, 0., 0., 0.\n*IMPORT\nS\n", inp_Stage::Expand);
    sink().Clear();
    atelier.Classify(true);
    EXPECT_EQ(diagnostics().find("An import analysis requires the part map"), std::string::npos);

    inp_InputFile converted;
    run(converted, "*NODE\n1, 0., 0., 0.\n", inp_Stage::Expand);
    sink().Clear();
    converted.ReorganizeKeywords(false);
    EXPECT_EQ(diagnostics(), "");
    EXPECT_TRUE(converted.Keywords().ConstGet(0).Is(inp_kw_Part));
    EXPECT_FALSE(converted.AssemblyCoordMap().IsMember("PART-1-1"));
}
