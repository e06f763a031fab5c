// *NCOPY of inp_NodeVisitor: new nodes from the nodes of a set by a rigid
// operation (a shift with an optional turn, repeated; a reflection about a
// line, a plane or a point; a point reflection through a pole).
//
// The old nodes are read globally and moved back into the frame of the
// scope, where the operation acts; the copies are stored there as they are.

#include <cstdint>

#include "mesh/inp_NodeVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/atr_String.h"
#include "support/inpM_Set.h"

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

// 2 centre - p: p reflected through the centre.
gsl_Point through(gsl_Point const& centre, gsl_Point const& p) {
    return gsl_Point(centre, 2.0, p, -1.0);
}

}  // namespace

void inp_NodeVisitor::VisitNcopy(inp_Keyword& keyword) {
    auto error = [&](atr_String const& text) {
        AddError(inp_Utils::MessageInKeyword(keyword, text));
    };
    if (!keyword.HasParameter("changenumber") || !keyword.HasParameter("oldset")) {
        error(atr("Both CHANGE NUMBER and OLD SET are required parameters."));
        return;
    }
    int const change = keyword.GetParameterAsInt("changenumber", 0);
    cow_String const oldName = keyword.GetParameterAsString("oldset", "");
    cow_String scope = CurrentName();
    // Outside a part or instance the sets of the level itself count.
    bool const exists = CheckExistenceOfOldSet(oldName, scope) ||
                        (scope.IsEmpty() && !m_searchAssembly && m_setMap.HasSet(oldName));
    if (!exists) {
        error(atr("Node set %s does not exist.", oldName));
        return;
    }
    // Only the absence of all three is refused; of several, SHIFT wins over
    // REFLECT and REFLECT over POLE.
    bool const shift = keyword.HasParameter("shift");
    bool const reflect = !shift && keyword.HasParameter("reflect");
    bool const pole = !shift && !reflect && keyword.HasParameter("pole");
    if (!shift && !reflect && !pole) {
        error(atr("POLE, REFLECT, and SHIFT are required, mutually exclusive parameters."));
        return;
    }
    int const copies = shift ? keyword.GetParameterAsInt("multiple", 1) : 1;

    inpM_SetHandle const& oldSet = scope.IsEmpty() ? m_setMap.ConstGetSet(oldName)
                                                   : m_setMap.ConstGetNestedSet(scope, oldName);
    cow_List<int> const ids = oldSet->ConstGetIdList();
    bool const unsorted = oldSet->IsUnsorted();
    bool const internal = oldSet->SetType() != inpM_ORDINARY_SET;
    cow_String const newName = keyword.GetParameterAsString("newset", "");

    inp_CoordMap* const target = targetMap(keyword);
    if (target == nullptr) return;
    cow_List<int> labels;
    auto labelOf = [&](int id, int m) {
        return static_cast<int>(std::int64_t{id} + std::int64_t{m} * change);
    };
    auto storeNewSet = [&] {
        if (newName.IsEmpty() || labels.IsEmpty()) return;
        inpM_SetHandle const set = CreateSet(labels, internal, unsorted);
        if (CurrentName().IsEmpty())
            AddAssySet(newName, set, false);
        else
            AddPartSet(newName, set, false);
    };

    if (!m_readCoordinates) {
        for (int m = 1; m <= copies; ++m)
            for (int id : ids) {
                target->Insert(labelOf(id, m), inp_Coord());
                labels.Append(labelOf(id, m));
            }
        storeNewSet();
        return;
    }

    // The geometry of the operation, in the frame of the scope.
    inp_DataArray const& data = keyword.Data();
    gsl_Matrix translation;
    gsl_Matrix rotation;
    gsl_StLine line;
    gsl_Plane plane;
    gsl_Point centre;
    cow_String const reflection = keyword.GetParameterAsString("reflect", "");
    if (shift) {
        if (data.Rows() > 0)
            translation =
                gsl_Matrix::Translation(gsl_Vector(ReadPointFromKeywordData(keyword, 0, 0)));
        if (data.Rows() > 1) {
            double const angle = NumberAt(data, 1, 6);
            if (angle != 0.0) {
                gsl_Point const a = ReadPointFromKeywordData(keyword, 1, 0);
                gsl_Vector axis(a, ReadPointFromKeywordData(keyword, 1, 3));
                if (!axis.Normalize()) {
                    error(
                        atr("The points defining the axis of rotation for SHIFT are almost "
                            "coincident."));
                    return;
                }
                rotation = gsl_Matrix::AxisRotation(a, axis, angle * kDegree);
            }
        }
    } else if (reflect && reflection == "LINE") {
        gsl_Point const a = ReadPointFromKeywordData(keyword, 0, 0);
        gsl_Vector direction(a, ReadPointFromKeywordData(keyword, 0, 3));
        if (!direction.Normalize()) {
            error(atr("Points A & B given for REFLECT=LINE are coincident."));
            return;
        }
        line = gsl_StLine(a, direction);
    } else if (reflect && reflection == "MIRROR") {
        gsl_Point const a = ReadPointFromKeywordData(keyword, 0, 0);
        gsl_Vector normal(a, ReadPointFromKeywordData(keyword, 0, 3),
                          ReadPointFromKeywordData(keyword, 1, 0));
        if (!normal.Normalize()) {
            error(
                atr("Points A, B, & C given for REFLECT=MIRROR do not form a plane (co-linear "
                    "or coincident)."));
            return;
        }
        plane = gsl_Plane(a, normal);
    } else if (reflect && reflection == "POINT") {
        centre = ReadPointFromKeywordData(keyword, 0, 0);
    } else if (pole) {
        // The pole node is taken where it is stored, in the frame in which
        // the copies are made.
        int const label = IntegerAt(data, 0, 0);
        if (target->IsMember(label))
            centre = UndoInstanceTransform(target->ConstGet(label)).Point();
        else
            centre = ReadPointFromKeywordData(keyword, 0, 1);
    }
    // Any other REFLECT value moves nothing: the copies lie on the old nodes.

    gsl_Matrix inverse;
    if (!m_instanceTransform.IsIdentity()) m_instanceTransform.InverseRigidTransform(inverse);
    // One copy is the shift followed by the turn; copy m repeats that m
    // times, so that both the translation and the rotation add up from copy
    // to copy.
    gsl_Matrix step = translation;
    step.Concatenate(rotation);
    gsl_Matrix accumulated;

    for (int m = 1; m <= copies; ++m) {
        if (shift) accumulated.Concatenate(step);
        for (int id : ids) {
            if (!target->IsMember(id)) continue;
            inp_Coord const old = target->ConstGet(id);
            gsl_Point p = old.Point();
            gsl_Vector n = old.Normal();
            bool const hasNormal = n.Normalize();
            if (!hasNormal) n = gsl_Vector();
            inverse.Transform(p);
            if (hasNormal) inverse.Transform(n);

            if (shift) {
                accumulated.Transform(p);
                accumulated.Transform(n);
            } else if (reflect && reflection == "LINE") {
                double parameter = 0.0;
                p = through(p.ProjectOn(line, parameter), p);
                n = ReflectVectorAboutLine(n, line);
            } else if (reflect && reflection == "MIRROR") {
                p = through(p.ProjectOn(plane), p);
                n = ReflectVectorAboutPlane(n, plane);
            } else if (reflect && reflection == "POINT") {
                p = through(centre, p);
                n.Negate();
            } else if (pole) {
                p = through(centre, p);
            }

            inp_Coord record;
            record.SetPoint(p);
            if (hasNormal) record.SetNormal(n);
            int const label = labelOf(id, m);
            target->Insert(label, record);
            labels.Append(label);
        }
    }
    storeNewSet();
}
