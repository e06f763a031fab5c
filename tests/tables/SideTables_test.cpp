// The model's side tables: the layouts of distribution tables and the
// check of distributions against them; the contact check on whole decks read
// through the road (contact field output for a pair set that holds a
// node-based surface over two instances is refused in an explicit step, and
// only there).

#include "tables/inp_ContactCheck.h"
#include "tables/inp_DistributionTableDB.h"
#include "tables/inp_DistributionTableVisitor.h"

#include <gtest/gtest.h>

#include <string>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"
#include "tests/mesh/InlineDeck.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

constexpr char kModel[] = R"(*PART, NAME=P
*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
4, 0., 1., 0.
*ELEMENT, TYPE=S4R, ELSET=ALL
1, 1, 2, 3, 4
*SHELL SECTION, ELSET=ALL, MATERIAL=STEEL
1.
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I1, PART=P
*END INSTANCE
*INSTANCE, NAME=I2, PART=P
0., 0., 1.
*END INSTANCE
*SURFACE, TYPE=NODE, NAME=CROSS
I1.1, 1.
I2.2, 1.
*SURFACE, TYPE=NODE, NAME=SINGLE
I1.3, 1.
*SURFACE, NAME=FACES
I1.ALL, SPOS
*END ASSEMBLY
*MATERIAL, NAME=STEEL
*ELASTIC
210000., 0.3
*DENSITY
7.8e-9
)";

constexpr char kText[] = "Contact field output is requested for a node-based surface";

class ContactCheck : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    // The number of contact errors the check reports on the model with
    // `steps`, read through the whole road.
    int errorsFor(std::string const& steps, bool universalOutput = true) {
        sink().Clear();
        inp_InputFile input;
        input.Run(dir.Write("deck.inp", std::string(kModel) + steps), inp_Stage::OutOfPlace,
                  inp_InputFile::RunRule::RunThrough);
        EXPECT_FALSE(sink().HasErrors()) << sink().Diagnostics().front().text.CStr();
        sink().Clear();
        inp_ContactCheck check(input.AssemblySurfaces(), input.Keywords());
        check.PerformCheck(universalOutput);
        int errors = 0;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            errors += std::string(diagnostic.text.View()).find(kText) == 0 ? 1 : 0;
        return errors;
    }

    TempDeckDirectory dir;
};

std::string explicitStep(std::string const& pair, std::string const& output) {
    return "*STEP\n*DYNAMIC, EXPLICIT\n, 1.\n" + pair + output + "*END STEP\n";
}

constexpr char kPair[] = "*CONTACT PAIR, INTERACTION=NONE, CPSET=PAIRS\nCROSS, FACES\n";
constexpr char kPairOutput[] = "*OUTPUT, FIELD\n*CONTACT OUTPUT, CPSET=PAIRS\nCSTRESS\n";

}  // namespace

TEST_F(ContactCheck, OutputForAPairOverTwoInstancesIsRefusedInEachExplicitStep) {
    EXPECT_EQ(errorsFor(explicitStep(kPair, kPairOutput)), 1);
    // The pair stays active into the next step, which asks again.
    EXPECT_EQ(errorsFor(explicitStep(kPair, kPairOutput) + explicitStep("", kPairOutput)), 2);
}

TEST_F(ContactCheck, SurfacesWithinOneInstanceAndOtherPairSetsPass) {
    EXPECT_EQ(errorsFor(explicitStep(
                  "*CONTACT PAIR, INTERACTION=NONE, CPSET=PAIRS\nSINGLE, FACES\n", kPairOutput)),
              0);
    EXPECT_EQ(errorsFor(explicitStep(kPair,
                                     "*OUTPUT, FIELD\n*CONTACT OUTPUT, CPSET=OTHER\n"
                                     "CSTRESS\n")),
              0);
}

// Deleted pairs leave the active sets; field output without intervals is
// no output.
TEST_F(ContactCheck, DeletedPairsAndOutputWithoutIntervalsPass) {
    std::string const deleted =
        "*CONTACT PAIR, INTERACTION=NONE, CPSET=PAIRS, OP=DELETE\n"
        "CROSS, FACES\n";
    EXPECT_EQ(errorsFor(explicitStep(kPair, "") + explicitStep(deleted, kPairOutput)), 0);
    EXPECT_EQ(
        errorsFor(explicitStep(kPair,
                               "*OUTPUT, FIELD, NUMBER INTERVAL=0\n*CONTACT OUTPUT, CPSET=PAIRS\n"
                               "CSTRESS\n")),
        0);
}

// Preselected output, and a deck without any output when the caller asks
// for the default, count as output for every pair.
TEST_F(ContactCheck, DefaultOutputCoversEveryPair) {
    EXPECT_EQ(errorsFor(explicitStep(kPair, "*OUTPUT, FIELD, VARIABLE=PRESELECT\n")), 1);
    EXPECT_EQ(errorsFor(explicitStep(kPair, ""), true), 1);
    EXPECT_EQ(errorsFor(explicitStep(kPair, ""), false), 0);
}

TEST_F(ContactCheck, ImplicitStepsAreNotChecked) {
    EXPECT_EQ(errorsFor("*STEP\n*STATIC\n" + std::string(kPair) + kPairOutput + "*END STEP\n"), 0);
}

// -- distribution tables ---------------------------------------------------------------------

namespace {

inp_DistributionTableDB& tables() {
    return inp_DistributionTableDB::Instance();
}

class DistributionTables : public ::testing::Test {
  protected:
    void SetUp() override { tables().ClearDeckTables(); }
    void TearDown() override { tables().ClearDeckTables(); }
};

}  // namespace

TEST_F(DistributionTables, KindsAreKnownByTheirTextInAnyCase) {
    EXPECT_EQ(tables().getTableLabelID(cow_String("coord3d")), inp_distCOORD3D);
    EXPECT_EQ(tables().getTableLabelID(cow_String("Shellstiff3")), inp_distSHELLSTIFF3);
    EXPECT_EQ(tables().getTableLabelID(cow_String("X")), inp_distUNDEFINED);
    EXPECT_EQ(tables().getdistTableLabelEnumSize(inp_distCOORD3D), 3);
    EXPECT_EQ(tables().getdistTableLabelEnumSize(static_cast<inp_distTableLabelEnum>(99)), 0);
}

TEST_F(DistributionTables, DeckTablesAreValidatedAgainstTheLayoutOfAUse) {
    EXPECT_FALSE(
        tables().addDistTables(cow_String(" ELASTICS "), 2, 2, {inp_distMODULUS, inp_distRATIO}));
    EXPECT_TRUE(tables().addDistTables(cow_String("ELASTICS"), 1, 1, {inp_distLENGTH}));
    tables().addDistTables(cow_String("SWAPPED"), 2, 2, {inp_distRATIO, inp_distMODULUS});
    tables().addDistTables(cow_String("ONE"), 1, 1, {inp_distMODULUS});
    tables().addDistTables(cow_String("POINTS"), 2, 6, {inp_distCOORD3D, inp_distCOORD3D});
    int found = 0;
    EXPECT_EQ(tables().getDistTableSize(cow_String("  ELASTICS"), found), 2);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(tables().getNumComponentsDistTable(cow_String("POINTS"), found), 2);
    tables().getDistTableSize(cow_String("NONE"), found);
    EXPECT_EQ(found, 0);

    using DB = inp_DistributionTableDB;
    EXPECT_EQ(tables().validateDistTable(inp_distElasticIsotropic, cow_String(" ELASTICS")),
              DB::kFits);
    EXPECT_EQ(
        tables().validateDistTable(static_cast<inp_distTableTypeEnum>(1), cow_String("ELASTICS")),
        DB::kNoLayoutOfType);
    EXPECT_EQ(tables().validateDistTable(inp_distElasticIsotropic, cow_String("NONE")),
              DB::kNoTableOfName);
    EXPECT_EQ(tables().validateDistTable(inp_distElasticIsotropic, cow_String("SWAPPED")),
              DB::kColumnKindDiffers);
    EXPECT_EQ(tables().validateDistTable(inp_distElasticIsotropic, cow_String("ONE")),
              DB::kColumnCountDiffers);
    EXPECT_EQ(tables().validateDistTable(inp_distOrientationPoints, cow_String("POINTS")),
              DB::kFits);
}

// Tables may come after the distributions that name them.
TEST_F(DistributionTables, DistributionsAreCheckedAgainstTheTablesTheyName) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*DISTRIBUTION, NAME=DIST, TABLE=ELASTICS
, 200000., 0.3
1, 210000., 0.3
2, 210000., 0.3, 7.
*DISTRIBUTION, NAME=LOST, TABLE=NOSUCH
, 1.
*DISTRIBUTION TABLE, NAME=ELASTICS
MODULUS, RATIO
*DISTRIBUTION TABLE, NAME=ODD
MODULUS, STIFFNESS
)");
    inp_DistributionTableVisitor visitor;
    visitor.VisitListAndReport(keywords);
    std::vector<std::string> const errors = TextsOf(visitor.GetErrorList());
    ASSERT_EQ(errors.size(), 3u);
    EXPECT_NE(errors[0].find("The column type \"STIFFNESS\" of the distribution table \"ODD\" is "
                             "unknown."),
              std::string::npos);
    EXPECT_NE(errors[1].find("Line 3 of the distribution \"DIST\" gives 3 values; its table "
                             "\"ELASTICS\" takes 2."),
              std::string::npos);
    EXPECT_NE(errors[2].find("The distribution \"LOST\" names the distribution table \"NOSUCH\", "
                             "which is not defined."),
              std::string::npos);
    int found = 0;
    EXPECT_EQ(tables().getDistTableSize(cow_String("ODD"), found), 2);  // an unknown kind takes 1
}
