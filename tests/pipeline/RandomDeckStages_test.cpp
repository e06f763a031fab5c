// Decks of random keywords in random order, with random parameters and data,
// must go through parsing, expansion and organization, and the node visitor
// over the expanded list, with diagnostics only:
// no exception, no crash, no memory fault (the suite also runs under the
// address and undefined-behaviour sanitizers).

#include <gtest/gtest.h>

#include "mesh/inp_NodeVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
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
            inp_NodeVisitor nodes(true);
            nodes.VisitList(input.GetKeywords());
            input.Reorganize();
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

}  // namespace
