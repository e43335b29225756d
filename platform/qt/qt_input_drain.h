// Drops the clicks and keys that the user made while the program was busy.
#pragma once

#include <QObject>

namespace orvane {

/// Shared by the mouse pointer, which sets the busy state, and by the message boxes and prompts.
class QtInputDrain : private QObject {
  public:
    [[nodiscard]] bool IsBusy() const { return busy_; }
    void SetBusy(bool busy) { busy_ = busy; }

    /// Processes the pending events of the window system and of the program, but drops clicks and keys. So
    /// windows are painted, and a request to close a window reaches it. A message box that opens meanwhile
    /// gets its input. Does nothing if the program is not busy, if a menu is open, or if it is already
    /// running.
    void DropPendingInput();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool busy_ = false;
    bool dropping_ = false;
    const QObject* modal_ = nullptr; ///< the modal window at the start of DropPendingInput
};

} // namespace orvane
