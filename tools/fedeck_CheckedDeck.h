#pragma once
// A deck run through the library's road for one command of the program,
// with what the message sink of the running thread collected on the way.

#include <memory>
#include <string>
#include <string_view>

#include "pipeline/inp_InputFile.h"
#include "support/cow_String.h"
#include "tools/fedeck_Report.h"

struct fedeck_Arguments;

// The index of the stage `until` names, the last stage for an empty name;
// an unknown name throws fedeck_UsageError listing the known ones.
int fedeck_LastStageToRun(std::string const& until);

// Each constructor runs the deck of `arguments.operands.front()` on the
// calling thread; a deck that cannot be opened throws fedeck_UnreadableDeck.
// Report() reads the calling thread's sink, so it belongs on the same thread,
// before another deck runs there.
class fedeck_CheckedDeck {
  public:
    // A new job up to `lastStage`; after the whole road, the checks the
    // library offers its callers but no stage runs.
    fedeck_CheckedDeck(fedeck_Arguments const& arguments, int lastStage);

    // A continuation job: the deck is parsed and expanded, then goes on from
    // the finished model of the `earlier` job, and its new sets and surfaces
    // are read against that model's names.
    fedeck_CheckedDeck(fedeck_Arguments const& arguments, inp_InputFile const& earlier);

    // The converter's road: the deck read and brought to parts, a flat deck
    // made its generated part with every node and element written into it;
    // the maps are not read.
    struct ConverterRoad {};
    fedeck_CheckedDeck(fedeck_Arguments const& arguments, ConverterRoad);

    fedeck_CheckedDeck(fedeck_CheckedDeck const&) = delete;
    fedeck_CheckedDeck& operator=(fedeck_CheckedDeck const&) = delete;
    ~fedeck_CheckedDeck();

    fedeck_Report Report() const;
    inp_InputFile const& Deck() const { return *m_deck; }

    // For a program that ends as soon as its command is done: the model is
    // not freed with this object but left to the end of the process, when
    // the system takes the whole address space back at once, rather than a
    // free for every node and element of a big mesh. It stays reachable, so
    // leak checkers see a live object, not a leak. The last use of the
    // object: Deck() has nothing to give afterwards.
    void LeaveToProcessExit();

  private:
    void setIncludePath(fedeck_Arguments const& arguments);
    void runTo(int lastStage);
    void runOfferedChecks();

    cow_String m_path;  // as typed: messages name the deck as the user knows it
    std::unique_ptr<inp_InputFile> m_deck;
    int m_stageRun = 0;
    std::string_view m_stageName;
    bool m_stoppedEarly = false;
};
