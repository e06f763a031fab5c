// The walk of inp_SurfaceFixupVisitor: reading each surface name, asking the
// subclass, writing back what changed.

#include "assembly/inp_SurfaceFixupVisitor.h"

#include "assembly/inp_KeywordRewrite.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"

inp_SurfaceFixupVisitor::inp_SurfaceFixupVisitor(inpM_SurfaceMap const& surfaces)
    : m_surfaces(surfaces) {}

inp_SurfaceFixupVisitor::~inp_SurfaceFixupVisitor() = default;

cow_String inp_SurfaceFixupVisitor::Fixup(inp_Keyword const& keyword, cow_String const& name) {
    try {
        return FixupSurfaceName(name, AssemblyName(), InstanceName(), PartName());
    } catch (inp_PrimException const& failure) {
        AddWarning(inp_Utils::MessageInKeyword(keyword, failure.UserReport()));
        return name;
    }
}

void inp_SurfaceFixupVisitor::ReplaceSurfaceItem(inp_Keyword& keyword, int line, int column) {
    inp_RewriteDataItem(keyword, line, column,
                        [&](cow_String const& name) { return Fixup(keyword, name); });
}

void inp_SurfaceFixupVisitor::ReplaceSurfaceData(inp_Keyword& keyword, std::span<int const> columns,
                                                 int stride, int offset) {
    if (stride < 1) stride = 1;
    for (int line = offset < 0 ? 0 : offset; line < keyword.Data().Rows(); line += stride)
        for (int column : columns) ReplaceSurfaceItem(keyword, line, column);
}

void inp_SurfaceFixupVisitor::ReplaceSurfaceAllData(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        for (int column = 0; column < keyword.Data().Cols(line); ++column)
            ReplaceSurfaceItem(keyword, line, column);
}

void inp_SurfaceFixupVisitor::ReplaceSurfaceParameter(inp_Keyword& keyword,
                                                      cow_String const& name) {
    inp_RewriteParameter(keyword, name,
                         [&](cow_String const& surface) { return Fixup(keyword, surface); });
}

void inp_SurfaceFixupVisitor::DefaultAction(inp_Keyword& keyword) {
    for (inp_SurfaceReference const& reference : PlainReferencesOf(keyword.Keyword())) {
        switch (reference.form) {
            case inp_SurfaceReference::Form::Parameter:
                ReplaceSurfaceParameter(keyword, reference.parameter);
                break;
            case inp_SurfaceReference::Form::Column: {
                int const column[] = {reference.column};
                ReplaceSurfaceData(keyword, column, reference.stride, 0);
                break;
            }
            case inp_SurfaceReference::Form::AllData:
                ReplaceSurfaceAllData(keyword);
                break;
        }
    }
}
