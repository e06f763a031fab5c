#pragma once
// A hash of text for the parser's tables of names: transparent, so that a
// table keyed by std::string is asked with a view of the line being read and
// no string is made for the question.

#include <cstddef>
#include <functional>
#include <string_view>

struct inp_TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const noexcept {
        return std::hash<std::string_view>()(text);
    }
};
