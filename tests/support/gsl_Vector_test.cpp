#include "support/gsl_Vector.h"

#include <gtest/gtest.h>

#include "support/gsl_Point.h"

namespace {

constexpr double kPi = 3.141592653589793;

TEST(GslVectorNormalize, ZeroVectorFailsAndStaysAsItWas) {
    gsl_Vector zero;
    EXPECT_FALSE(zero.Normalize());
    EXPECT_EQ(zero, gsl_Vector(0, 0, 0));

    gsl_Vector tiny(1e-11, 0, 0);
    EXPECT_FALSE(tiny.Normalize());
    EXPECT_EQ(tiny.X(), 1e-11);
}

TEST(GslVectorNormalize, GivesUnitVectorAndKnownMagnitude) {
    gsl_Vector v(0, 0, 2);
    EXPECT_TRUE(v.Normalize());
    EXPECT_EQ(v, gsl_Vector(0, 0, 1));
    EXPECT_EQ(v.CachedMagnitude(), 1.0);
}

TEST(GslVectorMagnitude, CacheIsForgottenOnEveryChange) {
    gsl_Vector v(3, 4, 0);
    EXPECT_EQ(v.CachedMagnitude(), gsl_Vector::kUnknownMagnitude);
    EXPECT_EQ(v.Magnitude(), 5.0);
    EXPECT_EQ(v.CachedMagnitude(), 5.0);
    v.SetZ(12);
    EXPECT_EQ(v.CachedMagnitude(), gsl_Vector::kUnknownMagnitude);
    EXPECT_EQ(v.Magnitude(), 13.0);
    v.Scale(-2.0);
    EXPECT_EQ(v.CachedMagnitude(), 26.0);
    v += gsl_Vector(1, 0, 0);
    EXPECT_EQ(v.CachedMagnitude(), gsl_Vector::kUnknownMagnitude);
}

TEST(GslVectorProducts, AngleWithIsExactAtTheEnds) {
    EXPECT_EQ(gsl_Vector(1, 0, 0).AngleWith(gsl_Vector(5, 0, 0)), 0.0);
    EXPECT_DOUBLE_EQ(gsl_Vector(1, 0, 0).AngleWith(gsl_Vector(-2, 0, 0)), kPi);
    EXPECT_DOUBLE_EQ(gsl_Vector(1, 0, 0).AngleWith(gsl_Vector(1, 1, 0)), kPi / 4);
    EXPECT_EQ(gsl_Vector().AngleWith(gsl_Vector(1, 0, 0)), 0.0);
    // Where acos(dot) would give 0, the tiny angle survives.
    EXPECT_NEAR(gsl_Vector(1, 0, 0).AngleWith(gsl_Vector(1, 1e-9, 0)), 1e-9, 1e-20);
}

TEST(GslVectorThreePoints, NormalOfTriangleAndZeroForCollinearPoints) {
    gsl_Vector const normal(gsl_Point(0, 0, 0), gsl_Point(2, 0, 0), gsl_Point(0, 3, 0));
    EXPECT_EQ(normal, gsl_Vector(0, 0, 6));

    // Collinear up to rounding, at any scale: exactly zero, so Normalize fails.
    for (double scale : {1e-6, 1.0, 1e6}) {
        gsl_Vector v(gsl_Point(0.1 * scale, 0.2 * scale, 0.3 * scale),
                     gsl_Point(0.3 * scale, 0.6 * scale, 0.9 * scale),
                     gsl_Point(0.7 * scale, 1.4 * scale, 2.1 * scale));
        EXPECT_TRUE(v.IsZero()) << scale;
        EXPECT_FALSE(v.Normalize());
    }
    gsl_Vector coincident(gsl_Point(1, 1, 1), gsl_Point(1, 1, 1), gsl_Point(2, 0, 0));
    EXPECT_FALSE(coincident.Normalize());
}

}  // namespace
