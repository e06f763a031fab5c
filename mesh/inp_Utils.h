#pragma once
// Name and message utilities shared by every stage: how a name is taken apart
// and how a diagnostic about a keyword is worded. Every message about a
// keyword goes through MessageInKeyword, so that all of them begin alike and
// name keyword, file and line.
//
// Names: a double quote opens a quoted stretch and the next one closes it.
// Quoted stretches keep case and blanks, and a period inside one separates
// nothing. A name whose first character is a digit is an id. A scoped name is
// pieces joined by unquoted periods: the last piece is the set name or id,
// the ones before it name the instance.

#include "deck/inp_QuotedText.h"
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/inpM_OmiSet.h"

class inp_DataArray;
class inp_Keyword;

class inp_Utils {
  public:
    // -- name tests ------------------------------------------------------------

    // Whether the first character is a decimal digit ("" is no id).
    static bool IsId(cow_String const& name);
    // Whether the text matches inp_Types::setNamePat().
    static bool IsSetName(cow_String const& name);
    // More than one piece, and the last matches inp_Types::setNamePat().
    static bool IsScopedSetName(cow_List<cow_String> const& pieces);
    // More than one piece, and the last matches inp_Types::integerPat().
    static bool IsScopedSetId(cow_List<cow_String> const& pieces);
    static bool HasNameUnquotedPeriod(cow_String const& name);
    // Exactly one of SEGMENTS, CYLINDER, REVOLUTION, USER, BEZIER, BSPLINE.
    static bool IsAnalyticalSurfaceType(cow_String const& type);

    // -- name rewriting ------------------------------------------------------------

    // Every period, quoted or not, becomes an underscore; an id comes back
    // as it is.
    static cow_String RemovePeriod(cow_String const& name);
    // Drops the unquoted periods, keeping quotes. The result holds at most
    // kMaxRewrittenName characters; a name without an unquoted period comes
    // back as it is, whatever its length.
    static cow_String RemoveUnquotedPeriod(cow_String const& name);
    // The same, with an underscore for each unquoted period.
    static cow_String ReplaceUnquotedPeriodWithUnderscore(cow_String const& name);
    static constexpr int kMaxRewrittenName = 255;

    // Up to a newline or the end: outside quotes blanks, tabs and carriage
    // returns go and the rest is upper-cased; quoted text stays; quotes and
    // a final newline are kept.
    static cow_String TakeOutSpacesAndUpperOutsideQuoted(char const* text) {
        return inp_TakeOutSpacesAndUpperOutsideQuoted(text);
    }
    static cow_String TakeOutSpacesOutsideQuoted(char const* text) {
        return inp_TakeOutSpacesOutsideQuoted(text);
    }
    static cow_String TakeOutSpacesOutsideQuoted(cow_String const& text) {
        return inp_TakeOutSpacesOutsideQuoted(text);
    }
    static cow_String TakeOutSpacesAndUpperOutsideQuoted(cow_String const& text) {
        return inp_TakeOutSpacesAndUpperOutsideQuoted(text);
    }

    // The pieces between unquoted periods, quotes kept. There is always a
    // last piece: "" gives one empty piece, "a." gives "a" and "".
    static cow_List<cow_String> SplitScopedSet(cow_String const& name);

    // The name under which an item of an instance lives in a flattened model:
    // first, "_", second. A part that both starts and ends with a quote is
    // taken without them, and if either was quoted the whole result is
    // quoted once: "my inst" and a give "my inst_a" in quotes.
    static cow_String CreateFlattenedName(cow_String const& first, cow_String const& second);
    // CreateFlattenedName(first, CreateFlattenedName(second, third)).
    static cow_String CreateFlattenedName(cow_String const& first, cow_String const& second,
                                          cow_String const& third);

    // -- messages ------------------------------------------------------------------

    // "in keyword *NAME, file "x.inp", line 12: " — the file part only when
    // the keyword came from a named file (the name behind its last
    // backslash), the line part and its colon only for a line other than 0.
    static atr_String FormTitleForMessage(inp_Keyword const& keyword);
    // The title, then the text.
    static atr_String MessageInKeyword(inp_Keyword const& keyword, atr_String const& text);
    // The title, the text, ":\n" and the items joined by ", " on one line,
    // however many there are. An empty list still leaves the ":\n".
    static atr_String MessageInKeyword(inp_Keyword const& keyword, atr_String const& text,
                                       cow_List<int> const& items);
    static atr_String MessageInKeyword(inp_Keyword const& keyword, atr_String const& text,
                                       cow_List<cow_String> const& items);

    // Nothing for an empty list; otherwise the text, a newline and four
    // blanks, and the items joined by ", ".
    static atr_String MessageWithItems(cow_String const& text, cow_List<cow_String> const& items);
    // The same for labels, except that the first label stands twice: 7, 8
    // give "7, 7, 8". Messages and the tests of their readers rely on it.
    static atr_String MessageWithItems(cow_String const& text, cow_List<int> const& items);

    // -- generated id ranges (mesh/inp_SetRanges.cpp) -----------------------------
    // A row is start, end and an optional increment (0 or none counts as 1);
    // a bad row adds its message, which names `keyword`, to `errors` and
    // yields nothing. Empty fields are passed over. The sorted forms unite
    // the rows, the unsorted ones concatenate them in order; the scoped forms
    // take "instance.id" for start and end and give "id" or "instance.id".
    static inpM_OmiSet GenerateSetRow(cow_List<int> const& values, cow_String const& keyword,
                                      cow_List<atr_String>& errors);
    static cow_List<int> GenerateUnsortedSetRow(cow_List<int> const& values,
                                                cow_String const& keyword,
                                                cow_List<atr_String>& errors);
    static inpM_OmiSet GenerateSetIds(inp_DataArray const& data, cow_String const& keyword,
                                      cow_List<atr_String>& errors);
    static cow_List<int> GenerateUnsortedSetIds(inp_DataArray const& data,
                                                cow_String const& keyword,
                                                cow_List<atr_String>& errors);
    static cow_List<cow_String> GenerateScopedIds(inp_DataArray const& data,
                                                  cow_String const& keyword,
                                                  cow_List<atr_String>& errors);
    static cow_List<cow_String> GenerateUnsortedScopedIds(inp_DataArray const& data,
                                                          cow_String const& keyword,
                                                          cow_List<atr_String>& errors);
};
