// libFuzzer target for the deck parser and the first stages behind it.
//
// Each input becomes a deck file. If it holds the line "** file inc.inp", the
// bytes behind that line become a second file, inc.inp, in the same scratch
// directory, which is also the include path: so "*INCLUDE, INPUT=inc.inp" in
// the first part reaches the second, and the fuzzer can grow both. Without the
// line, inc.inp exists but is empty.
//
// Inputs that name device or process files are passed over: an include of
// /dev/zero or of a pipe would read forever, which says nothing about the
// parser.
//
// The deck goes the road of a new job (a strict parse, expansion and
// organization, run through whatever the errors), through the whole road of
// the flat model entry with every accessor called, and is parsed twice more:
// leniently, and strictly without data lines. Nothing is caught: for a file that exists the parser
// must report through its lists and never throw, and the stages must take whatever the parser made.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "parser/inp_Parser.h"
#include "pipeline/inp_InputFile.h"
#include "support/thr_Singleton.h"
#include "support/wip_WIP.h"
#include "tests/common/MeshWalks.h"
#include "tests/common/ModelEntryWalk.h"

namespace {

constexpr std::string_view kIncludeMarker = "** file inc.inp\n";

bool namesSpecialFiles(std::string_view input) {
    for (std::string_view directory : {"dev/", "proc/", "sys/"})
        if (input.find(directory) != std::string_view::npos) return true;
    return false;
}

// The per-process directory of the two files, rewritten for every input and
// removed at exit.
class ScratchDirectory {
  public:
    ScratchDirectory() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "fedeck-fuzz-XXXXXX").string();
        if (!mkdtemp(pattern.data())) std::abort();
        m_directory = pattern;
        m_deck = (m_directory / "deck.inp").string();
        m_include = (m_directory / "inc.inp").string();
    }
    ~ScratchDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(m_directory, ignored);
    }
    ScratchDirectory(ScratchDirectory const&) = delete;
    ScratchDirectory& operator=(ScratchDirectory const&) = delete;

    void WriteDeck(std::string_view bytes) const { write(m_deck, bytes); }
    void WriteInclude(std::string_view bytes) const { write(m_include, bytes); }
    cow_String Deck() const { return cow_String(m_deck.c_str()); }
    std::string const& DeckPath() const { return m_deck; }
    std::string DirectoryPath() const { return m_directory.string(); }
    cow_String Directory() const { return cow_String(m_directory.c_str()); }

  private:
    static void write(std::string const& path, std::string_view bytes) {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        if (!file) std::abort();
        bool const written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
        if (std::fclose(file) != 0 || !written) std::abort();
    }

    std::filesystem::path m_directory;
    std::string m_deck;
    std::string m_include;
};

ScratchDirectory const& scratch() {
    static ScratchDirectory const directory;
    return directory;
}

// Reads every record back, so that a damaged record shows up here under the
// sanitizers and not in some later user.
std::size_t walk(cow_List<inp_Keyword> const& keywords) {
    std::size_t cells = 0;
    for (inp_Keyword const& keyword : keywords) {
        cells +=
            keyword.Name().Length() + keyword.Parameters().Size() + keyword.Comments().Length();
        inp_DataArray const& data = keyword.Data();
        for (int row = 0; row < data.Rows(); ++row)
            cells += static_cast<std::size_t>(data.Cols(row));
    }
    return cells;
}

cow_List<inp_Keyword> parse(ScratchDirectory const& files, bool strict, bool bulk) {
    inp_Parser parser(files.Deck(), files.Directory(), cow_List<cow_String>(), cow_String(), strict,
                      bulk, false);
    cow_List<inp_Keyword> const keywords = parser.Parse(strict);
    volatile std::size_t sink = walk(keywords) + parser.GetErrors().Length() +
                                parser.GetWarnings().Length() + parser.GetFatalErrors().Length();
    (void)sink;
    return keywords;
}

// The library's road through organization, with the mesh walks over the
// expanded list and the extraction stages over the tree. The message sink is put back as
// it was afterwards, so that the diagnostics of every input don't pile up;
// they are read once on the way, as a caller would.
void runTheRoad(ScratchDirectory const& files) {
    wip_WIP& messages = thr_ThreadSingleton<wip_WIP>::Instance();
    std::size_t const before = messages.Diagnostics().size();
    inp_InputFile input;
    input.SetIncludePath(files.Directory());
    input.Run(files.Deck(), inp_Stage::Expand, inp_InputFile::RunRule::RunThrough);
    // The mesh walks read the expanded flat list, as the extraction of a
    // flat deck will; then the road goes on.
    std::size_t const made = static_cast<std::size_t>(RunMeshWalks(input.GetKeywords()));
    RunFakePartStages(input);
    input.Reorganize();
    RunExtractionStages(input);
    RunContinuationJob(input, input);
    cow_List<inp_Keyword> const& tree = input.Keywords();
    std::size_t cells = walk(tree) + made;
    for (inp_Keyword const& keyword : tree) cells += walk(keyword.Suboptions());
    for (wip_Diagnostic const& diagnostic : messages.Diagnostics())
        cells += static_cast<std::size_t>(diagnostic.text.Length());
    volatile std::size_t sink = cells;
    (void)sink;
    messages.ForgetFrom(before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    if (namesSpecialFiles(input)) return -1;
    std::size_t const marker = input.find(kIncludeMarker);
    ScratchDirectory const& files = scratch();
    if (marker == std::string_view::npos) {
        files.WriteDeck(input);
        files.WriteInclude({});
    } else {
        files.WriteDeck(input.substr(0, marker));
        files.WriteInclude(input.substr(marker + kIncludeMarker.size()));
    }
    runTheRoad(files);
    volatile std::size_t const modelRead =
        WalkModelEntry(files.DeckPath().c_str(), files.DirectoryPath().c_str());
    (void)modelRead;
    parse(files, false, true);
    parse(files, true, false);
    return 0;
}
