#include "mesh/inp_SetVisitor.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/common/FailureText.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;
using ByInstance = std::map<std::string, Ids>;

// The smallest concrete set visitor: the scope is set by hand.
class SetReader : public inp_SetVisitor {
  public:
    explicit SetReader(char const* keywordName = "*NODE") : m_keywordName(keywordName) {}
    SetReader(inpM_SetMap const& sets, cow_String const& part) : inp_SetVisitor(sets, part) {}

    void DefaultAction(inp_Keyword&) override {}
    cow_String KeywordName() const override { return m_keywordName; }

    void InPart(char const* part) { m_partName = part; }
    void AtAssembly(char const* assembly) {
        m_partName = cow_String();
        m_instanceName = cow_String();
        m_assemblyName = assembly;
    }
    Texts Errors() const {
        Texts result;
        for (atr_String const& error : GetErrorList()) result.emplace_back(error.View());
        return result;
    }

  private:
    cow_String m_keywordName = "*NODE";
};

inp_Keyword nset(std::initializer_list<char const*> lines, char const* name = "S") {
    inp_Keyword keyword(inp_kw_Nset, cow_String("deck.inp"));
    keyword.SetLineNumber(3);
    keyword.SetParameter("nset", inp_Item(name));
    for (char const* line : lines) keyword.Data().Append(line);
    return keyword;
}

std::string at3(std::string const& text) {
    return "in keyword *NSET, file \"deck.inp\", line 3: " + text;
}

Ids ids(inpM_SetHandle const& set) {
    cow_List<int> const list = set->ConstGetIdList();
    return Ids(list.begin(), list.end());
}

ByInstance byInstance(inpM_SetHandle const& set) {
    ByInstance result;
    set->ConstGetInstanceIdLists().ForEachSorted(
        [&](cow_String const& name, cow_List<int> const& list) {
            result[std::string(name.View())] = Ids(list.begin(), list.end());
        });
    return result;
}

inpM_SetHandle sorted(Ids const& values) {
    cow_List<int> list;
    for (int v : values) list.Append(v);
    return CreateSet(list, false, false);
}

inpM_SetHandle unsorted(Ids const& values) {
    cow_List<int> list;
    for (int v : values) list.Append(v);
    return CreateSet(list, false, true);
}

}  // namespace

// -- storing --------------------------------------------------------------------------

TEST(SetVisitorStore, NamesAreCheckedBeforeAnythingIsStored) {
    SetReader reader;
    reader.InPart("P");
    std::string const eighty(80, 'A');
    std::string const eightyOne(81, 'A');
    reader.AddPartSet(eighty.c_str(), sorted({1}), false);
    reader.AddPartSet(eightyOne.c_str(), sorted({1}), false);
    reader.AddPartSet("1A", sorted({1}), false);
    reader.AddPartSet("_A", sorted({1}), false);
    reader.AddPartSet("\"q s\"", sorted({1}), false);
    reader.AddAssySet("-A", sorted({1}), false);
    reader.AddAssySet("", sorted({1}), false);

    inpM_SetMap const& sets = reader.ConstGetSetMap();
    EXPECT_TRUE(sets.HasNestedSet("P", eighty.c_str()));
    EXPECT_FALSE(sets.HasNestedSet("P", eightyOne.c_str()));
    EXPECT_FALSE(sets.HasNestedSet("P", "1A"));
    EXPECT_TRUE(sets.HasNestedSet("P", "_A"));
    EXPECT_TRUE(sets.HasNestedSet("P", "\"q s\""));
    EXPECT_FALSE(sets.HasSet("-A"));
    EXPECT_EQ(
        reader.Errors(),
        (Texts{"Set name  \"" + eightyOne + "\" cannot be more than 80 characters.",
               "Invalid set name \"1A\".", "Invalid set name \"-A\".", "Invalid set name \"\"."}));
}

TEST(SetVisitorStore, MergingGrowsACopyAndReplacingReplaces) {
    SetReader reader;
    reader.AtAssembly("A");
    inpM_SetHandle const first = sorted({1, 5});
    reader.AddAssySet("S", first, false);
    reader.AddAssySet("S", sorted({3}), false);
    EXPECT_EQ(ids(reader.ConstGetSetMap().ConstGetSet("S")), (Ids{1, 3, 5}));
    EXPECT_EQ(ids(first), (Ids{1, 5}));  // the caller's handle is not written through

    reader.AddAssySet("S", sorted({9}), true);
    EXPECT_EQ(ids(reader.ConstGetSetMap().ConstGetSet("S")), (Ids{9}));

    reader.InPart("P");
    reader.AddPartSet("S", unsorted({4, 2}), false);
    reader.AddPartSet("S", unsorted({2}), false);
    EXPECT_EQ(ids(reader.ConstGetSetMap().ConstGetNestedSet("P", "S")), (Ids{4, 2, 2}));
    EXPECT_TRUE(reader.Errors().empty());
}

TEST(SetVisitorStore, ScopeAssertionsAndStartingMap) {
    inpM_SetMap start;
    start.InsertNestedSet("P", "OLD", sorted({7}));
    SetReader reader(start, "P");
    EXPECT_TRUE(reader.ConstGetSetMap().HasNestedSet("P", "OLD"));
    EXPECT_EQ(conditionOf([&] { reader.ReadAssemblyIdsAndSetNames(start, nset({"1"}), false); }),
              "currentName.Length() == 0");
    EXPECT_EQ(conditionOf([&] { reader.GenerateAssemblySet(nset({"1, 2"}), false, false); }),
              "currentName.Length() == 0");

    reader.AtAssembly("A");
    EXPECT_EQ(conditionOf([&] { reader.AddPartSet("S", sorted({1}), false); }),
              "currentName.Length() > 0");
    EXPECT_EQ(conditionOf([&] { reader.ReadIdsAndSetNames(nset({"1"}), false, false); }),
              "currentName.Length() > 0");
}

// -- reading inside a part --------------------------------------------------------------

TEST(SetVisitorPartRead, IdsAndNamesWithInvalidAndMissingValues) {
    SetReader reader;
    reader.InPart("P");
    reader.AddPartSet("A", sorted({20, 21}), false);
    inpM_SetHandle const set = reader.ReadIdsAndSetNames(
        nset({"3, A, 999999999", "1000000000, 1.5,, NOPE", "2"}), true, false);
    // What could be read is there, the faults are reported once each.
    EXPECT_EQ(ids(set), (Ids{2, 3, 20, 21, 999999999}));
    EXPECT_TRUE(set->IsInternal());
    EXPECT_FALSE(set->IsUnsorted());
    EXPECT_EQ(reader.Errors(), (Texts{at3("Invalid data:\n1000000000, 1.5"),
                                      at3("The following sets specified do not exist:\nNOPE")}));
}

TEST(SetVisitorPartRead, UnsortedKeepsTheWrittenOrderOfIdsAndNamedSets) {
    SetReader reader;
    reader.InPart("P");
    reader.AddPartSet("A", unsorted({9, 4}), false);
    inpM_SetHandle const set =
        reader.ReadUnsortedIdsAndSetNames(nset({"5, a, 1", "5"}), false, false);
    EXPECT_TRUE(set->IsUnsorted());
    EXPECT_FALSE(set->IsInternal());
    EXPECT_EQ(ids(set), (Ids{5, 9, 4, 1, 5}));
}

TEST(SetVisitorPartRead, SearchingTheAssemblyTakesItsOwnIdsThenTheFirstInstance) {
    inpM_SetMap start;
    inpM_SetHandle assemblySet = sorted({1});
    assemblySet.Get().Add(cow_String("I"), cow_List<int>{100});
    start.InsertSet("ASM", assemblySet);
    start.InsertNestedSet("B", "INST", sorted({50}));
    start.InsertNestedSet("C", "INST", sorted({60}));
    SetReader reader(start, "P");
    inpM_SetHandle const set = reader.ReadIdsAndSetNames(nset({"ASM, INST, GONE"}), false, true);
    EXPECT_EQ(ids(set), (Ids{1, 50}));
    EXPECT_TRUE(byInstance(set).empty());
    EXPECT_EQ(reader.Errors(), (Texts{at3("The following sets specified do not exist:\nGONE")}));
}

TEST(SetVisitorPartRead, GenerateSetGivesFormAndFlagAndPlainMessages) {
    SetReader reader;
    inp_Keyword const keyword = nset({"10, 1, -3", "1, 10, 2"});
    inpM_SetHandle const up = reader.GenerateSet(keyword.Data(), true, false);
    EXPECT_EQ(ids(up), (Ids{1, 4, 7, 10}));
    EXPECT_TRUE(up->IsInternal());
    inpM_SetHandle const down = reader.GenerateSet(keyword.Data(), false, true);
    EXPECT_EQ(ids(down), (Ids{10, 7, 4, 1}));
    EXPECT_TRUE(down->IsUnsorted());
    Texts const increment(2,
                          "Increment of 2 cannot be used to step from 1 to 10 on *NSET keyword.");
    EXPECT_EQ(reader.Errors(), increment);

    SetReader elements("*ELEMENT");
    elements.GenerateSet(nset({"5, 1"}).Data(), false, false);
    EXPECT_EQ(elements.Errors(),
              (Texts{"Increment of 1 cannot be used to step from 5 to 1 on *ELSET keyword."}));
}

TEST(SetVisitorPartRead, AccumulationSortsWhenASortedBlockFollows) {
    SetReader reader;
    reader.InPart("P");
    // First block UNSORTED, second sorted: the set ends sorted.
    reader.AddPartSet(
        "S", reader.ReadIdsAndSetNamesAccumulate("S", nset({"9, 2, 9"}), false, true, false), true);
    EXPECT_TRUE(reader.ConstGetSetMap().ConstGetNestedSet("P", "S")->IsUnsorted());
    inpM_SetHandle const grown =
        reader.GenerateSetAccumulate("S", nset({"1, 3"}).Data(), false, false);
    EXPECT_FALSE(grown->IsUnsorted());
    EXPECT_EQ(ids(grown), (Ids{1, 2, 3, 9}));
    // The stored set stays as it was until the caller replaces it.
    EXPECT_EQ(ids(reader.ConstGetSetMap().ConstGetNestedSet("P", "S")), (Ids{9, 2, 9}));

    // Unsorted on unsorted concatenates; a sorted set read unsorted stays sorted.
    EXPECT_EQ(ids(reader.ReadIdsAndSetNamesAccumulate("S", nset({"1"}), false, true, false)),
              (Ids{9, 2, 9, 1}));
    reader.AddPartSet("T", sorted({4}), false);
    inpM_SetHandle const kept =
        reader.GenerateSetAccumulate("T", nset({"3, 1, -1"}).Data(), false, true);
    EXPECT_FALSE(kept->IsUnsorted());
    EXPECT_EQ(ids(kept), (Ids{1, 2, 3, 4}));
    // A new name reads into a new set of the asked form.
    EXPECT_TRUE(
        reader.GenerateSetAccumulate("NEW", nset({"3, 1, -1"}).Data(), true, true)->IsUnsorted());
}

// -- reading at the assembly level -----------------------------------------------------

inpM_SetMap assemblySets() {
    inpM_SetMap sets;
    sets.InsertNestedSet("I", "TOP", sorted({5, 6}));
    sets.InsertNestedSet("Q I", "S.1", sorted({8}));
    sets.InsertNestedSet("PART-1-1", "FLAT", sorted({30}));
    inpM_SetHandle own = sorted({1});
    own.Get().Add(cow_String("J"), cow_List<int>{2});
    sets.InsertSet("OWN", own);
    return sets;
}

class SetVisitorAssembly : public ::testing::Test {
  protected:
    SetVisitorAssembly() { reader.AtAssembly("Asm"); }

    inpM_SetMap sets = assemblySets();
    SetReader reader{sets, ""};  // knows the instances I, Q I and PART-1-1
};

TEST_F(SetVisitorAssembly, IdsNamesScopedIdsAndScopedNames) {
    inpM_SetHandle const set = reader.ReadAssemblyIdsAndSetNames(
        sets,
        nset({"4, OWN, FLAT, i.7, I.TOP", "ASM.i.top, \"Q I\".\"S.1\", OTHER.I.TOP, NONE, K.3"}),
        false);
    EXPECT_EQ(ids(set), (Ids{1, 4}));
    EXPECT_EQ(byInstance(set),
              (ByInstance{{"I", {5, 6, 7}}, {"J", {2}}, {"PART-1-1", {30}}, {"Q I", {8}}}));
    EXPECT_EQ(reader.Errors(),
              (Texts{at3("The following sets/ids do not exist:\nOTHER.I.TOP, NONE, K.3")}));
}

TEST_F(SetVisitorAssembly, UnsortedKeepsOrderPerLevel) {
    inpM_SetHandle const set =
        reader.ReadUnsortedAssemblyIdsAndSetNames(sets, nset({"9, i.7, 3, I.TOP, i.1"}), true);
    EXPECT_TRUE(set->IsUnsorted());
    EXPECT_TRUE(set->IsInternal());
    EXPECT_EQ(ids(set), (Ids{9, 3}));
    EXPECT_EQ(byInstance(set), (ByInstance{{"I", {7, 5, 6, 1}}}));
}

TEST_F(SetVisitorAssembly, GeneratedRowsOfTheAssemblyAndOfInstances) {
    inpM_SetHandle const set = reader.GenerateAssemblySet(
        nset({"1, 3", "i.10, i.6, -2", "7", "a.1, b.2", "K.1, K.3", "2, I.4"}, "SET9"), false,
        false);
    EXPECT_EQ(ids(set), (Ids{1, 2, 3}));
    EXPECT_EQ(byInstance(set), (ByInstance{{"I", {2, 3, 4, 6, 8, 10}}}));
    EXPECT_EQ(reader.Errors(),
              (Texts{at3("Not enough data provided to generate the *NSET: SET9"),
                     at3("The start and end id instance names must match when generating "
                         "assembly *NSET ids: A, B"),
                     at3("The following sets/ids do not exist:\nK.1")}));
}

TEST_F(SetVisitorAssembly, InstanceParameterScopesTheData) {
    inp_Keyword keyword = nset({"1, 2", ",3"});
    keyword.SetParameter("instance", inp_Item("i"));
    reader.ProcessInstanceParameter(keyword);
    EXPECT_EQ(std::string(keyword.Data().AsStringVerbatim(0, 1).View()), "i.2");
    EXPECT_TRUE(keyword.Data().IsNone(1, 0));
    inpM_SetHandle const set = reader.ReadAssemblyIdsAndSetNames(sets, keyword, false);
    EXPECT_TRUE(ids(set).empty());
    EXPECT_EQ(byInstance(set), (ByInstance{{"I", {1, 2, 3}}}));

    inp_Keyword generated = nset({"1, 9, 4"});
    generated.SetParameter("instance", inp_Item("i"));
    generated.SetParameter("generate", inp_Item(true));
    reader.ProcessInstanceParameter(generated);
    EXPECT_EQ(byInstance(reader.GenerateAssemblySet(generated, false, false)),
              (ByInstance{{"I", {1, 5, 9}}}));
    EXPECT_TRUE(reader.Errors().empty());

    // Inside a part the parameter is none of this reader's business.
    inp_Keyword inPart = nset({"1"});
    inPart.SetParameter("instance", inp_Item("i"));
    reader.InPart("P");
    reader.ProcessInstanceParameter(inPart);
    EXPECT_EQ(std::string(inPart.Data().AsStringVerbatim(0, 0).View()), "1");
}

TEST_F(SetVisitorAssembly, AccumulatedAssemblySetsGrow) {
    reader.AddAssySet("S", unsorted({4, 4}), false);
    inpM_SetHandle const grown =
        reader.GenerateAssemblySetAccumulate("S", nset({"i.1, i.2"}), false, false);
    EXPECT_FALSE(grown->IsUnsorted());
    EXPECT_EQ(ids(grown), (Ids{4}));
    EXPECT_EQ(byInstance(grown), (ByInstance{{"I", {1, 2}}}));
    inpM_SetHandle const more =
        reader.ReadAssemblyIdsAndSetNamesAccumulate("S", sets, nset({"5, 4"}), false, true);
    EXPECT_EQ(ids(more), (Ids{4, 4, 5, 4}));
}
