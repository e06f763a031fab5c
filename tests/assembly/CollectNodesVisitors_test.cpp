#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "assembly/inp_CollectRefNodesVisitor.h"
#include "assembly/inp_CollectTransformedNodesVisitor.h"
#include "tests/mesh/InlineDeck.h"

namespace {

using Ids = std::vector<int>;

// Global node ids: assembly nodes 100 and 101 became 1001 and 1002, nodes 7
// and 8 of INST became 2007 and 2008.
inpM_IdMap NodeIds() {
    inpM_IdMap ids;
    ids.Insert(100, 1001);
    ids.Insert(101, 1002);
    inpM_IdMap instance;
    instance.Insert(7, 2007);
    instance.Insert(8, 2008);
    ids.Insert("INST", instance);
    return ids;
}

// The assembly set RN and the set TOP of INST, in global ids.
inpM_SetMap NodeSets() {
    inpM_SetMap sets;
    sets.InsertSet("RN", CreateSet(cow_List<int>{5001, 5002}, false, false));
    sets.InsertNestedSet("INST", "TOP", CreateSet(cow_List<int>{2007, 2008}, false, false));
    return sets;
}

Ids IdsOf(cow_List<int> const& list) {
    return Ids(list.begin(), list.end());
}

}  // namespace

TEST(CollectRefNodes, RefNodeParametersResolveAtEveryLevelAndUnknownsAddNothing) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*RIGID BODY, REF NODE=Inst.7, ELSET=X
*KINEMATIC COUPLING, REF NODE=100
*FLUID PROPERTY, REF NODE=RN
*INTEGRATED OUTPUT SECTION, REF NODE=Inst.Top
*RIGID SURFACE, REF NODE=Ghost.7
*RIGID BODY, REF NODE=Inst.99
*RIGID BODY, REF NODE=Ghost.Top
*RIGID BODY, REF NODE=Nosuch
*RIGID BODY, ELSET=Y
*RIGID BODY, REF NODE=Asm.Inst.8
*INSTANCE, NAME=INST, PART=P
*RIGID BODY, REF NODE=8
*KINEMATIC COUPLING, REF NODE=Top
*RIGID BODY, REF NODE=RN
*END INSTANCE
*RIGID BODY, REF NODE=101
)");
    inp_CollectRefNodesVisitor visitor(NodeSets(), NodeIds());
    visitor.VisitList(keywords);
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
    EXPECT_TRUE(visitor.GetWarningList().IsEmpty());
    EXPECT_EQ(IdsOf(visitor.RefNodes()),
              (Ids{2007, 1001, 5001, 5002, 2007, 2008, 2008, 2008, 2007, 2008, 1002}));
}

TEST(CollectRefNodes, TracerSetsGatherEveryItemOfTheirData) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*TRACER PARTICLE, TRACER SET=T1
100, Inst.7, RN,
Inst.Top, Ghost.3, 1.5
*TRACER PARTICLE, TRACER SET=EMPTY
*TRACER PARTICLE
100
)");
    inp_CollectRefNodesVisitor visitor(NodeSets(), NodeIds());
    visitor.VisitList(keywords);
    std::map<std::string, Ids> sets;
    for (cow_String const& name : {cow_String("T1"), cow_String("EMPTY")})
        if (cow_List<int> const* ids = visitor.TracerSets().Find(name))
            sets[std::string(name.View())] = IdsOf(*ids);
    EXPECT_EQ(sets, (std::map<std::string, Ids>{{"T1", {1001, 2007, 5001, 5002, 2007, 2008}},
                                                {"EMPTY", {}}}));
    EXPECT_EQ(visitor.TracerSets().Size(), 2);
    EXPECT_TRUE(visitor.RefNodes().IsEmpty());
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}

TEST(CollectRefNodes, TranslateDataIntoGlobalIdsOnItsOwn) {
    inp_CollectRefNodesVisitor visitor(NodeSets(), NodeIds());
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("INST.8")), Ids{2008});
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("RN")), (Ids{5001, 5002}));
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("7")), Ids{});  // no assembly node 7
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("")), Ids{});
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("INST.")), Ids{});
    EXPECT_EQ(IdsOf(visitor.TranslateDataIntoGlobalIDs("99999999999")), Ids{});
}

TEST(CollectTransformedNodes, SetsAtTheAssemblyAndInsideAnInstance) {
    cow_List<inp_Keyword> keywords = InlineDeck(R"(*TRANSFORM, NSET=RN
1, 0, 0, 0, 1, 0
*TRANSFORM, NSET=NOSUCH
*INSTANCE, NAME=INST, PART=P
*TRANSFORM, NSET=TOP
*TRANSFORM, NSET=RN
*END INSTANCE
*TRANSFORM, NSET=TOP
)");
    inp_CollectTransformedNodesVisitor visitor(NodeSets());
    visitor.VisitList(keywords);
    // RN is no set of INST, and TOP none of the assembly.
    EXPECT_EQ(IdsOf(visitor.Nodes()), (Ids{5001, 5002, 2007, 2008}));
    EXPECT_TRUE(visitor.GetErrorList().IsEmpty());
}
