// The keywords whose set references depend on the values of their
// parameters: one handler each. None of them also has rows in the table of
// plain positions.

#include <array>

#include "assembly/inp_KeywordRewrite.h"
#include "assembly/inp_SetFixupVisitor.h"

namespace {

constexpr int kFirst[] = {0};
constexpr int kSecond[] = {1};

bool isNumber(cow_String const& text) {
    inp_Types::typeEnm const type = inp_Item(text).Type();
    return type == inp_Types::inp_INTEGER || type == inp_Types::inp_REAL;
}

// Records of one label and its values: a line of eight items is continued
// on the next, so a record ends with its first line of fewer items. The
// first line of each record is returned to `visit`.
template <class Visit>
void forEachRecordStart(inp_Keyword const& keyword, Visit const& visit) {
    constexpr int kItemsPerFullLine = 8;
    bool startsRecord = true;
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        if (startsRecord) visit(line);
        startsRecord = keyword.Data().Cols(line) < kItemsPerFullLine;
    }
}

}  // namespace

// -- one text at a time ------------------------------------------------------------

void inp_SetFixupVisitor::replaceThroughNodeOrNset(inp_Keyword& keyword, int line, int column) {
    inp_RewriteDataItem(keyword, line, column,
                        [&](cow_String const& datum) { return ReplaceNodeOrNset(keyword, datum); });
}

void inp_SetFixupVisitor::replaceNodeRecords(inp_Keyword& keyword) {
    forEachRecordStart(keyword, [&](int line) {
        ReplaceIdOrSetSingleDatum(keyword, line, 0, NodeSets(), NodeIds());
    });
}

// -- the handlers ----------------------------------------------------------------------

void inp_SetFixupVisitor::VisitAdaptiveMeshConstraint(inp_Keyword& keyword) {
    if (!keyword.HasParameter("constrainttype") ||
        inp_ParameterIsOneOf(keyword, "constrainttype", {"SPATIAL"}))
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
    else
        ReplaceNodeOrNsetAllData(keyword);
}

// The first node of each line; an edge of phantom nodes names its second
// node in the next column.
void inp_SetFixupVisitor::VisitBoundary(inp_Keyword& keyword) {
    ReplaceNodeOrNsetData(keyword, kFirst, 1);
    if (inp_ParameterIsOneOf(keyword, "phantom", {"EDGE"}))
        ReplaceNodeOrNsetData(keyword, kSecond, 1);
}

void inp_SetFixupVisitor::VisitCflow(inp_Keyword& keyword) {
    VisitBoundary(keyword);
}

void inp_SetFixupVisitor::VisitClearance(inp_Keyword& keyword) {
    if (!keyword.HasParameter("bolt")) {
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
        return;
    }
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        for (int column = 0; column < keyword.Data().Cols(line); ++column)
            replaceThroughNodeOrNset(keyword, line, column);
}

void inp_SetFixupVisitor::VisitCload(inp_Keyword& keyword) {
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        replaceThroughNodeOrNset(keyword, line, 0);
}

// ADJUST names a node set unless it is a distance.
void inp_SetFixupVisitor::VisitContactPair(inp_Keyword& keyword) {
    inp_Item const* adjust = keyword.Parameters().Find("adjust");
    if (adjust != nullptr && !isNumber(adjust->AsString()))
        ReplaceNodeOrNsetParameter(keyword, "adjust");
    ReplaceNodeOrNsetParameter(keyword, "nsettied");
}

// With NORMAL the first line is the normal's direction. With CRACKTIPNODES
// a line names the crack front, then the crack tip and, without NORMAL, the
// node that gives the direction of the crack extension.
void inp_SetFixupVisitor::VisitContourIntegral(inp_Keyword& keyword) {
    bool const normal = keyword.HasParameter("normal");
    int const first = normal ? 1 : 0;
    for (int line = first; line < keyword.Data().Rows(); ++line) {
        if (keyword.HasParameter("cracktipnodes")) {
            replaceThroughNodeOrNset(keyword, line, 1);
            if (!normal) replaceThroughNodeOrNset(keyword, line, 2);
        }
        ReplaceIdOrSetSingleDatum(keyword, line, 0, NodeSets(), NodeIds());
    }
}

void inp_SetFixupVisitor::VisitCoSimulationRegion(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"SURFACE", "VOLUME"}))
        ReplaceElementOrElsetData(keyword, kFirst, 1);
}

void inp_SetFixupVisitor::VisitContactInterference(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"CONTACTPAIR", "ELEMENT"}))
        ReplaceElementOrElsetData(keyword, kFirst, 1);
}

// The default line, whose first item is blank, passes by itself: blank
// items are never handed on. A table of shell stiffnesses names no set.
void inp_SetFixupVisitor::VisitDistribution(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"SHELL3DSTIFFNESS"}) &&
        keyword.HasParameter("table"))
        return;
    if (inp_ParameterIsOneOf(keyword, "location", {"ELEMENT"}))
        ReplaceElementOrElsetData(keyword, kFirst, 1);
    else if (inp_ParameterIsOneOf(keyword, "location", {"NODE"}))
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
}

// Each equation is a line with its number of terms, then lines of terms
// (node, degree of freedom, coefficient), at most four to a line.
void inp_SetFixupVisitor::VisitEquation(inp_Keyword& keyword) {
    constexpr std::array<int, 4> kTermNodes = {0, 3, 6, 9};
    for (int line = 1; line < keyword.Data().Rows(); ++line) {
        if (keyword.Data().Cols(line) < 3) continue;
        for (int column : kTermNodes)
            ReplaceIdOrSetSingleDatum(keyword, line, column, NodeSets(), NodeIds());
    }
}

// A node's NUMBER values take lines of eight items, the node first.
void inp_SetFixupVisitor::VisitField(inp_Keyword& keyword) {
    if (keyword.HasParameter("user")) {
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
        return;
    }
    int const values = keyword.GetParameterAsInt("number", 1);
    ReplaceNodeOrNsetData(keyword, kFirst, values / 8 + 1);
}

void inp_SetFixupVisitor::VisitFluidInflator(inp_Keyword& keyword) {
    if (!inp_ParameterIsOneOf(keyword, "type", {"FLUIDCAVITY", "COMBINED", "EULERIAN"})) {
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
        return;
    }
    for (int line = 0; line < keyword.Data().Rows(); ++line)
        for (int column = 0; column < keyword.Data().Cols(line); ++column)
            replaceThroughNodeOrNset(keyword, line, column);
}

// The residual modes are loaded at the node sets of the last data line; the
// eigensolver decides how many lines come before it.
void inp_SetFixupVisitor::VisitFrequency(inp_Keyword& keyword) {
    ReplaceNodeOrNsetParameter(keyword, "nset");
    if (!keyword.HasParameter("residualmodes") || keyword.Data().Rows() == 0) return;
    int const last = keyword.Data().Rows() - 1;
    for (int column = 0; column < keyword.Data().Cols(last); ++column)
        replaceThroughNodeOrNset(keyword, last, column);
}

void inp_SetFixupVisitor::VisitModelChange(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"ELEMENT"})) ReplaceElementOrElsetAllData(keyword);
}

void inp_SetFixupVisitor::VisitNormal(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"ELEMENT"}))
        ReplaceElementOrElsetData(keyword, kFirst, 1);
    ReplaceNodeOrNsetData(keyword, kSecond, 1);
}

void inp_SetFixupVisitor::VisitOrientation(inp_Keyword& keyword) {
    if (!inp_ParameterIsOneOf(keyword, "definition", {"NODES"})) return;
    for (int column = 0; column < 3; ++column)
        ReplaceIdOrSetSingleDatum(keyword, 0, column, NodeSets(), NodeIds());
}

// A line names the media's elements first, then node sets.
void inp_SetFixupVisitor::VisitPeriodicMedia(inp_Keyword& keyword) {
    for (char const* parameter : {"inletcontrolnode", "outletcontrolnode", "triggernode"})
        ReplaceNodeOrNsetParameter(keyword, parameter);
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        for (int column = 0; column < keyword.Data().Cols(line); ++column) {
            inp_RewriteDataItem(keyword, line, column, [&](cow_String const& datum) {
                return column == 0 ? ReplaceElementOrElset(keyword, datum)
                                   : ReplaceNodeOrNset(keyword, datum);
            });
        }
    }
}

// Continuum elements give a rebar two lines each.
void inp_SetFixupVisitor::VisitRebar(inp_Keyword& keyword) {
    if (!inp_ParameterIsOneOf(keyword, "geometry", {"ISOPARAMETRIC", "SKEW"}) &&
        !keyword.HasParameter("single"))
        return;
    int const stride = inp_ParameterIsOneOf(keyword, "element", {"CONTINUUM"}) ? 2 : 1;
    ReplaceElementOrElsetData(keyword, kFirst, stride);
}

// Local axes are given by nodes; a set name there stays.
void inp_SetFixupVisitor::VisitSectionFile(inp_Keyword& keyword) {
    if (!inp_ParameterIsOneOf(keyword, "axes", {"LOCAL"})) return;
    ReplaceIdSingleDatum(keyword, 0, 0, NodeSets(), NodeIds());
    ReplaceIdSingleDatum(keyword, 1, 0, NodeSets(), NodeIds());
    ReplaceIdSingleDatum(keyword, 1, 4, NodeSets(), NodeIds());
}

void inp_SetFixupVisitor::VisitSectionPrint(inp_Keyword& keyword) {
    VisitSectionFile(keyword);
}

void inp_SetFixupVisitor::VisitSlideLine(inp_Keyword& keyword) {
    if (keyword.HasParameter("generate")) ReplaceElementOrElsetParameter(keyword, "elset");
    ReplaceNodeOrNsetAllData(keyword);
}

void inp_SetFixupVisitor::VisitSpatialDistribution(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "position", {"NODES"}))
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
    else
        ReplaceElementOrElsetData(keyword, kFirst, 1);
}

void inp_SetFixupVisitor::VisitSubmodel(inp_Keyword& keyword) {
    if (inp_ParameterIsOneOf(keyword, "type", {"ACOUSTICTOSTRUCTURE", "SURFACE"}))
        ReplaceNodeOrNsetAllData(keyword);
}

// Driving element sets put the node second; otherwise a node's values run
// over lines of eight items, the node first.
void inp_SetFixupVisitor::VisitTemperature(inp_Keyword& keyword) {
    if (keyword.HasParameter("drivingelsets"))
        ReplaceNodeOrNsetData(keyword, kSecond, 1);
    else
        replaceNodeRecords(keyword);
}

void inp_SetFixupVisitor::VisitInitialConditions(inp_Keyword& keyword) {
    if (!keyword.HasParameter("type")) {
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
        return;
    }
    if (inp_ParameterIsOneOf(
            keyword, "type",
            {"FLUIDPRESSURE", "MASSFLOWRATE", "PRESSURESTRESS", "RELATIVEDENSITY", "SATURATION",
             "VELOCITY", "ACOUSTICSTATICPRESSURE", "POREPRESSURE", "RATIO"})) {
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
    } else if (inp_ParameterIsOneOf(keyword, "type", {"FIELD"})) {
        replaceNodeRecords(keyword);
    } else if (inp_ParameterIsOneOf(keyword, "type", {"TEMPERATURE"})) {
        if (keyword.HasParameter("drivingelsets"))
            ReplaceNodeOrNsetData(keyword, kFirst, 1);
        else
            replaceNodeRecords(keyword);
    } else if (inp_ParameterIsOneOf(keyword, "type", {"ROTATINGVELOCITY"})) {
        ReplaceNodeOrNsetData(keyword, kFirst, 2);
    } else if (inp_ParameterIsOneOf(keyword, "type", {"HARDENING"})) {
        // A line of the element's hardening, then one per back stress.
        ReplaceElementOrElsetData(keyword, kFirst,
                                  1 + keyword.GetParameterAsInt("numberbackstresses", 0));
    } else if (inp_ParameterIsOneOf(keyword, "type", {"SOLUTION"})) {
        if (keyword.HasParameter("rebar")) {
            forEachRecordStart(keyword, [&](int line) {
                ReplaceIdOrSetSingleDatum(keyword, line, 0, ElementSets(), ElementIds());
            });
        } else {
            ReplaceElementOrElsetData(keyword, kFirst, 1);
        }
    } else if (inp_ParameterIsOneOf(keyword, "type", {"REFCOORDINATE"})) {
        ReplaceElementOrElsetData(keyword, kFirst, 2);
    } else if (inp_ParameterIsOneOf(
                   keyword, "type",
                   {"VOLUMEFRACTION", "SPUDEMBEDMENT", "SPUDPRELOAD", "STRESS", "POROSITY",
                    "SPECIFICENERGY", "INITIALGAP", "PLASTICSTRAIN", "ENRICHMENT"})) {
        ReplaceElementOrElsetData(keyword, kFirst, 1);
    }
    // CONTACT names surfaces, which are the surface walk's; its vocabulary
    // has no parameter by which a line could name a node set instead.
}

void inp_SetFixupVisitor::VisitSurface(inp_Keyword& keyword) {
    ReplaceNodeOrNsetParameter(keyword, "refnode");
    if (keyword.HasParameter("combine") || keyword.HasParameter("crop")) return;  // no ids
    if (inp_ParameterIsOneOf(keyword, "type", {"CUTTINGSURFACE"})) {
        if (!inp_ParameterIsOneOf(keyword, "definition", {"NODES"}) || keyword.Data().Rows() == 0)
            return;
        for (int column = 0; column < keyword.Data().Cols(0); ++column)
            ReplaceIdOrSetSingleDatum(keyword, 0, column, NodeSets(), NodeIds());
        return;
    }
    if (!keyword.HasParameter("type") || inp_ParameterIsOneOf(keyword, "type", {"ELEMENT"}))
        ReplaceElementOrElsetData(keyword, kFirst, 1);
    else if (inp_ParameterIsOneOf(keyword, "type", {"NODE"}))
        ReplaceNodeOrNsetData(keyword, kFirst, 1);
}
