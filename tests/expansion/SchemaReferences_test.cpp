// The parameters that the stages after the expansion read: the set, surface,
// orientation, material and distribution fixups, the mesh visitors, the
// instance transformation, import, restart and the contact check. A stage
// can only see a parameter that the expansion kept under its own word, so
// each one is written on a one-keyword deck and must come through the
// expansion whole: no unknown or ambiguous name, no illegal value, and the
// keyword holding the parameter under exactly the word the stage looks up.

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

#include "ExpandedDeck.h"

namespace {

struct Reference {
    char const* keyword;    // as a deck writes it
    char const* parameter;  // the word the later stage looks up
    // The value as written: a name, a number or a word; alternatives are
    // separated by '|' and each is tried on a deck of its own. Null writes
    // the parameter bare, as a flag.
    char const* values;
    // Parameters the keyword needs beside it, so that it is not blanked.
    char const* with = "";
};

// The table is written from what the stages read, not from the schema.
// `*SLIDE PLANE` stands in the set fixup's table of data positions, but it is
// no keyword of the keyword table: a deck cannot hold it, and it is left out.
//
// `*PART`, `*INSTANCE` and `*ASSEMBLY` appear with the parameters their rows
// take. The import record can also read `referenceconfiguration`,
// `increment`, `interval` and `iteration` from them (and `assembly` from
// `*ASSEMBLY`) for callers outside the pipeline; these rows do not take those
// words (the assembly takes `name` alone), and they are left out here.
constexpr Reference kReferences[] = {
    // -- mesh: nodes, node generation, copies and maps
    {"*NODE", "nset", "SET1"},
    {"*NODE", "system", "R|C|S"},
    {"*NSET", "nset", "SET1"},
    {"*NSET", "elset", "SET2", "NSET=SET1"},
    {"*NSET", "generate", nullptr, "NSET=SET1"},
    {"*NSET", "instance", "I1", "NSET=SET1"},
    {"*NSET", "internal", nullptr, "NSET=SET1"},
    {"*NSET", "unsorted", nullptr, "NSET=SET1"},
    {"*NGEN", "line", "C|P"},
    {"*NGEN", "system", "C|RC|S"},
    {"*NGEN", "nset", "SET1"},
    {"*NFILL", "bias", "2"},
    {"*NFILL", "singular", "1"},
    {"*NFILL", "twostep", nullptr},
    {"*NFILL", "nset", "SET1"},
    {"*NCOPY", "changenumber", "100"},
    {"*NCOPY", "oldset", "SET1"},
    {"*NCOPY", "newset", "SET2"},
    {"*NCOPY", "shift", nullptr},
    {"*NCOPY", "reflect", "LINE|MIRROR|POINT"},
    {"*NCOPY", "pole", nullptr},
    {"*NCOPY", "multiple", "3"},
    {"*NMAP", "nset", "SET1"},
    {"*NMAP", "type",
     "BLENDED|TRANSLATION|SCALE|ROTATION|RECTANGULAR|CYLINDRICAL|SPHERICAL|TOROIDAL|DIAMOND"},
    {"*NMAP", "definition", "NODES|COORDINATES"},

    // -- mesh: elements, their generation and copies, element sets
    {"*ELEMENT", "type", "C3D8"},
    {"*ELEMENT", "elset", "SET1"},
    {"*ELEMENT", "file", "SUB1"},
    {"*ELEMENT", "offset", "10"},
    {"*ELEMENT", "solidelementnumbering", "1"},
    {"*USER ELEMENT", "file", "U1"},
    {"*USER ELEMENT", "nodes", "4"},
    {"*USER ELEMENT", "type", "U1"},
    {"*ELSET", "elset", "SET1"},
    {"*ELSET", "generate", nullptr, "ELSET=SET1"},
    {"*ELSET", "instance", "I1", "ELSET=SET1"},
    {"*ELSET", "internal", nullptr, "ELSET=SET1"},
    {"*ELSET", "unsorted", nullptr, "ELSET=SET1"},
    {"*ELGEN", "allnodes", nullptr},
    {"*ELGEN", "elset", "SET1"},
    {"*ELCOPY", "elementshift", "100"},
    {"*ELCOPY", "oldset", "SET1"},
    {"*ELCOPY", "shiftnodes", "100"},
    {"*ELCOPY", "newset", "SET2"},
    {"*ELCOPY", "reflect", nullptr},

    // -- mesh: surfaces, combined and cropped
    {"*SURFACE", "name", "SURF1"},
    {"*SURFACE", "type",
     "ELEMENT|NODE|EULERIANMATERIAL|XFEM|CUTTINGSURFACE|CYLINDER|REVOLUTION|SEGMENTS",
     "NAME=SURF1"},
    {"*SURFACE", "combine", "UNION|INTERSECTION|DIFFERENCE", "NAME=SURF1"},
    {"*SURFACE", "crop", nullptr, "NAME=SURF1"},
    {"*SURFACE", "internal", nullptr, "NAME=SURF1"},
    {"*SURFACE", "definition", "NODES|COORDINATES", "NAME=SURF1, TYPE=CUTTINGSURFACE"},
    {"*SURFACE", "refnode", "1", "NAME=SURF1"},

    // -- generated parts, rigid parts and their reference nodes
    {"*MASS", "orientation", "ORI1"},
    {"*ROTARY INERTIA", "orientation", "ORI1"},
    {"*ADJUST", "orientation", "ORI1"},
    {"*COUPLING", "orientation", "ORI1"},
    {"*KINEMATIC COUPLING", "orientation", "ORI1"},
    {"*FASTENER", "orientation", "ORI1", "INTERACTION NAME=F1, PROPERTY=P1"},
    {"*INTEGRATED OUTPUT SECTION", "orientation", "ORI1"},
    {"*JOINTED MATERIAL", "jointdirection", "ORI1"},
    {"*EL FILE", "rebar", "R1"},
    {"*EL PRINT", "rebar", "R1"},
    {"*DSLOAD", "orientation", "ORI1"},
    {"*INERTIA RELIEF", "orientation", "ORI1"},
    {"*EULERIAN SECTION", "elset", "SET1"},
    {"*INITIAL CONDITIONS", "rebar", nullptr, "TYPE=STRESS"},
    {"*DISTRIBUTION", "name", "DIST1"},
    {"*RIGID SURFACE", "name", "SURF1"},
    {"*RIGID SURFACE", "elset", "SET1"},
    {"*RIGID SURFACE", "refnode", "1"},
    {"*RIGID SURFACE", "type", "CYLINDER|REVOLUTION|SEGMENTS"},
    {"*RIGID BODY", "analyticalsurface", "SURF1", "REF NODE=1"},
    {"*RIGID BODY", "elset", "SET1", "REF NODE=1"},
    {"*RIGID BODY", "refnode", "1", "ELSET=SET1"},
    {"*RIGID BODY", "pinnset", "SET2", "REF NODE=1"},
    {"*RIGID BODY", "tienset", "SET2", "REF NODE=1"},

    // -- node and element references by parameter
    {"*ADJUST", "nodeset", "SET1"},
    {"*CONTACT CLEARANCE", "searchnset", "SET1", "NAME=C1"},
    {"*DSLOAD", "refnode", "1"},
    {"*COUPLING", "refnode", "1"},
    {"*FLUID CAVITY", "refnode", "1"},
    {"*MONITOR", "node", "1"},
    {"*INTEGRATED OUTPUT SECTION", "refnode", "1"},
    {"*SPOT WELD", "referencenodeset", "SET1", "PROPERTY=P1"},
    {"*TIE", "tiednset", "SET1"},
    {"*CONTACT CONTROLS", "nset", "SET1"},
    {"*CONTACT FILE", "nset", "SET1"},
    {"*CONTACT OUTPUT", "nset", "SET1"},
    {"*CONTACT PRINT", "nset", "SET1"},
    {"*CONTACT RESPONSE", "nset", "SET1"},
    {"*EXTREME NODE VALUE", "nset", "SET1"},
    {"*FRACTURE CRITERION", "nset", "SET1"},
    {"*NODE FILE", "nset", "SET1"},
    {"*NODE OUTPUT", "nset", "SET1"},
    {"*NODE PRINT", "nset", "SET1"},
    {"*NODE RESPONSE", "nset", "SET1"},
    {"*RADIATION VIEWFACTOR", "nset", "SET1"},
    {"*TRANSFORM", "nset", "SET1"},
    {"*NONSTRUCTURAL MASS", "elset", "SET1"},
    {"*ADAPTIVE MESH", "elset", "SET1"},
    {"*ADAPTIVE MESH REFINEMENT", "elset", "SET1"},
    {"*BEAM GENERAL SECTION", "elset", "SET1"},
    {"*BEAM SECTION", "elset", "SET1"},
    {"*CHANGE FRICTION", "elset", "SET1"},
    {"*COHESIVE SECTION", "elset", "SET1"},
    {"*CONNECTOR SECTION", "elset", "SET1"},
    {"*CREEP STRAIN RATE CONTROL", "elset", "SET1"},
    {"*DASHPOT", "elset", "SET1"},
    {"*DISCRETE SECTION", "elset", "SET1"},
    {"*DRAG CHAIN", "elset", "SET1"},
    {"*ELEMENT MATRIX OUTPUT", "elset", "SET1"},
    {"*ELEMENT OUTPUT", "elset", "SET1"},
    {"*ELEMENT RESPONSE", "elset", "SET1"},
    {"*EL FILE", "elset", "SET1"},
    {"*EL PRINT", "elset", "SET1"},
    {"*ENERGY FILE", "elset", "SET1"},
    {"*ENERGY OUTPUT", "elset", "SET1"},
    {"*ENERGY PRINT", "elset", "SET1"},
    {"*ENRICHMENT", "elset", "SET1"},
    {"*ENRICHMENT ACTIVATION", "elset", "SET1"},
    {"*EPJOINT", "elset", "SET1"},
    {"*EULERIAN MESH MOTION", "elset", "SET1"},
    {"*EXTREME ELEMENT VALUE", "elset", "SET1"},
    {"*FIXED MASS SCALING", "elset", "SET1"},
    {"*FLUID LINK", "elset", "SET1"},
    {"*FLUID PIPE SECTION", "elset", "SET1"},
    {"*FLUID PIPE CONNECTOR SECTION", "elset", "SET1"},
    {"*FRAME SECTION", "elset", "SET1"},
    {"*GAP", "elset", "SET1"},
    {"*GASKET SECTION", "elset", "SET1"},
    {"*HEATCAP", "elset", "SET1"},
    {"*INTEGRATED OUTPUT", "elset", "SET1"},
    {"*INTERFACE", "elset", "SET1"},
    {"*ITS", "elset", "SET1"},
    {"*JOINT", "elset", "SET1"},
    {"*MASS", "elset", "SET1"},
    {"*MATRIX GENERATE", "elset", "SET1"},
    {"*MEMBRANE SECTION", "elset", "SET1"},
    {"*PIPE-SOIL INTERACTION", "elset", "SET1"},
    {"*RADIATION FILE", "elset", "SET1"},
    {"*RADIATION OUTPUT", "elset", "SET1"},
    {"*ROTARY INERTIA", "elset", "SET1"},
    {"*SHELL GENERAL SECTION", "elset", "SET1"},
    {"*SHELL SECTION", "elset", "SET1"},
    {"*SPRING", "elset", "SET1"},
    {"*STEADY STATE DETECTION", "elset", "SET1"},
    {"*SUBCYCLING", "elset", "SET1"},
    {"*SURFACE SECTION", "elset", "SET1"},
    {"*UEL PROPERTY", "elset", "SET1"},
    {"*VARIABLE MASS SCALING", "elset", "SET1"},

    // -- node and element references in data, chosen by a parameter
    {"*NODAL ENERGY RATE", "generate", nullptr},
    {"*NODAL THICKNESS", "generate", nullptr},
    {"*MOTION", "element", nullptr},
    {"*DLOAD", "refnode", "1"},
    {"*DOMAIN DECOMPOSITION", "elset", "SET1"},
    {"*DISTRIBUTING COUPLING", "elset", "SET1"},
    {"*KINEMATIC COUPLING", "refnode", "1"},
    {"*PARAMETER SHAPE VARIATION", "nset", "SET1"},
    {"*EMBEDDED ELEMENT", "hostelset", "SET1"},
    {"*EMBEDDED ELEMENT", "embednodes", nullptr},
    {"*FASTENER", "referencenodeset", "SET1", "INTERACTION NAME=F1, PROPERTY=P1"},
    {"*FASTENER", "elset", "SET1", "INTERACTION NAME=F1, PROPERTY=P1"},
    {"*PRE-TENSION SECTION", "node", "1"},
    {"*PRE-TENSION SECTION", "element", "1"},
    {"*FLUID PROPERTY", "elset", "SET1"},
    {"*FLUID PROPERTY", "refnode", "1"},
    {"*SOLID SECTION", "elset", "SET1"},
    {"*SOLID SECTION", "refnode", "1"},
    {"*CONTACT PAIR", "adjust", "SET1|0.1|YES"},
    {"*CONTACT PAIR", "nsettied", "SET1"},
    {"*IMPERFECTION", "nset", "SET1"},
    {"*IMPERFECTION", "file", "OLD"},
    {"*STATIC", "riks", nullptr},
    {"*STATIC", "fullyplastic", "SET1"},
    {"*FREQUENCY", "nset", "SET1"},
    {"*FREQUENCY", "residualmodes", "YES"},
    {"*FREQUENCY", "eigensolver", "LANCZOS|SUBSPACE|AMS"},
    {"*ADAPTIVE MESH CONSTRAINT", "constrainttype", "SPATIAL"},
    {"*BOUNDARY", "phantom", "EDGE"},
    {"*CFLOW", "phantom", "EDGE"},
    {"*CLEARANCE", "bolt", nullptr},
    {"*CO-SIMULATION REGION", "type", "SURFACE|VOLUME|DISCRETE"},
    {"*CONTACT INTERFERENCE", "type", "CONTACTPAIR|ELEMENT"},
    {"*CONTOUR INTEGRAL", "cracktipnodes", nullptr},
    {"*CONTOUR INTEGRAL", "normal", nullptr},
    {"*DISTRIBUTION", "location", "ELEMENT|NODE", "NAME=DIST1"},
    {"*DISTRIBUTION", "table", "T1", "NAME=DIST1"},
    {"*DISTRIBUTION", "type", "SHELL3DSTIFFNESS", "NAME=DIST1"},
    {"*FIELD", "user", nullptr},
    {"*FIELD", "number", "2"},
    {"*FLUID INFLATOR", "type", "FLUIDCAVITY|COMBINED|EULERIAN"},
    {"*MODEL CHANGE", "type", "ELEMENT|CONTACTPAIR"},
    {"*NORMAL", "type", "ELEMENT|CONTACTSURFACE"},
    {"*ORIENTATION", "definition", "NODES|COORDINATES"},
    {"*PERIODIC MEDIA", "inletcontrolnode", "1"},
    {"*PERIODIC MEDIA", "outletcontrolnode", "2"},
    {"*PERIODIC MEDIA", "triggernode", "3"},
    {"*REBAR", "geometry", "ISOPARAMETRIC|SKEW"},
    {"*REBAR", "single", nullptr},
    {"*REBAR", "element", "CONTINUUM"},
    {"*SECTION FILE", "axes", "LOCAL"},
    {"*SECTION PRINT", "axes", "LOCAL"},
    {"*SLIDE LINE", "generate", nullptr},
    {"*SLIDE LINE", "elset", "SET1"},
    {"*SPATIAL DISTRIBUTION", "position", "NODES", "NAME=DIST1"},
    {"*SUBMODEL", "type", "ACOUSTICTOSTRUCTURE|SURFACE"},
    {"*TEMPERATURE", "drivingelsets", nullptr},
    {"*INITIAL CONDITIONS", "type",
     "FLUIDPRESSURE|MASSFLOWRATE|PRESSURESTRESS|RELATIVEDENSITY|SATURATION|VELOCITY|"
     "ACOUSTICSTATICPRESSURE|FIELD|POREPRESSURE|RATIO|TEMPERATURE|ROTATINGVELOCITY|HARDENING|"
     "SOLUTION|REFCOORDINATE|VOLUMEFRACTION|SPUDEMBEDMENT|SPUDPRELOAD|STRESS|POROSITY|"
     "SPECIFICENERGY|INITIALGAP|PLASTICSTRAIN|ENRICHMENT|CONTACT"},
    {"*INITIAL CONDITIONS", "drivingelsets", nullptr, "TYPE=TEMPERATURE"},
    {"*INITIAL CONDITIONS", "numberbackstresses", "2", "TYPE=HARDENING"},

    // -- surface names
    {"*ADJUST", "surface", "SURF1"},
    {"*COUPLING", "surface", "SURF1"},
    {"*EULERIAN MESH MOTION", "surface", "SURF1"},
    {"*FLUID CAVITY", "surface", "SURF1"},
    {"*FLUID EXCHANGE", "surface", "SURF1"},
    {"*INTEGRATED OUTPUT", "surface", "SURF1"},
    {"*INTEGRATED OUTPUT SECTION", "surface", "SURF1"},
    {"*PRE-TENSION SECTION", "surface", "SURF1"},
    {"*RADIATION FILE", "surface", "SURF1"},
    {"*RADIATION OUTPUT", "surface", "SURF1"},
    {"*SECTION FILE", "surface", "SURF1"},
    {"*SECTION PRINT", "surface", "SURF1"},
    {"*CLEARANCE", "master", "SURF1"},
    {"*CLEARANCE", "slave", "SURF2"},
    {"*CONTACT CONTROLS", "master", "SURF1"},
    {"*CONTACT CONTROLS", "slave", "SURF2"},
    {"*CONTACT FILE", "master", "SURF1"},
    {"*CONTACT FILE", "slave", "SURF2"},
    {"*CONTACT PRINT", "master", "SURF1"},
    {"*CONTACT PRINT", "slave", "SURF2"},
    {"*CONTACT RESPONSE", "master", "SURF1"},
    {"*CONTACT RESPONSE", "slave", "SURF2"},
    {"*DEBOND", "master", "SURF1"},
    {"*DEBOND", "slave", "SURF2"},
    {"*PRESSURE PENETRATION", "master", "SURF1"},
    {"*PRESSURE PENETRATION", "slave", "SURF2"},
    {"*CONTACT OUTPUT", "master", "SURF1"},
    {"*CONTACT OUTPUT", "slave", "SURF2"},
    {"*CONTACT OUTPUT", "surface", "SURF1"},
    {"*NONSTRUCTURAL MASS", "surface", "SURF1"},
    {"*CAVITY DEFINITION", "setproperty", nullptr},
    {"*CONTACT CONTROLS ASSIGNMENT", "automaticoverclosureresolution",
     "ADJUSTNODES|NOOFFSETS|OFF|STOREOFFSETS"},
    {"*CONTACT STABILIZATION", "scaleadaptive", nullptr},
    {"*CONTACT STABILIZATION", "reset", nullptr},
    {"*CONTACT STABILIZATION", "scalefactor", "USERADAPTIVE|0.5"},
    {"*TIE", "name", "T1"},

    // -- orientation names
    {"*COHESIVE SECTION", "orientation", "ORI1"},
    {"*DASHPOT", "orientation", "ORI1"},
    {"*DISCRETE SECTION", "orientation", "ORI1"},
    {"*DLOAD", "orientation", "ORI1"},
    {"*EPJOINT", "orientation", "ORI1"},
    {"*EULERIAN MESH MOTION", "orientation", "ORI1"},
    {"*GASKET SECTION", "orientation", "ORI1"},
    {"*JOINT", "orientation", "ORI1"},
    {"*MEMBRANE SECTION", "orientation", "ORI1"},
    {"*PERIODIC MEDIA", "orientation", "ORI1"},
    {"*PIPE-SOIL INTERACTION", "orientation", "ORI1"},
    {"*REBAR", "orientation", "ORI1"},
    {"*REBAR LAYER", "orientation", "ORI1"},
    {"*SHELL GENERAL SECTION", "orientation", "ORI1"},
    {"*SPRING", "orientation", "ORI1"},
    {"*UEL PROPERTY", "orientation", "ORI1"},
    {"*ORIENTATION", "name", "ORI1"},
    {"*FLUID INFLATOR PROPERTY", "name", "FIP1"},
    {"*FLUID INFLATOR", "name", "FI1"},
    {"*FLUID INFLATOR", "property", "FIP1"},
    {"*SHELL SECTION", "orientation", "ORI1"},
    {"*SHELL SECTION", "composite", nullptr},
    {"*SOLID SECTION", "orientation", "ORI1"},
    {"*SOLID SECTION", "composite", nullptr},

    // -- distribution names
    {"*MEMBRANE SECTION", "membranethickness", "DIST1"},
    {"*SHELL SECTION", "shellthickness", "DIST1"},
    {"*SHELL SECTION", "offset", "SPOS|SNEG|0.5|DIST1"},
    {"*SHELL SECTION", "material", "MAT1"},
    {"*SHELL GENERAL SECTION", "shellthickness", "DIST1"},
    {"*SHELL GENERAL SECTION", "offset", "SPOS|SNEG|0.5|DIST1"},
    {"*SHELL GENERAL SECTION", "composite", nullptr},
    {"*SHELL GENERAL SECTION", "material", "MAT1"},
    {"*SHELL GENERAL SECTION", "user", nullptr},

    // -- names that must not hold a period, and scoped names
    {"*PART", "name", "P1"},
    {"*INSTANCE", "name", "I1", "PART=P1"},
    {"*INSTANCE", "part", "P1", "NAME=I1"},
    {"*ASSEMBLY", "name", "A1"},
    {"*REBAR", "name", "R1"},

    // -- the instance transformation
    {"*IMPEDANCE PROPERTY", "type", "TABULAR|ELLIPTICAL|PROLATESPHEROID"},
    {"*WAVE", "type", "AIRY|STOKES|GRIDDED"},
    {"*BEAM SECTION", "section", "ELBOW|PIPE"},
    {"*BEAM GENERAL SECTION", "section", "GENERAL|ARBITRARY|MESHED|NONLINEARGENERAL"},
    {"*BEAM GENERAL SECTION", "taper", nullptr},
    {"*ORIENTATION", "system", "RECTANGULAR|ZRECTANGULAR|CYLINDRICAL|SPHERICAL"},
    {"*TRANSFORM", "type", "R|C|S", "NSET=SET1"},
    // (`input` on *IMPERFECTION is read into the data by the expansion itself,
    // so no later stage finds it.)
    {"*IMPERFECTION", "system", "R|C|S"},
    {"*PARAMETER SHAPE VARIATION", "system", "R|C|S"},
    {"*COUPLING", "constraintname", "C1"},

    // -- import and restart
    {"*IMPORT", "update", "YES|NO"},
    {"*IMPORT", "state", "YES|NO", "UPDATE=NO"},
    {"*IMPORT", "step", "1", "UPDATE=NO"},
    {"*IMPORT", "increment", "1", "UPDATE=NO"},
    {"*IMPORT", "interval", "1", "UPDATE=NO"},
    {"*IMPORT", "iteration", "1", "UPDATE=NO"},
    {"*IMPORT", "hourglass", nullptr, "UPDATE=NO"},
    {"*INSTANCE", "instance", "I1", "LIBRARY=OLD"},
    {"*INSTANCE", "library", "OLD", "INSTANCE=I1"},
    {"*PART", "library", "OLD", "NAME=P1"},
    {"*PART", "instance", "I1", "NAME=P1"},
    {"*PART", "state", "NO", "NAME=P1"},
    {"*PART", "step", "1", "NAME=P1"},
    {"*RESTART", "read", nullptr},
    {"*RESTART", "step", "1", "READ"},
    {"*RESTART", "inc", "1", "READ"},

    // -- the contact check of explicit jobs
    {"*CONTACT PAIR", "cpset", "CP1"},
    {"*CONTACT PAIR", "op", "ADD|DELETE"},
    {"*CONTACT OUTPUT", "cpset", "CP1"},
    {"*CONTACT OUTPUT", "variable", "ALL|PRESELECT"},
    {"*OUTPUT", "field", nullptr},
    {"*OUTPUT", "op", "NEW", "FIELD"},
    {"*OUTPUT", "numberinterval", "0", "FIELD"},
    {"*OUTPUT", "variable", "ALL|PRESELECT", "FIELD"},
    {"*DYNAMIC", "explicit", nullptr},
};

std::vector<std::string> alternatives(char const* values) {
    std::vector<std::string> result;
    if (!values) return {std::string()};
    std::string value;
    for (char const* c = values;; ++c) {
        if (*c == '|' || *c == '\0') {
            result.push_back(value);
            value.clear();
            if (*c == '\0') break;
        } else {
            value += *c;
        }
    }
    return result;
}

std::string upper(char const* text) {
    std::string result(text);
    for (char& c : result) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return result;
}

bool refusesNameOrValue(std::string const& message) {
    return message.find("Unknown parameter") != std::string::npos ||
           message.find("Ambiguous parameter") != std::string::npos ||
           message.find("Illegal value") != std::string::npos ||
           message.find("Ambiguous value") != std::string::npos;
}

using SchemaReferences = ExpandedDeck;

TEST_F(SchemaReferences, EveryParameterALaterStageReadsComesThroughTheExpansion) {
    std::vector<std::string> refused;
    int decks = 0;
    for (Reference const& reference : kReferences) {
        for (std::string const& value : alternatives(reference.values)) {
            std::string line = std::string(reference.keyword) + ", " + upper(reference.parameter);
            if (reference.values) line += "=" + value;
            if (*reference.with) line += std::string(", ") + reference.with;

            inp_KeywordExpansionVisitor expansion;
            cow_List<inp_Keyword> const expanded = expandWith(expansion, "ref.inp", line + "\n");
            ++decks;
            std::string problems;
            for (Messages const& list :
                 {texts(expansion.GetErrorList()), texts(expansion.GetFatalErrorList()),
                  texts(expansion.GetWarningList())})
                for (std::string const& message : list)
                    if (refusesNameOrValue(message)) problems += "\n    " + message;
            if (expanded.IsEmpty() || !expanded[0].HasParameter(reference.parameter))
                problems += "\n    the keyword does not hold the parameter";
            if (!problems.empty())
                refused.push_back(std::string(reference.keyword) + " " + reference.parameter +
                                  " (" + line + "):" + problems);
        }
    }
    std::string report;
    for (std::string const& entry : refused) report += "\n" + entry;
    EXPECT_TRUE(refused.empty()) << refused.size() << " of " << decks << " refused:" << report;
}

}  // namespace
