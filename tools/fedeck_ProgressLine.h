#pragma once
// How far a long job has come, on one line of a terminal that is rewritten
// in place ("fedeck: checked 3 of 200 decks", "fedeck: writing m.vtu: 40%").
// A job done before the delay has passed shows nothing, and a stream that
// is no terminal never gets the line.

#include <chrono>
#include <string_view>

class aio_ostream;

class fedeck_ProgressLine {
  public:
    using Clock = std::chrono::steady_clock;

    // Shows on `err` when `terminal`, once `delay` has passed since
    // construction.
    fedeck_ProgressLine(aio_ostream& err, bool terminal,
                        Clock::duration delay = std::chrono::seconds(1));

    // True when `err` is the process's standard error and that is a terminal.
    static bool IsTerminal(aio_ostream const& err);

    // "fedeck: <text>" in place of what the line showed before.
    void Show(std::string_view text);
    // "fedeck: <what>: N%".
    void ShowShare(std::string_view what, double share);
    // Wipes the line, if it shows anything.
    void Clear();

  private:
    aio_ostream& m_err;
    bool m_terminal;
    Clock::time_point m_showFrom;
    bool m_shown = false;
};
