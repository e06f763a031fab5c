#include "mesh/omi_IntTableCoord.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "support/ZELBasAssert.h"

// Records are given back by freeing their blocks, without a destructor each.
static_assert(std::is_trivially_destructible_v<inp_Coord>);

omi_IntTableCoord::omi_IntTableCoord(omi_IntTableCoord const& other) : Base(other) {
    // The base copied the pointers; each slot now gets a record of its own,
    // all of them in one block.
    int const size = Size();
    if (size == 0) return;
    m_blocks.push_back(std::make_unique<inp_Coord[]>(static_cast<size_t>(size)));
    m_lastBlockSize = size;
    for (auto entry : static_cast<Base const&>(*this)) {
        void*& slot = const_cast<void*&>(entry.value);
        inp_Coord* const record = &m_blocks.back()[static_cast<size_t>(m_lastBlockUsed++)];
        *record = Record(slot);
        slot = record;
    }
}

omi_IntTableCoord& omi_IntTableCoord::operator=(omi_IntTableCoord other) noexcept {
    Base::operator=(std::move(static_cast<Base&>(other)));
    m_blocks = std::move(other.m_blocks);
    m_lastBlockSize = other.m_lastBlockSize;
    m_lastBlockUsed = other.m_lastBlockUsed;
    m_removed = std::move(other.m_removed);
    return *this;
}

omi_IntTableCoord::~omi_IntTableCoord() = default;

inp_Coord* omi_IntTableCoord::newRecord(inp_Coord const& value) {
    inp_Coord* record = nullptr;
    if (!m_removed.empty()) {
        record = m_removed.back();
        m_removed.pop_back();
    } else {
        if (m_blocks.empty() || m_lastBlockUsed == m_lastBlockSize) {
            int const size = m_blocks.empty() ? kFirstBlockRecords
                                              : std::min(2 * m_lastBlockSize, kMaxBlockRecords);
            m_blocks.push_back(std::make_unique<inp_Coord[]>(static_cast<size_t>(size)));
            m_lastBlockSize = size;
            m_lastBlockUsed = 0;
        }
        record = &m_blocks.back()[static_cast<size_t>(m_lastBlockUsed++)];
    }
    *record = value;
    return record;
}

bool omi_IntTableCoord::Insert(int key, inp_Coord const& record) {
    if (inp_Coord* const existing = FindWritable(key)) {
        // Overwriting in place spares a record and keeps the slot.
        *existing = record;
        return false;
    }
    m_removed.reserve(m_removed.size() + 1);  // so that the undo below cannot fail
    inp_Coord* const room = newRecord(record);
    try {
        Base::Insert(key, room);
    } catch (...) {
        m_removed.push_back(room);
        throw;
    }
    return true;
}

bool omi_IntTableCoord::Remove(int key) {
    inp_Coord* const record = FindWritable(key);
    if (record == nullptr) return false;
    m_removed.push_back(record);
    Base::Remove(key);
    return true;
}

void omi_IntTableCoord::Clear() noexcept {
    Base::Clear();
    freeBlocks();
}

void omi_IntTableCoord::freeBlocks() noexcept {
    m_blocks.clear();
    m_blocks.shrink_to_fit();
    m_removed.clear();
    m_removed.shrink_to_fit();
    m_lastBlockSize = 0;
    m_lastBlockUsed = 0;
}

inp_Coord const& omi_IntTableCoord::ConstGet(int key) const {
    inp_Coord const* const record = Find(key);
    ZELBAS_ASSERT_TEXT(record != nullptr, "node label not in table");
    return *record;
}
