// The map adjustments of jobs that copy or continue a model: the id maps of
// a symmetric model generation and the sets an import job keeps.

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

class ContinuationMaps : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    void run(std::string const& deck) {
        input.Run(dir.Write("deck.inp", deck), inp_Stage::OutOfPlace,
                  inp_InputFile::RunRule::RunThrough);
        ASSERT_FALSE(sink().HasErrors());
    }
    // A keyword added to the top of the tree, as a deck would have it.
    inp_Keyword& add(char const* name, std::string const& data = std::string()) {
        inp_Keyword keyword{cow_String(name)};
        if (!data.empty()) keyword.Data().Append(data.c_str());
        input.GetKeywords().Append(keyword);
        return input.GetKeywords().GetLast();
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

// The numbering of a model without instances: ids 1..count.
inpM_IdMap numbering(int count) {
    inpM_IdMap map;
    for (int id = 1; id <= count; ++id) map.Insert(id, id);
    return map;
}

}  // namespace

TEST_F(ContinuationMaps, SymmetricGenerationAddsTheCopiesIdsToTheIdMaps) {
    input.SetNodeIdMap(numbering(3));
    input.SetElementIdMap(numbering(2));
    inpM_IdMap const nodesBefore = input.NodeIdMap();
    input.AdjustMapsForSymModelGen();  // no *SYMMETRIC MODEL GENERATION: nothing
    EXPECT_EQ(input.NodeIdMap().NumberIds(), nodesBefore.NumberIds());

    // A reflection: one copy, offset by the largest ids.
    add("symmetricmodelgeneration").SetParameter("reflect", inp_Item(cow_String("LINE")));
    input.AdjustMapsForSymModelGen();
    EXPECT_EQ(input.NodeIdMap().NumberIds(), 6);
    EXPECT_EQ(input.ElementIdMap().NumberIds(), 4);
    EXPECT_EQ(input.NodeIdMap().LargestId(), 6);
}

// A revolution of 2 + 3 segments (a line without its second item counts 1):
// the elements get four copies, the nodes one more, offset as given.
TEST_F(ContinuationMaps, RevolvedModelsCountTheirSegmentsAndTakeTheGivenOffsets) {
    input.SetNodeIdMap(numbering(3));
    input.SetElementIdMap(numbering(2));
    inp_Keyword& generation = add("symmetricmodelgeneration", "0., 0., 0., 0., 1., 0.");
    generation.Data().Append("0., 0., 1.");
    generation.Data().Append("90., 2");
    generation.Data().Append("30., 3");
    generation.SetParameter("revolve", inp_Item(true));
    generation.SetParameter("elementoffset", inp_Item(100));
    generation.SetParameter("nodeoffset", inp_Item(1000));
    input.AdjustMapsForSymModelGen();
    EXPECT_EQ(input.ElementIdMap().NumberIds(), 2 * 5);
    EXPECT_EQ(input.NodeIdMap().NumberIds(), 3 * 6);
    EXPECT_EQ(input.ElementIdMap().LargestId(), 2 + 4 * 100);
    EXPECT_EQ(input.NodeIdMap().LargestId(), 3 + 5 * 1000);
}

TEST_F(ContinuationMaps, AnImportJobKeepsTheSetsItsImportKeywordsName) {
    run(R"(*PART, NAME=P
*NODE
1, 0., 0.
*ELEMENT, TYPE=MASS, ELSET=M
1, 1
*MASS, ELSET=M
1.
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I, PART=P
*END INSTANCE
*NSET, NSET=KEEP
I.1
*NSET, NSET=DROP
I.1
*ELSET, ELSET=E1
I.1
*ELSET, ELSET=E2
I.1
*END ASSEMBLY
)");
    // Without names a keyword is warned about and deletes nothing.
    add("importnset");
    input.DeleteSetsWhichShouldNotBeImported();
    ASSERT_EQ(sink().Diagnostics().size(), 1u);
    EXPECT_NE(std::string(sink().Diagnostics()[0].text.View())
                  .find("This keyword is removed because no NSET name is provided in the "
                        "following line."),
              std::string::npos);
    EXPECT_TRUE(input.AssemblyNsets().HasSet("DROP"));

    add("importnset", "KEEP");
    add("import", "E2");
    input.DeleteSetsWhichShouldNotBeImported();
    EXPECT_TRUE(input.AssemblyNsets().HasSet("KEEP"));
    EXPECT_FALSE(input.AssemblyNsets().HasSet("DROP"));
    // *IMPORT names element sets to keep, but only *IMPORT ELSET deletes.
    EXPECT_TRUE(input.AssemblyElsets().HasSet("E1"));
    add("importelset", "E1");
    input.DeleteSetsWhichShouldNotBeImported();
    EXPECT_TRUE(input.AssemblyElsets().HasSet("E1") && input.AssemblyElsets().HasSet("E2"));
    EXPECT_EQ(input.Keywords().ConstGet(input.Keywords().Length() - 1).Keyword(),
              inp_kw_ImportElset);
}
