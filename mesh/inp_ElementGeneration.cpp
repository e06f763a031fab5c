// *ELGEN and *ELCOPY of inp_ElementVisitor: elements made from elements that
// exist, with their node labels shifted. The nodes of the copies are not made
// here; those that exist only implicitly (upper layers made by OFFSET) are
// made by inp_NodeGenerationVisitor, which reads *ELGEN rows the same way
// (inp_ElgenRow).
//
// A scope whose element table another holder shares gets a fresh table
// before the first copy is written (targetTable), so the records copied from
// are read first.

#include <memory>
#include <utility>
#include <vector>

#include "mesh/inp_ElementVisitor.h"
#include "mesh/inp_NodeGenerationVisitor.h"
#include "mesh/inp_Utils.h"
#include "support/inpM_Set.h"

namespace {

// A copy whose node labels move by `shift`, except its last `fixed` ones. An
// open position (0) and the empty field of a connector name no node and stay
// as they are. The copy takes the master's type and the counts that node
// generation reads (nodes defined, offset, solid numbering); a superelement's
// FILE stays with the master's record.
std::unique_ptr<inp_Element> shiftedCopy(inp_Element const& master, long long shift, int fixed) {
    auto copy = std::make_unique<inp_Element>(master.type(), master.numNodesPerElement(),
                                              master.nodes(), master.numNodesDefined(),
                                              master.nodeOffset(), master.solidElementNumbering());
    int* const nodes = copy->nodes();
    int const shifted = copy->numNodesPerElement() - fixed;
    for (int n = 0; n < shifted; ++n) {
        if (nodes[n] == inp_Element::kOpenPosition || nodes[n] == inp_Element::kEmptyConnectorField)
            continue;
        nodes[n] = static_cast<int>(nodes[n] + shift);  // wraps for a step out of range
    }
    return copy;
}

// The obsolete plane types keep their last two nodes in every copy.
bool keepsLastTwoNodes(cow_String const& type) {
    return type.StartsWith("CGPE");
}

}  // namespace

// -- shared ---------------------------------------------------------------------------

inp_MapInt2Element const* inp_ElementVisitor::existingTable(cow_String const& scope) const {
    if (scope.IsEmpty()) return m_elementMap.HasValue() ? &m_elementMap.ConstGet() : nullptr;
    if (!m_elementMap.IsMember(scope)) return nullptr;
    inpM_InstanceMap<inp_MapInt2Element> const& holder = m_elementMap.ConstGetMap(scope);
    return holder.HasValue() ? &holder.ConstGet() : nullptr;
}

int inp_ElementVisitor::fixedTrailingNodes(inp_Element const& master, bool allNodes) const {
    if (allNodes) return 0;
    cow_String const& type = master.type();
    int const count = master.numNodesPerElement();
    if (keepsLastTwoNodes(type)) return count < 2 ? count : 2;
    // A beam or pipe given with its additional node keeps it: that node
    // orients the cross-section, and the copies keep the master's orientation.
    if (type.StartsWith("B") || type.StartsWith("PIPE")) {
        inp_ElementInfo const* const info = m_types.FindType(type);
        if (info != nullptr && count > info->least) return 1;
    }
    return 0;
}

// Labels above nine digits have their own message. Below 1 nothing can be a
// label either, and a copy there is refused alike, with the corresponding
// words. Reckoned in double precision, so that no row can overflow it.
bool inp_ElementVisitor::checkGeneratedLabel(inp_Keyword const& keyword, double label) {
    if (label > kMaxElementLabel) {
        AddError(inp_Utils::MessageInKeyword(keyword,
                                             atr("Maximum element number allowed is 999999999.")));
        return false;
    }
    if (label < 1) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Minimum element number allowed is 1.")));
        return false;
    }
    return true;
}

// -- *ELGEN ---------------------------------------------------------------------------

// A row that fails ends the keyword; the elements of the rows before it stay,
// and so does their set.
void inp_ElementVisitor::VisitElgen(inp_Keyword& keyword) {
    inp_DataArray const& data = keyword.Data();
    bool const allNodes = keyword.HasParameter("allnodes");
    cow_String const elset = keyword.GetParameterAsString("elset", cow_String());
    cow_List<int> labels;
    cow_List<int>* const collected = elset.IsEmpty() ? nullptr : &labels;
    for (int row = 0; row < data.Rows(); ++row)
        if (!generateElgenRow(keyword, row, allNodes, collected)) break;
    if (!labels.IsEmpty()) addLabelSet(elset, labels);
}

bool inp_ElementVisitor::generateElgenRow(inp_Keyword const& keyword, int row, bool allNodes,
                                          cow_List<int>* labels) {
    inp_DataArray const& data = keyword.Data();
    if (inp_ElgenRow::IsEmpty(data, row)) return false;
    inp_ElgenRow const generation = inp_ElgenRow::Read(data, row);
    if (generation.count[0] < 1) return false;
    // More elements than there are labels could only overwrite each other.
    if (!checkGeneratedLabel(keyword, generation.HighestLabel()) ||
        !checkGeneratedLabel(keyword, generation.Elements()))
        return false;
    inp_MapInt2Element const* const table = existingTable(CurrentName());
    inp_Element const* const found = table ? table->GetEltPtr(generation.master) : nullptr;
    if (found == nullptr) {
        if (m_reportMissingMaster)
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("Master element %d is not defined.", generation.master)));
        return false;
    }
    if (!checkGeneratedLabel(keyword, generation.LowestLabel())) return false;
    inp_Element const master(*found);  // the table may be replaced below
    int const fixed = fixedTrailingNodes(master, allNodes);
    inp_MapInt2Element& target = targetTable();
    if (labels != nullptr) labels->Reserve(static_cast<int>(generation.Elements()));
    for (int k = 0; k < generation.count[2]; ++k) {
        for (int j = 0; j < generation.count[1]; ++j) {
            for (int i = 0; i < generation.count[0]; ++i) {
                int const label = generation.Label(i, j, k);
                if (labels != nullptr) labels->Append(label);
                if (i == 0 && j == 0 && k == 0) continue;  // the master itself
                target.InsertPtr(
                    label, shiftedCopy(master, generation.NodeShift(i, j, k), fixed).release());
            }
        }
    }
    return true;
}

// -- *ELCOPY --------------------------------------------------------------------------

void inp_ElementVisitor::VisitElcopy(inp_Keyword& keyword) {
    if (!keyword.HasParameter("elementshift") || !keyword.HasParameter("oldset") ||
        !keyword.HasParameter("shiftnodes")) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("ELEMENTSHIFT, OLDSET, and SHIFTNODES are required parameters.")));
        return;
    }
    cow_String const name = keyword.GetParameterAsString("oldset", cow_String());
    // Outside a part or instance the sets of the level itself count.
    cow_String scope = CurrentName();
    bool const exists = CheckExistenceOfOldSet(name, scope) ||
                        (scope.IsEmpty() && !m_searchAssembly && m_setMap.HasSet(name));
    if (!exists) {
        AddError(inp_Utils::MessageInKeyword(keyword, atr("Element set %s does not exist.", name)));
        return;
    }
    cow_List<int> const ids =
        (scope.IsEmpty() ? m_setMap.ConstGetSet(name) : m_setMap.ConstGetNestedSet(scope, name))
            ->ConstGetIdList();
    cow_List<int> const labels =
        m_reportMissingMaster ? copyElements(keyword, scope, ids) : copyLabels(keyword, ids);
    cow_String const newSet = keyword.GetParameterAsString("newset", cow_String());
    if (!newSet.IsEmpty() && !labels.IsEmpty()) addLabelSet(newSet, labels);
}

cow_List<int> inp_ElementVisitor::copyLabels(inp_Keyword const& keyword, cow_List<int> const& ids) {
    long long const shift = keyword.GetParameterAsInt("elementshift", 0);
    inp_MapInt2Element& target = targetTable();
    cow_List<int> labels;
    labels.Reserve(ids.Length());
    for (int id : ids) {
        long long const label = id + shift;
        if (!checkGeneratedLabel(keyword, static_cast<double>(label))) break;
        target.InsertPtr(static_cast<int>(label), new inp_Element());
        labels.Append(static_cast<int>(label));
    }
    return labels;
}

// Every copy is made before the first is stored: the scope may get a fresh
// table, and the old set may lie in that very scope. A copy that cannot be
// made ends the keyword; the copies before it are stored.
cow_List<int> inp_ElementVisitor::copyElements(inp_Keyword const& keyword,
                                               cow_String const& setScope,
                                               cow_List<int> const& ids) {
    long long const shift = keyword.GetParameterAsInt("elementshift", 0);
    long long const nodeShift = keyword.GetParameterAsInt("shiftnodes", 0);
    bool const reflect = keyword.HasParameter("reflect");
    inp_MapInt2Element const* const masters = existingTable(setScope);
    std::vector<std::pair<int, std::unique_ptr<inp_Element>>> copies;
    copies.reserve(static_cast<size_t>(ids.Length()));
    for (int id : ids) {
        inp_Element const* const master = masters ? masters->GetEltPtr(id) : nullptr;
        if (master == nullptr) continue;
        long long const label = id + shift;
        if (!checkGeneratedLabel(keyword, static_cast<double>(label))) break;
        cow_String const& type = master->type();
        if (reflect && !m_types.HasReflection(type)) {
            AddError(inp_Utils::MessageInKeyword(
                keyword, atr("The element type \"%s\" is either not a continuum element or not "
                             "yet implemented for the REFLECT option in ELCOPY.",
                             type)));
            break;
        }
        int const fixed = keepsLastTwoNodes(type) ? fixedTrailingNodes(*master, false) : 0;
        std::unique_ptr<inp_Element> copy = shiftedCopy(*master, nodeShift, fixed);
        if (reflect)
            inp_ElementTypes::RenumberTopologyDueToReflection(
                m_types.ReflectionTable().ConstGet(type), copy->nodes(),
                copy->numNodesPerElement());
        copies.emplace_back(static_cast<int>(label), std::move(copy));
    }
    inp_MapInt2Element& target = targetTable();
    cow_List<int> labels;
    labels.Reserve(static_cast<int>(copies.size()));
    for (auto& [label, copy] : copies) {
        target.InsertPtr(label, copy.release());
        labels.Append(label);
    }
    return labels;
}
