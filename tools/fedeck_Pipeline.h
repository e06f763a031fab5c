#pragma once
// The stages of a new job that the program can run: the library's road, by
// the names `--until` takes.

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "pipeline/inp_Stage.h"
#include "support/cow_String.h"

class inp_InputFile;

// The deck file can't be opened; what() is its path as given, and why where
// the path names a directory.
class fedeck_UnreadableDeck : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class fedeck_Pipeline {
  public:
    // The library's stages, in road order.
    static std::span<inp_StageInfo const> Stages();
    // The index of the stage called `name`, or -1.
    static int Find(std::string_view name);
    // "a, b, c": the known stage names, for messages.
    static std::string StageNames();

    // Runs the stages from the first up to `lastStage` and returns the index
    // of the last one that ran: a stage that leaves errors in the sink ends
    // the run, as later stages rely on a sound result of the earlier ones.
    // The sink is cleared first. A deck file that can't be opened throws
    // fedeck_UnreadableDeck.
    static int Run(inp_InputFile& deck, cow_String const& deckPath, int lastStage);
};
