#include "support/gsl_StLine.h"

gsl_StLine::gsl_StLine(gsl_Point const& origin, gsl_Vector const& direction)
    : m_origin(origin), m_direction(direction) {
    normalizeOrZero();
}

gsl_StLine::gsl_StLine(gsl_Point const& from, gsl_Point const& to)
    : m_origin(from), m_direction(from, to) {
    normalizeOrZero();
}

double gsl_StLine::DistanceTo(gsl_Point const& point) const {
    double parameter = 0.0;
    return point.DistanceTo(point.ProjectOn(*this, parameter));
}

void gsl_StLine::normalizeOrZero() {
    if (!m_direction.Normalize()) m_direction.Set(0.0, 0.0, 0.0);
}
