#include "mesh/inp_Coord.h"

#include <algorithm>
#include <cmath>

#include "support/gsl_Matrix.h"
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

namespace {

constexpr double kPi = 3.141592653589793;
// The spacing of doubles at 1.0: a coordinate below the largest one times
// this is lost in rounding anyway.
constexpr double kMachineEpsilon = 2.220446049250313e-16;

double DegreesToRadians(double degrees) {
    return degrees * kPi / 180.0;
}

}  // namespace

void inp_Coord::CylindricalConversion(double& r, double& theta) {
    double const radians = DegreesToRadians(theta);
    double const radius = r;
    r = radius * std::cos(radians);
    theta = radius * std::sin(radians);
}

void inp_Coord::SphericalConversion(double& r, double& theta, double& phi) {
    double const azimuth = DegreesToRadians(theta);
    double const elevation = DegreesToRadians(phi);
    double const radius = r;
    r = radius * std::cos(elevation) * std::cos(azimuth);
    theta = radius * std::cos(elevation) * std::sin(azimuth);
    phi = radius * std::sin(elevation);
}

void inp_Coord::DifferentialCylindricalConversion(double r, double theta, double& dr,
                                                  double& dtheta) {
    double baseX = r, baseY = theta;
    CylindricalConversion(baseX, baseY);
    double movedX = r + dr, movedY = theta + dtheta;
    CylindricalConversion(movedX, movedY);
    dr = movedX - baseX;
    dtheta = movedY - baseY;
}

void inp_Coord::DifferentialSphericalConversion(double r, double theta, double phi, double& dr,
                                                double& dtheta, double& dphi) {
    double baseX = r, baseY = theta, baseZ = phi;
    SphericalConversion(baseX, baseY, baseZ);
    double movedX = r + dr, movedY = theta + dtheta, movedZ = phi + dphi;
    SphericalConversion(movedX, movedY, movedZ);
    dr = movedX - baseX;
    dtheta = movedY - baseY;
    dphi = movedZ - baseZ;
}

void inp_Coord::Cylindrical2Rectangular() {
    CylindricalConversion(x, y);
    CylindricalConversion(nx, ny);
}

void inp_Coord::Spherical2Rectangular() {
    SphericalConversion(x, y, z);
    SphericalConversion(nx, ny, nz);
}

void inp_Coord::ZeroSmallerThanTolerance() {
    double const threshold = std::max({std::fabs(x), std::fabs(y), std::fabs(z)}) * kMachineEpsilon;
    for (double* value : {&x, &y, &z}) {
        if (std::fabs(*value) < threshold) *value = 0.0;
    }
}

void inp_Coord::NormalizePlusRotate(gsl_Matrix const& rotation) {
    gsl_Vector normal = Normal();
    if (!normal.Normalize()) {
        nx = ny = nz = 0.0;
        return;
    }
    if (!rotation.IsIdentity()) rotation.Transform(normal);
    SetNormal(normal);
}

void inp_Coord::AttachNormalComponents(double pnx, double pny, double pnz) {
    gsl_Vector normal(pnx, pny, pnz);
    if (normal.Normalize()) SetNormal(normal);
}

void inp_Coord::Transform(gsl_Matrix const& matrix) {
    if (!defined || matrix.IsIdentity()) return;
    gsl_Point point = Point();
    matrix.Transform(point);
    SetPoint(point);
    NormalizePlusRotate(matrix);
}

gsl_Point inp_Coord::Point() const {
    return {x, y, z};
}

void inp_Coord::SetPoint(gsl_Point const& point) {
    x = point.x;
    y = point.y;
    z = point.z;
}

gsl_Vector inp_Coord::Normal() const {
    return {nx, ny, nz};
}

void inp_Coord::SetNormal(gsl_Vector const& normal) {
    nx = normal.X();
    ny = normal.Y();
    nz = normal.Z();
}
