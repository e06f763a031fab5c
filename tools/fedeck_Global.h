#pragma once
// `fedeck tree --global`: the tree of a deck with the keyword data of every
// moved instance in the global frame, as a converter that flattens a model
// writes it.

#include "deck/inp_Keyword.h"

class inp_InputFile;

// Walks `tree` with the transformation walk and the maps `road` built on
// the whole road of the same deck. The node sets the walk makes for the
// *TRANSFORM of equation nodes are written into their instances as *NSET
// keywords, so that the tree says all it needs. Diagnostics go to this
// thread's sink.
void fedeck_TransformToGlobal(cow_List<inp_Keyword>& tree, inp_InputFile const& road);
