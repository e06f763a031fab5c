#include "mesh/inp_CoordMap.h"

#include <gtest/gtest.h>

#include "support/ZELBasException.h"
#include "support/aio_Stream.h"

namespace {

constexpr double kPi = 3.141592653589793;

gsl_Matrix QuarterTurnAboutZ() {
    return gsl_Matrix::AxisRotation(gsl_Point(), gsl_Vector(0, 0, 1), kPi / 2);
}

inp_CoordMap PartWithNodes(std::initializer_list<int> labels) {
    inp_CoordMap part;
    for (int label : labels) part.Insert(label, inp_Coord(label, 0, 0));
    return part;
}

TEST(InpCoordMapInstances, InstancesShareThePartNodesUntilWritten) {
    inp_CoordMap const part = PartWithNodes({1, 2});
    inp_CoordMap model;
    model.Insert("A", part);
    model.Insert("B", part);
    EXPECT_TRUE(model.ConstGet("A").SharesNodesWith(model.ConstGet("B")));

    model.Get("A").Insert(1, inp_Coord(-5, 0, 0));
    model.Get("A").Remove(2);
    EXPECT_FALSE(model.ConstGet("A").SharesNodesWith(model.ConstGet("B")));
    EXPECT_EQ(model.ConstGet("B").ConstGet(1).x, 1.0);
    EXPECT_TRUE(model.ConstGet("B").IsMember(2));
    EXPECT_EQ(part.ConstGet(1).x, 1.0);
}

TEST(InpCoordMapTransform, ComposedOnReadAndStoredUnchanged) {
    inp_CoordMap part = PartWithNodes({});
    part.Insert(3, inp_Coord(1, 0, 0, 0, 0, 2));
    inp_CoordMap instance = part;
    gsl_Matrix const translate = gsl_Matrix::Translation(gsl_Vector(1, 0, 0));
    instance.Transform(translate);
    instance.Transform(QuarterTurnAboutZ());

    gsl_Matrix composed = translate;
    composed.Concatenate(QuarterTurnAboutZ());
    EXPECT_EQ(instance.ConstGetTransformation(), composed);
    EXPECT_EQ(instance.ConstGet(3), inp_Coord(0, 2, 0, 0, 0, 1));
    EXPECT_TRUE(instance.SharesNodesWith(part));
    EXPECT_EQ(part.ConstGet(3), inp_Coord(1, 0, 0, 0, 0, 2));

    inp_MapInt2Coord const all = instance.ConstGet();
    EXPECT_FALSE(all.SharesWith(part.ConstGet()));
    EXPECT_EQ(all.ConstGet(3), inp_Coord(0, 2, 0, 0, 0, 1));

    // Inserting takes the record as given, in the part's frame.
    instance.Insert(4, inp_Coord(1, 0, 0));
    EXPECT_EQ(instance.ConstGet(4).Point(), gsl_Point(0, 2, 0));
}

TEST(InpCoordMapTransform, ReachesDirectInstancesOnly) {
    inp_CoordMap child = PartWithNodes({1});
    child.Insert("grandchild", PartWithNodes({1}));
    inp_CoordMap model = PartWithNodes({1});
    model.Insert("child", child);
    model.Transform(gsl_Matrix::Translation(gsl_Vector(0, 0, 5)));

    EXPECT_EQ(model.ConstGet(1).z, 5.0);
    EXPECT_EQ(model.ConstGet("child").ConstGet(1).z, 5.0);
    EXPECT_EQ(model.ConstGet("child").ConstGet("grandchild").ConstGet(1).z, 0.0);
    EXPECT_TRUE(child.ConstGetTransformation().IsIdentity());
}

TEST(InpCoordMapWholeLevel, UnmovedUnrenumberedLevelIsHandedOutShared) {
    inp_CoordMap const level = PartWithNodes({1, 2});
    inp_MapInt2Coord const nodes = level.ConstGet();
    EXPECT_TRUE(nodes.SharesWith(level.ConstGet()));
}

TEST(InpCoordMapWholeLevel, RenumberedLevelIsRebuiltUnderCurrentLabels) {
    inp_CoordMap level = PartWithNodes({10, 20});
    level.Renumber(1, false);
    EXPECT_TRUE(level.ConstGetTransformation().IsIdentity());
    inp_MapInt2Coord const nodes = level.ConstGet();
    EXPECT_EQ(nodes.Size(), 2);
    EXPECT_EQ(nodes.ConstGet(1).x, 10.0);
    EXPECT_EQ(nodes.ConstGet(2).x, 20.0);
    EXPECT_FALSE(nodes.IsMember(10));
}

TEST(InpCoordMapLookup, MissingLabelAssertsOrGivesTheFallback) {
    inp_CoordMap level = PartWithNodes({-4, 0});
    level.Transform(gsl_Matrix::Translation(gsl_Vector(1, 1, 1)));
    EXPECT_TRUE(level.IsMember(-4));
    EXPECT_TRUE(level.IsMember(0));
    EXPECT_THROW(level.ConstGet(7), ZELBasAssertException);
    inp_Coord const fallback(9, 9, 9);
    EXPECT_EQ(level.ConstGet(7, fallback), fallback);
    EXPECT_EQ(level.ConstGet(0, fallback).Point(), gsl_Point(1, 1, 1));
    EXPECT_THROW(level.ConstGet(cow_String("nobody")), ZELBasAssertException);
}

TEST(InpCoordMapRenumber, NumbersRunOverTheLevelThenEachInstance) {
    inp_CoordMap model = PartWithNodes({20, 10});
    model.Insert("I", PartWithNodes({5}));
    inpM_IdMap const ids = model.Renumber(1, false);

    EXPECT_TRUE(model.IsMember(1));
    EXPECT_TRUE(model.IsMember(2));
    EXPECT_FALSE(model.IsMember(3));  // the instance's number, not this level's
    // A label the renumbering doesn't know passes through unchanged, so an old
    // label that no current label shadows still reaches its node.
    EXPECT_TRUE(model.IsMember(10));
    EXPECT_EQ(model.ConstGet(1).x, 10.0);
    EXPECT_EQ(model.ConstGet(2).x, 20.0);
    EXPECT_TRUE(model.ConstGet("I").IsMember(3));
    EXPECT_EQ(model.ConstGet("I").ConstGet(3).x, 5.0);

    EXPECT_EQ(ids.ConstGet(20), 2);
    EXPECT_EQ(ids.ConstGetOld(1), 10);
    EXPECT_EQ(ids.ConstGet(cow_String("I")).ConstGet(5), 3);
    EXPECT_EQ(ids.NumberIds(), 3);

    // Writes go through the new labels; the stored labels stay hidden.
    model.Insert(1, inp_Coord(-1, 0, 0));
    EXPECT_EQ(model.ConstGet(1).x, -1.0);
    EXPECT_TRUE(model.Remove(2));
    EXPECT_FALSE(model.IsMember(2));
}

TEST(InpCoordMapRenumber, KeepLabelsMapsEveryLabelToItself) {
    inp_CoordMap model = PartWithNodes({10, 20});
    model.Insert("I", PartWithNodes({5}));
    inpM_IdMap const ids = model.Renumber(1, true);
    EXPECT_TRUE(model.IsMember(10));
    EXPECT_TRUE(model.ConstGetLocalIds().IsEmpty());
    EXPECT_EQ(ids.ConstGet(20), 20);
    EXPECT_EQ(ids.ConstGet(cow_String("I")).ConstGet(5), 5);
}

TEST(InpCoordMapRenumber, FixedLabelsKeepTheirValueAndDoNotAdvance) {
    inp_CoordMap level = PartWithNodes({10, 20, 30});
    omi_IntTable<int> fixed;
    fixed.Insert(20, 100);
    int next = 1;
    inpM_IdMap const ids = level.Renumber(next, false, fixed);
    EXPECT_EQ(next, 3);
    EXPECT_EQ(ids.ConstGet(10), 1);
    EXPECT_EQ(ids.ConstGet(20), 100);
    EXPECT_EQ(ids.ConstGet(30), 2);
    EXPECT_EQ(level.ConstGet(100).x, 20.0);
}

TEST(InpCoordMapRenumber, RenumberingTwiceStartsFromTheCurrentLabels) {
    inp_CoordMap level = PartWithNodes({10, 20});
    level.Renumber(1, false);
    inpM_IdMap const ids = level.Renumber(50, false);
    EXPECT_EQ(ids.ConstGet(1), 50);
    EXPECT_EQ(ids.ConstGet(2), 51);
    EXPECT_EQ(level.ConstGet(51).x, 20.0);
    EXPECT_FALSE(level.IsMember(1));
    EXPECT_EQ(level.ConstGetLocalIds().Size(), 2);
}

TEST(InpCoordMapNames, ChangeInstanceNameMovesOrDoesNothing) {
    inp_CoordMap model;
    model.Insert("B", PartWithNodes({1}));
    model.Insert("A", PartWithNodes({1, 2}));
    model.ChangeInstanceName("A", "A");
    model.ChangeInstanceName("unknown", "C");
    EXPECT_EQ(model.Instances(), (cow_List<cow_String>{"A", "B"}));

    model.ChangeInstanceName("A", "C");
    EXPECT_EQ(model.Instances(), (cow_List<cow_String>{"B", "C"}));
    EXPECT_EQ(model.ConstGet("C").Count(), 2);
    EXPECT_EQ(model.Count(), 3);
}

TEST(InpCoordMapPrint, StoredLabelsThenEachInstance) {
    inp_CoordMap model = PartWithNodes({2, -1});
    model.Insert("Z", PartWithNodes({7}));
    model.Insert("Y", PartWithNodes({}));
    aio_ostringstream out;
    model.Print(out);
    out.flush();
    EXPECT_EQ(out.Str(), cow_String("-1\n2\nY\nZ\n7\n"));
}

}  // namespace
