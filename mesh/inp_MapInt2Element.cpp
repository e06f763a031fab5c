#include "mesh/inp_MapInt2Element.h"

#include <new>

#include "deck/inp_Exceptions.h"
#include "support/ZELBasAssert.h"

namespace {

ZELBasSharedPtr<omi_IntTableElement> newTable(omi_IntTableElement const* original = nullptr) {
    try {
        return ZELBasSharedPtr<omi_IntTableElement>(original ? new omi_IntTableElement(*original)
                                                             : new omi_IntTableElement);
    } catch (std::bad_alloc const&) {
        throw inp_MemoryException();
    }
}

}  // namespace

inp_MapInt2Element::inp_MapInt2Element() : m_table(newTable()) {}

bool inp_MapInt2Element::Insert(int const& label, inp_Element const& value) {
    return GetTable().Insert(label, value);
}

bool inp_MapInt2Element::InsertPtr(int const& label, inp_Element* owned) {
    if (!HasTable()) {
        try {
            m_table = newTable();
        } catch (...) {
            delete owned;  // handed over, so it must not leak
            throw;
        }
    }
    return m_table->InsertPtr(label, owned);
}

inp_Element const& inp_MapInt2Element::ConstGet(int const& label) const {
    ZELBAS_ASSERT_TEXT(HasTable(), "key not in table");
    return m_table->ConstGet(label);
}

inp_Element* inp_MapInt2Element::GetEltPtr(int label) {
    return HasTable() ? m_table->LookupWritable(label) : nullptr;
}

inp_Element const* inp_MapInt2Element::GetEltPtr(int label) const {
    return HasTable() ? m_table->Lookup(label) : nullptr;
}

bool inp_MapInt2Element::IsMember(int const& label) const {
    return HasTable() && m_table->IsMember(label);
}

int inp_MapInt2Element::Size() const {
    return HasTable() ? m_table->Size() : 0;
}

void inp_MapInt2Element::Clear() {
    if (HasTable()) m_table->Clear();
}

void inp_MapInt2Element::AdoptNewTable() {
    m_table = newTable();
}

void inp_MapInt2Element::AdoptCopyOfTable() {
    if (HasTable()) m_table = newTable(m_table.Get());
}

omi_IntTableElement& inp_MapInt2Element::GetTable() {
    if (!HasTable()) m_table = newTable();
    return *m_table;
}

inp_MapInt2ElementSIT::inp_MapInt2ElementSIT(inp_MapInt2Element const& map)
    : m_table(map.ConstGetTable()) {
    First();
}

void inp_MapInt2ElementSIT::First() {
    if (m_table) {
        m_position = m_table->begin();
        m_end = m_table->end();
    }
}
