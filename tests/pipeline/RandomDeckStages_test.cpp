// Decks of random keywords in random order, with random parameters and data,
// must go through parsing, expansion and organization, the mesh walks
// (elements, nodes, implicit nodes, surfaces) over the expanded list, and the
// extraction stages over the tree, with diagnostics only:
// no exception, no crash, no memory fault (the suite also runs under the
// address and undefined-behaviour sanitizers).

#include <gtest/gtest.h>

#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/MeshWalks.h"
#include "tests/common/RandomDeckWriter.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

TEST(RandomDeckStages, RandomDecksGoThroughParseExpansionAndOrganizationWithDiagnosticsOnly) {
    TempDeckDirectory dir;
    int decksWithDiagnostics = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        RandomDeckWriter writer(seed);
        cow_String const path = dir.Write("random.inp", writer.Deck(40));
        sink().Clear();
        inp_InputFile input;
        input.SetIncludePath(dir.Directory());
        ASSERT_NO_THROW({
            input.Parse(path);
            input.ExpandKeywords();
            RunMeshWalks(input.GetKeywords());
            RunFakePartStages(input);
            input.Reorganize();
            RunExtractionStages(input);
        }) << "seed "
           << seed;
        for (inp_Keyword const& keyword : input.Keywords())
            EXPECT_NE(keyword.Keyword(), inp_kw_UndefinedKeyword) << "seed " << seed;
        if (!sink().Diagnostics().empty()) ++decksWithDiagnostics;
    }
    sink().Clear();
    // Random decks are wrong in many ways; if they pass clean, the stages
    // did not look at them.
    EXPECT_GT(decksWithDiagnostics, 50);
}

// Decks of the mesh keywords alone, with data of small labels, so that the
// mesh walks do more than pass the keywords over.
TEST(RandomDeckStages, RandomMeshDecksGoThroughTheMeshWalksWithDiagnosticsOnly) {
    std::vector<std::string> const names = {
        "node",     "element",     "nset",        "elset",    "elgen",   "elcopy",   "ngen",
        "ncopy",    "nfill",       "surface",     "part",     "endpart", "assembly", "endassembly",
        "instance", "endinstance", "userelement", "fastener", "system"};
    TempDeckDirectory dir;
    int made = 0;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        cow_String const path = dir.Write("mesh.inp", RandomDeckWriter(seed, names).Deck(25));
        sink().Clear();
        inp_InputFile input;
        ASSERT_NO_THROW({
            input.Run(path, inp_Stage::Expand, inp_InputFile::RunRule::RunThrough);
            made += RunMeshWalks(input.GetKeywords());
            RunFakePartStages(input);
            input.Reorganize();
            RunExtractionStages(input);
        }) << "seed "
           << seed;
    }
    sink().Clear();
    EXPECT_GT(made, 400);  // the walks built something, so they read the data
}

}  // namespace
