#pragma once
// The writer behind the generated decks.

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

// Decks run to hundreds of megabytes: text is formatted straight into one big
// buffer and leaves it in large writes, never line by line.
class inp_ChunkedFile {
  public:
    static constexpr std::size_t kBufferSize = std::size_t{4} << 20;

    explicit inp_ChunkedFile(std::string const& path)
        : m_file(std::fopen(path.c_str(), "wb")), m_buffer(new char[kBufferSize]), m_path(path) {
        if (!m_file) throw std::runtime_error("cannot create deck file " + path);
    }
    inp_ChunkedFile(inp_ChunkedFile const&) = delete;
    inp_ChunkedFile& operator=(inp_ChunkedFile const&) = delete;
    ~inp_ChunkedFile() {
        if (m_file) std::fclose(m_file);
    }

    void Text(std::string_view text) {
        makeRoom(text.size());
        if (text.size() > kBufferSize) return writeOut(text.data(), text.size());
        text.copy(m_buffer.get() + m_used, text.size());
        m_used += text.size();
    }
    void Line(std::string_view text) {
        Text(text);
        EndLine();
    }
    void Integer(std::int64_t value) {
        makeRoom(kNumberRoom);
        char* at = m_buffer.get() + m_used;
        m_used += static_cast<std::size_t>(std::to_chars(at, at + kNumberRoom, value).ptr - at);
    }
    // Writes micros / 1e6 with exactly six decimals, as "-0.250000".
    void Fixed6(std::int64_t micros) {
        if (micros < 0) {
            Text("-");
            micros = -micros;
        }
        Integer(micros / 1000000);
        char fraction[8] = {'.', '0', '0', '0', '0', '0', '0', '\0'};
        std::int64_t rest = micros % 1000000;
        for (int digit = 6; digit >= 1 && rest > 0; --digit, rest /= 10)
            fraction[digit] = static_cast<char>('0' + rest % 10);
        Text(std::string_view(fraction, 7));
    }
    void Comma() { Text(", "); }
    void EndLine() { Text("\n"); }

    // Writes what is buffered, closes the file and returns the bytes written.
    std::uint64_t Finish() {
        flush();
        std::FILE* file = std::exchange(m_file, nullptr);
        if (std::fclose(file) != 0) throw std::runtime_error("cannot close deck file " + m_path);
        return m_written;
    }

  private:
    static constexpr std::size_t kNumberRoom = 24;

    void makeRoom(std::size_t size) {
        if (kBufferSize - m_used < size) flush();
    }
    void flush() {
        writeOut(m_buffer.get(), m_used);
        m_used = 0;
    }
    void writeOut(char const* data, std::size_t size) {
        if (std::fwrite(data, 1, size, m_file) != size)
            throw std::runtime_error("cannot write deck file " + m_path);
        m_written += size;
    }

    std::FILE* m_file;
    std::unique_ptr<char[]> m_buffer;
    std::size_t m_used = 0;
    std::uint64_t m_written = 0;
    std::string m_path;
};
