#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

#include "NodeKeywordLevel.h"

namespace {

using Texts = std::vector<std::string>;

class Nodes : public NodeKeywordLevel {
  public:
    void AtCompatibleLevel() { setAtelierCompatible(true); }
    // A node; the set S holds it unless `inSet` is false.
    void Node(int label, double x, double y, double z, double nx = 0, double ny = 0, double nz = 0,
              bool inSet = true) {
        PutNode(label, x, y, z, nx, ny, nz);
        if (inSet) AddToSet("S", cow_List<int>{label});
    }
    void Nmap(char const* type, std::initializer_list<char const*> lines,
              char const* definition = nullptr, char const* set = "S") {
        inp_Keyword keyword(inp_kw_Nmap, cow_String("deck.inp"));
        keyword.SetLineNumber(5);
        if (set != nullptr) keyword.SetParameter("nset", inp_Item(set));
        if (type != nullptr) keyword.SetParameter("type", inp_Item(type));
        if (definition != nullptr) keyword.SetParameter("definition", inp_Item(definition));
        for (char const* line : lines) keyword.Data().Append(line);
        VisitNmap(keyword);
    }
};

std::string at5(std::string const& text) {
    return "in keyword *NMAP, file \"deck.inp\", line 5: " + text;
}

}  // namespace

TEST(NodeMapRigid, TranslationRotationAndScale) {
    // A and B only give the direction: without a length the nodes move by 1.
    Nodes moved;
    moved.Node(1, 1, 2, 3);
    moved.Nmap("TRANSLATION", {"0, 0, 0, 3, 0, 0"});
    moved.Expect(1, 2, 2, 3);
    moved.Nmap("TRANSLATION", {"0, 0, 0, 0, 0, -7", "2.5"});
    moved.Expect(1, 2, 2, 0.5);

    // By node labels: the points are the nodes 10 and 11, which stay put.
    moved.Node(10, 5, 5, 5, 0, 0, 0, false);
    moved.Node(11, 5, 9, 5, 0, 0, 0, false);
    moved.Nmap("TRANSLATION", {"10, 11", "2"}, "NODES");
    moved.Expect(1, 2, 4, 0.5);
    moved.Expect(10, 5, 5, 5);

    // A quarter turn about the vertical axis through (1, 0, 0); the normal
    // is made a unit vector and turned with the node.
    Nodes turned;
    turned.Node(1, 2, 0, 4, 3, 0, 0);
    turned.Nmap("ROTATION", {"1, 0, 0, 1, 0, 5", "", "90"});
    turned.Expect(1, 1, 1, 4);
    turned.ExpectNormal(1, 0, 1, 0);

    // Per component about A; a factor of 0 leaves the default 1.0.
    Nodes scaled;
    scaled.Node(1, 3, 3, 3, 0, 0, 2);
    scaled.Nmap("SCALE", {"1, 1, 1", "2, 0, -1"});
    scaled.Expect(1, 5, 3, -1);
    scaled.ExpectNormal(1, 0, 0, 2);
    EXPECT_TRUE(moved.Errors().empty());
    EXPECT_TRUE(turned.Errors().empty());
    EXPECT_TRUE(scaled.Errors().empty());
}

TEST(NodeMapLocalSystems, CylindricalSphericalRectangularToroidalDiamond) {
    Nodes nodes;
    nodes.Node(1, 1, 90, 0);
    nodes.Nmap("CYLINDRICAL", {"0, 0, 0, 0, 0, 1", "1, 0, 0"});
    nodes.Expect(1, 0, 1, 0);

    // Axes z = global x, x = global y, so y = global z; scaled values
    // (2, 90, 3) around A = (1, 1, 1).
    Nodes cylinder;
    cylinder.Node(1, 1, 45, 1);
    cylinder.Nmap("CYLINDRICAL", {"1, 1, 1, 2, 1, 1", "1, 2, 1", "2, 2, 3"});
    cylinder.Expect(1, 4, 1, 3);

    Nodes sphere;
    sphere.Node(1, 2, 90, 0);
    sphere.Node(2, 3, 0, 90);
    sphere.Nmap("SPHERICAL", {"0, 0, 0, 0, 0, 1", "1, 0, 0"});
    sphere.Expect(1, 0, 2, 0);
    sphere.Expect(2, 0, 0, 3);

    // x along global y, y from C along minus global x.
    Nodes rectangle;
    rectangle.Node(1, 1, 2, 3, 1, 0, 0);
    rectangle.Nmap("RECTANGULAR", {"1, 0, 0, 1, 1, 0", "0, 0, 0"});
    rectangle.Expect(1, -1, 1, 3);
    rectangle.ExpectNormal(1, 0, 1, 0);
    // Without C the z axis is the global one.
    rectangle.Nmap("RECTANGULAR", {"0, 0, 0, 0, 4, 0"});
    rectangle.Expect(1, -1, -1, 3);
    // Fewer than four values on line 1: the identity, even with factors.
    rectangle.Nmap("RECTANGULAR", {"7, 7, 7", "", "2, 2, 2"});
    rectangle.Expect(1, -2, -2, 6);

    // The major radius is the distance from A to B.
    Nodes torus;
    torus.Node(1, 1, 0, 90);
    torus.Node(2, 1, 90, 0);
    torus.Nmap("TOROIDAL", {"0, 0, 0, 5, 0, 0"});
    torus.Expect(1, 0, 4, 0);
    torus.Expect(2, 5, 0, 1);

    // Skew axes e1 = x, e2 = (1, 1, 0) / sqrt(2), e3 = z from A = (1, 0, 0).
    Nodes diamond;
    diamond.Node(1, 1, std::sqrt(2.0), 2);
    diamond.Nmap("DIAMOND", {"1, 0, 0, 2, 0, 0", "2, 1, 0, 1, 0, 3"});
    diamond.Expect(1, 3, 1, 2);

    for (Nodes* n : {&nodes, &cylinder, &sphere, &rectangle, &torus, &diamond})
        EXPECT_TRUE(n->Errors().empty());
}

TEST(NodeMapFaults, RefusedKeywordsAndDegenerateAxes) {
    Nodes nodes;
    nodes.Node(1, 1, 90, 0);
    nodes.Nmap("BLENDED", {"0, 0, 0, 0, 0, 1"});  // silently ignored
    nodes.Nmap("TRANSLATION", {"0, 0, 0, 1, 0, 0"}, nullptr, "GONE");
    nodes.Nmap(nullptr, {"0, 0, 0, 1, 0, 0"});
    nodes.Nmap("TRANSLATION", {"0, 0, 0, 1, 0, 0"}, nullptr, nullptr);
    nodes.Expect(1, 1, 90, 0);
    // A failed axis is reported, and the nodes are still mapped.
    nodes.Nmap("CYLINDRICAL", {"0, 0, 0, 0, 0, 0", "1, 0, 0"});
    EXPECT_TRUE(nodes.Level().IsMember(1));
    nodes.Node(2, 2, 0, 0);
    nodes.Nmap("ROTATION", {"1, 1, 1, 1, 1, 1", "", "90"});
    nodes.Expect(2, 2, 0, 0);
    nodes.Nmap("DIAMOND", {"0, 0, 0, 1, 0, 0", "0, 0, 0, 0, 0, 1"});
    EXPECT_EQ(nodes.Errors(),
              (Texts{at5("Node set GONE does not exist."),
                     at5("Both NSET and TYPE are required parameters."),
                     at5("Both NSET and TYPE are required parameters."),
                     at5("Point B is too close to point A so the local z-axis is ill-defined. "),
                     at5("The local x and z axes are parallel. "),
                     at5("Point B is too close to point A. "),
                     at5("Point C is too close to point A. ")}));

    Nodes compatible;
    compatible.AtCompatibleLevel();
    compatible.Nmap("BLENDED", {});
    EXPECT_EQ(compatible.Errors(), (Texts{at5("*NMAP with TYPE=BLENDED is not supported.")}));

    // In a moved instance *NMAP only reports.
    Nodes instance;
    instance.InInstanceMovedBy(0, 0, 7);
    instance.Node(1, 1, 2, 7);
    instance.Nmap("TRANSLATION", {"0, 0, 0, 1, 0, 0"});
    instance.Expect(1, 1, 2, 7);
    EXPECT_EQ(instance.Errors(),
              (Texts{at5("The part instance has undergone translation and/or rotation. This "
                         "implies *NMAP is used in a v6 input file.  This is not allowed. ")}));
}
