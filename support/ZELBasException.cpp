#include "support/ZELBasException.h"

#include <cstdio>

#include "support/ZELBasAssert.h"

atr_String ZELBasException::DeveloperReport() const {
    atr_String report = UserReport();
    if (m_throwFile) report.append(atr(" (thrown at %s:%d)", m_throwFile, m_throwLine));
    return report;
}

void ZELBasException::Throw(char const* file, int line) {
    m_throwFile = file;
    m_throwLine = line;
    throw *this;
}

char const* ZELBasException::what() const noexcept {
    try {
        m_what = DeveloperReport();
    } catch (...) {
        return "exception";
    }
    return m_what.CStr();
}

void nex_Exception::DBWrite() const {
    std::fprintf(stderr, "%s: %s\n", DynTypeId(), DeveloperReport().CStr());
}

ZELBasAssertException::ZELBasAssertException(cow_String const& condition, char const* file,
                                             int line)
    : m_condition(condition) {
    m_throwFile = file;
    m_throwLine = line;
}

atr_String ZELBasAssertException::UserReport() const {
    return atr_String(m_condition);
}

atr_String ZELBasAssertException::DeveloperReport() const {
    return atr("Assertion failed: %s (%s:%d)", m_condition, m_throwFile ? m_throwFile : "",
               m_throwLine);
}

void zelbas_AssertFailed(char const* condition, char const* file, int line) {
    throw ZELBasAssertException(condition, file, line);
}
