#include "pipeline/inp_KwdDataReleaseVisitor.h"

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_NodeDataArrayImpl.h"
#include "deck/inp_RawDataArrayImpl.h"

void inp_KwdDataReleaseVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Assembly)) return;
    inp_Visitor::Visit(keyword);
}

// The handlers of the base keep the part name; each keyword then gets an
// empty array of the kind its data had, so that whoever reads it later sees
// the form it expects, with no rows.

void inp_KwdDataReleaseVisitor::VisitNode(inp_Keyword& keyword) {
    if (releases()) keyword.SetData(inp_DataArray(new inp_NodeDataArrayImpl()));
    inp_Visitor::VisitNode(keyword);
}

void inp_KwdDataReleaseVisitor::VisitElement(inp_Keyword& keyword) {
    if (releases()) keyword.SetData(inp_DataArray(new inp_ElementDataArrayImpl()));
    inp_Visitor::VisitElement(keyword);
}

void inp_KwdDataReleaseVisitor::VisitNset(inp_Keyword& keyword) {
    if (releases()) keyword.SetData(inp_DataArray(new inp_RawDataArrayImpl()));
    inp_Visitor::VisitNset(keyword);
}

void inp_KwdDataReleaseVisitor::VisitElset(inp_Keyword& keyword) {
    if (releases()) keyword.SetData(inp_DataArray(new inp_RawDataArrayImpl()));
    inp_Visitor::VisitElset(keyword);
}
