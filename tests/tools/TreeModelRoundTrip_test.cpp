// What `fedeck tree` writes reads back to the same model: the maps that
// `fedeck model` prints for a deck and for its written tree are the same,
// byte for byte, for decks in parts from the repository and the generator.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/inp_DeckGenerator.h"
#include "deck/inp_DeckWriter.h"
#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/TempDeckDirectory.h"
#include "tools/fedeck_Model.h"

namespace fs = std::filesystem;

namespace {

// The deck's tree as `fedeck tree` writes it, or its maps as `fedeck model`
// prints them after the whole road.
std::string treeOf(cow_String const& path, cow_String const& includeDir) {
    inp_InputFile input;
    input.SetIncludePath(includeDir);
    input.Run(path, inp_Stage::Organize, inp_InputFile::RunRule::RunThrough);
    aio_ostringstream out;
    inp_DeckWriter(out).Write(input.Keywords());
    out.flush();
    return std::string(out.Str().View());
}

std::string mapsOf(cow_String const& path, cow_String const& includeDir) {
    inp_InputFile input;
    input.SetIncludePath(includeDir);
    input.Run(path, inp_Stage::OutOfPlace, inp_InputFile::RunRule::RunThrough);
    aio_ostringstream out;
    fedeck_WriteModelFields(out, input);
    out.flush();
    return std::string(out.Str().View());
}

void expectSameMaps(fs::path const& deck, TempDeckDirectory const& scratch) {
    cow_String const path(deck.string().c_str());
    cow_String const directory(deck.parent_path().string().c_str());
    std::string const original = mapsOf(path, directory);
    cow_String const written = scratch.Write("written.inp", treeOf(path, directory));
    EXPECT_EQ(mapsOf(written, directory), original) << deck;
    EXPECT_NE(original.find("\"partsAndAssembly\": true"), std::string::npos) << original;
}

}  // namespace

TEST(TreeModelRoundTrip, DecksInPartsGiveTheSameMapsWrittenAndRead) {
    TempDeckDirectory scratch;
    fs::path const root = fs::path(__FILE__).parent_path().parent_path().parent_path();
    for (char const* deck : {"examples/beam.inp", "examples/model_example.inp",
                             "tests/expansion/corpus/contact_punch.inp",
                             "tests/expansion/corpus/static_plate_stiffener.inp",
                             "tests/expansion/corpus/dynamic_frame_implicit.inp"})
        expectSameMaps(root / deck, scratch);
    inp_DeckLayout layout;
    layout.nx = layout.ny = layout.nz = 3;
    layout.instances = 3;
    std::string const generated(scratch.Path("generated.inp").View());
    inp_WriteDeck(layout, generated);
    expectSameMaps(generated, scratch);
    thr_ThreadSingleton<wip_WIP>::Instance().Clear();
}
