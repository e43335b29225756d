// The one way in which the parts of a test's desktop are made to fail.
#pragma once

#include "platform/failure.h"

#include <set>
#include <string>

namespace orvane::fakes {

struct Faults {
    std::set<std::string, std::less<>> Fails; ///< names of the operations that fail
    int Before = 0;                           ///< calls of them that succeed first

    bool Failing(std::string_view call) { return Fails.contains(call) && Before-- <= 0; }
    /// Throws "cannot CALL" with the number 5 when the call is to fail.
    void Try(std::string_view call) {
        if (Failing(call))
            throw Failure("cannot " + std::string(call), 5, "a fake");
    }
};

/// The failure that `step` ends with, one of number 0 when it does not fail.
template <class Step>
Failure FailureOf(Step&& step) {
    try {
        step();
    } catch (const Failure& failure) {
        return failure;
    }
    return {"", 0, ""};
}

} // namespace orvane::fakes
