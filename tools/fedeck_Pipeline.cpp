#include "tools/fedeck_Pipeline.h"

#include <filesystem>
#include <system_error>

#include "pipeline/inp_InputFile.h"
#include "support/ZELBasAssert.h"
#include "support/ZELBasException.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

std::span<inp_StageInfo const> fedeck_Pipeline::Stages() {
    return inp_InputFile::Stages();
}

int fedeck_Pipeline::Find(std::string_view name) {
    inp_StageInfo const* stage = inp_InputFile::FindStage(name);
    return stage ? static_cast<int>(stage->stage) : -1;
}

std::string fedeck_Pipeline::StageNames() {
    std::string names;
    for (inp_StageInfo const& stage : Stages()) {
        if (!names.empty()) names += ", ";
        names += stage.name;
    }
    return names;
}

int fedeck_Pipeline::Run(inp_InputFile& deck, cow_String const& deckPath, int lastStage) {
    ZELBAS_ASSERT(lastStage >= 0 && lastStage < static_cast<int>(Stages().size()));
    thr_ThreadSingleton<wip_WIP>::Instance().Clear();
    std::error_code ignored;
    if (std::filesystem::is_directory(deckPath.View(), ignored))
        throw fedeck_UnreadableDeck(std::string(deckPath.View()) + " is a directory");
    // Parse lets only the failure to open the deck out, as the deck's base
    // exception; the same exception from a later stage is a fault of the
    // program and goes on as one.
    bool parsed = false;
    try {
        inp_Stage const last =
            deck.Run(deckPath, static_cast<inp_Stage>(lastStage),
                     inp_InputFile::RunRule::StopAfterErrors, [&](inp_Stage) { parsed = true; });
        return static_cast<int>(last);
    } catch (nex_PrimException<atr_String, 1> const&) {
        if (parsed) throw;
        throw fedeck_UnreadableDeck(std::string(deckPath.View()));
    }
}
