// Name hygiene on whole decks: periods refused in defined names, periods
// replaced in the references of a flat deck, and references by the
// assembly's full name shortened in a deck of parts.

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

constexpr char kPeriodMessage[] =
    "Period cannot be used within set, surface, orientation, instance, and assembly names in a "
    "model defined in terms of an assembly of parts";

class NameHygiene : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    inp_Stage run(std::string const& deck, inp_Stage last) {
        return input.Run(dir.Write("deck.inp", deck), last,
                         inp_InputFile::RunRule::StopAfterErrors);
    }
    std::string path(std::string const& name) const { return std::string(dir.Path(name).View()); }
    static std::string diagnostics() {
        std::string text;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            text += std::string(diagnostic.text.View()) + "\n";
        return text;
    }
    // The first keyword of this kind, depth first, written as deck text.
    std::string printed(inp_KeywordEnm kind) const { return printedIn(input.Keywords(), kind); }
    static std::string printedIn(cow_List<inp_Keyword> const& keywords, inp_KeywordEnm kind) {
        for (inp_Keyword const& keyword : keywords) {
            if (keyword.Is(kind)) return std::string(keyword.Print(false).View());
            std::string const below = printedIn(keyword.Suboptions(), kind);
            if (!below.empty()) return below;
        }
        return {};
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

}  // namespace

TEST_F(NameHygiene, APeriodInADefinedNameIsTheOneErrorOfTheDeckAndEndsTheRoad) {
    std::string const flat = R"(*NODE
1, 0., 0., 0.
*NSET, NSET=A.B
1
*ELSET, ELSET=C.D
1
*STEP
*STATIC
*END STEP
)";
    EXPECT_EQ(run(flat, inp_Stage::OutOfPlace), inp_Stage::Names);
    EXPECT_EQ(diagnostics(), "in keyword *NSET, file \"" + path("deck.inp") +
                                 "\", line 3: " + kPeriodMessage + "\n");

    sink().Clear();
    inp_InputFile parts;
    std::string const partsDeck = R"(*PART, NAME=P
*NODE
1, 0., 0., 0.
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I.1, PART=P
*END INSTANCE
*END ASSEMBLY
)";
    parts.Run(dir.Write("parts.inp", partsDeck), inp_Stage::OutOfPlace);
    EXPECT_EQ(diagnostics(), "in keyword *INSTANCE, file \"" + path("parts.inp") +
                                 "\", line 6: " + kPeriodMessage + "\n");
}

TEST_F(NameHygiene, QuotedPeriodsAndUndefinedNamesAreNotDefinitions) {
    std::string const deck = R"(*NODE, NSET="A.B"
1, 0., 0., 0.
*ORIENTATION, NAME="O.1"
1., 0., 0., 0., 1., 0.
*BOUNDARY
X.Y, 1
*STEP
*STATIC
*END STEP
)";
    EXPECT_EQ(run(deck, inp_Stage::Names), inp_Stage::Names);
    EXPECT_EQ(diagnostics(), "");
}

TEST_F(NameHygiene, AFlatDeckHasThePeriodsOfItsReferencesReplacedAndNothingElse) {
    std::string const deck = R"(*NODE
1, 0., 0., 0.
2, 1., 0., 0.
*ELEMENT, TYPE=T3D2, ELSET=E
1, 1, 2
*DISTRIBUTION, NAME=D.1, LOCATION=ELEMENT, TABLE=T
, 1.
*SOLID SECTION, ELSET=E.1, MATERIAL=M, ORIENTATION=O.1
1.
*SHELL SECTION, ELSET=E, MATERIAL=M, SHELL THICKNESS=D.1
*BOUNDARY
P.SET, 1, 2, 1.5
7, 1
"Q.R", 3
LLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLL.MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM, 4
*DSLOAD
S.TOP, P, 1.5
*STEP
*STATIC
*END STEP
)";
    run(deck, inp_Stage::Expand);
    input.RemovePeriods(false);
    // Labels, numbers and quoted names keep their periods; a long name is
    // rewritten whole.
    EXPECT_NE(printed(inp_kw_Boundary)
                  .find("P_SET, 1, 2, 1.5\n7, 1\n\"Q.R\", "
                        "3\nLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLLL_"
                        "MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM, 4"),
              std::string::npos)
        << printed(inp_kw_Boundary);
    EXPECT_NE(printed(inp_kw_SolidSection).find("elset = E_1"), std::string::npos)
        << printed(inp_kw_SolidSection);
    EXPECT_NE(printed(inp_kw_SolidSection).find("orientation = O_1"), std::string::npos);
    EXPECT_NE(printed(inp_kw_Distribution).find("name = D_1"), std::string::npos)
        << printed(inp_kw_Distribution);
    EXPECT_NE(printed(inp_kw_ShellSection).find("shellthickness = D_1"), std::string::npos)
        << printed(inp_kw_ShellSection);
    EXPECT_NE(printed(inp_kw_Dsload).find("S_TOP, P, 1.5"), std::string::npos)
        << printed(inp_kw_Dsload);
}

TEST_F(NameHygiene, FullyScopedReferencesAtModelLevelLoseTheAssemblyName) {
    std::string const deck = R"(*PART, NAME=P
*NODE
1, 0., 0., 0.
7, 1., 0., 0.
*NSET, NSET=SET
1
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=INST, PART=P
*END INSTANCE
*NSET, NSET=ASET
A.INST.1
*END ASSEMBLY
*BOUNDARY
A.INST.SET, 1
INST.SET, 2
*INITIAL CONDITIONS, TYPE=TEMPERATURE
A.INST.7, 1.5
*STEP
*STATIC
*CLOAD
A.INST.7, 2, 1.
*END STEP
)";
    EXPECT_EQ(run(deck, inp_Stage::ScopedNames), inp_Stage::ScopedNames) << diagnostics();
    EXPECT_NE(printed(inp_kw_Boundary).find("INST.SET, 1\nINST.SET, 2"), std::string::npos)
        << printed(inp_kw_Boundary);
    EXPECT_NE(printed(inp_kw_InitialConditions).find("\nINST.7, 1.5"), std::string::npos)
        << printed(inp_kw_InitialConditions);
    // Inside the assembly and inside a step the full name stays.
    std::string tree;
    for (inp_Keyword const& keyword : input.Keywords())
        tree += std::string(keyword.Print(true).View());
    EXPECT_NE(tree.find("A.INST.1"), std::string::npos) << tree;
    EXPECT_NE(tree.find("A.INST.7, 2"), std::string::npos) << tree;
}

TEST_F(NameHygiene, WithoutAnAssemblyAScopedReferenceStays) {
    std::string const deck = R"(*PART, NAME=P
*NODE
1, 0., 0., 0.
*END PART
*BOUNDARY
A.INST.SET, 1
*STEP
*STATIC
*END STEP
)";
    run(deck, inp_Stage::Organize);
    input.ModifyScopedNames();
    EXPECT_NE(printed(inp_kw_Boundary).find("A.INST.SET, 1"), std::string::npos)
        << printed(inp_kw_Boundary);
}
