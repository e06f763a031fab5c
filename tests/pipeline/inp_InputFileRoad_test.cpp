// The road of a new job as its callers drive it: where it stops, what each
// stage hands the sink, and the options that make it the scripting road.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

class InputFileRoad : public testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    TempDeckDirectory dir;
};

constexpr char kCleanDeck[] = "*NODE\n1, 0., 0.\n*STEP\n*STATIC\n*END STEP\n";

}  // namespace

TEST_F(InputFileRoad, StagesAreNamedInRoadOrder) {
    std::vector<std::string> names;
    for (inp_StageInfo const& stage : inp_InputFile::Stages()) names.emplace_back(stage.name);
    EXPECT_EQ(names,
              (std::vector<std::string>{"parse", "expand", "model-parameters", "import-validity",
                                        "names", "organize", "fake-part", "scoped-names",
                                        "part-maps", "assembly-maps", "out-of-place"}));
    ASSERT_NE(inp_InputFile::FindStage("expand"), nullptr);
    EXPECT_EQ(inp_InputFile::FindStage("expand")->stage, inp_Stage::Expand);
    EXPECT_EQ(inp_InputFile::FindStage("mesh"), nullptr);
}

TEST_F(InputFileRoad, RunsThroughTheLastStageAskedForAndTellsEachStage) {
    inp_InputFile input;
    std::vector<inp_Stage> seen;
    inp_Stage const last = input.Run(dir.Write("deck.inp", kCleanDeck), inp_Stage::Organize,
                                     inp_InputFile::RunRule::StopAfterErrors,
                                     [&](inp_Stage stage) { seen.push_back(stage); });
    EXPECT_EQ(last, inp_Stage::Organize);
    EXPECT_EQ(seen, (std::vector<inp_Stage>{inp_Stage::Parse, inp_Stage::Expand,
                                            inp_Stage::ModelParameters, inp_Stage::ImportValidity,
                                            inp_Stage::Names, inp_Stage::Organize}));
    ASSERT_EQ(input.Keywords().Length(), 3);  // *NODE, *STEP holding *STATIC, *END STEP
    EXPECT_EQ(input.Keywords()[1].Suboptions().Length(), 1);

    inp_InputFile flat;
    EXPECT_EQ(flat.Run(dir.Path("deck.inp"), inp_Stage::Expand), inp_Stage::Expand);
    EXPECT_EQ(flat.Keywords().Length(), 4);
}

// Errors end the run after the stage that reported them, unless the caller
// runs through; warnings never do.
TEST_F(InputFileRoad, ErrorsEndTheRunUnlessTheCallerRunsThrough) {
    cow_String const deck = dir.Write("deck.inp", std::string("*NOSUCH\n") + kCleanDeck);
    inp_InputFile stopping;
    EXPECT_EQ(stopping.Run(deck, inp_Stage::Organize), inp_Stage::Parse);

    sink().Clear();
    sink().Error(atr_String("an earlier job's error"), wip_LEVEL1);
    inp_InputFile clean;
    EXPECT_EQ(clean.Run(dir.Write("clean.inp", kCleanDeck), inp_Stage::Organize),
              inp_Stage::Organize);

    inp_InputFile through;
    EXPECT_EQ(through.Run(deck, inp_Stage::Organize, inp_InputFile::RunRule::RunThrough),
              inp_Stage::Organize);
    EXPECT_EQ(through.Keywords().Length(), 3);
}

// A stage's message points to its keyword's file and line, also for a keyword
// read from an include file.
TEST_F(InputFileRoad, StageMessagesCarryTheirKeywordsPlace) {
    dir.Write("part.inp", "*NODE\n1, 0., 0.\n*ELSET, ELSET=E, FROB\n1\n");
    inp_InputFile input;
    input.Run(dir.Write("deck.inp", "*HEADING\n*INCLUDE, INPUT=" +
                                        std::string(dir.Path("part.inp").CStr()) + "\n"),
              inp_Stage::Expand);
    ASSERT_EQ(sink().Diagnostics().size(), 1u);
    wip_Diagnostic const& diagnostic = sink().Diagnostics()[0];
    EXPECT_EQ(diagnostic.severity, wip_Severity::Error);
    ASSERT_NE(diagnostic.Location(), nullptr);
    EXPECT_EQ(diagnostic.Location()->file, dir.Path("part.inp"));
    EXPECT_EQ(diagnostic.Location()->line, 3);
    EXPECT_EQ(diagnostic.Location()->keyword, "ELSET");
}

// The scripting road reads leniently, leaves data as read and keeps the
// records a stage blanked; the default road removes them.
TEST_F(InputFileRoad, ScriptingOptionsKeepWhatTheDefaultRoadDrops) {
    cow_String const deck =
        dir.Write("deck.inp", "*CAPACITY\n1.\n*INCLUDE, INPUT=gone.inp\n*STEP\n");
    inp_InputFile strict;
    strict.Run(deck, inp_Stage::Expand, inp_InputFile::RunRule::RunThrough);
    EXPECT_EQ(strict.Keywords().Length(), 1);  // *CAPACITY without TYPE blanked and dropped

    inp_InputFile lenient(inp_InputFileOptions::ForScripting(cow_String(), true));
    lenient.Run(deck, inp_Stage::Expand, inp_InputFile::RunRule::RunThrough);
    ASSERT_EQ(lenient.Keywords().Length(), 2);
    EXPECT_EQ(lenient.Keywords()[0].Keyword(), inp_kw_UndefinedKeyword);  // blanked, kept
    EXPECT_EQ(lenient.GetMissingIncludeFiles().Length(), 1);
}
