#include "support/inpM_OmiSet.h"

void inpM_OmiSet::Insert(cow_List<int> const& ids) {
    if (ids.IsEmpty()) return;
    omi_Set& set = writableSet();
    for (int id : ids) set.Insert(id);
}

bool inpM_OmiSet::Remove(int id) {
    if (!IsMember(id)) return false;
    return writableSet().Remove(id);
}

inpM_OmiSet& inpM_OmiSet::operator+=(inpM_OmiSet const& other) {
    if (other.IsEmpty() || SharesWith(other)) return *this;
    if (IsEmpty()) {
        m_set = other.m_set;
        return *this;
    }
    omi_Set& set = writableSet();
    for (omi_SetIT walk(*other.m_set); walk.NotDone(); walk.Next()) set.Insert(walk.CurrentItem());
    return *this;
}

cow_List<int> inpM_OmiSet::ConstGetArrayCounterpart() const {
    cow_List<int> ids;
    if (IsEmpty()) return ids;
    ids.Reserve(Size());
    for (omi_SetIT walk(*m_set); walk.NotDone(); walk.Next()) ids.Append(walk.CurrentItem());
    return ids;
}

bool operator==(inpM_OmiSet const& a, inpM_OmiSet const& b) {
    if (a.Size() != b.Size()) return false;
    if (a.IsEmpty() || a.SharesWith(b)) return true;
    omi_SetIT left(*a.m_set);
    omi_SetIT right(*b.m_set);
    for (; left.NotDone(); left.Next(), right.Next()) {
        if (left.CurrentItem() != right.CurrentItem()) return false;
    }
    return true;
}

omi_Set const& inpM_OmiSet::emptySet() {
    static omi_Set const empty;
    return empty;
}

omi_Set& inpM_OmiSet::writableSet() {
    if (m_set.IsNull()) {
        m_set = cow_CountedHld<omi_Set>::Make();
    } else if (m_set.UseCount() > 1) {
        m_set = cow_CountedHld<omi_Set>::Make(*m_set);
    }
    return *m_set;
}
