#pragma once
// A test fixture that runs the expansion stage over small decks: the text is
// written to a file, parsed as the pipeline parses it, and walked by the
// fixture's visitor, whose diagnostics the tests then read.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "expansion/inp_KeywordExpansionVisitor.h"
#include "parser/inp_Parser.h"
#include "tests/common/TempDeckDirectory.h"

using Messages = std::vector<std::string>;

template <class Text>
Messages texts(cow_List<Text> const& list) {
    Messages result;
    for (Text const& text : list) result.emplace_back(text.View());
    return result;
}

class ExpandedDeck : public ::testing::Test {
  protected:
    // Parses `text` as the file deck.inp and walks the expansion over it.
    void expand(std::string const& text) {
        m_path = dir.Write("deck.inp", text);
        keywords = expandWith(visitor, "deck.inp", text);
    }
    // The same with another visitor and file.
    cow_List<inp_Keyword> expandWith(inp_KeywordExpansionVisitor& expansion,
                                     std::string const& name, std::string const& text) {
        inp_Parser parser(dir.Write(name, text), dir.Directory(), cow_List<cow_String>(),
                          cow_String(), true, true, false);
        cow_List<inp_Keyword> parsed = parser.Parse(true);
        EXPECT_TRUE(parser.GetErrors().IsEmpty() && parser.GetFatalErrors().IsEmpty());
        expansion.VisitList(parsed);
        return parsed;
    }
    // The decoration of a message about the keyword `name` on deck line `line`.
    std::string at(char const* name, int line) const {
        return std::string("in keyword *") + name + ", file \"" + m_path.CStr() + "\", line " +
               std::to_string(line) + ": ";
    }
    Messages errors() const { return texts(visitor.GetErrorList()); }
    Messages fatalErrors() const { return texts(visitor.GetFatalErrorList()); }

    TempDeckDirectory dir;
    inp_KeywordExpansionVisitor visitor;
    cow_List<inp_Keyword> keywords;

  private:
    cow_String m_path;
};
