// Reads a deck through the installed library and prints the library's
// version and the number of keywords of the organized deck.

#include <fedeck/fedeck_Version.h>
#include <fedeck/pipeline/inp_InputFile.h>
#include <fedeck/pipeline/inp_Module.h>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: count_keywords DECK\n");
        return 2;
    }
    int modules = 0;
    ZELI2sInpMod_initialize(modules);
    int keywords = 0;
    {
        inp_InputFile input;
        input.Run(argv[1], inp_Stage::Organize, inp_InputFile::RunRule::RunThrough);
        keywords = input.Keywords().Length();
    }
    ZELI2sInpMod_finalize(modules);
    std::printf("fedeck %s: %d keywords\n", FEDECK_VERSION, keywords);
    return keywords > 0 ? 0 : 1;
}
