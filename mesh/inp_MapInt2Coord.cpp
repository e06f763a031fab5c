#include "mesh/inp_MapInt2Coord.h"

bool inp_MapInt2Coord::Remove(int const& key) {
    if (!IsMember(key)) return false;
    return Get().Remove(key);
}

void inp_MapInt2Coord::Clear() {
    if (UseCount() > 1) {
        static_cast<Handle&>(*this) = Handle();
        return;
    }
    Get().Clear();
}
