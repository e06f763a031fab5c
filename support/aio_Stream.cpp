#include "support/aio_Stream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>

// ---- aio_istream --------------------------------------------------------

bool aio_istream::ensureAvailable() {
    while (m_next == m_end) {
        if (!refill()) {
            discardWindow();
            return false;
        }
    }
    return true;
}

aio_istream& aio_istream::getline(char* buffer, int size) {
    unsigned newState = goodbit;
    size_t stored = 0;
    bool tookNewline = false;
    if (good()) {
        size_t const room = size > 0 ? static_cast<size_t>(size) - 1 : 0;
        for (;;) {
            if (!ensureAvailable()) {
                newState |= eofbit;
                break;
            }
            if (stored == room) {
                // The buffer is full; only a newline right here ends the line in time.
                if (*m_next == '\n') {
                    ++m_next;
                    tookNewline = true;
                } else {
                    newState |= failbit;
                }
                break;
            }
            size_t const scan = std::min(static_cast<size_t>(m_end - m_next), room - stored);
            auto const* newline = static_cast<char const*>(std::memchr(m_next, '\n', scan));
            size_t const count = newline ? static_cast<size_t>(newline - m_next) : scan;
            std::memcpy(buffer + stored, m_next, count);
            stored += count;
            m_next += count;
            if (newline) {
                ++m_next;
                tookNewline = true;
                break;
            }
        }
    }
    if (size > 0) buffer[stored] = '\0';
    m_stored = stored;
    m_gcount = static_cast<int>(stored) + (tookNewline ? 1 : 0);
    if (m_gcount == 0) newState |= failbit;
    setstate(newState);
    return *this;
}

int aio_istream::getSlow() {
    m_gcount = 0;
    if (!good()) {
        setstate(failbit);
        return kEof;
    }
    if (!ensureAvailable()) {
        setstate(eofbit | failbit);
        return kEof;
    }
    m_gcount = 1;
    return static_cast<unsigned char>(*m_next++);
}

int aio_istream::peek() {
    m_gcount = 0;
    if (!good()) {
        setstate(failbit);
        return kEof;
    }
    if (!ensureAvailable()) {
        setstate(eofbit);
        return kEof;
    }
    return static_cast<unsigned char>(*m_next);
}

// ---- aio_ifstream -------------------------------------------------------

aio_ifstream::aio_ifstream(size_t bufferSize) : m_bufferSize(std::max<size_t>(bufferSize, 1)) {}

aio_ifstream::aio_ifstream(char const* path, size_t bufferSize) : aio_ifstream(bufferSize) {
    open(path);
}

aio_ifstream::~aio_ifstream() {
    close();
}

bool aio_ifstream::open(char const* path) {
    close();
    if (!path) {
        setstate(failbit);
        return false;
    }
    int fd = ::open(path, O_RDONLY | O_CLOEXEC);
    struct stat info {};
    // A directory opens under POSIX but can't be read as text: refuse it here,
    // where the caller asks whether the file can be read.
    if (fd >= 0 && (::fstat(fd, &info) != 0 || S_ISDIR(info.st_mode))) {
        ::close(fd);
        fd = -1;
    }
    if (fd < 0) {
        setstate(failbit);
        return false;
    }
    ::posix_fadvise(fd, 0, 0, POSIX_FADV_SEQUENTIAL);
    // Left uninitialised on purpose: every byte is written by read() before use.
    if (!m_buffer) m_buffer.reset(new char[m_bufferSize]);
    m_fd = fd;
    clear();
    return true;
}

void aio_ifstream::close() noexcept {
    if (m_fd >= 0) ::close(m_fd);
    m_fd = -1;
    discardWindow();
}

bool aio_ifstream::refill() {
    if (m_fd < 0) return false;
    for (;;) {
        ssize_t got = ::read(m_fd, m_buffer.get(), m_bufferSize);
        if (got > 0) {
            setWindow(m_buffer.get(), m_buffer.get() + got);
            return true;
        }
        if (got == 0) return false;
        if (errno != EINTR) {
            setstate(badbit);
            return false;
        }
    }
}

// ---- aio_ostream --------------------------------------------------------

aio_ostream& aio_ostream::print(char const* text) {
    if (text) write(text, std::strlen(text));
    return *this;
}

aio_ostream& aio_ostream::print_int(long long value) {
    char digits[24];
    auto result = std::to_chars(digits, digits + sizeof digits, value);
    return write(digits, static_cast<size_t>(result.ptr - digits));
}

aio_ostream& aio_ostream::print_unsigned(unsigned long long value) {
    char digits[24];
    auto result = std::to_chars(digits, digits + sizeof digits, value);
    return write(digits, static_cast<size_t>(result.ptr - digits));
}

aio_ostream& aio_ostream::print_double(double value) {
    char digits[40];
    auto result = std::to_chars(digits, digits + sizeof digits, value);
    return write(digits, static_cast<size_t>(result.ptr - digits));
}

aio_ostream& aio_ostream::flush() {
    sync();
    return *this;
}

// ---- aio_ofstream -------------------------------------------------------

aio_ofstream::aio_ofstream() = default;

aio_ofstream::aio_ofstream(char const* path) {
    open(path);
}

aio_ofstream::~aio_ofstream() {
    close();
}

bool aio_ofstream::open(char const* path) {
    close();
    int fd = path ? ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666) : -1;
    if (fd < 0) {
        setstate(failbit);
        return false;
    }
    attach(fd);
    m_ownsDescriptor = true;
    return true;
}

void aio_ofstream::attach(int fd) {
    close();
    if (!m_buffer) m_buffer.reset(new char[kBufferSize]);
    m_fd = fd;
    m_ownsDescriptor = false;
    setWindow(m_buffer.get(), m_buffer.get() + kBufferSize);
    clear();
}

void aio_ofstream::close() noexcept {
    if (m_fd < 0) return;
    drainBuffer();
    if (m_ownsDescriptor && ::close(m_fd) != 0) setstate(badbit);
    m_fd = -1;
    setWindow(nullptr, nullptr);
}

void aio_ofstream::writeAll(char const* data, size_t length) noexcept {
    while (length > 0) {
        ssize_t written = ::write(m_fd, data, length);
        if (written < 0) {
            if (errno == EINTR) continue;
            setstate(badbit);
            return;
        }
        data += written;
        length -= static_cast<size_t>(written);
    }
}

void aio_ofstream::drainBuffer() noexcept {
    writeAll(m_buffer.get(), static_cast<size_t>(windowPosition() - m_buffer.get()));
    setWindow(m_buffer.get(), m_buffer.get() + kBufferSize);
}

void aio_ofstream::overflow(char const* data, size_t length) {
    if (m_fd < 0) {
        setstate(badbit);
        return;
    }
    drainBuffer();
    if (length >= kBufferSize) {
        writeAll(data, length);
        return;
    }
    std::memcpy(m_buffer.get(), data, length);
    setWindow(m_buffer.get() + length, m_buffer.get() + kBufferSize);
}

void aio_ofstream::sync() {
    if (m_fd >= 0) drainBuffer();
}

// ---- aio_ostringstream, aio_cerr ----------------------------------------

void aio_ostringstream::overflow(char const* data, size_t length) {
    m_text.append(data, static_cast<int>(length));
}

namespace {

// Goes through stdio's unbuffered stderr, whose lock keeps one write whole
// when several threads report at once.
class aio_stderrstream final : public aio_ostream {
  protected:
    void overflow(char const* data, size_t length) override {
        std::fwrite(data, 1, length, stderr);
    }
    void sync() override { std::fflush(stderr); }
};

}  // namespace

aio_ostream& aio_cerr() {
    // Never destroyed: code running at process exit may still report.
    static aio_stderrstream* const stream = new aio_stderrstream;
    return *stream;
}
