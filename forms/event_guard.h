// The one guard around the events of a window.
#pragma once

#include "output/glb_util.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"

#include <concepts>
#include <exception>
#include <utility>

namespace orvane {

/// Every handler of a window runs through its window's guard. The outermost one catches what no routine
/// caught, shows the normal pointer and reports once. A handler that runs inside another one, because the
/// program itself moved a control, has no guard of its own: its failure comes out of the statement that moved
/// the control. As no exception may cross the toolkit's signal code, it is kept on the way and thrown again
/// behind the toolkit's call, so program code moves its controls inside Calling.
class EventGuard {
  public:
    EventGuard(MessageBox& messages, MousePointer& pointer) : messages_(messages), pointer_(pointer) {}

    /// Runs a handler. Never throws: signals and virtual event functions of the toolkit call it.
    template <std::invocable Handler>
    void Handle(Handler&& handler) noexcept {
        const bool outermost = depth_ == 0;
        ++depth_;
        try {
            handler();
            Rethrow();
        } catch (...) {
            kept_ = std::current_exception();
        }
        --depth_;
        if (outermost && kept_)
            Report();
    }

    /// Runs a call of the toolkit that may run handlers, and throws what they threw.
    template <std::invocable Call>
    void Calling(Call&& call) {
        call();
        Rethrow();
    }

    /// Whether a handler of this window is running.
    [[nodiscard]] bool IsHandling() const { return depth_ > 0; }

  private:
    void Rethrow() {
        if (kept_)
            std::rethrow_exception(std::exchange(kept_, nullptr));
    }

    void Report() noexcept {
        try {
            std::rethrow_exception(std::exchange(kept_, nullptr));
        } catch (...) {
            try {
                const Failure failure = CurrentFailure();
                pointer_.ShowNormal();
                ReportError(failure, messages_);
            } catch (...) {
                // Nothing is left with which to tell the user; the program goes on.
            }
        }
    }

    MessageBox& messages_;
    MousePointer& pointer_;
    int depth_ = 0;
    std::exception_ptr kept_;
};

} // namespace orvane
