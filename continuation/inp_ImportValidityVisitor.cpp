#include "continuation/inp_ImportValidityVisitor.h"

#include "mesh/inp_Utils.h"
#include "support/utl_CommandLine.h"

namespace {

constexpr char kOldJob[] = "oldjobcla";

}  // namespace

bool inp_ImportValidityVisitor::oldJobCommandLineParameterDefined() {
    return utl_CommandLine::Instance().IsMember(kOldJob);
}

cow_String inp_ImportValidityVisitor::getOldJobCommandLineParameter() {
    return utl_CommandLine::Instance().ConstGetValue(kOldJob);
}

bool inp_ImportValidityVisitor::hasImportComponentParameters(inp_Keyword const& keyword) {
    for (char const* name : {"instance", "referenceconfiguration", "library", "state", "step",
                             "increment", "interval", "iteration"})
        if (keyword.HasParameter(name)) return true;
    return false;
}

void inp_ImportValidityVisitor::VisitListAndReport(cow_List<inp_Keyword>& keywords) {
    VisitList(keywords);
    checkImportValidity();
    Report();
}

// The content of an imported instance comes from the old job.
void inp_ImportValidityVisitor::DefaultAction(inp_Keyword& keyword) {
    if (!inImportedComponent()) return;
    AddWarning(inp_Utils::MessageInKeyword(
        keyword, atr("Keyword cannot be used inside the imported component \"%s\"",
                     m_importedComponentName)));
    keyword.SetKeyword(inp_kw_UndefinedKeyword);
}

// The words name *ASSEMBLY for a part too.
void inp_ImportValidityVisitor::VisitAssembly(inp_Keyword& keyword) {
    m_inAssembly = true;
    if (hasImportComponentParameters(keyword))
        AddError(inp_Utils::MessageInKeyword(keyword, "Import with *ASSEMBLY is not implemented."));
    inp_Visitor::VisitAssembly(keyword);
}

void inp_ImportValidityVisitor::VisitPart(inp_Keyword& keyword) {
    m_inAssembly = true;
    if (hasImportComponentParameters(keyword))
        AddError(inp_Utils::MessageInKeyword(keyword, "Import with *ASSEMBLY is not implemented."));
    inp_Visitor::VisitPart(keyword);
}

// The instance's scope is taken here, not through the base handler: that
// would hand the keyword itself to DefaultAction, inside its own component.
void inp_ImportValidityVisitor::VisitInstance(inp_Keyword& keyword) {
    m_inAssembly = true;
    SetInstanceName(keyword);
    if (!keyword.HasParameter("instance")) {
        if (keyword.HasParameter("library"))
            AddError(inp_Utils::MessageInKeyword(
                keyword, "When importing an instance, INSTANCE parameter is required."));
        DefaultAction(keyword);
        return;
    }
    m_importActive = true;
    m_newImportKeywordSeen = true;
    if (keyword.HasParameter("part"))
        AddError(inp_Utils::MessageInKeyword(keyword, "*INSTANCE cannot import a PART component."));
    setImportedComponentName(keyword.GetParameterAsString("instance", cow_String()));
    readLibraryOfInstance(keyword);
}

// The library comes from the command line, else from LIBRARY; a second one
// that disagrees is warned about. No library at all is reported in the
// words of a part import, as established.
void inp_ImportValidityVisitor::readLibraryOfInstance(inp_Keyword const& keyword) {
    bool const hadLibrary = !m_importData.LibraryName().IsEmpty();
    if (!hadLibrary && oldJobCommandLineParameterDefined()) {
        m_importData.setLibraryName(getOldJobCommandLineParameter());
    } else if (!hadLibrary && keyword.HasParameter("library")) {
        m_importData.readLibraryParameter(keyword);
        return;
    } else if (!hadLibrary) {
        AddError(inp_Utils::MessageInKeyword(keyword, "*INSTANCE cannot import a PART component."));
        return;
    }
    if (!keyword.HasParameter("library")) return;
    inp_ImportKwdData given;
    given.readLibraryParameter(keyword);
    m_importData.checkLibraryCompatibility(given, keyword, m_errors, m_warnings);
}

void inp_ImportValidityVisitor::VisitEndInstance(inp_Keyword& keyword) {
    if (inImportedComponent() && !m_importOptionSeen)
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Instance \"%s\" is to be imported but *IMPORT option is misssing.",
                         m_importedComponentName)));
    m_importOptionSeen = false;
    unsetImportedComponentName();
    ClearInstanceName();
}

void inp_ImportValidityVisitor::VisitImport(inp_Keyword& keyword) {
    if (!m_inAssembly) {
        m_oldImportKeywordSeen = true;
        return;
    }
    m_importActive = true;
    m_importOptionSeen = true;
    m_importData.setInstanceName(m_importedComponentName);
    if (!m_importData.isInitializedWithData()) {
        m_importData.readImportOption(keyword, m_errors, m_warnings);
        return;
    }
    inp_ImportKwdData option;
    option.readImportOption(keyword, m_errors, m_warnings);
    m_importData.checkImportCompatibility(option, keyword, m_errors, m_warnings);
}

void inp_ImportValidityVisitor::VisitMapSolution(inp_Keyword& keyword) {
    m_mapSolutionSeen = true;
    inp_Visitor::VisitMapSolution(keyword);
}

void inp_ImportValidityVisitor::VisitSymmetricModelGeneration(inp_Keyword& keyword) {
    m_symmetricModelGenerationSeen = true;
    inp_Visitor::VisitSymmetricModelGeneration(keyword);
}

void inp_ImportValidityVisitor::checkImportValidity() {
    if (!m_importActive) return;
    if (m_importData.LibraryName().IsEmpty())
        AddError(
            "LIBRARY parameter or oldjob command line parameter must be defined when "
            "importing components.");
    if (m_oldImportKeywordSeen && m_newImportKeywordSeen)
        AddError("*IMPORT cannot be used in the new import procedure keyword interface.");
    if (m_oldImportKeywordSeen && m_newImportKeywordSeen && m_mapSolutionSeen)
        AddError("*MAP SOLUTION (rezoning) cannot be used in the import procedure.");
}
