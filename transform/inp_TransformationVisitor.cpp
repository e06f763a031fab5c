#include "transform/inp_TransformationVisitor.h"

#include "mesh/inp_Coord.h"
#include "mesh/inp_Utils.h"

inp_TransformationVisitor::inp_TransformationVisitor(
    inpM_InstanceMap<gsl_Matrix> const& transformations, cow_List<int> const& transformNodes,
    inpM_SetMap& nodeSets, inpM_IdMap const& nodeIdMap, bool flag, inp_CoordMap const& coordMap,
    inpM_InstanceMap<inp_MapInt2Element> const& elementMap, inpM_SetMap const& elementSets,
    inp_ModelParameters const& modelParameters)
    : m_transformations(transformations),
      m_transformNodes(transformNodes),
      m_nodeSets(nodeSets),
      m_nodeIdMap(nodeIdMap),
      m_coordMap(coordMap),
      m_elementMap(elementMap),
      m_elementSets(elementSets),
      m_flag(flag),
      m_modelParameters(modelParameters),
      m_transformNodeLookup(transformNodes.begin(), transformNodes.end()) {}

inp_TransformationVisitor::~inp_TransformationVisitor() = default;

// -- the walk ----------------------------------------------------------------------

void inp_TransformationVisitor::VisitList(cow_List<inp_Keyword>& keywords) {
    m_topLevelAuxiliaries = cow_List<inp_Keyword>();
    inp_Visitor::VisitList(keywords);
    for (inp_Keyword const& auxiliary : m_topLevelAuxiliaries) keywords.Append(auxiliary);
}

// The children are counted before the walk: what they cause is appended
// after it and is not walked again.
void inp_TransformationVisitor::VisitSuboptions(inp_Keyword& keyword) {
    if (keyword.Suboptions().IsEmpty()) return;
    m_keywordStack.emplace_back();
    inp_Visitor::VisitSuboptions(keyword);
    cow_List<inp_Keyword> const gathered = m_keywordStack.back();
    m_keywordStack.pop_back();
    for (inp_Keyword const& auxiliary : gathered) keyword.GetSuboptions().Append(auxiliary);
}

void inp_TransformationVisitor::AppendAuxiliary(inp_Keyword const& keyword) {
    if (m_keywordStack.empty())
        m_topLevelAuxiliaries.Append(keyword);
    else
        m_keywordStack.back().Append(keyword);
}

gsl_Matrix inp_TransformationVisitor::levelTransform() const {
    return m_transformations.HasValue() ? m_transformations.ConstGet() : gsl_Matrix();
}

void inp_TransformationVisitor::VisitAssembly(inp_Keyword& keyword) {
    inp_Visitor::VisitAssembly(keyword);
    m_currentTransform = levelTransform();
}

void inp_TransformationVisitor::VisitEndAssembly(inp_Keyword& keyword) {
    inp_Visitor::VisitEndAssembly(keyword);
    m_currentTransform = gsl_Matrix();
}

void inp_TransformationVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitInstance(keyword);
    cow_String const& instance = InstanceName();
    m_currentTransform = !instance.IsEmpty() && m_transformations.IsMember(instance) &&
                                 m_transformations.ConstGetMap(instance).HasValue()
                             ? m_transformations.ConstGet(instance)
                             : gsl_Matrix();
}

void inp_TransformationVisitor::VisitEndInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitEndInstance(keyword);
    m_currentTransform = levelTransform();
}

cow_String const& inp_TransformationVisitor::scope() const {
    return InstanceName().IsEmpty() ? PartName() : InstanceName();
}

bool inp_TransformationVisitor::guarded(inp_Keyword const& keyword) const {
    return scope().IsEmpty() || m_currentTransform.IsIdentity() || keyword.Data().Rows() == 0;
}

bool inp_TransformationVisitor::numbersAt(inp_Keyword const& keyword, int row, int first,
                                          int count) {
    inp_DataArray const& data = keyword.Data();
    if (row >= data.Rows()) return true;
    for (int column = first; column < first + count && column < data.Cols(row); ++column) {
        if (!data.HasValue(row, column)) continue;
        inp_Types::typeEnm const type = data.Type(row, column);
        if (type == inp_Types::inp_INTEGER || type == inp_Types::inp_REAL) continue;
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The data item %1$s stands where a number belongs; the keyword is left "
                         "as written.",
                         data.AsStringVerbatim(row, column))));
        return false;
    }
    return true;
}

void inp_TransformationVisitor::ownData(inp_Keyword& keyword) {
    if (keyword.Data().UseCount() > 1) keyword.SetData(keyword.Data().Copy());
}

// -- points and vectors ---------------------------------------------------------------

void inp_TransformationVisitor::readTriple(inp_DataArray const& data, int row, int column,
                                           double (&values)[3]) {
    for (int k = 0; k < 3; ++k) {
        int const at = column + k;
        bool const given = at < data.Cols(row) && data.HasValue(row, at);
        values[k] = given ? data.AsDouble(row, at) : 0.0;
    }
}

void inp_TransformationVisitor::writeTriple(inp_Keyword& keyword, int row, int column,
                                            double const (&values)[3]) {
    ownData(keyword);
    for (int k = 0; k < 3; ++k)
        keyword.Data().Set(row, column + k, cow_String::FromDouble(values[k]));
}

void inp_TransformationVisitor::TransformSinglePoint(inp_Keyword& keyword, int row, int column) {
    transformAt(keyword, row, column, false);
}

void inp_TransformationVisitor::TransformSingleVector(inp_Keyword& keyword, int row, int column) {
    transformAt(keyword, row, column, true);
}

void inp_TransformationVisitor::transformAt(inp_Keyword& keyword, int row, int column,
                                            bool asVector) {
    inp_DataArray const& data = keyword.Data();
    if (row >= data.Rows() || column >= data.Cols(row) || !data.HasValue(row, column)) return;
    if (!numbersAt(keyword, row, column, 3)) return;
    double values[3];
    readTriple(data, row, column, values);
    if (asVector) {
        gsl_Vector vector(values[0], values[1], values[2]);
        m_currentTransform.Transform(vector);
        writeTriple(keyword, row, column, {vector.X(), vector.Y(), vector.Z()});
    } else {
        gsl_Point point(values[0], values[1], values[2]);
        m_currentTransform.Transform(point);
        writeTriple(keyword, row, column, {point.x, point.y, point.z});
    }
}

gsl_Vector inp_TransformationVisitor::ZeroSmallerThanTolerance(gsl_Vector const& vector) {
    inp_Coord coord(vector.X(), vector.Y(), vector.Z());
    coord.ZeroSmallerThanTolerance();
    return {coord.x, coord.y, coord.z};
}

gsl_Point inp_TransformationVisitor::ZeroSmallerThanTolerance(gsl_Point const& point) {
    inp_Coord coord(point.x, point.y, point.z);
    coord.ZeroSmallerThanTolerance();
    return {coord.x, coord.y, coord.z};
}

void inp_TransformationVisitor::MatrixMultiply3x3(double (*a)[3], double (*b)[3],
                                                  double (*product)[3]) {
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) {
            double sum = 0.0;
            for (int k = 0; k < 3; ++k) sum += a[i][k] * b[k][j];
            product[i][j] = sum;
        }
}

// -- orientation data ---------------------------------------------------------------

namespace {

// The items of a row as texts, empty ones left out.
cow_List<cow_String> rowTexts(inp_DataArray const& data, int row) {
    cow_List<cow_String> items;
    for (int column = 0; column < data.Cols(row); ++column)
        if (data.HasValue(row, column)) items.Append(data.AsStringVerbatim(row, column));
    return items;
}

}  // namespace

inp_Keyword inp_TransformationVisitor::TransformOrientationData(inp_Keyword const& keyword,
                                                                bool vectorsOnly) const {
    inp_Keyword result = keyword;
    result.SetData(inp_DataArray());
    inp_DataArray const& data = keyword.Data();
    if (data.Rows() == 0) return result;
    bool const named =
        data.Cols(0) > 0 && data.HasValue(0, 0) && data.Type(0, 0) == inp_Types::inp_STRING;
    if (named) {
        result.Data().Append(rowTexts(data, 0));
    } else {
        int const points = data.Cols(0) > 6 ? 3 : 2;
        cow_List<cow_String> items;
        for (int p = 0; p < points; ++p) {
            double values[3];
            readTriple(data, 0, 3 * p, values);
            turnTriple(values, vectorsOnly);
            for (double value : values) items.Append(cow_String::FromDouble(value));
        }
        result.Data().Append(items);
    }
    for (int row = 1; row < data.Rows(); ++row) result.Data().Append(rowTexts(data, row));
    return result;
}

void inp_TransformationVisitor::turnTriple(double (&values)[3], bool asVector) const {
    if (asVector) {
        gsl_Vector vector(values[0], values[1], values[2]);
        m_currentTransform.Transform(vector);
        vector = ZeroSmallerThanTolerance(vector);
        values[0] = vector.X(), values[1] = vector.Y(), values[2] = vector.Z();
        return;
    }
    gsl_Point point(values[0], values[1], values[2]);
    m_currentTransform.Transform(point);
    point = ZeroSmallerThanTolerance(point);
    values[0] = point.x, values[1] = point.y, values[2] = point.z;
}

void inp_TransformationVisitor::addAuxiliaryOrientation(inp_Keyword& keyword, char const* prefix,
                                                        char const* parameter) {
    if (guarded(keyword) || keyword.HasParameter("orientation") || !keyword.HasParameter(parameter))
        return;
    // The value as written, a node label (REF NODE) as well as a name.
    cow_String name(prefix);
    name.append(keyword.Parameters().Find(parameter)->AsString());
    inp_Keyword orientation{cow_String("orientation")};
    orientation.SetParameter("name", inp_Item(name));
    orientation.Data().Append("1,0,0, 0,1,0");
    AppendAuxiliary(TransformOrientationData(orientation, true));
    keyword.SetParameter("orientation", inp_Item(name));
}
