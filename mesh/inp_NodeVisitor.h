#pragma once
// The visitor that builds the nodes of a model: it walks a keyword list and
// reads *NODE, *SYSTEM and *NSET (and the generators *NGEN, *NFILL, *NCOPY
// and *NMAP) into an inp_CoordMap and the node set map of its base.
//
// It knows nothing of parts by itself. The level-specific subclasses set the
// scope (the part or instance name of inp_Visitor), create the nested map of
// the scope in the coordinate map and set the instance transform. Nodes of a
// moved instance are stored in the frame of its part: whatever is worked out
// globally goes through UndoInstanceTransform before it is stored.
//
// Keywords are read in deck order, so a node that a generator needs must have
// come earlier. Every fault of the deck becomes an error in the visitor's
// lists and the walk goes on.

#include "mesh/inp_Coord.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_ElementInfo.h"
#include "mesh/inp_MapInt2Element.h"
#include "mesh/inp_SetVisitor.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/gsl_Matrix.h"
#include "support/gsl_Plane.h"
#include "support/gsl_Point.h"
#include "support/gsl_StLine.h"
#include "support/gsl_Vector.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

class inp_NodeVisitor : public inp_SetVisitor {
  public:
    explicit inp_NodeVisitor(bool readCoordinates);
    // Element-based *NSET (ELSET parameter) takes the nodes of `elements`
    // through the sets of `elsets`.
    inp_NodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elsets,
                    bool readCoordinates);
    // Starts from the node sets `nsets` as well. When they are not empty, old
    // sets named by the generators are sought at the assembly level and in
    // all instances instead of nested in the scope.
    inp_NodeVisitor(inpM_InstanceMap<inp_MapInt2Element> const& elements, inpM_SetMap const& elsets,
                    inpM_SetMap const& nsets, bool readCoordinates);
    ~inp_NodeVisitor() override;

    inp_CoordMap const& ConstGetCoordMap() const noexcept { return m_coordMap; }
    inpM_InstanceMap<gsl_Matrix> const& ConstGetTransformationMap() const noexcept {
        return m_transformationMap;
    }
    void setInstancePartNames(inpM_InstanceMap<cow_String> const& names) {
        m_instancePartNames = names;
    }
    // Changes what *NMAP does with TYPE=BLENDED.
    void setAtelierCompatible(bool compatible) noexcept { m_atelierCompatible = compatible; }

    // -- the keywords ------------------------------------------------------------
    void DefaultAction(inp_Keyword& keyword) override;
    void VisitNcopy(inp_Keyword& keyword) override;
    void VisitNfill(inp_Keyword& keyword) override;
    void VisitNgen(inp_Keyword& keyword) override;
    void VisitNmap(inp_Keyword& keyword) override;
    void VisitNode(inp_Keyword& keyword) override;
    void VisitNset(inp_Keyword& keyword) override;
    void VisitSystem(inp_Keyword& keyword) override;
    // "*NODE": messages about sets name *NSET.
    cow_String KeywordName() const override;
    // Whether `name` is the current scope (part, else instance). The
    // level-specific subclasses, which know the instances of an assembly,
    // widen this.
    bool IsValidInstanceName(cow_String const& name) const override;

    // -- supporting operations ------------------------------------------------------

    // A copy of the record with its point moved by the instance transform
    // (ApplyInstanceTransform) or moved back (UndoInstanceTransform). The
    // normal is not touched. An identity transform returns the copy as it is.
    inp_Coord ApplyInstanceTransform(inp_Coord const& record) const;
    inp_Coord UndoInstanceTransform(inp_Coord const& record) const;

    // A number, or a label or count, at (row, col) of a data line; a missing
    // value, one beyond the end of the line or of the data, and text where a
    // number belongs all read as 0.
    static double NumberAt(inp_DataArray const& data, int row, int col);
    static int IntegerAt(inp_DataArray const& data, int row, int col);

    // Three consecutive values from (row, col) on; values beyond the end of
    // the line, or of the data, are 0.0.
    static gsl_Point ReadPointFromKeywordData(inp_Keyword const& keyword, int row, int col);
    // The node whose label stands at (row, col) (0 when the line is shorter):
    // its global position when it is a node of `scope` (the top level for an
    // empty scope), else the origin. A missing node is no error here.
    gsl_Point ReadNodeFromKeywordData(inp_Keyword const& keyword, cow_String const& scope, int row,
                                      int col) const;

    // With d the unit direction of the line and p = (v . d) d: p - (v - p).
    static gsl_Vector ReflectVectorAboutLine(gsl_Vector const& v, gsl_StLine const& line);
    // With n the unit normal of the plane and p = (v . n) n: (v - p) - p.
    static gsl_Vector ReflectVectorAboutPlane(gsl_Vector const& v, gsl_Plane const& plane);
    // result = matrix x vector, row by row.
    static void MatrixVectorMultiply3x3(double (*matrix)[3], double* vector, double* result);

    // Whether the node set `name` exists: with searchAssembly at the assembly
    // level or in an instance (`scope` then tells where), else nested in
    // `scope`.
    bool CheckExistenceOfOldSet(cow_String const& name, cow_String& scope) const;

    // Works out the circle of *NGEN with LINE=C; false on a fatal fault.
    bool CircleData(inp_Keyword const& keyword, inp_Coord const& first, inp_Coord const& last,
                    inp_Coord const& center, inp_Coord const& normal, double& radius, double& angle,
                    inp_Coord& startAxis, inp_Coord& sideAxis, inp_Coord& planeNormal,
                    inp_Coord& endAxis);

  protected:
    // The map *NODE writes into: the nested map of the scope, or the top
    // level for an empty scope; null (and an error) for a scope without one.
    inp_CoordMap* targetMap(inp_Keyword const& keyword);
    // Stores a sorted set of `labels` under `name` in the merging mode, in
    // the scope or at the assembly level.
    void addLabelSet(cow_String const& name, cow_List<int> const& labels);

    inp_CoordMap m_coordMap;
    gsl_Matrix m_instanceTransform;  // identity outside a moved instance
    gsl_Matrix m_systemTransform;    // set by the latest *SYSTEM
    inpM_InstanceMap<gsl_Matrix> m_transformationMap;
    inpM_InstanceMap<cow_String> m_instancePartNames;
    cow_Map<cow_String, inp_ElementInfo> m_elementInfo;
    inpM_InstanceMap<inp_MapInt2Element> m_elementMap;
    inpM_SetMap m_elsetMap;
    bool m_searchAssembly = false;
    bool m_readCoordinates = true;
    bool m_atelierCompatible = false;

  private:
    // *NODE rows of the compact array and of raw text.
    void readCompactNodes(inp_Keyword const& keyword, char system, inp_CoordMap* target,
                          cow_List<int>& labels);
    void readRawNodes(inp_Keyword const& keyword, char system, inp_CoordMap* target,
                      cow_List<int>& labels);
    // Converts, turns and stores one node.
    void storeNode(inp_CoordMap& target, int label, inp_Coord& record, char system) const;
    // *NSET with ELSET, in a scope and at the assembly level.
    void nodesOfElsetInScope(inp_Keyword const& keyword, cow_String const& nset,
                             cow_String const& elset, bool internal);
    void nodesOfElsetAtAssembly(inp_Keyword const& keyword, cow_String const& nset,
                                cow_String const& elset, bool internal);
};
