#include "pipeline/inp_Utf8ValidityVisitor.h"

#include "assembly/inp_KeywordRewrite.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"
#include "support/ZELString.h"

bool inp_Utf8ValidityVisitor::IsBad(cow_String const& text) const {
    if (text.IsEmpty()) return false;
    return ZELString::BuildFromUTF8(text.View()).IsBAD();
}

bool inp_Utf8ValidityVisitor::IsParameterValueBad(inp_Keyword const& keyword,
                                                  cow_String const& name, cow_String const& value) {
    if (!IsBad(value)) return false;
    AddError(inp_Utils::MessageInKeyword(
        keyword, atr("Parameter \"%s\" value is not UTF-8 compliant.", name)));
    return true;
}

void inp_Utf8ValidityVisitor::CheckNameParameterValue(inp_Keyword const& keyword) {
    inp_Item const* name = keyword.Parameters().Find("name");
    if (name != nullptr) IsParameterValueBad(keyword, "name", name->AsString());
}

void inp_Utf8ValidityVisitor::VisitMaterial(inp_Keyword& keyword) {
    CheckNameParameterValue(keyword);
}

void inp_Utf8ValidityVisitor::VisitStep(inp_Keyword& keyword) {
    inp_Visitor::VisitStep(keyword);
    CheckNameParameterValue(keyword);
    if (keyword.Data().Rows() == 0 || keyword.Data().Cols(0) == 0) return;
    if (!IsBad(keyword.Data().AsStringVerbatim(0, 0))) return;
    inp_WriteOwnDataItem(keyword, 0, 0, cow_String());
    AddWarning(inp_Utils::MessageInKeyword(
        keyword, atr("Step subheading is not UTF-8 compliant and has been removed.")));
}
