#include "bench/inp_KeywordDeckGenerator.h"

#include <algorithm>
#include <stdexcept>

#include "bench/inp_ChunkedFile.h"

namespace {

void writeLine(inp_ChunkedFile& out, std::int64_t nodes) {
    out.Line("*NODE");
    for (std::int64_t node = 1; node <= nodes; ++node) {
        out.Integer(node);
        out.Text(", ");
        out.Integer(node);
        out.Line(", 0., 0.");
    }
    out.Line("*ELEMENT, TYPE=T3D2, ELSET=BARS");
    for (std::int64_t element = 1; element < nodes; ++element) {
        out.Integer(element);
        out.Comma();
        out.Integer(element);
        out.Comma();
        out.Integer(element + 1);
        out.EndLine();
    }
    out.Line("*SOLID SECTION, ELSET=BARS, MATERIAL=STEEL");
    out.Line("1.");
    out.Line("*MATERIAL, NAME=STEEL");
    out.Line("*ELASTIC");
    out.Line("210000., 0.3");
}

// Keyword i names id i; ids beyond the mesh wrap around to its start.
void writeNamedSets(inp_ChunkedFile& out, int count, std::int64_t ids, bool elements) {
    for (int i = 1; i <= count; ++i) {
        out.Text(elements ? "*ELSET, ELSET=E" : "*NSET, NSET=N");
        out.Integer(i);
        out.EndLine();
        std::int64_t const first = (i - 1) % ids + 1;
        out.Integer(first);
        if (elements) {
            out.Comma();
            out.Integer(first % ids + 1);
            out.Comma();
            out.Integer((first + 1) % ids + 1);
        }
        out.EndLine();
    }
}

void writeStep(inp_ChunkedFile& out, inp_KeywordDeckLayout const& layout, std::int64_t nodes) {
    out.Line("*STEP");
    out.Line("*STATIC");
    for (int i = 1; i <= layout.boundaries; ++i) {
        out.Line("*BOUNDARY");
        out.Integer((i - 1) % nodes + 1);
        out.Line(", 1, 3");
    }
    for (int i = 1; i <= layout.concentrated; ++i) {
        out.Line("*CLOAD");
        out.Integer((i - 1) % nodes + 1);
        out.Line(", 2, 1.5");
    }
    out.Line("*END STEP");
}

}  // namespace

std::uint64_t inp_WriteKeywordDeck(inp_KeywordDeckLayout const& layout, std::string const& path) {
    if (layout.nodeSets < 0 || layout.elementSets < 0 || layout.boundaries < 0 ||
        layout.concentrated < 0)
        throw std::invalid_argument("keyword counts must not be negative");
    std::int64_t const nodes = std::max(
        {3, layout.nodeSets, layout.elementSets + 1, layout.boundaries, layout.concentrated});
    inp_ChunkedFile out(path);
    out.Line("*HEADING");
    out.Line("many small keywords");
    if (layout.mesh) writeLine(out, nodes);
    writeNamedSets(out, layout.nodeSets, nodes, false);
    writeNamedSets(out, layout.elementSets, nodes - 1, true);
    writeStep(out, layout, nodes);
    return out.Finish();
}
