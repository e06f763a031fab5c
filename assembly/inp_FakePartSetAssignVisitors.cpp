#include "assembly/inp_FakePartSetAssignVisitors.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

#include "deck/inp_Item.h"
#include "deck/inp_PatternMatchers.h"
#include "deck/inp_Types.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

namespace {

cow_String const& fake() {
    static thread_local cow_String const name(inp_Types::fakeName());
    return name;
}

// The set keywords' parameter names, one string shared by every keyword
// made on this thread.
cow_String const& setWord(bool node) {
    static thread_local cow_String const nset("nset");
    static thread_local cow_String const elset("elset");
    return node ? nset : elset;
}

cow_String instanceOf(cow_String const& part) {
    cow_String instance(part);
    instance.append("-1");
    return instance;
}

bool isLabel(cow_String const& datum) {
    return static_cast<bool>(inp_PatternMatchers::MatchInteger(datum.View()));
}

// A line of a set keyword ends after eight items, or before it would pass
// 256 characters.
constexpr int kItemsPerLine = 8;
constexpr size_t kLineLimit = 256;

}  // namespace

inp_FakePartSetAssignVisitor::inp_FakePartSetAssignVisitor(
    inpM_InstanceMap<inp_MapInt2Element> const& partElements, inp_CoordMap const& partCoords,
    inpM_IdMap const& nodeIds, inpM_IdMap const& elementIds, inpM_SetMap const& nodeSets,
    inpM_SetMap const& elementSets, inp_ModelParameters const& parameters)
    : inp_SetFixupVisitor(nodeSets, elementSets, nodeIds, elementIds),
      m_partElements(partElements),
      m_partCoords(partCoords),
      m_parameters(parameters) {
    // Instance order is ascending part name, the order of the maps.
    std::vector<cow_String> parts;
    for (cow_String const& part : partCoords.Instances()) parts.push_back(part);
    for (cow_String const& part : partElements.Instances()) parts.push_back(part);
    std::sort(parts.begin(), parts.end());
    for (cow_String const& part : parts) m_parts.AppendUnlessMember(part);
}

inp_FakePartSetAssignVisitor::~inp_FakePartSetAssignVisitor() = default;

// -- who holds what --------------------------------------------------------------------------

bool inp_FakePartSetAssignVisitor::holds(cow_String const& part, inp_ReferenceKind kind,
                                         int id) const {
    if (kind == inp_ReferenceKind::Node)
        return m_partCoords.IsMember(part) && m_partCoords.ConstGet(part).IsMember(id);
    return m_partElements.IsMember(part) && m_partElements.ConstGetMap(part).HasValue() &&
           m_partElements.ConstGet(part).IsMember(id);
}

cow_List<cow_String> inp_FakePartSetAssignVisitor::GetInstanceNames(inp_ReferenceKind kind,
                                                                    int id) const {
    cow_List<cow_String> instances;
    for (cow_String const& part : m_parts)
        if (holds(part, kind, id)) instances.Append(instanceOf(part));
    return instances;
}

cow_String inp_FakePartSetAssignVisitor::GetInstanceName(inp_ReferenceKind kind, int id) const {
    for (cow_String const& part : m_parts)
        if (holds(part, kind, id)) return instanceOf(part);
    return cow_String();
}

// A part counts once one id lies in it, so a set of a million members in
// one part costs one pass.
cow_List<cow_String> inp_FakePartSetAssignVisitor::PartsSpannedByIds(
    inp_ReferenceKind kind, cow_List<int> const& ids) const {
    cow_List<cow_String> parts;
    for (cow_String const& part : m_parts) {
        for (int const id : ids) {
            if (!holds(part, kind, id)) continue;
            parts.Append(part);
            break;
        }
    }
    return parts;
}

inpM_SetMap const& inp_FakePartSetAssignVisitor::FakeSets(inp_ReferenceKind kind) const {
    return kind == inp_ReferenceKind::Node ? NodeSets() : ElementSets();
}

cow_List<cow_String> inp_FakePartSetAssignVisitor::PartsSpannedBySet(inp_ReferenceKind kind,
                                                                     cow_String const& name) const {
    inpM_SetMap const& sets = FakeSets(kind);
    if (!sets.HasNestedSet(fake(), name)) return {};
    return PartsSpannedByIds(kind, sets.ConstGetNestedSet(fake(), name)->ConstGetIdList());
}

// -- the walk ------------------------------------------------------------------------------------

void inp_FakePartSetAssignVisitor::record(inp_ReferenceKind kind, cow_String const& part,
                                          cow_String const& set) {
    SetUsers& users = Users(kind);
    if (!users.IsMember(part)) users.Insert(part, cow_Map<cow_String, int>());
    users.Get(part).Insert(set, 1);
}

cow_String inp_FakePartSetAssignVisitor::FixupIdOrSet(inp_Keyword const& keyword,
                                                      cow_String const& datum,
                                                      inpM_SetMap const& sets, inpM_IdMap const&,
                                                      cow_String const&, cow_String const&,
                                                      cow_String const& partName, inp_SetType,
                                                      cow_String const&) {
    if (partName.IsEmpty() || datum.IsEmpty()) return datum;
    inp_ReferenceKind const kind =
        &sets == &NodeSets() ? inp_ReferenceKind::Node : inp_ReferenceKind::Element;
    // A label is an id; any other name a set.
    bool const isSet = !isLabel(datum);
    if (isSet && !inp_Utils::IsSetName(datum)) return datum;
    cow_List<cow_String> const spanned =
        isSet ? PartsSpannedBySet(kind, datum)
              : PartsSpannedByIds(kind, cow_List<int>{std::stoi(std::string(datum.View()))});
    if (isSet && spanned.Length() == 1) {
        record(kind, partName, datum);
        return datum;
    }
    if (m_parameters.isSymModelGen()) return datum;
    if (!isSet && spanned.Length() == 1 && spanned.ConstGet(0) == partName) return datum;
    report(keyword, kind, isSet, datum, partName, spanned);
    return datum;
}

void inp_FakePartSetAssignVisitor::report(inp_Keyword const& keyword, inp_ReferenceKind kind,
                                          bool isSet, cow_String const& datum,
                                          cow_String const& part,
                                          cow_List<cow_String> const& spanned) {
    bool const node = kind == inp_ReferenceKind::Node;
    char const* format =
        isSet ? (node ? "The nset: \"%1$s\" is referenced in part: \"%2$s\" and should be "
                        "assigned to this part. "
                      : "The elset: \"%1$s\" is referenced in part: \"%2$s\" and should be "
                        "assigned to this part. ")
              : (node ? "The node: \"%1$s\" is referenced in part: \"%2$s\" and should be "
                        "assigned to this part. "
                      : "The element: \"%1$s\" is referenced in part: \"%2$s\" and should be "
                        "assigned to this part.");
    atr_String text = atr(format, datum, part);
    if (spanned.IsEmpty()) {
        text.append("The set appears to be undefined.");
        atr_String const message = inp_Utils::MessageInKeyword(keyword, text);
        if (m_inSectionKeyword) {
            AddWarning(message);
        } else {
            AddError(message);
        }
        return;
    }
    text.append("It is assigned to the following parts:");
    for (int i = 0; i < spanned.Length(); ++i)
        text.append(atr(i + 1 < spanned.Length() ? " \"%s\"," : " \"%s\".", spanned.ConstGet(i)));
    AddError(inp_Utils::MessageInKeyword(keyword, text));
}

namespace {

// Marks the walk as inside a section keyword while the base handler runs.
class SectionScope {
  public:
    explicit SectionScope(bool& flag) : m_flag(flag) { m_flag = true; }
    ~SectionScope() { m_flag = false; }
    SectionScope(SectionScope const&) = delete;
    SectionScope& operator=(SectionScope const&) = delete;

  private:
    bool& m_flag;
};

}  // namespace

void inp_FakePartSetAssignVisitor::VisitBeamGeneralSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitBeamGeneralSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitBeamSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitBeamSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitCohesiveSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitCohesiveSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitConnectorSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitConnectorSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitEulerianSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitEulerianSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitFrameSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitFrameSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitGasketSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitGasketSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitMembraneSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitMembraneSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitShellGeneralSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitShellGeneralSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitShellSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitShellSection(keyword);
}
void inp_FakePartSetAssignVisitor::VisitSolidSection(inp_Keyword& keyword) {
    SectionScope const inSection(m_inSectionKeyword);
    inp_SetFixupVisitor::VisitSolidSection(keyword);
}

void inp_FakePartSetAssignVisitor::VisitFastener(inp_Keyword& keyword) {
    ReplaceNodeOrNsetParameter(keyword, "referencenodeset");
    cow_String const set = keyword.GetParameterAsString("elset", cow_String());
    if (set.IsEmpty()) return;
    for (cow_String const& part : PartsSpannedBySet(inp_ReferenceKind::Element, set))
        FixupIdOrSet(keyword, set, ElementSets(), ElementIds(), AssemblyName(), InstanceName(),
                     part, inp_SET_OR_ID, "elset");
}

void inp_FakePartSetAssignVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    if (inp_Item const* refnode = keyword.Parameters().Find("refnode")) {
        cow_String const value = refnode->AsString();
        bool const isSet = !isLabel(value);
        cow_List<cow_String> const spanned =
            isSet ? PartsSpannedBySet(inp_ReferenceKind::Node, value)
                  : PartsSpannedByIds(inp_ReferenceKind::Node,
                                      cow_List<int>{std::stoi(std::string(value.View()))});
        if (spanned.IsEmpty()) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The reference node or node set, \"%s\", specified by the parameter "
                             "REF NODE is not assigned to any part.",
                             value)));
        } else if (spanned.Length() == 1 && isSet) {
            record(inp_ReferenceKind::Node, spanned.ConstGet(0), value);
        }
    }
    cow_String const set = keyword.GetParameterAsString("elset", cow_String());
    if (!set.IsEmpty() && !PartName().IsEmpty())
        record(inp_ReferenceKind::Element, PartName(), set);
}

// -- the set keywords ---------------------------------------------------------------------------

cow_String inp_FakePartSetAssignVisitor::PartName(inp_ReferenceKind kind,
                                                  cow_String const& name) const {
    SetUsers const& users = kind == inp_ReferenceKind::Node ? m_nodeSetUsers : m_elementSetUsers;
    cow_String owner;
    users.ForEachSorted([&](cow_String const& part, cow_Map<cow_String, int> const& sets) {
        if (owner.IsEmpty() && sets.IsMember(name)) owner = part;
    });
    return owner;
}

int inp_FakePartSetAssignVisitor::GetInsertPosition(cow_List<inp_Keyword> const& list,
                                                    cow_String const& part) {
    for (int i = 0; i < list.Length(); ++i) {
        inp_Keyword const& keyword = list.ConstGet(i);
        if (keyword.Is(inp_kw_Part) && keyword.GetParameterAsString("name", cow_String()) == part)
            return i + 1;
    }
    return -1;
}

void inp_FakePartSetAssignVisitor::InsertPartSets(cow_List<inp_Keyword>& list,
                                                  inp_ReferenceKind kind, cow_String const& part,
                                                  cow_List<cow_String> const& names) const {
    int const position = GetInsertPosition(list, part);
    if (position < 0) return;
    list.InsertList(position, CreatePartSets(kind, part, names));
}

cow_List<inp_Keyword> inp_FakePartSetAssignVisitor::CreatePartSets(
    inp_ReferenceKind kind, cow_String const&, cow_List<cow_String> const& names) const {
    cow_List<inp_Keyword> keywords;
    inpM_SetMap const& sets = FakeSets(kind);
    for (cow_String const& name : names) {
        inpM_SetHandle const* const set = sets.FindNestedSet(fake(), name);
        if (!set || (*set)->IsEmpty()) continue;
        keywords.Append(CreateSetKeyword(kind, false, name, **set));
    }
    return keywords;
}

void inp_FakePartSetAssignVisitor::AddSets(inp_ReferenceKind kind, cow_String const& part,
                                           cow_String const& name) {
    if (Result(kind).HasNestedSet(part, name)) return;
    if (inpM_SetHandle const* set = FakeSets(kind).FindNestedSet(fake(), name))
        Result(kind).InsertNestedSet(part, name, *set);
}

// A set that no part used, whose members all lie in one part, is that
// part's in the maps too.
void inp_FakePartSetAssignVisitor::AddSets(inp_ReferenceKind kind) {
    inpM_SetMap const& sets = FakeSets(kind);
    if (!sets.HasInstance(fake())) return;
    for (inpM_BaseSetMapSIT it(sets.ConstGetNestedSetMap(fake())); it.NotDone(); it.Next()) {
        cow_List<cow_String> const parts =
            PartsSpannedByIds(kind, it.CurrentValue()->ConstGetIdList());
        if (parts.Length() != 1 || Result(kind).HasNestedSet(parts.ConstGet(0), it.CurrentKey()))
            continue;
        Result(kind).InsertNestedSet(parts.ConstGet(0), it.CurrentKey(),
                                     CreateSet(*it.CurrentValue()));
    }
}

cow_List<inp_Keyword> inp_FakePartSetAssignVisitor::CreateAssemblySets(
    inp_ReferenceKind kind) const {
    cow_List<inp_Keyword> keywords;
    inpM_SetMap const& sets = FakeSets(kind);
    if (!sets.HasInstance(fake())) return keywords;
    for (inpM_BaseSetMapSIT it(sets.ConstGetNestedSetMap(fake())); it.NotDone(); it.Next()) {
        if (!PartName(kind, it.CurrentKey()).IsEmpty() || it.CurrentValue()->IsEmpty()) continue;
        keywords.Append(CreateSetKeyword(kind, true, it.CurrentKey(), *it.CurrentValue()));
    }
    return keywords;
}

void inp_FakePartSetAssignVisitor::InsertAssemblySets(cow_List<inp_Keyword>& list,
                                                      inp_ReferenceKind kind) const {
    cow_List<inp_Keyword> keywords = CreateAssemblySets(kind);
    for (int i = 0; i < list.Length(); ++i) {
        if (!list.ConstGet(i).Is(inp_kw_EndAssembly)) continue;
        list.InsertList(i, std::move(keywords));
        return;
    }
}

namespace {

// Three or more ids with one step between them.
bool isProgression(cow_List<int> const& ids, int& step) {
    if (ids.Length() < 3) return false;
    step = ids.ConstGet(1) - ids.ConstGet(0);
    if (step <= 0) return false;
    for (int i = 2; i < ids.Length(); ++i)
        if (ids.ConstGet(i) - ids.ConstGet(i - 1) != step) return false;
    return true;
}

}  // namespace

inp_Keyword inp_FakePartSetAssignVisitor::CreateSetKeyword(inp_ReferenceKind kind,
                                                           bool assemblyLevel,
                                                           cow_String const& name,
                                                           inpM_BaseSet const& set) const {
    bool const node = kind == inp_ReferenceKind::Node;
    inp_Keyword keyword(node ? inp_kw_Nset : inp_kw_Elset);
    keyword.SetParameter(setWord(node), inp_Item(name));
    if (node && set.IsUnsorted()) keyword.SetParameter("unsorted", inp_Item(true));
    if (set.IsInternal()) keyword.SetParameter("internal", inp_Item(true));
    cow_List<int> const ids = set.ConstGetIdList();
    int step = 0;
    // At the assembly a member is named by its instance: no generation.
    if (!assemblyLevel && isProgression(ids, step)) {
        keyword.SetParameter("generate", inp_Item(true));
        std::string const line = std::to_string(ids.ConstGet(0)) + ", " +
                                 std::to_string(ids.ConstGet(ids.Length() - 1)) + ", " +
                                 std::to_string(step);
        keyword.Data().Append(line.c_str());
        return keyword;
    }
    GenerateUnsortedSetKeyword(kind, assemblyLevel, ids, keyword);
    return keyword;
}

void inp_FakePartSetAssignVisitor::GenerateUnsortedSetKeyword(inp_ReferenceKind kind,
                                                              bool assemblyLevel,
                                                              cow_List<int> const& ids,
                                                              inp_Keyword& keyword) const {
    std::string line;
    int items = 0;
    // An item is "INSTANCE.ID," at the assembly, "ID," in a part; it is
    // written straight into the line, with no string of its own.
    auto add = [&](cow_String const* instance, int id) {
        char digits[16];
        auto const written = std::to_chars(digits, digits + sizeof digits, id);
        size_t const prefix = instance ? static_cast<size_t>(instance->Length()) + 1 : 0;
        size_t const length = prefix + static_cast<size_t>(written.ptr - digits) + 1;
        if (items == kItemsPerLine || (items > 0 && line.size() + length > kLineLimit)) {
            keyword.Data().Append(line.c_str());
            line.clear();
            items = 0;
        }
        if (instance) line.append(instance->View()).push_back('.');
        line.append(digits, written.ptr).push_back(',');
        ++items;
    };
    for (int const id : ids) {
        if (!assemblyLevel) {
            add(nullptr, id);
            continue;
        }
        for (cow_String const& instance : GetInstanceNames(kind, id)) add(&instance, id);
    }
    if (items > 0) keyword.Data().Append(line.c_str());
}

void inp_FakePartSetAssignVisitor::RearrangeNsetKeywords(cow_List<inp_Keyword>& list) const {
    int first = 0;
    while (first < list.Length() && !list.ConstGet(first).Is(inp_kw_Nset)) ++first;
    cow_Map<cow_String, cow_List<inp_Keyword>> groups;
    cow_List<inp_Keyword> kept;
    for (int i = 0; i < list.Length(); ++i) {
        inp_Keyword const& keyword = list.ConstGet(i);
        bool const node = keyword.Is(inp_kw_Nset);
        cow_String part;
        if (i >= first && (node || keyword.Is(inp_kw_Elset))) {
            cow_String const name = keyword.GetParameterAsString(node ? "nset" : "elset", {});
            part = PartName(node ? inp_ReferenceKind::Node : inp_ReferenceKind::Element, name);
        }
        // A set of no part stays where it stands.
        if (part.IsEmpty()) {
            kept.Append(keyword);
            continue;
        }
        if (!groups.IsMember(part)) groups.Insert(part, cow_List<inp_Keyword>());
        groups.Get(part).Append(keyword);
    }
    groups.ForEachSorted([&](cow_String const& part, cow_List<inp_Keyword> const& group) {
        int const position = GetInsertPosition(kept, part);
        if (position < 0) return;
        kept.InsertList(position, group);
    });
    list = kept;
}

void inp_FakePartSetAssignVisitor::Keywords(cow_List<inp_Keyword>& list) {
    for (inp_ReferenceKind kind : {inp_ReferenceKind::Node, inp_ReferenceKind::Element}) {
        SetUsers const users = Users(kind);
        users.ForEachSorted([&](cow_String const& part, cow_Map<cow_String, int> const& sets) {
            cow_List<cow_String> names;
            sets.ForEachSorted([&](cow_String const& name, int) { names.Append(name); });
            InsertPartSets(list, kind, part, names);
            for (cow_String const& name : names) AddSets(kind, part, name);
        });
        AddSets(kind);
    }
    if (m_parameters.isSymModelGen()) RearrangeNsetKeywords(list);
    InsertAssemblySets(list, inp_ReferenceKind::Node);
    InsertAssemblySets(list, inp_ReferenceKind::Element);
}

// -- the simple form -----------------------------------------------------------------------------

cow_String inp_SimpleFakeAssignVisitor::PartName(inp_ReferenceKind kind,
                                                 cow_String const& name) const {
    return FakeSets(kind).HasNestedSet(fake(), name) ? cow_String("PART-1") : cow_String();
}

// The sets are the flat deck's, shared, under "PART-1".
void inp_SimpleFakeAssignVisitor::Keywords(cow_List<inp_Keyword>& list) {
    cow_String const part("PART-1");
    for (inp_ReferenceKind kind : {inp_ReferenceKind::Node, inp_ReferenceKind::Element}) {
        Result(kind) = FakeSets(kind);
        Result(kind).ChangeInstanceName(fake(), part);
        if (m_suppressSetKeywords || !FakeSets(kind).HasInstance(fake())) continue;
        int const position = GetInsertPosition(list, part);
        if (position < 0) continue;
        // Every set of the flat deck, in name order, straight from the map's
        // walk: no search of the name tree per set.
        cow_List<inp_Keyword> keywords;
        for (inpM_BaseSetMapSIT it(FakeSets(kind).ConstGetNestedSetMap(fake())); it.NotDone();
             it.Next()) {
            inpM_SetHandle const& set = it.CurrentValue();
            if (set->IsEmpty()) continue;
            keywords.Append(CreateSetKeyword(kind, false, it.CurrentKey(), *set));
        }
        list.InsertList(position, std::move(keywords));
    }
    if (m_parameters.isSymModelGen()) RearrangeNsetKeywords(list);
}
