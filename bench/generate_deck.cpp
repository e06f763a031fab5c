// generate_deck NX NY NZ [INSTANCES] OUT.inp
// generate_deck --keywords NSETS ELSETS BOUNDARIES CLOADS OUT.inp
// Writes a structured hexahedral deck: flat, or with INSTANCES instances of
// one part; or a deck of many small keywords with the mesh they name.
// Prints what it wrote.

#include <charconv>
#include <cstdio>
#include <exception>
#include <string_view>

#include "bench/inp_DeckGenerator.h"
#include "bench/inp_KeywordDeckGenerator.h"

namespace {

bool parseCount(char const* text, int& value) {
    std::string_view const view(text);
    auto const [end, error] = std::from_chars(view.data(), view.data() + view.size(), value);
    return error == std::errc() && end == view.data() + view.size();
}

int usage() {
    std::fprintf(stderr,
                 "usage: generate_deck NX NY NZ [INSTANCES] OUT.inp\n"
                 "       generate_deck --keywords NSETS ELSETS BOUNDARIES CLOADS OUT.inp\n");
    return 2;
}

int writeKeywordDeck(char** argv) {
    inp_KeywordDeckLayout layout;
    if (!parseCount(argv[2], layout.nodeSets) || !parseCount(argv[3], layout.elementSets) ||
        !parseCount(argv[4], layout.boundaries) || !parseCount(argv[5], layout.concentrated))
        return usage();
    try {
        std::uint64_t const bytes = inp_WriteKeywordDeck(layout, argv[6]);
        std::printf("%s: %d *NSET, %d *ELSET, %d *BOUNDARY, %d *CLOAD, %.1f MB\n", argv[6],
                    layout.nodeSets, layout.elementSets, layout.boundaries, layout.concentrated,
                    bytes / 1e6);
    } catch (std::exception const& error) {
        std::fprintf(stderr, "generate_deck: %s\n", error.what());
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 7 && std::string_view(argv[1]) == "--keywords") return writeKeywordDeck(argv);
    if (argc != 5 && argc != 6) return usage();
    inp_DeckLayout layout;
    bool const valid = parseCount(argv[1], layout.nx) && parseCount(argv[2], layout.ny) &&
                       parseCount(argv[3], layout.nz) &&
                       (argc == 5 || parseCount(argv[4], layout.instances));
    if (!valid) return usage();
    char const* const path = argv[argc - 1];
    try {
        inp_DeckGenerator const generator(layout);
        std::uint64_t const bytes = generator.Write(path);
        std::printf("%s: %lld nodes, %lld elements, %d instances, %.1f MB\n", path,
                    static_cast<long long>(generator.NodeCount()),
                    static_cast<long long>(generator.ElementCount()), layout.instances,
                    bytes / 1e6);
    } catch (std::exception const& error) {
        std::fprintf(stderr, "generate_deck: %s\n", error.what());
        return 1;
    }
    return 0;
}
