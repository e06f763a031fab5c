#pragma once
// The program's standard output as a library stream, so that the deck's own
// printers write to it directly.

#include <memory>

#include "support/aio_Stream.h"

// Buffers writes and hands them to file descriptor 1 in large pieces: a
// printed deck may run to millions of lines. Flushed on flush() and on
// destruction; a failed write sets bad().
class fedeck_StdoutStream : public aio_ostream {
  public:
    static constexpr size_t kBufferSize = size_t{64} << 10;

    fedeck_StdoutStream();
    ~fedeck_StdoutStream() override;

  protected:
    void overflow(char const* data, size_t length) override;
    void sync() override;

  private:
    void writeAll(char const* data, size_t length) noexcept;
    void drainBuffer() noexcept;

    std::unique_ptr<char[]> m_buffer;
};
