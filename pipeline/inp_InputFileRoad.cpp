// The road of a new job: the stages in their order, and the driver that runs
// them. A stage added to the library is one line in the table below; callers
// name the stage where they stop and never repeat the order themselves.

#include <iterator>

#include "pipeline/inp_InputFile.h"
#include "support/ZELBasAssert.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"

// A friend of inp_InputFile, so that the table may name its private stages.
struct inp_RoadTable {
    // In road order, each at the index of its enumerator.
    static constexpr inp_StageInfo kStages[] = {
        {inp_Stage::Parse, "parse", &inp_InputFile::parseStage},
        {inp_Stage::Expand, "expand", &inp_InputFile::ExpandKeywords},
        {inp_Stage::ModelParameters, "model-parameters", &inp_InputFile::setModelParameters},
        {inp_Stage::ImportValidity, "import-validity", &inp_InputFile::importValidityStage},
        {inp_Stage::Names, "names", &inp_InputFile::namesStage},
        {inp_Stage::Organize, "organize", &inp_InputFile::organizeStage},
        {inp_Stage::FakePart, "fake-part", &inp_InputFile::fakePartStage},
        {inp_Stage::ScopedNames, "scoped-names", &inp_InputFile::scopedNamesStage},
        {inp_Stage::PartMaps, "part-maps", &inp_InputFile::extractPartMapsStage},
        {inp_Stage::AssemblyMaps, "assembly-maps", &inp_InputFile::extractAssemblyMapsStage},
        {inp_Stage::OutOfPlace, "out-of-place", &inp_InputFile::CheckOutOfPlace},
    };
};

namespace {

constexpr auto& kStages = inp_RoadTable::kStages;

constexpr bool stagesStandAtTheirIndex() {
    for (size_t i = 0; i < std::size(kStages); ++i)
        if (static_cast<size_t>(kStages[i].stage) != i) return false;
    return true;
}
static_assert(stagesStandAtTheirIndex(), "the stage table must follow the order of inp_Stage");

}  // namespace

std::span<inp_StageInfo const> inp_InputFile::Stages() {
    return kStages;
}

inp_StageInfo const* inp_InputFile::FindStage(std::string_view name) {
    for (inp_StageInfo const& stage : kStages)
        if (name == stage.name) return &stage;
    return nullptr;
}

// A flat deck is made parts before it is organized, as the fake part reads
// the flat list; so on a road that goes on past the organizer, the organizer
// runs within the fake part stage, on the rewritten list.
void inp_InputFile::organizeStage() {
    if (!m_partsAndAssembly && m_roadEnd > inp_Stage::Organize) return;
    Reorganize();
}

inp_Stage inp_InputFile::Run(cow_String const& fileName, inp_Stage last, RunRule rule,
                             StageObserver const& afterStage) {
    int const lastIndex = static_cast<int>(last);
    ZELBAS_ASSERT(lastIndex >= 0 && lastIndex < static_cast<int>(std::size(kStages)));
    m_fileName = fileName;
    m_roadEnd = last;
    wip_WIP const& sink = thr_ThreadSingleton<wip_WIP>::Instance();
    for (int index = 0;; ++index) {
        int const errorsBefore = sink.ErrorCount();
        inp_StageInfo const& stage = kStages[index];
        (this->*stage.run)();
        if (afterStage) afterStage(stage.stage);
        bool const failed = sink.ErrorCount() > errorsBefore;
        if (index == lastIndex || (failed && rule == RunRule::StopAfterErrors)) return stage.stage;
    }
}
