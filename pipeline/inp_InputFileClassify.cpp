// The composite stages: a deck, flat or in parts, brought to the one form of
// model the solver reads, in one call. The road (inp_InputFileRoad.cpp) runs
// the same steps as stages of their own, so that a caller can stop between
// them; these are for callers that want the whole of it.

#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_StageTime.h"

// Both bring the deck to a tree in parts: a deck in parts is organized and
// its scoped names shortened; a flat deck is made a part first, then
// organized. Classify then reads the maps.
void inp_InputFile::Classify(bool atelierCompatible) {
    bringToParts(atelierCompatible, atelierCompatible);
    if (m_partsAndAssembly) ExtractPartMaps(atelierCompatible);
    ExtractAssemblyMaps(atelierCompatible);
    if (!m_partsAndAssembly) m_fakePartModel = true;
}

// The converter's form: the keyword tree in parts, without the maps.
void inp_InputFile::ReorganizeKeywords(bool atelierCompatible) {
    bringToParts(false, atelierCompatible);
}

void inp_InputFile::bringToParts(bool continuation, bool atelierCompatible) {
    CheckImportValidity(continuation);
    ProhibitPeriodInNames(m_keywords);
    if (m_partsAndAssembly) {
        Reorganize();
        ModifyScopedNames();
        return;
    }
    FakeEnhancements(atelierCompatible);
    Reorganize();
}
