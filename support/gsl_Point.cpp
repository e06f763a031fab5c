#include "support/gsl_Point.h"

#include "support/gsl_Plane.h"
#include "support/gsl_StLine.h"
#include "support/gsl_Vector.h"

// The direction of a line and the normal of a plane are unit vectors, or zero
// for a degenerate one; a degenerate line or plane stands for its origin.

gsl_Point gsl_Point::ProjectOn(gsl_StLine const& line, double& parameter) const {
    parameter = (*this - line.Origin()).DotProduct(line.Direction());
    return line.PointAt(parameter);
}

gsl_Point gsl_Point::ProjectOn(gsl_Plane const& plane) const {
    if (!plane.IsValid()) return plane.Origin();
    return *this - plane.SignedDistanceTo(*this) * plane.Normal();
}

double gsl_Point::DistanceTo(gsl_Point const& other) const {
    return (other - *this).Magnitude();
}
