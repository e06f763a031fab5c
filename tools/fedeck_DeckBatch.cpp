#include "tools/fedeck_DeckBatch.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <new>
#include <string>
#include <system_error>
#include <thread>
#include <unordered_map>
#include <vector>

#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_CheckedDeck.h"
#include "tools/fedeck_Commands.h"
#include "tools/fedeck_Json.h"
#include "tools/fedeck_Pipeline.h"
#include "tools/fedeck_ProgressLine.h"
#include "tools/fedeck_Report.h"
#include "tools/fedeck_Sarif.h"

namespace fs = std::filesystem;

namespace {

// What checking one deck came to, made on the thread that checked it and
// written out on the main one.
struct DeckOutcome {
    std::string report;  // in the format asked for; SARIF keeps `sarif` instead
    fedeck_SarifLog::DeckResults sarif;
    int status = fedeck_EXIT_CLEAN;
    bool errors = false;
    bool warnings = false;
    bool unreadable = false;
};

std::string textOf(aio_ostringstream const& out) {
    return std::string(out.Str().View());
}

DeckOutcome outcomeOf(fedeck_Report const& report, fedeck_Arguments const& arguments) {
    DeckOutcome outcome;
    if (arguments.format == fedeck_Format::Sarif) {
        outcome.sarif = fedeck_SarifLog::ResultsOf(report);
        outcome.status = report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
    } else {
        aio_ostringstream out;
        outcome.status = fedeck_WriteCheckReport(report, arguments, out);
        outcome.report = textOf(out);
    }
    outcome.errors = report.HasErrors();
    outcome.warnings = report.WarningCount() > 0;
    return outcome;
}

// A deck that could not be read, reported in its place.
DeckOutcome unreadableOutcome(std::string const& deck, std::string const& reason,
                              fedeck_Format format) {
    DeckOutcome outcome;
    outcome.status = fedeck_EXIT_USAGE;
    outcome.unreadable = true;
    std::string const text = "cannot read deck: " + reason;
    aio_ostringstream out;
    switch (format) {
        case fedeck_Format::Text:
            out.print("fedeck: ").print(text).put('\n');
            break;
        case fedeck_Format::Json:
            out.print("{\"deck\": ");
            fedeck_WriteJsonString(out, deck);
            out.print(", \"error\": ");
            fedeck_WriteJsonString(out, text);
            out.print("}\n");
            break;
        case fedeck_Format::Github:
            out.print("::error::fedeck: ").print(text).put('\n');
            break;
        case fedeck_Format::Sarif:
            outcome.sarif = fedeck_SarifLog::UnreadableDeck(deck, text);
            break;
    }
    outcome.report = textOf(out);
    return outcome;
}

// A fault of the program on one deck ends that deck's check, not the others.
DeckOutcome internalErrorOutcome(std::string const& deck, std::string_view what) {
    DeckOutcome outcome;
    outcome.status = fedeck_EXIT_INTERNAL;
    outcome.errors = true;
    outcome.report = "fedeck: internal error on " + deck + ": " + std::string(what) + "\n";
    return outcome;
}

// Checks one deck on the calling thread. The deck module is the thread's
// own: its message sink and keyword table are made on first use and go with
// the thread.
DeckOutcome checkDeck(fedeck_Arguments const& arguments, std::string const& deck, int lastStage) {
    fedeck_Arguments one = arguments;
    one.operands = {deck};
    try {
        fedeck_CheckedDeck const checked(one, lastStage);
        return outcomeOf(checked.Report(), arguments);
    } catch (fedeck_UnreadableDeck const& error) {
        return unreadableOutcome(deck, error.what(), arguments.format);
    } catch (std::bad_alloc const&) {
        return internalErrorOutcome(deck, "out of memory");
    } catch (ZELBasException const& error) {
        return internalErrorOutcome(deck, error.DeveloperReport().View());
    } catch (std::exception const& error) {
        return internalErrorOutcome(deck, error.what());
    } catch (...) {
        return internalErrorOutcome(deck, "unknown exception");
    }
}

// Two names of one file (a.inp and ./a.inp) are one deck.
std::string identityOf(std::string const& deck) {
    std::error_code error;
    fs::path const canonical = fs::weakly_canonical(deck, error);
    return error ? deck : canonical.string();
}

// The decks in the order given, each once; a repeated one gets a note.
std::vector<std::string> distinctDecks(std::vector<std::string> const& operands, aio_ostream& err) {
    std::vector<std::string> decks;
    std::unordered_map<std::string, size_t> seen;  // identity to position in `decks`
    for (std::string const& deck : operands) {
        auto const [first, isNew] = seen.try_emplace(identityOf(deck), decks.size());
        if (isNew) {
            decks.push_back(deck);
            continue;
        }
        err.print("fedeck: ")
            .print(deck)
            .print(" is given more than once (first as ")
            .print(decks[first->second])
            .print("); it is checked once\n");
    }
    return decks;
}

int threadCount(fedeck_Arguments const& arguments, size_t decks) {
    unsigned const cores = std::max(1u, std::thread::hardware_concurrency());
    size_t const asked = arguments.jobs > 0 ? static_cast<size_t>(arguments.jobs) : cores;
    return static_cast<int>(std::min(asked, decks));
}

// The counts of the closing summary.
struct BatchSummary {
    int decks = 0;
    int withErrors = 0;
    int withWarnings = 0;
    int unreadable = 0;
    double seconds = 0;

    void Count(DeckOutcome const& outcome) {
        ++decks;
        withErrors += outcome.errors ? 1 : 0;
        withWarnings += outcome.warnings ? 1 : 0;
        unreadable += outcome.unreadable ? 1 : 0;
    }
};

void writeSummaryText(aio_ostream& out, BatchSummary const& summary) {
    out << summary.decks << " decks, " << summary.withErrors << " with errors, "
        << summary.withWarnings << " with warnings, " << summary.unreadable << " unreadable, ";
    out.print_double(std::round(summary.seconds * 1000) / 1000);
    out.print(" s\n");
}

// Text: "fedeck: D decks, E with errors, W with warnings, U unreadable, T s";
// JSON: one more line, {"summary": {...}}; annotations: one notice. A SARIF
// log is one JSON document, so its summary goes to standard error.
void writeSummary(BatchSummary const& summary, fedeck_Format format, aio_ostream& out,
                  aio_ostream& err) {
    switch (format) {
        case fedeck_Format::Text:
            writeSummaryText(out.print("fedeck: "), summary);
            break;
        case fedeck_Format::Sarif:
            writeSummaryText(err.print("fedeck: "), summary);
            break;
        case fedeck_Format::Github:
            writeSummaryText(out.print("::notice::fedeck: "), summary);
            break;
        case fedeck_Format::Json:
            out.print("{\"summary\": {\"decks\": ") << summary.decks;
            out.print(", \"withErrors\": ") << summary.withErrors;
            out.print(", \"withWarnings\": ") << summary.withWarnings;
            out.print(", \"unreadable\": ") << summary.unreadable;
            out.print(", \"seconds\": ");
            out.print_double(std::round(summary.seconds * 1000) / 1000);
            out.print("}}\n");
            break;
    }
}

// Hands out the decks to the worker threads and the finished outcomes, in
// deck order, to the main thread.
class DeckQueue {
  public:
    explicit DeckQueue(size_t decks) : m_outcomes(decks), m_done(decks, false) {}

    // The next deck to check, or false when none is left.
    bool Take(size_t& deck) {
        deck = m_next.fetch_add(1);
        return deck < m_outcomes.size();
    }
    void Finish(size_t deck, DeckOutcome outcome) {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_outcomes[deck] = std::move(outcome);
            m_done[deck] = true;
        }
        m_changed.notify_all();
    }
    // Waits until `deck` is done and takes its outcome.
    DeckOutcome Await(size_t deck) {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [&] { return m_done[deck]; });
        return std::move(m_outcomes[deck]);
    }

  private:
    std::atomic<size_t> m_next{0};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<DeckOutcome> m_outcomes;
    std::vector<bool> m_done;
};

}  // namespace

int fedeck_WriteCheckReport(fedeck_Report const& report, fedeck_Arguments const& arguments,
                            aio_ostream& out) {
    switch (arguments.format) {
        case fedeck_Format::Text:
            report.WriteDiagnostics(out, arguments.maxDiagnostics);
            report.WriteSummary(out);
            break;
        case fedeck_Format::Json:
            report.WriteJson(out);
            break;
        case fedeck_Format::Github:
            report.WriteGithubAnnotations(out);
            break;
        case fedeck_Format::Sarif: {
            fedeck_SarifLog log;
            log.Add(fedeck_SarifLog::ResultsOf(report));
            log.Write(out);
            break;
        }
    }
    return report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
}

int fedeck_CheckDecks(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    auto const start = std::chrono::steady_clock::now();
    int const lastStage = fedeck_LastStageToRun(arguments.until);
    std::vector<std::string> const decks = distinctDecks(arguments.operands, err);
    DeckQueue queue(decks.size());
    // With one thread the decks are checked on the main thread, in turn; with
    // more, workers check them and the main thread writes the reports as
    // they come in.
    int const threads = threadCount(arguments, decks.size());
    std::vector<std::jthread> workers;
    for (int i = 0; threads > 1 && i < threads; ++i)
        workers.emplace_back([&] {
            for (size_t deck; queue.Take(deck);)
                queue.Finish(deck, checkDeck(arguments, decks[deck], lastStage));
        });
    auto const outcomeOfDeck = [&](size_t deck) {
        return threads > 1 ? queue.Await(deck) : checkDeck(arguments, decks[deck], lastStage);
    };

    // The count shows from the first deck on, without a delay.
    fedeck_ProgressLine progress(err, decks.size() > 1 && fedeck_ProgressLine::IsTerminal(err),
                                 std::chrono::seconds(0));
    BatchSummary summary;
    fedeck_SarifLog sarif;
    int worst = fedeck_EXIT_CLEAN;
    for (size_t deck = 0; deck < decks.size(); ++deck) {
        DeckOutcome const outcome = outcomeOfDeck(deck);
        progress.Clear();
        out.print(outcome.report);
        sarif.Add(outcome.sarif);
        summary.Count(outcome);
        worst = std::max(worst, outcome.status);
        progress.Show("checked " + std::to_string(deck + 1) + " of " +
                      std::to_string(decks.size()) + " decks");
    }
    progress.Clear();
    if (arguments.format == fedeck_Format::Sarif) sarif.Write(out);
    summary.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (decks.size() > 1) writeSummary(summary, arguments.format, out, err);
    return worst;
}
