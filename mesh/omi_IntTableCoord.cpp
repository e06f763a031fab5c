#include "mesh/omi_IntTableCoord.h"

#include <memory>
#include <utility>

#include "support/ZELBasAssert.h"

omi_IntTableCoord::omi_IntTableCoord(omi_IntTableCoord const& other) : Base(other) {
    // The base copied the pointers; each slot now gets a record of its own.
    int64_t cloned = 0;
    try {
        for (auto entry : static_cast<Base const&>(*this)) {
            void*& slot = const_cast<void*&>(entry.value);
            slot = new inp_Coord(Record(slot));
            ++cloned;
        }
    } catch (...) {
        // The slots before the failing one hold clones, the rest still point
        // into `other`: free only the clones.
        deleteRecords(cloned);
        throw;
    }
}

omi_IntTableCoord& omi_IntTableCoord::operator=(omi_IntTableCoord other) noexcept {
    // The base's assignment would hand our records to a plain table that
    // doesn't free them: free them here, then take over the copy's.
    Clear();
    Base::operator=(std::move(static_cast<Base&>(other)));
    return *this;
}

omi_IntTableCoord::~omi_IntTableCoord() {
    deleteRecords(Base::Size());
}

bool omi_IntTableCoord::Insert(int key, inp_Coord const& record) {
    if (inp_Coord* const existing = FindWritable(key)) {
        // Overwriting in place spares an allocation and keeps the slot.
        *existing = record;
        return false;
    }
    auto owned = std::make_unique<inp_Coord>(record);
    Base::Insert(key, owned.get());
    static_cast<void>(owned.release());  // the table owns the record now
    return true;
}

bool omi_IntTableCoord::Remove(int key) {
    inp_Coord* const record = FindWritable(key);
    if (record == nullptr) return false;
    Base::Remove(key);
    delete record;
    return true;
}

void omi_IntTableCoord::Clear() noexcept {
    deleteRecords(Base::Size());
    Base::Clear();
}

inp_Coord const& omi_IntTableCoord::ConstGet(int key) const {
    inp_Coord const* const record = Find(key);
    ZELBAS_ASSERT_TEXT(record != nullptr, "node label not in table");
    return *record;
}

// Frees the records of the first `count` entries in key order.
void omi_IntTableCoord::deleteRecords(int64_t count) noexcept {
    for (auto entry : static_cast<Base const&>(*this)) {
        if (count-- <= 0) return;
        delete static_cast<inp_Coord*>(entry.value);
    }
}
