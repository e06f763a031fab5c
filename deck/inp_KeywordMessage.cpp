#include "deck/inp_KeywordMessage.h"

#include "deck/inp_Keyword.h"

atr_String inp_FormTitleForMessage(inp_Keyword const& keyword) {
    atr_String title = atr("in keyword *%s", cow_String(keyword.Name()).ToUpper());
    cow_String const& fileName = keyword.FileName();
    if (!fileName.IsEmpty()) {
        int lastBackslash = fileName.RFind('\\');
        title.append(atr(", file \"%s\"", fileName.Substr(lastBackslash + 1)));
    }
    if (keyword.LineNumber() != 0) title.append(atr(", line %d:", keyword.LineNumber()));
    title.append(' ');
    return title;
}

atr_String inp_MessageInKeyword(inp_Keyword const& keyword, atr_String const& text) {
    atr_String message = inp_FormTitleForMessage(keyword);
    message.append(text);
    message.SetLocation(inp_LocationOf(keyword));
    return message;
}

atr_Location inp_LocationOf(inp_Keyword const& keyword) {
    return {keyword.FileName(), keyword.LineNumber(), cow_String(keyword.Name()).ToUpper()};
}
