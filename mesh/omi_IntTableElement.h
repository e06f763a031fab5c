#pragma once
#include <new>
#include <vector>

#include "mesh/inp_Element.h"
#include "support/omi_IntTable.h"

// The blocked table from element label to element record. It owns its
// records: each is allocated on its own, so a record never moves while the
// table grows, and a pointer to it stays good until its label is replaced or
// the table is cleared. Copies clone every record.
//
// The values are typed pointers rather than untyped ones, and the table base
// is private: a caller could otherwise replace or drop a pointer behind the
// owner's back and leak or double-free the record.
//
// Negative labels are ordinary keys of the one table (the sign bit is folded
// into the key order), so there is no second table for them; iteration gives
// ascending labels, negative ones first.
//
// Allocation failures raise inp_MemoryException.
class omi_IntTableElement : private omi_IntTable<inp_Element*> {
    using Base = omi_IntTable<inp_Element*>;

  public:
    // Entries as range-for sees them: `for (auto [label, record] : table)`.
    using Entry = Base::Entry;
    using const_iterator = Base::const_iterator;

    omi_IntTableElement() = default;
    omi_IntTableElement(omi_IntTableElement const& other);
    omi_IntTableElement(omi_IntTableElement&& other) noexcept = default;
    omi_IntTableElement& operator=(omi_IntTableElement const& other);
    omi_IntTableElement& operator=(omi_IntTableElement&& other) noexcept;
    ~omi_IntTableElement();

    // A label that holds a record gets `value` assigned into that record and
    // false is returned; a new label gets a new record and true.
    bool Insert(int label, inp_Element const& value);
    // As Insert, but the table takes over `owned` (made with new, not null):
    // an old record under the label is destroyed first. Should the insertion
    // fail, `owned` is destroyed too, since it was handed over.
    bool InsertPtr(int label, inp_Element* owned);

    // Takes the record of `label` out of the table and hands it, with its
    // ownership, to the caller; null for a label that is no member.
    inp_Element* Release(int label);

    // The record, or null for a label that is no member.
    inp_Element const* Lookup(int label) const;
    inp_Element* LookupWritable(int label);
    // The label must be a member.
    inp_Element const& ConstGet(int label) const;

    using Base::IsEmpty;
    using Base::IsMember;
    int Size() const { return static_cast<int>(Base::Size()); }
    // Destroys every record.
    void Clear() noexcept;

    using Base::begin;
    using Base::end;
    using Base::MaxKey;
    using Base::MinKey;

    // Hands every record over to `target`, which must be empty, under the
    // label newLabelFor(label) gives; labels are visited in ascending order
    // and no record is copied. This table is empty afterwards. Two labels
    // mapped onto one keep the later record, as repeated inserts would. If
    // anything throws, nothing has moved.
    template <class NewLabelFor>
    void MoveRecordsInto(omi_IntTableElement& target, NewLabelFor&& newLabelFor);

  private:
    static inp_Element* newRecord(inp_Element const& value);
    [[noreturn]] static void raiseMemoryException();
    // Empties the table without destroying the records, whose owner is
    // somebody else by now.
    void forgetRecords() noexcept { Base::Clear(); }
    void destroyRecordsBefore(int label) noexcept;
};

template <class NewLabelFor>
void omi_IntTableElement::MoveRecordsInto(omi_IntTableElement& target, NewLabelFor&& newLabelFor) {
    ZELBAS_ASSERT(target.IsEmpty());
    // Records superseded in the target are destroyed only once the move has
    // succeeded: until then this table still owns them.
    std::vector<inp_Element*> superseded;
    try {
        for (auto [label, record] : static_cast<Base const&>(*this)) {
            int const newLabel = newLabelFor(label);
            if (inp_Element** const slot = target.Base::LookupWritable(newLabel)) {
                superseded.push_back(*slot);
                *slot = record;
            } else {
                target.Base::Insert(newLabel, record);
            }
        }
    } catch (std::bad_alloc const&) {
        target.forgetRecords();
        raiseMemoryException();
    } catch (...) {
        target.forgetRecords();
        throw;
    }
    forgetRecords();
    for (inp_Element* record : superseded) delete record;
}
