#pragma once
// A node visitor on the top level, or inside an instance moved by a
// translation, for the tests of the node keywords: nodes and sets are put in
// by hand, and positions are put in and read back globally.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mesh/inp_NodeVisitor.h"
#include "support/inpM_Set.h"

class NodeKeywordLevel : public inp_NodeVisitor {
  public:
    explicit NodeKeywordLevel(bool readCoordinates = true) : inp_NodeVisitor(readCoordinates) {}

    void InInstanceMovedBy(double dx, double dy, double dz) {
        m_instanceName = "I";
        m_instanceTransform.SetTranslation(dx, dy, dz);
        inp_CoordMap nested;
        nested.Transform(m_instanceTransform);
        m_coordMap.Insert("I", nested);
    }
    inp_CoordMap& Level() { return CurrentName().IsEmpty() ? m_coordMap : m_coordMap.Get("I"); }
    // A node given in global position.
    void PutNode(int label, double x, double y, double z, double nx = 0, double ny = 0,
                 double nz = 0) {
        Level().Insert(label, UndoInstanceTransform(inp_Coord(x, y, z, nx, ny, nz)));
    }
    // Adds `labels` to the set `name` of the current level.
    void AddToSet(char const* name, cow_List<int> const& labels) {
        if (CurrentName().IsEmpty())
            AddAssySet(name, CreateSet(labels, false, false), false);
        else
            AddPartSet(name, CreateSet(labels, false, false), false);
    }
    void Expect(int label, double x, double y, double z) {
        ASSERT_TRUE(Level().IsMember(label)) << label;
        inp_Coord const c = Level().ConstGet(label);
        EXPECT_NEAR(c.x, x, kTolerance) << label;
        EXPECT_NEAR(c.y, y, kTolerance) << label;
        EXPECT_NEAR(c.z, z, kTolerance) << label;
    }
    void ExpectNormal(int label, double x, double y, double z) {
        inp_Coord const c = Level().ConstGet(label);
        EXPECT_NEAR(c.nx, x, kTolerance) << label;
        EXPECT_NEAR(c.ny, y, kTolerance) << label;
        EXPECT_NEAR(c.nz, z, kTolerance) << label;
    }
    std::vector<std::string> Errors() const { return texts(GetErrorList()); }
    std::vector<std::string> Warnings() const { return texts(GetWarningList()); }

    static constexpr double kTolerance = 1e-12;

  private:
    static std::vector<std::string> texts(cow_List<atr_String> const& list) {
        std::vector<std::string> result;
        for (atr_String const& text : list) result.emplace_back(text.View());
        return result;
    }
};
