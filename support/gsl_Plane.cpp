#include "support/gsl_Plane.h"

gsl_Plane::gsl_Plane(gsl_Point const& origin, gsl_Vector const& normal)
    : m_origin(origin), m_normal(normal) {
    if (!m_normal.Normalize()) m_normal.Set(0.0, 0.0, 0.0);
}

gsl_Plane::gsl_Plane(gsl_Point const& a, gsl_Point const& b, gsl_Point const& c)
    : gsl_Plane(a, gsl_Vector(a, b, c)) {}

double gsl_Plane::SignedDistanceTo(gsl_Point const& point) const {
    return (point - m_origin).DotProduct(m_normal);
}
