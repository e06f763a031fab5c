#include "assembly/inp_RigidKeywordPositions.h"

bool inp_RigidKeywordPositions::InsertRigidBody(std::int32_t index) {
    if (m_hasRigidBody) return false;
    m_hasRigidBody = true;
    m_rigidBodyIndex = index;
    return true;
}

bool inp_RigidKeywordPositions::InsertRigidSurface(std::int32_t index) {
    if (m_hasRigidSurface) return false;
    m_hasRigidSurface = true;
    m_rigidSurfaceIndex = index;
    return true;
}
