#pragma once
// Names that are not UTF-8. No stage of the road runs this walk: it is
// offered to callers that hand names on to programs that require UTF-8
// (the fedeck checker runs it after the whole road). A bad name is reported
// and stays as it is; a bad step subheading, which is only a comment of the
// step, is removed with a warning.

#include "pipeline/inp_Visitor.h"

class inp_Utf8ValidityVisitor : public inp_Visitor {
  public:
    void DefaultAction(inp_Keyword&) override {}

    // False for an empty text; otherwise whether its bytes are not UTF-8.
    bool IsBad(cow_String const& text) const;
    // Reports the value of parameter `name` if it is bad; returns the verdict.
    bool IsParameterValueBad(inp_Keyword const& keyword, cow_String const& name,
                             cow_String const& value);
    // The test on `name`, if the keyword has one.
    void CheckNameParameterValue(inp_Keyword const& keyword);

    void VisitMaterial(inp_Keyword& keyword) override;
    void VisitStep(inp_Keyword& keyword) override;
};
