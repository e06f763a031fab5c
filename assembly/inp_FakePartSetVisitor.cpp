#include "assembly/inp_FakePartSetVisitor.h"

#include <charconv>

#include "mesh/inp_Utils.h"
#include "support/inpM_Utils.h"

inp_FakePartSetVisitor::inp_FakePartSetVisitor(inpM_IdMap const& nodeIds,
                                               inpM_IdMap const& elementIds,
                                               inpM_SetMap const& nodeSets,
                                               inpM_SetMap const& elementSets, Options options)
    : inp_SetFixupVisitor(nodeSets, elementSets, nodeIds, elementIds), m_options(options) {}

inp_FakePartSetVisitor::inp_FakePartSetVisitor(inpM_IdMap const& nodeIds,
                                               inpM_IdMap const& elementIds, Options options)
    : inp_FakePartSetVisitor(nodeIds, elementIds, inpM_SetMap(), inpM_SetMap(), options) {}

cow_String inp_FakePartSetVisitor::PrependPartNameToData(cow_String const& name,
                                                         cow_String const& datum) const {
    cow_String scoped(name);
    scoped.append(m_options.scopedByInstance ? "." : "-1.");
    scoped.append(datum);
    return scoped;
}

cow_String inp_FakePartSetVisitor::FixupIdOrSet(inp_Keyword const& keyword, cow_String const& datum,
                                                inpM_SetMap const& sets, inpM_IdMap const& ids,
                                                cow_String const&, cow_String const& instanceName,
                                                cow_String const& partName, inp_SetType,
                                                cow_String const&) {
    if (!partName.IsEmpty() || !instanceName.IsEmpty() || datum.IsEmpty()) return datum;
    std::string_view const text = datum.View();
    int label = 0;
    auto const [end, failure] = std::from_chars(text.data(), text.data() + text.size(), label);
    if (failure == std::errc() && end == text.data() + text.size())
        return scopedLabel(keyword, datum, ids);
    if (inp_Utils::IsSetName(datum)) return scopedSet(datum, sets);
    return datum;
}

// The first part, in name order, whose sets hold the name; a quoted name is
// also sought without its quotes, and keeps them in the result.
cow_String inp_FakePartSetVisitor::scopedSet(cow_String const& datum,
                                             inpM_SetMap const& sets) const {
    // Once per data item: the parts are walked in place, with no list of
    // their names made each time.
    auto firstPartHolding = [&sets](cow_String const& name) {
        return sets.ConstGetInstanceMap().FindFirstSorted(
            [&name](cow_String const&, inpM_SetMap const& part) { return part.HasSet(name); });
    };
    if (cow_String const* part = firstPartHolding(datum))
        return PrependPartNameToData(*part, datum);
    cow_String const unquoted = inpM_Utils::RemoveQuotes(datum);
    if (unquoted != datum)
        if (cow_String const* part = firstPartHolding(unquoted))
            return PrependPartNameToData(*part, datum);
    return datum;  // an assembly set
}

// The first part, in name order, whose id map holds the label.
cow_String inp_FakePartSetVisitor::scopedLabel(inp_Keyword const& keyword, cow_String const& datum,
                                               inpM_IdMap const& ids) {
    int label = 0;
    std::from_chars(datum.View().data(), datum.View().data() + datum.Length(), label);
    cow_String const* part = ids.ConstGetInstanceMap().FindFirstSorted(
        [label](cow_String const&, inpM_IdMap const& partIds) { return partIds.IsMember(label); });
    if (part) return PrependPartNameToData(*part, datum);
    if (!m_options.symmetricModelGeneration)
        AddError(inp_Utils::MessageInKeyword(
            keyword,
            atr("Node/element %s cannot be found.  Please check that it is defined.", datum)));
    return datum;
}

void inp_FakePartSetVisitor::VisitInitialConditions(inp_Keyword& keyword) {
    if (AtelierCompatible() || m_options.featureEnhanced)
        inp_SetFixupVisitor::VisitInitialConditions(keyword);
}
