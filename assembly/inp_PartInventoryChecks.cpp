// What inp_PartInventoryVisitor judges once the walk is over: the content
// rules of each part, and the pairing of analytical rigid surfaces with the
// rigid bodies that name them. The findings have no keyword of their own, so
// they point to the *PART or *INSTANCE they concern (the *ASSEMBLY when that
// is unknown). The content rules are errors; a wrong pairing only warns,
// for it does not stop a job.

#include "assembly/inp_PartInventoryVisitor.h"
#include "mesh/inp_Utils.h"

void inp_PartInventoryVisitor::CheckViolations() {
    checkPartContents();
    tieAssemblyReferences();
    checkPartSurfaceAndRigidBodyDefs();
    checkInstanceSurfaceAndRigidBodyDefs();
    checkAssemblySurfaceAndRigidBodyDefs();
}

void inp_PartInventoryVisitor::checkPartContents() {
    m_parts.ForEachSorted([this](cow_String const& part, inp_PartContents const& contents) {
        int const kinds = (contents.analyticalSurfaceCount > 0 ? 1 : 0) +
                          (contents.hasOtherElements ? 1 : 0) + (contents.hasRigidElements ? 1 : 0);
        inp_Keyword const& location = partLocation(part);
        if (kinds > 1)
            AddError(inp_Utils::MessageInKeyword(
                location, atr("Rigid elements, deformable elements, connectors and analytical "
                              "surfaces cannot be combined within a part. This rule is violated "
                              "by part %s",
                              part)));
        if (contents.analyticalSurfaceCount > 1)
            AddError(inp_Utils::MessageInKeyword(
                location, atr("Only one analytical surface is allowed per part. This rule is "
                              "violated by part %s",
                              part)));
    });
}

// An assembly-level rigid body that names instance.surface is tied to a
// surface defined in that instance, or in the instance's part.
void inp_PartInventoryVisitor::tieAssemblyReferences() {
    cow_List<cow_String> keys;
    keys.Reserve(m_assemblySurfaces.Size());
    m_assemblySurfaces.ForEachSorted(
        [&keys](cow_String const& key, std::uint32_t) { keys.Append(key); });
    for (cow_String const& key : keys) {
        cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(key);
        int const last = pieces.Length() - 1;
        if (last < 1) continue;
        cow_String const& surface = pieces[last];
        cow_String const& instance = pieces[last - 1];
        if (std::uint32_t const* flags = m_instanceSurfaces.Find(key)) {
            if (*flags & kSurfaceReferenced) {
                warnMultipleReferences(instanceLocation(instance), surface, instance);
            } else {
                m_instanceSurfaces.Get(key) = kSurfaceTied;
                m_assemblySurfaces.Get(key) = kSurfaceTied;
            }
        }
        cow_String const* part = partOfInstance(instance);
        if (part == nullptr || !m_parts.IsMember(*part)) continue;
        inp_PartContents& contents = m_parts.Get(*part);
        if (!contents.analyticalSurfaces.IsMember(surface)) continue;
        contents.analyticalSurfaces.Get(surface) = kSurfaceTied;
        m_assemblySurfaces.Get(key) = kSurfaceTied;
    }
}

void inp_PartInventoryVisitor::checkPartSurfaceAndRigidBodyDefs() {
    m_parts.ForEachSorted([this](cow_String const& part, inp_PartContents const& contents) {
        contents.analyticalSurfaces.ForEachSorted([&](cow_String const& surface,
                                                      std::uint32_t flags) {
            if (flags == kSurfaceDefined)
                AddWarning(inp_Utils::MessageInKeyword(
                    partLocation(part),
                    atr("*SURFACE keyword defining analytical rigid surface %1$s of part %2$s is "
                        "not associated with a rigid body definition.",
                        surface, part)));
            else if (flags == kSurfaceReferenced)
                AddWarning(inp_Utils::MessageInKeyword(
                    partLocation(part),
                    atr("Analytical rigid surface %1$s of part %2$s is not defined, but is "
                        "referenced by a rigid body definition.",
                        surface, part)));
        });
    });
}

void inp_PartInventoryVisitor::checkInstanceSurfaceAndRigidBodyDefs() {
    m_instanceSurfaces.ForEachSorted([this](cow_String const& key, std::uint32_t flags) {
        if (flags == kSurfaceTied) return;
        cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(key);
        cow_String const& instance = pieces[0];
        cow_String const& surface = pieces[pieces.Length() - 1];
        inp_Keyword const& location = instanceLocation(instance);
        cow_String const* part = partOfInstance(instance);
        inp_PartContents const* contents = part ? m_parts.Find(*part) : nullptr;
        if (contents && contents->analyticalSurfaces.IsMember(surface)) {
            AddWarning(inp_Utils::MessageInKeyword(
                location,
                atr("If a rigid body definition is defined at the part or part instance level, "
                    "the corresponding analytical rigid surface definition must be defined at "
                    "the same level. Analytical rigid surface %1$s violates this rule with "
                    "regard to part %2$s and part instance %3$s.",
                    surface, *part, instance)));
        } else if (flags & kSurfaceDefined) {
            AddWarning(inp_Utils::MessageInKeyword(
                location, atr("*SURFACE keyword defining analytical rigid surface %1$s of part "
                              "instance %2$s is not associated with a rigid body definition.",
                              surface, instance)));
        } else {
            AddWarning(inp_Utils::MessageInKeyword(
                location, atr("Analytical rigid surface %1$s of part instance %2$s is not "
                              "defined, but is referenced by a rigid body definition.",
                              surface, instance)));
        }
    });
    m_instanceSurfaces.Clear();
}

void inp_PartInventoryVisitor::checkAssemblySurfaceAndRigidBodyDefs() {
    m_assemblySurfaces.ForEachSorted([this](cow_String const& key, std::uint32_t flags) {
        if (flags != kSurfaceReferenced) return;
        cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(key);
        AddWarning(inp_Utils::MessageInKeyword(
            instanceLocation(pieces[0]),
            atr("Analytical rigid surface %1$s of part instance %2$s is not defined, but is "
                "referenced by a rigid body definition at the assembly level.",
                pieces[pieces.Length() - 1], pieces[0])));
    });
    m_assemblySurfaces.Clear();
}
