#pragma once
#include "mesh/inp_Coord.h"
#include "mesh/inp_MapInt2Coord.h"
#include "support/cow_COW.h"
#include "support/cow_IntTableInt.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/gsl_Matrix.h"
#include "support/inpM_IdMap.h"
#include "support/omi_IntTable.h"

class aio_ostream;

// The nodes of the model as the rest of the system sees them: the nodes of
// one level, the rigid transform of that level, a renumbering table, and the
// map of each instance below by name.
//
// Two things keep big models cheap. Moving an instance never rewrites its
// nodes: the transform is kept beside them and applied on reading, so all
// instances of a part share one node table. And renumbering never moves a
// node: it records, for each current label, the label under which the node is
// stored, and every label given to this class is translated through that
// record first. Stored labels never leave the class.
//
// Copies share the nodes, the renumbering and the instances until written;
// the matrix is copied.
class inp_CoordMap {
  public:
    using InstanceMap = cow_Map<cow_String, cow_COW<inp_CoordMap, cow_Direct<inp_CoordMap>>>;

    inp_CoordMap() = default;

    // The stored label of a current label. A label that the renumbering table
    // lacks passes through unchanged, so a node inserted after a renumbering
    // stays reachable under its own label. It also means that an old label
    // which no current label shadows still reaches its node (after labels 10
    // and 20 become 1 and 2, IsMember(10) is true): the table is not taken as
    // the complete list of the level's nodes.
    int LocalID(int label) const {
        int const* const stored = m_localIds.Lookup(label);
        return stored != nullptr ? *stored : label;
    }

    // Whether the label is a node of this level (instances are not searched).
    bool IsMember(int label) const { return m_nodes.IsMember(LocalID(label)); }
    // The node in global position: moved by the transform of this level. The
    // label must be a member.
    inp_Coord ConstGet(int label) const;
    // As above; a label that is no member gives `fallback` as it stands.
    inp_Coord ConstGet(int label, inp_Coord const& fallback) const;
    // All nodes of this level under their current labels in global position.
    // Without transform and renumbering this is the stored table itself,
    // shared, at no cost; otherwise a new table.
    inp_MapInt2Coord ConstGet() const;

    // Stores the record as given, in the frame of this level: no transform is
    // undone here. True for a new label; an existing one is overwritten.
    bool Insert(int label, inp_Coord const& record);
    // True if the label was there.
    bool Remove(int label);

    // The instance names, ascending.
    cow_List<cow_String> Instances() const;
    bool IsMember(cow_String const& instance) const { return m_instances.IsMember(instance); }
    // The map of an instance, which must be a member.
    inp_CoordMap const& ConstGet(cow_String const& instance) const {
        return m_instances.ConstGet(instance).ConstGet();
    }
    // The map of an instance for writing, isolated from every copy; the
    // instance must be a member.
    inp_CoordMap& Get(cow_String const& instance) { return m_instances.Get(instance).Get(); }
    // Stores a copy (which shares the nodes) under the name, replacing any.
    void Insert(cow_String const& instance, inp_CoordMap const& map);
    // Moves the map of `oldName` to `newName`. An unknown `oldName` is no
    // error and changes nothing.
    void ChangeInstanceName(cow_String const& oldName, cow_String const& newName);

    // Nodes of this level and of all instances below, recursively.
    int Count() const;

    // Applies `matrix` after the transform of this level and after that of
    // each direct instance. The instance tree is one level deep, so deeper
    // maps are left alone.
    void Transform(gsl_Matrix const& matrix);
    gsl_Matrix& GetTransformation() { return m_transformation; }
    gsl_Matrix const& ConstGetTransformation() const { return m_transformation; }

    // Gives the nodes of the tree the labels start, start + 1, ... in order:
    // first the nodes of this level by ascending stored label, then instance by
    // instance in ascending name order. With `keepLabels` every label keeps
    // its number. Returns the renumbering, old to new and back, nested by
    // instance.
    inpM_IdMap Renumber(int start, bool keepLabels);
    // Renumbers this level alone: a label found in `fixedLabels` gets the
    // value there, any other gets `next`, which then moves on by one.
    inpM_IdMap Renumber(int& next, bool keepLabels, omi_IntTable<int> const& fixedLabels);
    // From current label to stored label; empty when never renumbered.
    cow_IntTableInt const& ConstGetLocalIds() const { return m_localIds; }

    // Whether the two maps hold one node table between them.
    bool SharesNodesWith(inp_CoordMap const& other) const {
        return m_nodes.SharesWith(other.m_nodes);
    }

    // Each stored label on a line, then each instance name on a line followed
    // by the print of its map.
    void Print(aio_ostream& out) const;

  private:
    inp_Coord globalRecord(inp_Coord record) const;
    // The current label of each stored label, when the level is renumbered.
    cow_IntTableInt currentLabels() const;
    template <class NewLabel>
    void renumberLevel(bool keepLabels, inpM_IdMap& result, NewLabel newLabel);

    // One handle on the node table: the table handle is already counted, a
    // second count around it would add an allocation and an indirection and
    // share nothing more.
    inp_MapInt2Coord m_nodes;
    gsl_Matrix m_transformation;
    cow_IntTableInt m_localIds;
    InstanceMap m_instances;
};

// The table with every (key, value) turned into (value, key). Of keys that
// share a value the largest wins.
cow_IntTableInt Invert(cow_IntTableInt const& table);
