#pragma once
// Where, in a flat keyword list, the *RIGID BODY and the rigid surface of one
// analytical surface stand. Each of the two is recorded once: the first
// keyword of its kind wins, a later one is refused so that the caller can
// tell the user.

#include <cstdint>

#include "support/cow_String.h"

class inp_RigidKeywordPositions {
  public:
    inp_RigidKeywordPositions() = default;
    explicit inp_RigidKeywordPositions(cow_String const& surfaceName)
        : m_surfaceName(surfaceName) {}

    cow_String const& SurfaceName() const noexcept { return m_surfaceName; }
    bool HasRigidBody() const noexcept { return m_hasRigidBody; }
    bool HasRigidSurface() const noexcept { return m_hasRigidSurface; }
    // Meaningful only once the matching Has... is true.
    std::int32_t ConstGetRigidBodyIndex() const noexcept { return m_rigidBodyIndex; }
    std::int32_t ConstGetRigidSurfaceIndex() const noexcept { return m_rigidSurfaceIndex; }

    // Each records the index and returns true, or, when a keyword of that kind
    // is recorded already, keeps the first index and returns false.
    bool InsertRigidBody(std::int32_t index);
    bool InsertRigidSurface(std::int32_t index);

    // Both are known and the rigid body stands first: the surface it refers
    // to is not yet defined where it stands.
    bool IsOrderReversed() const noexcept {
        return m_hasRigidBody && m_hasRigidSurface && m_rigidBodyIndex < m_rigidSurfaceIndex;
    }

  private:
    cow_String m_surfaceName;
    bool m_hasRigidBody = false;
    bool m_hasRigidSurface = false;
    std::int32_t m_rigidBodyIndex = 0;
    std::int32_t m_rigidSurfaceIndex = 0;
};
