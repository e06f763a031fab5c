#include "tables/inp_DistributionTableVisitor.h"

#include <string>

#include "mesh/inp_Utils.h"
#include "tables/inp_DistributionTableDB.h"

namespace {

std::string knownKinds() {
    std::string kinds;
    for (int label = inp_distANGLE; label <= inp_distSHELLSTIFF3; ++label) {
        if (!kinds.empty()) kinds += ", ";
        kinds += inp_DistributionTableDB::LabelText(static_cast<inp_distTableLabelEnum>(label));
    }
    return kinds;
}

}  // namespace

// Tables may follow the distributions that use them: all are registered
// in one walk, which keeps the distributions that name a table, and those
// are checked after it.
void inp_DistributionTableVisitor::VisitListAndReport(cow_List<inp_Keyword>& keywords) {
    inp_DistributionTableDB::Instance().ClearDeckTables();
    m_uses.clear();
    VisitList(keywords);
    for (inp_Keyword const& distribution : m_uses) checkUse(distribution);
    m_uses.clear();
    Report();
}

void inp_DistributionTableVisitor::VisitDistributionTable(inp_Keyword& keyword) {
    inp_DistributionTableDB& tables = inp_DistributionTableDB::Instance();
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    std::vector<inp_distTableLabelEnum> labels;
    int size = 0;
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        for (int column = 0; column < keyword.Data().Cols(line); ++column) {
            if (!keyword.Data().HasValue(line, column)) continue;
            cow_String const text = keyword.Data().AsString(line, column);
            auto const label = static_cast<inp_distTableLabelEnum>(tables.getTableLabelID(text));
            if (label == inp_distUNDEFINED)
                AddError(inp_Utils::MessageInKeyword(
                    keyword, atr("The column type \"%1$s\" of the distribution table \"%2$s\" is "
                                 "unknown. The types are: %3$s.",
                                 text, name, cow_String(std::string_view(knownKinds())))));
            labels.push_back(label);
            size += tables.getdistTableLabelEnumSize(label);
        }
    }
    if (!name.IsEmpty()) tables.addDistTables(name, static_cast<int>(labels.size()), size, labels);
}

void inp_DistributionTableVisitor::VisitDistribution(inp_Keyword& keyword) {
    if (keyword.HasParameter("table")) m_uses.push_back(keyword);
}

// The first line is the default line; each line is a label and its values.
void inp_DistributionTableVisitor::checkUse(inp_Keyword const& keyword) {
    cow_String const name = keyword.GetParameterAsString("name", cow_String());
    cow_String const table = keyword.GetParameterAsString("table", cow_String());
    int found = 0;
    int const size = inp_DistributionTableDB::Instance().getDistTableSize(table, found);
    if (found == 0) {
        AddError(inp_Utils::MessageInKeyword(
            keyword, atr("The distribution \"%1$s\" names the distribution table \"%2$s\", which "
                         "is not defined.",
                         name, table)));
        return;
    }
    for (int line = 0; line < keyword.Data().Rows(); ++line) {
        int const values = keyword.Data().Cols(line) - 1;
        if (values <= size) continue;
        std::string const text = "Line " + std::to_string(line + 1) + " of the distribution \"" +
                                 std::string(name.View()) + "\" gives " + std::to_string(values) +
                                 " values; its table \"" + std::string(table.View()) + "\" takes " +
                                 std::to_string(size) + ".";
        AddError(inp_Utils::MessageInKeyword(keyword, atr_String(text.c_str())));
    }
}
