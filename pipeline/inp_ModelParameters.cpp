#include "pipeline/inp_ModelParameters.h"

int inp_ModelParameters::getTableSize(cow_String const& name) const {
    int const* size = m_tableSizes.Find(name);
    return size ? *size : 0;
}

bool inp_ModelParameters::isCsysRectangular(cow_String const& name) const {
    int const* rectangular = m_rectangularSystems.Find(name);
    return rectangular != nullptr && *rectangular != 0;
}
