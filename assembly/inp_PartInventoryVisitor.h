#pragma once
// The referee of a model written as parts and an assembly. One walk over the
// keyword tree, after the element and element set maps exist, records per
// part what kind of content it holds (rigid elements, other elements,
// analytical surfaces, a rigid body), ties analytical rigid surfaces to the
// rigid bodies that name them across the part, instance and assembly levels,
// and CheckViolations then judges what was collected. CheckOutOfPlace, apart
// from the walk, checks that node and element data of a part stand either in
// the part or in its instances, never in both.
//
// It changes no keyword and no map: all it leaves behind is diagnostics.
// One visitor, one use: make it, VisitList, CheckViolations,
// CheckOutOfPlace, Report.

#include <cstdint>

#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

// What one part holds.
struct inp_PartContents {
    bool hasRigidBody = false;
    bool hasRigidElements = false;
    // At least one element that is neither rigid nor of a point type.
    bool hasOtherElements = false;
    std::int32_t analyticalSurfaceCount = 0;
    // Surface name to the flag word of inp_PartInventoryVisitor.
    cow_Map<cow_String, std::uint32_t> analyticalSurfaces;
};

class inp_PartInventoryVisitor : public inp_Visitor {
  public:
    // The flag word of every surface table: which of the two halves of a
    // sound pairing were seen. kSurfaceTied (both) is the sound state.
    static constexpr std::uint32_t kSurfaceDefined = 1;     // a *SURFACE defines it
    static constexpr std::uint32_t kSurfaceReferenced = 2;  // a *RIGID BODY names it
    static constexpr std::uint32_t kSurfaceTied = kSurfaceDefined | kSurfaceReferenced;

    // The maps are only read; copies share them.
    inp_PartInventoryVisitor(inpM_InstanceMap<inp_MapInt2Element> const& partElements,
                             inpM_InstanceMap<inp_MapInt2Element> const& instanceElements,
                             inpM_SetMap const& partElsets, inpM_SetMap const& instanceElsets);
    ~inp_PartInventoryVisitor() override;

    // -- the walk (slot order) --------------------------------------------------
    void DefaultAction(inp_Keyword& keyword) override;
    void VisitAssembly(inp_Keyword& keyword) override;
    void VisitEndInstance(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitPart(inp_Keyword& keyword) override;
    void VisitRigidBody(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override;
    void VisitSurface(inp_Keyword& keyword) override;

    // -- after the walk -----------------------------------------------------------

    // Judges what the walk collected: content and count rules per part
    // (errors), then the pairing of analytical surfaces with rigid bodies
    // (warnings). Empties the instance and assembly surface tables.
    void CheckViolations();
    // Node and element data of a part given both in the part and in an
    // instance of it, and opening keywords without their closing ones.
    // Takes the top keyword list of the organized tree; needs no walk.
    void CheckOutOfPlace(cow_List<inp_Keyword> const& keywords);
    // Fills the instance to part map afresh from every *INSTANCE of the tree,
    // for callers who want it without a walk.
    void GatherInstancePartNames(cow_List<inp_Keyword> const& keywords);
    // Counts, per `name` of each `open` keyword of the list, the *NODE,
    // *NGEN, *ELEMENT and *ELGEN keywords below it; an `open` not followed by
    // `close` is reported under the display names.
    cow_Map<cow_String, int> CountNodeElementKeywords(inp_KeywordEnm open, inp_KeywordEnm close,
                                                      cow_String const& openName,
                                                      cow_String const& closeName,
                                                      cow_List<inp_Keyword> const& keywords);

    // -- what was collected, for callers and tests ----------------------------------
    cow_Map<cow_String, inp_PartContents> const& PartTable() const noexcept { return m_parts; }
    inpM_InstanceMap<cow_String> const& InstancePartNames() const noexcept {
        return m_instanceParts;
    }
    cow_Map<cow_String, std::uint32_t> const& InstanceSurfaces() const noexcept {
        return m_instanceSurfaces;
    }
    cow_Map<cow_String, std::uint32_t> const& AssemblySurfaces() const noexcept {
        return m_assemblySurfaces;
    }
    // "ASSEMBLY" until an *ASSEMBLY was walked, then its name.
    cow_String const& InventoryAssemblyName() const noexcept { return m_inventoryAssemblyName; }

  private:
    // -- scope --
    bool inPart() const { return !PartName().IsEmpty(); }
    bool inInstance() const { return !InstanceName().IsEmpty(); }
    // Within the assembly and neither in a part nor in an instance.
    bool atAssemblyLevel() const;
    inp_PartContents& currentPartContents();

    // -- the walk --
    void recordPartContents(cow_String const& part);
    void checkRigidBodyCoversPart(inp_Keyword const& keyword);
    void checkAssemblyRigidBodyTarget(inp_Keyword const& keyword, cow_String const& target);
    void tieAnalyticalSurface(inp_Keyword const& keyword, cow_String const& surface);
    void tieAssemblyAnalyticalSurface(inp_Keyword const& keyword, cow_String const& surface);
    void checkRigidSurfaceSet(inp_Keyword const& keyword, cow_String const& elset);
    void warnMultipleReferences(inp_Keyword const& location, cow_String const& surface,
                                cow_String const& instance);

    // -- after the walk --
    void checkPartContents();
    void tieAssemblyReferences();
    void checkPartSurfaceAndRigidBodyDefs();
    void checkInstanceSurfaceAndRigidBodyDefs();
    void checkAssemblySurfaceAndRigidBodyDefs();
    void accumulateInstancePartNames(cow_List<inp_Keyword> const& keywords);

    // -- lookups that never report or throw --
    inp_MapInt2Element const* partElements(cow_String const& part) const;
    inp_MapInt2Element const* instanceElements(cow_String const& instance) const;
    // The part of an instance, or null for an unknown instance.
    cow_String const* partOfInstance(cow_String const& instance) const;
    // The location that messages about an instance, or the assembly, name.
    inp_Keyword const& instanceLocation(cow_String const& instance) const;
    inp_Keyword const& partLocation(cow_String const& part) const;

    cow_Map<cow_String, inp_PartContents> m_parts;
    inpM_InstanceMap<inp_MapInt2Element> m_partElements;
    inpM_InstanceMap<inp_MapInt2Element> m_instanceElements;
    inpM_SetMap m_partElsets;
    inpM_SetMap m_instanceElsets;
    inpM_InstanceMap<cow_String> m_instanceParts;
    // Key: instance.surface, with the scope separator of inp_Utils.
    cow_Map<cow_String, std::uint32_t> m_instanceSurfaces;
    // Key: the surface as the assembly-level *RIGID BODY writes it.
    cow_Map<cow_String, std::uint32_t> m_assemblySurfaces;
    cow_String m_inventoryAssemblyName = "ASSEMBLY";
    // Where the findings made after the walk point to: the opening keyword
    // of each part and instance, and the *ASSEMBLY (file and line only).
    cow_Map<cow_String, inp_Keyword> m_partLocations;
    cow_Map<cow_String, inp_Keyword> m_instanceLocations;
    inp_Keyword m_assemblyLocation;
};
