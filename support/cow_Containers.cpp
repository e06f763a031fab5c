#include "support/cow_COW.h"

int* cow_NewCount() {
    return new int(1);
}

bool cow_DropReference(int* count) noexcept {
    if (--*count > 0) return false;
    delete count;
    return true;
}

bool cow_DropIsLast(int& refs) noexcept {
    return --refs == 0;
}
