#include "support/utl_CommandLine.h"

#include <cctype>
#include <string_view>

#include "support/ZELBasAssert.h"
#include "support/thr_Singleton.h"

namespace {

bool isOption(char const* argument) {
    if (argument[0] != '-') return false;
    // A negative number is a value, not an option.
    unsigned char next = static_cast<unsigned char>(argument[1]);
    return !(std::isdigit(next) || next == '.');
}

std::string_view withoutDashes(std::string_view argument) {
    size_t dashes = 0;
    while (dashes < 2 && dashes < argument.size() && argument[dashes] == '-') ++dashes;
    return argument.substr(dashes);
}

}  // namespace

utl_CommandLine& utl_CommandLine::Instance() {
    return thr_GlobalSingleton<utl_CommandLine>::Instance();
}

bool utl_CommandLine::IsMember(cow_String const& name) const {
    std::lock_guard<std::mutex> lock(m_lock);
    return m_options.find(name.View()) != m_options.end();
}

cow_String utl_CommandLine::ConstGetValue(cow_String const& name) const {
    std::lock_guard<std::mutex> lock(m_lock);
    auto found = m_options.find(name.View());
    ZELBAS_ASSERT_TEXT(found != m_options.end(), "IsMember(name)");
    return cow_String(std::string_view(found->second));
}

void utl_CommandLine::SetValue(cow_String const& name, cow_String const& value) {
    std::lock_guard<std::mutex> lock(m_lock);
    m_options.insert_or_assign(std::string(name.View()), std::string(value.View()));
}

void utl_CommandLine::Remove(cow_String const& name) {
    std::lock_guard<std::mutex> lock(m_lock);
    auto found = m_options.find(name.View());
    if (found != m_options.end()) m_options.erase(found);
}

void utl_CommandLine::Clear() {
    std::lock_guard<std::mutex> lock(m_lock);
    m_options.clear();
}

int utl_CommandLine::Size() const {
    std::lock_guard<std::mutex> lock(m_lock);
    return static_cast<int>(m_options.size());
}

void utl_CommandLine::Parse(int argc, char const* const* argv) {
    for (int i = 1; i < argc; ++i) {
        std::string_view argument(argv[i]);
        bool const dashed = isOption(argv[i]);
        std::string_view body = dashed ? withoutDashes(argument) : argument;
        size_t equals = body.find('=');
        std::string_view name = body.substr(0, equals);
        if (name.empty()) continue;
        std::string_view value;
        if (equals != std::string_view::npos)
            value = body.substr(equals + 1);
        else if (dashed && i + 1 < argc && !isOption(argv[i + 1]))
            value = argv[++i];
        SetValue(cow_String(name), cow_String(value));
    }
}
