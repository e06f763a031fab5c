#pragma once
// Period removal in a flat deck. The period separates the pieces of a scoped
// name (instance.set), and a flat deck is about to become one part whose
// names will be scoped; so before that, every set, surface, distribution,
// orientation, rebar and material name it refers to has its unquoted periods
// replaced by underscores, each reference following the same rule as the
// name it refers to. A name that starts with a digit is a label or a number
// and keeps its periods.

#include "assembly/inp_DistributionFixupVisitor.h"
#include "assembly/inp_MaterialFixupVisitor.h"
#include "assembly/inp_OrientationFixupVisitor.h"
#include "assembly/inp_RebarFixupVisitor.h"
#include "assembly/inp_SetFixupVisitor.h"
#include "assembly/inp_SurfaceFixupVisitor.h"

// The rule of every visitor below.
cow_String inp_RemovePeriodFromName(cow_String const& name);

class inp_RemovePeriodSetVisitor : public inp_SetFixupVisitor {
  public:
    // `fullFakeParts`: the flat deck is to become full parts, as the
    // interactive pre-processor reads them.
    explicit inp_RemovePeriodSetVisitor(bool fullFakeParts);

    cow_String FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                            inpM_SetMap const& sets, inpM_IdMap const& ids,
                            cow_String const& assemblyName, cow_String const& instanceName,
                            cow_String const& partName, inp_SetType type,
                            cow_String const& parameterName) override;

    void VisitNcopy(inp_Keyword& keyword) override;
    void VisitElcopy(inp_Keyword& keyword) override;
    void VisitSubmodel(inp_Keyword& keyword) override;
};

class inp_RemovePeriodSurfaceVisitor : public inp_SurfaceFixupVisitor {
  public:
    inp_RemovePeriodSurfaceVisitor();
    cow_String FixupSurfaceName(cow_String const& name, cow_String const& assemblyName,
                                cow_String const& instanceName,
                                cow_String const& partName) override;
};

class inp_RemovePeriodDistributionVisitor : public inp_DistributionFixupVisitor {
  public:
    cow_String FixupDistributionName(cow_String const& name) override;
};

class inp_RemovePeriodOrientationVisitor : public inp_OrientationFixupVisitor {
  public:
    cow_String FixupOrientationName(cow_String const& name) override;
};

class inp_RemovePeriodRebarVisitor : public inp_RebarFixupVisitor {
  public:
    cow_String FixupRebarName(cow_String const& name) override;
};

class inp_RemovePeriodMaterialVisitor : public inp_MaterialFixupVisitor {
  public:
    cow_String FixupMaterialName(cow_String const& name) override;
};
