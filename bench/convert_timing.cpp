// convert_timing [--runs N] --fedeck PROGRAM --out OUT.vtu DECK
//
// `fedeck convert DECK OUT.vtu` beside `fedeck check --json DECK`, each from
// process start to exit, medians of N runs, with peak memory as a multiple
// of the deck's size. Writing the model out should cost little more than
// reading it.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/inp_ProcessTiming.h"

namespace {

struct Options {
    int runs = 5;
    std::string fedeck;
    std::string output;
    std::string deck;
};

bool readOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        bool const hasValue = i + 1 < argc;
        if (argument == "--runs" && hasValue)
            options.runs = std::max(1, std::atoi(argv[++i]));
        else if (argument == "--fedeck" && hasValue)
            options.fedeck = argv[++i];
        else if (argument == "--out" && hasValue)
            options.output = argv[++i];
        else if (!argument.empty() && argument[0] != '-' && options.deck.empty())
            options.deck = argument;
        else
            return false;
    }
    return !options.fedeck.empty() && !options.output.empty() && !options.deck.empty();
}

void report(char const* what, inp_bench::ProcessRun const& run, double deckMegabytes) {
    std::printf("%-28s %8.3f s  peak %6.0f MB (%.2fx the deck)\n", what, run.seconds,
                run.peakMegabytes, run.peakMegabytes / deckMegabytes);
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!readOptions(argc, argv, options)) {
        std::fprintf(stderr,
                     "usage: convert_timing [--runs N] --fedeck PROGRAM --out OUT.vtu DECK\n");
        return 2;
    }
    double const deckMegabytes =
        static_cast<double>(std::filesystem::file_size(options.deck)) / 1e6;
    inp_bench::ProcessRun const check =
        inp_bench::medianOf(options.runs, {options.fedeck, "check", "--json", options.deck});
    inp_bench::ProcessRun const convert = inp_bench::medianOf(
        options.runs, {options.fedeck, "convert", options.deck, options.output});
    double const outputMegabytes =
        static_cast<double>(std::filesystem::file_size(options.output)) / 1e6;
    std::printf("%s (%.1f MB), medians of %d runs\n", options.deck.c_str(), deckMegabytes,
                options.runs);
    report("fedeck check --json", check, deckMegabytes);
    report("fedeck convert", convert, deckMegabytes);
    std::printf("convert / check: %.2f; the .vtu file: %.1f MB\n", convert.seconds / check.seconds,
                outputMegabytes);
    return 0;
}
