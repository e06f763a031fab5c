#include "support/inpM_InstanceMap.h"

#include <gtest/gtest.h>

namespace {

using Names = inpM_InstanceMap<cow_String>;

class InpMInstanceMapMessages : public ::testing::Test {
  protected:
    void SetUp() override { sink().Clear(); }
    void TearDown() override { sink().Clear(); }
    static wip_WIP& sink() { return thr_ThreadSingleton<wip_WIP>::Instance(); }

    // The text of the nex_PrimException that `call` raises.
    template <class Call>
    static cow_String raisedText(Call call) {
        try {
            call();
        } catch (nex_PrimException<atr_String, 1> const& error) {
            return error.AsString();
        }
        return cow_String("nothing raised");
    }
};

TEST_F(InpMInstanceMapMessages, LevelWithoutValueRaisesItemHasValue) {
    Names holder;
    EXPECT_FALSE(holder.HasValue());
    EXPECT_EQ(raisedText([&] { holder.Get(); }), cow_String("item.HasValue()"));
    EXPECT_EQ(raisedText([&] { holder.ConstGet(); }), cow_String("item.HasValue()"));
    EXPECT_TRUE(sink().Diagnostics().empty());
}

TEST_F(InpMInstanceMapMessages, UnknownInstanceIsReportedThenRaisesNestedText) {
    Names holder(cow_String("assembly"));
    Names const& constant = holder;
    EXPECT_EQ(raisedText([&] { constant.ConstGet(cow_String("I-9")); }),
              cow_String("GetMap(instanceName).item.HasValue()"));
    EXPECT_EQ(raisedText([&] { holder.Get(cow_String("I-8")); }),
              cow_String("GetMap(instanceName).item.HasValue()"));
    ASSERT_EQ(sink().Diagnostics().size(), 2u);
    EXPECT_TRUE(sink().Diagnostics()[0].IsError());
    EXPECT_EQ(sink().Diagnostics()[0].level, 1);
    EXPECT_EQ(sink().Diagnostics()[0].text, cow_String("Unknown instance I-9"));
    EXPECT_EQ(sink().Diagnostics()[1].text, cow_String("Unknown instance I-8"));
}

TEST_F(InpMInstanceMapMessages, UnknownInstanceHolderIsEmptyAndWritesGoNowhere) {
    Names holder;
    Names& scratch = holder.GetMap(cow_String("ghost"));
    scratch.SetValue(cow_String("written"));
    scratch.Insert(cow_String("deeper"), cow_String("x"));
    EXPECT_FALSE(holder.IsMember(cow_String("ghost")));
    // The next unknown lookup starts empty again.
    Names& again = holder.GetMap(cow_String("ghost"));
    EXPECT_FALSE(again.HasValue());
    EXPECT_TRUE(again.Instances().IsEmpty());
    Names const& constant = holder;
    EXPECT_FALSE(constant.ConstGetMap(cow_String("ghost")).HasValue());
    EXPECT_EQ(sink().ErrorCountAtLevel(1), 3);
}

TEST(InpMInstanceMap, InsertAddsOrReplacesNestedValueKeepingItsInstances) {
    Names holder;
    holder.Insert(cow_String("B"), cow_String("part-b"));
    holder.Insert(cow_String("A"), cow_String("part-a"));
    holder.GetMap(cow_String("A")).Insert(cow_String("inner"), cow_String("deep"));
    holder.Insert(cow_String("A"), cow_String("part-a2"));
    EXPECT_EQ(holder.ConstGet(cow_String("A")), cow_String("part-a2"));
    EXPECT_TRUE(holder.ConstGetMap(cow_String("A")).IsMember(cow_String("inner")));
    EXPECT_EQ(holder.Instances(), (cow_List<cow_String>{"A", "B"}));
    EXPECT_FALSE(holder.HasValue());
}

TEST(InpMInstanceMapSharing, WriteThroughCopyDoesNotShowInOriginal) {
    Names original(cow_String("top"));
    original.Insert(cow_String("I"), cow_String("nested"));
    Names copy(original);
    EXPECT_TRUE(copy.SharesValueWith(original));

    copy.Get() = cow_String("changed");
    copy.Get(cow_String("I")) = cow_String("changed too");
    copy.Insert(cow_String("J"), cow_String("new"));
    EXPECT_FALSE(copy.SharesValueWith(original));
    EXPECT_EQ(original.ConstGet(), cow_String("top"));
    EXPECT_EQ(original.ConstGet(cow_String("I")), cow_String("nested"));
    EXPECT_FALSE(original.IsMember(cow_String("J")));
    EXPECT_EQ(copy.ConstGet(cow_String("I")), cow_String("changed too"));
}

}  // namespace
