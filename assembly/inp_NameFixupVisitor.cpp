#include "assembly/inp_NameFixupVisitor.h"

#include "assembly/inp_KeywordRewrite.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"

inp_NameFixupVisitor::~inp_NameFixupVisitor() = default;

cow_String inp_NameFixupVisitor::Fixup(inp_Keyword const& keyword, cow_String const& name) {
    try {
        return FixupName(name);
    } catch (inp_PrimException const& failure) {
        AddWarning(inp_Utils::MessageInKeyword(keyword, failure.UserReport()));
        return name;
    }
}

void inp_NameFixupVisitor::ReplaceParameter(inp_Keyword& keyword, cow_String const& name) {
    inp_RewriteParameter(keyword, name,
                         [&](cow_String const& text) { return Fixup(keyword, text); });
}

void inp_NameFixupVisitor::ReplaceData(inp_Keyword& keyword, int line, int column) {
    inp_RewriteDataItem(keyword, line, column,
                        [&](cow_String const& text) { return Fixup(keyword, text); });
}

void inp_NameFixupVisitor::ReplaceColumn(inp_Keyword& keyword, int column) {
    for (int line = 0; line < keyword.Data().Rows(); ++line) ReplaceData(keyword, line, column);
}

bool inp_NameFixupVisitor::IsNameText(cow_String const& text) {
    return !text.IsEmpty() && !inp_StartsLikeNumber(text);
}
