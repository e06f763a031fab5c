#pragma once
// The rebar family declares its question and has no handler: rebar names in
// output requests are given their part by the flat-deck rewrite, so a walk
// of one of its subclasses leaves the deck as it is. The stages run it all
// the same, in its place, so that a handler added here takes effect.

#include "assembly/inp_NameFixupVisitor.h"

class inp_RebarFixupVisitor : public inp_NameFixupVisitor {
  public:
    ~inp_RebarFixupVisitor() override;

    virtual cow_String FixupRebarName(cow_String const& name) = 0;
    cow_String FixupName(cow_String const& name) override { return FixupRebarName(name); }
};
