#include "assembly/inp_AssyLevelElemVisitor.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "deck/inp_PatternMatchers.h"
#include "deck/inp_RawDataArrayImpl.h"
#include "mesh/inp_Utils.h"
#include "support/ZELBasException.h"

namespace {

// The element types that may stand at the assembly level by their full name;
// any type holding one of kAssemblyTypeParts is allowed as well.
constexpr std::string_view kAssemblyTypes[] = {
    "MASS",     "ROTARYI", "SPRINGA", "SPRING1", "SPRING2", "DASHPOTA", "DASHPOT1",
    "DASHPOT2", "HEATCAP", "CONN2D2", "CONN3D2", "DCOUP2D", "DCOUP3D",
};
constexpr std::string_view kAssemblyTypeParts[] = {"GAP", "SPRING", "DASHPOT"};

bool isAllowedAtAssembly(std::string_view type) {
    for (std::string_view const name : kAssemblyTypes)
        if (type == name) return true;
    for (std::string_view const part : kAssemblyTypeParts)
        if (type.find(part) != std::string_view::npos) return true;
    return false;
}

bool isFoldedAway(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

char upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether the raw text, blanks dropped and upper-cased as items are folded,
// is `folded`.
bool foldsTo(std::string_view raw, cow_String const& folded) {
    std::string_view const target = folded.View();
    size_t at = 0;
    for (char const c : raw) {
        if (isFoldedAway(c)) continue;
        if (at == target.size() || upper(c) != target[at]) return false;
        ++at;
    }
    return at == target.size();
}

// The label of a raw local id of at most nine digits, blanks around it
// allowed; -1 for anything else.
int rawLabel(std::string_view text) {
    int label = 0;
    int digits = 0;
    for (char const c : text) {
        if (isFoldedAway(c)) continue;
        if (c < '0' || c > '9' || ++digits > 9) return -1;
        label = label * 10 + (c - '0');
    }
    return digits > 0 ? label : -1;
}

// strtol clamped to int: a text of more digits than an int holds can name no
// node, and INT_MAX names none either.
int toInt(cow_String const& text) {
    long const value = std::strtol(text.CStr(), nullptr, 10);
    return static_cast<int>(std::clamp<long>(value, INT_MIN, INT_MAX));
}

}  // namespace

// One *ELEMENT keyword of the assembly level: one element per data line. The
// connectivity of the line being read lives in a buffer reused for every
// line and is copied once into the record that the table takes over.
class inp_AssyLevelElemVisitor::ElementLineReader {
  public:
    ElementLineReader(inp_AssyLevelElemVisitor& visitor, inp_Keyword& keyword)
        : m_visitor(visitor),
          m_keyword(keyword),
          m_data(keyword.Data()),
          m_raw(dynamic_cast<inp_RawDataArrayImpl const*>(keyword.Data().Impl())) {}

    void Run() {
        if (!resolveType()) return;
        m_table = &m_visitor.assemblyTable();
        m_labels.Reserve(m_data.Rows());
        for (int row = 0; row < m_data.Rows(); ++row)
            if (!readLine(row)) break;
        finish();
    }

  private:
    bool resolveType() {
        inp_Item const* const item = m_keyword.Parameters().Find("type");
        if (!item || item->Type() != inp_Types::inp_STRING) {
            m_visitor.error(atr("Element type is required"));
            return false;
        }
        m_type = item->AsString();
        if (!isAllowedAtAssembly(m_type.View())) {
            m_visitor.error(
                atr("Only connector, spring, dashpot, mass, rotary inertia, and capacitance "
                    "elements can be created at the assembly level."));
            return false;
        }
        // A type the table does not know (a gap or spring variant read only
        // by the solver) has open node counts.
        if (inp_ElementInfo const* const info = m_visitor.m_types.FindType(m_type)) {
            m_least = info->least;
            m_greatest = info->greatest;
        }
        m_connector = m_type.Find("CONN") >= 0;
        return true;
    }

    // Columns of `row` without its blank trailing items.
    int usedColumns(int row) const {
        int columns = m_data.Cols(row);
        while (columns > 0 && m_data.Type(row, columns - 1) == inp_Types::inp_NONE) --columns;
        return columns;
    }

    // False when the keyword ends at this line. A line with nothing on it is
    // passed over, as blank lines are everywhere else in a deck. A label must
    // be a positive integer: a negative one is taken as not defined.
    bool readLine(int row) {
        int const columns = usedColumns(row);
        if (columns == 0) return true;
        bool const numbered = m_data.Type(row, 0) == inp_Types::inp_INTEGER;
        int const label = numbered ? m_data.AsInt(row, 0) : 0;
        if (label <= 0) {
            m_visitor.error(
                atr("element number is not defined or is zero for element of type %s", m_type));
            return false;
        }
        if (columns == 1) {
            m_visitor.error(
                atr("*Element: topology information is missing for element %1$s of type \"%2$s\"",
                    label, m_type));
            return true;
        }
        try {
            translateConnectivity(row, columns, label);
        } catch (nex_PrimException<atr_String, 1> const& failure) {
            m_visitor.error(atr(
                "There are errors in the connectivity list for element %1$s of type \"%2$s\". %3$s",
                label, m_type, failure.AsString()));
            return true;
        }
        store(label);
        return true;
    }

    // Every item keeps its place; one that cannot be resolved is reported
    // and holds 0 there, like a connector's ground.
    void translateConnectivity(int row, int columns, int label) {
        m_nodes.clear();
        for (int column = 1; column < columns; ++column)
            m_nodes.push_back(translateItem(row, column, label));
    }

    int translateItem(int row, int column, int label) {
        switch (m_data.Type(row, column)) {
            case inp_Types::inp_INTEGER:
                return m_visitor.globalAssemblyNode(m_data.AsInt(row, column), m_connector);
            case inp_Types::inp_STRING: {
                int node = 0;
                if (m_raw && m_visitor.resolveRawScopedId(m_raw->Item(row, column), node))
                    return node;
                return m_visitor.GetGlobalNodeFromScopedID(m_data.AsString(row, column),
                                                           m_connector);
            }
            case inp_Types::inp_NONE:
                if (m_connector) return 0;  // an open end: the connector's ground
                break;
            default:
                break;
        }
        m_visitor.error(
            atr("*Element: an unrecognizable item (neither integer nor text string) is detected "
                "in the connectivity list for element %1$s of type \"%2$s\". The item in "
                "question is: %3$s",
                label, m_type, m_data.AsStringVerbatim(row, column)));
        return 0;
    }

    // Too many nodes: the element keeps as many as its type takes.
    void store(int label) {
        int count = static_cast<int>(m_nodes.size());
        if (count > m_greatest) {
            m_tooMany.Append(label);
            count = m_greatest;
        }
        if (count < m_least) m_tooFew.Append(label);
        m_table->InsertPtr(label, new inp_Element(m_type, count, m_nodes.data(), 0, 0, 0));
        m_labels.Append(label);
    }

    // A keyword that ended early still reports, and sets, what it read.
    void finish() {
        if (!m_tooMany.IsEmpty())
            m_visitor.AddWarning(inp_Utils::MessageInKeyword(
                m_keyword, atr("Too many nodes for element(s) of type \"%s\"", m_type), m_tooMany));
        if (!m_tooFew.IsEmpty())
            m_visitor.AddError(inp_Utils::MessageInKeyword(
                m_keyword, atr("Too few nodes for element(s) of type \"%s\"", m_type), m_tooFew));
        cow_String const elset = m_keyword.GetParameterAsString("elset", cow_String());
        if (!elset.IsEmpty() && !m_labels.IsEmpty()) m_visitor.addLabelSet(elset, m_labels);
    }

    inp_AssyLevelElemVisitor& m_visitor;
    inp_Keyword& m_keyword;
    inp_DataArray const& m_data;
    inp_RawDataArrayImpl const* m_raw;  // null for data of another form
    inp_MapInt2Element* m_table = nullptr;
    cow_String m_type;
    int m_least = 0;
    int m_greatest = INT_MAX;
    bool m_connector = false;
    std::vector<int> m_nodes;
    cow_List<int> m_labels;
    cow_List<int> m_tooMany;
    cow_List<int> m_tooFew;
};

// -- construction ---------------------------------------------------------------------

inp_AssyLevelElemVisitor::inp_AssyLevelElemVisitor(
    inpM_InstanceMap<inp_MapInt2Element> const& elementMaps, inpM_SetMap const& elsets,
    inpM_IdMap const& nodeIds, bool readElsets)
    : inp_ElementVisitor(elsets, false), m_nodeIds(nodeIds), m_readElsets(readElsets) {
    m_elementMap = elementMaps;
}

inp_AssyLevelElemVisitor::~inp_AssyLevelElemVisitor() = default;

// -- the walk ---------------------------------------------------------------------------

void inp_AssyLevelElemVisitor::Visit(inp_Keyword& keyword) {
    if (keyword.Is(inp_kw_Part) || keyword.Is(inp_kw_Instance) || keyword.Is(inp_kw_Step)) return;
    inp_ElementVisitor::Visit(keyword);
}

void inp_AssyLevelElemVisitor::VisitElement(inp_Keyword& keyword) {
    if (!InstanceName().IsEmpty()) return;
    VisitElementImpl(keyword);
}

void inp_AssyLevelElemVisitor::VisitElementImpl(inp_Keyword& keyword) {
    m_keyword = &keyword;
    m_lastInstanceIds = nullptr;  // points into the id map of this very visitor only
    ElementLineReader(*this, keyword).Run();
    m_keyword = nullptr;
}

// The assembly readers of the base work outside any part or instance only,
// so a set of a scope that the walk reaches anyway (a deck not organized
// into a tree) is passed over like its elements.
void inp_AssyLevelElemVisitor::VisitElset(inp_Keyword& keyword) {
    if (!m_readElsets || !CurrentName().IsEmpty()) return;
    cow_String const name = keyword.GetParameterAsString("elset", cow_String());
    if (name.IsEmpty()) return;  // expansion has refused such a keyword already
    bool const internal = keyword.HasParameter("internal");
    inpM_SetHandle const set = keyword.HasParameter("generate")
                                   ? GenerateAssemblySet(keyword, internal, false)
                                   : ReadAssemblyIdsAndSetNames(m_setMap, keyword, internal);
    AddAssySet(name, set, false);
}

bool inp_AssyLevelElemVisitor::IsValidInstanceName(cow_String const&) const {
    return true;
}

// -- connectivity items ----------------------------------------------------------------

int inp_AssyLevelElemVisitor::GetGlobalNodeFromScopedID(cow_String const& item, bool zeroAllowed) {
    cow_List<cow_String> const pieces = inp_Utils::SplitScopedSet(item);
    if (pieces.Length() == 1) {
        if (!inp_PatternMatchers::MatchInteger(item.View())) {
            error(atr("Connectivity item %s appears to be a node set. This is not allowed.", item));
            return 0;
        }
        return globalAssemblyNode(toInt(item), zeroAllowed);
    }
    if (!inp_Utils::IsScopedSetId(pieces)) {
        error(
            atr("Connectivity item %s is unrecognizable as a scoped ID ( <instanceName>.<integer "
                "ID> ).",
                item));
        return 0;
    }
    return globalInstanceNode(pieces);
}

// Only the plain form instance.id (no quotes, one period, digits behind it)
// of a known instance and id is taken here; the instance of the previous
// item is kept, so that a run of items of one instance makes no string.
bool inp_AssyLevelElemVisitor::resolveRawScopedId(char const* text, int& node) {
    std::string_view const item(text);
    size_t const period = item.find('.');
    if (period == std::string_view::npos || item.find('.', period + 1) != std::string_view::npos ||
        item.find('"') != std::string_view::npos)
        return false;
    int const local = rawLabel(item.substr(period + 1));
    std::string_view const instance = item.substr(0, period);
    if (local < 0) return false;
    if (!m_lastInstanceIds || !foldsTo(instance, m_lastInstance)) {
        cow_String const name =
            inp_Utils::TakeOutSpacesAndUpperOutsideQuoted(cow_String(instance).CStr());
        if (!m_nodeIds.IsMember(name)) return false;
        m_lastInstance = name;
        m_lastInstanceIds = &m_nodeIds.ConstGet(name);
    }
    if (!m_lastInstanceIds->IsMember(local)) return false;
    node = m_lastInstanceIds->ConstGet(local);
    return true;
}

int inp_AssyLevelElemVisitor::globalAssemblyNode(int label, bool zeroAllowed) {
    if (m_nodeIds.IsMember(label)) return m_nodeIds.ConstGet(label);
    if (label == 0 && zeroAllowed) return 0;
    error(atr("Connectivity item %s is an undefined assembly level node.", label));
    return 0;
}

int inp_AssyLevelElemVisitor::globalInstanceNode(cow_List<cow_String> const& pieces) {
    cow_String const& instance = pieces.ConstGet(pieces.Length() - 2);
    if (!m_nodeIds.IsMember(instance)) {
        error(atr("Unknown instance name %s", instance));
        return 0;
    }
    inpM_IdMap const& instanceIds = m_nodeIds.ConstGet(instance);
    int const local = toInt(pieces.Last());
    if (!instanceIds.IsMember(local)) {
        error(atr("Unknown local ID %1$s in instance %2$s", pieces.Last(), instance));
        return 0;
    }
    return instanceIds.ConstGet(local);
}

// -- support -----------------------------------------------------------------------------

// The holder copies itself when shared, but its table is a shared pointer:
// the records are copied too before the first write, so that the caller's
// maps keep what they had.
inp_MapInt2Element& inp_AssyLevelElemVisitor::assemblyTable() {
    if (!m_elementMap.HasValue()) m_elementMap.SetValue(inp_MapInt2Element());
    inp_MapInt2Element& table = m_elementMap.Get();
    if (table.UseCount() >= 2) table.AdoptCopyOfTable();
    return table;
}

// Called outside a keyword's reading (GetGlobalNodeFromScopedID used on its
// own), a message has no keyword to name and stands as it is.
void inp_AssyLevelElemVisitor::error(atr_String const& text) {
    AddError(m_keyword ? inp_Utils::MessageInKeyword(*m_keyword, text) : text);
}
