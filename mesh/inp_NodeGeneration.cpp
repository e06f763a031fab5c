// The node generators *NGEN and *NFILL of inp_NodeVisitor: nodes between
// nodes that exist already, along a line, a circle or a parabola, and between
// the node pairs of two node sets.
//
// End points are read in global position (through inp_CoordMap::ConstGet,
// with the transform of the scope's map) and every generated record is moved
// back into the frame of the scope before it is stored. The hot loops work on
// plain doubles and allocate nothing of their own: the inverse instance
// transform and the target map are found once per keyword.

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "mesh/inp_NodeVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/atr_String.h"

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kHalfPi = 1.5707963267948966;
// Below this an arc's end lies on its center.
constexpr double kCenterTolerance = 1e-16;
// An arc shorter than this, or closer to a half circle than this, needs a
// normal to fix its plane.
constexpr double kSmallAngle = 1e-6;
constexpr double kNearlyPi = 3.141591653589793;

// `text` followed by the values of the row as written, joined by ", ".
atr_String invalidLine(char const* text, inp_DataArray const& data, int row) {
    atr_String message = atr(text);
    for (int j = 0; j < data.Cols(row); ++j) {
        if (j > 0) message.append(", ");
        message.append(data.AsStringVerbatim(row, j));
    }
    return message;
}

gsl_Vector pointOf(inp_Coord const& c) {
    return {c.x, c.y, c.z};
}
gsl_Vector normalOf(inp_Coord const& c) {
    return {c.nx, c.ny, c.nz};
}
// a times s plus b times t.
gsl_Vector combine(gsl_Vector const& a, double s, gsl_Vector const& b, double t) {
    return {a.X() * s + b.X() * t, a.Y() * s + b.Y() * t, a.Z() * s + b.Z() * t};
}
inp_Coord recordOf(gsl_Vector const& v) {
    return {v.X(), v.Y(), v.Z()};
}

// Moves generated records from the global frame back into the frame of the
// scope: the inverse of the instance transform, computed once.
class LocalFrame {
  public:
    explicit LocalFrame(gsl_Matrix const& instanceTransform) {
        if (!instanceTransform.IsIdentity()) instanceTransform.InverseRigidTransform(m_inverse);
    }
    void Apply(inp_Coord& record) const {
        if (m_inverse.IsIdentity()) return;
        gsl_Point point = record.Point();
        m_inverse.Transform(point);
        record.SetPoint(point);
    }

  private:
    gsl_Matrix m_inverse;
};

// A message with five or six values: atr substitutes four, the rest are put in
// after it.
atr_String withExtra(atr_String message, char const* placeholder, cow_String const& value) {
    message.ReplaceNonTranslated(placeholder, value);
    return message;
}

}  // namespace

// -- *NGEN ----------------------------------------------------------------------------

void inp_NodeVisitor::VisitNgen(inp_Keyword& keyword) {
    inp_CoordMap* const target = targetMap(keyword);
    if (target == nullptr) return;
    inp_DataArray const& data = keyword.Data();
    cow_String const line = keyword.GetParameterAsString("line", "");
    char const shape = line.IsEmpty() ? 'L' : line[0];  // 'C' circle, 'P' parabola
    bool const curved = shape == 'C' || shape == 'P';
    cow_String const system = keyword.GetParameterAsString("system", "RC");
    cow_String const nset = keyword.GetParameterAsString("nset", "");
    bool const collect = !nset.IsEmpty();
    LocalFrame const local(m_instanceTransform);
    cow_List<int> labels;
    auto missingNode = [&](int label) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Node %d does not exist.", label)));
    };

    for (int row = 0; row < data.Rows(); ++row) {
        if (data.Cols(row) < 2) {
            AddError(inp_Utils::MessageInKeyword(keyword,
                                                 invalidLine("Invalid data line: \n", data, row)));
            break;
        }
        int const first = IntegerAt(data, row, 0);
        int const last = IntegerAt(data, row, 1);

        // A missing end is reported and taken at the origin. Once the row is
        // known to generate, it is stored there too, so that it exists from
        // then on and the row's node set is whole.
        bool const missingFirst = m_readCoordinates && !target->IsMember(first);
        bool const missingLast = m_readCoordinates && last != first && !target->IsMember(last);
        if (missingFirst) missingNode(first);
        if (missingLast) missingNode(last);

        int increment = IntegerAt(data, row, 2);
        if (increment == 0) increment = 1;
        std::int64_t const distance = std::int64_t{last} - first;
        if (distance == 0 || distance % increment != 0) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Nodes cannot be generated between %1$d and %2$d with a step of %3$d.",
                             first, last, increment)));
            break;
        }
        std::int64_t const steps = distance / increment;
        if (steps < 0) {
            AddWarning(inp_Utils::MessageInKeyword(
                keyword, atr("Nodes cannot be generated between %1$d and %2$d with a step of %3$d. "
                             "The dataline will be ignored.",
                             first, last, increment)));
            continue;
        }

        inp_Coord const firstNode = missingFirst ? inp_Coord() : target->ConstGet(first, {});
        inp_Coord const lastNode = missingLast ? inp_Coord() : target->ConstGet(last, {});
        if (missingFirst) target->Insert(first, firstNode);
        if (missingLast) target->Insert(last, lastNode);

        if (collect) {
            if (labels.IsEmpty()) labels.Reserve(static_cast<int>(steps) + 1);
            for (std::int64_t k = 0; k <= steps; ++k)
                labels.Append(static_cast<int>(first + k * increment));
        }

        if (!m_readCoordinates) {
            for (std::int64_t k = 1; k < steps; ++k)
                target->Insert(static_cast<int>(first + k * increment), inp_Coord());
            continue;
        }

        gsl_Vector const p1 = pointOf(firstNode);
        gsl_Vector const p2 = pointOf(lastNode);
        gsl_Vector n1 = normalOf(firstNode);
        gsl_Vector n2 = normalOf(lastNode);
        bool const withNormals = n1.Normalize() && n2.Normalize();

        // The third point: the center of a circle, the middle of a parabola.
        gsl_Vector third;
        gsl_Vector planeDirection;
        if (curved) {
            int const thirdLabel = IntegerAt(data, row, 3);
            if (thirdLabel != 0) {
                if (!target->IsMember(thirdLabel)) {
                    missingNode(thirdLabel);
                    continue;
                }
                third = pointOf(target->ConstGet(thirdLabel));
            } else {
                inp_Coord point(NumberAt(data, row, 4), NumberAt(data, row, 5),
                                NumberAt(data, row, 6));
                if (system == "C")
                    point.Cylindrical2Rectangular();
                else if (system == "S")
                    point.Spherical2Rectangular();
                gsl_Point moved = point.Point();
                m_systemTransform.Transform(moved);
                point.SetPoint(moved);
                third = pointOf(ApplyInstanceTransform(point));
            }
            gsl_Vector direction(NumberAt(data, row, 7), NumberAt(data, row, 8),
                                 NumberAt(data, row, 9));
            // A direction too short to normalise counts as none.
            if (direction.Normalize()) {
                m_systemTransform.Transform(direction);
                planeDirection = {direction.X(), direction.Y(), direction.Z()};
            }
        }

        double radius = 0.0;
        double angle = 0.0;
        inp_Coord startAxis, sideAxis, planeNormal, endAxis;
        if (shape == 'C' &&
            !CircleData(keyword, firstNode, lastNode, recordOf(third), recordOf(planeDirection),
                        radius, angle, startAxis, sideAxis, planeNormal, endAxis))
            break;
        gsl_Vector const X = pointOf(startAxis);
        gsl_Vector const Y = pointOf(sideAxis);
        gsl_Vector const Z = pointOf(planeNormal);
        gsl_Vector const E = pointOf(endAxis);
        double const r1 = n1.DotProduct(X);
        double const r2 = n2.DotProduct(E);
        double const z1 = n1.DotProduct(Z);
        double const z2 = n2.DotProduct(Z);
        double const sideGrowth = shape == 'C' ? (r2 - r1) * kHalfPi / angle : 0.0;

        double const n = static_cast<double>(steps);
        for (std::int64_t k = 1; k < steps; ++k) {
            double const t = 2.0 * static_cast<double>(k) / n - 1.0;
            inp_Coord record;
            if (shape == 'C') {
                double const s = (t + 1.0) / 2.0 * angle;
                double const sine = std::sin(s);
                double const cosine = std::cos(s);
                gsl_Vector const p = combine(Y, radius * sine, X, radius * cosine);
                record = {third.X() + p.X(), third.Y() + p.Y(), third.Z() + p.Z()};
                if (withNormals) {
                    double const zPart = (1.0 + t) * z2 / 2.0 + (1.0 - t) * z1 / 2.0;
                    gsl_Vector const nxy = combine(X, r1 * cosine, Y, (r1 + sideGrowth) * sine);
                    record.AttachNormalComponents(zPart * Z.X() + nxy.X(), zPart * Z.Y() + nxy.Y(),
                                                  zPart * Z.Z() + nxy.Z());
                }
            } else {
                if (shape == 'P') {
                    double const w1 = t * (t - 1.0) / 2.0;
                    double const wm = -(t + 1.0) * (t - 1.0);
                    double const w2 = (t + 1.0) * t / 2.0;
                    record = {w1 * p1.X() + wm * third.X() + w2 * p2.X(),
                              w1 * p1.Y() + wm * third.Y() + w2 * p2.Y(),
                              w1 * p1.Z() + wm * third.Z() + w2 * p2.Z()};
                } else {
                    record = {((1.0 + t) * p2.X() - (t - 1.0) * p1.X()) / 2.0,
                              ((1.0 + t) * p2.Y() - (t - 1.0) * p1.Y()) / 2.0,
                              ((1.0 + t) * p2.Z() - (t - 1.0) * p1.Z()) / 2.0};
                }
                if (withNormals)
                    record.AttachNormalComponents(((1.0 + t) * n2.X() - (t - 1.0) * n1.X()) / 2.0,
                                                  ((1.0 + t) * n2.Y() - (t - 1.0) * n1.Y()) / 2.0,
                                                  ((1.0 + t) * n2.Z() - (t - 1.0) * n1.Z()) / 2.0);
            }
            record.ZeroSmallerThanTolerance();
            local.Apply(record);
            target->Insert(static_cast<int>(first + k * increment), record);
        }
    }

    if (collect && !labels.IsEmpty()) addLabelSet(nset, labels);
}

bool inp_NodeVisitor::CircleData(inp_Keyword const& keyword, inp_Coord const& first,
                                 inp_Coord const& last, inp_Coord const& center,
                                 inp_Coord const& normal, double& radius, double& angle,
                                 inp_Coord& startAxis, inp_Coord& sideAxis, inp_Coord& planeNormal,
                                 inp_Coord& endAxis) {
    gsl_Vector const c0 = pointOf(center);
    gsl_Vector a = pointOf(first) - c0;
    gsl_Vector b = pointOf(last) - c0;
    double const lengthA = a.ComputeMagnitude();
    double const lengthB = b.ComputeMagnitude();
    if (lengthA < kCenterTolerance || lengthB < kCenterTolerance) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("End point of the arc has the same coordinates as the center of the "
                         "circle.")));
        return false;
    }
    radius = (lengthA + lengthB) / 2.0;
    if (std::fabs(lengthA - lengthB) / radius > 0.1)
        AddWarning(inp_Utils::MessageInKeyword(
            keyword, atr("The radii for LINE=C are not equal. The end points must be moved by more "
                         "than 5 percent to lie on a circle.")));

    a = combine(a, 1.0 / lengthA, a, 0.0);
    b = combine(b, 1.0 / lengthB, b, 0.0);
    endAxis = recordOf(b);
    double const x = a.DotProduct(b);
    angle = x <= -1.0 ? kPi : x >= 1.0 ? 0.0 : std::acos(x);
    gsl_Vector c = a.CrossProduct(b);

    gsl_Vector const given = pointOf(normal);
    if (given.ComputeMagnitude() == 0.0) {
        // Without a normal the arc runs the short way, and it needs a plane.
        if (angle < kSmallAngle || angle > kNearlyPi) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The three nodes defining a circle lie on a line. A normal direction "
                             "must be given.")));
            return false;
        }
    } else {
        // A normal picks the side: coinciding ends make a full circle, and a
        // normal against a x b the longer arc.
        if (angle < kSmallAngle)
            angle = kTwoPi;
        else if (given.DotProduct(c) < 0.0)
            angle = kTwoPi - angle;
        c = given;
    }
    c.Normalize();
    planeNormal = recordOf(c);
    sideAxis = recordOf(c.CrossProduct(a));
    startAxis = recordOf(a);
    return true;
}

// -- *NFILL ---------------------------------------------------------------------------

void inp_NodeVisitor::VisitNfill(inp_Keyword& keyword) {
    // The bias is defaulted before it is tested: an absent BIAS (or 0) is
    // 1.0, so SINGULAR is refused unless BIAS is negative, and "no bias" for
    // TWO STEP is a bias of 1.0.
    double bias = keyword.GetParameterAsDouble("bias", 0.0);
    if (bias == 0.0) bias = 1.0;
    int singular = 0;
    if (inp_Item const* const item = keyword.Parameters().Find("singular")) {
        if (bias > 0.0) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Parameters SINGULAR and BIAS are mutually exclusive.")));
            return;
        }
        if (item->Type() == inp_Types::inp_INTEGER) singular = item->AsInt();
        if (singular != 1 && singular != 2) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Parameter SINGULAR=%s is invalid.", item->AsString())));
            return;
        }
    }
    bool const twoStep = keyword.HasParameter("twostep");
    if (twoStep && bias == 1.0)
        AddWarning(inp_Utils::MessageInKeyword(
            keyword,
            atr("The TWO STEP parameter is ignored as the BIAS parameter not specified.")));

    inp_CoordMap* const target = targetMap(keyword);
    if (target == nullptr) return;
    inp_DataArray const& data = keyword.Data();
    cow_String const nset = keyword.GetParameterAsString("nset", "");
    LocalFrame const local(m_instanceTransform);
    cow_List<int> labels;

    for (int row = 0; row < data.Rows(); ++row) {
        if (data.Cols(row) < 3) {
            AddError(inp_Utils::MessageInKeyword(keyword,
                                                 invalidLine("Invalid data line: ", data, row)));
            continue;
        }
        cow_String const names[2] = {data.AsString(row, 0), data.AsString(row, 1)};
        cow_List<int> lists[2];
        bool found = true;
        for (int s = 0; s < 2; ++s) {
            // Outside a part or instance the sets of the level itself count.
            cow_String scope = CurrentName();
            bool const exists = CheckExistenceOfOldSet(names[s], scope) ||
                                (scope.IsEmpty() && !m_searchAssembly && m_setMap.HasSet(names[s]));
            if (!exists) {
                AddError(inp_Utils::MessageInKeyword(keyword,
                                                     atr("Node set %s does not exist.", names[s])));
                found = false;
                continue;
            }
            inpM_SetHandle const& set = scope.IsEmpty()
                                            ? m_setMap.ConstGetSet(names[s])
                                            : m_setMap.ConstGetNestedSet(scope, names[s]);
            lists[s] = set->ConstGetIdList();
        }
        if (!found) continue;
        int pairs = lists[0].Length();
        if (lists[0].Length() != lists[1].Length()) {
            pairs = std::min(lists[0].Length(), lists[1].Length());
            AddWarning(inp_Utils::MessageInKeyword(
                keyword, withExtra(atr("Node sets %1$s and %2$s have different number of nodes - "
                                       "%3$d and %4$d. Only %5$d nodes will be used.",
                                       names[0], names[1], lists[0].Length(), lists[1].Length()),
                                   "%5$d", cow_String::FromInt(pairs))));
        }

        int const intervals = IntegerAt(data, row, 2);
        if (intervals < 1) {
            AddError(inp_Utils::MessageInKeyword(keyword,
                                                 atr("The number of intervals must be given.")));
            return;
        }
        if (singular != 0 && intervals % 2 != 0) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The number of intervals must be even when the SINGULAR parameter "
                             "is specified.")));
            return;
        }
        int increment = IntegerAt(data, row, 3);
        if (increment == 0) increment = 1;

        // The sum of the interval lengths, once for the row. With TWO STEP
        // the intervals come in pairs of equal length.
        double total = 0.0;
        {
            double step = 1.0;
            for (int i = 0; i < intervals; ++i) {
                total += step;
                if (!(twoStep && i % 2 == 0)) step /= bias;
            }
        }

        for (int pair = 0; pair < pairs; ++pair) {
            int const la = lists[0][pair];
            int const lb = lists[1][pair];
            inp_Coord nodeA, nodeB;
            if (m_readCoordinates) {
                bool const hasA = target->IsMember(la);
                bool const hasB = target->IsMember(lb);
                for (int s = 0; s < 2; ++s)
                    if (!(s == 0 ? hasA : hasB))
                        AddError(inp_Utils::MessageInKeyword(
                            keyword, atr("Node set %s entered under an *NFILL definition contains "
                                         "non-existent nodes. ",
                                         names[s])));
                if (!hasA || !hasB) continue;
                nodeA = target->ConstGet(la);
                nodeB = target->ConstGet(lb);
            }
            if (std::int64_t{la} + std::int64_t{increment} * intervals != lb) {
                atr_String message =
                    atr("The number of intervals %1$d and the node increment %2$d are inconsistent "
                        "with the node numbers of two sets: %3$s - %4$d, %5$s - %6$d .",
                        intervals, increment, names[0], la);
                message.ReplaceNonTranslated("%5$s", names[1]);
                message.ReplaceNonTranslated("%6$d", cow_String::FromInt(lb));
                AddWarning(inp_Utils::MessageInKeyword(keyword, message));
            }
            labels.Append(la);
            labels.Append(lb);
            auto labelOf = [&](int k) {
                return static_cast<int>(std::int64_t{la} + std::int64_t{k} * increment);
            };

            if (!m_readCoordinates) {
                for (int k = 1; k < intervals; ++k) {
                    target->Insert(labelOf(k), inp_Coord());
                    labels.Append(labelOf(k));
                }
                continue;
            }

            gsl_Vector const A = pointOf(nodeA);
            gsl_Vector const B = pointOf(nodeB);
            gsl_Vector nA = normalOf(nodeA);
            gsl_Vector nB = normalOf(nodeB);
            bool const okA = nA.Normalize();
            bool const okB = nB.Normalize();
            // One normal stands for both; none makes none.
            if (okA && !okB) nB = nA;
            if (okB && !okA) nA = nB;
            bool const withNormals = okA || okB;

            auto store = [&](int label, gsl_Vector const& p, gsl_Vector const& normal) {
                inp_Coord record = recordOf(p);
                if (withNormals) record.AttachNormalComponents(normal.X(), normal.Y(), normal.Z());
                local.Apply(record);
                target->Insert(label, record);
                labels.Append(label);
            };

            if (singular == 0) {
                double step = 1.0;
                double cumulative = 0.0;
                for (int k = 1; k < intervals; ++k) {
                    cumulative += step;
                    double const f = cumulative / total;
                    store(labelOf(k), combine(B, f, A, 1.0 - f), combine(nB, f, nA, 1.0 - f));
                    if (!(twoStep && k % 2 == 1)) step /= bias;
                }
                continue;
            }

            // Quarter-point layers: corners at squared fractions, crowded at
            // the first set (SINGULAR=1) or at the second (SINGULAR=2); the
            // midside next to the crowded end sits at a quarter of its
            // interval.
            int const half = intervals / 2;
            gsl_Vector previous = A;
            gsl_Vector previousNormal = nA;
            int k = 1;
            for (int i = 1; i <= half; ++i) {
                double a = static_cast<double>(i) / half;
                if (singular == 2) a = 1.0 - a;
                a *= a;
                gsl_Vector const corner =
                    singular == 1 ? combine((B - A), a, A, 1.0) : combine(B, 1.0, (B - A), -a);
                gsl_Vector const cornerNormal = singular == 1 ? combine((nB - nA), a, nA, 1.0)
                                                              : combine(nB, 1.0, (nB - nA), -a);
                double w = 0.5;  // weight of the previous corner
                if (i == 1 && singular == 1)
                    w = 0.75;
                else if (i == half && singular == 2)
                    w = 0.25;
                store(labelOf(k++), combine(previous, w, corner, 1.0 - w),
                      combine(previousNormal, w, cornerNormal, 1.0 - w));
                if (i != half) store(labelOf(k++), corner, cornerNormal);
                previous = corner;
                previousNormal = cornerNormal;
            }
        }
    }

    if (!nset.IsEmpty() && !labels.IsEmpty()) addLabelSet(nset, labels);
}
