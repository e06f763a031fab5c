#pragma once
// Writes a keyword list back as deck text for the tree command.

#include "support/cow_List.h"

class aio_ostream;
class inp_Keyword;

// Prints every keyword as the deck model does, suboptions below their
// parent, except that the data lines of keywords read from an encrypted file
// stay hidden: the point of encrypting a file is that its data is used but
// never shown. Such a keyword prints its keyword line and, where data lines
// were, the comment line kWithheldNote.
class fedeck_TreePrinter {
  public:
    static constexpr char const* kWithheldNote =
        "** data lines from an encrypted file are not shown\n";

    static void Print(aio_ostream& out, cow_List<inp_Keyword> const& keywords);
};
