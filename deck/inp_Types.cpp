#include "deck/inp_Types.h"

// The escapes below are doubled so that the regular expression engine, not
// the compiler, reads \t, \n and \. -- with one exception in setNamePat.

char const* inp_Types::stringPat() {
    return "^[ \\t]*([a-zA-Z_][^,=\\n]*?)[ \\t]*$|^[ \\t]*(\"[^\"\\n]*\")[ \\t]*$";
}

char const* inp_Types::integerPat() {
    return "^[ \\t]*([-+]?[0-9]+)[ \\t]*$";
}

char const* inp_Types::doublePat() {
    return "^[ \\t]*([-+]?[0-9]*\\.[0-9]*)[ \\t]*$|^[ \\t]*([-+]?[0-9]*\\.?[0-9]*[eE][-+]?[0-9]+)[ "
           "\\t]*$";
}

char const* inp_Types::doublePatD() {
    return "^[ \\t]*([-+]?[0-9]*\\.[0-9]*)[ \\t]*$|^[ \\t]*([-+]?[0-9]*\\.?[0-9]*[dD][-+]?[0-9]+)[ "
           "\\t]*$";
}

char const* inp_Types::paramPat() {
    return "^[ \\t]*([a-zA-Z][-a-zA-Z0-9 \\t]*?[a-zA-Z0-9]*)[ \\t]*$";
}

// The quoted name of the repeated group excludes a real newline character
// rather than the escape. Both mean the same to the engine; the text is
// handed out exactly as it stands because callers may compare it.
char const* inp_Types::setNamePat() {
    return "^[ \\t]*((([a-zA-Z_][^,=\\n]*?)|(\"[^\"\\n]+\"))"
           "(\\.(([a-zA-Z_][^,=\\n]*?)|(\"[^\"\n]+\")))*?)[ \\t]*$";
}

char const* inp_Types::scopedIDPat() {
    return "^[ \\t]*(([a-zA-Z_][^\\.]*|\"[^\"]+\")\\.)*[0-9]+[ \\t]*$";
}

char const* inp_Types::fileNamePat() {
    return "^[ \\t]*([a-zA-Z0-9_$%/\\.][^,=\\n]*?)[ \\t]*$|^[ \\t]*(\"[^\"\\n]+\")[ \\t]*$";
}

char const* inp_Types::superelementIDPat() {
    return "^[ \\t]*([Zz][0-9]+)[ \\t]*$";
}

char const* inp_Types::userElementIDPat() {
    return "^[ \\t]*([Vv]*[Uu][0-9]+)[ \\t]*$";
}

char const* inp_Types::fakeName() {
    return "FAKE";
}
