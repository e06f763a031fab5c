#pragma once
#include <vector>

#include "support/aio_Stream.h"
#include "support/atr_String.h"
#include "support/cow_List.h"

// Error levels. The system uses them by number: 0 for fatal parser and stage
// errors, 1 for ordinary errors, 2 for a stage's fatal list. Any int value
// may be passed and is kept as it is.
enum wip_errorLevelEnm : int { wip_LEVEL0 = 0, wip_LEVEL1 = 1, wip_LEVEL2 = 2 };

// What a diagnostic means to whoever reads it; the one scale of the sink, the
// stages' lists, the program and the bindings. The numbers are those by which
// a stage sorts diagnostics made elsewhere into its lists.
enum class wip_Severity : int { Warning = 1, Error = 2, Fatal = 3 };

// The severity of an error at `level`: levels 0 and 2 are fatal, level 1 and
// any other level an ordinary error.
constexpr wip_Severity wip_SeverityOfLevel(int level) noexcept {
    return level == wip_LEVEL0 || level == wip_LEVEL2 ? wip_Severity::Fatal : wip_Severity::Error;
}

// What a message sink must take: errors at a level and warnings, singly or as
// lists. The mode is passed through from message formatting.
class wip_WIPBase {
  public:
    virtual ~wip_WIPBase() = default;
    virtual void Error(atr_String const& text, wip_errorLevelEnm level,
                       ZELBasStringMode mode = zel_DefaultStringMode) = 0;
    virtual void ErrorList(cow_List<atr_String> const& list, wip_errorLevelEnm level,
                           ZELBasStringMode mode = zel_DefaultStringMode) = 0;
    virtual void Warning(atr_String const& text, ZELBasStringMode mode = zel_DefaultStringMode) = 0;
    virtual void WarningList(cow_List<atr_String> const& list,
                             ZELBasStringMode mode = zel_DefaultStringMode) = 0;
};

// One diagnostic as the sink received it: severity, level, the exact text,
// and where it points (the text's location: file, line, keyword; null when
// the message has none).
struct wip_Diagnostic {
    static constexpr int kNoLevel = -1;

    wip_Severity severity;
    int level;  // kNoLevel for a warning
    atr_String text;

    bool IsError() const noexcept { return severity != wip_Severity::Warning; }
    atr_Location const* Location() const noexcept { return text.Location(); }
};

// The message sink of a thread, reached as thr_ThreadSingleton<wip_WIP>::Instance().
// It keeps every diagnostic in arrival order for the host to read back, and
// optionally echoes each one as it arrives ("***ERROR: text" or
// "***WARNING: text", one line each). It registers no destruction level of
// its own, so it outlives the deck logic's singletons (level 9), which may
// still report while they are destroyed.
class wip_WIP : public wip_WIPBase {
  public:
    void Error(atr_String const& text, wip_errorLevelEnm level,
               ZELBasStringMode mode = zel_DefaultStringMode) override;
    void ErrorList(cow_List<atr_String> const& list, wip_errorLevelEnm level,
                   ZELBasStringMode mode = zel_DefaultStringMode) override;
    void Warning(atr_String const& text, ZELBasStringMode mode = zel_DefaultStringMode) override;
    void WarningList(cow_List<atr_String> const& list,
                     ZELBasStringMode mode = zel_DefaultStringMode) override;

    std::vector<wip_Diagnostic> const& Diagnostics() const noexcept { return m_diagnostics; }
    bool HasErrors() const noexcept { return m_errorCount > 0; }
    int ErrorCount() const noexcept { return m_errorCount; }
    int ErrorCountAtLevel(int level) const noexcept;
    int WarningCount() const noexcept {
        return static_cast<int>(m_diagnostics.size()) - m_errorCount;
    }
    // Forgets every diagnostic; the echo stream stays.
    void Clear() noexcept;
    // Forgets the diagnostics from position `first` on, leaving those before
    // it: a caller that reads what its own run added puts the sink back as
    // it found it.
    void ForgetFrom(size_t first) noexcept;

    // Echoes later diagnostics to `stream` (not owned); null stops the echo.
    void SetEchoStream(aio_ostream* stream) noexcept { m_echo = stream; }

  private:
    void record(wip_Severity severity, int level, atr_String const& text);

    std::vector<wip_Diagnostic> m_diagnostics;
    int m_errorCount = 0;
    aio_ostream* m_echo = nullptr;
};
