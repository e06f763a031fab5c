#include "deck/inp_DeckFileLookup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

namespace fs = std::filesystem;

cow_String text(fs::path const& path) {
    return cow_String(path.string().c_str());
}

// Two fresh directories: the working directory of each test, and an include
// directory beside it. The process's working directory comes back after.
class DeckFileLookup : public ::testing::Test {
  protected:
    void SetUp() override {
        m_previous = fs::current_path();
        m_root =
            fs::temp_directory_path() / ("fedeck-lookup-" + std::to_string(std::random_device()()));
        fs::create_directories(m_root / "work");
        fs::create_directories(m_root / "include");
        fs::current_path(m_root / "work");
    }
    void TearDown() override {
        fs::current_path(m_previous);
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }

    static void write(fs::path const& path) { std::ofstream(path) << "1, 2\n"; }
    fs::path inWork(char const* name) const { return m_root / "work" / name; }
    fs::path inInclude(char const* name) const { return m_root / "include" / name; }
    cow_String includeDirectory() const { return text(m_root / "include"); }

  private:
    fs::path m_previous;
    fs::path m_root;
};

}  // namespace

TEST(DeckFileQuotes, OnlyAPairOfSurroundingQuotesComesOff) {
    EXPECT_EQ(inp_WithoutQuotes("\"my file.inp\""), "my file.inp");
    EXPECT_EQ(inp_WithoutQuotes("\"\""), "");
    for (char const* kept : {"plain.inp", "\"", "\"open.inp", "close.inp\"", "a\"b\".inp", ""})
        EXPECT_EQ(inp_WithoutQuotes(kept), kept) << kept;
}

TEST_F(DeckFileLookup, TheNameAsWrittenWinsOverTheIncludeDirectoryRelativeOrAbsolute) {
    write(inWork("mesh.inp"));
    write(inInclude("mesh.inp"));
    EXPECT_EQ(inp_LocateDeckFile("mesh.inp", includeDirectory()), "mesh.inp");
    cow_String const absolute = text(inWork("mesh.inp"));
    EXPECT_EQ(inp_LocateDeckFile(absolute, includeDirectory()), absolute);
    EXPECT_EQ(inp_LocateDeckFile(absolute, ""), absolute);
}

TEST_F(DeckFileLookup, ARelativeNameNotFoundAsWrittenIsTriedInTheIncludeDirectory) {
    write(inInclude("data.dat"));
    EXPECT_EQ(inp_LocateDeckFile("data.dat", includeDirectory()), text(inInclude("data.dat")));
    EXPECT_EQ(inp_LocateDeckFile("data.dat", ""), "");
}

TEST_F(DeckFileLookup, AQuotedNameIsLookedUpWithoutItsQuotesInBothPlaces) {
    write(inWork("my nodes.dat"));
    write(inInclude("my elements.dat"));
    EXPECT_EQ(inp_LocateDeckFile("\"my nodes.dat\"", includeDirectory()), "my nodes.dat");
    EXPECT_EQ(inp_LocateDeckFile("\"my elements.dat\"", includeDirectory()),
              text(inInclude("my elements.dat")));
}

// Existence is all that is tested: a directory is found, and the reader's
// own test then finds it unreadable.
TEST_F(DeckFileLookup, NothingFoundIsEmptyWhileADirectoryCountsAsFound) {
    EXPECT_EQ(inp_LocateDeckFile("absent.inp", includeDirectory()), "");
    EXPECT_EQ(inp_LocateDeckFile("sub/absent.inp", includeDirectory()), "");
    EXPECT_EQ(inp_LocateDeckFile(text(inWork("absent.inp")), includeDirectory()), "");
    EXPECT_EQ(inp_LocateDeckFile("", ""), "");
    fs::create_directories(inWork("folder.inp"));
    EXPECT_EQ(inp_LocateDeckFile("folder.inp", ""), "folder.inp");
}

// A missing file is listed once, by its last component and without quotes;
// "None" (no usable value) is no file.
TEST(DeckFileMissingList, ListsEachFileNameOnceAndNeverNone) {
    cow_List<cow_String> missing;
    inp_ListMissingDeckFile(missing, "\"sub dir/a b.inp\"");
    inp_ListMissingDeckFile(missing, "/elsewhere/a b.inp");
    inp_ListMissingDeckFile(missing, "None");
    inp_ListMissingDeckFile(missing, "c.dat");
    ASSERT_EQ(missing.Length(), 2);
    EXPECT_EQ(missing[0], "a b.inp");
    EXPECT_EQ(missing[1], "c.dat");
}
