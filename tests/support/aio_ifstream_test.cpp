#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/aio_Stream.h"

namespace {

class TempFile {
  public:
    explicit TempFile(std::string const& content) {
        static int counter = 0;
        m_path = std::filesystem::temp_directory_path() /
                 ("fedeck_aio_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
        std::ofstream(m_path, std::ios::binary) << content;
    }
    ~TempFile() { std::filesystem::remove(m_path); }
    char const* Path() const { return m_path.c_str(); }

  private:
    std::filesystem::path m_path;
};

// Buffer sizes that put every line across at least one refill, and the default.
std::vector<size_t> const kBufferSizes = {1, 2, 3, 7, 16, aio_ifstream::kDefaultBufferSize};

struct Line {
    std::string text;
    int gcount;
    bool eof;
    bool fail;
};

// The characters stored by the last getline, as the stream tells them: a
// taken newline is counted by gcount but not stored, and it was taken exactly
// when no state bit came up.
int storedCount(aio_istream const& in) {
    int const stored = static_cast<int>(in.storedCount());
    EXPECT_EQ(stored, in.good() ? in.gcount() - 1 : in.gcount());
    return stored;
}

Line readLine(aio_ifstream& in, int size) {
    std::vector<char> buffer(static_cast<size_t>(size) + 1, 'X');
    in.getline(buffer.data(), size);
    auto const stored = static_cast<size_t>(storedCount(in));
    EXPECT_EQ(buffer[stored], '\0');
    return {std::string(buffer.data(), stored), in.gcount(), in.eof(), in.fail()};
}

}  // namespace

TEST(AioIfstreamGetline, LinesAcrossRefillsComeOutWholeForEveryBufferSize) {
    TempFile file("alpha\nbe\n\nlonger line here\nx");
    for (size_t bufferSize : kBufferSizes) {
        SCOPED_TRACE(bufferSize);
        aio_ifstream in(bufferSize);
        ASSERT_TRUE(in.open(file.Path()));
        char buffer[64];
        std::vector<std::string> lines;
        std::vector<int> counts;
        while (in.getline(buffer, sizeof buffer)) {
            lines.emplace_back(buffer);
            counts.push_back(in.gcount());
        }
        EXPECT_EQ(lines, (std::vector<std::string>{"alpha", "be", "", "longer line here", "x"}));
        EXPECT_EQ(counts, (std::vector<int>{6, 3, 1, 17, 1}));
        EXPECT_TRUE(in.eof());
        EXPECT_EQ(in.gcount(), 0);
        EXPECT_STREQ(buffer, "");
    }
}

TEST(AioIfstreamGetline, EmptyFileFailsAtOnceWithEof) {
    TempFile file("");
    aio_ifstream in;
    ASSERT_TRUE(in.open(file.Path()));
    char buffer[8] = "junk";
    in.getline(buffer, sizeof buffer);
    EXPECT_TRUE(in.eof());
    EXPECT_TRUE(in.fail());
    EXPECT_FALSE(in.bad());
    EXPECT_EQ(in.gcount(), 0);
    EXPECT_STREQ(buffer, "");
}

TEST(AioIfstreamGetline, LineLongerThanBufferComesInPiecesWithFail) {
    TempFile file(std::string(20, 'a') + "\nnext\n");
    for (size_t bufferSize : kBufferSizes) {
        SCOPED_TRACE(bufferSize);
        aio_ifstream in(bufferSize);
        ASSERT_TRUE(in.open(file.Path()));
        Line piece = readLine(in, 8);
        EXPECT_EQ(piece.text, "aaaaaaa");
        EXPECT_EQ(piece.gcount, 7);
        EXPECT_TRUE(piece.fail);
        EXPECT_FALSE(piece.eof);
        // Failed, it reads nothing until cleared.
        EXPECT_TRUE(readLine(in, 8).fail);
        in.clear();
        EXPECT_EQ(readLine(in, 8).text, "aaaaaaa");
        in.clear();
        Line rest = readLine(in, 8);
        EXPECT_EQ(rest.text, "aaaaaa");
        EXPECT_EQ(rest.gcount, 7);
        EXPECT_FALSE(rest.fail);
        EXPECT_EQ(readLine(in, 8).text, "next");
    }
}

TEST(AioIfstreamGetline, LineOfExactlySizeMinusOneIsNotAFailureWithOrWithoutNewline) {
    TempFile file("abcdefg\nabcdefg");
    aio_ifstream in(5);
    ASSERT_TRUE(in.open(file.Path()));
    Line withNewline = readLine(in, 8);
    EXPECT_EQ(withNewline.text, "abcdefg");
    EXPECT_EQ(withNewline.gcount, 8);
    EXPECT_FALSE(withNewline.fail);
    Line atEnd = readLine(in, 8);
    EXPECT_EQ(atEnd.text, "abcdefg");
    EXPECT_TRUE(atEnd.eof);
    EXPECT_FALSE(atEnd.fail);
}

TEST(AioIfstreamGetline, TruncatedLineCanBeFinishedWithGetAsTheParserDoes) {
    // Keep the first piece, then look at the next character to learn whether
    // the line went on.
    TempFile file("123456789\n12345678\n");
    aio_ifstream in(4);
    ASSERT_TRUE(in.open(file.Path()));
    char buffer[9];
    in.getline(buffer, sizeof buffer);
    EXPECT_TRUE(in.fail());
    in.clear();
    EXPECT_EQ(in.get(), '9');
    EXPECT_EQ(in.get(), '\n');
    in.getline(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "12345678");
    EXPECT_FALSE(in.fail());
}

TEST(AioIfstreamGetline, CarriageReturnBeforeNewlineIsKept) {
    TempFile file("a\r\n\r\nb\r");
    aio_ifstream in(2);
    ASSERT_TRUE(in.open(file.Path()));
    EXPECT_EQ(readLine(in, 16).text, "a\r");
    EXPECT_EQ(readLine(in, 16).text, "\r");
    EXPECT_EQ(readLine(in, 16).text, "b\r");
}

TEST(AioIfstreamGetline, ZeroBytesInsideALineAreStored) {
    TempFile file(std::string("a\0b\0\nc", 6));
    aio_ifstream in(3);
    ASSERT_TRUE(in.open(file.Path()));
    char buffer[16];
    in.getline(buffer, sizeof buffer);
    ASSERT_EQ(in.gcount(), 5);
    EXPECT_EQ(in.storedCount(), 4u);
    EXPECT_EQ(std::memcmp(buffer, "a\0b\0\0", 5), 0);
    in.getline(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "c");
    EXPECT_EQ(in.storedCount(), 1u);
}

TEST(AioIfstreamGetline, BinaryContentReadInPiecesReassemblesExactly) {
    std::string content;
    for (int round = 0; round < 40; ++round)
        for (int byte = 0; byte < 256; ++byte)
            content.push_back(static_cast<char>((byte * 37 + round) & 0xFF));
    TempFile file(content);
    for (size_t bufferSize : {size_t{1}, size_t{7}, size_t{64}, aio_ifstream::kDefaultBufferSize}) {
        SCOPED_TRACE(bufferSize);
        aio_ifstream in(bufferSize);
        ASSERT_TRUE(in.open(file.Path()));
        std::string rebuilt;
        char buffer[5];
        while (in.getline(buffer, sizeof buffer), in.gcount() > 0) {
            rebuilt.append(buffer, static_cast<size_t>(storedCount(in)));
            if (in.good()) rebuilt.push_back('\n');
            if (in.eof()) break;
            in.clear();
        }
        EXPECT_EQ(rebuilt, content);
    }
}

TEST(AioIfstreamGetline, TenMegabyteLineArrivesInFullPieces) {
    size_t const length = 10u << 20;
    TempFile file(std::string(length, 'z') + "\nafter\n");
    aio_ifstream in;
    ASSERT_TRUE(in.open(file.Path()));
    std::vector<char> buffer(257);
    size_t total = 0;
    int pieces = 0;
    for (;;) {
        in.getline(buffer.data(), 257);
        if (!in.fail()) break;
        ASSERT_EQ(in.gcount(), 256);
        total += 256;
        ++pieces;
        in.clear();
    }
    // The length is a multiple of 256: the last piece ends right at the
    // newline, which is then taken without a failure.
    EXPECT_EQ(in.gcount(), 257);
    total += 256;
    EXPECT_EQ(total, length);
    EXPECT_EQ(pieces, static_cast<int>(length / 256) - 1);
    in.getline(buffer.data(), 257);
    EXPECT_STREQ(buffer.data(), "after");
}

TEST(AioIfstreamCharacters, GetAndPeekGiveUnsignedBytesThenEof) {
    TempFile file("a\xff");
    aio_ifstream in(1);
    ASSERT_TRUE(in.open(file.Path()));
    EXPECT_EQ(in.peek(), 'a');
    EXPECT_EQ(in.get(), 'a');
    EXPECT_EQ(in.gcount(), 1);
    EXPECT_EQ(in.peek(), 0xff);
    EXPECT_EQ(in.get(), 0xff);
    EXPECT_EQ(in.peek(), aio_istream::kEof);
    EXPECT_TRUE(in.eof());
    EXPECT_FALSE(in.fail());
    in.clear();
    EXPECT_EQ(in.get(), aio_istream::kEof);
    EXPECT_TRUE(in.eof());
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(in.gcount(), 0);
}

TEST(AioIfstreamOpen, MissingFileOrDirectoryFailsToOpen) {
    aio_ifstream in;
    EXPECT_FALSE(in.open("/nonexistent/fedeck/file.inp"));
    EXPECT_TRUE(in.fail());
    EXPECT_FALSE(in.is_open());
    EXPECT_FALSE(in.open(std::filesystem::temp_directory_path().c_str()));
    EXPECT_FALSE(in.is_open());
}

TEST(AioIfstreamOpen, ReopeningClearsStateAndStartsAtTheTop) {
    TempFile first("first\n");
    TempFile second("second\n");
    aio_ifstream in(4);
    ASSERT_TRUE(in.open(first.Path()));
    EXPECT_EQ(readLine(in, 16).text, "first");
    readLine(in, 16);
    EXPECT_TRUE(in.fail());
    ASSERT_TRUE(in.open(second.Path()));
    EXPECT_TRUE(in.good());
    EXPECT_EQ(readLine(in, 16).text, "second");
    in.close();
    EXPECT_FALSE(in.is_open());
    in.close();  // harmless
    ASSERT_TRUE(in.open(first.Path()));
    EXPECT_EQ(readLine(in, 16).text, "first");
}
