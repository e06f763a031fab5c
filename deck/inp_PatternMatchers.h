#pragma once
#include <string_view>

// Hand-written equivalents of the patterns of inp_Types, for code that types
// many values: a regular expression engine is far too slow for that. Each
// matcher answers exactly what rgx_match(text, inp_Types::xxxPat()) answers --
// whether it matches, and rgx_ReIterator::String() -- and a test holds them
// to it over a large set of generated texts. They allocate nothing.

struct inp_PatternMatch {
    bool matched = false;
    // What rgx_ReIterator::String() would give: a view into the matched text,
    // empty when nothing matched.
    std::string_view text;

    explicit operator bool() const noexcept { return matched; }
};

// "Blanks" below are blanks and tabs only; any other white space is an
// ordinary character to these patterns.
class inp_PatternMatchers {
  public:
    // The text without the blanks around it; empty when there is nothing else.
    static std::string_view WithoutOuterBlanks(std::string_view text) noexcept;
    // inp_Types::stringPat(): a name, or anything but quotes and newlines in
    // double quotes; the text without the blanks around it.
    static inp_PatternMatch MatchString(std::string_view text) noexcept;
    // inp_Types::integerPat(): optional sign and digits.
    static inp_PatternMatch MatchInteger(std::string_view text) noexcept;
    // inp_Types::doublePat() and doublePatD(): a number with a point, or
    // with an exponent letter (e/E, or d/D). Note that "e5" and "." match.
    static inp_PatternMatch MatchDouble(std::string_view text) noexcept;
    static inp_PatternMatch MatchDoubleD(std::string_view text) noexcept;
    // inp_Types::paramPat(): a letter, then letters, digits, minus, blanks.
    static inp_PatternMatch MatchParam(std::string_view text) noexcept;
    // inp_Types::setNamePat(): names joined by periods; the whole chain.
    static inp_PatternMatch MatchSetName(std::string_view text) noexcept;
    // inp_Types::scopedIDPat(). The pattern's only group is its repeated
    // "name." part, so the captured text is the LAST name with its period
    // ("a.b.7" gives "b."), or the whole text, blanks included, when there is
    // no name ("17").
    static inp_PatternMatch MatchScopedID(std::string_view text) noexcept;
    // inp_Types::fileNamePat(): like a name, but may also start with a digit
    // or one of _ $ % / . ; or a non-empty quoted text.
    static inp_PatternMatch MatchFileName(std::string_view text) noexcept;
    // inp_Types::superelementIDPat(): Z or z and digits.
    static inp_PatternMatch MatchSuperelementID(std::string_view text) noexcept;
    // inp_Types::userElementIDPat(): any number of V or v, U or u, digits.
    static inp_PatternMatch MatchUserElementID(std::string_view text) noexcept;
};
