#pragma once
#include "support/cow_String.h"

// The face number that a face identifier of an element-based surface names.
// Face numbers count from 1, in the order of an element shape's faces.
//
// Accepted, in any letter case and with surrounding blanks ignored:
// - "S<n>", "F<n>" and "E<n>" (a face, or an edge of a planar element) for
//   n from 1 up: face n;
// - "SNEG" and "SPOS", the two sides of a shell: faces 1 and 2.
// Anything else (an empty name, "S0", "S-1", "S1X", a number too large for an
// int, ...) is invalid; the face number of an invalid facet is 0.
class inpM_SurfaceFacet {
  public:
    explicit inpM_SurfaceFacet(cow_String const& name);

    bool isValid() const noexcept { return m_id > 0; }
    int id() const noexcept { return m_id; }

  private:
    static int parse(cow_String const& name);

    int m_id = 0;
};
