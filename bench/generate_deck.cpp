// generate_deck NX NY NZ [INSTANCES] OUT.inp
// Writes a structured hexahedral deck: flat, or with INSTANCES instances of
// one part. Prints the counts and the size of what it wrote.

#include <charconv>
#include <cstdio>
#include <exception>
#include <string_view>

#include "bench/inp_DeckGenerator.h"

namespace {

bool parseCount(char const* text, int& value) {
    std::string_view const view(text);
    auto const [end, error] = std::from_chars(view.data(), view.data() + view.size(), value);
    return error == std::errc() && end == view.data() + view.size();
}

int usage() {
    std::fprintf(stderr, "usage: generate_deck NX NY NZ [INSTANCES] OUT.inp\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
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
