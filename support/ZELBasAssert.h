#pragma once
// The assertion of the support layer. A violated internal condition is a fault
// of the calling code, never of the deck: it throws ZELBasAssertException with
// the condition's text, so that tests and callers can tell which one failed.

[[noreturn]] void zelbas_AssertFailed(char const* condition, char const* file, int line);

#define ZELBAS_ASSERT(condition)                                               \
    do {                                                                       \
        if (!(condition)) zelbas_AssertFailed(#condition, __FILE__, __LINE__); \
    } while (false)

// For a condition whose text is given rather than derived from the code, such
// as the fixed texts a caller may test for.
#define ZELBAS_ASSERT_TEXT(condition, text)                                \
    do {                                                                   \
        if (!(condition)) zelbas_AssertFailed((text), __FILE__, __LINE__); \
    } while (false)
