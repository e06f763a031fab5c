#include "mesh/omi_IntTableElement.h"

#include <utility>

#include "deck/inp_Exceptions.h"

omi_IntTableElement::omi_IntTableElement(omi_IntTableElement const& other) : Base(other) {
    // The base copy took the block structure in one sweep; its pointers are
    // the other table's records until each is swapped for a clone here.
    int label = 0;
    try {
        for (auto [key, record] : static_cast<Base const&>(other)) {
            label = key;
            *Base::LookupWritable(key) = newRecord(*record);
        }
    } catch (...) {
        destroyRecordsBefore(label);
        forgetRecords();
        throw;
    }
}

omi_IntTableElement& omi_IntTableElement::operator=(omi_IntTableElement const& other) {
    if (this != &other) *this = omi_IntTableElement(other);
    return *this;
}

omi_IntTableElement& omi_IntTableElement::operator=(omi_IntTableElement&& other) noexcept {
    if (this != &other) {
        Clear();
        Base::operator=(std::move(static_cast<Base&>(other)));
    }
    return *this;
}

omi_IntTableElement::~omi_IntTableElement() {
    Clear();
}

bool omi_IntTableElement::Insert(int label, inp_Element const& value) {
    if (inp_Element** const slot = Base::LookupWritable(label)) {
        // Slots never hold null (InsertPtr refuses it), so an existing label
        // always has a record to assign into.
        **slot = value;
        return false;
    }
    return InsertPtr(label, newRecord(value));
}

bool omi_IntTableElement::InsertPtr(int label, inp_Element* owned) {
    ZELBAS_ASSERT(owned != nullptr);
    if (inp_Element** const slot = Base::LookupWritable(label)) {
        if (*slot != owned) delete std::exchange(*slot, owned);
        return false;
    }
    try {
        return Base::Insert(label, owned);
    } catch (...) {
        delete owned;
        raiseMemoryException();
    }
}

inp_Element* omi_IntTableElement::Release(int label) {
    inp_Element* const* const slot = Base::Lookup(label);
    if (slot == nullptr) return nullptr;
    inp_Element* const record = *slot;
    Base::Remove(label);
    return record;
}

inp_Element const* omi_IntTableElement::Lookup(int label) const {
    inp_Element* const* const slot = Base::Lookup(label);
    return slot ? *slot : nullptr;
}

inp_Element* omi_IntTableElement::LookupWritable(int label) {
    inp_Element** const slot = Base::LookupWritable(label);
    return slot ? *slot : nullptr;
}

inp_Element const& omi_IntTableElement::ConstGet(int label) const {
    return *Base::ConstGet(label);
}

void omi_IntTableElement::Clear() noexcept {
    for (auto [label, record] : static_cast<Base const&>(*this)) delete record;
    forgetRecords();
}

inp_Element* omi_IntTableElement::newRecord(inp_Element const& value) {
    // Without a record to hold the value there is nothing to fall back on.
    auto* const record = new (std::nothrow) inp_Element(value);
    if (!record) raiseMemoryException();
    return record;
}

void omi_IntTableElement::raiseMemoryException() {
    throw inp_MemoryException();
}

void omi_IntTableElement::destroyRecordsBefore(int label) noexcept {
    for (auto [key, record] : static_cast<Base const&>(*this)) {
        if (key == label) break;
        delete record;
    }
}
