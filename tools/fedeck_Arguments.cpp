#include "tools/fedeck_Arguments.h"

#include <string_view>

namespace {

// A command takes `operandCount` operands, or that many and more when
// `moreOperands`.
struct CommandForm {
    std::string_view name;
    fedeck_Command command;
    size_t operandCount;
    bool moreOperands;
    std::string_view operandNames;
};

constexpr CommandForm kCommands[] = {
    {"check", fedeck_Command::Check, 1, true, "at least one DECK"},
    {"tree", fedeck_Command::Tree, 1, false, "DECK"},
    {"model", fedeck_Command::Model, 1, false, "DECK"},
    {"convert", fedeck_Command::Convert, 2, false, "DECK and OUT"},
    {"encrypt", fedeck_Command::Encrypt, 2, false, "IN and OUT"},
};

struct FormatName {
    std::string_view name;
    fedeck_Format format;
};

constexpr FormatName kFormats[] = {
    {"text", fedeck_Format::Text},
    {"json", fedeck_Format::Json},
    {"sarif", fedeck_Format::Sarif},
    {"github", fedeck_Format::Github},
};

CommandForm const& findCommand(std::string_view name) {
    for (CommandForm const& form : kCommands)
        if (form.name == name) return form;
    throw fedeck_UsageError("unknown command '" + std::string(name) + "'");
}

// `fedeck help ...`, or --help among the options (an operand after `--` may
// be named so).
bool asksForHelp(int argc, char const* const* argv) {
    if (std::string_view(argv[1]) == "help") return true;
    for (int i = 1; i < argc; ++i) {
        std::string_view const argument = argv[i];
        if (argument == "--") return false;
        if (argument == "--help" || argument == "-h") return true;
    }
    return false;
}

// `fedeck version ...`, or --version among the options.
bool asksForVersion(int argc, char const* const* argv) {
    if (std::string_view(argv[1]) == "version") return true;
    for (int i = 1; i < argc; ++i) {
        std::string_view const argument = argv[i];
        if (argument == "--") return false;
        if (argument == "--version") return true;
    }
    return false;
}

bool takesOption(fedeck_Command command, std::string_view option) {
    switch (command) {
        case fedeck_Command::Check:
            return option == "--include-dir" || option == "--until" || option == "--json" ||
                   option == "--format" || option == "--jobs" || option == "--max-diagnostics" ||
                   option == "--restart-from";
        case fedeck_Command::Tree:
            return option == "--include-dir" || option == "--until" ||
                   option == "--max-diagnostics" || option == "--global";
        case fedeck_Command::Model:
            return option == "--include-dir" || option == "--until" || option == "--restart-from";
        case fedeck_Command::Convert:
            return option == "--include-dir" || option == "--max-diagnostics" ||
                   option == "--ascii";
        case fedeck_Command::Encrypt:
            return option == "--password";
        case fedeck_Command::Help:
        case fedeck_Command::Version:
            return false;
    }
    return false;
}

bool isKnownOption(std::string_view option) {
    return option == "--include-dir" || option == "--until" || option == "--json" ||
           option == "--format" || option == "--jobs" || option == "--password" ||
           option == "--max-diagnostics" || option == "--restart-from" || option == "--global" ||
           option == "--ascii";
}

// -j is the short form of --jobs.
std::string_view longName(std::string_view name) {
    return name == "-j" ? "--jobs" : name;
}

class ArgumentReader {
  public:
    ArgumentReader(int argc, char const* const* argv, CommandForm const& form)
        : m_argc(argc), m_argv(argv), m_form(form) {
        m_result.command = form.command;
    }

    fedeck_Arguments Read() {
        bool optionsEnded = false;
        for (m_next = 2; m_next < m_argc;) {
            std::string_view const argument = m_argv[m_next++];
            if (!optionsEnded && argument == "--")
                optionsEnded = true;
            else if (!optionsEnded && argument.size() > 1 && argument[0] == '-')
                readOption(argument);
            else
                m_result.operands.emplace_back(argument);
        }
        checkOperands();
        return m_result;
    }

  private:
    void readOption(std::string_view argument) {
        // -jN: the value joined to the short name, as make takes it.
        bool const joinedJobs = argument.starts_with("-j") && argument.size() > 2;
        size_t const equals = joinedJobs ? 1 : argument.find('=');
        std::string_view const name = longName(argument.substr(0, joinedJobs ? 2 : equals));
        if (!isKnownOption(name))
            throw fedeck_UsageError("unknown option '" + std::string(name) + "'");
        if (!takesOption(m_form.command, name))
            throw fedeck_UsageError("option '" + std::string(name) + "' does not apply to '" +
                                    std::string(m_form.name) + "'");
        if (name == "--json" || name == "--global" || name == "--ascii") {
            if (equals != std::string_view::npos)
                throw fedeck_UsageError("option '" + std::string(name) + "' takes no value");
            if (name == "--json")
                m_result.format = fedeck_Format::Json;
            else if (name == "--global")
                m_result.global = true;
            else
                m_result.ascii = true;
            return;
        }
        std::string const value = joinedJobs ? std::string(argument.substr(2))
                                  : equals != std::string_view::npos
                                      ? std::string(argument.substr(equals + 1))
                                      : takeValue(name);
        storeValue(name, value);
    }

    std::string takeValue(std::string_view option) {
        if (m_next >= m_argc)
            throw fedeck_UsageError("option '" + std::string(option) + "' needs a value");
        return m_argv[m_next++];
    }

    void storeValue(std::string_view option, std::string const& value) {
        if (option == "--include-dir")
            m_result.includeDir = value;
        else if (option == "--until")
            m_result.until = value;
        else if (option == "--restart-from")
            m_result.restartFrom = nonEmpty(option, value);
        else if (option == "--max-diagnostics")
            m_result.maxDiagnostics = diagnosticLimit(value);
        else if (option == "--format")
            m_result.format = formatNamed(value);
        else if (option == "--jobs")
            m_result.jobs = jobCount(value);
        else
            m_result.password = value;
    }

    static std::string const& nonEmpty(std::string_view option, std::string const& value) {
        if (value.empty())
            throw fedeck_UsageError("option '" + std::string(option) + "' needs a value");
        return value;
    }

    // A count of 0 or more, digits only.
    static int diagnosticLimit(std::string const& value) {
        bool const digits = !value.empty() && value.size() <= 9 &&
                            value.find_first_not_of("0123456789") == std::string::npos;
        if (!digits)
            throw fedeck_UsageError("option '--max-diagnostics' needs a count (0 or more), not '" +
                                    value + "'");
        return std::stoi(value);
    }

    static fedeck_Format formatNamed(std::string const& value) {
        for (FormatName const& known : kFormats)
            if (known.name == value) return known.format;
        throw fedeck_UsageError("option '--format' takes text, json, sarif or github, not '" +
                                value + "'");
    }

    // A number of decks to check at once: 1 or more, digits only.
    static int jobCount(std::string const& value) {
        bool const digits = !value.empty() && value.size() <= 6 &&
                            value.find_first_not_of("0123456789") == std::string::npos;
        if (!digits || std::stoi(value) == 0)
            throw fedeck_UsageError(
                "option '-j' needs a number of decks checked at once (1 or "
                "more), not '" +
                value + "'");
        return std::stoi(value);
    }

    void checkOperands() const {
        size_t const given = m_result.operands.size();
        if (given < m_form.operandCount || (given > m_form.operandCount && !m_form.moreOperands))
            throw fedeck_UsageError("'" + std::string(m_form.name) + "' needs " +
                                    std::string(m_form.operandNames));
        if (m_result.global && !m_result.until.empty())
            throw fedeck_UsageError(
                "'--until' does not apply to 'tree --global', which runs "
                "the whole road");
        if (!m_result.restartFrom.empty() && given > 1)
            throw fedeck_UsageError("a continuation job ('--restart-from') takes one DECK");
        if (!m_result.restartFrom.empty() && !m_result.until.empty())
            throw fedeck_UsageError(
                "'--until' does not apply to a continuation job ('--restart-from')");
        if (m_form.command == fedeck_Command::Convert && !m_result.operands[1].ends_with(".vtu"))
            throw fedeck_UsageError("'convert' writes a .vtu file, not '" + m_result.operands[1] +
                                    "'");
        if (m_form.command == fedeck_Command::Encrypt && m_result.password.empty())
            throw fedeck_UsageError("'encrypt' needs a non-empty --password");
    }

    int m_argc;
    char const* const* m_argv;
    CommandForm const& m_form;
    int m_next = 2;
    fedeck_Arguments m_result;
};

}  // namespace

fedeck_Arguments fedeck_ParseArguments(int argc, char const* const* argv) {
    if (argc < 2) throw fedeck_UsageError("no command given");
    if (asksForHelp(argc, argv)) return fedeck_Arguments{};
    if (asksForVersion(argc, argv)) {
        fedeck_Arguments version;
        version.command = fedeck_Command::Version;
        return version;
    }
    return ArgumentReader(argc, argv, findCommand(argv[1])).Read();
}
