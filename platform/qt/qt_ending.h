// Ends the program on a request from outside: a signal, or the end of the desktop's session.
#pragma once

#include <QObject>
#include <QTimer>

namespace orvane {

/// After Begin all windows are closed as by the close button of their frames, the front one first, until the
/// last one has closed and the program ends. Work in progress is finished first. Windows that open meanwhile
/// are closed too. Message boxes and prompts check IsEnding and do not open, because the user may not be
/// there to answer them.
class QtEnding : public QObject {
  public:
    /// Calls Begin at the end of the desktop's session.
    /// Requires: the application object exists.
    QtEnding();
    /// Also calls Begin as soon as `descriptor` has something to read.
    /// Requires: `descriptor` stays open as long as this object lives.
    void BeginAt(int descriptor);

    [[nodiscard]] bool IsEnding() const { return timer_.isActive(); }
    void Begin();

  private:
    static void CloseFront();

    QTimer timer_;
};

} // namespace orvane
