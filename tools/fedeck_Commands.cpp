#include "tools/fedeck_Commands.h"

#include <filesystem>
#include <functional>
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
#include "tools/fedeck_Global.h"
#include "tools/fedeck_Model.h"
#include "tools/fedeck_Pipeline.h"
#include "tools/fedeck_Report.h"

namespace {

// The road of a converter, which `tree` runs unless told where to stop: the
// stages up to this one, then the keywords brought to parts without reading
// the maps (the name the report gives).
constexpr char const* kConverterBase = "model-parameters";
constexpr char const* kConverterStage = "reorganize-keywords";
// What a continuation job's report names as its last stage: after expansion
// it takes the earlier job's model and goes on from there.
constexpr char const* kContinuationStage = "inherit-part-map";

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

bool holdsEncryptedData(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords)
        if ((keyword.IsEncrypted() && keyword.Data().Rows() > 0) ||
            holdsEncryptedData(keyword.Suboptions()))
            return true;
    return false;
}

// A deck made a part is written anew from its maps, which do not tell the
// data of an encrypted file from the rest: once any of it was encrypted, no
// data line of the new tree is shown.
void withholdAllData(cow_List<inp_Keyword>& keywords) {
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword& keyword = keywords.Get(i);
        keyword.SetEncrypted(true);
        withholdAllData(keyword.GetSuboptions());
    }
}

// The earlier job of a continuation: the deck given by --restart-from, run
// as a new job over the whole road, its include files beside it.
fedeck_Arguments earlierJobOf(fedeck_Arguments const& arguments) {
    fedeck_Arguments earlier = arguments;
    earlier.operands = {arguments.restartFrom};
    earlier.includeDir.clear();
    earlier.restartFrom.clear();
    return earlier;
}

// A deck run through the pipeline, with what the sink collected on the way.
class CheckedDeck {
  public:
    CheckedDeck(fedeck_Arguments const& arguments, int lastStage)
        : m_path(arguments.operands.front().c_str()) {
        setIncludePath(arguments);
        runTo(lastStage);
        if (m_stageRun == static_cast<int>(fedeck_Pipeline::Stages().size()) - 1)
            runOfferedChecks();
    }

    // A continuation job: the deck is parsed and expanded, then goes on from
    // the finished model of the `earlier` job, and its new sets and surfaces
    // are read against that model's names.
    CheckedDeck(fedeck_Arguments const& arguments, inp_InputFile const& earlier)
        : m_path(arguments.operands.front().c_str()) {
        setIncludePath(arguments);
        runTo(fedeck_Pipeline::Find("expand"));
        if (m_stoppedEarly) return;
        inpM_PartMap partMap = earlier.MakePartMap();
        m_deck.InheritPartMap(partMap, false);
        m_deck.ReadRestartSetsAndSurfaces(earlier);
        m_stageName = kContinuationStage;
        runOfferedChecks();
    }

    // The converter's road: the deck read and brought to parts, a flat deck
    // made its generated part with every node and element written into it;
    // the maps are not read.
    struct ConverterRoad {};
    CheckedDeck(fedeck_Arguments const& arguments, ConverterRoad)
        : m_path(arguments.operands.front().c_str()) {
        setIncludePath(arguments);
        runTo(fedeck_Pipeline::Find(kConverterBase));
        if (m_stoppedEarly) return;
        bool const encrypted = holdsEncryptedData(m_deck.Keywords());
        m_deck.SetInOdbConverter(true);
        m_deck.ReorganizeKeywords(false);
        m_stageName = kConverterStage;
        if (encrypted) withholdAllData(m_deck.GetKeywords());
    }

    fedeck_Report Report() const {
        return fedeck_Report(m_path, m_stageName, m_stoppedEarly, m_deck,
                             thr_ThreadSingleton<wip_WIP>::Instance().Diagnostics());
    }
    inp_InputFile const& Deck() const { return m_deck; }

  private:
    void setIncludePath(fedeck_Arguments const& arguments) {
        std::string const includeDirectory = includeDirectoryFor(arguments);
        if (!includeDirectory.empty()) m_deck.SetIncludePath(cow_String(includeDirectory.c_str()));
    }

    void runTo(int lastStage) {
        m_stageRun = fedeck_Pipeline::Run(m_deck, m_path, lastStage);
        m_stageName = fedeck_Pipeline::Stages()[m_stageRun].name;
        m_stoppedEarly = m_stageRun != lastStage;
    }

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
    std::string_view m_stageName;
    bool m_stoppedEarly = false;
};

int exitStatusOf(fedeck_Report const& report) {
    return report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
}

int writeCheckReport(fedeck_Report const& report, fedeck_Arguments const& arguments,
                     aio_ostream& out) {
    if (arguments.json) {
        report.WriteJson(out);
    } else {
        report.WriteDiagnostics(out, arguments.maxDiagnostics);
        report.WriteSummary(out);
    }
    return exitStatusOf(report);
}

// What a command writes of a deck that has run, and its exit status.
using DeckOutput = std::function<int(CheckedDeck const&, fedeck_Arguments const&)>;

// Runs the job the command line asks for and hands its deck to `output`: a
// new job up to --until, or a job that continues the --restart-from deck.
// Of a continuation, the earlier deck is output only when it has errors:
// then there is no model to go on from, and the later deck is not run.
int runJob(fedeck_Arguments const& arguments, DeckOutput const& output) {
    if (arguments.restartFrom.empty())
        return output(CheckedDeck(arguments, lastStageToRun(arguments.until)), arguments);
    fedeck_Arguments const earlierArguments = earlierJobOf(arguments);
    CheckedDeck const earlier(earlierArguments, lastStageToRun(std::string()));
    if (earlier.Report().HasErrors()) return output(earlier, earlierArguments);
    return output(CheckedDeck(arguments, earlier.Deck()), arguments);
}

int runCheck(fedeck_Arguments const& arguments, aio_ostream& out) {
    return runJob(arguments, [&](CheckedDeck const& checked, fedeck_Arguments const& asked) {
        return writeCheckReport(checked.Report(), asked, out);
    });
}

// The converter's tree walked with the maps of the whole road: the road's
// diagnostics, then those of the walk; the converter's own repeat the
// road's and are left out.
int runGlobalTree(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    CheckedDeck const road(arguments, lastStageToRun(std::string()));
    fedeck_Report const roadReport = road.Report();
    roadReport.WriteDiagnostics(err, arguments.maxDiagnostics);
    int status = exitStatusOf(roadReport);
    CheckedDeck const converted(arguments, CheckedDeck::ConverterRoad{});
    thr_ThreadSingleton<wip_WIP>::Instance().Clear();
    cow_List<inp_Keyword> tree = converted.Deck().Keywords();
    fedeck_TransformToGlobal(tree, road.Deck());
    fedeck_Report const walkReport = converted.Report();
    walkReport.WriteDiagnostics(err, arguments.maxDiagnostics);
    if (walkReport.HasErrors()) status = fedeck_EXIT_ERRORS;
    inp_DeckWriter(out).Write(tree);
    return status;
}

// The keyword list goes out even when the deck has errors: what could be read
// is often what the user wants to see. By default it is the converter's
// tree, a flat deck shown as its generated part, instance and assembly.
// With --until it is the road's tree at that stage: the extraction stages
// release the data lines of the mesh keywords of parts into the maps, so a
// tree written after them lacks the mesh.
int runTree(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    auto const write = [&](CheckedDeck const& checked) {
        fedeck_Report const report = checked.Report();
        report.WriteDiagnostics(err, arguments.maxDiagnostics);
        inp_DeckWriter(out).Write(checked.Deck().Keywords());
        return exitStatusOf(report);
    };
    if (arguments.global) return runGlobalTree(arguments, out, err);
    if (arguments.until.empty()) return write(CheckedDeck(arguments, CheckedDeck::ConverterRoad{}));
    return write(CheckedDeck(arguments, lastStageToRun(arguments.until)));
}

// The maps go out even when the deck has errors, as far as the stages that
// ran built them: a script sees what the deck came to and where it stopped.
int runModel(fedeck_Arguments const& arguments, aio_ostream& out) {
    return runJob(arguments, [&](CheckedDeck const& checked, fedeck_Arguments const&) {
        fedeck_Report const report = checked.Report();
        out.put('{');
        report.WriteJsonFields(out);
        out.print(", ");
        fedeck_WriteModelFields(out, checked.Deck());
        out.print("}\n");
        return exitStatusOf(report);
    });
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
           "  fedeck check --restart-from EARLIER [--include-dir DIR] [--json]\n"
           "               [--max-diagnostics N] DECK\n"
           "  fedeck tree  [--include-dir DIR] [--until STAGE | --global] [--max-diagnostics N]\n"
           "               DECK\n"
           "  fedeck model [--include-dir DIR] [--until STAGE | --restart-from EARLIER] DECK\n"
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
           "  tree     Brings DECK to parts as a converter does (a flat deck becomes\n"
           "           its generated part, instance and assembly, with every node and\n"
           "           element) or, with --until, runs the stages up to STAGE; then\n"
           "           writes its keywords back as deck text to standard output, text\n"
           "           that reads back to the same keywords; diagnostics go to standard\n"
           "           error. Data lines read from an encrypted file are not shown (a\n"
           "           deck made a part shows none once any was), nor those of the mesh\n"
           "           of parts after part-maps (the maps hold them).\n"
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
           "  --restart-from EARLIER  check or model: DECK is a job that continues\n"
           "                     the deck EARLIER, which is run first, as a new job (its\n"
           "                     output is given only when it has errors, and DECK is\n"
           "                     then not run); DECK is parsed and expanded, takes\n"
           "                     EARLIER's model, and its new sets and surfaces are\n"
           "                     read against EARLIER's names (stage \"inherit-part-map\")\n"
           "  --global           tree: runs the whole road, then writes the converter's\n"
           "                     tree with the data of every moved instance in the global\n"
           "                     frame (points moved, directions and tensors turned, an\n"
           "                     *ORIENTATION or *TRANSFORM added where a keyword leans on\n"
           "                     the global axes, with the node sets they need)\n"
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
