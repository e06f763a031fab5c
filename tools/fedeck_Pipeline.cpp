#include "tools/fedeck_Pipeline.h"

#include "pipeline/inp_InputFile.h"
#include "support/ZELBasAssert.h"
#include "support/ZELBasException.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

namespace {

// Parse lets only the failure to open the deck out, as its base exception.
void parseStage(inp_InputFile& deck, cow_String const& deckPath) {
    try {
        deck.Parse(deckPath);
    } catch (nex_PrimException<atr_String, 1> const&) {
        throw fedeck_UnreadableDeck(std::string(deckPath.View()));
    }
}

void expandStage(inp_InputFile& deck, cow_String const&) { deck.ExpandKeywords(); }

void organizeStage(inp_InputFile& deck, cow_String const&) { deck.Reorganize(); }

// In pipeline order. A new stage is one line here; everything else (the
// --until choices, the usage text, the default) follows from this table.
constexpr fedeck_Stage kStages[] = {
    {"parse", &parseStage},
    {"expand", &expandStage},
    {"organize", &organizeStage},
};

}  // namespace

std::span<fedeck_Stage const> fedeck_Pipeline::Stages() {
    return kStages;
}

int fedeck_Pipeline::Find(std::string_view name) {
    for (size_t i = 0; i < std::size(kStages); ++i)
        if (name == kStages[i].name) return static_cast<int>(i);
    return -1;
}

std::string fedeck_Pipeline::StageNames() {
    std::string names;
    for (fedeck_Stage const& stage : kStages) {
        if (!names.empty()) names += ", ";
        names += stage.name;
    }
    return names;
}

int fedeck_Pipeline::Run(inp_InputFile& deck, cow_String const& deckPath, int lastStage) {
    ZELBAS_ASSERT(lastStage >= 0 && lastStage < static_cast<int>(std::size(kStages)));
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    sink.Clear();
    for (int stage = 0;; ++stage) {
        kStages[stage].run(deck, deckPath);
        if (stage == lastStage || sink.HasErrors()) return stage;
    }
}
