#include "pipeline/inp_KwdDataReleaseVisitor.h"

#include <gtest/gtest.h>

#include "deck/inp_ElementDataArrayImpl.h"
#include "deck/inp_NodeDataArrayImpl.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "pipeline/inp_InputFile.h"
#include "tests/common/TempDeckDirectory.h"

namespace {

// A parts deck, expanded: mesh keywords in a part, in the assembly and (for
// the walk's sake) between them.
cow_List<inp_Keyword> expandedDeck(TempDeckDirectory const& dir) {
    cow_String const path = dir.Write("deck.inp",
                                      "*PART, NAME=P\n"
                                      "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n"
                                      "*ELEMENT, TYPE=T3D2\n1, 1, 2\n"
                                      "*NSET, NSET=ENDS\n1, 2\n"
                                      "*ELSET, ELSET=BARS\n1\n"
                                      "*END PART\n"
                                      "*ASSEMBLY, NAME=A\n"
                                      "*INSTANCE, NAME=I, PART=P\n*END INSTANCE\n"
                                      "*NODE\n9, 0., 0., 5.\n"
                                      "*NSET, NSET=REF\n9\n"
                                      "*END ASSEMBLY\n");
    inp_InputFile input;
    input.Run(path, inp_Stage::Expand, inp_InputFile::RunRule::RunThrough);
    return input.Keywords();
}

// The data rows of the first keyword `key` after (or before) *END PART.
inp_DataArray const& dataOf(cow_List<inp_Keyword> const& keywords, inp_KeywordEnm key,
                            bool inPart) {
    bool partPassed = false;
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.Is(inp_kw_EndPart)) partPassed = true;
        if (keyword.Is(key) && partPassed != inPart) return keyword.Data();
    }
    ADD_FAILURE() << "no keyword " << key;
    static inp_DataArray const none;
    return none;
}

}  // namespace

TEST(KwdDataRelease, MeshDataOfPartsGoesAndKeepsItsKind) {
    TempDeckDirectory dir;
    cow_List<inp_Keyword> keywords = expandedDeck(dir);
    cow_List<inp_Keyword> const before = keywords;
    inp_KwdDataReleaseVisitor(true, false).VisitList(keywords);

    inp_DataArray const& nodes = dataOf(keywords, inp_kw_Node, true);
    EXPECT_EQ(nodes.Rows(), 0);
    EXPECT_NE(dynamic_cast<inp_NodeDataArrayImpl const*>(nodes.Impl()), nullptr);
    inp_DataArray const& elements = dataOf(keywords, inp_kw_Element, true);
    EXPECT_EQ(elements.Rows(), 0);
    EXPECT_NE(dynamic_cast<inp_ElementDataArrayImpl const*>(elements.Impl()), nullptr);
    for (inp_KeywordEnm key : {inp_kw_Nset, inp_kw_Elset}) {
        inp_DataArray const& sets = dataOf(keywords, key, true);
        EXPECT_EQ(sets.Rows(), 0);
        EXPECT_NE(dynamic_cast<inp_RawDataArrayImpl const*>(sets.Impl()), nullptr);
    }
    // The parameters stay, the assembly keeps its data, and a copy of the
    // list taken before keeps everything.
    for (inp_Keyword const& keyword : keywords) {
        if (keyword.Is(inp_kw_Nset) && keyword.Data().Rows() == 0) {
            EXPECT_TRUE(keyword.HasParameter("nset"));
        }
    }
    EXPECT_EQ(dataOf(keywords, inp_kw_Node, false).Rows(), 1);
    EXPECT_EQ(dataOf(keywords, inp_kw_Nset, false).Rows(), 1);
    EXPECT_EQ(dataOf(before, inp_kw_Node, true).Rows(), 2);
    EXPECT_EQ(dataOf(before, inp_kw_Element, true).Rows(), 1);
}

TEST(KwdDataRelease, CompatibilityModeAndAWalkWithoutReleaseChangeNothing) {
    TempDeckDirectory dir;
    for (bool const compatible : {true, false}) {
        cow_List<inp_Keyword> keywords = expandedDeck(dir);
        // Released by the road but in the compatibility mode, or not released.
        inp_KwdDataReleaseVisitor visitor(compatible, compatible);
        EXPECT_EQ(visitor.AtelierCompatible(), compatible);
        visitor.VisitList(keywords);
        EXPECT_EQ(dataOf(keywords, inp_kw_Node, true).Rows(), 2) << compatible;
        EXPECT_EQ(dataOf(keywords, inp_kw_Element, true).Rows(), 1) << compatible;
        EXPECT_EQ(dataOf(keywords, inp_kw_Elset, true).Rows(), 1) << compatible;
    }
}
