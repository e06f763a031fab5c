// What each keyword that holds geometry gets in a moved instance: the
// handlers of inp_TransformationVisitor, all behind its guard. Columns and
// rows count from 0.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "mesh/inp_Coord.h"
#include "mesh/inp_Utils.h"
#include "tables/inp_DistributionTableDB.h"
#include "transform/inp_TransformationVisitor.h"

namespace {

cow_String parameterOr(inp_Keyword const& keyword, char const* name, char const* fallback) {
    return keyword.GetParameterAsString(name, cow_String(fallback));
}

}  // namespace

// -- a point or a vector at fixed places -------------------------------------------------

void inp_TransformationVisitor::VisitGasketSection(inp_Keyword& keyword) {
    if (!guarded(keyword)) TransformSingleVector(keyword, 0, 4);
}

void inp_TransformationVisitor::VisitGap(inp_Keyword& keyword) {
    if (!guarded(keyword)) TransformSingleVector(keyword, 0, 1);
}

void inp_TransformationVisitor::VisitIts(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    TransformSingleVector(keyword, 0, 2);
    TransformSingleVector(keyword, 0, 5);
}

void inp_TransformationVisitor::VisitPreTensionSection(inp_Keyword& keyword) {
    if (!guarded(keyword)) TransformSingleVector(keyword, 0, 0);
}

// A composite section has no orientation point.
void inp_TransformationVisitor::VisitSolidSection(inp_Keyword& keyword) {
    if (!guarded(keyword) && !keyword.HasParameter("composite"))
        TransformSinglePoint(keyword, 0, 1);
}

void inp_TransformationVisitor::VisitImpedanceProperty(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    cow_String const type = parameterOr(keyword, "type", "TABULAR");
    if (type != "ELLIPTICAL" && type != "PROLATESPHEROID") return;
    TransformSinglePoint(keyword, 0, 2);
    TransformSingleVector(keyword, 0, 5);
}

void inp_TransformationVisitor::VisitWave(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    cow_String const type = parameterOr(keyword, "type", "");
    if (type == "AIRY" || type == "STOKES") {
        for (int row = 0; row < keyword.Data().Rows(); ++row)
            TransformSingleVector(keyword, row, 3);
    } else if (type == "GRIDDED") {
        TransformSinglePoint(keyword, 0, 0);
        TransformSingleVector(keyword, 0, 3);
    }
}

// Column 6 holds a value that is no vector component: it stands aside, so
// that the vector of columns 4 and 5 turns with a z of 0.
void inp_TransformationVisitor::VisitWind(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    inp_DataArray const& data = keyword.Data();
    bool const held = data.Cols(0) > 6;
    cow_String const exponent = held ? data.AsStringVerbatim(0, 6) : cow_String();
    ownData(keyword);
    if (held) keyword.Data().Set(0, 6, cow_String("0"));
    TransformSingleVector(keyword, 0, 4);
    if (held) keyword.Data().Set(0, 6, exponent);
}

void inp_TransformationVisitor::VisitAqua(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    for (int row = 1; row < keyword.Data().Rows(); ++row) {
        TransformSingleVector(keyword, row, 0);
        TransformSinglePoint(keyword, row, 4);
    }
    AddWarning(inp_Utils::MessageInKeyword(
        keyword,
        atr("*AQUA data lines are detected in an instance with non-zero translation/rotation. "
            "Data items pertaining to elevation have not been transformed by the Parts/Assembly "
            "Processor. Please check their validity before submitting the job for analysis. ")));
}

// Columns 2 to 4 are a direction; the first two are kept.
void inp_TransformationVisitor::VisitNormal(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    for (int row = 0; row < keyword.Data().Rows(); ++row) TransformSingleVector(keyword, row, 2);
}

// -- beam sections ----------------------------------------------------------------------

void inp_TransformationVisitor::VisitBeamSection(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    if (!keyword.HasParameter("section")) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The SECTION parameter is required for *BEAM SECTION. ")));
        return;
    }
    if (keyword.GetParameterAsString("section", cow_String()) == "ELBOW") {
        TransformSinglePoint(keyword, 1, 0);
        return;
    }
    transformBeamDirection(keyword);
}

void inp_TransformationVisitor::VisitBeamGeneralSection(inp_Keyword& keyword) {
    if (!guarded(keyword)) transformBeamDirection(keyword);
}

void inp_TransformationVisitor::VisitFrameSection(inp_Keyword& keyword) {
    VisitBeamGeneralSection(keyword);
}

// The row of the first axis direction follows from SECTION; without it the
// direction is (0, 0, -1), which, turned, becomes a line of its own.
void inp_TransformationVisitor::transformBeamDirection(inp_Keyword& keyword) {
    inp_DataArray const& data = keyword.Data();
    cow_String const section = parameterOr(keyword, "section", "GENERAL");
    int row = keyword.HasParameter("taper") ? 2 : 1;
    if (section == "ARBITRARY") {
        bool const counted = data.Cols(0) > 0 && data.Type(0, 0) == inp_Types::inp_INTEGER;
        row = std::max(counted ? data.AsInt(0, 0) : 0, 2);
    } else if (section == "MESHED") {
        row = 0;
    } else if (section == "NONLINEARGENERAL") {
        row = 1;
    }
    bool const exists = row < data.Rows();
    if (exists && !numbersAt(keyword, row, 0, 3)) return;
    double direction[3] = {0.0, 0.0, -1.0};
    if (exists && data.Cols(row) > 0 && data.HasValue(row, 0)) readTriple(data, row, 0, direction);
    gsl_Vector vector(direction[0], direction[1], direction[2]);
    m_currentTransform.Transform(vector);
    if (exists) {
        writeTriple(keyword, row, 0, {vector.X(), vector.Y(), vector.Z()});
        return;
    }
    ownData(keyword);
    char line[96];
    std::snprintf(line, sizeof line, "%lg, %lg, %lg", vector.X(), vector.Y(), vector.Z());
    keyword.Data().Append(line);
}

// -- local systems ----------------------------------------------------------------------

// A definition by coordinates turns whole; one by nodes becomes one by
// coordinates first. Other definitions are left as written.
void inp_TransformationVisitor::VisitOrientation(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    cow_String const definition = parameterOr(keyword, "definition", "COORDINATES");
    cow_String const system = parameterOr(keyword, "system", "RECTANGULAR");
    bool const vectorsOnly = system == "RECTANGULAR" || system == "ZRECTANGULAR";
    if (definition == "NODES") {
        orientationByNodes(keyword, vectorsOnly);
    } else if (definition == "COORDINATES" && pointsReadable(keyword)) {
        keyword = TransformOrientationData(keyword, vectorsOnly);
    }
}

// A model whose nodes were not renumbered has no map for the scope: its
// labels stand as they are.
int inp_TransformationVisitor::globalNode(int local) const {
    if (!m_nodeIdMap.IsMember(scope())) return local;
    inpM_IdMap const& ids = m_nodeIdMap.ConstGet(scope());
    return ids.IsMember(local) ? ids.ConstGet(local) : 0;
}

bool inp_TransformationVisitor::localPosition(int global, gsl_Point& point) const {
    if (!m_coordMap.IsMember(scope())) return false;
    inp_CoordMap const& nodes = m_coordMap.ConstGet(scope());
    if (!nodes.IsMember(global)) return false;
    inp_Coord const node = nodes.ConstGet(global);
    gsl_Matrix inverse;
    m_currentTransform.InverseRigidTransform(inverse);
    point = gsl_Point(node.x, node.y, node.z);
    inverse.Transform(point);
    return true;
}

bool inp_TransformationVisitor::orientationByNodes(inp_Keyword& keyword, bool vectorsOnly) {
    inp_DataArray const& data = keyword.Data();
    auto const integerAt = [&](int column) {
        return column < data.Cols(0) && data.HasValue(0, column) &&
               data.Type(0, column) == inp_Types::inp_INTEGER;
    };
    if (!integerAt(0) || !integerAt(1)) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The first data line under *ORIENTATION, DEFINITION=NODES is "
                         "unrecognizable as a pair of node numbers for points A and B. ")));
        return false;
    }
    bool const withC = data.Cols(0) > 2 && data.HasValue(0, 2);
    if (withC && !integerAt(2)) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Node number for point C in the first data line under *ORIENTATION, "
                         "DEFINITION=NODES is unrecognizable.")));
        return false;
    }
    gsl_Point points[3];
    for (int p = 0; p < (withC ? 3 : 2); ++p) {
        int const global = globalNode(data.AsInt(0, p));
        if (global == 0 || !localPosition(global, points[p])) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                p < 2 ? atr("Unknown local node number %1$s or %2$s is encountered during the "
                            "processing of *ORIENTATION, DEFINITION=NODES. ",
                            data.AsStringVerbatim(0, 0), data.AsStringVerbatim(0, 1))
                      : atr("Unknown local node number %1$s for point C is encountered during "
                            "the processing of *ORIENTATION, DEFINITION=NODES. ",
                            data.AsStringVerbatim(0, 2))));
            return false;
        }
    }
    inp_Keyword byCoordinates = keyword;
    byCoordinates.SetParameter("definition", inp_Item(cow_String("COORDINATES")));
    byCoordinates.SetData(inp_DataArray());
    cow_List<cow_String> items;
    for (int p = 0; p < (withC ? 3 : 2); ++p)
        for (double value : {points[p].x, points[p].y, points[p].z})
            items.Append(cow_String::FromDouble(value));
    byCoordinates.Data().Append(items);
    for (int row = 1; row < data.Rows(); ++row) {
        cow_List<cow_String> kept;
        for (int column = 0; column < data.Cols(row); ++column)
            if (data.HasValue(row, column)) kept.Append(data.AsStringVerbatim(row, column));
        byCoordinates.Data().Append(kept);
    }
    keyword = TransformOrientationData(byCoordinates, vectorsOnly);
    return true;
}

// The base angles come from atan2, so that a node of negative x has its own
// quadrant: from atan(y / x) a zero displacement there would turn into a
// jump across the axis.
void inp_TransformationVisitor::DifferentialCylindricalConversion(double& dr, double& dtheta,
                                                                  gsl_Point const& node) const {
    double const r = std::sqrt(node.x * node.x + node.y * node.y);
    double const theta = std::atan2(node.y, node.x) * 180.0 / std::numbers::pi;
    inp_Coord::DifferentialCylindricalConversion(r, theta, dr, dtheta);
}

void inp_TransformationVisitor::DifferentialSphericalConversion(double& dr, double& dtheta,
                                                                double& dphi,
                                                                gsl_Point const& node) const {
    double const r = std::sqrt(node.x * node.x + node.y * node.y + node.z * node.z);
    double const theta = std::atan2(node.y, node.x) * 180.0 / std::numbers::pi;
    double const phi = r > 0.0 ? std::asin(node.z / r) * 180.0 / std::numbers::pi : 0.0;
    inp_Coord::DifferentialSphericalConversion(r, theta, phi, dr, dtheta, dphi);
}

// A displacement per node, in the system SYSTEM gives, becomes a Cartesian
// one turned into the instance; SYSTEM goes. A fault ends the keyword with
// its old data.
void inp_TransformationVisitor::VisitImperfection(inp_Keyword& keyword) {
    if (guarded(keyword) || keyword.HasParameter("file") || keyword.HasParameter("input")) return;
    cow_String const system = parameterOr(keyword, "system", "R");
    inp_DataArray const& data = keyword.Data();
    inp_DataArray rewritten;
    for (int row = 0; row < data.Rows(); ++row) {
        if (data.Cols(row) == 0 || !data.HasValue(row, 0)) continue;
        if (data.Type(row, 0) != inp_Types::inp_INTEGER) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("A column one data item under *IMPERFECTION is unrecognizable as a "
                             "node number. The item in question is: %1$s",
                             data.AsStringVerbatim(row, 0))));
            return;
        }
        int const global = globalNode(data.AsInt(row, 0));
        gsl_Point node;
        if (global == 0 || !localPosition(global, node)) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Unknown local node number %1$s is encountered during the "
                             "processing of *IMPERFECTION. ",
                             data.AsStringVerbatim(row, 0))));
            return;
        }
        if (!numbersAt(keyword, row, 1, 3)) return;
        double d[3];
        readTriple(data, row, 1, d);
        turnDisplacement(system, node, d);
        cow_List<cow_String> items;
        items.Append(data.AsStringVerbatim(row, 0));
        for (double value : d) items.Append(cow_String::FromDouble(value));
        rewritten.Append(items);
    }
    keyword.SetData(rewritten);
    keyword.RemoveParameter("system");
}

// The points of a local system's first line, unless it names a
// distribution, are numbers.
bool inp_TransformationVisitor::pointsReadable(inp_Keyword const& keyword) {
    inp_DataArray const& data = keyword.Data();
    if (data.Cols(0) > 0 && data.HasValue(0, 0) && data.Type(0, 0) == inp_Types::inp_STRING)
        return true;
    return numbersAt(keyword, 0, 0, 9);
}

// A rectangular system turns; a cylindrical or spherical one is given by
// points, which move.
void inp_TransformationVisitor::VisitTransform(inp_Keyword& keyword) {
    if (guarded(keyword) || !pointsReadable(keyword)) return;
    keyword = TransformOrientationData(keyword, parameterOr(keyword, "type", "R") == "R");
}

// The tensor I becomes R I R^T, R the rotation of the instance.
void inp_TransformationVisitor::VisitRotaryInertia(inp_Keyword& keyword) {
    if (guarded(keyword) || keyword.HasParameter("orientation") || !numbersAt(keyword, 0, 0, 6))
        return;
    inp_DataArray const& data = keyword.Data();
    double values[6];
    for (int k = 0; k < 6; ++k)
        values[k] = k < data.Cols(0) && data.HasValue(0, k) ? data.AsDouble(0, k) : 0.0;
    double inertia[3][3] = {{values[0], values[3], values[4]},
                            {values[3], values[1], values[5]},
                            {values[4], values[5], values[2]}};
    double rotation[3][3];
    double transposed[3][3];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            rotation[i][j] = m_currentTransform.Element(i, j);
            transposed[j][i] = rotation[i][j];
        }
    double turned[3][3];
    double result[3][3];
    MatrixMultiply3x3(rotation, inertia, turned);
    MatrixMultiply3x3(turned, transposed, result);
    double const ordered[6] = {result[0][0], result[1][1], result[2][2],
                               result[0][1], result[0][2], result[1][2]};
    cow_List<cow_String> items;
    for (double value : ordered) items.Append(cow_String::FromDouble(value));
    inp_DataArray tensor;
    tensor.Append(items);
    keyword.SetData(tensor);
}

// -- keywords that refer to the global axes ----------------------------------------------

void inp_TransformationVisitor::VisitCoupling(inp_Keyword& keyword) {
    if (keyword.HasParameter("refnode"))
        addAuxiliaryOrientation(keyword, "Coupling_", "constraintname");
}

void inp_TransformationVisitor::VisitKinematicCoupling(inp_Keyword& keyword) {
    addAuxiliaryOrientation(keyword, "Kinematic-Coupling_", "refnode");
}

void inp_TransformationVisitor::VisitAdjust(inp_Keyword& keyword) {
    addAuxiliaryOrientation(keyword, "Adjust_", "nodeset");
}

void inp_TransformationVisitor::VisitFastener(inp_Keyword& keyword) {
    addAuxiliaryOrientation(keyword, "Fastener_", "referencenodeset");
}

void inp_TransformationVisitor::VisitJoint(inp_Keyword& keyword) {
    addAuxiliaryOrientation(keyword, "jointc_", "elset");
}

void inp_TransformationVisitor::VisitSpring(inp_Keyword& keyword) {
    visitSpringOrDashpot(keyword, true);
}

void inp_TransformationVisitor::VisitDashpot(inp_Keyword& keyword) {
    visitSpringOrDashpot(keyword, false);
}

// Only the types that act along a fixed direction need an orientation; the
// type of the set's first element tells.
void inp_TransformationVisitor::visitSpringOrDashpot(inp_Keyword& keyword, bool spring) {
    if (guarded(keyword) || keyword.HasParameter("orientation")) return;
    cow_String const set = keyword.GetParameterAsString("elset", cow_String());
    if (!m_elementSets.HasNestedSet(scope(), set)) return;
    cow_List<int> const ids = m_elementSets.ConstGetNestedSet(scope(), set)->ConstGetIdList();
    if (ids.IsEmpty() || !m_elementMap.IsMember(scope()) ||
        !m_elementMap.ConstGetMap(scope()).HasValue())
        return;
    inp_MapInt2Element const& elements = m_elementMap.ConstGet(scope());
    if (!elements.IsMember(ids.ConstGet(0))) return;
    cow_String const& type = elements.ConstGet(ids.ConstGet(0)).type();
    if (type != "SPRING1" && type != "SPRING2" && type != "DASHPOT1" && type != "DASHPOT2") return;
    addAuxiliaryOrientation(keyword, spring ? "spring_" : "dashpot_", "elset");
}

// -- equations ------------------------------------------------------------------------

cow_List<int> inp_TransformationVisitor::GetNodesFromNset(cow_String const& name) {
    cow_List<int> nodes;
    if (!m_nodeSets.HasNestedSet(scope(), name)) {
        AddError(
            atr("The node set %1$s given on *EQUATION data line does not exist in the "
                "current instance %2$s",
                name, scope()));
        return nodes;
    }
    inpM_IdMap const* const ids =
        m_nodeIdMap.IsMember(scope()) ? &m_nodeIdMap.ConstGet(scope()) : nullptr;
    for (int label : m_nodeSets.ConstGetNestedSet(scope(), name)->ConstGetIdList())
        nodes.Append(ids != nullptr && ids->IsMember(label) ? ids->ConstGet(label) : label);
    return nodes;
}

// A line of three items or more names a node, or a node set, in columns 0,
// 3, 6 and 9; the first line, the number of terms, names none.
cow_List<int> inp_TransformationVisitor::GetNodesInvolved(inp_Keyword const& keyword) {
    cow_List<int> nodes;
    inp_DataArray const& data = keyword.Data();
    inpM_IdMap const* const ids =
        m_nodeIdMap.IsMember(scope()) ? &m_nodeIdMap.ConstGet(scope()) : nullptr;
    for (int row = 0; row < data.Rows(); ++row) {
        if (data.Cols(row) < 3) continue;
        for (int column = 0; column < data.Cols(row) && column <= 9; column += 3) {
            if (!data.HasValue(row, column)) continue;
            inp_Types::typeEnm const type = data.Type(row, column);
            if (type == inp_Types::inp_INTEGER) {
                int const label = data.AsInt(row, column);
                nodes.Append(ids != nullptr && ids->IsMember(label) ? ids->ConstGet(label) : label);
            } else if (type == inp_Types::inp_STRING) {
                for (int node : GetNodesFromNset(data.AsString(row, column))) nodes.Append(node);
            } else {
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("Equation data must consist of node numbers or node set names.")));
            }
        }
    }
    return nodes;
}

// Each node of an equation gets a *TRANSFORM of the global axes turned into
// the instance, once: later equations of the same nodes add nothing. Only a
// scope is asked for, so the equations of a part or an unmoved instance get
// the axes as they are, which keeps every equation node's system explicit.
void inp_TransformationVisitor::VisitEquation(inp_Keyword& keyword) {
    if (scope().IsEmpty()) return;
    cow_List<int> const involved = GetNodesInvolved(keyword);
    if (!m_nonTransformedNodes.IsMember(scope()))
        m_nonTransformedNodes.Insert(scope(), cow_List<int>());
    ++m_setCounter;
    cow_List<int>& handled = m_nonTransformedNodes.Get(scope());
    std::unordered_set<int>& handledLookup = m_handledNodes[std::string(scope().View())];
    cow_List<int> fresh;
    for (int node : involved) {
        if (m_transformNodeLookup.contains(node) || !handledLookup.insert(node).second) continue;
        handled.Append(node);
        fresh.Append(node);
    }
    if (fresh.IsEmpty()) return;
    cow_String name("NONTRANSFORMED-");
    name.append(cow_String::FromInt(m_setCounter));
    m_nodeSets.InsertNestedSet(scope(), name, CreateSet(fresh, false, false));
    inp_Keyword transform{cow_String("transform")};
    transform.SetParameter("nset", inp_Item(name));
    transform.Data().Append("1,0,0, 0,1,0");
    AppendAuxiliary(TransformOrientationData(transform, true));
}

void inp_TransformationVisitor::turnDisplacement(cow_String const& system, gsl_Point const& node,
                                                 double (&d)[3]) const {
    if (system == "C") DifferentialCylindricalConversion(d[0], d[1], node);
    if (system == "S") DifferentialSphericalConversion(d[0], d[1], d[2], node);
    gsl_Vector displacement(d[0], d[1], d[2]);
    m_currentTransform.Transform(displacement);
    d[0] = displacement.X();
    d[1] = displacement.Y();
    d[2] = displacement.Z();
}

// Each line, a node or a node set of the scope (a set gives a line per
// member), then two triples of variations in SYSTEM, made Cartesian and
// turned. A fault ends the keyword with its old data.
void inp_TransformationVisitor::VisitParameterShapeVariation(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    cow_String const system = parameterOr(keyword, "system", "R");
    inp_DataArray const& data = keyword.Data();
    inp_DataArray rewritten;
    for (int row = 0; row < data.Rows(); ++row) {
        if (data.Cols(row) == 0 || !data.HasValue(row, 0)) continue;
        cow_List<int> locals;
        inp_Types::typeEnm const type = data.Type(row, 0);
        cow_String const item = data.AsStringVerbatim(row, 0);
        if (type == inp_Types::inp_INTEGER) {
            locals.Append(data.AsInt(row, 0));
        } else if (type == inp_Types::inp_STRING) {
            cow_String const set = data.AsString(row, 0);
            if (!m_nodeSets.HasNestedSet(scope(), set)) {
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("Unknown node set %1$s is detected in column one under "
                                 "*PARAMETER SHAPE VARIATION. ",
                                 item)));
                return;
            }
            locals = m_nodeSets.ConstGetNestedSet(scope(), set)->ConstGetIdList();
        } else {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("A column one data item under *PARAMETER SHAPE VARIATION is "
                             "unrecognizable as a node number or node set label. The item in "
                             "question is: %1$s",
                             item)));
            return;
        }
        if (!numbersAt(keyword, row, 1, 6)) return;
        for (int local : locals) {
            int const global = globalNode(local);
            gsl_Point node;
            if (global == 0 || !localPosition(global, node)) {
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("Unknown local node number %1$s is encountered during the "
                                 "processing of *PARAMETER SHAPE VARIATION. Note that the node "
                                 "number may not be specified explicitly, but expanded from a "
                                 "node set label. ",
                                 cow_String::FromInt(local))));
                return;
            }
            cow_List<cow_String> items;
            items.Append(cow_String::FromInt(local));
            for (int triple = 0; triple < 2; ++triple) {
                double d[3];
                readTriple(data, row, 1 + 3 * triple, d);
                turnDisplacement(system, node, d);
                for (double value : d) items.Append(cow_String::FromDouble(value));
            }
            rewritten.Append(items);
        }
    }
    keyword.SetData(rewritten);
    keyword.RemoveParameter("system");
}

// Only a distribution of orientation points is geometry: its two triples
// a line are turned as vectors when the system that names it is
// rectangular, and moved as points otherwise. The label and a value in
// column 7 are kept.
void inp_TransformationVisitor::VisitDistribution(inp_Keyword& keyword) {
    if (guarded(keyword)) return;
    cow_String const table = keyword.GetParameterAsString("table", cow_String());
    if (inp_DistributionTableDB::Instance().validateDistTable(inp_distOrientationPoints, table) !=
        inp_DistributionTableDB::kFits)
        return;
    bool const vectors =
        m_modelParameters.isCsysRectangular(keyword.GetParameterAsString("name", cow_String()));
    inp_DataArray const& data = keyword.Data();
    inp_DataArray rewritten;
    for (int row = 0; row < data.Rows(); ++row)
        if (!numbersAt(keyword, row, 1, 6)) return;
    for (int row = 0; row < data.Rows(); ++row) {
        cow_List<cow_String> items;
        items.Append(data.Cols(row) > 0 ? data.AsStringVerbatim(row, 0) : cow_String());
        for (int triple = 0; triple < 2; ++triple) {
            double values[3];
            readTriple(data, row, 1 + 3 * triple, values);
            turnTriple(values, vectors);
            for (double value : values) items.Append(cow_String::FromDouble(value));
        }
        if (data.Cols(row) > 7 && data.HasValue(row, 7))
            items.Append(data.AsStringVerbatim(row, 7));
        rewritten.Append(items);
    }
    keyword.SetData(rewritten);
}
