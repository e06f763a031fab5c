#pragma once
#include <cstddef>
#include <memory>
#include <string_view>

#include "support/cow_String.h"

// Text streams of the system: a reader and a writer interface, each with a
// window of buffered characters that the common operations work on without a
// virtual call, and a virtual operation that refills or drains that window.
// The state bits and their meaning follow the standard streams.

class aio_ios {
  public:
    enum aio_iostate : unsigned { goodbit = 0, eofbit = 1, failbit = 2, badbit = 4 };

    bool good() const noexcept { return m_state == goodbit; }
    bool eof() const noexcept { return (m_state & eofbit) != 0; }
    // As in the standard streams, a stream that is bad has failed too.
    bool fail() const noexcept { return (m_state & (failbit | badbit)) != 0; }
    bool bad() const noexcept { return (m_state & badbit) != 0; }
    explicit operator bool() const noexcept { return !fail(); }
    bool operator!() const noexcept { return fail(); }

    unsigned rdstate() const noexcept { return m_state; }
    void clear(unsigned state = goodbit) noexcept { m_state = state; }
    void setstate(unsigned state) noexcept { m_state |= state; }

  protected:
    aio_ios() = default;
    ~aio_ios() = default;

  private:
    unsigned m_state = goodbit;
};

// A reader. A derived class supplies characters through refill(); extraction
// works on the window of characters refill() made available.
class aio_istream : public aio_ios {
  public:
    static constexpr int kEof = -1;

    aio_istream() = default;
    aio_istream(aio_istream const&) = delete;
    aio_istream& operator=(aio_istream const&) = delete;
    virtual ~aio_istream() = default;

    // As std::istream::getline: characters are stored until a '\n' (taken out
    // of the stream, not stored) or until size - 1 are stored; the buffer is
    // always terminated by a zero when size > 0. Storing size - 1 characters
    // without meeting the newline sets fail(): the rest of the line stays for
    // the next call, after clear(). End of input sets eof(), and fail() too
    // when nothing was extracted. Any byte other than '\n' is stored as it is,
    // zeros and a '\r' before the newline included. A stream that is not good()
    // extracts nothing and fails.
    aio_istream& getline(char* buffer, int size);
    // The next character as an unsigned char, or kEof (which sets eof() and fail()).
    int get() {
        if (m_next != m_end && good()) {
            m_gcount = 1;
            return static_cast<unsigned char>(*m_next++);
        }
        return getSlow();
    }
    // The next character without taking it, or kEof (which sets eof()).
    int peek();
    // Characters taken by the last getline() or get(), a taken newline included.
    int gcount() const noexcept { return m_gcount; }
    // Characters stored by the last getline(), without its terminating zero:
    // the stored line's length unless the line holds a zero byte itself.
    size_t storedCount() const noexcept { return m_stored; }

  protected:
    // Makes the next characters of the input available through setWindow and
    // returns true, or returns false at the end of the input. A read error sets
    // badbit before returning false.
    virtual bool refill() = 0;
    void setWindow(char const* begin, char const* end) noexcept {
        m_next = begin;
        m_end = end;
    }
    void discardWindow() noexcept { setWindow(nullptr, nullptr); }

  private:
    int getSlow();
    // True if a character is available, refilling as needed.
    bool ensureAvailable();

    char const* m_next = nullptr;
    char const* m_end = nullptr;
    int m_gcount = 0;
    size_t m_stored = 0;
};

// Reads a file through POSIX open/read into a large buffer of its own: one
// system call per buffer, none per line, and no allocation after open().
// The buffer size can be chosen at construction (tests use tiny ones to put
// lines across refills).
class aio_ifstream : public aio_istream {
  public:
    static constexpr size_t kDefaultBufferSize = size_t{1} << 20;

    explicit aio_ifstream(size_t bufferSize = kDefaultBufferSize);
    explicit aio_ifstream(char const* path, size_t bufferSize = kDefaultBufferSize);
    ~aio_ifstream() override;

    // Opens a file for reading and clears the state. A file already open is
    // closed first. A path that can't be opened, or names a directory, sets
    // fail() and returns false.
    bool open(char const* path);
    bool open(cow_String const& path) { return open(path.CStr()); }
    bool is_open() const noexcept { return m_fd >= 0; }
    aio_ifstream& getline(char* buffer, int size) {
        aio_istream::getline(buffer, size);
        return *this;
    }
    // Closing a stream that isn't open does nothing.
    void close() noexcept;

  protected:
    bool refill() override;

  private:
    int m_fd = -1;
    size_t m_bufferSize;
    std::unique_ptr<char[]> m_buffer;
};

// A writer. Derived classes decide where characters go: either through a
// window of buffer space that put() and write() fill directly, or through
// overflow() for every write when they set no window.
class aio_ostream : public aio_ios {
  public:
    aio_ostream() = default;
    aio_ostream(aio_ostream const&) = delete;
    aio_ostream& operator=(aio_ostream const&) = delete;
    virtual ~aio_ostream() = default;

    aio_ostream& write(char const* data, size_t length) {
        if (length <= static_cast<size_t>(m_limit - m_pos)) {
            if (length) std::char_traits<char>::copy(m_pos, data, length);
            m_pos += length;
        } else {
            overflow(data, length);
        }
        return *this;
    }
    aio_ostream& put(char c) {
        if (m_pos != m_limit)
            *m_pos++ = c;
        else
            overflow(&c, 1);
        return *this;
    }
    aio_ostream& print(char const* text);  // a null pointer prints nothing
    aio_ostream& print(cow_String const& text) {
        return write(text.CStr(), static_cast<size_t>(text.Length()));
    }
    aio_ostream& print(std::string_view text) { return write(text.data(), text.size()); }
    aio_ostream& print_int(long long value);
    aio_ostream& print_unsigned(unsigned long long value);
    // Shortest text that reads back as the same double, as cow_String::FromDouble.
    aio_ostream& print_double(double value);
    aio_ostream& flush();

    aio_ostream& operator<<(char const* text) { return print(text); }
    aio_ostream& operator<<(cow_String const& text) { return print(text); }
    aio_ostream& operator<<(std::string_view text) { return print(text); }
    aio_ostream& operator<<(char c) { return put(c); }
    aio_ostream& operator<<(int value) { return print_int(value); }
    aio_ostream& operator<<(long value) { return print_int(value); }
    aio_ostream& operator<<(long long value) { return print_int(value); }
    aio_ostream& operator<<(unsigned value) { return print_unsigned(value); }
    aio_ostream& operator<<(unsigned long value) { return print_unsigned(value); }
    aio_ostream& operator<<(unsigned long long value) { return print_unsigned(value); }
    aio_ostream& operator<<(double value) { return print_double(value); }

  protected:
    // Takes `length` characters that didn't fit the window. A buffering class
    // empties its window here (pendingBegin()..pendingEnd()) and sets a new one.
    virtual void overflow(char const* data, size_t length) = 0;
    // Sends everything buffered on; called by flush().
    virtual void sync() = 0;

    void setWindow(char* begin, char* end) noexcept {
        m_pos = begin;
        m_limit = end;
    }
    char* windowPosition() const noexcept { return m_pos; }

  private:
    char* m_pos = nullptr;
    char* m_limit = nullptr;
};

// Writes a file through POSIX open/write with a buffer of its own.
class aio_ofstream : public aio_ostream {
  public:
    static constexpr size_t kBufferSize = size_t{64} << 10;

    aio_ofstream();
    explicit aio_ofstream(char const* path);
    ~aio_ofstream() override;

    // Creates or truncates the file and clears the state; false (and fail())
    // when it can't be opened. A file already open is closed first.
    bool open(char const* path);
    bool is_open() const noexcept { return m_fd >= 0; }
    // Writes to a descriptor that is already open, such as standard output;
    // close() then flushes but leaves the descriptor open.
    void attach(int fd);
    // Writes what is buffered and closes; a write or close error sets bad().
    void close() noexcept;

  protected:
    void overflow(char const* data, size_t length) override;
    void sync() override;

  private:
    void writeAll(char const* data, size_t length) noexcept;
    void drainBuffer() noexcept;

    int m_fd = -1;
    bool m_ownsDescriptor = true;
    std::unique_ptr<char[]> m_buffer;
};

// Collects what is written in a cow_String.
class aio_ostringstream : public aio_ostream {
  public:
    cow_String const& Str() const noexcept { return m_text; }
    void Clear() { m_text = cow_String(); }

  protected:
    void overflow(char const* data, size_t length) override;
    void sync() override {}

  private:
    cow_String m_text;
};

// The process's error stream (standard error). It keeps no buffer of its own,
// so its output interleaves in order with other writers of standard error, and
// may be used from any thread.
aio_ostream& aio_cerr();
