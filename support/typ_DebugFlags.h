#pragma once

// Debug levels by flag number, read by code that prints diagnostics for
// developers (timings, per-keyword traces). Flag 30 is the deck module's; it
// is taken from the environment variable FEDECK_DEBUG, an integer, the first
// time any flag is read or set. Every other flag, and flag 30 when the
// variable is unset or not an integer, is 0 until SetDebugFlags sets it.
//
// Reading a flag costs one relaxed atomic load, so hot code may ask freely.
class typ_DebugFlags {
  public:
    static constexpr unsigned kFlagCount = 64;
    static constexpr unsigned kDeckFlag = 30;
    static constexpr char const* kDeckVariable = "FEDECK_DEBUG";

    // 0 for a flag number beyond kFlagCount.
    static int GetDebugFlags(unsigned flag);
    // For hosts and tests. A flag number beyond kFlagCount is a fault of the caller.
    static void SetDebugFlags(unsigned flag, int level);
    // Reads FEDECK_DEBUG again into flag 30, for a host that changed it.
    static void ReadEnvironment();
};
