#include "assembly/inp_UndefinedNodeVisitor.h"

#include <charconv>
#include <cstdint>

#include "deck/inp_Types.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

namespace {

cow_String const& fake() {
    static cow_String const name(inp_Types::fakeName());
    return name;
}

// *MATRIX INPUT gives the labels of a matrix, which need not be nodes of
// this deck's numbering.
bool admitsAnyLabel(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_MatrixInput);
}

// A sign and digits, of any length: a label, even one too long for any table.
bool isIntegerText(cow_String const& text) {
    std::string_view digits = text.View();
    if (!digits.empty() && (digits.front() == '-' || digits.front() == '+'))
        digits.remove_prefix(1);
    if (digits.empty()) return false;
    for (char c : digits)
        if (c < '0' || c > '9') return false;
    return true;
}

}  // namespace

inp_UndefinedNodeVisitor::inp_UndefinedNodeVisitor(inp_CoordMap const& coordinates,
                                                   inpM_SetMap const& nodeSets, bool warn)
    : inp_SetFixupVisitor(nodeSets, inpM_SetMap(), inpM_IdMap(), inpM_IdMap()),
      m_coordinates(coordinates),
      m_warn(warn) {}

inp_UndefinedNodeVisitor::~inp_UndefinedNodeVisitor() = default;

cow_String inp_UndefinedNodeVisitor::FixupIdOrSet(inp_Keyword const& keyword,
                                                  cow_String const& datum, inpM_SetMap const& sets,
                                                  inpM_IdMap const&, cow_String const&,
                                                  cow_String const&, cow_String const&, inp_SetType,
                                                  cow_String const&) {
    // Element references come with the element sets.
    if (&sets != &NodeSets() || !m_coordinates.IsMember(fake())) return datum;
    if (isIntegerText(datum))
        completeLabel(keyword, datum);
    else if (inp_Utils::IsSetName(datum))
        completeSet(datum);
    return datum;
}

cow_String inp_UndefinedNodeVisitor::ReplaceElementOrElset(inp_Keyword const&,
                                                           cow_String const& datum) {
    return datum;
}

// A label of more than nine digits is reported and, like any other, placed
// if it is still a label the tables can hold; a label below one is reported
// and never placed, since the node tables hold positive labels only.
void inp_UndefinedNodeVisitor::completeLabel(inp_Keyword const& keyword, cow_String const& datum) {
    bool const anyLabel = admitsAnyLabel(keyword);
    if (datum.Length() > 9 && !anyLabel)
        AddError(
            inp_Utils::MessageInKeyword(keyword, atr("Node label exceeds 9 digits: %s", datum)));
    long long value = 0;
    std::string_view const text = datum.View();
    char const* first = text.data() + (text.front() == '+' ? 1 : 0);
    auto const [end, failure] = std::from_chars(first, text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size()) return;  // beyond any label
    if (value < 1) {
        if (!anyLabel)
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Node label is not a positive integer: %s", datum)));
        return;
    }
    if (value > INT32_MAX) return;
    int const label = static_cast<int>(value);
    if (m_coordinates.ConstGet(fake()).IsMember(label)) return;
    if (m_warn)
        AddWarning(inp_Utils::MessageInKeyword(
            keyword, atr("Undefined node %s was detected and placed at the origin. ", datum)));
    m_coordinates.Get(fake()).Insert(label, inp_Coord());
}

// A plain name is an assembly set or a set of the pseudo part; a name
// scoped by one instance is that instance's set. Deeper names are none of
// this walk's business.
void inp_UndefinedNodeVisitor::completeSet(cow_String const& datum) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(datum);
    inpM_SetMap const& sets = NodeSets();
    if (pieces.Length() == 1) {
        if (sets.HasSet(datum))
            completeNamedSet(datum, *sets.ConstGetSet(datum));
        else if (sets.HasNestedSet(fake(), datum))
            completeNamedSet(datum, *sets.ConstGetNestedSet(fake(), datum));
    } else if (pieces.Length() == 2) {
        cow_String const& instance = pieces.ConstGet(0);
        cow_String const& name = pieces.ConstGet(1);
        if (sets.HasNestedSet(instance, name))
            completeNamedSet(datum, *sets.ConstGetNestedSet(instance, name));
    }
}

void inp_UndefinedNodeVisitor::completeNamedSet(cow_String const& name, inpM_BaseSet const& set) {
    if (AddAssemblySetNodes(set, m_coordinates.Get(fake()))) m_setNames.AppendUnlessMember(name);
}

bool inp_UndefinedNodeVisitor::AddAssemblySetNodes(inpM_BaseSet const& set,
                                                   inp_CoordMap& coordinates) {
    bool added = false;
    auto place = [&](int label) {
        if (label < 1 || coordinates.IsMember(label)) return;
        coordinates.Insert(label, inp_Coord());
        added = true;
    };
    for (int label : set.ConstGetIdList()) place(label);
    // A set of the assembly level may hold the pseudo part's nodes by
    // instance.
    inpM_BaseSet::InstanceIdLists const byInstance = set.ConstGetInstanceIdLists();
    if (cow_List<int> const* labels = byInstance.Find(fake()))
        for (int label : *labels) place(label);
    return added;
}

void inp_UndefinedNodeVisitor::VisitSlideLine(inp_Keyword& keyword) {
    if (keyword.HasParameter("generate")) {
        cow_List<atr_String> errors;
        inpM_OmiSet const labels =
            inp_Utils::GenerateSetIds(keyword.Data(), keyword.Name(), errors);
        for (inpM_OmiSetIT label(labels); label.NotDone(); label.Next())
            FixupIdOrSet(keyword, cow_String(std::to_string(label.CurrentItem()).c_str()),
                         NodeSets(), NodeIds(), AssemblyName(), InstanceName(), PartName(),
                         inp_SET_OR_ID, cow_String());
        for (atr_String const& error : errors) AddError(error);
    }
    inp_SetFixupVisitor::VisitSlideLine(keyword);
}

void inp_UndefinedNodeVisitor::AddUndefinedElementNodes(
    inpM_InstanceMap<inp_MapInt2Element> const& elements) {
    if (!m_coordinates.IsMember(fake()) || !elements.IsMember(fake()) ||
        !elements.ConstGetMap(fake()).HasValue())
        return;
    inp_CoordMap& nodes = m_coordinates.Get(fake());
    constexpr int kBlankNode = -91440;  // a blank connectivity item
    for (inp_MapInt2ElementSIT it(elements.ConstGet(fake())); it.NotDone(); it.Next()) {
        inp_Element const& element = it.CurrentValue();
        int const* labels = element.nodes();
        for (int i = 0; i < element.numNodesPerElement(); ++i) {
            int const label = labels[i];
            if (label == kBlankNode || label == 0 || nodes.IsMember(label)) continue;
            if (m_warn)
                AddWarning(atr("Undefined node %s was detected and placed at the origin. ", label));
            nodes.Insert(label, inp_Coord());
        }
    }
}

void inp_UndefinedNodeVisitor::AddUndefinedSetNodes(inpM_SetMap const& sets) {
    if (!m_coordinates.IsMember(fake())) return;
    inp_CoordMap& nodes = m_coordinates.Get(fake());
    for (cow_ConstMapIterator it(sets.ConstGetSetMap()); it.NotDone(); it.Next())
        AddAssemblySetNodes(*it.CurrentValue(), nodes);
    for (cow_ConstMapIterator instance(sets.ConstGetInstanceMap()); instance.NotDone();
         instance.Next())
        for (cow_ConstMapIterator it(sets.ConstGetNestedSetMap(instance.CurrentKey()));
             it.NotDone(); it.Next())
            AddAssemblySetNodes(*it.CurrentValue(), nodes);
}
