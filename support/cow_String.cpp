#include "support/cow_String.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>

#include "support/ZELBasAssert.h"

char cow_String::s_empty[1] = {0};

cow_String::Rep* cow_String::allocate(int capacity) {
    void* block = std::malloc(offsetof(Rep, chars) + static_cast<size_t>(capacity) + 1);
    if (!block) throw std::bad_alloc();
    Rep* rep = static_cast<Rep*>(block);
    rep->refs = 1;
    rep->length = 0;
    rep->capacity = capacity;
    rep->chars[0] = 0;
    return rep;
}

void cow_String::freeRep(Rep* rep) noexcept {
    std::free(rep);
}

void cow_String::assign(char const* text, int length) {
    ZELBAS_ASSERT(length >= 0);
    if (length == 0) return;
    m_rep = allocate(length);
    std::memcpy(m_rep->chars, text, static_cast<size_t>(length));
    m_rep->chars[length] = 0;
    m_rep->length = length;
    m_chars = m_rep->chars;
}

cow_String::cow_String(char const* text) {
    if (text) assign(text, static_cast<int>(std::strlen(text)));
}

cow_String::cow_String(char const* text, int length) {
    assign(text, length);
}

cow_String::cow_String(std::string_view text) {
    assign(text.data(), static_cast<int>(text.size()));
}

cow_String cow_String::FromInt(long long value) {
    char buffer[24];
    auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return cow_String(buffer, static_cast<int>(result.ptr - buffer));
}

cow_String cow_String::FromDouble(double value) {
    char buffer[40];
    auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return cow_String(buffer, static_cast<int>(result.ptr - buffer));
}

char cow_String::operator[](int i) const {
    ZELBAS_ASSERT(i >= 0 && i <= Length());
    return m_chars[i];
}

int cow_String::Find(char c, int from) const noexcept {
    for (int i = std::max(from, 0); i < Length(); ++i)
        if (m_chars[i] == c) return i;
    return -1;
}

int cow_String::Find(std::string_view needle, int from) const noexcept {
    if (from < 0) from = 0;
    if (from > Length()) return -1;
    size_t at = View().find(needle, static_cast<size_t>(from));
    return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

int cow_String::RFind(char c) const noexcept {
    for (int i = Length() - 1; i >= 0; --i)
        if (m_chars[i] == c) return i;
    return -1;
}

bool cow_String::StartsWith(std::string_view prefix) const noexcept {
    return View().starts_with(prefix);
}

bool cow_String::EndsWith(std::string_view suffix) const noexcept {
    return View().ends_with(suffix);
}

cow_String cow_String::Substr(int pos, int count) const {
    ZELBAS_ASSERT(pos >= 0 && pos <= Length());
    if (count < 0 || pos + count > Length()) count = Length() - pos;
    if (pos == 0 && count == Length()) return *this;
    return cow_String(m_chars + pos, count);
}

char* cow_String::makeWritable(int capacity) {
    int length = Length();
    if (capacity < length) capacity = length;
    if (m_rep && m_rep->refs == 1 && m_rep->capacity >= capacity) return m_rep->chars;
    if (capacity == 0) return m_chars;
    Rep* rep = allocate(capacity);
    std::memcpy(rep->chars, m_chars, static_cast<size_t>(length) + 1);
    rep->length = length;
    release();
    m_rep = rep;
    m_chars = rep->chars;
    return m_chars;
}

void cow_String::Reserve(int capacity) {
    makeWritable(capacity);
}

cow_String& cow_String::ToUpper() {
    if (IsEmpty()) return *this;
    char* p = makeWritable(Length());
    for (int i = 0; i < Length(); ++i)
        if (p[i] >= 'a' && p[i] <= 'z') p[i] = static_cast<char>(p[i] - 'a' + 'A');
    return *this;
}

cow_String& cow_String::ToLower() {
    if (IsEmpty()) return *this;
    char* p = makeWritable(Length());
    for (int i = 0; i < Length(); ++i)
        if (p[i] >= 'A' && p[i] <= 'Z') p[i] = static_cast<char>(p[i] - 'A' + 'a');
    return *this;
}

cow_String& cow_String::LeftTrim(char const* chars) {
    int skip = 0;
    while (skip < Length() && std::strchr(chars, m_chars[skip])) ++skip;
    return skip ? Erase(0, skip) : *this;
}

cow_String& cow_String::RightTrim(char const* chars) {
    int keep = Length();
    while (keep > 0 && std::strchr(chars, m_chars[keep - 1])) --keep;
    return keep < Length() ? Erase(keep) : *this;
}

cow_String& cow_String::Trim(char const* chars) {
    return RightTrim(chars).LeftTrim(chars);
}

cow_String& cow_String::Erase(int pos, int count) {
    int length = Length();
    ZELBAS_ASSERT(pos >= 0 && pos <= length);
    if (count < 0 || pos + count > length) count = length - pos;
    if (count == 0) return *this;
    if (count == length) {
        release();
        return *this;
    }
    char* p = makeWritable(length);
    std::memmove(p + pos, p + pos + count, static_cast<size_t>(length - pos - count) + 1);
    m_rep->length = length - count;
    return *this;
}

cow_String& cow_String::Substitute(std::string_view from, std::string_view to) {
    if (from.empty() || Find(from) < 0) return *this;
    cow_String result;
    result.Reserve(Length());
    int start = 0;
    for (int at = Find(from); at >= 0; at = Find(from, start)) {
        result.append(m_chars + start, at - start);
        result.append(to);
        start = at + static_cast<int>(from.size());
    }
    result.append(m_chars + start, Length() - start);
    return *this = std::move(result);
}

cow_String& cow_String::append(char const* text, int length) {
    if (length <= 0) return *this;
    if (m_rep && text >= m_chars && text <= m_chars + Length()) {
        // Appending a piece of itself: take the piece out before the buffer moves.
        cow_String piece(text, length);
        return append(piece.m_chars, length);
    }
    int old = Length();
    int needed = old + length;
    int capacity = needed;
    if (m_rep && m_rep->refs == 1 && needed > m_rep->capacity)
        capacity = std::max(needed, 2 * m_rep->capacity);
    char* p = makeWritable(capacity);
    std::memmove(p + old, text, static_cast<size_t>(length));
    p[needed] = 0;
    m_rep->length = needed;
    return *this;
}

cow_String operator+(cow_String const& a, cow_String const& b) {
    cow_String result;
    result.Reserve(a.Length() + b.Length());
    return result.append(a).append(b);
}

cow_String operator+(cow_String const& a, char const* b) {
    return a + cow_String(b);
}

cow_String operator+(char const* a, cow_String const& b) {
    return cow_String(a) + b;
}
