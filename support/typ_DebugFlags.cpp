#include "support/typ_DebugFlags.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdlib>

#include "support/ZELBasAssert.h"

namespace {

using FlagTable = std::array<std::atomic<int>, typ_DebugFlags::kFlagCount>;

// Surrounding blanks are allowed; anything else that isn't a decimal integer
// in the range of int reads as 0.
int parseLevel(char const* text) {
    if (!text) return 0;
    errno = 0;
    char* end = nullptr;
    long value = std::strtol(text, &end, 10);
    if (end == text || errno == ERANGE || value < INT_MIN || value > INT_MAX) return 0;
    while (*end == ' ' || *end == '\t' || *end == '\n' || *end == '\r') ++end;
    return *end == '\0' ? static_cast<int>(value) : 0;
}

void storeEnvironmentLevel(FlagTable& flags) {
    flags[typ_DebugFlags::kDeckFlag].store(parseLevel(std::getenv(typ_DebugFlags::kDeckVariable)),
                                           std::memory_order_relaxed);
}

FlagTable& flagTable() {
    static FlagTable flags{};  // all 0
    static bool const environmentRead = (storeEnvironmentLevel(flags), true);
    (void)environmentRead;
    return flags;
}

}  // namespace

int typ_DebugFlags::GetDebugFlags(unsigned flag) {
    if (flag >= kFlagCount) return 0;
    return flagTable()[flag].load(std::memory_order_relaxed);
}

void typ_DebugFlags::SetDebugFlags(unsigned flag, int level) {
    ZELBAS_ASSERT(flag < kFlagCount);
    flagTable()[flag].store(level, std::memory_order_relaxed);
}

void typ_DebugFlags::ReadEnvironment() {
    storeEnvironmentLevel(flagTable());
}
