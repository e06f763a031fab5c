#pragma once
// The answers of the surface and distribution walks when a flat deck
// becomes one part. A surface that is a part of its own (an analytical or
// rigid surface, which gets a generated part of its name) is named at the
// assembly by its instance: name "-1." name. Distributions are not renamed:
// the walk only records which of the known distributions the deck uses.

#include "assembly/inp_DistributionFixupVisitor.h"
#include "assembly/inp_SurfaceFixupVisitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"

class inp_FakePartSurfaceVisitor : public inp_SurfaceFixupVisitor {
  public:
    explicit inp_FakePartSurfaceVisitor(inpM_SurfaceMap const& surfaces);

    // Outside every part and instance, a surface that is a part is named by
    // the instance of that part; any other name stays.
    cow_String FixupSurfaceName(cow_String const& name, cow_String const& assemblyName,
                                cow_String const& instanceName,
                                cow_String const& partName) override;

    // An analytical surface becomes a part: its name goes on the list.
    void VisitSurface(inp_Keyword& keyword) override;
    // So does a rigid surface, which is given a name if it has none.
    void VisitRigidSurface(inp_Keyword& keyword) override;
    // The analytical surface of a rigid body is named by its instance.
    void VisitRigidBody(inp_Keyword& keyword) override;

    // The surfaces that are parts, in the order met.
    cow_List<cow_String> const& PartSurfaces() const { return m_partSurfaces; }

  private:
    cow_List<cow_String> m_partSurfaces;
};

class inp_FakeDistributionVisitor : public inp_DistributionFixupVisitor {
  public:
    // `known`: every distribution of the deck by name. `used` receives the
    // names of those the deck refers to; it must outlive the walk.
    inp_FakeDistributionVisitor(cow_Map<cow_String, int> const& known,
                                cow_Map<cow_String, int>& used);

    cow_String FixupDistributionName(cow_String const& name) override;

  private:
    cow_Map<cow_String, int> m_known;
    cow_Map<cow_String, int>& m_used;
};

// The instance name by which the assembly refers to a surface that is a
// part of its own: name "-1." name.
cow_String inp_PartSurfaceInstanceName(cow_String const& name);
