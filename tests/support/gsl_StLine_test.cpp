#include "support/gsl_StLine.h"

#include <gtest/gtest.h>

#include "support/gsl_Plane.h"

namespace {

TEST(GslStLineProjection, FootOfPerpendicularAndParameter) {
    gsl_StLine const line(gsl_Point(1, 1, 0), gsl_Point(3, 1, 0));
    EXPECT_EQ(line.Direction(), gsl_Vector(1, 0, 0));
    double parameter = 0.0;
    EXPECT_EQ(gsl_Point(4, 5, 6).ProjectOn(line, parameter), gsl_Point(4, 1, 0));
    EXPECT_EQ(parameter, 3.0);
    EXPECT_EQ(gsl_Point(0, 1, 0).ProjectOn(line, parameter), gsl_Point(0, 1, 0));
    EXPECT_EQ(parameter, -1.0);
}

TEST(GslStLineProjection, DegenerateLineProjectsOnItsOrigin) {
    gsl_StLine const line(gsl_Point(1, 2, 3), gsl_Point(1, 2, 3));
    EXPECT_FALSE(line.IsValid());
    double parameter = 7.0;
    EXPECT_EQ(gsl_Point(9, 9, 9).ProjectOn(line, parameter), gsl_Point(1, 2, 3));
    EXPECT_EQ(parameter, 0.0);
}

TEST(GslPlaneProjection, FootOfPerpendicularAndSignedDistance) {
    gsl_Plane const plane(gsl_Point(0, 0, 2), gsl_Vector(0, 0, -4));
    EXPECT_EQ(plane.Direction(), gsl_Vector(0, 0, -1));
    EXPECT_EQ(gsl_Point(3, 4, 5).ProjectOn(plane), gsl_Point(3, 4, 2));
    EXPECT_EQ(plane.SignedDistanceTo(gsl_Point(3, 4, 5)), -3.0);
}

TEST(GslPlaneThreePoints, NormalFollowsTheOrderAndCollinearIsDegenerate) {
    gsl_Plane const plane(gsl_Point(0, 0, 1), gsl_Point(1, 0, 1), gsl_Point(0, 1, 1));
    EXPECT_TRUE(plane.IsValid());
    EXPECT_EQ(plane.Normal(), gsl_Vector(0, 0, 1));
    EXPECT_EQ(plane.Origin(), gsl_Point(0, 0, 1));

    gsl_Plane const flat(gsl_Point(0, 0, 0), gsl_Point(1, 1, 1), gsl_Point(2, 2, 2));
    EXPECT_FALSE(flat.IsValid());
    EXPECT_EQ(gsl_Point(5, 6, 7).ProjectOn(flat), gsl_Point(0, 0, 0));
}

}  // namespace
