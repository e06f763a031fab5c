#pragma once

class gsl_Vector;
class gsl_StLine;
class gsl_Plane;

// A position in space: a plain value of three doubles. Differences of points
// are vectors (gsl_Vector.h defines the mixed operators), so that a position
// and a direction can't be mixed up by accident: only a gsl_Matrix translates
// a point, and it only rotates a vector.
class gsl_Point {
  public:
    constexpr gsl_Point() noexcept = default;
    constexpr gsl_Point(double px, double py, double pz) noexcept : x(px), y(py), z(pz) {}
    // The weighted sum a p + b q: the midpoint is (p, 0.5, q, 0.5), a point
    // reflected through a centre c is (c, 2.0, p, -1.0).
    constexpr gsl_Point(gsl_Point const& p, double a, gsl_Point const& q, double b) noexcept
        : x(a * p.x + b * q.x), y(a * p.y + b * q.y), z(a * p.z + b * q.z) {}

    // The foot of the perpendicular from this point to the line, and in
    // `parameter` its signed distance from the line's origin along its unit
    // direction. A line without a direction projects everything on its origin.
    gsl_Point ProjectOn(gsl_StLine const& line, double& parameter) const;
    // The foot of the perpendicular from this point to the plane. A plane
    // without a normal projects everything on its origin.
    gsl_Point ProjectOn(gsl_Plane const& plane) const;

    double DistanceTo(gsl_Point const& other) const;

    // Exact comparison of the coordinates.
    friend constexpr bool operator==(gsl_Point const&, gsl_Point const&) = default;

    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};
