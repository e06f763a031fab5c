// many_decks [--runs N] --fedeck PROGRAM DECK...
//
// `fedeck check --json` of all the decks in one call, with one thread and
// with two (-j 1, -j 2), from process start to exit, medians of N runs; then
// the ratio of the two times. On a machine of two cores, two threads should
// take little more than half the time of one.

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/inp_ProcessTiming.h"

namespace {

struct Options {
    int runs = 5;
    std::string fedeck;
    std::vector<std::string> decks;
};

bool readOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        bool const hasValue = i + 1 < argc;
        if (argument == "--runs" && hasValue)
            options.runs = std::max(1, std::atoi(argv[++i]));
        else if (argument == "--fedeck" && hasValue)
            options.fedeck = argv[++i];
        else if (!argument.empty() && argument[0] == '-')
            return false;
        else
            options.decks.push_back(argument);
    }
    return !options.fedeck.empty() && !options.decks.empty();
}

inp_bench::ProcessRun checkAll(Options const& options, char const* jobs) {
    std::vector<std::string> arguments = {options.fedeck, "check", "--json", "-j", jobs};
    arguments.insert(arguments.end(), options.decks.begin(), options.decks.end());
    return inp_bench::medianOf(options.runs, arguments);
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    if (!readOptions(argc, argv, options)) {
        std::fprintf(stderr, "usage: many_decks [--runs N] --fedeck PROGRAM DECK...\n");
        return 2;
    }
    inp_bench::ProcessRun const one = checkAll(options, "1");
    inp_bench::ProcessRun const two = checkAll(options, "2");
    std::printf("%zu decks, fedeck check --json, medians of %d runs\n", options.decks.size(),
                options.runs);
    std::printf("-j 1: %.3f s, peak %.0f MB\n", one.seconds, one.peakMegabytes);
    std::printf("-j 2: %.3f s, peak %.0f MB\n", two.seconds, two.peakMegabytes);
    std::printf("-j 2 / -j 1: %.2f\n", two.seconds / one.seconds);
    return 0;
}
