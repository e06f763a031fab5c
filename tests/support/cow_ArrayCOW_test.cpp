#include "support/cow_ArrayCOW.h"

#include <gtest/gtest.h>

#include "support/ZELBasException.h"

namespace {

struct Shape {
    virtual ~Shape() = default;
    virtual Shape* Copy() const = 0;
    virtual int Corners() const = 0;
    int tag = 0;
};

struct Triangle : Shape {
    Shape* Copy() const override { return new Triangle(*this); }
    int Corners() const override { return 3; }
};

using ShapeHandle = cow_ArrayCOW<Shape, cow_Virtual<Shape>>;

TEST(CowArrayCOW, EmptyHandleAllocatesNothingAndRefusesAccess) {
    ShapeHandle empty;
    EXPECT_TRUE(empty.IsNull());
    EXPECT_EQ(empty.UseCount(), 0);
    EXPECT_THROW(empty.ConstGet(), ZELBasAssertException);
    EXPECT_THROW(empty.Get(), ZELBasAssertException);
}

TEST(CowArrayCOW, WriteThroughCopyClonesWithDynamicTypeAndLeavesOriginal) {
    ShapeHandle original(new Triangle());
    ShapeHandle copy(original);
    EXPECT_TRUE(copy.SharesWith(original));
    EXPECT_EQ(original.UseCount(), 2);

    copy.Get().tag = 7;
    EXPECT_FALSE(copy.SharesWith(original));
    EXPECT_EQ(original->tag, 0);
    EXPECT_EQ(copy->tag, 7);
    EXPECT_EQ(copy->Corners(), 3);  // the clone kept its dynamic type
    EXPECT_NE(dynamic_cast<Triangle const*>(&copy.ConstGet()), nullptr);
}

TEST(CowArrayCOW, ValueConstructionClonesThroughPolicy) {
    Triangle triangle;
    triangle.tag = 5;
    ShapeHandle handle = triangle;
    triangle.tag = 6;
    EXPECT_EQ(handle->tag, 5);
    EXPECT_EQ(handle->Corners(), 3);
}

}  // namespace
