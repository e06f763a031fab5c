#include "tools/fedeck_Commands.h"

#include <functional>
#include <new>

#include "deck/inp_DeckWriter.h"
#include "fedeck_Version.h"
#include "pipeline/inp_InputFile.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_CheckedDeck.h"
#include "tools/fedeck_Convert.h"
#include "tools/fedeck_DeckBatch.h"
#include "tools/fedeck_Encrypt.h"
#include "tools/fedeck_Global.h"
#include "tools/fedeck_Model.h"
#include "tools/fedeck_Pipeline.h"
#include "tools/fedeck_Report.h"

namespace {

// The earlier job of a continuation: the deck given by --restart-from, run
// as a new job over the whole road, its include files beside it.
fedeck_Arguments earlierJobOf(fedeck_Arguments const& arguments) {
    fedeck_Arguments earlier = arguments;
    earlier.operands = {arguments.restartFrom};
    earlier.includeDir.clear();
    earlier.restartFrom.clear();
    return earlier;
}

int exitStatusOf(fedeck_Report const& report) {
    return report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
}

// Set by a program that ends as soon as its command is done.
bool g_modelsLeftToProcessExit = false;

// Passes `status` on; the deck's model is left to the end of the process
// when the program has asked for that.
int leaveToProcessExit(int status, fedeck_CheckedDeck& checked) {
    if (g_modelsLeftToProcessExit) checked.LeaveToProcessExit();
    return status;
}

// What a command writes of a deck that has run, and its exit status.
using DeckOutput = std::function<int(fedeck_CheckedDeck const&, fedeck_Arguments const&)>;

// Runs the job the command line asks for and hands its deck to `output`: a
// new job up to --until, or a job that continues the --restart-from deck.
// Of a continuation, the earlier deck is output only when it has errors:
// then there is no model to go on from, and the later deck is not run.
int runJob(fedeck_Arguments const& arguments, DeckOutput const& output) {
    if (arguments.restartFrom.empty()) {
        fedeck_CheckedDeck checked(arguments, fedeck_LastStageToRun(arguments.until));
        return leaveToProcessExit(output(checked, arguments), checked);
    }
    fedeck_Arguments const earlierArguments = earlierJobOf(arguments);
    fedeck_CheckedDeck earlier(earlierArguments, fedeck_LastStageToRun(std::string()));
    if (earlier.Report().HasErrors())
        return leaveToProcessExit(output(earlier, earlierArguments), earlier);
    fedeck_CheckedDeck later(arguments, earlier.Deck());
    int const status = output(later, arguments);
    leaveToProcessExit(status, later);
    return leaveToProcessExit(status, earlier);
}

// One deck runs on the main thread, as a new job or a continuation; a deck
// that cannot be read ends the program. Several decks are a batch, where an
// unreadable one is reported in its place.
int runCheck(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    if (arguments.operands.size() > 1) return fedeck_CheckDecks(arguments, out, err);
    return runJob(arguments, [&](fedeck_CheckedDeck const& checked, fedeck_Arguments const& asked) {
        return fedeck_WriteCheckReport(checked.Report(), asked, out);
    });
}

// The converter's tree walked with the maps of the whole road: the road's
// diagnostics, then those of the walk; the converter's own repeat the
// road's and are left out.
int runGlobalTree(fedeck_Arguments const& arguments, aio_ostream& out, aio_ostream& err) {
    fedeck_CheckedDeck const road(arguments, fedeck_LastStageToRun(std::string()));
    fedeck_Report const roadReport = road.Report();
    roadReport.WriteDiagnostics(err, arguments.maxDiagnostics);
    int status = exitStatusOf(roadReport);
    fedeck_CheckedDeck const converted(arguments, fedeck_CheckedDeck::ConverterRoad{});
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
    auto const write = [&](fedeck_CheckedDeck const& checked) {
        fedeck_Report const report = checked.Report();
        report.WriteDiagnostics(err, arguments.maxDiagnostics);
        inp_DeckWriter(out).Write(checked.Deck().Keywords());
        return exitStatusOf(report);
    };
    if (arguments.global) return runGlobalTree(arguments, out, err);
    if (arguments.until.empty())
        return write(fedeck_CheckedDeck(arguments, fedeck_CheckedDeck::ConverterRoad{}));
    return write(fedeck_CheckedDeck(arguments, fedeck_LastStageToRun(arguments.until)));
}

// The maps go out even when the deck has errors, as far as the stages that
// ran built them: a script sees what the deck came to and where it stopped.
int runModel(fedeck_Arguments const& arguments, aio_ostream& out) {
    return runJob(arguments, [&](fedeck_CheckedDeck const& checked, fedeck_Arguments const&) {
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
            return runCheck(arguments, out, err);
        case fedeck_Command::Tree:
            return runTree(arguments, out, err);
        case fedeck_Command::Model:
            return runModel(arguments, out);
        case fedeck_Command::Convert:
            return fedeck_Convert(arguments, err, g_modelsLeftToProcessExit);
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
           "  fedeck check [--include-dir DIR] [--until STAGE] [--format F | --json]\n"
           "               [--max-diagnostics N] [-j N] DECK...\n"
           "  fedeck check --restart-from EARLIER [--include-dir DIR] [--format F | --json]\n"
           "               [--max-diagnostics N] DECK\n"
           "  fedeck tree  [--include-dir DIR] [--until STAGE | --global] [--max-diagnostics N]\n"
           "               DECK\n"
           "  fedeck model [--include-dir DIR] [--until STAGE | --restart-from EARLIER] DECK\n"
           "  fedeck convert [--include-dir DIR] [--ascii] [--max-diagnostics N] DECK OUT.vtu\n"
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
           "           Several decks are checked at once (see -j) and reported in the\n"
           "           order given, then summed up in one line:\n"
           "             fedeck: D decks, E with errors, W with warnings, U unreadable, T s\n"
           "           A deck that cannot be read is reported so in its place:\n"
           "             fedeck: cannot read deck: DECK\n"
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
           "  convert  Runs the whole road on DECK and writes the assembled model to\n"
           "           OUT.vtu, a VTK unstructured grid: the nodes of the assembly and of\n"
           "           every instance placed by its transform, each element with a VTK\n"
           "           cell (the others are named in one warning), point arrays\n"
           "           node_label and instance, cell arrays element_label, instance and\n"
           "           element_type, and a 0/1 array per set (nset:NAME, elset:NAME; an\n"
           "           instance's as nset:INSTANCE.NAME). Diagnostics go to standard\n"
           "           error; the model is written as far as it was built. Exit status\n"
           "           as for check, or 2 when OUT cannot be written.\n"
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
           "                     \"keyword\" are null where unknown.\n"
           "                     Several decks give one such line each (JSON Lines),\n"
           "                     an unreadable one {\"deck\", \"error\"}, and a last line\n"
           "                     {\"summary\": {\"decks\", \"withErrors\", \"withWarnings\",\n"
           "                     \"unreadable\", \"seconds\"}}\n"
           "  --format F         text (the default), json (as --json), sarif (one SARIF\n"
           "                     2.1.0 log of all decks, a rule per kind of message;\n"
           "                     the summary goes to standard error) or github (one\n"
           "                     workflow annotation per diagnostic:\n"
           "                     ::error file=FILE,line=LINE::TEXT, then one ::notice)\n"
           "  -j N, --jobs N     check: N decks at once (default: one per core)\n"
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
           "  --ascii            convert: the data as text instead of base64\n"
           "  --password P       password of the encrypted file (not empty)\n"
           "\n"
           "Exit status:\n"
           "  0  no errors (warnings allowed)\n"
           "  1  the deck has errors; encrypt: the encrypted file could not be written\n"
           "  2  usage error, or the deck (encrypt: IN) cannot be read; convert: OUT\n"
           "     cannot be written\n"
           "  3  internal error of the program\n";
}

void fedeck_LeaveModelsToProcessExit() {
    g_modelsLeftToProcessExit = true;
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
