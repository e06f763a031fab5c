// The first stages after parsing: expansion, which validates and normalises
// every keyword, and organization, which makes the flat keyword list a tree.

#include "expansion/inp_KeywordExpansionVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "pipeline/inp_ModelParameterVisitor.h"
#include "pipeline/inp_OrganizerVisitor.h"
#include "pipeline/inp_StageTime.h"
#include "support/omi_Timer.h"
#include "support/pnt_PrettyPrint.h"
#include "support/thr_Singleton.h"
#include "support/typ_DebugFlags.h"
#include "support/wip_WIP.h"
#include "tables/inp_DistributionTableVisitor.h"

void inp_PrintStageTime(char const* label, omi_Timer& timer) {
    constexpr int kDebugFlag = 30;
    timer.Stop();
    if (typ_DebugFlags::GetDebugFlags(kDebugFlag) < 1) return;
    pnt_debugPrint().StartDebug(__FILE__, __LINE__);
    pnt_debugPrint() << label << timer.GetElapsedTime()
                     << "  CPU time: " << timer.GetTotalCpuTime();
    pnt_debugPrint().EndDebug();
}

void inp_InputFile::ExpandKeywords() {
    omi_Timer timer;
    timer.Start();

    inp_KeywordExpansionVisitor expansion;
    expansion.SetIncludePath(m_options.includePath);
    expansion.SetNumberRestartSteps(m_numberRestartSteps);
    expansion.SetResultsFormatOdb(m_options.resultsFormatOdb);
    expansion.SetBulkConversion(m_options.bulkConversion);
    expansion.VisitListAndReport(m_keywords);

    m_partsAndAssembly = expansion.FeatureEnhanced();
    m_instancePartNames = expansion.ConstGetInstancePartNames();
    m_parameterized = expansion.IsParameterized();
    m_dataFiles = expansion.GetIncludedFiles();
    m_missingDataFiles = expansion.GetMissingIncludedFiles();

    bool const explicitRigidSurface =
        expansion.IsExplicitJob() && expansion.HasRigidSurfaceKeyword();
    if (explicitRigidSurface) {
        thr_ThreadSingleton<wip_WIP>::Instance().Error(
            atr("the *RIGID SURFACE option is not supported in Fenrik/Explicit; use the *SURFACE "
                "option in "
                "conjunction with the *RIGID BODY option instead."),
            wip_LEVEL1);
    }

    // A deck of parts can always be handled as one; a flat deck can be made
    // into a part only if nothing in it stands against that.
    if (m_partsAndAssembly) {
        m_partModelAllowed = true;
    } else if (m_partModelAllowed) {
        if (expansion.IsElementFileParameter() || explicitRigidSurface ||
            expansion.HasNmapBlended())
            m_partModelAllowed = false;
    }

    if (m_options.discardBlankedKeywords) DiscardEmptyKeywords();
    inp_PrintStageTime("Expand Keywords - Elapsed time: ", timer);
}

void inp_InputFile::setModelParameters() {
    omi_Timer timer;
    timer.Start();
    inp_ModelParameterVisitor parameters(m_modelParameters);
    parameters.VisitListAndReport(m_keywords);
    // The deck's distribution tables are known from here on, by name.
    inp_DistributionTableVisitor tables;
    tables.VisitListAndReport(m_keywords);
    inp_PrintStageTime("Set Model Parameters - Elapsed time: ", timer);
}

void inp_InputFile::Reorganize() {
    omi_Timer timer;
    timer.Start();

    inp_OrganizerVisitor organizer(m_partsAndAssembly);
    organizer.OrganizeAndReport(std::move(m_keywords));
    m_keywords = organizer.Keywords();
    if (m_options.discardBlankedKeywords) DiscardEmptyKeywords();
    inp_PrintStageTime("Reorganize - Elapsed time: ", timer);
}
