#pragma once
// A hash of text for the parser's tables of names: transparent, so that a
// table keyed by std::string is asked with a view of the line being read and
// no string is made for the question.

#include <cstddef>
#include <cstdint>
#include <string_view>

struct inp_TextHash {
    using is_transparent = void;
    // FNV-1a: the names asked for are a few characters long, where this
    // costs less than the library's hash for long text.
    size_t operator()(std::string_view text) const noexcept {
        std::uint64_t hash = 14695981039346656037ULL;
        for (char const c : text) {
            hash ^= static_cast<unsigned char>(c);
            hash *= 1099511628211ULL;
        }
        return static_cast<size_t>(hash);
    }
};
