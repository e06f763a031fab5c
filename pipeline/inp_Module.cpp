#include "pipeline/inp_Module.h"

#include "deck/inp_KeywordTable.h"
#include "support/thr_Singleton.h"
#include "support/typ_DebugFlags.h"
#include "support/wip_WIP.h"

namespace {

int g_moduleCalls = 0;
int g_innerCalls = 0;
int g_specificCalls = 0;

// The support services the module stands on, brought up in this order and
// taken down in the reverse one: the debug flags (read from the environment
// once), then this thread's message sink.
void initializeSupport() {
    typ_DebugFlags::ReadEnvironment();
    thr_ThreadSingleton<wip_WIP>::Instance();
}

void finalizeSupport() {
    thr_ThreadSingleton<wip_WIP>::Finalize();
}

}  // namespace

void ZELI2sInp_initialize(int& count) {
    if (g_innerCalls++ == 0) ++count;
}

void ZELI2sInp_finalize(int& count) {
    if (g_innerCalls == 0) return;
    if (--g_innerCalls == 0) {
        --count;
        inp_KeywordTable::Finalize();
        thr_ThrSingletonRegistry::FinalizeThread();
    }
}

void ZELI2sInpMod_specific_initialize(int& count) {
    if (g_specificCalls++ == 0) ++count;
}

void ZELI2sInpMod_specific_finalize(int& count) {
    if (g_specificCalls == 0) return;
    if (--g_specificCalls == 0) --count;
}

void ZELI2sInpMod_initialize(int& count) {
    if (g_moduleCalls++ != 0) return;
    ++count;
    initializeSupport();
    ZELI2sInp_initialize(count);
    ZELI2sInpMod_specific_initialize(count);
}

void ZELI2sInpMod_finalize(int& count) {
    if (g_moduleCalls == 0) return;
    if (--g_moduleCalls != 0) return;
    ZELI2sInpMod_specific_finalize(count);
    ZELI2sInp_finalize(count);
    finalizeSupport();
    --count;
}
