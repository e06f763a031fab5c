#pragma once
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

// A rigid transform: a rotation followed by a translation, the 4 by 4 matrix
//
//     | R t |
//     | 0 1 |
//
// acting on column vectors, so a point p becomes R p + t and a vector v
// becomes R v. The columns of R are the images of the global axes: the axes
// of a local system expressed globally. Only the 3 by 4 upper part is stored.
//
// Whether the matrix is exactly the identity is known at all times without a
// look at the elements: nodes are read through IsIdentity by the million, and
// most parts are never moved.
class gsl_Matrix {
  public:
    // Below this an angle in radians counts as zero: AxisRotation rounds sines
    // and cosines of multiples of 90 degrees by it.
    static constexpr double kAngularTolerance = 1e-12;

    // The identity.
    gsl_Matrix() noexcept = default;

    // The rotation by `radians` about the axis through `point` along `axis`,
    // right-handed: looking against the axis the turn is counter-clockwise.
    // The axis need not be a unit vector. An axis too short to normalise
    // gives the identity. Angles within kAngularTolerance of a multiple of 90
    // degrees give exact zeros and ones, so that four quarter turns come back
    // to the start exactly.
    static gsl_Matrix AxisRotation(gsl_Point const& point, gsl_Vector const& axis, double radians);
    static gsl_Matrix Translation(gsl_Vector const& offset);

    // Exactly the identity (no tolerance).
    bool IsIdentity() const noexcept { return m_isIdentity; }
    void FillIdentity() noexcept;

    // The element at (row, column) of the 4 by 4 form; row 3 is (0, 0, 0, 1)
    // and column 3 is the translation. Indices must be 0 to 3.
    double Element(int row, int column) const;
    // Sets an element of rows 0 to 2, columns 0 to 3. Nothing checks that the
    // rotation stays orthonormal: that is the caller's business.
    void SetElement(int row, int column, double value);

    gsl_Vector GetTranslation() const { return {m_t[0], m_t[1], m_t[2]}; }
    void SetTranslation(gsl_Vector const& offset);
    void SetTranslation(gsl_Point const& origin);
    void SetTranslation(double x, double y, double z);
    // Column 0, 1 or 2 of the rotation: the image of the global x, y or z axis.
    gsl_Vector RotationColumn(int column) const;
    // The rotation whose columns are the given axes of a local system: a point
    // given locally as (a, b, c) lies at a x + b y + c z (+ translation)
    // globally. The translation is kept.
    void SetRotationVectors(gsl_Vector const& x, gsl_Vector const& y, gsl_Vector const& z);

    // Moves the point: R p + t.
    void Transform(gsl_Point& point) const;
    // Turns the vector: R v. The translation does not act on directions.
    void Transform(gsl_Vector& vector) const;
    // Treats the vector as the position of its tip: R v + t.
    void RotateAndTransform(gsl_Vector& vector) const;

    // This transform followed by `after`: afterwards Transform(p) gives what
    // Transform(p) and then after.Transform(p) gave before.
    void Concatenate(gsl_Matrix const& after);
    // Writes into `inverse` the transform that undoes this one: the rotation
    // transposed, and the translation turned back. Valid for rigid
    // transforms only.
    void InverseRigidTransform(gsl_Matrix& inverse) const;

    // The rotation angle in radians, 0 to pi, and its unit axis through the
    // origin. A rotation by nothing gives 0 and the z axis.
    double GetAxisRotation(gsl_Vector& axis) const;
    // Splits the transform into a translation done first and a rotation about
    // an axis through the origin done after it: the form in which an instance
    // is positioned in a deck. Returns the angle in radians, 0 to pi.
    double DecomposeAsTranslationThenRotation(gsl_Vector& translation, gsl_Vector& axis) const;

    // Exact comparison of the elements.
    friend bool operator==(gsl_Matrix const& a, gsl_Matrix const& b) noexcept;

  private:
    void updateIdentity() noexcept;

    double m_r[3][3] = {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
    double m_t[3] = {0.0, 0.0, 0.0};
    bool m_isIdentity = true;
};
