#pragma once
// Word tables that several keywords of different families share. A family
// keeps the tables only it uses in its own file.

#include "expansion/inp_SchemaRow.h"

inline constexpr char const* inp_wordsEmpty[] = {nullptr};
inline constexpr char const* inp_wordsNoYes[] = {"NO", "YES", nullptr};
inline constexpr char const* inp_wordsYesNo[] = {"YES", "NO", nullptr};
inline constexpr char const* inp_wordsOnOff[] = {"ON", "OFF", nullptr};
inline constexpr char const* inp_wordsModNew[] = {"MOD", "NEW", nullptr};
inline constexpr char const* inp_wordsRegionType[] = {"EULERIAN", "LAGRANGIAN", "SLIDING", nullptr};
inline constexpr char const* inp_wordsCoordinatesNodes[] = {"COORDINATES", "NODES", nullptr};
inline constexpr char const* inp_wordsOneTwo[] = {"1", "2", nullptr};
inline constexpr char const* inp_wordsStackDirection[] = {"1", "2", "3", "ORIENTATION", nullptr};
inline constexpr char const* inp_wordsAllPreselect[] = {"ALL", "PRESELECT", nullptr};
inline constexpr char const* inp_wordsOutputPosition[] = {"AVERAGEDATNODES", "CENTROIDAL",
                                                          "INTEGRATIONPOINTS", "NODES", nullptr};
inline constexpr char const* inp_wordsModuli[] = {"INSTANTANEOUS", "LONGTERM", nullptr};
inline constexpr char const* inp_wordsAnisotropy[] = {"ANISOTROPIC", "ISOTROPIC", "ORTHOTROPIC",
                                                      "SHORTFIBER", nullptr};
inline constexpr char const* inp_wordsEndPeriodSs[] = {"PERIOD", "SS", nullptr};
inline constexpr char const* inp_wordsNodeSurfaceContact[] = {"NODETOSURFACE", "SURFACETOSURFACE",
                                                              nullptr};
inline constexpr char const* inp_wordsCylindricalRectangularSpherical[] = {"C", "R", "S", nullptr};
