#include "assembly/inp_CollectRefNodesVisitor.h"

#include <climits>
#include <cstdlib>

#include "deck/inp_PatternMatchers.h"
#include "mesh/inp_Utils.h"

namespace {

bool isInteger(cow_String const& text) {
    return inp_PatternMatchers::MatchInteger(text.View()).matched;
}

bool isSetName(cow_String const& text) {
    return inp_PatternMatchers::MatchSetName(text.View()).matched;
}

// An integer text too long for an int names no node; INT_MAX names none.
int toInt(cow_String const& text) {
    long const value = std::strtol(text.CStr(), nullptr, 10);
    return value > INT_MAX ? INT_MAX : value < INT_MIN ? INT_MIN : static_cast<int>(value);
}

// The ids of a set are those of its own level: after renumbering they are
// the global ids of its nodes.
void appendSet(inpM_SetHandle const& set, cow_List<int>& ids) {
    ids.Concatenate(set->ConstGetIdList());
}

// The global id of `text`, an old id of the level `level` holds, if it has it.
void appendId(inpM_IdMap const& level, cow_String const& text, cow_List<int>& ids) {
    int const id = toInt(text);
    if (level.IsMember(id)) ids.Append(level.ConstGet(id));
}

}  // namespace

inp_CollectRefNodesVisitor::inp_CollectRefNodesVisitor(inpM_SetMap const& nodeSets,
                                                       inpM_IdMap const& nodeIds)
    : m_nodeSets(nodeSets), m_nodeIds(nodeIds) {}

inp_CollectRefNodesVisitor::~inp_CollectRefNodesVisitor() = default;

void inp_CollectRefNodesVisitor::DefaultAction(inp_Keyword&) {}

// -- the keywords that name a reference node -----------------------------------------------

void inp_CollectRefNodesVisitor::VisitFluidProperty(inp_Keyword& keyword) {
    CollectRefNodeFromParameter(keyword);
}

void inp_CollectRefNodesVisitor::VisitIntegratedOutputSection(inp_Keyword& keyword) {
    CollectRefNodeFromParameter(keyword);
}

void inp_CollectRefNodesVisitor::VisitKinematicCoupling(inp_Keyword& keyword) {
    CollectRefNodeFromParameter(keyword);
}

void inp_CollectRefNodesVisitor::VisitRigidBody(inp_Keyword& keyword) {
    CollectRefNodeFromParameter(keyword);
}

void inp_CollectRefNodesVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    CollectRefNodeFromParameter(keyword);
}

// A plain node number comes typed as an integer: its text is read like any
// other. A flag without a value names nothing.
void inp_CollectRefNodesVisitor::CollectRefNodeFromParameter(inp_Keyword const& keyword) {
    inp_Item const* const item = keyword.Parameters().Find("refnode");
    if (!item) return;
    if (item->Type() == inp_Types::inp_INTEGER || item->Type() == inp_Types::inp_STRING)
        appendGlobalIds(item->AsString(), m_refNodes);
}

// A second keyword for the same tracer set replaces what the first one gave:
// the set is what its last definition says.
void inp_CollectRefNodesVisitor::VisitTracerParticle(inp_Keyword& keyword) {
    if (!keyword.HasParameter("tracerset")) return;
    inp_DataArray const& data = keyword.Data();
    cow_List<int> ids;
    for (int row = 0; row < data.Rows(); ++row)
        for (int column = 0; column < data.Cols(row); ++column)
            if (data.HasValue(row, column)) appendGlobalIds(data.AsString(row, column), ids);
    m_tracerSets.Insert(keyword.GetParameterAsString("tracerset", cow_String()), ids);
}

// -- translation ------------------------------------------------------------------------

cow_List<int> inp_CollectRefNodesVisitor::TranslateDataIntoGlobalIDs(cow_String const& text) const {
    cow_List<int> ids;
    appendGlobalIds(text, ids);
    return ids;
}

void inp_CollectRefNodesVisitor::appendGlobalIds(cow_String const& text, cow_List<int>& ids) const {
    if (InstanceName().IsEmpty())
        appendAtAssembly(text, ids);
    else
        appendInInstance(InstanceName(), text, ids);
}

// Inside an instance names are its own: no scoped forms.
void inp_CollectRefNodesVisitor::appendInInstance(cow_String const& instance,
                                                  cow_String const& text,
                                                  cow_List<int>& ids) const {
    if (isInteger(text)) {
        if (m_nodeIds.IsMember(instance)) appendId(m_nodeIds.ConstGet(instance), text, ids);
    } else if (isSetName(text) && m_nodeSets.HasNestedSet(instance, text)) {
        appendSet(m_nodeSets.ConstGetNestedSet(instance, text), ids);
    }
}

void inp_CollectRefNodesVisitor::appendAtAssembly(cow_String const& text,
                                                  cow_List<int>& ids) const {
    // A name without an unquoted period is one piece: no list is made for it.
    if (!inp_Utils::HasNameUnquotedPeriod(text)) {
        if (isInteger(text))
            appendId(m_nodeIds, text, ids);
        else if (isSetName(text) && m_nodeSets.HasSet(text))
            appendSet(m_nodeSets.ConstGetSet(text), ids);
        return;
    }
    appendScoped(inp_Utils::SplitScopedSet(text), ids);
}

// instance.set or instance.id (assembly.instance.x on restart): the instance
// is the last but one piece.
void inp_CollectRefNodesVisitor::appendScoped(cow_List<cow_String> const& pieces,
                                              cow_List<int>& ids) const {
    cow_String const& instance = pieces.ConstGet(pieces.Length() - 2);
    cow_String const& last = pieces.Last();
    if (inp_Utils::IsScopedSetId(pieces)) {
        if (m_nodeIds.IsMember(instance)) appendId(m_nodeIds.ConstGet(instance), last, ids);
    } else if (inp_Utils::IsScopedSetName(pieces) && m_nodeSets.HasNestedSet(instance, last)) {
        appendSet(m_nodeSets.ConstGetNestedSet(instance, last), ids);
    }
}
