// The two variants of the fake part: the simple one, in which the whole
// flat mesh is "PART-1" (the solver's road; its maps are the flat maps,
// shared, not copied), and the full one, whose list carries the mesh as
// keyword data.

#include <string>

#include "assembly/inp_FakePartVisitor.h"
#include "deck/inp_Item.h"
#include "mesh/inp_Utils.h"

// -- simple ----------------------------------------------------------------------------------

void inp_SimpleFakePartVisitor::VisitEulerianSection(inp_Keyword& keyword) {
    m_partKeywords.Append(keyword);
}

void inp_SimpleFakePartVisitor::VisitRigidBody(inp_Keyword& keyword) {
    CreateRigidBodyPartEntry(cow_String(kPartName));
    m_assemblyKeywords.Append(keyword);
}

// The surface keeps its data as written: no local system is taken out.
void inp_SimpleFakePartVisitor::VisitRigidSurface(inp_Keyword& keyword) {
    SurfaceNames names = GatherSurfacePartNames(keyword);
    if (!names.unnamed && !names.surface.IsEmpty()) names.part = names.surface;
    CreatePartEntry(names.part);
    PartKeywordList(names.part).Append(keyword);
    AddAnalyticalSurfaceNameToPartMap(names);
}

void inp_SimpleFakePartVisitor::VisitSurface(inp_Keyword& keyword) {
    inp_FakePartVisitor::VisitSurface(keyword);
    if (keyword.GetParameterAsString("type", cow_String()).View() == "NODE")
        m_nodeSurfaces.Append(keyword);
}

// The whole flat table is the part's, so no ids are gathered. Distributions
// are placed as in the full form; left out, they would be lost.
cow_List<inp_Keyword> inp_SimpleFakePartVisitor::Keywords() {
    CreatePartKeywordsForDeformablePart();
    AssignElementsAndKeywords({}, {});
    AssignDistributions();
    cow_List<inp_Keyword> result;
    KeywordsEnding(result);
    return result;
}

void inp_SimpleFakePartVisitor::AssignElementsAndKeywords(std::vector<int> const& deformable,
                                                          std::vector<int> const&) {
    for (inp_Keyword const& keyword : m_deferredKeywords) {
        if (!keyword.Is(inp_kw_Spring) && !keyword.Is(inp_kw_Dashpot)) {
            ReportMisplaced(keyword);
        } else if (keyword.HasParameter("elset")) {
            m_partKeywords.Append(keyword);
        } else {
            m_assemblyKeywords.Append(keyword);
        }
    }
    AddElementsAndTheirNodes(cow_String(kPartName), deformable);
}

// "PART-1" takes the flat maps whole, shared; a node an element names that
// has no coordinates gets the default record.
bool inp_SimpleFakePartVisitor::AddElementsAndTheirNodes(cow_String const& part,
                                                         std::vector<int> const&) {
    for (inp_MapInt2ElementSIT it(m_fakeElements); !m_nodesComplete && it.NotDone(); it.Next()) {
        inp_Element const& element = it.CurrentValue();
        int const* nodes = element.nodes();
        for (int i = 0; i < element.numNodesPerElement(); ++i)
            if (nodes[i] != kBlankNode && nodes[i] != 0 && !m_fakeCoords.IsMember(nodes[i]))
                m_fakeCoords.Insert(nodes[i], inp_Coord());
    }
    m_partCoords.Insert(part, m_fakeCoords);
    m_partElements.Insert(part, m_fakeElements);
    m_fakeElements = inp_MapInt2Element();  // spent: nothing is left at the assembly
    return true;
}

cow_List<inp_Keyword> inp_SimpleFakePartVisitor::DiscreteSurfaceKeywords() const {
    cow_List<inp_Keyword> keywords;
    inp_Keyword assembly{cow_String("assembly")};
    assembly.SetParameter("name", inp_Item(kAssemblyName));
    keywords.Append(assembly);
    for (inp_Keyword const& keyword : m_nodeSurfaces) keywords.Append(keyword);
    keywords.Append(inp_Keyword(cow_String("endassembly")));
    return keywords;
}

void inp_SimpleFakePartVisitor::GatherPartMapOnly() {
    cow_String const instance = InstanceOf(cow_String(kPartName));
    AddElementsAndTheirNodes(instance, {});
    m_instanceParts.Insert(instance, cow_String(kPartName));
}

// -- full ------------------------------------------------------------------------------------

// Every node of each part, as *NODE data of that part.
void inp_FullFakePartVisitor::AppendNodeKeywords() {
    for (cow_String const& part : m_partCoords.Instances()) {
        inp_CoordMap const& coords = m_partCoords.ConstGet(part);
        if (coords.Count() == 0) continue;
        inp_Keyword node{cow_String("node")};
        inp_MapInt2Coord const nodes = coords.ConstGet();
        for (inp_MapInt2CoordSIT it(nodes); it.NotDone(); it.Next())
            AppendLine(node, NodeLine(it.CurrentKey(), coords.ConstGet(it.CurrentKey())));
        PartKeywordList(part).Append(node);
    }
}

// Every element of each part, one *ELEMENT per type, before its *END PART.
void inp_FullFakePartVisitor::AppendElementKeywords(cow_List<inp_Keyword>& result) {
    for (cow_String const& part : m_partElements.Instances()) {
        if (!m_partElements.ConstGetMap(part).HasValue()) continue;
        inp_MapInt2Element const& elements = m_partElements.ConstGet(part);
        cow_List<inp_Keyword> keywords;
        cow_List<cow_String> types;
        for (inp_MapInt2ElementSIT it(elements); it.NotDone(); it.Next())
            types.AppendUnlessMember(it.CurrentValue().type());
        for (cow_String const& type : types) {
            inp_Keyword header{cow_String("element")};
            header.SetParameter("type", inp_Item(type));
            for (inp_MapInt2ElementSIT it(elements); it.NotDone(); it.Next()) {
                inp_Element const& element = it.CurrentValue();
                if (element.type() != type) continue;
                if (type.View().starts_with("Z") && !header.HasParameter("file"))
                    header.SetParameter("file", inp_Item(element.file()));
                std::string line = std::to_string(it.CurrentKey());
                for (int i = 0; i < element.numNodesPerElement(); ++i) {
                    line += ", ";
                    if (element.nodes()[i] != kBlankNode)
                        line += std::to_string(element.nodes()[i]);
                }
                AppendLine(header, line);
            }
            keywords.Append(header);
        }
        InsertBeforeEndOfPart(result, part, keywords);
    }
}
