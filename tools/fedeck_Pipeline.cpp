#include "tools/fedeck_Pipeline.h"

#include <filesystem>
#include <system_error>

#include "pipeline/inp_InputFile.h"
#include "support/ZELBasAssert.h"
#include "support/ZELBasException.h"
#include "support/atr_String.h"
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

namespace {

// A file with no keyword line (the wrong file, a binary one, a file of bare
// asterisks) reads as an empty deck; the parser passes over every line of it
// in silence, and the model made of it is empty. Say so once, at the file.
void warnIfNoKeyword(inp_InputFile const& deck, cow_String const& deckPath) {
    wip_WIP& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    if (!deck.Keywords().IsEmpty() || sink.ErrorCount() > 0) return;
    sink.Warning(atr("No keyword line was found in the deck; every line of it was passed over.")
                     .SetLocation({deckPath, 0, cow_String()}));
}

}  // namespace

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
    auto afterStage = [&](inp_Stage stage) {
        if (stage == inp_Stage::Parse) warnIfNoKeyword(deck, deckPath);
        parsed = true;
    };
    try {
        inp_Stage const last = deck.Run(deckPath, static_cast<inp_Stage>(lastStage),
                                        inp_InputFile::RunRule::StopAfterErrors, afterStage);
        return static_cast<int>(last);
    } catch (nex_PrimException<atr_String, 1> const&) {
        if (parsed) throw;
        throw fedeck_UnreadableDeck(std::string(deckPath.View()));
    }
}
