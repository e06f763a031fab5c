#include "mesh/inp_NodeGenerationVisitor.h"

#include <algorithm>
#include <cstdint>

#include "mesh/inp_ElementTypes.h"
#include "mesh/inp_SetVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/atr_String.h"
#include "support/gsl_Matrix.h"
#include "support/gsl_Point.h"
#include "support/inpM_Set.h"

// The GK3D18 midside nodes and the shape functions that place them live in
// inp_GasketMidsideNodes.cpp.

namespace {

constexpr double kMaxLabel = inp_SetVisitor::kMaxId;

int intAt(inp_DataArray const& data, int row, int col, int fallback) {
    return data.HasValue(row, col) ? data.AsInt(row, col) : fallback;
}

// The node count of the element whose data begin at `row`, and the last row
// it takes. A row ended by a comma goes on in the next one while the element
// is below its greatest count and the next row fits in; a next row that does
// not fit is taken only while the element is below its least count, so that
// a row that can stand as an element does not swallow the next one. This is
// how *ELEMENT reads its rows, and how the rows rewritten whole after layers
// were made read too.
struct RowSpan {
    int count;
    int last;
};
RowSpan elementRowSpan(inp_DataArray const& data, int row, int least, int greatest) {
    RowSpan span{data.Cols(row) - 1, row};
    bool continues = data.HasRowContinuation(row);
    while (continues) {
        --span.count;  // the empty value behind the trailing comma
        if (span.count >= greatest || span.last + 1 >= data.Rows()) break;
        bool const nextContinues = data.HasRowContinuation(span.last + 1);
        int const next = data.Cols(span.last + 1) - (nextContinues ? 1 : 0);
        if (span.count + next > greatest && span.count >= least) break;
        ++span.last;
        span.count += next + (nextContinues ? 1 : 0);  // its own empty value goes above
        continues = nextContinues;
    }
    return span;
}

// GK3D18 alone: GK3D18N rows keep the open positions they were given.
bool isMidsideGasket(cow_String const& type) {
    return type == "GK3D18";
}

atr_String sizeMismatch(cow_String const& type, int count, char const* ending) {
    atr_String message = atr(
        "Internal error: number of nodes in asymmetric element of type \"%1$s\", number = %2$s is "
        "less than expected",
        type, count);
    message.append(ending);
    return message;
}

}  // namespace

// -- construction -----------------------------------------------------------------------

inp_NodeGenerationVisitor::inp_NodeGenerationVisitor(
    inp_CoordMap const& coordMap, inpM_InstanceMap<inp_MapInt2Element> const& elementMap,
    inpM_SetMap const& elsetMap, bool generateForCopies, bool searchAssembly, bool skipAssembly,
    cow_String const& defaultScope)
    : m_coordMap(coordMap),
      m_elementInfo(inp_ElementTypes::LoadTypeTable()),
      m_elementMap(elementMap),
      m_elsetMap(elsetMap),
      m_searchAssembly(searchAssembly),
      m_generateForCopies(generateForCopies),
      m_skipAssembly(skipAssembly),
      m_defaultScope(defaultScope) {
    if (!IsSimWorkFlow()) return;
    cow_List<cow_String> const instances = m_coordMap.Instances();
    if (instances.Length() == 1 && instances[0] == m_defaultScope)
        resetMaxNodeLabel(m_defaultScope);
}

inp_NodeGenerationVisitor::~inp_NodeGenerationVisitor() = default;

// -- the walk ---------------------------------------------------------------------------

// In a keyword tree the contents of *PART and *ASSEMBLY are their suboptions,
// which the base walks from Visit: leaving out the keyword leaves them out.
void inp_NodeGenerationVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(m_skipAssembly ? inp_kw_Assembly : inp_kw_Part)) return;
    inp_Visitor::Visit(keyword);
}

void inp_NodeGenerationVisitor::DefaultAction(inp_Keyword&) {}

void inp_NodeGenerationVisitor::VisitPart(inp_Keyword& keyword) {
    inp_Visitor::VisitPart(keyword);
    if (IsSimWorkFlow()) resetMaxNodeLabel(scope());
}

void inp_NodeGenerationVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitInstance(keyword);
    if (IsSimWorkFlow()) resetMaxNodeLabel(scope());
}

bool inp_NodeGenerationVisitor::IsValidInstanceName(cow_String const& name) const {
    return name == scope();
}

// -- scope ------------------------------------------------------------------------------

cow_String const& inp_NodeGenerationVisitor::scope() const noexcept {
    if (!m_partName.IsEmpty()) return m_partName;
    if (!m_instanceName.IsEmpty()) return m_instanceName;
    return m_defaultScope;
}

// Labels do not depend on where nodes are: a view of the level without its
// transform hands out the stored table itself, with no copy, unless the
// level was renumbered, when the table of current labels must be built.
int inp_NodeGenerationVisitor::FindMaxNodeLabel(cow_String const& name) const {
    if (!name.IsEmpty() && !m_coordMap.IsMember(name)) return 0;
    inp_CoordMap view = name.IsEmpty() ? m_coordMap : m_coordMap.ConstGet(name);
    view.GetTransformation().FillIdentity();
    inp_MapInt2Coord const nodes = view.ConstGet();
    return nodes.IsEmpty() ? 0 : nodes.ConstGet().MaxKey();
}

void inp_NodeGenerationVisitor::resetMaxNodeLabel(cow_String const& name) {
    m_maxNodeLabel = FindMaxNodeLabel(name);
    m_maxNodeScope = name;
    m_maxNodeKnown = true;
}

inp_MapInt2Element* inp_NodeGenerationVisitor::scopeElements() {
    cow_String const& name = scope();
    if (name.IsEmpty()) return m_elementMap.HasValue() ? &m_elementMap.Get() : nullptr;
    if (!m_elementMap.IsMember(name)) return nullptr;
    inpM_InstanceMap<inp_MapInt2Element>& holder = m_elementMap.GetMap(name);
    return holder.HasValue() ? &holder.Get() : nullptr;
}

inp_MapInt2Element const* inp_NodeGenerationVisitor::elementsOf(cow_String const& name) const {
    if (name.IsEmpty()) return m_elementMap.HasValue() ? &m_elementMap.ConstGet() : nullptr;
    if (!m_elementMap.IsMember(name)) return nullptr;
    inpM_InstanceMap<inp_MapInt2Element> const& holder = m_elementMap.ConstGetMap(name);
    return holder.HasValue() ? &holder.ConstGet() : nullptr;
}

// A scope without a level of nodes has no bottom nodes to build on: its
// elements name nodes that do not exist, which the check of undefined nodes
// reports, and nothing is made here.
inp_CoordMap* inp_NodeGenerationVisitor::scopeNodes() {
    cow_String const& name = scope();
    if (name.IsEmpty()) return &m_coordMap;
    return m_coordMap.IsMember(name) ? &m_coordMap.Get(name) : nullptr;
}

// In the simulation workflow the highest label is kept for the scope being
// written. The scope it was found for at construction or by *PART and
// *INSTANCE is usually this one; for any other (a top level, a scope the
// stage did not announce) it is found anew, so that a midside label is
// always above every node of its scope.
inp_NodeGenerationVisitor::GenerationTarget inp_NodeGenerationVisitor::targetFor(
    inp_CoordMap& level) {
    if (!IsSimWorkFlow()) return GenerationTarget(level, nullptr);
    if (!m_maxNodeKnown || m_maxNodeScope != scope()) resetMaxNodeLabel(scope());
    return GenerationTarget(level, &m_maxNodeLabel);
}

// -- layers -----------------------------------------------------------------------------

inp_ElementLayering inp_NodeGenerationVisitor::layeringOfCopy(inp_Element const& master) const {
    inp_ElementInfo const* const info = m_elementInfo.Find(master.type());
    if (info == nullptr) return {};
    inp_ElementLayering const layering =
        inp_ClassifyElementLayering(master.type().View(), info->least, info->greatest, true);
    if (!layering.IsGasketOrCohesive()) return layering;
    // Only a master given by its bottom nodes had its layers made from the
    // OFFSET, which its record keeps; the count it was given tells the bottom
    // of a GK3D18 (8 or 9).
    if (master.nodeOffset() == 0 || master.numNodesDefined() == 0) return {};
    return layering.ForGivenNodes(master.numNodesDefined());
}

// The labels of the upper layers stand in the record: node i of layer l at
// position i + l x bottom. An open position (0) names no node.
void inp_NodeGenerationVisitor::generateLayers(GenerationTarget& target,
                                               inp_ElementLayering const& layering,
                                               inp_Element const& element) {
    int const* const nodes = element.nodes();
    int const count = element.numNodesPerElement();
    bool const samePlace = layering.family == inp_ElementLayering::kAxisymmetricAsymmetric;
    for (int layer = 1; layer <= layering.layersAbove; ++layer) {
        for (int i = 0; i < layering.bottom; ++i) {
            int const position = i + layer * layering.bottom;
            if (position >= count) break;
            int const bottom = nodes[i];
            int const upper = nodes[position];
            if (bottom == 0 || upper == 0) continue;
            if (!samePlace) {
                if (!target.nodes.IsMember(upper)) target.StoreRecord(upper, inp_Coord());
            } else if (target.nodes.IsMember(bottom)) {
                target.Store(upper, target.nodes.ConstGet(bottom).Point());
            }
        }
    }
}

bool inp_NodeGenerationVisitor::checkCopySize(inp_Keyword const& keyword,
                                              inp_ElementLayering const& layering,
                                              inp_Element const& copy) {
    if (copy.numNodesPerElement() == layering.fullSize) return true;
    AddError(inp_Utils::MessageInKeyword(keyword,
                                         sizeMismatch(copy.type(), copy.numNodesPerElement(), "")));
    return false;
}

// -- *ELEMENT ---------------------------------------------------------------------------

// What one *ELEMENT keyword asks of the walk over its rows.
struct inp_NodeGenerationVisitor::ElementKeyword {
    inp_Keyword const& keyword;
    cow_String const& type;
    inp_ElementLayering layering;
    int least;
    int greatest;
    bool midsides;  // GK3D18 in the simulation workflow
    inp_MapInt2Element& elements;
    GenerationTarget target;
};

void inp_NodeGenerationVisitor::VisitElement(inp_Keyword& keyword) {
    if (!keyword.HasParameter("type")) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Element type is required.")));
        return;
    }
    cow_String type = keyword.GetParameterAsString("type", "");
    type.ToUpper();
    inp_ElementInfo const* const info = m_elementInfo.Find(type);
    if (info == nullptr) {
        // Superelements and user elements have open counts and no layers.
        if (!inp_ElementTypes::IsSuperelementName(type) &&
            !inp_ElementTypes::IsUserElementName(type))
            AddError(inp_Utils::MessageInKeyword(keyword,
                                                 atr("Element type %s is not supported.", type)));
        return;
    }
    if (type.Length() < 4) return;
    bool const midsides = isMidsideGasket(type) && IsSimWorkFlow();
    inp_ElementLayering const layering = inp_ClassifyElementLayering(
        type.View(), info->least, info->greatest, keyword.HasParameter("offset"));
    if (!layering.layered && !midsides) return;
    inp_MapInt2Element* const elements = scopeElements();
    inp_CoordMap* const nodes = scopeNodes();
    if (elements == nullptr || nodes == nullptr) return;

    int const greatest = keyword.HasParameter("solidelementnumbering")
                             ? inp_GreatestWithSolidNumbering(type.View(), info->greatest)
                             : info->greatest;
    ElementKeyword walk{keyword,  type,     layering,  info->least,
                        greatest, midsides, *elements, targetFor(*nodes)};
    inp_DataArray const& data = keyword.Data();
    for (int row = 0; row < data.Rows(); ++row) {
        // A row without a label begins no element (the element walk has
        // reported it) and is not followed into the next row.
        if (!data.HasValue(row, 0)) continue;
        if (!visitElementRow(walk, row)) return;
    }
}

// The element walk has made the records whole and, where it made layers,
// rewritten the data lines with every node. A row is therefore taken with
// its bottom nodes alone (as written), with bottom and top of a three-layer
// type, or whole (as rewritten); the labels of the upper layers are read
// from the record in every case. Any other count is a fault of the element
// walk. `row` is left on the last row the element takes.
bool inp_NodeGenerationVisitor::visitElementRow(ElementKeyword& walk, int& row) {
    inp_DataArray const& data = walk.keyword.Data();
    RowSpan span = elementRowSpan(data, row, walk.least, walk.greatest);
    inp_Element* const element = walk.elements.GetEltPtr(intAt(data, row, 0, 0));
    bool const ours = element != nullptr && element->type() == walk.type;
    inp_ElementLayering const& layering = walk.layering;
    bool const byOffset = layering.layered && layering.IsGasketOrCohesive();
    inp_ElementLayering const own =
        byOffset && ours ? layering.ForGivenNodes(element->numNodesDefined()) : layering;
    // A gasket or cohesive line of more than its bottom (and top) took no
    // more than those, and no continuation either, unless it is whole.
    if (byOffset && span.count != own.fullSize && data.Cols(row) - 1 > layering.GivenLimit())
        span = {layering.GivenLimit(), row};
    row = span.last;
    if (!ours) return true;
    if (walk.midsides && element->numNodesPerElement() == 18)
        completeGasketMidsides(walk.target, *element);
    if (!layering.layered) return true;
    // A gasket or cohesive element given whole had nothing made.
    if (byOffset && element->numNodesDefined() == 0) return true;
    if (!own.GeneratesFrom(span.count) && span.count != own.fullSize) {
        AddError(
            inp_Utils::MessageInKeyword(walk.keyword, sizeMismatch(walk.type, span.count, ".")));
        return false;
    }
    generateLayers(walk.target, own, *element);
    return true;
}

// -- *ELCOPY ----------------------------------------------------------------------------

void inp_NodeGenerationVisitor::VisitElcopy(inp_Keyword& keyword) {
    if (!m_generateForCopies) return;
    if (!keyword.HasParameter("elementshift") || !keyword.HasParameter("oldset") ||
        !keyword.HasParameter("shiftnodes")) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("ELEMENTSHIFT, OLDSET, and SHIFTNODES are required.")));
        return;
    }
    cow_String const name = keyword.GetParameterAsString("oldset", "");
    // Outside a part or instance the sets of the level itself count.
    cow_String setScope = scope();
    bool const exists = CheckExistenceOfSet(name, setScope, m_elsetMap, m_searchAssembly) ||
                        (setScope.IsEmpty() && !m_searchAssembly && m_elsetMap.HasSet(name));
    if (!exists) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Element set %s does not exist.", name)));
        return;
    }
    inpM_SetHandle const& set = setScope.IsEmpty() ? m_elsetMap.ConstGetSet(name)
                                                   : m_elsetMap.ConstGetNestedSet(setScope, name);
    generateForElcopy(keyword, setScope, set->ConstGetIdList());
}

// The masters are elements of the scope that holds the old set, the copies
// elements of the current scope, where the element walk put them.
void inp_NodeGenerationVisitor::generateForElcopy(inp_Keyword const& keyword,
                                                  cow_String const& setScope,
                                                  cow_List<int> const& ids) {
    inp_MapInt2Element const* const masters = elementsOf(setScope);
    inp_MapInt2Element const* const copies = elementsOf(scope());
    inp_CoordMap* const nodes = scopeNodes();
    if (masters == nullptr || copies == nullptr || nodes == nullptr) return;
    GenerationTarget target = targetFor(*nodes);
    std::int64_t const shift = keyword.GetParameterAsInt("elementshift", 0);
    for (int id : ids) {
        inp_Element const* const master = masters->GetEltPtr(id);
        if (master == nullptr) continue;
        inp_ElementLayering const layering = layeringOfCopy(*master);
        if (!layering.layered) continue;
        std::int64_t const label = id + shift;
        if (label < 1 || label > kMaxLabel) continue;  // no copy was made
        inp_Element const* const copy = copies->GetEltPtr(static_cast<int>(label));
        if (copy == nullptr) continue;
        if (!checkCopySize(keyword, layering, *copy)) return;
        generateLayers(target, layering, *copy);
    }
}

// -- *ELGEN -----------------------------------------------------------------------------

void inp_NodeGenerationVisitor::VisitElgen(inp_Keyword& keyword) {
    if (!m_generateForCopies) return;
    inp_MapInt2Element const* const elements = elementsOf(scope());
    inp_DataArray const& data = keyword.Data();
    for (int row = 0; row < data.Rows(); ++row)
        if (!generateForElgenRow(keyword, row, elements)) return;
}

bool inp_NodeGenerationVisitor::generateForElgenRow(inp_Keyword const& keyword, int row,
                                                    inp_MapInt2Element const* elements) {
    inp_DataArray const& data = keyword.Data();
    if (inp_ElgenRow::IsEmpty(data, row)) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("There is no data specified in at least one data line.")));
        return false;
    }
    inp_ElgenRow const generation = inp_ElgenRow::Read(data, row);
    if (generation.count[0] < 1) {
        AddError(inp_Utils::MessageInKeyword(keyword,
                                             atr("Number of elements to be generated is zero.")));
        return false;
    }
    // The element walk has reported labels out of range and made nothing.
    if (!generation.Fits()) return false;
    inp_Element const* const master = elements ? elements->GetEltPtr(generation.master) : nullptr;
    if (master == nullptr) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("Master element %s is not defined.", generation.master)));
        return false;
    }
    inp_ElementLayering const layering = layeringOfCopy(*master);
    if (!layering.layered) return true;
    inp_CoordMap* const nodes = scopeNodes();
    if (nodes == nullptr) return true;
    GenerationTarget target = targetFor(*nodes);
    for (int k = 0; k < generation.count[2]; ++k) {
        for (int j = 0; j < generation.count[1]; ++j) {
            for (int i = 0; i < generation.count[0]; ++i) {
                if (i == 0 && j == 0 && k == 0) continue;  // the master had its own walk
                inp_Element const* const copy = elements->GetEltPtr(generation.Label(i, j, k));
                if (copy == nullptr) continue;
                if (!checkCopySize(keyword, layering, *copy)) return false;
                generateLayers(target, layering, *copy);
            }
        }
    }
    return true;
}

// -- *ELGEN rows ------------------------------------------------------------------------

inp_ElgenRow inp_ElgenRow::Read(inp_DataArray const& data, int row) {
    inp_ElgenRow result;
    result.master = intAt(data, row, 0, 0);
    for (int d = 0; d < 3; ++d) {
        int const column = 1 + 3 * d;
        result.count[d] = intAt(data, row, column, result.count[d]);
        result.nodeStep[d] = intAt(data, row, column + 1, result.nodeStep[d]);
        result.elementStep[d] = intAt(data, row, column + 2, result.elementStep[d]);
    }
    result.count[1] = std::max(result.count[1], 1);
    result.count[2] = std::max(result.count[2], 1);
    return result;
}

bool inp_ElgenRow::IsEmpty(inp_DataArray const& data, int row) {
    for (int col = 0; col < data.Cols(row); ++col)
        if (data.HasValue(row, col)) return false;
    return true;
}

double inp_ElgenRow::LowestLabel() const {
    double label = master;
    for (int d = 0; d < 3; ++d) label += std::min(0.0, (count[d] - 1.0) * elementStep[d]);
    return label;
}

double inp_ElgenRow::HighestLabel() const {
    double label = master;
    for (int d = 0; d < 3; ++d) label += std::max(0.0, (count[d] - 1.0) * elementStep[d]);
    return label;
}

double inp_ElgenRow::Elements() const {
    return static_cast<double>(count[0]) * count[1] * count[2];
}

bool inp_ElgenRow::Fits() const {
    return count[0] >= 1 && LowestLabel() >= 1.0 && HighestLabel() <= kMaxLabel &&
           Elements() <= kMaxLabel;
}

int inp_ElgenRow::Label(int i, int j, int k) const {
    return static_cast<int>(std::int64_t{master} + std::int64_t{i} * elementStep[0] +
                            std::int64_t{j} * elementStep[1] + std::int64_t{k} * elementStep[2]);
}

int inp_ElgenRow::NodeShift(int i, int j, int k) const {
    return static_cast<int>(std::int64_t{i} * nodeStep[0] + std::int64_t{j} * nodeStep[1] +
                            std::int64_t{k} * nodeStep[2]);
}
