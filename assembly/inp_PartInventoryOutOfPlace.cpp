// Where inp_PartInventoryVisitor checks the placement of node and element
// data: the mesh of a part is given either in the part or in its instances,
// never in both. Works on the organized tree (a part's keywords are its
// suboptions, *END PART and *END INSTANCE stand beside their openers) and
// needs no walk.

#include "assembly/inp_PartInventoryVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/ZELBasAssert.h"
#include "support/inpM_Utils.h"

namespace {

bool isNodeOrElementData(inp_Keyword const& keyword) {
    return keyword.Is(inp_kw_Element) || keyword.Is(inp_kw_Elgen) || keyword.Is(inp_kw_Node) ||
           keyword.Is(inp_kw_Ngen);
}

int countNodeElementData(inp_Keyword const& keyword) {
    int count = 0;
    for (inp_Keyword const& sub : keyword.Suboptions())
        if (isNodeOrElementData(sub)) ++count;
    return count;
}

int countOf(cow_Map<cow_String, int> const& counts, cow_String const& name) {
    int const* count = counts.Find(name);
    return count ? *count : 0;
}

}  // namespace

void inp_PartInventoryVisitor::CheckOutOfPlace(cow_List<inp_Keyword> const& keywords) {
    cow_Map<cow_String, int> const partCounts =
        CountNodeElementKeywords(inp_kw_Part, inp_kw_EndPart, "PART", "END PART", keywords);
    inp_Keyword const* assembly = nullptr;
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.Is(inp_kw_Assembly)) {
            assembly = &keyword;  // only the first assembly is looked at
            break;
        }
    }
    if (assembly == nullptr) return;
    cow_List<inp_Keyword> const& members = assembly->Suboptions();
    cow_Map<cow_String, int> const instanceCounts = CountNodeElementKeywords(
        inp_kw_Instance, inp_kw_EndInstance, "INSTANCE", "END INSTANCE", members);
    // Keyed by the keyword's table name, which is "instance" for every
    // offender: the report names one pair, that of the last offender.
    cow_Map<cow_String, cow_String> offenders;
    for (inp_Keyword const& member : members) {
        if (!member.Is(inp_kw_Instance)) continue;
        cow_String const name = member.GetParameterAsString("name", cow_String());
        if (countOf(instanceCounts, name) <= 0) continue;
        // Only an instance of a part can hold data in two places. An instance
        // without PART (imported from an earlier job, or a deck that forgot
        // it) has no part to pair with: it is passed over here rather than
        // failing an assertion, since a deck must never stop the walk.
        if (!member.HasParameter("part")) continue;
        cow_String const part = member.GetParameterAsString("part", cow_String());
        if (countOf(partCounts, part) > 0) offenders.Insert(member.Name(), part);
    }
    if (offenders.IsEmpty()) return;
    atr_String text =
        atr("Node and element data may only be defined in the instance or the part, not both.  The "
            "following instance/part pairs attempt to do so:\n");
    offenders.ForEachSorted([&text](cow_String const& instance, cow_String const& part) {
        text += atr(" Instance: %1$s Part:%2$s", instance, part);
    });
    AddError(inp_Utils::MessageInKeyword(*assembly, text));
}

// The check for a missing close is made at the next keyword only, so an
// opener that stands last in its list is not reported here.
cow_Map<cow_String, int> inp_PartInventoryVisitor::CountNodeElementKeywords(
    inp_KeywordEnm open, inp_KeywordEnm close, cow_String const& openName,
    cow_String const& closeName, cow_List<inp_Keyword> const& keywords) {
    cow_Map<cow_String, int> counts;
    cow_List<cow_String> missing;
    inp_Keyword const* firstUnclosed = nullptr;
    inp_Keyword const* pendingOpener = nullptr;
    cow_String lastName;
    for (inp_Keyword const& keyword : keywords) {
        if (pendingOpener && !keyword.Is(close)) {
            missing.Append(lastName);
            if (firstUnclosed == nullptr) firstUnclosed = pendingOpener;
        }
        pendingOpener = nullptr;
        if (!keyword.Is(open)) continue;
        pendingOpener = &keyword;
        // An opener without a name still needs its close; the message then
        // names the opener before it.
        if (!keyword.HasParameter("name")) continue;
        lastName = keyword.GetParameterAsString("name", cow_String());
        int const found = countNodeElementData(keyword);
        if (int const* count = counts.Find(lastName)) {
            counts.Insert(lastName, *count + found);  // a reopened name adds up
        } else {
            counts.Insert(lastName, found);
        }
    }
    if (!missing.IsEmpty())
        AddError(inp_Utils::MessageInKeyword(
            *firstUnclosed,
            inpM_Utils::FormatCollectedErrors(
                atr("The following *%1$s keywords are missing their closing %2$s keywords",
                    openName, closeName),
                missing)));
    return counts;
}

void inp_PartInventoryVisitor::GatherInstancePartNames(cow_List<inp_Keyword> const& keywords) {
    m_instanceParts = inpM_InstanceMap<cow_String>();
    accumulateInstancePartNames(keywords);
}

void inp_PartInventoryVisitor::accumulateInstancePartNames(cow_List<inp_Keyword> const& keywords) {
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.Is(inp_kw_Instance))
            m_instanceParts.Insert(keyword.GetParameterAsString("name", cow_String()),
                                   keyword.GetParameterAsString("part", cow_String()));
        accumulateInstancePartNames(keyword.Suboptions());
    }
}
