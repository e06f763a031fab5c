// The progress line of long jobs: shown on a terminal only, only after its
// delay, rewritten in place and wiped at the end.

#include "tools/fedeck_ProgressLine.h"

#include <gtest/gtest.h>

#include <string>

#include "support/aio_Stream.h"

namespace {

std::string textOf(aio_ostringstream const& stream) {
    return std::string(stream.Str().View());
}

TEST(ProgressLine, ShowsTheShareOnATerminalAfterItsDelayAndWipesIt) {
    aio_ostringstream err;
    fedeck_ProgressLine line(err, true, std::chrono::seconds(0));
    line.ShowShare("writing out.vtu", 0.25);
    line.ShowShare("writing out.vtu", 0.999);
    EXPECT_EQ(textOf(err), "\rfedeck: writing out.vtu: 25%\rfedeck: writing out.vtu: 99%");
    line.Clear();
    EXPECT_EQ(textOf(err).substr(textOf(err).size() - 4), "\r\x1b[K");
}

TEST(ProgressLine, AQuickJobOrAStreamThatIsNoTerminalShowsNothing) {
    aio_ostringstream quick;
    fedeck_ProgressLine early(quick, true, std::chrono::hours(1));
    early.ShowShare("writing out.vtu", 0.5);
    early.Clear();
    EXPECT_EQ(textOf(quick), "");

    aio_ostringstream file;
    fedeck_ProgressLine notTerminal(file, false, std::chrono::seconds(0));
    notTerminal.ShowShare("writing out.vtu", 0.5);
    notTerminal.Clear();
    EXPECT_EQ(textOf(file), "");
    EXPECT_FALSE(fedeck_ProgressLine::IsTerminal(file));
}

}  // namespace
