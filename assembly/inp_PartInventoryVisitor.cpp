#include "assembly/inp_PartInventoryVisitor.h"

#include <string_view>

#include "mesh/inp_Utils.h"

namespace {

// Point elements (masses, inertias, capacities, grounded springs) belong
// with any kind of part: they count neither as rigid nor as other elements,
// and a part-level rigid body may leave them out of its set.
bool isPointElementType(cow_String const& type) {
    static constexpr std::string_view kPointTypes[] = {"MASS",    "ROTARYI", "HEATCAP",
                                                       "SPRING1", "SPRING2", "SPRINGA"};
    for (std::string_view point : kPointTypes)
        if (type.View() == point) return true;
    return false;
}

bool isRigidElementType(cow_String const& type) {
    return type.StartsWith("R3D") || type.StartsWith("R2D") || type.StartsWith("RAX") ||
           type.StartsWith("RB");
}

// Only the keyword, file and line of `keyword`: what a message title needs,
// without holding the keyword's data or suboptions alive.
inp_Keyword locationOf(inp_Keyword const& keyword) {
    inp_Keyword location(keyword.Keyword(), keyword.Origin().WithoutComments());
    location.SetLineNumber(keyword.LineNumber());
    return location;
}

// Sets `flags` on `name`, inserting the entry when it is new.
void markSurface(cow_Map<cow_String, std::uint32_t>& table, cow_String const& name,
                 std::uint32_t flags) {
    if (table.IsMember(name)) {
        table.Get(name) |= flags;
    } else {
        table.Insert(name, flags);
    }
}

atr_String multipleReferencesText(cow_String const& surface, cow_String const& instance) {
    return atr(
        "Analytical rigid surface %1$s of part instance %2$s is referenced by multiple rigid "
        "bodies. A part instance may contain only one analytical rigid surface and it is "
        "permitted to be referenced by only one rigid body definition.",
        surface, instance);
}

char const kRigidSurfaceRequirements[] =
    "*RIGID SURFACE can be used in a parts & assembly input file only if all the following "
    "requirements are met: (a) Both the TYPE and ELSET parameters are used; (b) The ELSET "
    "contains IRS or drag chain elements; and (c) The *RIGID SURFACE option is inside the same "
    "part/instance as the elements in the ELSET.";

}  // namespace

inp_PartInventoryVisitor::inp_PartInventoryVisitor(
    inpM_InstanceMap<inp_MapInt2Element> const& partElements,
    inpM_InstanceMap<inp_MapInt2Element> const& instanceElements, inpM_SetMap const& partElsets,
    inpM_SetMap const& instanceElsets)
    : m_partElements(partElements),
      m_instanceElements(instanceElements),
      m_partElsets(partElsets),
      m_instanceElsets(instanceElsets) {}

inp_PartInventoryVisitor::~inp_PartInventoryVisitor() = default;

void inp_PartInventoryVisitor::DefaultAction(inp_Keyword&) {}

// -- scope and lookups ---------------------------------------------------------------

// The rigid body and surface rules know three levels; a keyword outside the
// part, the instances and the assembly belongs to none and is let be, for
// the referee of the refnode and elset of a rigid body as for the surfaces.
bool inp_PartInventoryVisitor::atAssemblyLevel() const {
    return !inPart() && !inInstance() && !AssemblyName().IsEmpty();
}

inp_MapInt2Element const* inp_PartInventoryVisitor::partElements(cow_String const& part) const {
    // Asked only when known: an unknown name would be reported to the sink.
    if (!m_partElements.IsMember(part)) return nullptr;
    auto const& holder = m_partElements.ConstGetMap(part);
    return holder.HasValue() ? &holder.ConstGet() : nullptr;
}

inp_MapInt2Element const* inp_PartInventoryVisitor::instanceElements(
    cow_String const& instance) const {
    if (!m_instanceElements.IsMember(instance)) return nullptr;
    auto const& holder = m_instanceElements.ConstGetMap(instance);
    return holder.HasValue() ? &holder.ConstGet() : nullptr;
}

cow_String const* inp_PartInventoryVisitor::partOfInstance(cow_String const& instance) const {
    if (!m_instanceParts.IsMember(instance)) return nullptr;
    auto const& holder = m_instanceParts.ConstGetMap(instance);
    return holder.HasValue() ? &holder.ConstGet() : nullptr;
}

inp_Keyword const& inp_PartInventoryVisitor::instanceLocation(cow_String const& instance) const {
    inp_Keyword const* location = m_instanceLocations.Find(instance);
    return location ? *location : m_assemblyLocation;
}

inp_Keyword const& inp_PartInventoryVisitor::partLocation(cow_String const& part) const {
    inp_Keyword const* location = m_partLocations.Find(part);
    return location ? *location : m_assemblyLocation;
}

// VisitPart made the record; a walk that starts inside a part (a caller's
// sub-list) gets one here.
inp_PartContents& inp_PartInventoryVisitor::currentPartContents() {
    if (!m_parts.IsMember(PartName())) recordPartContents(PartName());
    return m_parts.Get(PartName());
}

// -- the walk ------------------------------------------------------------------------

void inp_PartInventoryVisitor::VisitAssembly(inp_Keyword& keyword) {
    inp_Visitor::VisitAssembly(keyword);
    m_inventoryAssemblyName = AssemblyName();
    m_assemblyLocation = locationOf(keyword);
    m_assemblySurfaces.Clear();
}

// Nothing to record: the base closes the instance scope, after which
// surfaces and rigid bodies belong to the assembly again.
void inp_PartInventoryVisitor::VisitEndInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitEndInstance(keyword);
}

void inp_PartInventoryVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitInstance(keyword);
    m_instanceParts.Insert(InstanceName(), keyword.GetParameterAsString("part", cow_String()));
    m_instanceLocations.Insert(InstanceName(), locationOf(keyword));
}

// Runs before the part's own keywords: a second *PART of a name starts its
// record afresh.
void inp_PartInventoryVisitor::VisitPart(inp_Keyword& keyword) {
    inp_Visitor::VisitPart(keyword);
    recordPartContents(PartName());
    m_partLocations.Insert(PartName(), locationOf(keyword));
}

void inp_PartInventoryVisitor::recordPartContents(cow_String const& part) {
    inp_PartContents contents;
    if (inp_MapInt2Element const* elements = partElements(part)) {
        for (inp_MapInt2ElementSIT it(*elements); it.NotDone(); it.Next()) {
            cow_String const& type = it.CurrentValue().type();
            if (isRigidElementType(type)) {
                contents.hasRigidElements = true;
            } else if (!isPointElementType(type)) {
                contents.hasOtherElements = true;  // connectors too: no class of their own
            }
            if (contents.hasRigidElements && contents.hasOtherElements) break;
        }
    }
    m_parts.Insert(part, contents);
}

void inp_PartInventoryVisitor::VisitSurface(inp_Keyword& keyword) {
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    if (!inp_Utils::IsAnalyticalSurfaceType(type)) return;
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    if (inPart()) {
        inp_PartContents& contents = currentPartContents();
        ++contents.analyticalSurfaceCount;
        markSurface(contents.analyticalSurfaces, name, kSurfaceDefined);
    } else if (inInstance()) {
        markSurface(m_instanceSurfaces, InstanceName() + "." + name, kSurfaceDefined);
    } else if (atAssemblyLevel()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Analytical rigid surface %1$s was defined at the assembly level. "
                         "Analytical rigid surfaces can only be defined within a part or part "
                         "instance.",
                         name)));
    }
}

void inp_PartInventoryVisitor::VisitRigidBody(inp_Keyword& keyword) {
    if (inPart()) {
        checkRigidBodyCoversPart(keyword);
    } else if (atAssemblyLevel()) {
        checkAssemblyRigidBodyTarget(keyword, keyword.GetParameterAsString("refnode", ""));
        if (keyword.HasParameter("elset"))
            checkAssemblyRigidBodyTarget(keyword, keyword.GetParameterAsString("elset", ""));
    }
    if (keyword.HasParameter("analyticalsurface"))
        tieAnalyticalSurface(keyword, keyword.GetParameterAsString("analyticalsurface", ""));
}

// A part-level rigid body makes the whole part rigid: its set must hold
// every element of the part, point elements excepted.
void inp_PartInventoryVisitor::checkRigidBodyCoversPart(inp_Keyword const& keyword) {
    cow_String const& part = PartName();
    currentPartContents().hasRigidBody = true;
    if (!keyword.HasParameter("elset")) return;
    cow_String const elset = keyword.GetParameterAsString("elset", cow_String());
    inp_MapInt2Element const* elements = partElements(part);
    int const total = elements ? elements->Size() : 0;
    // A set that does not exist (reported by the set readers) holds no
    // element of the part: it is judged as an empty set.
    inpM_BaseSet const* set = m_partElsets.HasNestedSet(part, elset)
                                  ? &*m_partElsets.ConstGetNestedSet(part, elset)
                                  : nullptr;
    int const setSize = set ? set->Size() : 0;
    if (setSize >= total) return;
    int forgivenPoints = 0;
    for (inp_MapInt2ElementSIT it(*elements); it.NotDone(); it.Next()) {
        if (isPointElementType(it.CurrentValue().type()) &&
            !(set && set->IsMember(it.CurrentKey())))
            ++forgivenPoints;
    }
    if (setSize < total - forgivenPoints)
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("If a part contains a rigid body definition, all elements in the part must "
                "belong to the element set given on the *RIGID BODY option. A part-level rigid "
                "body that refers to only some of the elements within the part is not allowed. "
                "This rule is violated by part %s",
                part)));
}

// An assembly-level rigid body may not take its nodes or elements from an
// instance of a part that is itself a rigid body.
void inp_PartInventoryVisitor::checkAssemblyRigidBodyTarget(inp_Keyword const& keyword,
                                                            cow_String const& target) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(target);
    if (pieces.Length() < 2) return;
    cow_String const* part = partOfInstance(pieces[0]);
    if (part == nullptr) return;
    inp_PartContents const* contents = m_parts.Find(*part);
    if (contents == nullptr || !contents->hasRigidBody) return;
    AddError(inp_Utils::MessageInKeyword(
        keyword, atr("A part that contains a rigid body definition (part: %s) cannot be "
                     "referenced by an assembly-level rigid body definition. ",
                     *part)));
}

void inp_PartInventoryVisitor::tieAnalyticalSurface(inp_Keyword const& keyword,
                                                    cow_String const& surface) {
    if (inPart()) {
        markSurface(currentPartContents().analyticalSurfaces, surface, kSurfaceReferenced);
    } else if (inInstance()) {
        cow_String const key = InstanceName() + "." + surface;
        std::uint32_t const* flags = m_instanceSurfaces.Find(key);
        if (flags && (*flags & kSurfaceReferenced)) {
            warnMultipleReferences(keyword, surface, InstanceName());
        } else {
            markSurface(m_instanceSurfaces, key, kSurfaceReferenced);
        }
    } else if (atAssemblyLevel()) {
        tieAssemblyAnalyticalSurface(keyword, surface);
    }
}

void inp_PartInventoryVisitor::tieAssemblyAnalyticalSurface(inp_Keyword const& keyword,
                                                            cow_String const& surface) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(surface);
    if (pieces.Length() < 2) {
        AddWarning(inp_Utils::MessageInKeyword(
            keyword, atr("An assembly level rigid body definition references an assembly level "
                         "analytical rigid surface (%1$s). Analytical rigid surfaces must be "
                         "defined at the part or part instance levels.",
                         surface)));
        return;
    }
    std::uint32_t const* flags = m_assemblySurfaces.Find(surface);
    if (flags && (*flags & kSurfaceReferenced)) {
        int const last = pieces.Length() - 1;
        warnMultipleReferences(keyword, pieces[last], pieces[last - 1]);
    } else {
        markSurface(m_assemblySurfaces, surface, kSurfaceReferenced);
    }
}

void inp_PartInventoryVisitor::warnMultipleReferences(inp_Keyword const& location,
                                                      cow_String const& surface,
                                                      cow_String const& instance) {
    AddWarning(inp_Utils::MessageInKeyword(location, multipleReferencesText(surface, instance)));
}

void inp_PartInventoryVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    if (!keyword.HasParameter("elset") || !keyword.HasParameter("type") ||
        (!inPart() && !inInstance())) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr(kRigidSurfaceRequirements)));
        return;
    }
    checkRigidSurfaceSet(keyword, keyword.GetParameterAsString("elset", cow_String()));
}

// The set must belong to the part (or instance) of the keyword and hold only
// IRS or drag chain elements of it. The first offender ends the check, so one
// keyword gives at most one message.
void inp_PartInventoryVisitor::checkRigidSurfaceSet(inp_Keyword const& keyword,
                                                    cow_String const& elset) {
    bool const part = inPart();
    cow_String const& owner = part ? PartName() : InstanceName();
    inpM_SetMap const& sets = part ? m_partElsets : m_instanceElsets;
    if (!sets.HasNestedSet(owner, elset)) {
        char const* text =
            part ? "The elset %1$s, which is referenced by a *RIGID SURFACE, is not defined in "
                   "part: %2$s"
                 : "The elset %1$s, which is referenced by a *RIGID SURFACE, is not defined in "
                   "instance: %2$s";
        AddError(inp_Utils::MessageInKeyword(keyword, atr(text, elset, owner)));
        return;
    }
    inpM_BaseSet const& set = *sets.ConstGetNestedSet(owner, elset);
    if (set.IsEmpty()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The elset %1$s, which is referenced by a *RIGID SURFACE, is empty. "
                         "This is detected during the processing of part %2$s",
                         elset, owner)));
        return;
    }
    inp_MapInt2Element const* elements = part ? partElements(owner) : instanceElements(owner);
    for (int const id : set.ConstGetIdList()) {
        inp_Element const* element = elements ? elements->GetEltPtr(id) : nullptr;
        if (element == nullptr) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Unknown element ID %1$s is detected in the elset referenced by the "
                             "*RIGID SURFACE option. This takes place during the processing of "
                             "part %2$s",
                             id, owner)));
            return;
        }
        if (!element->type().StartsWith("IRS") && !element->type().StartsWith("DRAG")) {
            AddError(inp_Utils::MessageInKeyword(keyword, atr(kRigidSurfaceRequirements)));
            return;
        }
    }
}
