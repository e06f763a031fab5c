#include "support/atr_String.h"

#include <unordered_map>
#include <utility>

namespace {

std::unordered_map<cow_String, cow_String>& catalogue() {
    thread_local std::unordered_map<cow_String, cow_String> entries;
    return entries;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

atr_String& atr_String::ReplaceNonTranslated(std::string_view placeholder,
                                             cow_String const& value) {
    Substitute(placeholder, value.View());
    return *this;
}

atr_String& atr_String::SetLocation(atr_Location location) {
    m_location = cow_CountedHld<atr_Location const>(new atr_Location(std::move(location)));
    return *this;
}

void atr_AddTranslation(cow_String const& format, cow_String const& translation) {
    catalogue()[format] = translation;
}

void atr_ClearTranslations() {
    catalogue().clear();
}

atr_translate::atr_translate(cow_String const& format) : m_format(format) {
    auto& entries = catalogue();
    if (!entries.empty()) {
        auto found = entries.find(format);
        if (found != entries.end()) m_format = found->second;
    }
}

void atr_translate::SetArgument(int number, cow_String const& value) {
    if (number < 1 || number > kMaxArguments) return;
    m_arguments[number - 1] = value;
    m_given[number - 1] = true;
}

atr_String atr_translate::Result(ZELBasStringMode) const {
    std::string_view format = m_format.View();
    if (format.find('%') == std::string_view::npos) return atr_String(m_format);
    atr_String result;
    result.Reserve(m_format.Length() + 32);
    int nextSequential = 0;
    size_t i = 0;
    while (i < format.size()) {
        char c = format[i];
        if (c != '%' || i + 1 >= format.size()) {
            result.append(c);
            ++i;
            continue;
        }
        char next = format[i + 1];
        if (next == '%') {
            result.append('%');
            i += 2;
        } else if (next == 's' || next == 'd') {
            int index = nextSequential++;
            if (index < kMaxArguments && m_given[index]) {
                result.append(m_arguments[index]);
            } else {
                result.append(format.substr(i, 2));
            }
            i += 2;
        } else if (isDigit(next) && i + 3 < format.size() + 0 && format[i + 2] == '$' &&
                   (format[i + 3] == 's' || format[i + 3] == 'd')) {
            int index = next - '1';
            if (index >= 0 && index < kMaxArguments && m_given[index]) {
                result.append(m_arguments[index]);
            } else {
                result.append(format.substr(i, 4));
            }
            i += 4;
        } else {
            result.append(c);
            ++i;
        }
    }
    return result;
}

void atr_SubstituteFormat(atr_translate& translate, int number, cow_String const& value,
                          ZELBasStringMode) {
    translate.SetArgument(number, value);
}

atr_String atr_format(cow_String const& format, std::initializer_list<atr_Argument> arguments,
                      ZELBasStringMode mode) {
    atr_translate translate(format);
    int number = 1;
    for (atr_Argument const& argument : arguments)
        atr_SubstituteFormat(translate, number++, argument.Text(), mode);
    return translate.Result(mode);
}
