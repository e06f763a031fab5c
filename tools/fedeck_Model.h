#pragma once
// The model maps of a deck as JSON, for scripts and tests: what the input
// file object holds after the last stage that ran, as far as it was built.

class aio_ostream;
class inp_InputFile;

// How big the model is. Nodes and elements count the assembly's own and
// those of every instance (an instance counts its part's mesh); sets and
// surfaces count the names at the assembly level and at each part's level.
struct fedeck_ModelCounts {
    int parts = 0;
    int instances = 0;
    int nodes = 0;
    int elements = 0;
    int nodeSets = 0;
    int elementSets = 0;
    int surfaces = 0;
};

fedeck_ModelCounts fedeck_CountModel(inp_InputFile const& deck);

// {"parts": P, "instances": I, "nodes": N, "elements": E, "nodeSets": S,
// "elementSets": T, "surfaces": U}
void fedeck_WriteModelCounts(aio_ostream& out, fedeck_ModelCounts const& counts);

// The members "partsAndAssembly", "fakePartModel", "parts" and "assembly",
// without the braces of the enclosing object, so that they follow the fields
// of the check report in one object. Node and element tables come in
// ascending label order, names in ascending order; ids of sets keep the
// set's own order. Coordinates and areas are written in the shortest form
// that reads back to the same double.
void fedeck_WriteModelFields(aio_ostream& out, inp_InputFile const& deck);
