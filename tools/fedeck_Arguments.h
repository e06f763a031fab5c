#pragma once
// The command line of the program, taken apart but not yet acted on.

#include <stdexcept>
#include <string>
#include <vector>

// A command line the program can't make sense of; what() says why.
class fedeck_UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

enum class fedeck_Command { Help, Version, Check, Tree, Model, Convert, Encrypt };

// How check writes its reports: for people (text), for scripts (one JSON
// object per deck), for code-scanning services (one SARIF 2.1.0 log), or as
// workflow annotations of a CI system (one line per diagnostic).
enum class fedeck_Format { Text, Json, Sarif, Github };

struct fedeck_Arguments {
    fedeck_Command command = fedeck_Command::Help;
    std::string includeDir;
    std::string until;                           // empty: run every stage
    fedeck_Format format = fedeck_Format::Text;  // --format, or --json
    // check: the decks checked at once; 0 when -j is not given (then as many
    // as the machine has cores).
    int jobs = 0;
    // tree: the keyword data of moved instances in the global frame.
    bool global = false;
    // convert: the data of the file as text rather than base64.
    bool ascii = false;
    // check and tree: the diagnostics printed as text, at the most; -1 for
    // all of them. The JSON form always has all.
    int maxDiagnostics = -1;
    // check: the deck of the earlier job that DECK continues; empty for a
    // new job.
    std::string restartFrom;
    std::string password;
    // DECK for tree and model, DECK... for check; DECK and OUT for convert;
    // IN and OUT for encrypt.
    std::vector<std::string> operands;
};

// Reads argv[1..argc-1]. Options may stand before or after the operands,
// as `--name value` or `--name=value`; `--` ends the options. The command
// `help`, or `--help` or `-h` among the options, asks for help (command Help),
// whatever else is there; then `version`, or `--version` among the options,
// asks for the version (command Version). Anything else that is wrong (an unknown command
// or option, an option the command doesn't take, a missing value, the wrong
// number of operands) throws fedeck_UsageError.
fedeck_Arguments fedeck_ParseArguments(int argc, char const* const* argv);
