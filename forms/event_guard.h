// What stands between the toolkit and the event handlers of a window.
#pragma once

#include "platform/failure_report.h"
#include "platform/message_box.h"
#include "platform/mouse_pointer.h"

#include <QApplication>
#include <QWidget>

#include <concepts>
#include <functional>
#include <utility>

namespace orvane {

/// Shows the normal pointer and reports the exception that is being handled.
/// Requires: called in a catch block.
inline void ReportCaught(MessageBox& messages, MousePointer& pointer) noexcept {
    try {
        const Failure failure = CurrentFailure();
        pointer.ShowNormal();
        ReportError(failure, messages);
    } catch (...) {
        // The failure cannot be reported; the program goes on.
    }
}

/// Runs the handlers of one window. No exception may pass through the toolkit, which calls the handlers: a
/// failure that no routine catches is reported once, with the normal pointer shown, and the program goes on.
/// Handlers can run inside one another, when one of them changes a control.
class EventGuard {
  public:
    EventGuard(const QWidget& window, MessageBox& messages, MousePointer& pointer)
        : window_(window), messages_(messages), pointer_(pointer) {}

    /// Runs a handler. Never throws. The window counts as busy until the report of a failure was answered.
    template <std::invocable Handler>
    void Handle(Handler&& handler) noexcept {
        ++depth_;
        try {
            handler();
        } catch (...) {
            ReportCaught(messages_, pointer_);
        }
        --depth_;
        if (!IsHandling() && whenIdle_)
            whenIdle_();
    }

    /// Runs the handler of a button or a menu item. Does nothing while a handler of the window is running,
    /// when another modal window is in front, and when the window has closed: assistive programs can trigger
    /// controls that the user cannot reach, and the second press of a double click can come late.
    template <std::invocable Command>
    void Run(Command&& command) noexcept {
        const QWidget* const front = QApplication::activeModalWidget();
        if (window_.isVisible() && !IsHandling() && (front == nullptr || front == &window_))
            Handle(command);
    }

    template <class Sender, class Signal, class Handler>
    void On(Sender* sender, Signal signal, Handler handler) {
        QObject::connect(sender, signal, &window_, [this, handler] { Handle(handler); });
    }
    template <class Sender, class Signal, class Command>
    void OnCommand(Sender* sender, Signal signal, Command command) {
        QObject::connect(sender, signal, &window_, [this, command] { Run(command); });
    }

    /// Whether a handler of this window is running.
    [[nodiscard]] bool IsHandling() const { return depth_ > 0; }
    /// Sets what is called whenever the last running handler has returned.
    /// Requires: `action` does not throw.
    void WhenIdle(std::function<void()> action) { whenIdle_ = std::move(action); }

  private:
    const QWidget& window_;
    MessageBox& messages_;
    MousePointer& pointer_;
    int depth_ = 0; ///< nesting depth of Handle
    std::function<void()> whenIdle_;
};

} // namespace orvane
