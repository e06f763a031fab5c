// The handlers of the few material, section, contact, constraint and
// procedure keywords that look at a value beyond their schema row: a
// parameter whose meaning depends on another, a value that is a word or a
// number, data items that are words. Each starts with the generic handler of
// its row unless it says otherwise.

#include "expansion/inp_KeywordExpansionVisitor.h"

namespace {

constexpr char const* kYes[] = {"YES", nullptr};
constexpr char const* kNo[] = {"NO", nullptr};

// The connection types that the first data line of a connector section may
// name, by abbreviation too: one that stands for two of them is refused.
// clang-format off
constexpr char const* kConnectionTypes[] = {
    "BEAM", "WELD", "HINGE", "UJOINT", "CVJOINT", "TRANSLATOR", "CYLINDRICAL", "PLANAR",
    "BUSHING", "LINK", "JOIN", "SLOT", "SLIDE-PLANE", "CARTESIAN", "RADIAL-THRUST",
    "PROJECTIONCARTESIAN", "AXIAL", "ACCELEROMETER", "ALIGN", "CARDAN", "CONSTANTVELOCITY",
    "EULER", "FLEXION-TORSION", "PROJECTIONFLEXION-TORSION", "ROTATION-ACCELEROMETER",
    "REVOLUTE", "ROTATION", "UNIVERSAL", "FLOW-CONVERTER", "RETRACTOR", "SLIPRING", nullptr};
// clang-format on

constexpr int kMostBackstresses = 10;

// The text of the parameter, or `fallback` when it is absent.
cow_String valueOr(inp_Keyword const& keyword, char const* name, char const* fallback) {
    inp_Item const* item = keyword.Parameters().Find(name);
    return item ? item->AsString() : cow_String(fallback);
}

bool isUsableItem(inp_DataArray const& data, int row, int col) {
    return data.Cols(row) > col && !data.IsNone(row, col);
}

}  // namespace

// -- materials ---------------------------------------------------------------------------------

// User-defined hardening has its constants on the data lines only if it
// declares some.
void inp_KeywordExpansionVisitor::HandlePlastic(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    bool const userHardening = valueOr(keyword, "hardening", "ISOTROPIC") == "USER";
    if (!userHardening || keyword.GetParameterAsInt("properties", 0) > 0)
        checkRequiredDataline(keyword);
    checkNumberOfBackstresses(keyword);
}

void inp_KeywordExpansionVisitor::checkNumberOfBackstresses(inp_Keyword& keyword) {
    inp_Item const* count = keyword.Parameters().Find("numberbackstresses");
    if (!count) return;
    if (count->Type() == inp_Types::inp_INTEGER && count->AsInt() >= 1 &&
        count->AsInt() <= kMostBackstresses)
        return;
    fatalError(keyword, atr("The parameter NUMBER BACKSTRESSES on the option *PLASTIC must have "
                            "value larger than 0 and smaller than or equal to 10. The value "
                            "specified is %s.",
                            count->AsString()));
}

// The whole handler of the keyword: its data file, the assembly-model rule
// and then the backstresses. The range message speaks of *PLASTIC here too.
void inp_KeywordExpansionVisitor::HandleInitialConditions(inp_Keyword& keyword,
                                                          inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    ProcessInputParameter(keyword);
    applyAssemblyModelRule(keyword);
    if (keyword.HasParameter("numberbackstresses") && valueOr(keyword, "type", "") != "HARDENING")
        error(keyword, atr("The parameter NUMBER BACKSTRESSES must be used in conjunction with the "
                           "parameter TYPE=HARDENING."));
    checkNumberOfBackstresses(keyword);
}

void inp_KeywordExpansionVisitor::HandlePermeability(inp_Keyword& keyword,
                                                     inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    cow_String const type = valueOr(keyword, "type", "ISOTROPIC");
    if (type == "ISOTROPIC" || type == "ORTHOTROPIC") checkRequiredParameter(keyword, "specific");
}

// -- contact -----------------------------------------------------------------------------------

// `adjust` is a yes or no, a distance or a node set. Only the first is
// normalised, to a boolean; anything else stays as it was, silently.
void inp_KeywordExpansionVisitor::HandleContactPair(inp_Keyword& keyword,
                                                    inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    inp_Item const* adjust = keyword.Parameters().Find("adjust");
    if (!adjust) return;
    cow_String const text = adjust->AsString();
    cow_String word;
    if (inp_ExpandEnum(word, kYes, text) == 1) {
        keyword.SetParameter("adjust", inp_Item(true));
    } else if (inp_ExpandEnum(word, kNo, text) == 1) {
        keyword.SetParameter("adjust", inp_Item(false));
    }
}

// The row's first word is `all ` with a blank, which no deck can spell: a
// bare ALL (or a shorter form) lands on it, instead of being taken for
// `allexterior`, and is refused here.
void inp_KeywordExpansionVisitor::HandleContactInclusions(inp_Keyword& keyword,
                                                          inp_SchemaRow const* row) {
    ExpandParameters(keyword, row->parameters);
    if (!keyword.HasParameter("all ")) return;
    error(keyword, atr("The parameter ALL EXTERIOR cannot be abbreviated to ALL."));
    blank(keyword);
}

// -- connectors and constraints -------------------------------------------------------------------

// The connection types of the first data line are expanded before the
// parameters. An empty first item does not keep the second from expansion.
void inp_KeywordExpansionVisitor::HandleConnectorSection(inp_Keyword& keyword,
                                                         inp_SchemaRow const* row) {
    inp_DataArray const& data = keyword.Data();
    if (data.Rows() >= 1) {
        if (isUsableItem(data, 0, 0)) ExpandEnumData(keyword, 0, 0, kConnectionTypes);
        if (isUsableItem(data, 0, 1)) ExpandEnumData(keyword, 0, 1, kConnectionTypes);
    }
    ExpandByRow(keyword, row);
}

void inp_KeywordExpansionVisitor::HandleRigidBody(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    checkRequiredParameter(keyword, "refnode");
    checkRequiredParameterValue(keyword, "refnode");
    checkRequiredParameterValue(keyword, "analyticalsurface");
    for (char const* body : {"analyticalsurface", "elset", "pinnset", "tienset"})
        if (keyword.HasParameter(body)) return;
    error(keyword, atr("At least one of the parameters - analytical surface, elset, pinnset, "
                       "tienset is required."));
}

void inp_KeywordExpansionVisitor::HandleCoupling(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    checkRequiredParameter(keyword, "constraintname");
    checkRequiredParameter(keyword, "refnode");
    checkRequiredParameter(keyword, "surface");
    checkRequiredParameterValue(keyword, "orientation");
}

// -- rows with a flag to set
// -------------------------------------------------------------------------

void inp_KeywordExpansionVisitor::HandleDynamic(inp_Keyword& keyword, inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    if (keyword.HasParameter("explicit")) m_explicitJob = true;
}

void inp_KeywordExpansionVisitor::HandleRigidSurface(inp_Keyword& keyword,
                                                     inp_SchemaRow const* row) {
    ExpandByRow(keyword, row);
    m_hasRigidSurfaceKeyword = true;
}

// *PARAMETER lines are evaluated by a stage of their own: nothing to expand.
void inp_KeywordExpansionVisitor::HandleParameter(inp_Keyword&, inp_SchemaRow const*) {
    m_parameterized = true;
}
