#include "tools/fedeck_Convert.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include "support/aio_Stream.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_AssembledMesh.h"
#include "tools/fedeck_CheckedDeck.h"
#include "tools/fedeck_Commands.h"
#include "tools/fedeck_ProgressLine.h"
#include "tools/fedeck_Vtu.h"

namespace {

// What the file leaves out, said once each: element types without a cell
// by type and count, elements on nodes the model lacks, no cell at all.
void warnOfLeftOut(fedeck_AssembledMesh const& mesh, std::string const& output, aio_ostream& err) {
    if (!mesh.TypesWithoutCell().empty()) {
        err.print("fedeck: warning: elements without a VTK cell are left out:");
        char const* separator = " ";
        for (auto const& [type, count] : mesh.TypesWithoutCell()) {
            err.print(separator).print(type).print(" (") << count << ")";
            separator = ", ";
        }
        err.put('\n');
    }
    if (mesh.ElementsWithMissingNodes() > 0)
        err.print("fedeck: warning: ")
            << mesh.ElementsWithMissingNodes()
            << " elements on nodes that the model does not have are left out\n";
    if (mesh.CellCount() > 0) return;
    if (mesh.PointCount() == 0) {
        err.print("fedeck: warning: the model has no nodes and no elements; ")
            .print(output)
            .print(" holds no mesh\n");
        return;
    }
    err.print(mesh.TypesWithoutCell().empty() && mesh.ElementsWithMissingNodes() == 0
                  ? "fedeck: warning: the model has no elements; "
                  : "fedeck: warning: no element of the model has a VTK cell; ")
        .print(output)
        .print(" holds the nodes alone\n");
}

// Made (or emptied) before the deck is read, so that an output that cannot
// be written is known at once, not after a long road.
bool canCreate(std::string const& output, aio_ostream& err) {
    std::FILE* file = std::fopen(output.c_str(), "wb");
    if (file != nullptr) return std::fclose(file) == 0;
    err.print("fedeck: cannot open ")
        .print(output)
        .print(" for writing: ")
        .print(std::strerror(errno))
        .put('\n');
    return false;
}

}  // namespace

int fedeck_Convert(fedeck_Arguments const& arguments, aio_ostream& err,
                   bool leaveModelToProcessExit) {
    std::string const& output = arguments.operands[1];
    if (!canCreate(output, err)) return fedeck_EXIT_USAGE;
    // A quick conversion shows no progress; one that takes more than a
    // second shows the share written.
    fedeck_ProgressLine progress(err, fedeck_ProgressLine::IsTerminal(err));
    std::string const writing = "writing " + output;
    fedeck_CheckedDeck checked(arguments, fedeck_LastStageToRun(std::string()));
    fedeck_Report const report = checked.Report();
    report.WriteDiagnostics(err, arguments.maxDiagnostics);
    int status = report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
    {
        fedeck_AssembledMesh const mesh(checked.Deck());
        warnOfLeftOut(mesh, output, err);
        fedeck_VtuOptions options;
        options.ascii = arguments.ascii;
        options.progress = [&](double share) { progress.ShowShare(writing, share); };
        std::string const failure = fedeck_WriteVtu(mesh, output, options);
        progress.Clear();
        if (!failure.empty()) {
            err.print("fedeck: ").print(failure).put('\n');
            status = fedeck_EXIT_USAGE;
        }
    }
    if (leaveModelToProcessExit) checked.LeaveToProcessExit();
    return status;
}
