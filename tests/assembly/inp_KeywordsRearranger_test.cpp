#include "assembly/inp_KeywordsRearranger.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

// Keywords are told apart by their line numbers.
inp_Keyword at(inp_KeywordEnm key, int line, char const* parameter = nullptr,
               char const* value = nullptr) {
    inp_Keyword keyword(key);
    keyword.SetLineNumber(line);
    if (parameter) keyword.SetParameter(parameter, inp_Item(value));
    return keyword;
}

inp_Keyword rigidBody(char const* surface, int line) {
    return at(inp_kw_RigidBody, line, "analyticalsurface", surface);
}
inp_Keyword rigidSurface(char const* name, int line) {
    return at(inp_kw_RigidSurface, line, "name", name);
}
inp_Keyword surface(char const* type, char const* name, int line) {
    inp_Keyword keyword = at(inp_kw_Surface, line, "name", name);
    keyword.SetParameter("type", inp_Item(type));
    return keyword;
}

// "name@line" for each keyword, in list order.
std::string rearranged(inp_KeywordsRearranger& rearranger, cow_List<inp_Keyword> keywords) {
    rearranger.Rearrange(keywords);
    std::string text;
    for (inp_Keyword const& keyword : keywords)
        text +=
            std::string(keyword.Name().View()) + '@' + std::to_string(keyword.LineNumber()) + ' ';
    return text;
}

std::vector<std::string> level0Errors() {
    std::vector<std::string> texts;
    for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
        if (diagnostic.IsError() && diagnostic.level == 0)
            texts.emplace_back(diagnostic.text.View());
    return texts;
}

class Rearranger : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }
    inp_KeywordsRearranger rearranger;
};

}  // namespace

TEST_F(Rearranger, RigidBodyAboveItsCylinderSwapsWithItAndTheRestStays) {
    EXPECT_EQ(
        rearranged(rearranger, {at(inp_kw_Heading, 1), rigidBody("DRUM", 2), at(inp_kw_Node, 3),
                                surface("CYLINDER", "DRUM", 4), at(inp_kw_Nset, 5)}),
        "heading@1 surface@4 node@3 rigidbody@2 nset@5 ");
    EXPECT_TRUE(sink().Diagnostics().empty());
}

TEST_F(Rearranger, OnlyReversedPairsOfAnalyticalSurfacesMoveEachOnItsOwn) {
    EXPECT_EQ(rearranged(rearranger,
                         {rigidSurface("WALL", 1), rigidBody("WALL", 2),        // in order
                          rigidBody("FACE", 3), surface("ELEMENT", "FACE", 4),  // not analytical
                          rigidBody("LONE", 5),                                 // no surface
                          rigidBody("ROLL", 6), rigidBody("DISC", 7), rigidSurface("ROLL", 8),
                          surface("SEGMENTS", "DISC", 9)}),
              "rigidsurface@1 rigidbody@2 rigidbody@3 surface@4 rigidbody@5 rigidsurface@8 "
              "surface@9 rigidbody@6 rigidbody@7 ");
    EXPECT_FALSE(rearranger.Positions().ConstGet("FACE").HasRigidSurface());
}

TEST_F(Rearranger, SecondKeywordOfAKindIsReportedAndTheFirstOneSwaps) {
    EXPECT_EQ(rearranged(rearranger, {rigidBody("DRUM", 1), rigidBody("DRUM", 2),
                                      rigidSurface("DRUM", 3), surface("BEZIER", "DRUM", 4)}),
              "rigidsurface@3 rigidbody@2 rigidbody@1 surface@4 ");
    EXPECT_EQ(level0Errors(),
              (std::vector<std::string>{
                  "There are more than one *RIGID BODY keywords associated with the analytical "
                  "surface DRUM.  Please check input data.",
                  "There are more than one rigid surface keywords associated with the analytical "
                  "surface DRUM.  Please check input data."}));
    EXPECT_EQ(sink().Diagnostics().size(), 2u);
}

TEST_F(Rearranger, PositionsOfAnEarlierListAreForgotten) {
    rearranged(rearranger, {rigidBody("DRUM", 1), surface("CYLINDER", "DRUM", 2)});
    EXPECT_EQ(rearranged(rearranger,
                         {at(inp_kw_Node, 1), rigidBody("DRUM", 2), surface("USER", "DRUM", 3)}),
              "node@1 surface@3 rigidbody@2 ");
    EXPECT_TRUE(level0Errors().empty());
}
