#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "support/aio_Stream.h"

TEST(AioOstreamText, NumbersAndTextsPrintInTheirExactForms) {
    aio_ostringstream out;
    out << "n=" << -42 << ' ' << 7u << ' ' << 1.5 << ' ' << 0.1 << ' ' << 1e300 << ' '
        << cow_String("cow");
    out.print_int(-9223372036854775807LL - 1)
        .put('|')
        .print(static_cast<char const*>(nullptr))
        .write("ab\0c", 4);
    using namespace std::string_view_literals;
    EXPECT_EQ(out.Str().View(), "n=-42 7 1.5 0.1 1e+300 cow-9223372036854775808|ab\0c"sv);
}

TEST(AioOfstream, WritesThatCrossItsBufferArriveWholeAndInOrder) {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("fedeck_ofstream_" + std::to_string(::getpid()));
    std::string expected;
    {
        aio_ofstream out;
        ASSERT_TRUE(out.open(path.c_str()));
        std::string const big(aio_ofstream::kBufferSize + 10, 'B');
        for (int i = 0; i < 20000; ++i) {
            out << i << ',';
            expected += std::to_string(i) + ',';
        }
        out.write(big.data(), big.size()).put('\n');
        expected += big + '\n';
        out.close();
        EXPECT_FALSE(out.bad());
        out << "after close";
        EXPECT_TRUE(out.bad());
    }
    std::ifstream in(path, std::ios::binary);
    std::stringstream written;
    written << in.rdbuf();
    EXPECT_EQ(written.str(), expected);
    std::filesystem::remove(path);
}

TEST(AioOfstream, UnwritablePathFailsToOpen) {
    aio_ofstream out;
    EXPECT_FALSE(out.open("/nonexistent/fedeck/out.txt"));
    EXPECT_TRUE(out.fail());
}
