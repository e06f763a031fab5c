#include "assembly/inp_NameFixupVisitor.h"

#include "assembly/inp_OwnDataWrite.h"
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
    inp_Item const* value = keyword.Parameters().Find(name);
    if (value == nullptr || value->Type() == inp_Types::inp_NONE) return;
    cow_String const text = value->AsString();
    cow_String const result = Fixup(keyword, text);
    if (result != text) keyword.SetParameter(name, inp_Item(result));
}

void inp_NameFixupVisitor::ReplaceData(inp_Keyword& keyword, int line, int column) {
    if (!keyword.Data().HasValue(line, column)) return;
    cow_String const text = keyword.Data().AsString(line, column);
    cow_String const result = Fixup(keyword, text);
    if (result != text) inp_WriteOwnDataItem(keyword, line, column, result);
}

void inp_NameFixupVisitor::ReplaceColumn(inp_Keyword& keyword, int column) {
    for (int line = 0; line < keyword.Data().Rows(); ++line) ReplaceData(keyword, line, column);
}

bool inp_NameFixupVisitor::IsNameText(cow_String const& text) {
    if (text.IsEmpty()) return false;
    char const first = text.View().front();
    return !((first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.');
}
