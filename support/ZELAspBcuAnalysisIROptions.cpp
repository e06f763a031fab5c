#include "support/ZELAspBcuAnalysisIROptions.h"

#include "support/thr_Singleton.h"

ZELAspBcuAnalysisIROptions& ZELAspBcuAnalysisIROptions::Instance() {
    return thr_GlobalSingleton<ZELAspBcuAnalysisIROptions>::Instance();
}
