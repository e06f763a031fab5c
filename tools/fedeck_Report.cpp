#include "tools/fedeck_Report.h"

#include <utility>

#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Json.h"

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

void writeIndented(aio_ostream& out, std::string_view text) {
    for (size_t lineBreak; (lineBreak = text.find('\n')) != std::string_view::npos;) {
        out.print(text.substr(0, lineBreak + 1)).print(kContinuationIndent);
        text.remove_prefix(lineBreak + 1);
    }
    out.print(text);
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

// FILE:LINE: where the place is known, as compilers write it, so that
// editors and CI systems find the line; the deck itself where it is not.
void fedeck_Report::writeDiagnostic(aio_ostream& out, wip_Diagnostic const& diagnostic) const {
    cow_String const* file = knownFile(diagnostic);
    out.print(file ? *file : m_deckPath);
    if (int const line = knownLine(diagnostic); line > 0) out.put(':') << line;
    out.print(": ").print(severityLabel(diagnostic)).print(": ");
    writeIndented(out, withoutTrailingBreaks(diagnostic.text.View()));
    out.put('\n');
}

void fedeck_Report::WriteDiagnostics(aio_ostream& out) const {
    for (wip_Diagnostic const& diagnostic : m_diagnostics) writeDiagnostic(out, diagnostic);
}

void fedeck_Report::WriteSummary(aio_ostream& out) const {
    out.print(m_deckPath).print(": ");
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
