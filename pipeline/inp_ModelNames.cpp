#include "pipeline/inp_ModelNames.h"

#include <algorithm>
#include <initializer_list>

#include "pipeline/inp_InputFile.h"
#include "support/cow_List.h"

namespace {

std::vector<cow_String> sortedUnion(std::initializer_list<cow_List<cow_String>> lists) {
    std::vector<cow_String> names;
    for (cow_List<cow_String> const& list : lists)
        for (cow_String const& name : list) names.push_back(name);
    auto const less = [](cow_String const& a, cow_String const& b) { return a.View() < b.View(); };
    auto const same = [](cow_String const& a, cow_String const& b) { return a.View() == b.View(); };
    std::sort(names.begin(), names.end(), less);
    names.erase(std::unique(names.begin(), names.end(), same), names.end());
    return names;
}

}  // namespace

std::vector<cow_String> inp_PartNames(inp_InputFile const& deck) {
    return sortedUnion({deck.PartCoordMap().Instances(), deck.PartElementMap().Instances(),
                        deck.PartNsets().Instances(), deck.PartElsets().Instances(),
                        deck.PartSurfaces().Instances()});
}

std::vector<cow_String> inp_InstanceNames(inp_InputFile const& deck) {
    return sortedUnion({deck.InstancePartNames().Instances(), deck.TransformationMap().Instances(),
                        deck.AssemblyCoordMap().Instances(),
                        deck.AssemblyElementMap().Instances()});
}
