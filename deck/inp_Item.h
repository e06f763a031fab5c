#pragma once
#include <cstdint>
#include <string_view>

#include "deck/inp_Types.h"
#include "support/cow_String.h"

// One typed value of a keyword parameter, as in ELSET=top or DENSITY=7.8E3.
// A plain value: copying copies the fields (the text is shared copy-on-write).
// Only the field of the item's type means anything; the others are zero.
class inp_Item {
  public:
    // An item without a value.
    inp_Item() = default;
    explicit inp_Item(int value);
    explicit inp_Item(bool flag);
    explicit inp_Item(double value);
    // Typed by what the text looks like, trying in turn integer, set name,
    // scoped id, real (e or E exponent), real (d or D exponent), file name.
    // Text that fits none of these, or only blanks, gives an item without a
    // value. A string item keeps the matched text as written, quotes and case.
    explicit inp_Item(cow_String const& text);
    // The same, for text that is not held in a string yet.
    explicit inp_Item(std::string_view text);
    // Without this a string literal would pick the bool constructor.
    explicit inp_Item(char const* text) : inp_Item(cow_String(text)) {}

    inp_Types::typeEnm Type() const noexcept { return m_type; }

    // The value of an integer item; other types throw inp_KeywordException.
    int AsInt() const;
    // The value of a real item, or of an integer item widened; other types
    // throw inp_KeywordException.
    double AsDouble() const;
    // Whether the value is "set": the flag, a non-zero number, a non-empty
    // text; false without a value.
    bool AsBool() const;
    // "TRUE" or "FALSE", the number in the system's text form, the text, or
    // "None" without a value.
    cow_String AsString() const;
    // The text of a string item, read in place; null for the other types.
    cow_String const* IfString() const noexcept {
        return m_type == inp_Types::inp_STRING ? &m_string : nullptr;
    }

  private:
    // `whole`, when given, holds `text`: a string item that keeps all of it
    // shares it instead of copying.
    void inferFrom(std::string_view text, cow_String const* whole);
    [[noreturn]] void throwConversion(char const* format) const;

    inp_Types::typeEnm m_type = inp_Types::inp_NONE;
    std::int32_t m_int = 0;  // the integer, or 1 and 0 for a flag
    double m_double = 0.0;
    cow_String m_string;
};
