#include "pipeline/inp_InputFile.h"

#include <gtest/gtest.h>

#include "pipeline/inp_Module.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

}  // namespace

TEST(InputFileParse, DiagnosticsReachTheSinkFatalFirstWarningsLastAndGoodKeywordsStay) {
    TempDeckDirectory dir;
    cow_String deck = dir.Write("deck.inp", "*NODE\n" + std::string(300, '1') +
                                                "\n*NOSUCH\n*INCLUDE, INPUT=gone.inp\n*ELEMENT\n");
    sink().Clear();
    inp_InputFile input;
    input.Parse(deck);
    EXPECT_EQ(input.Keywords().Length(), 2);
    EXPECT_EQ(input.FileName(), deck);
    EXPECT_EQ(input.GetMissingIncludeFiles().Length(), 1);

    auto const& diagnostics = sink().Diagnostics();
    ASSERT_EQ(diagnostics.size(), 3u);
    EXPECT_TRUE(diagnostics[0].IsError());
    EXPECT_EQ(diagnostics[0].level, 0);
    EXPECT_EQ(diagnostics[0].text, "Include file \"gone.inp\" does not exist.");
    EXPECT_TRUE(diagnostics[1].IsError());
    EXPECT_EQ(diagnostics[1].level, 1);
    EXPECT_FALSE(diagnostics[2].IsError());
    EXPECT_EQ(diagnostics[2].text, "Line #2 has been truncated.");
    EXPECT_TRUE(sink().HasErrors());
    sink().Clear();
}

TEST(InputFileParse, DeckWithoutKeywordsIsEmptyAndClean) {
    TempDeckDirectory dir;
    sink().Clear();
    inp_InputFile input;
    input.Parse(dir.Write("empty.inp", "** only a comment\n1, 2\n"));
    EXPECT_TRUE(input.Keywords().IsEmpty());
    EXPECT_TRUE(sink().Diagnostics().empty());
}

TEST(InputFileParse, UnopenableDeckThrows) {
    inp_InputFile input;
    using OpenFailure = nex_PrimException<atr_String, 1>;
    EXPECT_THROW(input.Parse("/nonexistent/deck.inp"), OpenFailure);
}

TEST(InputFileKeywords, DiscardEmptyKeywordsRemovesBlankedRecordsInOrder) {
    TempDeckDirectory dir;
    inp_InputFile input;
    input.Parse(dir.Write("deck.inp", "*NODE\n*ELEMENT\n*NSET, NSET=A\n*ELSET, ELSET=B\n*STEP\n"));
    input.GetKeywords().Get(1).SetKeyword(inp_kw_UndefinedKeyword);
    input.GetKeywords().Get(2).SetKeyword(inp_kw_UndefinedKeyword);
    input.DiscardEmptyKeywords();
    ASSERT_EQ(input.Keywords().Length(), 3);
    EXPECT_EQ(input.Keywords().ConstGet(0).Keyword(), inp_kw_Node);
    EXPECT_EQ(input.Keywords().ConstGet(1).Keyword(), inp_kw_Elset);
    EXPECT_EQ(input.Keywords().ConstGet(2).Keyword(), inp_kw_Step);
}

TEST(InputFileKeywords, PrintWritesTheDeckBackAndItReadsAgain) {
    TempDeckDirectory dir;
    inp_InputFile input;
    input.Parse(
        dir.Write("deck.inp", "*Material, Name=Steel\n*Density\n7800.\n*NSET, NSET=A\n1, 2\n"));
    aio_ostringstream out;
    input.Print(out);
    EXPECT_EQ(out.Str(), "*material, name=Steel\n*density\n7800.\n*nset, nset=A\n1, 2\n");
    inp_InputFile again;
    again.Parse(dir.Write("printed.inp", out.Str().CStr()));
    EXPECT_EQ(again.Keywords().Length(), 3);
}

TEST(InputFileText, TakeOutSpacesOutsideQuoted) {
    EXPECT_EQ(inp_InputFile::TakeOutSpacesOutsideQuoted("a b \"c d\" e"), "ab\"c d\"e");
    EXPECT_EQ(inp_InputFile::TakeOutSpacesOutsideQuoted("\nrest"), "\n");
}

TEST(ModuleStartUp, OnlyTheFirstStartAndTheLastStopCount) {
    int count = 0;
    ZELI2sInpMod_initialize(count);
    EXPECT_EQ(count, 3);  // the module, the deck layer and the specific part
    ZELI2sInpMod_initialize(count);
    EXPECT_EQ(count, 3);
    ZELI2sInpMod_finalize(count);
    EXPECT_EQ(count, 3);
    ZELI2sInpMod_finalize(count);
    EXPECT_EQ(count, 0);
    ZELI2sInpMod_finalize(count);  // one too many does nothing
    EXPECT_EQ(count, 0);
}
