#include "support/wip_WIP.h"

void wip_WIP::record(bool isError, int level, atr_String const& text) {
    m_diagnostics.push_back({isError, level, text});
    if (isError) ++m_errorCount;
    if (m_echo) (*m_echo << (isError ? "***ERROR: " : "***WARNING: ") << text << '\n').flush();
}

void wip_WIP::Error(atr_String const& text, wip_errorLevelEnm level, ZELBasStringMode) {
    record(true, level, text);
}

void wip_WIP::ErrorList(cow_List<atr_String> const& list, wip_errorLevelEnm level,
                        ZELBasStringMode) {
    for (atr_String const& text : list) record(true, level, text);
}

void wip_WIP::Warning(atr_String const& text, ZELBasStringMode) {
    record(false, wip_Diagnostic::kNoLevel, text);
}

void wip_WIP::WarningList(cow_List<atr_String> const& list, ZELBasStringMode) {
    for (atr_String const& text : list) record(false, wip_Diagnostic::kNoLevel, text);
}

int wip_WIP::ErrorCountAtLevel(int level) const noexcept {
    int count = 0;
    for (wip_Diagnostic const& diagnostic : m_diagnostics)
        if (diagnostic.isError && diagnostic.level == level) ++count;
    return count;
}

void wip_WIP::Clear() noexcept {
    m_diagnostics.clear();
    m_errorCount = 0;
}
