#include "support/ZELBasUtlFilePath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <vector>

namespace {

cow_String joined(cow_String const& directory, cow_String const& name) {
    if (directory.IsEmpty() || name.StartsWith("/")) return name;
    if (directory.EndsWith("/")) return directory + name;
    return directory + "/" + name;
}

std::string currentDirectory() {
    std::string buffer(256, '\0');
    while (!::getcwd(buffer.data(), buffer.size())) {
        if (errno != ERANGE) return "/";
        buffer.resize(buffer.size() * 2);
    }
    buffer.resize(std::char_traits<char>::length(buffer.c_str()));
    return buffer;
}

// Folds `path` (which must start with '/') into its shortest lexical form.
cow_String folded(std::string_view path) {
    std::vector<std::string_view> components;
    size_t start = 0;
    while (start <= path.size()) {
        size_t slash = path.find('/', start);
        if (slash == std::string_view::npos) slash = path.size();
        std::string_view component = path.substr(start, slash - start);
        if (component == "..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != ".") {
            components.push_back(component);
        }
        start = slash + 1;
    }
    if (components.empty()) return cow_String("/");
    cow_String result;
    result.Reserve(static_cast<int>(path.size()));
    for (std::string_view component : components) {
        result.append('/');
        result.append(component);
    }
    return result;
}

}  // namespace

ZELBasUtlFilePath::ZELBasUtlFilePath(cow_String const& directory, cow_String const& name)
    : m_path(joined(directory, name)) {}

void ZELBasUtlFilePath::SetFilePath(cow_String const& directory, cow_String const& name) {
    m_path = joined(directory, name);
}

bool ZELBasUtlFilePath::Exists() const {
    struct stat info {};
    return !m_path.IsEmpty() && ::stat(m_path.CStr(), &info) == 0;
}

bool ZELBasUtlFilePath::IsReadable() const {
    if (m_path.IsEmpty()) return false;
    // Opening is the only test that agrees with what a later open will do
    // (permissions, ACLs, the user the process runs as).
    int fd = ::open(m_path.CStr(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    struct stat info {};
    bool const regular = ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
    ::close(fd);
    return regular;
}

cow_String ZELBasUtlFilePath::FileName() const {
    int slash = m_path.RFind('/');
    return slash < 0 ? m_path : m_path.Substr(slash + 1);
}

cow_String ZELBasUtlFilePath::DirectoryName() const {
    int slash = m_path.RFind('/');
    if (slash < 0) return cow_String();
    if (slash == 0) return cow_String("/");
    return m_path.Substr(0, slash);
}

cow_String ZELBasUtlFilePath::AbsolutePathName() const {
    if (IsAbsolute()) return folded(m_path.View());
    std::string path = currentDirectory();
    path += '/';
    path += m_path.View();
    return folded(path);
}
