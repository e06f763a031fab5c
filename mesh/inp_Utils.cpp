#include "mesh/inp_Utils.h"

#include "deck/inp_Keyword.h"

atr_String inp_Utils::FormTitleForMessage(inp_Keyword const& keyword) {
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

atr_String inp_Utils::MessageInKeyword(inp_Keyword const& keyword, atr_String const& text) {
    atr_String message = FormTitleForMessage(keyword);
    message.append(text);
    return message;
}
