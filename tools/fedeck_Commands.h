#pragma once
// The program behind main(): reads the command line, runs one command and
// gives the exit status. Kept apart from main() so that the whole program runs
// on any pair of streams.

#include <string>

class aio_ostream;

// Exit statuses. Scripts test them, so they never change meaning.
enum fedeck_ExitStatus : int {
    fedeck_EXIT_CLEAN = 0,     // no errors (warnings allowed)
    fedeck_EXIT_ERRORS = 1,    // the deck has errors; encrypt: writing failed
    fedeck_EXIT_USAGE = 2,     // bad command line, or the deck / input can't be read
    fedeck_EXIT_INTERNAL = 3,  // a fault of the program itself
};

// The usage text, with the stage names of the pipeline.
std::string fedeck_UsageText();

// For a program that ends right after fedeck_Main: the model of a single
// deck is not freed when its command is done but left to the end of the
// process, which takes it back at once (a big mesh is millions of records,
// each freed on its own otherwise). Decks checked many at once are freed as
// they go, so that memory stays bounded by the decks in flight.
void fedeck_LeaveModelsToProcessExit();

// Runs the command of argv. Results go to `out`; usage errors, and the
// diagnostics of `tree`, to `err`. The deck module must be initialised.
int fedeck_Main(int argc, char const* const* argv, aio_ostream& out, aio_ostream& err);
