// The fedeck program: checks decks, prints their keyword tree, writes
// encrypted include files. See fedeck_UsageText() for the command line.

#include "pipeline/inp_Module.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Commands.h"

namespace {

// Brings the deck module up for the program's lifetime, and down again in
// the reverse order once the output is out.
class DeckModule {
  public:
    DeckModule() { ZELI2sInpMod_initialize(m_moduleCount); }
    ~DeckModule() { ZELI2sInpMod_finalize(m_moduleCount); }
    DeckModule(DeckModule const&) = delete;
    DeckModule& operator=(DeckModule const&) = delete;

  private:
    int m_moduleCount = 0;
};

}  // namespace

int main(int argc, char** argv) {
    DeckModule const module;
    aio_ofstream out;
    out.attach(1);  // standard output, buffered: a printed deck may run to millions of lines
    fedeck_LeaveModelsToProcessExit();
    return fedeck_Main(argc, argv, out, aio_cerr());
}
