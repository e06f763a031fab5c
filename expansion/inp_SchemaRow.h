#pragma once
// The vocabulary of one keyword: the parameter names it accepts and the words
// its enumerated parameters may take. Rows are constant data, grouped by
// family in the inp_Schema*.cpp files and found through inp_Schema.
//
// Word tables are null-terminated arrays of C strings and the order of their
// words is part of their meaning: a parameter name takes the first word of
// its table that it abbreviates (so `EL` on a table holding `elset` before
// `element` means `elset`), and an enumerated value must abbreviate exactly
// one word or be one word exactly. Parameter words are lower case without
// blanks; enumeration words are upper case.

#include <span>

#include "deck/inp_keywords.h"

using inp_WordTable = char const* const*;

// What the expansion does with a keyword, beside and beyond its words.
enum class inp_SchemaKind : unsigned char {
    Row,           // the words alone: names expanded, enumerations expanded
    Logic,         // the words, then checks of the keyword's own
    NoParameters,  // takes no parameter at all: every name given is unknown
    EndScope,      // closes a scope; takes no parameter
    Untouched,     // passed over as written: nothing expanded, nothing reported
};

// Some parameters take either a word or a value of another type; a guard
// leaves such a value alone instead of refusing it as an illegal word.
enum class inp_EnumGuard : unsigned char {
    None,
    SkipBoolean,  // written without `=value`: stays a true boolean
    SkipInteger,  // a number (a component, say) rather than a word
    SkipNumber,   // an integer or a floating value rather than a word
};

struct inp_SchemaEnum {
    char const* parameter;  // a word of the row's parameter table
    inp_WordTable words;
    inp_EnumGuard guard = inp_EnumGuard::None;
};

// A row is written with its key alone; the keyword's name comes from the
// keyword table (deck/inp_keywords.h), so that the two cannot disagree.
struct inp_SchemaRow {
    constexpr inp_SchemaRow(inp_KeywordEnm key, inp_SchemaKind kind, inp_WordTable parameters,
                            std::span<inp_SchemaEnum const> enumerations)
        : keyword(inp_KeywordTableName(key)),
          key(key),
          kind(kind),
          parameters(parameters),
          enumerations(enumerations) {}

    char const* keyword;  // the keyword table's name: lower case, no blanks
    inp_KeywordEnm key;
    inp_SchemaKind kind;
    inp_WordTable parameters;
    // Expanded in this order when the parameter is present; the order only
    // decides the order of the messages.
    std::span<inp_SchemaEnum const> enumerations;
};
