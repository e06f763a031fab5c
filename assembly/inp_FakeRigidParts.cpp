// Rigid bodies and rigid surfaces of a flat deck get parts of their own, and
// each such part owns its reference node: a node the rigid thing turns
// about, kept in exactly one part. A rigid surface given in a local system
// (a cylinder by three points, a surface of revolution by two) is written
// in its part in that system, and the system becomes its instance's
// position.

#include <string>
#include <unordered_map>

#include "assembly/inp_FakePartVisitor.h"
#include "assembly/inp_PartMeshVisitors.h"
#include "deck/inp_Item.h"
#include "deck/inp_PatternMatchers.h"
#include "mesh/inp_Utils.h"
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"
#include "support/inpM_Utils.h"

namespace {

cow_String fake() {
    return cow_String(inp_Types::fakeName());
}

// The index of the data line that starts with START; -1 if none.
int lineWithStart(inp_Keyword const& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        if (!keyword.Data().HasValue(line, 0)) continue;
        std::string text(keyword.Data().AsString(line, 0).View());
        for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (text == "START") return line;
    }
    return -1;
}

gsl_Point pointAt(inp_Keyword const& keyword, int line, int first) {
    double values[3] = {0.0, 0.0, 0.0};
    for (int i = 0; i < 3; ++i)
        if (keyword.Data().HasValue(line, first + i))
            values[i] = keyword.Data().AsDouble(line, first + i);
    return {values[0], values[1], values[2]};
}

// The keyword with its data lines from `first` on.
void keepLinesFrom(inp_Keyword& keyword, int first) {
    inp_DataArray const& old = keyword.Data();
    inp_DataArray kept;
    for (int line = first; line < old.Rows(); ++line) {
        cow_List<cow_String> items;
        for (int column = 0; column < old.Cols(line); ++column)
            items.Append(old.AsStringVerbatim(line, column));
        kept.Append(items);
    }
    keyword.SetData(kept);
}

bool isIntegerText(cow_String const& text) {
    return static_cast<bool>(inp_PatternMatchers::MatchInteger(text.View()));
}

}  // namespace

// -- parts -----------------------------------------------------------------------------------

void inp_FakePartVisitor::CreatePartEntry(cow_String const& name) {
    PartKeywordList(name);
    if (!m_partCoords.IsMember(name)) m_partCoords.Insert(name, inp_CoordMap());
    if (!m_partElements.IsMember(name)) m_partElements.Insert(name, inp_MapInt2Element());
}

// "PART-1" is made with the deformable mesh, in Keywords().
void inp_FakePartVisitor::CreateRigidBodyPartEntry(cow_String const& name) {
    if (m_partKeywordLists.IsMember(name)) return;
    if (!m_partCoords.IsMember(name)) m_partCoords.Insert(name, inp_CoordMap());
    if (name == cow_String(kPartName)) return;
    PartKeywordList(name);
    if (!m_partElements.IsMember(name)) m_partElements.Insert(name, inp_MapInt2Element());
}

inp_FakePartVisitor::SurfaceNames inp_FakePartVisitor::GatherSurfacePartNames(
    inp_Keyword const& keyword) {
    SurfaceNames names;
    names.part = cow_String(kPartName);
    if (keyword.HasParameter("name")) {
        names.surface = keyword.GetParameterAsString("name", cow_String());
    } else if (keyword.HasParameter("elset")) {
        names.unnamed = true;
    }
    return names;
}

void inp_FakePartVisitor::AddAnalyticalSurfaceNameToPartMap(SurfaceNames const& names) {
    if (names.unnamed) {
        InsertRigidSurface(m_partSurfaces, names.part);
    } else if (!names.surface.IsEmpty()) {
        m_partSurfaces.InsertPartInstanceSurface(names.part, names.surface,
                                                 CreateSurface(inpM_AnalyticalSurfaceType));
    }
}

// -- the handlers -----------------------------------------------------------------------------

void inp_FakePartVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    SurfaceNames names = GatherSurfacePartNames(keyword);
    // A named rigid surface is a part of its own. One with neither name nor
    // element set has no name to give a part: it stays with "PART-1".
    if (!names.unnamed && !names.surface.IsEmpty()) names.part = names.surface;
    CreatePartEntry(names.part);
    gsl_Matrix const local = ProcessRigidSurfaceLocalSystem(keyword);
    if (inp_Item const* refnode = keyword.Parameters().Find("refnode")) {
        gsl_Matrix inverse;
        local.InverseRigidTransform(inverse);
        cow_String const value = refnode->AsString();
        if (refnode->Type() == inp_Types::inp_INTEGER || isIntegerText(value)) {
            AddRefNode(inverse, names.part, refnode->AsInt(), false);
        } else if (refnode->Type() == inp_Types::inp_STRING) {
            if (!AddRefNode(inverse, names.part, value, false))
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("Reference node set \"%1$s\" given for rigid surface \"%2$s\" "
                                 "does not exist or is invalid",
                                 value, names.surface)));
        } else {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Reference node given for rigid surface \"%s\" has an invalid format",
                             names.surface)));
        }
    }
    PartKeywordList(names.part).Append(keyword);
    if (!local.IsIdentity()) m_instanceTransforms.Insert(names.part, local);
    AddAnalyticalSurfaceNameToPartMap(names);
}

void inp_FakePartVisitor::VisitRigidBody(inp_Keyword& keyword) {
    cow_String name = keyword.GetParameterAsString("analyticalsurface", cow_String(kPartName));
    if (!keyword.HasParameter("elset")) {
        CreateRigidBodyPartEntry(name);
    } else {
        cow_String const set = keyword.GetParameterAsString("elset", cow_String());
        bool rigidSet = false;
        if (m_elementSets.HasNestedSet(fake(), set)) {
            for (int const id : m_elementSets.ConstGetNestedSet(fake(), set)->ConstGetIdList()) {
                if (!m_fakeElements.IsMember(id)) continue;
                rigidSet = IsRigidElementType(m_fakeElements.ConstGet(id).type());
                if (rigidSet) break;
            }
        }
        if (rigidSet) {
            name = set;
            CreatePartEntry(set);
            m_rigidElementSets.AppendUnlessMember(set);
        } else {
            CreateRigidBodyPartEntry(name);
        }
    }
    if (inp_Item const* refnode = keyword.Parameters().Find("refnode")) {
        // A body that names nothing but its node may share it with another
        // rigid part; such a node is dropped from "PART-1" later.
        bool const flag = !keyword.HasParameter("analyticalsurface") &&
                          !keyword.HasParameter("elset") && !keyword.HasParameter("pinnset") &&
                          !keyword.HasParameter("tienset");
        gsl_Matrix transform;
        if (gsl_Matrix const* position = m_instanceTransforms.Find(name))
            position->InverseRigidTransform(transform);
        cow_String const value = refnode->AsString();
        if (refnode->Type() == inp_Types::inp_INTEGER || isIntegerText(value)) {
            AddRefNode(transform, name, refnode->AsInt(), flag);
        } else if (refnode->Type() == inp_Types::inp_STRING) {
            if (!AddRefNode(transform, name, value, flag))
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("Reference node set \"%1$s\" given for rigid body \"%2$s\" "
                                 "does not exist or is invalid",
                                 value, name)));
        } else {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("Reference node given for rigid body \"%s\" has an invalid format", name)));
        }
    }
    m_assemblyKeywords.Append(keyword);
}

// -- the local system of a rigid surface ----------------------------------------------------

gsl_Matrix inp_FakePartVisitor::ProcessRigidSurfaceLocalSystem(inp_Keyword& keyword) {
    gsl_Matrix identity;
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    bool const cylinder = type.View() == "CYLINDER";
    if (!cylinder && type.View() != "REVOLUTION") return identity;
    int const start = lineWithStart(keyword);
    if (start <= 0) return identity;
    gsl_Point const a = pointAt(keyword, 0, 0);
    gsl_Point const b = pointAt(keyword, 0, 3);
    gsl_Matrix const local =
        cylinder ? ComputeCoordSystemFromPointsABC(keyword, a, b,
                                                   start > 1 ? pointAt(keyword, 1, 0) : gsl_Point())
                 : ComputeCoordSystemFromPointsAB(keyword, a, b);
    keepLinesFrom(keyword, start);
    return local;
}

gsl_Matrix inp_FakePartVisitor::ComputeCoordSystemFromPointsABC(inp_Keyword const& keyword,
                                                                gsl_Point const& a,
                                                                gsl_Point const& b,
                                                                gsl_Point const& c) {
    gsl_Vector u(a, b);
    gsl_Vector w(c, a);
    bool const normal = u.Normalize() && w.Normalize();
    if (!normal || std::abs(u.DotProduct(w)) > gsl_Vector::kTolerance) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            "Points A, B, and C listed under a *RIGID SURFACE, TYPE=CYLINDER do not properly "
            "define a local coordinate system.  Either some points are coincident or two axes "
            "are not perpendicular.  Please check input data. "));
        return gsl_Matrix();
    }
    gsl_Vector const v = w.CrossProduct(u);
    gsl_Matrix local;
    local.SetRotationVectors(u, v, w);
    local.SetTranslation(a);
    return local;
}

gsl_Matrix inp_FakePartVisitor::ComputeCoordSystemFromPointsAB(inp_Keyword const& keyword,
                                                               gsl_Point const& a,
                                                               gsl_Point const& b) {
    gsl_Vector y(a, b);
    if (!y.Normalize()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            "Points A, B listed under a *RIGID SURFACE, TYPE=REVOLUTION are "
            "coincident.  Please check input data. "));
        return gsl_Matrix();
    }
    // An auxiliary direction well away from y.
    gsl_Vector h(0.9 * y.X(), 0.6 * y.Y(), 0.7 * y.Z());
    if (gsl_Vector::IsMagnitudeTooSmall(y.X())) {
        h = gsl_Vector(1.0, 0.0, 0.0);
    } else if (gsl_Vector::IsMagnitudeTooSmall(y.Y())) {
        h = gsl_Vector(0.0, 1.0, 0.0);
    } else if (gsl_Vector::IsMagnitudeTooSmall(y.Z())) {
        h = gsl_Vector(0.0, 0.0, 1.0);
    }
    gsl_Vector x = h.CrossProduct(y);
    x.Normalize();
    gsl_Vector z = x.CrossProduct(y);
    z.Normalize();
    gsl_Matrix local;
    local.SetRotationVectors(x, y, z);
    local.SetTranslation(a);
    return local;
}

// -- reference nodes ----------------------------------------------------------------------------

// An undefined reference node is placed at the origin with a warning; the
// answer is always true.
bool inp_FakePartVisitor::AddRefNode(gsl_Matrix const& transform, cow_String const& part, int id,
                                     bool flag) {
    if (!m_partCoords.IsMember(part)) m_partCoords.Insert(part, inp_CoordMap());
    inp_Coord coord;
    if (m_fakeCoords.IsMember(id)) {
        coord = m_fakeCoords.ConstGet(id);
        coord.Transform(transform);
    } else {
        cow_List<int> ids;
        ids.Append(id);
        AddWarning(inpM_Utils::FormatCollectedErrors(
            "The following undefined reference node is placed at the origin:", ids));
    }
    m_partCoords.Get(part).Insert(id, coord);
    if (!m_referenceNodes.IsMember(part)) m_referenceNodes.Insert(part, cow_List<int>());
    m_referenceNodes.Get(part).AppendUnlessMember(id);
    if (flag) m_flaggedReferenceNodes.AppendUnlessMember(id);
    return true;
}

bool inp_FakePartVisitor::AddRefNode(gsl_Matrix const& transform, cow_String const& part,
                                     cow_String const& setName, bool flag) {
    if (!m_nodeSets.HasNestedSet(fake(), setName)) return false;
    cow_List<int> const ids = m_nodeSets.ConstGetNestedSet(fake(), setName)->ConstGetIdList();
    if (ids.IsEmpty()) return false;
    // The words say rigid surface for a rigid body too.
    if (ids.Length() > 1)
        AddError(
            atr("Reference node set \"%1$s\" given for rigid surface \"%2$s\" contains more "
                "than one node. The reference node set must contain exactly one node",
                setName, part));
    return AddRefNode(transform, part, ids.ConstGet(0), flag);
}

// Node to the parts that own it, in part order. Asked for every node of
// every element, so it is an index, made anew only when the map of reference
// nodes has changed since: any write to that map copies its root, so a
// copy kept from the last indexing tells whether it is still the same.
std::unordered_map<int, cow_List<cow_String>> const& inp_FakePartVisitor::referenceNodeOwners()
    const {
    bool const unchanged = (m_referenceNodes.IsEmpty() && m_indexedReferenceNodes.IsEmpty()) ||
                           m_referenceNodes.SharesRootWith(m_indexedReferenceNodes);
    if (unchanged) return m_referenceNodeOwners;
    m_referenceNodeOwners.clear();
    m_referenceNodes.ForEachSorted([this](cow_String const& part, cow_List<int> const& ids) {
        for (int const id : ids) m_referenceNodeOwners[id].AppendUnlessMember(part);
    });
    m_indexedReferenceNodes = m_referenceNodes;
    return m_referenceNodeOwners;
}

cow_List<cow_String> inp_FakePartVisitor::PartsSpannedByRefNode(int id) const {
    auto const& owners = referenceNodeOwners();
    auto const found = owners.find(id);
    return found == owners.end() ? cow_List<cow_String>() : found->second;
}

cow_List<cow_String> inp_FakePartVisitor::PartsSpannedByNodeIds(int const* nodes, int count) const {
    cow_List<cow_String> parts;
    cow_String const part1(kPartName);
    auto const& owners = referenceNodeOwners();
    for (int i = 0; i < count; ++i) {
        auto const found = owners.find(nodes[i]);
        if (found == owners.end()) {
            parts.AppendUnlessMember(part1);
            continue;
        }
        for (cow_String const& owner : found->second) parts.AppendUnlessMember(owner);
    }
    return parts;
}

bool inp_FakePartVisitor::IsReferenceNode(int const* nodes, int count) const {
    auto const& owners = referenceNodeOwners();
    for (int i = 0; i < count; ++i)
        if (owners.count(nodes[i]) != 0) return true;
    return false;
}

// A deformable element on a reference node takes the node into `part`.
void inp_FakePartVisitor::MoveReferenceNodes(int id, cow_String const& part) {
    cow_List<cow_String> const owners = PartsSpannedByRefNode(id);
    if (owners.IsEmpty() || (owners.Length() == 1 && owners.ConstGet(0) == part)) return;
    for (cow_String const& owner : owners) {
        if (owner == part) continue;
        cow_List<int>& ids = m_referenceNodes.Get(owner);
        for (int i = ids.Length() - 1; i >= 0; --i)
            if (ids.ConstGet(i) == id) ids.RemoveIndex(i);
        if (ids.IsEmpty()) m_referenceNodes.Remove(owner);
        if (m_partCoords.IsMember(owner)) m_partCoords.Get(owner).Remove(id);
    }
    if (!m_referenceNodes.IsMember(part)) m_referenceNodes.Insert(part, cow_List<int>());
    m_referenceNodes.Get(part).AppendUnlessMember(id);
    if (!m_partCoords.IsMember(part)) m_partCoords.Insert(part, inp_CoordMap());
    inp_CoordMap& coords = m_partCoords.Get(part);
    if (!coords.IsMember(id)) coords.Insert(id, FakeCoordinate(id));
}

// A flagged node of "PART-1" that another part owns too belongs there.
void inp_FakePartVisitor::RemoveRedundantRefNodes() {
    cow_String const part1(kPartName);
    if (!m_referenceNodes.IsMember(part1)) return;
    cow_List<int> kept;
    for (int const id : m_referenceNodes.ConstGet(part1)) {
        if (m_flaggedReferenceNodes.IsMember(id) && PartsSpannedByRefNode(id).Length() > 1) {
            if (m_partCoords.IsMember(part1)) m_partCoords.Get(part1).Remove(id);
            continue;
        }
        kept.Append(id);
    }
    if (kept.IsEmpty()) {
        m_referenceNodes.Remove(part1);
    } else {
        m_referenceNodes.Insert(part1, kept);
    }
}

// A reference node lives in the first part, in map order, that claims it.
void inp_FakePartVisitor::RemoveDuplicateRefNodes() {
    cow_Map<cow_String, cow_List<int>> unique;
    cow_List<int> claimed;
    m_referenceNodes.ForEachSorted([&](cow_String const& part, cow_List<int> const& ids) {
        cow_List<int> kept;
        for (int const id : ids) {
            if (claimed.IsMember(id)) {
                if (m_partCoords.IsMember(part)) m_partCoords.Get(part).Remove(id);
                continue;
            }
            claimed.Append(id);
            kept.Append(id);
        }
        if (!kept.IsEmpty()) unique.Insert(part, kept);
    });
    m_referenceNodes = unique;
}
