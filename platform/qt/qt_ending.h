// The end of the program when it comes from outside: a signal, or the end of the desktop's session.
#pragma once

#include <QObject>
#include <QTimer>

namespace orvane {

/// From Begin on, whatever is open closes as by its frame, the front one first, until the last window has
/// closed and the program ends. Work that is running comes to its end before. What opens meanwhile closes
/// too; boxes and prompts ask IsEnding and do not open at all, so that nothing waits for a user who may have
/// gone.
class QtEnding : public QObject {
  public:
    /// Begins at the end of the desktop's session.
    /// Requires: the application object exists.
    QtEnding();
    /// Begins also as soon as `descriptor` has something to read.
    /// Requires: `descriptor` stays open as long as this object lives.
    void BeginAt(int descriptor);

    [[nodiscard]] bool IsEnding() const { return timer_.isActive(); }
    void Begin();

  private:
    static void CloseFront();

    QTimer timer_;
};

} // namespace orvane
