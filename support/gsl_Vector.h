#pragma once
#include "support/gsl_Point.h"

// A direction or displacement in space. The magnitude is cached, since a
// vector is often normalised and then asked for its length again; -1.0 marks
// a magnitude not yet computed, and every change of a component resets it.
// Components are therefore reached through accessors, not as fields.
class gsl_Vector {
  public:
    // Below this a magnitude counts as zero: Normalize refuses such a vector,
    // and IsMagnitudeTooSmall tells a negligible component. It is absolute, in
    // model units, far below any meaningful distance between two nodes.
    static constexpr double kTolerance = 1e-10;
    // The cache value of a magnitude not computed yet.
    static constexpr double kUnknownMagnitude = -1.0;

    constexpr gsl_Vector() noexcept = default;
    constexpr gsl_Vector(double x, double y, double z) noexcept : m_x(x), m_y(y), m_z(z) {}
    // The position vector of a point: from the origin to it.
    constexpr explicit gsl_Vector(gsl_Point const& p) noexcept : m_x(p.x), m_y(p.y), m_z(p.z) {}
    // From `from` to `to`.
    constexpr gsl_Vector(gsl_Point const& from, gsl_Point const& to) noexcept
        : m_x(to.x - from.x), m_y(to.y - from.y), m_z(to.z - from.z) {}
    // The normal of the plane through three points, (b - a) x (c - a), not
    // normalised: its length is twice the area of the triangle. Points that
    // lie on one line up to rounding give exactly the zero vector, so that
    // Normalize fails on them whatever the scale of the model.
    gsl_Vector(gsl_Point const& a, gsl_Point const& b, gsl_Point const& c);

    constexpr double X() const noexcept { return m_x; }
    constexpr double Y() const noexcept { return m_y; }
    constexpr double Z() const noexcept { return m_z; }
    // Component 0, 1 or 2.
    double operator[](int index) const;
    void SetX(double x) noexcept { Set(x, m_y, m_z); }
    void SetY(double y) noexcept { Set(m_x, y, m_z); }
    void SetZ(double z) noexcept { Set(m_x, m_y, z); }
    void Set(double x, double y, double z) noexcept;

    // The point at the tip of this vector put at the origin.
    constexpr gsl_Point AsPoint() const noexcept { return {m_x, m_y, m_z}; }

    // Computes the magnitude and keeps it in the cache.
    double ComputeMagnitude() const;
    // The cached magnitude when known, else computed and cached.
    double Magnitude() const { return m_magnitude >= 0.0 ? m_magnitude : ComputeMagnitude(); }
    // The cache as it stands: kUnknownMagnitude when not computed since the
    // last change.
    constexpr double CachedMagnitude() const noexcept { return m_magnitude; }

    // Makes this a unit vector. A vector whose magnitude does not exceed
    // kTolerance is left as it is and false is returned.
    bool Normalize();
    // True when the magnitude does not exceed kTolerance.
    bool IsMagnitudeTooSmall() const { return Magnitude() <= kTolerance; }
    static bool IsMagnitudeTooSmall(double value);
    // Exactly (0, 0, 0): "no normal" in a node record.
    constexpr bool IsZero() const noexcept { return m_x == 0.0 && m_y == 0.0 && m_z == 0.0; }

    double DotProduct(gsl_Vector const& other) const {
        return m_x * other.m_x + m_y * other.m_y + m_z * other.m_z;
    }
    gsl_Vector CrossProduct(gsl_Vector const& other) const;
    // The angle between the two directions in radians, 0 to pi; 0 when either
    // vector is zero. Accurate near 0 and pi, where an arc cosine is not.
    double AngleWith(gsl_Vector const& other) const;

    // The magnitude stays valid.
    void Negate() noexcept {
        m_x = -m_x;
        m_y = -m_y;
        m_z = -m_z;
    }
    // Multiplies every component; a known magnitude is scaled along.
    void Scale(double factor);

    gsl_Vector operator-() const noexcept;
    gsl_Vector& operator+=(gsl_Vector const& other) noexcept;
    gsl_Vector& operator-=(gsl_Vector const& other) noexcept;
    gsl_Vector& operator*=(double factor) {
        Scale(factor);
        return *this;
    }

    // Exact comparison of the components; the cache plays no part.
    friend bool operator==(gsl_Vector const& a, gsl_Vector const& b) noexcept {
        return a.m_x == b.m_x && a.m_y == b.m_y && a.m_z == b.m_z;
    }

  private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    mutable double m_magnitude = kUnknownMagnitude;
};

gsl_Vector operator+(gsl_Vector a, gsl_Vector const& b) noexcept;
gsl_Vector operator-(gsl_Vector a, gsl_Vector const& b) noexcept;
gsl_Vector operator*(gsl_Vector v, double factor);
gsl_Vector operator*(double factor, gsl_Vector v);

// Points and vectors: the difference of two points is a vector, a point moved
// by a vector is a point.
gsl_Vector operator-(gsl_Point const& to, gsl_Point const& from) noexcept;
gsl_Point operator+(gsl_Point const& p, gsl_Vector const& v) noexcept;
gsl_Point operator-(gsl_Point const& p, gsl_Vector const& v) noexcept;
gsl_Point& operator+=(gsl_Point& p, gsl_Vector const& v) noexcept;
gsl_Point& operator-=(gsl_Point& p, gsl_Vector const& v) noexcept;
