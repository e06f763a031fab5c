// The program as its users meet it: run as a separate process, judged by its
// exit status and the exact text it writes.

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "fedeck_Version.h"
#include "pipeline/inp_InputFile.h"
#include "support/aio_Stream.h"
#include "tools/fedeck_Report.h"

namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

std::string readFile(fs::path const& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Each test gets a directory of its own, which is also the program's working
// directory, so that decks are named as a user in that directory would.
class FedeckProgram : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "fedeck_cli_XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        m_dir = pattern;
    }
    void TearDown() override { fs::remove_all(m_dir); }

    void write(std::string const& name, std::string const& text) const {
        std::ofstream(m_dir / name, std::ios::binary) << text;
    }
    fs::path path(std::string const& name) const { return m_dir / name; }

    Outcome run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), FEDECK_CLI_PATH);
        pid_t const child = fork();
        if (child == 0) runChild(arguments);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return {WEXITSTATUS(status), readFile(m_dir / ".out"), readFile(m_dir / ".err")};
    }

    // Runs the program with its standard error on a terminal of its own and
    // its standard output in a file; what the terminal showed.
    std::string runOnTerminal(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), FEDECK_CLI_PATH);
        int terminal = -1;
        pid_t const child = forkpty(&terminal, nullptr, nullptr, nullptr);
        if (child == 0) {
            if (chdir(m_dir.c_str()) != 0) _exit(127);
            dup2(open(".out", O_WRONLY | O_CREAT | O_TRUNC, 0644), STDOUT_FILENO);
            execArguments(arguments);
        }
        std::string shown;
        char buffer[256];
        for (ssize_t got; (got = read(terminal, buffer, sizeof buffer)) > 0;)
            shown.append(buffer, static_cast<size_t>(got));
        close(terminal);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return shown;
    }

  private:
    [[noreturn]] static void execArguments(std::vector<std::string> const& arguments) {
        std::vector<char*> argv;
        for (std::string const& argument : arguments)
            argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        execv(argv[0], argv.data());
        _exit(127);
    }

    [[noreturn]] void runChild(std::vector<std::string> const& arguments) const {
        std::vector<char*> argv;
        for (std::string const& argument : arguments)
            argv.push_back(const_cast<char*>(argument.c_str()));
        argv.push_back(nullptr);
        if (chdir(m_dir.c_str()) != 0) _exit(127);
        dup2(open(".out", O_WRONLY | O_CREAT | O_TRUNC, 0644), STDOUT_FILENO);
        dup2(open(".err", O_WRONLY | O_CREAT | O_TRUNC, 0644), STDERR_FILENO);
        execv(argv[0], argv.data());
        _exit(127);
    }

    fs::path m_dir;
};

constexpr char kCleanDeck[] = "*HEADING\nplate\n*NODE, NSET=ALL\n1, 0., 0.\n2, 1., 0.\n";
constexpr char kUnknownKeywordText[] =
    R"(Unknown keyword "frobnicate". The keyword may be misspelled, obsolete, or invalid.)";

// The keyword list of a deck as the library prints it, encrypted data included.
std::string parsedKeywords(fs::path const& deck) {
    inp_InputFile file;
    file.Parse(cow_String(deck.c_str()));
    aio_ostringstream out;
    file.Print(out);
    return std::string(out.Str().View());
}

}  // namespace

// Several decks checked for a terminal: a progress line that each deck
// overwrites, cleared at the end; never on standard output, never when
// standard error is no terminal.
TEST_F(FedeckProgram, ManyDecksShowProgressOnlyOnATerminal) {
    write("a.inp", kCleanDeck);
    write("b.inp", kCleanDeck);
    std::string const shown = runOnTerminal({"check", "a.inp", "b.inp"});
    EXPECT_NE(shown.find("\rfedeck: checked 1 of 2 decks"), std::string::npos) << shown;
    EXPECT_NE(shown.find("\rfedeck: checked 2 of 2 decks\r\x1b[K"), std::string::npos) << shown;
    std::string const report = readFile(path(".out"));
    EXPECT_EQ(report.find("checked"), std::string::npos) << report;
    EXPECT_NE(report.find("fedeck: 2 decks, 0 with errors"), std::string::npos) << report;
    EXPECT_EQ(run({"check", "a.inp", "b.inp"}).err, "");
}

TEST_F(FedeckProgram, HelpGoesToStandardOutputAndSucceeds) {
    for (char const* help : {"--help", "help"}) {
        Outcome const result = run({help});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out.rfind("Usage:\n", 0), 0u) << help;
        EXPECT_NE(result.out.find("level 0 or 2"), std::string::npos);
        EXPECT_EQ(result.err, "");
    }
}

TEST_F(FedeckProgram, VersionGoesToStandardOutputAndSucceeds) {
    for (std::vector<std::string> const& arguments :
         {std::vector<std::string>{"--version"}, {"version"}, {"check", "--version", "x.inp"}}) {
        Outcome const result = run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.out, std::string("fedeck ") + FEDECK_VERSION + "\n");
        EXPECT_EQ(result.err, "");
    }
}

TEST_F(FedeckProgram, UsageErrorsExitWithTwoAndUsageOnStandardError) {
    write("deck.inp", kCleanDeck);
    std::vector<std::pair<std::vector<std::string>, std::string>> const cases = {
        {{}, "fedeck: no command given\n"},
        {{"lint", "deck.inp"}, "fedeck: unknown command 'lint'\n"},
        {{"check", "--frob", "deck.inp"}, "fedeck: unknown option '--frob'\n"},
        {{"check"}, "fedeck: 'check' needs at least one DECK\n"},
        {{"check", "deck.inp", "--include-dir"}, "fedeck: option '--include-dir' needs a value\n"},
        {{"tree", "--json", "deck.inp"}, "fedeck: option '--json' does not apply to 'tree'\n"},
        {{"encrypt", "a", "b"}, "fedeck: 'encrypt' needs a non-empty --password\n"},
        {{"model"}, "fedeck: 'model' needs DECK\n"},
        {{"model", "deck.inp", "other.inp"}, "fedeck: 'model' needs DECK\n"},
        {{"model", "--json", "deck.inp"}, "fedeck: option '--json' does not apply to 'model'\n"},
        {{"model", "--password=p", "deck.inp"},
         "fedeck: option '--password' does not apply to 'model'\n"},
        {{"model", "deck.inp", "--until"}, "fedeck: option '--until' needs a value\n"},
        {{"model", "--until=mesh", "deck.inp"},
         "fedeck: unknown stage 'mesh'; known stages: parse, expand, model-parameters, "
         "import-validity, names, "
         "organize, fake-part, scoped-names, part-maps, assembly-maps, out-of-place\n"},
        {{"check", "--until", "mesh", "deck.inp"},
         "fedeck: unknown stage 'mesh'; known stages: parse, expand, model-parameters, "
         "import-validity, names, "
         "organize, fake-part, scoped-names, part-maps, assembly-maps, out-of-place\n"},
    };
    for (auto const& [arguments, message] : cases) {
        Outcome const result = run(arguments);
        EXPECT_EQ(result.status, 2) << message;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.rfind(message + "\nUsage:\n", 0), 0u) << result.err;
    }
}

TEST_F(FedeckProgram, UnreadableDeckExitsWithTwoAndNoReport) {
    for (char const* option : {"--json", "--until=parse"}) {
        Outcome const result = run({"check", option, "missing.inp"});
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_NE(result.err.find("fedeck: cannot read deck: missing.inp\n"), std::string::npos);
    }
}

TEST_F(FedeckProgram, CleanDeckSucceedsWithSummaryAndJson) {
    write("deck.inp", kCleanDeck);
    Outcome const text = run({"check", "./deck.inp"});
    EXPECT_EQ(text.status, 0);
    EXPECT_EQ(text.out, "./deck.inp: 8 keywords, 0 errors, 0 warnings\n");
    Outcome const json = run({"check", "--json", "deck.inp", "--until", "parse"});
    EXPECT_EQ(json.status, 0);
    EXPECT_EQ(json.out,
              R"({"deck": "deck.inp", "stage": "parse", "keywords": 2, "diagnostics": [], )"
              R"("includedFiles": [], "missingIncludeFiles": [], )"
              R"("counts": {"parts": 0, "instances": 0, "nodes": 0, "elements": 0, )"
              R"("nodeSets": 0, "elementSets": 0, "surfaces": 0}})"
              "\n");
}

// Each stage relies on a sound result of the one before, so the first stage
// that reports errors is the last to run; --until stops earlier on request.
TEST_F(FedeckProgram, ChecksStopAtTheStageThatReportsErrors) {
    write("unknown.inp", "*HEADING, TITLE=X\n*NODE\n1, 0., 0.\n");
    Outcome const expand = run({"check", "--json", "unknown.inp"});
    EXPECT_EQ(expand.status, 1);
    EXPECT_NE(expand.out.find(R"("stage": "expand")"), std::string::npos) << expand.out;
    EXPECT_NE(expand.out.find("Unknown parameter: title."), std::string::npos) << expand.out;

    // Stopped at the organizer, a flat deck is organized as written; on the
    // whole road it is made a part first, which takes the late *NODE.
    write("late.inp", "*STEP\n*STATIC\n*END STEP\n*NODE\n1, 0., 0.\n");
    EXPECT_EQ(run({"check", "late.inp"}).status, 0);
    Outcome const organize = run({"check", "--json", "--until", "organize", "late.inp"});
    EXPECT_EQ(organize.status, 1);
    EXPECT_NE(organize.out.find(R"("stage": "organize")"), std::string::npos) << organize.out;
    EXPECT_NE(organize.out.find("The keyword is misplaced."), std::string::npos) << organize.out;
    EXPECT_EQ(run({"check", "--until", "expand", "late.inp"}).status, 0);
}

TEST_F(FedeckProgram, UnknownKeywordIsAnErrorInTextAndJson) {
    write("deck.inp", "*FROBNICATE\n*NODE\n1, 0., 0.\n");
    Outcome const text = run({"check", "deck.inp"});
    EXPECT_EQ(text.status, 1);
    EXPECT_EQ(text.out, std::string("deck.inp:1: error: ") + kUnknownKeywordText +
                            "\ndeck.inp: 1 keyword, 1 error, 0 warnings (stopped after parse)\n");
    Outcome const json = run({"check", "--json", "deck.inp"});
    EXPECT_EQ(json.status, 1);
    EXPECT_NE(json.out.find(R"("diagnostics": [{"severity": "error", "level": 1, "text": )"
                            R"("Unknown keyword \"frobnicate\". The keyword may be misspelled, )"
                            R"(obsolete, or invalid.", "file": "deck.inp", "line": 1, )"
                            R"("keyword": "FROBNICATE"}])"),
              std::string::npos)
        << json.out;
}

// Every diagnostic names the file and line it concerns, in the form editors
// and CI systems read: the deck's own lines, an include file's lines (parse
// errors and stage messages alike), and the keyword in the JSON.
TEST_F(FedeckProgram, DiagnosticsPointToTheirFileAndLine) {
    std::string deck = "*HEADING\nplate\n";
    for (int line = 3; line < 12; ++line) deck += "** comment\n";
    write("deck.inp", deck + "*FROBNICATE\n");
    EXPECT_EQ(run({"check", "deck.inp"}).out.rfind("deck.inp:12: error: Unknown keyword", 0), 0u);

    fs::create_directory(path("inc"));
    write("inc/part.inp", "*NODE\n1, 0., 0.\n*FROBNICATE\n");
    write("top.inp", "*HEADING\n*INCLUDE, INPUT=inc/part.inp\n");
    Outcome const parse = run({"check", "top.inp"});
    EXPECT_EQ(parse.status, 1);
    EXPECT_NE(parse.out.find("inc/part.inp:3: error: Unknown keyword"), std::string::npos)
        << parse.out;

    write("inc/part.inp", "*NODE\n1, 0., 0.\n*ELSET, ELSET=E, FROB\n1\n");
    Outcome const stage = run({"check", "--json", "top.inp"});
    EXPECT_EQ(stage.status, 1);
    EXPECT_NE(stage.out.find(R"(inc/part.inp", "line": 3, "keyword": "ELSET"})"), std::string::npos)
        << stage.out;
}

// A deck's include files are found beside it, wherever it is checked from;
// --include-dir still decides where it is given.
TEST_F(FedeckProgram, IncludesBesideTheDeckAreFoundFromAnyDirectory) {
    fs::create_directories(path("model/other"));
    write("model/deck.inp", "*HEADING\n*INCLUDE, INPUT=nodes.inp\n");
    write("model/nodes.inp", "*NODE\n1, 0., 0.\n");
    write("model/other/nodes.inp", "*FROBNICATE\n");
    EXPECT_EQ(run({"check", "model/deck.inp"}).out,
              "model/deck.inp: 7 keywords, 0 errors, 0 warnings\n");
    EXPECT_EQ(run({"check", "--include-dir", "model/other", "model/deck.inp"}).status, 1);
}

TEST_F(FedeckProgram, WarningsAloneSucceedAndCarryNoLevel) {
    write("deck.inp", "*NODE, NSET=A, NSET=B\n1, 0., 0.\n");
    Outcome const json = run({"check", "--json", "deck.inp"});
    EXPECT_EQ(json.status, 0);
    EXPECT_NE(json.out.find(R"({"severity": "warning", "level": null, "text": "in keyword *NODE)"),
              std::string::npos)
        << json.out;
}

// After the whole road the checker also runs the checks no stage runs: a
// material name that is not UTF-8 is an error, a step subheading that is
// not is removed with a warning. A run that stops earlier skips them.
TEST_F(FedeckProgram, NamesThatAreNotUtf8AreReportedAfterTheWholeRoad) {
    write("deck.inp", "*MATERIAL, NAME=\"A\xFF\"\n*STEP\nbad \xC3 heading\n*STATIC\n*END STEP\n");
    Outcome const whole = run({"check", "deck.inp"});
    EXPECT_EQ(whole.status, 1);
    EXPECT_NE(whole.out.find("Parameter \"name\" value is not UTF-8 compliant."), std::string::npos)
        << whole.out;
    EXPECT_NE(whole.out.find("Step subheading is not UTF-8 compliant and has been removed."),
              std::string::npos)
        << whole.out;
    Outcome const early = run({"check", "--until", "expand", "deck.inp"});
    EXPECT_EQ(early.out.find("UTF-8"), std::string::npos) << early.out;
}

TEST_F(FedeckProgram, JsonStaysValidForAnyBytesInNamesAndMessages) {
    write("a\"b\\c\nd.inp", "*FOO\xFF\n");
    Outcome const result = run({"check", "--json", "a\"b\\c\nd.inp"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out.rfind(R"({"deck": "a\"b\\c\u000ad.inp")", 0), 0u) << result.out;
    EXPECT_NE(result.out.find("Unknown keyword \\\"foo\xEF\xBF\xBD\\\""), std::string::npos)
        << result.out;
}

TEST_F(FedeckProgram, MissingIncludeIsFatalAndListed) {
    fs::create_directory(path("inc"));
    write("inc/part.inp", "*NODE\n1, 0., 0.\n");
    write("deck.inp", "*HEADING\n*INCLUDE, INPUT=part.inp\n*INCLUDE, INPUT=gone.inp\n");
    Outcome const found = run({"check", "--json", "--include-dir", "inc", "deck.inp"});
    EXPECT_EQ(found.status, 1);
    EXPECT_NE(
        found.out.find(R"("includedFiles": ["part.inp"], "missingIncludeFiles": ["gone.inp"], )"),
        std::string::npos)
        << found.out;
    Outcome const text = run({"check", "deck.inp"});
    EXPECT_EQ(text.out,
              "deck.inp:2: fatal error: Include file \"part.inp\" does not exist.\n"
              "deck.inp:3: fatal error: Include file \"gone.inp\" does not exist.\n"
              "deck.inp: 1 keyword, 2 errors, 0 warnings (stopped after parse)\n");
}

TEST_F(FedeckProgram, TreeOutputParsesBackToTheSameKeywords) {
    write("part.inp", "*ELEMENT, TYPE=T2D2, ELSET=BARS\n1, 1, 2\n");
    write("deck.inp", std::string(kCleanDeck) + "*INCLUDE, INPUT=part.inp\n");
    Outcome const tree = run({"tree", "--until", "organize", "deck.inp"});
    EXPECT_EQ(tree.status, 0) << tree.err;
    write("printed.inp", tree.out);
    Outcome const again = run({"tree", "--until", "organize", "printed.inp"});
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(again.out, tree.out);
    EXPECT_EQ(run({"check", "--until", "organize", "printed.inp"}).out,
              "printed.inp: 3 keywords, 0 errors, 0 warnings\n");
}

// By default the tree is the converter's: a flat deck as the part, instance
// and assembly it becomes, its mesh written into the part, which a second
// run reads as a deck in parts with the same model.
TEST_F(FedeckProgram, TreeShowsAFlatDeckAsItsGeneratedPart) {
    write("deck.inp",
          "*NODE, NSET=ALL\n1, 0., 0.\n2, 1., 0.\n*ELEMENT, TYPE=T2D2, ELSET=BARS\n"
          "1, 1, 2\n*STEP\n*STATIC\n*BOUNDARY\nALL, 1, 2\n*END STEP\n");
    Outcome const tree = run({"tree", "deck.inp"});
    EXPECT_EQ(tree.status, 0) << tree.err;
    for (char const* expected :
         {"*PART, NAME=PART-1\n", "*NODE\n1, 0, 0, 0\n2, 1, 0, 0\n",
          "*ELEMENT, TYPE=T2D2\n1, 1, 2\n", "*INSTANCE, NAME=PART-1-1, PART=PART-1\n",
          "*BOUNDARY\nPART-1-1.ALL,1,2\n"})
        EXPECT_NE(tree.out.find(expected), std::string::npos) << expected << "\n" << tree.out;
    write("printed.inp", tree.out);
    Outcome const check = run({"check", "--json", "printed.inp"});
    EXPECT_EQ(check.status, 0) << check.out;
    EXPECT_NE(check.out.find(R"("instances": 1, "nodes": 2, "elements": 1)"), std::string::npos)
        << check.out;
}

TEST_F(FedeckProgram, TreeOfADeckWithErrorsIsPrintedAllTheSame) {
    write("deck.inp", std::string(kCleanDeck) + "*FROBNICATE\n");
    Outcome const tree = run({"tree", "deck.inp"});
    EXPECT_EQ(tree.status, 1);
    EXPECT_EQ(tree.err, std::string("deck.inp:6: error: ") + kUnknownKeywordText + "\n");
    EXPECT_NE(tree.out.find("*NODE, NSET=ALL\n1, 0., 0.\n"), std::string::npos) << tree.out;
}

TEST_F(FedeckProgram, EncryptedIncludeReadsAsThePlainFileButTreeHidesItsData) {
    write("part.inp", "*NODE, NSET=ALL\n1, 0., 0.\n** between\n*ELEMENT, TYPE=T2D2\n1, 1, 2\n");
    Outcome const encrypt = run({"encrypt", "--password", "pw", "part.inp", "part.enc"});
    EXPECT_EQ(encrypt.status, 0) << encrypt.err;
    EXPECT_EQ(readFile(path("part.enc")).find("NODE"), std::string::npos);
    write("plain.inp", "*INCLUDE, INPUT=part.inp\n");
    write("secret.inp", "*INCLUDE, INPUT=part.enc, PASSWORD=pw\n");
    EXPECT_EQ(run({"check", "--until", "organize", "secret.inp"}).out,
              "secret.inp: 2 keywords, 0 errors, 0 warnings\n");
    EXPECT_EQ(parsedKeywords(path("secret.inp")), parsedKeywords(path("plain.inp")));
    EXPECT_EQ(run({"tree", "--until", "organize", "secret.inp"}).out,
              "*NODE, NSET=ALL\n** data lines from an encrypted file are not shown\n"
              "*ELEMENT, TYPE=T2D2\n** data lines from an encrypted file are not shown\n");
    // Made a part, the mesh is written anew from the maps: none of it shows.
    Outcome const converted = run({"tree", "secret.inp"});
    EXPECT_NE(converted.out.find("*PART, NAME=PART-1\n"), std::string::npos) << converted.out;
    EXPECT_EQ(converted.out.find("1, 0, 0"), std::string::npos) << converted.out;
    EXPECT_EQ(converted.out.find("1,\n"), std::string::npos) << converted.out;
    EXPECT_NE(converted.out.find("** data lines from an encrypted file are not shown"),
              std::string::npos);
}

TEST_F(FedeckProgram, EncryptFailuresTellUnreadableInputFromOthers) {
    write("part.inp", "*NODE\n1, 0., 0.\n");
    Outcome const unreadable = run({"encrypt", "--password=pw", "nothere.inp", "out.enc"});
    EXPECT_EQ(unreadable.status, 2);
    EXPECT_EQ(unreadable.err, "fedeck: cannot read input: nothere.inp\n");
    Outcome const unwritable = run({"encrypt", "--password=pw", "part.inp", "no/dir/out.enc"});
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_EQ(unwritable.err.rfind("fedeck: ", 0), 0u);
}

// Bytes that are not printable UTF-8 reach the terminal as \xNN; printable
// UTF-8 (a name in Greek, say) as it is.
TEST_F(FedeckProgram, UnprintableBytesOfADeckAreEscapedInTextButNotLost) {
    std::string deck = "*FROB\x01\x1b[2J\xff\n*NODE\n1, 0., 0.\n";
    deck += "*MATERIAL, NAME=\xce\xb1\xce\xb2\n";
    write("binary.inp", deck);
    Outcome const text = run({"check", "binary.inp"});
    EXPECT_EQ(text.out.find('\x1b'), std::string::npos) << text.out;
    EXPECT_EQ(text.out.find('\xff'), std::string::npos);
    EXPECT_NE(text.out.find("frob\\x01\\x1b[2j\\xff"), std::string::npos) << text.out;
    EXPECT_NE(text.out.find("\xce\xb1\xce\xb2"), std::string::npos);
    for (char const c : text.out)
        EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20) << text.out;
}

// Files that are no deck at all get a short report that says what is wrong,
// however long they are.
TEST_F(FedeckProgram, FilesThatAreNoDeckGiveAShortReport) {
    std::mt19937 random(19);
    std::string binary;
    for (int k = 0; k < 200000; ++k) binary += static_cast<char>(random() % 256);
    std::erase(binary, '*');  // no keyword line by chance
    std::string unknown;
    for (int k = 0; k < 200000; ++k) unknown += "*FROB" + std::to_string(k % 1000) + "\n1\n";
    write("stars.inp", "*\n*\n  *\n*,\n");
    write("empty.inp", "");
    write("binary.inp", binary);
    write("unknown.inp", unknown);
    std::string const noKeyword =
        ": warning: No keyword line was found in the deck; every line of it was passed over.\n";
    for (char const* deck : {"stars.inp", "empty.inp", "binary.inp"}) {
        Outcome const report = run({"check", deck});
        EXPECT_EQ(report.status, 0) << deck;
        EXPECT_NE(report.out.find(deck + noKeyword), std::string::npos) << report.out;
        // Binary bytes make many overlong lines: a hundred warnings of that
        // kind, then one line for the rest.
        EXPECT_LE(std::count(report.out.begin(), report.out.end(), '\n'),
                  static_cast<long>(fedeck_Report::kShownOfOneKind) + 3)
            << deck;
    }
    Outcome const binaryReport = run({"check", "binary.inp"});
    EXPECT_NE(binaryReport.out.find(" more like \"Line #"), std::string::npos) << binaryReport.out;
    Outcome const many = run({"check", "unknown.inp"});
    EXPECT_EQ(many.status, 1);
    EXPECT_EQ(std::count(many.out.begin(), many.out.end(), '\n'), 28) << many.out;
    EXPECT_NE(many.out.find("unknown.inp:3: error: Unknown keyword \"frob1\"."), std::string::npos);
    EXPECT_EQ(many.out.find("passed over"), std::string::npos);
}

TEST_F(FedeckProgram, MaxDiagnosticsLimitsTheTextButNotTheJson) {
    std::string deck;
    for (int i = 0; i < 5; ++i) deck += "*FROBNICATE\n";
    write("many.inp", deck);
    Outcome const limited = run({"check", "--max-diagnostics", "2", "many.inp"});
    EXPECT_EQ(limited.status, 1);
    std::string const tail =
        "fedeck: 3 more diagnostics not shown\n"
        "many.inp: 0 keywords, 5 errors, 0 warnings (stopped after parse)\n";
    ASSERT_GE(limited.out.size(), tail.size());
    EXPECT_EQ(limited.out.substr(limited.out.size() - tail.size()), tail) << limited.out;
    EXPECT_EQ(std::count(limited.out.begin(), limited.out.end(), '\n'), 4);
    EXPECT_EQ(run({"check", "--max-diagnostics=0", "many.inp"}).out.find("many.inp:1"),
              std::string::npos);
    Outcome const json = run({"check", "--json", "--max-diagnostics", "1", "many.inp"});
    size_t texts = 0;
    for (size_t at = 0; (at = json.out.find("\"severity\"", at)) != std::string::npos; ++at)
        ++texts;
    EXPECT_EQ(texts, 5u);
    for (char const* bad : {"-1", "two", ""}) {
        Outcome const usage = run({"check", std::string("--max-diagnostics=") + bad, "many.inp"});
        EXPECT_EQ(usage.status, 2) << bad;
        EXPECT_NE(usage.err.find("option '--max-diagnostics' needs a count"), std::string::npos);
    }
}

// A continuation job reports on the later deck alone, unless the earlier one
// has errors: then there is no model to go on from.
TEST_F(FedeckProgram, ARestartIsCheckedAgainstTheModelOfTheEarlierDeck) {
    write("earlier.inp",
          "*NODE\n1, 0., 0.\n2, 1., 0.\n*ELEMENT, TYPE=T2D2, ELSET=BAR\n1, 1, 2\n"
          "*NSET, NSET=ENDS\n1, 2\n");
    write("later.inp", "*NSET, NSET=LEFT\n1\n*NSET, NSET=ENDS\n2\n");
    Outcome const later = run({"check", "--json", "--restart-from", "earlier.inp", "later.inp"});
    EXPECT_EQ(later.status, 1);
    EXPECT_NE(later.out.find(R"("deck": "later.inp", "stage": "inherit-part-map")"),
              std::string::npos)
        << later.out;
    EXPECT_NE(later.out.find("the set ENDS already exists in the original analysis"),
              std::string::npos)
        << later.out;
    EXPECT_EQ(later.out.find("LEFT"), std::string::npos) << later.out;

    write("broken.inp", "*FROBNICATE\n");
    Outcome const broken = run({"check", "--restart-from=broken.inp", "later.inp"});
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.out.find("broken.inp:1: error: "), 0u) << broken.out;
    EXPECT_EQ(broken.out.find("later.inp"), std::string::npos) << broken.out;

    EXPECT_EQ(run({"check", "--restart-from", "missing.inp", "later.inp"}).status, 2);
    Outcome const withUntil =
        run({"check", "--restart-from", "earlier.inp", "--until", "parse", "later.inp"});
    EXPECT_EQ(withUntil.status, 2);
    EXPECT_NE(withUntil.err.find("'--until' does not apply to a continuation job"),
              std::string::npos);
}

// The converter's tree in the global frame: a moved instance's local
// system turned, its equation nodes given a *TRANSFORM and the set it
// names; an instance that stays is written as it was. What comes out reads
// back clean.
TEST_F(FedeckProgram, TreeGlobalWritesMovedInstancesInTheGlobalFrame) {
    write("deck.inp",
          "*PART, NAME=P\n*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n"
          "*ELEMENT, TYPE=T3D2, ELSET=E\n1, 1, 2\n*SOLID SECTION, ELSET=E, MATERIAL=M\n"
          "1.\n*END PART\n*ASSEMBLY, NAME=A\n*INSTANCE, NAME=I, PART=P\n10., 0., 0.\n"
          "0., 0., 0., 0., 0., 1., 90.\n*ORIENTATION, NAME=OR\n1., 0., 0., 0., 1., 0.\n"
          "*EQUATION\n2\n1, 1, 1., 2, 1, -1.\n*END INSTANCE\n"
          "*INSTANCE, NAME=J, PART=P\n*ORIENTATION, NAME=OJ\n1., 0., 0., 0., 1., 0.\n"
          "*END INSTANCE\n*END ASSEMBLY\n*MATERIAL, NAME=M\n*ELASTIC\n1., 0.3\n");
    Outcome const tree = run({"tree", "--global", "deck.inp"});
    EXPECT_EQ(tree.status, 0) << tree.err;
    for (char const* expected :
         {"*NSET, NSET=NONTRANSFORMED-1\n1,2\n*ORIENTATION, NAME=OR\n0,1,0,-1,0,0\n",
          "*TRANSFORM, NSET=NONTRANSFORMED-1\n0,1,0,-1,0,0\n*END INSTANCE\n",
          "*ORIENTATION, NAME=OJ\n1., 0., 0., 0., 1., 0.\n"})
        EXPECT_NE(tree.out.find(expected), std::string::npos) << expected << "\n" << tree.out;
    write("global.inp", tree.out);
    EXPECT_EQ(run({"check", "global.inp"}).status, 0);
    EXPECT_EQ(run({"tree", "--global", "--until", "parse", "deck.inp"}).status, 2);
}
