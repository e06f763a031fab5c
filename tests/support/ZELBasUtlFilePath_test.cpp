#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/ZELBasUtlFilePath.h"

namespace {

std::string currentDirectory() {
    return std::filesystem::current_path().string();
}

}  // namespace

TEST(FilePathJoin, DirectoryAndNameMeetAtOneSlash) {
    EXPECT_EQ(ZELBasUtlFilePath("dir", "deck.inp").PathName(), "dir/deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath("dir/", "deck.inp").PathName(), "dir/deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath("/", "deck.inp").PathName(), "/deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath("", "deck.inp").PathName(), "deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath("dir", "/abs/deck.inp").PathName(), "/abs/deck.inp");
    ZELBasUtlFilePath path(cow_String("old"));
    path.SetFilePath("lib", "material.odb");
    EXPECT_EQ(path.PathName(), "lib/material.odb");
}

TEST(FilePathParts, FileNameIsTheLastComponent) {
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("a/b/deck.inp")).FileName(), "deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("deck.inp")).FileName(), "deck.inp");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("a/b/")).FileName(), "");
    EXPECT_EQ(ZELBasUtlFilePath().FileName(), "");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("a/b/deck.inp")).DirectoryName(), "a/b");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("/deck.inp")).DirectoryName(), "/");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("deck.inp")).DirectoryName(), "");
}

TEST(FilePathAbsolute, FoldsDotsLexicallyAgainstTheCurrentDirectory) {
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("/a/./b//c/../d/")).AbsolutePathName(), "/a/b/d");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("/../..")).AbsolutePathName(), "/");
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("/a/..")).AbsolutePathName(), "/");
    std::string const cwd = currentDirectory();
    EXPECT_EQ(ZELBasUtlFilePath(cow_String("x/./y.inp")).AbsolutePathName(),
              cow_String((cwd + "/x/y.inp").c_str()));
    ZELBasUtlFilePath parent(cow_String(".."));
    EXPECT_EQ(parent.AbsolutePathName(),
              cow_String(std::filesystem::path(cwd).parent_path().c_str()));
}

TEST(FilePathQueries, ExistsAndReadableTellFilesFromDirectoriesAndNothing) {
    std::filesystem::path dir =
        std::filesystem::temp_directory_path() / ("fedeck_path_" + std::to_string(::getpid()));
    std::filesystem::create_directories(dir);
    std::ofstream(dir / "deck.inp") << "*HEADING\n";

    ZELBasUtlFilePath file(cow_String(dir.c_str()), "deck.inp");
    EXPECT_TRUE(file.Exists());
    EXPECT_TRUE(file.IsReadable());

    ZELBasUtlFilePath directory{cow_String(dir.c_str())};
    EXPECT_TRUE(directory.Exists());
    EXPECT_FALSE(directory.IsReadable());

    ZELBasUtlFilePath missing(cow_String(dir.c_str()), "missing.inp");
    EXPECT_FALSE(missing.Exists());
    EXPECT_FALSE(missing.IsReadable());
    EXPECT_FALSE(ZELBasUtlFilePath().Exists());

    std::filesystem::remove_all(dir);
}
