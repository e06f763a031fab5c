// Where keywords name a material outside *MATERIAL.

#include "assembly/inp_MaterialFixupVisitor.h"

#include "assembly/inp_KeywordRewrite.h"

inp_MaterialFixupVisitor::~inp_MaterialFixupVisitor() = default;

void inp_MaterialFixupVisitor::replaceNames(inp_Keyword& keyword, int column) {
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        if (keyword.Data().HasValue(line, column) &&
            IsNameText(keyword.Data().AsString(line, column)))
            ReplaceData(keyword, line, column);
}

// A line gives a material instance's name, then the material's.
void inp_MaterialFixupVisitor::VisitEulerianSection(inp_Keyword& keyword) {
    ReplaceColumn(keyword, 1);
}

// An Eulerian inflator's lines name the materials of the gas it fills in
// and of the gas it displaces: the first two columns.
void inp_MaterialFixupVisitor::VisitFluidInflator(inp_Keyword& keyword) {
    if (!inp_ParameterIsOneOf(keyword, "type", {"EULERIAN", "COMBINED"})) return;
    replaceNames(keyword, 0);
    replaceNames(keyword, 1);
}

// A line gives the elements, the volume fraction, then the material.
void inp_MaterialFixupVisitor::VisitInitialConditions(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"VOLUMEFRACTION"})) replaceNames(keyword, 2);
}

// An Eulerian material surface names the material on each line.
void inp_MaterialFixupVisitor::VisitSurface(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"EULERIANMATERIAL"})) replaceNames(keyword, 0);
}
