#include "tools/fedeck_ProgressLine.h"

#include <unistd.h>

#include "support/aio_Stream.h"

fedeck_ProgressLine::fedeck_ProgressLine(aio_ostream& err, std::string what, bool terminal,
                                         Clock::duration delay)
    : m_err(err), m_what(std::move(what)), m_terminal(terminal), m_showFrom(Clock::now() + delay) {}

bool fedeck_ProgressLine::IsTerminal(aio_ostream const& err) {
    return &err == &aio_cerr() && isatty(2);
}

void fedeck_ProgressLine::Show(double share) {
    if (!m_terminal || Clock::now() < m_showFrom) return;
    m_shown = true;
    m_err.print("\rfedeck: ").print(m_what).print(": ") << static_cast<int>(share * 100.0) << "%";
    m_err.flush();
}

void fedeck_ProgressLine::Clear() {
    if (m_shown) m_err.print("\r\x1b[K");
    m_shown = false;
}
