// What the deck writer writes must read back to the same deck: the same
// keywords, no diagnostic the deck did not have, and written again it must
// come out byte for byte the same. Checked over the decks of the repository,
// generated decks and random decks, and on the cases that used to lose data.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/inp_DeckGenerator.h"
#include "deck/inp_DeckWriter.h"
#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/RandomDeckWriter.h"
#include "tests/common/TempDeckDirectory.h"

namespace fs = std::filesystem;

namespace {

wip_WIP& sink() {
    return thr_ThreadSingleton<wip_WIP>::Instance();
}

// A diagnostic without the title that names its place: the place of a
// keyword moves when the deck is written anew.
std::string withoutPlace(atr_String const& text) {
    std::string message(text.View());
    if (message.rfind("in keyword ", 0) != 0) return message;
    size_t const line = message.find(", line ");
    size_t const colon = message.find(": ", line == std::string::npos ? 0 : line);
    return colon == std::string::npos ? message : message.substr(colon + 2);
}

int countKeywords(cow_List<inp_Keyword> const& keywords) {
    int count = 0;
    for (inp_Keyword const& keyword : keywords) count += 1 + countKeywords(keyword.Suboptions());
    return count;
}

// The whole road over one deck, as `fedeck tree` runs it.
struct RoadResult {
    int keywords = 0;
    bool errors = false;
    std::vector<std::string> diagnostics;
    std::string written;
};

RoadResult runRoad(cow_String const& path, cow_String const& includeDir) {
    sink().Clear();
    RoadResult result;
    inp_InputFile input;
    input.SetIncludePath(includeDir);
    input.Run(path, inp_Stage::Organize, inp_InputFile::RunRule::RunThrough);
    result.keywords = countKeywords(input.Keywords());
    for (wip_Diagnostic const& diagnostic : sink().Diagnostics()) {
        result.errors = result.errors || diagnostic.IsError();
        result.diagnostics.push_back(withoutPlace(diagnostic.text));
    }
    aio_ostringstream out;
    inp_DeckWriter(out).Write(input.Keywords());
    out.flush();
    result.written = std::string(out.Str().View());
    sink().Clear();
    return result;
}

// The deck at `path` round-trips; false when it has errors of its own or
// data that is never written (an encrypted include), and so is no case.
bool expectRoundTrip(cow_String const& path, cow_String const& includeDir,
                     TempDeckDirectory const& scratch) {
    RoadResult const original = runRoad(path, includeDir);
    if (original.errors ||
        original.written.find(inp_DeckWriter::kWithheldNote) != std::string::npos)
        return false;
    RoadResult const again = runRoad(scratch.Write("written.inp", original.written), includeDir);
    std::string const name(path.View());
    EXPECT_EQ(again.keywords, original.keywords) << name;
    for (std::string const& diagnostic : again.diagnostics)
        EXPECT_NE(std::find(original.diagnostics.begin(), original.diagnostics.end(), diagnostic),
                  original.diagnostics.end())
            << name << ": new diagnostic " << diagnostic;
    EXPECT_EQ(again.written, original.written) << name;
    return true;
}

std::vector<fs::path> decksOfTheRepository() {
    std::vector<fs::path> decks;
    fs::path const root = fs::path(__FILE__).parent_path().parent_path().parent_path();
    for (char const* folder : {"examples", "tests", "fuzz/corpus"})
        for (auto const& entry : fs::recursive_directory_iterator(root / folder))
            if (entry.is_regular_file() && entry.path().extension() == ".inp")
                decks.push_back(entry.path());
    std::sort(decks.begin(), decks.end());
    return decks;
}

}  // namespace

TEST(DeckWriterRoundTrip, DecksOfTheRepositoryReadBackTheSame) {
    TempDeckDirectory scratch;
    int checked = 0;
    for (fs::path const& deck : decksOfTheRepository()) {
        cow_String const path(deck.string().c_str());
        cow_String const directory(deck.parent_path().string().c_str());
        if (expectRoundTrip(path, directory, scratch)) ++checked;
    }
    EXPECT_GE(checked, 10);  // the example and the expansion corpus at least
}

TEST(DeckWriterRoundTrip, GeneratedDecksReadBackTheSame) {
    TempDeckDirectory scratch;
    for (int instances : {0, 3}) {
        inp_DeckLayout layout;
        layout.nx = 4;
        layout.ny = 3;
        layout.nz = 2;
        layout.instances = instances;
        std::string const path(scratch.Path("generated.inp").View());
        inp_WriteDeck(layout, path);
        EXPECT_TRUE(expectRoundTrip(path.c_str(), scratch.Directory(), scratch)) << instances;
    }
}

TEST(DeckWriterRoundTrip, RandomDecksWithoutErrorsReadBackTheSame) {
    TempDeckDirectory scratch;
    int checked = 0;
    for (unsigned seed = 1; seed <= 2500; ++seed) {
        cow_String const path = scratch.Write("random.inp", RandomDeckWriter(seed).Deck(1));
        if (expectRoundTrip(path, scratch.Directory(), scratch)) ++checked;
    }
    EXPECT_GE(checked, 300);  // a few hundred decks that read without errors
}

// Every line the writer wrote stays within what the reader takes.
void expectShortLines(std::string const& written) {
    for (size_t start = 0, end; (end = written.find('\n', start)) != std::string::npos;
         start = end + 1)
        EXPECT_LE(end - start, static_cast<size_t>(inp_DeckWriter::kMaxLineLength));
}

constexpr char kTwentySevenNodes[] =
    "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,\n"
    "16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27\n";

TEST(DeckWriterRoundTrip, FlatDeckKeepsTitlesAndDropsBlankRows) {
    TempDeckDirectory scratch;
    cow_String const path = scratch.Write("flat.inp",
                                          "*Heading\n"
                                          "Model A, first load case \"Quoted, Text\"\n"
                                          "*Node, nset=all\n"
                                          "1, 0., 0., 0.\n"
                                          "2, 1.5, 0., 0.\n"
                                          "\n"
                                          "\n"
                                          "*Element, type=C3D27\n"
                                          "2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,\n"
                                          "16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27\n"
                                          "\n"
                                          "*Step, name=\"Load step 1\", nlgeom\n"
                                          "First step, with a comma\n"
                                          "*Static\n"
                                          "*End Step\n");
    EXPECT_TRUE(expectRoundTrip(path, scratch.Directory(), scratch));
    std::string const written = runRoad(path, scratch.Directory()).written;
    EXPECT_EQ(
        written.rfind("*HEADING\nModel A, first load case \"Quoted, Text\"\n*NODE, NSET=ALL\n", 0),
        0u)
        << written;
    EXPECT_EQ(written.find("\n\n"), std::string::npos) << "a blank row was written:\n" << written;
    EXPECT_EQ(written.find("\n0, "), std::string::npos) << "a blank row was written:\n" << written;
    EXPECT_NE(written.find(std::string("*ELEMENT, TYPE=C3D27\n2, ") + kTwentySevenNodes),
              std::string::npos)
        << written;
    EXPECT_NE(written.find("*STEP, NAME=\"Load step 1\", NLGEOM\nFirst step, with a comma\n"
                           "*STATIC\n*END STEP\n"),
              std::string::npos)
        << written;
    expectShortLines(written);
}

TEST(DeckWriterRoundTrip, CompactDataOfAPartKeepsItsRowsAndNumbers) {
    TempDeckDirectory scratch;
    cow_String const path = scratch.Write("part.inp",
                                          "*Part, name=Brick\n"
                                          "*Node\n"
                                          "1, 0.1, 1e-300, -2.5e10\n"
                                          "\n"
                                          "2, 0.30000000000000004, 0., 0.\n"
                                          "*Element, type=C3D27\n"
                                          "1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,\n"
                                          "16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27\n"
                                          "*End Part\n");
    EXPECT_TRUE(expectRoundTrip(path, scratch.Directory(), scratch));
    std::string const written = runRoad(path, scratch.Directory()).written;
    EXPECT_NE(written.find("*NODE\n1, 0.1, 1e-300, -2.5e+10, 0, 0, 0\n"
                           "2, 0.30000000000000004, 0, 0, 0, 0, 0\n*ELEMENT"),
              std::string::npos)
        << written;
    EXPECT_NE(written.find(std::string("*ELEMENT, TYPE=C3D27\n1, ") + kTwentySevenNodes),
              std::string::npos)
        << written;
    expectShortLines(written);
}

// Every deck of the repository, whatever its errors, goes the whole road of
// a new job and the converter's road without a fault (the sanitizer build
// runs this too), and most of them come through clean.
TEST(DeckWriterRoundTrip, DecksOfTheRepositoryGoTheWholeRoad) {
    int clean = 0;
    for (fs::path const& deck : decksOfTheRepository()) {
        cow_String const path(deck.string().c_str());
        cow_String const directory(deck.parent_path().c_str());
        sink().Clear();
        inp_InputFile input;
        input.SetIncludePath(directory);
        input.Run(path, inp_Stage::OutOfPlace, inp_InputFile::RunRule::RunThrough);
        if (!sink().HasErrors()) ++clean;

        inp_InputFile converted;
        converted.SetIncludePath(directory);
        converted.Run(path, inp_Stage::ModelParameters, inp_InputFile::RunRule::RunThrough);
        converted.SetInOdbConverter(true);
        converted.ReorganizeKeywords(false);
    }
    sink().Clear();
    EXPECT_GE(clean, 8);  // the examples and the expansion corpus at least
}
