#include "tools/fedeck_StdoutStream.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

fedeck_StdoutStream::fedeck_StdoutStream() : m_buffer(new char[kBufferSize]) {
    setWindow(m_buffer.get(), m_buffer.get() + kBufferSize);
}

fedeck_StdoutStream::~fedeck_StdoutStream() {
    drainBuffer();
}

void fedeck_StdoutStream::writeAll(char const* data, size_t length) noexcept {
    while (length > 0 && !bad()) {
        ssize_t const written = ::write(STDOUT_FILENO, data, length);
        if (written < 0) {
            if (errno != EINTR) setstate(badbit);
            continue;
        }
        data += written;
        length -= static_cast<size_t>(written);
    }
}

void fedeck_StdoutStream::drainBuffer() noexcept {
    writeAll(m_buffer.get(), static_cast<size_t>(windowPosition() - m_buffer.get()));
    setWindow(m_buffer.get(), m_buffer.get() + kBufferSize);
}

void fedeck_StdoutStream::overflow(char const* data, size_t length) {
    drainBuffer();
    if (length >= kBufferSize) {
        writeAll(data, length);
        return;
    }
    std::memcpy(m_buffer.get(), data, length);
    setWindow(m_buffer.get() + length, m_buffer.get() + kBufferSize);
}

void fedeck_StdoutStream::sync() {
    drainBuffer();
}
