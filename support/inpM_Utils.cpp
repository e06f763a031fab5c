#include "support/inpM_Utils.h"

cow_String inpM_Utils::RemoveQuotes(cow_String const& name) {
    int const length = name.Length();
    if (length < 2 || name.CStr()[0] != '"' || name.CStr()[length - 1] != '"') return name;
    return name.Substr(1, length - 2);
}

namespace {

template <class Item, class ToText>
atr_String formatList(atr_String const& title, cow_List<Item> const& items, ToText toText) {
    atr_String text(title);
    int column = 0;
    for (Item const& item : items) {
        if (column == 0) {
            text.append("\n    ");
        } else {
            text.append(", ");
        }
        text.append(toText(item));
        column = (column + 1) % inpM_Utils::kItemsPerLine;
    }
    return text;
}

}  // namespace

atr_String inpM_Utils::FormatCollectedErrors(atr_String const& title, cow_List<int> const& items) {
    return formatList(title, items, [](int id) { return cow_String::FromInt(id); });
}

atr_String inpM_Utils::FormatCollectedErrors(atr_String const& title,
                                             cow_List<cow_String> const& items) {
    return formatList(title, items, [](cow_String const& item) { return item; });
}

atr_String inpM_Utils::FormatCollectedErrors(atr_String const& title,
                                             cow_List<atr_String> const& items) {
    return formatList(title, items, [](atr_String const& item) { return item; });
}
