#include <gtest/gtest.h>

#include <thread>

#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

cow_List<atr_String> listOf(std::initializer_list<char const*> texts) {
    cow_List<atr_String> list;
    for (char const* text : texts) list.Append(atr_String(text));
    return list;
}

struct Seen {
    bool isError;
    int level;
    std::string text;
    friend bool operator==(Seen const&, Seen const&) = default;
};

std::vector<Seen> seen(wip_WIP const& sink) {
    std::vector<Seen> result;
    for (wip_Diagnostic const& d : sink.Diagnostics())
        result.push_back({d.IsError(), d.level, std::string(d.text.View())});
    return result;
}

int const kWarning = wip_Diagnostic::kNoLevel;

}  // namespace

TEST(WipSink, KeepsEveryDiagnosticWithKindAndLevelInArrivalOrder) {
    wip_WIP sink;
    sink.Warning(atr_String("w1"));
    sink.ErrorList(listOf({"fatal1", "fatal2"}), wip_LEVEL0);
    sink.Error(atr_String("e1"), wip_LEVEL1);
    sink.WarningList(listOf({"w2", "w3"}));
    sink.ErrorList(listOf({"f2"}), wip_LEVEL2, zel_DefaultStringMode);
    EXPECT_EQ(seen(sink), (std::vector<Seen>{{false, kWarning, "w1"},
                                             {true, 0, "fatal1"},
                                             {true, 0, "fatal2"},
                                             {true, 1, "e1"},
                                             {false, kWarning, "w2"},
                                             {false, kWarning, "w3"},
                                             {true, 2, "f2"}}));
    EXPECT_EQ(sink.ErrorCount(), 4);
    EXPECT_EQ(sink.WarningCount(), 3);
    EXPECT_EQ(sink.ErrorCountAtLevel(0), 2);
    EXPECT_EQ(sink.ErrorCountAtLevel(2), 1);
}

TEST(WipSink, HasErrorsOnlyOnceAnErrorAtAnyLevelArrived) {
    wip_WIP sink;
    EXPECT_FALSE(sink.HasErrors());
    sink.WarningList(listOf({"a", "b"}));
    sink.ErrorList(cow_List<atr_String>(), wip_LEVEL1);  // an empty list adds nothing
    EXPECT_FALSE(sink.HasErrors());
    sink.Error(atr_String("odd level"), static_cast<wip_errorLevelEnm>(7));
    EXPECT_TRUE(sink.HasErrors());
    EXPECT_EQ(sink.Diagnostics().back().level, 7);
    sink.Clear();
    EXPECT_FALSE(sink.HasErrors());
    EXPECT_EQ(sink.WarningCount(), 0);
    EXPECT_TRUE(sink.Diagnostics().empty());
}

TEST(WipSink, EchoWritesOneLinePerDiagnostic) {
    wip_WIP sink;
    aio_ostringstream out;
    sink.Warning(atr_String("before echo"));
    sink.SetEchoStream(&out);
    sink.Error(atr_String("bad value"), wip_LEVEL1);
    sink.Warning(atr_String("odd value"));
    sink.SetEchoStream(nullptr);
    sink.Warning(atr_String("after echo"));
    EXPECT_EQ(out.Str(), "***ERROR: bad value\n***WARNING: odd value\n");
}

TEST(WipSink, EachThreadHasItsOwnSink) {
    thr_ThreadSingleton<wip_WIP>::Instance().Clear();
    std::thread([] {
        thr_ThreadSingleton<wip_WIP>::Instance().Error(atr_String("elsewhere"), wip_LEVEL1);
    }).join();
    EXPECT_FALSE(thr_ThreadSingleton<wip_WIP>::Instance().HasErrors());
}

// Levels 0 and 2 are fatal, every other level an ordinary error; the
// location a message carries arrives with it, through lists as well.
TEST(WipSink, SeverityFollowsTheLevelAndLocationsTravelWithTheText) {
    wip_WIP sink;
    atr_String located("bad node");
    located.SetLocation({"part.inp", 12, "NODE"});
    cow_List<atr_String> list;
    list.Append(located);
    sink.ErrorList(list, wip_LEVEL0);
    sink.Error(atr_String("e"), wip_LEVEL1);
    sink.Error(atr_String("f"), wip_LEVEL2);
    sink.Error(atr_String("odd"), static_cast<wip_errorLevelEnm>(7));
    sink.Warning(atr_String("w"));
    std::vector<wip_Severity> severities;
    for (wip_Diagnostic const& d : sink.Diagnostics()) severities.push_back(d.severity);
    EXPECT_EQ(severities, (std::vector<wip_Severity>{wip_Severity::Fatal, wip_Severity::Error,
                                                     wip_Severity::Fatal, wip_Severity::Error,
                                                     wip_Severity::Warning}));
    atr_Location const* location = sink.Diagnostics()[0].Location();
    ASSERT_NE(location, nullptr);
    EXPECT_EQ(location->file, "part.inp");
    EXPECT_EQ(location->line, 12);
    EXPECT_EQ(location->keyword, "NODE");
    EXPECT_EQ(sink.Diagnostics()[1].Location(), nullptr);
}

TEST(WipSink, ForgetFromLeavesTheEarlierDiagnosticsAndTheirCounts) {
    wip_WIP sink;
    sink.Error(atr_String("kept"), wip_LEVEL1);
    size_t const mark = sink.Diagnostics().size();
    sink.Error(atr_String("e"), wip_LEVEL0);
    sink.Warning(atr_String("w"));
    sink.ForgetFrom(mark);
    EXPECT_EQ(seen(sink), (std::vector<Seen>{{true, 1, "kept"}}));
    EXPECT_EQ(sink.ErrorCount(), 1);
    EXPECT_EQ(sink.WarningCount(), 0);
    sink.ForgetFrom(5);  // beyond the end: nothing to forget
    EXPECT_EQ(sink.ErrorCount(), 1);
}
