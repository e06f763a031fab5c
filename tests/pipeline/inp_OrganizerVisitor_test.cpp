#include "pipeline/inp_OrganizerVisitor.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/aio_Stream.h"
#include "support/pnt_PrettyPrint.h"
#include "support/thr_Singleton.h"
#include "support/typ_DebugFlags.h"
#include "support/wip_WIP.h"

namespace {

// A keyword as expansion leaves it, from deck.inp at `line`: the structure
// keywords and steps have a name.
inp_Keyword at(inp_KeywordEnm key, int line) {
    inp_Keyword keyword(key, cow_String("deck.inp"));
    keyword.SetLineNumber(line);
    if (key == inp_kw_Part || key == inp_kw_Assembly || key == inp_kw_Instance ||
        key == inp_kw_Step)
        keyword.SetParameter("name", inp_Item("x"));
    return keyword;
}

// The keywords on lines 1, 2, 3, ... in the order given.
cow_List<inp_Keyword> deck(std::initializer_list<inp_KeywordEnm> keys) {
    cow_List<inp_Keyword> keywords;
    for (inp_KeywordEnm key : keys) keywords.Append(at(key, keywords.Length() + 1));
    return keywords;
}

// Names, with the suboptions of each in parentheses.
std::string shape(cow_List<inp_Keyword> const& keywords) {
    std::string text;
    for (inp_Keyword const& keyword : keywords) {
        if (!text.empty()) text += ' ';
        text += keyword.Name().View();
        if (!keyword.Suboptions().IsEmpty()) text += '(' + shape(keyword.Suboptions()) + ')';
    }
    return text;
}

std::string misplaced(char const* keyword, int line, char const* levels) {
    return std::string("in keyword *") + keyword + ", file \"deck.inp\", line " +
           std::to_string(line) +
           ": The keyword is misplaced. It can be suboption for the following "
           "keyword(s)/level(s): " +
           levels;
}

struct Organized {
    std::string tree;
    std::vector<std::string> errors;  // every kind, fatal ones last
    cow_List<inp_Keyword> keywords;
};

// The stage hands the organizer its list to consume; a walk of a list the
// caller keeps must build the same tree.
Organized organize(bool enhanced, cow_List<inp_Keyword> flat) {
    inp_OrganizerVisitor consuming(enhanced);
    consuming.OrganizeAndReport(cow_List<inp_Keyword>(flat));
    thr_ThreadSingleton<wip_WIP>::Instance().Clear();
    inp_OrganizerVisitor organizer(enhanced);
    organizer.VisitList(flat);
    Organized result{"", {}, organizer.Keywords()};
    result.tree = shape(result.keywords);
    EXPECT_EQ(shape(consuming.Keywords()), result.tree);
    EXPECT_EQ(consuming.GetFatalErrorList().Length(), organizer.GetFatalErrorList().Length());
    for (auto const* list :
         {&organizer.GetWarningList(), &organizer.GetErrorList(), &organizer.GetFatalErrorList()})
        for (atr_String const& text : *list) result.errors.emplace_back(text.View());
    return result;
}

using Errors = std::vector<std::string>;

}  // namespace

TEST(OrganizerPlacement, FlatDeckTakesModelAndPartDataAtTheTop) {
    Organized const result =
        organize(false, deck({inp_kw_Heading, inp_kw_Node, inp_kw_Nset, inp_kw_Material,
                              inp_kw_Elastic, inp_kw_Density, inp_kw_Elset}));
    EXPECT_EQ(result.tree, "heading node nset material(elastic density) elset");
    EXPECT_EQ(result.errors, Errors{});
}

TEST(OrganizerPlacement, EndKeywordsLieAsTheNextSiblingsOfTheirOpeners) {
    Organized const result = organize(
        true, deck({inp_kw_Part, inp_kw_Node, inp_kw_EndPart, inp_kw_Assembly, inp_kw_Instance,
                    inp_kw_Node, inp_kw_EndInstance, inp_kw_Nset, inp_kw_EndAssembly, inp_kw_Step,
                    inp_kw_Static, inp_kw_EndStep, inp_kw_Step}));
    EXPECT_EQ(
        result.tree,
        "part(node) endpart assembly(instance(node) endinstance nset) endassembly step(static) "
        "endstep step");
    EXPECT_EQ(result.errors, Errors{});
}

TEST(OrganizerPlacement, TreeSharesDataWithTheFlatListAndLeavesItFlat) {
    cow_List<inp_Keyword> flat = deck({inp_kw_Material, inp_kw_Elastic});
    Organized const result = organize(false, flat);
    EXPECT_TRUE(flat[0].Suboptions().IsEmpty());
    flat[1].Data().Append("200000., 0.3");
    EXPECT_EQ(result.keywords[0].Suboptions()[0].Data().Rows(), 1);
}

TEST(OrganizerClimb, StepClosesTheOpenMaterialAndOpensAtTheTop) {
    Organized const result = organize(false, deck({inp_kw_Material, inp_kw_Elastic, inp_kw_Step,
                                                   inp_kw_Static, inp_kw_Boundary}));
    EXPECT_EQ(result.tree, "material(elastic) step(static boundary)");
    EXPECT_EQ(result.errors, Errors{});
}

TEST(OrganizerClimb, EndOfDeckClosesEveryOpenLevelWithoutError) {
    Organized const result =
        organize(true, deck({inp_kw_Assembly, inp_kw_Instance, inp_kw_Node, inp_kw_Nset}));
    EXPECT_EQ(result.tree, "assembly(instance(node nset))");
    EXPECT_EQ(result.errors, Errors{});
}

// A climb that handled the keyword again for each level it closes would
// count the path it enters more than once.
TEST(OrganizerClimb, KeywordClimbingSeveralLevelsIsHandledOnce) {
    cow_List<inp_Keyword> flat =
        deck({inp_kw_Step, inp_kw_Static, inp_kw_Boundary, inp_kw_SubstructurePath});
    flat.Get(3).SetParameter("enterelement", inp_Item(7));
    inp_OrganizerVisitor organizer(false);
    organizer.VisitList(flat);
    EXPECT_EQ(organizer.SubstructurePathDepth(), 1);
    EXPECT_EQ(shape(organizer.Keywords()), "step(static boundary substructurepath)");
}

TEST(OrganizerParentKeys, EverySuboptionCarriesItsHoldersKeyAndTheTopKeepsItsOwn) {
    cow_List<inp_Keyword> flat =
        deck({inp_kw_Assembly, inp_kw_Instance, inp_kw_Node, inp_kw_EndInstance});
    flat.Get(0).SetLevel(77);
    Organized const result = organize(true, flat);
    ASSERT_EQ(result.tree, "assembly(instance(node) endinstance)");
    inp_Keyword const& assembly = result.keywords[0];
    EXPECT_EQ(inp_OrganizerVisitor::ParentKeyOf(assembly), 77);
    EXPECT_EQ(inp_OrganizerVisitor::ParentKeyOf(assembly.Suboptions()[0]), inp_kw_Assembly);
    EXPECT_EQ(inp_OrganizerVisitor::ParentKeyOf(assembly.Suboptions()[1]), inp_kw_Assembly);
    EXPECT_EQ(inp_OrganizerVisitor::ParentKeyOf(assembly.Suboptions()[0].Suboptions()[0]),
              inp_kw_Instance);
    EXPECT_EQ(inp_OrganizerVisitor::ParentKeyOf(flat[2]), 0);
}

TEST(OrganizerMisplaced, NodeOutsideAnyPartOfAnEnhancedDeckNamesTheLevelsThatTakeIt) {
    Organized const result = organize(
        true, deck({inp_kw_Part, inp_kw_Node, inp_kw_EndPart, inp_kw_Node, inp_kw_Material}));
    EXPECT_EQ(result.tree, "part(node) endpart material");
    EXPECT_EQ(result.errors, Errors{misplaced("NODE", 4, "assembly, part, instance")});
}

// Underscores go from the ends of the list of levels: the model reads "model".
TEST(OrganizerMisplaced, ModelDataAfterTheFirstStepIsRefusedInsideAndOutsideSteps) {
    Organized const result =
        organize(false, deck({inp_kw_Node, inp_kw_Step, inp_kw_Static, inp_kw_Node, inp_kw_EndStep,
                              inp_kw_Material, inp_kw_Step}));
    EXPECT_EQ(result.tree, "node step(static) endstep step");
    EXPECT_EQ(result.errors, (Errors{misplaced("NODE", 4, "assembly, part, instance"),
                                     misplaced("MATERIAL", 6, "model")}));
}

TEST(OrganizerMisplaced, AssemblyInsideAnUnendedPartIsRefusedAndThePartStaysOpen) {
    Organized const result = organize(
        true, deck({inp_kw_Part, inp_kw_Node, inp_kw_Assembly, inp_kw_Element, inp_kw_EndPart}));
    EXPECT_EQ(result.tree, "part(node element) endpart");
    EXPECT_EQ(result.errors, Errors{misplaced("ASSEMBLY", 3, "model")});
}

TEST(OrganizerMisplaced, EachBarredLevelOpensOnlyToItsOwnEnd) {
    inp_KeywordEnm const barred[][2] = {{inp_kw_Part, inp_kw_EndPart},
                                        {inp_kw_Instance, inp_kw_EndInstance},
                                        {inp_kw_Step, inp_kw_EndStep},
                                        {inp_kw_Assembly, inp_kw_EndAssembly}};
    for (auto const& level : barred)
        for (auto const& other : barred)
            EXPECT_EQ(
                inp_OrganizerVisitor::CanPopKeyword(inp_Keyword(level[0]), inp_Keyword(other[1])),
                level[0] == other[0]);
    EXPECT_TRUE(inp_OrganizerVisitor::CanPopKeyword(inp_Keyword(inp_kw_Material),
                                                    inp_Keyword(inp_kw_Step)));
}

TEST(OrganizerDebug, LevelOnePrintsEachPushAndEachPopWithTheIncomingName) {
    aio_ostringstream printed;
    pnt_debugPrint().SetStream(&printed);
    auto organizeOnce = [](cow_List<inp_Keyword> flat) {
        inp_OrganizerVisitor organizer(false);
        organizer.VisitList(flat);
        organizer.Keywords();
    };
    typ_DebugFlags::SetDebugFlags(typ_DebugFlags::kDeckFlag, 1);
    organizeOnce(deck({inp_kw_Material, inp_kw_Elastic, inp_kw_Step}));
    typ_DebugFlags::SetDebugFlags(typ_DebugFlags::kDeckFlag, 0);
    organizeOnce(deck({inp_kw_Heading}));
    pnt_debugPrint().SetStream(nullptr);

    std::string moves;
    for (std::string_view rest = printed.Str().View(); !rest.empty();) {
        std::string_view const line = rest.substr(0, rest.find('\n') + 1);
        moves += line.substr(line.find("OrganizerVisitor - "));
        rest.remove_prefix(line.size());
    }
    EXPECT_EQ(moves,
              "OrganizerVisitor - Push: material\nOrganizerVisitor - Push: elastic\n"
              "OrganizerVisitor - Pop: step\nOrganizerVisitor - Pop: step\nOrganizerVisitor - "
              "Push: step\n");
}
