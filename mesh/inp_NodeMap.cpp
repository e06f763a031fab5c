// *NMAP of inp_NodeVisitor: the nodes of a set are moved in place through a
// mapping given by a TYPE and a few points. The coordinates of a node are
// read as values in a local system (rectangular, cylindrical, spherical,
// toroidal or skew) and become global ones; TRANSLATION, ROTATION and SCALE
// move them rigidly or stretch them.
//
// *NMAP acts only in a part or a flat model: the nodes are mapped where they
// are stored, and a moved instance is refused.

#include <cmath>

#include "mesh/inp_NodeVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/atr_String.h"
#include "support/inpM_Set.h"

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

int valuesOnRow(inp_DataArray const& data, int row) {
    if (row < 0 || row >= data.Rows()) return 0;
    int count = 0;
    for (int col = 0; col < data.Cols(row); ++col)
        if (data.HasValue(row, col)) ++count;
    return count;
}

// A scale factor; missing or 0 leaves the default 1.0.
double factorAt(inp_DataArray const& data, int row, int col) {
    double const value = inp_NodeVisitor::NumberAt(data, row, col);
    return value == 0.0 ? 1.0 : value;
}

enum class MapType {
    Translation,
    Scale,
    Rotation,
    Rectangular,
    Cylindrical,
    Spherical,
    Toroidal,
    Diamond,
    Unknown
};

MapType mapTypeOf(cow_String const& type) {
    if (type == "TRANSLATION") return MapType::Translation;
    if (type == "SCALE") return MapType::Scale;
    if (type == "ROTATION") return MapType::Rotation;
    if (type == "RECTANGULAR") return MapType::Rectangular;
    if (type == "CYLINDRICAL") return MapType::Cylindrical;
    if (type == "SPHERICAL") return MapType::Spherical;
    if (type == "TOROIDAL") return MapType::Toroidal;
    if (type == "DIAMOND") return MapType::Diamond;
    return MapType::Unknown;
}

}  // namespace

void inp_NodeVisitor::VisitNmap(inp_Keyword& keyword) {
    auto error = [&](atr_String const& text) {
        AddError(inp_Utils::MessageInKeyword(keyword, text));
    };
    if (!m_instanceTransform.IsIdentity()) {
        error(
            atr("The part instance has undergone translation and/or rotation. This implies *NMAP "
                "is used in a v6 input file.  This is not allowed. "));
        return;
    }
    if (!keyword.HasParameter("nset") || !keyword.HasParameter("type")) {
        error(atr("Both NSET and TYPE are required parameters."));
        return;
    }
    cow_String const typeName = keyword.GetParameterAsString("type", "");
    if (typeName == "BLENDED") {
        // Blended mappings are never carried out; only the compatible mode
        // says so.
        if (m_atelierCompatible) error(atr("*NMAP with TYPE=BLENDED is not supported."));
        return;
    }
    cow_String const setName = keyword.GetParameterAsString("nset", "");
    cow_String const scope = CurrentName();
    // The set is sought in the scope only (the top level of a flat model).
    bool const exists =
        scope.IsEmpty() ? m_setMap.HasSet(setName) : m_setMap.HasNestedSet(scope, setName);
    if (!exists) {
        error(atr("Node set %s does not exist.", setName));
        return;
    }
    inp_CoordMap* const target = targetMap(keyword);
    if (target == nullptr) return;
    inpM_SetHandle const& set = scope.IsEmpty() ? m_setMap.ConstGetSet(setName)
                                                : m_setMap.ConstGetNestedSet(scope, setName);
    cow_List<int> const ids = set->ConstGetIdList();

    MapType const type = mapTypeOf(typeName);
    inp_DataArray const& data = keyword.Data();
    bool const byNodes = keyword.GetParameterAsString("definition", "") == "NODES";
    // The two points of a data line: coordinates in columns 0-2 and 3-5, or
    // node labels in columns 0 and 1. Missing ones are the origin.
    auto first = [&](int row) {
        return byNodes ? ReadNodeFromKeywordData(keyword, scope, row, 0)
                       : ReadPointFromKeywordData(keyword, row, 0);
    };
    auto second = [&](int row) {
        return byNodes ? ReadNodeFromKeywordData(keyword, scope, row, 1)
                       : ReadPointFromKeywordData(keyword, row, 3);
    };

    // Scale factors: line 2 for SCALE, line 3 for the local systems; the
    // other types take none.
    double scale[3] = {1.0, 1.0, 1.0};
    int const scaleRow =
        type == MapType::Scale ? 1
        : (type == MapType::Translation || type == MapType::Rotation || type == MapType::Unknown)
            ? -1
            : 2;
    for (int i = 0; i < 3; ++i) scale[i] = factorAt(data, scaleRow, i);

    gsl_Point const a = first(0);
    gsl_Point const b = second(0);

    if (type == MapType::Scale) {
        for (int id : ids) {
            if (!target->IsMember(id)) continue;
            inp_Coord record = target->ConstGet(id);
            record.x = (record.x - a.x) * scale[0] + a.x;
            record.y = (record.y - a.y) * scale[1] + a.y;
            record.z = (record.z - a.z) * scale[2] + a.z;
            target->Insert(id, record);
        }
        return;
    }

    // The local axes, the global ones until set up; axis faults are errors
    // but the mapping goes on with what is there.
    gsl_Matrix map;
    gsl_Vector x(1.0, 0.0, 0.0);
    gsl_Vector y(0.0, 1.0, 0.0);
    gsl_Vector z(0.0, 0.0, 1.0);
    gsl_Vector e1;
    gsl_Vector e2;
    gsl_Vector e3;
    double majorRadius = 0.0;
    bool localSystem = true;
    switch (type) {
        case MapType::Translation: {
            // A and B give only the direction; the distance is the length
            // of line 2, 1.0 by default. The matrix is this translation
            // alone: unlike the local systems it does not take A as its
            // origin, so that A = (0, 0, 0), B = (3, 0, 0) moves by (1, 0, 0).
            gsl_Vector d(a, b);
            if (d.Normalize()) {
                double const length = data.HasValue(1, 0) ? NumberAt(data, 1, 0) : 1.0;
                d.Scale(length);
            }
            map.SetTranslation(d);
            localSystem = false;
            break;
        }
        case MapType::Rotation: {
            gsl_Vector axis(a, b);
            if (!axis.Normalize()) error(atr("Point B is too close to point A. "));
            map = gsl_Matrix::AxisRotation(a, axis, NumberAt(data, 2, 0) * kDegree);
            localSystem = false;
            break;
        }
        case MapType::Cylindrical:
        case MapType::Spherical: {
            z = gsl_Vector(a, b);
            if (!z.Normalize())
                error(atr("Point B is too close to point A so the local z-axis is ill-defined. "));
            x = gsl_Vector(a, first(1));
            if (!x.Normalize())
                error(atr("Point C is too close to point A so the local x-axis is ill-defined. "));
            y = z.CrossProduct(x);
            if (!y.Normalize()) error(atr("The local x and z axes are parallel. "));
            x = y.CrossProduct(z);
            break;
        }
        case MapType::Rectangular:
        case MapType::Toroidal: {
            // Fewer than four values on line 1 leave the mapping and the
            // major radius as they are: identity and 0. By node labels line 1
            // holds two values, so these types then map by the global axes.
            if (valuesOnRow(data, 0) < 4) {
                localSystem = false;
                break;
            }
            x = gsl_Vector(a, b);
            if (type == MapType::Toroidal) majorRadius = x.ComputeMagnitude();
            if (!x.Normalize())
                error(atr("The x-axis of the local coordinate system is not defined."));
            if (!data.HasValue(1, 0)) {
                z = gsl_Vector(0.0, 0.0, 1.0);
                y = z.CrossProduct(x);
                if (!y.Normalize())
                    error(
                        atr("The x-axis and the z-axis of the local coordinate system are "
                            "parallel or almost parallel."));
                x = y.CrossProduct(z);
            } else {
                y = gsl_Vector(a, first(1));
                if (!y.Normalize())
                    error(atr("The y-axis of the local coordinate system is not defined."));
                z = x.CrossProduct(y);
                if (!z.Normalize())
                    error(
                        atr("The x-axis and the y-axis of the local coordinate system are "
                            "parallel or almost parallel."));
                y = z.CrossProduct(x);
            }
            break;
        }
        case MapType::Diamond: {
            // Skew axes: they map the values themselves, the matrix only
            // moves the result to A.
            e1 = gsl_Vector(a, b);
            if (!e1.Normalize()) error(atr("Point B is too close to point A. "));
            e2 = gsl_Vector(a, first(1));
            if (!e2.Normalize()) error(atr("Point C is too close to point A. "));
            e3 = gsl_Vector(a, second(1));
            if (!e3.Normalize()) error(atr("Point D is too close to point A. "));
            break;
        }
        case MapType::Scale:
        case MapType::Unknown:
            // An unknown TYPE leaves the nodes where they are (normals are
            // still made unit vectors).
            localSystem = false;
            break;
    }
    if (localSystem) {
        map.SetRotationVectors(x, y, z);
        map.SetTranslation(a);
    }

    for (int id : ids) {
        if (!target->IsMember(id)) continue;
        inp_Coord const old = target->ConstGet(id);
        gsl_Vector n = old.Normal();
        if (!n.Normalize()) n = gsl_Vector();
        double q1 = old.x * scale[0];
        double q2 = old.y * scale[1];
        double q3 = old.z * scale[2];
        double n1 = n.X();
        double n2 = n.Y();
        double n3 = n.Z();
        switch (type) {
            case MapType::Cylindrical:
                if (!n.IsZero()) inp_Coord::DifferentialCylindricalConversion(q1, q2, n1, n2);
                inp_Coord::CylindricalConversion(q1, q2);
                break;
            case MapType::Spherical:
                if (!n.IsZero()) inp_Coord::DifferentialSphericalConversion(q1, q2, q3, n1, n2, n3);
                inp_Coord::SphericalConversion(q1, q2, q3);
                break;
            case MapType::Toroidal: {
                double const minor = q1;
                double const around = q2 * kDegree;
                double const along = q3 * kDegree;
                double const r = majorRadius - minor * std::cos(around);
                q1 = r * std::cos(along);
                q2 = r * std::sin(along);
                q3 = minor * std::sin(around);
                break;
            }
            case MapType::Diamond: {
                gsl_Vector const mapped = e1 * q1 + e2 * q2 + e3 * q3;
                q1 = mapped.X();
                q2 = mapped.Y();
                q3 = mapped.Z();
                break;
            }
            default:
                break;
        }
        gsl_Point p(q1, q2, q3);
        gsl_Vector normal(n1, n2, n3);
        map.Transform(p);
        map.Transform(normal);
        inp_Coord record;
        record.SetPoint(p);
        record.SetNormal(normal);
        target->Remove(id);
        target->Insert(id, record);
    }
}
