#pragma once
#include <initializer_list>
#include <string_view>

#include "support/cow_COW.h"
#include "support/cow_String.h"

// Passed through message formatting to the catalogue; the system uses the
// default mode. A distinct type, so that atr() can tell it from an int argument.
enum ZELBasStringMode : int { zel_DefaultStringMode = 0 };

// The operations shared by cow_String and atr_String live in cow_String.
using atr_StringBase = cow_String;

// Where a message points: the deck file, the line in it and the keyword of
// that line. Each part may be unknown. It travels with the message as data
// beside the text, so that every form of output (text, JSON, an editor) can
// use it without reading it out of the words.
struct atr_Location {
    cow_String file;     // as the parser opened it; empty when unknown
    int line = 0;        // 1-based; 0 when unknown
    cow_String keyword;  // the keyword's name in upper case, without the star; empty when none
};

// A string that carries a message: what passes through the diagnostic system.
// A message may carry a location. The location is shared by the copies of a
// message, and text operations (append, replace) leave it as it is; equality
// compares the text alone.
class atr_String : public cow_String {
  public:
    using cow_String::cow_String;
    atr_String() = default;
    atr_String(cow_String const& text) : cow_String(text) {}  // NOLINT: a message is any string
    atr_String(cow_String&& text) : cow_String(std::move(text)) {}  // NOLINT

    // Replaces every occurrence of `placeholder` by `value`, without translation.
    atr_String& ReplaceNonTranslated(std::string_view placeholder, cow_String const& value);

    // The place the message concerns, or null when it has none.
    atr_Location const* Location() const noexcept { return m_location.Get(); }
    // Gives the message a location, replacing any it had.
    atr_String& SetLocation(atr_Location location);

  private:
    cow_CountedHld<atr_Location const> m_location;
};

// A message format after lookup in the catalogue, with its arguments as they
// are substituted. `%s` and `%d` take the arguments in turn, `%1$s`..`%4$s`
// (or `$d`) by number; `%%` is a percent sign. A placeholder without an
// argument stays as written.
class atr_translate {
  public:
    explicit atr_translate(cow_String const& format);
    cow_String const& Format() const { return m_format; }
    void SetArgument(int number, cow_String const& value);
    atr_String Result(ZELBasStringMode mode) const;

  private:
    static constexpr int kMaxArguments = 4;
    cow_String m_format;
    cow_String m_arguments[kMaxArguments];
    bool m_given[kMaxArguments] = {};
};

void atr_SubstituteFormat(atr_translate& translate, int number, cow_String const& value,
                          ZELBasStringMode mode);

// The message catalogue of this thread: a format registered here is replaced by
// its translation before substitution. Empty unless a host fills it.
void atr_AddTranslation(cow_String const& format, cow_String const& translation);
void atr_ClearTranslations();

// One argument of atr(): text or an integer, held as its text.
class atr_Argument {
  public:
    atr_Argument(char const* text) : m_text(text) {}                 // NOLINT
    atr_Argument(cow_String const& text) : m_text(text) {}           // NOLINT
    atr_Argument(int value) : m_text(cow_String::FromInt(value)) {}  // NOLINT
    atr_Argument(ZELBasStringMode) = delete;                         // a mode is never an argument
    cow_String const& Text() const { return m_text; }

  private:
    cow_String m_text;
};

atr_String atr_format(cow_String const& format, std::initializer_list<atr_Argument> arguments,
                      ZELBasStringMode mode);

// atr(format, args..., mode): translate the format, substitute up to four
// arguments. The trailing mode is optional.
inline atr_String atr(cow_String const& format, ZELBasStringMode mode = zel_DefaultStringMode) {
    return atr_format(format, {}, mode);
}
template <class... Args>
atr_String atr(cow_String const& format, Args const&... args) {
    static_assert(sizeof...(Args) <= 4, "atr takes at most four arguments");
    return atr_format(format, {atr_Argument(args)...}, zel_DefaultStringMode);
}
template <class A1>
atr_String atr(cow_String const& format, A1 const& a1, ZELBasStringMode mode) {
    return atr_format(format, {atr_Argument(a1)}, mode);
}
template <class A1, class A2>
atr_String atr(cow_String const& format, A1 const& a1, A2 const& a2, ZELBasStringMode mode) {
    return atr_format(format, {atr_Argument(a1), atr_Argument(a2)}, mode);
}
template <class A1, class A2, class A3>
atr_String atr(cow_String const& format, A1 const& a1, A2 const& a2, A3 const& a3,
               ZELBasStringMode mode) {
    return atr_format(format, {atr_Argument(a1), atr_Argument(a2), atr_Argument(a3)}, mode);
}
template <class A1, class A2, class A3, class A4>
atr_String atr(cow_String const& format, A1 const& a1, A2 const& a2, A3 const& a3, A4 const& a4,
               ZELBasStringMode mode) {
    return atr_format(
        format, {atr_Argument(a1), atr_Argument(a2), atr_Argument(a3), atr_Argument(a4)}, mode);
}

// A message that is not translated: the text as it stands.
inline atr_String atr_raw(cow_String const& text) {
    return atr_String(text);
}
