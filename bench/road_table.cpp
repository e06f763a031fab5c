// road_table [--runs N] [--fedeck PROGRAM] [--floor PROGRAM] DECK...
//
// The cost of the road of a new job, deck by deck, as a table: each stage's
// time, throughput and the peak memory of the process so far, from one run
// of the stages in a process of its own; then the whole road as users meet
// it, `fedeck check --json DECK` from process start to exit (median of N
// runs, with its peak memory), beside the floor program run on the same deck
// in the same way, and the ratio of the two. The floor is the least work any
// reader of such a deck must do; measuring both in one run keeps the ratio
// meaningful on a noisy machine.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/inp_ProcessTiming.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

using namespace inp_bench;

struct Options {
    int runs = 5;
    std::string fedeck;
    std::string floor;
    std::vector<std::string> decks;
};

// The peak resident set of this process so far, in MB.
double peakMegabytesOfSelf() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return megabytesOfKibibytes(usage.ru_maxrss);
}

// A stage that takes under a millisecond has no throughput worth a number.
void printRow(char const* stage, double taken, double megabytes) {
    if (taken < 1e-3)
        std::printf("%-18s %9.3f %9s %9.0f\n", stage, taken, "-", peakMegabytesOfSelf());
    else
        std::printf("%-18s %9.3f %9.0f %9.0f\n", stage, taken, megabytes / taken,
                    peakMegabytesOfSelf());
}

// Runs the stages of the road in this process and prints a row per stage.
// The stage timing prints of the library go to the sink as it keeps them.
void printStageTable(std::string const& deck, double megabytes) {
    std::printf("%-18s %9s %9s %9s\n", "stage", "seconds", "MB/s", "peak MB");
    inp_InputFile input;
    input.SetIncludePath(cow_String(std::filesystem::path(deck).parent_path().c_str()));
    inp_StageInfo const& last = inp_InputFile::Stages().back();
    Clock::time_point start = Clock::now();
    Clock::time_point const roadStart = start;
    input.Run(cow_String(deck.c_str()), last.stage, inp_InputFile::RunRule::RunThrough,
              [&](inp_Stage stage) {
                  Clock::time_point const now = Clock::now();
                  double const taken = seconds(now - start);
                  printRow(inp_InputFile::Stages()[static_cast<size_t>(stage)].name, taken,
                           megabytes);
                  std::fflush(stdout);
                  start = Clock::now();
              });
    printRow("whole road", seconds(Clock::now() - roadStart), megabytes);
    wip_WIP const& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    std::printf("(%d errors, %d warnings in the deck)\n", sink.ErrorCount(),
                static_cast<int>(sink.Diagnostics().size()) - sink.ErrorCount());
}

// One table per deck, each in a child process of its own: the peak memory
// is that deck's alone.
void printStageTableInChild(std::string const& deck, double megabytes) {
    std::fflush(stdout);
    pid_t const child = fork();
    if (child == 0) {
        printStageTable(deck, megabytes);
        std::fflush(stdout);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
}

void printProcessComparison(Options const& options, std::string const& deck, double megabytes) {
    if (options.fedeck.empty()) return;
    ProcessRun const road = medianOf(options.runs, {options.fedeck, "check", "--json", deck});
    std::printf("fedeck check --json, median of %d: %.3f s, %.0f MB/s, peak %.0f MB (%.2fx deck)\n",
                options.runs, road.seconds, megabytes / road.seconds, road.peakMegabytes,
                road.peakMegabytes / megabytes);
    if (options.floor.empty()) return;
    ProcessRun const floor = medianOf(options.runs, {options.floor, deck});
    std::printf("floor, median of %d:               %.3f s, %.0f MB/s, peak %.0f MB\n",
                options.runs, floor.seconds, megabytes / floor.seconds, floor.peakMegabytes);
    std::printf("whole road / floor: %.2f\n", road.seconds / floor.seconds);
}

int usage() {
    std::fprintf(stderr,
                 "usage: road_table [--runs N] [--fedeck PROGRAM] [--floor PROGRAM] "
                 "DECK...\n");
    return 2;
}

bool readOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        bool const hasValue = i + 1 < argc;
        if (argument == "--runs" && hasValue)
            options.runs = std::max(1, std::atoi(argv[++i]));
        else if (argument == "--fedeck" && hasValue)
            options.fedeck = argv[++i];
        else if (argument == "--floor" && hasValue)
            options.floor = argv[++i];
        else if (!argument.empty() && argument[0] == '-')
            return false;
        else
            options.decks.push_back(argument);
    }
    return !options.decks.empty();
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!readOptions(argc, argv, options)) return usage();
    for (std::string const& deck : options.decks) {
        std::error_code error;
        auto const bytes = std::filesystem::file_size(deck, error);
        if (error) {
            std::fprintf(stderr, "road_table: cannot read %s\n", deck.c_str());
            return 1;
        }
        double const megabytes = static_cast<double>(bytes) / 1e6;
        std::printf("\n== %s (%.1f MB)\n", deck.c_str(), megabytes);
        printStageTableInChild(deck, megabytes);
        printProcessComparison(options, deck, megabytes);
    }
    return 0;
}
