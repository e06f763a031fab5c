#pragma once
// A strict JSON reader for tests that read the program's output as scripts
// do: the whole grammar of RFC 8259 (escapes decoded, commas and colons where
// they belong, numbers as JSON writes them), and a malformed text fails the
// test that reads it with the offset where it went wrong.

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <tuple>
#include <vector>

struct Json {
    enum Kind { Null, Bool, Number, String, Array, Object } kind = Null;
    double number = 0;
    bool integer = false;  // a number written without fraction or exponent
    std::string text;      // a string, escapes decoded
    std::vector<Json> items;
    std::map<std::string, Json> members;
    std::vector<std::string> order;  // member names as written

    bool Has(std::string const& name) const { return members.count(name) > 0; }
    Json const& operator[](std::string const& name) const {
        auto const found = members.find(name);
        if (found == members.end()) ADD_FAILURE() << "no member " << name;
        static Json const missing;
        return found == members.end() ? missing : found->second;
    }
    Json const& operator[](size_t index) const {
        if (index >= items.size()) ADD_FAILURE() << "no item " << index;
        static Json const missing;
        return index < items.size() ? items[index] : missing;
    }
    int Int() const { return static_cast<int>(number); }
};

class JsonReader {
  public:
    explicit JsonReader(std::string const& text) : m_text(text) {}

    // The one value of the text; anything but blanks after it is a failure.
    Json Read() {
        Json value = readValue();
        skipBlanks();
        if (m_at != m_text.size()) fail("text after the value");
        return value;
    }
    bool Failed() const { return m_failed; }

  private:
    void fail(char const* what) {
        if (!m_failed) ADD_FAILURE() << "malformed JSON at offset " << m_at << ": " << what;
        m_failed = true;
        m_at = m_text.size();
    }
    void skipBlanks() {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\t' ||
                                        m_text[m_at] == '\n' || m_text[m_at] == '\r'))
            ++m_at;
    }
    bool take(char c) {
        skipBlanks();
        if (m_at < m_text.size() && m_text[m_at] == c) return ++m_at, true;
        return false;
    }
    void expect(char c) {
        if (!take(c)) fail("a separator is missing");
    }

    Json readValue() {
        Json value;
        skipBlanks();
        if (m_at >= m_text.size()) {
            fail("no value");
        } else if (take('{')) {
            readObject(value);
        } else if (take('[')) {
            value.kind = Json::Array;
            if (take(']')) return value;
            do value.items.push_back(readValue());
            while (!m_failed && take(','));
            expect(']');
        } else if (m_text[m_at] == '"') {
            value.kind = Json::String;
            value.text = readString();
        } else {
            readWord(value);
        }
        return value;
    }

    void readObject(Json& value) {
        value.kind = Json::Object;
        if (take('}')) return;
        do {
            skipBlanks();
            std::string name = readString();
            expect(':');
            if (value.members.count(name)) fail("a member name is repeated");
            value.order.push_back(name);
            value.members[name] = readValue();
        } while (!m_failed && take(','));
        expect('}');
    }

    std::string readString() {
        if (!take('"')) return fail("a string is missing"), std::string();
        std::string text;
        while (m_at < m_text.size() && m_text[m_at] != '"') {
            auto const c = static_cast<unsigned char>(m_text[m_at++]);
            if (c < 0x20) return fail("a control character in a string"), text;
            if (c != '\\') {
                text += static_cast<char>(c);
                continue;
            }
            readEscape(text);
        }
        if (!take('"')) fail("a string is not closed");
        return text;
    }

    void readEscape(std::string& text) {
        if (m_at >= m_text.size()) return fail("an escape is cut short");
        char const c = m_text[m_at++];
        switch (c) {
            case '"':
            case '\\':
            case '/':
                text += c;
                return;
            case 'b':
                text += '\b';
                return;
            case 'f':
                text += '\f';
                return;
            case 'n':
                text += '\n';
                return;
            case 'r':
                text += '\r';
                return;
            case 't':
                text += '\t';
                return;
            case 'u':
                break;
            default:
                return fail("an unknown escape");
        }
        unsigned code = readHex4();
        if (code >= 0xD800 && code < 0xDC00 && m_text.compare(m_at, 2, "\\u") == 0) {
            m_at += 2;
            code = 0x10000 + ((code - 0xD800) << 10) + (readHex4() - 0xDC00);
        }
        appendUtf8(text, code);
    }

    unsigned readHex4() {
        if (m_at + 4 > m_text.size()) return fail("a \\u escape is cut short"), 0u;
        std::string const digits = m_text.substr(m_at, 4);
        char* end = nullptr;
        unsigned long const code = std::strtoul(digits.c_str(), &end, 16);
        if (end != digits.c_str() + 4) fail("a \\u escape needs four hexadecimal digits");
        m_at += 4;
        return static_cast<unsigned>(code);
    }

    static void appendUtf8(std::string& text, unsigned code) {
        if (code < 0x80) {
            text += static_cast<char>(code);
        } else if (code < 0x800) {
            text += static_cast<char>(0xC0 | (code >> 6));
            text += static_cast<char>(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            text += static_cast<char>(0xE0 | (code >> 12));
            text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            text += static_cast<char>(0xF0 | (code >> 18));
            text += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
            text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            text += static_cast<char>(0x80 | (code & 0x3F));
        }
    }

    void readWord(Json& value) {
        for (auto const& [word, kind, truth] : {std::tuple{"true", Json::Bool, 1.0},
                                                {"false", Json::Bool, 0.0},
                                                {"null", Json::Null, 0.0}}) {
            if (m_text.compare(m_at, std::string(word).size(), word) == 0) {
                m_at += std::string(word).size();
                value.kind = kind;
                value.number = truth;
                return;
            }
        }
        readNumber(value);
    }

    // -?(0|[1-9][0-9]*)(\.[0-9]+)?([eE][+-]?[0-9]+)?
    void readNumber(Json& value) {
        size_t const start = m_at;
        auto const digits = [&] {
            size_t const first = m_at;
            while (m_at < m_text.size() && m_text[m_at] >= '0' && m_text[m_at] <= '9') ++m_at;
            return m_at - first;
        };
        if (m_at < m_text.size() && m_text[m_at] == '-') ++m_at;
        size_t const whole = m_at;
        if (digits() == 0 || (m_text[whole] == '0' && m_at - whole > 1)) return fail("not a value");
        value.integer = true;
        if (m_at < m_text.size() && m_text[m_at] == '.') {
            ++m_at;
            value.integer = false;
            if (digits() == 0) return fail("a fraction needs digits");
        }
        if (m_at < m_text.size() && (m_text[m_at] == 'e' || m_text[m_at] == 'E')) {
            ++m_at;
            value.integer = false;
            if (m_at < m_text.size() && (m_text[m_at] == '+' || m_text[m_at] == '-')) ++m_at;
            if (digits() == 0) return fail("an exponent needs digits");
        }
        value.kind = Json::Number;
        value.number = std::strtod(m_text.substr(start, m_at - start).c_str(), nullptr);
    }

    std::string const& m_text;
    size_t m_at = 0;
    bool m_failed = false;
};
