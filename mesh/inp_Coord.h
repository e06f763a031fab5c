#pragma once
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

class gsl_Matrix;

// One node: a flag, a position and an optional nodal normal. A plain value of
// fixed small size, since a model holds millions of them. A normal of
// (0, 0, 0) means that the node has none.
//
// Angles of local systems are given in degrees.
class inp_Coord {
  public:
    inp_Coord() noexcept = default;
    inp_Coord(double px, double py, double pz) noexcept : x(px), y(py), z(pz) {}
    inp_Coord(double px, double py, double pz, double pnx, double pny, double pnz) noexcept
        : x(px), y(py), z(pz), nx(pnx), ny(pny), nz(pnz) {}

    // (r, theta) becomes (r cos(theta), r sin(theta)).
    static void CylindricalConversion(double& r, double& theta);
    // (r, theta, phi) becomes (r cos(phi) cos(theta), r cos(phi) sin(theta),
    // r sin(phi)).
    static void SphericalConversion(double& r, double& theta, double& phi);
    // A displacement given in a local system at a base point that stays put:
    // (dr, dtheta) becomes the Cartesian difference between the conversions
    // of (r + dr, theta + dtheta) and (r, theta).
    static void DifferentialCylindricalConversion(double r, double theta, double& dr,
                                                  double& dtheta);
    static void DifferentialSphericalConversion(double r, double theta, double phi, double& dr,
                                                double& dtheta, double& dphi);

    // The position and the normal, read as cylindrical values, become
    // Cartesian; each of them converts as its own (r, theta) pair, z and nz
    // stay.
    void Cylindrical2Rectangular();
    // The same for spherical triples.
    void Spherical2Rectangular();

    // Coordinates that are mere rounding noise beside the largest one become
    // exactly zero. The normal is not looked at.
    void ZeroSmallerThanTolerance();

    // Makes the normal a unit vector turned by the matrix. A normal that can't
    // be normalised becomes (0, 0, 0), i.e. none.
    void NormalizePlusRotate(gsl_Matrix const& rotation);
    // Stores the given normal, normalised; one that can't be normalised leaves
    // the old normal in place.
    void AttachNormalComponents(double pnx, double pny, double pnz);

    // Moves the point by the matrix and turns the normal with it. A record
    // that is not defined, or an identity matrix, leaves the record as it is.
    void Transform(gsl_Matrix const& matrix);

    gsl_Point Point() const;
    void SetPoint(gsl_Point const& point);
    gsl_Vector Normal() const;
    void SetNormal(gsl_Vector const& normal);
    bool HasNormal() const noexcept { return nx != 0.0 || ny != 0.0 || nz != 0.0; }

    friend bool operator==(inp_Coord const&, inp_Coord const&) = default;

    bool defined = true;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double nx = 0.0;
    double ny = 0.0;
    double nz = 0.0;
};
