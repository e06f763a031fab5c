#pragma once
// Writes keywords back as deck text that reads back to the same keywords: the
// same names, parameters and data, numbers exact.
//
// This is not inp_Keyword::Print, whose form (folded lower-case names, data
// items normalised, every row as it is held) tests and debug output rely on.
// The writer writes what a user or another program reads:
// - keyword names as decks write them ("*SOLID SECTION"), parameter names in
//   upper case;
// - data lines as the deck wrote them: raw lines with the commas, blanks,
//   case and quotes of the deck (the reader normalises them again on the
//   way back), the lines of *HEADING and *STEP whole and unchanged;
// - compact node and element data with the shortest text that reads back to
//   the same number; rows that hold nothing (a blank line in a node or
//   element block) are left out;
// - no line longer than the reader takes (kMaxLineLength): a keyword line
//   goes on on the next line behind a trailing comma, and a data row drops
//   the blanks behind its commas when it would be too long.
// The data of a keyword read from an encrypted file is never written: its
// keyword line is, followed by the comment kWithheldNote where data lines
// were. A keyword blanked by an error has no line of its own; its
// suboptions are written.

#include <string>
#include <vector>

#include "support/cow_List.h"

class aio_ostream;
class inp_Keyword;
class inp_DataArray;

class inp_DeckWriter {
  public:
    // The reader keeps this many characters of a line.
    static constexpr int kMaxLineLength = 256;
    // Keyword lines are wrapped before this width, for the reader of the deck.
    static constexpr int kKeywordLineWidth = 132;
    static constexpr char const* kWithheldNote =
        "** data lines from an encrypted file are not shown\n";

    explicit inp_DeckWriter(aio_ostream& out) : m_out(out) {}

    // Every keyword with its suboptions below it, in order.
    void Write(cow_List<inp_Keyword> const& keywords);
    // One keyword without its suboptions.
    void WriteKeyword(inp_Keyword const& keyword);

  private:
    void writeKeywordLine(inp_Keyword const& keyword);
    void writeDataLines(inp_Keyword const& keyword);
    void writeTitleLines(inp_DataArray const& data);
    void writeRawRows(inp_Keyword const& keyword);
    void writeRawLine(char const* items, int columns);
    void writeNodeRows(inp_DataArray const& data);
    void writeElementRows(inp_DataArray const& data);
    // A data row is built item by item in m_line, the items joined by ", ";
    // endRow writes it, without the blanks behind the commas when the line
    // would be too long with them.
    void addItem(char const* text, size_t length);
    void addNumber(int value);
    void addNumber(double value);
    void endRow();

    aio_ostream& m_out;
    std::string m_line;
    std::vector<size_t> m_separatorBlanks;  // where the blank behind each ", " is
    bool m_rowStarted = false;
};
