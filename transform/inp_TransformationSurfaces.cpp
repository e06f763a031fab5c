// Analytical and cutting surfaces of a moved instance: the local system of a
// cylinder or a surface of revolution is written anew from the instance's
// position, the outline of a segments surface is moved point by point, and
// a cutting plane is moved. These are rewritten wherever they stand, under
// any transform, as soon as TYPE is given.

#include "mesh/inp_Utils.h"
#include "transform/inp_TransformationVisitor.h"

namespace {

cow_String number(double value) {
    return cow_String::FromDouble(value);
}

void appendPoints(inp_Keyword& keyword, std::initializer_list<gsl_Point> points) {
    cow_List<cow_String> items;
    for (gsl_Point const& point : points) {
        items.Append(number(point.x));
        items.Append(number(point.y));
        items.Append(number(point.z));
    }
    keyword.Data().Append(items);
}

}  // namespace

gsl_Point inp_TransformationVisitor::GetAndTransform2DPoint(inp_Keyword const& keyword, int row,
                                                            int column) const {
    inp_DataArray const& data = keyword.Data();
    auto const value = [&](int at) {
        return at < data.Cols(row) && data.HasValue(row, at) ? data.AsDouble(row, at) : 0.0;
    };
    gsl_Point point(value(column), value(column + 1), 0.0);
    m_currentTransform.Transform(point);
    return point;
}

int inp_TransformationVisitor::GotoLineWithStart(inp_Keyword const& keyword, int& leadingLines) {
    inp_DataArray const& data = keyword.Data();
    leadingLines = 0;
    for (int row = 0; row < data.Rows(); ++row) {
        bool const blank = data.Cols(row) == 0 || (data.Cols(row) == 1 && !data.HasValue(row, 0));
        if (!blank && data.HasValue(row, 0) && data.AsString(row, 0) == "START") return row;
        if (!blank) ++leadingLines;
    }
    return data.Rows();
}

void inp_TransformationVisitor::CopyAppendDataLines(inp_Keyword const& from, int firstRow,
                                                    inp_Keyword& to) const {
    inp_DataArray const& data = from.Data();
    for (int row = firstRow; row < data.Rows(); ++row) {
        cow_List<cow_String> items;
        for (int column = 0; column < data.Cols(row); ++column)
            if (data.HasValue(row, column)) items.Append(data.AsStringVerbatim(row, column));
        to.Data().Append(items);
    }
}

void inp_TransformationVisitor::ComputePointsABFromCoordSystem(gsl_Point& a, gsl_Point& b) const {
    gsl_Vector const t = m_currentTransform.GetTranslation();
    gsl_Vector const y = m_currentTransform.RotationColumn(1);
    a = gsl_Point(t.X(), t.Y(), t.Z());
    b = gsl_Point(t.X() + y.X(), t.Y() + y.Y(), t.Z() + y.Z());
}

void inp_TransformationVisitor::ComputePointsABCFromCoordSystem(gsl_Point& a, gsl_Point& b,
                                                                gsl_Point& c) const {
    gsl_Vector const t = m_currentTransform.GetTranslation();
    gsl_Vector const x = m_currentTransform.RotationColumn(0);
    gsl_Vector const z = m_currentTransform.RotationColumn(2);
    a = gsl_Point(t.X(), t.Y(), t.Z());
    b = gsl_Point(t.X() + x.X(), t.Y() + x.Y(), t.Z() + x.Z());
    c = gsl_Point(t.X() - z.X(), t.Y() - z.Y(), t.Z() - z.Z());
}

void inp_TransformationVisitor::VisitSurface(inp_Keyword& keyword) {
    if (!keyword.HasParameter("type")) return;
    cow_String const type = keyword.GetParameterAsString("type", cow_String());
    if (type == "CUTTINGSURFACE") {
        cow_String const definition = keyword.GetParameterAsString("definition", "COORDINATES");
        if (definition != "COORDINATES") return;
        TransformSinglePoint(keyword, 0, 0);
        TransformSingleVector(keyword, 0, 3);
        return;
    }
    if (type != "CYLINDER" && type != "REVOLUTION" && type != "SEGMENTS") return;

    inp_Keyword rewritten = keyword;
    rewritten.SetData(inp_DataArray());
    int leadingLines = 0;
    int const start = GotoLineWithStart(keyword, leadingLines);
    if (type == "SEGMENTS") {
        if (!rewriteSegments(keyword, start, leadingLines, rewritten)) return;
    } else {
        rewriteLocalSystem(keyword, type == "CYLINDER", start, leadingLines, rewritten);
    }
    keyword = rewritten;
}

// The points A, B (and C) of the local system, before START, are computed
// from the instance's position unless the user's stand: with the flag, the
// user's stand outside instances only; without it, whenever there are any.
void inp_TransformationVisitor::rewriteLocalSystem(inp_Keyword const& keyword, bool cylinder,
                                                   int start, int leadingLines,
                                                   inp_Keyword& rewritten) {
    bool compute = leadingLines == 0;
    if (m_flag) {
        bool const inInstance = !InstanceName().IsEmpty();
        if (inInstance && leadingLines > 0)
            AddWarning(inp_Utils::MessageInKeyword(
                keyword,
                atr("For a *SURFACE, TYPE={CYLINDER,REVOLUTION} defined at part instance level, "
                    "non-blank lines were detected before the word START, implying that global "
                    "coordinates of points A, B, C defining a local system have been specified.  "
                    "These 3 points are ignored and replaced by ones computed based on the part "
                    "instance's positioning")));
        compute = inInstance;
    }
    if (!compute) {
        CopyAppendDataLines(keyword, 0, rewritten);
        return;
    }
    gsl_Point a, b, c;
    if (cylinder) {
        ComputePointsABCFromCoordSystem(a, b, c);
        appendPoints(rewritten, {a, b});
        appendPoints(rewritten, {c});
    } else {
        ComputePointsABFromCoordSystem(a, b);
        appendPoints(rewritten, {a, b});
    }
    CopyAppendDataLines(keyword, start, rewritten);
}

// The outline moves point by point in the plane: START, then LINE with one
// point, CIRCL and PARAB with two. Another shape leaves the keyword as it
// was (false).
bool inp_TransformationVisitor::rewriteSegments(inp_Keyword const& keyword, int start,
                                                int leadingLines, inp_Keyword& rewritten) {
    if (leadingLines > 0)
        AddWarning(inp_Utils::MessageInKeyword(
            keyword, atr("For a *SURFACE, TYPE=SEGMENTS, non-blank lines were detected before "
                         "the word START. These are ignored. ")));
    inp_DataArray const& data = keyword.Data();
    if (start == data.Rows()) return false;  // no outline to move
    for (int row = start; row < data.Rows(); ++row) {
        bool const blank = data.Cols(row) == 0 || !data.HasValue(row, 0);
        if (blank) continue;
        cow_String const shape = row == start ? cow_String("START") : data.AsString(row, 0);
        int const points = shape == "START" || shape == "LINE"    ? 1
                           : shape == "CIRCL" || shape == "PARAB" ? 2
                                                                  : 0;
        if (points == 0) {
            AddError(inp_Utils::MessageInKeyword(
                keyword,
                atr("Error in the data lines of *SURFACE, TYPE=SEGMENTS.  The shape (first "
                    "column) must be either LINE, CIRCL, or PARAB.  The unknown shape in "
                    "question is: %1$s",
                    shape)));
            return false;
        }
        if (!numbersAt(keyword, row, 1, 2 * points)) return false;
        cow_List<cow_String> items;
        items.Append(shape);
        for (int p = 0; p < points; ++p) {
            gsl_Point const point = GetAndTransform2DPoint(keyword, row, 1 + 2 * p);
            items.Append(number(point.x));
            items.Append(number(point.y));
        }
        rewritten.Data().Append(items);
    }
    return true;
}
