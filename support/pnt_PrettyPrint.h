#pragma once
#include "support/aio_Stream.h"

// The debug printer. An entry is begun with StartDebug(__FILE__, __LINE__),
// filled with operator<<, and written as one line by EndDebug():
//
//     pnt_debugPrint().StartDebug(__FILE__, __LINE__);
//     pnt_debugPrint() << "Parse - File: " << name;
//     pnt_debugPrint().EndDebug();
//
// gives "inp_Parser.cpp:120: Parse - File: deck.inp". The entry is collected
// first and written with a single write, so entries of different threads
// don't interleave. There is one printer per thread; each writes to the error
// stream unless SetStream redirected it.
class pnt_PrettyPrint {
  public:
    pnt_PrettyPrint() = default;

    // Begins an entry prefixed by the file's last path component and the line.
    // An entry still open is ended first.
    void StartDebug(char const* file, int line);
    // Writes the entry and a newline, and flushes the stream.
    void EndDebug();

    template <class Value>
    pnt_PrettyPrint& operator<<(Value const& value) {
        m_entry << value;
        return *this;
    }

    // Sends later entries to `stream` (not owned), or back to the error stream
    // for a null pointer.
    void SetStream(aio_ostream* stream) { m_stream = stream; }
    aio_ostream& Stream() const { return m_stream ? *m_stream : aio_cerr(); }

  private:
    aio_ostringstream m_entry;
    aio_ostream* m_stream = nullptr;
};

// This thread's printer.
pnt_PrettyPrint& pnt_debugPrint();
