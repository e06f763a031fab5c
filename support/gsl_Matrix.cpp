#include "support/gsl_Matrix.h"

#include <cmath>

#include "support/ZELBasAssert.h"

namespace {

constexpr double kHalfPi = 1.5707963267948966;

// Sine and cosine, exact at multiples of a quarter turn: there sin and cos
// give 6.1e-17 instead of 0, which would leave a node rotated four times by
// 90 degrees a hair away from where it started.
void QuarterTurnSinCos(double radians, double& sine, double& cosine) {
    double const quarters = std::nearbyint(radians / kHalfPi);
    if (std::fabs(radians - quarters * kHalfPi) < gsl_Matrix::kAngularTolerance) {
        static constexpr double kSines[4] = {0.0, 1.0, 0.0, -1.0};
        static constexpr double kCosines[4] = {1.0, 0.0, -1.0, 0.0};
        int const turn = static_cast<int>(std::fmod(quarters, 4.0) + 4.0) % 4;
        sine = kSines[turn];
        cosine = kCosines[turn];
        return;
    }
    sine = std::sin(radians);
    cosine = std::cos(radians);
}

}  // namespace

gsl_Matrix gsl_Matrix::AxisRotation(gsl_Point const& point, gsl_Vector const& axis,
                                    double radians) {
    gsl_Matrix rotation;
    gsl_Vector u = axis;
    if (!u.Normalize()) return rotation;
    double s = 0.0;
    double c = 1.0;
    QuarterTurnSinCos(radians, s, c);
    double const ux = u.X(), uy = u.Y(), uz = u.Z();
    double const k = 1.0 - c;
    // Rodrigues: c I + s [u]x + (1 - c) u u^T.
    double const r[3][3] = {{ux * ux * k + c, ux * uy * k - s * uz, ux * uz * k + s * uy},
                            {uy * ux * k + s * uz, uy * uy * k + c, uy * uz * k - s * ux},
                            {uz * ux * k - s * uy, uz * uy * k + s * ux, uz * uz * k + c}};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) rotation.m_r[row][column] = r[row][column];
    }
    // The axis point stays put: t = p - R p.
    gsl_Point turned = point;
    rotation.updateIdentity();
    rotation.Transform(turned);
    rotation.SetTranslation(point - turned);
    return rotation;
}

gsl_Matrix gsl_Matrix::Translation(gsl_Vector const& offset) {
    gsl_Matrix translation;
    translation.SetTranslation(offset);
    return translation;
}

void gsl_Matrix::FillIdentity() noexcept {
    *this = gsl_Matrix();
}

double gsl_Matrix::Element(int row, int column) const {
    ZELBAS_ASSERT(row >= 0 && row < 4 && column >= 0 && column < 4);
    if (row == 3) return column == 3 ? 1.0 : 0.0;
    return column == 3 ? m_t[row] : m_r[row][column];
}

void gsl_Matrix::SetElement(int row, int column, double value) {
    ZELBAS_ASSERT(row >= 0 && row < 3 && column >= 0 && column < 4);
    (column == 3 ? m_t[row] : m_r[row][column]) = value;
    updateIdentity();
}

void gsl_Matrix::SetTranslation(gsl_Vector const& offset) {
    SetTranslation(offset.X(), offset.Y(), offset.Z());
}

void gsl_Matrix::SetTranslation(gsl_Point const& origin) {
    SetTranslation(origin.x, origin.y, origin.z);
}

void gsl_Matrix::SetTranslation(double x, double y, double z) {
    m_t[0] = x;
    m_t[1] = y;
    m_t[2] = z;
    updateIdentity();
}

gsl_Vector gsl_Matrix::RotationColumn(int column) const {
    ZELBAS_ASSERT(column >= 0 && column < 3);
    return {m_r[0][column], m_r[1][column], m_r[2][column]};
}

void gsl_Matrix::SetRotationVectors(gsl_Vector const& x, gsl_Vector const& y, gsl_Vector const& z) {
    gsl_Vector const* const axes[3] = {&x, &y, &z};
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 3; ++row) m_r[row][column] = (*axes[column])[row];
    }
    updateIdentity();
}

void gsl_Matrix::Transform(gsl_Point& point) const {
    if (m_isIdentity) return;
    gsl_Vector moved(point);
    RotateAndTransform(moved);
    point = moved.AsPoint();
}

void gsl_Matrix::Transform(gsl_Vector& vector) const {
    if (m_isIdentity) return;
    double const v[3] = {vector.X(), vector.Y(), vector.Z()};
    double turned[3];
    for (int row = 0; row < 3; ++row) {
        turned[row] = m_r[row][0] * v[0] + m_r[row][1] * v[1] + m_r[row][2] * v[2];
    }
    vector.Set(turned[0], turned[1], turned[2]);
}

void gsl_Matrix::RotateAndTransform(gsl_Vector& vector) const {
    Transform(vector);
    vector += GetTranslation();
}

void gsl_Matrix::Concatenate(gsl_Matrix const& after) {
    if (after.m_isIdentity) return;
    if (m_isIdentity) {
        *this = after;
        return;
    }
    // after * this: R' = Ra R, t' = Ra t + ta.
    gsl_Matrix combined;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            combined.m_r[row][column] = after.m_r[row][0] * m_r[0][column] +
                                        after.m_r[row][1] * m_r[1][column] +
                                        after.m_r[row][2] * m_r[2][column];
        }
        combined.m_t[row] = after.m_r[row][0] * m_t[0] + after.m_r[row][1] * m_t[1] +
                            after.m_r[row][2] * m_t[2] + after.m_t[row];
    }
    combined.updateIdentity();
    *this = combined;
}

void gsl_Matrix::InverseRigidTransform(gsl_Matrix& inverse) const {
    gsl_Matrix result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) result.m_r[row][column] = m_r[column][row];
    }
    // -R^T t
    for (int row = 0; row < 3; ++row) {
        result.m_t[row] = -(result.m_r[row][0] * m_t[0] + result.m_r[row][1] * m_t[1] +
                            result.m_r[row][2] * m_t[2]);
    }
    result.updateIdentity();
    inverse = result;  // through a temporary, so that `inverse` may be *this
}

double gsl_Matrix::GetAxisRotation(gsl_Vector& axis) const {
    // The skew part of R is sin(angle) [u]x, the symmetric part
    // cos(angle) I + (1 - cos(angle)) u u^T.
    gsl_Vector const skew(m_r[2][1] - m_r[1][2], m_r[0][2] - m_r[2][0], m_r[1][0] - m_r[0][1]);
    double const sine = skew.Magnitude() / 2.0;
    double const cosine = (m_r[0][0] + m_r[1][1] + m_r[2][2] - 1.0) / 2.0;
    double const angle = std::atan2(sine, cosine);
    if (sine == 0.0 && cosine > 0.0) {
        axis.Set(0.0, 0.0, 1.0);
        return 0.0;
    }
    if (cosine >= 0.0) {
        axis = skew;
        axis.Normalize();
        return angle;
    }
    // Near half a turn the skew part vanishes and can't give the axis with
    // any accuracy; the symmetric part can, up to its sign, which the skew
    // part still tells.
    double const k = 1.0 - cosine;
    int largest = 0;
    for (int i = 1; i < 3; ++i) {
        if (m_r[i][i] > m_r[largest][largest]) largest = i;
    }
    double u[3];
    u[largest] = std::sqrt(std::fmax((m_r[largest][largest] - cosine) / k, 0.0));
    for (int i = 0; i < 3; ++i) {
        if (i != largest) u[i] = (m_r[largest][i] + m_r[i][largest]) / (2.0 * k * u[largest]);
    }
    axis.Set(u[0], u[1], u[2]);
    if (axis.DotProduct(skew) < 0.0) axis.Negate();
    axis.Normalize();
    return angle;
}

double gsl_Matrix::DecomposeAsTranslationThenRotation(gsl_Vector& translation,
                                                      gsl_Vector& axis) const {
    // R (p + T) = R p + t gives T = R^T t.
    gsl_Matrix inverse;
    InverseRigidTransform(inverse);
    translation = -inverse.GetTranslation();
    return GetAxisRotation(axis);
}

bool operator==(gsl_Matrix const& a, gsl_Matrix const& b) noexcept {
    for (int row = 0; row < 3; ++row) {
        if (a.m_t[row] != b.m_t[row]) return false;
        for (int column = 0; column < 3; ++column) {
            if (a.m_r[row][column] != b.m_r[row][column]) return false;
        }
    }
    return true;
}

void gsl_Matrix::updateIdentity() noexcept {
    m_isIdentity = *this == gsl_Matrix();
}
