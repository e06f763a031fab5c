// Where keywords name a distribution, and the default values of the
// distributions the walk has passed.

#include "assembly/inp_DistributionFixupVisitor.h"

#include "deck/inp_Item.h"

inp_DistributionFixupVisitor::~inp_DistributionFixupVisitor() = default;

void inp_DistributionFixupVisitor::replaceFirstNameOfFirstLine(inp_Keyword& keyword) {
    if (keyword.Data().HasValue(0, 0) && IsNameText(keyword.Data().AsString(0, 0)))
        ReplaceData(keyword, 0, 0);
}

void inp_DistributionFixupVisitor::VisitDensity(inp_Keyword& keyword) {
    replaceFirstNameOfFirstLine(keyword);
}
void inp_DistributionFixupVisitor::VisitElastic(inp_Keyword& keyword) {
    replaceFirstNameOfFirstLine(keyword);
}
void inp_DistributionFixupVisitor::VisitExpansion(inp_Keyword& keyword) {
    replaceFirstNameOfFirstLine(keyword);
}

void inp_DistributionFixupVisitor::VisitDistribution(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "name");
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    if (!name.IsEmpty()) m_distributions.Insert(name, keyword);
}

void inp_DistributionFixupVisitor::VisitMembraneSection(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "membranethickness");
}

// Distributions of the first and second direction.
void inp_DistributionFixupVisitor::VisitOrientation(inp_Keyword& keyword) {
    for (int column : {1, 2})
        if (keyword.Data().HasValue(0, column) && IsNameText(keyword.Data().AsString(0, column)))
            ReplaceData(keyword, 0, column);
}

// The thickness and the offset may be distributions; an offset of SPOS,
// SNEG or a number is none. A composite section may give each layer's
// thickness by a distribution in its first column.
void inp_DistributionFixupVisitor::VisitShellSection(inp_Keyword& keyword) {
    ReplaceParameter(keyword, "shellthickness");
    inp_Item const* offset = keyword.Parameters().Find("offset");
    if (offset != nullptr && offset->Type() == inp_Types::inp_STRING) {
        cow_String const value = offset->AsString();
        if (value != "SPOS" && value != "SNEG") ReplaceParameter(keyword, "offset");
    }
    if (!keyword.HasParameter("composite")) return;
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        if (keyword.Data().HasValue(line, 0) && IsNameText(keyword.Data().AsString(line, 0)))
            ReplaceData(keyword, line, 0);
}

void inp_DistributionFixupVisitor::VisitShellGeneralSection(inp_Keyword& keyword) {
    VisitShellSection(keyword);
}

int inp_DistributionFixupVisitor::GetDefaultDataDouble(cow_String const& name, double* values,
                                                       int count) const {
    inp_Keyword const* distribution = m_distributions.Find(name);
    if (distribution == nullptr) return 0;
    inp_DataArray const& data = distribution->Data();
    if (data.Rows() == 0 || data.Cols(0) == 0 || !data.IsNone(0, 0)) return 0;
    int read = 0;
    for (int column = 1; column < data.Cols(0) && read < count; ++column) {
        if (!data.HasValue(0, column)) break;
        values[read++] = data.AsDouble(0, column);
    }
    return read;
}
