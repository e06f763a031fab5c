#include "tables/inp_DistributionTableDB.h"

#include <cctype>
#include <string>

void inp_RegisterBuiltInDistributionLayouts(std::map<int, inp_distTable>& layouts);

namespace {

struct LabelRow {
    inp_distTableLabelEnum label;
    char const* text;
    int size;
};

constexpr LabelRow kLabels[] = {
    {inp_distUNDEFINED, "UNDEFINED", 1},     {inp_distANGLE, "ANGLE", 1},
    {inp_distCOORD3D, "COORD3D", 3},         {inp_distDENSITY, "DENSITY", 1},
    {inp_distEXPANSION, "EXPANSION", 1},     {inp_distLENGTH, "LENGTH", 1},
    {inp_distMODULUS, "MODULUS", 1},         {inp_distRATIO, "RATIO", 1},
    {inp_distSHELLSTIFF1, "SHELLSTIFF1", 1}, {inp_distSHELLSTIFF2, "SHELLSTIFF2", 1},
    {inp_distSHELLSTIFF3, "SHELLSTIFF3", 1},
};

cow_String trimmed(cow_String const& name) {
    std::string_view text = name.View();
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    return cow_String(text);
}

}  // namespace

inp_DistributionTableDB::inp_DistributionTableDB() {
    inp_RegisterBuiltInDistributionLayouts(m_layouts);
}

int inp_DistributionTableDB::getTableLabelID(cow_String const& text) const {
    std::string upper(text.View());
    for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    for (LabelRow const& row : kLabels)
        if (upper == row.text) return row.label;
    return inp_distUNDEFINED;
}

int inp_DistributionTableDB::getdistTableLabelEnumSize(inp_distTableLabelEnum label) const {
    for (LabelRow const& row : kLabels)
        if (row.label == label) return row.size;
    return 0;
}

char const* inp_DistributionTableDB::LabelText(inp_distTableLabelEnum label) {
    for (LabelRow const& row : kLabels)
        if (row.label == label) return row.text;
    return "";
}

bool inp_DistributionTableDB::addDistTables(cow_String const& name, int columns, int size,
                                            std::vector<inp_distTableLabelEnum> const& labels) {
    cow_String const key = trimmed(name);
    if (m_deckTableNumbers.count(key) != 0) return true;
    m_deckTableNumbers[key] = static_cast<int>(m_deckTables.size());
    m_deckTables.push_back({columns, size, labels});
    return false;
}

inp_distTable const* inp_DistributionTableDB::deckTable(cow_String const& name) const {
    auto const found = m_deckTableNumbers.find(trimmed(name));
    return found == m_deckTableNumbers.end() ? nullptr : &m_deckTables[found->second];
}

int inp_DistributionTableDB::getDistTableSize(cow_String const& name, int& found) const {
    inp_distTable const* table = deckTable(name);
    found = table != nullptr ? 1 : 0;
    return table != nullptr ? table->size : 0;
}

int inp_DistributionTableDB::getNumComponentsDistTable(cow_String const& name, int& found) const {
    inp_distTable const* table = deckTable(name);
    found = table != nullptr ? 1 : 0;
    return table != nullptr ? table->columns : 0;
}

void inp_DistributionTableDB::ClearDeckTables() {
    m_deckTableNumbers.clear();
    m_deckTables.clear();
}

// Every column is compared, so that a table that differs anywhere says so.
int inp_DistributionTableDB::validateDistTable(inp_distTableTypeEnum type,
                                               cow_String const& name) const {
    auto const layout = m_layouts.find(type);
    if (layout == m_layouts.end()) return kNoLayoutOfType;
    inp_distTable const* table = deckTable(name);
    if (table == nullptr) return kNoTableOfName;
    if (table->columns != layout->second.columns) return kColumnCountDiffers;
    int result = kFits;
    for (int column = 0; column < table->columns; ++column)
        if (table->labels[column] != layout->second.labels[column]) result = kColumnKindDiffers;
    return result;
}
