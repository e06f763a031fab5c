#pragma once
#include "support/aio_Stream.h"
#include "support/cow_ArrayCOW.h"
#include "support/cow_COW.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/inpM_OmiSet.h"
#include "support/omi_IntTable.h"

class inpM_IdMap;

// The forms a surface of a part or part instance takes. Type() answers one of
// them; code that looks at the number reads 0 as element faces, 1 as nodes.
enum inpM_SurfaceTypes {
    inpM_ElementFaceIdSurfaceType = 0,
    inpM_NodeAreaSurfaceType = 1,
    inpM_AnalyticalSurfaceType = 2,
};

// Nodes, each with the area it stands for, in ascending node order. Copies
// share one table and a write clones it first when it is shared, so a list of
// a million nodes copies for a count. An empty list holds no storage.
class inpM_NodeAreaList {
  public:
    using Table = omi_IntTable<double>;

    inpM_NodeAreaList() noexcept = default;

    // True if the node was new. A repeated node keeps the area it came with
    // first, as a set keeps its first member.
    bool Insert(int const& node, double const& area);
    // True if the node was there. A missing node copies nothing.
    bool Remove(int node);
    void Clear() noexcept { m_table.Reset(nullptr); }

    bool IsMember(int node) const { return !m_table.IsNull() && m_table->IsMember(node); }
    // The node must be a member.
    double ConstGet(int node) const;
    int Size() const noexcept { return m_table.IsNull() ? 0 : static_cast<int>(m_table->Size()); }
    bool IsEmpty() const noexcept { return Size() == 0; }
    // The nodes, ascending.
    cow_List<int> Nodes() const;

    // Entries in ascending node order; the list must not change meanwhile.
    Table const& ConstGetTable() const { return m_table.IsNull() ? emptyTable() : *m_table; }
    Table::const_iterator begin() const { return ConstGetTable().begin(); }
    Table::const_iterator end() const { return ConstGetTable().end(); }

    int UseCount() const noexcept { return m_table.UseCount(); }
    bool SharesWith(inpM_NodeAreaList const& other) const noexcept {
        return m_table.SharesWith(other.m_table);
    }

    // Same nodes with the same areas.
    friend bool operator==(inpM_NodeAreaList const& a, inpM_NodeAreaList const& b);

  private:
    friend class inpM_NodeAreaListIT;
    static Table const& emptyTable();
    Table& writableTable();

    cow_CountedHld<Table> m_table;
};

// Walks a snapshot of a node-area list in ascending node order, starting on
// the first node. Later writes to the list it was made from don't reach it.
class inpM_NodeAreaListIT {
  public:
    explicit inpM_NodeAreaListIT(inpM_NodeAreaList const& list)
        : m_list(list), m_walk(m_list.ConstGetTable()) {}
    inpM_NodeAreaListIT(inpM_NodeAreaListIT const&) = delete;
    inpM_NodeAreaListIT& operator=(inpM_NodeAreaListIT const&) = delete;

    void First() { m_walk.First(); }
    void Next() { m_walk.Next(); }
    bool IsDone() const { return m_walk.IsDone(); }
    bool NotDone() const { return m_walk.NotDone(); }
    int CurrentNode() const { return m_walk.CurrentKey(); }
    double CurrentArea() const { return m_walk.CurrentValue(); }
    // The names of the other walks of the support layer.
    int CurrentKey() const { return CurrentNode(); }
    double CurrentValue() const { return CurrentArea(); }

  private:
    inpM_NodeAreaList m_list;  // keeps the walked table alive and unchanged
    omi_IntTableIterator<double> m_walk;
};

// Element ids by face identifier ("S1", "SPOS", ...).
using inpM_FaceIdElementIdsMap = cow_Map<cow_String, cow_List<int>>;

// A surface of a part or part instance. It travels by value through
// inpM_PartInstanceSurfaceHandle, which copies it through Copy() so that a copy
// keeps its form.
//
// The set operations take a surface of either form. The form that a surface
// is not reads as empty: a node surface sees no nodes in an element surface
// (ConstGetNodeAreaList() of an element surface is empty) and the other way
// round. Adding or subtracting the other form thus changes nothing, and
// intersecting with it leaves nothing.
class inpM_PartInstanceSurface {
  public:
    virtual ~inpM_PartInstanceSurface() = default;
    virtual inpM_SurfaceTypes Type() const = 0;
    // A new surface of the same form; the caller owns it.
    virtual inpM_PartInstanceSurface* Copy() const = 0;
    virtual void Print(aio_ostream& out) const = 0;
    // Union with the members of the same form.
    virtual void Add(inpM_PartInstanceSurface const& other) = 0;
    // Removes the members that other has too.
    virtual void Difference(inpM_PartInstanceSurface const& other) = 0;
    // Keeps only the members that other has too.
    virtual void Intersection(inpM_PartInstanceSurface const& other) = 0;
    // Drops the members that the id map does not hold (as old ids); the ids
    // that stay are not translated.
    virtual void Cleanup(inpM_IdMap const& ids) = 0;
    // Translates the members from old to new ids. A member that the map lacks
    // stays as it is with keepMissing, and is dropped without.
    virtual void Renumber(inpM_IdMap const& ids, bool keepMissing) = 0;
    virtual inpM_FaceIdElementIdsMap const& ConstGetFaceIdElementIdsMap() const = 0;
    virtual inpM_NodeAreaList const& ConstGetNodeAreaList() const = 0;

    // Internal surfaces are made by the tools, not named by the user.
    bool IsInternal() const noexcept { return m_internal; }
    void SetInternal(bool internal) noexcept { m_internal = internal; }
    // No nodes and no element faces; an analytical surface is always empty.
    bool IsEmpty() const {
        return ConstGetNodeAreaList().IsEmpty() && ConstGetFaceIdElementIdsMap().IsEmpty();
    }

  protected:
    inpM_PartInstanceSurface() = default;
    inpM_PartInstanceSurface(inpM_PartInstanceSurface const&) = default;
    inpM_PartInstanceSurface& operator=(inpM_PartInstanceSurface const&) = default;

    // The empty answers of the form a surface is not.
    static inpM_FaceIdElementIdsMap const& emptyFaceIdElementIdsMap();
    static inpM_NodeAreaList const& emptyNodeAreaList();

  private:
    bool m_internal = false;
};

using inpM_PartInstanceSurfaceHandle =
    cow_COW<inpM_PartInstanceSurface, cow_Virtual<inpM_PartInstanceSurface>>;

// A surface made of nodes, each with an area.
class inpM_NodeAreaSurface : public inpM_PartInstanceSurface {
  public:
    inpM_NodeAreaSurface() = default;
    // Every node of the list with the same area.
    inpM_NodeAreaSurface(double area, cow_List<int> const& nodes);

    inpM_SurfaceTypes Type() const override { return inpM_NodeAreaSurfaceType; }
    inpM_NodeAreaSurface* Copy() const override { return new inpM_NodeAreaSurface(*this); }
    // "node-area surface, <n> nodes" ("(internal)" after "surface" when
    // internal), then one line "  <node> <area>" per node, ascending.
    void Print(aio_ostream& out) const override;
    // Nodes already present keep their area.
    void Add(inpM_PartInstanceSurface const& other) override;
    void Difference(inpM_PartInstanceSurface const& other) override;
    // The nodes that stay keep their own area.
    void Intersection(inpM_PartInstanceSurface const& other) override;
    void Cleanup(inpM_IdMap const& ids) override;
    // Two old nodes that meet on one new id keep the area of the smaller old id.
    void Renumber(inpM_IdMap const& ids, bool keepMissing) override;
    inpM_FaceIdElementIdsMap const& ConstGetFaceIdElementIdsMap() const override {
        return emptyFaceIdElementIdsMap();
    }
    inpM_NodeAreaList const& ConstGetNodeAreaList() const override { return m_nodes; }

    // Adds the nodes with one area; nodes already present keep theirs.
    void Add(cow_List<int> const& nodes, double area);
    // Removes the nodes of the list (their areas don't matter).
    void Difference(inpM_NodeAreaList const& nodes);

  private:
    inpM_NodeAreaList m_nodes;
};

// A surface made of element faces: element ids by face identifier. The ids of
// a face keep the order in which they first came; a repeat is ignored. A face
// identifier never maps to an empty list: a face whose last element goes is
// removed, and adding no elements adds no face.
class inpM_ElementFaceIdSurface : public inpM_PartInstanceSurface {
  public:
    inpM_ElementFaceIdSurface() = default;
    inpM_ElementFaceIdSurface(cow_String const& faceId, cow_List<int> const& elements);

    inpM_SurfaceTypes Type() const override { return inpM_ElementFaceIdSurfaceType; }
    inpM_ElementFaceIdSurface* Copy() const override {
        return new inpM_ElementFaceIdSurface(*this);
    }
    // "element-face surface, <f> faces, <n> elements" ("(internal)" after
    // "surface" when internal), then per face identifier, ascending, a line
    // "  <faceId>:" with up to 16 element ids, and continuation lines of up to
    // 16 ids indented by four spaces.
    void Print(aio_ostream& out) const override;
    // Face by face: the same face identifier is the same face.
    void Add(inpM_PartInstanceSurface const& other) override;
    void Difference(inpM_PartInstanceSurface const& other) override;
    // A face identifier that other lacks loses all its elements.
    void Intersection(inpM_PartInstanceSurface const& other) override;
    void Cleanup(inpM_IdMap const& ids) override;
    void Renumber(inpM_IdMap const& ids, bool keepMissing) override;
    inpM_FaceIdElementIdsMap const& ConstGetFaceIdElementIdsMap() const override {
        return m_elementsByFace;
    }
    inpM_NodeAreaList const& ConstGetNodeAreaList() const override { return emptyNodeAreaList(); }

    void Add(cow_String const& faceId, cow_List<int> const& elements);
    // Removes the elements of the list from that face only.
    void Difference(cow_String const& faceId, cow_List<int> const& elements);
    // The number of (face, element) members.
    int NumberOfMembers() const;

  private:
    // Replaces the elements of a face; an empty list removes the face.
    void assignFace(cow_String const& faceId, cow_List<int> const& elements,
                    inpM_OmiSet const& members);
    // Keeps the elements of a face for which keep(id) holds.
    template <class Keep>
    void filterFace(cow_String const& faceId, Keep keep);
    cow_List<cow_String> faceIds() const;

    inpM_FaceIdElementIdsMap m_elementsByFace;
    // The same elements as sets, so that a repeat is found without a search.
    cow_Map<cow_String, inpM_OmiSet> m_membersByFace;
};

// A surface given by its geometry rather than by nodes or faces. This layer
// only carries it (and its internal flag) from the reader to the caller: it
// has no members, and the set operations and renumbering leave it as it is.
class inpM_AnalyticalSurface : public inpM_PartInstanceSurface {
  public:
    inpM_SurfaceTypes Type() const override { return inpM_AnalyticalSurfaceType; }
    inpM_AnalyticalSurface* Copy() const override { return new inpM_AnalyticalSurface(*this); }
    // "analytical surface" ("(internal)" after it when internal).
    void Print(aio_ostream& out) const override;
    void Add(inpM_PartInstanceSurface const&) override {}
    void Difference(inpM_PartInstanceSurface const&) override {}
    void Intersection(inpM_PartInstanceSurface const&) override {}
    void Cleanup(inpM_IdMap const&) override {}
    void Renumber(inpM_IdMap const&, bool) override {}
    inpM_FaceIdElementIdsMap const& ConstGetFaceIdElementIdsMap() const override {
        return emptyFaceIdElementIdsMap();
    }
    inpM_NodeAreaList const& ConstGetNodeAreaList() const override { return emptyNodeAreaList(); }
};

// An empty surface of the form. A value outside the enumeration is a fault of
// the caller and raises a ZELBasAssertException.
inpM_PartInstanceSurfaceHandle CreateSurface(inpM_SurfaceTypes type);

// Translates a surface of an instance (or part) level through the nested
// record of that name in the id map of its form: `nodes` for a node surface,
// `elements` for an element surface. When the map has no record of that name,
// all the surface's ids count as missing: kept with keepMissing, dropped
// without. An analytical surface stays as it is.
void RenumberInstanceSurface(inpM_PartInstanceSurface& surface, cow_String const& instance,
                             inpM_IdMap const& nodes, inpM_IdMap const& elements, bool keepMissing);
