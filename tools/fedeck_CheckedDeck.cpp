#include "tools/fedeck_CheckedDeck.h"

#include <filesystem>
#include <vector>

#include "pipeline/inp_Utf8ValidityVisitor.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tables/inp_ContactCheck.h"
#include "tools/fedeck_Arguments.h"
#include "tools/fedeck_Pipeline.h"

namespace {

// The road of a converter, which `tree` runs unless told where to stop: the
// stages up to this one, then the keywords brought to parts without reading
// the maps (the name the report gives).
constexpr char const* kConverterBase = "model-parameters";
constexpr char const* kConverterStage = "reorganize-keywords";
// What a continuation job's report names as its last stage: after expansion
// it takes the earlier job's model and goes on from there.
constexpr char const* kContinuationStage = "inherit-part-map";

// Include files are looked for as written, then in the include directory:
// the one given, or else the deck's own directory, where users keep them.
std::string includeDirectoryFor(fedeck_Arguments const& arguments) {
    if (!arguments.includeDir.empty()) return arguments.includeDir;
    return std::filesystem::path(arguments.operands.front()).parent_path().string();
}

bool holdsEncryptedData(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords)
        if ((keyword.IsEncrypted() && keyword.Data().Rows() > 0) ||
            holdsEncryptedData(keyword.Suboptions()))
            return true;
    return false;
}

// A deck made a part is written anew from its maps, which do not tell the
// data of an encrypted file from the rest: once any of it was encrypted, no
// data line of the new tree is shown.
void withholdAllData(cow_List<inp_Keyword>& keywords) {
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword& keyword = keywords.Get(i);
        keyword.SetEncrypted(true);
        withholdAllData(keyword.GetSuboptions());
    }
}

}  // namespace

int fedeck_LastStageToRun(std::string const& until) {
    if (until.empty()) return static_cast<int>(fedeck_Pipeline::Stages().size()) - 1;
    int const stage = fedeck_Pipeline::Find(until);
    if (stage < 0)
        throw fedeck_UsageError("unknown stage '" + until +
                                "'; known stages: " + fedeck_Pipeline::StageNames());
    return stage;
}

fedeck_CheckedDeck::fedeck_CheckedDeck(fedeck_Arguments const& arguments, int lastStage)
    : m_path(arguments.operands.front().c_str()), m_deck(std::make_unique<inp_InputFile>()) {
    setIncludePath(arguments);
    runTo(lastStage);
    if (m_stageRun == static_cast<int>(fedeck_Pipeline::Stages().size()) - 1) runOfferedChecks();
}

fedeck_CheckedDeck::fedeck_CheckedDeck(fedeck_Arguments const& arguments,
                                       inp_InputFile const& earlier)
    : m_path(arguments.operands.front().c_str()), m_deck(std::make_unique<inp_InputFile>()) {
    setIncludePath(arguments);
    runTo(fedeck_Pipeline::Find("expand"));
    if (m_stoppedEarly) return;
    inpM_PartMap partMap = earlier.MakePartMap();
    m_deck->InheritPartMap(partMap, false);
    m_deck->ReadRestartSetsAndSurfaces(earlier);
    m_stageName = kContinuationStage;
    runOfferedChecks();
}

fedeck_CheckedDeck::fedeck_CheckedDeck(fedeck_Arguments const& arguments, ConverterRoad)
    : m_path(arguments.operands.front().c_str()), m_deck(std::make_unique<inp_InputFile>()) {
    setIncludePath(arguments);
    runTo(fedeck_Pipeline::Find(kConverterBase));
    if (m_stoppedEarly) return;
    bool const encrypted = holdsEncryptedData(m_deck->Keywords());
    m_deck->SetInOdbConverter(true);
    m_deck->ReorganizeKeywords(false);
    m_stageName = kConverterStage;
    if (encrypted) withholdAllData(m_deck->GetKeywords());
}

fedeck_CheckedDeck::~fedeck_CheckedDeck() = default;

void fedeck_CheckedDeck::LeaveToProcessExit() {
    static auto* const left = new std::vector<inp_InputFile*>();
    left->push_back(m_deck.release());
}

fedeck_Report fedeck_CheckedDeck::Report() const {
    return fedeck_Report(m_path, m_stageName, m_stoppedEarly, *m_deck,
                         thr_ThreadSingleton<wip_WIP>::Instance().Diagnostics());
}

void fedeck_CheckedDeck::setIncludePath(fedeck_Arguments const& arguments) {
    std::string const includeDirectory = includeDirectoryFor(arguments);
    if (!includeDirectory.empty()) m_deck->SetIncludePath(cow_String(includeDirectory.c_str()));
}

void fedeck_CheckedDeck::runTo(int lastStage) {
    m_stageRun = fedeck_Pipeline::Run(*m_deck, m_path, lastStage);
    m_stageName = fedeck_Pipeline::Stages()[m_stageRun].name;
    m_stoppedEarly = m_stageRun != lastStage;
}

// A checker runs every check it has: those the library offers its callers
// but no stage of the road runs come after the whole road.
void fedeck_CheckedDeck::runOfferedChecks() {
    inp_Utf8ValidityVisitor utf8;
    utf8.VisitListAndReport(m_deck->GetKeywords());
    // A deck without *OUTPUT gets the default output, which covers every
    // contact pair.
    inp_ContactCheck contact(m_deck->AssemblySurfaces(), m_deck->Keywords());
    contact.PerformCheck(true);
}
