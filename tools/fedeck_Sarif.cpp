#include "tools/fedeck_Sarif.h"

#include "fedeck_Version.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Json.h"
#include "tools/fedeck_Report.h"
#include "tools/fedeck_RuleId.h"

namespace {

constexpr std::string_view kSchema = "https://json.schemastore.org/sarif-2.1.0.json";

// A file path as a URI: relative paths stay relative references (a
// code-scanning service resolves them against the checkout), absolute ones
// become file URIs, and every byte other than the unreserved characters and
// `/` is percent-encoded.
void writeUri(aio_ostream& out, std::string_view path) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    out.put('"');
    if (path.starts_with('/')) out.print("file://");
    for (char const c : path) {
        auto const byte = static_cast<unsigned char>(c);
        bool const plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || c == '-' || c == '.' || c == '_' ||
                           c == '~' || c == '/';
        if (plain)
            out.put(c);
        else
            out.put('%').put(kHex[byte >> 4]).put(kHex[byte & 0xF]);
    }
    out.put('"');
}

void writeResult(aio_ostream& out, std::string_view ruleId, bool error, std::string_view text,
                 std::string_view file, int line) {
    out.print("{\"ruleId\": ");
    fedeck_WriteJsonString(out, ruleId);
    out.print(error ? ", \"level\": \"error\"" : ", \"level\": \"warning\"");
    out.print(", \"message\": {\"text\": ");
    fedeck_WriteJsonString(out, text);
    out.print("}, \"locations\": [{\"physicalLocation\": {\"artifactLocation\": {\"uri\": ");
    writeUri(out, file);
    out.put('}');
    if (line > 0) out.print(", \"region\": {\"startLine\": ") << line << '}';
    out.print("}}]}, ");
}

std::string textOf(aio_ostringstream const& out) {
    return std::string(out.Str().View());
}

}  // namespace

fedeck_SarifLog::DeckResults fedeck_SarifLog::ResultsOf(fedeck_Report const& report) {
    DeckResults deck;
    std::unordered_set<std::string> ruleIds;
    aio_ostringstream out;
    for (fedeck_Finding const& finding : report.Findings()) {
        std::string kind = fedeck_MessageKind(finding.text);
        std::string id = fedeck_RuleIdOfKind(kind);
        writeResult(out, id, finding.diagnostic->IsError(), finding.text, finding.file,
                    finding.line);
        if (ruleIds.insert(id).second) deck.rules.push_back({std::move(id), std::move(kind)});
    }
    deck.results = textOf(out);
    return deck;
}

fedeck_SarifLog::DeckResults fedeck_SarifLog::UnreadableDeck(std::string_view deck,
                                                             std::string_view reason) {
    aio_ostringstream out;
    writeResult(out, fedeck_UNREADABLE_DECK_RULE, true, reason, deck, 0);
    return {textOf(out), {{std::string(fedeck_UNREADABLE_DECK_RULE), "the deck cannot be read"}}};
}

void fedeck_SarifLog::Add(DeckResults const& deck) {
    m_results += deck.results;
    for (Rule const& rule : deck.rules)
        if (m_ruleIds.insert(rule.id).second) m_rules.push_back(rule);
}

void fedeck_SarifLog::Write(aio_ostream& out) const {
    out.print("{\"$schema\": \"").print(kSchema).print("\", \"version\": \"2.1.0\", \"runs\": [");
    out.print("{\"tool\": {\"driver\": {\"name\": \"fedeck\", \"version\": \"")
        .print(FEDECK_VERSION)
        .print("\", \"rules\": [");
    for (size_t i = 0; i < m_rules.size(); ++i) {
        if (i > 0) out.print(", ");
        out.print("{\"id\": ");
        fedeck_WriteJsonString(out, m_rules[i].id);
        out.print(", \"shortDescription\": {\"text\": ");
        fedeck_WriteJsonString(out, m_rules[i].kind);
        out.print("}}");
    }
    out.print("]}}, \"results\": [");
    // Each result ends in ", ": the last separator is left out.
    std::string_view results = m_results;
    if (results.size() >= 2) results.remove_suffix(2);
    out.print(results).print("]}]}\n");
}
