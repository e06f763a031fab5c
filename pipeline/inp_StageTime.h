#pragma once
// The time of a stage, printed at debug level 1 or more of the pipeline's
// debug flag: its label, the elapsed seconds, then the CPU seconds. For the
// stage files of inp_InputFile.

#include "support/omi_Timer.h"

void inp_PrintStageTime(char const* label, omi_Timer& timer);
