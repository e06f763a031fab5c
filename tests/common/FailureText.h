#pragma once
// What a call raised, as text, so that tests compare exact messages.

#include <string>

#include "deck/inp_Exceptions.h"
#include "support/ZELBasException.h"

// The message of the deck exception the call raised, or "no exception".
inline std::string messageOf(auto&& call) {
    try {
        call();
    } catch (inp_PrimException const& e) {
        return e.UserReport().CStr();
    }
    return "no exception";
}

// The condition text of the assertion the call raised, or "no assertion".
inline std::string conditionOf(auto&& call) {
    try {
        call();
    } catch (ZELBasAssertException const& e) {
        return e.Condition().CStr();
    }
    return "no assertion";
}
