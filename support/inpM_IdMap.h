#pragma once
#include "support/cow_IntTableInt.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"

// The record of a renumbering: old id to new id and back for the ids of one
// level, and the record of each instance below it by instance name. Copies
// share everything until written.
class inpM_IdMap {
  public:
    inpM_IdMap() noexcept = default;

    // One entry in both directions. A repeated old id gets the new id replaced.
    void Insert(int oldId, int newId);
    // The record of an instance; an existing one is replaced.
    void Insert(cow_String const& instance, inpM_IdMap const& nested);

    // Old ids of this level.
    bool IsMember(int oldId) const { return m_oldToNew.IsMember(oldId); }
    // The new id of an old id, which must be a member.
    int ConstGet(int oldId) const { return m_oldToNew.ConstGet(oldId); }
    // New ids of this level, and the old id of a new id (which must be a member).
    bool IsMemberNew(int newId) const { return m_newToOld.IsMember(newId); }
    int ConstGetOld(int newId) const { return m_newToOld.ConstGet(newId); }

    bool IsMember(cow_String const& instance) const { return m_instances.IsMember(instance); }
    // The record of an instance, which must be a member.
    inpM_IdMap const& ConstGet(cow_String const& instance) const {
        return m_instances.ConstGet(instance);
    }
    // The instance names, ascending.
    cow_List<cow_String> Instances() const;

    // The entries of this level and of every nested record, recursively.
    int NumberIds() const;
    bool IsEmpty() const { return NumberIds() == 0; }
    // The smallest and largest new id of the whole tree (this level and the
    // nested records); 0 when there is none, so that a caller that uses the
    // largest id as an offset gets no offset from an empty map.
    int SmallestId() const;
    int LargestId() const;

    // Translates `count` ids in place from old to new. An id of this level
    // that the map lacks raises nex_PrimException<atr_String, 1> with the text
    // "Id %d is not in the id map", and then `ids` is left as it was.
    void Renumber(int* ids, int count) const;
    // A translated copy. An id that the map lacks is kept as it stands with
    // `keepMissing`, left out without.
    cow_List<int> Renumber(cow_List<int> const& ids, bool keepMissing) const;

    // For copies of the model made by offsetting its ids: every entry (old,
    // new) of this level gets `copies` more entries (old + k * offset,
    // new + k * offset) for k = 1..copies. Nested records are left alone: the
    // copies are made of a model without instances.
    void InsertDuplicateOffsetIds(int offset, int copies);

    // The tables of this level.
    cow_IntTableInt const& ConstGetOldToNew() const { return m_oldToNew; }
    cow_IntTableInt const& ConstGetNewToOld() const { return m_newToOld; }
    cow_Map<cow_String, inpM_IdMap> const& ConstGetInstanceMap() const { return m_instances; }

  private:
    // The smallest / largest new id of the tree into `extreme`; false if none.
    bool findSmallest(int& extreme) const;
    bool findLargest(int& extreme) const;

    cow_IntTableInt m_oldToNew;
    cow_IntTableInt m_newToOld;
    cow_Map<cow_String, inpM_IdMap> m_instances;
};
