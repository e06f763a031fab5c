#include "deck/inp_Keyword.h"

#include <gtest/gtest.h>

#include <string>

#include "deck/inp_RawDataArrayImpl.h"
#include "support/ZELBasException.h"
#include "support/aio_Stream.h"

namespace {

cow_String printed(inp_Keyword const& keyword, bool withSuboptions = true) {
    aio_ostringstream out;
    keyword.Print(out, withSuboptions);
    return out.Str();
}

inp_Item text(char const* value) {
    return inp_Item(cow_String(value));
}

}  // namespace

TEST(KeywordRecord, ConstructionResolvesNamesThroughTheTable) {
    EXPECT_EQ(inp_Keyword(cow_String("elset")).Keyword(), inp_kw_Elset);
    EXPECT_EQ(inp_Keyword(cow_String("head")).Keyword(), inp_kw_Heading);
    EXPECT_EQ(inp_Keyword(cow_String("el")).Keyword(), inp_kw_UndefinedKeyword);
    inp_Keyword node(inp_kw_Node, "mesh.inp");
    EXPECT_EQ(node.Name(), "node");
    EXPECT_EQ(node.FileName(), "mesh.inp");
    EXPECT_TRUE(node.Is(inp_kw_Node));
    EXPECT_EQ(node.Data().Rows(), 0);
}

TEST(KeywordRecord, ParameterReadsFallBackUnlessTheTypeFits) {
    inp_Keyword keyword(inp_kw_Density);
    keyword.SetParameter("count", inp_Item(3));
    keyword.SetParameter("scale", text("2.5"));
    keyword.SetParameter("name", text("Steel"));
    keyword.SetParameter("flag", inp_Item(true));
    EXPECT_EQ(keyword.GetParameterAsInt("count", -1), 3);
    EXPECT_EQ(keyword.GetParameterAsInt("scale", -1), -1);
    EXPECT_DOUBLE_EQ(keyword.GetParameterAsDouble("scale", 0), 2.5);
    EXPECT_DOUBLE_EQ(keyword.GetParameterAsDouble("count", 0), 3.0);
    EXPECT_DOUBLE_EQ(keyword.GetParameterAsDouble("name", -1), -1.0);
    EXPECT_EQ(keyword.GetParameterAsString("name", "x"), "Steel");
    EXPECT_EQ(keyword.GetParameterAsString("count", "x"), "x");
    EXPECT_EQ(keyword.GetParameterAsString("missing", "x"), "x");
    EXPECT_TRUE(keyword.HasParameter("flag"));
    EXPECT_FALSE(keyword.HasParameter("Flag"));
}

TEST(KeywordCopy, CopiesShareDataButNotParametersOrSuboptions) {
    inp_Keyword original(inp_kw_Nset);
    original.SetParameter("nset", text("TOP"));
    original.Data().Append("1, 2");
    original.GetSuboptions().Append(inp_Keyword(inp_kw_Node));

    inp_Keyword copy = original;
    copy.Data().Append("3");
    copy.SetParameter("nset", text("BOTTOM"));
    copy.GetSuboptions().Append(inp_Keyword(inp_kw_Element));
    copy.SetLevel(4);

    EXPECT_EQ(original.Data().Rows(), 2);  // the data array is the same object
    EXPECT_EQ(original.GetParameterAsString("nset", ""), "TOP");
    EXPECT_EQ(original.Suboptions().Length(), 1);
    EXPECT_EQ(original.Level(), 0);
}

// The data array counts its handles itself: the last one to go deletes it,
// a handle given a new array leaves the others the old one, and a record
// moved from reads as one without data.
TEST(KeywordCopy, DataHandlesCountTheirArrayAndAMovedRecordIsEmpty) {
    inp_Keyword original(inp_kw_Nset);
    original.Data().Append("1");
    {
        inp_Keyword const copy = original;
        EXPECT_EQ(original.Data().UseCount(), 2);
        EXPECT_TRUE(copy.Data().SharesWith(original.Data()));
    }
    EXPECT_EQ(original.Data().UseCount(), 1);
    inp_Keyword other = original;
    other.Data().Set(new inp_RawDataArrayImpl());
    other.Data().Append("2, 3");
    EXPECT_EQ(original.Data().Rows(), 1);
    EXPECT_EQ(original.Data().UseCount(), 1);
    EXPECT_EQ(other.Data().Cols(0), 2);

    inp_Keyword moved = std::move(original);
    EXPECT_EQ(moved.Data().AsInt(0, 0), 1);
    EXPECT_EQ(original.Data().Rows(),
              0);  // NOLINT(bugprone-use-after-move): the moved-from state is the point
    original = other;
    EXPECT_EQ(original.Data().Cols(0), 2);
}

// A record's data has no storage until it is written or copied; a copy then
// shares it with the record copied from, as copies always share their data.
TEST(KeywordCopy, DataWithoutStorageReadsEmptyAndCopiesStillShare) {
    inp_Keyword empty(inp_kw_Step);
    EXPECT_EQ(empty.Data().UseCount(), 0);
    EXPECT_EQ(empty.Data().Rows(), 0);
    EXPECT_FALSE(empty.Data().HasValue(0, 0));
    EXPECT_EQ(empty.Data().AsString(0, 0, "x y"), "XY");
    EXPECT_THROW(empty.Data().Cols(0), ZELBasAssertException);
    EXPECT_FALSE(empty.Data().SharesWith(inp_Keyword(inp_kw_Step).Data()));
    EXPECT_EQ(empty.DeepCopy().Data().UseCount(), 0);

    inp_Keyword const copy = empty;
    EXPECT_TRUE(copy.Data().SharesWith(empty.Data()));
    copy.Data().Append("1, 2");
    EXPECT_EQ(empty.Data().Cols(0), 2);

    inp_Keyword written(inp_kw_Nset);
    written.Data().Append("3");
    EXPECT_EQ(written.Data().UseCount(), 1);
    inp_Keyword const separate = written.DeepCopy();
    separate.Data().Set(0, 0, 4);
    EXPECT_EQ(written.Data().AsInt(0, 0), 3);
}

TEST(KeywordCopy, DeepCopySeparatesDataRecursivelyAndDropsComments) {
    inp_Keyword parent(inp_kw_Material, "m.inp");
    parent.SetLineNumber(12);
    parent.SetEncrypted(true);
    parent.SetLevel(3);
    parent.SetFromScripting(true);
    parent.AddComment(" steel");
    parent.SetParameter("name", text("STEEL"));
    inp_Keyword child(inp_kw_Density);
    child.Data().Append("7.8e3");
    parent.GetSuboptions().Append(child);

    inp_Keyword copy = parent.DeepCopy();
    copy.GetSuboptions().Get(0).Data().Set(0, 0, cow_String("1"));
    EXPECT_EQ(parent.Suboptions().ConstGet(0).Data().AsStringVerbatim(0, 0), "7.8e3");
    EXPECT_FALSE(copy.Data().SharesWith(parent.Data()));
    EXPECT_EQ(copy.Keyword(), inp_kw_Material);
    EXPECT_EQ(copy.FileName(), "m.inp");
    EXPECT_EQ(copy.LineNumber(), 12);
    EXPECT_TRUE(copy.IsEncrypted());
    EXPECT_EQ(copy.Level(), 3);
    EXPECT_EQ(copy.GetParameterAsString("name", ""), "STEEL");
    EXPECT_TRUE(copy.Comments().IsEmpty());
    EXPECT_FALSE(copy.FromScripting());
    EXPECT_TRUE(copy.hasSuboption(inp_kw_Density));
    EXPECT_FALSE(copy.hasSuboption(inp_kw_Elastic));
}

// Records share their file name and comments; a change to one record's
// never shows in another, in either direction, and setting what a record
// already holds keeps it sharing.
TEST(KeywordOrigin, SharedFileNamesAndCommentsChangeOnlyTheRecordWritten) {
    inp_KeywordOrigin const file(cow_String("deck.inp"));
    inp_Keyword first(inp_kw_Nset, file);
    inp_Keyword second(inp_kw_Elset, file);
    EXPECT_TRUE(first.Origin().SharesWith(second.Origin()));

    second.AddComment(" the second");
    first.SetFileName("other.inp");
    EXPECT_EQ(first.FileName(), "other.inp");
    EXPECT_TRUE(first.Comments().IsEmpty());
    EXPECT_EQ(second.FileName(), "deck.inp");
    ASSERT_EQ(second.Comments().Length(), 1);
    EXPECT_EQ(second.Comments().ConstGet(0), " the second");
    EXPECT_EQ(file.FileName(), "deck.inp");
    EXPECT_TRUE(file.Comments().IsEmpty());

    inp_Keyword third = second;
    third.SetComments(cow_List<cow_String>());
    EXPECT_EQ(second.Comments().Length(), 1);
    EXPECT_EQ(third.FileName(), "deck.inp");
    EXPECT_TRUE(third.Comments().IsEmpty());

    inp_Keyword fourth(inp_kw_Node, file);
    fourth.SetFileName(cow_String("deck.inp"));
    fourth.SetComments(cow_List<cow_String>());
    EXPECT_TRUE(fourth.Origin().SharesWith(file));

    inp_Keyword blank;
    EXPECT_TRUE(blank.FileName().IsEmpty());
    EXPECT_TRUE(blank.Comments().IsEmpty());
    blank.AddComment(" first words");
    EXPECT_EQ(blank.Comments().Length(), 1);
    EXPECT_TRUE(inp_Keyword().Comments().IsEmpty());
}

TEST(KeywordPrint, WritesDeckTextWithQuotedSetItemsAndNoValueForFlags) {
    inp_Keyword nset(inp_kw_Nset);
    nset.SetParameter("nset", text("top"));
    nset.SetParameter("generate", inp_Item(true));
    nset.Data().Append("my set, 2, \"q q\",  ab");
    cow_String out = printed(nset);
    EXPECT_TRUE(out.StartsWith("*nset, "));
    EXPECT_NE(out.Find("nset=top"), -1);
    EXPECT_NE(out.Find(", generate"), -1);
    EXPECT_EQ(out.Find("generate="), -1);
    EXPECT_TRUE(out.EndsWith("\n\"my set\", 2, \"q q\", AB\n"));

    inp_Keyword elastic(inp_kw_Elastic);
    elastic.Data().Append("my set, 2");
    EXPECT_EQ(printed(elastic), "*elastic\nMYSET, 2\n");
}

TEST(KeywordPrint, ParameterLineWrapsWhenTheWidthReaches132) {
    // *solidsection (13) + name "p" (1) + value + 5 reaches 132 at a value of 113 characters.
    for (int length : {112, 113}) {
        inp_Keyword keyword(inp_kw_SolidSection);
        std::string value(static_cast<size_t>(length), 'a');
        keyword.SetParameter("p", text(value.c_str()));
        cow_String out = printed(keyword);
        if (length == 112) {
            EXPECT_EQ(out, cow_String(("*solidsection, p=" + value + "\n").c_str()));
        } else {
            EXPECT_EQ(out, cow_String(("*solidsection,\np=" + value + "\n").c_str()));
        }
    }
}

TEST(KeywordPrint, SuboptionsFollowTheirParentOnlyWhenAsked) {
    inp_Keyword material(inp_kw_Material);
    material.SetParameter("name", text("STEEL"));
    inp_Keyword density(inp_kw_Density);
    density.Data().Append("7800.");
    material.GetSuboptions().Append(density);
    EXPECT_EQ(printed(material, true), "*material, name=STEEL\n*density\n7800.\n");
    EXPECT_EQ(printed(material, false), "*material, name=STEEL\n");
}

TEST(KeywordPrint, DebugFormUsesSpacedValuesAndCarriesOnAfterAWrap) {
    inp_Keyword material(inp_kw_Material);
    material.SetParameter("name", text("STEEL"));
    material.Data().Append(" a b , 1.5D0");
    EXPECT_EQ(material.Print(false), "*material, name = STEEL\nAB, 1.5D0\n");

    inp_Keyword wide(inp_kw_SolidSection);
    std::string value(115, 'b');
    wide.SetParameter("p", text(value.c_str()));
    // 13 + 1 + 115 + 3 = 132: the separator becomes ", \n" and the name follows on the new line.
    EXPECT_EQ(wide.Print(false), cow_String(("*solidsection, \np = " + value + "\n").c_str()));
}
