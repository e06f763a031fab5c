#include "deck/inp_DeckFileLookup.h"

#include "support/ZELBasUtlFilePath.h"

cow_String inp_WithoutQuotes(cow_String const& name) {
    if (name.Length() >= 2 && name[0] == '"' && name[name.Length() - 1] == '"')
        return name.Substr(1, name.Length() - 2);
    return name;
}

// The parser (for *INCLUDE) and the expansion stage (for data files) each
// had a copy of this rule, and the copies gave the same result for every
// name: they differed in form only. The include copy answered a name found as
// written with the text of the path object built from it, the data-file copy
// with the unquoted name itself (the same text); the include copy tried the
// include directory inside a test that one was set, the data-file copy
// returned early when none was. So no caller's behaviour changes. The rule
// kept is the one both callers' tests check: the name as written first (so it
// wins over a file of the same name in the include directory), the include
// directory second, and a directory counts as found (its reader then reports
// it unreadable).
cow_String inp_LocateDeckFile(cow_String const& name, cow_String const& includeDirectory) {
    cow_String bare = inp_WithoutQuotes(name);
    if (ZELBasUtlFilePath(bare).Exists()) return bare;
    if (includeDirectory.IsEmpty()) return cow_String();
    ZELBasUtlFilePath const inIncludeDirectory(includeDirectory, bare);
    return inIncludeDirectory.Exists() ? inIncludeDirectory.PathName() : cow_String();
}

void inp_ListMissingDeckFile(cow_List<cow_String>& missing, cow_String const& name) {
    if (name == "None") return;
    missing.AppendUnlessMember(ZELBasUtlFilePath(inp_WithoutQuotes(name)).FileName());
}
