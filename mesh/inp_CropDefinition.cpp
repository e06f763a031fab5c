#include "mesh/inp_CropDefinition.h"

#include "deck/inp_Keyword.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Utils.h"

namespace {

// A number of the box lines: a missing item, one beyond the line and text
// all read as 0.
double numberAt(inp_DataArray const& data, int row, int col) {
    if (!data.HasValue(row, col)) return 0.0;
    inp_Types::typeEnm const type = data.Type(row, col);
    if (type != inp_Types::inp_INTEGER && type != inp_Types::inp_REAL) return 0.0;
    return data.AsDouble(row, col);
}

gsl_Vector vectorAt(inp_DataArray const& data, int row, int col) {
    return {numberAt(data, row, col), numberAt(data, row, col + 1), numberAt(data, row, col + 2)};
}

bool isWithin(double value, double size) {
    return value >= 0.0 && value <= size;
}

constexpr int kBoxRow = 1;
constexpr int kOrientationRow = 2;

}  // namespace

inp_CropDefinition::inp_CropDefinition(inp_Keyword const& keyword) {
    inp_Item const* name = keyword.Parameters().Find("name");
    if (name == nullptr || name->Type() == inp_Types::inp_NONE) return;
    m_valid = true;
    inp_DataArray const& data = keyword.Data();
    if (data.Rows() <= kBoxRow) return;
    readBox(data);
    if (data.Rows() > kOrientationRow)
        readOrientation(keyword, inpM_Utils::RemoveQuotes(name->AsString()));
}

void inp_CropDefinition::readBox(inp_DataArray const& data) {
    m_origin = vectorAt(data, kBoxRow, 0).AsPoint();
    gsl_Point const farCorner = vectorAt(data, kBoxRow, 3).AsPoint();
    m_size = farCorner - m_origin;
}

// Point b is compared as read with the unit vector a, so the checks for equal
// points and for points on one line only fire when b has unit length. Points
// on one line that they miss give a rotation about a zero axis, which is the
// identity: the box is axis-aligned all the same, only without a warning.
//
// Each check that fails adds its warning; a and b both at the origin, or b
// equal to the unit vector a, thus give two. That is how points on one line
// through the origin reach the third warning at all: b on the line of a
// with a dot product of exactly 1 is b equal to the unit vector a.
void inp_CropDefinition::readOrientation(inp_Keyword const& keyword, cow_String const& surface) {
    m_oriented = true;
    gsl_Vector a = vectorAt(keyword.Data(), kOrientationRow, 0);
    gsl_Vector const b = vectorAt(keyword.Data(), kOrientationRow, 3);
    a.Normalize();  // a vector too short for it stays as it is
    bool usable = true;
    if (a.IsZero() || b.IsZero()) {
        warn(keyword,
             "Neither of the points a and b defined under cropped surface %s are allowed to be "
             "defined at the origin. The orientation of the surface will be ignored.",
             surface);
        usable = false;
    }
    if (a == b) {
        warn(keyword,
             "Points a and b defined under cropped surface %s should not have the same "
             "coordinates. The orientation of the surface will be ignored.",
             surface);
        usable = false;
    }
    if (a.DotProduct(b) == 1.0) {
        warn(keyword,
             "Points a, b and the origin of cropped surface %s should not lie on a straight line. "
             "A unique coordinate system for the orientation cannot be found. The orientation of "
             "the surface will be ignored.",
             surface);
        usable = false;
    }
    // The rotation turns offsets from the box origin, so it turns about the
    // origin of those offsets: no translation comes with it.
    if (usable)
        m_rotation = gsl_Matrix::AxisRotation(gsl_Point(), a.CrossProduct(b), a.AngleWith(b));
}

void inp_CropDefinition::warn(inp_Keyword const& keyword, char const* text,
                              cow_String const& surface) {
    m_warnings.Append(inp_Utils::MessageInKeyword(keyword, atr(text, surface)));
}

bool inp_CropDefinition::IsInBox(inp_Coord const& point) const {
    gsl_Vector offset(m_origin, gsl_Point(point.x, point.y, point.z));
    if (!m_rotation.IsIdentity()) m_rotation.RotateAndTransform(offset);
    return isWithin(offset.X(), m_size.X()) && isWithin(offset.Y(), m_size.Y()) &&
           isWithin(offset.Z(), m_size.Z());
}
