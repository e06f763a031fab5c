#pragma once
// What the orientation, material, rebar and distribution fixups share: a
// name in a parameter or in a data item goes through one question, and the
// answer is written back when it differs. Each family names its question
// (FixupOrientationName, ...) and forwards FixupName to it, so the writing
// back has one body.

#include "pipeline/inp_Visitor.h"
#include "support/cow_String.h"

class inp_NameFixupVisitor : public inp_Visitor {
  public:
    ~inp_NameFixupVisitor() override;

    // The name of the family's question for `name`. A message exception
    // (inp_PrimException) becomes a warning on the keyword; the name stays.
    virtual cow_String FixupName(cow_String const& name) = 0;

    // The value of parameter `name`, if the keyword has it.
    void ReplaceParameter(inp_Keyword& keyword, cow_String const& name);
    // The item at (line, column), if it exists and is not blank.
    void ReplaceData(inp_Keyword& keyword, int line, int column);
    // The item at `column` of every line.
    void ReplaceColumn(inp_Keyword& keyword, int column);

    // Whether a data item's text is a name rather than a number.
    static bool IsNameText(cow_String const& text);

    // Nothing is touched unless a handler says so.
    void DefaultAction(inp_Keyword&) override {}

  protected:
    // FixupName, a message exception turned into a warning on the keyword.
    cow_String Fixup(inp_Keyword const& keyword, cow_String const& name);
};
