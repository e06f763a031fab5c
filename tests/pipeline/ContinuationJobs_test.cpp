// Jobs that copy or continue a model: what is imported and whether it is
// written correctly, the id maps of a symmetric model generation, and the
// sets an import job keeps.

#include <gtest/gtest.h>

#include <string>

#include "continuation/inp_ImportKwdData.h"
#include "continuation/inp_ImportValidityVisitor.h"
#include "continuation/inp_RestartSetVisitor.h"
#include "continuation/inp_RestartSurfaceVisitor.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"
#include "tests/mesh/InlineDeck.h"

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

class ContinuationJobs : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    void run(std::string const& deck) {
        input.Run(dir.Write("deck.inp", deck), inp_Stage::OutOfPlace,
                  inp_InputFile::RunRule::RunThrough);
        ASSERT_FALSE(sink().HasErrors());
    }
    // A keyword added to the top of the tree, as a deck would have it.
    inp_Keyword& add(char const* name, std::string const& data = std::string()) {
        inp_Keyword keyword{cow_String(name)};
        if (!data.empty()) keyword.Data().Append(data.c_str());
        input.GetKeywords().Append(keyword);
        return input.GetKeywords().GetLast();
    }

    TempDeckDirectory dir;
    inp_InputFile input;
};

// The numbering of a model without instances: ids 1..count.
inpM_IdMap numbering(int count) {
    inpM_IdMap map;
    for (int id = 1; id <= count; ++id) map.Insert(id, id);
    return map;
}

}  // namespace

TEST_F(ContinuationJobs, SymmetricGenerationAddsTheCopiesIdsToTheIdMaps) {
    input.SetNodeIdMap(numbering(3));
    input.SetElementIdMap(numbering(2));
    inpM_IdMap const nodesBefore = input.NodeIdMap();
    input.AdjustMapsForSymModelGen();  // no *SYMMETRIC MODEL GENERATION: nothing
    EXPECT_EQ(input.NodeIdMap().NumberIds(), nodesBefore.NumberIds());

    // A reflection: one copy, offset by the largest ids.
    add("symmetricmodelgeneration").SetParameter("reflect", inp_Item(cow_String("LINE")));
    input.AdjustMapsForSymModelGen();
    EXPECT_EQ(input.NodeIdMap().NumberIds(), 6);
    EXPECT_EQ(input.ElementIdMap().NumberIds(), 4);
    EXPECT_EQ(input.NodeIdMap().LargestId(), 6);
}

// A revolution of 2 + 3 segments (a line without its second item counts 1):
// the elements get four copies, the nodes one more, offset as given.
TEST_F(ContinuationJobs, RevolvedModelsCountTheirSegmentsAndTakeTheGivenOffsets) {
    input.SetNodeIdMap(numbering(3));
    input.SetElementIdMap(numbering(2));
    inp_Keyword& generation = add("symmetricmodelgeneration", "0., 0., 0., 0., 1., 0.");
    generation.Data().Append("0., 0., 1.");
    generation.Data().Append("90., 2");
    generation.Data().Append("30., 3");
    generation.SetParameter("revolve", inp_Item(true));
    generation.SetParameter("elementoffset", inp_Item(100));
    generation.SetParameter("nodeoffset", inp_Item(1000));
    input.AdjustMapsForSymModelGen();
    EXPECT_EQ(input.ElementIdMap().NumberIds(), 2 * 5);
    EXPECT_EQ(input.NodeIdMap().NumberIds(), 3 * 6);
    EXPECT_EQ(input.ElementIdMap().LargestId(), 2 + 4 * 100);
    EXPECT_EQ(input.NodeIdMap().LargestId(), 3 + 5 * 1000);
}

TEST_F(ContinuationJobs, AnImportJobKeepsTheSetsItsImportKeywordsName) {
    run(R"(*PART, NAME=P
*NODE
1, 0., 0.
*ELEMENT, TYPE=MASS, ELSET=M
1, 1
*MASS, ELSET=M
1.
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I, PART=P
*END INSTANCE
*NSET, NSET=KEEP
I.1
*NSET, NSET=DROP
I.1
*ELSET, ELSET=E1
I.1
*ELSET, ELSET=E2
I.1
*END ASSEMBLY
)");
    // Without names a keyword is warned about and deletes nothing.
    add("importnset");
    input.DeleteSetsWhichShouldNotBeImported();
    ASSERT_EQ(sink().Diagnostics().size(), 1u);
    EXPECT_NE(std::string(sink().Diagnostics()[0].text.View())
                  .find("This keyword is removed because no NSET name is provided in the "
                        "following line."),
              std::string::npos);
    EXPECT_TRUE(input.AssemblyNsets().HasSet("DROP"));

    add("importnset", "KEEP");
    add("import", "E2");
    input.DeleteSetsWhichShouldNotBeImported();
    EXPECT_TRUE(input.AssemblyNsets().HasSet("KEEP"));
    EXPECT_FALSE(input.AssemblyNsets().HasSet("DROP"));
    // *IMPORT names element sets to keep, but only *IMPORT ELSET deletes.
    EXPECT_TRUE(input.AssemblyElsets().HasSet("E1"));
    add("importelset", "E1");
    input.DeleteSetsWhichShouldNotBeImported();
    EXPECT_TRUE(input.AssemblyElsets().HasSet("E1") && input.AssemblyElsets().HasSet("E2"));
    EXPECT_EQ(input.Keywords().ConstGet(input.Keywords().Length() - 1).Keyword(),
              inp_kw_ImportElset);
}

// -- what is imported -----------------------------------------------------------------------

TEST(ImportKwdData, TheKeywordInterfaceAndTheImportOptionFillTheRecord) {
    inp_ImportKwdData fromInstance;
    cow_List<inp_Keyword> const keywords = InlineDeck(
        "*INSTANCE, NAME=I, INSTANCE=OLD, REFERENCE CONFIGURATION=NO, STATE=NO, LIBRARY=JOB1, "
        "STEP=2\n*INSTANCE, NAME=J\n");
    EXPECT_TRUE(fromInstance.readFromKw(keywords.ConstGet(0)));
    EXPECT_EQ(fromInstance.ComponentKind(), inp_ImportKwdData::kInstance);
    EXPECT_EQ(fromInstance.ComponentName(), cow_String("OLD"));
    EXPECT_FALSE(fromInstance.Update());
    EXPECT_FALSE(fromInstance.State());
    EXPECT_EQ(fromInstance.LibraryName(), cow_String("JOB1"));
    EXPECT_EQ(fromInstance.Step(), 2);
    inp_ImportKwdData untouched;
    EXPECT_FALSE(untouched.readFromKw(keywords.ConstGet(1)));
    EXPECT_FALSE(untouched.isInitializedWithData());

    cow_List<atr_String> errors, warnings;
    inp_ImportKwdData option;
    option.readImportOption(InlineDeck("*IMPORT, UPDATE=YES, STEP=-1, INCREMENT=4\n").ConstGet(0),
                            errors, warnings);
    ASSERT_EQ(errors.Length(), 1);
    EXPECT_NE(std::string(errors.ConstGet(0).View())
                  .find("The value of \"STEP\" parameter is not valid. It will be ignored."),
              std::string::npos);
    EXPECT_EQ(option.Step(), -1);
    EXPECT_TRUE(option.Update());
    cow_Map<cow_String, inp_Item> const parameters = option.getImportKwdParameterMap();
    EXPECT_EQ(parameters.ConstGet("update").AsString(), cow_String("YES"));
    EXPECT_EQ(parameters.ConstGet("increment").AsInt(), 4);
    EXPECT_FALSE(parameters.IsMember("step"));
}

// A second record that disagrees is warned about, setting by setting, and
// the first stands.
TEST(ImportKwdData, ADisagreeingSecondRecordIsWarnedAboutAndIgnored) {
    cow_List<inp_Keyword> const keywords = InlineDeck("*IMPORT, STEP=3\n*IMPORT, STEP=4\n");
    cow_List<atr_String> errors, warnings;
    inp_ImportKwdData first, second;
    first.readImportOption(keywords.ConstGet(0), errors, warnings);
    second.readImportOption(keywords.ConstGet(1), errors, warnings);
    EXPECT_FALSE(first.checkImportCompatibility(second, keywords.ConstGet(1), errors, warnings));
    ASSERT_EQ(warnings.Length(), 1);
    EXPECT_NE(std::string(warnings.ConstGet(0).View())
                  .find("The \"STEP\" parameter has been already defined. The current value "
                        "\"4\" will be ignored."),
              std::string::npos);
    EXPECT_EQ(first.Step(), 3);
    EXPECT_TRUE(first.checkImportCompatibility(first, keywords.ConstGet(0), errors, warnings));
}

// -- whether it is written correctly ----------------------------------------------------------

namespace {

std::vector<std::string> validityOf(cow_List<inp_Keyword>& keywords) {
    inp_ImportValidityVisitor visitor;
    visitor.VisitList(keywords);
    std::vector<std::string> texts = TextsOf(visitor.GetWarningList());
    for (std::string const& error : TextsOf(visitor.GetErrorList())) texts.push_back(error);
    return texts;
}

// The same with the checks made after the walk, as the visitor reports them.
std::vector<std::string> reportedValidityOf(cow_List<inp_Keyword>& keywords) {
    sink().Clear();
    inp_ImportValidityVisitor visitor;
    visitor.VisitListAndReport(keywords);
    std::vector<std::string> texts;
    for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
        texts.emplace_back(diagnostic.text.View());
    sink().Clear();
    return texts;
}

bool mentions(std::vector<std::string> const& texts, std::string const& piece) {
    for (std::string const& text : texts)
        if (text.find(piece) != std::string::npos) return true;
    return false;
}

}  // namespace

TEST(ImportValidity, TheKeywordsInsideAnImportedInstanceAreMadeDead) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*ASSEMBLY, NAME=A
*INSTANCE, NAME=I, INSTANCE=I, LIBRARY=OLD
*NODE
1, 0., 0.
*NSET, NSET=S
1
*IMPORT, STEP=1
*END INSTANCE
*END ASSEMBLY
)");
    std::vector<std::string> const texts = validityOf(keywords);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_NE(texts[0].find("Keyword cannot be used inside the imported component \"I\""),
              std::string::npos);
    EXPECT_EQ(keywords.ConstGet(2).Keyword(), inp_kw_UndefinedKeyword);  // the *NODE
    EXPECT_EQ(keywords.ConstGet(3).Keyword(), inp_kw_Nset);
    EXPECT_EQ(keywords.ConstGet(5).Keyword(), inp_kw_EndInstance);
}

TEST(ImportValidity, WronglyWrittenImportsAreReported) {
    cow_List<inp_Keyword> missing = InlineDeck(
        "*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, INSTANCE=I, LIBRARY=OLD\n*END INSTANCE\n");
    EXPECT_TRUE(mentions(validityOf(missing),
                         "Instance \"I\" is to be imported but *IMPORT option is misssing."));
    cow_List<inp_Keyword> part = InlineDeck("*PART, NAME=P, LIBRARY=X\n*END PART\n");
    EXPECT_TRUE(mentions(validityOf(part), "Import with *ASSEMBLY is not implemented."));
    cow_List<inp_Keyword> noInstance =
        InlineDeck("*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, PART=P, LIBRARY=X\n*END INSTANCE\n");
    EXPECT_TRUE(mentions(validityOf(noInstance),
                         "When importing an instance, INSTANCE parameter is required."));
}

// An *IMPORT needs the part map of an earlier job, and no rezoning.
TEST_F(ContinuationJobs, AnImportNeedsThePartMapOfAnEarlierJob) {
    input.Run(dir.Write("deck.inp", "*NODE\n1, 0., 0.\n*IMPORT\nA\n"), inp_Stage::ImportValidity,
              inp_InputFile::RunRule::RunThrough);
    std::string text;
    for (wip_Diagnostic const& diagnostic : sink().Diagnostics()) text += diagnostic.text.CStr();
    EXPECT_NE(text.find("An import analysis requires the part map from a previous job."),
              std::string::npos)
        << text;
    sink().Clear();
    input.CheckImportValidity(true);
    EXPECT_FALSE(sink().HasErrors());
    add("mapsolution");
    input.CheckImportValidity(true);
    ASSERT_TRUE(sink().HasErrors());
    EXPECT_NE(std::string(sink().Diagnostics()[0].text.View())
                  .find("*IMPORT and *MAP SOLUTION (rezoning) cannot be used in the same "
                        "analysis. "),
              std::string::npos);
}

// The walk of the import check is spared only to decks that neither write
// nor open an import: an imported instance, at the top of the list or in a
// keyword's suboptions, still has its content made dead.
TEST_F(ContinuationJobs, TheImportWalkFindsAnImportedInstanceWhereverItStands) {
    auto nodeIsDead = [this] {
        for (inp_Keyword const& keyword : input.Keywords())
            if (keyword.Is(inp_kw_Node)) return false;
        return true;
    };
    add("nset", "1");
    input.CheckImportValidity(true);
    EXPECT_EQ(input.Keywords().Length(), 1);
    EXPECT_TRUE(input.Keywords().ConstGet(0).Is(inp_kw_Nset));

    inp_Keyword instance(inp_kw_Instance);
    instance.SetParameter("name", inp_Item(cow_String("I")));
    instance.SetParameter("instance", inp_Item(cow_String("I")));
    instance.SetParameter("library", inp_Item(cow_String("OLD")));
    input.GetKeywords().Append(instance);
    add("node", "1, 0., 0.");
    add("import");
    add("endinstance");
    input.CheckImportValidity(true);
    input.DiscardEmptyKeywords();
    EXPECT_TRUE(nodeIsDead());

    sink().Clear();
    input.GetKeywords().Clear();
    inp_Keyword& holder = add("nset");
    holder.GetSuboptions().Append(instance);
    holder.GetSuboptions().Append(inp_Keyword(inp_kw_Node));
    holder.GetSuboptions().Append(inp_Keyword(inp_kw_EndInstance));
    input.CheckImportValidity(true);
    EXPECT_TRUE(holder.Suboptions().ConstGet(1).Is(inp_kw_UndefinedKeyword));
    sink().Clear();
}

TEST_F(ContinuationJobs, ARestartIsPlainUnlessItAddsMoreThanStepData) {
    run("*STEP\n*STATIC\n*END STEP\n");
    input.ClassifyRestartJob();
    EXPECT_TRUE(input.IsPlainRestart());
    add("node", "1, 0., 0.");
    input.ClassifyRestartJob();
    EXPECT_FALSE(input.IsPlainRestart());
    EXPECT_FALSE(input.IsImportJob() || input.HasMapSolution() ||
                 input.HasSymmetricModelGeneration());
    add("import");
    add("mapsolution");
    add("symmetricmodelgeneration");
    input.ClassifyRestartJob();
    EXPECT_TRUE(input.IsImportJob() && input.HasMapSolution() &&
                input.HasSymmetricModelGeneration());
    EXPECT_FALSE(sink().HasErrors());  // not a restart job: nothing to refuse
}

// -- continuation jobs on the part map of an earlier job ---------------------------------------

namespace {

char const* const kFlatModel = R"(*NODE
1, 0., 0.
2, 1., 0.
3, 1., 1.
*ELEMENT, TYPE=CPS3, ELSET=PLATE
10, 1, 2, 3
*NSET, NSET=FIXED
1, 2
*NSET, NSET=TIP
3
*STEP
*STATIC
*BOUNDARY
FIXED, ENCASTRE
*END STEP
)";

// A finished job's model, and the continuation job that goes on from it.
class ContinuedJobs : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }

    inpM_PartMap finish(std::string const& deck) {
        inp_InputFile earlier;
        earlier.Run(dir.Write("earlier.inp", deck), inp_Stage::OutOfPlace);
        EXPECT_FALSE(sink().HasErrors());
        return earlier.MakePartMap();
    }
    void continueFrom(inpM_PartMap partMap, std::string const& deck) {
        job.Run(dir.Write("later.inp", deck), inp_Stage::Expand);
        job.InheritPartMap(partMap, false);
    }
    std::string diagnostics() const {
        std::string text;
        for (wip_Diagnostic const& diagnostic : sink().Diagnostics())
            text += std::string(diagnostic.text.View()) + "\n";
        return text;
    }
    bool hasNodeSet(char const* name) const {
        inpM_SetMap const& sets = job.AssemblyNsets();
        if (sets.HasSet(name)) return true;
        for (cow_String const& instance : sets.Instances())
            if (sets.HasNestedSet(instance, name)) return true;
        return false;
    }

    TempDeckDirectory dir;
    inp_InputFile job;
};

}  // namespace

TEST_F(ContinuedJobs, APlainRestartTakesTheModelAndLeavesItsStepsFlat) {
    inpM_PartMap const partMap = finish(kFlatModel);
    EXPECT_TRUE(partMap.IsFakePartModel());
    EXPECT_FALSE(partMap.FeatureEnhanced());
    EXPECT_TRUE(partMap.IsRenumbered());

    continueFrom(partMap, "*STEP\n*STATIC\n*CLOAD\nTIP, 2, 1.\n*END STEP\n");
    EXPECT_FALSE(sink().HasErrors()) << diagnostics();
    EXPECT_TRUE(job.IsRestartJob() && job.IsPlainRestart());
    EXPECT_TRUE(job.IsFakePartModel());
    EXPECT_TRUE(hasNodeSet("FIXED") && hasNodeSet("TIP"));
    EXPECT_EQ(job.NodeIdMap().NumberIds(), 3);
    // Neither the fake part nor the organizer ran: the step stands at the top.
    ASSERT_EQ(job.Keywords().Length(), 4);
    EXPECT_TRUE(job.Keywords().ConstGet(0).Is(inp_kw_Step));
    EXPECT_EQ(job.Keywords().ConstGet(0).Suboptions().Length(), 0);
}

// New nodes and elements continue the numbering of the earlier job; the
// ids that job numbered keep their numbers.
TEST_F(ContinuedJobs, ARestartOfAFlatModelMayAddMeshNumberedAfterTheOldOne) {
    inpM_PartMap const partMap = finish(kFlatModel);
    inpM_IdMap const& oldNodes = partMap.ConstGetNodeIdMap();
    ASSERT_EQ(oldNodes.Instances().Length(), 1);
    cow_String const part = oldNodes.Instances().ConstGet(0);

    continueFrom(partMap, "*NODE\n7, 2., 0.\n*ELEMENT, TYPE=CPS3, ELSET=MORE\n11, 2, 7, 3\n");
    EXPECT_FALSE(job.IsPlainRestart());
    EXPECT_TRUE(job.IsFakePartModel());
    inpM_IdMap const& nodes = job.NodeIdMap().ConstGet(part);
    EXPECT_EQ(nodes.ConstGet(1), oldNodes.ConstGet(part).ConstGet(1));
    EXPECT_EQ(nodes.ConstGet(3), oldNodes.ConstGet(part).ConstGet(3));
    ASSERT_TRUE(nodes.IsMember(7));
    EXPECT_EQ(nodes.ConstGet(7), 4);
    EXPECT_EQ(job.ElementIdMap().ConstGet(part).ConstGet(11), 2);
    EXPECT_TRUE(hasNodeSet("FIXED"));
    EXPECT_FALSE(job.Keywords().IsEmpty());
}

TEST_F(ContinuedJobs, AnImportJobKeepsOnlyTheSetsItNamesAndAllowsNoParts) {
    inpM_PartMap const partMap = finish(kFlatModel);
    continueFrom(partMap, "*IMPORT, STEP=1\nPLATE\n*IMPORT NSET\nTIP\n");
    EXPECT_TRUE(job.IsImportJob());
    EXPECT_FALSE(job.PartModelAllowed());
    EXPECT_TRUE(hasNodeSet("TIP"));
    EXPECT_FALSE(hasNodeSet("FIXED"));
    // The part map stands in for the earlier job: no demand for one.
    EXPECT_EQ(diagnostics().find("requires the part map"), std::string::npos) << diagnostics();
}

// A symmetric model generation builds its own internal sets; the earlier
// job's go from the part map it was handed.
TEST_F(ContinuedJobs, ASymmetricModelGenerationDropsTheEarlierInternalSets) {
    inpM_PartMap partMap = finish(kFlatModel);
    partMap.GetNsets().InsertSet(cow_String("_INTERNAL"), CreateSet(cow_List<int>{1}, true, false));
    job.Run(dir.Write("later.inp", "*SYMMETRIC MODEL GENERATION, REFLECT=LINE\n0., 0., 0.\n"),
            inp_Stage::Expand);
    job.InheritPartMap(partMap, false);
    EXPECT_TRUE(job.HasSymmetricModelGeneration());
    EXPECT_FALSE(partMap.GetNsets().HasSet("_INTERNAL"));
    EXPECT_TRUE(hasNodeSet("FIXED"));
}

// The sets of a model in parts go into the earlier job's numbering;
// ids the id map lacks stay as they are.
TEST_F(ContinuedJobs, TheSetsOfAModelInPartsAreRenumbered) {
    inpM_PartMap partMap;
    partMap.SetFeatureEnhanced(true);
    partMap.GetNsets().InsertSet(cow_String("N"), CreateSet(cow_List<int>{5, 9}, false, false));
    partMap.GetNodeIdMap().Insert(5, 1);
    continueFrom(partMap, "*STEP\n*STATIC\n*END STEP\n");
    EXPECT_FALSE(sink().HasErrors()) << diagnostics();
    EXPECT_TRUE(job.IsPartsAndAssembly());
    cow_List<int> const ids = job.AssemblyNsets().ConstGetSet("N")->ConstGetIdList();
    ASSERT_EQ(ids.Length(), 2);
    EXPECT_EQ(ids.ConstGet(0), 1);
    EXPECT_EQ(ids.ConstGet(1), 9);
}

// -- the sets and surfaces a restart adds ---------------------------------------------------

namespace {

char const* const kPartsModel = R"(*PART, NAME=P
*NODE
1, 0., 0.
2, 1., 0.
3, 1., 1.
*ELEMENT, TYPE=CPS3, ELSET=E
1, 1, 2, 3
*NSET, NSET=CORNER
1
*SOLID SECTION, ELSET=E, MATERIAL=M
*END PART
*ASSEMBLY, NAME=A
*INSTANCE, NAME=I, PART=P
*END INSTANCE
*NSET, NSET=OLD
I.1
*END ASSEMBLY
*MATERIAL, NAME=M
*ELASTIC
1., 0.3
)";

// Runs the restart visitors over a restart deck that follows `model`.
struct RestartReading {
    std::string errors;
    inpM_SetMap nodeSets;
    inpM_SurfaceMap surfaces;
};

}  // namespace

class RestartSets : public ContinuedJobs {
  protected:
    RestartReading read(char const* model, std::string const& restart, char const* assembly) {
        inpM_PartMap const partMap = finish(model);
        continueFrom(partMap, restart);
        EXPECT_FALSE(sink().HasErrors()) << diagnostics();
        RestartReading result;
        inp_RestartSetVisitor nodes(inp_RestartSetVisitor::Kind::NodeSets, partMap.ConstGetNsets(),
                                    cow_String(assembly), partMap.FeatureEnhanced(),
                                    partMap.ConstGetNodeIdMap());
        nodes.setInstancePartNames(partMap.ConstGetInstancePartNames());
        nodes.VisitList(job.GetKeywords());
        inpM_SetMap nodeSets = partMap.ConstGetNsets();
        nodeSets.Merge(nodes.NewSets());
        inp_RestartSurfaceVisitor surfaces(
            partMap.ConstGetSurfaceMap(), cow_String(assembly), partMap.FeatureEnhanced(), nodeSets,
            partMap.ConstGetElsets(), inpM_InstanceMap<inp_MapInt2Element>());
        surfaces.setInstancePartNames(partMap.ConstGetInstancePartNames());
        surfaces.VisitList(job.GetKeywords());
        result.errors = std::string(nodes.Errors().View()) + std::string(surfaces.Errors().View());
        result.nodeSets = nodes.NewSets();
        result.surfaces = surfaces.NewSurfaces();
        return result;
    }
};

// A flat model's new set finds each id and set in the generated instance
// that holds it; the names of the earlier job may not be taken again.
TEST_F(RestartSets, AFlatModelsNewSetsSpanItsInstancesUnderPlainNames) {
    RestartReading const read = this->read(kFlatModel, R"(*NSET, NSET=NEW
3, TIP
*NSET, NSET=RANGE, GENERATE
1, 3, 2
*NSET, NSET=FIXED
1
*NSET, NSET=A.B
1
*NSET, NSET=LOST
99, NOSUCH
*SURFACE, NAME=EDGE, TYPE=NODE
NEW
*SURFACE, NAME=X.Y, TYPE=NODE
NEW
*SURFACE, NAME=R, TYPE=CYLINDER
)",
                                           "Assembly-1");
    ASSERT_TRUE(read.nodeSets.HasSet("NEW"));
    inpM_BaseSet::InstanceIds const ids = read.nodeSets.ConstGetSet("NEW")->ConstGetInstanceIds();
    ASSERT_TRUE(ids.IsMember(cow_String("PART-1-1")));
    EXPECT_EQ(ids.ConstGet(cow_String("PART-1-1")).Size(), 1);  // 3, and TIP is 3
    EXPECT_EQ(read.nodeSets.ConstGetSet("RANGE")
                  ->ConstGetInstanceIds()
                  .ConstGet(cow_String("PART-1-1"))
                  .Size(),
              2);
    EXPECT_FALSE(read.nodeSets.HasSet("FIXED"));
    for (char const* expected :
         {"the set FIXED already exists in the original analysis",
          "should not contain any periods which imply an assembly of part instances.  The "
          "unrecognizable name is: A.B",
          "The following sets/IDs do not exist", "99, NOSUCH",
          "only assembly level element and node-based surfaces may be defined",
          "Analytical surfaces may not be defined upon restart. "})
        EXPECT_NE(read.errors.find(expected), std::string::npos) << expected << "\n" << read.errors;
    EXPECT_TRUE(read.surfaces.IsMemberAssemblyInstanceSurface(cow_String("EDGE")));
}

// A model in parts names a new set in full: the assembly, then an instance
// or not.
TEST_F(RestartSets, AModelInPartsNamesNewSetsWithTheAssemblyFirst) {
    RestartReading const read = this->read(kPartsModel, R"(*NSET, NSET=A.I.TIP
3
*NSET, NSET=A.BOTH
I.2, OLD
*NSET, NSET=PLAIN
1
*NSET, NSET=B.S
1
*NSET, NSET=A.G, GENERATE
1, 2
*NSET, NSET=A.OLD
1
*SURFACE, NAME=A.I.SIDE, TYPE=NODE
TIP
)",
                                           "A");
    EXPECT_TRUE(read.nodeSets.HasNestedSet(cow_String("I"), cow_String("TIP")));
    ASSERT_TRUE(read.nodeSets.HasSet("BOTH"));
    inpM_BaseSet::InstanceIds const both = read.nodeSets.ConstGetSet("BOTH")->ConstGetInstanceIds();
    EXPECT_EQ(both.ConstGet(cow_String("I")).Size(), 2);
    EXPECT_FALSE(read.nodeSets.HasSet("PLAIN") || read.nodeSets.HasSet("G"));
    for (char const* expected :
         {"The unrecognizable name in question is PLAIN",
          "B is not the assembly name in the original analysis.",
          "The GENERATE option on *NSET/*ELSET is not supported when defining an assembly level "
          "set",
          "Error in *NSET/*ELSET: the set A.OLD already exists in the original analysis. It "
          "cannot be modified upon restart."})
        EXPECT_NE(read.errors.find(expected), std::string::npos) << expected << "\n" << read.errors;
    EXPECT_TRUE(read.surfaces.IsMemberAssemblyInstanceSurface(cow_String("SIDE")));
}

// What excludes an import, each reported in its own words.
TEST(ImportValidity, FeaturesThatExcludeAnImportAreEachReported) {
    cow_List<inp_Keyword> part = InlineDeck(
        "*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, INSTANCE=I, PART=P, LIBRARY=OLD\n*IMPORT\n"
        "*END INSTANCE\n");
    EXPECT_TRUE(mentions(validityOf(part), "*INSTANCE cannot import a PART component."));
    cow_List<inp_Keyword> both = InlineDeck(
        "*IMPORT\n*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, INSTANCE=I, LIBRARY=OLD\n*IMPORT\n"
        "*END INSTANCE\n*END ASSEMBLY\n*MAP SOLUTION\n");
    std::vector<std::string> const texts = reportedValidityOf(both);
    EXPECT_TRUE(mentions(texts,
                         "*IMPORT cannot be used in the new import procedure keyword "
                         "interface."));
    EXPECT_TRUE(mentions(texts,
                         "*MAP SOLUTION (rezoning) cannot be used in the import "
                         "procedure."));
    cow_List<inp_Keyword> noLibrary =
        InlineDeck("*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, INSTANCE=I\n*IMPORT\n*END INSTANCE\n");
    EXPECT_TRUE(mentions(validityOf(noLibrary), "*INSTANCE cannot import a PART component."));
    EXPECT_TRUE(mentions(reportedValidityOf(noLibrary),
                         "LIBRARY parameter or oldjob command line "
                         "parameter must be defined when importing "
                         "components."));
}

// Names the earlier model never had, and no earlier model at all: each is
// said, nothing breaks.
TEST_F(RestartSets, NamesTheEarlierModelNeverHadAreReported) {
    RestartReading const read = this->read(kPartsModel, R"(*NSET, NSET=A.GHOST.S
1
*NSET, NSET=A.I.S
99, NOSUCH
*SURFACE, NAME=A.GHOST.F, TYPE=NODE
S
)",
                                           "A");
    EXPECT_FALSE(read.nodeSets.HasInstance(cow_String("GHOST")));
    for (char const* expected :
         {"GHOST is not a part instance of the original analysis.", "NOSUCH"})
        EXPECT_NE(read.errors.find(expected), std::string::npos) << expected << "\n" << read.errors;

    sink().Clear();
    continueFrom(finish(kFlatModel), "*IMPORT, STEP=1, UPDATE=NO\nNOSUCH\n*IMPORT NSET\nTIP\n");
    EXPECT_NE(diagnostics().find("The set NOSUCH to be imported does not exist in the original "
                                 "analysis."),
              std::string::npos)
        << diagnostics();

    inp_InputFile fresh;
    inpM_PartMap none;
    fresh.Run(dir.Write("alone.inp", "*NSET, NSET=N\n1\n*STEP\n*STATIC\n*END STEP\n"),
              inp_Stage::Expand);
    fresh.InheritPartMap(none, false);
    inp_RestartSetVisitor sets(inp_RestartSetVisitor::Kind::NodeSets, none.ConstGetNsets(),
                               cow_String("Assembly-1"), false, none.ConstGetNodeIdMap());
    sets.VisitList(fresh.GetKeywords());
    EXPECT_NE(std::string(sets.Errors().View()).find("The following sets/IDs do not exist"),
              std::string::npos);
}

// A restart deck written in parts may add no mesh: the classification, which
// reads the deck's own form, refuses it. A flat one may.
TEST_F(ContinuedJobs, MeshAddedInPartsIsRefusedUponRestart) {
    inpM_PartMap const partMap = finish(kFlatModel);
    continueFrom(partMap, "*PART, NAME=P\n*NODE\n9, 0., 0.\n*END PART\n");
    EXPECT_NE(diagnostics().find("are detected in a continuation analysis where the original "
                                 "model is defined in terms of an assembly of part instances. "
                                 "This is not allowed. "),
              std::string::npos)
        << diagnostics();
    sink().Clear();
    inp_InputFile flat;
    flat.Run(dir.Write("flat.inp", "*ELEMENT, TYPE=CPS3\n12, 1, 2, 3\n"), inp_Stage::Expand);
    inpM_PartMap copy = partMap;
    flat.InheritPartMap(copy, false);
    EXPECT_EQ(diagnostics().find("This is not allowed."), std::string::npos) << diagnostics();
}
