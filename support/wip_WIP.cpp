#include "support/wip_WIP.h"

void wip_WIP::record(wip_Severity severity, int level, atr_String const& text) {
    m_diagnostics.push_back({severity, level, text});
    bool const isError = severity != wip_Severity::Warning;
    if (isError) ++m_errorCount;
    if (m_echo) (*m_echo << (isError ? "***ERROR: " : "***WARNING: ") << text << '\n').flush();
}

void wip_WIP::Error(atr_String const& text, wip_errorLevelEnm level, ZELBasStringMode) {
    record(wip_SeverityOfLevel(level), level, text);
}

void wip_WIP::ErrorList(cow_List<atr_String> const& list, wip_errorLevelEnm level,
                        ZELBasStringMode) {
    for (atr_String const& text : list) record(wip_SeverityOfLevel(level), level, text);
}

void wip_WIP::Warning(atr_String const& text, ZELBasStringMode) {
    record(wip_Severity::Warning, wip_Diagnostic::kNoLevel, text);
}

void wip_WIP::WarningList(cow_List<atr_String> const& list, ZELBasStringMode) {
    for (atr_String const& text : list)
        record(wip_Severity::Warning, wip_Diagnostic::kNoLevel, text);
}

int wip_WIP::ErrorCountAtLevel(int level) const noexcept {
    int count = 0;
    for (wip_Diagnostic const& diagnostic : m_diagnostics)
        if (diagnostic.IsError() && diagnostic.level == level) ++count;
    return count;
}

void wip_WIP::Clear() noexcept {
    m_diagnostics.clear();
    m_errorCount = 0;
}

void wip_WIP::ForgetFrom(size_t first) noexcept {
    while (m_diagnostics.size() > first) {
        if (m_diagnostics.back().IsError()) --m_errorCount;
        m_diagnostics.pop_back();
    }
}
