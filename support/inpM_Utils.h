#pragma once
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/cow_String.h"

// Text helpers of the model maps.
class inpM_Utils {
  public:
    // The name without one surrounding pair of double quotes; any other name
    // as it stands.
    static cow_String RemoveQuotes(cow_String const& name);

    // A collected list under its title, the layout of every message that
    // lists ids or names: the title, then the items separated by ", ", at most
    // kItemsPerLine to a line, each line on its own and indented by four
    // blanks. An empty list gives the title alone.
    //
    //     The following sets specified do not exist
    //         A, B, C
    static constexpr int kItemsPerLine = 8;
    static atr_String FormatCollectedErrors(atr_String const& title, cow_List<int> const& items);
    static atr_String FormatCollectedErrors(atr_String const& title,
                                            cow_List<cow_String> const& items);
    static atr_String FormatCollectedErrors(atr_String const& title,
                                            cow_List<atr_String> const& items);
};
