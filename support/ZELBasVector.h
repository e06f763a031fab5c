#pragma once
#include <cstddef>
#include <initializer_list>
#include <utility>
#include <vector>

#include "support/ZELBasAssert.h"

// A plain growable array with value semantics (copies are deep). An index out
// of range is a fault of the calling code and fails an assertion.
template <class T>
class ZELBasVector {
  public:
    using value_type = T;
    using iterator = typename std::vector<T>::iterator;
    using const_iterator = typename std::vector<T>::const_iterator;

    ZELBasVector() = default;
    ZELBasVector(std::initializer_list<T> values) : m_items(values) {}

    int Size() const noexcept { return static_cast<int>(m_items.size()); }
    bool IsEmpty() const noexcept { return m_items.empty(); }

    T& operator[](int i) {
        ZELBAS_ASSERT(i >= 0 && i < Size());
        return m_items[static_cast<size_t>(i)];
    }
    T const& operator[](int i) const {
        ZELBAS_ASSERT(i >= 0 && i < Size());
        return m_items[static_cast<size_t>(i)];
    }

    void Append(T const& value) { m_items.push_back(value); }
    void Append(T&& value) { m_items.push_back(std::move(value)); }
    void push_back(T const& value) { m_items.push_back(value); }
    void push_back(T&& value) { m_items.push_back(std::move(value)); }
    void Reserve(int capacity) { m_items.reserve(static_cast<size_t>(capacity)); }
    void Clear() noexcept { m_items.clear(); }

    iterator begin() noexcept { return m_items.begin(); }
    iterator end() noexcept { return m_items.end(); }
    const_iterator begin() const noexcept { return m_items.begin(); }
    const_iterator end() const noexcept { return m_items.end(); }

    friend bool operator==(ZELBasVector const& a, ZELBasVector const& b) {
        return a.m_items == b.m_items;
    }

  private:
    std::vector<T> m_items;
};
