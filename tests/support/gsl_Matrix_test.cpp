#include "support/gsl_Matrix.h"

#include <gtest/gtest.h>

#include "support/ZELBasException.h"

namespace {

constexpr double kPi = 3.141592653589793;

void ExpectNear(gsl_Point const& actual, gsl_Point const& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

void ExpectNear(gsl_Vector const& actual, gsl_Vector const& expected) {
    ExpectNear(actual.AsPoint(), expected.AsPoint());
}

gsl_Point Moved(gsl_Matrix const& m, gsl_Point p) {
    m.Transform(p);
    return p;
}

TEST(GslMatrixIdentity, TrackedThroughEveryChange) {
    gsl_Matrix m;
    EXPECT_TRUE(m.IsIdentity());
    m.SetTranslation(1, 0, 0);
    EXPECT_FALSE(m.IsIdentity());
    m.SetTranslation(0, 0, 0);
    EXPECT_TRUE(m.IsIdentity());
    m.SetElement(0, 1, 0.5);
    EXPECT_FALSE(m.IsIdentity());
    m.FillIdentity();
    EXPECT_TRUE(m.IsIdentity());
    EXPECT_TRUE(
        gsl_Matrix::AxisRotation(gsl_Point(1, 2, 3), gsl_Vector(0, 0, 1), 0.0).IsIdentity());
}

TEST(GslMatrixAxisRotation, QuarterTurnAboutZIsExact) {
    gsl_Matrix const r = gsl_Matrix::AxisRotation(gsl_Point(), gsl_Vector(0, 0, 5), kPi / 2);
    EXPECT_EQ(Moved(r, gsl_Point(1, 0, 7)), gsl_Point(0, 1, 7));
    gsl_Vector v(0, 1, 0);
    r.Transform(v);
    EXPECT_EQ(v, gsl_Vector(-1, 0, 0));

    // Four quarter turns bring a point back exactly.
    gsl_Matrix total;
    for (int i = 0; i < 4; ++i) total.Concatenate(r);
    EXPECT_TRUE(total.IsIdentity());
}

TEST(GslMatrixAxisRotation, AxisThroughAPointKeepsThatPoint) {
    gsl_Point const pivot(1, 1, 0);
    gsl_Matrix const r = gsl_Matrix::AxisRotation(pivot, gsl_Vector(0, 0, 1), kPi / 2);
    EXPECT_EQ(Moved(r, pivot), pivot);
    EXPECT_EQ(Moved(r, gsl_Point(2, 1, 0)), gsl_Point(1, 2, 0));

    gsl_Matrix const r120 = gsl_Matrix::AxisRotation(gsl_Point(), gsl_Vector(1, 1, 1), 2 * kPi / 3);
    ExpectNear(Moved(r120, gsl_Point(1, 0, 0)), gsl_Point(0, 1, 0));
}

TEST(GslMatrixAxisRotation, AxisTooShortGivesIdentity) {
    EXPECT_TRUE(gsl_Matrix::AxisRotation(gsl_Point(1, 2, 3), gsl_Vector(), 1.0).IsIdentity());
}

TEST(GslMatrixConcatenate, ArgumentActsAfterTheMatrix) {
    gsl_Matrix m = gsl_Matrix::Translation(gsl_Vector(1, 0, 0));
    m.Concatenate(gsl_Matrix::AxisRotation(gsl_Point(), gsl_Vector(0, 0, 1), kPi / 2));
    // Translate (0,0,0) to (1,0,0), then turn it to (0,1,0).
    EXPECT_EQ(Moved(m, gsl_Point()), gsl_Point(0, 1, 0));
}

TEST(GslMatrixInverse, UndoesARigidTransformAndMayOverwriteItself) {
    gsl_Matrix m = gsl_Matrix::AxisRotation(gsl_Point(1, -2, 3), gsl_Vector(1, 2, 2), 0.7);
    m.Concatenate(gsl_Matrix::Translation(gsl_Vector(4, 5, 6)));
    gsl_Matrix inverse;
    m.InverseRigidTransform(inverse);
    gsl_Point const p(0.3, -7, 2);
    ExpectNear(Moved(inverse, Moved(m, p)), p);

    gsl_Matrix roundTrip = m;
    roundTrip.Concatenate(inverse);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            EXPECT_NEAR(roundTrip.Element(row, column), row == column ? 1.0 : 0.0, 1e-12);
        }
    }
    m.InverseRigidTransform(m);
    EXPECT_EQ(m, inverse);
}

TEST(GslMatrixLocalSystem, RotationVectorsAreColumns) {
    gsl_Matrix m;
    m.SetRotationVectors(gsl_Vector(0, 1, 0), gsl_Vector(-1, 0, 0), gsl_Vector(0, 0, 1));
    m.SetTranslation(gsl_Point(5, 0, 0));
    EXPECT_EQ(Moved(m, gsl_Point(1, 0, 0)), gsl_Point(5, 1, 0));
    gsl_Vector v(1, 0, 0);
    m.Transform(v);  // a direction is only turned
    EXPECT_EQ(v, gsl_Vector(0, 1, 0));
    m.RotateAndTransform(v);
    EXPECT_EQ(v, gsl_Vector(4, 0, 0));
    EXPECT_EQ(m.RotationColumn(1), gsl_Vector(-1, 0, 0));
    EXPECT_EQ(m.Element(0, 3), 5.0);
    EXPECT_EQ(m.Element(3, 3), 1.0);
    EXPECT_THROW(m.Element(4, 0), ZELBasAssertException);
}

TEST(GslMatrixDecompose, AxisAngleAndTranslationRebuildTheMatrix) {
    for (double angle : {0.0, 0.3, kPi / 2, 3.0, kPi}) {
        gsl_Matrix m = gsl_Matrix::Translation(gsl_Vector(1, 2, 3));
        m.Concatenate(gsl_Matrix::AxisRotation(gsl_Point(0, 1, 0), gsl_Vector(2, -1, 2), angle));
        gsl_Vector translation, axis;
        double const found = m.DecomposeAsTranslationThenRotation(translation, axis);
        EXPECT_NEAR(found, angle, 1e-12);
        gsl_Matrix rebuilt = gsl_Matrix::Translation(translation);
        rebuilt.Concatenate(gsl_Matrix::AxisRotation(gsl_Point(), axis, found));
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column) {
                EXPECT_NEAR(rebuilt.Element(row, column), m.Element(row, column), 1e-12) << angle;
            }
        }
    }
    gsl_Vector axis;
    EXPECT_EQ(gsl_Matrix().GetAxisRotation(axis), 0.0);
    ExpectNear(axis, gsl_Vector(0, 0, 1));
}

}  // namespace
