#include "support/inpM_PartMap.h"

void inpM_PartMap::RemoveRedundantInternalSets() {
    m_nsets.RemoveInternalSets();
    m_elsets.RemoveInternalSets();
}
