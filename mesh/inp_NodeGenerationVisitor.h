#pragma once
// The walk that makes the nodes which exist only implicitly, run once the
// nodes and elements of a model are known.
//
// Two kinds of node are never written in a *NODE block, yet every label of a
// connectivity must be a node afterwards:
// - the upper-layer nodes of layered elements given by their bottom nodes and
//   OFFSET (the asymmetric axisymmetric families, gaskets and cohesive
//   elements with OFFSET), including their copies by *ELGEN and *ELCOPY when
//   generateForCopies is set;
// - the two midside nodes of GK3D18 gaskets in the simulation workflow, which
//   get fresh labels above the highest node of their scope.
//
// The element visitor has made the records already: the labels of the upper
// layers are read from the element records, and this walk only adds the
// nodes. An upper node of an asymmetric axisymmetric element sits where its
// bottom node sits (it is the same point in another plane); that of a gasket
// or cohesive element keeps the record it has, or gets one at the origin
// that later data of the user may move.
//
// The element table and the coordinate map given at construction are copies:
// the coordinates are extended here (ConstGetCoordMap), while the labels of
// midside nodes are written into the element records in place, which every
// holder of the element table sees.

#include "deck/inp_DataArray.h"
#include "mesh/inp_Coord.h"
#include "mesh/inp_CoordMap.h"
#include "mesh/inp_ElementInfo.h"
#include "mesh/inp_ElementLayering.h"
#include "mesh/inp_MapInt2Element.h"
#include "pipeline/inp_Visitor.h"
#include "support/cow_List.h"
#include "support/cow_Map.h"
#include "support/cow_String.h"
#include "support/gsl_Matrix.h"
#include "support/gsl_Point.h"
#include "support/inpM_InstanceMap.h"
#include "support/inpM_SetMap.h"

// One data row of *ELGEN, as both generation walks read it: a master element
// and up to three directions of copies, each with a count, a step of the node
// labels and a step of the element labels. The copy (i, j, k), each index
// below the count of its direction, has the label master + i es1 + j es2 +
// k es3 and its nodes shifted by i ns1 + j ns2 + k ns3; (0, 0, 0) is the
// master itself.
struct inp_ElgenRow {
    int master = 0;
    // Counts of directions 2 and 3 default to 1. Count 1 has no default: a
    // row without it makes nothing.
    int count[3] = {0, 1, 1};
    int nodeStep[3] = {1, 0, 0};
    int elementStep[3] = {1, 0, 0};

    // Reads the first ten values of the row; empty and missing fields keep
    // the defaults, and counts of directions 2 and 3 below 1 count as 1.
    static inp_ElgenRow Read(inp_DataArray const& data, int row);
    // Whether the row holds no value at all: no columns, or only empty ones
    // (a raw text line always has one column, if only an empty one).
    static bool IsEmpty(inp_DataArray const& data, int row);

    // The extreme labels of the row, reckoned in double precision so that no
    // step can overflow.
    double LowestLabel() const;
    double HighestLabel() const;
    // The number of elements of the row, the master included; count 1 must
    // be positive.
    double Elements() const;
    // Whether every label of the row has at most nine digits and is positive,
    // and the row makes no more elements than there are such labels (more
    // would only overwrite each other, endlessly).
    bool Fits() const;

    // The label of copy (i, j, k); exact once the row fits.
    int Label(int i, int j, int k) const;
    // Reckoned in 64 bits; a shift beyond the integers wraps around.
    int NodeShift(int i, int j, int k) const;
};

class inp_NodeGenerationVisitor : public inp_Visitor {
  public:
    // `defaultScope` names the part or instance of keywords that stand outside
    // any *PART and *INSTANCE; empty for the top level of the maps.
    // `generateForCopies`: *ELGEN and *ELCOPY are acted upon. `searchAssembly`:
    // the OLDSET of *ELCOPY is sought at the assembly level and in all
    // instances. `skipAssembly`: the walk leaves out *ASSEMBLY with its
    // contents; otherwise it leaves out *PART.
    inp_NodeGenerationVisitor(inp_CoordMap const& coordMap,
                              inpM_InstanceMap<inp_MapInt2Element> const& elementMap,
                              inpM_SetMap const& elsetMap, bool generateForCopies,
                              bool searchAssembly, bool skipAssembly,
                              cow_String const& defaultScope);
    ~inp_NodeGenerationVisitor() override;

    inp_CoordMap const& ConstGetCoordMap() const noexcept { return m_coordMap; }
    void setAtelierCompatible(bool compatible) noexcept { m_atelierCompatible = compatible; }

    // -- the walk -----------------------------------------------------------------
    // Leaves out *ASSEMBLY (skipAssembly) or *PART (otherwise), together with
    // the suboptions they hold; every other keyword goes to the base.
    void Visit(inp_Keyword& keyword) override;
    void DefaultAction(inp_Keyword& keyword) override;
    // Both reset the highest node label to that of the new scope in the
    // simulation workflow.
    void VisitPart(inp_Keyword& keyword) override;
    void VisitInstance(inp_Keyword& keyword) override;
    void VisitElement(inp_Keyword& keyword) override;
    void VisitElcopy(inp_Keyword& keyword) override;
    void VisitElgen(inp_Keyword& keyword) override;
    // Whether `name` is the current scope.
    virtual bool IsValidInstanceName(cow_String const& name) const;

    // -- supporting operations ------------------------------------------------------

    // The highest node label of `scope` (the top level for an empty scope);
    // 0 for a scope without nodes or without a map.
    int FindMaxNodeLabel(cow_String const& scope) const;
    // The eight shape functions of the serendipity quadrilateral at (r, s),
    // corners first, then the midsides of the edges 1-2, 2-3, 3-4 and 4-1.
    void BiquadraticInterpolator(double const& r, double const& s, double* const weights) const;
    // Makes the node `midside` (a list of one label) at the center of the
    // quadratic face `faceNodes` (eight labels, corners first), unless the
    // label is 0 or a node already, or a face node is missing. The center is
    // the shape functions at r = s = 0 applied to the face; the node has no
    // normal.
    void GenerateGasketGK3D18MidsideNodes(inp_CoordMap& map, cow_List<int> const& faceNodes,
                                          cow_List<int> const& midside);
    // For the 18 nodes of a GK3D18: `first` makes node 17 on the face of the
    // nodes 1 to 8, `second` node 18 on the face of the nodes 9 to 16.
    void GenerateGasketGK3D18MidsideNodes(inp_CoordMap& map, bool first, bool second,
                                          cow_List<int> const& nodes);

  protected:
    inp_CoordMap m_coordMap;
    cow_Map<cow_String, inp_ElementInfo> m_elementInfo;
    inpM_InstanceMap<inp_MapInt2Element> m_elementMap;
    inpM_SetMap m_elsetMap;
    bool m_searchAssembly = false;
    bool m_generateForCopies = false;
    bool m_skipAssembly = false;
    bool m_atelierCompatible = false;
    cow_String m_defaultScope;
    // The highest node label of the scope, kept in the simulation workflow
    // only, where midside nodes take the labels above it.
    int m_maxNodeLabel = 0;

  private:
    // Where the nodes of one keyword go: a level of nodes, the inverse of its
    // transform (nodes are stored in the frame of their part and read back
    // moved), and the highest node label that midside nodes count up from,
    // when it is kept.
    struct GenerationTarget {
        GenerationTarget(inp_CoordMap& level, int* highest) : nodes(level), highestLabel(highest) {
            gsl_Matrix const& transform = level.ConstGetTransformation();
            if (!transform.IsIdentity()) transform.InverseRigidTransform(toStored);
        }
        // A new node at the global position `point`, without a normal.
        void Store(int label, gsl_Point point) {
            if (!toStored.IsIdentity()) toStored.Transform(point);
            inp_Coord record;
            record.SetPoint(point);
            StoreRecord(label, record);
        }
        void StoreRecord(int label, inp_Coord const& record) {
            nodes.Insert(label, record);
            if (highestLabel != nullptr && label > *highestLabel) *highestLabel = label;
        }

        inp_CoordMap& nodes;
        gsl_Matrix toStored;
        int* highestLabel;
    };
    // One *ELEMENT keyword on its way through its rows.
    struct ElementKeyword;

    // The part name, else the instance name, else the default scope.
    cow_String const& scope() const noexcept;
    // Sets m_maxNodeLabel to the highest label of `name`.
    void resetMaxNodeLabel(cow_String const& name);
    // The elements of the current scope, writable in place, or of the scope
    // `name` for reading; null when the scope has none.
    inp_MapInt2Element* scopeElements();
    inp_MapInt2Element const* elementsOf(cow_String const& name) const;
    // The nodes of the current scope; null when it has no level of nodes.
    inp_CoordMap* scopeNodes();
    GenerationTarget targetFor(inp_CoordMap& level);

    // Makes the nodes of the element whose data begin at `row` and leaves
    // `row` on its last data line; false when the keyword ends.
    bool visitElementRow(ElementKeyword& walk, int& row);
    // The layering of a copy made from `master` by *ELGEN or *ELCOPY, which
    // has no keyword of its own: that of its type, when layers were made for
    // the master.
    inp_ElementLayering layeringOfCopy(inp_Element const& master) const;
    // Adds the upper-layer nodes of one element.
    void generateLayers(GenerationTarget& target, inp_ElementLayering const& layering,
                        inp_Element const& element);
    // Checks a copy's node count against the full size of its layering and
    // reports a mismatch; false when it does not fit.
    bool checkCopySize(inp_Keyword const& keyword, inp_ElementLayering const& layering,
                       inp_Element const& copy);
    // The layers of the copies of one *ELGEN row; false when the keyword ends.
    bool generateForElgenRow(inp_Keyword const& keyword, int row,
                             inp_MapInt2Element const* elements);
    // The layers of the copies of *ELCOPY.
    void generateForElcopy(inp_Keyword const& keyword, cow_String const& setScope,
                           cow_List<int> const& ids);

    // Gives the open midside positions 17 and 18 of a GK3D18 the labels
    // above the highest node and makes the nodes.
    void completeGasketMidsides(GenerationTarget& target, inp_Element& element);
    // The midside node of one face (eight labels at `face`).
    void makeMidsideNode(GenerationTarget& target, int const* face, int midside);

    // The scope whose highest node label m_maxNodeLabel holds, once known.
    cow_String m_maxNodeScope;
    bool m_maxNodeKnown = false;
};
