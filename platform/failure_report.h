// How a failure reaches the user: reported once, where it is caught.
#pragma once

#include "platform/failure.h"
#include "platform/message_box.h"

#include <concepts>

namespace orvane {

/// Shows the failure in three labelled lines. Returns when the user has pressed OK.
void ReportError(const Failure& failure, MessageBox& messages);

/// The exception that is being handled, as a Failure; other exceptions, such as std::bad_alloc, are
/// converted.
/// Requires: called inside a catch block.
Failure CurrentFailure();

/// Runs `body`. If it throws: reports the failure once and returns normally. A cancelled prompt is not
/// reported.
template <std::invocable Body>
void WithFailurePath(MessageBox& messages, Body&& body) {
    try {
        body();
    } catch (...) {
        const Failure failure = CurrentFailure();
        if (failure.Number != failure_number::Cancelled)
            ReportError(failure, messages);
    }
}

} // namespace orvane
