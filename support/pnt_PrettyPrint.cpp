#include "support/pnt_PrettyPrint.h"

#include <cstring>

#include "support/thr_Singleton.h"

void pnt_PrettyPrint::StartDebug(char const* file, int line) {
    if (!m_entry.Str().IsEmpty()) EndDebug();
    if (file) {
        char const* lastSlash = std::strrchr(file, '/');
        m_entry << (lastSlash ? lastSlash + 1 : file) << ':' << line << ": ";
    }
}

void pnt_PrettyPrint::EndDebug() {
    m_entry << '\n';
    Stream().print(m_entry.Str()).flush();
    m_entry.Clear();
}

pnt_PrettyPrint& pnt_debugPrint() {
    return thr_ThreadSingleton<pnt_PrettyPrint>::Instance();
}
