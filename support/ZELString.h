#pragma once
#include <string>
#include <string_view>

// A string of Unicode code points. Built from UTF-8 by a strict decoder: an
// overlong form, a surrogate (U+D800..U+DFFF), a value above U+10FFFF, a
// sequence cut short, or a continuation byte without a lead byte makes the
// text bad. A bad build holds no code points.
class ZELString {
  public:
    ZELString() = default;

    static ZELString BuildFromUTF8(char const* text);  // null reads as ""
    static ZELString BuildFromUTF8(std::string_view text);
    // The same test without building anything.
    static bool IsValidUTF8(std::string_view text) noexcept;

    bool IsBAD() const noexcept { return m_bad; }
    int Length() const noexcept { return static_cast<int>(m_codePoints.size()); }
    char32_t operator[](int i) const { return m_codePoints.at(static_cast<size_t>(i)); }
    std::u32string const& CodePoints() const noexcept { return m_codePoints; }

  private:
    std::u32string m_codePoints;
    bool m_bad = false;
};
