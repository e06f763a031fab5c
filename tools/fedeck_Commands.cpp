#include "tools/fedeck_Commands.h"

#include <filesystem>
#include <new>

#include "deck/inp_DeckWriter.h"
#include "fedeck_Version.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_Utf8ValidityVisitor.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tables/inp_ContactCheck.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_Encrypt.h"
#include "tools/fedeck_Model.h"
#include "tools/fedeck_Pipeline.h"
#include "tools/fedeck_Report.h"

namespace {

// The stage after which `tree` writes the keywords unless told otherwise.
constexpr char const* kTreeStage = "organize";

int lastStageToRun(std::string const& until) {
    if (until.empty()) return static_cast<int>(fedeck_Pipeline::Stages().size()) - 1;
    int const stage = fedeck_Pipeline::Find(until);
    if (stage < 0)
        throw fedeck_UsageError("unknown stage '" + until +
                                "'; known stages: " + fedeck_Pipeline::StageNames());
    return stage;
}

// Include files are looked for as written, then in the include directory:
// the one given, or else the deck's own directory, where users keep them.
std::string includeDirectoryFor(fedeck_Arguments const& arguments) {
    if (!arguments.includeDir.empty()) return arguments.includeDir;
    return std::filesystem::path(arguments.operands.front()).parent_path().string();
}

// A deck run through the pipeline, with what the sink collected on the way.
class CheckedDeck {
  public:
    CheckedDeck(fedeck_Arguments const& arguments, int lastStage)
        : m_path(arguments.operands.front().c_str()) {
        std::string const includeDirectory = includeDirectoryFor(arguments);
        if (!includeDirectory.empty()) m_deck.SetIncludePath(cow_String(includeDirectory.c_str()));
        m_stageRun = fedeck_Pipeline::Run(m_deck, m_path, lastStage);
        m_stoppedEarly = m_stageRun != lastStage;
        if (m_stageRun == static_cast<int>(fedeck_Pipeline::Stages().size()) - 1)
            runOfferedChecks();
    }

    fedeck_Report Report() const {
        return fedeck_Report(m_path, fedeck_Pipeline::Stages()[m_stageRun].name, m_stoppedEarly,
                             m_deck, thr_ThreadSingleton<wip_WIP>::Instance().Diagnostics());
    }
    inp_InputFile const& Deck() const { return m_deck; }

  private:
    // A checker runs every check it has: those the library offers its
    // callers but no stage of the road runs come after the whole road.
    void runOfferedChecks() {
        inp_Utf8ValidityVisitor utf8;
        utf8.VisitListAndReport(m_deck.GetKeywords());
        // A deck without *OUTPUT gets the default output, which covers
        // every contact pair.
        inp_ContactCheck contact(m_deck.AssemblySurfaces(), m_deck.Keywords());
        contact.PerformCheck(true);
    }

    cow_String m_path;  // as typed: messages name the deck as the user knows it
    inp_InputFile m_deck;
    int m_stageRun = 0;
    bool m_stoppedEarly = false;
};

int exitStatusOf(fedeck_Report const& report) {
    return report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
}

int runCheck(fedeck_Arguments const& arguments, aio_ostream& out) {
    CheckedDeck const checked(arguments, lastStageToRun(arguments.until));
    fedeck_Report const report = checked.Report();
    if (arguments.json) {
        report.WriteJson(out);
    } else {
        report.WriteDiagnostics(out, arguments.maxDiagnostics);
        report.WriteSummary(out);
    }
    return exitStatusOf(report);
}

// The keyword list goes out even when the deck has errors: what could be read
// is often what the user wants to see. By default the road stops once the
// tree is made: the extraction stages after it release the data lines of the
// mesh keywords of parts into the maps, and a tree written after them would
// lack the mesh.
int runTree(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    CheckedDeck const checked(
        arguments, lastStageToRun(arguments.until.empty() ? kTreeStage : arguments.until));
    fedeck_Report const report = checked.Report();
    report.WriteDiagnostics(err, arguments.maxDiagnostics);
    inp_DeckWriter(out).Write(checked.Deck().Keywords());
    return exitStatusOf(report);
}

// The maps go out even when the deck has errors, as far as the stages that
// ran built them: a script sees what the deck came to and where it stopped.
int runModel(fedeck_Arguments const& arguments, aio_ostream& out) {
    CheckedDeck const checked(arguments, lastStageToRun(arguments.until));
    fedeck_Report const report = checked.Report();
    out.put('{');
    report.WriteJsonFields(out);
    out.print(", ");
    fedeck_WriteModelFields(out, checked.Deck());
    out.print("}\n");
    return exitStatusOf(report);
}

int runCommand(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    switch (arguments.command) {
        case fedeck_Command::Help:
            out.print(fedeck_UsageText());
            return fedeck_EXIT_CLEAN;
        case fedeck_Command::Version:
            out.print("fedeck ").print(FEDECK_VERSION).put('\n');
            return fedeck_EXIT_CLEAN;
        case fedeck_Command::Check:
            return runCheck(arguments, out);
        case fedeck_Command::Tree:
            return runTree(arguments, out, err);
        case fedeck_Command::Model:
            return runModel(arguments, out);
        case fedeck_Command::Encrypt:
            return fedeck_Encrypt(arguments.operands[0], arguments.operands[1], arguments.password,
                                  err);
    }
    return fedeck_EXIT_INTERNAL;
}

int reportUsageError(fedeck_UsageError const& error, aio_ostream& err) {
    err.print("fedeck: ").print(error.what()).put('\n').put('\n').print(fedeck_UsageText());
    return fedeck_EXIT_USAGE;
}

int reportInternalError(std::string_view what, aio_ostream& err) {
    err.print("fedeck: internal error: ").print(what).put('\n');
    return fedeck_EXIT_INTERNAL;
}

// Output cut short must not pass for a complete report.
int checkWritten(int status, aio_ostream& out, aio_ostream& err) {
    if (!out.flush().bad()) return status;
    err.print("fedeck: cannot write to standard output\n");
    return fedeck_EXIT_INTERNAL;
}

}  // namespace

std::string fedeck_UsageText() {
    std::string const stages = fedeck_Pipeline::StageNames();
    std::string const lastStage = fedeck_Pipeline::Stages().back().name;
    return "Usage:\n"
           "  fedeck check [--include-dir DIR] [--until STAGE] [--json] [--max-diagnostics N]\n"
           "               DECK\n"
           "  fedeck tree  [--include-dir DIR] [--until STAGE] [--max-diagnostics N] DECK\n"
           "  fedeck model [--include-dir DIR] [--until STAGE] DECK\n"
           "  fedeck encrypt --password P IN OUT\n"
           "  fedeck help | --help\n"
           "  fedeck version | --version\n"
           "\n"
           "Commands:\n"
           "  check    Runs the stages of a new job on DECK, up to STAGE, and prints\n"
           "           each diagnostic, then one summary line:\n"
           "             FILE:LINE: warning: TEXT\n"
           "             FILE:LINE: error: TEXT          an error (level 1)\n"
           "             FILE:LINE: fatal error: TEXT    a fatal error (level 0 or 2)\n"
           "             DECK: N keywords, E errors, W warnings\n"
           "           FILE and LINE are where the diagnostic points (an include\n"
           "           file, say); a diagnostic without a place names DECK alone.\n"
           "           Further lines of a message are indented by four blanks. A stage\n"
           "           that ends with errors ends the run; the summary then adds\n"
           "           \"(stopped after STAGE)\".\n"
           "  tree     Runs the stages on DECK up to STAGE (default: organize) and\n"
           "           writes its keywords back as deck text to standard output, text\n"
           "           that reads back to the same keywords; diagnostics go to standard\n"
           "           error. Data lines read from an encrypted file are not shown, nor\n"
           "           those of the mesh of parts after part-maps (the maps hold them).\n"
           "  model    Runs the stages on DECK up to STAGE and prints one JSON object:\n"
           "           the members of check --json, then \"partsAndAssembly\",\n"
           "           \"fakePartModel\", \"parts\" and \"assembly\", the model maps as\n"
           "           far as the stages built them (see README.md). Exit status as\n"
           "           for check.\n"
           "  encrypt  Writes IN enciphered to OUT, an include file that a deck reads\n"
           "           with *INCLUDE, INPUT=OUT, PASSWORD=P.\n"
           "\n"
           "Options:\n"
           "  --include-dir DIR  directory searched for include files that are not\n"
           "                     found as written (default: the deck's directory)\n"
           "  --until STAGE      last stage to run; one of: " +
           stages + " (default: " + lastStage +
           ")\n"
           "  --json             print one JSON object instead of text:\n"
           "                     {\"deck\", \"stage\", \"keywords\", \"diagnostics\": "
           "[{\"severity\",\n"
           "                     \"level\", \"text\", \"file\", \"line\", \"keyword\"}], "
           "\"includedFiles\",\n"
           "                     \"missingIncludeFiles\", \"counts\": {\"parts\", \"instances\",\n"
           "                     \"nodes\", \"elements\", \"nodeSets\", \"elementSets\",\n"
           "                     \"surfaces\"}}; \"stage\" is the last stage that\n"
           "                     ran, \"level\" is null for warnings, \"file\", \"line\" and\n"
           "                     \"keyword\" are null where unknown\n"
           "  --max-diagnostics N  print at most N diagnostics as text, then one line\n"
           "                     saying how many more there were (JSON has them all)\n"
           "  --password P       password of the encrypted file (not empty)\n"
           "\n"
           "Exit status:\n"
           "  0  no errors (warnings allowed)\n"
           "  1  the deck has errors; encrypt: the encrypted file could not be written\n"
           "  2  usage error, or the deck (encrypt: IN) cannot be read\n"
           "  3  internal error of the program\n";
}

int fedeck_Main(int argc, char const* const* argv, aio_ostream& out, aio_ostream& err) {
    try {
        return checkWritten(runCommand(fedeck_ParseArguments(argc, argv), out, err), out, err);
    } catch (fedeck_UsageError const& error) {
        return reportUsageError(error, err);
    } catch (fedeck_UnreadableDeck const& error) {
        err.print("fedeck: cannot read deck: ").print(error.what()).put('\n');
        return fedeck_EXIT_USAGE;
    } catch (std::bad_alloc const&) {
        err.print("fedeck: out of memory\n");
        return fedeck_EXIT_INTERNAL;
    } catch (ZELBasException const& error) {
        return reportInternalError(error.DeveloperReport().View(), err);
    } catch (std::exception const& error) {
        return reportInternalError(error.what(), err);
    }
}
