// The layouts of distribution tables and the check of distributions
// against the deck's tables.

#include "tables/inp_DistributionTableDB.h"

#include <gtest/gtest.h>

#include <string>

#include "tables/inp_DistributionTableVisitor.h"
#include "tests/mesh/InlineDeck.h"

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
