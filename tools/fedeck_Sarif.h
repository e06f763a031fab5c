#pragma once
// The findings of checked decks as one SARIF 2.1.0 log, the format that
// code-scanning services take in: one run of the tool, one result per
// diagnostic, and one rule per kind of message (fedeck_RuleId).

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

class aio_ostream;
class fedeck_Report;

class fedeck_SarifLog {
  public:
    struct Rule {
        std::string id;
        std::string kind;  // the wording the id stands for
    };
    // The results of one deck as JSON text, made while its report lives (on
    // the thread that ran it), to be added to the log later.
    struct DeckResults {
        std::string results;      // result objects, each followed by ", "
        std::vector<Rule> rules;  // each id once
    };

    static DeckResults ResultsOf(fedeck_Report const& report);
    // A deck that could not be read, as one error result pointing at it.
    static DeckResults UnreadableDeck(std::string_view deck, std::string_view reason);

    // Adds a deck's results after those added before.
    void Add(DeckResults const& deck);
    // The whole log, on one line and a line break.
    void Write(aio_ostream& out) const;

  private:
    std::string m_results;
    std::vector<Rule> m_rules;  // in order of first use, each id once
    std::unordered_set<std::string> m_ruleIds;
};

// The id of the result that stands for an unreadable deck.
inline constexpr std::string_view fedeck_UNREADABLE_DECK_RULE = "FD-UNREADABLE-DECK";
