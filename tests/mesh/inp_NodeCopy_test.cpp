#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "NodeKeywordLevel.h"

namespace {

using Ids = std::vector<int>;
using Texts = std::vector<std::string>;

class Nodes : public NodeKeywordLevel {
  public:
    // A node given in global position; the set OLD holds every node put in.
    void Node(int label, double x, double y, double z, double nx = 0, double ny = 0,
              double nz = 0) {
        PutNode(label, x, y, z, nx, ny, nz);
        AddToSet("OLD", cow_List<int>{label});
    }
    void Ncopy(std::initializer_list<char const*> lines, int multiple = 0,
               char const* operation = "shift", char const* value = nullptr) {
        inp_Keyword keyword(inp_kw_Ncopy, cow_String("deck.inp"));
        keyword.SetLineNumber(5);
        keyword.SetParameter("changenumber", inp_Item(100));
        keyword.SetParameter("oldset", inp_Item("OLD"));
        keyword.SetParameter("newset", inp_Item("NEW"));
        keyword.SetParameter(operation, value ? inp_Item(value) : inp_Item());
        if (multiple != 0) keyword.SetParameter("multiple", inp_Item(multiple));
        for (char const* line : lines) keyword.Data().Append(line);
        VisitNcopy(keyword);
    }
    Ids NewSet() const {
        cow_List<int> const list = m_setMap.ConstGetSet("NEW")->ConstGetIdList();
        return Ids(list.begin(), list.end());
    }
};

std::string at5(std::string const& text) {
    return "in keyword *NCOPY, file \"deck.inp\", line 5: " + text;
}

}  // namespace

TEST(NodeCopyShift, TranslationsAndRotationsAddUpOverCopies) {
    Nodes shifted;
    shifted.Node(1, 0, 0, 0);
    shifted.Ncopy({"1, 0, 0"}, 3);
    shifted.Expect(101, 1, 0, 0);
    shifted.Expect(201, 2, 0, 0);
    shifted.Expect(301, 3, 0, 0);
    EXPECT_EQ(shifted.NewSet(), (Ids{101, 201, 301}));

    Nodes turned;
    turned.Node(1, 2, 0, 0, 1, 0, 0);
    turned.Ncopy({"0, 0, 0", "0, 0, 0, 0, 0, 1, 90"}, 4);
    turned.Expect(101, 0, 2, 0);
    turned.ExpectNormal(101, 0, 1, 0);
    turned.Expect(201, -2, 0, 0);
    turned.Expect(401, 2, 0, 0);  // a full turn: back on the old node

    // Each copy is shifted, then turned, from the copy before it.
    Nodes both;
    both.Node(1, 1, 0, 0);
    both.Ncopy({"1, 0, 0", "0, 0, 0, 0, 0, 1, 90"}, 2);
    both.Expect(101, 0, 2, 0);
    both.Expect(201, -2, 1, 0);
    EXPECT_TRUE(both.Errors().empty());
}

TEST(NodeCopyReflect, LineMirrorPointAndPole) {
    Nodes nodes;
    nodes.Node(1, 2, 1, 0, 1, 0, 0);
    nodes.Ncopy({"0, 0, 0, 0, 0, 1"}, 0, "reflect", "LINE");
    nodes.Expect(101, -2, -1, 0);
    nodes.ExpectNormal(101, -1, 0, 0);
    nodes.Ncopy({"0, 0, 0, 0, 1, 0", "0, 0, 1"}, 0, "reflect", "MIRROR");
    nodes.Expect(101, -2, 1, 0);
    nodes.ExpectNormal(101, -1, 0, 0);
    nodes.Ncopy({"1, 1, 1"}, 0, "reflect", "POINT");
    nodes.Expect(101, 0, 1, 2);
    nodes.ExpectNormal(101, -1, 0, 0);
    nodes.Ncopy({"0, 5, 5, 5"}, 0, "pole");
    nodes.Expect(101, 8, 9, 10);
    nodes.ExpectNormal(101, 1, 0, 0);
    EXPECT_TRUE(nodes.Errors().empty());

    // Inside a moved instance the copy is made in the frame of the part: the
    // global result is the same.
    Nodes moved;
    moved.InInstanceMovedBy(0, 0, 7);
    moved.Node(1, 2, 1, 7);
    moved.Ncopy({"0, 0, 0, 0, 1, 0", "0, 0, 1"}, 0, "reflect", "MIRROR");
    moved.Expect(101, -2, 1, 7);
}

TEST(NodeCopyFaults, MissingParametersSetsAndDegenerateGeometry) {
    Nodes nodes;
    nodes.Node(1, 1, 0, 0);
    nodes.Ncopy({"0, 0, 0, 1, 1, 1", "2, 2, 2"}, 0, "reflect", "MIRROR");
    nodes.Ncopy({"1, 1, 1, 1, 1, 1"}, 0, "reflect", "LINE");
    nodes.Ncopy({"0, 0, 0", "1, 1, 1, 1, 1, 1, 30"}, 2);
    inp_Keyword bare(inp_kw_Ncopy, cow_String("deck.inp"));
    bare.SetLineNumber(5);
    bare.SetParameter("changenumber", inp_Item(100));
    bare.SetParameter("oldset", inp_Item("GONE"));
    nodes.VisitNcopy(bare);
    bare.SetParameter("oldset", inp_Item("OLD"));
    nodes.VisitNcopy(bare);
    bare.RemoveParameter("changenumber");
    nodes.VisitNcopy(bare);
    EXPECT_EQ(nodes.Errors(),
              (Texts{at5("Points A, B, & C given for REFLECT=MIRROR do not form a plane (co-linear "
                         "or coincident)."),
                     at5("Points A & B given for REFLECT=LINE are coincident."),
                     at5("The points defining the axis of rotation for SHIFT are almost "
                         "coincident."),
                     at5("Node set GONE does not exist."),
                     at5("POLE, REFLECT, and SHIFT are required, mutually exclusive parameters."),
                     at5("Both CHANGE NUMBER and OLD SET are required parameters.")}));
    EXPECT_FALSE(nodes.Level().IsMember(101));
}
