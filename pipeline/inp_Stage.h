#pragma once
// The stages of the road of a new job, in the order inp_InputFile runs them.
// Each stage relies on a sound result of the ones before it.

enum class inp_Stage : int {
    Parse,            // the deck's lines into a flat keyword list, include files spliced in
    Expand,           // every keyword checked and normalised by its vocabulary
    ModelParameters,  // the sizes and facts of the model gathered
    ImportValidity,   // import written correctly; an imported instance's keywords made dead
    Names,            // no period in the names the deck defines
    Organize,         // the flat list made a tree of keywords and their suboptions
    FakePart,         // a flat deck: rewritten as a generated part, instance and assembly
    ScopedNames,      // a parts deck: references by the assembly's full name shortened
    PartMaps,         // a parts deck: the mesh of every part read into maps
    AssemblyMaps,     // the instances placed, the assembly's mesh read
    OutOfPlace,       // what parts hold and where node and element data stand
};

class inp_InputFile;

// One stage of the road: what it is, its name, and the member that runs it.
struct inp_StageInfo {
    inp_Stage stage;
    char const* name;  // the stage's name for people and command lines
    void (inp_InputFile::*run)();
};
