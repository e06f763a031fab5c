#include <gtest/gtest.h>

#include <string>

#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "support/pnt_PrettyPrint.h"
#include "support/thr_Singleton.h"
#include "support/typ_DebugFlags.h"
#include "support/utl_CommandLine.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

class InputFileStages : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override {
        sink().Clear();
        utl_CommandLine::Instance().Clear();
    }

    // Parses and expands `text`; Reorganize is left to the test.
    void expand(std::string const& text) {
        input.SetIncludePath(dir.Directory());
        input.Parse(dir.Write("deck.inp", text));
        input.ExpandKeywords();
    }

    std::string diagnostics() const {
        std::string all;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            all += std::string(diagnostic.text.View()) + "\n";
        return all;
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

char const* const kPartsDeck =
    "*PART, NAME=P\n"
    "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n"
    "*ELEMENT, TYPE=T3D2, ELSET=BAR\n1, 1, 2\n"
    "*END PART\n"
    "*ASSEMBLY, NAME=A\n"
    "*INSTANCE, NAME=I, PART=P\n*END INSTANCE\n"
    "*END ASSEMBLY\n"
    "*MATERIAL, NAME=STEEL\n*ELASTIC\n210000., 0.3\n"
    "*STEP\n*STATIC\n*END STEP\n";

TEST_F(InputFileStages, PartsDeckIsTakenOverAndOrganizedIntoItsLevels) {
    expand(kPartsDeck);
    EXPECT_TRUE(input.IsPartsAndAssembly());
    EXPECT_TRUE(input.PartModelAllowed());
    EXPECT_FALSE(input.IsParameterized());
    EXPECT_EQ(input.InstancePartNames().ConstGet(cow_String("I")), cow_String("P"));

    input.Reorganize();
    EXPECT_EQ(diagnostics(), "");
    cow_List<inp_Keyword> const& tree = input.Keywords();
    // part, end part, assembly, end assembly, material, step, end step
    ASSERT_EQ(tree.Length(), 7);
    EXPECT_EQ(tree[0].Keyword(), inp_kw_Part);
    EXPECT_EQ(tree[0].Suboptions().Length(), 2);  // node, element
    EXPECT_EQ(tree[2].Keyword(), inp_kw_Assembly);
    EXPECT_EQ(tree[4].Keyword(), inp_kw_Material);
    EXPECT_EQ(tree[4].Suboptions()[0].Keyword(), inp_kw_Elastic);
    EXPECT_EQ(tree[5].Keyword(), inp_kw_Step);
    EXPECT_EQ(tree[5].Suboptions()[0].Keyword(), inp_kw_Static);
}

TEST_F(InputFileStages, FlatDeckKeepsItsKeywordsOnTopAndDefectiveOnesAreDiscarded) {
    expand("*NODE\n1, 0., 0.\n*HEADING, TITLE=X\n*NSET\n1\n*ELEMENT, TYPE=T2D2\n1, 1, 1\n");
    EXPECT_FALSE(input.IsPartsAndAssembly());
    EXPECT_TRUE(input.PartModelAllowed());
    // *NSET without its set name is blanked and discarded; *HEADING keeps
    // its keyword and loses nothing but the verdict on its parameter.
    EXPECT_EQ(input.Keywords().Length(), 3);
    EXPECT_NE(diagnostics().find("Unknown parameter: title."), std::string::npos);

    input.Reorganize();
    EXPECT_EQ(input.Keywords().Length(), 3);
    EXPECT_EQ(input.Keywords()[0].Keyword(), inp_kw_Node);
}

TEST_F(InputFileStages, AnUnnamedAssemblyIsReportedAndStillOrganized) {
    expand("*ASSEMBLY\n*END ASSEMBLY\n*STEP\n*STATIC\n*END STEP\n");
    input.Reorganize();
    EXPECT_NE(diagnostics().find("The NAME parameter is required."), std::string::npos);
    EXPECT_EQ(input.Keywords()[0].Keyword(), inp_kw_Assembly);
}

TEST_F(InputFileStages, RigidSurfaceInAnExplicitJobIsRefusedAndBarsThePartModel) {
    expand(
        "*RIGID SURFACE, NAME=R, TYPE=CYLINDER, REF NODE=1\n"
        "*STEP\n*DYNAMIC, EXPLICIT\n, 1.0\n*END STEP\n");
    EXPECT_NE(diagnostics().find("the *RIGID SURFACE option is not supported in Fenrik/Explicit; "
                                 "use the *SURFACE option in conjunction with the *RIGID BODY "
                                 "option instead.\n"),
              std::string::npos)
        << diagnostics();
    EXPECT_FALSE(input.PartModelAllowed());
    EXPECT_EQ(input.Keywords().Length(), 4);
}

TEST_F(InputFileStages, FlatDecksThatCannotBecomeAPartSaySo) {
    expand("*NODE, NSET=ALL\n1, 0., 0., 0.\n*NMAP, NSET=ALL, TYPE=BLENDED\n1., 0., 0.\n");
    EXPECT_FALSE(input.PartModelAllowed());
    EXPECT_EQ(diagnostics(), "");  // a flat deck may use *NMAP
}

// The symmetric-model rules apply only when results go to the results
// database, which is the case unless the command line names another format.
TEST_F(InputFileStages, ResultsFormatOptionDecidesTheSymmetricModelRule) {
    std::string const deck = std::string(kPartsDeck) + "*SYMMETRIC MODEL GENERATION, REVOLVE\n";
    expand(deck);
    EXPECT_NE(diagnostics().find("*SYMMETRIC MODEL GENERATION"), std::string::npos);

    sink().Clear();
    utl_CommandLine::Instance().SetValue(cow_String("resultsFormat"), cow_String("sim"));
    inp_InputFile other;
    other.Parse(dir.Write("other.inp", deck));
    other.ExpandKeywords();
    EXPECT_EQ(diagnostics(), "");
}

TEST_F(InputFileStages, EachStagePrintsItsTimeAtDebugLevelOne) {
    aio_ostringstream printed;
    pnt_debugPrint().SetStream(&printed);
    typ_DebugFlags::SetDebugFlags(30, 1);
    expand(kPartsDeck);
    input.Reorganize();
    typ_DebugFlags::SetDebugFlags(30, 0);
    pnt_debugPrint().SetStream(nullptr);
    EXPECT_NE(printed.Str().Find("Expand Keywords - Elapsed time: "), -1);
    EXPECT_NE(printed.Str().Find("Reorganize - Elapsed time: "), -1);
    EXPECT_NE(printed.Str().Find("CPU time: "), -1);
}

}  // namespace
