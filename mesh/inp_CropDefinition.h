#pragma once
// The box of a cropped surface (*SURFACE with CROP): only what lies inside it
// is kept of the source surface. It is read from the keyword's data lines:
//
//     source surface name
//     x0, y0, z0, x1, y1, z1          origin and far corner of the box
//     ax, ay, az, bx, by, bz          optional: points a and b, as directions
//                                     from the origin, that orient the box
//
// In concept this belongs with the model side tables, but the surface
// visitor of the mesh layer reads it, and a layer may not include the
// tables folder above it: so it lives here.
//
// A box that cannot be oriented (a or b at the origin, a and b alike or on
// one line) is used axis-aligned, with a warning. The warnings are kept here,
// worded through inp_Utils::MessageInKeyword, for the visitor that reads the
// box to hand on through its own lists.

#include "mesh/inp_Coord.h"
#include "support/atr_String.h"
#include "support/cow_List.h"
#include "support/gsl_Matrix.h"
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"

class inp_DataArray;
class inp_Keyword;

class inp_CropDefinition {
  public:
    // Without a NAME parameter, or with fewer than two data lines, the box
    // keeps its defaults: size and origin zero.
    explicit inp_CropDefinition(inp_Keyword const& keyword);

    // Whether the keyword named its surface. An unnamed keyword is refused by
    // the keyword checks before the surfaces are read; its box crops nothing.
    // A named keyword without a box line is valid: its box of size zero at the
    // origin keeps only what stands at the origin.
    bool IsValid() const noexcept { return m_valid; }
    // Whether a third data line was given, usable or not.
    bool IsOriented() const noexcept { return m_oriented; }

    // Inside or on the box: the offset from the origin, turned into the box's
    // axes, lies between 0 and the size in each direction, bounds included.
    bool IsInBox(inp_Coord const& point) const;

    gsl_Vector const& Size() const noexcept { return m_size; }
    gsl_Point const& Origin() const noexcept { return m_origin; }
    gsl_Matrix const& Rotation() const noexcept { return m_rotation; }
    cow_List<atr_String> const& Warnings() const noexcept { return m_warnings; }

  private:
    void readBox(inp_DataArray const& data);
    void readOrientation(inp_Keyword const& keyword, cow_String const& surface);
    void warn(inp_Keyword const& keyword, char const* text, cow_String const& surface);

    bool m_oriented = false;
    gsl_Vector m_size;
    gsl_Point m_origin;
    gsl_Matrix m_rotation;  // the identity unless a usable orientation is given
    bool m_valid = false;
    cow_List<atr_String> m_warnings;
};
