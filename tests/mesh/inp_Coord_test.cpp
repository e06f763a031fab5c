#include "mesh/inp_Coord.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/gsl_Matrix.h"

namespace {

constexpr double kPi = 3.141592653589793;

gsl_Matrix QuarterTurnAboutX() {
    return gsl_Matrix::AxisRotation(gsl_Point(), gsl_Vector(1, 0, 0), kPi / 2);
}

TEST(InpCoordConversion, CylindricalAndSphericalUseDegrees) {
    double r = 1.0, theta = 90.0;
    inp_Coord::CylindricalConversion(r, theta);
    EXPECT_EQ(r, std::cos(kPi / 2));  // 6.1e-17: not cleaned here
    EXPECT_EQ(theta, 1.0);

    double sr = 2.0, st = 90.0, sp = 30.0;
    inp_Coord::SphericalConversion(sr, st, sp);
    EXPECT_NEAR(sr, 0.0, 1e-15);
    EXPECT_NEAR(st, std::sqrt(3.0), 1e-15);
    EXPECT_NEAR(sp, 1.0, 1e-15);

    // The normal is a pair of its own; z and nz stay.
    inp_Coord c(2, 180, 5, 3, 90, 7);
    c.Cylindrical2Rectangular();
    EXPECT_NEAR(c.x, -2.0, 1e-15);
    EXPECT_NEAR(c.nx, 0.0, 1e-15);
    EXPECT_NEAR(c.ny, 3.0, 1e-15);
    EXPECT_EQ(c.z, 5.0);
    EXPECT_EQ(c.nz, 7.0);
}

TEST(InpCoordConversion, DifferentialFormsKeepTheBasePointFixed) {
    double dr = 0.0, dtheta = 90.0;
    inp_Coord::DifferentialCylindricalConversion(1.0, 0.0, dr, dtheta);
    EXPECT_NEAR(dr, -1.0, 1e-15);
    EXPECT_NEAR(dtheta, 1.0, 1e-15);

    double sdr = 1.0, sdt = 0.0, sdp = 90.0;
    inp_Coord::DifferentialSphericalConversion(1.0, 0.0, 0.0, sdr, sdt, sdp);
    EXPECT_NEAR(sdr, -1.0, 1e-15);
    EXPECT_NEAR(sdt, 0.0, 1e-15);
    EXPECT_NEAR(sdp, 2.0, 1e-15);
}

TEST(InpCoordTolerance, OnlyNoiseBesideTheLargestValueIsCleaned) {
    inp_Coord c(1, 1e-17, 0, 1e-30, 0, 0);
    c.ZeroSmallerThanTolerance();
    EXPECT_EQ(c, inp_Coord(1, 0, 0, 1e-30, 0, 0));

    inp_Coord negative(-1.2e-17, 1, 1e-15);
    negative.ZeroSmallerThanTolerance();
    EXPECT_EQ(negative, inp_Coord(0, 1, 1e-15));

    inp_Coord origin;
    origin.ZeroSmallerThanTolerance();
    EXPECT_EQ(origin, inp_Coord());

    inp_Coord small(1e-20, 1e-37, 0);
    small.ZeroSmallerThanTolerance();
    EXPECT_EQ(small, inp_Coord(1e-20, 0, 0));
}

TEST(InpCoordNormal, NormalizePlusRotateGivesUnitOrNone) {
    inp_Coord none(1, 2, 3);
    none.NormalizePlusRotate(QuarterTurnAboutX());
    EXPECT_FALSE(none.HasNormal());

    inp_Coord plain(0, 0, 0, 0, 0, 2);
    plain.NormalizePlusRotate(gsl_Matrix());
    EXPECT_EQ(plain.Normal(), gsl_Vector(0, 0, 1));

    inp_Coord turned(0, 0, 0, 0, 0, 2);
    turned.NormalizePlusRotate(QuarterTurnAboutX());
    EXPECT_EQ(turned.Normal(), gsl_Vector(0, -1, 0));
}

TEST(InpCoordNormal, AttachKeepsTheOldNormalWhenGivenZero) {
    inp_Coord c(0, 0, 0, 0, 1, 0);
    c.AttachNormalComponents(0, 0, 0);
    EXPECT_EQ(c.Normal(), gsl_Vector(0, 1, 0));
    c.AttachNormalComponents(3, 0, 4);
    EXPECT_EQ(c.Normal(), gsl_Vector(0.6, 0, 0.8));
}

TEST(InpCoordTransform, MovesPointAndTurnsNormalOfDefinedRecordsOnly) {
    gsl_Matrix m = QuarterTurnAboutX();
    m.Concatenate(gsl_Matrix::Translation(gsl_Vector(10, 0, 0)));
    inp_Coord c(0, 1, 0, 0, 0, 3);
    c.Transform(m);
    EXPECT_EQ(c, inp_Coord(10, 0, 1, 0, -1, 0));

    inp_Coord undefined(0, 1, 0, 0, 0, 3);
    undefined.defined = false;
    undefined.Transform(m);
    EXPECT_EQ(undefined.Point(), gsl_Point(0, 1, 0));
    EXPECT_EQ(undefined.nz, 3.0);

    inp_Coord unnormalised(0, 1, 0, 0, 0, 3);
    unnormalised.Transform(gsl_Matrix());
    EXPECT_EQ(unnormalised.nz, 3.0);  // identity: nothing at all happens
}

}  // namespace
