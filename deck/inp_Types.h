#pragma once

// The types an input item can have, and the regular expressions that decide
// which type a piece of text is. The patterns are public because the grammars
// of set names and scoped ids across the whole system are defined by them;
// deck/inp_PatternMatchers.h holds hand-written equivalents for hot paths.
struct inp_Types {
    // Callers compare the numeric values, so they must never change.
    enum typeEnm { inp_INTEGER = 0, inp_BOOLEAN = 1, inp_REAL = 2, inp_STRING = 3, inp_NONE = 4 };

    // Each pattern is ECMAScript regular expression text, anchored at both
    // ends. Where a pattern reads backslash-t or backslash-n, the engine gets
    // the two characters and turns them into tab or newline itself.
    static char const* stringPat();
    static char const* integerPat();
    static char const* doublePat();
    // As doublePat, with the Fortran exponent letter d or D instead of e or E.
    static char const* doublePatD();
    static char const* paramPat();
    // Names (letter or underscore first, or quoted) joined by periods.
    static char const* setNamePat();
    // A chain of names, each followed by a period, ending in digits.
    static char const* scopedIDPat();
    static char const* fileNamePat();
    static char const* superelementIDPat();
    static char const* userElementIDPat();

    // The name given to the synthetic part that holds a flat deck's model.
    static char const* fakeName();
};
