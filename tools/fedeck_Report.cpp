#include "tools/fedeck_Report.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Json.h"
#include "tools/fedeck_RuleId.h"

namespace {

constexpr std::string_view kContinuationIndent = "    ";

std::string_view severityLabel(wip_Diagnostic const& diagnostic) {
    switch (diagnostic.severity) {
        case wip_Severity::Warning:
            return "warning";
        case wip_Severity::Error:
            return "error";
        case wip_Severity::Fatal:
            return "fatal error";
    }
    return "error";
}

// The parts of a diagnostic's location that are known.
cow_String const* knownFile(wip_Diagnostic const& diagnostic) {
    atr_Location const* location = diagnostic.Location();
    return location && !location->file.IsEmpty() ? &location->file : nullptr;
}
int knownLine(wip_Diagnostic const& diagnostic) {
    atr_Location const* location = diagnostic.Location();
    return location ? location->line : 0;
}
cow_String const* knownKeyword(wip_Diagnostic const& diagnostic) {
    atr_Location const* location = diagnostic.Location();
    return location && !location->keyword.IsEmpty() ? &location->keyword : nullptr;
}

// Messages may end in a line break of their own; the report adds its own.
std::string_view withoutTrailingBreaks(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.remove_suffix(1);
    return text;
}

// The length of the printable UTF-8 character at the start of `text`: a
// printable ASCII byte or tab, or a well-formed sequence of two to four
// bytes that is no C1 control; 0 if the first byte is not one.
size_t printableLength(std::string_view text) {
    auto const byte = [&](size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char const first = byte(0);
    if (first == '\t' || (first >= 0x20 && first < 0x7F)) return 1;
    size_t const length = first >= 0xF0 && first <= 0xF4   ? 4
                          : first >= 0xE0 && first <= 0xEF ? 3
                          : first >= 0xC2 && first <= 0xDF ? 2
                                                           : 0;
    if (length == 0 || text.size() < length) return 0;
    for (size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    if (first == 0xC2 && byte(1) < 0xA0) return 0;   // C1 controls
    if (first == 0xE0 && byte(1) < 0xA0) return 0;   // overlong
    if (first == 0xED && byte(1) >= 0xA0) return 0;  // surrogates
    if (first == 0xF0 && byte(1) < 0x90) return 0;   // overlong
    if (first == 0xF4 && byte(1) >= 0x90) return 0;  // beyond U+10FFFF
    return length;
}

// `text` with every byte that is not part of a printable character written
// as \xNN; line breaks are the caller's.
void writePrintable(aio_ostream& out, std::string_view text) {
    static constexpr char kHex[] = "0123456789abcdef";
    while (!text.empty()) {
        size_t run = 0;
        for (size_t length; run < text.size() && (length = printableLength(text.substr(run))) > 0;)
            run += length;
        out.print(text.substr(0, run));
        text.remove_prefix(run);
        if (text.empty()) break;
        auto const byte = static_cast<unsigned char>(text.front());
        char const escape[] = {'\\', 'x', kHex[byte >> 4], kHex[byte & 0xF]};
        out.print(std::string_view(escape, sizeof escape));
        text.remove_prefix(1);
    }
}

void writeIndented(aio_ostream& out, std::string_view text) {
    for (size_t lineBreak; (lineBreak = text.find('\n')) != std::string_view::npos;) {
        writePrintable(out, text.substr(0, lineBreak));
        out.put('\n').print(kContinuationIndent);
        text.remove_prefix(lineBreak + 1);
    }
    writePrintable(out, text);
}

void writeCount(aio_ostream& out, int count, std::string_view noun) {
    out << count << ' ' << noun;
    if (count != 1) out.put('s');
}

void writeJsonStrings(aio_ostream& out, cow_List<cow_String> const& texts) {
    out.put('[');
    bool first = true;
    for (cow_String const& text : texts) {
        if (!first) out.print(", ");
        first = false;
        fedeck_WriteJsonString(out, text.View());
    }
    out.put(']');
}

void writeJsonStringOrNull(aio_ostream& out, cow_String const* text) {
    if (text)
        fedeck_WriteJsonString(out, text->View());
    else
        out.print("null");
}

void writeJsonDiagnostic(aio_ostream& out, wip_Diagnostic const& diagnostic) {
    out.print("{\"severity\": ").print(diagnostic.IsError() ? "\"error\"" : "\"warning\"");
    out.print(", \"level\": ");
    if (diagnostic.IsError())
        out << diagnostic.level;
    else
        out.print("null");
    out.print(", \"text\": ");
    fedeck_WriteJsonString(out, diagnostic.text.View());
    out.print(", \"file\": ");
    writeJsonStringOrNull(out, knownFile(diagnostic));
    out.print(", \"line\": ");
    if (int const line = knownLine(diagnostic); line > 0)
        out << line;
    else
        out.print("null");
    out.print(", \"keyword\": ");
    writeJsonStringOrNull(out, knownKeyword(diagnostic));
    out.put('}');
}

// Text of an annotation: what would end the line or start an escape is
// escaped; in a property value also what would end the property.
void writeAnnotationText(aio_ostream& out, std::string_view text, bool property) {
    for (char const c : text) {
        if (c == '%')
            out.print("%25");
        else if (c == '\r')
            out.print("%0D");
        else if (c == '\n')
            out.print("%0A");
        else if (property && c == ':')
            out.print("%3A");
        else if (property && c == ',')
            out.print("%2C");
        else
            out.put(c);
    }
}

// Every keyword of the list and of the suboptions below, so that the count
// means the same before and after the keywords are organized into a tree.
int countKeywords(cow_List<inp_Keyword> const& keywords) {
    int count = keywords.Length();
    for (inp_Keyword const& keyword : keywords) count += countKeywords(keyword.Suboptions());
    return count;
}

}  // namespace

fedeck_Report::fedeck_Report(cow_String deckPath, std::string_view stage, bool stoppedEarly,
                             inp_InputFile const& deck,
                             std::vector<wip_Diagnostic> const& diagnostics)
    : m_deckPath(std::move(deckPath)),
      m_stage(stage),
      m_stoppedEarly(stoppedEarly),
      m_keywordCount(countKeywords(deck.Keywords())),
      m_diagnostics(diagnostics),
      m_includedFiles(deck.GetIncludedFiles()),
      m_missingIncludeFiles(deck.GetMissingIncludeFiles()),
      m_counts(fedeck_CountModel(deck)) {
    for (wip_Diagnostic const& diagnostic : m_diagnostics)
        if (diagnostic.IsError()) ++m_errorCount;
}

std::vector<fedeck_Finding> fedeck_Report::Findings() const {
    std::vector<fedeck_Finding> findings;
    findings.reserve(m_diagnostics.size());
    for (wip_Diagnostic const& diagnostic : m_diagnostics) {
        cow_String const* file = knownFile(diagnostic);
        findings.push_back({&diagnostic, withoutTrailingBreaks(diagnostic.text.View()),
                            (file ? *file : m_deckPath).View(), knownLine(diagnostic)});
    }
    return findings;
}

void fedeck_Report::WriteGithubAnnotations(aio_ostream& out) const {
    for (fedeck_Finding const& finding : Findings()) {
        out.print(finding.diagnostic->IsError() ? "::error file=" : "::warning file=");
        writeAnnotationText(out, finding.file, true);
        if (finding.line > 0) out.print(",line=") << finding.line;
        out.print("::");
        writeAnnotationText(out, finding.text, false);
        out.put('\n');
    }
}

// FILE:LINE: where the place is known, as compilers write it, so that
// editors and CI systems find the line; the deck itself where it is not.
void fedeck_Report::writeDiagnostic(aio_ostream& out, wip_Diagnostic const& diagnostic) const {
    cow_String const* file = knownFile(diagnostic);
    writePrintable(out, (file ? *file : m_deckPath).View());
    if (int const line = knownLine(diagnostic); line > 0) out.put(':') << line;
    out.print(": ").print(severityLabel(diagnostic)).print(": ");
    writeIndented(out, withoutTrailingBreaks(diagnostic.text.View()));
    out.put('\n');
}

// A kind of message past kShownOfOneKind is held back: a file that is no
// deck (a binary one gives a warning for every overlong line) would
// otherwise bury the report. One line per such kind then says how many more
// there were, after the last one shown.
void fedeck_Report::WriteDiagnostics(aio_ostream& out, int limit) const {
    struct Kind {
        size_t seen = 0;
        size_t lastShown = 0;
        size_t heldBack = 0;
    };
    std::unordered_map<std::string, Kind> kinds;
    std::vector<Kind const*> kindsHeldBack;  // in the order their last one was shown
    size_t const allowed = limit < 0 ? m_diagnostics.size() : static_cast<size_t>(limit);
    size_t shown = 0;
    size_t beyondLimit = 0;
    for (size_t i = 0; i < m_diagnostics.size(); ++i) {
        if (shown == allowed) {
            beyondLimit = m_diagnostics.size() - i;
            break;
        }
        Kind& kind = kinds[fedeck_MessageKind(m_diagnostics[i].text.View())];
        if (++kind.seen > kShownOfOneKind) {
            ++kind.heldBack;
            continue;
        }
        writeDiagnostic(out, m_diagnostics[i]);
        ++shown;
        if (kind.seen == kShownOfOneKind) {
            kind.lastShown = i;
            kindsHeldBack.push_back(&kind);
        }
    }
    for (Kind const* kind : kindsHeldBack) {
        if (kind->heldBack == 0) continue;
        out.print("fedeck: ") << static_cast<int>(kind->heldBack) << " more like \"";
        writePrintable(out, withoutTrailingBreaks(m_diagnostics[kind->lastShown].text.View()));
        out.print("\" not shown\n");
    }
    if (beyondLimit > 0)
        out.print("fedeck: ") << static_cast<int>(beyondLimit)
                              << (beyondLimit == 1 ? " more diagnostic" : " more diagnostics")
                              << " not shown\n";
}

void fedeck_Report::WriteSummary(aio_ostream& out) const {
    writePrintable(out, m_deckPath.View());
    out.print(": ");
    writeCount(out, m_keywordCount, "keyword");
    out.print(", ");
    writeCount(out, m_errorCount, "error");
    out.print(", ");
    writeCount(out, static_cast<int>(m_diagnostics.size()) - m_errorCount, "warning");
    if (m_stoppedEarly) out.print(" (stopped after ").print(m_stage).put(')');
    out.put('\n');
}

void fedeck_Report::WriteJson(aio_ostream& out) const {
    out.put('{');
    WriteJsonFields(out);
    out.print("}\n");
}

void fedeck_Report::WriteJsonFields(aio_ostream& out) const {
    out.print("\"deck\": ");
    fedeck_WriteJsonString(out, m_deckPath.View());
    out.print(", \"stage\": ");
    fedeck_WriteJsonString(out, m_stage);
    out.print(", \"keywords\": ") << m_keywordCount;
    out.print(", \"diagnostics\": [");
    for (size_t i = 0; i < m_diagnostics.size(); ++i) {
        if (i > 0) out.print(", ");
        writeJsonDiagnostic(out, m_diagnostics[i]);
    }
    out.print("], \"includedFiles\": ");
    writeJsonStrings(out, m_includedFiles);
    out.print(", \"missingIncludeFiles\": ");
    writeJsonStrings(out, m_missingIncludeFiles);
    out.print(", \"counts\": ");
    fedeck_WriteModelCounts(out, m_counts);
}
