#pragma once
#include <map>
#include <mutex>
#include <string>

#include "support/cow_String.h"

// The host's command-line options, one per process: a map from option name to
// its text value (empty for a plain flag). Names are case-sensitive.
//
// The map keeps its own characters and hands out fresh strings, so that
// threads reading options at once share no reference counts; a lock makes
// reads safe against a host that changes options meanwhile.
class utl_CommandLine {
  public:
    // The process's instance (a thr_GlobalSingleton).
    static utl_CommandLine& Instance();

    bool IsMember(cow_String const& name) const;
    // The option must exist: ask IsMember first.
    cow_String ConstGetValue(cow_String const& name) const;
    void SetValue(cow_String const& name, cow_String const& value);
    void Remove(cow_String const& name);
    void Clear();
    int Size() const;

    // Adds the options of a command line (argv[0], the program, is skipped);
    // later ones replace earlier ones of the same name. Accepted forms:
    //   name=value, -name=value, --name=value   the value is everything after
    //                                           the first '=' and may be empty
    //   -name value, --name value               when the next argument isn't an
    //                                           option itself ("-1", "-.5" are values)
    //   -name, --name, name                     a flag: member with an empty value
    // An argument whose name is empty (such as "--" or "=x") is ignored.
    void Parse(int argc, char const* const* argv);

  private:
    mutable std::mutex m_lock;
    std::map<std::string, std::string, std::less<>> m_options;
};
