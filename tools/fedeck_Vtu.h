#pragma once
// The assembled mesh as a VTK XML unstructured grid (.vtu), the file that
// ParaView and the rest of the VTK world read.
//
// Points carry the arrays node_label and instance, cells element_label,
// instance and element_type; the instance is an index into the field array
// instance_names (-1 for the assembly's own level), the element type an
// index into element_type_names, both lists of names one per line as bytes.
// Each set is a 0/1 array of its points ("nset:<name>") or cells
// ("elset:<name>").

#include <functional>
#include <string>

struct fedeck_AssembledMesh;

struct fedeck_VtuOptions {
    // Data as text rather than base64 of the bytes: slower and bigger, but
    // readable.
    bool ascii = false;
    // Called between the arrays with the share of the data written so far.
    std::function<void(double)> progress;
};

// Writes the file; an empty string when it is written, otherwise why not
// ("cannot open ...: reason", "cannot write ...: reason").
std::string fedeck_WriteVtu(fedeck_AssembledMesh const& mesh, std::string const& path,
                            fedeck_VtuOptions const& options);
