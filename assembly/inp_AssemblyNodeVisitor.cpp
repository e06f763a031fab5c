#include "assembly/inp_AssemblyNodeVisitor.h"

#include <cmath>
#include <numbers>

#include "mesh/inp_Utils.h"

namespace {

bool contains(cow_List<cow_String> const& names, cow_String const& name) {
    for (cow_String const& candidate : names)
        if (candidate == name) return true;
    return false;
}

// The base reads the old node sets only when it is handed some: a job
// without preset sets starts from none, whatever `oldNodeSets` holds.
inpM_SetMap startingSets(bool presetNodeSets, inpM_SetMap const& oldNodeSets) {
    return presetNodeSets ? oldNodeSets : inpM_SetMap();
}

}  // namespace

inp_AssemblyNodeVisitor::inp_AssemblyNodeVisitor(
    inp_CoordMap const& partCoords, inpM_SetMap const& partNodeSets,
    inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elementSets,
    inpM_InstanceMap<cow_String> const& instanceParts, cow_List<cow_String> const& validInstances,
    bool symmetricGenerationJob, bool presetNodeSets, inpM_SetMap const& oldNodeSets,
    cow_List<cow_String> const& importedInstances, inpM_SetMap const& importedNodeSets)
    : inp_NodeVisitor(elements, elementSets, startingSets(presetNodeSets, oldNodeSets), true),
      m_partCoords(partCoords),
      m_partNodeSets(partNodeSets),
      m_validInstances(validInstances),
      m_importedInstances(importedInstances),
      m_importedNodeSets(importedNodeSets),
      m_symmetricGenerationJob(symmetricGenerationJob) {
    setInstancePartNames(instanceParts);
}

inp_AssemblyNodeVisitor::~inp_AssemblyNodeVisitor() = default;

void inp_AssemblyNodeVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Part)) return;
    inp_NodeVisitor::Visit(keyword);
}

bool inp_AssemblyNodeVisitor::IsValidInstanceName(cow_String const& name) const {
    if (!PartName().IsEmpty()) return name == PartName();
    if (!InstanceName().IsEmpty()) return name == InstanceName();
    return contains(m_validInstances, name);
}

bool inp_AssemblyNodeVisitor::isImported(cow_String const& instance) const {
    return !m_importedInstances.IsEmpty() && contains(m_importedInstances, instance);
}

// -- *INSTANCE ------------------------------------------------------------------------

// The data lines of an imported instance were applied by the earlier job:
// its transform stays the identity. An instance without PART that is not
// imported is a defect that another stage reports; its translation line is
// not read, but a rotation line still is, and its transform is kept all the
// same, so that every instance has one.
void inp_AssemblyNodeVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_NodeVisitor::VisitInstance(keyword);
    m_instanceTransform.FillIdentity();
    cow_String const instance = InstanceName();
    m_instancePart = cow_String();
    // A nameless instance is reported by expansion; it has no level to fill.
    if (instance.IsEmpty()) return;
    if (isImported(instance)) {
        if (m_instancePartNames.IsMember(instance) &&
            m_instancePartNames.ConstGetMap(instance).HasValue())
            m_instancePart = m_instancePartNames.ConstGet(instance);
        if (m_importedNodeSets.HasInstance(instance))
            m_setMap.InsertNestedSetMap(instance,
                                        m_importedNodeSets.ConstGetNestedSetMap(instance));
        m_transformationMap.Insert(instance, m_instanceTransform);
        return;
    }
    m_instancePart = keyword.GetParameterAsString("part", cow_String());
    if (!m_instancePart.IsEmpty()) {
        m_coordMap.Insert(instance, inp_CoordMap());
        if (m_partNodeSets.HasInstance(m_instancePart))
            m_setMap.InsertNestedSetMap(instance,
                                        m_partNodeSets.ConstGetNestedSetMap(m_instancePart));
        if (keyword.Data().Rows() >= 1) readTranslation(keyword);
    }
    if (keyword.Data().Rows() >= 2) readRotation(keyword);
    placePartCoords(instance, m_instancePart);
    m_transformationMap.Insert(instance, m_instanceTransform);
}

// The values of a transform line that are neither numbers nor empty: they
// would read as 0 and move the instance somewhere the user did not say.
void inp_AssemblyNodeVisitor::checkTransformLine(inp_Keyword const& keyword, int row, int count) {
    inp_DataArray const& data = keyword.Data();
    int const columns = data.Cols(row) < count ? data.Cols(row) : count;
    cow_List<cow_String> bad;
    for (int j = 0; j < columns; ++j) {
        inp_Types::typeEnm const type = data.Type(row, j);
        if (type != inp_Types::inp_INTEGER && type != inp_Types::inp_REAL &&
            type != inp_Types::inp_NONE)
            bad.Append(data.AsStringVerbatim(row, j));
    }
    if (bad.IsEmpty()) return;
    AddError(inp_Utils::MessageInKeyword(
        keyword,
        atr("The position of an instance is given by numbers; these values are not numbers "
            "and are read as 0"),
        bad));
}

void inp_AssemblyNodeVisitor::readTranslation(inp_Keyword const& keyword) {
    checkTransformLine(keyword, 0, 3);
    gsl_Point const offset = ReadPointFromKeywordData(keyword, 0, 0);
    m_instanceTransform.SetTranslation(offset);
}

// The axis runs through the points as written: it does not move with the
// translation. An axis without length is an error, and the rotation is then
// left out, so that the transform is still complete. The rotation rounds
// sines and cosines of whole quarter turns to exact values, which keeps half
// turns exact.
void inp_AssemblyNodeVisitor::readRotation(inp_Keyword const& keyword) {
    checkTransformLine(keyword, 1, 7);
    gsl_Point const a = ReadPointFromKeywordData(keyword, 1, 0);
    gsl_Point const b = ReadPointFromKeywordData(keyword, 1, 3);
    double const radians = NumberAt(keyword.Data(), 1, 6) * std::numbers::pi / 180.0;
    gsl_Vector axis = b - a;
    if (!axis.Normalize()) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The points defining the axis of rotation are coincident or almost coincident.")));
        return;
    }
    m_instanceTransform.Concatenate(gsl_Matrix::AxisRotation(a, axis, radians));
}

// An unmoved instance keeps the part's map as it is, sharing it whole; a
// moved one a copy that still shares the nodes and carries the transform.
void inp_AssemblyNodeVisitor::placePartCoords(cow_String const& instance, cow_String const& part) {
    if (part.IsEmpty() || !m_partCoords.IsMember(part)) return;
    inp_CoordMap coords = m_partCoords.ConstGet(part);
    if (!m_instanceTransform.IsIdentity()) coords.Transform(m_instanceTransform);
    m_coordMap.Insert(instance, coords);
}

void inp_AssemblyNodeVisitor::VisitEndInstance(inp_Keyword& keyword) {
    inp_NodeVisitor::VisitEndInstance(keyword);
    m_instancePart = cow_String();
    m_instanceTransform.FillIdentity();
    m_systemTransform.FillIdentity();
}

// -- *NSET --------------------------------------------------------------------------------

// A symmetric model generation job builds the nodes of element-based sets
// itself: here only the set's name is made known, as an empty set.
void inp_AssemblyNodeVisitor::VisitNset(inp_Keyword& keyword) {
    if (m_symmetricGenerationJob && keyword.HasParameter("elset")) {
        inp_Keyword nameOnly(keyword.Keyword(), keyword.Origin().WithoutComments());
        nameOnly.SetLineNumber(keyword.LineNumber());
        if (inp_Item const* name = keyword.Parameters().Find("nset"))
            nameOnly.SetParameter("nset", *name);
        inp_NodeVisitor::VisitNset(nameOnly);
        return;
    }
    cow_String const name = keyword.GetParameterAsString("nset", cow_String());
    if (!InstanceName().IsEmpty() && keyword.HasParameter("nset") &&
        m_partNodeSets.HasNestedSet(m_instancePart, name))
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The node set %1$s was defined within part %2$s, then redefined within "
                         "part instance %3$s. A node set cannot be defined at the part level, "
                         "then modified at the part instance level.",
                         name, m_instancePart, InstanceName())));
    inp_NodeVisitor::VisitNset(keyword);
}
