// The one guard around the events of a window.
#pragma once

#include "output/glb_util.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"

#include <concepts>
#include <exception>
#include <utility>

namespace orvane {

/// What becomes of a failure in the handlers of a window:
///
/// - The user causes an event: its handler runs in Handle. A failure that no routine catches is reported
/// once,
///   under the normal pointer, and the program goes on.
/// - The program itself moves a control: it does so in Calling, and the handlers run inside that statement.
///   Their failure is thrown by Calling, so that it belongs to the routine that moved the control.
///
/// Between a handler and Calling lies the toolkit, which no exception may cross. So Handle keeps an exception
/// of an inner handler, and Calling throws it.
class EventGuard {
  public:
    EventGuard(MessageBox& messages, MousePointer& pointer) : messages_(messages), pointer_(pointer) {}

    /// Runs a handler. Never throws.
    template <std::invocable Handler>
    void Handle(Handler&& handler) noexcept {
        const bool outermost = depth_ == 0;
        try {
            const Level level(depth_);
            handler();
            ThrowKept();
        } catch (...) {
            outermost ? ReportCaught() : Keep();
        }
    }

    /// Runs a call of the toolkit that may run handlers, and throws what they threw.
    template <std::invocable Call>
    void Calling(Call&& call) {
        {
            const Level level(depth_);
            call();
        }
        ThrowKept();
    }

    /// Whether a handler of this window is running.
    [[nodiscard]] bool IsHandling() const { return depth_ > 0; }

    /// Shows the normal pointer and reports the exception that is being handled.
    /// Requires: called in a catch block.
    void ReportCaught() noexcept {
        try {
            const Failure failure = CurrentFailure();
            pointer_.ShowNormal();
            ReportError(failure, messages_);
        } catch (...) {
            // Nothing is left with which to tell the user; the program goes on.
        }
    }

  private:
    struct Level {
        explicit Level(int& depth) : depth_(depth) { ++depth_; }
        ~Level() { --depth_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;
        int& depth_;
    };

    void Keep() noexcept { kept_ = std::current_exception(); }
    void ThrowKept() {
        if (kept_)
            std::rethrow_exception(std::exchange(kept_, nullptr));
    }

    MessageBox& messages_;
    MousePointer& pointer_;
    int depth_ = 0;           ///< handlers and calls that are running inside one another
    std::exception_ptr kept_; ///< on its way from an inner handler to Calling
};

} // namespace orvane
