// What the user did while the program was busy is not meant for what comes then, and is dropped.
#pragma once

#include <QObject>

namespace orvane {

/// Shared by the pointer, which says when the program is busy, and by all that waits for the user.
class QtInputDrain : private QObject {
  public:
    [[nodiscard]] bool IsBusy() const { return busy_; }
    void SetBusy(bool busy) { busy_ = busy; }

    /// Drops the clicks and keys that wait in the window system and in the program; paints what has to be
    /// painted. A request to close a window reaches the window. A box that opens meanwhile gets its input.
    /// Does nothing unless the program is busy, nothing while a menu is open, and nothing when it is called
    /// from inside itself.
    void DropPendingInput();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool busy_ = false;
    bool dropping_ = false;
    const QObject* modal_ = nullptr; ///< the box or window that was open when the dropping began
};

} // namespace orvane
