#pragma once
#include "support/cow_String.h"

// A file path as a value. The text is kept as given (or as joined); the
// queries work on it with POSIX calls, and AbsolutePathName() folds it
// lexically, without resolving symbolic links.
class ZELBasUtlFilePath {
  public:
    ZELBasUtlFilePath() = default;
    explicit ZELBasUtlFilePath(cow_String const& path) : m_path(path) {}
    // `name` joined to `directory` with one '/'; an absolute name, or an empty
    // directory, leaves the name alone.
    ZELBasUtlFilePath(cow_String const& directory, cow_String const& name);

    void SetFilePath(cow_String const& directory, cow_String const& name);
    void SetPathName(cow_String const& path) { m_path = path; }

    // True if something exists at the path (after following symbolic links).
    bool Exists() const;
    // True if the path names a regular file that can be opened for reading.
    bool IsReadable() const;
    bool IsAbsolute() const { return m_path.StartsWith("/"); }
    bool IsEmpty() const { return m_path.IsEmpty(); }

    // The path as given or joined.
    cow_String const& PathName() const { return m_path; }
    // The last component: what follows the last '/'. Empty for a path that
    // ends in '/', so that "has a file name" is !FileName().IsEmpty().
    cow_String FileName() const;
    // Everything before the last '/': "" when there is none, "/" for a file
    // in the root directory.
    cow_String DirectoryName() const;
    // The path made absolute against the current directory, with empty and "."
    // components dropped and ".." taking away the component before it (never
    // going above "/"). No trailing '/', except for the root itself.
    cow_String AbsolutePathName() const;

    friend bool operator==(ZELBasUtlFilePath const& a, ZELBasUtlFilePath const& b) {
        return a.m_path == b.m_path;
    }

  private:
    cow_String m_path;
};
