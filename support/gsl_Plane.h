#pragma once
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

// An infinite plane: a point on it and a unit normal. The normal is
// normalised on construction; one too short to be normalised is kept as the
// zero vector, and such a plane stands for its origin alone (projections land
// there). The direction of a plane is its normal.
class gsl_Plane {
  public:
    gsl_Plane() = default;
    gsl_Plane(gsl_Point const& origin, gsl_Vector const& normal);
    // The plane through three points, through `a`, with the normal
    // (b - a) x (c - a). Points on one line give a degenerate plane.
    gsl_Plane(gsl_Point const& a, gsl_Point const& b, gsl_Point const& c);

    gsl_Point const& Origin() const noexcept { return m_origin; }
    // The unit normal, or the zero vector for a degenerate plane.
    gsl_Vector const& Direction() const noexcept { return m_normal; }
    gsl_Vector const& Normal() const noexcept { return m_normal; }
    bool IsValid() const noexcept { return !m_normal.IsZero(); }

    // Positive on the side the normal points to; 0 for a degenerate plane.
    double SignedDistanceTo(gsl_Point const& point) const;

  private:
    gsl_Point m_origin;
    gsl_Vector m_normal;
};
