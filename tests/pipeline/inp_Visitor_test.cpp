#include "pipeline/inp_Visitor.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/ZELAspBcuAnalysisIROptions.h"
#include "support/ZELBasException.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

inp_Keyword keywordOf(int key) {
    return inp_Keyword(static_cast<inp_KeywordEnm>(key));
}

inp_Keyword named(inp_KeywordEnm key, char const* parameter, char const* value) {
    inp_Keyword keyword(key);
    keyword.SetParameter(parameter, inp_Item(cow_String(value)));
    return keyword;
}

// Every handler records its own name; nothing reaches DefaultAction.
class HandlerNameVisitor : public inp_Visitor {
  public:
    std::string reached;
    void DefaultAction(inp_Keyword&) override { reached = "DefaultAction"; }
#define RECORD_HANDLER(name)                  \
    void Visit##name(inp_Keyword&) override { \
        reached = "Visit" #name;              \
    }
    INP_VISITOR_SLOTS(RECORD_HANDLER, RECORD_HANDLER)
#undef RECORD_HANDLER
};

// Records the key of every keyword the walk meets, and the scope it sees.
class TraceVisitor : public inp_Visitor {
  public:
    std::vector<int> keys;
    std::vector<std::string> parts;
    std::vector<int> depths;
    void DefaultAction(inp_Keyword& keyword) override {
        keys.push_back(keyword.Keyword());
        parts.emplace_back(PartName().View());
        depths.push_back(SubstructurePathDepth());
    }
    using inp_Visitor::AddError;
    using inp_Visitor::AddFatalError;
    using inp_Visitor::AddWarning;
};

struct KeywordEntry {
    char const* camel;
    int key;
};
#define KEYWORD_ENTRY(camel, name, number) {#camel, number},
KeywordEntry const kAllKeywords[] = {INP_KEYWORDS(KEYWORD_ENTRY)};
#undef KEYWORD_ENTRY

bool hasNoHandler(int key) {
    return key == inp_kw_UndefinedKeyword || key == inp_kw_Eof || key == inp_kw_Model;
}

}  // namespace

TEST(VisitorSlots, NameEveryKeywordHandlerOnceAndNothingElse) {
    std::vector<std::string> slots;
#define SLOT_NAME(name) slots.push_back(#name);
    INP_VISITOR_SLOTS(SLOT_NAME, SLOT_NAME)
#undef SLOT_NAME
    std::set<std::string> const slotSet(slots.begin(), slots.end());
    EXPECT_EQ(slotSet.size(), slots.size()) << "a handler is listed twice";

    std::set<std::string> expected{"UserSubroutines"};
    for (KeywordEntry const& entry : kAllKeywords)
        if (!hasNoHandler(entry.key) && entry.key != inp_kw_ModalPrint)
            expected.insert(entry.camel);
    EXPECT_EQ(slotSet, expected);
}

TEST(VisitorDispatch, EveryKeyReachesTheHandlerNamedAfterIt) {
    HandlerNameVisitor visitor;
    int reachedCount = 0;
    for (KeywordEntry const& entry : kAllKeywords) {
        if (entry.key == inp_kw_Eof) continue;
        inp_Keyword keyword = keywordOf(entry.key);
        visitor.reached.clear();
        visitor.Visit(keyword);
        std::string expected = hasNoHandler(entry.key) ? std::string()
                               : entry.key == inp_kw_ModalPrint
                                   ? std::string("VisitPrint")
                                   : "Visit" + std::string(entry.camel);
        EXPECT_EQ(visitor.reached, expected) << "key " << entry.key;
        if (!visitor.reached.empty()) ++reachedCount;
    }
    EXPECT_EQ(reachedCount, inp_keywordCount - 3);
}

TEST(VisitorDispatch, ModalPrintAndPrintShareOneOverride) {
    struct PrintCounter : inp_Visitor {
        int prints = 0;
        int others = 0;
        void DefaultAction(inp_Keyword&) override { ++others; }
        void VisitPrint(inp_Keyword&) override { ++prints; }
    } visitor;
    cow_List<inp_Keyword> keywords{inp_Keyword(inp_kw_Print), inp_Keyword(inp_kw_ModalPrint),
                                   inp_Keyword(inp_kw_NodePrint)};
    visitor.VisitList(keywords);
    EXPECT_EQ(visitor.prints, 2);
    EXPECT_EQ(visitor.others, 1);
}

TEST(VisitorDispatch, KeyOutsideTheTableFailsWithTheFixedTextAndNamesTheKey) {
    for (int key : {99999, 19, -4, int(inp_kw_Eof)}) {
        TraceVisitor visitor;
        inp_Keyword keyword = keywordOf(key);
        testing::internal::CaptureStderr();
        try {
            visitor.Visit(keyword);
            ADD_FAILURE() << "key " << key << " was dispatched";
        } catch (ZELBasAssertException const& e) {
            EXPECT_EQ(e.Condition(), "\"Check inp_keywords.h\" == 0");
        }
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "Unknown keyword key " + std::to_string(key) + "\n");
    }
}

TEST(VisitorWalk, DescendsIntoSuboptionsAfterTheHandlerAlsoUnderBlankedKeywords) {
    inp_Keyword blanked(inp_kw_UndefinedKeyword);
    blanked.GetSuboptions().Append(inp_Keyword(inp_kw_Elset));
    inp_Keyword nset(inp_kw_Nset);
    nset.GetSuboptions().Append(inp_Keyword(inp_kw_Node));
    blanked.GetSuboptions().Append(nset);
    inp_Keyword root(inp_kw_Model);
    root.GetSuboptions().Append(inp_Keyword(inp_kw_Heading));
    cow_List<inp_Keyword> keywords{inp_Keyword(inp_kw_Material), blanked, root};

    TraceVisitor visitor;
    visitor.VisitList(keywords);
    EXPECT_EQ(visitor.keys, (std::vector<int>{inp_kw_Material, inp_kw_Elset, inp_kw_Nset,
                                              inp_kw_Node, inp_kw_Heading}));
}

TEST(VisitorWalk, TakesTheCountOnceSoAppendedKeywordsAreNotVisited) {
    struct Appender : inp_Visitor {
        cow_List<inp_Keyword>* list = nullptr;
        int visits = 0;
        void DefaultAction(inp_Keyword&) override {
            ++visits;
            list->Append(inp_Keyword(inp_kw_Node));
        }
    } visitor;
    cow_List<inp_Keyword> keywords{inp_Keyword(inp_kw_Node), inp_Keyword(inp_kw_Elset)};
    visitor.list = &keywords;
    visitor.VisitList(keywords);
    EXPECT_EQ(visitor.visits, 2);
    EXPECT_EQ(keywords.Length(), 4);

    inp_Keyword parent(inp_kw_Material);
    parent.GetSuboptions().Append(inp_Keyword(inp_kw_Density));
    visitor.visits = 0;
    visitor.list = &parent.GetSuboptions();
    visitor.VisitSuboptions(parent);
    EXPECT_EQ(visitor.visits, 1);
    EXPECT_EQ(parent.Suboptions().Length(), 2);
}

TEST(VisitorWalk, WritesThroughToTheWalkedListOnly) {
    struct Blanker : inp_Visitor {
        void DefaultAction(inp_Keyword& keyword) override {
            keyword.SetKeyword(inp_kw_UndefinedKeyword);
        }
    } visitor;
    cow_List<inp_Keyword> keywords{inp_Keyword(inp_kw_Node)};
    cow_List<inp_Keyword> const copy = keywords;
    visitor.VisitList(keywords);
    EXPECT_EQ(keywords[0].Keyword(), inp_kw_UndefinedKeyword);
    EXPECT_EQ(copy[0].Keyword(), inp_kw_Node);
}

TEST(VisitorScope, NamesOpenBeforeAndCloseAfterTheStageSeesTheKeyword) {
    inp_Keyword const unnamedPart(inp_kw_Part);  // leaves the open part in place
    cow_List<inp_Keyword> keywords{named(inp_kw_Part, "name", "P1"), inp_Keyword(inp_kw_Node),
                                   unnamedPart, inp_Keyword(inp_kw_EndPart),
                                   inp_Keyword(inp_kw_Heading)};
    TraceVisitor visitor;
    visitor.VisitList(keywords);
    EXPECT_EQ(visitor.parts, (std::vector<std::string>{"P1", "P1", "P1", "P1", ""}));
}

TEST(VisitorScope, InstanceTakesNameElseInstanceElseKeepsItsValue) {
    TraceVisitor visitor;
    inp_Keyword byInstance = named(inp_kw_Instance, "instance", "I2");
    inp_Keyword both = named(inp_kw_Instance, "instance", "I3");
    both.SetParameter("name", inp_Item(cow_String("N3")));
    inp_Keyword bare(inp_kw_Instance);

    visitor.Visit(byInstance);
    EXPECT_EQ(visitor.InstanceName(), "I2");
    visitor.Visit(both);
    EXPECT_EQ(visitor.InstanceName(), "N3");
    visitor.Visit(bare);
    EXPECT_EQ(visitor.InstanceName(), "N3");
    inp_Keyword end(inp_kw_EndInstance);
    visitor.Visit(end);
    EXPECT_EQ(visitor.InstanceName(), "");
}

TEST(VisitorScope, AssemblyAndStepTakeTheirNameAndEndKeywordsEmptyIt) {
    TraceVisitor visitor;
    inp_Keyword assembly = named(inp_kw_Assembly, "name", "A");
    inp_Keyword step = named(inp_kw_Step, "name", "S1");
    visitor.Visit(assembly);
    visitor.Visit(step);
    EXPECT_EQ(visitor.AssemblyName(), "A");
    EXPECT_EQ(visitor.StepName(), "S1");

    // A keyword without a name opens a scope without a name.
    inp_Keyword unnamedStep(inp_kw_Step);
    inp_Keyword unnamedAssembly(inp_kw_Assembly);
    visitor.Visit(unnamedStep);
    visitor.Visit(unnamedAssembly);
    EXPECT_EQ(visitor.StepName(), "");
    EXPECT_EQ(visitor.AssemblyName(), "");
    visitor.Visit(step);
    visitor.Visit(assembly);

    inp_Keyword endStep(inp_kw_EndStep);
    inp_Keyword endAssembly(inp_kw_EndAssembly);
    visitor.Visit(endStep);
    visitor.Visit(endAssembly);
    EXPECT_EQ(visitor.StepName(), "");
    EXPECT_EQ(visitor.AssemblyName(), "");
}

TEST(VisitorScope, SubstructurePathCountsLevelsEnteredAndLeft) {
    inp_Keyword enter = named(inp_kw_SubstructurePath, "enterelement", "5");
    inp_Keyword leave(inp_kw_SubstructurePath);
    leave.SetParameter("leave", inp_Item(true));
    inp_Keyword both = enter;
    both.SetParameter("leave", inp_Item(true));

    TraceVisitor visitor;
    cow_List<inp_Keyword> keywords{leave, enter, both, enter, leave, leave, leave};
    visitor.VisitList(keywords);
    // Entering counts before the stage sees the keyword, leaving after it.
    EXPECT_EQ(visitor.depths, (std::vector<int>{0, 1, 1, 2, 2, 1, 0}));
    EXPECT_EQ(visitor.SubstructurePathDepth(), 0);
}

TEST(VisitorScope, SimulationWorkflowFollowsTheProcessResultsMode) {
    ZELAspBcuAnalysisIROptions& options = ZELAspBcuAnalysisIROptions::Instance();
    TraceVisitor visitor;
    EXPECT_FALSE(visitor.IsSimWorkFlow());
    options.SetResultsMode(ZELAspBcuAnalysisIROptions::IsResultsSim);
    EXPECT_TRUE(visitor.IsSimWorkFlow());
    options.SetResultsMode(ZELAspBcuAnalysisIROptions::IsResultsBoth);
    EXPECT_TRUE(visitor.IsSimWorkFlow());
    options.SetResultsMode(ZELAspBcuAnalysisIROptions::IsResultsOdb);
    EXPECT_FALSE(visitor.IsSimWorkFlow());
}

class VisitorReport : public testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    static wip_WIP& sink() { return thr_ThreadSingleton<wip_WIP>::Instance(); }
    static std::vector<std::string> received() {
        std::vector<std::string> texts;
        for (wip_Diagnostic const& d : sink().Diagnostics()) {
            std::string kind = d.IsError() ? "E" + std::to_string(d.level) : "W";
            texts.push_back(kind + ":" + std::string(d.text.View()));
        }
        return texts;
    }
};

TEST_F(VisitorReport, EmptyWalkReportsNothing) {
    TraceVisitor visitor;
    cow_List<inp_Keyword> none;
    visitor.VisitListAndReport(none);
    EXPECT_TRUE(sink().Diagnostics().empty());
    EXPECT_FALSE(visitor.IsError());
    EXPECT_FALSE(visitor.IsWarning());
    EXPECT_EQ(visitor.Errors(), "");
    EXPECT_EQ(visitor.Warnings(), "");
}

TEST_F(VisitorReport, SinkGetsWarningsThenErrorsThenFatalErrorsAndAgainOnRepeat) {
    TraceVisitor visitor;
    visitor.AddFatalError("f1");
    visitor.AddError("e1");
    visitor.AddWarning("w1");
    visitor.AddError("e2");
    visitor.Report();
    std::vector<std::string> const once{"W:w1", "E1:e1", "E1:e2", "E2:f1"};
    EXPECT_EQ(received(), once);
    visitor.Report();
    std::vector<std::string> twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(received(), twice);
    EXPECT_EQ(visitor.GetErrorList().Length(), 2);
}

TEST_F(VisitorReport, ErrorsListLevelOneBeforeLevelTwoWhateverTheArrival) {
    TraceVisitor visitor;
    visitor.AddFatalError("fatal");
    EXPECT_TRUE(visitor.IsError());
    visitor.AddError("first");
    visitor.AddError("second");
    visitor.AddWarning("careful");
    EXPECT_EQ(visitor.Errors(), "first\nsecond\nfatal\n");
    EXPECT_EQ(visitor.Warnings(), "careful\n");
}

TEST_F(VisitorReport, AddDiagnosticsSortsBySeverityAndTakesUnknownOnesAsWarnings) {
    ZELBasVector<ZELBasPair<int, atr_String>> diagnostics{
        {0, "zero"}, {2, "error"}, {1, "warning"}, {3, "fatal"}, {7, "seven"}, {2, "error2"}};
    TraceVisitor visitor;
    visitor.AddDiagnostics(diagnostics);
    EXPECT_EQ(visitor.Warnings(), "zero\nwarning\nseven\n");
    EXPECT_EQ(visitor.Errors(), "error\nerror2\nfatal\n");
    EXPECT_EQ(visitor.GetFatalErrorList().Length(), 1);
    EXPECT_TRUE(visitor.IsWarning());
}
