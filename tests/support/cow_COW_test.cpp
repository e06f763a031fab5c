#include "support/cow_COW.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace {

struct Shape {
    virtual ~Shape() = default;
    virtual int Corners() const = 0;
    virtual Shape* Clone() const = 0;
};

// Counts its own destructions, so that tests see each object deleted exactly once.
struct Square : Shape {
    explicit Square(int* deaths) : deaths(deaths) {}
    ~Square() override { ++*deaths; }
    int Corners() const override { return 4; }
    Shape* Clone() const override { return new Square(*this); }
    int* deaths;
};

struct CloneByVirtual {
    static Shape* Clone(Shape const& shape) { return shape.Clone(); }
};

TEST(CowCountedHld, CopiesShareOneObjectAndCount) {
    EXPECT_EQ(cow_CountedHld<int>().UseCount(), 0);
    cow_CountedHld<int> first(new int(5));
    cow_CountedHld<int> second(first);
    cow_CountedHld<int> third;
    third = second;
    EXPECT_EQ(first.UseCount(), 3);
    EXPECT_EQ(first.Get(), third.Get());
}

TEST(CowCountedHld, LastHandleDeletesDerivedObjectOnceThroughBase) {
    int deaths = 0;
    {
        cow_CountedHld<Shape> handle(new Square(&deaths));
        cow_CountedHld<Shape> copy(handle);
        EXPECT_EQ(copy->Corners(), 4);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CowCountedHld, ResetLeavesTheGroupAndOthersKeepTheOldObject) {
    int deaths = 0;
    cow_CountedHld<Shape> handle(new Square(&deaths));
    cow_CountedHld<Shape> other(handle);
    Shape* old = handle.Get();
    handle.Reset(new Square(&deaths));
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(other.Get(), old);
    EXPECT_EQ(other.UseCount(), 1);
    EXPECT_EQ(handle.UseCount(), 1);
    EXPECT_NE(handle.Get(), old);
}

TEST(CowCountedHld, ResetOfTheOnlyOwnerDeletesTheOldObjectOnce) {
    int deaths = 0;
    {
        cow_CountedHld<Shape> handle(new Square(&deaths));
        handle.Reset(new Square(&deaths));
        EXPECT_EQ(deaths, 1);
        handle.Reset(nullptr);
        EXPECT_EQ(deaths, 2);
        EXPECT_TRUE(handle.IsNull());
    }
    EXPECT_EQ(deaths, 2);
}

// Handles of objects made in one block with their count behave as handles of
// objects made apart: shared, counted, destroyed once through the base, and
// mixed freely with the others.
TEST(CowCountedHld, ObjectsMadeWithTheirCountAreSharedAndDestroyedOnce) {
    int deaths = 0;
    {
        auto made = cow_CountedHld<Shape>::Make<Square>(&deaths);
        EXPECT_EQ(made.UseCount(), 1);
        cow_CountedHld<Shape> copy(made);
        cow_CountedHld<Shape> apart(new Square(&deaths));
        EXPECT_EQ(made.UseCount(), 2);
        EXPECT_TRUE(copy.SharesWith(made));
        EXPECT_FALSE(apart.SharesWith(made));
        EXPECT_EQ(copy->Corners(), 4);

        apart.swap(copy);
        EXPECT_TRUE(apart.SharesWith(made));
        EXPECT_EQ(copy.UseCount(), 1);
        made.Reset(nullptr);
        EXPECT_EQ(deaths, 0);
        EXPECT_EQ(apart.UseCount(), 1);
        apart = copy;  // the last handle of the made object lets it go
        EXPECT_EQ(deaths, 1);
        EXPECT_EQ(apart.UseCount(), 2);
    }
    EXPECT_EQ(deaths, 2);

    auto text = cow_CountedHld<std::string>::Make(32, 'x');
    cow_CountedHld<std::string> moved(std::move(text));
    EXPECT_TRUE(text.IsNull());
    EXPECT_EQ(*moved, std::string(32, 'x'));
}

// A constructor that throws leaves nothing behind (the leak check of the
// sanitizer build would see the block) and the exception reaches the caller.
TEST(CowCountedHld, AnObjectWhoseConstructionFailsTakesItsBlockAlong) {
    struct Refuses {
        explicit Refuses(int) { throw std::runtime_error("refused"); }
    };
    EXPECT_THROW(cow_CountedHld<Refuses>::Make(1), std::runtime_error);
}

TEST(CowCOW, WriteThroughCopyDoesNotShowInOriginal) {
    cow_COW<std::string> original(std::string("abc"));
    cow_COW<std::string> copy(original);
    EXPECT_TRUE(copy.SharesWith(original));
    copy.Get() += "d";
    EXPECT_EQ(original.ConstGet(), "abc");
    EXPECT_EQ(copy.ConstGet(), "abcd");
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(original.UseCount(), 1);
}

TEST(CowCOW, WritingAnUnsharedReferentDoesNotClone) {
    cow_COW<std::string> value;
    EXPECT_EQ(value.ConstGet(), "");
    std::string const* before = &value.ConstGet();
    value.Get() = "y";
    EXPECT_EQ(&value.ConstGet(), before);
}

TEST(CowCOW, ClonePolicyKeepsTheDynamicTypeAndDeletesEachCopyOnce) {
    int deaths = 0;
    {
        cow_COW<Shape, CloneByVirtual> original(new Square(&deaths));
        cow_COW<Shape, CloneByVirtual> copy(original);
        Shape& own = copy.Get();
        EXPECT_NE(&own, &original.ConstGet());
        EXPECT_EQ(own.Corners(), 4);
        EXPECT_NE(dynamic_cast<Square*>(&own), nullptr);
    }
    EXPECT_EQ(deaths, 2);
}

}  // namespace
