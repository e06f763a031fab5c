// The sizes and facts of a model gathered from whole decks: counts that only
// rise, sections read after the steps that decide how they count.

#include <gtest/gtest.h>

#include <string>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

class ModelParameters : public ::testing::Test {
  protected:
    void SetUp() override { thr_ThreadSingleton<wip_WIP>::Instance().Clear(); }
    void TearDown() override { thr_ThreadSingleton<wip_WIP>::Instance().Clear(); }

    inp_ModelParameters const& gather(std::string const& deck) {
        input.Run(dir.Write("deck.inp", deck), inp_Stage::ModelParameters,
                  inp_InputFile::RunRule::RunThrough);
        return input.ModelParameters();
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

}  // namespace

TEST_F(ModelParameters, CompositeShellsCountTheirLayersPointsOnce) {
    inp_ModelParameters const& simpson = gather(R"(*SHELL SECTION, ELSET=E, COMPOSITE
1., 3, STEEL
1., 3, STEEL
1., 3, STEEL
)");
    EXPECT_EQ(simpson.getNumGaussPts(), 7);
    EXPECT_EQ(simpson.getNumTempPts(), 1);

    inp_InputFile gauss;
    gauss.Run(
        dir.Write("gauss.inp", R"(*SHELL SECTION, ELSET=E, COMPOSITE, SECTION INTEGRATION=GAUSS
1., 2, STEEL
1., 2, STEEL
1., 2, STEEL
)"),
        inp_Stage::ModelParameters, inp_InputFile::RunRule::RunThrough);
    EXPECT_EQ(gauss.ModelParameters().getNumGaussPts(), 6);
}

// The heat transfer step comes after the section, yet decides that its
// points are temperature points too.
TEST_F(ModelParameters, StepsAreReadBeforeTheModelData) {
    inp_ModelParameters const& parameters = gather(R"(*DEPVAR
12
*SHELL SECTION, ELSET=E, COMPOSITE
1., 5, STEEL
1., 5, STEEL
*STEP, PERTURBATION
*STATIC
*END STEP
*STEP
*HEAT TRANSFER
*END STEP
)");
    EXPECT_EQ(parameters.getNumDepVars(), 12);
    EXPECT_EQ(parameters.getNumGaussPts(), 9);
    EXPECT_EQ(parameters.getNumTempPts(), 9);
    EXPECT_FALSE(parameters.hasStaticGeneralStep());
}

TEST_F(ModelParameters, FactsOfTheDeck) {
    inp_ModelParameters const& parameters = gather(R"(*NODE
1, 0., 0., 0.
2, 1., 0., 0.
3, 1., 1., 0.
*ELEMENT, TYPE=DS4, ELSET=E
1, 1, 2, 3, 3
*ORIENTATION, NAME=CYL, SYSTEM=CYLINDRICAL
0., 0., 0., 0., 0., 1.
*ORIENTATION, NAME=REC
1., 0., 0., 0., 1., 0.
*DISTRIBUTION TABLE, NAME=T
COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D
COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D, COORD3D
COORD3D
*STEP, PERTURBATION
*STATIC
*END STEP
*STEP
*STATIC
*END STEP
)");
    EXPECT_TRUE(parameters.hasTemperatureElms());
    EXPECT_TRUE(parameters.hasStaticGeneralStep());
    EXPECT_EQ(parameters.getTableSize("T"), 3);
    EXPECT_EQ(parameters.getTableSize("NONE"), 0);
    // Orientations are recorded under their first data item.
    EXPECT_FALSE(parameters.isCsysRectangular("0."));
    EXPECT_TRUE(parameters.isCsysRectangular("1."));
    EXPECT_FALSE(parameters.isFeatureEnhanced());
    EXPECT_FALSE(parameters.isSymModelGen());
}

TEST_F(ModelParameters, PartsAndShortTypes) {
    inp_ModelParameters const& parameters = gather(R"(*PART, NAME=P
*ELEMENT, TYPE=DS
*END PART
)");
    EXPECT_TRUE(parameters.isFeatureEnhanced());
    EXPECT_FALSE(parameters.hasTemperatureElms());
}
