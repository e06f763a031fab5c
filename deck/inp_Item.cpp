#include "deck/inp_Item.h"

#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "deck/inp_Exceptions.h"
#include "deck/inp_PatternMatchers.h"
#include "support/ZELBasAssert.h"
#include "support/atr_String.h"

namespace {

// A matched text is a view into the text; when it covers all of a string
// that holds it, the string is shared rather than copied.
cow_String textOf(std::string_view matched, cow_String const* whole) {
    if (whole && matched.data() == whole->CStr() &&
        matched.size() == static_cast<size_t>(whole->Length()))
        return *whole;
    return cow_String(matched);
}

// The matched numbers are short and must be terminated for atoi and atof;
// a long one goes to the heap. `convert` gets a writable copy.
template <class Convert>
auto convertTerminated(std::string_view number, Convert convert) {
    char buffer[64];
    if (number.size() >= sizeof buffer) {
        std::string copy(number);
        return convert(copy.data());
    }
    number.copy(buffer, number.size());
    buffer[number.size()] = 0;
    return convert(buffer);
}

int integerOf(std::string_view number) {
    return convertTerminated(number, [](char const* digits) { return std::atoi(digits); });
}

double realOf(std::string_view number) {
    return convertTerminated(number, [](char const* digits) { return std::atof(digits); });
}

// atof doesn't read a d or D exponent: the first D, else the first d,
// becomes e.
double realOfFortranForm(std::string_view number) {
    return convertTerminated(number, [](char* digits) {
        char* letter = std::strchr(digits, 'D');
        if (!letter) letter = std::strchr(digits, 'd');
        if (letter) *letter = 'e';
        return std::atof(digits);
    });
}

}  // namespace

inp_Item::inp_Item(int value) : m_type(inp_Types::inp_INTEGER), m_int(value) {}

inp_Item::inp_Item(bool flag) : m_type(inp_Types::inp_BOOLEAN), m_int(flag ? 1 : 0) {}

inp_Item::inp_Item(double value) : m_type(inp_Types::inp_REAL), m_double(value) {}

inp_Item::inp_Item(cow_String const& text) {
    inferFrom(text.View(), &text);
}

inp_Item::inp_Item(std::string_view text) {
    inferFrom(text, nullptr);
}

void inp_Item::inferFrom(std::string_view text, cow_String const* whole) {
    std::string_view value = inp_PatternMatchers::WithoutOuterBlanks(text);
    if (value.empty()) return;
    using Matchers = inp_PatternMatchers;
    if (inp_PatternMatch match = Matchers::MatchInteger(value)) {
        m_type = inp_Types::inp_INTEGER;
        m_int = integerOf(match.text);
    } else if ((match = Matchers::MatchSetName(
                    value))) {  // NOLINT(bugprone-branch-clone): the order decides
        m_type = inp_Types::inp_STRING;
        m_string = textOf(match.text, whole);
    } else if (Matchers::MatchScopedID(value)) {
        // The pattern's only group is the repeated "name." prefix; the item
        // is the whole scoped id, instance names and number together.
        m_type = inp_Types::inp_STRING;
        m_string = textOf(value, whole);
    } else if ((match = Matchers::MatchDouble(value))) {
        m_type = inp_Types::inp_REAL;
        m_double = realOf(match.text);
    } else if ((match = Matchers::MatchDoubleD(value))) {
        m_type = inp_Types::inp_REAL;
        m_double = realOfFortranForm(match.text);
    } else if ((match = Matchers::MatchFileName(value))) {
        m_type = inp_Types::inp_STRING;
        m_string = textOf(match.text, whole);
    }
}

void inp_Item::throwConversion(char const* format) const {
    throw inp_KeywordException(0, cow_String(), atr(format, AsString()));
}

int inp_Item::AsInt() const {
    if (m_type != inp_Types::inp_INTEGER)
        throwConversion("Value cannot be converted to an integer: %s");
    return m_int;
}

double inp_Item::AsDouble() const {
    if (m_type == inp_Types::inp_REAL) return m_double;
    if (m_type == inp_Types::inp_INTEGER) return m_int;
    throwConversion("Value cannot be converted to a double: %s");
}

bool inp_Item::AsBool() const {
    switch (m_type) {
        case inp_Types::inp_BOOLEAN:  // the flag is kept as 1 or 0
        case inp_Types::inp_INTEGER:
            return m_int != 0;
        case inp_Types::inp_REAL:
            return m_double != 0.0;
        case inp_Types::inp_STRING:
            return !m_string.IsEmpty();
        case inp_Types::inp_NONE:
            return false;
    }
    throwConversion("Value cannot be converted to a bool: %s");
}

cow_String inp_Item::AsString() const {
    switch (m_type) {
        case inp_Types::inp_BOOLEAN:
            return m_int != 0 ? "TRUE" : "FALSE";
        case inp_Types::inp_INTEGER:
            return cow_String::FromInt(m_int);
        case inp_Types::inp_REAL:
            return cow_String::FromDouble(m_double);
        case inp_Types::inp_STRING:
            return m_string;
        case inp_Types::inp_NONE:
            return "None";
    }
    ZELBAS_ASSERT_TEXT(false, "\"Unimplemented input file item type\" == 0");
    return cow_String();
}
