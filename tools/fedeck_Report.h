#pragma once
// What a check found, written for people or for scripts. Scripts parse both
// forms, so the wording and layout below are fixed.

#include <string_view>
#include <vector>

#include "support/cow_List.h"
#include "support/cow_String.h"
#include "support/wip_WIP.h"
#include "tools/fedeck_Model.h"

class aio_ostream;
class inp_InputFile;

// A diagnostic placed as the machine formats place it (SARIF, annotations).
// The views point into the report's diagnostics and deck path.
struct fedeck_Finding {
    wip_Diagnostic const* diagnostic;
    std::string_view text;  // without the line breaks that may end it
    std::string_view file;  // where it points, or else the deck
    int line;               // 0 where unknown
};

class fedeck_Report {
  public:
    // `deckPath` as the user typed it; `stage` the last stage that ran;
    // `stoppedEarly` when errors ended the run before the stage asked for.
    // The diagnostics are referenced, not copied: they must outlive the report.
    fedeck_Report(cow_String deckPath, std::string_view stage, bool stoppedEarly,
                  inp_InputFile const& deck, std::vector<wip_Diagnostic> const& diagnostics);

    int ErrorCount() const noexcept { return m_errorCount; }
    bool HasErrors() const noexcept { return m_errorCount > 0; }
    int WarningCount() const noexcept {
        return static_cast<int>(m_diagnostics.size()) - m_errorCount;
    }
    cow_String const& DeckPath() const noexcept { return m_deckPath; }

    // Every diagnostic, in arrival order.
    std::vector<fedeck_Finding> Findings() const;

    // One entry per diagnostic, in arrival order:
    //   FILE:LINE: warning: TEXT
    //   FILE:LINE: error: TEXT
    //   FILE:LINE: fatal error: TEXT
    // FILE and LINE are where the diagnostic points; a diagnostic without a
    // line leaves out ":LINE", one without a file names the deck. Later
    // lines of a multi-line text are indented by four blanks.
    // At most `limit` of them (all for -1), and at most kShownOfOneKind of
    // one kind of message (fedeck_MessageKind); then a line for each kind
    // held back, "fedeck: N more like "TEXT" not shown" with the text of the
    // last one shown, and, if the limit left some out, one line:
    // "fedeck: N more diagnostics not shown".
    // Bytes of a text, file name or deck name that are not printable UTF-8
    // (control characters, invalid sequences) are written as \xNN, so that a
    // binary file given by mistake cannot garble a terminal.
    void WriteDiagnostics(aio_ostream& out, int limit = -1) const;
    static constexpr size_t kShownOfOneKind = 100;
    // DECK: N keywords, E errors, W warnings[ (stopped after STAGE)]
    void WriteSummary(aio_ostream& out) const;
    // One JSON object on one line:
    // {"deck": s, "stage": s, "keywords": n, "diagnostics": [{"severity":
    // "warning"|"error", "level": n|null, "text": s, "file": s|null, "line":
    // n|null, "keyword": s|null}, ...], "includedFiles": [s, ...],
    // "missingIncludeFiles": [s, ...], "counts": {"parts": n, "instances": n,
    // "nodes": n, "elements": n, "nodeSets": n, "elementSets": n, "surfaces": n}}
    void WriteJson(aio_ostream& out) const;
    // The members of that object without its braces and line break, for an
    // object that carries more (the model).
    void WriteJsonFields(aio_ostream& out) const;
    // One workflow annotation of a CI system per diagnostic:
    //   ::error file=FILE,line=LINE::TEXT
    //   ::warning file=FILE,line=LINE::TEXT
    // (",line=LINE" only where the line is known). Per cent signs and line
    // breaks of TEXT, and also colons and commas of FILE, are written as
    // %25, %0D, %0A, %3A and %2C, as the annotation syntax asks.
    void WriteGithubAnnotations(aio_ostream& out) const;

  private:
    void writeDiagnostic(aio_ostream& out, wip_Diagnostic const& diagnostic) const;

    cow_String m_deckPath;
    std::string_view m_stage;
    bool m_stoppedEarly;
    int m_keywordCount;
    std::vector<wip_Diagnostic> const& m_diagnostics;
    cow_List<cow_String> m_includedFiles;
    cow_List<cow_String> m_missingIncludeFiles;
    fedeck_ModelCounts m_counts;
    int m_errorCount = 0;
};
