// The built-in layouts of distribution tables, one row per type: the
// columns, the numbers they take, and the kind of each column in order.

#include "tables/inp_DistributionTableDB.h"

namespace {

struct LayoutRow {
    int type;
    int columns;
    int size;
    std::vector<inp_distTableLabelEnum> labels;
};

std::vector<inp_distTableLabelEnum> times(int count, inp_distTableLabelEnum label) {
    return std::vector<inp_distTableLabelEnum>(static_cast<size_t>(count), label);
}

std::vector<inp_distTableLabelEnum> joined(
    std::initializer_list<std::vector<inp_distTableLabelEnum>> parts) {
    std::vector<inp_distTableLabelEnum> labels;
    for (auto const& part : parts) labels.insert(labels.end(), part.begin(), part.end());
    return labels;
}

}  // namespace

// Type 5 stands twice, with one content; the later row is the one kept.
void inp_RegisterBuiltInDistributionLayouts(std::map<int, inp_distTable>& layouts) {
    LayoutRow const rows[] = {
        {2, 1, 1, {inp_distLENGTH}},
        {3, 1, 1, {inp_distRATIO}},
        {4, 21, 21,
         joined({times(6, inp_distSHELLSTIFF1), times(3, inp_distSHELLSTIFF2),
                 times(1, inp_distSHELLSTIFF3), times(3, inp_distSHELLSTIFF2),
                 times(2, inp_distSHELLSTIFF3), times(3, inp_distSHELLSTIFF2),
                 times(3, inp_distSHELLSTIFF3)})},
        {5, 1, 1, {inp_distLENGTH}},
        {6, 1, 1, {inp_distANGLE}},
        {7, 1, 1, {inp_distLENGTH}},
        {5, 1, 1, {inp_distLENGTH}},
        {102, 2, 6, {inp_distCOORD3D, inp_distCOORD3D}},
        {103, 1, 1, {inp_distANGLE}},
        {202, 2, 2, {inp_distMODULUS, inp_distRATIO}},
        {203, 9, 9, times(9, inp_distMODULUS)},
        {204, 21, 21, times(21, inp_distMODULUS)},
        {205,
         6,
         6,
         {inp_distMODULUS, inp_distMODULUS, inp_distRATIO, inp_distMODULUS, inp_distMODULUS,
          inp_distMODULUS}},
        {206, 9, 9,
         joined({times(3, inp_distMODULUS), times(3, inp_distRATIO), times(3, inp_distMODULUS)})},
        {207, 1, 1, {inp_distEXPANSION}},
        {208, 3, 3, times(3, inp_distEXPANSION)},
        {209, 6, 6, times(6, inp_distEXPANSION)},
        {210, 1, 1, {inp_distDENSITY}},
    };
    for (LayoutRow const& row : rows) layouts[row.type] = {row.columns, row.size, row.labels};
}
