#include "assembly/inp_ScopedNameVisitors.h"

cow_String inp_StripAssemblyName(inp_Visitor const& visitor, cow_String const& datum,
                                 cow_String const& assemblyName) {
    bool const atModelLevel = visitor.PartName().IsEmpty() && visitor.InstanceName().IsEmpty() &&
                              visitor.AssemblyName().IsEmpty() && visitor.StepName().IsEmpty();
    if (!atModelLevel || datum.IsEmpty()) return datum;
    int const period = datum.Find('.');
    if (period < 0) return datum;
    // The plain first period: a quoted first piece never equals the
    // assembly's name as the deck spells it outside quotes. A deck without
    // an assembly compares against the empty name, so a datum that starts
    // with a period loses it; any other datum stays.
    if (datum.View().substr(0, static_cast<size_t>(period)) != assemblyName.View()) return datum;
    return datum.Substr(period + 1);
}

// -- sets ----------------------------------------------------------------------

inp_ScopedNameSetVisitor::inp_ScopedNameSetVisitor(cow_String const& assemblyName)
    : inp_SetFixupVisitor(inpM_SetMap(), inpM_SetMap(), inpM_IdMap(), inpM_IdMap()),
      m_deckAssemblyName(assemblyName) {}

cow_String inp_ScopedNameSetVisitor::FixupIdOrSet(inp_Keyword const&, cow_String const& datum,
                                                  inpM_SetMap const&, inpM_IdMap const&,
                                                  cow_String const&, cow_String const&,
                                                  cow_String const&, inp_SetType,
                                                  cow_String const&) {
    return inp_StripAssemblyName(*this, datum, m_deckAssemblyName);
}

namespace {
constexpr int kGenerateRange[] = {0, 1};
}  // namespace

void inp_ScopedNameSetVisitor::VisitNset(inp_Keyword& keyword) {
    if (keyword.HasParameter("generate"))
        ReplaceNodeOrNsetData(keyword, kGenerateRange, 1);
    else
        ReplaceNodeOrNsetAllData(keyword);
}

void inp_ScopedNameSetVisitor::VisitElset(inp_Keyword& keyword) {
    if (keyword.HasParameter("generate"))
        ReplaceElementOrElsetData(keyword, kGenerateRange, 1);
    else
        ReplaceElementOrElsetAllData(keyword);
}

// -- surfaces ------------------------------------------------------------------

inp_ScopedNameSurfaceVisitor::inp_ScopedNameSurfaceVisitor(cow_String const& assemblyName,
                                                           bool restart)
    : inp_SurfaceFixupVisitor(inpM_SurfaceMap()),
      m_deckAssemblyName(assemblyName),
      m_restart(restart) {}

cow_String inp_ScopedNameSurfaceVisitor::FixupSurfaceName(cow_String const& name, cow_String const&,
                                                          cow_String const&, cow_String const&) {
    return inp_StripAssemblyName(*this, name, m_deckAssemblyName);
}

void inp_ScopedNameSurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    if (m_restart)
        inp_SurfaceFixupVisitor::VisitSurface(keyword);
    else
        ReplaceSurfaceParameter(keyword, "name");
}

// -- the other families ----------------------------------------------------------

cow_String inp_ScopedNameDistributionVisitor::FixupDistributionName(cow_String const& name) {
    return inp_StripAssemblyName(*this, name, m_deckAssemblyName);
}

cow_String inp_ScopedNameOrientationVisitor::FixupOrientationName(cow_String const& name) {
    return inp_StripAssemblyName(*this, name, m_deckAssemblyName);
}

cow_String inp_ScopedNameRebarVisitor::FixupRebarName(cow_String const& name) {
    return inp_StripAssemblyName(*this, name, m_deckAssemblyName);
}

cow_String inp_ScopedNameMaterialVisitor::FixupMaterialName(cow_String const& name) {
    return inp_StripAssemblyName(*this, name, m_deckAssemblyName);
}
