#pragma once
// What the program adds to a continuation job beyond the library's stages:
// the new sets and surfaces of a restart deck read against the names of the
// model it continues.

class inp_InputFile;

// `later` has taken the part map of `earlier` (InheritPartMap). A plain
// restart, which keeps its keywords flat, has its new node sets, element
// sets and surfaces read by the restart visitors against `earlier`'s
// model, and join `later`'s model; their diagnostics go to this thread's
// sink. A restart that adds
// mesh has had its sets read with its fake part already: nothing is done.
void fedeck_ReadRestartSetsAndSurfaces(inp_InputFile& later, inp_InputFile const& earlier);
