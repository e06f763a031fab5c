#pragma once
// A line-writing stream: whole strings are collected in a buffer and handed to
// the underlying stream when the buffer would pass its limit, and at the end.

#include "support/aio_Stream.h"
#include "support/cow_String.h"

class eli_eostream {
  public:
    eli_eostream(aio_ostream& out, int bufferLimit) : m_out(out), m_limit(bufferLimit) {}
    eli_eostream(eli_eostream const&) = delete;
    eli_eostream& operator=(eli_eostream const&) = delete;
    ~eli_eostream() { Flush(); }

    void Write(cow_String const& text) {
        if (m_buffer.Length() + text.Length() > m_limit) Flush();
        if (text.Length() > m_limit) {
            m_out.print(text);
            return;
        }
        m_buffer.append(text);
    }
    void Flush() {
        if (!m_buffer.IsEmpty()) m_out.print(m_buffer);
        m_buffer = cow_String();
        m_out.flush();
    }

  private:
    aio_ostream& m_out;
    int m_limit;
    cow_String m_buffer;
};
