// The contact check on whole decks read through the road: contact field
// output for a pair set that holds a node-based surface over two instances
// is refused in an explicit step, and only there.

#include "tables/inp_ContactCheck.h"

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
