#include "support/inpM_Surface.h"

#include <vector>

#include "support/ZELBasAssert.h"
#include "support/inpM_IdMap.h"

namespace {

// "<count> <noun>" with the noun in the plural unless the count is 1.
void printCount(aio_ostream& out, int count, char const* noun) {
    out << count << ' ' << noun;
    if (count != 1) out << 's';
}

// The first words of a surface's Print: the form, and "(internal)" if so.
void printHeading(aio_ostream& out, char const* form, bool internal) {
    out << form << " surface";
    if (internal) out << " (internal)";
}

// The new id of an old one, or null when the map lacks it.
int const* newIdOf(inpM_IdMap const& ids, int oldId) {
    return ids.ConstGetOldToNew().Lookup(oldId);
}

}  // namespace

// ---------------------------------------------------------------------------
// inpM_NodeAreaList

bool inpM_NodeAreaList::Insert(int const& node, double const& area) {
    // Tested first so that a repeat never clones a shared table.
    if (IsMember(node)) return false;
    return writableTable().Insert(node, area);
}

bool inpM_NodeAreaList::Remove(int node) {
    if (!IsMember(node)) return false;
    return writableTable().Remove(node);
}

double inpM_NodeAreaList::ConstGet(int node) const {
    double const* area = ConstGetTable().Lookup(node);
    ZELBAS_ASSERT_TEXT(area != nullptr, "node in node-area list");
    return *area;
}

cow_List<int> inpM_NodeAreaList::Nodes() const {
    cow_List<int> nodes;
    nodes.Reserve(Size());
    for (auto entry : *this) nodes.Append(entry.key);
    return nodes;
}

bool operator==(inpM_NodeAreaList const& a, inpM_NodeAreaList const& b) {
    if (a.Size() != b.Size()) return false;
    if (a.SharesWith(b)) return true;
    for (auto entry : a) {
        double const* other = b.ConstGetTable().Lookup(entry.key);
        if (other == nullptr || *other != entry.value) return false;
    }
    return true;
}

inpM_NodeAreaList::Table const& inpM_NodeAreaList::emptyTable() {
    static Table const empty;
    return empty;
}

inpM_NodeAreaList::Table& inpM_NodeAreaList::writableTable() {
    if (m_table.IsNull()) {
        m_table.Reset(new Table());
    } else if (m_table.UseCount() > 1) {
        m_table.Reset(new Table(*m_table));
    }
    return *m_table;
}

// ---------------------------------------------------------------------------
// inpM_PartInstanceSurface

inpM_FaceIdElementIdsMap const& inpM_PartInstanceSurface::emptyFaceIdElementIdsMap() {
    static inpM_FaceIdElementIdsMap const empty;
    return empty;
}

inpM_NodeAreaList const& inpM_PartInstanceSurface::emptyNodeAreaList() {
    static inpM_NodeAreaList const empty;
    return empty;
}

// ---------------------------------------------------------------------------
// inpM_NodeAreaSurface

inpM_NodeAreaSurface::inpM_NodeAreaSurface(double area, cow_List<int> const& nodes) {
    Add(nodes, area);
}

void inpM_NodeAreaSurface::Print(aio_ostream& out) const {
    printHeading(out, "node-area", IsInternal());
    out << ", ";
    printCount(out, m_nodes.Size(), "node");
    out << '\n';
    for (auto entry : m_nodes) out << "  " << entry.key << ' ' << entry.value << '\n';
}

void inpM_NodeAreaSurface::Add(cow_List<int> const& nodes, double area) {
    for (int node : nodes) m_nodes.Insert(node, area);
}

void inpM_NodeAreaSurface::Add(inpM_PartInstanceSurface const& other) {
    // A counted copy: other may be this surface.
    inpM_NodeAreaList const theirs = other.ConstGetNodeAreaList();
    if (m_nodes.IsEmpty()) {
        m_nodes = theirs;  // the union is theirs: share it
        return;
    }
    for (auto entry : theirs) m_nodes.Insert(entry.key, entry.value);
}

void inpM_NodeAreaSurface::Difference(inpM_PartInstanceSurface const& other) {
    Difference(other.ConstGetNodeAreaList());
}

void inpM_NodeAreaSurface::Difference(inpM_NodeAreaList const& nodes) {
    inpM_NodeAreaList const theirs = nodes;  // nodes may be this surface's own list
    if (theirs.SharesWith(m_nodes)) {
        m_nodes.Clear();
        return;
    }
    for (auto entry : theirs) {
        if (m_nodes.IsEmpty()) return;
        m_nodes.Remove(entry.key);
    }
}

void inpM_NodeAreaSurface::Intersection(inpM_PartInstanceSurface const& other) {
    inpM_NodeAreaList const theirs = other.ConstGetNodeAreaList();
    if (theirs.SharesWith(m_nodes)) return;
    // Collected first: removing while walking would change the walked table.
    std::vector<int> dropped;
    for (auto entry : m_nodes) {
        if (!theirs.IsMember(entry.key)) dropped.push_back(entry.key);
    }
    for (int node : dropped) m_nodes.Remove(node);
}

void inpM_NodeAreaSurface::Cleanup(inpM_IdMap const& ids) {
    std::vector<int> dropped;
    for (auto entry : m_nodes) {
        if (!ids.IsMember(entry.key)) dropped.push_back(entry.key);
    }
    for (int node : dropped) m_nodes.Remove(node);
}

void inpM_NodeAreaSurface::Renumber(inpM_IdMap const& ids, bool keepMissing) {
    inpM_NodeAreaList renumbered;
    for (auto entry : m_nodes) {
        int const* newId = newIdOf(ids, entry.key);
        if (newId != nullptr) {
            renumbered.Insert(*newId, entry.value);
        } else if (keepMissing) {
            renumbered.Insert(entry.key, entry.value);
        }
    }
    m_nodes = renumbered;
}

// ---------------------------------------------------------------------------
// inpM_ElementFaceIdSurface

inpM_ElementFaceIdSurface::inpM_ElementFaceIdSurface(cow_String const& faceId,
                                                     cow_List<int> const& elements) {
    Add(faceId, elements);
}

void inpM_ElementFaceIdSurface::Print(aio_ostream& out) const {
    constexpr int kIdsPerLine = 16;
    printHeading(out, "element-face", IsInternal());
    out << ", ";
    printCount(out, m_elementsByFace.Size(), "face");
    out << ", ";
    printCount(out, NumberOfMembers(), "element");
    out << '\n';
    m_elementsByFace.ForEachSorted([&out](cow_String const& faceId, cow_List<int> const& elements) {
        out << "  " << faceId << ':';
        int onLine = 0;
        for (int element : elements) {
            if (onLine == kIdsPerLine) {
                out << "\n   ";
                onLine = 0;
            }
            out << ' ' << element;
            ++onLine;
        }
        out << '\n';
    });
}

void inpM_ElementFaceIdSurface::Add(cow_String const& faceId, cow_List<int> const& elements) {
    if (elements.IsEmpty()) return;
    cow_List<int> const source = elements;  // elements may be one of this surface's lists
    if (!m_elementsByFace.IsMember(faceId)) {
        m_elementsByFace.Insert(faceId, cow_List<int>());
        m_membersByFace.Insert(faceId, inpM_OmiSet());
    }
    cow_List<int>& list = m_elementsByFace.Get(faceId);
    inpM_OmiSet& members = m_membersByFace.Get(faceId);
    for (int element : source) {
        if (members.Insert(element)) list.Append(element);
    }
}

void inpM_ElementFaceIdSurface::Difference(cow_String const& faceId,
                                           cow_List<int> const& elements) {
    inpM_OmiSet const* members = m_membersByFace.Find(faceId);
    if (members == nullptr) return;
    inpM_OmiSet removed;
    for (int element : elements) {
        if (members->IsMember(element)) removed.Insert(element);
    }
    if (removed.IsEmpty()) return;
    filterFace(faceId, [&removed](int element) { return !removed.IsMember(element); });
}

void inpM_ElementFaceIdSurface::Add(inpM_PartInstanceSurface const& other) {
    // A counted copy: other may be this surface.
    inpM_FaceIdElementIdsMap const theirs = other.ConstGetFaceIdElementIdsMap();
    if (m_elementsByFace.IsEmpty()) {
        auto const* same = dynamic_cast<inpM_ElementFaceIdSurface const*>(&other);
        if (same != nullptr) {
            // The union is theirs: share it.
            m_elementsByFace = same->m_elementsByFace;
            m_membersByFace = same->m_membersByFace;
            return;
        }
    }
    theirs.ForEachSorted(
        [this](cow_String const& faceId, cow_List<int> const& elements) { Add(faceId, elements); });
}

void inpM_ElementFaceIdSurface::Difference(inpM_PartInstanceSurface const& other) {
    inpM_FaceIdElementIdsMap const theirs = other.ConstGetFaceIdElementIdsMap();
    theirs.ForEachSorted([this](cow_String const& faceId, cow_List<int> const& elements) {
        Difference(faceId, elements);
    });
}

void inpM_ElementFaceIdSurface::Intersection(inpM_PartInstanceSurface const& other) {
    inpM_FaceIdElementIdsMap const theirs = other.ConstGetFaceIdElementIdsMap();
    auto const* same = dynamic_cast<inpM_ElementFaceIdSurface const*>(&other);
    for (cow_String const& faceId : faceIds()) {
        cow_List<int> const* elements = theirs.Find(faceId);
        if (elements == nullptr) {
            m_elementsByFace.Remove(faceId);
            m_membersByFace.Remove(faceId);
            continue;
        }
        inpM_OmiSet kept;
        if (same != nullptr) {
            kept = same->m_membersByFace.ConstGet(faceId);
        } else {
            kept.Insert(*elements);
        }
        filterFace(faceId, [&kept](int element) { return kept.IsMember(element); });
    }
}

void inpM_ElementFaceIdSurface::Cleanup(inpM_IdMap const& ids) {
    for (cow_String const& faceId : faceIds()) {
        filterFace(faceId, [&ids](int element) { return ids.IsMember(element); });
    }
}

void inpM_ElementFaceIdSurface::Renumber(inpM_IdMap const& ids, bool keepMissing) {
    for (cow_String const& faceId : faceIds()) {
        cow_List<int> const current = m_elementsByFace.ConstGet(faceId);
        cow_List<int> renumbered;
        renumbered.Reserve(current.Length());
        inpM_OmiSet members;
        for (int element : current) {
            int const* newId = newIdOf(ids, element);
            if (newId == nullptr && !keepMissing) continue;
            int const id = newId != nullptr ? *newId : element;
            if (members.Insert(id)) renumbered.Append(id);
        }
        assignFace(faceId, renumbered, members);
    }
}

int inpM_ElementFaceIdSurface::NumberOfMembers() const {
    int count = 0;
    m_elementsByFace.ForEachSorted(
        [&count](cow_String const&, cow_List<int> const& elements) { count += elements.Length(); });
    return count;
}

void inpM_ElementFaceIdSurface::assignFace(cow_String const& faceId, cow_List<int> const& elements,
                                           inpM_OmiSet const& members) {
    if (elements.IsEmpty()) {
        m_elementsByFace.Remove(faceId);
        m_membersByFace.Remove(faceId);
        return;
    }
    m_elementsByFace.Insert(faceId, elements);
    m_membersByFace.Insert(faceId, members);
}

template <class Keep>
void inpM_ElementFaceIdSurface::filterFace(cow_String const& faceId, Keep keep) {
    cow_List<int> const current = m_elementsByFace.ConstGet(faceId);
    cow_List<int> kept;
    kept.Reserve(current.Length());
    inpM_OmiSet members;
    for (int element : current) {
        if (!keep(element)) continue;
        kept.Append(element);
        members.Insert(element);
    }
    if (kept.Length() == current.Length()) return;  // nothing to drop: stay shared
    assignFace(faceId, kept, members);
}

cow_List<cow_String> inpM_ElementFaceIdSurface::faceIds() const {
    cow_List<cow_String> ids;
    ids.Reserve(m_elementsByFace.Size());
    m_elementsByFace.ForEachSorted(
        [&ids](cow_String const& faceId, cow_List<int> const&) { ids.Append(faceId); });
    return ids;
}

// ---------------------------------------------------------------------------
// inpM_AnalyticalSurface

void inpM_AnalyticalSurface::Print(aio_ostream& out) const {
    printHeading(out, "analytical", IsInternal());
    out << '\n';
}

// ---------------------------------------------------------------------------

inpM_PartInstanceSurfaceHandle CreateSurface(inpM_SurfaceTypes type) {
    switch (type) {
        case inpM_ElementFaceIdSurfaceType:
            return inpM_PartInstanceSurfaceHandle(new inpM_ElementFaceIdSurface());
        case inpM_NodeAreaSurfaceType:
            return inpM_PartInstanceSurfaceHandle(new inpM_NodeAreaSurface());
        case inpM_AnalyticalSurfaceType:
            return inpM_PartInstanceSurfaceHandle(new inpM_AnalyticalSurface());
    }
    zelbas_AssertFailed("type is an inpM_SurfaceTypes value", __FILE__, __LINE__);
}

void RenumberInstanceSurface(inpM_PartInstanceSurface& surface, cow_String const& instance,
                             inpM_IdMap const& nodes, inpM_IdMap const& elements,
                             bool keepMissing) {
    if (surface.Type() == inpM_AnalyticalSurfaceType) return;
    inpM_IdMap const& ids = surface.Type() == inpM_NodeAreaSurfaceType ? nodes : elements;
    if (ids.IsMember(instance)) {
        surface.Renumber(ids.ConstGet(instance), keepMissing);
    } else if (!keepMissing) {
        surface.Renumber(inpM_IdMap(), false);  // no record: every id is missing
    }
}
