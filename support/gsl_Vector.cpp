#include "support/gsl_Vector.h"

#include <cmath>

#include "support/ZELBasAssert.h"

namespace {
// Below this sine of the angle between the two edges, three points count as
// lying on one line: a few units of rounding of the cross product.
constexpr double kCollinearSine = 1e-12;
}  // namespace

gsl_Vector::gsl_Vector(gsl_Point const& a, gsl_Point const& b, gsl_Point const& c) {
    gsl_Vector const ab(a, b);
    gsl_Vector const ac(a, c);
    *this = ab.CrossProduct(ac);
    // Relative to the edges, so that the test doesn't depend on the units.
    if (Magnitude() <= kCollinearSine * ab.Magnitude() * ac.Magnitude()) Set(0.0, 0.0, 0.0);
}

double gsl_Vector::operator[](int index) const {
    ZELBAS_ASSERT(index >= 0 && index < 3);
    return index == 0 ? m_x : index == 1 ? m_y : m_z;
}

void gsl_Vector::Set(double x, double y, double z) noexcept {
    m_x = x;
    m_y = y;
    m_z = z;
    m_magnitude = kUnknownMagnitude;
}

double gsl_Vector::ComputeMagnitude() const {
    m_magnitude = std::sqrt(DotProduct(*this));
    return m_magnitude;
}

bool gsl_Vector::Normalize() {
    double const magnitude = ComputeMagnitude();
    // Written so that a NaN magnitude fails as well.
    if (!(magnitude > kTolerance)) return false;
    m_x /= magnitude;
    m_y /= magnitude;
    m_z /= magnitude;
    m_magnitude = 1.0;
    return true;
}

bool gsl_Vector::IsMagnitudeTooSmall(double value) {
    return std::fabs(value) <= kTolerance;
}

gsl_Vector gsl_Vector::CrossProduct(gsl_Vector const& other) const {
    return {m_y * other.m_z - m_z * other.m_y, m_z * other.m_x - m_x * other.m_z,
            m_x * other.m_y - m_y * other.m_x};
}

double gsl_Vector::AngleWith(gsl_Vector const& other) const {
    if (IsZero() || other.IsZero()) return 0.0;
    return std::atan2(CrossProduct(other).Magnitude(), DotProduct(other));
}

void gsl_Vector::Scale(double factor) {
    m_x *= factor;
    m_y *= factor;
    m_z *= factor;
    if (m_magnitude >= 0.0) m_magnitude *= std::fabs(factor);
}

gsl_Vector gsl_Vector::operator-() const noexcept {
    gsl_Vector negated = *this;
    negated.Negate();
    return negated;
}

gsl_Vector& gsl_Vector::operator+=(gsl_Vector const& other) noexcept {
    Set(m_x + other.m_x, m_y + other.m_y, m_z + other.m_z);
    return *this;
}

gsl_Vector& gsl_Vector::operator-=(gsl_Vector const& other) noexcept {
    Set(m_x - other.m_x, m_y - other.m_y, m_z - other.m_z);
    return *this;
}

gsl_Vector operator+(gsl_Vector a, gsl_Vector const& b) noexcept {
    return a += b;
}
gsl_Vector operator-(gsl_Vector a, gsl_Vector const& b) noexcept {
    return a -= b;
}
gsl_Vector operator*(gsl_Vector v, double factor) {
    return v *= factor;
}
gsl_Vector operator*(double factor, gsl_Vector v) {
    return v *= factor;
}

gsl_Vector operator-(gsl_Point const& to, gsl_Point const& from) noexcept {
    return {from, to};
}

gsl_Point operator+(gsl_Point const& p, gsl_Vector const& v) noexcept {
    return {p.x + v.X(), p.y + v.Y(), p.z + v.Z()};
}

gsl_Point operator-(gsl_Point const& p, gsl_Vector const& v) noexcept {
    return {p.x - v.X(), p.y - v.Y(), p.z - v.Z()};
}

gsl_Point& operator+=(gsl_Point& p, gsl_Vector const& v) noexcept {
    return p = p + v;
}
gsl_Point& operator-=(gsl_Point& p, gsl_Vector const& v) noexcept {
    return p = p - v;
}
