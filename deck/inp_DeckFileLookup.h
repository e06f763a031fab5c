#pragma once
// Where a file that a deck names is found: the file of *INCLUDE, and the data
// file of a keyword's `input` parameter. Both follow the one rule here.

#include "support/cow_List.h"
#include "support/cow_String.h"

// The name without its surrounding double quotes, if it has a pair of them:
// quotes let a file name hold blanks. Messages keep the name as written.
cow_String inp_WithoutQuotes(cow_String const& name);

// The path of the file `name` stands for, quotes taken off: the name as
// written (relative to the working directory, or absolute) if something
// exists there, else the name in `includeDirectory` (not tried when that is
// empty). Empty when neither exists. Only existence is tested: whether the
// path is a readable file is the caller's test, with its own message.
cow_String inp_LocateDeckFile(cow_String const& name, cow_String const& includeDirectory);

// Adds to `missing`, once, the name under which a file that was not found is
// listed: its last path component, quotes taken off. "None", what a value
// without a usable form reads as in a lenient parse, is no file and is not
// listed.
void inp_ListMissingDeckFile(cow_List<cow_String>& missing, cow_String const& name);
