// Error handling around the event handlers of a window.
#pragma once

#include "output/glb_util.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"

#include <concepts>
#include <exception>
#include <utility>

namespace orvane {

/// How a failure in a handler of a window is treated:
///
/// - The user causes an event: the handler runs in Handle. A failure that no routine catches is
///   reported once, with the normal pointer shown, and the program goes on.
/// - The program changes a control: it does so in Calling, and the control's handlers run inside this
///   statement. Calling rethrows their failure, so that it reaches the routine that changed the control.
///
/// No exception may pass through the toolkit, which calls the handlers. So Handle stores an exception of an
/// inner handler, and Calling rethrows it.
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

    /// Makes a call of the toolkit that may run handlers, and rethrows what they threw.
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
            // The failure cannot be reported; the program goes on.
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
    int depth_ = 0;           ///< nesting depth of Handle and Calling
    std::exception_ptr kept_; ///< from an inner handler, until rethrown
};

} // namespace orvane
