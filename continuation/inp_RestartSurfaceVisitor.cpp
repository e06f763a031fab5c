#include "continuation/inp_RestartSurfaceVisitor.h"

#include "mesh/inp_Utils.h"

namespace {

bool existsIn(inpM_SurfaceMap const& surfaces, cow_List<cow_String> const& pieces) {
    cow_String const& last = pieces.ConstGet(pieces.Length() - 1);
    if (pieces.Length() == 1) return surfaces.IsMemberAssemblyInstanceSurface(last);
    return surfaces.IsMemberPartInstanceSurface(pieces.ConstGet(pieces.Length() - 2), last);
}

}  // namespace

inp_RestartSurfaceVisitor::inp_RestartSurfaceVisitor(
    inpM_SurfaceMap const& oldSurfaces, cow_String const& assemblyName, bool partsModel,
    inpM_SetMap const& nodeSets, inpM_SetMap const& elementSets,
    inpM_InstanceMap<inp_MapInt2Element> const& elements)
    : inp_SurfaceVisitor(nodeSets, elementSets, elements, inp_CoordMap()),
      m_oldSurfaces(oldSurfaces),
      m_originalAssemblyName(assemblyName),
      m_partsModel(partsModel) {
    // A combined surface may name the earlier job's surfaces.
    m_surfaceMap = oldSurfaces;
}

bool inp_RestartSurfaceVisitor::IsAnalyticalSurface(inp_Keyword const& keyword) {
    cow_String const type = keyword.GetParameterAsString("type", cow_String("ELEMENT"));
    return inp_Utils::IsAnalyticalSurfaceType(type);
}

void inp_RestartSurfaceVisitor::VisitAnalyticalSurface(inp_Keyword& keyword) {
    AddError(inp_Utils::MessageInKeyword(
        keyword, atr("Analytical surfaces may not be defined upon restart. ")));
}

void inp_RestartSurfaceVisitor::VisitSurface(inp_Keyword& keyword) {
    if (IsAnalyticalSurface(keyword)) {
        VisitAnalyticalSurface(keyword);
        return;
    }
    if (!mayAdd(keyword, keyword.GetParameterAsString("name", cow_String()))) return;
    inp_SurfaceVisitor::VisitSurface(keyword);
}

bool inp_RestartSurfaceVisitor::mayAdd(inp_Keyword const& keyword, cow_String const& name) {
    cow_List<cow_String> pieces = inp_Utils::SplitScopedSet(name);
    bool const withAssembly = pieces.Length() > 1 && pieces.ConstGet(0) == m_originalAssemblyName;
    cow_List<cow_String> scoped = pieces;
    if (withAssembly) scoped.RemoveIndex(0);
    if (m_oldSurfaces.IsMemberAssemblyInstanceSurface(name) ||
        (scoped.Length() <= 2 && existsIn(m_oldSurfaces, scoped))) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Error in *SURFACE: the surface %1$s already exists in the original "
                         "analysis. It cannot be modified upon restart.",
                         name)));
        return false;
    }
    if (!m_partsModel) {
        if (pieces.Length() == 1) return true;
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The input file for the original analysis does not contain parts and "
                "assemblies.  Upon restart, only assembly level element and node-based surfaces "
                "may be defined.  The name given by the NAME parameter should not contain any "
                "periods which imply an assembly of part instances.  The unrecognizable name "
                "is: %1$s",
                name)));
        return false;
    }
    if (pieces.Length() < 2 || pieces.Length() > 3) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("The complete name of a surface defined upon restart should contain: an assembly "
                "name, an optional instance name, and a surface name. The unrecognizable name in "
                "question is %1$s",
                name)));
        return false;
    }
    if (!withAssembly) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("%1$s is not the assembly name in the original analysis.", pieces.ConstGet(0))));
        return false;
    }
    if (pieces.Length() == 3 && !m_instancePartNames.IsMember(pieces.ConstGet(1)) &&
        !m_oldSurfaces.HasInstanceInPartInstanceSurfaceMap(pieces.ConstGet(1))) {
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("%1$s is not a part instance of the original analysis.", pieces.ConstGet(1))));
        return false;
    }
    return true;
}

// The surface is read at the assembly level from a copy of the keyword: a
// combined surface under its short name, an instance's surface with the
// instance put before every member so that the assembly reader finds it.
void inp_RestartSurfaceVisitor::VisitSurfaceDefinition(inp_Keyword& keyword) {
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(name);
    cow_String const shortName = pieces.ConstGet(pieces.Length() - 1);
    inp_Keyword copy = keyword.DeepCopy();
    inpM_AssemblyInstanceSurface surface;
    if (keyword.HasParameter("combine")) {
        copy.SetParameter("name", inp_Item(shortName));
        surface = CreateCombinedAssemblyLevelSurface(copy);
    } else {
        if (pieces.Length() == 3) PrependNameToData(copy, pieces.ConstGet(1), 1);
        surface = CreateAssemblyLevelSurface(copy);
    }
    m_surfaceMap.InsertAssemblyInstanceSurface(shortName, surface);
    m_newSurfaces.InsertAssemblyInstanceSurface(shortName, surface);
}

void inp_RestartSurfaceVisitor::PrependNameToData(inp_Keyword& keyword, cow_String const& name,
                                                  int columns) {
    cow_String prefix = name;
    prefix.append('.');
    inp_DataArray const& data = keyword.Data();
    inp_DataArray scoped;
    for (int row = 0; row < data.Rows(); ++row) {
        cow_List<cow_String> items;
        for (int column = 0; column < data.Cols(row); ++column) {
            cow_String const item = data.AsStringVerbatim(row, column);
            bool const member = column < columns && !data.IsNone(row, column);
            items.Append(member ? prefix + item : item);
        }
        scoped.Append(items);
    }
    keyword.SetData(scoped);
}
