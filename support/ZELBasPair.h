#pragma once
#include <utility>

// A plain pair of values.
template <class A, class B>
struct ZELBasPair {
    A first{};
    B second{};

    ZELBasPair() = default;
    ZELBasPair(A a, B b) : first(std::move(a)), second(std::move(b)) {}

    A& First() noexcept { return first; }
    A const& First() const noexcept { return first; }
    B& Second() noexcept { return second; }
    B const& Second() const noexcept { return second; }

    friend bool operator==(ZELBasPair const& x, ZELBasPair const& y) {
        return x.first == y.first && x.second == y.second;
    }
};
