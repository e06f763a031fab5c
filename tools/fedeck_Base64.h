#pragma once
// Base64 (RFC 4648, with padding) of a stream of bytes, written to a file as
// the bytes come: binary data inline in an XML file.

#include <cstddef>
#include <cstdio>

class fedeck_Base64Writer {
  public:
    explicit fedeck_Base64Writer(std::FILE* out) : m_out(out) {}
    fedeck_Base64Writer(fedeck_Base64Writer const&) = delete;
    fedeck_Base64Writer& operator=(fedeck_Base64Writer const&) = delete;

    void Write(void const* bytes, std::size_t count);
    // Encodes the last one or two bytes with padding and writes out what is
    // buffered. The writer can then start a new stream.
    void Finish();

  private:
    void encodeGroup(unsigned char const* group);
    void flush();

    static constexpr std::size_t kBufferSize = 1 << 16;
    std::FILE* m_out;
    unsigned char m_pending[3] = {};
    std::size_t m_pendingCount = 0;
    char m_buffer[kBufferSize];
    std::size_t m_used = 0;
};
