#include "support/inpM_IdMap.h"

#include <algorithm>
#include <cstdint>

#include "support/ZELBasException.h"
#include "support/atr_String.h"

void inpM_IdMap::Insert(int oldId, int newId) {
    m_oldToNew.Insert(oldId, newId);
    m_newToOld.Insert(newId, oldId);
}

void inpM_IdMap::Insert(cow_String const& instance, inpM_IdMap const& nested) {
    m_instances.Insert(instance, nested);
}

cow_List<cow_String> inpM_IdMap::Instances() const {
    cow_List<cow_String> names;
    names.Reserve(m_instances.Size());
    m_instances.ForEachSorted(
        [&names](cow_String const& name, inpM_IdMap const&) { names.Append(name); });
    return names;
}

int inpM_IdMap::NumberIds() const {
    int count = m_oldToNew.Size();
    m_instances.ForEachSorted(
        [&count](cow_String const&, inpM_IdMap const& nested) { count += nested.NumberIds(); });
    return count;
}

bool inpM_IdMap::findSmallest(int& extreme) const {
    bool found = false;
    if (!m_newToOld.IsEmpty()) {
        extreme = m_newToOld.MinKey();
        found = true;
    }
    m_instances.ForEachSorted([&](cow_String const&, inpM_IdMap const& nested) {
        int candidate = 0;
        if (!nested.findSmallest(candidate)) return;
        extreme = found ? std::min(extreme, candidate) : candidate;
        found = true;
    });
    return found;
}

bool inpM_IdMap::findLargest(int& extreme) const {
    bool found = false;
    if (!m_newToOld.IsEmpty()) {
        extreme = m_newToOld.MaxKey();
        found = true;
    }
    m_instances.ForEachSorted([&](cow_String const&, inpM_IdMap const& nested) {
        int candidate = 0;
        if (!nested.findLargest(candidate)) return;
        extreme = found ? std::max(extreme, candidate) : candidate;
        found = true;
    });
    return found;
}

int inpM_IdMap::SmallestId() const {
    int smallest = 0;
    findSmallest(smallest);
    return smallest;
}

int inpM_IdMap::LargestId() const {
    int largest = 0;
    findLargest(largest);
    return largest;
}

namespace {

[[noreturn]] void raiseMissingId(int id) {
    throw nex_PrimException<atr_String, 1>(atr("Id %d is not in the id map", id));
}

}  // namespace

void inpM_IdMap::Renumber(int* ids, int count) const {
    if (count <= 0) return;
    // Short runs (the nodes of an element) are translated into a buffer and
    // committed at the end, so one lookup per id leaves the input untouched
    // on failure; longer runs are checked in a first pass.
    constexpr int kBuffered = 64;
    if (count <= kBuffered) {
        int translated[kBuffered];
        for (int i = 0; i < count; ++i) {
            int const* newId = m_oldToNew.Lookup(ids[i]);
            if (newId == nullptr) raiseMissingId(ids[i]);
            translated[i] = *newId;
        }
        std::copy(translated, translated + count, ids);
        return;
    }
    for (int i = 0; i < count; ++i) {
        if (!m_oldToNew.IsMember(ids[i])) raiseMissingId(ids[i]);
    }
    for (int i = 0; i < count; ++i) ids[i] = *m_oldToNew.Lookup(ids[i]);
}

cow_List<int> inpM_IdMap::Renumber(cow_List<int> const& ids, bool keepMissing) const {
    cow_List<int> translated;
    translated.Reserve(ids.Length());
    for (int id : ids) {
        if (int const* newId = m_oldToNew.Lookup(id)) {
            translated.Append(*newId);
        } else if (keepMissing) {
            translated.Append(id);
        }
    }
    return translated;
}

void inpM_IdMap::InsertDuplicateOffsetIds(int offset, int copies) {
    if (copies <= 0 || m_oldToNew.IsEmpty()) return;
    // The walk reads a snapshot, so the entries added meanwhile are not
    // offset once more.
    cow_IntTableInt const original(m_oldToNew);
    for (int copy = 1; copy <= copies; ++copy) {
        int64_t const shift = int64_t{copy} * offset;
        for (auto [oldId, newId] : original) {
            Insert(static_cast<int>(oldId + shift), static_cast<int>(newId + shift));
        }
    }
}
