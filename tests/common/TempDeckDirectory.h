#pragma once
// A temporary directory for the deck files of one test, removed afterwards.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/cow_String.h"

class TempDeckDirectory {
  public:
    TempDeckDirectory() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "fedeck-test-XXXXXX").string();
        char* made = mkdtemp(pattern.data());
        if (made) m_path = made;
    }
    ~TempDeckDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempDeckDirectory(TempDeckDirectory const&) = delete;
    TempDeckDirectory& operator=(TempDeckDirectory const&) = delete;

    // Writes `text` to the file `name` and returns its path.
    cow_String Write(std::string const& name, std::string const& text) const {
        std::ofstream(m_path / name, std::ios::binary) << text;
        return Path(name);
    }
    cow_String Path(std::string const& name) const {
        return cow_String((m_path / name).string().c_str());
    }
    cow_String Directory() const { return cow_String(m_path.string().c_str()); }

  private:
    std::filesystem::path m_path;
};
