#pragma once
#include <compare>
#include <cstddef>
#include <functional>
#include <string_view>

// A copy-on-write byte string of two words: a pointer to the characters and a
// pointer to a counted representation that knows the length. A default string
// has no representation and reads as "". Copying adds a reference; a mutator
// first takes a private copy if the representation is shared, so the copies of
// a string never see each other's changes. Counts are plain integers: a string
// belongs to one thread.
//
// The operations shared with the message string atr_String live here;
// atr_String derives from this class.
class cow_String {
  public:
    cow_String() noexcept = default;
    cow_String(char const* text);  // NOLINT: implicit on purpose, literals flow everywhere
    cow_String(char const* text, int length);
    explicit cow_String(std::string_view text);
    // Copies, moves and the release are inline: every record of a deck
    // copies and drops strings, and most of these calls have nothing to
    // free.
    cow_String(cow_String const& other) noexcept : m_chars(other.m_chars), m_rep(other.m_rep) {
        if (m_rep) ++m_rep->refs;
    }
    cow_String(cow_String&& other) noexcept : m_chars(other.m_chars), m_rep(other.m_rep) {
        other.m_rep = nullptr;
        other.m_chars = s_empty;
    }
    cow_String& operator=(cow_String const& other) noexcept {
        if (this == &other) return *this;
        if (other.m_rep) ++other.m_rep->refs;
        Rep* rep = other.m_rep;
        char* chars = other.m_chars;
        release();
        m_rep = rep;
        m_chars = chars;
        return *this;
    }
    cow_String& operator=(cow_String&& other) noexcept {
        if (this != &other) {
            release();
            m_rep = other.m_rep;
            m_chars = other.m_chars;
            other.m_rep = nullptr;
            other.m_chars = s_empty;
        }
        return *this;
    }
    ~cow_String() {
        if (m_rep && --m_rep->refs == 0) freeRep(m_rep);
    }

    // The text form of numbers used throughout the system: decimal integers,
    // and doubles in the shortest form that reads back to the same value.
    static cow_String FromInt(long long value);
    static cow_String FromDouble(double value);

    int Length() const noexcept { return m_rep ? m_rep->length : 0; }
    bool IsEmpty() const noexcept { return Length() == 0; }
    char const* CStr() const noexcept { return m_chars; }
    std::string_view View() const noexcept { return {m_chars, static_cast<size_t>(Length())}; }
    // Index Length() gives the terminating zero.
    char operator[](int i) const;

    int Find(char c, int from = 0) const noexcept;
    int Find(std::string_view needle, int from = 0) const noexcept;  // -1 when absent
    int RFind(char c) const noexcept;
    bool StartsWith(std::string_view prefix) const noexcept;
    bool EndsWith(std::string_view suffix) const noexcept;
    cow_String Substr(int pos, int count = -1) const;

    // Mutators change this object only and return it.
    cow_String& ToUpper();
    cow_String& ToLower();
    cow_String& Trim(char const* chars = " \t");
    cow_String& LeftTrim(char const* chars = " \t");
    cow_String& RightTrim(char const* chars = " \t");
    cow_String& Erase(int pos, int count = -1);
    // Replaces every occurrence of `from` by `to`.
    cow_String& Substitute(std::string_view from, std::string_view to);
    cow_String& append(char const* text, int length);
    cow_String& append(std::string_view text) {
        return append(text.data(), static_cast<int>(text.size()));
    }
    cow_String& append(cow_String const& text) { return append(text.m_chars, text.Length()); }
    cow_String& append(char const* text) { return append(std::string_view(text)); }
    cow_String& append(char c) { return append(&c, 1); }
    cow_String& operator+=(cow_String const& text) { return append(text); }
    cow_String& operator+=(char const* text) { return append(std::string_view(text)); }
    cow_String& operator+=(char c) { return append(c); }
    // Makes room for `capacity` characters in a private representation.
    void Reserve(int capacity);

    // Sharing, for tests and for code that wants to know whether a write copies.
    int UseCount() const noexcept { return m_rep ? m_rep->refs : 0; }
    bool SharesWith(cow_String const& other) const noexcept {
        return m_rep && m_rep == other.m_rep;
    }

    friend bool operator==(cow_String const& a, cow_String const& b) noexcept {
        return a.View() == b.View();
    }
    friend bool operator==(cow_String const& a, char const* b) noexcept {
        return a.View() == std::string_view(b);
    }
    friend std::strong_ordering operator<=>(cow_String const& a, cow_String const& b) noexcept {
        return a.View() <=> b.View();
    }

  private:
    struct Rep {
        int refs;
        int length;
        int capacity;
        char chars[1];
    };
    static Rep* allocate(int capacity);
    static void freeRep(Rep* rep) noexcept;
    void release() noexcept {
        if (m_rep && --m_rep->refs == 0) freeRep(m_rep);
        m_rep = nullptr;
        m_chars = s_empty;
    }
    // What a string without a representation points at.
    static char s_empty[1];
    // Gives this string a private representation able to hold `capacity` characters.
    char* makeWritable(int capacity);
    void assign(char const* text, int length);

    char* m_chars = const_cast<char*>("");
    Rep* m_rep = nullptr;
};

cow_String operator+(cow_String const& a, cow_String const& b);
cow_String operator+(cow_String const& a, char const* b);
cow_String operator+(char const* a, cow_String const& b);

template <>
struct std::hash<cow_String> {
    size_t operator()(cow_String const& s) const noexcept {
        return std::hash<std::string_view>()(s.View());
    }
};
