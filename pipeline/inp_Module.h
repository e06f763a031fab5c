#pragma once
// Start-up and shut-down of the deck module. The host calls
// ZELI2sInpMod_initialize once when it loads the module and
// ZELI2sInpMod_finalize at the end; each pair counts its calls, and only the
// first start-up and the last shut-down do any work. `count` is the host's
// tally of started modules: the first start-up adds one, the last shut-down
// takes it off again.

void ZELI2sInp_initialize(int& count);
void ZELI2sInp_finalize(int& count);

void ZELI2sInpMod_specific_initialize(int& count);
void ZELI2sInpMod_specific_finalize(int& count);

void ZELI2sInpMod_initialize(int& count);
void ZELI2sInpMod_finalize(int& count);
