#include "mesh/inp_ElementDataFromMap.h"

#include <vector>

#include "mesh/inp_MapInt2Element.h"

// The map's table takes negative labels as keys of their own, so a label of
// the list is looked up as it stands and written as it stands. The records
// stay in the map while the array is built, so their nodes are read in place.
inp_ElementDataArrayImpl inp_ElementDataFromMap(cow_List<int> const& labels,
                                                inp_MapInt2Element const& elements) {
    std::vector<inp_ElementDataArrayImpl::Connectivity> found;
    found.reserve(static_cast<size_t>(labels.Length()));
    for (int label : labels) {
        if (inp_Element const* element = elements.GetEltPtr(label))
            found.push_back({label, element->nodes(), element->numNodesPerElement()});
    }
    return inp_ElementDataArrayImpl(found);
}
