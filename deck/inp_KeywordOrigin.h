#pragma once
// Where a keyword was read, and the comment lines written right above it.
//
// The keywords of a file mostly share both: the file's name, and no
// comments. So a keyword record holds one counted pointer to its origin
// instead of a name and a comment list of its own: the reader hands every
// keyword without comments the same origin, and only a commented keyword
// has one to itself. That keeps the record small, which every walk over a
// deck of many keywords pays for.
//
// Copy-on-write like the record's other parts: a copy shares the origin, and
// a change to one copy's name or comments gives that copy its own.

#include <utility>

#include "support/cow_List.h"
#include "support/cow_String.h"

class inp_KeywordOrigin {
  public:
    inp_KeywordOrigin() noexcept = default;
    // An origin of its own (none for an empty name).
    explicit inp_KeywordOrigin(cow_String const& fileName);
    inp_KeywordOrigin(inp_KeywordOrigin const& other) noexcept : m_shared(other.m_shared) {
        if (m_shared) ++m_shared->refs;
    }
    inp_KeywordOrigin(inp_KeywordOrigin&& other) noexcept
        : m_shared(std::exchange(other.m_shared, nullptr)) {}
    inp_KeywordOrigin& operator=(inp_KeywordOrigin const& other) noexcept {
        inp_KeywordOrigin(other).swap(*this);
        return *this;
    }
    inp_KeywordOrigin& operator=(inp_KeywordOrigin&& other) noexcept {
        inp_KeywordOrigin(std::move(other)).swap(*this);
        return *this;
    }
    ~inp_KeywordOrigin() {
        if (m_shared && --m_shared->refs == 0) drop(m_shared);
    }
    void swap(inp_KeywordOrigin& other) noexcept { std::swap(m_shared, other.m_shared); }

    cow_String const& FileName() const noexcept {
        return m_shared ? m_shared->fileName : s_noFileName;
    }
    cow_List<cow_String> const& Comments() const noexcept {
        return m_shared ? m_shared->comments : s_noComments;
    }
    void SetFileName(cow_String const& fileName);
    void SetComments(cow_List<cow_String> const& comments);
    void AddComment(cow_String const& comment);

    // The same file without comments: this very origin when it has none.
    inp_KeywordOrigin WithoutComments() const;

    bool SharesWith(inp_KeywordOrigin const& other) const noexcept {
        return m_shared == other.m_shared;
    }

  private:
    struct Shared {
        int refs = 1;
        cow_String fileName;
        cow_List<cow_String> comments;
    };
    // Out of line: most drops only count down.
    static void drop(Shared* shared) noexcept;
    // This origin's own block, copied from the shared one if need be.
    Shared& writable();

    static cow_String const s_noFileName;
    static cow_List<cow_String> const s_noComments;

    Shared* m_shared = nullptr;  // null: no file name and no comments
};
