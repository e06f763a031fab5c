#include "deck/inp_KeywordDisplayName.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace {

// What the reader makes of a name: lower case, blanks removed.
std::string folded(cow_String const& name) {
    std::string text;
    for (char c : name.View())
        if (c != ' ') text += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

}  // namespace

TEST(KeywordDisplayName, EveryNameReadsBackAsItsKeyword){
#define CHECK_DISPLAY_NAME(camel, name, number)                                         \
    {                                                                                   \
        cow_String const display = inp_KeywordDisplayName(inp_kw_##camel);              \
        EXPECT_EQ(folded(display), folded(name)) << display.View();                     \
        EXPECT_EQ(display.View().find("  "), std::string_view::npos) << display.View(); \
        EXPECT_NE(display.View().front(), ' ');                                         \
    }
    INP_KEYWORDS(CHECK_DISPLAY_NAME)
#undef CHECK_DISPLAY_NAME
}

TEST(KeywordDisplayName, WordsAreSeparatedAsDecksWriteThem) {
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_Node), "NODE");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_SolidSection), "SOLID SECTION");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_EndStep), "END STEP");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_BeamGeneralSection), "BEAM GENERAL SECTION");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_PreTensionSection), "PRE-TENSION SECTION");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_CAddedMass), "C ADDED MASS");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_NonlinearBH), "NONLINEAR BH");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_PlasticM1), "PLASTIC M1");
    EXPECT_EQ(inp_KeywordDisplayName(inp_kw_CoupledTemperatureDisplacement),
              "COUPLED TEMPERATURE-DISPLACEMENT");
    EXPECT_EQ(inp_KeywordDisplayName(static_cast<inp_KeywordEnm>(99999)), "");
}
