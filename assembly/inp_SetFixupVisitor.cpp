// The walk of inp_SetFixupVisitor: reading each reference, asking the
// subclass, writing back what changed. The positions themselves are in
// inp_SetFixupPositions.cpp and inp_SetFixupRules.cpp.

#include "assembly/inp_SetFixupVisitor.h"

#include "assembly/inp_KeywordRewrite.h"
#include "deck/inp_Exceptions.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"

inp_SetFixupVisitor::inp_SetFixupVisitor(inpM_SetMap const& nodeSets,
                                         inpM_SetMap const& elementSets, inpM_IdMap const& nodeIds,
                                         inpM_IdMap const& elementIds)
    : m_nodeSets(nodeSets),
      m_elementSets(elementSets),
      m_nodeIds(nodeIds),
      m_elementIds(elementIds) {}

inp_SetFixupVisitor::~inp_SetFixupVisitor() = default;

cow_String inp_SetFixupVisitor::Fixup(inp_Keyword const& keyword, cow_String const& datum,
                                      inpM_SetMap const& sets, inpM_IdMap const& ids,
                                      cow_String const& parameterName) {
    try {
        return FixupIdOrSet(keyword, datum, sets, ids, AssemblyName(), InstanceName(), PartName(),
                            inp_SET_OR_ID, parameterName);
    } catch (inp_PrimException const& failure) {
        AddWarning(inp_Utils::MessageInKeyword(keyword, failure.UserReport()));
        return datum;
    }
}

// -- writing back -------------------------------------------------------------------

void inp_SetFixupVisitor::ReplaceIdOrSetSingleDatum(inp_Keyword& keyword, int line, int column,
                                                    inpM_SetMap const& sets,
                                                    inpM_IdMap const& ids) {
    inp_RewriteDataItem(keyword, line, column, [&](cow_String const& datum) {
        return Fixup(keyword, datum, sets, ids, cow_String());
    });
}

void inp_SetFixupVisitor::ReplaceIdSingleDatum(inp_Keyword& keyword, int line, int column,
                                               inpM_SetMap const& sets, inpM_IdMap const& ids) {
    if (!keyword.Data().HasValue(line, column)) return;
    cow_String const datum = keyword.Data().AsString(line, column);
    cow_String label = datum;
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(datum);
    if (inp_Utils::IsScopedSetId(pieces)) label = pieces.ConstGet(pieces.Length() - 1);
    if (inp_Item(label).Type() != inp_Types::inp_INTEGER) return;  // a name stays
    cow_String const result = Fixup(keyword, datum, sets, ids, cow_String());
    if (result != datum) inp_WriteOwnDataItem(keyword, line, column, result);
}

void inp_SetFixupVisitor::ReplaceIdOrSetData(inp_Keyword& keyword, std::span<int const> columns,
                                             inpM_SetMap const& sets, inpM_IdMap const& ids,
                                             int stride) {
    if (stride < 1) stride = 1;  // a count of values below one still means every line
    int const lines = keyword.Data().Rows();
    for (int line = 0; line < lines; line += stride)
        for (int column : columns) ReplaceIdOrSetSingleDatum(keyword, line, column, sets, ids);
}

void inp_SetFixupVisitor::ReplaceIdOrSetAllData(inp_Keyword& keyword, inpM_SetMap const& sets,
                                                inpM_IdMap const& ids) {
    replaceColumnsFrom(keyword, 0, sets, ids);
}

void inp_SetFixupVisitor::ReplaceIdOrSetParameter(inp_Keyword& keyword, cow_String const& name,
                                                  inpM_SetMap const& sets, inpM_IdMap const& ids) {
    inp_RewriteParameter(keyword, name, [&](cow_String const& datum) {
        return Fixup(keyword, datum, sets, ids, name);
    });
}

// -- the node or element maps chosen -------------------------------------------------

void inp_SetFixupVisitor::ReplaceNodeOrNsetData(inp_Keyword& keyword, std::span<int const> columns,
                                                int stride) {
    ReplaceIdOrSetData(keyword, columns, m_nodeSets, m_nodeIds, stride);
}

void inp_SetFixupVisitor::ReplaceNodeOrNsetAllData(inp_Keyword& keyword) {
    ReplaceIdOrSetAllData(keyword, m_nodeSets, m_nodeIds);
}

void inp_SetFixupVisitor::ReplaceElementOrElsetData(inp_Keyword& keyword,
                                                    std::span<int const> columns, int stride) {
    ReplaceIdOrSetData(keyword, columns, m_elementSets, m_elementIds, stride);
}

void inp_SetFixupVisitor::ReplaceElementOrElsetAllData(inp_Keyword& keyword) {
    ReplaceIdOrSetAllData(keyword, m_elementSets, m_elementIds);
}

void inp_SetFixupVisitor::ReplaceNodeOrNsetParameter(inp_Keyword& keyword, cow_String const& name) {
    ReplaceIdOrSetParameter(keyword, name, m_nodeSets, m_nodeIds);
}

void inp_SetFixupVisitor::ReplaceElementOrElsetParameter(inp_Keyword& keyword,
                                                         cow_String const& name) {
    ReplaceIdOrSetParameter(keyword, name, m_elementSets, m_elementIds);
}

cow_String inp_SetFixupVisitor::ReplaceNodeOrNset(inp_Keyword const& keyword,
                                                  cow_String const& datum) {
    return Fixup(keyword, datum, m_nodeSets, m_nodeIds, cow_String());
}

cow_String inp_SetFixupVisitor::ReplaceElementOrElset(inp_Keyword const& keyword,
                                                      cow_String const& datum) {
    return Fixup(keyword, datum, m_elementSets, m_elementIds, cow_String());
}

void inp_SetFixupVisitor::replaceColumnsFrom(inp_Keyword& keyword, int first,
                                             inpM_SetMap const& sets, inpM_IdMap const& ids) {
    int const lines = keyword.Data().Rows();
    for (int line = 0; line < lines; ++line) {
        int const columns = keyword.Data().Cols(line);
        for (int column = first; column < columns; ++column)
            ReplaceIdOrSetSingleDatum(keyword, line, column, sets, ids);
    }
}

// -- the plain positions -------------------------------------------------------------

void inp_SetFixupVisitor::DefaultAction(inp_Keyword& keyword) {
    for (inp_SetReference const& reference : PlainReferencesOf(keyword.Keyword())) {
        if (reference.when == inp_SetReference::Condition::IfParameter &&
            !keyword.HasParameter(reference.condition))
            continue;
        if (reference.when == inp_SetReference::Condition::UnlessParameter &&
            keyword.HasParameter(reference.condition))
            continue;
        bool const nodes = reference.kind == inp_ReferenceKind::Node;
        inpM_SetMap const& sets = nodes ? m_nodeSets : m_elementSets;
        inpM_IdMap const& ids = nodes ? m_nodeIds : m_elementIds;
        switch (reference.form) {
            case inp_SetReference::Form::Parameter:
                ReplaceIdOrSetParameter(keyword, reference.parameter, sets, ids);
                break;
            case inp_SetReference::Form::Column: {
                int const column[] = {reference.column};
                ReplaceIdOrSetData(keyword, column, sets, ids, reference.stride);
                break;
            }
            case inp_SetReference::Form::ColumnsFrom:
                replaceColumnsFrom(keyword, reference.column, sets, ids);
                break;
            case inp_SetReference::Form::AllData:
                ReplaceIdOrSetAllData(keyword, sets, ids);
                break;
        }
    }
}
