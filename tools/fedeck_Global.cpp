#include "tools/fedeck_Global.h"

#include "pipeline/inp_InputFile.h"
#include "transform/inp_TransformationVisitor.h"

namespace {

// The sets of `after` that `before` lacks, level by level, as *NSET
// keywords: eight labels a line.
cow_List<inp_Keyword> newSetKeywords(inpM_SetMap const& before, inpM_SetMap const& after,
                                     cow_String const& instance) {
    cow_List<inp_Keyword> keywords;
    after.ConstGetNestedSetMap(instance).ForEachSorted(
        [&](cow_String const& name, inpM_SetHandle const& set) {
            if (before.HasNestedSet(instance, name)) return;
            inp_Keyword keyword{cow_String("nset")};
            keyword.SetParameter("nset", inp_Item(name));
            cow_List<int> const ids = set->ConstGetIdList();
            for (int first = 0; first < ids.Length(); first += 8) {
                cow_List<cow_String> items;
                for (int i = first; i < ids.Length() && i < first + 8; ++i)
                    items.Append(cow_String::FromInt(ids.ConstGet(i)));
                keyword.Data().Append(items);
            }
            keywords.Append(keyword);
        });
    return keywords;
}

// Puts the new sets of each instance at the head of its children, before
// what refers to them.
void addNewSets(cow_List<inp_Keyword>& keywords, inpM_SetMap const& before,
                inpM_SetMap const& after) {
    for (int i = 0; i < keywords.Length(); ++i) {
        inp_Keyword const& keyword = keywords.ConstGet(i);
        if (keyword.Is(inp_kw_Assembly)) {
            addNewSets(keywords.Get(i).GetSuboptions(), before, after);
            continue;
        }
        if (!keyword.Is(inp_kw_Instance)) continue;
        cow_String const instance = keyword.GetParameterAsString("name", cow_String());
        if (!after.HasInstance(instance)) continue;
        cow_List<inp_Keyword> const sets = newSetKeywords(before, after, instance);
        if (sets.IsEmpty()) continue;
        cow_List<inp_Keyword> children = sets;
        for (inp_Keyword const& child : keyword.Suboptions()) children.Append(child);
        keywords.Get(i).SetSuboptions(children);
    }
}

}  // namespace

void fedeck_TransformToGlobal(cow_List<inp_Keyword>& tree, inp_InputFile const& road) {
    inpM_SetMap nodeSets = road.AssemblyNsets();
    inp_TransformationVisitor walk(road.TransformationMap(), cow_List<int>(), nodeSets,
                                   road.NodeIdMap(), false, road.AssemblyCoordMap(),
                                   road.AssemblyElementMap(), road.AssemblyElsets(),
                                   road.ModelParameters());
    walk.VisitListAndReport(tree);
    addNewSets(tree, road.AssemblyNsets(), nodeSets);
}
