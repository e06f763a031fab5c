#include "tools/fedeck_Convert.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>

#include "support/aio_Stream.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_AssembledMesh.h"
#include "tools/fedeck_CheckedDeck.h"
#include "tools/fedeck_Commands.h"
#include "tools/fedeck_Vtu.h"

namespace {

// The share written, on one line of a terminal, once the job has taken more
// than a second: a quick conversion shows nothing.
class WriteProgress {
  public:
    WriteProgress(aio_ostream& err, std::string const& output)
        : m_err(err), m_output(output), m_terminal(&err == &aio_cerr() && isatty(2)) {}

    void Show(double share) {
        if (!m_terminal || Clock::now() - m_start < std::chrono::seconds(1)) return;
        m_shown = true;
        m_err.print("\rfedeck: writing ").print(m_output).print(": ")
            << static_cast<int>(share * 100.0) << "%";
        m_err.flush();
    }
    void Clear() {
        if (m_shown) m_err.print("\r\x1b[K");
    }

  private:
    using Clock = std::chrono::steady_clock;
    aio_ostream& m_err;
    std::string const& m_output;
    bool m_terminal;
    bool m_shown = false;
    Clock::time_point m_start = Clock::now();
};

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
    WriteProgress progress(err, output);
    fedeck_CheckedDeck checked(arguments, fedeck_LastStageToRun(std::string()));
    fedeck_Report const report = checked.Report();
    report.WriteDiagnostics(err, arguments.maxDiagnostics);
    int status = report.HasErrors() ? fedeck_EXIT_ERRORS : fedeck_EXIT_CLEAN;
    {
        fedeck_AssembledMesh const mesh(checked.Deck());
        warnOfLeftOut(mesh, output, err);
        fedeck_VtuOptions options;
        options.ascii = arguments.ascii;
        options.progress = [&progress](double share) { progress.Show(share); };
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
