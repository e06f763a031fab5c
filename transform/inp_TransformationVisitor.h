#pragma once
// Brings keyword data written in the frame of a part into the frame of the
// moved instance that holds it, as a model is flattened: inside every
// instance whose transform is not the identity, points are transformed,
// directions rotated and tensors turned, and a keyword that refers to the
// fixed global axes gets an auxiliary *ORIENTATION so that it keeps its
// local meaning. Keywords are changed in place; auxiliary keywords are
// appended behind the children of the keyword that holds the one that
// caused them.
//
// Every handler starts with the same guard: nothing happens outside an
// instance or part, under an identity transform, or for a keyword without
// data. A model whose instances are not moved pays only the walk.
//
// Written data are the printed form of the double (cow_String::FromDouble),
// not the user's text. A keyword whose data another holder shares gets data
// of its own before anything is written, so that the other holder keeps
// what it had.

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "mesh/inp_CoordMap.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_ModelParameters.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_Map.h"
#include "support/gsl_Matrix.h"
#include "support/gsl_Point.h"
#include "support/gsl_Vector.h"
#include "support/inpM_IdMap.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

class inp_TransformationVisitor : public inp_Visitor {
  public:
    // `transformations`: the assembly's transform and one per instance;
    // `transformNodes`: global labels of nodes that have a *TRANSFORM
    // already; `nodeSets` grows by the sets the walk makes; `nodeIdMap`:
    // local to global labels by instance; `flag`: read by *SURFACE.
    inp_TransformationVisitor(inpM_InstanceMap<gsl_Matrix> const& transformations,
                              cow_List<int> const& transformNodes, inpM_SetMap& nodeSets,
                              inpM_IdMap const& nodeIdMap, bool flag, inp_CoordMap const& coordMap,
                              inpM_InstanceMap<inp_MapInt2Element> const& elementMap,
                              inpM_SetMap const& elementSets,
                              inp_ModelParameters const& modelParameters);
    ~inp_TransformationVisitor() override;

    // Keywords appended at the top level (by keywords without a parent) are
    // added behind the list.
    void VisitList(cow_List<inp_Keyword>& keywords) override;
    // Walks the children of a keyword and then appends the auxiliary
    // keywords they caused; those are not visited.
    void VisitSuboptions(inp_Keyword& keyword) override;
    void DefaultAction(inp_Keyword&) override {}

    // -- the transform in force ------------------------------------------------------
    void VisitAssembly(inp_Keyword& keyword) override;
    void VisitEndAssembly(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitEndInstance(inp_Keyword& keyword) override;

    // -- keyword data (inp_TransformationHandlers.cpp) --------------------------------
    void VisitAdjust(inp_Keyword& keyword) override;
    void VisitAqua(inp_Keyword& keyword) override;
    void VisitBeamGeneralSection(inp_Keyword& keyword) override;
    void VisitBeamSection(inp_Keyword& keyword) override;
    void VisitCoupling(inp_Keyword& keyword) override;
    void VisitDashpot(inp_Keyword& keyword) override;
    void VisitFastener(inp_Keyword& keyword) override;
    void VisitFrameSection(inp_Keyword& keyword) override;
    void VisitGap(inp_Keyword& keyword) override;
    void VisitGasketSection(inp_Keyword& keyword) override;
    void VisitImpedanceProperty(inp_Keyword& keyword) override;
    void VisitIts(inp_Keyword& keyword) override;
    void VisitJoint(inp_Keyword& keyword) override;
    void VisitKinematicCoupling(inp_Keyword& keyword) override;
    void VisitNormal(inp_Keyword& keyword) override;
    void VisitOrientation(inp_Keyword& keyword) override;
    void VisitPreTensionSection(inp_Keyword& keyword) override;
    void VisitRotaryInertia(inp_Keyword& keyword) override;
    void VisitSolidSection(inp_Keyword& keyword) override;
    void VisitSpring(inp_Keyword& keyword) override;
    void VisitTransform(inp_Keyword& keyword) override;
    void VisitDistribution(inp_Keyword& keyword) override;
    void VisitImperfection(inp_Keyword& keyword) override;
    void VisitParameterShapeVariation(inp_Keyword& keyword) override;
    void VisitWave(inp_Keyword& keyword) override;
    void VisitWind(inp_Keyword& keyword) override;
    // inp_TransformationSurfaces.cpp: analytical and cutting surfaces, at
    // every level and under any transform, once TYPE is given.
    void VisitSurface(inp_Keyword& keyword) override;
    void VisitRigidSurface(inp_Keyword& keyword) override { VisitSurface(keyword); }
    // The nodes of an equation in an instance get a *TRANSFORM, once.
    void VisitEquation(inp_Keyword& keyword) override;

    // -- shared operations --------------------------------------------------------------

    // When row `row` has an item at `column` that is not empty: up to three
    // doubles from there (0.0 beyond the line) transformed as a point, or
    // rotated as a vector, and written back over those three items.
    void TransformSinglePoint(inp_Keyword& keyword, int row, int column);
    void TransformSingleVector(inp_Keyword& keyword, int row, int column);
    // The 2D point at (row, column), z = 0, transformed.
    gsl_Point GetAndTransform2DPoint(inp_Keyword const& keyword, int row, int column) const;
    // The first row whose first item is START, or the row count; the
    // non-blank rows before it are counted in `leadingLines`.
    static int GotoLineWithStart(inp_Keyword const& keyword, int& leadingLines);
    // Rows from `firstRow` on appended to `to` as texts, empty items left out.
    void CopyAppendDataLines(inp_Keyword const& from, int firstRow, inp_Keyword& to) const;
    // a: the translation of the transform in force; b = a + its second
    // axis; with c, b = a + the first axis and c = a - the third.
    void ComputePointsABFromCoordSystem(gsl_Point& a, gsl_Point& b) const;
    void ComputePointsABCFromCoordSystem(gsl_Point& a, gsl_Point& b, gsl_Point& c) const;
    // The global labels of the nodes an *EQUATION names in the scope: each
    // label through the scope's id map, each node set by its members.
    cow_List<int> GetNodesInvolved(inp_Keyword const& keyword);
    cow_List<int> GetNodesFromNset(cow_String const& name);
    // A copy with the same parameters and suboptions whose row 0, unless it
    // starts with a name, holds the points a, b (and c) rotated
    // (`vectorsOnly`) or transformed; the other rows as they were.
    inp_Keyword TransformOrientationData(inp_Keyword const& keyword, bool vectorsOnly) const;
    // Adds `keyword` behind the children of the keyword being walked.
    void AppendAuxiliary(inp_Keyword const& keyword);
    // The rule of inp_Coord::ZeroSmallerThanTolerance on a copy.
    static gsl_Vector ZeroSmallerThanTolerance(gsl_Vector const& vector);
    static gsl_Point ZeroSmallerThanTolerance(gsl_Point const& point);
    // The ordinary product a b, written into `product`.
    static void MatrixMultiply3x3(double (*a)[3], double (*b)[3], double (*product)[3]);

  protected:
    // True when the handler is to do nothing: no scope, an identity
    // transform, or no data.
    bool guarded(inp_Keyword const& keyword) const;
    // The scope: the instance name when set, else the part name.
    cow_String const& scope() const;
    // Whether the items of `row` from `first` on, `count` of them, are
    // numbers where they are given; text there is reported, and the caller
    // leaves the keyword as written.
    bool numbersAt(inp_Keyword const& keyword, int row, int first, int count);
    // Gives the keyword data of its own when another holder shares them.
    static void ownData(inp_Keyword& keyword);
    // The auxiliary orientation of a keyword that depends on the global
    // axes: named `prefix` followed by the value of `parameter`, the global
    // axes rotated into the instance; the keyword gets ORIENTATION = name.
    // Nothing when the keyword has an ORIENTATION or lacks `parameter`.
    void addAuxiliaryOrientation(inp_Keyword& keyword, char const* prefix, char const* parameter);
    bool pointsReadable(inp_Keyword const& keyword);
    // The first direction of a beam section, by its SECTION.
    void transformBeamDirection(inp_Keyword& keyword);
    // *SPRING and *DASHPOT of the types that need an orientation.
    void visitSpringOrDashpot(inp_Keyword& keyword, bool spring);
    // *ORIENTATION, DEFINITION=NODES made a definition by coordinates, the
    // positions of its nodes in the frame of the part; false after an error.
    bool orientationByNodes(inp_Keyword& keyword, bool vectorsOnly);
    // The global label of a local node of the scope, or 0 when the id map
    // lacks it.
    int globalNode(int local) const;
    // The position of a global node of the scope in the frame of the part.
    bool localPosition(int global, gsl_Point& point) const;
    // The differential conversions of a displacement given in a cylindrical
    // or spherical system at `node`, whose position is brought back into
    // the frame of the part first.
    void DifferentialCylindricalConversion(double& dr, double& dtheta, gsl_Point const& node) const;
    void DifferentialSphericalConversion(double& dr, double& dtheta, double& dphi,
                                         gsl_Point const& node) const;
    // A displacement (d[0..2]) given in SYSTEM ("R", "C" or "S") at `node`,
    // made Cartesian and turned into the instance.
    void turnDisplacement(cow_String const& system, gsl_Point const& node, double (&d)[3]) const;
    // The data of a CYLINDER or REVOLUTION surface, or of a SEGMENTS one
    // (false for an unknown shape), written into `rewritten`.
    void rewriteLocalSystem(inp_Keyword const& keyword, bool cylinder, int start, int leadingLines,
                            inp_Keyword& rewritten);
    bool rewriteSegments(inp_Keyword const& keyword, int start, int leadingLines,
                         inp_Keyword& rewritten);

    gsl_Matrix m_currentTransform;
    std::vector<cow_List<inp_Keyword>> m_keywordStack;  // auxiliary keywords per frame
    cow_List<inp_Keyword> m_topLevelAuxiliaries;
    inpM_InstanceMap<gsl_Matrix> m_transformations;
    cow_List<int> m_transformNodes;
    inpM_SetMap& m_nodeSets;
    inpM_IdMap m_nodeIdMap;
    inp_CoordMap m_coordMap;
    inpM_InstanceMap<inp_MapInt2Element> m_elementMap;
    inpM_SetMap m_elementSets;
    int m_setCounter = 0;
    bool m_flag;
    cow_Map<cow_String, cow_List<int>> m_nonTransformedNodes;  // per instance, for *EQUATION
    // The same, and the transform nodes, for lookups that stay cheap
    // however many equations a deck has.
    std::map<std::string, std::unordered_set<int>> m_handledNodes;
    inp_ModelParameters m_modelParameters;
    std::unordered_set<int> m_transformNodeLookup;

    // A triple turned as a direction, or moved as a point, and cleaned of
    // rounding noise.
    void turnTriple(double (&values)[3], bool asVector) const;

    // Up to three doubles of a row from `column` on, 0.0 where it has none.
    static void readTriple(inp_DataArray const& data, int row, int column, double (&values)[3]);
    // The three items from `column` on overwritten, the keyword given data
    // of its own first.
    static void writeTriple(inp_Keyword& keyword, int row, int column, double const (&values)[3]);

  private:
    // TransformSinglePoint and TransformSingleVector, told apart by `asVector`.
    void transformAt(inp_Keyword& keyword, int row, int column, bool asVector);
    // The matrix of the level: the instance's, or the assembly's own.
    gsl_Matrix levelTransform() const;
};
