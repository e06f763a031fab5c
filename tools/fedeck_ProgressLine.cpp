#include "tools/fedeck_ProgressLine.h"

#include <unistd.h>

#include <string>

#include "support/aio_Stream.h"

fedeck_ProgressLine::fedeck_ProgressLine(aio_ostream& err, bool terminal, Clock::duration delay)
    : m_err(err), m_terminal(terminal), m_showFrom(Clock::now() + delay) {}

bool fedeck_ProgressLine::IsTerminal(aio_ostream const& err) {
    return &err == &aio_cerr() && isatty(2);
}

void fedeck_ProgressLine::Show(std::string_view text) {
    if (!m_terminal || Clock::now() < m_showFrom) return;
    m_shown = true;
    m_err.print("\rfedeck: ").print(text);
    m_err.flush();
}

void fedeck_ProgressLine::ShowShare(std::string_view what, double share) {
    std::string text(what);
    text.append(": ").append(std::to_string(static_cast<int>(share * 100.0))).append("%");
    Show(text);
}

void fedeck_ProgressLine::Clear() {
    if (m_shown) m_err.print("\r\x1b[K");
    m_shown = false;
}
