#include "pipeline/inp_ModelParameterVisitor.h"

#include "deck/inp_Item.h"

namespace {

// The integer at (line, column), if there is one.
bool integerItem(inp_DataArray const& data, int line, int column, int& value) {
    if (!data.HasValue(line, column) || data.Type(line, column) != inp_Types::inp_INTEGER)
        return false;
    value = data.AsInt(line, column);
    return true;
}

bool integerParameter(inp_Keyword const& keyword, char const* name, int& value) {
    inp_Item const* item = keyword.Parameters().Find(name);
    if (item == nullptr || item->Type() != inp_Types::inp_INTEGER) return false;
    value = item->AsInt();
    return true;
}

cow_String stringParameter(inp_Keyword const& keyword, char const* name) {
    return keyword.GetParameterAsString(name, cow_String());
}

}  // namespace

void inp_ModelParameterVisitor::VisitList(cow_List<inp_Keyword>& keywords) {
    int firstStep = keywords.Length();
    for (int i = 0; i < keywords.Length(); ++i) {
        if (keywords.ConstGet(i).Is(inp_kw_Step)) {
            firstStep = i;
            break;
        }
    }
    for (int i = firstStep; i < keywords.Length(); ++i) Visit(keywords.Get(i));
    for (int i = 0; i < firstStep; ++i) Visit(keywords.Get(i));
}

void inp_ModelParameterVisitor::VisitStep(inp_Keyword& keyword) {
    inp_Visitor::VisitStep(keyword);
    m_inPerturbationStep = keyword.HasParameter("perturbation");
}

void inp_ModelParameterVisitor::VisitStatic(inp_Keyword&) {
    if (!m_inPerturbationStep) m_parameters.SetStaticGeneralStep();
}

void inp_ModelParameterVisitor::VisitHeatTransfer(inp_Keyword&) {
    m_hasHeatTransfer = true;
}

void inp_ModelParameterVisitor::VisitCoupledTemperatureDisplacement(inp_Keyword&) {
    m_hasCoupledTemperatureDisplacement = true;
}

void inp_ModelParameterVisitor::VisitSymmetricModelGeneration(inp_Keyword&) {
    m_parameters.SetSymModelGen();
}

void inp_ModelParameterVisitor::VisitPart(inp_Keyword& keyword) {
    inp_Visitor::VisitPart(keyword);
    m_parameters.SetFeatureEnhanced();
}

void inp_ModelParameterVisitor::VisitAssembly(inp_Keyword& keyword) {
    inp_Visitor::VisitAssembly(keyword);
    m_parameters.SetFeatureEnhanced();
}

void inp_ModelParameterVisitor::VisitInstance(inp_Keyword& keyword) {
    inp_Visitor::VisitInstance(keyword);
    m_parameters.SetFeatureEnhanced();
    if (keyword.HasParameter("instance")) m_parameters.SetImportedParts();
}

void inp_ModelParameterVisitor::VisitImport(inp_Keyword&) {
    if (!m_parameters.isFeatureEnhanced()) m_parameters.SetImported();
}

void inp_ModelParameterVisitor::VisitDepvar(inp_Keyword& keyword) {
    int count = 0;
    if (integerItem(keyword.Data(), 0, 0, count)) m_parameters.RaiseNumDepVars(count);
}

void inp_ModelParameterVisitor::VisitShellGeneralSection(inp_Keyword& keyword) {
    int count = 0;
    if (integerParameter(keyword, "variables", count)) m_parameters.RaiseNumDepVars(count);
}

// Every second line, from the first, lists the element's degrees of freedom;
// those above 10 are temperatures through the thickness.
void inp_ModelParameterVisitor::VisitUserElement(inp_Keyword& keyword) {
    int count = 0;
    if (integerParameter(keyword, "variables", count)) m_parameters.RaiseNumDepVars(count);
    inp_DataArray const& data = keyword.Data();
    int largest = 0;
    for (int line = 0; line < data.Rows(); line += 2) {
        int temperatures = 0;
        for (int column = 0; column < data.Cols(line); ++column) {
            int value = 0;
            if (integerItem(data, line, column, value) && value > 10) ++temperatures;
        }
        if (temperatures > largest) largest = temperatures;
    }
    m_parameters.RaiseNumTempPts(largest);
}

void inp_ModelParameterVisitor::VisitBeamSection(inp_Keyword& keyword) {
    if (stringParameter(keyword, "temperature") != "VALUES") return;
    if (!keyword.HasParameter("section") || stringParameter(keyword, "section") == "ARBITRARY")
        return;
    int points = 0;
    if (integerItem(keyword.Data(), 0, 0, points)) m_parameters.RaiseNumTempPts(points + 1);
}

void inp_ModelParameterVisitor::VisitElement(inp_Keyword& keyword) {
    cow_String const type = stringParameter(keyword, "type");
    std::string_view const name = type.View();
    if ((name.size() >= 3 && name.substr(0, 2) == "DS") || name == "S8RT" || name == "S4RT")
        m_parameters.SetTemperatureElements();
}

// Eight items to a line of the table's layout, plus one.
void inp_ModelParameterVisitor::VisitDistributionTable(inp_Keyword& keyword) {
    inp_DataArray const& data = keyword.Data();
    int items = 0;
    for (int line = 0; line < data.Rows(); ++line)
        for (int column = 0; column < data.Cols(line) && !data.IsNone(line, column); ++column)
            ++items;
    m_parameters.SetTableSize(stringParameter(keyword, "name"), items / 8 + 1);
}

// The system is recorded under the text of the first data item, as the
// consumers of these parameters look it up.
void inp_ModelParameterVisitor::VisitOrientation(inp_Keyword& keyword) {
    inp_DataArray const& data = keyword.Data();
    if (data.Rows() == 0 || data.Cols(0) == 0) return;
    cow_String system = stringParameter(keyword, "system");
    if (system.IsEmpty()) system = "RECTANGULAR";
    m_parameters.SetCsysRectangular(data.AsString(0, 0),
                                    system == "RECTANGULAR" || system == "ZRECTANGULAR");
}

void inp_ModelParameterVisitor::VisitShellSection(inp_Keyword& keyword) {
    int const lines = keyword.Data().Rows();
    if (lines < 1) return;
    bool const composite = keyword.HasParameter("composite");
    int points = 0;
    if (integerParameter(keyword, "temperature", points)) {
        if (composite) points = points > 1 ? (points - 1) * lines + 1 : lines;
        if (!thermalAnalysis()) m_parameters.RaiseNumTempPts(points);
    }
    if (composite) {
        countCompositeLayers(keyword);
        return;
    }
    int gaussPoints = 0;
    if (integerItem(keyword.Data(), 0, 1, gaussPoints)) m_parameters.RaiseNumGaussPts(gaussPoints);
}

// Each line is a layer: its second item is its point count, or the rule's
// default. Simpson layers share the point where they meet.
void inp_ModelParameterVisitor::countCompositeLayers(inp_Keyword const& keyword) {
    bool const simpson = stringParameter(keyword, "sectionintegration") != "GAUSS";
    int const fallback = simpson ? 3 : 2;
    int total = 0;
    int previous = 0;
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        int count = 0;
        if (!integerItem(keyword.Data(), line, 1, count) || count <= 0) count = fallback;
        total += (simpson && previous >= 2) ? count - 1 : count;
        previous = count;
    }
    m_parameters.RaiseNumGaussPts(total);
    if (thermalAnalysis()) m_parameters.RaiseNumTempPts(total);
}
