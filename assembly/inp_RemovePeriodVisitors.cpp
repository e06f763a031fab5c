#include "assembly/inp_RemovePeriodVisitors.h"

#include "mesh/inp_Utils.h"

cow_String inp_RemovePeriodFromName(cow_String const& name) {
    if (inp_Utils::IsId(name)) return name;
    return inp_Utils::ReplaceUnquotedPeriodWithUnderscore(name);
}

// -- sets ----------------------------------------------------------------------

inp_RemovePeriodSetVisitor::inp_RemovePeriodSetVisitor(bool fullFakeParts)
    : inp_SetFixupVisitor(inpM_SetMap(), inpM_SetMap(), inpM_IdMap(), inpM_IdMap()) {
    setAtelierCompatible(fullFakeParts);
}

cow_String inp_RemovePeriodSetVisitor::FixupIdOrSet(inp_Keyword const&, cow_String const& datum,
                                                    inpM_SetMap const&, inpM_IdMap const&,
                                                    cow_String const&, cow_String const&,
                                                    cow_String const&, inp_SetType,
                                                    cow_String const&) {
    return inp_RemovePeriodFromName(datum);
}

void inp_RemovePeriodSetVisitor::VisitNcopy(inp_Keyword& keyword) {
    ReplaceNodeOrNsetParameter(keyword, "newset");
    ReplaceNodeOrNsetParameter(keyword, "oldset");
}

void inp_RemovePeriodSetVisitor::VisitElcopy(inp_Keyword& keyword) {
    ReplaceElementOrElsetParameter(keyword, "newset");
    ReplaceElementOrElsetParameter(keyword, "oldset");
}

// The data of a submodel name the driven nodes (labels or node sets), or,
// for the surface-based kinds, the surfaces, whose renaming is the surface
// walk's. Whatever the type, a set named there must follow its renamed
// definition, so every item goes through the rule; labels keep their text.
void inp_RemovePeriodSetVisitor::VisitSubmodel(inp_Keyword& keyword) {
    ReplaceNodeOrNsetAllData(keyword);
}

// -- the other families ----------------------------------------------------------

inp_RemovePeriodSurfaceVisitor::inp_RemovePeriodSurfaceVisitor()
    : inp_SurfaceFixupVisitor(inpM_SurfaceMap()) {}

cow_String inp_RemovePeriodSurfaceVisitor::FixupSurfaceName(cow_String const& name,
                                                            cow_String const&, cow_String const&,
                                                            cow_String const&) {
    return inp_RemovePeriodFromName(name);
}

cow_String inp_RemovePeriodDistributionVisitor::FixupDistributionName(cow_String const& name) {
    return inp_RemovePeriodFromName(name);
}

cow_String inp_RemovePeriodOrientationVisitor::FixupOrientationName(cow_String const& name) {
    return inp_RemovePeriodFromName(name);
}

cow_String inp_RemovePeriodRebarVisitor::FixupRebarName(cow_String const& name) {
    return inp_RemovePeriodFromName(name);
}

cow_String inp_RemovePeriodMaterialVisitor::FixupMaterialName(cow_String const& name) {
    return inp_RemovePeriodFromName(name);
}
