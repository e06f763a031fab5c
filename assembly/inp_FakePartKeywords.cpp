// The new keyword list of a flat deck made parts: which elements go to which
// generated part, and the list itself: parts, the model level, the assembly
// with one instance per part, the steps. The mesh stays in the maps; the
// new *ELEMENT keywords are headers that tell the solver which element types
// exist, with data only for the few types it reads from the keyword.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <unordered_set>

#include "assembly/inp_FakePartVisitor.h"
#include "assembly/inp_FakePartVisitors.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"
#include "support/cow_Map.h"
#include "support/gsl_Vector.h"

namespace {

bool contains(cow_String const& text, char const* piece) {
    return text.View().find(piece) != std::string_view::npos;
}

inp_Keyword namedKeyword(char const* tableName, cow_String const& name) {
    inp_Keyword keyword{cow_String(tableName)};
    keyword.SetParameter("name", inp_Item(name));
    return keyword;
}

// The shortest text that reads back as the same double.
std::string numberText(double value) {
    char buffer[32];
    for (int digits = 15; digits <= 17; ++digits) {
        std::snprintf(buffer, sizeof buffer, "%.*g", digits, value);
        if (std::strtod(buffer, nullptr) == value) break;
    }
    return buffer;
}

}  // namespace

std::string inp_FakePartVisitor::NodeLine(int id, inp_Coord const& coord) {
    char buffer[128];
    std::snprintf(buffer, sizeof buffer, "%i, %lg, %lg, %lg", id, coord.x, coord.y, coord.z);
    return buffer;
}

void inp_FakePartVisitor::AppendLine(inp_Keyword& keyword, std::string const& line) {
    keyword.Data().Append(line.c_str());
}

bool inp_FakePartVisitor::IsSpringOrDashpotType(cow_String const& type) {
    return contains(type, "SPRING") || contains(type, "DASHPOT");
}

bool inp_FakePartVisitor::IsRigidElementType(cow_String const& type) {
    return contains(type, "R3D") || contains(type, "R2D") || contains(type, "RAX") ||
           contains(type, "RB");
}

inp_Coord inp_FakePartVisitor::FakeCoordinate(int id) const {
    return m_fakeCoords.IsMember(id) ? m_fakeCoords.ConstGet(id) : inp_Coord();
}

cow_List<inp_Keyword>& inp_FakePartVisitor::PartKeywordList(cow_String const& part) {
    if (!m_partKeywordLists.IsMember(part)) {
        cow_List<inp_Keyword> list;
        list.Append(namedKeyword("part", part));
        m_partKeywordLists.Insert(part, list);
    }
    return m_partKeywordLists.Get(part);
}

void inp_FakePartVisitor::CreatePartKeywordsForDeformablePart() {
    cow_String const part(kPartName);
    if (m_partKeywordLists.IsMember(part)) return;
    PartKeywordList(part);
    if (!m_partCoords.IsMember(part)) m_partCoords.Insert(part, inp_CoordMap());
    if (!m_partElements.IsMember(part)) m_partElements.Insert(part, inp_MapInt2Element());
}

// -- the full form ------------------------------------------------------------------------

cow_List<inp_Keyword> inp_FakePartVisitor::Keywords() {
    RemoveRedundantRefNodes();
    CreatePartKeywordsForDeformablePart();
    RemoveDuplicateRefNodes();

    std::vector<int> deformable;
    std::vector<int> other;
    cow_String const part1(kPartName);
    for (inp_MapInt2ElementSIT it(m_fakeElements); it.NotDone(); it.Next()) {
        inp_Element const& element = it.CurrentValue();
        if (contains(element.type(), "EC3D")) continue;
        if (!element.file().IsEmpty() && AddSubstructure(it.CurrentKey(), element)) continue;
        int const* nodes = element.nodes();
        int const count = element.numNodesPerElement();
        cow_List<cow_String> const parts = PartsSpannedByNodeIds(nodes, count);
        bool const ownPart = parts.Length() == 1 && parts.ConstGet(0) != part1;
        if (ownPart || IsSpringOrDashpotType(element.type()) ||
            IsRigidElementType(element.type())) {
            other.push_back(it.CurrentKey());
            continue;
        }
        deformable.push_back(it.CurrentKey());
        if (IsReferenceNode(nodes, count))
            for (int i = 0; i < count; ++i) MoveReferenceNodes(nodes[i], part1);
    }
    CreateSubstructurePartEntries();
    AssignElementsAndKeywords(deformable, other);

    inp_CoordMap& part1Coords = m_partCoords.Get(part1);
    inp_MapInt2Coord const nodes = m_fakeCoords.ConstGet();
    for (inp_MapInt2CoordSIT it(nodes); it.NotDone(); it.Next()) {
        int const id = it.CurrentKey();
        if (PartsSpannedByRefNode(id).IsEmpty()) part1Coords.Insert(id, m_fakeCoords.ConstGet(id));
    }
    AssignDistributions();
    cow_List<inp_Keyword> result;
    KeywordsEnding(result);
    return result;
}

namespace {

// Part name to element ids, in the order the parts were met.
struct Assignment {
    std::vector<std::pair<cow_String, std::vector<int>>> parts;

    bool Has(cow_String const& part) const {
        return std::any_of(parts.begin(), parts.end(),
                           [&](auto const& entry) { return entry.first == part; });
    }
    std::vector<int>& Of(cow_String const& part) {
        for (auto& entry : parts)
            if (entry.first == part) return entry.second;
        parts.emplace_back(part, std::vector<int>());
        return parts.back().second;
    }
};

}  // namespace

// Rigid element sets and Eulerian sets first, then the elements that are not
// plainly deformable; springs and dashpots over two parts stay at the
// assembly. A rigid element goes where its nodes are, even when a rigid
// element set took it already: it then counts in the part that takes it first.
void inp_FakePartVisitor::AssignElementsAndKeywords(std::vector<int> const& deformable,
                                                    std::vector<int> const& other) {
    Assignment assignment;
    assignment.Of(cow_String(kPartName)) = deformable;
    std::unordered_set<int> assigned;
    cow_String const fake(inp_Types::fakeName());
    auto idsOfSet = [&](cow_String const& set) {
        return m_elementSets.HasNestedSet(fake, set)
                   ? m_elementSets.ConstGetNestedSet(fake, set)->ConstGetIdList()
                   : cow_List<int>();
    };
    for (cow_String const& set : m_rigidElementSets) {
        if (!m_elementSets.HasNestedSet(fake, set) || assignment.Has(set)) continue;
        std::vector<int>& ids = assignment.Of(set);
        for (int const id : idsOfSet(set)) {
            ids.push_back(id);
            assigned.insert(id);
        }
    }
    cow_List<cow_String> eulerianParts;
    m_eulerianParts.ForEachSorted(
        [&](cow_String const&, cow_String const& part) { eulerianParts.AppendUnlessMember(part); });
    for (cow_String const& part : eulerianParts) {
        if (assignment.Has(part)) continue;
        std::vector<int>& ids = assignment.Of(part);
        m_eulerianParts.ForEachSorted([&](cow_String const& set, cow_String const& owner) {
            if (owner != part) return;
            for (int const id : idsOfSet(set)) {
                ids.push_back(id);
                assigned.insert(id);
            }
        });
    }
    for (int const id : other) {
        inp_Element const& element = m_fakeElements.ConstGet(id);
        cow_List<cow_String> const parts =
            PartsSpannedByNodeIds(element.nodes(), element.numNodesPerElement());
        if (parts.Length() > 1 && IsSpringOrDashpotType(element.type())) continue;
        bool const rigid = IsRigidElementType(element.type());
        if (!rigid && assigned.count(id) != 0) continue;
        cow_String const target = parts.Length() == 1 ? parts.ConstGet(0) : cow_String(kPartName);
        assignment.Of(target).push_back(id);
    }
    for (inp_Keyword const& keyword : m_deferredKeywords) {
        if (!keyword.Is(inp_kw_Spring) && !keyword.Is(inp_kw_Dashpot)) {
            ReportMisplaced(keyword);
            continue;
        }
        cow_String const set = keyword.GetParameterAsString("elset", cow_String());
        cow_List<cow_String> parts;
        for (int const id : idsOfSet(set)) {
            if (!m_fakeElements.IsMember(id)) continue;
            inp_Element const& element = m_fakeElements.ConstGet(id);
            for (cow_String const& part :
                 PartsSpannedByNodeIds(element.nodes(), element.numNodesPerElement()))
                parts.AppendUnlessMember(part);
        }
        if (!set.IsEmpty() && parts.Length() == 1) {
            PartKeywordList(parts.ConstGet(0)).Append(keyword);
        } else {
            m_assemblyKeywords.Append(keyword);
        }
    }
    for (auto const& [part, ids] : assignment.parts) AddElementsAndTheirNodes(part, ids);
}

// Moves the elements out of the flat table into the part's, and gives the
// part the coordinates of their nodes. What stays in the flat table is the
// assembly level.
bool inp_FakePartVisitor::AddElementsAndTheirNodes(cow_String const& part,
                                                   std::vector<int> const& ids) {
    if (!m_partElements.IsMember(part)) m_partElements.Insert(part, inp_MapInt2Element());
    if (!m_partCoords.IsMember(part)) m_partCoords.Insert(part, inp_CoordMap());
    inp_MapInt2Element& elements = m_partElements.Get(part);
    inp_CoordMap& coords = m_partCoords.Get(part);
    for (int const id : ids) {
        inp_Element* element = m_fakeElements.TakePtr(id);
        if (element == nullptr) continue;
        for (int i = 0; i < element->numNodesPerElement(); ++i) {
            int const node = element->nodes()[i];
            if (node == kBlankNode || coords.IsMember(node)) continue;
            coords.Insert(node, FakeCoordinate(node));
        }
        elements.InsertPtr(id, element);
    }
    return true;
}

bool inp_FakePartVisitor::AddSubstructure(int id, inp_Element const& element) {
    m_substructureElements.emplace_back(id, element);
    return true;
}

// Each substructure element is a part of its own, named by its type; a
// second of one type is "1-" and the type, a third "2-", and so on.
void inp_FakePartVisitor::CreateSubstructurePartEntries() {
    std::vector<int> usedNodes;
    for (auto const& [id, element] : m_substructureElements) {
        cow_String name = element.type();
        for (int k = 1; m_partKeywordLists.IsMember(name); ++k) {
            std::string const numbered =
                std::to_string(k) + "-" + std::string(element.type().View());
            name = cow_String(std::string_view(numbered));
        }
        PartKeywordList(name);
        inp_CoordMap coords;
        for (int i = 0; i < element.numNodesPerElement(); ++i) {
            int const node = element.nodes()[i];
            if (node == kBlankNode) continue;
            coords.Insert(node, FakeCoordinate(node));
            usedNodes.push_back(node);
        }
        m_partCoords.Insert(name, coords);
        inp_MapInt2Element elements;
        elements.Insert(id, element);
        m_partElements.Insert(name, elements);
        delete m_fakeElements.TakePtr(id);
    }
    for (int const node : usedNodes) m_fakeCoords.Remove(node);
}

// Distributions go to each level whose keywords use them; one that no
// keyword uses stays with the part, where its data belong.
void inp_FakePartVisitor::AssignDistributions() {
    if (m_distributions.IsEmpty()) return;
    cow_Map<cow_String, int> known;
    for (inp_Keyword const& distribution : m_distributions)
        known.Insert(distribution.GetParameterAsString("name", cow_String()), 1);
    cow_Map<cow_String, int> placed;
    auto addUsed = [&](cow_List<inp_Keyword>& list) {
        cow_Map<cow_String, int> used;
        inp_FakeDistributionVisitor visitor(known, used);
        cow_List<inp_Keyword> walked = list;
        visitor.VisitList(walked);
        for (inp_Keyword const& distribution : m_distributions) {
            cow_String const name = distribution.GetParameterAsString("name", cow_String());
            if (!used.IsMember(name) || placed.IsMember(name)) continue;
            list.Append(distribution);
            placed.Insert(name, 1);
        }
    };
    addUsed(m_partKeywords);
    addUsed(m_assemblyKeywords);
    addUsed(m_modelKeywords);
    for (inp_Keyword const& distribution : m_distributions)
        if (!placed.IsMember(distribution.GetParameterAsString("name", cow_String())))
            m_partKeywords.Append(distribution);
}

// -- the list --------------------------------------------------------------------------------

void inp_FakePartVisitor::KeywordsEnding(cow_List<inp_Keyword>& result) {
    AppendNodeKeywords();
    cow_List<inp_Keyword>& part1 = PartKeywordList(cow_String(kPartName));
    for (inp_Keyword const& keyword : m_partKeywords) part1.Append(keyword);

    cow_List<cow_String> parts;
    m_partKeywordLists.ForEachSorted(
        [&](cow_String const& part, cow_List<inp_Keyword> const& keywords) {
            parts.Append(part);
            for (inp_Keyword const& keyword : keywords) result.Append(keyword);
            result.Append(inp_Keyword(cow_String("endpart")));
        });
    for (inp_Keyword const& keyword : m_modelKeywords) result.Append(keyword);
    InsertAssemblyElementKeywords();
    result.Append(namedKeyword("assembly", cow_String(kAssemblyName)));
    for (cow_String const& part : parts) {
        inp_Keyword instance = namedKeyword("instance", InstanceOf(part));
        instance.SetParameter("part", inp_Item(part));
        if (gsl_Matrix const* transform = m_instanceTransforms.Find(part))
            AppendInstancePositioningData(instance, *transform);
        result.Append(instance);
        result.Append(inp_Keyword(cow_String("endinstance")));
        m_instanceParts.Insert(InstanceOf(part), part);
    }
    for (inp_Keyword const& keyword : m_assemblyKeywords) result.Append(keyword);
    result.Append(inp_Keyword(cow_String("endassembly")));
    for (cow_String const& step : m_stepNames)
        for (inp_Keyword const& keyword : m_stepKeywordLists.ConstGet(step)) result.Append(keyword);
    AppendElementKeywords(result);
}

// One *ELEMENT per element left at the assembly level, its nodes named by
// the instance of the part each belongs to. (The simple form leaves no
// element there: every node is then "PART-1"'s anyway.)
void inp_FakePartVisitor::InsertAssemblyElementKeywords() {
    for (inp_MapInt2ElementSIT it(m_fakeElements); it.NotDone(); it.Next()) {
        inp_Element const& element = it.CurrentValue();
        inp_Keyword keyword{cow_String("element")};
        keyword.SetParameter("type", inp_Item(element.type()));
        std::string line = std::to_string(it.CurrentKey());
        for (int i = 0; i < element.numNodesPerElement(); ++i) {
            int const node = element.nodes()[i];
            line += ", ";
            if (node == kBlankNode) continue;
            cow_List<cow_String> const parts = PartsSpannedByNodeIds(&node, 1);
            line += parts.ConstGet(0).View();
            line += "-1.";
            line += std::to_string(node);
        }
        AppendLine(keyword, line);
        m_assemblyKeywords.Append(keyword);
    }
    m_fakeElements.Clear();
}

// The reference nodes of each part as *NODE keywords of that part.
void inp_FakePartVisitor::AppendNodeKeywords() {
    cow_Map<cow_String, cow_List<int>> const referenceNodes = m_referenceNodes;
    referenceNodes.ForEachSorted([&](cow_String const& part, cow_List<int> const& ids) {
        if (!m_partKeywordLists.IsMember(part)) CreatePartEntry(part);
        for (int const id : ids) {
            if (!m_partCoords.IsMember(part) || !m_partCoords.ConstGet(part).IsMember(id)) {
                AddError(
                    atr("The coordinates of the reference node \"%1$s\" which is assigned "
                        "to part: \"%2$s\" cannot be found.",
                        id, part));
                continue;
            }
            inp_Keyword node{cow_String("node")};
            AppendLine(node, NodeLine(id, m_partCoords.ConstGet(part).ConstGet(id)));
            PartKeywordList(part).Append(node);
        }
    });
}

namespace {

bool writesDataOf(cow_String const& type) {
    return contains(type, "SPRING") || contains(type, "DASHPOT") || contains(type, "MASS") ||
           contains(type, "ROTARYI") || contains(type, "HEATCAP");
}

// The element types of a table, in the order first met.
std::vector<cow_String> typesOf(inp_MapInt2Element const& elements) {
    std::vector<cow_String> types;
    char const* last = nullptr;
    for (inp_MapInt2ElementSIT it(elements); it.NotDone(); it.Next()) {
        cow_String const& type = it.CurrentValue().type();
        if (type.CStr() == last) continue;  // records of one keyword share their type text
        last = type.CStr();
        if (std::find(types.begin(), types.end(), type) == types.end()) types.push_back(type);
    }
    return types;
}

}  // namespace

cow_List<inp_Keyword> inp_FakePartVisitor::ElementKeywordsOfPart(cow_String const& part) const {
    cow_List<inp_Keyword> keywords;
    if (!m_partElements.IsMember(part) || !m_partElements.ConstGetMap(part).HasValue())
        return keywords;
    inp_MapInt2Element const& elements = m_partElements.ConstGet(part);
    for (cow_String const& type : typesOf(elements)) {
        inp_Keyword header{cow_String("element")};
        header.SetParameter("type", inp_Item(type));
        bool const withData = writesDataOf(type);
        bool const superelement = type.View().starts_with("Z");
        if (!withData && !superelement) {  // the header alone: the maps hold the elements
            keywords.Append(header);
            continue;
        }
        std::vector<int> nodes;
        for (inp_MapInt2ElementSIT it(elements); it.NotDone(); it.Next()) {
            inp_Element const& element = it.CurrentValue();
            if (element.type() != type) continue;
            if (superelement && !header.HasParameter("file"))
                header.SetParameter("file", inp_Item(element.file()));
            if (!withData) continue;
            std::string line = std::to_string(it.CurrentKey());
            for (int i = 0; i < element.numNodesPerElement(); ++i) {
                line += ", " + std::to_string(element.nodes()[i]);
                nodes.push_back(element.nodes()[i]);
            }
            AppendLine(header, line);
        }
        keywords.Append(header);
        if (!withData) continue;
        std::sort(nodes.begin(), nodes.end());
        nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
        inp_Keyword nodeKeyword{cow_String("node")};
        inp_CoordMap const* coords =
            m_partCoords.IsMember(part) ? &m_partCoords.ConstGet(part) : nullptr;
        for (int const node : nodes)
            if (coords != nullptr && coords->IsMember(node))
                AppendLine(nodeKeyword, NodeLine(node, coords->ConstGet(node)));
        keywords.Append(nodeKeyword);
    }
    return keywords;
}

void inp_FakePartVisitor::InsertBeforeEndOfPart(cow_List<inp_Keyword>& result,
                                                cow_String const& part,
                                                cow_List<inp_Keyword> const& keywords) {
    bool inPart = false;
    for (int i = 0; i < result.Length(); ++i) {
        inp_Keyword const& keyword = result.ConstGet(i);
        if (keyword.Is(inp_kw_Part))
            inPart = keyword.GetParameterAsString("name", cow_String()) == part;
        if (inPart && keyword.Is(inp_kw_EndPart)) {
            result.InsertList(i, keywords);
            return;
        }
    }
}

void inp_FakePartVisitor::AppendElementKeywords(cow_List<inp_Keyword>& result) {
    // The elements left at the assembly level have their keywords with data
    // already (InsertAssemblyElementKeywords), so only the parts get headers.
    m_partKeywordLists.ForEachSorted([&](cow_String const& part, cow_List<inp_Keyword> const&) {
        InsertBeforeEndOfPart(result, part, ElementKeywordsOfPart(part));
    });
}

// The first line is the translation; a second, the rotation about an axis
// through the origin, by points and an angle in degrees.
void inp_FakePartVisitor::AppendInstancePositioningData(inp_Keyword& instance,
                                                        gsl_Matrix const& transform) const {
    gsl_Vector translation;
    gsl_Vector axis;
    double const degrees = transform.DecomposeAsTranslationThenRotation(translation, axis) * 180.0 /
                           3.14159265358979323846;
    AppendLine(instance, numberText(translation.X()) + ", " + numberText(translation.Y()) + ", " +
                             numberText(translation.Z()));
    if (std::fabs(degrees) <= 1e-9) return;
    AppendLine(instance, "0, 0, 0, " + numberText(axis.X()) + ", " + numberText(axis.Y()) + ", " +
                             numberText(axis.Z()) + ", " + numberText(degrees));
}
