// The composite stages: a deck, flat or in parts, brought to the one form of
// model the solver reads, in one call. The road (inp_InputFileRoad.cpp) runs
// the same steps as stages of their own, so that a caller can stop between
// them; these are for callers that want the whole of it.

#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_StageTime.h"

// A deck in parts is organized, its scoped names shortened and its maps
// read; a flat deck is made a part first, then organized and its assembly
// read.
void inp_InputFile::Classify(bool atelierCompatible) {
    CheckImportValidity(atelierCompatible);
    ProhibitPeriodInNames(m_keywords);
    if (m_partsAndAssembly) {
        Reorganize();
        ModifyScopedNames();
        ExtractPartMaps(atelierCompatible);
        ExtractAssemblyMaps(atelierCompatible);
        return;
    }
    FakeEnhancements(atelierCompatible);
    Reorganize();
    ExtractAssemblyMaps(atelierCompatible);
    m_fakePartModel = true;
}

// The converter's form: the keyword tree in parts, without the maps.
void inp_InputFile::ReorganizeKeywords(bool atelierCompatible) {
    CheckImportValidity(false);
    ProhibitPeriodInNames(m_keywords);
    if (m_partsAndAssembly) {
        Reorganize();
        ModifyScopedNames();
        return;
    }
    FakeEnhancements(atelierCompatible);
    Reorganize();
}
