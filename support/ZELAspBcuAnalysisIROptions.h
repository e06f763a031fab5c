#pragma once
#include <atomic>

// The analysis options of the process that the deck logic consults: for now
// only where the analysis writes its results. One instance per process; a
// host sets the mode at start-up, before any deck is read, and the stages of
// every thread read it. The mode is atomic so that a host changing it while
// threads read never tears a value; a stage that reads it twice may still see
// two values if the host changes it meanwhile, which a host should not do.
class ZELAspBcuAnalysisIROptions {
  public:
    // Where results go. The numbers are what hosts pass and must not change.
    enum resultsModeEnm : int {
        IsResultsOdb = 0,   // the classic results database only (the default)
        IsResultsSim = 1,   // the simulation file only
        IsResultsBoth = 2,  // both
    };

    // The process's instance (a thr_GlobalSingleton).
    static ZELAspBcuAnalysisIROptions& Instance();

    resultsModeEnm GetResultsMode() const noexcept {
        return m_resultsMode.load(std::memory_order_relaxed);
    }
    void SetResultsMode(resultsModeEnm mode) noexcept {
        m_resultsMode.store(mode, std::memory_order_relaxed);
    }
    // Whether results go to a simulation file, alone or beside the database.
    bool WritesSimulationFile() const noexcept {
        resultsModeEnm mode = GetResultsMode();
        return mode == IsResultsSim || mode == IsResultsBoth;
    }

  private:
    std::atomic<resultsModeEnm> m_resultsMode{IsResultsOdb};
};
