#pragma once
// The share of a long job done, on one line of a terminal that is rewritten
// in place. A job done before the delay has passed shows nothing, and a
// stream that is no terminal never gets the line.

#include <chrono>
#include <string>

class aio_ostream;

class fedeck_ProgressLine {
  public:
    using Clock = std::chrono::steady_clock;

    // "fedeck: <what>: N%" on `err` when `terminal`, once `delay` has passed
    // since construction.
    fedeck_ProgressLine(aio_ostream& err, std::string what, bool terminal,
                        Clock::duration delay = std::chrono::seconds(1));

    // True when `err` is the process's standard error and that is a terminal.
    static bool IsTerminal(aio_ostream const& err);

    void Show(double share);
    // Wipes the line, if it was ever shown.
    void Clear();

  private:
    aio_ostream& m_err;
    std::string m_what;
    bool m_terminal;
    Clock::time_point m_showFrom;
    bool m_shown = false;
};
