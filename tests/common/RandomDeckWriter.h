#pragma once
// Random decks for tests: keywords of the language in random order, with
// random parameters and data, the way fuzzing would write them but from a
// fixed seed, so that a failure can be replayed.

#include <random>
#include <string>
#include <vector>

#include "expansion/inp_Schema.h"

// Writes decks from a fixed seed, so that a failure can be replayed.
class RandomDeckWriter {
  public:
    explicit RandomDeckWriter(unsigned seed) : m_random(seed), m_rows(inp_Schema::AllRows()) {}
    // Keywords of `names` only (the deck names of schema rows, such as
    // "element"), and data of small labels: decks that mesh walks bite on.
    RandomDeckWriter(unsigned seed, std::vector<std::string> const& names)
        : m_random(seed), m_meshData(true) {
        for (inp_SchemaRow const* row : inp_Schema::AllRows())
            for (std::string const& name : names)
                if (name == row->keyword) m_rows.push_back(row);
    }

    std::string Deck(int keywordCount) {
        std::string deck;
        for (int i = 0; i < keywordCount; ++i) appendKeyword(deck);
        return deck;
    }

  private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    bool chance(int percent) { return below(100) < percent; }

    // A keyword of the language most of the time, spelled as decks spell it
    // (upper or mixed case, sometimes abbreviated); now and then a word that
    // is no keyword at all.
    std::string keywordName(inp_SchemaRow const*& row) {
        row = m_rows[below(static_cast<int>(m_rows.size()))];
        if (chance(3)) return "NOSUCH" + std::to_string(below(100));
        std::string name = row->keyword;
        if (chance(30)) {
            for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        return name;
    }

    std::string parameterValue(inp_SchemaRow const& row, std::string const& parameter) {
        for (inp_SchemaEnum const& enumeration : row.enumerations) {
            if (parameter != enumeration.parameter || !chance(70)) continue;
            int count = 0;
            while (enumeration.words[count]) ++count;
            std::string word = enumeration.words[below(count)];
            if (chance(20) && word.size() > 1)
                word.resize(1 + below(static_cast<int>(word.size())));
            return word;
        }
        static char const* const values[] = {"A", "Set-1", "\"quoted name\"", "12",    "-3.5e2",
                                             "",  "1.0d0", "<param>",         "x y z", "None"};
        static char const* const meshValues[] = {"A",  "B",  "C3D8", "CAXA41", "GK3D18",  "COH3D8P",
                                                 "S1", "10", "NODE", "B31",    "CONN3D2", "-1"};
        return m_meshData && chance(60) ? meshValues[below(12)] : values[below(10)];
    }

    void appendParameters(std::string& deck, inp_SchemaRow const& row) {
        std::vector<std::string> words;
        for (inp_WordTable word = row.parameters; *word; ++word) words.emplace_back(*word);
        int const count = below(4);
        for (int i = 0; i < count; ++i) {
            std::string name = words.empty() || chance(10)
                                   ? "bogus"
                                   : words[below(static_cast<int>(words.size()))];
            if (chance(25) && name.size() > 2)
                name.resize(2 + below(static_cast<int>(name.size()) - 1));
            deck += ", " + name;
            if (chance(80)) deck += "=" + parameterValue(row, name);
        }
    }

    void appendDataLines(std::string& deck) {
        if (m_meshData) return appendMeshDataLines(deck);
        static char const* const items[] = {"1",     "2.5",   "-7",  "1e3",          "A", "", " ",
                                            "SET-1", "1.5.5", "'q'", "999999999999", "0"};
        int const lines = chance(40) ? 0 : below(6);
        for (int line = 0; line < lines; ++line) {
            int const count = 1 + below(20);
            for (int i = 0; i < count; ++i) {
                if (i > 0) deck += ", ";
                deck += items[below(12)];
            }
            deck += '\n';
        }
    }

    // Rows of small labels, now and then a set name, a face identifier, an
    // empty field or a trailing comma.
    void appendMeshDataLines(std::string& deck) {
        static char const* const items[] = {"A", "B", "S1", "S2", "", "0", "-2", "1.5", "I.A"};
        int const lines = below(5);
        for (int line = 0; line < lines; ++line) {
            int const count = 1 + below(22);
            for (int i = 0; i < count; ++i) {
                if (i > 0) deck += ", ";
                deck += chance(80) ? std::to_string(1 + below(12)) : items[below(9)];
            }
            if (chance(10)) deck += ",";
            deck += '\n';
        }
    }

    void appendKeyword(std::string& deck) {
        if (chance(5)) deck += "** a comment\n";
        inp_SchemaRow const* row = nullptr;
        deck += "*" + keywordName(row);
        appendParameters(deck, *row);
        deck += '\n';
        appendDataLines(deck);
    }

    std::mt19937 m_random;
    std::vector<inp_SchemaRow const*> m_rows;
    bool m_meshData = false;
};
