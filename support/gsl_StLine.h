#pragma once
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

// An infinite straight line: a point on it and a unit direction. The
// direction is normalised on construction; a direction too short to be
// normalised is kept as the zero vector, and such a line stands for its
// origin alone (projections land there).
class gsl_StLine {
  public:
    gsl_StLine() = default;
    gsl_StLine(gsl_Point const& origin, gsl_Vector const& direction);
    // The line through two points, directed from `from` to `to`.
    gsl_StLine(gsl_Point const& from, gsl_Point const& to);

    gsl_Point const& Origin() const noexcept { return m_origin; }
    // The unit direction, or the zero vector for a degenerate line.
    gsl_Vector const& Direction() const noexcept { return m_direction; }
    bool IsValid() const noexcept { return !m_direction.IsZero(); }

    // The point at the signed distance `parameter` from the origin.
    gsl_Point PointAt(double parameter) const { return m_origin + parameter * m_direction; }
    double DistanceTo(gsl_Point const& point) const;

  private:
    void normalizeOrZero();

    gsl_Point m_origin;
    gsl_Vector m_direction;
};
