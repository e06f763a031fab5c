#include "mesh/inp_CropDefinition.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "deck/inp_Keyword.h"

namespace {

using Texts = std::vector<std::string>;

inp_Keyword cropped(std::initializer_list<char const*> lines, char const* name = "CR") {
    inp_Keyword keyword(inp_kw_Surface, cow_String("deck.inp"));
    keyword.SetLineNumber(4);
    if (name != nullptr) keyword.SetParameter("name", inp_Item(name));
    keyword.SetParameter("crop", inp_Item());
    for (char const* line : lines) keyword.Data().Append(line);
    return keyword;
}

bool holds(inp_CropDefinition const& crop, double x, double y, double z) {
    return crop.IsInBox(inp_Coord(x, y, z));
}

Texts warnings(inp_CropDefinition const& crop) {
    Texts result;
    for (atr_String const& text : crop.Warnings()) result.emplace_back(text.View());
    return result;
}

std::string at4(std::string const& text) {
    return "in keyword *SURFACE, file \"deck.inp\", line 4: " + text;
}

std::string const kAtOrigin =
    "Neither of the points a and b defined under cropped surface CR are allowed to be defined at "
    "the origin. The orientation of the surface will be ignored.";
std::string const kSamePoints =
    "Points a and b defined under cropped surface CR should not have the same coordinates. The "
    "orientation of the surface will be ignored.";
std::string const kOnALine =
    "Points a, b and the origin of cropped surface CR should not lie on a straight line. A unique "
    "coordinate system for the orientation cannot be found. The orientation of the surface will "
    "be ignored.";

}  // namespace

TEST(CropDefinition, WorkedCases) {
    // One data line: a box of size 0 at the origin, which holds the origin.
    inp_CropDefinition const origin(cropped({"SRC"}));
    EXPECT_TRUE(origin.IsValid());
    EXPECT_FALSE(origin.IsOriented());
    EXPECT_TRUE(holds(origin, 0, 0, 0));
    EXPECT_FALSE(holds(origin, 1e-9, 0, 0));
    EXPECT_FALSE(holds(origin, 0, 0, -1e-9));

    // Bounds are inclusive.
    inp_CropDefinition const box(cropped({"SRC", "1, 1, 1, 2, 2, 2"}));
    EXPECT_TRUE(holds(box, 1, 1, 1));
    EXPECT_TRUE(holds(box, 2, 2, 2));
    EXPECT_TRUE(holds(box, 2, 1, 1.5));
    EXPECT_FALSE(holds(box, 0.9, 1, 1));
    EXPECT_FALSE(holds(box, 1.5, 2.0001, 1.5));
    EXPECT_TRUE(box.Warnings().IsEmpty());

    // a and b on one line through the origin: with a normalised and b as
    // read, b is the unit vector a, which is also "the same point".
    inp_CropDefinition const line(cropped({"SRC", "0, 0, 0, 2, 2, 2", "3, 0, 0, 1, 0, 0"}));
    EXPECT_TRUE(line.IsOriented());
    EXPECT_EQ(warnings(line), (Texts{at4(kSamePoints), at4(kOnALine)}));
    EXPECT_TRUE(line.Rotation().IsIdentity());
    EXPECT_TRUE(holds(line, 2, 0, 2));
    EXPECT_FALSE(holds(line, -0.1, 1, 1));
}

TEST(CropDefinition, OrientedBoxTurnsOffsetsFromItsOrigin) {
    // a along x, b along y: a quarter turn about z, taking (x, y) to (-y, x).
    // The lengths of a and b play no part.
    for (char const* orientation : {"1, 0, 0, 0, 1, 0", "5, 0, 0, 0, 2, 0"}) {
        inp_CropDefinition const box(cropped({"SRC", "1, 1, 0, 3, 3, 2", orientation}));
        EXPECT_TRUE(box.Warnings().IsEmpty()) << orientation;
        EXPECT_FALSE(box.Rotation().IsIdentity()) << orientation;
        EXPECT_TRUE(holds(box, 1.5, -0.5, 1))
            << orientation;                                // offset (0.5, -1.5) turns to (1.5, 0.5)
        EXPECT_TRUE(holds(box, 1, 1, 0)) << orientation;   // the origin itself
        EXPECT_FALSE(holds(box, 2, 2, 1)) << orientation;  // inside the unturned box only
    }
}

TEST(CropDefinition, UnusableOrientationsWarnAndLeaveTheBoxAxisAligned) {
    inp_CropDefinition const zeroA(cropped({"SRC", "0, 0, 0, 1, 1, 1", "0, 0, 0, 1, 0, 0"}));
    EXPECT_EQ(warnings(zeroA), (Texts{at4(kAtOrigin)}));
    // Missing items read as 0: b is at the origin.
    inp_CropDefinition const zeroB(cropped({"SRC", "0, 0, 0, 1, 1, 1", "1, 0, 0"}));
    EXPECT_EQ(warnings(zeroB), (Texts{at4(kAtOrigin)}));
    inp_CropDefinition const bothZero(cropped({"SRC", "0, 0, 0, 1, 1, 1", "0, 0, 0"}));
    EXPECT_EQ(warnings(bothZero), (Texts{at4(kAtOrigin), at4(kSamePoints)}));
    for (inp_CropDefinition const* crop : {&zeroA, &zeroB, &bothZero}) {
        EXPECT_TRUE(crop->Rotation().IsIdentity());
        EXPECT_TRUE(holds(*crop, 1, 1, 1));
        EXPECT_FALSE(holds(*crop, 1.1, 1, 1));
    }

    // b on the line of a but not of unit length passes the checks; the
    // rotation about their zero cross product is no rotation.
    inp_CropDefinition const opposite(cropped({"SRC", "0, 0, 0, 1, 1, 1", "1, 0, 0, -2, 0, 0"}));
    EXPECT_TRUE(opposite.Warnings().IsEmpty());
    EXPECT_TRUE(opposite.Rotation().IsIdentity());

    // The name in the messages is the surface's, without its quotes.
    inp_CropDefinition const quoted(
        cropped({"SRC", "0, 0, 0, 1, 1, 1", "0, 2, 0, 0, 1, 0"}, "\"my crop\""));
    EXPECT_EQ(warnings(quoted).size(), 2u);
    EXPECT_EQ(warnings(quoted)[0],
              at4("Points a and b defined under cropped surface my crop should not have the same "
                  "coordinates. The orientation of the surface will be ignored."));
}

TEST(CropDefinition, UnnamedOrShortDefinitions) {
    inp_CropDefinition const unnamed(cropped({"SRC", "1, 1, 1, 2, 2, 2"}, nullptr));
    EXPECT_FALSE(unnamed.IsValid());
    EXPECT_TRUE(unnamed.Size() == gsl_Vector());
    EXPECT_TRUE(unnamed.Origin() == gsl_Point());

    // Missing items and text read as 0: origin (1, 2, 0), far corner
    // (0, 0, 0). A box of negative size holds nothing, not its origin either.
    inp_CropDefinition const negative(cropped({"SRC", "1, 2"}));
    EXPECT_TRUE(negative.Size() == gsl_Vector(-1, -2, 0));
    EXPECT_FALSE(holds(negative, 1, 2, 0));
    inp_CropDefinition const text(cropped({"SRC", "0, 0, 0, 1, abc, 1"}));
    EXPECT_TRUE(text.Size() == gsl_Vector(1, 0, 1));
    EXPECT_TRUE(holds(text, 1, 0, 1));
}
