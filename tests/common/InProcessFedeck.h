#pragma once
// The fedeck program run inside the test process, through fedeck_Main on
// string streams: the deck module brought up once for the test program, the
// outcome of a command line, and its output taken apart line by line.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pipeline/inp_Module.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Commands.h"

// Brings the deck module up once for the whole test program; a test file
// registers it with testing::AddGlobalTestEnvironment.
class DeckModuleEnvironment : public testing::Environment {
  public:
    void SetUp() override { ZELI2sInpMod_initialize(m_count); }
    void TearDown() override { ZELI2sInpMod_finalize(m_count); }

  private:
    int m_count = 0;
};

struct FedeckOutcome {
    int status;
    std::string out;
    std::string err;
};

// Runs `fedeck ARGUMENTS...` in this process.
inline FedeckOutcome RunFedeckInProcess(std::vector<std::string> const& arguments) {
    std::vector<char const*> argv{"fedeck"};
    for (std::string const& argument : arguments) argv.push_back(argument.c_str());
    aio_ostringstream out;
    aio_ostringstream err;
    int const status = fedeck_Main(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, std::string(out.Str().View()), std::string(err.Str().View())};
}

// The lines of `text`, without their line breaks.
inline std::vector<std::string> LinesOf(std::string const& text) {
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();) {
        size_t const end = text.find('\n', start);
        lines.push_back(text.substr(start, end - start));
        start = end == std::string::npos ? text.size() : end + 1;
    }
    return lines;
}
