#include "tools/fedeck_Report.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"

namespace {

wip_Diagnostic error(int level, char const* text) {
    return {wip_SeverityOfLevel(level), level, atr_String(text)};
}
wip_Diagnostic located(int level, char const* text, atr_Location location) {
    return {wip_SeverityOfLevel(level), level, atr_String(text).SetLocation(std::move(location))};
}
wip_Diagnostic warning(char const* text) {
    return {wip_Severity::Warning, wip_Diagnostic::kNoLevel, atr_String(text)};
}

class ReportOf {
  public:
    explicit ReportOf(std::vector<wip_Diagnostic> diagnostics, bool stoppedEarly = false)
        : m_diagnostics(std::move(diagnostics)),
          m_report("dir/deck.inp", "parse", stoppedEarly, m_deck, m_diagnostics) {}

    std::string Diagnostics() const {
        aio_ostringstream out;
        m_report.WriteDiagnostics(out);
        return std::string(out.Str().View());
    }
    std::string Summary() const {
        aio_ostringstream out;
        m_report.WriteSummary(out);
        return std::string(out.Str().View());
    }
    std::string Json() const {
        aio_ostringstream out;
        m_report.WriteJson(out);
        return std::string(out.Str().View());
    }

  private:
    std::vector<wip_Diagnostic> m_diagnostics;
    inp_InputFile m_deck;
    fedeck_Report m_report;
};

}  // namespace

TEST(CheckReportText, LevelsZeroAndTwoAreFatalLevelOneIsAnError) {
    ReportOf const report({warning("w"), error(0, "f0"), error(1, "e1"), error(2, "f2")});
    EXPECT_EQ(report.Diagnostics(),
              "dir/deck.inp: warning: w\n"
              "dir/deck.inp: fatal error: f0\n"
              "dir/deck.inp: error: e1\n"
              "dir/deck.inp: fatal error: f2\n");
    EXPECT_EQ(report.Summary(), "dir/deck.inp: 0 keywords, 3 errors, 1 warning\n");
}

TEST(CheckReportText, ContinuationLinesAreIndentedAndTrailingBreaksDropped) {
    ReportOf const report({error(1, "Elements without nodes\n    7, 8\n"), warning("a\r\n")});
    EXPECT_EQ(report.Diagnostics(),
              "dir/deck.inp: error: Elements without nodes\n"
              "        7, 8\n"
              "dir/deck.inp: warning: a\n");
}

// The place a diagnostic points to leads its line, as compilers write it;
// the parts of it that are unknown are left out, and the deck stands in for
// an unknown file.
TEST(CheckReportText, LocatedDiagnosticsLeadWithFileAndLine) {
    ReportOf const report({located(1, "bad", {"inc/part.inp", 4, "NODE"}),
                           located(2, "no line", {"inc/part.inp", 0, ""}),
                           located(1, "no file", {"", 7, "STEP"})});
    EXPECT_EQ(report.Diagnostics(),
              "inc/part.inp:4: error: bad\n"
              "inc/part.inp: fatal error: no line\n"
              "dir/deck.inp:7: error: no file\n");
    EXPECT_NE(report.Json().find(R"("text": "bad", "file": "inc/part.inp", "line": 4, )"
                                 R"("keyword": "NODE"})"),
              std::string::npos);
    EXPECT_NE(report.Json().find(R"("text": "no file", "file": null, "line": 7, "keyword": )"
                                 R"("STEP"})"),
              std::string::npos);
}

TEST(CheckReportText, SummaryCountsAgreeInNumberAndTellAnEarlyStop) {
    EXPECT_EQ(ReportOf({error(1, "e")}).Summary(),
              "dir/deck.inp: 0 keywords, 1 error, 0 warnings\n");
    EXPECT_EQ(ReportOf({warning("a"), warning("b")}, true).Summary(),
              "dir/deck.inp: 0 keywords, 0 errors, 2 warnings (stopped after parse)\n");
}

TEST(CheckReportJson, DiagnosticsKeepArrivalOrderAndWarningsHaveNoLevel) {
    ReportOf const report({warning("w \"q\""), error(0, "f"), error(1, "line1\nline2")});
    EXPECT_EQ(report.Json(),
              R"({"deck": "dir/deck.inp", "stage": "parse", "keywords": 0, "diagnostics": [)"
              R"({"severity": "warning", "level": null, "text": "w \"q\"", )"
              R"("file": null, "line": null, "keyword": null}, )"
              R"({"severity": "error", "level": 0, "text": "f", )"
              R"("file": null, "line": null, "keyword": null}, )"
              R"({"severity": "error", "level": 1, "text": "line1\u000aline2", )"
              R"("file": null, "line": null, "keyword": null}], )"
              R"("includedFiles": [], "missingIncludeFiles": [], )"
              R"("counts": {"parts": 0, "instances": 0, "nodes": 0, "elements": 0, )"
              R"("nodeSets": 0, "elementSets": 0, "surfaces": 0}})"
              "\n");
}
